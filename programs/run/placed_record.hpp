#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace tervak::run {

/// The file .tervak-run of a directory: which files tervak-run has placed there, by size and checksum, so
/// that a file that somebody has made or changed since is known as theirs.
class placed_record {
 public:
  /// Reads the record; an empty one where there is none. Refuses a file that is no such record.
  explicit placed_record(const std::filesystem::path& directory);

  /// Whether tervak-run has placed a file of this name with these bytes.
  [[nodiscard]] bool has(const std::string& name, std::string_view bytes) const;
  /// Replaces the record by `lines`, in one step, where it is another.
  void write(const std::vector<std::string>& lines) const;

  static std::string line(const std::string& name, std::string_view bytes);

 private:
  std::filesystem::path file_;
  std::string text_;
};

}  // namespace tervak::run
