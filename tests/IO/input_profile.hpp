#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "Control/common.hpp"
#include "fem/open_chain.hpp"
#include "IO/READGE.hpp"

using Vrsk::Plin::TervakExchange::Tervak;
using P = Tervak&;

/// A small valid profile of either revision, in kN and m, whose input prints nothing: diameters 1.0 and 1.5,
/// sea floor at 0, four layers of a metre (clay, clay, clay, sand) or the main layers 3 m of clay in three
/// layers and 2 m of sand in one.
inline Tervak valid_profile(int revision) {
  Tervak p;
  p.version = revision;
  p.header = "Valid profile";
  p.waterUnitWeight = 10.0;
  p.lowestShearStiff = 96.0;
  auto& d = p.data;
  d.AtmosphericPressure = 100.0;
  d.PrintLevel = 1;
  d.Diameters = {1.0, 1.5};
  d.PyModification.Records = {{1, 4, 0.0, 1.0, 1.0, 0.0, 1.0, 1.0, 1.0}, {}};
  d.TzModification.Records = {{1, 4, 0.0, 1.0, 1.0, 1.0, 1.0, 1.0}, {}};
  d.QzModification.Records = {{1, 4, 0.0, 1.0, 0.0, 1.0, 1.0, 1.0}, {}};
  if (revision == 4) {
    d.NumberOfSoilTypes = 2;
    d.NumberOfTzQzRows = 2;
    d.NumberOfLayers = 4;
    d.LevelSwitch = 1;
    d.ZonInf = 10.0;
    d.RfTz = 0.9;
    d.SoilTypes.Records = {{1, 18.0, 0.0, 20.0, 50.0, 0.02, 1.0, 0.5, 0, 0.9, 0.01},
                           {2, 20.0, 35.0, 0.0, 0.0, 0.02, 1.0, 0.5, 1, 1.0, 0.0}};
    d.TzQzTable = {{0.0, 30.0, 20.0, 5000.0, 0.02, 900.0, 0.4, 0.1},
                   {9.0, 60.0, 40.0, {}, 0.02, 1800.0, 0.4, 0.1}};
    d.Layers = {{1, 3, 1, 3.0, 284, 293, 293}, {4, 4, 2, 4.0, 287, 588, 293}};
  } else {
    d.NumberOfMainLayers = 2;
    d.MainLayers.Records = {{1, 3.0, 18.0, 0.0, 0.0, 0.0, 0.0, 20.0, 50.0, 30, 0.02, 0.5, 700.0},
                            {2, 5.0, 20.0, 2.0, 4.0, 35.0, 0.7, 0.0, 0.0, 0, 0.0, 0.0, 0.0}};
    d.SkinFriction = {1.5,
                      0.05,
                      4.0,
                      1,
                      {{1, 0, 11.0, 12.0, 13.0, 14.0, 15.0, 16.0, 1.0, 0.9, 0.01},
                       {2, 1, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 1.0, 1.0, 0.0}}};
    d.Subdivision = {0, {{1, 3.0, 3, 284, 293, 293, 0, {}}, {2, 5.0, 1, 588, 293, 293, 1, {1, 2, 3, 4, 5}}}};
  }
  return p;
}

/// A run state in an empty directory of its own, with its run log.
class input_run {
 public:
  tervak::common cmn;

  input_run() : home_(std::filesystem::current_path()) {
    std::string name = (std::filesystem::temp_directory_path() / "tervak-input-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) std::abort();
    directory_ = name;
    std::filesystem::current_path(directory_);
    tervak::set_constants(cmn);
    fem::open(cmn.units, cmn.NFLOG, "log").status("NEW").finish();
  }
  ~input_run() {
    std::filesystem::current_path(home_);
    std::filesystem::remove_all(directory_);
  }
  input_run(const input_run&) = delete;
  input_run& operator=(const input_run&) = delete;

  /// Adds a profile to those of the deck and takes it in.
  void read(const Tervak& profile) {
    const auto& profiles = cmn.PROFILES.GetSoilProfiles();
    const_cast<std::vector<Tervak>&>(profiles).push_back(profile);  // the object itself is not const
    tervak::ResetLayerLists(cmn);
    tervak::READGE(cmn, static_cast<int>(profiles.size()));
  }

  static void write(const std::string& name, const std::string& text) {
    std::ofstream(name, std::ios::binary) << text;
  }
  /// The text of a file, its CR LF shown as LF.
  static std::string text(const std::string& name) {
    std::ifstream in(name, std::ios::binary);
    EXPECT_TRUE(in.is_open()) << name;
    std::string all{std::istreambuf_iterator<char>(in), {}};
    std::erase(all, '\r');
    return all;
  }
  static std::string log() { return text("log"); }

 private:
  std::filesystem::path home_, directory_;
};

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

/// Changes of a valid profile, each with the run log's whole text.
struct change_row {
  void (*change)(P p);
  std::string log;
};
inline void expect_changes(int revision, const std::vector<change_row>& rows) {
  for (const change_row& row : rows) {
    Tervak profile = valid_profile(revision);
    row.change(profile);
    expect_log(profile, row.log);
  }
}

/// A field with values that are refused and values that pass, on both sides of its limits, and the message of
/// the refused ones, which shows the value by a conversion of printf.
struct limit_row {
  template <class Field>
  limit_row(Field field, std::vector<double> bad_, std::vector<double> good_, std::string message_)
      : bad(std::move(bad_)),
        good(std::move(good_)),
        message(std::move(message_)),
        set([field](P p, double value) {
          auto* target = field(p);
          *target = static_cast<std::remove_pointer_t<decltype(target)>>(value);
        }) {}
  std::vector<double> bad, good;
  std::string message;
  std::function<void(P p, double value)> set;
};
inline void expect_limits(int revision, const std::string& routine, const std::vector<limit_row>& rows) {
  for (const limit_row& row : rows) {
    Tervak profile = valid_profile(revision);
    for (const double value : row.bad) {
      char message[200];
      std::snprintf(message, sizeof message, row.message.c_str(), value);
      row.set(profile, value);
      expect_log(profile, refused(routine + " : " + message));
    }
    for (const double value : row.good) {
      SCOPED_TRACE(row.message + std::to_string(value));
      row.set(profile, value);
      expect_log(profile, "");
    }
  }
}
