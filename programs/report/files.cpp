#include "report/files.hpp"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <stdexcept>

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
    if (std::FILE* file = std::fopen(chosen.c_str(), "wbx")) return file;
    if (errno != EEXIST) break;
  }
  fail(chosen, "cannot be created", errno);
}

}  // namespace

std::ifstream open_file(const std::string& name) {
  std::error_code error;
  if (fs::exists(name, error) && !fs::is_regular_file(name, error))
    throw std::runtime_error(name + ": expected a regular file");
  errno = 0;
  std::ifstream file(name, std::ios::binary);
  if (!file) fail(name, "cannot be opened", errno);
  return file;
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
  return fs::equivalent(input, output, error) ||
         fs::weakly_canonical(input, error) == fs::weakly_canonical(output, error);
}

void make_directory(const std::string& name) {
  std::error_code error;
  fs::create_directories(name, error);
  if (fs::is_directory(name)) return;
  if (fs::exists(name)) throw std::runtime_error(name + ": expected a directory, found something else");
  fail(name, "cannot be made", error.value());
}

void write_file(const std::string& name, const std::string& text) {
  std::error_code error;
  if (fs::exists(name, error) && !fs::is_regular_file(name, error))
    throw std::runtime_error(name + ": expected a regular file, found something else; it is not replaced");
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
    good = !error;
    cause = error.value();
  }
  if (good) return;
  std::remove(part.c_str());
  fail(name, "cannot be written", cause);
}

}  // namespace tervak::report
