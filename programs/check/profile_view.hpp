#pragma once

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

#include "TervakExchange/deck_reading.hpp"

namespace tervak::check {

using Vrsk::Plin::TervakExchange::Tervak;

/// A calculation layer, as the program makes it from the deck. In deck units.
struct calculation_layer {
  double top, bottom, level;
  std::size_t row;  ///< of MAINLAYERS or LAYERS, from 0
};

/// A main layer of revision 5, or a soil type of revision 4 that some layer uses, with what reads it.
struct soil {
  std::string_view table;  ///< MAINLAYERS or SOILTYPES
  std::size_t row = 0;     ///< in that table, from 1
  bool clay = false;
  double unit_weight = 0, angle = 0, eps50 = 0, j = 0;
  double su_top = 0, su_bottom = 0;  ///< revision 5: as given; revision 4: SU0, SU100
  std::vector<double> su;            ///< at the levels of its layers that are not scoured away
  std::vector<int> py, tz, qz;       ///< codes

  // Revision 5 only
  double cone_top = 0, cone_bottom = 0, density = 0;
  int plasticity = 0, method = 0;
  bool friction_given = false, tip_given = false;

  [[nodiscard]] bool calculates_friction() const { return method > 0 && !friction_given; }
  [[nodiscard]] bool calculates_tip() const { return method > 0 && !tip_given; }
  [[nodiscard]] bool has_cone() const { return cone_top > 0 || cone_bottom > 0; }
  /// Whether a P-Y curve, a capacity or a modulus is calculated from its strength.
  [[nodiscard]] bool uses_strength() const;
  [[nodiscard]] bool has_py(std::span<const int> codes) const;
};

/// One profile as the rules look at it.
class profile_view {
 public:
  profile_view(const Vrsk::Plin::TervakExchange::deck_reading& deck, std::size_t index);

  [[nodiscard]] const Tervak& profile() const { return deck_.profiles()[index_]; }
  [[nodiscard]] const auto& data() const { return profile().data; }
  [[nodiscard]] bool revision5() const { return profile().version == 5; }
  [[nodiscard]] std::span<const Tervak> deck() const { return deck_.profiles(); }
  [[nodiscard]] std::size_t index() const { return index_; }  ///< of the profile in the deck, from 0

  /// Empty where the deck alone does not give them: layers by pile nodes, counts that are not sound.
  [[nodiscard]] const std::vector<calculation_layer>& layers() const { return layers_; }
  [[nodiscard]] const std::vector<soil>& soils() const { return soils_; }
  [[nodiscard]] double scour_level() const { return profile().zSeafloor + profile().depthOfLocalScour; }
  [[nodiscard]] bool calculates_capacity() const;
  /// Whether a tip stress by ICP-05 or NGI-05 reads the cone resistance of this clay: its own by ICP-05, or
  /// that of a sand that lies against it, whose mean over three diameters takes it in.
  [[nodiscard]] bool reads_clay_cone(const soil& s) const;
  /// Whether the reader of the deck added a record, from 1, that has no row of its own.
  [[nodiscard]] bool is_added(std::string_view table, std::size_t record) const;
  /// The curves of a MANUAL table.
  [[nodiscard]] const std::vector<Vrsk::Plin::TervakExchange::ManualCurveRecord>& curves(
      std::string_view table) const;
  /// Top of a main layer, from 0.
  [[nodiscard]] double top_of(std::size_t main_layer) const;

 private:
  void make_layers5();
  void make_layers4();
  void make_soils5();
  void make_soils4();

  const Vrsk::Plin::TervakExchange::deck_reading& deck_;
  std::size_t index_;
  std::vector<calculation_layer> layers_;
  std::vector<soil> soils_;
};

}  // namespace tervak::check
