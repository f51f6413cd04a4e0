#include "SoilCurves/axial/QZAUTO.hpp"
#include "SoilCurves/axial/QZMISC.hpp"
#include "SoilCurves/axial/TZAUTO.hpp"
#include "SoilCurves/axial/TZMISC.hpp"
#include "SoilCurves/store/curve_family.hpp"
#include "support/small_layer.hpp"

using namespace tervak;

namespace {

/// Diameter 2, far displacement 2000. Behind the safety factors of 2 the full friction is 32 in compression
/// and 16 in tension, the full tip stress 512, in the layer and halfway down the depth table alike.
struct axial_layer : small_layer {
  explicit axial_layer(int REVISION = 5, double G = 1024.0) : small_layer(2, {2.0, 2.0}) {
    cmn.REVISION = REVISION, cmn.SFSKF = cmn.SFSIGT = 2.0, cmn.NUMTQZ = 2;
    cmn.TAUCMP(1) = 64.0, cmn.TAUTNS(1) = 32.0, cmn.QTIP(1) = 1024.0, cmn.GSOIL(1) = G;
    cmn.ZTQZ = {0.0, 10.0}, cmn.TCMP = {0.0, 128.0}, cmn.TTNS = {64.0, 0.0}, cmn.SIGTIP = {0.0, 2048.0};
    cmn.G0SOIL = {G, G}, cmn.TZDRAT = {0.01, 0.01}, cmn.POIS = {0.25, 0.25}, cmn.QZDRAT = {0.2, 0.2};
    cmn.ZONINF = 10.0, cmn.RFTZ = 0.9f;
  }
};

/// Point k of each side of N points of the curve of layer 1, stress over full stress; both positive.
void expect_point(const curve_family& family, double N, double k, double ratio, double full,
                  double full_tension, double Z, double Z_tension) {
  const int i = static_cast<int>(k);
  EXPECT_EQ(family.NPNT(1, 1), 2 * N + 1);
  EXPECT_DOUBLE_EQ(family.STR(15 + i, 1, 1), ratio * full);
  EXPECT_DOUBLE_EQ(family.STR(15 - i, 1, 1), -ratio * full_tension);
  EXPECT_DOUBLE_EQ(family.DSP(15 + i, 1, 1), Z);
  EXPECT_DOUBLE_EQ(family.DSP(15 - i, 1, 1), -Z_tension);
}

const double Z01 = 2 * double{0.01f}, Z02 = 2 * double{0.02f};  // 0.01 and 0.02 diameters

}  // namespace

// ICODE, REVISION, G, PHI, TRESMX, TZZRES; points of a side, a point, t over t.max, z in compression and
// tension. Clay and sand of 214; sand of 293 at 2.54 mm, with 10.13 m of water an atmosphere; no modulus; the
// automatic curve's residual by default and given; friction not below G = 32, in steps of one diameter.
TEST(AxialCurves, SkinFrictionByCode) {
  const double ZE = 10 * double{0.0002507f};
  const double rows[][11] = {
      {214, 5, 9, 0, 0.0, 0.005, 7, 6, 0.8f, Z02 + 0.005, Z02 + 0.005},
      {214, 4, 9, 0, 1.2, 0, 7, 6, 1, Z02, Z02},
      {214, 5, 9, 30, 0.5, 0.005, 7, 6, 1, Z02, Z02},
      {214, 5, 9, 30, 0.5, 0.005, 7, 7, 1, Z02 + 2000.005, Z02 + 2000.005},
      {293, 4, 0, 30, 0, 0, 2, 1, 1, ZE, ZE},
      {250, 5, 1e-10, 0, 0, 0, 2, 1, 0, Z01, Z01},
      {103, 4, 0, 0, 0, 0, 4, 3, 1, Z01 + 0.02, Z01 + 0.01},
      {103, 5, 0, 0, 0.5, 0.1, 4, 3, 0.5, 0.1 + 0.02, 0.1 + 0.01},
  };
  for (const auto& [ICODE, REVISION, G, PHI, TRESMX, TZZRES, N, k, ratio, Z, Z_tension] : rows) {
    SCOPED_TRACE(testing::Message() << ICODE << " revision " << REVISION << " G " << G);
    axial_layer soil(static_cast<int>(REVISION), G);
    (REVISION == 5 ? soil.cmn.PHIR : soil.cmn.PHI)(1) = PHI;
    soil.cmn.TRESMX(1) = TRESMX, soil.cmn.TZZRES(1) = TZZRES;
    (ICODE < 200 ? TZAUTO : TZMISC)(soil.cmn, 1, 1, static_cast<int>(ICODE));
    EXPECT_EQ(soil.log(), "");
    expect_point(tz_curves(soil.cmn), N, k, ratio, 32.0, 16.0, Z, Z_tension);
  }
}

TEST(AxialCurves, SkinFrictionRefusals) {
  axial_layer soil(4, 0.0);
  TZAUTO(soil.cmn, 1, 1, 104);
  EXPECT_EQ(soil.cmn.IERR, 0);
  TZMISC(soil.cmn, 1, 1, 200);
  TZMISC(soil.cmn, 1, 1, 250);
  EXPECT_EQ(soil.cmn.IERR, 1);
  EXPECT_EQ(soil.cmn.NTZPNT(1, 1), 0);
  EXPECT_EQ(soil.log(),
            "\r\n **** SR/TZMISC : SOIL SHEAR MODULUS  NL,ND,G=    1    1 0.0000E+00\r\n"
            "\r\n **** SR/TZMISC : ICODE IS NOT 200 OR 293  ICODE =  250\r\n");
}

