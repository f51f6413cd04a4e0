#include "fem/write.hpp"

#include <cmath>
#include <filesystem>
#include <limits>

#include "fem/open_chain.hpp"
#include "fem_directory.hpp"

namespace {

class write_test : public fem_directory {
 protected:
  /// What one statement writes to unit 16; line ends show as "|".
  template <class... Items>
  std::string written(const char* format, const Items&... items) {
    units.close_unit(16, nullptr, true);
    fem::write(units, 16, format, items...);
    return shown(get("fem_io_unit_016"));
  }
  static std::string shown(const std::string& bytes) {
    std::string text;
    for (const char c : bytes)
      if (c != '\r') text += c == '\n' ? '|' : c;
    return text;
  }
};

const double NOT_A_NUMBER = std::nan("");

}  // namespace

TEST_F(write_test, integers_widen_and_never_show_stars) {
  EXPECT_EQ(
      written("(i5,i4.3,i4.3,i2.2,i,i2,i1,i05,i300)", 42, 7, 588, 5, -3, -12345, 0, 42, 1).substr(0, 35),
      "   42 007 58805-3-12345000042      ");
  EXPECT_EQ(written("(i300)", 1), std::string(299, ' ') + "1|");
  EXPECT_EQ(written("(a4,f8.3,z)", 1, 2, 3), " 1 2 3|");
}

TEST_F(write_test, constants_stand_right_and_fixed_texts_left) {
  fem::fixed_text<3> fixed;
  fixed.assign("abc");
  fem::text_ref reference = fixed;
  EXPECT_EQ(written("(a8,'|',a8)", "abc", fixed), "     abc|abc     |");
  EXPECT_EQ(written("(a2,1x,a2,1x,a,1x,a)", "abc", reference, "abc", fixed), "ab ab abc abc|");
  EXPECT_EQ(written("(2x,i9,f9.3,a0,a0)", "abc", fixed, "abc", fixed), "  abcabc|");
}

TEST_F(write_test, reals_under_f_widen_and_know_no_scale) {
  EXPECT_EQ(written("(2p,f8.3,f5.1,f5.1,f)", 1.5, 123456.7, -0.04, 0.5), "   1.500123456.7 -0.00.500000|");
  EXPECT_EQ(written("(f0.1)", 1e300).size(), 304U);
  EXPECT_EQ(written("(f5.1,f5.1)", HUGE_VAL, -HUGE_VAL), "  inf -inf|");
}

TEST_F(write_test, reals_under_e_d_g_and_other_descriptors) {
  EXPECT_EQ(written("(e12.3,1p,e12.3,d12.3,0p,e8.4)", 1230.0, 1230.0, 1230.0, 0.5),
            "   0.123E+04   1.230E+03   1.230D+03********|");
  EXPECT_EQ(written("(-1p,e12.3,1pe12.3)", 1230.0, 1230.0), "   0.012E+05   1.230E+03|");
  EXPECT_EQ(written("(g10.3,g11.3)", 12.34, 0.05), "      12.3  0.500E-01|");
  EXPECT_EQ(written("(e,d,a4,i4)", 1.5, 1e10, 0.1, 1.0 / 3.0), " 1.5 1e+10 0.1 0.333333|");
}

TEST_F(write_test, a_nan_leaves_its_descriptor_to_the_next_item) {
  EXPECT_EQ(written("(a,1x,i3)", NOT_A_NUMBER, 7), "isNAN 7|");
  EXPECT_EQ(written("(i2,3x,'text',f5.1,f6.2)", 1, NOT_A_NUMBER, 2.0), " 1isNAN   text  2.0|");
  EXPECT_EQ(written("(i2,'x=',f5.1)", 1, NOT_A_NUMBER), " 1isNANx=|");
}

TEST_F(write_test, pending_blanks_reach_a_slash_but_not_the_end) {
  EXPECT_EQ(written("(i5,3x)", 1), "    1|");
  EXPECT_EQ(written("(i5,3x,/,x,'a',2x)", 1), "    1   | a|");
  EXPECT_EQ(written("(1x,2x,70x,a)", "z"), std::string(73, ' ') + "z|");
}

