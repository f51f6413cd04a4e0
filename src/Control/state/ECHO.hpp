#pragma once

#include "Control/state/common.hpp"

namespace tervak {

/// Copies the file of unit NFR, numbered and from its first line, to unit NFW: a page heading with the
/// program's `name`, a ruler, the lines, the ruler again. 80 columns of each line are shown. NFR stands at
/// its start afterwards. A unit that cannot be read ends the copy with a message on unit 0 (the standard
/// error stream); IERR is never set. Name it with its namespace where terminal headers are included: they
/// define a macro of the same name.
void ECHO(common& cmn, int NFR, int NFW, const char* name);

}  // namespace tervak
