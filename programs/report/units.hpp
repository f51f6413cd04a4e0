#pragma once

#include <string>

namespace tervak::report {

/// The file carries no units: unless they are named on the command line, the page says "run units".
struct units {
  std::string force;
  std::string length;

  bool named() const { return !force.empty(); }
  std::string of_length() const { return named() ? length : "run units"; }
  std::string of_force() const { return named() ? force : "run units"; }
  std::string of_stress() const { return named() ? force + "/" + length + "²" : "run units"; }
  std::string of_weight() const { return named() ? force + "/" + length + "³" : "run units"; }
};

/// "kN/m2": the unit of a stress as files in which any program has to read it have it.
inline std::string plain_stress(const units& u) { return u.force + "/" + u.length + "2"; }

/// Takes "kN,m" apart. False when it is not two names, of letters and digits and at most eight characters
/// each.
bool parse_units(const std::string& text, units& out);

}  // namespace tervak::report
