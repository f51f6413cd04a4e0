// Failures of the axial capacity that a deck can reach: the same message and text of error codes on run log
// and listing, the termination line on the log only, status -1, and what the next good run clears away.

#include <string>

#include "run/small_deck.hpp"
#include "support/run_directory.hpp"

namespace {

struct failure {
  const char* what;
  const char* soil;      ///< CPTTOP ... KSOILM of the main layer
  const char* friction;  ///< method, given values
  double diameter, wall;
  const char* message;  ///< on log and listing
  const char* codes;    ///< how the text of error codes begins; blank where there is none
};

constexpr const char* CLAY = "0.0 0.0 0.0 0.0 40.0 60.0 30 0.01 0.25 0.0";
constexpr const char* LOOSE = "0.0 0.0 5.0 0.0 0.0 0.0 0 0.0 0.0 0.0";
constexpr const char* ROCK = "250.0 250.0 35.0 0.6 0.0 0.0 0 0.0 0.0 0.0";
constexpr const char* HARD_SAND = "150.0 150.0 35.0 0.6 0.0 0.0 0 0.0 0.0 0.0";

const failure FAILURES[] = {
    {"API sand, friction angle below 10", LOOSE, "1 0.0 0.0 0.0 0.0 0.0 0.0", 1.0, 0.05,
     " **** SR/R5AXCAP : Error from SR/API84SS. Layer,IERR=    1    2",
     " 1 = SIGZ < EPS   2 = PHI < 10 degr   3 = Open/closed code error"},
    {"ICP tip, cone resistance above 200 MPa", ROCK, "2 20.0 30.0 20.0 30.0 0.0 0.0", 1.0, 0.05,
     " **** SR/R5AXCAP : Error from SR/ICPXXTS. Layer,IERR=    1    9",
     " 1,2 = MCSAND error   3 = SIGZ < EPS   4 = Dr < 0.0"},
    {"NGI clay, closed tip", CLAY, "3 0.0 0.0 0.0 0.0 0.0 0.0", 1.0, 0.3,
     " **** SR/R5AXCAP : Error from SR/NGI05SC. Layer,IERR=    1    5",
     " 1 = SIGZ < EPS   2 = Ip < EPS   3 = Su < EPS"},
    {"NGI tip that beats the plug", HARD_SAND, "3 20.0 30.0 20.0 30.0 0.0 0.0", 10.0, 0.01,
     " **** SR/R5AXCAP : Tip code error in SR/NGI05TS\r\n Layer,ITIP=    1    1", ""},
};

std::string deck_of(const failure& row) {
  std::string deck = with(small_deck(), CLAY, row.soil);
  deck = with(deck, "0 20.0 30.0 20.0 30.0 360.0 540.0", row.friction);
  deck = with(deck, "DIAMP     1.0", "DIAMP " + std::to_string(row.diameter));
  return with(deck, "WALL      0.05", "WALL " + std::to_string(row.wall));
}

TEST(AxialFailures, StopTheRunWithTheirCodesOnLogAndListing) {
  const std::string TERMINATION = "\r\n **** Error termination by SR/R5AXCAP\r\n";
  for (const failure& row : FAILURES) {
    SCOPED_TRACE(row.what);
    const run_directory directory;
    directory.deck(deck_of(row));
    EXPECT_EQ(directory.run(), 255);
    const std::string log = directory.read("TERVAK.MLG");
    const std::string listing = directory.read("TERVAK.LIS");
    const bool has_codes = *row.codes != '\0';
    EXPECT_NE(log.find(std::string("\r\n") + row.message + "\r\n"), std::string::npos) << log;
    EXPECT_TRUE(ends_with(log, TERMINATION));
    EXPECT_EQ(listing.find(TERMINATION), std::string::npos);
    EXPECT_EQ(listing.find(row.message) != std::string::npos, has_codes);
    for (const std::string* text : {&log, &listing})
      EXPECT_EQ(text->find(std::string("\r\n Error codes from this routine are:\r\n") + row.codes) !=
                    std::string::npos,
                has_codes);

    EXPECT_TRUE(directory.has("fem_io_unit_015"));
    directory.deck(small_deck());
    EXPECT_EQ(directory.run(), 0);
    EXPECT_FALSE(directory.has("fem_io_unit_015"));
  }
}

}  // namespace
