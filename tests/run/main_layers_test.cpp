#include <gtest/gtest.h>

#include <sstream>

#include "run/small_deck.hpp"
#include "support/run_directory.hpp"

namespace {

/// Three main layers of 2, 3 and 4 calculation layers, two diameters. The rows about main layers, in any
/// order, and the same written out for calculation layers must give the same results.
const char* const MAIN_LAYERS = R"(MANUALPY
AT M2 0
0 0
120 0.05
AT M1 2.0
0 0
70 0.1
AT m1 1.0
0 0
60 0.1
MODIFYPY
M3 M3 2.0  1.2 1.0 0.0 1.0 1.0 1.0
M2 M2 0.0  1.0 1.0 0.1 0.5 0.8 1.0
M3 m3 1.0  1.1 1.0 0.0 1.0 1.0 1.0
MODIFYTZ
M3 M3 1.0  1.1 0.9 1.0 1.0 1.0
M1 M2 2.0  1.3 0.9 1.0 1.0 1.0
MODIFYQZ
M2 M3 0.0  1.1 0.5 1.2 1.0 1.1
MANUALMTHETA
AT M2 0
0 0
500 0.01
AT 1 1.0
0 0
90 0.1
MODIFYMTHETA
M2 M3 1.0  1.5 1.1
M2 M2 2.0  1.2 1.1
)";

std::string curve(int layer, const char* diameter, const char* points) {
  return "AT " + std::to_string(layer) + ' ' + diameter + "\n0 0\n" + points + '\n';
}

std::string written_out() {
  std::string text = "MANUALPY\n";
  for (int layer = 1; layer <= 2; ++layer)
    text += curve(layer, "1.0", "60 0.1") + curve(layer, "2.0", "70 0.1");
  for (int layer = 3; layer <= 5; ++layer)
    text += curve(layer, "1.0", "120 0.05") + curve(layer, "2.0", "120 0.05");
  text +=
      "MODIFYPY\n1 2 0.0 1 1 0 1 1 1\n3 5 0.0 1 1 0.1 0.5 0.8 1\n6 9 1.0 1.1 1 0 1 1 1\n"
      "6 9 2.0 1.2 1 0 1 1 1\n"
      "MODIFYTZ\n1 5 0 1 1 1 1 1\n6 9 1.0 1.1 0.9 1 1 1\n1 5 2.0 1.3 0.9 1 1 1\n"
      "MODIFYQZ\n1 2 0 1 0 1 1 1\n3 9 0 1.1 0.5 1.2 1 1.1\nMANUALMTHETA\n" +
      curve(1, "1.0", "90 0.1");
  for (int layer = 3; layer <= 5; ++layer)
    text += curve(layer, "1.0", "500 0.01") + curve(layer, "2.0", "500 0.01");
  return text + "MODIFYMTHETA\n3 9 1.0 1.5 1.1\n3 5 2.0 1.2 1.1\n";
}

/// Everything that the run leaves but the deck, without the lines of the clock.
std::string results(const std::string& tables) {
  std::string deck = with(small_deck(), "DIAM     1.0", "JPRINT 2\nDIAM     1.0 2.0");
  deck = with(deck, "1 10.0 18.0 0.0 0.0 0.0 0.0 40.0 60.0 30 0.01 0.25 0.0\n",
              "1  4.0 18.0 0.0 0.0 0.0 0.0 40.0 60.0 30 0.01 0.25 0.0\n"
              "2 10.0 18.0 0.0 0.0 0.0 0.0 60.0 80.0 30 0.01 0.25 0.0\n"
              "3 20.0 18.0 0.0 0.0 0.0 0.0 80.0 90.0 30 0.01 0.25 0.0\n");
  const std::string friction = " 0 20.0 30.0 20.0 30.0 360.0 540.0 1.0 0.9 0.01\n";
  deck = with(deck, "1" + friction, "1" + friction + "2" + friction + "3" + friction);
  deck = with(deck, "1 10.0 2 284 293 293 0\n",
              "1 4.0 2 0 293 293 0\n2 10.0 3 0 293 293 0\n3 20.0 4 284 293 293 0\n");
  const run_directory directory;
  directory.deck(deck + tables);
  EXPECT_EQ(directory.run(), 0) << directory.read("TERVAK.MLG");
  std::string all = directory.read("soil_halde.fem") + directory.read("soil_70.fem");
  std::istringstream lines(directory.read("TERVAK.LIS") + directory.read("TERVAK.RIF"));
  for (std::string text; std::getline(lines, text);)
    if (text.find("THIS RUN WAS STARTED") == std::string::npos && text.find(" Time = ") == std::string::npos)
      all += text + '\n';
  const std::size_t date = all.find("DATE");
  EXPECT_NE(date, std::string::npos);
  for (std::size_t begin = all.find('\n', date) + 1, i = 0; i < 3; ++i)
    all.erase(begin, all.find('\n', begin) + 1 - begin);
  return all;
}

TEST(MainLayers, GiveTheResultsOfTheRowsWrittenOut) {
  const std::string main = results(MAIN_LAYERS), layers = results(written_out());
  EXPECT_GT(main.size(), 20000u);
  EXPECT_TRUE(main == layers);
  EXPECT_TRUE(main != results(with(written_out(), "3 5 0.0 1 1 0.1", "3 5 0.0 1 1 0.2")));
}

TEST(Usage, AnArgumentTouchesNothing) {
  const run_directory directory;
  directory.deck(small_deck());
  for (const char* argument : {" --help", " my.inp"}) {
    EXPECT_EQ(directory.run(false, argument), 2);
    EXPECT_EQ(directory.read("stderr").rfind("usage: tervak", 0), 0u);
    EXPECT_EQ(directory.read("stdout"), "");
    EXPECT_FALSE(directory.has("TERVAK.MLG"));
  }
}

}  // namespace
