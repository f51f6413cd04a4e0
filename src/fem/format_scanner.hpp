#pragma once

#include <array>
#include <cstddef>
#include <memory_resource>
#include <string>
#include <string_view>
#include <vector>

namespace fem {

/// What a token of a format is: a descriptor as in "e12.4", "3x", "-1p"; one of ( ) : / $; quoted text; a
/// repeat count.
enum class format_token_type { format, op, string, integer };

struct format_token {
  format_token_type type;
  std::string_view value;  ///< without blanks, in small letters; quoted text as it stands, without its quotes
};

/// Turns a format such as "(1X,'P-Y',3(E12.4,I5))" into a flat list of tokens; the outer parentheses yield
/// none. A format that is none throws std::runtime_error. Whether inner parentheses balance is not looked at.
/// The tokens point into the scanner.
class format_scanner {
 public:
  explicit format_scanner(std::string_view format);
  format_scanner(const format_scanner&) = delete;
  format_scanner& operator=(const format_scanner&) = delete;

  [[nodiscard]] const std::pmr::vector<format_token>& tokens() const { return tokens_; }

 private:
  void scan_token();
  void scan_quoted();
  void scan_sign();
  void scan_digits();
  void scan_tab();
  void scan_sized(bool may_have_decimals);
  bool pass_digits();
  void add(format_token_type type, std::size_t start);
  [[nodiscard]] char at(std::size_t index) const { return index < end_ ? text_[index] : '\0'; }
  [[noreturn]] void invalid(const char* reason) const;

  std::string_view format_;           ///< as given; only valid while scanning
  std::array<char, 128> short_text_;  ///< the filtered text, where it fits
  std::string long_text_;
  char* text_ = nullptr;
  std::size_t end_ = 0;  ///< index of the outer closing parenthesis
  std::size_t next_ = 1;

  // Formats of usual length need no heap.
  alignas(format_token) std::array<std::byte, 32 * sizeof(format_token)> room_;
  std::pmr::monotonic_buffer_resource memory_{room_.data(), room_.size()};
  std::pmr::vector<format_token> tokens_{&memory_};
};

}  // namespace fem
