#pragma once

#include <cstddef>
#include <string_view>

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

/// The same for a line that may be the first of a file: drops the byte order mark of UTF-8 that some editors
/// put there. `format` is "(aN)" of three columns more.
template <std::size_t N>
fem::fixed_text<N> read_line_of_deck(common& cmn, int unit, const char* format, bool first) {
  const auto whole = read_line<N + 3>(cmn, unit, format);
  const bool marked = first && whole.view().starts_with("\xEF\xBB\xBF");
  fem::fixed_text<N> line;
  line.assign(whole.view().substr(marked ? 3 : 0));
  return line;
}

}  // namespace tervak
