#pragma once

#include <functional>
#include <string>
#include <vector>

#include "report/rif_data.hpp"
#include "report/units.hpp"
#include "report/value_lists.hpp"

namespace tervak::report {

/// A column of the layer table.
struct layer_column {
  const char* name;
  std::string unit;
  std::function<double(const layer&)> value;
  bool level = false;   // shown to the hundredth
  bool always = false;  // the unit is known without --units
};
std::vector<layer_column> layer_columns(const units& u);

/// A row of the profile's general values.
struct general_value {
  const char* name;
  std::string unit;
  double value;
};
std::vector<general_value> general_values(const profile& p, const units& u);

/// The layer shown first: the first below the scour level.
std::size_t first_shown(const profile& p);

/// The curves of a layer as JSON, by kind:
///   x, y, fx, fy  axes of the shape and of the whole
///   s             1 where both sides of all curves are alike
///   f             indices of the first and last point that does not merely fill a curve out
///   m             marks: diameter, mark, worth a look, side, from, to, share
///   c             by diameter: list of stresses, list of displacements
std::string layer_data(const profile& p, const layer& l, const units& u, value_lists& lists);

}  // namespace tervak::report
