#pragma once

namespace tervak {

/// A quarter of pi as these methods have it.
constexpr double QUARTER_PI = 0.7853975;

/// Below this a stress or resistance counts as none. Tighter than the EPS of the other stages.
constexpr double NO_TIP_STRESS = 1.0E-12;

}  // namespace tervak
