#pragma once

#include <utility>

#include "report/rif_data.hpp"

namespace tervak::report {

/// The points of a curve that are not filler, as the index of the first and that behind the last. Filler
/// fills a curve out to its 29 points at both ends alike: it repeats the end stress in steps of one length
/// unit, in a monopile curve at the same displacement.
std::pair<std::size_t, std::size_t> points_before_filler(const curve& c, bool monopile);

/// Whether a monopile curve stands for none: no force at all.
bool is_absent(const curve& c);

}  // namespace tervak::report
