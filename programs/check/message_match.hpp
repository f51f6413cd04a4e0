#pragma once

#include <string_view>
#include <vector>

namespace tervak::check {

/// Whether a line of a log is a record of a message: literal text with %i, %x and %t for a whole number, one
/// with a point and a text. Blanks count for nothing, as numbers that are too wide for their field stand
/// against what is beside them. The numbers are appended; those that could not be calculated or are wider
/// than their field as NaN.
[[nodiscard]] bool matches(std::string_view line, std::string_view record, std::vector<double>& numbers);

}  // namespace tervak::check
