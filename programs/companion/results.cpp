#include "companion/results.hpp"

#include <algorithm>
#include <exception>
#include <optional>
#include <sstream>
#include <string_view>

#include "companion/deck_run.hpp"
#include "companion/difference.hpp"
#include "companion/interface_file.hpp"
#include "companion/run_files.hpp"
#include "Platform/files.hpp"
#include "Platform/names.hpp"
#include "TervakExchange/TervakMultipleSoilProfiles.hpp"

namespace tervak::companion {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view EXPORT_ERROR = "*** ERROR IN G2USFOS ***";
constexpr std::string_view TOO_MANY = "*** Number of Materials Exceeds Max of 5000";

/// How many profiles of a deck a complete run does: a revision 4 profile is the last.
std::size_t profiles_of(const std::string& deck) {
  Vrsk::Plin::TervakExchange::TervakMultipleSoilProfiles profiles;
  std::istringstream stream(deck);
  profiles.Import(stream, "m", "N");
  std::size_t count = 0;
  for (const auto& profile : profiles.GetSoilProfiles()) {
    ++count;
    if (profile.GetVersion() == 4) break;
  }
  return count;
}

/// What a file's content says against it, the run being as it should.
std::string own_fault(const std::string& name, const std::string& bytes) {
  return name == "TERVAK.RIF" ? summary_of_interface_file(bytes).fault : std::string();
}

/// The same in a run that did not end as it should.
class broken_run {
 public:
  broken_run(const results& end, const std::string& deck)
      : export_alone_(end.again.status == 255 && end.last_line == ERROR_EXIT), ending_(ending(end.again)) {
    if (end.last_line != ERROR_EXIT) ending_ += " and without a closing line in the log";
    if (export_alone_) profiles_ = profiles_of(deck);
  }

  [[nodiscard]] std::string fault(const std::string& name, const std::string& bytes) const {
    if (name == "TERVAK.MLG") return {};
    std::string cause = "the run ended with " + ending_;
    if (!export_alone_) return cause;
    if (name.ends_with(".fem")) return export_fault(bytes);
    std::string fault = own_fault(name, bytes);
    if (!fault.empty() || name != "TERVAK.RIF") return fault;
    const std::size_t profiles = summary_of_interface_file(bytes).profiles;
    return profiles == profiles_ ? ""
                                 : "it holds " + std::to_string(profiles) + " of the deck's " +
                                       std::to_string(profiles_) + " profiles: " + cause;
  }

 private:
  static std::string export_fault(const std::string& bytes) {
    if (bytes.find(TOO_MANY) != std::string::npos)
      return "the deck has more than 5,000 materials (3 x layers x diameters), the most that the export takes";
    return bytes.find(EXPORT_ERROR) == std::string::npos ? "" : "it ends in " + excerpt(EXPORT_ERROR);
  }

  bool export_alone_;
  std::string ending_;
  std::size_t profiles_ = 0;
};

/// How a file differs from the one that the run made when it was made again; "" where it does not.
std::string against(const fs::path& file, const std::string& name, const std::optional<std::string>& again) {
  if (os::kind_of(file) == os::file_kind::absent) return again ? "is missing" : "was not written";
  if (!again) return "is of another run: this deck's run leaves no such file";
  return difference(name, os::read_file(file), *again);
}

std::string fault_of(const fs::path& file, const std::string& name, const std::optional<std::string>& again,
                     const std::optional<broken_run>& broken) {
  std::string fault = against(file, name, again);
  if (!fault.empty() || !again) return fault;
  return broken ? broken->fault(name, *again) : own_fault(name, *again);
}

/// A full disk cuts the files of a second run just as those of the first.
void expect_room(const fs::path& directory) {
  constexpr std::size_t PROBE = 65536;
  os::replace_file(directory / "probe", std::string(PROBE, ' '));
}

void compare(const fs::path& directory, const fs::path& program, results& found) {
  const run_input input = read_input(directory / "TERVAK.INP", directory);
  const deck_run again(program, input);
  found.again = again.end();
  if (!found.again.failure.empty()) {
    found.trouble = "the program " + os::name_of(program) + " " + ending(found.again);
    return;
  }
  expect_room(again.directory());
  found.last_line = last_line(again.file("TERVAK.MLG").value_or(""));
  std::optional<broken_run> broken;
  if (!found.good_end()) broken.emplace(found, input.deck);
  for (const std::string name : RUN_FILES)
    found.files.push_back({name, fault_of(directory / name, name, again.file(name), broken)});
}

}  // namespace

bool results::good_end() const { return again.status == 0 && last_line == NORMAL_EXIT; }

bool results::whole() const {
  return trouble.empty() && good_end() && !files.empty() &&
         std::all_of(files.begin(), files.end(), [](const file_state& file) { return file.fault.empty(); });
}

results results_of(const fs::path& directory, const fs::path& program) {
  results found;
  try {
    compare(directory, program, found);
  } catch (const std::exception& error) {
    found.files.clear();
    found.trouble = error.what();
  }
  return found;
}

std::string text_of(const results& found) {
  if (!found.trouble.empty()) return "  cannot be checked: " + found.trouble + '\n';
  std::string text;
  for (const file_state& file : found.files)
    text += "  " + file.name + (file.fault.empty() ? ": whole" : ": not whole: " + file.fault) + '\n';
  return text;
}

}  // namespace tervak::companion
