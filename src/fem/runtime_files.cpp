#include <cstdio>
#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

#include "fem/io.hpp"

namespace fem {

namespace {

void report(const std::filesystem::path& path, const std::error_code& error) {
  static_cast<void>(
      std::fprintf(stderr, "Error While Accessing : %s :: %s\n", path.c_str(), error.message().c_str()));
}

std::vector<std::string> regular_files_here() {
  const std::filesystem::path here = ".";
  std::vector<std::string> names;
  std::error_code error;
  std::filesystem::directory_iterator entry(here, error);
  for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
    std::error_code unexamined;
    const bool regular = entry->is_regular_file(unexamined);
    if (unexamined) report(entry->path(), unexamined);
    if (regular) names.push_back(entry->path().filename().string());
  }
  if (error) report(here, error);
  return names;
}

}  // namespace

void io::remove_runtime_files() {
  for (const std::string& name : regular_files_here())
    if (name.starts_with("fem_io")) static_cast<void>(std::remove(name.c_str()));
}

}  // namespace fem
