// The common opening, whole messages, and the manual curve.
#include "SoilCurves/py/py_support.hpp"
#include "SoilCurves/py/PYMAN.hpp"
#include "support/scratch_run.hpp"

using namespace tervak;

namespace {

// At the limit three points without resistance; above it the method runs, or refuses such a layer.
TEST(PyOpening, ZeroLimit) {
  const std::pair<py_routine, double> rows[] = {{API84, 1e-10}, {ISO04, 1e-10}, {VRK80, 1e-10},
                                                {NGI11, 1e-10}, {API87, 1e-12}, {API14, 1e-12}};
  for (const auto& [routine, limit] : rows) {
    const py_case soil(routine, {.PHI = 35, .H = limit});
    EXPECT_EQ(soil.cmn.NPYPNT(1, 1), 3);
    EXPECT_EQ(soil.y(1), 1000);
    EXPECT_EQ(soil.y(-1), -1000);
    EXPECT_EQ(soil.p(1), 0);
    EXPECT_TRUE(std::signbit(soil.p(-1)));
    EXPECT_EQ(soil.log(), "");
    EXPECT_NE(py_case(routine, {.H = limit * 1.01, .G = 100}).cmn.NPYPNT(1, 1), 3);
  }
}

/// Layer 2 of 2 under pile 3 of 3. The stress -1 makes a unit weight below zero, the strengths by depth are
/// out of order.
struct second_layer : small_layer {
  explicit second_layer(double PHI = 35, double SU = 0, double SIGZ = -1) : small_layer(2, {1.0, 2.0, 3.0}) {
    cmn.PHIR(2) = PHI, cmn.SURED(2) = SU, cmn.SIGZRES(2) = SIGZ;
    cmn.NUMCLY = 2;
  }
  void expect_failure(py_routine routine, const std::string& text) {
    routine(cmn, 2, 3);
    EXPECT_EQ(log(), "\r\n **** SR/" + text + "\r\n");
    EXPECT_EQ(cmn.IERR, 1);
    EXPECT_EQ(cmn.NPYPNT(3, 2), 0);
  }
};

TEST(PyMessages, Failures) {
  const std::pair<py_routine, std::string> rows[] = {
      {API84, "API84"}, {API87, "API87"}, {API14, "API14"}, {ISO04, "ISO04"}};
  const std::string LATERAL = " : ERROR FROM SR/APILAT  NL,ND,IERR=    2    3    6";
  for (const auto& [routine, name] : rows) {
    second_layer(35, 0).expect_failure(routine, name + LATERAL);
    second_layer(0, 20).expect_failure(routine, name + LATERAL);
    second_layer(0, 200).expect_failure(routine, name + " : ERROR FROM SR/PYRCK  NL,ND,IERR=    2    3   12");
  }
  second_layer(35).expect_failure(VRK80, "VRK80 : ERROR FROM SR/VRKLAT  NL,ND,IERR=    6");  // the code alone
}

TEST(PyMessages, AnExponentBelowTheLimitIsAWarning) {
  second_layer soil(35, 0, 0);
  API84(soil.cmn, 2, 3);
  EXPECT_EQ(soil.log(),
            "\r\n WARNING FROM SR/API84 : ND,NL,EXPN=    3    2  0.0000E+00\r\n"
            " ABOVE EXPONENT VALUE WAS REPLACED BY 1.01\r\n");
  EXPECT_EQ(soil.cmn.IERR, 0);
  EXPECT_EQ(soil.cmn.NPYPNT(3, 2), 13);
  EXPECT_EQ(soil.y(1, 2, 3), 0);
}

TEST(PyMessages, StiffnessRatioOfNgi11) {
  const std::pair<double, std::string> rows[] = {
      {25.0, ""}, {2500.0, ""}, {24.99, "   24.99"}, {2500.01, " 2500.01"}};
  for (const auto& [G, text] : rows) {
    second_layer soil;
    soil.cmn.PYPARM(2)[0] = G;
    EXPECT_EQ(stop_of([&] { NGI11(soil.cmn, 2, 3); }),
              text.empty() ? "" : "STOP at SoilCurves\\NGIPy(415):  ");
    EXPECT_EQ(soil.log(), text.empty() ? ""
                                       : "\r\n **** SR/NGI11 : Non-accepted ratio Gmax/Su\r\n"
                                         " Layer,Type,Diameter,Gmax/Su =    2    2  3.000" +
                                             text + "\r\n\r\n **** Run was stopped by SR/NGI11\r\n");
    EXPECT_EQ(soil.cmn.IERR, 0);
  }
}

TEST(PYMAN, AFarPointWhereThereIsRoom) {
  const double rows[][4] = {{0, 1, 1000, 0}, {3, 7, 1002, 4}, {14, 29, 1013, 26}, {15, 29, 14, 28}};
  for (const auto& [given_points, whole, y, p] : rows) {
    small_layer soil;
    soil.cmn.NPYPNT(1, 1) = static_cast<int>(given_points);
    for (int i = 0; i < soil.cmn.NPYPNT(1, 1); ++i)
      soil.cmn.PYDSP(15 + i, 1, 1) = i, soil.cmn.PYSTR(15 + i, 1, 1) = 2 * i;
    PYMAN(soil.cmn, 1, 1);
    EXPECT_EQ(soil.cmn.NPYPNT(1, 1), whole);
    const int last = soil.cmn.NPYPNT(1, 1) / 2;
    EXPECT_EQ(soil.y(last), y);
    EXPECT_EQ(soil.p(last), p);
    EXPECT_EQ(soil.y(-last), last > 0 ? -y : y);
  }
}

}  // namespace
