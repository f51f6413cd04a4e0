#include "Platform/file_lock.hpp"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace tervak::os {

file_lock::file_lock(const std::filesystem::path& file) {
  handle_ = open(file.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, 0666);
  held_ = handle_ >= 0 && flock(handle_, LOCK_EX | LOCK_NB) == 0;
  if (held_) return;
  taken_ = handle_ >= 0 && errno == EWOULDBLOCK;
  if (!taken_) failure_ = std::strerror(errno);
}

file_lock::~file_lock() {
  if (handle_ >= 0) close(handle_);
}

}  // namespace tervak::os
