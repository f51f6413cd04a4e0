#include "Platform/scratch_directory.hpp"

#include <windows.h>

#include <stdexcept>
#include <string>
#include <system_error>
#include "Platform/names.hpp"

namespace tervak::os {

namespace fs = std::filesystem;

// The directory for temporary files is this user's own, and so is what is made there.
scratch_directory::scratch_directory() {
  std::error_code error;
  const fs::path place = fs::temp_directory_path(error);
  if (error) throw std::runtime_error("no directory for temporary files: TMP or TEMP: " + error.message());
  const std::string stem = "tervak-" + std::to_string(GetCurrentProcessId()) + "-";
  for (int i = 0; i < 100; ++i) {
    const fs::path name = place / (stem + std::to_string(i));
    if (CreateDirectoryW(name.c_str(), nullptr) != 0) {
      path_ = name;
      return;
    }
    const DWORD cause = GetLastError();
    if (cause == ERROR_ALREADY_EXISTS) continue;
    error.assign(static_cast<int>(cause), std::system_category());
    break;
  }
  throw std::runtime_error("cannot make a directory for temporary files in " + name_of(place) + ": " +
                           error.message());
}

scratch_directory::~scratch_directory() {
  try {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
  } catch (...) {  // no memory to list it: an empty shell at worst stays in the temporary directory
  }
}

}  // namespace tervak::os
