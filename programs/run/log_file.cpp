#include "run/log_file.hpp"

#include "Platform/files.hpp"

namespace tervak::run {

log_file::log_file(const std::filesystem::path& directory)
    : file_(directory / "TERVAK.MLG"), before_(bytes()), time_before_(time()) {}

std::string log_file::read() const {
  std::string now = bytes();
  return time() == time_before_ && now == before_ ? std::string() : now;
}

std::string log_file::bytes() const {
  return os::kind_of(file_) == os::file_kind::regular ? os::read_file(file_) : std::string();
}

std::filesystem::file_time_type log_file::time() const {
  std::error_code error;
  return std::filesystem::last_write_time(file_, error);
}

}  // namespace tervak::run
