#pragma once

#include <string>

namespace tervak {

/// What the platform tells of the machine and its user. Nothing is read from the environment; a name that the
/// platform does not give is blank.
struct platform_names {
  std::string computer;          ///< host name, at most 25 characters
  std::string user;              ///< account name, at most 20 characters
  std::string operating_system;  ///< kernel name and release
  std::string processor;         ///< architecture and count of processors, "x86_64, 8 cores"
};

const platform_names& platform();

}  // namespace tervak
