// The stiff clay routine in kN and m, and its wrapper.
#include "SoilCurves/py_support.hpp"
#include "SoilCurves/PYRCK.hpp"

using namespace tervak;

namespace {

struct stiff_clay : small_layer {
  vector1<double> P, Y;
  int IERR = -1;
  void make(double SU, double ZZ, int ICYCL, double ZSCR = 0, int ITRACE = 0) {
    make({0.0}, {SU}, ZZ, ICYCL, ZSCR, ITRACE);
  }
  void make(const vector1<double>& Z, const vector1<double>& SU, double ZZ, int ICYCL, double ZSCR,
            int ITRACE) {
    PYStiffClay(cmn, Z.size(), Z, SU, 9, 1, ICYCL, ZZ, ZSCR, ITRACE, P, Y, IERR);
  }
};

// Reese, Cox and Koop 1975, closed form. At c 100, gam' 9, z 1, D 1: pc 492, A 0.42, B 0.28, yp 0.00861.
// Points 4 and 8 (static) and 5 (cyclic) are published values. The second point shows the initial line k z y,
// where it holds the curve down.
TEST(PYStiffClay, points) {
  const double A = 0.42, AYC = A * 0.005, YP = 0.00861;
  const struct {
    double SU, ZZ;
    int ICYCL, i;
    double Y, P;
  } rows[] = {
      {100, 1, 0, 4, AYC, 159.426221},
      {100, 1, 0, 8, 6 * AYC, 188.192203},
      {100, 1, 0, 9, 7 * AYC, std::sqrt(6 * A) * 246 - 492 * (0.411 + 0.0625 * A)},
      {100, 1, 0, 10, 18 * AYC, 33.320894},
      {100, 1, 0, 11, 1000, 33.320894},
      {100, 1, 1, 3, YP * 0.225, 137.76 * (1 - std::pow(0.5, 2.5))},
      {100, 1, 1, 5, YP * 0.45, 137.76},
      {100, 1, 1, 8, YP * 0.6, 137.76 * (1 - std::pow(1.0 / 3, 2.5))},
      {100, 1, 1, 9, YP * 0.7, 137.76 * 0.936 - 0.1 * YP * 492 * 17},
      {100, 1, 1, 10, YP * 1.8, 137.76 * 0.936 - 492 * 20.4 * YP},
      {100, 0.001, 0, 10, 18 * 0.20022 * 0.005, 0},  // floored
      {95.7, 0.3, 0, 2, 0.266 * 0.007 / 3, 135750 * 0.3 * 0.266 * 0.007 / 3},
      {95.8, 0.3, 0, 2, 0.266 * 0.005 / 3, 271500 * 0.3 * 0.266 * 0.005 / 3},
      {191.6, 0.45, 0, 2, 0.299 * 0.005 / 3, 271500 * 0.45 * 0.299 * 0.005 / 3},
      {191.7, 0.45, 0, 2, 0.299 * 0.004 / 3, 543000 * 0.45 * 0.299 * 0.004 / 3},
      {100, 0.1, 0, 2, 0.222 * 0.005 / 3, std::sqrt(0.222 / 3) * (0.9 + 200 + 28.3) / 2},  // line meets late
      {100, 0.25, 1, 2, 0.255 * 0.00230625, 0.4 * 271500 * 0.25 * 0.255 * 0.00230625},
      {100, 0.2, 1, 2, 0.244 * 0.00230625, 0.216 * (1.8 + 200 + 56.6) * (1 - std::pow(0.75, 2.5))},
  };
  stiff_clay clay;
  for (const auto& r : rows) {
    clay.make(r.SU, r.ZZ, r.ICYCL);
    EXPECT_EQ(clay.IERR, 0);
    expect_rel(clay.Y(r.i), r.Y, 1e-9);
    expect_rel(clay.P(r.i), r.P, 2e-8);
  }
}

TEST(PYStiffClay, strength_profile_scour_and_disorder) {
  stiff_clay clay;
  clay.make({0.0, 6.0, 7.0, 30.0}, {50.0, 50.0, 200.0, 200.0}, 20, 0, 0, 0);
  expect_rel(clay.Y(10), 18 * 0.6 * 0.004, 1e-9);  // flow around the pile: the strain goes with the depth
  clay.make(100, 1, 0, 1.5);
  EXPECT_EQ(clay.Y(3), 0.01);
  EXPECT_EQ(clay.Y(11), 1000);
  EXPECT_EQ(clay.P(10), 0);
  clay.make({1.0, 1.0}, {100.0, 100.0}, 1, 0, 0, 0);
  EXPECT_EQ(clay.IERR, 12);
}

TEST(PYStiffClay, trace) {
  stiff_clay clay;
  clay.make(100, 4, 1, 0, 1);
  EXPECT_EQ(clay.log(),
            "\r\n SR/PYStiffClay TRACE PRINT\r\n"
            "   NZ  ICYCL   GAM       diam        ZZ        ZSCR        H\r\n"
            "    1    1   9.000E+00  1.000E+00  4.000E+00  0.000E+00  4.000E+00\r\n"
            "   SUAVR      SUZZ       SU5D       PC1        PC2        PC\r\n"
            "  1.000E+02  1.000E+02  1.000E+02  1.368E+03  1.100E+03  1.100E+03\r\n"
            "   A-FACT     STFK       EPSC\r\n"
            "  6.000E-01  1.086E+06  5.000E-03\r\n"
            "   B-FACT     STFK       BPC        YC         YP         Y5\r\n"
            "  3.000E-01  4.344E+05  3.300E+02  5.000E-03  1.230E-02  5.535E-03\r\n");
}

// The published point at 6 A YC, in newtons and millimetres; the strength list comes back.
TEST(stiff_clay, converts_through_the_atmosphere) {
  for (const py_routine routine : {API84, API87, API14, ISO04}) {
    py_case soil(routine, {.SU = 0.1, .H = 1000, .SIGZ = 0.019, .D = 1000});
    soil.cmn.ATMPRS = 0.1013;
    soil.cmn.GAMWAT = 1e-5;
    soil.cmn.DSIGZ(1) = 0.010;
    soil.cmn.SUSTIF = 0.099999;
    soil.cmn.DPCLAY(1) = 1000;
    routine(soil.cmn, 1, 1);
    ASSERT_EQ(soil.cmn.NPYPNT(1, 1), 21);
    EXPECT_EQ(soil.p(0), 0);
    expect_rel(soil.y(7), 12.6, 1e-6);
    expect_rel(soil.p(7), 0.188192203, 1e-6);
    expect_rel(soil.y(10), 1e6, 1e-6);
    expect_rel(soil.cmn.SUCLAY(1), 0.1, 1e-12);
    expect_rel(soil.cmn.DPCLAY(1), 1000, 1e-12);
  }
}

}  // namespace
