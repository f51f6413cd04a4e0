#include "companion/shown.hpp"
#include "Platform/names.hpp"

namespace tervak::companion {

std::string shown(std::string_view text) {
  constexpr char DIGITS[] = "0123456789abcdef";
  std::string out;
  out.reserve(text.size());
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte >= ' ' && byte != 0x7f)
      out += c;
    else
      out.append("\\x") += {DIGITS[byte / 16], DIGITS[byte % 16]};
  }
  return out;
}

std::string shown(const std::string& text) { return shown(std::string_view(text)); }

std::string shown(const std::filesystem::path& file) { return shown(std::string_view(os::name_of(file))); }

}  // namespace tervak::companion
