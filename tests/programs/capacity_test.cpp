#include <gtest/gtest.h>

#include <filesystem>
#include <numbers>
#include <sstream>

#include "programs/sample_rif.hpp"
#include "report/axial_capacity.hpp"
#include "report/deck_beside.hpp"
#include "report/read_interface_file.hpp"
#include "support/work_directory.hpp"

namespace tervak::report {
namespace {

namespace fs = std::filesystem;
const fs::path source = TERVAK_SOURCE_DIR;
constexpr double pi = std::numbers::pi;

/// The approved interface file of an example, whose masked lines are made text lines again.
interface_file approved(const std::string& example) {
  std::string text = work_directory::get(source / "tests/golden/approved" / example / "TERVAK.RIF");
  for (std::size_t at = 0; (at = text.find("\n#\n", at)) != std::string::npos;)
    text.replace(at, 2, "\n        ");
  return read_interface_file("A.RIF", std::istringstream(text));
}

/// A layer with one curve of each kind, which rises to its peak and stays.
layer plain_layer(double bottom, double t, double t_tension, double q, int tz_code = 293, int qz_code = 293) {
  layer l;
  l.ZBOTM = bottom;
  l.tz_code = tz_code;
  l.qz_code = qz_code;
  l.of(curve_kind::tz) = {{{-t_tension, -0.02}, {0.0, 0.0}, {t, 0.01}, {0.8 * t, 0.02}}};
  l.of(curve_kind::qz) = {{{-q, -0.02}, {0.0, 0.0}, {q, 0.1}}};
  return l;
}

/// Diameter 2, sea floor at 10: a metre of skin is 2 pi, the tip pi.
profile plain_profile(std::vector<layer> layers) {
  profile p;
  p.diameters = {2.0};
  p.sea_floor = 10.0;
  p.layers = std::move(layers);
  return p;
}

void expect_row(const capacity_row& row, const std::vector<std::optional<double>>& in_pi) {
  const std::optional<double> found[] = {row.skin_compression, row.skin_tension, row.tip,
                                         row.capacity_compression, row.capacity_tension};
  for (std::size_t i = 0; i < 5; ++i) {
    ASSERT_EQ(found[i].has_value(), in_pi[i].has_value()) << row.level << " value " << i;
    if (in_pi[i]) {
      EXPECT_NEAR(*found[i], *in_pi[i] * pi, 1e-9 * pi) << row.level << " value " << i;
    }
  }
}

TEST(AxialCapacity, SumsPeaks) {
  const profile p = plain_profile({plain_layer(12.0, 5.0, 4.0, 30.0), plain_layer(15.0, 10.0, 7.0, 60.0)});
  const auto whole = axial_capacities(p).at(0).rows;
  expect_row(whole.at(0), {20, 16, 30, 50, 16});
  expect_row(whole.at(1), {80, 58, 60, 140, 58});
  const auto scoured = axial_capacities(p, 13.5).at(0).rows;
  expect_row(scoured.at(0), {0, 0, 30, 30, 0});
  expect_row(scoured.at(1), {30, 21, 60, 90, 21});
}

TEST(AxialCapacity, LinearCurvesHaveNoPeak) {
  const std::optional<double> no;
  const profile p =
      plain_profile({plain_layer(11.0, 5.0, 4.0, 30.0), plain_layer(12.0, 5.0, 4.0, 30.0, 293, 100),
                     plain_layer(13.0, 5.0, 4.0, 30.0), plain_layer(14.0, 5.0, 4.0, 30.0, 100),
                     plain_layer(15.0, 5.0, 4.0, 30.0)});
  const auto rows = axial_capacities(p).at(0).rows;
  expect_row(rows.at(1), {20, 16, no, no, 16});
  expect_row(rows.at(2), {30, 24, 30, 60, 24});
  expect_row(rows.at(3), {no, no, 30, no, no});
  expect_row(rows.at(4), {no, no, 30, no, no});
}

/// The numbers worked by hand in docs/outputs.md, of a pile that ends at 6 m.
TEST(AxialCapacity, AsWorkedInTheDocuments) {
  const capacity_row row = axial_capacities(approved("small-clay").profiles.at(0), 2.0).at(0).rows.at(2);
  const std::string text = work_directory::get(source / "docs/outputs.md");
  EXPECT_NEAR(*row.skin_compression, 166.0, 0.05);
  EXPECT_NEAR(*row.tip, 188.8, 0.05);
  EXPECT_NEAR(*row.capacity_compression, 354.8, 0.05);
  for (const std::string number : {"71.83 + 94.17 = 166.0", "x 1.524^2 / 4 = 188.8", "166.0 + 188.8 = 354.8"})
    EXPECT_NE(text.find(number), std::string::npos) << number;
}

/// Each deck of the examples is found to be that of its own interface file.
TEST(DeckBeside, BelongsToItsFile) {
  const work_directory here;
  std::size_t decks = 0;
  for (const auto& entry : fs::directory_iterator(source / "examples")) {
    const std::string example = entry.path().stem().string();
    if (entry.path().extension() != ".inp") continue;
    fs::copy_file(entry, "TERVAK.INP", fs::copy_options::overwrite_existing);
    const deck_beside deck = read_deck_beside("TERVAK.RIF", approved(example));
    EXPECT_EQ(deck.why_not, "") << example;
    EXPECT_FALSE(deck.profiles.empty()) << example;
    ++decks;
  }
  EXPECT_GT(decks, 10U);
}

TEST(DeckBeside, GivesScourPileAndMainLayers) {
  const work_directory here;
  fs::copy_file(source / "examples/small-clay.inp", "TERVAK.INP");
  const deck_profile clay = read_deck_beside("TERVAK.RIF", approved("small-clay")).profiles.at(0);
  EXPECT_EQ(clay.local_scour, 2.0);
  EXPECT_EQ(clay.main_layers.at(1).bottom, 50.0);
  EXPECT_EQ(clay.pile.value().tip, 48.0);
  fs::copy_file(source / "examples/monopile-base-shear.inp", "TERVAK.INP",
                fs::copy_options::overwrite_existing);
  const interface_file shear = approved("monopile-base-shear");
  const deck_beside scaled = read_deck_beside("TERVAK.RIF", shear);
  EXPECT_NEAR(scaled.of(0)->main_layers.back().bottom, shear.profiles[0].layers.back().ZBOTM, 1e-3)
      << "millimetres";
  fs::copy_file(source / "examples/rev4-mixed.inp", "TERVAK.INP", fs::copy_options::overwrite_existing);
  const interface_file mixed = approved("rev4-mixed");
  const deck_profile old = read_deck_beside("TERVAK.RIF", mixed).profiles.at(0);
  EXPECT_FALSE(old.pile.has_value());
  EXPECT_NEAR(old.main_layers.back().bottom, mixed.profiles[0].layers.back().ZBOTM, 1e-6);
}

TEST(DeckBeside, RefusesWhatIsNotOfTheFile) {
  const work_directory here;
  const interface_file file = approved("small-clay");
  EXPECT_EQ(read_deck_beside("TERVAK.RIF", file).why_not, "No deck TERVAK.INP is beside the file.");
  std::string deck = work_directory::get(source / "examples/small-clay.inp");
  const auto why_with = [&](const std::string& from, const std::string& to) {
    std::string changed = deck;
    work_directory::put("TERVAK.INP", changed.replace(changed.find(from), from.size(), to));
    const deck_beside found = read_deck_beside("TERVAK.RIF", file);
    EXPECT_TRUE(found.profiles.empty()) << to;
    return found.why_not;
  };
  const std::string other = "The deck TERVAK.INP beside the file is that of another run: it has ";
  EXPECT_EQ(why_with("boring A-1", "boring A-2"),
            other + "the heading \"Small clay example, boring A-2, lower bound strength\" in profile 1.");
  EXPECT_EQ(why_with("BORING   A-1", "BORING   A-2"), other + "the boring \"A-2\" in profile 1.");
  EXPECT_EQ(why_with("DIAM      1.524", "DIAM      1.2"), other + "other diameters in profile 1.");
  EXPECT_EQ(why_with("SCRLOC    2.0", "SCRLOC    3.5"), other + "another scour level in profile 1.");
  EXPECT_EQ(why_with("END\n", "END\n" + deck), other + "2 profiles, not 1.");
  EXPECT_EQ(
      why_with("GAMWAT   10.05", "GAMWAT   x")
          .rfind("The deck beside the file cannot be read: TERVAK.INP:8:10: GAMWAT takes one number", 0),
      0U);
}

}  // namespace
}  // namespace tervak::report
