#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "Control/state/note.hpp"

namespace tervak::explain {

/// What to show. A number 0 and no family mean all.
struct choice {
  int profile = 0, layer = 0, diameter = 0;
  std::optional<note_subject::part> family;

  [[nodiscard]] bool any() const { return profile > 0 || layer > 0 || diameter > 0 || family.has_value(); }
  [[nodiscard]] bool has(note_subject::part part) const { return !family || *family == part; }
};

struct options {
  bool help = false;
  std::string deck;
  std::string output;  ///< empty: text on the terminal
  choice chosen;
};

/// A command line that cannot be followed.
struct usage_error : std::runtime_error {
  using std::runtime_error::runtime_error;
};

extern const char* const usage_text;

/// `arguments` without the name of the program. Throws usage_error.
options parse_options(const std::vector<std::string>& arguments);

}  // namespace tervak::explain
