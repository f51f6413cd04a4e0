#include <algorithm>
#include <cmath>

#include "check/rules.hpp"

namespace tervak::check::rules {

namespace {

/// Levels that agree within this are one, in metres.
constexpr double SAME_LEVEL = 1e-6;

void scour_boundary(const profile_view& profile, const rule_hit& hit) {
  if (!profile.revision5() || profile.profile().depthOfLocalScour == 0 || profile.layers().empty()) return;
  const double scour = profile.scour_level();
  for (const calculation_layer& layer : profile.layers())
    if (std::abs(layer.bottom - scour) < SAME_LEVEL || std::abs(layer.top - scour) < SAME_LEVEL) return;
  hit({"SCRLOC"}, "the local scour level is " + rounded(scour));
}

void thick_layer(const profile_view& profile, const rule_hit& hit) {
  if (profile.data().Diameters.empty()) return;
  const double diameter = *std::min_element(profile.data().Diameters.begin(), profile.data().Diameters.end());
  std::size_t told = static_cast<std::size_t>(-1);
  for (const calculation_layer& layer : profile.layers()) {
    const double height = layer.bottom - layer.top;
    if (layer.row == told || !(layer.bottom > profile.scour_level()) ||
        !(height > 2 * diameter + SAME_LEVEL) ||
        !(layer.top - profile.profile().zSeafloor < 5 * diameter - SAME_LEVEL))
      continue;
    told = layer.row;
    const bool revision5 = profile.revision5();
    hit({revision5 ? "SUBDIVISION" : "LAYERS", layer.row + 1, revision5 ? "NSUBM" : "L2"},
        "layers of " + rounded(height) + " m");
  }
}

/// Stiff clay curves look up the strengths of the line that BUILD5 keeps for a main layer: from the second
/// main layer on it begins at the bottom of the calculation layer whose number is that of the main layer
/// above.
void stiff_line(const profile_view& profile, const rule_hit& hit) {
  constexpr int STIFF_CURVES[] = {214, 284, 287, 404};
  if (!profile.revision5() || profile.layers().empty()) return;
  const double limit = profile.profile().lowestShearStiff * profile.profile().shearStrengthCoeff;
  for (const soil& s : profile.soils()) {
    if (!s.clay || !s.has_py(STIFF_CURVES)) continue;
    const std::size_t m = s.row - 1;
    const double bottom = profile.data().MainLayers.Records[m].BottomZ;
    const double start = m == 0 ? profile.profile().zSeafloor : profile.layers()[m - 1].bottom;
    double worst = 0;
    for (const calculation_layer& layer : profile.layers()) {
      if (layer.row != m || layer.level <= profile.scour_level()) continue;
      const double top = profile.top_of(m);
      const double own = s.su_top + (s.su_bottom - s.su_top) * (layer.level - top) / (bottom - top);
      const double line = s.su_top + (s.su_bottom - s.su_top) * (layer.level - start) / (bottom - start);
      if (own > limit && std::abs(line / own - 1) > std::abs(worst)) worst = line / own - 1;
    }
    if (std::abs(worst) > 0.05 + 1e-9)
      hit({s.table, s.row, "SUTOP"}, "the stiff clay curve reads strengths up to " +
                                         rounded(std::round(std::abs(worst) * 1000) / 10) +
                                         (worst > 0 ? " % above" : " % below") + " those of the layer");
  }
}

constexpr rule RULES[] = {
    {"scour-boundary", "layers of revision 5 and `SCRLOC`", "no layer boundary at the local scour level",
     ", where no layer ends; put a layer boundary there",
     "a layer counts by its middle, as scoured or not as a whole", scour_boundary},
    {"thick-layer", "layers whose top lies less than five of the smallest `DIAM` below the sea floor",
     "thicker than two of the smallest `DIAM`",
     " near the sea floor, thicker than two of the smallest DIAM; take more layers",
     "near the sea floor resistance changes fast, and a layer has one curve", thick_layer},
    {"stiff-line", "clay of revision 5 above `SUSTIF`, P-Y codes 214, 284, 287, 404",
     "strengths by the program's line differ from those given by more than 5 %",
     "; take one layer in each main layer above (NSUBM), or check the peaks",
     "the curve rests on a line that begins at another level than the layer, see [methods/py.md](methods/py.md)",
     stiff_line},
};

}  // namespace

std::span<const rule> of_layers() { return RULES; }

}  // namespace tervak::check::rules
