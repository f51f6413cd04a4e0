#include "Platform/files.hpp"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <limits>
#include <stdexcept>

namespace tervak::os {

namespace {

namespace fs = std::filesystem;

[[noreturn]] void fail(const fs::path& file, const std::string& what, int cause) {
  throw std::runtime_error(file.string() + ": " + what + ": " + std::strerror(cause));
}

class handle {
 public:
  explicit handle(int number) : number_(number) {}
  ~handle() {
    if (number_ >= 0) close(number_);
  }
  handle(const handle&) = delete;
  handle& operator=(const handle&) = delete;
  [[nodiscard]] int number() const { return number_; }
  /// False where the system tells only now that a write has failed.
  bool shut() {
    const int number = number_;
    number_ = -1;
    return close(number) == 0;
  }

 private:
  int number_;
};

bool write_all(int number, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count = write(number, bytes.data(), bytes.size());
    if (count == 0) errno = EIO;
    if (count == 0 || (count < 0 && errno != EINTR)) return false;
    if (count > 0) bytes.remove_prefix(static_cast<std::size_t>(count));
  }
  return true;
}

}  // namespace

file_kind kind_of(const fs::path& file) {
  struct stat information {};
  if (lstat(file.c_str(), &information) != 0) {
    if (errno == ENOENT || errno == ENOTDIR) return file_kind::absent;
    fail(file, "cannot be examined", errno);
  }
  if (S_ISREG(information.st_mode)) return file_kind::regular;
  if (S_ISDIR(information.st_mode)) return file_kind::directory;
  return S_ISLNK(information.st_mode) ? file_kind::link : file_kind::other;
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

std::size_t longest_path() { return std::numeric_limits<std::size_t>::max(); }

std::string read_file(const fs::path& file) {
  const handle in(open(file.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY));
  if (in.number() < 0) fail(file, "cannot be opened", errno);
  struct stat information {};
  if (fstat(in.number(), &information) != 0) fail(file, "cannot be examined", errno);
  if (!S_ISREG(information.st_mode)) throw std::runtime_error(file.string() + ": is not a regular file");
  std::string bytes(static_cast<std::size_t>(information.st_size) + 1, '\0');
  std::size_t size = 0;
  for (;;) {
    if (size == bytes.size()) bytes.resize(2 * size);
    const ssize_t count = read(in.number(), bytes.data() + size, bytes.size() - size);
    if (count < 0 && errno != EINTR) fail(file, "cannot be read", errno);
    if (count == 0) break;
    if (count > 0) size += static_cast<std::size_t>(count);
  }
  bytes.resize(size);
  return bytes;
}

void replace_file(const fs::path& file, std::string_view bytes) {
  std::string part;
  int number = -1;
  for (int i = 0; i < 100 && number < 0; ++i) {
    part = (file.parent_path() / (".tervak-part" + std::to_string(i))).string();
    number = open(part.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666);
    if (number < 0 && errno != EEXIST) break;
  }
  if (number < 0) fail(file, "cannot be written", errno);
  handle out(number);
  int cause = write_all(number, bytes) ? 0 : errno;
  if (!out.shut() && cause == 0) cause = errno;
  if (cause == 0 && std::rename(part.c_str(), file.c_str()) != 0) cause = errno;
  if (cause == 0) return;
  static_cast<void>(unlink(part.c_str()));
  fail(file, "cannot be written", cause);
}

}  // namespace tervak::os
