#include <cstdio>
#include <filesystem>
#include <system_error>
#include <vector>

#include "fem/io.hpp"
#include "Platform/names.hpp"

namespace fem {

namespace {

void report(const std::filesystem::path& path, const std::error_code& error) {
  static_cast<void>(std::fprintf(stderr, "Error While Accessing : %s :: %s\n",
                                 tervak::os::name_of(path).c_str(), error.message().c_str()));
}

std::vector<std::filesystem::path> regular_files_here() {
  const std::filesystem::path here = ".";
  std::vector<std::filesystem::path> names;
  std::error_code error;
  std::filesystem::directory_iterator entry(here, error);
  for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
    std::error_code unexamined;
    const bool regular = entry->is_regular_file(unexamined);
    if (unexamined) report(entry->path(), unexamined);
    if (regular) names.push_back(entry->path().filename());
  }
  if (error) report(here, error);
  return names;
}

}  // namespace

void io::remove_runtime_files() {
  const std::filesystem::path beginning = "fem_io";
  std::error_code ignored;
  for (const std::filesystem::path& name : regular_files_here())
    if (name.native().starts_with(beginning.native())) std::filesystem::remove(name, ignored);
}

}  // namespace fem
