#pragma once

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "Control/state/common.hpp"
#include "IO/input/READGE.hpp"
#include "support/scratch_run.hpp"

using Vrsk::Plin::TervakExchange::Tervak;
using P = Tervak&;

/// The deck of a small valid profile of either revision, in kN and m, whose input prints nothing:
/// diameters 1.0 and 1.5, sea floor at 0, four layers of a metre (clay, clay, clay, sand) or the main layers
/// 3 m of clay in three layers and 2 m of sand in one.
inline std::string valid_deck(int revision) {
  const std::string both =
      "\nGAMWAT 10\nATMPRS 100\nZCYCL 0\nSUSTIF 96\nJPRINT 1\nDIAM 1 1.5\nESOL0 0\nESOL1 0\nPOSAVR 0\nZSEAFL 0\n"
      "ZPWP 0\nGAMPWP 0\nMODIFYPY\n1 4 0 1 1 0 1 1 1\nMODIFYTZ\n1 4 0 1 1 1 1 1\nMODIFYQZ\n1 4 0 1 0 1 1 1\n";
  const std::string soil4 =
      "MIDBOT 1\nZONINF 10\nRFTZ 0.9\n"
      "SOILTYPES\n1 18 0 20 50 0.02 1 0.5 0 0.9 0.01\n2 20 35 0 0 0.02 1 0.5 1 1 0\n"
      "TZQZTABLE\n0 30 20 5000 0.02 900 0.4 0.1\n9 60 40 - 0.02 1800 0.4 0.1\n"
      "LAYERS\n1 3 1 3 284 293 293\n4 4 2 4 287 588 293\n";
  const std::string soil5 =
      "DIAMP 1.5\nWALL 0.05\nZTIP 4\nMATPIL 1\n"
      "MAINLAYERS\n1 3 18 0 0 0 0 20 50 30 0.02 0.5 700\n2 5 20 2 4 35 0.7 0 0 0 0 0 0\n"
      "SKINFRICTION\n1 0 11 12 13 14 15 16 1 0.9 0.01\n2 1 0 0 0 0 0 0 1 1 0\n"
      "SUBDIVISION\n1 3 3 284 293 293 0\n2 5 1 588 293 293 1 1 2 3 4 5\n";
  return "Valid profile\nREVISION " + std::to_string(revision) + both + (revision == 4 ? soil4 : soil5);
}
inline Tervak profile_of(const std::string& text) {
  std::istringstream deck(text);
  Vrsk::Plin::TervakExchange::TervakMultipleSoilProfiles profiles;
  profiles.Import(deck, "m", "N");
  return profiles.GetSoilProfiles().at(0);
}
inline Tervak valid_profile(int revision) { return profile_of(valid_deck(revision)); }

/// A run state in an empty directory of its own; nobody opens the unit of its run log.
class input_run : public work_directory {
 public:
  tervak::common cmn;

  input_run() { tervak::set_constants(cmn); }

  /// Adds a profile to those of the deck and takes it in.
  void read(const Tervak& profile) {
    const auto& profiles = cmn.PROFILES.GetSoilProfiles();
    const_cast<std::vector<Tervak>&>(profiles).push_back(profile);  // the object itself is not const
    tervak::ResetLayerLists(cmn);
    tervak::READGE(cmn, static_cast<int>(profiles.size()));
  }
  [[nodiscard]] std::string log() const { return printed(cmn.NFLOG); }
};

inline void expect_values(const std::vector<double>& found, const std::vector<double>& expected) {
  ASSERT_EQ(found.size(), expected.size());
  for (std::size_t n = 0; n < found.size(); ++n)
    EXPECT_NEAR(found[n], expected[n], 1e-12 * std::abs(expected[n])) << "value " << n;
}

inline const std::string INPUT_REPORT =
    "\n The  0 last lines read from the temporary input file are shown below."
    "\n Non-accepted value(s) exist in the input :\n \n";

/// The run log of an input that ends with `message`, or of one that passes with the warning `message` or
/// none.
inline std::string refused(const std::string& message) {
  return "\n **** SR/" + message + "\n" + INPUT_REPORT;
}
inline std::string passed(const std::string& message) { return message.empty() ? "" : "\n" + message + "\n"; }

inline void expect_log(const Tervak& profile, const std::string& log) {
  input_run run;
  run.read(profile);
  EXPECT_EQ(run.log(), log);
  EXPECT_EQ(run.cmn.IERR, log.ends_with(INPUT_REPORT) ? 1 : 0) << log;
}
