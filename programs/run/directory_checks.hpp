#pragma once

#include <filesystem>

namespace tervak::run {

/// Refuses (throws refusal) a deck, or a directory for its run, whose path, or that of the longest name in
/// it, is longer than the system's programs can open.
void check_lengths(const std::filesystem::path& directory, const std::filesystem::path& deck);

/// Refuses (throws refusal) a directory in which a run would hang, write through a link or take away what is
/// not of a run: each name that the run writes, moves or deletes must be free or a regular file, no other
/// file may begin with "fem_io" (the program deletes them all), TERVAK.RIF must have no second name, and the
/// deck must not be one of these files. Touches nothing.
void check_directory(const std::filesystem::path& directory, const std::filesystem::path& deck);

}  // namespace tervak::run
