#pragma once

#include <initializer_list>

#include "Control/state/common.hpp"

namespace tervak {

/// Columns of the depth table that the axial curves use.
enum class depth_column { TCMP, TTNS, G0SOIL, TZDRAT, SIGTIP, QZDRAT, POIS };

/// A column, and where its value at the layer goes.
struct depth_request {
  depth_column column;
  double& YI;
};

/// Looks columns of the depth table up at ZLAY(NL), in the order of the requests. Returns 0, or the IERR of
/// Interpolate for the first request that fails; the later ones are then not looked up.
///
/// The result depends on the layer only. The first diameter of a layer walks the table, the further ones get
/// the kept values: the walk over 10,000 rows for 50 diameters would otherwise be the cost of the run. A
/// table that changes between two diameters of one layer goes unnoticed.
[[nodiscard]] int depth_values(common& cmn, layer_number NL, diameter_number ND,
                               std::initializer_list<depth_request> requests);

}  // namespace tervak
