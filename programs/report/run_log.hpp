#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tervak::report {

/// What the run log says of the run that wrote the interface file.
struct run_log {
  std::string ending;                 // the last line with text, as "NORMAL EXIT FROM TERVAK"
  bool good = false;                  // the ending is that of a run that worked
  std::vector<std::string> messages;  // warnings and errors, a message of several lines as one text
};

/// From the text of a TERVAK.MLG. Messages are what tervak-run shows: they begin with asterisks, dashes, the
/// word WARNING or a place in the deck, and go on to a blank line or the next line of progress.
run_log parse_run_log(std::string_view text);

/// TERVAK.MLG of the directory of the interface file; nothing where there is none or it cannot be read.
std::optional<run_log> run_log_beside(const std::string& interface_file);

}  // namespace tervak::report
