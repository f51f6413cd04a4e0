#include "SoilCurves/axial/manual_axial_curve.hpp"

#include <algorithm>
#include <cmath>

#include "Control/state/report.hpp"
#include "SoilCurves/store/curve_side.hpp"
#include "SoilCurves/store/curve_store.hpp"

namespace tervak {

namespace {

/// The first given point at the origin, 0 if there is none.
int find_origin(const common& cmn, const curve_family& family, layer_number NL, diameter_number ND) {
  for (int k = 1; k <= family.NPNT(ND, NL); ++k)
    if (!(std::abs(family.DSP(k, ND, NL)) > cmn.EPS) && !(std::abs(family.STR(k, ND, NL)) > cmn.EPS))
      return k;
  return 0;
}

/// Takes the given points out of the store, so that they can be laid anew.
vector1<curve_point> take_points(const curve_family& family, layer_number NL, diameter_number ND, double SF) {
  vector1<curve_point> given;
  for (int k = 1; k <= family.NPNT(ND, NL); ++k) {
    given.append({family.STR(k, ND, NL) / SF, family.DSP(k, ND, NL)});
    family.STR(k, ND, NL) = 0.0;
    family.DSP(k, ND, NL) = 0.0;
  }
  return given;
}

}  // namespace

void lay_manual_curve(common& cmn, const curve_family& family, layer_number NL, diameter_number ND, double SF,
                      const manual_curve_texts& texts) {
  const int N = family.NPNT(ND, NL);
  const int O = family.NORG(ND, NL);
  const int k = find_origin(cmn, family, NL, ND);
  if (k == 0) return fail(cmn, 1, texts.no_origin, NL, ND);
  const vector1<curve_point> given = take_points(family, NL, ND, SF);

  const int LEFT = k - 1;
  const int RIGHT = N - k;
  const int MAX = O - 1;
  if (LEFT > MAX || RIGHT > MAX) return fail(cmn, 1, texts.too_many, MAX, LEFT, RIGHT);

  const auto put = [&](int place, double stress, double displacement) {
    family.STR(O + place, ND, NL) = stress;
    family.DSP(O + place, ND, NL) = displacement;
  };
  for (int j = 1; j <= RIGHT; ++j) put(j, given(k + j).stress, given(k + j).displacement);
  if (k == 1) return mirror(family.STR, family.DSP, family.NPNT, family.NORG, ND, NL);

  for (int j = 1; j <= LEFT; ++j) put(-j, given(k - j).stress, given(k - j).displacement);
  for (int j = LEFT + 1; j <= RIGHT; ++j)
    put(-j, given(1).stress, family.DSP(O - (j - 1), ND, NL) - cmn.DIAM(ND));
  for (int j = RIGHT + 1; j <= LEFT; ++j)
    put(j, given(N).stress, family.DSP(O + (j - 1), ND, NL) + cmn.DIAM(ND));
  family.NPNT(ND, NL) = 2 * std::max(LEFT, RIGHT) + 1;
}

}  // namespace tervak
