#include "explain/note_text.hpp"

#include <algorithm>

namespace tervak::explain {

namespace {

using part = note_subject::part;

std::string layer_line(const told_profile& profile, int NL) {
  const told_layer& layer = profile.layers[static_cast<std::size_t>(NL) - 1];
  const std::string unit = unit_text(profile, in::length);
  return "Layer " + std::to_string(NL) + ": " + number(layer.top) + " to " + number(layer.bottom) + " " +
         unit + ", level " + number(layer.level) + " " + unit;
}

std::string diameter_text(const told_profile& profile, int ND) {
  return "D " + number(profile.diameters[static_cast<std::size_t>(ND) - 1]);
}

std::string steps_text(const told_profile& profile, const told_subject* subject) {
  std::string text;
  if (subject == nullptr) return text;
  for (const told_step& step : subject->steps) {
    text += "  " + std::string(step.step->id) + "  " + std::string(step.step->formula) + "  [" +
            std::string(step.step->source) + "]\n";
    if (!step.branch.empty()) text += "      -> " + step.branch + "\n";
    text += "      " + values_text(profile, step) + "\n";
  }
  return text;
}

/// The points from the origin outward, in compression.
std::string points_text(const told_profile& profile, const std::vector<curve_point>& curve) {
  std::string text = "      " + unit_text(profile, in::length) + ", " + unit_text(profile, in::stress) + ":";
  for (std::size_t i = curve.size() / 2; i < curve.size(); ++i)
    text += "  " + number(curve[i].displacement) + ", " + number(curve[i].stress) + ";";
  text.back() = '\n';
  return text;
}

std::string curve_text(const told_profile& profile, const manual_places& places, part family, int NL,
                       int ND) {
  const told_subject* subject = profile.find(family, NL, ND);
  if (subject == nullptr) return "";
  const std::string given = places.of(profile, family, NL, ND);
  std::string text = "\n" + family_name(family) + ", " + diameter_text(profile, ND) + ": " +
                     method_name(profile.layers[static_cast<std::size_t>(NL) - 1], family) +
                     (given.empty() ? "" : ", given in the deck at " + given) + "\n";
  text += steps_text(profile, subject);
  if (!subject->made.empty())
    text += "  As made: greatest stress " + peak_text(profile, subject->made) + "\n" +
            points_text(profile, subject->made);
  if (!subject->finished.empty())
    text += "  Finished: greatest stress " + peak_text(profile, subject->finished) + "\n";
  return text;
}

std::string whole_layer(const told_profile& profile, const choice& chosen, const manual_places& places,
                        int NL) {
  std::string text = "\n" + layer_line(profile, NL) + "\n";
  if (!chosen.family) text += steps_text(profile, profile.find(part::layer, NL, 0));
  if (chosen.has(part::axial)) {
    const told_subject* axial = profile.find(part::axial, NL, 0);
    text += "\nAxial capacity" + std::string(axial == nullptr ? ": none here" : "") + "\n" +
            steps_text(profile, axial);
  }
  for (int ND = 1; ND <= static_cast<int>(profile.diameters.size()); ++ND)
    for (const part family : CURVES)
      if (chosen.has(family) && (chosen.diameter == 0 || chosen.diameter == ND))
        text += curve_text(profile, places, family, NL, ND);
  return text;
}

std::string listed_layer(const told_profile& profile, int NL) {
  std::string text = layer_line(profile, NL) + "\n";
  if (const told_subject* axial = profile.find(part::axial, NL, 0))
    text += "  axial: " + branches(*axial) + std::to_string(axial->steps.size()) + " steps\n";
  for (int ND = 1; ND <= static_cast<int>(profile.diameters.size()); ++ND)
    for (const part family : CURVES)
      if (const told_subject* subject = profile.find(family, NL, ND))
        text += "  " + family_name(family) + " " + diameter_text(profile, ND) + ": " +
                method_name(profile.layers[static_cast<std::size_t>(NL) - 1], family) + "; " +
                branches(*subject) + "greatest stress " +
                peak_text(profile, subject->finished.empty() ? subject->made : subject->finished) + "\n";
  return text;
}

}  // namespace

std::string text_note(const told_run& run, const choice& chosen, const manual_places& places) {
  std::string text;
  for (const told_profile& profile : run.profiles) {
    if (chosen.profile > 0 && chosen.profile != profile.number) continue;
    text += "Profile " + std::to_string(profile.number) + ": " + profile.heading + "\n" +
            units_line(profile) + "\n";
    if (chosen.any() && !chosen.family) text += steps_text(profile, profile.find(part::layer, 0, 0));
    for (int NL = 1; NL <= static_cast<int>(profile.layers.size()); ++NL)
      if (chosen.layer == 0 || chosen.layer == NL)
        text += chosen.any() ? whole_layer(profile, chosen, places, NL) : listed_layer(profile, NL);
    text += "\n";
  }
  return text + stop_text(run);
}

}  // namespace tervak::explain
