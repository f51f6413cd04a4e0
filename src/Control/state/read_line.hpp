#pragma once

#include <cstddef>

#include "Control/state/common.hpp"
#include "fem/read.hpp"

namespace tervak {

/// The next line of a unit, cut or padded with blanks to N columns; the rest of a longer line is dropped.
/// `format` is "(aN)". Throws fem::read_end behind the last line and fem::io_err where the unit cannot be
/// read.
template <std::size_t N>
fem::fixed_text<N> read_line(common& cmn, int unit, const char* format) {
  fem::fixed_text<N> line;
  fem::read(cmn.units, unit, format, line);
  return line;
}

}  // namespace tervak
