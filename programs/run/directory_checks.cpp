#include "run/directory_checks.hpp"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "companion/shown.hpp"
#include "Platform/files.hpp"
#include "Platform/names.hpp"
#include "run/refusal.hpp"

namespace tervak::run {

namespace {

namespace fs = std::filesystem;
using companion::shown;

/// What a run writes, moves or deletes, and what this program keeps.
constexpr std::array NAMES = {
    "TERVAK.MLG",         "TERVAK.MLG.bak",   "TERVAK.LIS",          "TERVAK.LIS.bak", "soil_halde.fem",
    "soil_halde.fem.bak", "soil_70.fem",      "soil_70.fem.bak",     "TERVAK.RIF",     "TEVRAK.RIF",
    "TEVRAK.RIF.bak",     "TERVAK.NOTE.html", "TERVAK.NOTE.html.bak"};
constexpr std::array OWN_NAMES = {".tervak-run", ".tervak-run.lock"};

constexpr std::string_view RUNTIME_PREFIX = "fem_io", UNIT_PREFIX = "fem_io_unit_";

/// The temporary file of a numbered unit, which a run that broke off leaves.
bool is_unit_file(std::string_view name) {
  return name.size() == UNIT_PREFIX.size() + 3 && name.starts_with(UNIT_PREFIX) &&
         std::all_of(name.end() - 3, name.end(), [](char c) { return c >= '0' && c <= '9'; });
}

void expect_regular_or_absent(const fs::path& file) {
  const os::file_kind kind = os::kind_of(file);
  if (kind != os::file_kind::absent && kind != os::file_kind::regular)
    throw refusal(shown(file) + " is " + os::text_of(kind) +
                  ": the run writes or moves a file of this name; move it away or choose another directory");
}

/// Writing goes through every name of a file.
void expect_one_name(const fs::path& file) {
  std::error_code error;
  if (const auto names = fs::hard_link_count(file, error); !error && names > 1)
    throw refusal(shown(file) + " has " + std::to_string(names) +
                  " names (hard links), and the run would write over all of them; move it away");
}

void check_runtime_files(const fs::path& directory) {
  std::error_code error;
  for (fs::directory_iterator entry(directory, error); !error && entry != fs::directory_iterator();
       entry.increment(error)) {
    const std::string name = os::name_of(entry->path().filename());
    if (!name.starts_with(RUNTIME_PREFIX)) continue;
    const os::file_kind kind = os::kind_of(entry->path());
    if (is_unit_file(name) ? kind == os::file_kind::regular : kind == os::file_kind::directory) {
      if (kind == os::file_kind::regular) expect_one_name(entry->path());
      continue;
    }
    throw refusal(shown(entry->path()) +
                  ": tervak deletes files whose names begin with \"fem_io\"; rename it or choose another "
                  "directory");
  }
  if (error) throw refusal("cannot list the directory " + shown(directory) + ": " + error.message());
}

void expect_length(const fs::path& file, std::size_t added) {
  const fs::path whole = fs::absolute(file).lexically_normal();
  const std::size_t length = whole.native().size() + added, most = os::longest_path();
  if (length > most)
    throw refusal("the path " + shown(whole) + (added > 0 ? ", with the names of a run's files," : "") +
                  " has " + std::to_string(length) + " characters, and programs here open at most " +
                  std::to_string(most) + ": use a directory with a shorter path");
}

}  // namespace

void check_lengths(const fs::path& directory, const fs::path& deck) {
  constexpr std::string_view LONGEST_NAME = "/soil_halde.fem.bak";
  expect_length(deck, 0);
  expect_length(directory, LONGEST_NAME.size());
}

void check_directory(const fs::path& directory, const fs::path& deck) {
  for (const char* const name : NAMES) {
    expect_regular_or_absent(directory / name);
    std::error_code error;
    if (fs::equivalent(directory / name, deck, error))
      throw refusal("the deck " + shown(deck) + " has a name that the run writes or moves; rename it");
  }
  for (const char* const name : OWN_NAMES) expect_regular_or_absent(directory / name);
  expect_one_name(directory / "TERVAK.RIF");
  check_runtime_files(directory);
}

}  // namespace tervak::run
