#include <gtest/gtest.h>

#include <fstream>

#include "TervakExchange/deck_reading.hpp"
#include "TervakExchange/decks.hpp"

using namespace decks;

namespace {

std::string place(const deck_place& p) {
  return std::to_string(p.line) + ":" + std::to_string(p.column) + "+" + std::to_string(p.length);
}

std::string fields(const deck_statement& line) {
  std::string result;
  for (const deck_field& field : line.fields)
    result += std::string(field.text) + "@" + place(field.place) + " ";
  return result;
}

TEST(DeckPlaces, EveryValueLeadsBackToItsField) {
  std::istringstream stream(std::string(REVISION5) +
                            "DIAM\t1.8 ! c\nMODIFYQZ\n* c\n 1 3 1.5 5 6 7 8 9\n\n3 4 1.5 1 2 3 4 5\n"
                            "MANUALBSY\nAT 1 1.2\n0 0\n*\n 5 0.1\nAT 2 1.2\n0 0\n1 1\n");
  const deck_reading deck(stream, "my deck.txt");
  ASSERT_EQ(deck.refusal("\n"), "");
  const profile_map& map = deck.maps().at(0);
  EXPECT_EQ(place(deck.heading(map)), "1:1+9");
  std::string diameters;
  for (const deck_field& field : deck.values(map, "DIAM")) diameters += place(field.place) + " ";
  EXPECT_EQ(diameters, "7:6+3 7:10+3 24:6+3 ");
  EXPECT_TRUE(deck.values(map, "SFSU").empty());
  EXPECT_EQ(fields(deck.row(map, "SUBDIVISION", 1).line),
            "1@23:1+1 30.5@23:3+4 4@23:8+1 284@23:10+3 293@23:14+3 200@23:18+3 1@23:22+1 ");
  EXPECT_EQ(place(whole_row(deck.row(map, "MODIFYQZ", 1).line)), "27:2+17");
  EXPECT_EQ(deck.row(map, "MODIFYQZ", 2).line.fields.at(0).place.line, 29u);
  EXPECT_TRUE(deck.row(map, "MODIFYQZ", 3).line.fields.empty());  // the record that closes the list
  const deck_row curve = deck.row(map, "MANUALBSY", 1);
  EXPECT_EQ(fields(curve.line), "AT@31:1+2 1@31:4+1 1.2@31:6+3 ");
  ASSERT_EQ(curve.points.size(), 2u);
  EXPECT_EQ(fields(curve.points[1]), "5@34:2+1 0.1@34:4+3 ");
  EXPECT_EQ(deck.described(curve.line.fields[2].place, "warning: narrow"),
            "my deck.txt:31:6: warning: narrow\n  31 | AT 1 1.2\n     |      ^^^");
}

// Rows that the reader puts in order or in front, and curves that it expands, lead back to their row.
TEST(DeckPlaces, RecordsOfMainLayersLeadBackToTheirRows) {
  std::ifstream file(TERVAK_SOURCE_DIR "/examples/main-layers.inp");
  const deck_reading deck(file, "main-layers.inp");
  ASSERT_EQ(deck.refusal("\n"), "");
  const profile_map& map = deck.maps().at(0);
  std::string origins;
  for (const char* table : {"MANUALTZ", "MODIFYPY", "MODIFYTZ", "MANUALMTHETA", "MODIFYMTHETA"}) {
    origins += table;
    for (std::size_t i = 1; !deck.row(map, table, i).line.fields.empty(); ++i) {
      const deck_row row = deck.row(map, table, i);
      origins += " " + std::to_string(row.line.fields[0].place.line) + "wea"[static_cast<int>(row.kind)];
    }
    origins += '\n';
  }
  EXPECT_EQ(origins,
            "MANUALTZ 35e 39e 35e 39e 35e 39e\n"
            "MODIFYPY 45a 45w 46w\n"
            "MODIFYTZ 48a 48w\n"
            "MANUALMTHETA 51e 51e 51e 51e 51e 51e 51e 51e\n"
            "MODIFYMTHETA 56w\n");
  EXPECT_EQ(deck.row(map, "MANUALTZ", 2).points.at(1).fields.at(1).text, "0.012");
  const TervakInputData& data = deck.profiles().at(0).data;
  EXPECT_EQ(data.PyModification.Records.at(0).L2, 3);
  EXPECT_EQ(data.ManualTz.Records.at(3).Diameter, 1.8);
  EXPECT_EQ(data.ManualMtheta.Records.at(7).Layer, 12);
}

TEST(DeckPlaces, AFaultyDeckHasItsNameInTheTexts) {
  std::istringstream stream(with(REVISION5, 3, "GAMWAT x\n"));
  const deck_reading deck(stream, "my deck.txt");
  EXPECT_EQ(deck.refusal("\n"),
            "my deck.txt:3:8: GAMWAT takes one number, found \"x\"\n  3 | GAMWAT x\n    |        ^");
  EXPECT_EQ(deck.fault_count(), 1u);
  EXPECT_TRUE(deck.profiles().empty() && deck.maps().empty());
}

}  // namespace
