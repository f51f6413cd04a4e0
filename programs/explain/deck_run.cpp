#include "explain/deck_run.hpp"

#include <filesystem>
#include <fstream>
#include <memory>

#include "Control/run/CONTRL.hpp"
#include "Platform/names.hpp"
#include "Platform/scratch_directory.hpp"

namespace tervak::explain {

namespace {

namespace fs = std::filesystem;

/// A directory for temporary files, the current one while this object is there.
class work_place {
 public:
  explicit work_place(const fs::path& directory) { fs::current_path(directory); }
  ~work_place() {
    std::error_code ignored;
    fs::current_path(home_, ignored);
  }
  work_place(const work_place&) = delete;
  work_place& operator=(const work_place&) = delete;

 private:
  fs::path home_ = fs::current_path();
};

/// The run log's lines about a failure, and whether it ends with a normal exit.
void read_log(told_run& run) {
  std::ifstream log("TERVAK.MLG", std::ios::binary);
  bool about_failure = false;
  for (std::string line; std::getline(log, line);) {
    std::erase(line, '\r');
    if (line.find("NORMAL EXIT FROM TERVAK") != std::string::npos) run.whole = true;
    if (line.find("EXIT FROM TERVAK") != std::string::npos) break;
    if (line.starts_with(" ****")) about_failure = true;
    if (line.starts_with(" +++++")) about_failure = false;
    if (about_failure && !line.empty()) run.stop.push_back(line.substr(1));
  }
  if (run.whole) run.stop.clear();
}

}  // namespace

told_run run_deck(const std::string& deck) {
  const fs::path source = fs::absolute(os::path_of(deck));
  const fs::path nodes = source.parent_path() / "PILEPLOT.TXT";
  const os::scratch_directory scratch;
  for (const char* name : {"TERVAK.INP", "tervak.inp"})
    if (!fs::exists(scratch.path() / name))  // one file where the file system folds case
      fs::copy_file(source, scratch.path() / name);
  if (fs::is_regular_file(nodes)) fs::copy_file(nodes, scratch.path() / "PILEPLOT.TXT");
  const work_place here(scratch.path());

  auto cmn = std::make_unique<common>();
  note_book book(*cmn);
  cmn->NOTE = &book;
  try {
    CONTRL(*cmn);
  } catch (...) {
    // A stop has said on the run log why.
  }
  book.end_run();
  told_run run{book.profiles(), false, book.last(), {}};
  cmn.reset();  // closes the log of a run that broke off
  read_log(run);
  return run;
}

}  // namespace tervak::explain
