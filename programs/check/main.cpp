#include <exception>
#include <iostream>

#include "check/commands.hpp"
#include "Platform/console.hpp"
#include "Platform/process.hpp"

int main(int count, char** arguments) {
  using namespace tervak::check;
  try {
    tervak::os::hold_standard_streams();
    tervak::os::catch_interrupts();
    const int status = run(parse_options(tervak::os::start_console(count, arguments)), std::cout);
    if (tervak::os::interrupted() != 0) tervak::os::end_interrupted();
    if (!std::cout.flush()) throw std::runtime_error("standard output cannot be written");
    return status;
  } catch (const usage_error& error) {
    std::cerr << "tervak-check: " << error.what() << "; see tervak-check --help\n";
  } catch (const std::exception& error) {
    std::cerr << "tervak-check: " << error.what() << '\n';
  }
  return 2;
}
