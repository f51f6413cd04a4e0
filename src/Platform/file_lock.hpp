#pragma once

#include <filesystem>
#include <string>

namespace tervak::os {

/// A lock on a file, which is made where it does not exist and stays behind, empty. The system drops the lock
/// when the process ends, in whichever way.
class file_lock {
 public:
  explicit file_lock(const std::filesystem::path& file);
  ~file_lock();
  file_lock(const file_lock&) = delete;
  file_lock& operator=(const file_lock&) = delete;

  [[nodiscard]] bool held() const { return held_; }
  /// Another process holds it.
  [[nodiscard]] bool taken() const { return taken_; }
  /// The file could be opened.
  [[nodiscard]] bool opened() const { return handle_ >= 0; }
  /// Why it is neither held nor taken: the file cannot be opened, or its file system knows no locks.
  [[nodiscard]] const std::string& failure() const { return failure_; }

 private:
  int handle_ = -1;
  bool held_ = false, taken_ = false;
  std::string failure_;
};

}  // namespace tervak::os
