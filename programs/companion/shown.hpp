#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace tervak::companion {

/// A text as it is shown to the user: control bytes as \xNN, so that each text stays on its line and none
/// speaks to the terminal. Bytes beyond ASCII stay as they are.
std::string shown(std::string_view text);
std::string shown(const std::string& text);
std::string shown(const std::filesystem::path& file);

}  // namespace tervak::companion
