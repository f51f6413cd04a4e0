#pragma once

#include <optional>
#include <string>
#include <vector>

#include "report/rif_data.hpp"

namespace tervak::report {

/// A main layer of the deck; in revision 4 a run of layers of one soil type. It begins where the one above
/// ends, the first at the sea floor.
struct deck_layer {
  int number = 0;  // of the main layer; revision 4: of the soil type
  double bottom = 0.0;
};

/// The pile for which the deck's axial capacity method works: DIAMP, WALL, ZTIP.
struct deck_pile {
  double diameter = 0.0;
  double wall = 0.0;
  double tip = 0.0;  // Z level
};

/// What the interface file does not carry of a profile. Lengths and levels are in run units.
struct deck_profile {
  std::vector<deck_layer> main_layers;
  double local_scour = 0.0;       // Z level, ZSEAFL + SCRLOC
  std::optional<deck_pile> pile;  // revision 5 only
};

/// The deck of an interface file. It has as many profiles as the file, or none, and then `why_not` is a
/// sentence that says why: no deck, one that cannot be read, or one that is not of this file.
struct deck_beside {
  std::vector<deck_profile> profiles;
  std::string why_not;

  /// Of profile `index`; null without a deck.
  const deck_profile* of(std::size_t index) const { return profiles.empty() ? nullptr : &profiles[index]; }
  std::optional<double> local_scour(std::size_t index) const {
    return profiles.empty() ? std::nullopt : std::optional(profiles[index].local_scour);
  }
};

/// Reads TERVAK.INP in the directory of the interface file named `rif_name`, whose content is `file`. A deck
/// is taken as that of the file when the number of profiles, their headings, borings, diameters, sea floors
/// and scour levels agree; one that was changed elsewhere since the run passes. Never throws for a bad deck.
deck_beside read_deck_beside(const std::string& rif_name, const interface_file& file);

}  // namespace tervak::report
