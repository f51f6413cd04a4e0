#include "run/findings.hpp"

#include <sstream>

namespace tervak::run {

namespace {

using check::message_kind;

check::deck_reading reading(const std::string& bytes, const std::string& name) {
  std::istringstream stream(bytes);
  return check::deck_reading(stream, name);
}

}  // namespace

deck_findings::deck_findings(const std::string& bytes, const std::string& name)
    : deck_(reading(bytes, name)), report_(check::check_deck(deck_)) {}

findings deck_findings::of_deck() const {
  if (refused()) return {report_.faults + '\n', 0};
  findings found;
  for (const check::warning& warning : report_.warnings) found.text += warning.text + '\n';
  found.warnings = report_.warnings.size();
  return found;
}

findings deck_findings::of_log(std::string_view log) const {
  findings found;
  for (const check::explanation& message : check::explain(log, deck_).messages) {
    if (message.kind == message_kind::news || (message.kind == message_kind::refusal && refused())) continue;
    if (check::told_by(message, report_.warnings)) continue;
    if (message.kind == message_kind::warning) ++found.warnings;
    found.text += message.text(deck_) + '\n';
  }
  return found;
}

}  // namespace tervak::run
