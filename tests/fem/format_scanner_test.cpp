#include "fem/format_scanner.hpp"

#include "fem/format_cursor.hpp"
#include "fem_directory.hpp"

using fem::format_cursor;
using fem::format_scanner;

namespace {

/// Adds a token to those shown: descriptors and ops bare, counts with #, quoted text quoted.
void show(std::string& shown, const fem::format_token& token) {
  const std::string value(token.value);
  shown += shown.empty() ? "" : " ";
  shown += token.type == fem::format_token_type::string    ? "'" + value + "'"
           : token.type == fem::format_token_type::integer ? value + "#"
                                                           : value;
}

std::string scanned(std::string_view format) {
  std::string shown;
  const format_scanner scanner(format);
  for (const fem::format_token& token : scanner.tokens()) show(shown, token);
  return shown;
}

/// The first `count` tokens of a walk; "-" where the list is at its end for good.
std::string walked(std::string_view format, int count, bool final = false) {
  format_cursor cursor(format);
  std::string shown;
  for (int i = 0; i < count; ++i) {
    const fem::format_token* token = cursor.next_executable_token(final);
    show(shown, token == nullptr ? fem::format_token{fem::format_token_type::op, "-"} : *token);
  }
  return shown;
}

}  // namespace

TEST(FormatScanner, TurnsEachNotationIntoItsTokens) {
  const std::pair<const char*, const char*> rows[] = {
      // clang-format off
      {"()", ""}, {" ( 1X , A80 )\t", "1x a80"}, {"(1p,e11.3)", "1p e11.3"}, {"(1pe11.3)", "1p e11.3"},
      {"(-1p,+2p,0p)", "-1p +2p 0p"},
      {"(x,3x,i5,I4.3,f8.3,g9.2,d12.4,z,l4,a)", "x 3x i5 i4.3 f8.3 g9.2 d12.4 z l4 a"},
      {"(e12.4e3)", "e12.4 e3"}, {"(3(e13.3,i5):/$)", "3# ( e13.3 i5 ) : / $"},
      {"(/,1x,42('*'))", "/ 1x 42# ( '*' )"},
      {"(bn,bz,s,sp,ss,si5,t12,TL3,tr4)", "bn bz s sp ss s i5 t12 tl3 tr4"},
      {"('P-Y, Curve',\"it's\",'''',1x)", "'P-Y, Curve' 'it's' ''' 1x"}, {"('a''b','c')", "'a'b' 'c'"},
      {"((i5)", "( i5"}, {"(3)", "3#"},
      // clang-format on
  };
  for (const auto& [format, tokens] : rows) EXPECT_EQ(scanned(format), tokens) << format;
}

TEST(FormatScanner, TakesFormatsOfAnyLength) {
  for (const std::size_t size : {121U, 122U, 123U, 400U}) {  // 128 characters are the most without heap
    const std::string text(size, 'Q');
    EXPECT_EQ(scanned("('" + text + "',i1)"), "'" + text + "' i1");
  }
  std::string many = "(i1", tokens = "i1";
  for (int i = 0; i < 40; ++i) many += ",i1", tokens += " i1";
  EXPECT_EQ(scanned(many + ")"), tokens);
}

TEST(FormatScanner, RefusesWhatIsNoFormat) {
  EXPECT_FAILURE(scanned(" \t "), "Invalid FORMAT specification: empty string");
  EXPECT_FAILURE(scanned("(4H ABC)"), "FATAL: Not supported: FORMAT Hollerith edit descriptor: (4habc)");
  EXPECT_FAILURE(scanned("('it''s', E5.)"), "Invalid FORMAT specification: ('it''s',e5.)");
  for (const std::string format : {"i5", "(", ")", "(i5", "(e12.)", "(q)", "(-1x)", "(-p)", "(+)", "(t)",
                                   "(tlx)", "(b)", "('abc)", "(p)", "(.3)"})
    EXPECT_FAILURE(scanned(format), "Invalid FORMAT specification: " + format);
}

TEST(FormatCursor, RepeatsTokensAndGroupsAndRestartsAtTheLastOuterGroup) {
  EXPECT_EQ(walked("(3i5,2/,1x)", 7, true), "i5 i5 i5 / / 1x -");
  EXPECT_EQ(walked("(2(i1,2(a,'-')),i2)", 12, true), "i1 a '-' a '-' i1 a '-' a '-' i2 -");
  EXPECT_EQ(walked("()", 1, true), "-");
  EXPECT_EQ(walked("(1x,a)", 5), "1x a / 1x a");
  EXPECT_EQ(walked("(i6,1p,2(e13.3,e11.3))", 12),
            "i6 1p e13.3 e11.3 e13.3 e11.3 / e13.3 e11.3 e13.3 e11.3 /");
  EXPECT_EQ(walked("(2(i1),(a,(z)),i5)", 10), "i1 i1 a z i5 / a z i5 /");
  // A group that stays open keeps its frame: the restart opens it a second time, inside itself.
  EXPECT_EQ(walked("(i1,(i2)", 5), "i1 i2 / i2 /");
  EXPECT_EQ(walked("(i1,2(i2,)", 3), "i1 i2 /");
}

TEST(FormatCursor, RefusesBadCountsAndParenthesesWhenItMeetsThem) {
  EXPECT_FAILURE(walked("(i5,3)", 2), "Trailing lone repeat count in format string.");
  EXPECT_FAILURE(walked("(i5,0i5)", 2), "Zero repeat count in format string.");
  EXPECT_FAILURE(walked("(i5),i6)", 2), "Unexpected closing parenthesis in format string.");
  EXPECT_FAILURE(walked("(99999999999i5)", 1), "number out of range in format: 99999999999");
  EXPECT_IO_ERR(walked("()", 1), "Empty format string but data editing requested.");
}
