#include "Platform/platform_names.hpp"

#include <winsock2.h>
// must follow winsock2.h
#include <iphlpapi.h>
#include <windows.h>

#include <algorithm>
#include <cstdlib>

#include "Platform/windows_names.hpp"

namespace tervak {

namespace {

std::string variable(const char* name, std::size_t most) {
  const char* const value = std::getenv(name);
  return std::string(value == nullptr ? "" : value).substr(0, most);
}

/// The answer is the truth only for a program whose manifest names the versions it knows.
os::windows_version version() {
  OSVERSIONINFOEXA answer{};
  answer.dwOSVersionInfoSize = sizeof answer;
  if (GetVersionExA(reinterpret_cast<OSVERSIONINFOA*>(&answer)) == 0) return {};
  return {static_cast<int>(answer.dwMajorVersion), static_cast<int>(answer.dwMinorVersion),
          answer.wServicePackMajor, answer.wProductType != VER_NT_WORKSTATION};
}

std::string processor() {
  SYSTEM_INFO system{};
  GetNativeSystemInfo(&system);
  std::string text;
  if (system.wProcessorArchitecture == PROCESSOR_ARCHITECTURE_AMD64) text = "x86_64, ";
  if (system.wProcessorArchitecture == PROCESSOR_ARCHITECTURE_ARM64) text = "aarch64, ";
  return text + std::to_string(system.dwNumberOfProcessors) + " cores";
}

std::vector<os::hardware_address> adapters() {
  ULONG size = 0;
  if (GetAdaptersInfo(nullptr, &size) != ERROR_BUFFER_OVERFLOW) return {};
  std::vector<IP_ADAPTER_INFO> list(size / sizeof(IP_ADAPTER_INFO) + 1);
  if (GetAdaptersInfo(list.data(), &size) != ERROR_SUCCESS) return {};
  std::vector<os::hardware_address> addresses;
  for (const IP_ADAPTER_INFO* adapter = list.data(); adapter != nullptr; adapter = adapter->Next) {
    os::hardware_address address{};
    if (adapter->AddressLength != address.size()) continue;
    std::copy_n(adapter->Address, address.size(), address.begin());
    addresses.push_back(address);
  }
  return addresses;
}

}  // namespace

const platform_names& platform() {
  static const os::windows_version running = version();
  static const platform_names names = {variable("COMPUTERNAME", 25),
                                       variable("USERNAME", 20),
                                       os::banner_system(running),
                                       os::interface_file_system(running),
                                       processor(),
                                       os::adapter_number(adapters())};
  return names;
}

}  // namespace tervak
