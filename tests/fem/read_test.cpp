#include "fem/read.hpp"

#include <array>
#include <sstream>

#include "fem/file_positioning_chain.hpp"
#include "fem_directory.hpp"
#include "support/text_rows.hpp"

namespace {

constexpr int UNIT = 17;

using text4 = fem::fixed_text<4>;

class ReadTest : public fem_directory {
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

TEST_F(ReadTest, ItemsAndFailures) {
  for (const auto& row : rows_of("fem/read_items.txt")) {
    const char* format = row[1].empty() ? nullptr : row[1].c_str();
    const auto plain = [](const std::string& shown) {
      return replaced(replaced(replaced(shown, "~", " "), "\\n", "\n"), "\\r", "\r");
    };
    const std::string bytes = plain(row[2]);
    const std::string item = row[0] == "text4" ? got<text4>(bytes, format)
                             : row[0] == "int" ? got<int>(bytes, format)
                                               : got<double>(bytes, format);
    EXPECT_EQ(item, plain(row[3])) << row[0] << " " << row[1] << " " << row[2];
  }
  for (const char* format : {"('x',a)", "($,a)", "(t5,a)", "(sp,a)"})
    EXPECT_FAILURE(got<text4>("line\n", format), "Not implemented: read_loop.cpp(#)");
}

TEST_F(ReadTest, EachStatementLeavesTheUnitAtTheNextLine) {
  file("first line\nsecond\nthird\n");
  EXPECT_EQ(next_line(), "firs");
  fem::read(units, UNIT, "(a)");
  EXPECT_EQ(next_line(), "thir");
  file("1x2\n34\n");  // a failure also: the rest of its line is passed over
  int whole = 0;
  EXPECT_THROW(fem::read_list_directed(units, UNIT, whole), fem::io_err);
  EXPECT_EQ(next_line(), "34  ");
}

TEST_F(ReadTest, ListDirectedItemsEndAtCommasBlanksAndLineEnds) {
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

TEST_F(ReadTest, UnformattedTextEscapesItsRecordMark) {
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
