#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "TervakExchange/decks.hpp"

using namespace decks;
namespace fs = std::filesystem;

namespace {

const fs::path EXAMPLES = fs::path(TERVAK_SOURCE_DIR) / "examples";

std::string content(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  EXPECT_TRUE(stream.is_open()) << file;
  return {std::istreambuf_iterator<char>(stream), {}};
}

std::vector<fs::path> decks_in(const fs::path& folder) {
  std::vector<fs::path> files;
  for (const auto& entry : fs::directory_iterator(folder))
    if (entry.path().extension() == ".inp") files.push_back(entry.path());
  std::sort(files.begin(), files.end());
  return files;
}

TEST(FaultyDecks, EachIsRefusedByItsText) {
  const auto files = decks_in(EXAMPLES / "faults");
  EXPECT_GE(files.size(), 15u);
  for (const fs::path& file : files)
    EXPECT_EQ(refusal(content(file)), content(fs::path(file).replace_extension(".expected"))) << file;
}

TEST(FaultyDecks, NoGoodExampleIsRefused) {
  const auto files = decks_in(EXAMPLES);
  EXPECT_GE(files.size(), 2u);
  for (const fs::path& file : files) EXPECT_EQ(refusal(content(file)), "accepted") << file;
}

std::string without_cr(std::string text) {
  std::erase(text, '\r');
  return text;
}

// What the manual quotes is what a deck of the examples holds, or what it gets.
TEST(DeckManual, QuotesTheExamples) {
  std::string all;
  for (const fs::path& folder : {EXAMPLES, EXAMPLES / "faults"})
    for (const fs::path& file : decks_in(folder)) {
      all += '\n' + content(file);
      if (folder != EXAMPLES)
        all += '\n' + without_cr(content(fs::path(file).replace_extension(".expected"))) + '\n';
    }
  const std::string manual = content(EXAMPLES / "../docs/deck.md");
  int quotes = 0;
  for (const std::string opening : {"\n```deck\n", "\n```fault\n"})
    for (std::size_t at = manual.find(opening); at != std::string::npos; at = manual.find(opening, at + 1)) {
      const std::size_t begin = at + opening.size() - 1;
      const std::string quote = manual.substr(begin, manual.find("\n```", begin) + 1 - begin);
      EXPECT_NE(all.find(quote), std::string::npos) << quote;
      ++quotes;
    }
  EXPECT_GE(quotes, 10);
}

}  // namespace
