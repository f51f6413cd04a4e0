// Main layers into calculation layers: by counts, and by the nodes of PILEPLOT.TXT.

#include <vector>

#include "Control/layers/build5.hpp"
#include "support/scratch_run.hpp"

namespace tervak {
namespace {

class Subdivision : public scratch_run {
 protected:
  void make(const vector1<double>& bottoms, const vector1<int>& counts = {}) {
    ResetLayerLists(cmn);
    cmn.IERR = 0;
    cmn.NUMLAYM = bottoms.size();
    allocate_input_tables(cmn);
    cmn.ZMAIN = bottoms;
    if (counts.size() > 0) cmn.NSUBM = counts;
  }
  /// A file with one pile of the given node levels.
  void one_pile(const std::vector<std::string>& nodes) {
    std::string text = "HEADING\n1 PILES\n1 " + std::to_string(nodes.size()) + "\ntext\ntext\n";
    for (std::size_t k = 0; k < nodes.size(); ++k)
      text += std::to_string(k + 1) + " 0.0 0.0 " + nodes[k] + "\n";
    put("PILEPLOT.TXT", text);
    cmn.NUMPIL = 1;
  }
  struct layer {
    int m;
    double ZBOTM;
  };
  void expect_layers(const char* what, const std::vector<layer>& layers) {
    BUILD5(cmn, 1);
    ASSERT_EQ(cmn.NUMLAY, static_cast<int>(layers.size())) << what;
    int i = 0;
    for (const auto& [m, ZBOTM] : layers) {
      EXPECT_EQ(cmn.LAYCOD(++i).TYP, m) << what << " " << i;
      EXPECT_NEAR(cmn.ZBOTM(i), ZBOTM, 1e-7) << what << " " << i;
    }
  }
};

TEST_F(Subdivision, ByCounts) {
  cmn.ZSEAFL = 1;
  make({4.0, 10.0}, {3, 2});
  expect_layers("counts", {{1, 2}, {1, 3}, {1, 4}, {2, 7}, {2, 10}});
  EXPECT_DOUBLE_EQ(cmn.ZLAY(4), 5.5);  // in the middle

  make({10.0}, {500});
  BUILD5(cmn, 1);
  EXPECT_EQ(cmn.ZLAY.size(), 500);
  make({10.0, 20.0}, {500, 1});
  EXPECT_EQ(stop_of([this] { BUILD5(cmn, 1); }), "STOP at Control\\build5(637):  ");
  EXPECT_EQ(printed(18),
            "\n **** SR/BUILD5 : Maximum allowed number of layers is reached. Max = 500\n"
            "\n **** Error termination by SR/BUILD5\n");
  make({10.0}, {0});
  EXPECT_TRUE(stop_of([this] { BUILD5(cmn, 1); }).ends_with("): **** SR/BUILD5 : Impossible error 100"));
}

TEST_F(Subdivision, LevelsRunOnWithoutReset) {
  make({1.0, 2.0}, {10, 1});
  BUILD5(cmn, 1);
  const double Z = 0.99999999999999989;  // ten times 0.1, added up
  EXPECT_EQ(cmn.ZBOTM(10), Z);
  EXPECT_EQ(cmn.ZBOTM(11), Z + 1.0);
}

TEST_F(Subdivision, ByPileNodes) {
  const struct {
    const char* what;
    vector1<double> bottoms;
    std::vector<std::string> nodes;
    std::vector<layer> layers;
  } rows[] = {
      {"nodes between bottoms", {4.0, 10.0}, {"2", "6", "10"}, {{1, 2.001}, {1, 4}, {2, 6.001}, {2, 10.001}}},
      {"above the sea floor", {4.0}, {"-5", "0", "4"}, {{1, 0.001}, {1, 4.001}}},
      {"on a bottom, nearly", {4.0, 10.0}, {"3.9981", "10.0019"}, {{1, 3.9991}, {2, 10.0029}}},
      {"beside a bottom", {4.0, 10.0}, {"3.99795", "10"}, {{1, 3.99895}, {1, 4}, {2, 10.001}}},
      {"short pile", {4.0, 10.0, 20.0}, {"2", "6"}, {{1, 2.001}, {1, 4}, {2, 6.001}, {2, 10}, {3, 20}}},
      {"doubled layer set apart", {4.0, 10.0}, {"2", "4"}, {{1, 2.001}, {1, 4.001}, {2, 4.002}, {2, 10}}},
      {"last node on a bottom in the water", {-4.0, 10.0}, {"-4"}, {{1, -3.999}, {2, 10}}},
      {"two nodes on the last bottom", {4.0}, {"3.9990", "4.0005"}, {{1, 4.0}, {1, 4.0015}}},
  };
  for (const auto& r : rows) {
    make(r.bottoms);
    one_pile(r.nodes);
    expect_layers(r.what, r.layers);
    EXPECT_EQ(cmn.ZLAY(cmn.NUMLAY), cmn.ZBOTM(cmn.NUMLAY)) << r.what;
  }
}

TEST_F(Subdivision, PileFileFailures) {
  const std::string end = "End-of-file error reading file NF17\n Location =",
                    bad = "Input format error reading file NF17\n Location =",
                    one = "HEAD\n2\n1 1\na\nb\n1 0 0 1\n", two = "HEAD\n2\n1 2\na\nb\n1 0 0 1\n";
  const std::pair<std::string, std::string> rows[] = {
      {"", end + "  100"},
      {"HEAD\n", end + "  100"},
      {"HEAD\ntwo\n", bad + "  100"},
      {"HEAD\n1 2\n",
       "Layer sub-division using pile NUMPIL=    2\n File with pile node coords only has   1 piles\n"
       " This file has heading line :\n HEAD" +
           std::string(74, ' ')},
      {"HEAD\n2\n", end + "  101"},
      {"HEAD\n2\n1 1.5\n", bad + "  101"},
      {"HEAD\n2\n1 1\ntext\n", end + "  101"},
      {"HEAD\n2\n2 1\n", "File NF17 pile sequence error\n Pile1, Pile2 =    1    2"},
      {two, end + " 1002"},
      {two + "2 0 0 Z\n", bad + " 1002"},
      {two + "3 0 0 2\n", "File NF17 pile node sequence error\n Pile, Node1, Node2 =    1    2    3"},
      {one, end + "  102"},
      {one + "2 1\na\nb\n1 0 0\n", end + " 2001"},
      {one + "2 1\na\nb\n1 0 0 10.1\n",
       "Pile 002 used for layer sub-division has its tip\n below the last main layer\n"
       " Z.last.layer, Z.pile.tip =   10.0000   10.1000"},
  };
  cmn.NUMPIL = 2;
  for (const auto& [text, message] : rows) {
    put("PILEPLOT.TXT", text);
    cmn.units.close_unit(18, nullptr, true);
    make({10.0});
    EXPECT_EQ(stop_of([this] { BUILD5(cmn, 1); }), "STOP at Control\\build5(637):  ") << message;
    EXPECT_EQ(printed(18), "\n **** SR/BUILD5 : " + message + "\n\n **** Error termination by SR/BUILD5\n");
  }
  put("PILEPLOT.TXT", "HEAD\n1\n1 0\na\nb\n");
  cmn.NUMPIL = -1;
  make({10.0});
  EXPECT_TRUE(stop_of([this] { BUILD5(cmn, 1); }).ends_with("):  **** SR/BUILD5 : Impossible error 50"));
}

}  // namespace
}  // namespace tervak
