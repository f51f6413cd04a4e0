#include "report/read_interface_file.hpp"

#include <gtest/gtest.h>

#include <sstream>

#include "programs/sample_rif.hpp"
#include "report/record_reader.hpp"
#include "support/text_rows.hpp"

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
    read_interface_file("T.RIF", std::istringstream(text));
  } catch (const rif_error& error) {
    return error.what();
  }
  return "taken";
}

TEST(ReadInterfaceFile, TakesAllRecords) {
  const interface_file file =
      read_interface_file("T.RIF", std::istringstream(sample::rif({2, 3, 2, true, "A <label>"})));
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

TEST(ReadInterfaceFile, RefusesDamage) {
  const strings good = lines_of(sample::rif());
  ASSERT_EQ(good.size(), 339U);
  for (const strings& row : rows_of("programs/damages.txt")) {
    strings lines = good;
    const std::size_t number = std::stoul(row[0]) - 1;
    std::string& line = lines[number];
    const std::string from = replaced(row[1], "~", " "),
                      to = replaced(replaced(row[2], "~", " "), "\\n", "\n");
    if (from == "all") {
      lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(number));
    } else {
      const std::size_t at = from.empty() ? line.size() : line.find(from);
      ASSERT_NE(at, std::string::npos) << row[3] << "\n" << line;
      line.replace(at, from.size(), to);
    }
    EXPECT_EQ(lines_of(refusal(text_of(lines)))[0], "T.RIF:" + row[3]);
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

TEST(ReadInterfaceFile, RefusesNonsenseAtOnceAndQuotesLittleOfIt) {
  const strings lines = lines_of(sample::rif());
  // In front, in a name, in a text line, in a field.
  for (const std::ptrdiff_t count : {0, 2, 7, 20}) {
    const std::string good = text_of(strings(lines.begin(), lines.begin() + count));
    std::istringstream stream(good + "        " + std::string(1000000, '\x1b'));
    try {
      read_interface_file("T.RIF", std::move(stream));
      FAIL();
    } catch (const rif_error& error) {
      EXPECT_LT(std::string(error.what()).size(), 800U);
      EXPECT_EQ(std::string(error.what()).find('\x1b'), std::string::npos);
      stream.clear();
      EXPECT_LT(stream.tellg(), good.size() + 1000);
    }
  }
}

TEST(RecordReader, RefusesUnknownNames) {
  std::istringstream stream("RVSOILXX  4.00000000E+00\n");
  record_reader in("T.RIF", stream);
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
