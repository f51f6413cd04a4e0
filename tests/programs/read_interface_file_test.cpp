#include "report/read_interface_file.hpp"

#include <gtest/gtest.h>

#include <sstream>

#include "programs/sample_rif.hpp"
#include "report/record_reader.hpp"

namespace tervak::report {
namespace {

using strings = std::vector<std::string>;

strings lines_of(const std::string& text) {
  strings out;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) out.push_back(line);
  return out;
}

std::string text_of(const strings& lines, const std::string& end = "\n") {
  std::string out;
  for (const std::string& line : lines) out += line + end;
  return out;
}

std::string refusal(const std::string& text) {
  try {
    read_interface_file("T.RIF", text);
  } catch (const rif_error& error) {
    return error.what();
  }
  return "taken";
}

TEST(ReadInterfaceFile, TakesAllRecords) {
  const interface_file file = read_interface_file("T.RIF", sample::rif({2, 3, 2, true, "A <label>"}));
  EXPECT_EQ(file.date_lines[1], "DATE:     05-Mar-2024");
  ASSERT_EQ(file.profiles.size(), 2U);
  const profile& p = file.profiles[1];
  EXPECT_EQ(p.number, 2);
  EXPECT_EQ(p.name, "BORING-2");
  EXPECT_EQ(p.label, "A <label>");
  EXPECT_EQ(p.diameters, (std::vector<double>{1.0, 2.0}));
  EXPECT_EQ(p.general_scour, 0.5);
  ASSERT_EQ(p.displacements.size(), 1U);
  EXPECT_EQ(p.displacements[0].x, 0.1);
  ASSERT_EQ(p.layers.size(), 3U);
  const layer& l = p.layers[1];
  EXPECT_EQ(l.ZBOTM, 2.0);
  EXPECT_EQ(l.PHIR, 34.5);
  EXPECT_EQ(l.G, 5250.0);
  EXPECT_EQ(l.V, 3.00000012e-1);
  EXPECT_EQ(l.tz_code, 293);
  EXPECT_TRUE(p.layers[0].above_scour());
  EXPECT_FALSE(l.above_scour());
  // T-Z of diameter 2: point 16 is the first behind the origin, 0.3 of 14 at 0.0016 D.
  EXPECT_EQ(l.of(curve_kind::tz)[1][15].stress, 4.2);
  EXPECT_EQ(l.of(curve_kind::tz)[1][15].displacement, 0.0032);
  EXPECT_EQ(l.of(curve_kind::qz)[0][28].stress, 126.0);
  EXPECT_EQ(l.of(curve_kind::mtheta)[1][16].stress, 200.0);
  EXPECT_TRUE(l.of(curve_kind::bmtheta).empty());
  EXPECT_EQ(l.of(curve_kind::bsy).size(), 2U);
}

TEST(ReadInterfaceFile, TakesOtherLineEndsAndCurvesWithoutPoints) {
  strings lines = lines_of(sample::rif());
  EXPECT_EQ(refusal(text_of(lines, "\r\n")), "taken");
  // The P-Y curve of layer 1 and diameter 1 without its points: eight fields on two lines.
  lines.erase(lines.begin() + 34, lines.begin() + 49);
  lines[32].replace(8, 16, "  8.00000000E+00");
  lines[33].replace(56, 16, "  0.00000000E+00");
  EXPECT_EQ(refusal(text_of(lines)), "taken");
}

struct damage {
  std::size_t line;  // from 1
  std::string from;  // found in the line; empty: its end. "all" takes the line out
  std::string to;
  std::string first_line;  // of the message
};

// The sample: line 7 TSOILPRF, 10 and 11 the diameters, 12 RDSOIPRF, 16 RDSOIDSP, 18 the first layer, 33 its
// first P-Y curve over 17 lines, then Q-Z and T-Z; 339 IEND.
const std::vector<damage> damages = {
    {1, "IDENT", "IDENX", "T.RIF:1:1: expected record IDENT, with which an interface file begins"},
    {2, "DATE", "DATA", "T.RIF:2:1: expected record DATE behind IDENT"},
    {3, "        PRO", "PRO", "T.RIF:3:1: expected a text line of record DATE with eight blanks in front"},
    {7, "1.80000000", "1.02000000", "T.RIF:7:57: text line 2 has 23 characters, expected at most 2"},
    {10, "1.00000000E+00  1.00000000E+00  1.0", "1.00000000E+00  1.00000000E+00 -1.0",
     "T.RIF:10:57: expected a diameter greater than 0, found -1"},
    {11, "all", "",
     "T.RIF:13:9: field 9 of RDSOIPRF is the number of diameters, of which the records RDSOILDI stand above, expected 1, found 2"},
    {13, "3.00000000", "3.50000000",
     "T.RIF:13:25: field 6 of RDSOIPRF is the number of layers, expected a whole number from 1 to 500, found 3.5"},
    {12, "1.00000000E+00", "2.00000000E+00",
     "T.RIF:12:25: field 2 of RDSOIPRF is the number of the profile, expected 1, found 2"},
    {18, "1.70000000", "1.60000000", "T.RIF:18:9: record RVSOILAY has 17 fields here, found a count of 16"},
    {19, "5.00000000E-01", "5.0000000OE-01",
     "T.RIF:19:9: expected a number of the form 1.00000000E+00 in columns 9 to 24, found \"5.0000000OE-01\""},
    {19, "  5.00000000E-01", "             NAN",
     "T.RIF:19:9: expected a number of the form 1.00000000E+00 in columns 9 to 24, found \"NAN\""},
    {19, "5.00000000E-01", "5.0000000E-01",
     "T.RIF:19:72: the line ends in column 71, expected a field in columns 57 to 72"},
    {20, "", " ",
     "T.RIF:20:73: the line ends in column 73, expected no more than four fields, which end in column 72"},
    {23, "RVSOILAY", "RVSOILAX", "T.RIF:23:1: expected RVSOILAY of layer 2 of profile 1"},
    {33, "RVSOILPY", "RVSOILTZ", "T.RIF:33:1: expected RVSOILPY of layer 1, diameter 1 of profile 1"},
    {34, "2.90000000E+01", "2.80000000E+01",
     "T.RIF:33:9: record RVSOILPY has 64 fields here, found a count of 66"},
    {40, "all", "",
     "T.RIF:48:1: record RVSOILPY of line 33 has 66 fields, found 62 up to the end of this line, expected 64"},
    {49, "all", "",
     "T.RIF:49:1: record RVSOILPY of line 33 has 66 fields, found 64, expected a continuation line with eight "
     "blanks in front"},
    {49, "", "\n          1.00000000E+00",
     "T.RIF:50:1: expected RVSOILQZ of layer 1, diameter 1 of profile 1"},
    {84, "2.00000000E+00  1.0", "1.00000000E+00  1.0",
     "T.RIF:84:41: field 3 of RVSOILPY is the number of the diameter, expected 2, found 1"},
    {84, "2.00000000E+00  1.00000000E+00", "2.00000000E+00  3.00000000E+00",
     "T.RIF:84:57: field 4 of RVSOILPY is the number of the layer, expected 1, found 3"},
    {142, "-1.50000000E-01", "-4.50000000E-01",
     "T.RIF:142:57: point 12 of RVSOILPY falls back: expected a displacement not below -0.4, found -0.45"},
    {136, "3.20000000E+01", "3.20000010E+01",
     "T.RIF:136:9: field 5 of RVSOILPY is the greatest stress of the curve, found 32.000001, but that of its points is 32"},
    {339, "all", "",
     "T.RIF:338: behind the last line: expected IEND or a further profile; no IEND: the run that wrote this file did not end properly"},
    {339, "IEND    ", "RDSOILDI", "T.RIF:339:1: expected IEND or the TSOILPRF of a further profile"},
    {339, "", "\n          0.00000000E+00", "T.RIF:340:1: expected nothing behind IEND"},
    {339, "", "\nIEND", "T.RIF:340:1: expected nothing behind IEND"},
};

TEST(ReadInterfaceFile, RefusesDamage) {
  const strings good = lines_of(sample::rif());
  ASSERT_EQ(good.size(), 339U);
  for (const damage& d : damages) {
    strings lines = good;
    std::string& line = lines[d.line - 1];
    if (d.from == "all") {
      lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(d.line) - 1);
    } else {
      const std::size_t at = d.from.empty() ? line.size() : line.find(d.from);
      ASSERT_NE(at, std::string::npos) << d.first_line << "\n" << line;
      line.replace(at, d.from.size(), d.to);
    }
    EXPECT_EQ(lines_of(refusal(text_of(lines)))[0], d.first_line);
  }
}

