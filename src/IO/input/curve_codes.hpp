#pragma once

#include <algorithm>
#include <array>

namespace tervak {

/// Curve codes that a deck may give, by family and deck revision. P-Y 600 came with revision 5, T-Z 588 went.
inline constexpr std::array PY_CODES_4{0, 100, 101, 102, 103, 214, 284, 287, 380, 404, 570, 588};
inline constexpr std::array PY_CODES_5{0, 100, 101, 102, 103, 214, 284, 287, 380, 404, 570, 588, 600};
inline constexpr std::array TZ_CODES_4{0, 100, 101, 102, 103, 200, 214, 293, 588};
inline constexpr std::array TZ_CODES_5{0, 100, 101, 102, 103, 200, 214, 293};
inline constexpr std::array QZ_CODES{0, 100, 101, 102, 103, 200, 214, 293};

template <std::size_t N>
constexpr bool accepts(const std::array<int, N>& codes, int code) {
  return std::find(codes.begin(), codes.end(), code) != codes.end();
}

}  // namespace tervak
