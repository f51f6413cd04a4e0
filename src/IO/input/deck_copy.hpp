#pragma once

#include "Control/state/common.hpp"

namespace tervak {

/// Copies the lines of the deck (NFINP) up to the first that begins with END into the temporary file NFTMP,
/// each cut or padded to 120 columns, without comment lines ("*", "C" or "c" in column 1, from line 2 on).
/// No value is looked at. NFTMP stands at its start afterwards. A deck that ends without END, or cannot be
/// read, ends the copy without a message: the import has read the deck already.
void copy_deck(common& cmn);

}  // namespace tervak
