#pragma once

namespace tervak {

/// Below this a stress, strength or resistance counts as none. Tighter than the EPS of the other stages.
constexpr double NO_STRESS = 1.0E-12;

}  // namespace tervak
