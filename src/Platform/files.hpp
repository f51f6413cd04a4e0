#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace tervak::os {

/// What a name stands for, links not followed.
enum class file_kind { absent, regular, directory, link, other };

/// Throws std::runtime_error where that cannot be found out.
file_kind kind_of(const std::filesystem::path& file);
/// "a link", "a directory" and so on.
const char* text_of(file_kind kind);

/// The characters (bytes, or UTF-16 units on Windows) that a whole path may have at most. Where a system
/// knows no such limit, or says so itself at the call, there is none here.
std::size_t longest_path();

/// All bytes of a regular file, or of the regular file that a link leads to. Does not wait for a FIFO. Throws
/// std::runtime_error, whose text gives the name and the reason.
std::string read_file(const std::filesystem::path& file);

/// Puts a file of these bytes under the name, in one step: whoever looks finds the former file or the whole
/// new one. A link of that name is replaced and not followed. Throws std::runtime_error, with the former file
/// as it was.
void replace_file(const std::filesystem::path& file, std::string_view bytes);

}  // namespace tervak::os
