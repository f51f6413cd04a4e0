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

/// An empty directory, the current one until it is removed.
class run_place {
 public:
  run_place() = default;
  ~run_place() {
    std::error_code ignored;
    fs::current_path(home_, ignored);
  }
  run_place(const run_place&) = delete;
  run_place& operator=(const run_place&) = delete;
  [[nodiscard]] const fs::path& path() const { return scratch_.path(); }
  void enter() const { fs::current_path(path()); }

 private:
  os::scratch_directory scratch_;  // goes when nobody is in it
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
  const run_place scratch;
  for (const char* name : {"TERVAK.INP", "tervak.inp"})
    if (!fs::exists(scratch.path() / name))  // one file where the file system folds case
      fs::copy_file(source, scratch.path() / name);
  if (fs::is_regular_file(nodes)) fs::copy_file(nodes, scratch.path() / "PILEPLOT.TXT");
  scratch.enter();

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
