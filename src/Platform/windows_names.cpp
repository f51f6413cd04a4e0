#include "Platform/windows_names.hpp"

#include <tuple>

namespace tervak::os {

std::string banner_system(const windows_version& version) {
  struct row {
    int major, minor;
    const char *workstation, *server;
  };
  static constexpr row ROWS[] = {
      {10, 0, "Windows 10", "Windows Server 2016"}, {6, 3, "Windows 8.1", "Windows Server 2012 R2"},
      {6, 2, "Windows 8", "Windows Server 2012"},   {6, 1, "Windows 7", "Windows Server 2008 R2"},
      {6, 0, "Windows Vista", "Windows Vista"},     {5, 1, "Windows XP", "Windows XP"}};
  for (const row& r : ROWS)
    if (std::tie(version.major, version.minor) >= std::tie(r.major, r.minor))
      return version.server ? r.server : r.workstation;
  return "Windows";
}

std::string interface_file_system(const windows_version& version) {
  struct row {
    int major, minor, service_pack;
    const char* name;
  };
  static constexpr row ROWS[] = {{5, 1, 0, "Windows XP"},          {5, 1, 1, "Windows XP (SP1)"},
                                 {5, 1, 2, "Windows XP (SP2)"},    {5, 1, 3, "Windows XP (SP3)"},
                                 {6, 0, 0, "Windows Vista"},       {6, 0, 1, "Windows Vista (SP1)"},
                                 {6, 0, 2, "Windows Vista (SP1)"},  // the second service pack has no name
                                 {6, 1, 0, "Windows 7"},           {6, 1, 1, "Windows 7 (SP1)"},
                                 {6, 2, 0, "Windows 8"},           {6, 3, 0, "Windows 8.1"}};
  std::string name;
  for (const row& r : ROWS)
    if (std::tie(version.major, version.minor, version.service_pack) >=
        std::tie(r.major, r.minor, r.service_pack))
      name = r.name;
  return version.server ? "Windows Server" : name;
}

int adapter_number(const std::vector<hardware_address>& adapters) {
  int first = 0, last = 0;
  for (const hardware_address& bytes : adapters) {
    const unsigned number = static_cast<unsigned>(bytes[2]) << 24 | static_cast<unsigned>(bytes[1]) << 16 |
                            static_cast<unsigned>(bytes[4]) << 8 | static_cast<unsigned>(bytes[3]);
    last = static_cast<int>(number & 0x7fffffffU);
    if (first == 0) first = last;
  }
  return last != 0 ? last : -first;
}

}  // namespace tervak::os
