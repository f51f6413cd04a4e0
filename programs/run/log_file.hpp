#pragma once

#include <filesystem>
#include <string>

namespace tervak::run {

/// The run log of a directory, and whether it is of the run that was made after the object was.
class log_file {
 public:
  explicit log_file(const std::filesystem::path& directory);

  /// The log of the run; "" where the run has made none, be there one of an earlier run or not.
  [[nodiscard]] std::string read() const;

 private:
  [[nodiscard]] std::string bytes() const;
  [[nodiscard]] std::filesystem::file_time_type time() const;

  std::filesystem::path file_;
  std::string before_;
  std::filesystem::file_time_type time_before_;
};

}  // namespace tervak::run
