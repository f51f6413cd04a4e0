#include "fem/read.hpp"

#include "fem/file_positioning_chain.hpp"
#include "fem_directory.hpp"

namespace {

constexpr int UNIT = 17;

class read_test : public fem_directory {
 protected:
  fem::fixed_text<4> text;
  int whole = -99;
  int second = -99;
  double real = -99.0;

  void file(const std::string& bytes) {
    units.close_unit(UNIT);
    put("fem_io_unit_017", bytes);
  }
  /// A formatted read of one item from a file.
  template <class Item>
  Item item(const std::string& bytes, const char* format) {
    file(bytes);
    Item value{};
    fem::read(units, UNIT, format, value);
    return value;
  }
  std::string text_of(const std::string& bytes, const char* format) {
    return std::string(item<fem::fixed_text<4>>(bytes, format).view());
  }
  /// The rest of the line at which the unit stands, up to four characters.
  std::string next_line() {
    fem::read(units, UNIT, "(a)", text);
    return std::string(text.view());
  }
  /// Text of the failure of a list-directed or formatted read of one item, with the iostat it left.
  template <class Failure, class Item>
  std::string failing(const std::string& bytes, const char* format) {
    file(bytes);
    int iostat = 9;
    Item value{};
    const std::string what = failure_of<Failure>([&] {
      if (format == nullptr)
        fem::read_loop(units, UNIT).iostat (&iostat)(value);
      else
        fem::read_loop(units, UNIT, format).iostat (&iostat)(value);
    });
    return std::to_string(iostat) + " " + what;
  }
};

using fixed4 = fem::fixed_text<4>;

}  // namespace

TEST_F(read_test, texts_take_their_own_length_whatever_the_width) {
  EXPECT_EQ(text_of("abcdef\n", "(a)"), "abcd");
  EXPECT_EQ(text_of("abcdef\n", "(a1)"), "abcd");
  EXPECT_EQ(text_of("abcdef\n", "(a6)"), "cdef");  // a wider field: its last characters
  EXPECT_EQ(text_of("ab\n", "(a4)"), "ab  ");
  EXPECT_EQ(text_of("ab\r\n", "(a4)"), "ab  ");
  EXPECT_EQ(text_of("a\rb\n", "(a4)"), "a\rb ");
  EXPECT_EQ(text_of("ab", "(a4)"), "ab  ");
  EXPECT_EQ(text_of("ab\ncdefgh", "(a8)"), "    ");  // the skip stays in its line
  EXPECT_EQ(text_of("xxab\n", "(2x,a)"), "ab  ");
  EXPECT_EQ(text_of("x\nab\n", "(5x,a)"), "    ");
  EXPECT_EQ(text_of("one\ntwo\n", "(/,a)"), "two ");
}

TEST_F(read_test, each_statement_leaves_the_unit_at_the_next_line) {
  file("first line\nsecond\nthird\n");
  EXPECT_EQ(next_line(), "firs");
  fem::read(units, UNIT, "(a)");
  EXPECT_EQ(next_line(), "thir");
  EXPECT_THROW(next_line(), fem::read_end);
  file("1x2\n34\n");  // a failure also: the rest of its line is passed over
  EXPECT_THROW(fem::read_list_directed(units, UNIT, whole), fem::io_err);
  EXPECT_EQ(next_line(), "34  ");
}

TEST_F(read_test, integer_fields) {
  const struct {
    const char* bytes;
    const char* format;
    int value;
  } rows[] = {
      {"  12\n", "(i4)", 12}, {"1 2\n", "(i3)", 12}, {" -7 \n", "(i4)", -7},
      {"+7\n", "(i4)", 7},    {"    \n", "(i4)", 0}, {"1234\n", "(i2)", 12},
      {"1,234\n", "(i5)", 1}, {"12", "(i4.3)", 12},  {"34\n", "(i0)", 0},
      {" 56 \n", "(i)", 56},  {"7,\n", "(f9.3)", 7}, {"2147483648\n", "(i10)", INT32_MIN},
  };
  for (const auto& row : rows)
    EXPECT_EQ(item<int>(row.bytes, row.format), row.value) << row.bytes << row.format;
  const std::string bad = "Invalid character while reading integer value.";
  EXPECT_EQ((failing<fem::io_err, int>("1.5\n", "(i3)")), "1 " + bad);
  EXPECT_EQ((failing<fem::io_err, int>("1-5\n", "(i3)")), "1 " + bad);
}

