#pragma once

#include "Control/state/common.hpp"

namespace tervak {

/// Keeps one earlier generation of a file: removes NAME.bak and renames NAME to it. Neither result is looked
/// at: where the file cannot be moved, opening it anew fails, and that is reported.
void rotate(const char* name);

/// Opens a formatted sequential file. IERR becomes 1 on failure and stays as it was otherwise, so that a
/// failure remains visible through later opens.
void open_run_file(common& cmn, int unit, const char* name, const char* status);

/// Whether two files hold the same bytes. The deck stands under two names, and one may be a copy that was
/// forgotten when the other was edited.
[[nodiscard]] bool same_content(const char* one, const char* other);

/// Closes the units of the run at its end and deletes the runtime's temporary files.
void close_run_files(common& cmn);

}  // namespace tervak
