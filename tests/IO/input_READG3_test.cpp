#include "IO/input_profile.hpp"

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

/// Layer 4 takes its curves of one family by hand, for both diameters.
Tervak by_hand(const std::string& family, int points) {
  Tervak p = valid_profile(4);
  auto& layer = p.data.Layers[1];
  pick(family, layer.PyCode, layer.TzCode, layer.QzCode) = 0;
  for (const double D : {1.0, 1.5}) curves(p, family).push_back({4, D, steps(points), steps(points)});
  return p;
}

TEST(READG3, RefusesManualCurves) {
  struct row {
    void (*change)(ManualCurveRecord& curve);
    std::string message;
  };
  // clang-format off
  for (const std::string& family : FAMILIES)
    for (const auto& [change, message] : {
             row{[](auto& c) { c.Layer = 3; }, " LAYER SEQUENCE  NL,LAY    4    3"},
             {[](auto& c) { c.Diameter = 1.4; }, " DIAMETER  NL,DIA=    4     1.400"},
             {[](auto& c) { c.Stresses = c.Displacements = steps(1); }, " CURVE POINTS  NL,NUM=    4    1"},
             {[](auto& c) { c.Stresses = c.Displacements = steps(30); }, " CURVE POINTS  NL,NUM=    4   30"},
             {[](auto& c) { c.Displacements[2] = 0.25; }, (family == "P-Y" ? " Y" : " Z") + std::string("-DISPL SEQUENCE ERROR\n                   4     0.250     0.250")},
         }) {
      Tervak p = by_hand(family, 3);
      change(curves(p, family)[1]);
      expect_log(p, refused("READG3 : MANUAL " + family + message));
    }
  // clang-format on
  expect_log(by_hand("P-Y", 16), refused("READG3 : MANUAL P-Y CURVE POINTS  NL,NUM=    4   16"));
}

// P-Y holds one side of the curve, from the origin slot on; the others the whole curve, from slot 1 on.
TEST(READG3, StoresManualCurves) {
  for (const std::string& family : FAMILIES) {
    const int most = family == "P-Y" ? 15 : 29, first = family == "P-Y" ? 15 : 1;
    input_run run;
    run.read(by_hand(family, most));
    auto& c = run.cmn;
    EXPECT_EQ(run.log(), "");
    const auto& count = pick(family, c.NPYPNT, c.NTZPNT, c.NQZPNT);
    EXPECT_EQ(count(2, 4), most);
    EXPECT_EQ(count(2, 3), 0) << "a layer with a method";
    for (const auto* table :
         {&pick(family, c.PYSTR, c.TZSTR, c.QZSTR), &pick(family, c.PYDSP, c.TZDSP, c.QZDSP)}) {
      EXPECT_EQ((*table)(first + 1, 2, 4), 0.25) << family;
      EXPECT_EQ((*table)(29, 2, 4), 0.25 * (most - 1)) << family;
    }
  }
}

