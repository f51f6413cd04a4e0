// What a second and a third run do to the files of the earlier ones.

#include "run/small_deck.hpp"
#include "support/run_directory.hpp"

namespace {

TEST(Rotation, KeepsOneEarlierGenerationOfEachResult) {
  const run_directory directory;
  directory.deck(small_deck());
  ASSERT_EQ(directory.run(), 0);
  const std::string first_listing = directory.read("TERVAK.LIS");
  const std::string first_export = directory.read("soil_70.fem");
  const std::string first_interface = directory.read("TERVAK.RIF");

  directory.deck(with(small_deck(), "Small deck", "Second deck"));
  ASSERT_EQ(directory.run(), 0);
  EXPECT_NE(directory.read("TERVAK.MLG.bak").find("Small deck"), std::string::npos);
  EXPECT_EQ(directory.read("TERVAK.LIS.bak"), first_listing);
  EXPECT_EQ(directory.read("soil_70.fem.bak"), first_export);
  EXPECT_NE(directory.read("TERVAK.RIF"), first_interface);
  EXPECT_FALSE(directory.has("TERVAK.RIF.bak"));  // the interface file is replaced, not rotated

  directory.deck(with(small_deck(), "Small deck", "Third deck"));
  directory.write("TEVRAK.RIF", "a file under the other spelling");
  ASSERT_EQ(directory.run(), 0);
  EXPECT_NE(directory.read("TERVAK.MLG.bak").find("Second deck"), std::string::npos);
  EXPECT_NE(directory.read("TERVAK.LIS.bak").find("Second deck"), std::string::npos);
  EXPECT_EQ(directory.read("TEVRAK.RIF.bak"), "a file under the other spelling");
  EXPECT_FALSE(directory.has("TEVRAK.RIF"));
}

TEST(Rotation, TheNextGoodRunRemovesWhatAStoppedRunLeft) {
  const run_directory directory;
  directory.write("fem_io_of_somebody", "");
  directory.deck(with(small_deck(), "284 293 293 0", "600 293 293 0 20.0 0.0 0.0 0.0 0.0"));
  ASSERT_EQ(directory.run(), 255);
  EXPECT_TRUE(directory.has("fem_io_unit_015"));
  EXPECT_TRUE(directory.has("fem_io_unit_016"));
  directory.deck(small_deck());
  ASSERT_EQ(directory.run(), 0);
  EXPECT_FALSE(directory.has("fem_io_unit_015"));
  EXPECT_FALSE(directory.has("fem_io_unit_016"));
  EXPECT_FALSE(directory.has("fem_io_of_somebody"));
}

TEST(Rotation, TheTemporaryCopyHoldsTheFirstProfileWithoutComments) {
  const run_directory directory;
  directory.deck("* heading that looks like a comment\n" + small_deck().substr(small_deck().find('\n') + 1) +
                 "C dropped\nEND here\n");
  directory.deck(with(directory.read("TERVAK.INP"), "284 293 293 0", "600 293 293 0 20.0 0.0 0.0 0.0 0.0"));
  ASSERT_EQ(directory.run(), 255);
  const std::string copy = directory.read("fem_io_unit_015");
  EXPECT_EQ(copy.substr(0, 122), "* heading that looks like a comment" + std::string(85, ' ') + "\r\n");
  EXPECT_EQ(copy.find("dropped"), std::string::npos);
  EXPECT_EQ(copy.find("END"), std::string::npos);
  EXPECT_EQ(copy.size(), 24U * 122U);  // 24 lines of the deck stand, each padded to 120 columns
}

}  // namespace
