#pragma once

#include <array>
#include <string_view>

namespace fem::utils {

/// Room for the widest E field.
using e_field = std::array<char, 256>;

/// Renders a value as an E or D field of exactly w characters (1 to 255) with d digits under the scale factor
/// k: `letter` is 'E' or 'D'. The result stands in `field`.
///
/// The scaled double is rounded half up, so that the last digit may differ from the C library's; digits
/// beyond the sixteenth are zeros. A field too narrow, d = 0, a scale factor that leaves no digits and an
/// infinity show asterisks. A zero loses its sign. An exponent of three digits takes the letter's place. The
/// zero ahead of the point is the first to go when room is short.
///
/// Throws std::runtime_error where w or d is out of range.
std::string_view double_to_string(e_field& field, double value, int w, int d, int k, char letter);

}  // namespace fem::utils
