#pragma once

#include <string>
#include <utility>
#include <vector>

#include "report/curve_marks.hpp"
#include "report/rif_data.hpp"
#include "report/svg_plot.hpp"
#include "report/units.hpp"

namespace tervak::report {

/// Short name ("P-Y") and the names of the two quantities of a kind.
struct kind_words {
  const char* name;
  const char* stress;
  const char* displacement;
  const char* positive;  // the side of positive displacement
  const char* negative;
  const char* stress_symbol;  // heads of the table of points
  const char* displacement_symbol;
};
kind_words words_of(curve_kind kind);

/// "284 (API-84)"; the bare code where it has no name.
std::string method_text(curve_kind kind, int code);

/// The kinds of curve that a profile has, in the order of the page.
std::vector<curve_kind> kinds_of(const profile& p);

/// What the page shows of the curves of one kind in one layer: axes cut to the shape, marks by diameter, and
/// texts.
struct curve_view {
  axis x, y;
  std::string note;                      // what the plot leaves out, and a curve without resistance
  std::vector<std::vector<mark>> marks;  // by diameter
  std::vector<std::string> mark_texts;
};

/// Marks by diameter of one kind in one layer. Layers at or above the scour level get none; among monopile
/// curves, which a deck gives for some layers only, zero curves are not marked.
std::vector<std::vector<mark>> marks_of(const profile& p, const layer& l, curve_kind kind);

curve_view view_curves(const profile& p, const layer& l, curve_kind kind, const units& u);
/// The drawing of them, with the letters of the marks at their points.
plot curve_plot(const profile& p, const layer& l, curve_kind kind, const curve_view& view);

/// Name of a mark as the page prints it, and the letter that stands at its points.
const char* mark_name(mark_kind kind);
const char* mark_letter(mark_kind kind);
/// The points of a curve where letters stand, each once: "SV" at a drop. Zero curves have none.
std::vector<std::pair<std::size_t, std::string>> letters_of(const std::vector<mark>& marks);
/// A share as "12.5 %".
std::string percent(double share);

}  // namespace tervak::report