TEST(ReadInterfaceFile, RefusesCutAndUnfinishedFiles) {
  const std::string good = sample::rif();
  const strings lines = lines_of(good);
  const auto until = [&](std::size_t count) {
    return text_of(strings(lines.begin(), lines.begin() + static_cast<std::ptrdiff_t>(count)));
  };
  EXPECT_EQ(
      refusal(until(40)),
      "T.RIF:40: behind the last line: record RVSOILPY of line 33 has 66 fields, found 32 when the file ended: it is "
      "cut off, or the run that wrote it did not end properly");
  EXPECT_EQ(
      refusal(until(49)),
      "T.RIF:49: behind the last line: expected RVSOILQZ of layer 1, diameter 1 of profile 1; no IEND: the run that "
      "wrote this file did not end properly");
  EXPECT_EQ(
      refusal(until(49) + lines.back() + "\n"),
      "T.RIF:50:1: IEND stands where RVSOILQZ of layer 1, diameter 1 of profile 1 was expected: the run failed within "
      "this profile, see its log TERVAK.MLG\n  " +
          lines.back() + "\n  ^");
  EXPECT_EQ(
      refusal(until(6) + lines.back() + "\n"),
      "T.RIF:7:1: the file holds no profile: the run failed before it finished one, see its log TERVAK.MLG\n  " +
          lines.back() + "\n  ^");
  EXPECT_EQ(
      refusal(until(39) + lines[39].substr(0, 30)),
      "T.RIF:40:31: the line ends in column 30, expected a field in columns 25 to 40; this is the last line: the file "
      "is cut off\n  " +
          lines[39].substr(0, 30) + "\n  " + std::string(30, ' ') + "^");
  EXPECT_EQ(refusal(""),
            "T.RIF:0: behind the last line: expected record IDENT, with which an interface file begins");
  // Whatever the length, a cut file is refused; only the last line end may be missing.
  for (std::size_t size = 0; size + 1 < good.size(); size += 97)
    EXPECT_NE(refusal(good.substr(0, size)), "taken") << size;
  EXPECT_EQ(refusal(good.substr(0, good.size() - 1)), "taken");
}

TEST(RecordReader, RefusesUnknownNames) {
  record_reader in("T.RIF", "RVSOILXX  4.00000000E+00\n");
  try {
    in.next();
    FAIL();
  } catch (const rif_error& error) {
    EXPECT_STREQ(error.what(),
                 "T.RIF:1:1: unknown record name \"RVSOILXX\"\n  RVSOILXX  4.00000000E+00\n  ^");
  }
}

}  // namespace
}  // namespace tervak::report
