#include "fem/write.hpp"

#include <cmath>
#include <utility>

#include "fem/open_chain.hpp"
#include "fem_directory.hpp"

namespace {

class WriteTest : public fem_directory {
 protected:
  /// What one statement writes to unit 16.
  template <class... Items>
  std::string written(const char* format, const Items&... items) {
    units.close_unit(16, nullptr, true);
    fem::write(units, 16, format, items...);
    return printed(16);
  }
};

}  // namespace

TEST_F(WriteTest, EditsItsItems) {
  fem::fixed_text<3> fixed;
  fixed.assign("abc");
  const fem::text_ref ref = fixed;
  const std::string many(700, 'q');
  const std::pair<std::string, std::string> rows[] = {
      // clang-format off
      // Integers widen and never show stars.
      {written("(i5,i4.3,i4.3,i2.2,i,i2,i1,i05)", 42, 7, 588, 5, -3, -12345, 0, 42), "   42 007 58805-3-12345000042"},
      {written("(i300)", 1), std::string(299, ' ') + "1"},
      {written("(a4,f8.3,z)", 1, 2, 3), " 1 2 3"},
      // Text constants stand right, fixed texts left.
      {written("(a8,'|',a8)", "abc", fixed), "     abc|abc     "},
      {written("(a2,1x,a2,1x,a,1x,a)", "abc", ref, "abc", fixed), "ab ab abc abc"},
      {written("(2x,i9,f9.3,a0,a0)", "abc", fixed, "abc", fixed), "  abcabc"},
      // Reals under F widen and know no scale.
      {written("(2p,f8.3,f5.1,f5.1,f)", 1.5, 123456.7, -0.04, 0.5), "   1.500123456.7 -0.00.500000"},
      {written("(f5.1,f5.1)", HUGE_VAL, -HUGE_VAL), "  inf -inf"},
      // Reals under E, D, G and other descriptors.
      {written("(e12.3,1p,e12.3,d12.3,0p,e8.4)", 1230.0, 1230.0, 1230.0, 0.5), "   0.123E+04   1.230E+03   1.230D+03********"},
      {written("(-1p,e12.3,1pe12.3)", 1230.0, 1230.0), "   0.012E+05   1.230E+03"},
      {written("(g10.3,g11.3)", 12.34, 0.05), "      12.3  0.500E-01"},
      {written("(e,d,a4,i4)", 1.5, 1e10, 0.1, 1.0 / 3.0), " 1.5 1e+10 0.1 0.333333"},
      // A NaN leaves its descriptor to the next item.
      {written("(a,1x,i3)", std::nan(""), 7), "isNAN 7"},
      {written("(i2,3x,'text',f5.1,f6.2)", 1, std::nan(""), 2.0), " 1isNAN   text  2.0"},
      {written("(i2,'x=',f5.1)", 1, std::nan("")), " 1isNANx="},
      // Pending blanks reach a slash but not the end.
      {written("(i5,3x)", 1), "    1"},
      {written("(i5,3x,/,x,'a',2x)", 1), "    1   \n a"},
      {written("(1x,2x,70x,a)", "z"), std::string(73, ' ') + "z"},
      // The end of a statement writes up to the next item.
      {written("('LINE',/,'TWO',i5,'no')"), "LINE\nTWO"},
      {written("(i1,:,'no')", 1), "1"},
      {written("(i1,:,' and ',i1,'.')", 1, 2), "1 and 2."},
      {written("()"), ""},
      // Items that outlast the format restart it.
      {written("(2i1,':',2i1)", 1, 2, 3, 4), "12:34"},
      {written("(/,1x,3('*'))"), "\n ***"},
      {written("(i2,2(f4.1,i2))", 1, 2.0, 3, 4.0, 5, 6.0), " 1 2.0 3 4.0 5\n 6.0"},
      // Long records pass through in pieces.
      {written("(a,i600,a)", "start", 5, many.c_str()), "start" + std::string(599, ' ') + "5" + many},
      // clang-format on
  };
  for (const auto& [text, expected] : rows) EXPECT_EQ(text, expected + "\n");
  EXPECT_EQ(written("('no end'$)"), "no end");
  EXPECT_EQ(written("(f0.1)", 1e300).size(), 304U);
}

