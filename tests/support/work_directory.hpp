#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

/// An empty directory of its own, the current one while the test runs.
class work_directory {
 public:
  work_directory() {
    std::string name = (std::filesystem::temp_directory_path() / "tervak-test-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) std::abort();
    std::filesystem::current_path(directory_ = name);
  }
  ~work_directory() {
    std::filesystem::current_path(home_);
    std::filesystem::remove_all(directory_);
  }
  work_directory(const work_directory&) = delete;
  work_directory& operator=(const work_directory&) = delete;

  static void put(const std::string& name, const std::string& bytes) {
    std::ofstream(name, std::ios::binary) << bytes;
  }
  /// "" where there is no such file.
  static std::string get(const std::string& name) {
    std::ifstream in(name, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
  }
  /// What a unit without an open has written, line ends shown as LF.
  static std::string printed(int unit) {
    std::string text = get((unit < 10 ? "fem_io_unit_00" : "fem_io_unit_0") + std::to_string(unit));
    std::erase(text, '\r');
    return text;
  }

 private:
  std::filesystem::path home_ = std::filesystem::current_path(), directory_;
};
