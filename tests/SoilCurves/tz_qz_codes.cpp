#include "SoilCurves/QZAUTO.hpp"
#include "SoilCurves/QZMISC.hpp"
#include "SoilCurves/TZAUTO.hpp"
#include "SoilCurves/TZMISC.hpp"
#include "support/axial_curve.hpp"
#include "support/small_layer.hpp"

using namespace tervak;

namespace {

/// Diameter 2, far displacement 2000. Behind the safety factors of 2 the full friction is 32 in compression
/// and 16 in tension, the full tip stress 512, in the layer and halfway down the depth table alike.
struct axial_layer : small_layer {
  explicit axial_layer(int REVISION = 5, double G = 1024.0) : small_layer(2, {2.0, 2.0}) {
    cmn.REVISION = REVISION;
    cmn.SFSKF = cmn.SFSIGT = 2.0;
    cmn.TAUCMP(1) = 64.0, cmn.TAUTNS(1) = 32.0, cmn.QTIP(1) = 1024.0, cmn.GSOIL(1) = G;
    cmn.NUMTQZ = 2;
    cmn.ZTQZ = {0.0, 10.0}, cmn.TCMP = {0.0, 128.0}, cmn.TTNS = {64.0, 0.0}, cmn.SIGTIP = {0.0, 2048.0};
    cmn.G0SOIL = {G, G}, cmn.TZDRAT = {0.01, 0.01}, cmn.POIS = {0.25, 0.25}, cmn.QZDRAT = {0.2, 0.2};
    cmn.ZONINF = 10.0, cmn.RFTZ = 0.9f;
  }
};

const std::string LOOKUP = " : ERROR FROM SR/KestraCommonLibrary::Utils::Interpolate(   IERR=    2\r\n";
const std::string NO_G = "\r\n **** SR/TZMISC : SOIL SHEAR MODULUS  NL,ND,G=    1    1 0.0000E+00\r\n";
const double THIRD = 0.3f, ZE = 10 * double{0.0002507f};  // 2.54 mm at 10.13 m of water an atmosphere
/// API RP 2A-WSD, 6.7.2, clay: t over t.max and z over a diameter of 2. Printed digits, single precision.
const rows CLAY = {{0.3f, 0.0032f}, {0.5, 0.0062f}, {0.75, 0.0114f}, {0.9f, 0.016f}, {1, 0.02f}};

rows joined(rows side, const rows& end) {
  side.insert(side.end(), end.begin(), end.end());
  return side;
}

}  // namespace

