#include <gtest/gtest.h>
#include <sys/wait.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "programs/sample_rif.hpp"
#include "report/options.hpp"
#include "report/page.hpp"
#include "report/read_interface_file.hpp"
#include "report/svg_plot.hpp"
#include "report/text.hpp"

namespace tervak::report {
namespace {

namespace fs = std::filesystem;

TEST(ReportText, Escapes) {
  EXPECT_EQ(escape_html("<b> & \"x\" 'y'"), "&lt;b&gt; &amp; &quot;x&quot; &#39;y&#39;");
  EXPECT_EQ(escape_html("\xC3\xB8 \xF8 \xE2\x82 \x01"), "ø ø â\xC2\x82 \xEF\xBF\xBD")
      << "Latin-1 and control bytes";
  EXPECT_EQ(json_text("</script> \"\\"), "\"\\u003c/script> \\\"\\\\\"");
}

TEST(ReportText, Numbers) {
  const std::vector<std::pair<double, std::string>> rows = {
      {0.0, "0"},       {-0.0, "0"},           {46.8, "46.8"},         {-3.00000012e-1, "-0.300000012"},
      {1e-4, "0.0001"}, {9.9e-5, "9.9e-5"},    {-1.5e-12, "-1.5e-12"}, {123456789.0, "123456789"},
      {1e9, "1e9"},     {1.25e100, "1.25e100"}};
  for (const auto& [value, text] : rows) EXPECT_EQ(number_text(value), text);
  EXPECT_EQ(ranges_text({1, 2, 3, 5, 7, 8}), "1 to 3, 5, 7, 8");
}

TEST(ReportPlot, AxesAndCuts) {
  EXPECT_EQ(make_axis(-0.33, 0.33, "").ticks,
            (std::vector<std::string>{"-0.3", "-0.2", "-0.1", "0", "0.1", "0.2", "0.3"}));
  EXPECT_EQ(make_axis(0.0, 9e5, "").ticks.at(1), "200000");
  const axis flat = make_axis(7.0, 7.0, "");
  EXPECT_LT(flat.low, 7.0);
  EXPECT_GT(flat.high, 7.0);
  using points = std::vector<std::pair<double, double>>;
  EXPECT_EQ(clip_to(points{{-4, -8}, {0, 0}, {1, 1}, {3, 5}}, -1, 2),
            (points{{-1, -2}, {0, 0}, {1, 1}, {2, 3}}));
  EXPECT_EQ(clip_to(points{{-4, 8}, {4, 8}}, -1, 2), (points{{-1, 8}, {2, 8}}));
}

TEST(ReportPage, TitlesAndUnits) {
  const interface_file file = read_interface_file("T.RIF", sample::rif({1, 3, 2, false, "</script><b>&"}));
  const std::string bare = page(file, "a<b.RIF", {});
  EXPECT_EQ(bare.find("<b>&"), std::string::npos);
  EXPECT_NE(bare.find("<p class=\"label\">&lt;/script&gt;&lt;b&gt;&amp;</p>"), std::string::npos);
  EXPECT_NE(bare.find("<title>Soil curves of a&lt;b.RIF</title>"), std::string::npos);
  EXPECT_NE(bare.find("stress p [run units]"), std::string::npos);
  EXPECT_EQ(bare.find("kN"), std::string::npos);
  // Layer 1 lies above the scour level, so that layer 2 is the one shown.
  EXPECT_NE(bare.find("<td class=\"text\">at or above scour level</td>"), std::string::npos);
  EXPECT_NE(bare.find("This layer lies at or above the scour level."), std::string::npos);
  EXPECT_NE(bare.find("<h3>Layer 2 of 3</h3>"), std::string::npos);
  const std::string named = page(file, "T.RIF", {"kN", "m"});
  EXPECT_NE(named.find("stress p [kN/m²]"), std::string::npos);
  EXPECT_EQ(named.find("run units"), std::string::npos);
}

std::string usage_of(const std::vector<std::string>& arguments) {
  try {
    const options o = parse_options(arguments);
    return o.input + " > " + o.output + " " + o.u.of_stress();
  } catch (const usage_error& error) {
    return error.what();
  }
}

TEST(ReportOptions, CommandLines) {
  EXPECT_EQ(usage_of({}), "TERVAK.RIF > TERVAK.html run units");
  EXPECT_EQ(usage_of({"--units", "kN,m", "-o", "x.html", "a.rif"}), "a.rif > x.html kN/m²");
  EXPECT_EQ(usage_of({"--units=MN,m", "--", "-o"}), "-o > TERVAK.html MN/m²");
  EXPECT_EQ(usage_of({"--units", "kN"}), "expected two unit names behind '--units', as in kN,m, found 'kN'");
  EXPECT_EQ(usage_of({"--units=k<,m"}), "expected two unit names behind '--units', as in kN,m, found 'k<,m'");
  EXPECT_EQ(usage_of({"-o"}), "option '-o' expects a value behind it");
  EXPECT_EQ(usage_of({"-x"}), "unknown option '-x'");
  EXPECT_EQ(usage_of({"a", "b"}), "expected one input file, found also 'b'");
}

/// Runs the program in a directory of its own.
class ReportProgram : public testing::Test {
 protected:
  void SetUp() override {
    std::string pattern = (fs::temp_directory_path() / "tervak-report-XXXXXX").string();
    ASSERT_NE(mkdtemp(pattern.data()), nullptr);
    directory_ = pattern;
    write("TERVAK.RIF", sample::rif());
  }
  void TearDown() override { fs::remove_all(directory_); }

