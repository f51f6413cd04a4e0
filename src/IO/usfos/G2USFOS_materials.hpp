#pragma once

#include <array>
#include <vector>

#include "Control/state/common.hpp"

namespace tervak {

/// A point of an exported curve, in the run's units.
struct usfos_point {
  double F = 0.0;  ///< force
  double U = 0.0;  ///< displacement
};

/// An entry of the material list. An empty curve has the number 0 and no record.
struct usfos_material {
  int number = 0;
  int type = 2;  ///< 2 is a curve material, the only type made here
  std::vector<double>
      record;  ///< curve kind, six reserved zeros, count N, then N pairs of force and displacement
};

/// The material numbers of one layer: P-Y, T-Z, Q-Z.
using usfos_layer = std::array<int, 3>;

/// S: the diameter rounded to whole length units, or to thousandths when that is below 5.
int usfos_soil_number(double D);

/// (M * 100 + L) * 10 + T of layer L and curve kind T (1 P-Y, 2 T-Z, 3 Q-Z), M being the diameter rounded to
/// whole length units, or to thousandths when that is below 100: another limit than that of the soil number.
int usfos_material_number(double D, layer_number L, int T);

/// The corner points of a curve. The first point stays; a later one is dropped when its force and its
/// displacement both agree within one per cent with those of the point kept last. Then the far ends are drawn
/// in: see the body. A curve of fewer than two kept points is not drawn in.
std::vector<usfos_point> usfos_thin(const std::vector<usfos_point>& curve);

/// The material of curve `curve`, kind T, of layer L and diameter D. Forces whose squares sum to less than
/// 0.1 make an empty one.
usfos_material usfos_make_material(const std::vector<usfos_point>& curve, double D, layer_number L, int T);

/// The SOILCHAR block of the diameter D: soil number, sea floor and factors, then the layers with their
/// materials.
void usfos_write_soilchar(common& cmn, int UNIT, double D, double F, double L,
                          const std::vector<usfos_layer>& layers);

/// The material list: MISOPL records for MODE 1, UWRMAT for MODE 2. IERR becomes -1 on failure, see G2USFOS.
void G2U_WMAT(common& cmn, int UNIT, int MODE, const std::vector<usfos_material>& materials, int& IERR);

/// HYPELAST (Q-Z) and ELPLCURV (P-Y, T-Z) records in ascending order of number, negative numbers behind the
/// positive ones. Of materials that share a number the first is written; each other one prints an error line
/// and makes the result false.
bool UWRMAT(common& cmn, int UNIT, const std::vector<usfos_material>& materials);

}  // namespace tervak
