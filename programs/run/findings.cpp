#include "run/findings.hpp"

#include <string_view>

#include "companion/shown.hpp"

namespace tervak::run {

namespace {

bool is_warning(std::string_view line) {
  return line.find("WARNING") != std::string_view::npos || line.find("Warning") != std::string_view::npos;
}

bool begins_message(std::string_view line) {
  return line.starts_with(" ****") || line.starts_with(" ----") || is_warning(line) ||
         line.starts_with("tervak.inp:");
}

bool ends_message(std::string_view line) {
  return line.find_first_not_of(' ') == std::string_view::npos || line.starts_with(" +++") ||
         line.starts_with(" NORMAL EXIT") || line.starts_with(" ERROR EXIT");
}

}  // namespace

findings findings_of_log(const std::string& log) {
  findings found;
  bool told = false;
  for (std::string_view rest = log; !rest.empty();) {
    std::string_view line = rest.substr(0, rest.find('\n'));
    rest.remove_prefix(std::min(line.size() + 1, rest.size()));
    if (line.ends_with('\r')) line.remove_suffix(1);
    const bool begins = begins_message(line);
    told = begins || (told && !ends_message(line));
    if (!told) continue;
    if (begins && is_warning(line)) ++found.warnings;
    line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
    found.text += "  " + companion::shown(line) + '\n';
  }
  return found;
}

}  // namespace tervak::run
