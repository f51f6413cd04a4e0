#include "fem/read.hpp"

#include <array>
#include <sstream>
#include <utility>
#include <vector>

#include "fem/file_positioning_chain.hpp"
#include "fem_directory.hpp"

namespace {

constexpr int UNIT = 17;

using text4 = fem::fixed_text<4>;

class read_test : public fem_directory {
 protected:
  text4 text;

  void file(const std::string& bytes) {
    units.close_unit(UNIT);
    put("fem_io_unit_017", bytes);
  }
  /// What a read of one item gives, list-directed without a format: the item, or the kind of failure, the
  /// iostat (9 ahead of the read) and the text.
  template <class Item>
  std::string got(const std::string& bytes, const char* format = nullptr) {
    file(bytes);
    Item item{};
    int iostat = 9;
    std::ostringstream shown;
    shown.precision(15);
    try {
      auto loop = format == nullptr ? fem::read_loop(units, UNIT) : fem::read_loop(units, UNIT, format);
      loop.iostat (&iostat)(item);
      if constexpr (std::is_same_v<Item, text4>)
        shown << item.view();
      else
        shown << item;
    } catch (const fem::read_end& end) {
      shown << "end " << iostat << ": " << end.what();
    } catch (const fem::io_err& error) {
      shown << "error " << iostat << ": " << error.what();
    }
    return shown.str();
  }
  /// The rest of the line at which the unit stands, up to four characters.
  std::string next_line() {
    fem::read(units, UNIT, "(a)", text);
    return std::string(text.view());
  }
};

}  // namespace

TEST_F(read_test, items_and_failures) {
  const std::string bad_real = "error 1: Invalid character while reading floating-point value: ",
                    bad_integer = "Invalid character while reading integer value.",
                    end = "end -1: End of input while reading ";
  const std::vector<std::pair<std::string, std::string>> rows = {
      // clang-format off
      // Texts take their own length, whatever the width: of a wider field the last characters.
      {got<text4>("abcdef\n", "(a)"), "abcd"}, {got<text4>("abcdef\n", "(a1)"), "abcd"},
      {got<text4>("abcdef\n", "(a6)"), "cdef"}, {got<text4>("ab\n", "(a4)"), "ab  "},
      {got<text4>("ab\r\n", "(a4)"), "ab  "}, {got<text4>("a\rb\n", "(a4)"), "a\rb "},
      {got<text4>("ab", "(a4)"), "ab  "}, {got<text4>("ab\ncdefgh", "(a8)"), "    "},
      {got<text4>("xxab\n", "(2x,a)"), "ab  "}, {got<text4>("x\nab\n", "(5x,a)"), "    "},
      {got<text4>("one\ntwo\n", "(/,a)"), "two "}, {got<text4>("line\n", "(:,a)"), "line"},
      {got<text4>("", "(a)"), "end -1: End of input during read"}, {got<text4>("ab", "(2x,a)"), end + "string"},
      {got<text4>("ab", "(2x,a9)"), end + "string"}, {got<text4>("ab\n", "(/,a)"), end + "string"},
      // Integers
      {got<int>("  12\n", "(i4)"), "12"}, {got<int>("1 2\n", "(i3)"), "12"}, {got<int>(" -7 \n", "(i4)"), "-7"},
      {got<int>("+7\n", "(i4)"), "7"}, {got<int>("    \n", "(i4)"), "0"}, {got<int>("1234\n", "(i2)"), "12"},
      {got<int>("1,234\n", "(i5)"), "1"}, {got<int>("12", "(i4.3)"), "12"}, {got<int>("34\n", "(i0)"), "0"},
      {got<int>(" 56 \n", "(i)"), "56"}, {got<int>("7,\n", "(f9.3)"), "7"},
      {got<int>("2147483648\n", "(i10)"), "-2147483648"}, {got<int>("1.5\n", "(i3)"), "error 1: " + bad_integer},
      {got<int>("1-5\n", "(i3)"), "error 1: " + bad_integer}, {got<int>(" \n"), end + "integer value"},
      // These two leave iostat as it was.
      {got<int>("1.5\n"), "error 9: " + bad_integer}, {got<int>("-"), "end 9: End of input while reading integer value"},
      // Reals
      {got<double>("    12\n", "(f8.2)"), "0.12"}, {got<double>("1.0D+2\n", "(e8.2)"), "100"},
      {got<double>("3.0\n", "(1p,f8.2)"), "0.3"}, {got<double>("3.0E0\n", "(1p,f8.2)"), "3"},
      {got<double>("1 2\n", "(bz,f3.0)"), "102"}, {got<double>("1 2\n", "(f3.0)"), "12"},
      {got<double>("1 2\n", "(bz,bn,g3.0)"), "12"}, {got<double>("     \n", "(f5.0)"), "0"},
      {got<double>("  \r\n", "(f5.0)"), "0"}, {got<double>("1.5-3\n", "(d9.0)"), "0.0015"},
      {got<double>("12345\n", "(f3.0)"), "123"}, {got<double>("7.5\n", "(f)"), "7.5"},
      {got<double>("8.5\n", "(i3)"), "8.5"}, {got<double>(""), end + "floating-point value."},
      {got<double>("1E400\n", "(f9.0)"), "error 1: Out-of-range error while reading floating-point value."},
      {got<double>("+\n", "(f9.0)"), end + "floating-point value."},
      {got<double>("abc\n"), bad_real + "\"a\" (ordinal=97)"}, {got<double>("1.5/\n"), bad_real + "\"/\" (ordinal=47)"},
      // clang-format on
  };
  for (std::size_t n = 0; n < rows.size(); ++n) EXPECT_EQ(rows[n].first, rows[n].second) << "row " << n;
  for (const char* format : {"('x',a)", "($,a)", "(t5,a)", "(sp,a)"})
    EXPECT_FAILURE(got<text4>("line\n", format), "Not implemented: read_loop.cpp(#)");
}

