// Files that cannot be read, written or moved end in a clear line and an exit status, and nothing is lost.

#include <filesystem>

#include "run/small_deck.hpp"
#include "support/run_directory.hpp"

namespace {

namespace fs = std::filesystem;

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
