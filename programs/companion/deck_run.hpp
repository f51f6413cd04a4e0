#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "Platform/process.hpp"
#include "Platform/scratch_directory.hpp"

namespace tervak::companion {

/// What a run of the program reads.
struct run_input {
  std::string deck;
  std::optional<std::string> pileplot;  ///< PILEPLOT.TXT, where there is one
};

/// The deck and the PILEPLOT.TXT that is in `directory`. Throws std::runtime_error where a file cannot be
/// read.
run_input read_input(const std::filesystem::path& deck, const std::filesystem::path& directory);

/// A run of the program in a scratch directory, which lasts as long as the object.
class deck_run {
 public:
  /// Makes the run. Throws std::runtime_error where no directory or no file can be made. Whether the program
  /// could be started, and how it ended, is told by `end`.
  deck_run(const std::filesystem::path& program, const run_input& input);

  [[nodiscard]] const os::process_end& end() const { return end_; }
  [[nodiscard]] const std::filesystem::path& directory() const { return scratch_.path(); }
  /// A file that the run left; none where it left none.
  [[nodiscard]] std::optional<std::string> file(const std::string& name) const;

 private:
  os::scratch_directory scratch_;
  os::process_end end_;
};

/// "status 1", "killed by signal 9", "could not be started: ...".
std::string ending(const os::process_end& end);

/// The last line of a log that is not blank, without the blanks around it.
std::string last_line(std::string_view log);

}  // namespace tervak::companion
