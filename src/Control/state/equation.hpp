#pragma once

#include <string_view>

namespace tervak {

/// One equation of a method: its fixed id, the formula as one line of plain text, and where it was published.
/// The pages of docs/methods show the same three beside the typeset form; a test holds the two together.
struct equation {
  std::string_view id;       ///< page, block, number: "PY-TANH-3"; never given to another equation
  std::string_view formula;  ///< in the symbols of the page, kN, m, kPa and degrees
  std::string_view source;   ///< clause or publication, or "no published source known"
};

}  // namespace tervak
