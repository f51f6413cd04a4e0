#pragma once

#include <string>

#include "explain/deck_run.hpp"
#include "explain/manual_places.hpp"
#include "explain/options.hpp"

namespace tervak::explain {

/// The families of curves in the order of the note.
inline constexpr note_subject::part CURVES[] = {note_subject::part::py, note_subject::part::tz,
                                                note_subject::part::qz};

/// A number with six significant digits.
std::string number(double value);
/// The unit of a value as the note shows it: of kN and m, or of the run's own F and L.
std::string unit_text(const told_profile& profile, in unit);
/// "phi = 35 deg, C3 = 54.4": the values of a step.
std::string values_text(const told_profile& profile, const told_step& step);
/// The branches that were taken, in their order, each with "; " after it.
std::string branches(const told_subject& subject);
/// "P-Y", "T-Z" or "Q-Z", and in small letters for anchors; the name of a curve's method with its code.
std::string family_name(note_subject::part family);
std::string anchor_name(note_subject::part family);
std::string method_name(const told_layer& layer, note_subject::part family);
/// "123.4 kPa at 0.05 m".
std::string peak_text(const told_profile& profile, const std::vector<curve_point>& curve);
/// The units of a profile, and where and why a run stopped ("" when it did not).
std::string units_line(const told_profile& profile);
std::string stop_text(const told_run& run);

/// The note for the terminal: of what was chosen, or the list of layers and curves.
std::string text_note(const told_run& run, const choice& chosen, const manual_places& places);

}  // namespace tervak::explain
