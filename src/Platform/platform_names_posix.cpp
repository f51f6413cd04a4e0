#include "Platform/platform_names.hpp"

#include <pwd.h>
#include <sys/utsname.h>
#include <unistd.h>

namespace tervak {

namespace {

platform_names ask() {
  platform_names names;
  utsname system{};
  const bool known = uname(&system) == 0;
  if (known) {
    names.computer = std::string(system.nodename).substr(0, 25);
    names.operating_system = std::string(system.sysname) + " " + system.release;
    names.interface_file_system = names.operating_system;
  }
  if (const passwd* account = getpwuid(geteuid())) names.user = std::string(account->pw_name).substr(0, 20);
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
