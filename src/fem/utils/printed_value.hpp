#pragma once

#include <array>
#include <string>
#include <string_view>

namespace fem::utils {

/// One value as the C library prints it, of any length.
class printed_value {
 public:
  printed_value(const char* conversion, double value) { print(conversion, value); }
  printed_value(const char* conversion, int value) { print(conversion, value); }
  printed_value(const printed_value&) = delete;
  printed_value& operator=(const printed_value&) = delete;

  [[nodiscard]] std::string_view text() const { return text_; }

 private:
  template <class Value>
  void print(const char* conversion, Value value);

  std::array<char, 64> short_text_;
  std::string long_text_;
  std::string_view text_;
};

/// The C conversion of a data edit descriptor: "f8.3" with 'f' gives "%8.3f".
class printf_conversion {
 public:
  /// Throws std::runtime_error where the descriptor is longer than 61 characters.
  printf_conversion(std::string_view descriptor, char letter);
  [[nodiscard]] const char* c_str() const { return text_.data(); }

 private:
  std::array<char, 64> text_;
};

}  // namespace fem::utils
