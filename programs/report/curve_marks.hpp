#pragma once

#include <string>
#include <vector>

#include "report/rif_data.hpp"

namespace tervak::report {

/// What makes an analysis of the pile fail to converge, or to find resistance.
enum class mark_kind {
  softening,  // going outward on one side the stress falls by more than 0.1 % of the side's peak
  vertical,   // the stress changes by 5 % or more of the side's peak over at most 1e-6 diameters
  zero        // no stress at all
};

struct mark {
  mark_kind kind = mark_kind::zero;
  int side = 0;          // 1 from the origin to positive displacement, -1 to negative, 0 the whole curve
  std::size_t from = 0;  // index of the point where the piece begins, seen from the origin
  std::size_t to = 0;
  double share = 0.0;  // fall or step as a share of the side's peak
};

/// Index of the origin: the point of least displacement, and of least stress among several.
std::size_t origin_of(const curve& c);
/// Indices from the origin to the end of a side (1 or -1).
std::vector<std::size_t> outward(const curve& c, int side);

/// The marks of a curve. `length` is that against which 1e-6 is measured: the pile diameter, or 0 where
/// displacements are rotations. Softening gives one mark a side, at its greatest fall below what was reached
/// before. A side without any stress is no fault while the other has some: a pile tip takes no tension by
/// default.
std::vector<mark> find_marks(const curve& c, double length);

/// Where the shape of a side ends, as a displacement without sign: the generated curves close with far points
/// at a thousand diameters and beyond, which would hide the shape in a plot. Far points are those behind a
/// hundredfold jump of the displacement across which the stress stays within a tenth of the peak. A flat end
/// is cut to its start. 0 for a side without stress.
double shape_end(const curve& c, int side);

}  // namespace tervak::report
