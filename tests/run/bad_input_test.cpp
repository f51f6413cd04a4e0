// Bad input of every kind ends in a clear line and an exit status, never in a crash, a hang or a changed
// deck.

#include <filesystem>
#include <sstream>

#include "run/small_deck.hpp"
#include "support/run_directory.hpp"

namespace {

namespace fs = std::filesystem;

struct bad_deck {
  const char* what;
  std::string deck;
  int status;
  const char* log_line;  ///< a text that the run log holds
};

std::string rows(const char* table, int count, const char* row) {
  std::ostringstream text;
  text << table << '\n';
  for (int m = 1; m <= count; ++m) text << m << ' ' << m << ".0 " << row << '\n';
  return text.str();
}

/// A revision 5 deck of `count` main layers of one metre.
std::string many_layers(int count) {
  std::string deck = small_deck().substr(0, small_deck().find("MAINLAYERS"));
  deck += rows("MAINLAYERS", count, "18.0 0.0 0.0 0.0 0.0 40.0 60.0 30 0.01 0.25 0.0");
  std::ostringstream friction;
  friction << "SKINFRICTION\n";
  for (int m = 1; m <= count; ++m) friction << m << " 0 20.0 30.0 20.0 30.0 360.0 540.0 1.0 0.9 0.01\n";
  return deck + friction.str() + rows("SUBDIVISION", count, "1 284 293 293 0");
}

std::string many_diameters(int count) {
  std::ostringstream text;
  text << "DIAM";
  for (int n = 1; n <= count; ++n) text << ' ' << n << ".0";
  return with(small_deck(), "DIAM     1.0", text.str());
}

TEST(BadInput, EndsInAClearLine) {
  const bad_deck table[] = {
      {"an empty file", "", 1, "tervak.inp:1:1: "},
      {"binary bytes",
       std::string("\x7f"
                   "ELF\0\1\2\3\xff\xfe\n\0\0\x80\n",
                   16),
       1, "tervak.inp:2:1: "},
      {"a line of a million characters", small_deck() + std::string(1000000, '7') + "\n", 1,
       "tervak.inp:25:"},
      {"a heading of a million characters", std::string(1000000, 'x') + small_deck(), 0, "NORMAL EXIT"},
      {"501 main layers", many_layers(501), 1, " **** SR/READGE : NUMLAYM ERROR  NUMLAYM,MAX=  501  500\r\n"},
      {"500 main layers", many_layers(500), 0, "NORMAL EXIT"},
      {"501 layers of one main layer", with(small_deck(), "1 10.0 2 284", "1 10.0 501 284"), 1,
       " Layer, subdivisions, max allowed layers =    1  501  500\r\n"},
      {"51 diameters", many_diameters(51), 1, " **** SR/READGE : NUMDIA,MAXDIA=   51   50\r\n"},
      {"50 diameters", many_diameters(50), 0, "NORMAL EXIT"},
      {"no diameter above the last", with(small_deck(), "DIAM     1.0", "DIAM     1.0 1.0"), 1,
       " **** SR/READGE : DIAM SEQUENCE ERROR     1.000     1.000\r\n"},
  };
  for (const bad_deck& row : table) {
    SCOPED_TRACE(row.what);
    const run_directory directory;
    directory.deck(row.deck);
    EXPECT_EQ(directory.run(), row.status);
    const std::string log = directory.read("TERVAK.MLG");
    EXPECT_NE(log.find(row.log_line), std::string::npos) << log.substr(0, 6000);
    EXPECT_EQ(directory.read("TERVAK.INP"), row.deck);
    EXPECT_EQ(directory.read("tervak.inp"), row.deck);
  }
}

TEST(BadInput, ADirectoryInPlaceOfTheDeckIsRefused) {
  const run_directory directory;
  fs::create_directory(directory / "TERVAK.INP");
  fs::create_directory(directory / "tervak.inp");
  EXPECT_EQ(directory.run(), 1);
  EXPECT_NE(directory.read("TERVAK.MLG").find("tervak.inp:1:1: "), std::string::npos);
}

TEST(BadInput, ADeckWithoutReadPermissionIsToldApartFromAMissingOne) {
  const run_directory directory;
  directory.deck(small_deck());
  directory.open_to_all();
  fs::permissions(directory / "tervak.inp", fs::perms::none);
  EXPECT_EQ(directory.run(true), 1);
  EXPECT_NE(directory.read("TERVAK.MLG").find("Permission denied"), std::string::npos);

  fs::permissions(directory / "TERVAK.INP", fs::perms::none);
  EXPECT_EQ(directory.run(true), 1);
  EXPECT_NE(directory.read("TERVAK.MLG").find("FILE TERVAK.INP OPEN PROBLEM  IERR=    1"), std::string::npos);
}

TEST(BadInput, AReadOnlyDeckRunsAndStaysAsItIs) {
  const run_directory directory;
  directory.deck(small_deck());
  directory.open_to_all();
  for (const char* name : {"TERVAK.INP", "tervak.inp"})
    fs::permissions(directory / name, fs::perms::owner_read | fs::perms::others_read);
  EXPECT_EQ(directory.run(true), 0);
  EXPECT_EQ(directory.read("TERVAK.INP"), small_deck());
}

TEST(BadInput, AReadOnlyDirectoryLeavesNothingAndSaysSoByItsStatus) {
  const run_directory directory;
  directory.deck(small_deck());
  directory.write("TERVAK.LIS", "of an earlier run");
  fs::permissions(directory / ".", fs::perms::owner_read | fs::perms::owner_exec | fs::perms::others_read |
                                       fs::perms::others_exec);
  EXPECT_EQ(directory.run(true), 255);
  EXPECT_FALSE(directory.has("TERVAK.MLG"));
  EXPECT_EQ(directory.read("TERVAK.LIS"), "of an earlier run");
}

TEST(BadInput, AResultThatCannotBeMovedAwayIsNotOverwritten) {
  for (const char* name : {"TERVAK.LIS", "soil_halde.fem", "soil_70.fem"}) {
    SCOPED_TRACE(name);
    const run_directory directory;
    directory.deck(small_deck());
    directory.write(name, "of an earlier run");
    fs::create_directories(directory / (std::string(name) + ".bak/full"));
    EXPECT_EQ(directory.run(), 1);
    EXPECT_NE(
        directory.read("TERVAK.MLG").find(" **** SR/CONTRL  FILE TERVAK.LIS OPEN PROBLEM  IERR=    1\r\n"),
        std::string::npos);
    EXPECT_EQ(directory.read(name), "of an earlier run");
    EXPECT_FALSE(directory.has("TERVAK.RIF"));
  }
}

TEST(BadInput, ALogThatCannotBeMovedAwayEndsTheRunUnheard) {
  const run_directory directory;
  directory.deck(small_deck());
  directory.write("TERVAK.MLG", "of an earlier run");
  fs::create_directories(directory / "TERVAK.MLG.bak/full");
  EXPECT_EQ(directory.run(), 255);
  EXPECT_EQ(directory.read("TERVAK.MLG"), "of an earlier run");
}

}  // namespace
