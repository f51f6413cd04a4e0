#include "Control/ECHO.hpp"
#include "Control/LINERD.hpp"
#include "IO/input_profile.hpp"

namespace {

/// What `show` writes to unit 16 when `deck` stands on unit 14.
std::string listing(const std::string& deck, void (*show)(tervak::common& cmn, int NOW, int KIND),
                    int NOW = 0, int KIND = 0) {
  input_run run;
  input_run::write("deck", deck);
  fem::open(run.cmn.units, 14, "deck").status("OLD").finish();
  fem::open(run.cmn.units, 16, "listing").status("NEW").finish();
  show(run.cmn, NOW, KIND);
  return input_run::text("listing");
}
void echo(tervak::common& cmn, int, int) { tervak::ECHO(cmn, 14, 16, "TERVAK"); }
void linerd(tervak::common& cmn, int NOW, int KIND) { tervak::LINERD(cmn, 14, 16, NOW, KIND); }

const std::string TEN(10, ' ');
const std::string RULER =
    "\n" + TEN + "000000000" + "1111111111222222222233333333334444444444" +
    "5555555555666666666677777777778\n" + TEN +
    "12345678901234567890123456789012345678901234567890123456789012345678901234567890\n\n";
const std::string HEADING = "1\n" + TEN + "ECHO PRINT OF INPUT DATA TO PROGRAM \"TERVAK\"\n" + RULER;

TEST(ECHO, NumbersLinesAndCutsThemAt80) {
  EXPECT_EQ(listing(" one\r\n" + std::string(85, 'x') + "\nlast", echo),
            HEADING + "    1----  one" + std::string(76, ' ') + "\n    2---- " + std::string(80, 'x') +
                "\n    3---- last" + std::string(76, ' ') + "\n" + RULER);
  EXPECT_EQ(listing("", echo), HEADING + RULER);
}

// The deck has 45 lines of 76 characters, which begin with their own number.
TEST(LINERD, ShowsTheLastLinesAndCutsThemAt70) {
  std::string deck;
  for (int n = 1; n <= 45; ++n) deck += std::to_string(100 + n) + std::string(67, '.') + "beyond\n";
  struct row {
    int NOW, KIND, first, last;
    std::string heading;
  };
  const std::string values = " Non-accepted value(s) exist in the input :";
  for (const auto& [NOW, KIND, first, last, heading] :
       {row{40, 1, 29, 40, "12 last@ Error occurred while reading the bottom line :"},
        {12, 2, 1, 12, "12 last@ An end-of-file was encountered at the bottom line :"},
        {13, 3, 2, 13, "12 last@ The error was detected by SR/LINERD :"},
        {5, 4, 1, 5, " 5 last@" + values},
        {0, 4, 1, 0, " 0 last@" + values},
        {48, 4, 37, 45, "12 last@" + values}}) {
    const std::size_t at = heading.find('@');
    std::string expected = "\n The " + heading.substr(0, at) +
                           " lines read from the temporary input file are shown below.\n" +
                           heading.substr(at + 1) + "\n \n";
    for (int n = first; n <= last; ++n)
      expected += (n < 10 ? "    " : "   ") + std::to_string(n) + " : " + std::to_string(100 + n) +
                  std::string(67, '.') + "\n";
    EXPECT_EQ(listing(deck, linerd, NOW, KIND), expected) << NOW;
  }
}

}  // namespace
