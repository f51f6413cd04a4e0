#pragma once

namespace fem::utils {

/// Whether a character, or what a stream returns in place of one, is a decimal digit. Independent of the
/// locale.
constexpr bool is_digit(int c) { return c >= '0' && c <= '9'; }

}  // namespace fem::utils
