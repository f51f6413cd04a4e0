#include "report/run_log.hpp"

#include <filesystem>
#include <stdexcept>

#include "Platform/names.hpp"
#include "report/files.hpp"

namespace tervak::report {
namespace {

std::string_view trimmed(std::string_view line) {
  const std::size_t first = line.find_first_not_of(" \r");
  if (first == std::string_view::npos) return {};
  return line.substr(first, line.find_last_not_of(" \r") - first + 1);
}

bool begins(std::string_view text, std::string_view with) { return text.substr(0, with.size()) == with; }

bool begins_message(std::string_view line) {
  return begins(line, "****") || begins(line, "----") || begins(line, "tervak.inp:") ||
         line.find("WARNING") != std::string_view::npos;
}

/// Source lines that a refusal shows belong to the log, not to the message.
bool ends_message(std::string_view line) {
  return line.empty() || begins(line, "+++") || begins(line, "NORMAL EXIT") || begins(line, "ERROR EXIT") ||
         begins(line.substr(std::min(line.find_first_not_of("0123456789 "), line.size())), "|");
}

}  // namespace

run_log parse_run_log(std::string_view text) {
  run_log out;
  bool open = false;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    const std::string_view line = trimmed(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
    if (!line.empty()) out.ending = line;
    if (begins_message(line)) {
      out.messages.emplace_back(line);
      open = true;
    } else if (ends_message(line)) {
      open = false;
    } else if (open) {
      out.messages.back().append(" ").append(line);
    }
  }
  out.good = out.ending == "NORMAL EXIT FROM TERVAK";
  return out;
}

std::optional<run_log> run_log_beside(const std::string& interface_file) {
  const std::filesystem::path log = os::path_of(interface_file).parent_path() / "TERVAK.MLG";
  std::error_code error;
  if (!std::filesystem::is_regular_file(log, error)) return std::nullopt;
  try {
    return parse_run_log(read_file(os::name_of(log)));
  } catch (const std::runtime_error&) {
    return std::nullopt;
  }
}

}  // namespace tervak::report
