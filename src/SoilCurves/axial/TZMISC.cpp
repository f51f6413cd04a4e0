#include "SoilCurves/axial/TZMISC.hpp"

#include <algorithm>
#include <cmath>

#include "Control/state/note.hpp"
#include "Control/state/report.hpp"
#include "Control/state/sp.hpp"
#include "SoilCurves/axial/depth_table.hpp"
#include "SoilCurves/store/curve_side.hpp"

namespace tervak {

namespace {

/// Full friction in compression and tension, and the shear modulus.
struct skin_friction {
  double TMC = 0;
  double TMT = 0;
  double G = 0;
};

template <class Side>
void lay_sides(common& cmn, layer_number NL, diameter_number ND, const skin_friction& skin, Side side) {
  lay_curve(tz_curves(cmn), NL, ND, side(skin.TMC), side(skin.TMT));
}

void zero_curve(common& cmn, layer_number NL, diameter_number ND) {
  note(cmn, equation_of("TZ-MAX-2"), "no shear modulus: above the local scour level",
       {{"t", 0.0, in::stress}});
  const double Z1 = cmn.DIAM(ND) * sp(0.01f);
  const curve_side side = {{0.0, Z1}, {0.0, Z1 + cmn.BIGDSP}};
  lay_curve(tz_curves(cmn), NL, ND, side, side);
}

void hyperbola(common& cmn, layer_number NL, diameter_number ND, const skin_friction& skin) {
  static constexpr double RATIOS[] = {sp(0.33f), sp(0.6f), sp(0.8f), sp(0.9f), sp(0.96f), sp(0.9999f)};
  const int t = cmn.LAYCOD(NL).TYP;
  const double D = cmn.DIAM(ND);
  const double G = skin.G;
  const double FR = cmn.EPS > cmn.TRESMX(t) ? 1.0 : cmn.TRESMX(t);
  const double ZR = cmn.EPS > cmn.TZZRES(t) ? D * sp(0.01f) : cmn.TZZRES(t);
  note(cmn, equation_of("TZ-200-3"), {{"rt", FR}, {"zr", ZR, in::length}});
  lay_sides(cmn, NL, ND, skin, [&](double TM) {
    curve_side side;
    for (const double ratio : RATIOS) {
      const double T = TM * ratio;
      double Z = static_cast<double>(side.size() + 1) * D;
      if (TM > cmn.EPS && G > TM) {
        const double R = T / TM * cmn.RFTZ;
        Z = std::log((cmn.ZONINF - R) / (1.0 - R)) * T * 0.5 * D / G;
      }
      side.push_back({T, Z});
    }
    const bool steep = !(TM > cmn.EPS && G > TM);
    note(cmn, steep ? equation_of("TZ-200-2") : equation_of("TZ-200-1"), steep ? "tmax = 0 or G <= tmax" : "",
         {{"D", D, in::length},
          {"G", G, in::stress},
          {"tmax", TM, in::stress},
          {"rm", cmn.ZONINF},
          {"rf", cmn.RFTZ},
          {"z", side.back().displacement, in::length}});
    side.push_back({FR * TM, side.back().displacement + ZR});
    side.push_back({FR * TM, side.back().displacement + cmn.BIGDSP});
    return side;
  });
}

/// t over t.max against z over D of API RP 2A, 6.7.2, up to the peak.
curve_side api_clay_rise(double TM, double D) {
  static constexpr curve_point SHAPE[] = {{sp(0.3f), sp(0.0016f)},
                                          {0.5, sp(0.0031f)},
                                          {0.75, sp(0.0057f)},
                                          {sp(0.9f), sp(0.008f)},
                                          {1.0, sp(0.01f)}};
  return scaled_side(SHAPE, TM, D);
}

void api_clay(common& cmn, layer_number NL, diameter_number ND, const skin_friction& skin) {
  const int t = cmn.LAYCOD(NL).TYP;
  const double D = cmn.DIAM(ND);
  const double FR = std::min(cmn.EPS > cmn.TRESMX(t) ? sp(0.8f) : cmn.TRESMX(t), 1.0);
  const double ZR = cmn.TZZRES(t);
  note(cmn, equation_of("TZ-API-1"), "clay, phi = 0", {{"D", D, in::length}});
  note(cmn, equation_of("TZ-API-2"), {{"rt", FR}, {"zr", ZR, in::length}});
  lay_sides(cmn, NL, ND, skin, [&](double TM) {
    curve_side side = api_clay_rise(TM, D);
    side.push_back({FR * TM, sp(0.02f) * D + ZR});
    side.push_back({FR * TM, sp(0.02f) * D + ZR + cmn.BIGDSP});
    return side;
  });
}

/// Sand in the shape of the clay: no drop behind the peak, and the residual displacement only in the far
/// point.
void api_sand_214(common& cmn, layer_number NL, diameter_number ND, const skin_friction& skin) {
  const double D = cmn.DIAM(ND);
  const double ZR = cmn.TZZRES(cmn.LAYCOD(NL).TYP);
  note(cmn, equation_of("TZ-214-S1"), "sand, phi > 0", {{"D", D, in::length}});
  lay_sides(cmn, NL, ND, skin, [&](double TM) {
    curve_side side = api_clay_rise(TM, D);
    side.push_back({TM, sp(0.02f) * D});
    side.push_back({TM, sp(0.02f) * D + ZR + cmn.BIGDSP});
    return side;
  });
}

/// Full friction at 2.54 mm. The ratio of atmosphere and water weight is about 10.13 m in any unit of length.
void api_sand_293(common& cmn, layer_number NL, diameter_number ND, const skin_friction& skin) {
  const double ZE = cmn.ATMPRS / cmn.GAMWAT * sp(0.0002507f);
  note(cmn, equation_of("TZ-293-S1"), "sand, phi > 0",
       {{"ATMPRS", cmn.ATMPRS, in::stress}, {"GAMWAT", cmn.GAMWAT, in::weight}, {"ze", ZE, in::length}});
  note(cmn, equation_of("TZ-293-S2"), {{"tc", skin.TMC, in::stress}, {"tt", skin.TMT, in::stress}});
  lay_sides(cmn, NL, ND, skin, [&](double TM) { return curve_side{{TM, ZE}, {TM, ZE + cmn.BIGDSP}}; });
}

void carbonate_sand(common& cmn, layer_number NL, diameter_number ND, const skin_friction& skin) {
  const double Z1 = cmn.DIAM(ND) * sp(0.01f);
  note(cmn, equation_of("TZ-588-1"), {{"0.01 D", Z1, in::length}});
  lay_sides(cmn, NL, ND, skin, [&](double TM) {
    return curve_side{{TM, Z1}, {0.75 * TM, 10.0 * Z1}, {0.75 * TM, 10.0 * Z1 + cmn.BIGDSP}};
  });
}

bool is_clay(const common& cmn, layer_number NL) {
  const double FI = cmn.REVISION == 5 ? cmn.PHIR(NL) : cmn.PHI(cmn.LAYCOD(NL).TYP);
  return cmn.EPS > FI;
}

}  // namespace

void TZMISC(common& cmn, layer_number NL, diameter_number ND, int ICODE) {
  double TC = 0, TT = 0, G = 0;
  const int IERR = depth_values(
      cmn, NL, ND, {{depth_column::TCMP, TC}, {depth_column::TTNS, TT}, {depth_column::G0SOIL, G}});
  if (IERR != 0)
    return fail(cmn, 1,
                "(/,' **** SR/TZMISC : ERROR FROM SR/KestraCommonLibrary::Utils::Interpolate(   IERR=',i5)",
                IERR);
  if (cmn.REVISION == 5) {
    TC = cmn.TAUCMP(NL);
    TT = cmn.TAUTNS(NL);
    G = cmn.GSOIL(NL);
  }
  if (cmn.REVISION != 4 && !(G > cmn.EPS)) return zero_curve(cmn, NL, ND);
  if (cmn.EPS > G && ICODE == 200)
    return fail(cmn, 1, "(/,' **** SR/TZMISC : SOIL SHEAR MODULUS  NL,ND,G=',2i5,e11.4)", NL, ND, G);

  const skin_friction skin = {TC / cmn.SFSKF, TT / cmn.SFSKF, G};
  note(cmn, equation_of("TZ-MAX-1"),
       {{"ts", TC, in::stress},
        {"ts", TT, in::stress},
        {"SFSKF", cmn.SFSKF},
        {"tc", skin.TMC, in::stress},
        {"tt", skin.TMT, in::stress}});
  if (ICODE == 200) return hyperbola(cmn, NL, ND, skin);
  if (ICODE == 293 || ICODE == 214) {
    if (is_clay(cmn, NL)) return api_clay(cmn, NL, ND, skin);
    return ICODE == 214 ? api_sand_214(cmn, NL, ND, skin) : api_sand_293(cmn, NL, ND, skin);
  }
  if (ICODE == 588) return carbonate_sand(cmn, NL, ND, skin);
  fail(cmn, 1, "(/,' **** SR/TZMISC : ICODE IS NOT 200 OR 293  ICODE =',i5)", ICODE);
}

}  // namespace tervak
