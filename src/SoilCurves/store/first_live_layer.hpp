#pragma once

#include "Control/state/common.hpp"

namespace tervak {

/// The first layer whose level lies strictly below the local scour level ZSEAFL + SCRLOC, counted from 1; the
/// layers before it are dead and give no resistance. When no layer lies below, it is the last layer, which
/// then counts as live although it lies above the scour level.
[[nodiscard]] int first_live_layer(const common& cmn);

}  // namespace tervak
