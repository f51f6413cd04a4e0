#include "report/files.hpp"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <stdexcept>
#include <system_error>

#include "Platform/streams.hpp"

namespace tervak::report {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void fail(const std::string& name, const std::string& what, int error) {
  throw std::runtime_error(name + ": " + what + ": " + std::strerror(error));
}

/// Opens a file that did not exist, named after `name`.
std::FILE* open_beside(const std::string& name, std::string& chosen) {
  for (int i = 0; i < 100; ++i) {
    chosen = name + ".part" + std::to_string(i);
    if (std::FILE* file = os::create_stream(chosen)) return file;
    if (errno != EEXIST) break;
  }
  fail(chosen, "cannot be created", errno);
}

}  // namespace

std::string read_file(const std::string& name) {
  std::error_code error;
  if (fs::exists(name, error) && !fs::is_regular_file(name, error))
    throw std::runtime_error(name + ": expected a regular file");
  std::FILE* const file = os::open_stream(name, "rb");
  if (file == nullptr) fail(name, "cannot be opened", errno);
  std::string text;
  char block[65536];
  while (const std::size_t count = std::fread(block, 1, sizeof block, file)) text.append(block, count);
  const bool failed = std::ferror(file) != 0;
  const int cause = errno;
  std::fclose(file);
  if (failed) fail(name, "cannot be read", cause);
  return text;
}

bool same_file(const std::string& input, const std::string& output) {
  std::error_code error;
  return fs::equivalent(input, output, error) ||
         fs::weakly_canonical(input, error) == fs::weakly_canonical(output, error);
}

void make_directory(const std::string& name) {
  std::error_code error;
  fs::create_directories(name, error);
  if (fs::is_directory(name)) return;
  if (fs::exists(name)) throw std::runtime_error(name + ": something other than a directory stands there");
  fail(name, "cannot be made", error.value());
}

void write_file(const std::string& name, const std::string& text) {
  std::error_code error;
  if (fs::exists(name, error) && !fs::is_regular_file(name, error))
    throw std::runtime_error(name + ": something other than a regular file stands there, it is left alone");
  std::string part;
  std::FILE* const file = open_beside(name, part);
  bool good = std::fwrite(text.data(), 1, text.size(), file) == text.size();
  int cause = good ? 0 : errno;
  if (std::fclose(file) != 0 && good) {
    good = false;
    cause = errno;
  }
  if (good) {
    // The rename of this library replaces a file on every system.
    fs::rename(part, name, error);
    if (!error) return;
    cause = error.value();
  }
  fs::remove(part, error);
  fail(name, "cannot be written", cause);
}

}  // namespace tervak::report
