#include <gtest/gtest.h>

#include <regex>

#include "check/check.hpp"
#include "TervakExchange/deck_keywords.hpp"

namespace {

using namespace tervak::check;
namespace exchange = Vrsk::Plin::TervakExchange;

template <class F>
void each_message(F f) {  // section, row, variant, its text, its places
  for (const message_section& section : message_sections())
    for (const known_message& row : *section.messages) {
      const auto texts = split(row.text, '|'), places = split(row.places, '|');
      ASSERT_TRUE(places.size() == 1 || places.size() == texts.size()) << row.text;
      for (std::size_t i = 0; i < texts.size(); ++i)
        f(section, row, texts[i], places.size() == 1 ? places[0] : places[i]);
    }
}

void expect_targets(std::string_view targets, std::string_view text) {
  static const std::regex form(
      R"((\{(\d)=[0-9,]+\})?([A-Z0-9]+)(#(\d)|@(\d)(/(\d))?|\^|\$)?(\.(#\d+|[A-Za-z0-9]+)(<0|>0|~|\^|=(\d))?)?)");
  const auto numbers = std::count(text.begin(), text.end(), '%');
  for (const std::string_view target : split(targets, ' ')) {
    if (target.empty()) continue;
    std::match_results<std::string_view::const_iterator> m;
    ASSERT_TRUE(std::regex_match(target.begin(), target.end(), m, form)) << target;
    for (const std::size_t group : {2u, 5u, 6u, 8u, 12u})
      if (m[group].matched) {
        EXPECT_LE(std::stoi(m[group]), numbers) << target << " of " << text;
      }
    const exchange::deck_keyword* keyword = exchange::find_keyword(m[3].str());
    ASSERT_TRUE(keyword) << target;
    const std::string column = m[10];
    if (column.empty() || column.front() == '#') continue;
    const auto* table = std::get_if<const exchange::deck_table*>(&keyword->what);
    ASSERT_TRUE(table) << target;
    EXPECT_LT((*table)->find_column(column), (*table)->find_column("")) << target;
  }
}

TEST(Catalogue, TargetsNameWhatADeckHas) {
  each_message([](const auto&, const auto&, std::string_view text, std::string_view places) {
    expect_targets(places, text);
  });
  for (const known_ending& row : known_endings()) expect_targets(row.places, "");
}

TEST(Catalogue, ErrorsOfTheInputStagesHaveAPlace) {
  std::size_t count = 0;
  each_message([&](const message_section& section, const known_message& row, std::string_view text,
                   std::string_view places) {
    static const std::regex input(
        "(General|Surface|Main layers|Curves given|Layer build|Pile nodes|Monopile).*");
    if (!std::regex_match(section.title.begin(), section.title.end(), input)) return;
    if (row.run.substr(0, 4) != "ends" || row.meaning.substr(0, 15) == "does not arise") return;
    if (row.meaning.substr(0, 14) == "does not arise" || row.meaning.substr(0, 7) == "follows") return;
    ++count;
    EXPECT_FALSE(places.empty()) << text;
  });
  EXPECT_GT(count, 100u);
}

/// Each message, with values in it, is taken for what it is, also when another stands above it.
TEST(Catalogue, EachMessageIsKnownInALog) {
  each_message([](const message_section&, const known_message&, std::string_view text, std::string_view) {
    std::string line(text);
    for (const auto& [mark, value] : {std::pair{"%i", "-3"}, {"%x", "0.250E+01"}, {"%t", "Site 4"}})
      for (std::size_t at; (at = line.find(mark)) != std::string::npos;) line.replace(at, 2, value);
    line = std::regex_replace(line, std::regex("\n"), "\r\n ");
    const run_log log =
        read_log(" **** SR/READGE : GAMWAT ERROR  GAMWAT =     0.000\r\n\r\n " + line + "\r\n");
    ASSERT_EQ(log.messages.size(), 2u) << line;
    ASSERT_TRUE(log.messages[1].known) << line;
    EXPECT_EQ(split(log.messages[1].known->text, '|')[log.messages[1].variant], text);
  });
}

TEST(RunLog, NumbersThatAreNoneAndFindingsOnOneLine) {
  const run_log log = read_log(
      " **** SR/API14 : ERROR FROM SR/APILAT  NL,ND,IERR=  500   50***\n"
      " WARNING FROM SR/BUILD5 : LAY,GAMEFF=    1     isNAN\n"
      " ****  MANUAL BS-Y ERROR: Diameter 1.500 not found. Layer: 2.****  MANUAL BS-Y ERROR: First point has to "
      "be the origin. Layer: 7.\n");
  ASSERT_EQ(log.messages.size(), 4u);
  EXPECT_EQ(log.messages[0].numbers[1], 50);
  EXPECT_NE(log.messages[0].numbers[2], log.messages[0].numbers[2]);
  EXPECT_EQ(log.messages[1].kind, message_kind::warning);
  EXPECT_EQ(log.messages[2].numbers, (std::vector<double>{1.5, 2}));
  EXPECT_EQ(log.messages[3].numbers, std::vector<double>{7});
}

}  // namespace
