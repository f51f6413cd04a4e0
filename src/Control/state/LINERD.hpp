#pragma once

#include "Control/state/common.hpp"

namespace tervak {

/// Shows on unit NFW the last lines that were read from unit NFR, twelve at most, so that the engineer sees
/// where reading stopped. NOW is the number of the line at which it stopped; 0 shows the headings only.
/// KIND: 1 a read error, 2 an end of file, 3 a fault found here, 4 values that were not accepted. 70 columns
/// of each line are shown. An end of the file ends the showing without a word; IERR is never set.
void LINERD(common& cmn, int NFR, int NFW, int NOW, int KIND);

}  // namespace tervak
