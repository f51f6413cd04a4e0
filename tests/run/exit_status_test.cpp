// The ways in which a run ends: exit status, last line of the run log, files left behind.

#include <filesystem>
#include <sstream>
#include <vector>

#include "run/small_deck.hpp"
#include "support/run_directory.hpp"

namespace {

const std::string NORMAL = " NORMAL EXIT FROM TERVAK" + std::string(27, ' ') + "\r\n";
const std::string ERROR = " ERROR EXIT FROM TERVAK" + std::string(28, ' ') + "\r\n";

struct ending {
  const char* what;
  std::string deck;
  int status;
  std::string log_end;  ///< how the run log ends; what it holds directly before the closing line
};

const char* const STRONG_MONOPILE = "MANUALBSY\nAT 2 1.0\n0.0 0.0\n";

std::vector<ending> endings() {
  const std::string good = small_deck();
  const std::string sand =
      with(with(good, "0.0 0.0 0.0 0.0 40.0 60.0 30 0.01 0.25", "0.0 0.0 30.0 0.0 0.0 0.0 0 0.0 0.0"),
           "284 293 293", "287 293 293");
  return {
      {"all profiles done", good, 0,
       " +++++ KESTRA INPUT FILE TERVAK.RIF HAS BEEN GENERATED,  BORING LABEL= \"B-1       \"\r\n" + NORMAL},
      {"the input stage fails", with(good, "POSAVR    0.4", "POSAVR    0.6"), 1,
       " **** SR/CONTRL  ERROR FROM SR/READGE  IERR=    1\r\n" + ERROR},
      {"the layer build of revision 4 fails",
       with(example("rev4-clay.inp"), "   1   17.0   0.0   5.0  255.0", "   1   17.0   0.0   5.0 -255.0"), 1,
       " LAY,TYP,SU0,SU100,ZLAY,SU=    2    1     5.000  -255.000     3.000    -2.545\r\n"
       "\r\n **** SR/CONTRL  ERROR FROM BUILD  IERR=    1\r\n" +
           ERROR},
      {"modification folds the far points back", good + "MODIFYPY\n1 2 0.0 1.0 1.0 0.0 1.0 1.0 1E-6\n", 1,
       " **** SR/CONTRL  ERROR FROM SR/MODIFY  IERR=    1\r\n" + ERROR},
      {"the deck is refused", with(good, "POSAVR    0.4\n", "POSAVR    0,4\n"), 1, ERROR},
      {"monopile data are refused: the status does not tell", good + STRONG_MONOPILE, 0,
       " ****  MANUAL BS-Y ERROR: Number of points specified cannot be less than 2. Layer: 2.\r\n" + ERROR},
      {"a sand has next to no strength at the level: the soil stage stops",
       with(sand, "0.0 0.0 30.0 0.0 0.0 0.0", "0.0 2E-13 0.0 0.0 0.0 0.0"), 255,
       " **** SR/R5SOIL : Missing sand layer strength parameter\r\n"
       " Layer,CPT,PHI,Dr=    1       0.000       0.000       0.000\r\n"},
      {"pile nodes are asked for and there is no file",
       with(with(good, "1 10.0 2 284", "1 10.0 0 284"), "MATPIL    1", "MATPIL    1\nNUMPIL    1"), 255,
       " **** SR/BUILD5 : File \"PILEPLOT.TXT\" open problem, IERR=    1\r\n\r\n **** Error termination by SR/BUILD5\r\n"},
      {"a stiffness ratio out of range stops inside the curve",
       with(good, "284 293 293 0", "600 293 293 0 20.0 0.0 0.0 0.0 0.0"), 255,
       " **** Run was stopped by SR/NGI11\r\n"},
      {"two diameters share a material number: the export fails, the interface file stands",
       with(good, "DIAM     1.0", "DIAM     1.0 1.0001"), 255, ERROR},
  };
}

TEST(ExitStatus, TellsHowTheRunEnded) {
  for (const ending& row : endings()) {
    SCOPED_TRACE(row.what);
    const run_directory directory;
    directory.deck(row.deck);
    EXPECT_EQ(directory.run(), row.status);
    const std::string log = directory.read("TERVAK.MLG");
    EXPECT_TRUE(ends_with(log, row.log_end)) << log.substr(log.size() > 800 ? log.size() - 800 : 0);
    EXPECT_EQ(directory.read("stdout") + directory.read("stderr"), "");
    // A run that broke off leaves the temporary files, any other removes them.
    EXPECT_EQ(directory.has("fem_io_unit_015"),
              row.status == 255 && row.log_end.find(ERROR) == std::string::npos);
  }
}

TEST(ExitStatus, TheClosingLineComesOnceForThreeProfiles) {
  const run_directory directory;
  directory.deck(example("three-profiles.inp"));
  ASSERT_EQ(directory.run(), 0);
  const std::string log = directory.read("TERVAK.MLG");
  std::size_t closings = 0;
  for (std::size_t at = log.find("EXIT FROM"); at != std::string::npos; at = log.find("EXIT FROM", at + 1))
    ++closings;
  EXPECT_EQ(closings, 1U);
  const std::string interface_file = directory.read("TERVAK.RIF");
  EXPECT_NE(interface_file.find("TSOILPRF  4.00000000E+00  3.00000000E+00"), std::string::npos);
  EXPECT_TRUE(ends_with(interface_file,
                        "IEND      0.00000000E+00  0.00000000E+00  0.00000000E+00  0.00000000E+00\n"));
}

TEST(ExitStatus, WithoutADeckOnlyTheLogIsMade) {
  const run_directory directory;
  directory.write("TERVAK.LIS", "of an earlier run");
  EXPECT_EQ(directory.run(), 1);
  const std::string log = directory.read("TERVAK.MLG");
  EXPECT_TRUE(ends_with(log, "\r\n\r\n **** SR/CONTRL  FILE TERVAK.INP OPEN PROBLEM  IERR=    1\r\n" + ERROR))
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
