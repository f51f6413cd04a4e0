#pragma once

#include <filesystem>

namespace tervak::os {

/// A new directory for temporary files that only this user can enter. It goes, with all that is in it, when
/// the object goes. The constructor throws std::runtime_error, which names the place.
class scratch_directory {
 public:
  scratch_directory();
  ~scratch_directory();
  scratch_directory(const scratch_directory&) = delete;
  scratch_directory& operator=(const scratch_directory&) = delete;

  [[nodiscard]] const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

}  // namespace tervak::os
