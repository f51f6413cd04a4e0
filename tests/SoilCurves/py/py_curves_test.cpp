// Points of the curves of all methods, worked by hand or by an independent program. Published points stand on
// the validation page.
#include "SoilCurves/py/py_support.hpp"
#include "SoilCurves/py/PYAUTO.hpp"

using namespace tervak;

namespace {

template <int CODE>
void automatic(common& cmn, layer_number NL, diameter_number ND) {
  PYAUTO(cmn, NL, ND, CODE);
}

using points = std::vector<std::array<double, 3>>;  // number, displacement, stress

/// Soft clay of YC 0.025: stresses at 0.1, 0.3, 1 and 3 YC and at the corner, then flat (API RP 2GEO).
points seven(double PU, double corner_y, double corner_p) {
  return {{1, .0025, .23 * PU}, {2, .0075, .33 * PU},    {3, .025, .5 * PU},
          {4, .075, .72 * PU},  {5, corner_y, corner_p}, {6, 1000, corner_p}};
}
points five(double PU, double corner_y, double corner_p) {
  return {{1, .025, .5 * PU}, {2, .075, .72 * PU}, {3, corner_y, corner_p}, {4, 1000, corner_p}};
}
const points MATLOCK{{3, .025, .5 * 900}, {4, .375, 648}, {5, .625, 648}, {6, 1000, 648}};
const double PY30 = 50 * 9.2374287 + 10 * 35.578066;  // PYULT at 30 degrees and depth 5
const double PU12 = .9 * 18.2713622e-12;              // 0.9 pu of a sand of 35 degrees at SIGZ 1E-12

const struct {
  py_routine routine;
  given soil;
  int N;  ///< points of the whole curve
  points branch;
} CASES[] = {
    // API84, sand: H / D 5, A 0.88, B 0.5, exponent 1.644737; K on both sides of 30 and 36; the line dropped
    {API84, {.PHI = 35, .SU = 500}, 13, {{1, .00103710489, 84.4203383}, {2, .00624695882, 251.532109}}},
    {API84, {.PHI = 30}, 13, {{1, .00612481933, 166.288845}}},
    {API84, {.PHI = 30.001}, 13, {{1, .000372148741, 30.2929075}}},
    {API84, {.PHI = 36}, 13, {{1, .00127483084, 103.771230}}},
    {API84, {.PHI = 36.001}, 13, {{1, .00019586048, 33.2277307}}},
    {API84, {.PHI = 30, .H = 50, .SIGZ = 500}, 7, {{1, 1. / 60, 7186.15896}, {2, .0375, 12647.6398}}},
    // soft clay: GAM 10, pu = 50 + 60 + 50, zr = 6 / (10 / 20 + 0.5); the level 5 is not above ZCYCL 5
    {API84, {.SU = 20, .ZCYCL = 5}, 9, five(160, .2, 160)},
    {API84, {.SU = 20, .ZCYCL = 5.001}, 9, five(160, .375, 96)},
    {ISO04, {.SU = 2, .H = 2, .SIGZ = 20, .J = 10, .ZCYCL = 6}, 13, seven(18, .375, .72 * 18 * .8)},
    // a strength of exactly SUSTIF is soft; 404 against 570 on both sides of it
    {API84, {.SU = 100}, 9, five(600, .2, 600)},
    {API87, {.SU = 100}, 9, five(600, .2, 600)},
    {API14, {.SU = 100}, 13, seven(600, .2, 600)},
    {ISO04, {.SU = 100, .J = 10, .code = 404, .ZCYCL = 6}, 13, seven(900, .375, 648)},
    {ISO04, {.SU = 100.001, .code = 404}, 21, {}},
    {ISO04, {.SU = 100, .J = 10, .code = 570, .ZCYCL = 6}, 13, MATLOCK},
    {ISO04, {.SU = 99, .J = 10, .code = 570, .ZCYCL = 6}, 13, seven(891, .375, 641.52)},
    // load factor of the tangent: 3 - 0.8 H / D, else 0.9
    {ISO04, {.PHI = 35, .H = 2}, 21, {{10, 1000, 655.203633}}},
    // no resistance: below EPS for ISO04, below 1E-12 for API87 and API14
    {API87, {.PHI = 35, .SIGZ = 0}, 21, {{1, .111, 0}, {9, .999, 0}, {10, 1000, 0}}},
    {ISO04, {.PHI = 35, .SIGZ = 1e-12}, 21, {{1, .111, PU12}, {9, .999, PU12}}},
    {API87, {.PHI = 35, .SIGZ = 1e-12}, 21, {{9, 3.7962 * PU12 / (2226.5 * 50), .998992 * PU12}}},
    // carbonate sand: 1.5 SIGZ^(1/3) QC^(2/3) (y / D)^(1/2), QC = H * APIJ + OCR, capped at QC
    {API87, {.PHI = 35, .D = 2, .J = 1000, .OCR = 2000, .code = 588}, 21, {{1, .004, 90.4332804}}},
    {API87, {.PHI = 35, .J = 0, .OCR = 10, .code = 588}, 21, {{8, .10053015, 8.1326003}, {9, .17592776, 10}}},
    // VRK80: sand K 500, 1200, 1800; no hyperbola; clay A, B and RES by load and overconsolidation
    {VRK80, {.PHI = 30}, 17, {{1, .04 / 6, 149.999959}, {6, .04, 599.999387}, {7, .1, 599.999387}}},
    {VRK80, {.PHI = 30.001}, 17, {{1, .04 / 6, 266.671319}}},
    {VRK80, {.PHI = 36}, 17, {{1, .04 / 6, 295.734095}}},
    {VRK80, {.PHI = 36.001}, 17, {{1, .04 / 6, 372.173962}}},
    {VRK80, {.PHI = 30, .H = 1}, 7, {{1, .04, 599.999387}, {2, .1, 599.999387}, {3, 1000, 599.999387}}},
    {VRK80, {.SU = 10, .OCR = 1, .REVISION = 4}, 17, {{1, .2 / 6, 25.1316702}, {8, 1000, 16.875}}},
    {VRK80, {.SU = 10, .OCR = 2, .REVISION = 4}, 17, {{1, .05 / 6, 38.9466384}, {7, .08, 40}}},
    {VRK80, {.SU = 10, .OCR = 1, .REVISION = 4, .ZCYCL = 6}, 17, {{1, .0125, 12.8692464}, {7, .2, 15}}},
    {VRK80, {.SU = 10, .OCR = sp(1.01f), .REVISION = 4}, 17, {{1, .05 / 6, 21.9074841}, {7, .08, 16.875}}},
    {VRK80, {.SU = 10, .H = 2.5, .REVISION = 4}, 17, {{1, .2 / 6, 15.3582429}, {7, .8, 8.59375}}},
    {VRK80, {.SU = 10, .H = 20, .OCR = 2}, 17, {{1, .2 / 6, 44.6785248}, {6, .2, 80}, {7, .8, 40}}},
    // NGI11: Gmax/Su 200; the cut of the tangent at sqrt(0.2) G / 100 = 5; anisotropy capped; flow; no
    // strength
    {NGI11, {.SU = 50, .SIGZ = 100, .G = 200}, 19, {{1, .00075, 24.0025005}, {5, .025, 134.270912}}},
    {NGI11, {.SU = 50, .SIGZ = 100, .G = 200, .CYCFAC = .5, .ZCYCL = 6}, 19, {{8, .375, 157.918261}}},
    {NGI11, {.SU = 50, .SIGZ = 100, .G = 1118}, 19, {{8, .2, 438.661835 * .99990917}}},
    {NGI11, {.SU = 50, .SIGZ = 100, .G = 1119}, 19, {{8, .2, 438.661835}}},
    {NGI11, {.SU = 200, .SIGZ = 100, .G = 2500}, 19, {{9, 1000, 1228.872785}}},
    {NGI11, {.SU = 50, .H = 50, .SIGZ = 100, .G = 25}, 19, {{9, 1000, 492.66}}},
    {NGI11, {.G = 25, .CYCFAC = .5, .ZCYCL = 6}, 19, {{9, 1000, 0}}},
    // PYAUTO: sand and clay terms add
    {automatic<100>, {.PHI = 30, .SU = 10}, 3, {{1, 100, 1000 * PY30}}},
    {automatic<103>, {.PHI = 30, .SU = 10}, 9, {{1, .03, .75 * PY30}, {2, .1, PY30}, {3, .2, .5 * PY30}}},
};

TEST(PyCurves, PointsAndSymmetry) {
  for (const auto& c : CASES) {
    SCOPED_TRACE("row " + std::to_string(&c - CASES));
    const py_case soil(c.routine, c.soil);
    EXPECT_EQ(soil.log(), "");
    ASSERT_EQ(soil.cmn.NPYPNT(1, 1), c.N);
    for (const auto& [number, y, p] : c.branch) {
      expect_rel(soil.y(static_cast<int>(number)), y, 2e-7);
      expect_rel(soil.p(static_cast<int>(number)), p, 1e-6);
    }
    for (int i = 0; i <= soil.last(); ++i) {
      EXPECT_EQ(soil.y(-i), -soil.y(i));
      EXPECT_EQ(soil.p(-i), -soil.p(i));
    }
  }
}

// y(1) is 0.111 * 3.8 / ZC with ZC = KV * GAMWAT * H / (APU * D). The layer's level is 5.
TEST(TanhSand, ModulusTables) {
  const struct {
    py_routine routine;
    double PHI, ZPWP, KSOIL, KV;
  } rows[] = {
      {API87, 29, 6, 0, 272},     {API87, 30, 6, 0, 1222},     {API87, 45, 5.001, 0, 10183},
      {API87, 29, 5, 0, 272},     {API87, 33, 4, 0, 1683.5},   {API87, 30, 5, 30000, 869},
      {API87, 60, 0, 0, 5974},    {API87, 14.5, 0, 0, 136},    {ISO04, 40, 6, 0, 7549},
      {ISO04, 40, 5, 0, 4209},    {ISO04, 36, 0, 0, 2498},     {API14, 22, 6, 0, 537},
      {API14, 27.5, 6, 0, 815.5}, {API14, 35, 6, 0, 2189},     {API14, 30, 6, 30000, 3000},
      {API14, 60, 6, 0, 5974},    {API14, 30, 6, 1e-12, 1094}, {API14, 10, 6, 0, 268.5},
  };
  for (const auto& r : rows) {
    const py_case soil(r.routine, {.PHI = r.PHI, .D = 2, .ZPWP = r.ZPWP, .KSOIL = r.KSOIL});
    expect_rel(0.111 * 3.8 / soil.y(1) * soil.p(10) * 2 / (10 * 5), r.KV, 1e-6);
  }
}

}  // namespace
