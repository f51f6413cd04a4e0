#include "Platform/files.hpp"

#include <windows.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <stdexcept>
#include <system_error>

#include "Platform/names.hpp"
#include "Platform/streams.hpp"

namespace tervak::os {

namespace {

namespace fs = std::filesystem;

[[noreturn]] void fail(const fs::path& file, const std::string& what, const std::string& cause) {
  throw std::runtime_error(name_of(file) + ": " + what + ": " + cause);
}

}  // namespace

file_kind kind_of(const fs::path& file) {
  const DWORD attributes = GetFileAttributesW(file.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) {
    const DWORD cause = GetLastError();
    if (cause == ERROR_FILE_NOT_FOUND || cause == ERROR_PATH_NOT_FOUND) return file_kind::absent;
    fail(file, "cannot be examined", std::system_category().message(static_cast<int>(cause)));
  }
  if ((attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0) return file_kind::link;
  if ((attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) return file_kind::directory;
  return (attributes & FILE_ATTRIBUTE_DEVICE) != 0 ? file_kind::other : file_kind::regular;
}

const char* text_of(file_kind kind) {
  switch (kind) {
    case file_kind::absent:
      return "no file";
    case file_kind::regular:
      return "a file";
    case file_kind::directory:
      return "a directory";
    case file_kind::link:
      return "a link";
    case file_kind::other:
      break;
  }
  return "neither a file nor a directory";
}

// The program reaches its files by the C library, which stops here, whatever the file system takes.
std::size_t longest_path() { return MAX_PATH - 1; }

std::string read_file(const fs::path& file) {
  std::error_code error;
  if (fs::exists(file, error) && !fs::is_regular_file(file, error))
    throw std::runtime_error(name_of(file) + ": is not a regular file");
  std::FILE* const stream = _wfopen(file.c_str(), L"rb");
  if (stream == nullptr) fail(file, "cannot be opened", std::strerror(errno));
  std::string bytes;
  char block[65536];
  while (const std::size_t count = std::fread(block, 1, sizeof block, stream)) bytes.append(block, count);
  const bool failed = std::ferror(stream) != 0;
  const int cause = errno;
  static_cast<void>(std::fclose(stream));
  if (failed) fail(file, "cannot be read", std::strerror(cause));
  return bytes;
}

void replace_file(const fs::path& file, std::string_view bytes) {
  fs::path part;
  std::FILE* stream = nullptr;
  for (int i = 0; i < 100 && stream == nullptr; ++i) {
    part = file.parent_path() / (".tervak-part" + std::to_string(i));
    stream = create_stream(name_of(part));
    if (stream == nullptr && errno != EEXIST) break;
  }
  if (stream == nullptr) fail(file, "cannot be written", std::strerror(errno));
  std::string cause =
      std::fwrite(bytes.data(), 1, bytes.size(), stream) == bytes.size() ? "" : std::strerror(errno);
  if (std::fclose(stream) != 0 && cause.empty()) cause = std::strerror(errno);
  std::error_code error;
  if (cause.empty()) {
    fs::rename(part, file, error);
    if (!error) return;
    cause = error.message();
  }
  fs::remove(part, error);
  fail(file, "cannot be written", cause);
}

}  // namespace tervak::os
