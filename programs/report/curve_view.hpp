#pragma once

#include <string>
#include <utility>
#include <vector>

#include "report/curve_marks.hpp"
#include "report/rif_data.hpp"
#include "report/svg_plot.hpp"
#include "report/units.hpp"

namespace tervak::report {

/// "sand" or "clay", by the friction angle as everywhere in the system.
const char* soil_text(const layer& l);

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

/// How the curves of one kind in one layer are drawn. Where both sides are alike in all of them only the
/// positive one is.
struct curve_view {
  axis x, y;            // cut to the shape
  axis full_x, full_y;  // with the far points
  bool alike = false;
  std::vector<std::vector<mark>> marks;  // by diameter
};

/// Marks by diameter of one kind in one layer of `p`. Layers at or above the scour level get none; among
/// monopile curves, which a deck gives for some layers only, neither zero curves nor neighbours are marked.
/// Neighbours are compared where soil and code are the same and both lie below the scour level.
std::vector<std::vector<mark>> marks_of(const profile& p, const layer& l, curve_kind kind);

curve_view view_curves(const profile& p, const layer& l, curve_kind kind, const units& u);
/// The drawing of them, with the letters of the marks at their points.
plot curve_plot(const profile& p, const layer& l, curve_kind kind, const curve_view& view);

/// Whether a mark shows what methods make on purpose: a residual after the peak of T-Z, a cyclic P-Y curve
/// that falls to a residual, the last of the automatic curves. All others are worth a look.
bool as_the_method_makes_it(mark_kind mark);

/// How the page writes a mark: the letter at its points, its name, what it means.
struct mark_words {
  const char* letter;
  const char* name;
  const char* meaning;
};
mark_words words_of(mark_kind kind);
/// The points of a curve where letters stand, each once: "SV" at a drop. Zero curves and neighbours have
/// none.
std::vector<std::pair<std::size_t, std::string>> letters_of(const std::vector<mark>& marks);
/// A share as "12.5 %".
std::string percent(double share);

}  // namespace tervak::report
