#include <gtest/gtest.h>

#include "report/options.hpp"

namespace tervak::report {
namespace {

/// What a command line asks for, in short, or why it is refused.
std::string read(const std::vector<std::string>& arguments) {
  try {
    const options o = parse_options(arguments);
    static const char* const tasks[] = {"page", "pictures", "tables", "comparison", "help", "version"};
    std::string out = std::string(tasks[static_cast<std::size_t>(o.what)]) + " " + o.input;
    if (!o.after.empty()) out += " " + o.after;
    for (const std::string& text : {o.output, o.csv_directory, o.json_file})
      if (!text.empty()) out += " > " + text;
    if (o.u.named()) out += " " + o.u.of_stress();
    if (o.what == task::pictures) {
      out += " " + std::to_string(o.selection.profile) + "/" + (o.selection.all ? "all" : "");
      for (const std::size_t l : o.selection.layers) out += " " + std::to_string(l);
    }
    return out;
  } catch (const usage_error& error) {
    return error.what();
  }
}

TEST(ReportOptions, CommandLines) {
  const std::string unit_fault = "expected two unit names behind '--units', as in kN,m, found '";
  struct row {
    std::vector<std::string> arguments;
    std::string expected;
  };
  const std::vector<row> rows = {
      {{}, "page TERVAK.RIF"},
      {{"--units", "kN,m", "-o", "x.html", "a.rif"}, "page a.rif > x.html kN/m²"},
      {{"--units=MN,m", "--", "-o"}, "page -o MN/m²"},
      {{"--units", "kN"}, unit_fault + "kN'"},
      {{"--units=k<,m"}, unit_fault + "k<,m'"},
      {{"--svg", "5"}, "pictures TERVAK.RIF 1/ 5"},
      {{"--svg=2/51", "-o", "d"}, "pictures TERVAK.RIF > d 2/ 51"},
      {{"--svg", "5-7,3,6-8"}, "pictures TERVAK.RIF 1/ 3 5 6 7 8"},
      {{"--svg", "3/all"}, "pictures TERVAK.RIF 3/all"},
      {{"--csv", "d", "--json=j", "--all-points", "a"}, "tables a > d > j"},
      {{"--compare", "a", "b", "--tolerance", "2"}, "comparison a b"},
      {{"a", "--compare", "-o", "x", "b"}, "comparison a b > x"},
      {{"--compare", "a"}, "expected two input files behind '--compare', found 1"},
      {{"--compare", "a", "b", "c"}, "expected two input files, found also 'c'"},
      {{"--compare", "a", "b", "--csv", "d"}, "options '--compare' and '--csv' exclude each other"},
      {{"--tolerance", "1"}, "option '--tolerance' goes with '--compare' only"},
      {{"--compare", "a", "b", "--tolerance", "-1"},
       "expected a number of percent behind '--tolerance', as in 0.1, found '-1'"},
      {{"--compare", "a", "b", "--tolerance=1%"},
       "expected a number of percent behind '--tolerance', as in 0.1, found '1%'"},
      {{"--all-points"}, "option '--all-points' goes with '--csv' only"},
      {{"--csv", "d", "-o", "x"}, "options '-o' and '--csv' exclude each other"},
      {{"--csv", ""}, "the name behind '--csv' is empty"},
      {{"--version", "--compare"}, "version TERVAK.RIF"},
      {{"-o"}, "option '-o' expects a value behind it"},
      {{"-x"}, "unknown option '-x'"},
      {{"--compare=a"}, "unknown option '--compare=a'"},
      {{"a", "b"}, "expected one input file, found also 'b'"}};
  for (const auto& [arguments, expected] : rows) EXPECT_EQ(read(arguments), expected);
  for (const std::string text :
       {"", "0", "2/", "/5", "-1", "2/0", "1/2/3", "12345", "5x", "3,", ",3", "7-5", "1-2-3", "all,3", "1 2"})
    EXPECT_EQ(
        read({"--svg", text}),
        "expected layers behind '--svg', as in 5, 3,5-7 or all, or 2/5 in profile 2, found '" + text + "'");
}

}  // namespace
}  // namespace tervak::report