TEST_F(write_test, the_end_of_a_statement_writes_up_to_the_next_item) {
  EXPECT_EQ(written("('LINE',/,'TWO',i5,'no')"), "LINE|TWO|");
  EXPECT_EQ(written("(i1,:,'no')", 1), "1|");
  EXPECT_EQ(written("(i1,:,' and ',i1,'.')", 1, 2), "1 and 2.|");
  EXPECT_EQ(written("('no end'$)"), "no end");
  EXPECT_EQ(written("()"), "|");
}

TEST_F(write_test, items_that_outlast_the_format_restart_it) {
  EXPECT_EQ(written("(1x,a)", "one", "two"), " one| two|");
  EXPECT_EQ(written("(2i1,':',2i1)", 1, 2, 3, 4), "12:34|");
  EXPECT_EQ(written("(/,1x,3('*'))"), "| ***|");
  EXPECT_EQ(written("(i2,2(f4.1,i2))", 1, 2.0, 3, 4.0, 5, 6.0), " 1 2.0 3 4.0 5| 6.0|");
}

TEST_F(write_test, long_records_pass_through_in_pieces) {
  const std::string many(700, 'q');
  EXPECT_EQ(written("(a,i600,a)", "start", 5, many.c_str()),
            "start" + std::string(599, ' ') + "5" + many + "|");
}

TEST_F(write_test, a_text_target_is_filled_or_cut) {
  char text[] = "##########";
  const fem::text_ref target{text, 8};
  fem::write(target, "(i3,/,a)", 12, "ab");
  EXPECT_STREQ(text, " 12\nab  ##");
  fem::write(target, "(a,a)", "123456", "7890");
  EXPECT_STREQ(text, "12345678##");
  fem::write(target, "(f4.1,3x)", 1.5);
  EXPECT_STREQ(text, " 1.5    ##");
}

TEST_F(write_test, a_failure_ends_the_statement_with_what_was_written) {
  const auto failing = [&](const char* format) {
    return failure_of([&] { fem::write(units, 16, format, 1, 2); });
  };
  for (const char* format : {"(i1,t5,i1)", "(i1,sp,i1)", "(i1,bz,i1)"})
    EXPECT_EQ(failing(format), "Not implemented: write_loop.cpp(#)");
  EXPECT_EQ(failing("(i1,0i5)"), "Zero repeat count in format string.");
  EXPECT_EQ(failing("(i1,2,3i5)"),
            "Control flow passes through branch that should be unreachable: write_loop.cpp(#)");
  EXPECT_EQ(failing(("(i1,i1." + std::string(59, '1') + ")").c_str()),
            "printed_value.cpp(#): ASSERT(n + 2 < 64) failure.");
  EXPECT_EQ(failing("(i1,2('-'))"), "no data edit descriptor in the part of the format that repeats");
  EXPECT_FAILURE(fem::write(units, 16, "(g)", 1.0), "write_items.cpp(#): ASSERT(n > 1) failure.");
  units.close_unit(16);
  EXPECT_EQ(shown(get("fem_io_unit_016")), "1111111--|--");
}

TEST_F(write_test, a_failing_item_ends_the_record_and_each_end_flushes) {
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

TEST_F(write_test, list_directed_records_stay_within_80_columns) {
  {
    fem::write_loop loop(units, 16, fem::io_mode::list_directed);
    loop("ab")("cd")(7)("x")(0.5)(1.0)(-3)(1)("end");
  }
  EXPECT_EQ(shown(get("fem_io_unit_016")),
            " abcd           7 x  0.500000000000000        1.00000000000000               -3|"
            "           1 end|");
  { fem::write_loop(units, 17, fem::io_mode::list_directed)(std::string(79, 'a').c_str())("b")("c"); }
  EXPECT_EQ(shown(get("fem_io_unit_017")), " " + std::string(79, 'a') + "| bc|");
}

TEST_F(write_test, unformatted_items_are_raw_bytes) {
  const double value = 1.5;
  { fem::write_loop(units, 16, fem::io_mode::unformatted)("ab")(0x01020304)(value); }
  const std::string bytes = get("fem_io_unit_016");
  ASSERT_EQ(bytes.size(), 2 + sizeof(int) + sizeof value + 2);
  EXPECT_EQ(bytes.substr(6, 8), std::string(reinterpret_cast<const char*>(&value), sizeof value));
}

TEST(simple_ostream, keeps_its_failure) {
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
