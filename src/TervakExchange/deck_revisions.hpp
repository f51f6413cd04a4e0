#pragma once

namespace Vrsk::Plin::TervakExchange {

/// The revision of a keyword is 4, 5 or both.
inline constexpr int BOTH = 0;
/// Whether a keyword may be left out.
inline constexpr bool REQUIRED = true, OPTIONAL = false;

}  // namespace Vrsk::Plin::TervakExchange
