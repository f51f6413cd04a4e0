#include "Platform/console.hpp"

namespace tervak::os {

std::vector<std::string> start_console(int count, char** arguments) {
  return {arguments + (count > 0 ? 1 : 0), arguments + count};
}

bool owns_console() { return false; }

void wait_for_enter() {}

void attach_to_calling_console() {}

}  // namespace tervak::os
