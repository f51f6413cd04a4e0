#include "check/options.hpp"

#include <algorithm>

#include "check/catalogue.hpp"
#include "check/rules.hpp"

namespace tervak::check {

const char* const usage_text =
    "usage: tervak-check [--strict] [--accept RULE[,RULE]...] DECK\n"
    "       tervak-check --explain TERVAK.MLG DECK\n"
    "       tervak-check --results DIRECTORY\n"
    "\n"
    "Says what is wrong with a deck of TERVAK, and what is hardly meant, each with its place: faults, for which\n"
    "the program refuses the deck; warnings, values that are allowed but unlikely; and, by a trial run of the\n"
    "tervak beside this program in a scratch directory, the first failure of a stage. Writes no file.\n"
    "\n"
    "  --strict              warnings count as faults\n"
    "  --accept RULE,...     pass over these rules; a warning ends with the name of its rule\n"
    "  --explain TERVAK.MLG  explain the warnings and errors of a run log, with their places in DECK\n"
    "  --results DIRECTORY   whether the files of a run are whole: runs DIRECTORY/TERVAK.INP again in a scratch\n"
    "                        directory and compares every byte but stamps and machine names\n"
    "  -h, --help            this text\n"
    "\n"
    "The exit status is 0 when there is nothing to say, 1 for warnings, 2 for faults, a deck that cannot be read,\n"
    "or a wrong command line. With --explain it is 0, 1 when a message is not known, 2 when a file cannot be read;\n"
    "with --results 0 when all files are whole, else 2.\n";

namespace {

void accept(const std::string& list, options& out) {
  for (const std::string_view name : split(list, ',')) {
    const auto all = all_rules();
    if (std::none_of(all.begin(), all.end(), [&](const rule* r) { return r->name == name; }))
      throw usage_error("no rule has the name '" + std::string(name) + "'; docs/check.md lists them");
    out.accepted.emplace(name);
  }
}

}  // namespace

options parse_options(const std::vector<std::string>& arguments) {
  options out;
  bool have_deck = false, only_names = false;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& argument = arguments[i];
    const auto value = [&]() -> const std::string& {
      if (i + 1 == arguments.size()) throw usage_error("option '" + argument + "' expects a value after it");
      return arguments[++i];
    };
    if (!only_names && (argument == "-h" || argument == "--help")) {
      out.help = true;
      return out;
    }
    if (!only_names && argument == "--") {
      only_names = true;
    } else if (!only_names && argument == "--strict") {
      out.strict = true;
    } else if (!only_names && argument == "--accept") {
      accept(value(), out);
    } else if (!only_names && argument == "--explain") {
      out.log = value();
      if (out.log.empty()) throw usage_error("option '--explain' expects the name of a run log");
    } else if (!only_names && argument == "--results") {
      out.results = value();
      if (out.results.empty()) throw usage_error("option '--results' expects a directory");
    } else if (!only_names && argument.size() > 1 && argument.front() == '-') {
      throw usage_error("unknown option '" + argument + "'");
    } else if (have_deck) {
      throw usage_error("expected one deck, found '" + out.deck + "' and '" + argument + "'");
    } else {
      out.deck = argument;
      have_deck = true;
    }
  }
  if (!out.results.empty()) {
    if (have_deck || !out.log.empty() || out.strict || !out.accepted.empty())
      throw usage_error("'--results' stands alone with its directory");
    return out;
  }
  if (!have_deck) throw usage_error("expected the name of a deck");
  if (!out.log.empty() && (out.strict || !out.accepted.empty()))
    throw usage_error("'--strict' and '--accept' have no meaning with '--explain'");
  return out;
}

}  // namespace tervak::check
