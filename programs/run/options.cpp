#include "run/options.hpp"

#include "Platform/names.hpp"
#include "run/refusal.hpp"

namespace tervak::run {

namespace fs = std::filesystem;

const char* const usage_text =
    "usage: tervak-run DECK [DIRECTORY]\n"
    "\n"
    "Makes DIRECTORY (by default the deck's name without its ending, here), puts DECK there under both names that\n"
    "tervak reads (and PILEPLOT.TXT when it is beside the deck), checks the deck, runs tervak there, shows the\n"
    "warnings and errors of the deck and of the run log, and checks by a second run in a temporary directory that\n"
    "the result files are whole.\n"
    "\n"
    "Exit status: 0 the run is good; 1 it is not; 2 it was not started.\n";

fs::path default_directory(const fs::path& deck) {
  const fs::path name = deck.filename();
  fs::path stem = name.stem();
  if (stem.empty() || stem == name || stem == "." || stem == "..") return fs::path(name) += ".run";
  return stem;
}

options parse_options(const std::vector<std::string>& words) {
  options out;
  if (!words.empty() && (words[0] == "-h" || words[0] == "--help")) {
    out.help = true;
    return out;
  }
  if (words.empty() || words.size() > 2)
    throw refusal("expected a deck and a directory, found " + std::to_string(words.size()) +
                  " words; see tervak-run --help");
  out.deck = os::path_of(words[0]);
  if (out.deck.filename().empty()) throw refusal("no such deck: " + words[0]);
  out.directory = words.size() == 2 ? os::path_of(words[1]) : default_directory(out.deck);
  if (out.directory.empty()) throw refusal("the name of the directory is empty");
  return out;
}

}  // namespace tervak::run
