#include "explain/options.hpp"

namespace tervak::explain {

const char* const usage_text =
    "usage: tervak-explain DECK [--profile N] [--layer N] [--diameter N] [--family py|tz|qz|axial] [-o FILE.html]\n"
    "\n"
    "Runs a deck and shows how each curve was made: every step with its equation, the values put in and the\n"
    "branch that was taken. Without choices it lists the layers, one line a curve: method, branch, greatest\n"
    "stress and where it is reached.\n"
    "\n"
    "  --profile N   one profile of the deck, from 1\n"
    "  --layer N     one calculation layer, from 1\n"
    "  --diameter N  one diameter, by its number from 1\n"
    "  --family F    py, tz or qz curves, or the axial capacity\n"
    "  -o FILE.html  write a page, complete in itself, that prints as a calculation note\n"
    "  -h, --help    this text\n"
    "\n"
    "PILEPLOT.TXT is read beside DECK. The run's own files go to a scratch directory, which is removed. The\n"
    "exit status is 0 when the note is whole, 1 when the run would stop, which the note shows, 2 when the deck\n"
    "is refused, the page cannot be written or the command line is wrong.\n";

namespace {

int number_of(const std::string& option, const std::string& text) {
  if (text.empty() || text.size() > 4 || text.find_first_not_of("0123456789") != std::string::npos ||
      std::stoi(text) == 0)
    throw usage_error("expected a number from 1 after '" + option + "', found '" + text + "'");
  return std::stoi(text);
}

note_subject::part family_of(const std::string& text) {
  using part = note_subject::part;
  if (text == "py") return part::py;
  if (text == "tz") return part::tz;
  if (text == "qz") return part::qz;
  if (text == "axial") return part::axial;
  throw usage_error("expected py, tz, qz or axial after '--family', found '" + text + "'");
}

void take(options& out, const std::string& option, const std::string& value) {
  if (option == "--profile")
    out.chosen.profile = number_of(option, value);
  else if (option == "--layer")
    out.chosen.layer = number_of(option, value);
  else if (option == "--diameter")
    out.chosen.diameter = number_of(option, value);
  else if (option == "--family")
    out.chosen.family = family_of(value);
  else if (option != "-o")
    throw usage_error("unknown option '" + option + "'");
  else if (value.empty())
    throw usage_error("the name after '-o' is empty");
  else
    out.output = value;
}

}  // namespace

options parse_options(const std::vector<std::string>& arguments) {
  options out;
  bool only_names = false;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& argument = arguments[i];
    if (only_names || argument.empty() || argument[0] != '-') {
      if (!out.deck.empty()) throw usage_error("expected one deck, found also '" + argument + "'");
      if (argument.empty()) throw usage_error("the name of the deck is empty");
      out.deck = argument;
    } else if (argument == "--") {
      only_names = true;
    } else if (argument == "-h" || argument == "--help") {
      out.help = true;
    } else {
      const std::size_t equals = argument.rfind("--", 0) == 0 ? argument.find('=') : std::string::npos;
      const std::string option = argument.substr(0, equals);
      if (equals == std::string::npos && i + 1 == arguments.size())
        throw usage_error("option '" + option + "' is unknown, or expects a value after it");
      take(out, option, equals == std::string::npos ? arguments[++i] : argument.substr(equals + 1));
    }
  }
  if (!out.help && out.deck.empty()) throw usage_error("expected the name of a deck");
  return out;
}

}  // namespace tervak::explain
