#include "run/placing.hpp"

#include "companion/shown.hpp"
#include "Platform/files.hpp"
#include "run/refusal.hpp"

namespace tervak::run {

namespace {

namespace fs = std::filesystem;
using companion::shown;
using os::file_kind;

bool same_file(const fs::path& one, const fs::path& other) {
  std::error_code error;
  return fs::equivalent(one, other, error);
}

}  // namespace

placing::placing(const fs::path& deck, const fs::path& directory)
    : directory_(directory), record_(directory), deck_(os::read_file(deck)) {
  decide("TERVAK.INP", deck_, deck);
  decide("tervak.inp", deck_, deck);
  decide_pileplot(deck.parent_path() / "PILEPLOT.TXT");
}

/// tervak.inp is TERVAK.INP: a link to it, or the same file where the file system folds case.
bool placing::is_second_name(const std::string& name) const {
  if (name != "tervak.inp") return false;
  std::error_code error;
  return fs::read_symlink(directory_ / name, error) == "TERVAK.INP" ||
         same_file(directory_ / name, directory_ / "TERVAK.INP");
}

void placing::decide(const std::string& name, const std::string& bytes, const fs::path& source) {
  const fs::path file = directory_ / name;
  if (is_second_name(name)) return;
  const file_kind kind = os::kind_of(file);
  if (kind == file_kind::absent) {
    targets_.push_back({name, bytes, name == "tervak.inp" ? step::second_name : step::write});
    lines_.push_back(placed_record::line(name, bytes));
    return;
  }
  if (kind != file_kind::regular && kind != file_kind::link)
    throw refusal(shown(file) + " is " + os::text_of(kind) + "; move it away or choose another directory");
  const std::string present = os::read_file(file);
  const bool ours = kind == file_kind::regular && !same_file(file, source);
  if (present == bytes) {
    if (ours) lines_.push_back(placed_record::line(name, bytes));
    return;
  }
  if (!ours || !record_.has(name, present))
    throw refusal(shown(file) + " is not " + shown(source) + ", and not what tervak-run has placed there" +
                  (kind == file_kind::link ? " (it is a link)" : "") +
                  ": it is left as it is. Move it away, or choose another directory");
  targets_.push_back({name, bytes, step::write});
  replaced_.push_back(placed_record::line(name, present));
  lines_.push_back(placed_record::line(name, bytes));
}

void placing::decide_pileplot(const fs::path& source) {
  const std::string name = "PILEPLOT.TXT";
  const fs::path file = directory_ / name;
  if (os::kind_of(source) != file_kind::absent) return decide(name, os::read_file(source), source);
  if (os::kind_of(file) == file_kind::absent) return;
  const std::string present = os::read_file(file);  // the program reads it: not a FIFO
  if (os::kind_of(file) != file_kind::regular || !record_.has(name, present)) {
    nodes_of_directory_ = true;
    return;
  }
  // Of a deck that had its nodes beside it. This one has none.
  targets_.push_back({name, {}, step::remove});
  replaced_.push_back(placed_record::line(name, present));
}

void placing::place() const {
  std::vector<std::string> before = lines_;
  before.insert(before.end(), replaced_.begin(), replaced_.end());
  record_.write(before);
  for (const target& each : targets_) {
    const fs::path file = directory_ / each.name;
    std::error_code error;
    if (each.what == step::remove) {
      fs::remove(file);
      continue;
    }
    if (each.what == step::second_name) {
      if (os::kind_of(file) != file_kind::absent) continue;  // a file system that folds case
      fs::create_symlink("TERVAK.INP", file, error);
      if (!error) continue;
    }
    os::replace_file(file, each.bytes);
  }
  if (!replaced_.empty()) placed_record(directory_).write(lines_);
}

}  // namespace tervak::run
