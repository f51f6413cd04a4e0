#include "run/options.hpp"

#include "Platform/names.hpp"
#include "run/refusal.hpp"

namespace tervak::run {

namespace fs = std::filesystem;

const char* const usage_text =
    "usage: tervak-run [--note] DECK [DIRECTORY]\n"
    "\n"
    "Makes DIRECTORY (by default the deck's name without its ending, here), puts DECK there under both names that\n"
    "tervak reads (and PILEPLOT.TXT from the directory of the deck, if any), checks the deck, runs tervak there,\n"
    "shows the warnings and errors of the deck and of the run log, and checks by a second run in a temporary\n"
    "directory that the result files are whole.\n"
    "\n"
    "  --note  run once more and write TERVAK.NOTE.html into DIRECTORY: how each curve was made, step by step.\n"
    "          The one of the run before becomes TERVAK.NOTE.html.bak, with every run.\n"
    "\n"
    "Exit status: 0 the run is good; 1 it is not, or the note could not be written; 2 it was not started.\n";

fs::path default_directory(const fs::path& deck) {
  const fs::path name = deck.filename();
  fs::path stem = name.stem();
  if (stem.empty() || stem == name || stem == "." || stem == "..") return fs::path(name) += ".run";
  return stem;
}

options parse_options(std::vector<std::string> words) {
  options out;
  out.note = std::erase(words, "--note") > 0;
  if (!words.empty() && (words[0] == "-h" || words[0] == "--help")) {
    out.help = true;
    return out;
  }
  if (words.empty() || words.size() > 2)
    throw refusal("expected a deck and a directory, found " + std::to_string(words.size()) +
                  " arguments; see tervak-run --help");
  out.deck = os::path_of(words[0]);
  if (out.deck.filename().empty()) throw refusal("no such deck: " + words[0]);
  out.directory = words.size() == 2 ? os::path_of(words[1]) : default_directory(out.deck);
  if (out.directory.empty()) throw refusal("the name of the directory is empty");
  return out;
}

}  // namespace tervak::run
