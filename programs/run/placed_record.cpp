#include "run/placed_record.hpp"

#include <cstdint>

#include "companion/shown.hpp"
#include "Platform/files.hpp"
#include "run/refusal.hpp"

namespace tervak::run {

namespace {

constexpr std::string_view HEADING = "tervak-run placed here (name, size, checksum):\n";

/// FNV-1a of 64 bits.
std::uint64_t checksum(std::string_view bytes) {
  std::uint64_t sum = 0xcbf29ce484222325U;
  for (const char c : bytes) sum = (sum ^ static_cast<unsigned char>(c)) * 0x100000001b3U;
  return sum;
}

}  // namespace

placed_record::placed_record(const std::filesystem::path& directory) : file_(directory / ".tervak-run") {
  if (os::kind_of(file_) == os::file_kind::absent) return;
  text_ = os::read_file(file_);
  if (!text_.starts_with(HEADING))
    throw refusal(companion::shown(file_) + " is no record of tervak-run; move it away");
}

std::string placed_record::line(const std::string& name, std::string_view bytes) {
  return name + ' ' + std::to_string(bytes.size()) + ' ' + std::to_string(checksum(bytes)) + '\n';
}

bool placed_record::has(const std::string& name, std::string_view bytes) const {
  return text_.find('\n' + line(name, bytes)) != std::string::npos;
}

void placed_record::write(const std::vector<std::string>& lines) const {
  std::string text(HEADING);
  for (const std::string& line : lines) text += line;
  if (text != text_) os::replace_file(file_, text);
}

}  // namespace tervak::run
