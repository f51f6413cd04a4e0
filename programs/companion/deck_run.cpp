#include "companion/deck_run.hpp"

#include "Platform/files.hpp"

namespace tervak::companion {

namespace fs = std::filesystem;

namespace {

std::optional<std::string> read_if_there(const fs::path& file) {
  if (os::kind_of(file) == os::file_kind::absent) return std::nullopt;
  return os::read_file(file);
}

}  // namespace

run_input read_input(const fs::path& deck, const fs::path& directory) {
  return {os::read_file(deck), read_if_there(directory / "PILEPLOT.TXT")};
}

deck_run::deck_run(const fs::path& program, const run_input& input) {
  os::replace_file(directory() / "TERVAK.INP", input.deck);
  // The program reads the deck under two names; a file system that folds case gives both already.
  if (os::kind_of(directory() / "tervak.inp") == os::file_kind::absent)
    os::replace_file(directory() / "tervak.inp", input.deck);
  if (input.pileplot) os::replace_file(directory() / "PILEPLOT.TXT", *input.pileplot);
  end_ = os::run_program(program, directory(), os::environment::no_preloads);
}

std::optional<std::string> deck_run::file(const std::string& name) const {
  return read_if_there(directory() / name);
}

std::string ending(const os::process_end& end) {
  if (!end.failure.empty()) return "could not be started: " + end.failure;
  if (end.signal != 0) return "killed by signal " + std::to_string(end.signal);
  return "status " + std::to_string(end.status);
}

std::string last_line(std::string_view log) {
  const std::size_t last = log.find_last_not_of(" \r\n");
  if (last == std::string_view::npos) return {};
  log = log.substr(0, last + 1);
  log.remove_prefix(log.rfind('\n') + 1);
  return std::string(log.substr(log.find_first_not_of(' ')));
}

}  // namespace tervak::companion
