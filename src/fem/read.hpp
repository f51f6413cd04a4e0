#pragma once

#include <string_view>

#include "fem/read_loop.hpp"

namespace fem {

/// The formatted read statement. Items: text_ref, fixed_text<N>, int, double.
template <class... Items>
void read(io& units, int unit, std::string_view format, Items&&... items) {
  read_loop loop(units, unit, format);
  (loop(items), ...);
  loop.finish();
}

/// The list-directed read statement.
template <class... Items>
void read_list_directed(io& units, int unit, Items&&... items) {
  read_loop loop(units, unit);
  (loop(items), ...);
  loop.finish();
}

}  // namespace fem
