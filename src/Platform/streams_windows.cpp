#include "Platform/streams.hpp"

#include <fcntl.h>
#include <io.h>
#include <share.h>
#include <sys/stat.h>

#include <cerrno>
#include <filesystem>
#include "Platform/names.hpp"

namespace tervak::os {

namespace {

/// The system's form of a name; none, and errno, where it is no UTF-8.
std::wstring wide(const std::string& name) {
  try {
    return path_of(name).native();
  } catch (const std::filesystem::filesystem_error&) {
    errno = EILSEQ;
    return {};
  }
}

}  // namespace

std::FILE* open_stream(const std::string& name, const char* mode) {
  const std::wstring file = wide(name);
  return file.empty() ? nullptr : _wfopen(file.c_str(), wide(mode).c_str());
}

// The runtime library knows no mode "x".
std::FILE* create_stream(const std::string& name) {
  const std::wstring file = wide(name);
  if (file.empty()) return nullptr;
  const int number =
      _wsopen(file.c_str(), _O_WRONLY | _O_CREAT | _O_EXCL | _O_BINARY, _SH_DENYNO, _S_IREAD | _S_IWRITE);
  if (number < 0) return nullptr;
  std::FILE* const stream = _fdopen(number, "wb");
  if (stream == nullptr) _close(number);
  return stream;
}

bool cut_here(std::FILE* stream) {
  const auto position = _ftelli64(stream);
  // Going to where it already is drops what has been read ahead.
  if (position < 0 || _fseeki64(stream, position, SEEK_SET) != 0) return false;
  if (_chsize_s(_fileno(stream), position) != 0) return false;
  return std::fseek(stream, 0, SEEK_END) == 0;
}

bool case_tells_names_apart() { return false; }

void make_streams_binary() {
  for (std::FILE* const stream : {stdin, stdout, stderr})
    if (const int number = _fileno(stream); number >= 0) static_cast<void>(_setmode(number, _O_BINARY));
}

}  // namespace tervak::os