// A friction of zero, or not below G, goes in steps of one diameter. The closed form for others stands on the
// validation page.
TEST(AxialCurves, HyperbolaFromTheShearModulus) {
  axial_layer soil(5, 32.0);
  soil.cmn.TAUTNS(1) = 0.0;
  TZMISC(soil.cmn, 1, 1, 200);
  expect_point(tz_curves(soil.cmn), 8, 3, 0.8f, 32.0, 0.0, 6.0, 6.0);
  expect_point(tz_curves(soil.cmn), 8, 7, 1.0, 32.0, 0.0, 12 + Z01, 12 + Z01);
  soil.cmn.TRESMX(1) = 1.2, soil.cmn.TZZRES(1) = 0.5;
  TZMISC(soil.cmn, 1, 1, 200);
  expect_point(tz_curves(soil.cmn), 8, 8, 1.2, 32.0, 0.0, 2012.5, 2012.5);
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
    expect_point(tz_curves(soil.cmn), 2, 1, 1.0, 32.0, 16.0, 0.02, ZT);
  }
  axial_layer no_tip(4);
  no_tip.cmn.SIGTIP(2) = 0.0;
  QZAUTO(no_tip.cmn, 1, 1, 101);
  expect_point(qz_curves(no_tip.cmn), 2, 1, 1.0, 0.0, 0.0, 0.4, LEAST);
}

// Code, revision, G, Poisson's ratio, displacement ratio, full stress; points of a side, a point, q over it,
// z: what 293 takes; half the elastic settlement of 0.225; no stress, no modulus; too soft; the automatic
// curve.
TEST(AxialCurves, TipStressByCode) {
  const std::string BAD = "SR/QZMISC : G-MODULUS OR POIS ERROR\r\n LAYER,NDIA,GMOD,POIS=    1    1";
  const std::string CODE = "SR/QZMISC : ICODE IS NOT 200, 214 OR 293  ICODE =  250";
  const struct {
    int ICODE, REVISION;
    double G, NU, QD, Q, N, k, ratio, Z;
    std::string log;  ///< a refusal where no points are expected
  } cases[] = {
      {293, 4, 0, -1, 0.2, 512, 6, 1, 0.25, 2 * double{0.002f}, ""},
      {200, 4, 1024, 0.25, 0.2, 512, 5, 1, 0.5, 0.1875 * double{0.6f}, ""},
      {200, 5, 1024, 0.25, 0.2, 0, 5, 1, 0, 0.1, ""},
      {200, 5, 1e-10, 0.25, 0.2, 512, 2, 1, 0, 2 * double{0.05f}, ""},
      {200, 4, 1024, 0.25, 0.1, 512, 2, 1, 1, 0.2,
       "WARNING FROM SR/QZMISC : INITIAL STIFFNESS PROBLEM\r\n"
       " LAYER,NDIA,ESOIL,DSPELAST,DSPMAX=    1    1  0.2560E+04  0.2250E+00  0.2000E+00"},
      {101, 5, 0, 0, 0.2, 256, 2, 1, 1, 0.4, ""},
      {250, 4, 0, 0.25, 0.2, 512, 0, 0, 0, 0, BAD + "  0.0000E+00  0.2500E+00"},
      {200, 4, 1024, 0.50002, 0.2, 512, 0, 0, 0, 0, BAD + "  0.1024E+04  0.5000E+00"},
      {200, 4, 1024, -1e-9, 0.2, 512, 0, 0, 0, 0, BAD + "  0.1024E+04 -0.1000E-08"},
      {250, 4, 1024, 0.500005, 0.2, 512, 0, 0, 0, 0, CODE},
      {250, 4, 1024, -1e-11, 0.2, 512, 0, 0, 0, 0, CODE},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(testing::Message() << c.ICODE << " revision " << c.REVISION << " NU " << c.NU);
    axial_layer soil(c.REVISION, c.G);
    soil.cmn.POIS = {c.NU, c.NU}, soil.cmn.QZDRAT = {c.QD, c.QD}, soil.cmn.QTIP(1) = 2 * c.Q;
    (c.ICODE < 200 ? QZAUTO : QZMISC)(soil.cmn, 1, 1, c.ICODE);
    EXPECT_EQ(soil.log(), c.log.empty() ? "" : "\r\n **** " + c.log + "\r\n");
    EXPECT_EQ(soil.cmn.IERR, c.N == 0 ? 1 : 0);
    if (c.N > 0) expect_point(qz_curves(soil.cmn), c.N, c.k, c.ratio, c.Q, c.Q, c.Z, c.Z);
  }
}

// Kept values serve the other diameters of the layer and no other layer; a bad table is told by each routine.
TEST(AxialCurves, DepthTable) {
  axial_layer soil(4);
  soil.cmn.SFSKF = 1.0;
  for (const layer_number NL : {layer_number(1), layer_number(2), layer_number(1)})
    for (const diameter_number ND : {diameter_number(2), diameter_number(1), diameter_number(2)}) {
      TZMISC(soil.cmn, NL, ND, 588);
      EXPECT_EQ(soil.cmn.TZSTR(16, ND, NL), 64.0 * NL);
    }
  soil.cmn.ZTQZ(2) = 0.0;
  for (auto* routine : {TZMISC, QZMISC, TZAUTO, QZAUTO}) routine(soil.cmn, 1, 1, 101);
  EXPECT_EQ(soil.cmn.IERR, 1);
  std::string log;
  for (const char* name : {"TZMISC", "QZMISC", "TZAUTO", "QZAUTO"})
    log += std::string("\r\n **** SR/") + name +
           " : ERROR FROM SR/KestraCommonLibrary::Utils::Interpolate(   IERR=    2\r\n";
  EXPECT_EQ(soil.log(), log);
}
