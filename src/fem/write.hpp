#pragma once

#include <string_view>

#include "fem/write_loop.hpp"

namespace fem {

/// The write statement. Items: `const char*`, text_ref, fixed_text<N>, int, double; see write_loop.hpp for
/// how they differ.
template <class... Items>
void write(io& units, int unit, std::string_view format, const Items&... items) {
  write_loop loop(units, unit, format);
  (loop(items), ...);
  loop.finish();
}

/// The same into a text of fixed length.
template <class... Items>
void write(text_ref target, std::string_view format, const Items&... items) {
  write_loop loop(target, format);
  (loop(items), ...);
  loop.finish();
}

}  // namespace fem
