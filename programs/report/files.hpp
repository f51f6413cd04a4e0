#pragma once

#include <fstream>
#include <string>

namespace tervak::report {

/// A regular file, opened for reading. Throws std::runtime_error with the name and the cause.
std::ifstream open_file(const std::string& name);

/// The whole of a regular file. Throws std::runtime_error with the name and the cause.
std::string read_file(const std::string& name);

/// Whether writing `output` would replace `input`, by whatever path or link.
bool same_file(const std::string& input, const std::string& output);

/// Makes a directory, and those above it, where they are missing. Throws std::runtime_error with the name and
/// the cause.
void make_directory(const std::string& name);

/// Writes a new file beside `name` and renames it to it when it is complete, so that a failure leaves what
/// stood there. What stands there may only be a regular file. Throws std::runtime_error with the name and the
/// cause.
void write_file(const std::string& name, const std::string& text);

}  // namespace tervak::report
