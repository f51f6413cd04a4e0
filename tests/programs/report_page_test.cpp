#include <gtest/gtest.h>
#include <sys/wait.h>

#include <array>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <set>
#include <sstream>

#include "programs/sample_rif.hpp"
#include "report/layer_picture.hpp"
#include "report/page.hpp"
#include "report/read_interface_file.hpp"
#include "report/run_log.hpp"
#include "report/svg_plot.hpp"
#include "report/text.hpp"
#include "report/value_lists.hpp"
#include "support/work_directory.hpp"

namespace tervak::report {
namespace {

namespace fs = std::filesystem;

TEST(ReportText, Escapes) {
  EXPECT_EQ(escape_html("<b> & \"x\" 'y'"), "&lt;b&gt; &amp; &quot;x&quot; &#39;y&#39;");
  EXPECT_EQ(escape_html("\xC3\xB8 \xF8 \xE2\x82 \x01"), "ø ø â\xC2\x82 \xEF\xBF\xBD")
      << "Latin-1 and control bytes";
  EXPECT_EQ(escape_html("\xE0\x80\xBC \xED\xA0\x80 \xEF\xBF\xBF \xF4\x90\x80\x80"),
            "à\xC2\x80¼ í\xC2\xA0\xC2\x80 ï¿¿ ô\xC2\x90\xC2\x80\xC2\x80")
      << "what XML refuses";
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
  EXPECT_EQ(make_axis(0.0, 8e6, "").ticks.size(), 9U);
  EXPECT_EQ(make_axis(0.0, 8e6, "", 288.0).ticks.size(), 5U) << "labels side by side do not touch";
  EXPECT_LT(make_axis(-HUGE_VAL, HUGE_VAL, "").high, HUGE_VAL);
  EXPECT_LT(flat.low, 7.0);
  EXPECT_GT(flat.high, 7.0);
  using points = std::vector<std::pair<double, double>>;
  EXPECT_EQ(clip_to(points{{-4, -8}, {0, 0}, {1, 1}, {3, 5}}, -1, 2),
            (points{{-1, -2}, {0, 0}, {1, 1}, {2, 3}}));
  EXPECT_EQ(clip_to(points{{-4, 8}, {4, 8}}, -1, 2), (points{{-1, 8}, {2, 8}}));
}

TEST(ReportPlot, NoTwoOfFiftyLinesLookAlike) {
  std::set<std::string> with_colour, without;
  for (std::size_t i = 0; i < 55; ++i) {
    const line_style s = style_of(i);
    with_colour.insert(s.colour + s.dash + s.marker + (s.fill == "#fff" ? "" : "filled"));
    without.insert(s.dash + s.marker + (s.fill == "#fff" ? "" : "filled"));
  }
  EXPECT_EQ(with_colour.size(), 55U);
  EXPECT_EQ(without.size(), 55U) << "in black and white";
}

TEST(ReportPage, NothingBreaksOut) {
  const interface_file file =
      read_interface_file("T.RIF", std::istringstream(sample::rif({1, 3, 2, false, "</script><b>&"})));
  const run_log log = parse_run_log(" **** WARNING </script><i>\r\n NORMAL EXIT FROM TERVAK\r\n");
  const std::string bare = page(file, {"a</script><u>.RIF", {}, log, {}});
  for (const char* tag : {"<b>&", "<i>", "<u>"}) EXPECT_EQ(bare.find(tag), std::string::npos) << tag;
  EXPECT_NE(bare.find("<title>&lt;/script&gt;&lt;b&gt;&amp;</title>"), std::string::npos);
  EXPECT_NE(bare.find("stress p [run units]"), std::string::npos);
  EXPECT_EQ(bare.find("kN"), std::string::npos);
  const std::string named = page(file, {"T.RIF", {"kN", "m"}, {}, {}});
  EXPECT_NE(named.find("stress p [kN/m²]"), std::string::npos);
}

TEST(ReportPage, RunLogs) {
  const run_log good = parse_run_log(
      " +++++ INPUT FILE READ\r\n ---- Warning from SR/REV5INP : Layer = 1\r\n  second line\r\n\r\n not of it\r\n"
      " **** A\r\n +++++ B\r\n NORMAL EXIT FROM TERVAK   \r\n\r\n");
  EXPECT_TRUE(good.good);
  EXPECT_EQ(good.messages,
            (std::vector<std::string>{"---- Warning from SR/REV5INP : Layer = 1 second line", "**** A"}));
  const run_log refused =
      parse_run_log("tervak.inp:9:1: unknown\n   9 | DAIM\n     | ^^^^\n ERROR EXIT FROM TERVAK");
  EXPECT_FALSE(refused.good);
  EXPECT_EQ(refused.ending, "ERROR EXIT FROM TERVAK");
  EXPECT_EQ(refused.messages, (std::vector<std::string>{"tervak.inp:9:1: unknown"}));
  EXPECT_EQ(parse_run_log("").ending, "");
}

TEST(ReportPage, ListsOfNumbers) {
  EXPECT_EQ(list_text(std::vector<double>{0.5, 0.5, 0.5, 2000, 2001, 2002, 7}), "0.5*3 2000+2 7");
  EXPECT_EQ(list_text(std::vector<std::optional<double>>{{}, 1.0 / 3.0, {}}), "- 0.333333333 -");
  EXPECT_EQ(stress_text({{-2, -1}, {0, 0}, {2, 1}}) + " " + displacement_text({{0, -1}, {0, 0}, {2, 1}}),
            "-|2 -|1");
  EXPECT_EQ(stress_text({{0, -1}, {0, 0}, {2, 1}}), "0|2");
  EXPECT_EQ(stress_text({{-3, -1}, {0, 0}, {2, 1}}), "-3 0 2");
}

std::size_t count_of(const std::string& part, const std::string& text) {
  std::size_t count = 0;
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
  return count;
}

TEST(ReportPicture, DrawsALayer) {
  const interface_file file =
      read_interface_file("T.RIF", std::istringstream(sample::rif({2, 5, 2, false, "</title><b> & \x01"})));
  const std::string picture = layer_picture(file.profiles[1], 1, {"kN", "m"});
  EXPECT_NE(picture.find("<title>Profile 2: BORING-2, layer 2 of 5</title>"), std::string::npos);
  EXPECT_NE(picture.find(">&lt;/title&gt;&lt;b&gt; &amp; \xEF\xBF\xBD</text>"), std::string::npos);
  EXPECT_NE(
      picture.find(">Sand, friction angle 34.5°, effective stress 4.2 kN/m²; Z level 1.5 m, depth 0.5 m, "
                   "corrected for scour</text>"),
      std::string::npos);
  EXPECT_NE(picture.find(">Q-Z, code 293 (API-93)</text>"), std::string::npos);
  // P-Y peak 32 from 0.15 D to 0.4 D, both sides alike. Drawn are 0 to 1.1 * 0.8 over 246.6 units from 37.4
  // (the labels are as wide as "30"), and -0.08 * 32 to 1.08 * 32 over 240 units from 8.
  EXPECT_NE(picture.find("L121.5 24.6L261.6 24.6L"), std::string::npos) << picture;
  EXPECT_EQ(count_of("class=\"line\"", picture), 8U) << "two diameters, three kinds and the legend";
  EXPECT_EQ(picture.find("softening"), std::string::npos);
  const std::string marked = layer_picture(file.profiles[0], 4, {});
  EXPECT_EQ(count_of(">S: softening", marked), 1U);
  EXPECT_NE(marked.find(">Q-Z: no resistance for D = 1, 2.</text>"), std::string::npos);
  EXPECT_NE(layer_picture(file.profiles[0], 0, {}).find("at or above the scour level"), std::string::npos);
  profile bent = file.profiles[0];
  bent.layers[1].of(curve_kind::py)[0].back().stress *= 0.95;
  EXPECT_NE(
      layer_picture(bent, 1, {}).find(">P-Y: softening beyond the displacements drawn for D = 1.</text>"),
      std::string::npos);
}

/// Runs the program in a directory of its own.
class ReportProgram : public testing::Test, public work_directory {
 protected:
  ReportProgram() { put("TERVAK.RIF", sample::rif()); }

