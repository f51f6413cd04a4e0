#pragma once

#include <cstdio>
#include <string>

namespace tervak::os {

/// As std::fopen; the name is in UTF-8 on Windows, whatever its code page.
std::FILE* open_stream(const std::string& name, const char* mode);

/// A new file for writing in binary; null, and errno EEXIST, where the name is taken.
std::FILE* create_stream(const std::string& name);

/// Cuts the file at the present position and goes to its end.
bool cut_here(std::FILE* stream);

/// False where TERVAK.INP and tervak.inp name one file.
bool case_tells_names_apart();

/// The standard streams carry bytes as they are written, without a translation of line ends.
void make_streams_binary();

}  // namespace tervak::os
