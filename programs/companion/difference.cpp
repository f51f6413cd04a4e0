#include "companion/difference.hpp"

#include <algorithm>

#include "companion/masks.hpp"
#include "companion/shown.hpp"

namespace tervak::companion {

namespace {

/// The line in which position `at` lies, without its end.
std::string_view line_around(std::string_view text, std::size_t begin) {
  return text.substr(begin, text.find('\n', begin) - begin);
}

}  // namespace

std::string excerpt(std::string_view text) {
  constexpr std::size_t SHOWN = 40;
  return '"' + shown(text.substr(0, SHOWN)) + (text.size() > SHOWN ? "...\"" : "\"");
}

std::string difference(std::string_view file_name, std::string_view found, std::string_view expected) {
  if (found == expected) return {};
  const std::string left = masked(file_name, found), right = masked(file_name, expected);
  if (left == right) return {};
  const auto [at, other] = std::mismatch(left.begin(), left.end(), right.begin(), right.end());
  const auto position = static_cast<std::size_t>(at - left.begin());
  if (found.empty()) return "is empty";
  if (at == left.end())
    return "is cut off: it ends after " + std::to_string(found.size()) + " of " +
           std::to_string(expected.size()) + " bytes";
  const auto line = std::count(left.begin(), at, '\n') + 1;
  if (other == right.end())
    return "line " + std::to_string(line) + ": goes on after the end of the run's file";
  const std::size_t begin = position == 0 ? 0 : left.rfind('\n', position - 1) + 1;
  const std::string_view here = line_around(left, begin), there = line_around(right, begin);
  const std::size_t column = position - begin;
  return "line " + std::to_string(line) + ", column " + std::to_string(column + 1) + ": found " +
         excerpt(here.substr(std::min(column, here.size()))) + ", expected " +
         excerpt(there.substr(std::min(column, there.size())));
}

}  // namespace tervak::companion
