#include "Control/state/sp.hpp"
#include "IO/input/input_profile.hpp"

namespace {

using tervak::sp;

auto& soil(P p, std::size_t m) { return p.data.MainLayers.Records.at(m - 1); }
auto& skin(P p, std::size_t m) { return p.data.SkinFriction.Records.at(m - 1); }
auto& sub(P p, std::size_t m) { return p.data.Subdivision.Records.at(m - 1); }
auto& pile(P p) { return p.data.SkinFriction; }

const std::string PILE = "Non-accepted pile input values for axial capacity calcs\n DIAMP,WALL,ZTIP,MATPIL =";
const std::string COUNT = "Main layer sub-division error input\n ";
const std::string PY_CODE = "Non-accepted P-Y code. Layer,code=";

TEST(REV5INP, Limits) {
  // clang-format off
  const std::vector<limit_row> rows{
      {[](P p, double x) { soil(p, 2).Number = int(x); }, {1, 3}, {2}, "Layer sequence error    2%5.0f"},
      {[](P p, double x) { soil(p, 2).BottomZ = x; }, {3.009}, {}, "Layer bottom z-value error\n Layer, Zlast, Znow=    2      3.0000%12.4f"},
      {[](P p, double x) { soil(p, 1).TotalUnitWeight = x; }, {0, 30.1}, {0.1, 30}, "Total unit weight error\n Layer, Gamtot, Gamwater=    1%12.2f       10.00"},
      {[](P p, double x) { soil(p, 2).FrictionAngle = x; }, {60.1}, {0, 60}, "Friction angle > 60 degrees\n Layer, Phi=    2%10.2f"},
      {[](P p, double x) { soil(p, 2).RelativeDensity = x; }, {1.251}, {0, 1.25}, "Sand relative density error, Dr shall be 0-1\n Layer, Dr =    2%8.3f"},
      {[](P p, double x) { soil(p, 1).RelativeDensity = x; }, {0.1}, {0}, "Layer  1 is clay\n This layer has non-zero sand parameters"},
      {[](P p, double x) { soil(p, 1).FrictionAngle = x; }, {0.1}, {0}, "Layer  1 is clay\n This layer has non-zero sand parameters"},
      {[](P p, double x) { soil(p, 1).SuTop = x; }, {0}, {0.1}, "Zero Su values are not allowed\n Layer, SuTop, SuBot=    1%12.2f       50.00"},
      {[](P p, double x) { soil(p, 1).SuBottom = x; }, {0}, {0.1}, "Zero Su values are not allowed\n Layer, SuTop, SuBot=    1       20.00%12.2f"},
      {[](P p, double x) { soil(p, 1).EpsC = x; }, {0, 0.101}, {0.0001, sp(0.1f)}, "Non-accepted EPSC parameter\n Layer, EPSC=    1%12.4f"},
      {[](P p, double x) { soil(p, 1).ApiJ = x; }, {0.1, 0.601}, {sp(0.1f), sp(0.6f)}, "Non-accepted API J-parameter\n Layer, API-J=    1%12.3f"},
      {[](P p, double x) { soil(p, 2) = {2, 5.0, 20.0}; soil(p, 2).CptBottom = x; }, {0}, {1}, "Zero soil strength parameters in layer  2"},
      {[](P p, double x) { soil(p, 2) = {2, 5.0, 20.0}; soil(p, 2).CptTop = x; }, {0}, {1}, "Zero soil strength parameters in layer  2"},
      {[](P p, double x) { pile(p).PileMaterial = int(x); }, {0, 3}, {1, 2}, PILE + "     1.500     0.050     4.000%5.0f"},
      {[](P p, double x) { pile(p).PileTipZ = x; }, {-0.1}, {0, 5}, PILE + "     1.500     0.050%10.3f    1"},
      {[](P p, double x) { pile(p).WallThickness = x; }, {0.751}, {0.75}, PILE + "     1.500%10.3f     4.000    1"},
      {[](P p, double x) { pile(p).PileTipZ = x; }, {5.001}, {}, "The pile tip is located below the last soil layer\n Z.pile, Z.bottom = %10.3f     5.000"},
      {[](P p, double x) { skin(p, 1).Number = int(x); }, {0, 2}, {1}, "Layer sequence error    1%5.0f"},
      {[](P p, double x) { skin(p, 2).Method = int(x); }, {-1, 4}, {1, 2, 3}, "Invalid calculation method\n Layer, method=    2%5.0f"},
      {[](P p, double x) { skin(p, 2).GoFactor = x; }, {0, -1}, {0.1}, "Non-accepted factor on Go\n Layer, Go factor=    2%12.3f"},
      {[](P p, double x) { skin(p, 2).ResidualRatio = x; }, {0.009, 1.001}, {sp(0.01f), 1}, "Non-accepted t.res/t.max\n Layer, t.res/t.max=    2%12.3f"},
      {[](P p, double x) { p.data.Subdivision.NumberOfPile = int(x); }, {-1}, {}, "Non-accepted NUMPIL value =%5.0f"},
      {[](P p, double x) { p.data.Subdivision.NumberOfPile = int(x); }, {7}, {0}, "Layer sub-division conflicting specifications\n Layer, sub-division, NUMPIL =    1    3%5.0f"},
      {[](P p, double x) { sub(p, 1).Number = int(x); }, {0, 2}, {1}, "Layer sequence error    1%5.0f"},
      {[](P p, double x) { sub(p, 2).BottomZ = x; }, {4.9, 5.1}, {5}, "Layer bottom Z-levels mismatch\n Layer, Z1, Z2 =    2%12.3f       5.000"},
      {[](P p, double x) { sub(p, 1).Subdivisions = int(x); }, {-1, 501}, {3, 499}, COUNT + "Layer, subdivisions, max allowed layers =    1%5.0f  500"},
      {[](P p, double x) { sub(p, 1).Subdivisions = int(x); }, {0}, {}, COUNT + "Subdivisions = 0 requires non-zero NUMPIL input\n Layer, subdivisions, NUMPIL=    1    0    0"},
      {[](P p, double x) { sub(p, 1).PyCode = int(x); }, {1, 293}, {570, 600}, "Non-accepted P-Y code. Layer,code=    1%5.0f"},
      {[](P p, double x) { sub(p, 1).TzCode = int(x); }, {1, 588}, {200}, "Non-accepted T-Z code. Layer,code=    1%5.0f"},
      {[](P p, double x) { sub(p, 1).QzCode = int(x); }, {1, 588}, {214}, "Non-accepted Q-Z code. Layer,code=    1%5.0f"},
      {[](P p, double x) { sub(p, 2).PyCode = int(x); }, {570}, {588}, PY_CODE + "    2%5.0f\n This is a sand layer, p-y code 570 (Modified Matlock) is for clay only"},
      {[](P p, double x) { sub(p, 1).PyCode = int(x); }, {588}, {}, PY_CODE + "    1%5.0f\n This is a clay layer, p-y code 588 is for carbonate sand only"},
      {[](P p, double x) { sub(p, 2).PyCode = int(x); }, {600}, {}, PY_CODE + "    2%5.0f\n This is a sand layer, p-y code 600 (NGI-2011) is for soft clay only"},
      {[](P p, double x) { sub(p, 2).OpenCrack = int(x); }, {-1, 2}, {0, 1}, "Non-accepted code for open/closed crack\n Layer, code =    2%5.0f"},
  };
  // clang-format on
  expect_limits(5, "REV5INP", rows);
}

TEST(REV5INP, WarnsOfGivenValues) {
  const std::string layer = " ---- Warning from SR/REV5INP : Layer =";
  const std::string given =
      "\n Non-zero skin friction and/or tip stress values were specified, these values will be used\n ";
  // clang-format off
  const change_rows rows{
      {[](P p) { skin(p, 1).Method = 3; }, passed(layer + "  1 Method = NGI-05" + given)},
      {[](P p) { skin(p, 2).Method = 2, skin(p, 2).TipBottom = 1.0; }, passed(layer + "  2 Method = ICP-05" + given)},
      {[](P p) { skin(p, 2).Method = 0; }, passed(layer + "  2\n No calculation cmn.method specified, but given skin friction and tip resistance values are all zero\n ")},
  };
  // clang-format on
  expect_changes(5, rows);
}

}  // namespace
