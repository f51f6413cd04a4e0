#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "Platform/process.hpp"

namespace tervak::companion {

/// A file of a run and what is wrong with it.
struct file_state {
  std::string name;
  std::string fault;  ///< "" where the file is whole
};

/// Whether the files of a run are whole.
struct results {
  std::vector<file_state> files;  ///< of all the run's files; none where the run could not be made again
  os::process_end again;          ///< how the program ended when the run was made again
  std::string last_line;          ///< of the log then
  std::string trouble;            ///< why the run could not be made again, "" where it was

  /// The run ended with status 0 and NORMAL EXIT, and each of its files is whole.
  [[nodiscard]] bool whole() const;
  /// Status 0 and NORMAL EXIT when the run was made again.
  [[nodiscard]] bool good_end() const;
};

/// Runs DIRECTORY/TERVAK.INP, with DIRECTORY/PILEPLOT.TXT where there is one, again in a scratch directory
/// and compares each file of the run in DIRECTORY with the one that is made there. A file is whole where all
/// its bytes are the same, time stamps and machine names apart, and
/// - the run ended with status 0 and NORMAL EXIT, and TERVAK.RIF holds neither NAN nor INF; or
/// - the USFOS export alone failed, as it does above 5,000 materials: then the log, the listing and a
///   TERVAK.RIF that holds all profiles are whole, and of the exports those without an error; or
/// - the run ended in another way, and the file is the log.
/// The second run does not get what is loaded into the first before all libraries (LD_PRELOAD): what bends
/// the one must not bend the other alike. Writes nothing in DIRECTORY. Does not throw: what keeps it from a
/// verdict is told by `trouble`.
results results_of(const std::filesystem::path& directory, const std::filesystem::path& program);

/// One line a file, "  TERVAK.RIF: whole" or "  TERVAK.RIF: not whole: " and the reason; or the trouble.
std::string text_of(const results& found);

}  // namespace tervak::companion
