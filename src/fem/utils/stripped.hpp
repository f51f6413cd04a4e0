#pragma once

#include <string_view>

namespace fem::utils {

/// A text without the blanks at its ends.
inline std::string_view stripped(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

}  // namespace fem::utils
