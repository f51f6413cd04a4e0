#include "Control/state/ECHO.hpp"
#include "Control/state/LINERD.hpp"
#include "support/scratch_run.hpp"

namespace {

using EchoLinerd = scratch_run;

// Heading and rulers stand in a golden listing.
TEST_F(EchoLinerd, EchoNumbersLinesAndCutsThemAt80) {
  put("fem_io_unit_014", "\xEF\xBB\xBF one\r\n" + std::string(85, 'x') + "\nlast");
  tervak::ECHO(cmn, 14, 16, "TERVAK");
  const std::string lines = "\n\n    1----  one" + std::string(76, ' ') + "\n    2---- " +
                            std::string(80, 'x') + "\n    3---- last" + std::string(76, ' ') + "\n\n";
  EXPECT_NE(printed(16).find(lines), std::string::npos) << printed(16);
}

// The deck has 45 lines of 76 characters, which begin with their own number.
TEST_F(EchoLinerd, LinerdShowsTheLastLinesAndCutsThemAt70) {
  std::string deck;
  for (int n = 1; n <= 45; ++n) deck += std::to_string(100 + n) + std::string(67, '.') + "beyond\n";
  put("fem_io_unit_014", deck);
  const std::string values = "\n Non-accepted value(s) exist in the input :";
  struct row {
    int NOW, KIND, first, last;
    std::string lines, cause;
  };
  for (const auto& [NOW, KIND, first, last, lines, cause] :
       {row{40, 1, 29, 40, "12", "\n Error occurred while reading the bottom line :"},
        {12, 2, 1, 12, "12", "\n An end-of-file was encountered at the bottom line :"},
        {13, 3, 2, 13, "12", "\n The error was detected by SR/LINERD :"},
        {5, 4, 1, 5, " 5", values},
        {48, 4, 37, 45, "12", values}}) {
    std::string expected = "\n The " + lines +
                           " last lines read from the temporary input file are shown below." + cause +
                           "\n \n";
    for (int n = first; n <= last; ++n)
      expected += (n < 10 ? "    " : "   ") + std::to_string(n) + " : " + std::to_string(100 + n) +
                  std::string(67, '.') + "\n";
    cmn.units.close_unit(16, nullptr, true);
    tervak::LINERD(cmn, 14, 16, NOW, KIND);
    EXPECT_EQ(printed(16), expected) << NOW;
  }
}

}  // namespace
