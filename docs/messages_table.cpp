// Prints the tables of docs/messages.md, and with --rules that of docs/check.md.
#include <cstring>
#include <iostream>

#include "check/catalogue.hpp"
#include "check/rules.hpp"

int main(int count, char** arguments) {
  using namespace tervak::check;
  if (count == 2 && std::strcmp(arguments[1], "--rules") == 0) {
    for (const rule* r : all_rules())
      std::cout << "| `" << r->name << "` | " << r->looks_at << " | " << r->warns << " | " << r->reason
                << " |\n";
  } else {
    std::cout << catalogue_page();
  }
  return std::cout.flush() ? 0 : 1;
}
