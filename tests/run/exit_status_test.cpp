// The ways in which a run ends, where the deck alone does not make them.

#include <filesystem>
#include <sstream>
#include <vector>

#include "run/small_deck.hpp"
#include "support/run_directory.hpp"

namespace {

TEST(ExitStatus, WithoutADeckOnlyTheLogIsMade) {
  const run_directory directory;
  directory.write("TERVAK.LIS", "of an earlier run");
  EXPECT_EQ(directory.run(), 1);
  const std::string log = directory.read("TERVAK.MLG");
  EXPECT_TRUE(ends_with(
      log, "\r\n\r\n **** SR/CONTRL  FILE TERVAK.INP OPEN PROBLEM  IERR=    1\r\n ERROR EXIT FROM TERVAK" +
               std::string(28, ' ') + "\r\n"))
      << log;
  EXPECT_EQ(directory.read("TERVAK.LIS"), "of an earlier run");
  EXPECT_FALSE(directory.has("TERVAK.LIS.bak"));
  EXPECT_FALSE(directory.has("TERVAK.RIF"));
}

TEST(ExitStatus, ADeckUnderOneNameIsAnsweredWithTheCure) {
  const run_directory directory;
  directory.write("TERVAK.INP", small_deck());
  EXPECT_EQ(directory.run(), 1);
  const std::string log = directory.read("TERVAK.MLG");
  EXPECT_NE(log.find("tervak.inp:1:1: "), std::string::npos) << log;
  EXPECT_NE(log.find("ln -s TERVAK.INP tervak.inp"), std::string::npos);
  EXPECT_FALSE(directory.has("TERVAK.RIF"));
  // Where the link stands already, making it again is no cure.
  std::filesystem::create_symlink("gone.inp", directory / "tervak.inp");
  EXPECT_EQ(directory.run(), 1);
  EXPECT_NE(directory.read("TERVAK.MLG").find("it is a link to a file that cannot be reached"),
            std::string::npos);
}

TEST(ExitStatus, ACopyOfTheDeckThatWasForgottenIsTold) {
  const std::string warning =
      " ---- Warning from SR/CONTRL : TERVAK.INP differs from tervak.inp, which is the deck of this run\r\n";
  const run_directory directory;
  directory.deck(small_deck());
  ASSERT_EQ(directory.run(), 0);
  EXPECT_EQ(directory.read("TERVAK.MLG").find(warning), std::string::npos);
  directory.write("TERVAK.INP", small_deck() + "\n");
  ASSERT_EQ(directory.run(), 0);
  EXPECT_NE(directory.read("TERVAK.MLG").find(warning), std::string::npos);
  std::filesystem::remove(directory / "TERVAK.INP");
  std::filesystem::create_directory(directory / "TERVAK.INP");
  EXPECT_EQ(directory.run(), 0);
  EXPECT_NE(directory.read("TERVAK.MLG").find(warning), std::string::npos);
}

TEST(ExitStatus, ThePrintLevelSaysWhatTheListingHolds) {
  const run_directory directory;
  directory.deck(with(small_deck(), "DIAM     1.0", "JPRINT   0\nDIAM     1.0"));
  ASSERT_EQ(directory.run(), 0);
  std::istringstream listing(directory.read("TERVAK.LIS"));
  std::vector<std::string> lines;
  for (std::string line; std::getline(listing, line);) lines.push_back(line);
  ASSERT_EQ(lines.size(), 5U);  // heading, blank, version, blank, stamp
  EXPECT_EQ(lines[0], " Program TERVAK   Soil Data Generator for Program KESTRA\r");
  EXPECT_EQ(lines[2], " Version : Revision 5 - 7.6.1.21   19-FEB-2021\r");
  EXPECT_EQ(lines[4].substr(0, 26), " THIS RUN WAS STARTED :  " + lines[4].substr(25, 1));
  EXPECT_EQ(directory.read("TERVAK.MLG").find("HAS BEEN PRINTED"), std::string::npos);
}

}  // namespace