TEST_F(WriteTest, ATextTargetIsFilledOrCut) {
  char text[] = "##########";
  const fem::text_ref target{text, 8};
  fem::write(target, "(i3,/,a)", 12, "ab");
  EXPECT_STREQ(text, " 12\nab  ##");
  fem::write(target, "(a,a)", "123456", "7890");
  EXPECT_STREQ(text, "12345678##");
  fem::write(target, "(f4.1,3x)", 1.5);
  EXPECT_STREQ(text, " 1.5    ##");
}

TEST_F(WriteTest, AFailureEndsTheStatementWithWhatWasWritten) {
  const auto failing = [&](const char* format) {
    return failure_of([&] { fem::write(units, 16, format, 1, 2); });
  };
  for (const char* format : {"(i1,t5,i1)", "(i1,sp,i1)", "(i1,bz,i1)"})
    EXPECT_EQ(failing(format), "Not implemented: write_loop.cpp(#)");
  EXPECT_EQ(failing("(i1,2,3i5)"),
            "Control flow passes through branch that should be unreachable: write_loop.cpp(#)");
  EXPECT_EQ(failing(("(i1,i1." + std::string(59, '1') + ")").c_str()),
            "printed_value.cpp(#): ASSERT(n + 2 < 64) failure.");
  EXPECT_EQ(failing("(i1,2('-'))"), "no data edit descriptor in the part of the format that repeats");
  EXPECT_FAILURE(fem::write(units, 16, "(g)", 1.0), "write_items.cpp(#): ASSERT(n > 1) failure.");
  units.close_unit(16);
  EXPECT_EQ(printed(16), "111111--\n--");
}

TEST_F(WriteTest, AFailingItemEndsTheRecordAndEachEndFlushes) {
  try {
    fem::write_loop loop(units, 16, "(i1,'-',i1)");
    loop(1);
    EXPECT_EQ(get("fem_io_unit_016"), "");
    throw std::out_of_range("subscript");
  } catch (const std::out_of_range&) {
  }
  EXPECT_EQ(get("fem_io_unit_016"), "1-\r\n");
  { fem::write_loop(units, 16, "(i1)")(2); }
  EXPECT_EQ(get("fem_io_unit_016"), "1-\r\n2\r\n");
}

TEST_F(WriteTest, ListDirectedRecordsStayWithin80Columns) {
  {
    fem::write_loop loop(units, 16, fem::io_mode::list_directed);
    loop("ab")("cd")(7)("x")(0.5)(1.0)(-3)(1)("end");
  }
  EXPECT_EQ(printed(16),
            " abcd           7 x  0.500000000000000        1.00000000000000               -3\n"
            "           1 end\n");
  { fem::write_loop(units, 17, fem::io_mode::list_directed)(std::string(79, 'a').c_str())("b")("c"); }
  EXPECT_EQ(printed(17), " " + std::string(79, 'a') + "\n bc\n");
}

TEST_F(WriteTest, UnformattedItemsAreRawBytes) {
  const double value = 1.5;
  { fem::write_loop(units, 16, fem::io_mode::unformatted)("ab")(0x01020304)(value); }
  const std::string bytes = get("fem_io_unit_016");
  ASSERT_EQ(bytes.size(), 2 + sizeof(int) + sizeof value + 2);
  EXPECT_EQ(bytes.substr(6, 8), std::string(reinterpret_cast<const char*>(&value), sizeof value));
}

TEST(SimpleOstream, KeepsItsFailure) {
  char text[] = "####";
  fem::utils::simple_ostream_to_char_ptr_and_size out({text, 3});
  out.put("ab");
  EXPECT_FALSE(out.failed());
  out.put("cd");
  out.put('e');
  EXPECT_STREQ(text, "abc#");
  EXPECT_TRUE(out.failed());
  std::FILE* full = std::fopen("/dev/full", "ab+");
  ASSERT_NE(full, nullptr);
  fem::utils::simple_ostream_to_c_file file(full);
  file.put('x');
  EXPECT_FALSE(file.failed());
  file.flush();
  EXPECT_TRUE(file.failed());
  std::fclose(full);
}
