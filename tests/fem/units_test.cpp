#include <cstdio>
#include <filesystem>
#include <regex>
#include <utility>

#include "fem/file_positioning_chain.hpp"
#include "fem/open_chain.hpp"
#include "fem/read.hpp"
#include "fem/write.hpp"
#include "fem_directory.hpp"

using std::filesystem::exists;

namespace {

class UnitsTest : public fem_directory {
 protected:
  std::string line(int unit) {
    fem::fixed_text<5> text;
    fem::read(units, unit, "(a5)", text);
    return std::string(text.view());
  }
};

}  // namespace

TEST_F(UnitsTest, OpenReportsThroughIostatAndSuccessLeavesIt) {
  put("there", "old text\n");
  const auto iostat_of = [&](int unit, const char* name, const char* status, int iostat = 7) {
    fem::open(units, unit, name).status(status).form("FORMATTED").iostat(&iostat).finish();
    return iostat;
  };
  EXPECT_EQ(iostat_of(14, " there ", "OLD"), 7);
  EXPECT_EQ(iostat_of(15, "missing", "old"), 1);
  EXPECT_EQ(iostat_of(16, "there", " New "), 1);
  EXPECT_EQ(iostat_of(17, "no/such/directory", "unknown"), 1);
  EXPECT_EQ(iostat_of(18, "fresh", "NEW", 1), 1);
  EXPECT_EQ(get("there"), "old text\n");
  EXPECT_TRUE(exists("fresh") && !exists("missing"));
}

// An open without iostat throws, but for a missing old file; a unit whose open failed takes no statement.
TEST_F(UnitsTest, FailuresAreTold) {
  int iostat = 0;
  std::filesystem::create_directory("d");
  EXPECT_NO_THROW(fem::open(units, 14, "missing").status("OLD").finish());
  const auto open = [&](const char* name) { return fem::open(units, 9, name); };
  // clang-format off
  EXPECT_IO_ERR(open("no/file").finish(), "Error opening file: no/file");
  EXPECT_IO_ERR(open("no/other").status("NEW").finish(), "Error opening file: no/other");
  EXPECT_IO_ERR(open("d").status("NEW").finish(), "OPEN NEW error: file exists already: d");
  EXPECT_IO_ERR(line(14), "unit 14 has no open file to read from: missing");
  EXPECT_IO_ERR(fem::write(units, 14, "(i5)", 1), "Cannot truncate file for writing: missing");
  EXPECT_IO_ERR(fem::rewind(units, 14), "Error rewinding file: missing");
  EXPECT_IO_ERR(fem::endfile(units, 14), "ENDFILE failure: missing");
  // Keywords and the record length are checked ahead of the file.
  EXPECT_FAILURE(open("f").form(" Print"), "OPEN FORM: invalid keyword: \" Print\"");
  EXPECT_FAILURE(open("g").status(""), "OPEN STATUS: invalid keyword: \"\"");
  EXPECT_FAILURE(open("h").access("append"), "OPEN ACCESS: invalid keyword: \"append\"");
  EXPECT_IO_ERR(open("i").access("DIRECT").iostat(&iostat).finish(), "OPEN error: unit=9 connected for DIRECT access but recl=0");
  EXPECT_IO_ERR(open("j").recl(80).iostat(&iostat).finish(), "OPEN error: unit=9 connected for SEQUENTIAL access but recl=80 (it must be omitted)");
  EXPECT_FAILURE(open("k").access("DIRECT").recl(80).finish(), "Not implemented: io_open.cpp(#)");
  EXPECT_FAILURE(fem::endfile(units, 0), "Not implemented: io.cpp(#)");
  EXPECT_FAILURE(fem::backspace(units, 14), "Not implemented: io.cpp(#)");
  // clang-format on
  fem::rewind(units, 14, &iostat);
  EXPECT_EQ(iostat, 1);
  const char* const table[] = {"old", "new", nullptr};
  EXPECT_EQ(fem::io::keyword_index(table, " NEW ", nullptr), 1);
  EXPECT_EQ(fem::io::keyword_index(table, "renew", nullptr), -1);
}

TEST_F(UnitsTest, AUnitNobodyOpenedGetsAFileOfItsOwnName) {
  for (const int unit : {7, 30, 1234}) fem::write(units, unit, "(i1)", 1);
  fem::rewind(units, 15);
  for (const char* name : {"fem_io_unit_007", "fem_io_unit_030", "fem_io_unit_1234", "fem_io_unit_015"})
    EXPECT_TRUE(exists(name)) << name;
}

TEST_F(UnitsTest, WritingCutsTheFileAtThePresentPosition) {
  put("f", "one\r\ntwo\nthree\nfour\n");
  fem::open(units, 14, "f").finish();
  EXPECT_EQ(line(14), "one  ");
  EXPECT_EQ(line(14), "two  ");
  fem::write(units, 14, "('new')");
  fem::write(units, 14, "('more')");
  EXPECT_EQ(get("f"), "one\r\ntwo\nnew\r\nmore\r\n");
  EXPECT_READ_END(line(14), "End of input during read");
  fem::write(units, 14, "('last')");
  EXPECT_EQ(get("f"), "one\r\ntwo\nnew\r\nmore\r\nlast\r\n");
  fem::rewind(units, 14);
  EXPECT_EQ(line(14), "one  ");
  fem::endfile(units, 14);
  EXPECT_EQ(get("f"), "one\r\n");
  int iostat = 3;
  fem::rewind(units, 14, &iostat);
  EXPECT_EQ(iostat, 0);
  fem::write(units, 14, "('x')");
  EXPECT_EQ(get("f"), "x\r\n");
}