  static std::size_t files() {
    return static_cast<std::size_t>(std::distance(fs::directory_iterator("."), fs::directory_iterator()));
  }
  /// Exit status, a blank, both streams.
  static std::string run(const std::string& arguments, const std::string& before = "") {
    std::FILE* pipe = popen((before + TERVAK_REPORT_PROGRAM " " + arguments + " 2>&1").c_str(), "r");
    std::string output;
    std::array<char, 512> block{};
    while (std::fgets(block.data(), block.size(), pipe) != nullptr) output += block.data();
    return std::to_string(WEXITSTATUS(pclose(pipe))) + " " + output;
  }
};

TEST_F(ReportProgram, WritesThePage) {
  EXPECT_EQ(
      run(""),
      "0 TERVAK.html: profiles 1, layers 3; curves to look at 2, with marks of their method 2\n"
      "look here: profile 1, P-Y, near-vertical piece, layers 3, 2 curves, a step of 50 % of the peak at most (layer 3, "
      "D = 1)\n");
  EXPECT_EQ(get("TERVAK.html").substr(0, 15), "<!DOCTYPE html>");
  EXPECT_EQ(files(), 2U) << "nothing left beside the page";
  EXPECT_EQ(run("--help").substr(0, 22), "0 usage: tervak-report");
  EXPECT_EQ(run("--svg 1/3 -o x.svg"), "0 x.svg: profile 1, layer 3\n");
  EXPECT_EQ(get("x.svg").substr(0, 5), "<?xml");
  EXPECT_EQ(run("--svg 2-3 -o pictures"),
            "0 pictures/p1-l2.svg: profile 1, layer 2\npictures/p1-l3.svg: profile 1, layer 3\n");
  EXPECT_EQ(get("pictures/p1-l3.svg"), get("x.svg"));
}

TEST_F(ReportProgram, LeavesInputAndOldPageAlone) {
  const std::string input = get("TERVAK.RIF");
  fs::create_hard_link("TERVAK.RIF", "link");
  for (const std::string name : {"TERVAK.RIF", "./TERVAK.RIF", "link"})
    EXPECT_EQ(run("-o " + name), "2 tervak-report: '" + name +
                                     "' is the input: the page would replace it; see tervak-report --help\n");
  EXPECT_EQ(get("TERVAK.RIF"), input);
  EXPECT_EQ(run("--svg 1 -o link").substr(0, 63),
            "2 tervak-report: 'link' is the input: the picture would replace");
  EXPECT_EQ(
      run("--svg 4"),
      "1 tervak-report: TERVAK.RIF: expected a layer of profile 1 from 1 to 3 behind '--svg', found 4\n");
  EXPECT_EQ(run("--svg 2/1"),
            "1 tervak-report: TERVAK.RIF: expected a profile from 1 to 1 behind '--svg', found 2\n");
  put("TERVAK.html", "old");
  EXPECT_EQ(run("", "trap '' XFSZ; ulimit -f 8; "),
            "1 tervak-report: TERVAK.html: cannot be written: File too large\n")
      << "a full disk";
  EXPECT_EQ(run("--help >/dev/full"), "1 ");
  put("bad.rif", input.substr(0, 5000));
  EXPECT_EQ(run("bad.rif").substr(0, 25), "1 tervak-report: bad.rif:");
  EXPECT_EQ(get("TERVAK.html"), "old");
  EXPECT_EQ(run("none.rif"), "1 tervak-report: none.rif: cannot be opened: No such file or directory\n");
  EXPECT_EQ(run("-o none/x.html"),
            "1 tervak-report: none/x.html.part0: cannot be created: No such file or directory\n");
  fs::create_directory("there");
  EXPECT_EQ(run("-o there"),
            "1 tervak-report: there: something other than a regular file stands there, it is left alone\n");
  EXPECT_EQ(run("there"), "1 tervak-report: there: expected a regular file\n");
  EXPECT_EQ(files(), 5U);
}

TEST_F(ReportProgram, WritesTablesWholeOrNotAtAll) {
  const std::string from = "Capacity counts from the sea floor. No deck TERVAK.INP is beside the file.\n";
  EXPECT_EQ(run("--csv a/b --json x.json"),
            "0 a/b/layers.csv: records 3\na/b/curves.csv: records 198\na/b/capacity.csv: records 6\n"
            "x.json: profiles 1\n" +
                from);
  const std::string old = get("a/b/curves.csv");
  EXPECT_EQ(run("--csv a/b --all-points", "trap '' XFSZ; ulimit -f 8; "),
            "1 tervak-report: a/b/curves.csv: cannot be written: File too large\n");
  EXPECT_EQ(get("a/b/curves.csv"), old);
  put("a/b/units.csv", "of before");
  EXPECT_NE(run("--csv a/b").find("a/b/units.csv: not of this file, it was there before\n"),
            std::string::npos);
  fs::create_hard_link("TERVAK.RIF", "a/layers.csv");
  EXPECT_EQ(run("--csv a").substr(0, 50), "2 tervak-report: 'a/layers.csv' is the input: the ");
  EXPECT_EQ(run("--csv x.json"), "1 tervak-report: x.json: something other than a directory stands there\n");
  put("bad.rif", get("TERVAK.RIF").substr(0, 5000));
  EXPECT_EQ(run("--csv none bad.rif").substr(0, 25), "1 tervak-report: bad.rif:");
  EXPECT_FALSE(fs::exists("none"));
  EXPECT_EQ(run("--version").substr(0, 18), "0 tervak-report 0.");
}

TEST_F(ReportProgram, ComparesWithAStatus) {
  put("four.rif", sample::rif({1, 4, 2}));
  EXPECT_EQ(run("--compare TERVAK.RIF TERVAK.RIF"),
            "0 TERVAK.RIF, TERVAK.RIF: alike (tolerance 0.1 %); compared profiles 1, layers 3, curves 18\n");
  EXPECT_EQ(
      run("--compare TERVAK.RIF four.rif -o x.html"),
      "1 TERVAK.RIF, four.rif: differences 1 (tolerance 0.1 %); compared profiles 1, layers 3, curves 18\n"
      "change    profile   layer  ZBOTM  diameter  what   before  after\n"
      "one file  BORING-1  4      4                layer  none    there\n");
  EXPECT_EQ(get("x.html").substr(0, 15), "<!DOCTYPE html>");
  EXPECT_EQ(run("--compare TERVAK.RIF none"),
            "2 tervak-report: none: cannot be opened: No such file or directory\n");
  EXPECT_EQ(run("--compare TERVAK.RIF four.rif -o four.rif").substr(0, 18), "2 tervak-report: '");
  EXPECT_EQ(run("--compare TERVAK.RIF").substr(0, 18), "2 tervak-report: e");
  EXPECT_EQ(get("four.rif"), sample::rif({1, 4, 2}));
}

}  // namespace
}  // namespace tervak::report
