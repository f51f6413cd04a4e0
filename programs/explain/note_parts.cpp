// The pieces that the text and the page share.
#include <array>
#include <cstdio>

#include "explain/note_text.hpp"
#include "SoilCurves/axial/axial_methods.hpp"
#include "SoilCurves/py/py_methods.hpp"

namespace tervak::explain {

using part = note_subject::part;

std::string number(double value) {
  std::array<char, 40> text{};
  std::snprintf(text.data(), text.size(), "%.6g", value);
  return text.data();
}

std::string unit_text(const told_profile& profile, in unit) {
  const bool si = profile.UNITM == 1.0 && profile.UNITF == 1.0;
  switch (unit) {
    case in::length:
      return si ? "m" : "L";
    case in::stress:
      return si ? "kPa" : "F/L2";
    case in::weight:
      return si ? "kN/m3" : "F/L3";
    case in::degrees:
      return "deg";
    case in::metre:
      return "m";
    case in::kilopascal:
      return "kPa";
    case in::kn_per_metre:
      return "kN/m";
    case in::kn_per_m3:
      return "kN/m3";
    case in::none:
      break;
  }
  return "";
}

std::string values_text(const told_profile& profile, const told_step& step) {
  std::string text;
  for (const note_value& value : step.values) {
    const std::string unit = unit_text(profile, value.unit);
    text += (text.empty() ? "" : ", ") + std::string(value.name) + " = " + number(value.value) +
            (unit.empty() ? "" : " " + unit);
  }
  return text;
}

std::string branches(const told_subject& subject) {
  std::string text;
  for (const told_step& step : subject.steps)
    if (!step.branch.empty()) text += step.branch + "; ";
  return text;
}

std::string family_name(part family) {
  return family == part::py ? "P-Y" : family == part::tz ? "T-Z" : "Q-Z";
}

std::string anchor_name(part family) {
  return family == part::py ? "py" : family == part::tz ? "tz" : family == part::qz ? "qz" : "axial";
}

std::string method_name(const told_layer& layer, part family) {
  const int code = code_of(layer, family);
  const curve_method* method = find_method(family == part::py   ? py_methods()
                                           : family == part::tz ? tz_methods()
                                                                : qz_methods(),
                                           code);
  std::string label = method == nullptr ? "no method" : method->label;
  label.erase(label.find_last_not_of(' ') + 1);
  return label + " (" + std::to_string(code) + ")";
}

std::string peak_text(const told_profile& profile, const std::vector<curve_point>& curve) {
  const curve_point peak = peak_of(curve);
  return number(peak.stress) + " " + unit_text(profile, in::stress) + " at " + number(peak.displacement) +
         " " + unit_text(profile, in::length);
}

std::string units_line(const told_profile& profile) {
  if (profile.UNITM == 1.0 && profile.UNITF == 1.0) return "Units: kN, m.";
  return "Run units: 1 m is " + number(profile.UNITM) + " L, 1 kN is " + number(profile.UNITF) + " F.";
}

std::string stop_text(const told_run& run) {
  if (run.whole) return "";
  std::string text = "The run stops here";
  if (run.last.NL > 0) text += ", in layer " + std::to_string(run.last.NL);
  if (run.last.ND > 0)
    text += ", diameter " + std::to_string(run.last.ND) + ", " + family_name(run.last.of) + " curve";
  if (run.last.of == part::axial) text += ", axial capacity";
  text += ". Its log says:\n";
  for (const std::string& line : run.stop) text += line + "\n";
  return text;
}

}  // namespace tervak::explain