// Nobody, not even root, writes to a running program or to a directory.
TEST_F(UnitsTest, AFileThatMayNotBeAppendedToOpensForReading) {
  std::filesystem::create_directory("d");
  fem::open(units, 14, "/proc/self/exe").finish();
  EXPECT_EQ(line(14).substr(1, 3), "ELF");
  EXPECT_IO_ERR(fem::write(units, 14, "(i1)", 1), "Cannot truncate file for writing: /proc/self/exe");
  fem::open(units, 15, "d").finish();
  EXPECT_IO_ERR(line(15), "Error during read");
  double value = 0;
  EXPECT_IO_ERR(fem::read_list_directed(units, 15, value), "Input error while reading floating-point value.");
}

TEST_F(UnitsTest, AUnitCanBeClosedAndOpenedOnAnotherName) {
  int iostat = 5;
  fem::close(units, 14, &iostat);
  EXPECT_EQ(iostat, 5);
  fem::open(units, 14, "a").finish();
  fem::write(units, 14, "('a')");
  fem::close(units, 14, &iostat);
  EXPECT_EQ(iostat, 0);
  fem::write(units, 14, "('b')");
  EXPECT_EQ(get("a"), "a\r\n");
  EXPECT_EQ(get("fem_io_unit_014"), "b\r\n");
  units.close_unit(14, nullptr, true);
  EXPECT_FALSE(exists("fem_io_unit_014"));

  fem::open(units, 14, "a").finish();
  EXPECT_FAILURE(fem::open(units, 14, "a "), "Not implemented: io_open.cpp(#)");
  fem::open(units, 14, "c").finish();
  fem::write(units, 14, "('c')");
  EXPECT_EQ(get("c"), "c\r\n");
  fem::open(units, 14).finish();  // no name: the unit's present file
  EXPECT_EQ(line(14), "c    ");
}

TEST_F(UnitsTest, StandardUnitsAreLeftAlone) {
  testing::internal::CaptureStdout();
  testing::internal::CaptureStderr();
  fem::write(units, 6, "(i3)", 42);
  fem::write(units, 0, "(i3)", 43);
  EXPECT_EQ(testing::internal::GetCapturedStdout() + testing::internal::GetCapturedStderr(), " 42\n 43\n");
  fem::close(units, 6);  // the stream stays open, but the unit is gone
  EXPECT_IO_ERR(fem::write(units, 6, "(i3)", 42), "Error opening file: ");
  EXPECT_EQ(std::fflush(stdout), 0);
}

TEST_F(UnitsTest, ScratchFilesLiveUntilTheirUnitIsClosed) {
  const auto files = [] { return std::distance(std::filesystem::directory_iterator("."), {}); };
  {
    fem::io own;
    fem::open(own, 20, "dropped").status("SCRATCH").finish();
    fem::open(own, 21).status("SCRATCH").finish();
    EXPECT_EQ(files(), 2);
    fem::write(own, 20, "('x')");
    fem::rewind(own, 20);
    fem::close(own, 20);
    EXPECT_EQ(files(), 1);
    fem::io other(std::move(own));
    other = fem::io();
  }
  EXPECT_EQ(files(), 0);
}

TEST(ScratchNames, PassesOverNamesThatExistAndGivesUpInTheEnd) {
  fem::utils::scratch_names names;
  int tried = 0;
  const auto third = [&](const std::string&) { return ++tried < 3; };
  EXPECT_TRUE(std::regex_match(names.next(third), std::regex("fem_io_unit_scratch_[a-z][a-z0-9]{7}")));
  EXPECT_EQ(tried, 3);
  EXPECT_FAILURE(names.next([&](const std::string&) { return ++tried > 0; }),
                 "scratch_names.cpp(#): ASSERT(run_away_counter < 1000) failure.");
  EXPECT_EQ(tried, 1003);
}

TEST_F(UnitsTest, CleanUpDeletesTheRegularFilesOfTheRuntime) {
  for (const char* name : {"fem_io_unit_015", "fem_io", "fem_i", "my_fem_io"}) put(name, "");
  std::filesystem::create_directory("fem_io_directory");
  std::filesystem::create_symlink("nowhere", "dangling");
  testing::internal::CaptureStderr();
  units.remove_runtime_files();
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "Error While Accessing : ./dangling :: No such file or directory\n");
  EXPECT_FALSE(exists("fem_io_unit_015") || exists("fem_io"));
  EXPECT_TRUE(exists("fem_i") && exists("my_fem_io") && exists("fem_io_directory"));
}

TEST(StopInfo, TellsPlaceAndMessageOrCode) {
  EXPECT_STREQ(fem::stop_info("Control\\build5", 637, -1, " ").what(), "STOP at Control\\build5(637):  ");
  EXPECT_STREQ(fem::stop_info("IO\\readg2", 181, 3, "").what(), "STOP at IO\\readg2(181): code=3");
  EXPECT_STREQ(fem::stop_info("a", 1, 0, "").what(), "STOP at a(1)");
}