// Only P-Y begins at the origin; only T-Z counts the displacements, so that a stress more does no harm there.
TEST(READG3, WhereTheFamiliesDiffer) {
  const std::string not_zero =
      refused("READG3 : MANUAL P-Y FIRST POINT NOT ZERO\n                   4    -0.500     0.000");
  for (const std::string& family : FAMILIES) {
    Tervak p = by_hand(family, 2);
    curves(p, family)[1].Stresses[0] = -0.5;
    expect_log(p, family == "P-Y" ? not_zero : "");
    curves(p, family)[1].Stresses = {0.0, 1.0, 2.0};
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

Tervak with_list(const std::vector<span>& list, const std::string& family) {
  Tervak p = valid_profile(4);
  auto& d = p.data;
  auto& axial = family == "T-Z" ? d.TzModification.Records : d.QzModification.Records;
  family == "P-Y" ? d.PyModification.Records.clear() : axial.clear();
  for (const auto& [L1, L2, D] : list)
    if (family == "P-Y")
      d.PyModification.Records.push_back({L1, L2, D, 2.0, 2.0, 2.0, 0.5, 2.0, 2.0});
    else
      axial.push_back({L1, L2, D, 2.0, 0.0, 2.0, 2.0, 2.0});
  return p;
}

TEST(READG3, RefusesModificationsOutOfPlace) {
  const std::string sequence = "LAYER SEQUENCE ERROR\n NOW,L1,L2,LAST1,LAST2=";
  const std::vector<std::pair<std::vector<span>, std::string>> rows{
      {{{2, 4, 0.0}}, sequence + "    1    2    4    0    0"},
      {{{1, 2, 0.0}, {4, 3, 0.0}}, sequence + "    2    4    3    1    2"},
      {{{1, 2, 1.0}, {2, 4, 1.0}}, sequence + "    2    2    4    1    2"},
      {{{1, 2, 1.0}, {2, 5, 1.0}}, sequence + "    2    2    5    1    2"},  // of two faults the last test
      {{{1, 2, 1.0}, {2, 5, 1.5}}, "LAYER ERROR  LAY,NUMLAY=    5    4"},
      {{{2, 5, 1.0}}, "LAYER ERROR  LAY,NUMLAY=    5    4"},
      {{{1, 4, 1.2}}, "DIAM  NOW,DIA=    1     1.200"},
  };
  for (const std::string& family : FAMILIES)
    for (const auto& [list, message] : rows)
      expect_log(with_list(list, family), refused("READG3 : " + family + " MODIF " + message));
}

TEST(READG3, ModificationListsEndAtTheLastLayerOrAtLayerZero) {
  const std::vector<std::pair<std::vector<span>, int>> rows{
      // of the eight pairs of diameter and layer
      {{{0, 0, 0.0}}, 0},
      {{{1, 4, 0.0}}, 8},
      {{{1, 4, 1.5}}, 4},
      {{{1, 4, 1.0}, {1, 4, 1.5}}, 8},
      {{{1, 1, 1.0}, {3, 4, -1.0}}, 5},
      {{{1, 2, 1.0}, {0, 0, 0.0}}, 2},
  };
  for (const std::string& family : FAMILIES) {
    for (const auto& [list, changed] : rows) {
      input_run run;
      run.read(with_list(list, family));
      EXPECT_EQ(run.log(), "");
      int found = 0;
      for (int n = 0; n < 8; ++n) {
        const int ND = n / 4 + 1, NL = n % 4 + 1;
        const auto& axial = family == "T-Z" ? run.cmn.TZMOD(ND, NL) : run.cmn.QZMOD(ND, NL);
        found += (family == "P-Y" ? run.cmn.PYMOD(ND, NL)[5] : axial[4]) == 2.0;
      }
      EXPECT_EQ(found, changed) << family;
    }
    EXPECT_THROW(expect_log(with_list({{1, 4, 1.0}}, family), ""), std::out_of_range);
  }
}

TEST(READG3, NumbersTheLastValueAtFault) {
  struct row {
    double v[6];
    int code;
  };
  const auto log = [](const std::string& family, int code) {
    const std::string text = "READG3 : " + family + " MODIF VALUES  NOW,IERR=    1    ";
    return code == 0 ? "" : refused(text + std::to_string(code));
  };
  // clang-format off
  const row py[] = {{{-1, 1, 0, 1, 1, 1}, 1}, {{-1, 0, 0, 1, 1, 1}, 2}, {{1, 0, -1, 1, 1, 1}, 3},
                    {{1, 1, -1, 1.1, 1, 1}, 4}, {{1, 1, 0, -0.1, 1, 1}, 5}, {{1, 1, 0, 1.1, -1, 1}, 6},
                    {{-1, 1, 0, 1, 1, 0}, 7}, {{0, 1, 0, 0, 0, 1}, 0}, {{1, 1, 0, 1, 1, 1}, 0}};
  const row axial[] = {{{-1, 0, 1, 1, 1}, 1}, {{-1, -1, 1, 1, 1}, 2}, {{1, -1, 0, 1, 1}, 3},
                       {{1, 0, 0, -1, 1}, 4}, {{-1, 0, 1, 1, 0}, 5}, {{0, 0, 1, 0, 1}, 0}};
  // clang-format on
  Tervak p = valid_profile(4);
  for (const auto& [v, code] : py) {
    p.data.PyModification.Records[0] = {1, 4, 0.0, v[0], v[1], v[2], v[3], v[4], v[5]};
    expect_log(p, log("P-Y", code));
  }
  for (const auto& [v, code] : axial) {
    p = valid_profile(4);
    p.data.QzModification.Records[0] = {1, 4, 0.0, v[0], v[1], v[2], v[3], v[4]};
    expect_log(p, log("Q-Z", code));
    p.data.TzModification = {p.data.QzModification.Records};  // read before Q-Z
    expect_log(p, log("T-Z", code));
  }
}

TEST(READG3, TensionAndSoilDisplacements) {
  const std::string sequence = "READG3 : GIVEN SOIL DISPL SEQUENCE ERROR\n N,ZLAST,ZNOW=    2     1.000";
  Tervak p = valid_profile(4);
  p.data.QzModification.Records = {
      {1, 2, 0, 1, 1.0, 1, 1, 1}, {3, 3, 0, 1, 0.5, 1, 1, 1}, {4, 4, 0, 1, 0.0, 1, 1, 1}};
  expect_log(p, passed(" **** SR/READGE WARNING : PILE TIP TENSION ALLOWED\n "));

  struct row {
    double Z2, hole;
    std::string log;
  };
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
