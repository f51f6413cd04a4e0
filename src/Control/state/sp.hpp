#pragma once

namespace tervak {

/// A constant that is kept in single precision. The widened value is the one computed with: sp(0.31f) is
/// 0.3100000023841858, and the difference shows in the last printed digits.
constexpr double sp(float value) { return static_cast<double>(value); }

}  // namespace tervak
