#include "IO/input/input_profile.hpp"

namespace {

using Vrsk::Plin::TervakExchange::ManualCurveRecord;

const std::string FAMILIES[] = {"P-Y", "T-Z", "Q-Z"};

template <class T>
T& pick(const std::string& family, T& py, T& tz, T& qz) {
  return family == "P-Y" ? py : family == "T-Z" ? tz : qz;
}

std::vector<ManualCurveRecord>& curves(P p, const std::string& family) {
  return pick(family, p.data.ManualPy.Records, p.data.ManualTz.Records, p.data.ManualQz.Records);
}

std::vector<double> steps(int points) {
  std::vector<double> values;
  for (int k = 0; k < points; ++k) values.push_back(0.25 * k);
  return values;
}

/// Layer 4 takes its curves of one family by hand, three points for either diameter.
Tervak by_hand(const std::string& family) {
  Tervak p = valid_profile(4);
  auto& layer = p.data.Layers[1];
  pick(family, layer.PyCode, layer.TzCode, layer.QzCode) = 0;
  for (const double D : {1.0, 1.5}) curves(p, family).push_back({4, D, steps(3), steps(3)});
  return p;
}

// Only P-Y begins at the origin; only T-Z counts the displacements, so that a stress more does no harm there.
TEST(READG3, RefusesManualCurves) {
  using change = std::pair<void (*)(ManualCurveRecord & curve), std::string>;
  for (const std::string& family : FAMILIES) {
    const bool py = family == "P-Y";
    // clang-format off
    for (const auto& [make, message] : {
             change{[](auto& c) { c.Layer = 3; }, " LAYER SEQUENCE  NL,LAY    4    3"},
             {[](auto& c) { c.Diameter = 1.4; }, " DIAMETER  NL,DIA=    4     1.400"},
             {[](auto& c) { c.Stresses = c.Displacements = steps(1); }, " CURVE POINTS  NL,NUM=    4    1"},
             {[](auto& c) { c.Stresses = c.Displacements = steps(2); }, ""},
             {[](auto& c) { c.Stresses = c.Displacements = steps(15); }, ""},
             {[](auto& c) { c.Stresses = c.Displacements = steps(16); }, py ? " CURVE POINTS  NL,NUM=    4   16" : ""},
             {[](auto& c) { c.Stresses = c.Displacements = steps(29); }, py ? " CURVE POINTS  NL,NUM=    4   29" : ""},
             {[](auto& c) { c.Stresses = c.Displacements = steps(30); }, " CURVE POINTS  NL,NUM=    4   30"},
             {[](auto& c) { c.Stresses[0] = -0.5; }, py ? " FIRST POINT NOT ZERO\n                   4    -0.500     0.000" : ""},
             {[](auto& c) { c.Displacements[2] = 0.25; }, (py ? " Y" : " Z") + std::string("-DISPL SEQUENCE ERROR\n                   4     0.250     0.250")},
         }) {
      // clang-format on
      Tervak p = by_hand(family);
      make(curves(p, family)[1]);
      expect_log(p, message.empty() ? "" : refused("READG3 : MANUAL " + family + message));
    }
    Tervak p = by_hand(family);
    curves(p, family)[1].Stresses.push_back(1.0);
    if (family == "T-Z")
      expect_log(p, "");
    else
      EXPECT_THROW(expect_log(p, ""), std::out_of_range) << family;
  }
}

struct span {
  int L1, L2;
  double D;
};

/// The factors of one family are 2.0, for these spans.
Tervak with_list(const std::vector<span>& list, const std::string& family) {
  Tervak p = valid_profile(4);
  auto& py = p.data.PyModification.Records;
  auto& axial = family == "T-Z" ? p.data.TzModification.Records : p.data.QzModification.Records;
  family == "P-Y" ? py.clear() : axial.clear();
  for (const auto& [L1, L2, D] : list)
    family == "P-Y" ? py.push_back({L1, L2, D, 2.0, 2.0, 2.0, 0.5, 2.0, 2.0})
                    : axial.push_back({L1, L2, D, 2.0, 0.0, 2.0, 2.0, 2.0});
  return p;
}

// A list ends at the last layer of the last diameter, or at layer 0.
TEST(READG3, TakesModificationsInTheirPlaces) {
  const std::string sequence = "LAYER SEQUENCE ERROR\n NOW,L1,L2,LAST1,LAST2=";
  struct row {
    std::vector<span> list;
    std::string message;
    int changed;  // of the eight pairs of diameter and layer
  };
  const row rows[] = {
      {{{2, 4, 0.0}}, sequence + "    1    2    4    0    0", 0},
      {{{1, 2, 0.0}, {4, 3, 0.0}}, sequence + "    2    4    3    1    2", 4},
      {{{1, 2, 1.0}, {2, 4, 1.0}}, sequence + "    2    2    4    1    2", 2},
      {{{1, 2, 1.0}, {2, 5, 1.0}}, sequence + "    2    2    5    1    2", 2},  // of two faults the last test
      {{{1, 2, 1.0}, {2, 5, 1.5}}, "LAYER ERROR  LAY,NUMLAY=    5    4", 2},
      {{{1, 4, 1.2}}, "DIAM  NOW,DIA=    1     1.200", 0},
      {{{0, 0, 0.0}}, "", 0},
      {{{1, 4, 0.0}}, "", 8},
      {{{1, 4, 1.5}}, "", 4},
      {{{1, 4, 1.0}, {1, 4, 1.5}}, "", 8},
      {{{1, 1, 1.0}, {3, 4, -1.0}}, "", 5},
      {{{1, 2, 1.0}, {0, 0, 0.0}}, "", 2},
  };
  for (const std::string& family : FAMILIES) {
    for (const auto& [list, message, changed] : rows) {
      input_run run;
      run.read(with_list(list, family));
      EXPECT_EQ(run.log(), message.empty() ? "" : refused("READG3 : " + family + " MODIF " + message));
      auto& c = run.cmn;
      int found = 0;
      for (tervak::diameter_number ND(1); ND <= 2; ++ND)
        for (tervak::layer_number NL(1); NL <= 4; ++NL)
          found += pick(family, c.PYMOD(ND, NL)[5], c.TZMOD(ND, NL)[4], c.QZMOD(ND, NL)[4]) == 2.0;
      EXPECT_EQ(found, changed) << family;
    }
    EXPECT_THROW(expect_log(with_list({{1, 4, 1.0}}, family), ""), std::out_of_range);
  }
}

void expect_value_fault(const std::string& family, const std::array<double, 6>& v, int code) {
  Tervak p = valid_profile(4);
  auto& axial = family == "T-Z" ? p.data.TzModification.Records : p.data.QzModification.Records;
  if (family == "P-Y")
    p.data.PyModification.Records[0] = {1, 4, 0.0, v[0], v[1], v[2], v[3], v[4], v[5]};
  else
    axial[0] = {1, 4, 0.0, v[0], v[1], v[2], v[3], v[4]};
  const std::string message =
      "READG3 : " + family + " MODIF VALUES  NOW,IERR=    1    " + std::to_string(code);
  expect_log(p, code == 0 ? "" : refused(message));
}

TEST(READG3, NumbersTheLastValueAtFault) {
  using row = std::pair<std::array<double, 6>, int>;
  // clang-format off
  for (const auto& [v, code] : {row{{-1, 1, 0, 1, 1, 1}, 1}, {{-1, 0, 0, 1, 1, 1}, 2}, {{1, 0, -1, 1, 1, 1}, 3},
           {{1, 1, -1, 1.1, 1, 1}, 4}, {{1, 1, 0, -0.1, 1, 1}, 5}, {{1, 1, 0, 1.1, -1, 1}, 6},
           {{-1, 1, 0, 1, 1, 0}, 7}, {{0, 1, 0, 0, 0, 1}, 0}, {{1, 1, 0, 1, 1, 1}, 0}})
    expect_value_fault("P-Y", v, code);
  for (const std::string family : {"T-Z", "Q-Z"})
    for (const auto& [v, code] : {row{{-1, 0, 1, 1, 1}, 1}, {{-1, -1, 1, 1, 1}, 2}, {{1, -1, 0, 1, 1}, 3},
             {{1, 0, 0, -1, 1}, 4}, {{-1, 0, 1, 1, 0}, 5}, {{0, 0, 1, 0, 1}, 0}})
      expect_value_fault(family, v, code);
  // clang-format on
}

TEST(READG3, TensionAndSoilDisplacements) {
  const std::string sequence = "READG3 : GIVEN SOIL DISPL SEQUENCE ERROR\n N,ZLAST,ZNOW=    2     1.000";
  Tervak p = valid_profile(4);
  p.data.QzModification.Records = {
      {1, 2, 0, 1, 1.0, 1, 1, 1}, {3, 3, 0, 1, 0.5, 1, 1, 1}, {4, 4, 0, 1, 0.0, 1, 1, 1}};
  expect_log(p, passed(" **** SR/READGE WARNING : PILE TIP TENSION ALLOWED\n "));

  using row = std::tuple<double, double, std::string>;
  for (const auto& [Z2, hole, log] :
       {row{1.001, 0.0, ""},
        {1.0, 0.0, refused(sequence + "     1.000")},
        {0.5, 0.0, refused(sequence + "     0.500")},
        {2.0, -0.1, refused("READG3 : HOLE DIAM   N,HOLDIA=    2    -0.100")}}) {
    p = valid_profile(4);
    p.data.NumberOfDisplacements = 2;
    p.data.SoilDisplacements = {{1.0, 0, 0, 0, 0}, {Z2, 0, 0, 0, hole}};
    expect_log(p, log);
  }
}

}  // namespace
