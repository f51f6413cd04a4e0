#include "report/text.hpp"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>

namespace tervak::report {
namespace {

/// Length of the UTF-8 sequence of two or more bytes at the front of `text`, 0 when there is none: no
/// overlong form, no half of a surrogate pair, neither of the two characters that XML leaves out.
std::size_t utf8_sequence(std::string_view text) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const std::size_t length = byte(0) >= 0xc2 && byte(0) < 0xe0   ? 2
                             : byte(0) >= 0xe0 && byte(0) < 0xf0 ? 3
                             : byte(0) >= 0xf0 && byte(0) < 0xf5 ? 4
                                                                 : 0;
  if (length == 0 || text.size() < length) return 0;
  for (std::size_t i = 1; i < length; ++i)
    if ((byte(i) & 0xc0) != 0x80) return 0;
  const bool bad = (byte(0) == 0xe0 && byte(1) < 0xa0) || (byte(0) == 0xed && byte(1) >= 0xa0) ||
                   (byte(0) == 0xf0 && byte(1) < 0x90) || (byte(0) == 0xf4 && byte(1) >= 0x90) ||
                   text.substr(0, 3) == "\xef\xbf\xbe" || text.substr(0, 3) == "\xef\xbf\xbf";
  return bad ? 0 : length;
}

}  // namespace

std::string as_utf8(std::string_view text) {
  std::string out;
  while (!text.empty()) {
    const auto c = static_cast<unsigned char>(text.front());
    std::size_t taken = 1;
    if (c < 0x20 || c == 0x7f) {
      out += "\xEF\xBF\xBD";
    } else if (c < 0x80) {
      out += text.front();
    } else if (const std::size_t length = utf8_sequence(text); length > 0) {
      out += text.substr(0, length);
      taken = length;
    } else {
      out += static_cast<char>(0xc0 | (c >> 6));
      out += static_cast<char>(0x80 | (c & 0x3f));
    }
    text.remove_prefix(taken);
  }
  return out;
}

std::string join(std::initializer_list<std::string_view> parts) {
  std::string out;
  for (const std::string_view part : parts) out += part;
  return out;
}

std::string_view trim_end(std::string_view text) {
  const std::size_t last = text.find_last_not_of(' ');
  return text.substr(0, last == std::string_view::npos ? 0 : last + 1);
}

std::string escape_html(std::string_view text) {
  std::string out;
  for (const char c : as_utf8(text)) switch (c) {
      case '&':
        out += "&amp;";
        break;
      case '<':
        out += "&lt;";
        break;
      case '>':
        out += "&gt;";
        break;
      case '"':
        out += "&quot;";
        break;
      case '\'':
        out += "&#39;";
        break;
      default:
        out += c;
    }
  return out;
}

std::string json_text(std::string_view text) {
  std::string out = "\"";
  for (const char c : as_utf8(text)) switch (c) {
      case '"':
        out += "\\\"";
        break;
      case '\\':
        out += "\\\\";
        break;
      case '<':
        out += "\\u003c";
        break;
      default:
        out += c;
    }
  return out + "\"";
}

std::string number_text(double value) {
  if (value == 0.0) return "0";
  const double size = std::abs(value);
  const bool fixed = size >= 1e-4 && size < 1e9;
  std::array<char, 40> buffer{};
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                 fixed ? std::chars_format::fixed : std::chars_format::scientific);
  std::string out(buffer.data(), end.ptr);
  // The library writes at least two digits of exponent.
  if (const std::size_t e = out.find('e'); e != std::string::npos) {
    if (out[e + 2] == '0') out.erase(e + 2, 1);
    if (out[e + 1] == '+') out.erase(e + 1, 1);
  }
  return out;
}

std::string rounded_text(double value, int digits) {
  std::array<char, 40> buffer{};
  std::to_chars(buffer.data(), buffer.data() + buffer.size() - 1, value, std::chars_format::general, digits);
  return number_text(std::strtod(buffer.data(), nullptr));
}

double decade_of(double value) {
  if (!(value > 0.0) || !std::isfinite(value)) return value;
  const std::string decade = "1e" + std::to_string(std::lround(std::floor(std::log10(value))));
  return std::strtod(decade.c_str(), nullptr);
}

std::string ranges_text(const std::vector<std::size_t>& numbers) {
  std::string out;
  for (std::size_t i = 0; i < numbers.size();) {
    std::size_t last = i;
    while (last + 1 < numbers.size() && numbers[last + 1] == numbers[last] + 1) ++last;
    out += (out.empty() ? "" : ", ") + std::to_string(numbers[i]);
    if (last > i) out += (last == i + 1 ? ", " : " to ") + std::to_string(numbers[last]);
    i = last + 1;
  }
  return out;
}

}  // namespace tervak::report
