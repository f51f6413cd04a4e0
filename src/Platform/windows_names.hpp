#pragma once

#include <array>
#include <string>
#include <vector>

namespace tervak::os {

/// What Windows answers to a version query.
struct windows_version {
  int major = 0, minor = 0, service_pack = 0;
  bool server = false;
};

/// The name in the banner of the run log. A version above 10.0 is unknown to the list and has the name
/// of 10.0.
std::string banner_system(const windows_version& version);

/// The name in the interface file: the last entry of a list that ends with Windows 8.1 and has one name for
/// all servers. Blank before Windows XP.
std::string interface_file_system(const windows_version& version);

using hardware_address = std::array<unsigned char, 6>;

/// The number that the banner prints as CPU id. An address gives its bytes 3, 2, 5, 4 (counted from 1, the
/// first is the highest) without the sign bit. The last adapter counts; where its number is 0 it is the
/// negative of the first number that is not 0.
int adapter_number(const std::vector<hardware_address>& adapters);

}  // namespace tervak::os
