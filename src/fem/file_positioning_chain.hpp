#pragma once

#include "fem/io.hpp"

namespace fem {

/// The close, rewind, endfile and backspace statements; contracts in io.hpp.
inline void close(io& units, int unit, int* iostat = nullptr) { units.close_unit(unit, iostat); }
inline void rewind(io& units, int unit, int* iostat = nullptr) { units.rewind_unit(unit, iostat); }
inline void endfile(io& units, int unit) { units.end_file(unit); }
[[noreturn]] inline void backspace(io& units, int unit) { units.backspace(unit); }

}  // namespace fem
