#pragma once

#include <string>
#include <vector>

namespace tervak::os {

/// The words behind the program's name, on Windows in UTF-8 whatever the code page; a console shows UTF-8
/// from here on, and the standard streams are binary.
std::vector<std::string> start_console(int count, char** arguments);

/// Nobody else uses the console: it was opened for this program, which was started by a click or by a file
/// that was dropped on it, and closes at its end.
bool owns_console();

/// Asks for the Enter key and waits for it, or for the end of the input.
void wait_for_enter();

/// A windowed program writes its standard error to the console that called it, where there is one and the
/// stream leads nowhere else.
void attach_to_calling_console();

}  // namespace tervak::os
