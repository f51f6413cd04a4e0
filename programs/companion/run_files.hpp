#pragma once

#include <array>

namespace tervak::companion {

/// The files of a run, in the order in which they are named to the user.
inline constexpr std::array RUN_FILES = {"TERVAK.LIS", "TERVAK.RIF", "soil_halde.fem", "soil_70.fem",
                                         "TERVAK.MLG"};

inline constexpr const char* NORMAL_EXIT = "NORMAL EXIT FROM TERVAK";
inline constexpr const char* ERROR_EXIT = "ERROR EXIT FROM TERVAK";

}  // namespace tervak::companion
