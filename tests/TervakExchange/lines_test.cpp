#include <gtest/gtest.h>

#include <ctime>
#include <filesystem>
#include <fstream>
#include <regex>

#include "TervakExchange/decks.hpp"

using namespace decks;

namespace {

TEST(DeckLines, EndsOfLinesAndComments) {
  std::string crlf = std::regex_replace(std::string(REVISION5), std::regex("\n"), "\r\n");
  crlf.resize(crlf.size() - 2);  // the last line needs no end
  EXPECT_EQ(read(crlf).at(0).GetHeader(), "Heading 5");
  EXPECT_EQ(places(crlf + "\rx"), "23:22: SUBDIVISION column 7, OPENM, takes an integer, found \"1?x\"\n");
  const std::string commented = std::regex_replace(std::string(REVISION5), std::regex("\n"),
                                                   "!, x\n* one\nC two\nc three, #\n \t\n  ! four\n\t");
  const Tervak t = read(commented).at(0);
  EXPECT_EQ(t.GetHeader(), "Heading 5!, x");
  EXPECT_EQ(t.data.Subdivision.Records.at(0).OpenCrack, 1);
}

TEST(DeckLines, Headings) {
  for (const char* heading : {"", "* x", "C, y", "c", " ! z", "END", "1 2 3", "\t\x01"})
    EXPECT_EQ(read(with(REVISION5, 1, heading + std::string("\n"))).at(0).GetHeader(), heading);
  const std::string two = std::string(REVISION5) +
                          "ENDless !\n\nEND\n* no\nC no\n\t\n ! no\n END?! second\n" +
                          std::string(REVISION5).substr(10) + "END\n\nEND\n*\n";
  const auto profiles = read(two);
  ASSERT_EQ(profiles.size(), 2u);
  EXPECT_EQ(profiles[1].GetHeader(), " END?! second");
}

TEST(DeckLines, Encodings) {
  EXPECT_EQ(read("\xEF\xBB\xBF" + std::string(REVISION5)).at(0).GetHeader(), "Heading 5");
  const std::string utf16 =
      "1:1: the deck is written in UTF-16, two bytes a character; save it as plain text in UTF-8 (or ANSI), in "
      "the editor by \"Save as\" and the encoding\n";
  for (const bool big_endian : {false, true}) {
    std::string wide;
    for (const char* c = REVISION5; *c != '\0'; ++c)
      wide += big_endian ? std::string{'\0', *c} : std::string{*c, '\0'};
    EXPECT_EQ(places(wide), utf16);
    EXPECT_EQ(places((big_endian ? "\xFE\xFF" : "\xFF\xFE") + wide), utf16);
  }
}

TEST(DeckLines, QuotedLineAndCaret) {
  EXPECT_EQ(refusal(with(REVISION5, 3, "GAMWAT\t1\x02\x7F ! c\r\n")),
            "tervak.inp:3:8: GAMWAT takes one number, found \"1??\"\r\n"
            "  3 | GAMWAT 1?? ! c\r\n"
            "    |        ^^^");
  EXPECT_EQ(refusal(with(with(REVISION5, 4, ""), 1, "\n")),
            "tervak.inp:1:1: profile 1 \"\" has no ATMPRS\r\n"
            "  1 | \r\n"
            "    | ^");
  // At most 100 bytes: from the start, in the middle, up to the end; the caret stays under the place.
  const auto quoted = [](std::size_t before, std::size_t behind) {
    const std::string text = refusal(
        with(REVISION5, 3, "GAMWAT" + std::string(before, ' ') + "1x" + std::string(behind, ' ') + "\n"));
    const std::size_t line = text.find("\r\n") + 2, caret = text.find("\r\n", line) + 2;
    const std::string shown_line = text.substr(line + 6, caret - 2 - line - 6);
    EXPECT_EQ(text.substr(caret + 6).find('^'), shown_line.find("1x"));
    return std::make_pair(shown_line.size(), shown_line.find("1x"));
  };
  EXPECT_EQ(quoted(10, 82), std::make_pair(std::size_t{100}, std::size_t{16}));
  EXPECT_EQ(quoted(10, 500), std::make_pair(std::size_t{100}, std::size_t{16}));
  EXPECT_EQ(quoted(500, 500), std::make_pair(std::size_t{100}, std::size_t{50}));
  EXPECT_EQ(quoted(500, 0), std::make_pair(std::size_t{100}, std::size_t{98}));
}

TEST(DeckLines, TwentyFaultsAndTheNumberOfOthers) {
  const auto faults = [](int count) {
    std::string lines;
    for (int i = 0; i < count; ++i) lines += "#\n";
    return places(with(with(REVISION5, 3, lines), 1, "H\n"));
  };
  EXPECT_EQ(faults(19).find("more"), std::string::npos);
  EXPECT_EQ(faults(20).substr(faults(20).rfind("and")), "and 1 more faults\n");
  // The missing GAMWAT, found last, is the first of the file; the 20th is the 19th bad line.
  const std::string many = faults(1000);
  EXPECT_EQ(many.find("1:1: profile 1 \"H\" has no GAMWAT\n"), 0u);
  EXPECT_NE(many.find("21:1: a line cannot begin with \"#\"\nand 981 more faults\n"), std::string::npos);
}

std::string import_refusal(const std::string& file) {
  std::ifstream stream(file, std::ios::binary);
  TervakMultipleSoilProfiles profiles;
  try {
    profiles.Import(stream, "m", "N", file);
  } catch (const deck_error& error) {
    return std::string(error.what()).substr(file.size());
  }
  return "accepted";
}

TEST(DeckLines, DecksThatCannotBeRead) {
  EXPECT_EQ(refusal(""), "tervak.inp:1:1: the deck is empty, expected the heading of a profile");
  EXPECT_EQ(
      import_refusal("tervak.inp"),
      ":1:1: cannot open the deck: No such file or directory; upper and lower case are two names on this "
      "file system, and the deck must stand under both TERVAK.INP and tervak.inp: ln -s TERVAK.INP "
      "tervak.inp");
  EXPECT_EQ(import_refusal("no such deck"), ":1:1: cannot open the deck: No such file or directory");
  EXPECT_EQ(import_refusal(std::string(5000, 'x')), ":1:1: cannot open the deck: File name too long");
  EXPECT_EQ(import_refusal(std::filesystem::temp_directory_path()),
            ":1:1: cannot read the deck: Is a directory");
}

TEST(DeckLines, LongDecksAndLinesInLinearTime) {
  const auto seconds = [](const std::string& deck) {
    const std::clock_t start = std::clock();  // of the processor, whatever else the machine does
    EXPECT_NE(places(deck), "accepted\n");
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
  };
  const auto rows = [](int count) {
    std::string deck = with(REVISION5, 23, "DISPLACEMENTS\n");
    for (int i = 0; i < count; ++i) deck += "1 2 x,y 4 5\n";
    return deck;
  };
  seconds(rows(1000));
  EXPECT_LT(seconds(rows(20000)), 4 * seconds(rows(10000)) + 0.05);
  std::string unknown = REVISION5;  // the nearest keyword is sought for those that are shown
  for (int i = 0; i < 30000; ++i) unknown += "GAMWAT" + std::to_string(i) + "X 1\n";
  EXPECT_LT(seconds(unknown), 5);
  for (const char* piece : {"x", "1", "1 ", "\t", "\xFF"}) {
    std::string line;
    for (int i = 0; i < 200000; ++i) line += piece;
    EXPECT_LT(seconds(with(REVISION5, 3, line + "\n")), 5) << piece;
    EXPECT_LT(seconds(with(REVISION5, 3, "ATMPRS " + line + "\n")), 5) << piece;
  }
  std::string bytes;
  for (unsigned i = 0, byte = 1; i < 100000; ++i, byte = byte * 1103515245u + 12345u)
    bytes += static_cast<char>(byte >> 16);
  EXPECT_EQ(refusal(bytes).substr(0, 11), "tervak.inp:");
}

}  // namespace
