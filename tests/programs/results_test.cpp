#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "companion/interface_file.hpp"
#include "companion/results.hpp"
#include "Platform/files.hpp"
#include "support/work_directory.hpp"

namespace {

using tervak::companion::results;
using tervak::companion::results_of;

std::string example(const std::string& name) {
  return tervak::os::read_file(TERVAK_SOURCE_DIR "/examples/" + name);
}

std::string replaced(std::string text, const std::string& what, const std::string& by) {
  const std::size_t at = text.find(what);
  EXPECT_NE(at, std::string::npos) << what;
  return at == std::string::npos ? text : text.replace(at, what.size(), by);
}

/// A run of a deck in a directory, of which a file is then spoilt.
class Results : public ::testing::Test, public work_directory {
 protected:
  static void run(const std::string& deck) {
    put("TERVAK.INP", deck);
    put("tervak.inp", deck);
    tervak::os::run_program(TERVAK_PROGRAM, ".");
  }
  static std::string said() { return text_of(results_of(".", TERVAK_PROGRAM)); }
};

const std::string WHOLE =
    "  TERVAK.LIS: whole\n  TERVAK.RIF: whole\n  soil_halde.fem: whole\n  soil_70.fem: whole\n  TERVAK.MLG: whole\n";

struct spoilt {
  const char* file;
  std::string (*spoil)(std::string);
  const char* fault;
};

const std::vector<spoilt> DAMAGE = {
    {"TERVAK.RIF", [](std::string s) { return s.substr(0, 5000); }, "is cut off: it ends after 5000 of "},
    {"soil_70.fem", [](std::string) { return std::string(); }, "is empty"},
    {"TERVAK.LIS", [](std::string s) { return s.replace(900, 3, 3, '\0'); }, "found \"\\x00\\x00\\x00"},
    {"TERVAK.RIF", [](std::string s) { return replaced(std::move(s), "7.6.1.21", "7.6.1.20"); },
     "line 3, column 60: found \"0 19-FEB-2021\", expected \"1 19-FEB-2021\""},
    {"TERVAK.MLG", [](std::string s) { return s + " x\n"; }, ": goes on after the end of the run's file"},
    // Another time, machine and user are the same run; a stamp that is none is damage.
    {"TERVAK.RIF", [](std::string s) { return s.replace(s.find("USER: ") + 10, 4, "Anne"); }, ": whole"},
    {"TERVAK.RIF", [](std::string s) { return s.replace(s.find("TIME: ") + 14, 8, "23:59:58"); }, ": whole"},
    {"TERVAK.RIF", [](std::string s) { return s.replace(s.find("TIME: ") + 14, 1, 1, '\0'); },
     "line 4, column "},
};

TEST_F(Results, ASpoiltFileIsToldWithItsPlace) {
  run(example("small-clay.inp"));
  ASSERT_EQ(said(), WHOLE);
  for (const spoilt& row : DAMAGE) {
    const std::string good = get(row.file);
    put(row.file, row.spoil(good));
    const std::string answer = said();
    const std::size_t line = answer.find(row.file);
    EXPECT_NE(answer.substr(line, answer.find('\n', line) - line).find(row.fault), std::string::npos)
        << row.fault << " in\n"
        << answer;
    put(row.file, good);
  }
  std::filesystem::remove("TERVAK.RIF");
  EXPECT_NE(said().find("TERVAK.RIF: not whole: is missing"), std::string::npos);
}

TEST_F(Results, AChangedOrRefusedDeck) {
  run(example("small-clay.inp"));
  put("TERVAK.INP", replaced(example("small-clay.inp"), "lower bound", "upper bound"));
  EXPECT_NE(said().find("TERVAK.MLG: not whole: line 38, column 34: found \"low"), std::string::npos)
      << said();
  run(example("faults/misspelt-keyword.inp"));  // the former TERVAK.RIF stays behind
  EXPECT_EQ(said(),
            "  TERVAK.LIS: not whole: the run ended with status 1\n"
            "  TERVAK.RIF: not whole: is of another run: this deck's run leaves no such file\n"
            "  soil_halde.fem: not whole: the run ended with status 1\n"
            "  soil_70.fem: not whole: the run ended with status 1\n"
            "  TERVAK.MLG: whole\n");
  EXPECT_FALSE(results_of(".", TERVAK_PROGRAM).whole());
  EXPECT_NE(text_of(results_of("nowhere", TERVAK_PROGRAM)).find("cannot be told: nowhere/TERVAK.INP"),
            std::string::npos);
}

TEST(InterfaceFile, NumbersThatAreNoneAndAMissingEnd) {
  const auto fault = [](const std::string& name, const std::string& last) {
    return tervak::companion::summary_of_interface_file(
               "DATE      1.0\n INF\n NAN\n INF\n NAN\nTSOILPRF  4.00000000E+00\n        INF\n        NAN\nRVSOILPY" +
               name + "\n" + last)
        .fault;
  };
  const std::string number = "  1.00000000E+00", end = "IEND      0.0\n";
  EXPECT_EQ(fault(number + number, end), "");
  EXPECT_EQ(fault(number + "             NAN", end), "line 9, column 25: NAN is no number");
  EXPECT_EQ(fault("            -INF", end), "line 9, column 9: INF is no number");
  EXPECT_EQ(fault(number, ""), "has no closing record IEND");
}

}  // namespace