TEST_F(read_test, each_statement_leaves_the_unit_at_the_next_line) {
  file("first line\nsecond\nthird\n");
  EXPECT_EQ(next_line(), "firs");
  fem::read(units, UNIT, "(a)");
  EXPECT_EQ(next_line(), "thir");
  file("1x2\n34\n");  // a failure also: the rest of its line is passed over
  int whole = 0;
  EXPECT_THROW(fem::read_list_directed(units, UNIT, whole), fem::io_err);
  EXPECT_EQ(next_line(), "34  ");
}

TEST_F(read_test, list_directed_items_end_at_commas_blanks_and_line_ends) {
  file("1,2\t-3\n\r\n 4.5,5 6\r\n text\n3");
  int first = 0, second = 0, third = 0, iostat = 9;
  double fourth = 0, fifth = 0;
  fem::read_list_directed(units, UNIT, first, second, third, fourth, fifth);
  EXPECT_EQ((std::array{1.0 * first, 1.0 * second, 1.0 * third, fourth, fifth}),
            (std::array{1.0, 2.0, -3.0, 4.5, 5.0}));
  fem::read_list_directed(units, UNIT, text);
  EXPECT_EQ(text.view(), " tex");
  fem::read_loop(units, UNIT).iostat(&iostat).real(fourth);  // the last line needs no end
  EXPECT_EQ(fourth, 3.0);
  EXPECT_EQ(iostat, 0);
}

TEST_F(read_test, unformatted_text_escapes_its_record_mark) {
  file("ab\xAA\xAA\xAA\x01");
  fem::read_loop loop(units, UNIT, fem::io_mode::unformatted);
  fem::fixed_text<3> bytes;
  loop(bytes);
  EXPECT_EQ(bytes.view(), "ab\xAA");
  EXPECT_READ_END(loop(text), "End of record during unformatted read");
  EXPECT_IO_ERR(loop(text), "read statement has ended already");
  file(std::string("ab..\xAA\xAA\xAA\0next", 12));
  { fem::read_loop(units, UNIT, fem::io_mode::unformatted).text(text); }
  EXPECT_EQ(text.view(), "ab..");
  EXPECT_EQ(next_line(), "next");
  EXPECT_READ_END(fem::read_loop(units, UNIT, fem::io_mode::unformatted)(text), "End of input during read");
}
