#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "check/check.hpp"

namespace tervak::run {

/// What is to be told of a deck or a log, a message a paragraph, and how many warnings are in it.
struct findings {
  std::string text;
  std::size_t warnings = 0;
};

/// The findings of a deck before its run and of the run's log after it.
class deck_findings {
 public:
  /// `name` is that of the deck in the messages.
  deck_findings(const std::string& bytes, const std::string& name);

  /// The deck has faults: its run ends in a refusal.
  [[nodiscard]] bool refused() const { return report_.fault_count > 0; }
  /// The faults that the reader of the deck finds, or the warnings of the rules.
  [[nodiscard]] findings of_deck() const;
  /// The warnings and errors of the log with their meaning and place, but for those that of_deck() has told.
  [[nodiscard]] findings of_log(std::string_view log) const;

 private:
  check::deck_reading deck_;
  check::deck_report report_;
};

}  // namespace tervak::run
