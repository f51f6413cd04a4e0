#include "check/commands.hpp"

#include "check/check.hpp"
#include "check/trial_run.hpp"
#include "companion/deck_run.hpp"
#include "companion/results.hpp"
#include "Platform/files.hpp"
#include "Platform/names.hpp"
#include "Platform/process.hpp"

namespace tervak::check {

namespace {

constexpr int NOTHING = 0, WARNINGS = 1, UNKNOWN_MESSAGE = 1, FAULTS = 2;

int explain_log(const options& o, std::ostream& out) {
  const std::string log = os::read_file(os::path_of(o.log));
  static_cast<void>(
      os::read_file(os::path_of(o.deck)));  // throws; a deck that is refused still has its lines
  const auto deck = read_deck(os::path_of(o.deck));
  const explained_log explained = explain(log, *deck);
  for (const explanation& message : explained.messages) out << message.text(*deck) << '\n';
  return explained.complete ? NOTHING : UNKNOWN_MESSAGE;
}

std::filesystem::path program() {
  std::filesystem::path found = os::find_program("tervak");
  if (found.empty())
    throw std::runtime_error(
        "cannot find the program tervak in the directory of tervak-check or on the path");
  return found;
}

int show_results(const options& o, std::ostream& out) {
  const companion::results found = companion::results_of(os::path_of(o.results), program());
  out << companion::text_of(found);
  return found.whole() ? NOTHING : FAULTS;
}

int check(const options& o, std::ostream& out) {
  const std::filesystem::path file = os::path_of(o.deck);
  const auto deck = read_deck(file);
  const deck_report report = check_deck(*deck, o.accepted);
  if (report.fault_count > 0) {
    out << report.faults << '\n';
    return FAULTS;
  }
  for (const warning& w : report.warnings) out << w.text << '\n';
  const std::string failure = trial_run(file, *deck, program());
  out << failure;
  if (!failure.empty()) return FAULTS;
  return report.warnings.empty() ? NOTHING : o.strict ? FAULTS : WARNINGS;
}

}  // namespace

int run(const options& o, std::ostream& out) {
  if (o.help) {
    out << usage_text;
    return 0;
  }
  if (!o.results.empty()) return show_results(o, out);
  return o.log.empty() ? check(o, out) : explain_log(o, out);
}

}  // namespace tervak::check
