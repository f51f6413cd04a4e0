#pragma once

#include <filesystem>
#include <string>

#include "check/explain.hpp"

namespace tervak::check {

/// Runs the deck in a scratch directory, with the PILEPLOT.TXT beside it, and explains the first failure of a
/// stage; "" where the run ends well. Throws std::runtime_error where the run cannot be made.
[[nodiscard]] std::string trial_run(const std::filesystem::path& deck, const deck_reading& reading,
                                    const std::filesystem::path& program);

}  // namespace tervak::check
