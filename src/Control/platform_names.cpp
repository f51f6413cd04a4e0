#include "Control/platform_names.hpp"

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
  }
  if (const passwd* account = getpwuid(geteuid())) names.user = std::string(account->pw_name).substr(0, 20);
  const long cores = sysconf(_SC_NPROCESSORS_ONLN);
  names.processor = (known ? std::string(system.machine) + ", " : std::string()) +
                    std::to_string(cores > 0 ? cores : 1) + " cores";
  return names;
}

}  // namespace

const platform_names& platform() {
  static const platform_names names = ask();
  return names;
}

}  // namespace tervak