TEST_F(read_test, real_fields) {
  const struct {
    const char* bytes;
    const char* format;
    double value;
  } rows[] = {
      {"    12\n", "(f8.2)", 0.12}, {"12.\n", "(f8.2)", 12.0},       {"1.0D+2\n", "(e8.2)", 100.0},
      {"3.0\n", "(1p,f8.2)", 0.3},  {"3.0E0\n", "(1p,f8.2)", 3.0},   {"1 2\n", "(bz,f3.0)", 102.0},
      {"1 2\n", "(f3.0)", 12.0},    {"1 2\n", "(bz,bn,g3.0)", 12.0}, {"     \n", "(f5.0)", 0.0},
      {"  \r\n", "(f5.0)", 0.0},    {"1.5-3\n", "(d9.0)", 0.0015},   {"12345\n", "(f3.0)", 123.0},
      {"7.5\n", "(f)", 7.5},        {"8.5\n", "(i3)", 8.5},
  };
  for (const auto& row : rows)
    EXPECT_DOUBLE_EQ(item<double>(row.bytes, row.format), row.value) << row.bytes << row.format;
  EXPECT_EQ((failing<fem::io_err, double>("1E400\n", "(f9.0)")),
            "1 Out-of-range error while reading floating-point value.");
  EXPECT_EQ((failing<fem::read_end, double>("+\n", "(f9.0)")),
            "-1 End of input while reading floating-point value.");
}

TEST_F(read_test, list_directed_items_end_at_commas_blanks_and_line_ends) {
  file("1,2\t-3\n\r\n 4.5,5 6\r\nnext\n");
  int third = 0;
  double fifth = 0;
  fem::read_list_directed(units, UNIT, whole, second, third, real, fifth);
  EXPECT_EQ(whole, 1);
  EXPECT_EQ(second, 2);
  EXPECT_EQ(third, -3);
  EXPECT_EQ(real, 4.5);
  EXPECT_EQ(fifth, 5.0);
  EXPECT_EQ(next_line(), "next");
  file("7\n2.5\n text\n3");
  int iostat = 9;
  fem::read_loop(units, UNIT).iostat(&iostat).integer(whole);
  EXPECT_EQ(iostat, 0);
  fem::read_list_directed(units, UNIT, real);
  fem::read_list_directed(units, UNIT, text);
  EXPECT_EQ(text.view(), " tex");
  fem::read_list_directed(units, UNIT, real);  // the last line needs no end
  EXPECT_EQ(real, 3.0);
}

TEST_F(read_test, failures_leave_iostat_and_throw) {
  const std::string bad_real = "Invalid character while reading floating-point value: ";
  EXPECT_EQ((failing<fem::read_end, fixed4>("", "(a)")), "-1 End of input during read");
  EXPECT_EQ((failing<fem::read_end, fixed4>("ab", "(2x,a)")), "-1 End of input while reading string");
  EXPECT_EQ((failing<fem::read_end, fixed4>("ab", "(2x,a9)")), "-1 End of input while reading string");
  EXPECT_EQ((failing<fem::read_end, fixed4>("ab\n", "(/,a)")), "-1 End of input while reading string");
  EXPECT_EQ((failing<fem::read_end, int>(" \n", nullptr)), "-1 End of input while reading integer value");
  EXPECT_EQ((failing<fem::read_end, double>("", nullptr)),
            "-1 End of input while reading floating-point value.");
  EXPECT_EQ((failing<fem::io_err, double>("abc\n", nullptr)), "1 " + bad_real + "\"a\" (ordinal=97)");
  EXPECT_EQ((failing<fem::io_err, double>("1.5/\n", nullptr)), "1 " + bad_real + "\"/\" (ordinal=47)");
  // These two leave iostat as it was.
  EXPECT_EQ((failing<fem::io_err, int>("1.5\n", nullptr)),
            "9 Invalid character while reading integer value.");
  EXPECT_EQ((failing<fem::read_end, int>("-", nullptr)), "9 End of input while reading integer value");
}

TEST_F(read_test, descriptors_without_a_place_in_a_read) {
  for (const char* format : {"('x',a)", "($,a)", "(t5,a)", "(sp,a)"})
    EXPECT_EQ((failing<std::runtime_error, fixed4>("line\n", format)), "9 Not implemented: read_loop.cpp(#)")
        << format;
  EXPECT_EQ(text_of("line\n", "(:,a)"), "line");
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
