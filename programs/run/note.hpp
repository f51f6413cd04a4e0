#pragma once

#include <filesystem>
#include <string>

namespace tervak::run {

/// Moves the calculation note of an earlier run to TERVAK.NOTE.html.bak, over the one there: a note beside
/// results is always of their run. `directory` has passed check_directory.
void put_note_away(const std::filesystem::path& directory);

struct note_result {
  std::string line;  ///< what the user is told
  bool failed;       ///< it could not be made
};

/// Runs the deck of the directory once more and writes its note as TERVAK.NOTE.html. A deck with faults gives
/// a note of these, a run that stops one up to the stop. A note beyond the largest page is not written, and
/// the line says how a layer is chosen. `deck` is the user's name of the deck.
note_result write_note(const std::filesystem::path& directory, const std::filesystem::path& deck);

}  // namespace tervak::run
