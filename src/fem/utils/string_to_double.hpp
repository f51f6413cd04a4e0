#pragma once

#include <optional>
#include <string>

#include "fem/utils/simple_istream.hpp"

namespace fem::utils {

/// Outcome of reading a real number: the value, or why there is none.
struct number_result {
  double value = 0;
  std::optional<std::string> failure;
  bool at_end = false;  ///< the failure is an end of input
};

/// Reads one number off a stream and leaves the stream at the character that ended it.
///
/// Notations: 12, 12.5, .5, 1.5E3, 1.5D+3, 1.5-3 (exponent without a letter). `decimals` places are taken as
/// decimals where the number has no point; a number without an exponent letter is divided by 10 to the power
/// of `scale`. Seventeen significant digits are summed one by one, each times its own power of ten, so the
/// last bit may differ from the C library's reading. An exponent without a letter beyond the range of int
/// throws std::out_of_range.
number_result string_to_double(simple_istream& in, int decimals, int scale);

/// How a failure text shows a character: `"a" (ordinal=97)`.
std::string character_description(int c);

}  // namespace fem::utils
