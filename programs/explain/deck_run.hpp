#pragma once

#include <string>
#include <vector>

#include "explain/note_book.hpp"

namespace tervak::explain {

/// A deck that was run while the book listened.
struct told_run {
  std::vector<told_profile> profiles;
  bool whole = false;             ///< the run came to its normal end
  note_subject last;              ///< where it was when it stopped
  std::vector<std::string> stop;  ///< what its log says about the stop
};

/// Runs the deck in a scratch directory that is removed afterwards, with the pile node file PILEPLOT.TXT from
/// beside `deck` where there is one. Throws std::runtime_error when the directory or a copy cannot be made.
told_run run_deck(const std::string& deck);

}  // namespace tervak::explain
