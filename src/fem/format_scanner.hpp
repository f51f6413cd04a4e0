#pragma once

#include <cstddef>
#include <limits>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "fem/descriptor.hpp"

namespace fem {

/// What a token of a format is: a descriptor as in "e12.4", "3x", "-1p"; one of ( ) : / $; quoted text; a
/// repeat count.
enum class format_token_type { format, op, string, integer };

/// Its numbers are read once, here, so that statements need not. Numbers so long that they may pass the range
/// of int are left for the statement that meets them: only there their failure belongs.
struct format_token {
  format_token(format_token_type kind, std::string_view text);

  format_token_type type;
  std::string_view value;  ///< without blanks, in small letters; quoted text as it stands, without its quotes
  bool data_edit = false;  ///< a descriptor that transfers an item

  /// The field of a data descriptor, 0 where a number does not stand.
  [[nodiscard]] field_size size() const { return known() ? size_ : size_of_field(value); }
  /// A repeat count, or the number ahead of the letter of "3x" or "-1p", 1 for the letter alone.
  [[nodiscard]] int number() const { return known() ? size_.width : read_number(); }

 private:
  [[nodiscard]] int read_number() const;

  static constexpr int UNKNOWN = std::numeric_limits<int>::min();
  [[nodiscard]] bool known() const { return size_.width != UNKNOWN; }

  field_size size_{UNKNOWN, 0};
};

/// Turns a format such as "(1X,'P-Y',3(E12.4,I5))" into a flat list of tokens; the outer parentheses yield
/// none. A format that is none throws std::runtime_error. Whether inner parentheses balance is not looked at.
/// The tokens point into the scanner.
class format_scanner {
 public:
  explicit format_scanner(std::string_view format);
  format_scanner(const format_scanner&) = delete;
  format_scanner& operator=(const format_scanner&) = delete;

  [[nodiscard]] const std::vector<format_token>& tokens() const { return tokens_; }

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

  std::string_view format_;  ///< as given; only valid while scanning
  std::string text_;         ///< the filtered text
  std::size_t end_ = 0;      ///< index of the outer closing parenthesis
  std::size_t next_ = 1;
  std::vector<format_token> tokens_;
};

/// The scanned format. A run prints with some hundred formats, each thousands of times: every one is scanned
/// at its first statement and kept. A format that is none is not kept and throws at each statement.
std::shared_ptr<const format_scanner> scanned(std::string_view format);

}  // namespace fem
