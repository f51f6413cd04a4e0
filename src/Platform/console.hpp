#pragma once

#include <string>
#include <vector>

namespace tervak::os {

/// The words behind the program's name, on Windows in UTF-8 whatever the code page; a console shows UTF-8
/// from here on, and the standard streams are binary.
std::vector<std::string> start_console(int count, char** arguments);

/// A windowed program writes its standard error to the console that called it, where there is one and the
/// stream leads nowhere else.
void attach_to_calling_console();

}  // namespace tervak::os
