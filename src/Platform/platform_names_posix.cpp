#include "Platform/platform_names.hpp"

#include <pwd.h>
#include <sys/utsname.h>
#include <unistd.h>

#include <fstream>
#include <sstream>

namespace tervak {

namespace {

/// Empty where nothing names the account. A static program may find no name service and then reads the
/// accounts itself.
std::string user_name() {
  if (const passwd* account = getpwuid(geteuid())) return account->pw_name;
  const std::string id = std::to_string(geteuid());
  std::ifstream accounts("/etc/passwd");
  for (std::string line; std::getline(accounts, line);) {
    std::istringstream fields(line);
    std::string name, password, number;
    if (std::getline(fields, name, ':') && std::getline(fields, password, ':') &&
        std::getline(fields, number, ':') && number == id)
      return name;
  }
  return {};
}

platform_names ask() {
  platform_names names;
  utsname system{};
  const bool known = uname(&system) == 0;
  if (known) {
    names.computer = std::string(system.nodename).substr(0, 25);
    names.operating_system = std::string(system.sysname) + " " + system.release;
    names.interface_file_system = names.operating_system;
  }
  names.user = user_name().substr(0, 20);
  if (known) names.processor = system.machine;
  if (const long cores = sysconf(_SC_NPROCESSORS_ONLN); cores > 0)
    names.processor += (known ? ", " : "") + std::to_string(cores) + " cores";
  return names;
}

}  // namespace

const platform_names& platform() {
  static const platform_names names = ask();
  return names;
}

}  // namespace tervak