  void write(const std::string& name, const std::string& text) { std::ofstream(directory_ / name) << text; }
  std::string read(const std::string& name) {
    std::ostringstream text;
    text << std::ifstream(directory_ / name).rdbuf();
    return text.str();
  }
  std::size_t files() {
    return static_cast<std::size_t>(
        std::distance(fs::directory_iterator(directory_), fs::directory_iterator()));
  }

  /// Exit status, a blank, both streams.
  std::string run(const std::string& arguments) {
    const std::string command =
        "cd '" + directory_.string() + "' && " TERVAK_REPORT_PROGRAM " " + arguments + " 2>&1";
    std::FILE* pipe = popen(command.c_str(), "r");
    std::string output;
    std::array<char, 512> block{};
    while (std::fgets(block.data(), block.size(), pipe) != nullptr) output += block.data();
    return std::to_string(WEXITSTATUS(pclose(pipe))) + " " + output;
  }

  fs::path directory_;
};

TEST_F(ReportProgram, WritesThePage) {
  EXPECT_EQ(
      run(""),
      "0 TERVAK.html: profiles 1, layers 3; curves with softening 2, with near-vertical pieces 2, zero 0\n");
  EXPECT_EQ(read("TERVAK.html").substr(0, 15), "<!DOCTYPE html>");
  EXPECT_EQ(files(), 2U) << "nothing left beside the page";
  EXPECT_EQ(run("--help").substr(0, 22), "0 usage: tervak-report");
}

TEST_F(ReportProgram, LeavesInputAndOldPageAlone) {
  const std::string input = read("TERVAK.RIF");
  fs::create_hard_link(directory_ / "TERVAK.RIF", directory_ / "link");
  for (const std::string name : {"TERVAK.RIF", "./TERVAK.RIF", "link"})
    EXPECT_EQ(run("-o " + name), "2 tervak-report: '" + name +
                                     "' is the input: the page would replace it; see tervak-report --help\n");
  EXPECT_EQ(read("TERVAK.RIF"), input);
  write("TERVAK.html", "old");
  write("bad.rif", input.substr(0, 5000));
  EXPECT_EQ(run("bad.rif").substr(0, 25), "1 tervak-report: bad.rif:");
  EXPECT_EQ(read("TERVAK.html"), "old");
  EXPECT_EQ(run("none.rif"), "1 tervak-report: none.rif: cannot be opened: No such file or directory\n");
  EXPECT_EQ(run("-o none/x.html"),
            "1 tervak-report: none/x.html.part0: cannot be created: No such file or directory\n");
  fs::create_directory(directory_ / "there");
  EXPECT_EQ(run("-o there"),
            "1 tervak-report: there: something other than a regular file stands there, it is left alone\n");
  EXPECT_EQ(run("there"), "1 tervak-report: there: expected a regular file\n");
  EXPECT_EQ(files(), 5U);
}

}  // namespace
}  // namespace tervak::report
