#pragma once

#include <string>

namespace tervak {

/// What the platform says of the machine and its user. A name that the platform does not give is blank. POSIX
/// asks the system and not the environment; Windows gives COMPUTERNAME and USERNAME of the environment.
struct platform_names {
  std::string computer;               ///< host name, at most 25 characters
  std::string user;                   ///< account name, at most 20 characters
  std::string operating_system;       ///< kernel name and release, or "Windows 10" and the like
  std::string interface_file_system;  ///< the same for the interface file, whose Windows names are older
  std::string processor;              ///< architecture and count of processors, "x86_64, 8 cores"
  int adapter_id = 0;                 ///< adapter_number of the network adapters; 0 where they are not asked
};

const platform_names& platform();

}  // namespace tervak
