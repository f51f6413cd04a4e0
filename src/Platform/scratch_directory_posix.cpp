#include "Platform/scratch_directory.hpp"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <stdexcept>
#include <string>

namespace tervak::os {

namespace fs = std::filesystem;

scratch_directory::scratch_directory() {
  std::error_code error;
  const fs::path place = fs::temp_directory_path(error);
  if (error) throw std::runtime_error("no directory for temporary files: TMPDIR or /tmp: " + error.message());
  std::string name = (place / "tervak-XXXXXX").string();
  if (mkdtemp(name.data()) == nullptr)
    throw std::runtime_error("cannot make a directory for temporary files in " + place.string() + ": " +
                             std::strerror(errno));
  path_ = name;
}

scratch_directory::~scratch_directory() {
  try {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
  } catch (...) {  // no memory to list it: an empty shell at worst stays in the temporary directory
  }
}

}  // namespace tervak::os
