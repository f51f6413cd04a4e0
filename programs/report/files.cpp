#include "report/files.hpp"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <sstream>
#include <stdexcept>
#include <system_error>

#include "Platform/names.hpp"
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

std::ifstream open_file(const std::string& name) {
  const fs::path file = os::path_of(name);
  std::error_code error;
  if (fs::exists(file, error) && !fs::is_regular_file(file, error))
    throw std::runtime_error(name + ": expected a regular file");
  errno = 0;
  std::ifstream stream(file, std::ios::binary);
  if (!stream) fail(name, "cannot be opened", errno);
  return stream;
}

std::string read_file(const std::string& name) {
  std::ifstream in = open_file(name);
  std::ostringstream text;
  text << in.rdbuf();
  if (in.bad()) throw std::runtime_error(name + ": cannot be read");
  return text.str();
}

bool same_file(const std::string& input, const std::string& output) {
  std::error_code error;
  const fs::path one = os::path_of(input), other = os::path_of(output);
  return fs::equivalent(one, other, error) ||
         fs::weakly_canonical(one, error) == fs::weakly_canonical(other, error);
}

void make_directory(const std::string& name) {
  std::error_code error;
  const fs::path directory = os::path_of(name);
  fs::create_directories(directory, error);
  if (fs::is_directory(directory)) return;
  if (fs::exists(directory)) throw std::runtime_error(name + ": expected a directory, found something else");
  fail(name, "cannot be made", error.value());
}

void write_file(const std::string& name, const std::string& text) {
  const fs::path file = os::path_of(name);
  std::error_code error;
  if (fs::exists(file, error) && !fs::is_regular_file(file, error))
    throw std::runtime_error(name + ": expected a regular file, found something else; it is not replaced");
  std::string part;
  std::FILE* const stream = open_beside(name, part);
  bool good = std::fwrite(text.data(), 1, text.size(), stream) == text.size();
  int cause = good ? 0 : errno;
  if (std::fclose(stream) != 0 && good) {
    good = false;
    cause = errno;
  }
  if (good) {
    // The rename of this library replaces a file on every system.
    fs::rename(os::path_of(part), file, error);
    if (!error) return;
    cause = error.value();
  }
  fs::remove(os::path_of(part), error);
  fail(name, "cannot be written", cause);
}

}  // namespace tervak::report
