#pragma once

#include <string_view>

namespace Vrsk::Plin::TervakExchange {

enum class number_fault {
  none,
  syntax,  ///< not a number as the deck writes them
  range    ///< beyond the range of a double, or of 32 bits
};

/// A decimal number with an optional exponent by E or D in either case ("1.5", ".5", "2.", "1.0D-2"). The
/// whole text must be the number. One too small for a double is 0.0. `value` is written only on success.
[[nodiscard]] number_fault parse_number(std::string_view text, double& value);

/// An integer of 32 bits: a sign or none, then digits only.
[[nodiscard]] number_fault parse_integer(std::string_view text, int& value);

}  // namespace Vrsk::Plin::TervakExchange
