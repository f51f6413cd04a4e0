#include "companion/interface_file.hpp"

#include <algorithm>

namespace tervak::companion {

namespace {

constexpr std::size_t NAME_WIDTH = 8, FIELD_WIDTH = 16;

/// Lines of text, which may hold any word, after the first line of a record.
std::size_t text_lines(std::string_view name) {
  if (name == "DATE    ") return 4;
  return name == "TSOILPRF" ? 2 : 0;
}

/// The first field of a line that is no number, "" where all are.
std::string odd_field(std::string_view line, std::size_t number) {
  for (std::size_t at = NAME_WIDTH; at < line.size(); at += FIELD_WIDTH) {
    const std::string_view field = line.substr(at, FIELD_WIDTH);
    for (const std::string_view word : {"NAN", "INF"})
      if (field.find(word) != std::string_view::npos)
        return "line " + std::to_string(number) + ", column " + std::to_string(at + 1) + ": " +
               std::string(word) + " is no number";
  }
  return {};
}

}  // namespace

interface_summary summary_of_interface_file(std::string_view bytes) {
  interface_summary summary;
  std::string_view name;
  std::size_t text_ahead = 0;
  for (std::size_t number = 1, at = 0; at < bytes.size(); ++number) {
    const std::size_t end = std::min(bytes.find('\n', at), bytes.size());
    const std::string_view line = bytes.substr(at, end - at);
    at = end + 1;
    if (text_ahead > 0) {
      --text_ahead;
      continue;
    }
    name = line.substr(0, NAME_WIDTH);
    text_ahead = text_lines(name);
    if (name == "TSOILPRF") ++summary.profiles;
    if (summary.fault.empty()) summary.fault = odd_field(line, number);
  }
  if (summary.fault.empty() && (name != "IEND    " || !bytes.ends_with('\n')))
    summary.fault = "has no closing record IEND";
  return summary;
}

}  // namespace tervak::companion
