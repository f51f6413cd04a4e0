#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace tervak::os {

/// The path of this name. Names in the program's texts and on its command line are in UTF-8 on Windows (see
/// start_console) and bytes elsewhere. A path that is made of a std::string without this has another name on
/// Windows where the name is not ASCII.
inline std::filesystem::path path_of(std::string_view name) {
  return std::u8string(name.begin(), name.end());
}

/// The opposite; std::filesystem::path::string() does not know all names on Windows.
inline std::string name_of(const std::filesystem::path& path) {
  const std::u8string name = path.u8string();
  return {name.begin(), name.end()};
}

}  // namespace tervak::os
