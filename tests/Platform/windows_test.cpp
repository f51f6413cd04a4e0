#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Platform/desktop.hpp"
#include "Platform/windows_names.hpp"

namespace tervak::os {

namespace {

TEST(Windows, NamesOfItsVersions) {
  struct row {
    windows_version version;
    const char *banner, *interface_file;
  };
  const row rows[] = {{{5, 0, 4, false}, "Windows", ""},
                      {{5, 1, 2, false}, "Windows XP", "Windows XP (SP2)"},
                      {{6, 0, 0, false}, "Windows Vista", "Windows Vista"},
                      {{6, 0, 2, false}, "Windows Vista", "Windows Vista (SP1)"},
                      {{6, 1, 0, false}, "Windows 7", "Windows 7"},
                      {{6, 1, 1, true}, "Windows Server 2008 R2", "Windows Server"},
                      {{6, 2, 0, false}, "Windows 8", "Windows 8"},
                      {{6, 3, 0, true}, "Windows Server 2012 R2", "Windows Server"},
                      {{10, 0, 0, false}, "Windows 10", "Windows 8.1"},
                      {{10, 0, 0, true}, "Windows Server 2016", "Windows Server"}};
  for (const row& r : rows) {
    EXPECT_EQ(banner_system(r.version), r.banner);
    EXPECT_EQ(interface_file_system(r.version), r.interface_file);
  }
}

TEST(Windows, NumberOfTheAdapters) {
  const hardware_address a = {0x11, 0x22, 0x93, 0x44, 0x55, 0x66}, zero = {0x77, 0, 0x80, 0, 0, 0x77};
  EXPECT_EQ(adapter_number({}), 0);
  EXPECT_EQ(adapter_number({zero, a}), 0x13225544);
  EXPECT_EQ(adapter_number({a, {1, 1, 1, 1, 1, 1}, zero}), -0x13225544);
}

std::vector<std::string> calls;
bool registers = true;

std::string joined(const char* name, const char* first, const char* second, long number) {
  return std::string(name) + "|" + first + "|" + second + "|" + std::to_string(number);
}

const desktop RECORDING = {[](const char* name, unsigned style, int icon, int cursor, int background) {
                             calls.push_back(joined("class", name, std::to_string(style).c_str(), icon) +
                                             "|" + std::to_string(cursor) + "|" + std::to_string(background));
                             return registers;
                           },
                           [](const char* text, const char* caption, unsigned style) {
                             calls.push_back(joined("box", text, caption, style));
                           },
                           [](const char* class_name, const char* title, unsigned style) -> void* {
                             calls.push_back(joined("window", class_name, title, style));
                             return &calls;
                           },
                           [](void* window, int command) {
                             calls.push_back(joined("show", window == &calls ? "it" : "?", "", command));
                           },
                           [](const char* operation, const char* file, int command) {
                             calls.push_back(joined("execute", operation, file, command));
                           }};

TEST(Windows, EntryOfTheDesktop) {
  const std::string registration = "class|WindowClass|131072|101|32512|0";
  EXPECT_TRUE(enter(RECORDING));
  EXPECT_EQ(calls, (std::vector<std::string>{registration, "window|WindowClass|Kestra|134217728",
                                             "show|it||7", "execute|cmd|exit|0"}));
  calls.clear();
  registers = false;
  EXPECT_FALSE(enter(RECORDING));
  EXPECT_EQ(calls, (std::vector<std::string>{registration, "box|Window Registration Failed!|Kestra|48"}));
}

}  // namespace

}  // namespace tervak::os