TEST(AxialCurves, SkinFrictionByCode) {
  const double END = 0.04f, TEN = 10 * double{0.02f};
  const rows SAND = {{1, ZE}, {1, ZE + 2000}}, NONE = {{0, 0.02f}, {0, 0.02f + 2000.0}};
  const rows CARBONATE = {{1, 0.02f}, {0.75, TEN}, {0.75, TEN + 2000}};
  const rows RISE = {{0.75, THIRD * 0.02}, {1, 0.02}}, RISE_TENSION = {{0.75, THIRD * 0.01}, {1, 0.01}};
  const struct {
    int ICODE, REVISION;
    double G, PHI, TRESMX, TZZRES;
    rows compression, tension;  // no tension: as compression; none at all: nothing is written
    std::string log;
  } cases[] = {
      {293, 5, 9, 0, 0.7, 0.005, joined(CLAY, {{0.7, END + 0.005}, {0.7, END + 0.005 + 2000}}), {}, ""},
      {214, 5, 9, 0, 0.0, 0.005, joined(CLAY, {{0.8f, END + 0.005}, {0.8f, END + 0.005 + 2000}}), {}, ""},
      {214, 4, 9, 0, 1.2, 0.0, joined(CLAY, {{1, END}, {1, END + 2000}}), {}, ""},
      {214, 5, 9, 30, 0.5, 0.005, joined(CLAY, {{1, END}, {1, END + 0.005 + 2000}}), {}, ""},
      {293, 5, 2e-10, 30, 0.5, 0.005, SAND, SAND, ""},
      {293, 4, 0, 30, 0.5, 0.005, SAND, SAND, ""},
      {588, 4, 0, 0, 0, 0, CARBONATE, CARBONATE, ""},
      {200, 5, 0, 0, 0, 0, NONE, NONE, ""},
      {250, 5, 1e-10, 0, 0, 0, NONE, NONE, ""},
      {100, 4, 0, 0, 0, 0, {{1000, 20}}, {{2000, 20}}, ""},
      {101, 5, 0, 0, 0, 0, {{1, 0.02}, {1, 2000}}, {{1, 0.01}, {1, 2000}}, ""},
      {102, 4, 0, 0, 0, 0, joined(RISE, {{1, 2000}}), joined(RISE_TENSION, {{1, 2000}}), ""},
      {103, 4, 0, 0, 0, 0, joined(RISE, {{1, 0.02f + 0.02}, {1, 2000}}),
       joined(RISE_TENSION, {{1, 0.02f + 0.01}, {1, 2000}}), ""},
      {103, 5, 0, 0, 0.5, 0.1, joined(RISE, {{0.5, 0.1 + 0.02}, {0.5, 2000}}),
       joined(RISE_TENSION, {{0.5, 0.1 + 0.01}, {0.5, 2000}}), ""},
      {104, 4, 0, 0, 0, 0, {}, {}, ""},
      {200, 4, 0, 0, 0, 0, {}, {}, NO_G},
      {250, 4, 0, 0, 0, 0, {}, {}, "\r\n **** SR/TZMISC : ICODE IS NOT 200 OR 293  ICODE =  250\r\n"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(testing::Message() << c.ICODE << " revision " << c.REVISION << " G " << c.G);
    axial_layer soil(c.REVISION, c.G);
    (c.REVISION == 5 ? soil.cmn.PHIR : soil.cmn.PHI)(1) = c.PHI;
    soil.cmn.TRESMX(1) = c.TRESMX, soil.cmn.TZZRES(1) = c.TZZRES;
    (c.ICODE < 200 ? TZAUTO : TZMISC)(soil.cmn, 1, 1, c.ICODE);
    EXPECT_EQ(soil.log(), c.log);
    EXPECT_EQ(soil.cmn.IERR, c.log.empty() ? 0 : 1);
    EXPECT_EQ(soil.cmn.NTZPNT(1, 1) == 0, c.compression.empty());
    if (c.compression.empty()) continue;
    expect_side(tz_curves(soil.cmn), 1, c.compression, 32.0);
    expect_side(tz_curves(soil.cmn), -1, c.tension.empty() ? c.compression : c.tension, 16.0);
  }
}

// The closed form (Kraft, Ray and Kagawa 1981), Rf 0.9, zone 10, evaluated independently, to 1e-6, for t.max
// 16, G 32, D 2 and for t.max 35.355339, G 20000, D 1. A friction not below G goes in steps of one diameter.
TEST(AxialCurves, HyperbolaFromTheShearModulus) {
  const rows STEPS = {{0.33f, 2},  {0.6f, 4},     {0.8f, 6},   {0.9f, 8},
                      {0.96f, 10}, {0.9999f, 12}, {1.2, 12.5}, {1.2, 2012.5}};
  const rows CURVE = {{0.33, 0.4330975}, {0.6, 0.9070804},    {0.8, 1.4003309}, {0.9, 1.7454812},
                      {0.96, 2.0195151}, {0.9999, 2.2547594}, {1.2, 2.7547594}, {1.2, 2002.7547594}};
  axial_layer soil(5, 32.0);
  soil.cmn.TRESMX(1) = 1.2, soil.cmn.TZZRES(1) = 0.5;
  TZMISC(soil.cmn, 1, 1, 200);
  expect_side(tz_curves(soil.cmn), 1, STEPS, 32.0);
  expect_side(tz_curves(soil.cmn), -1, CURVE, 16.0, 1e-6);

  axial_layer published(5, 20000.0);
  published.cmn.DIAM(1) = 1.0, published.cmn.TAUCMP(1) = 2.0 * 35.355339, published.cmn.TAUTNS(1) = 0.0;
  TZMISC(published.cmn, 1, 1, 200);
  const curve_table &T = published.cmn.TZSTR, &Z = published.cmn.TZDSP;
  EXPECT_NEAR(Z(17, 1, 1) / 0.001603507, 1.0, 1e-6);
  EXPECT_NEAR(Z(18, 1, 1) / 0.002475459, 1.0, 1e-6);
  EXPECT_EQ(T(22, 1, 1), 35.355339);
  EXPECT_EQ(Z(22, 1, 1), Z(21, 1, 1) + 0.01f);
  EXPECT_EQ(Z(9, 1, 1), -6.0);
}

// Tension has the stiffness of compression; in revision 5 the layer gives the stress, the table the
// stiffness.
TEST(AxialCurves, AutomaticTensionDisplacement) {
  const double LEAST = 2 * double{0.00001f};
  for (const auto& [TC, TT, ZT] :
       {std::array{0.0, 32.0, 0.02 / 1e-10 * 16}, {0.0, 0.0, LEAST}, {64.0, 16.0, 0.005}}) {
    axial_layer soil;
    soil.cmn.TCMP = {TC, TC}, soil.cmn.TTNS = {TT, TT};
    TZAUTO(soil.cmn, 1, 1, 101);
    expect_side(tz_curves(soil.cmn), -1, {{16, ZT}, {16, 2000}});
  }
  axial_layer no_tip(4);
  no_tip.cmn.SIGTIP(2) = 0.0;
  QZAUTO(no_tip.cmn, 1, 1, 101);
  expect_side(qz_curves(no_tip.cmn), -1, {{0, LEAST}, {0, 2000}});
}

TEST(AxialCurves, TipStressByCode) {
  // API RP 2A-WSD, 6.7.3: q over Q and z over a diameter of 2
  const rows API = {{0.25, 0.004f}, {0.5, 0.026f}, {0.75, 0.084f},
                    {0.9f, 0.146f}, {1, 0.2f},     {1, 0.2f + 2000.0}};
  // Half the elastic settlement of 0.225, then thirds of the way to 0.4; the last point lies at BIGDSP
  // itself.
  const double Z1 = 0.1875 * double{0.6f}, H = (0.4 - Z1) / 3.0;
  const rows ELASTIC = {{0.5, Z1}, {0.85f, Z1 + H}, {0.97f, Z1 + 2.0 * H}, {1, 0.4}, {1, 2000}};
  const std::string BAD = "\r\n **** SR/QZMISC : G-MODULUS OR POIS ERROR\r\n LAYER,NDIA,GMOD,POIS=    1    1";
  const rows REST = {{0, 0.1}, {0, 0.2}, {0, 0.3}, {0, 0.4}, {0, 2000}};
  const std::string CODE = "\r\n **** SR/QZMISC : ICODE IS NOT 200, 214 OR 293  ICODE =  250\r\n";
  const std::string STIFF =
      "\r\n **** WARNING FROM SR/QZMISC : INITIAL STIFFNESS PROBLEM\r\n"
      " LAYER,NDIA,ESOIL,DSPELAST,DSPMAX=    1    1  0.2560E+04  0.2250E+00  0.2000E+00\r\n";
  const struct {
    int ICODE, REVISION;
    double G, NU, QD, Q;
    rows side;
    std::string log;
  } cases[] = {
      {293, 4, 0, -1, 0.2, 512, API, ""},
      {214, 5, 0, 0.25, 0.2, 0, API, ""},
      {200, 4, 1024, 0.25, 0.2, 512, ELASTIC, ""},
      {200, 5, 1024, 0.25, 0.2, 0, REST, ""},
      {200, 5, 1e-10, 0.25, 0.2, 512, {{0, 0.1f}, {0, 2000}}, ""},
      {200, 4, 1024, 0.25, 0.1, 512, {{1, 0.2}, {1, 2000}}, STIFF},
      {250, 4, 0, 0.25, 0.2, 512, {}, BAD + "  0.0000E+00  0.2500E+00\r\n"},
      {200, 4, 1024, 0.50002, 0.2, 512, {}, BAD + "  0.1024E+04  0.5000E+00\r\n"},
      {200, 4, 1024, -1e-9, 0.2, 512, {}, BAD + "  0.1024E+04 -0.1000E-08\r\n"},
      {250, 4, 1024, 0.500005, 0.2, 512, {}, CODE},
      {250, 4, 1024, -1e-11, 0.2, 512, {}, CODE},
      {100, 4, 0, 0, 0.2, 512, {{1000, 400}}, ""},
      {101, 5, 0, 0, 0.2, 256, {{1, 0.4}, {1, 2000}}, ""},
      {102, 4, 0, 0, 0.2, 512, {{0.75, THIRD * 0.4}, {1, 0.4}, {1, 2000}}, ""},
      {103, 4, 0, 0, 0.2, 512, {{0.75, THIRD * 0.4}, {1, 0.4}, {0.5, 0.8}, {0.5, 2000}}, ""},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(testing::Message() << c.ICODE << " revision " << c.REVISION << " NU " << c.NU << " Q "
                                    << c.Q);
    axial_layer soil(c.REVISION, c.G);
    soil.cmn.POIS = {c.NU, c.NU}, soil.cmn.QZDRAT = {c.QD, c.QD}, soil.cmn.QTIP(1) = 2 * c.Q;
    (c.ICODE < 200 ? QZAUTO : QZMISC)(soil.cmn, 1, 1, c.ICODE);
    EXPECT_EQ(soil.log(), c.log);
    EXPECT_EQ(soil.cmn.IERR, c.side.empty() ? 1 : 0);
    const double tolerance = c.side.size() == ELASTIC.size() ? 1e-15 : 0.0;
    if (!c.side.empty())
      for (const int sign : {1, -1}) expect_side(qz_curves(soil.cmn), sign, c.side, c.Q, tolerance);
  }
}

// Kept values serve the other diameters of the layer and no other layer; a bad table is told by each routine.
TEST(AxialCurves, DepthTable) {
  axial_layer soil(4);
  soil.cmn.SFSKF = 1.0;
  for (const int NL : {1, 2, 1})
    for (const int ND : {2, 1, 2}) {
      TZMISC(soil.cmn, NL, ND, 588);
      EXPECT_EQ(soil.cmn.TZSTR(16, ND, NL), 64.0 * NL);
    }
  soil.cmn.ZTQZ(2) = 0.0;
  TZMISC(soil.cmn, 1, 1, 250);
  QZMISC(soil.cmn, 1, 1, 250);
  TZAUTO(soil.cmn, 1, 1, 101);
  QZAUTO(soil.cmn, 1, 1, 101);
  EXPECT_EQ(soil.cmn.IERR, 1);
  EXPECT_EQ(soil.log(), "\r\n **** SR/TZMISC" + LOOKUP + "\r\n **** SR/QZMISC" + LOOKUP +
                            "\r\n **** SR/TZAUTO" + LOOKUP + "\r\n **** SR/QZAUTO" + LOOKUP);
}
