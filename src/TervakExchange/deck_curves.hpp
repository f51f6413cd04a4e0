#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "TervakExchange/deck_lines.hpp"
#include "TervakExchange/Tervak.hpp"

namespace Vrsk::Plin::TervakExchange {

/// A table of curves given by hand: each opens with `AT layer diameter`, one point a row behind it.
struct deck_curves {
  std::string_view name, force, displacement;  ///< of the table, and of the two columns of a point
  std::vector<ManualCurveRecord>& (*records)(Tervak&);
  bool* (*flag)(Tervak&);  ///< null when the profile has no flag for the table
};

[[nodiscard]] std::span<const deck_curves> deck_curves_tables();

/// Reads an AT line, which opens a curve even when it has a fault, so that the points behind it are judged.
void read_at(const deck_curves& curves, const deck_statement& line, Tervak& profile, deck_faults& faults);

/// Reads a point into the last curve. False, after a fault, when there is no curve yet.
bool read_point(const deck_curves& curves, const deck_statement& line, Tervak& profile, deck_faults& faults);

}  // namespace Vrsk::Plin::TervakExchange
