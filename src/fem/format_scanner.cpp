#include "fem/format_scanner.hpp"

#include <array>
#include <stdexcept>
#include <unordered_map>

#include "fem/utils/digits.hpp"

namespace fem {

using utils::is_digit;

namespace {

constexpr const char* INVALID = "Invalid FORMAT specification: ";

/// What filtering makes of each character outside quoted text: '\0' drops it.
constexpr std::array<char, 256> FOLDED = [] {
  std::array<char, 256> folded{};
  for (std::size_t c = 0; c < folded.size(); ++c) folded[c] = static_cast<char>(c);
  for (std::size_t c = 'A'; c <= 'Z'; ++c) folded[c] = static_cast<char>(c - 'A' + 'a');
  folded[' '] = folded['\t'] = '\0';
  return folded;
}();

/// Drops blanks and tabs and folds capitals, both outside quoted text only.
std::string filter(std::string_view format) {
  std::string text(format.size(), '\0');
  char* out = text.data();
  for (std::size_t i = 0; i < format.size(); ++i) {
    const char c = format[i];
    *out = FOLDED[static_cast<unsigned char>(c)];
    if (*out != '\0' || c == '\0') ++out;
    if (c != '\'' && c != '"') continue;
    // Quoted text stays as it is. A doubled quote character closes and opens again, which comes to the same.
    while (++i < format.size() && format[i] != c) *out++ = format[i];
    if (i < format.size()) *out++ = c;
  }
  text.resize(static_cast<std::size_t>(out - text.data()));
  return text;
}

}  // namespace

format_scanner::format_scanner(std::string_view format) : format_(format), text_(filter(format)) {
  if (text_.empty()) throw std::runtime_error(std::string(INVALID) + "empty string");
  if (text_.front() != '(' || text_.back() != ')') invalid(INVALID);
  end_ = text_.size() - 1;
  while (next_ < end_) scan_token();
}

void format_scanner::scan_token() {
  const std::size_t start = next_;
  switch (text_[next_]) {
    case ',':
      ++next_;
      return;
    case 'x':
      ++next_;
      return add(format_token_type::format, start);
    case '(':
    case ')':
    case ':':
    case '/':
    case '$':
      ++next_;
      return add(format_token_type::op, start);
    case '\'':
    case '"':
      return scan_quoted();
    case '+':
    case '-':
      return scan_sign();
    case '0':
    case '1':
    case '2':
    case '3':
    case '4':
    case '5':
    case '6':
    case '7':
    case '8':
    case '9':
      return scan_digits();
    case 'd':
    case 'e':
    case 'f':
    case 'g':
    case 'i':
    case 'z':
      return scan_sized(true);
    case 'a':
    case 'l':
      return scan_sized(false);
    case 'b':
      if (at(next_ + 1) != 'n' && at(next_ + 1) != 'z') invalid(INVALID);
      next_ += 2;
      return add(format_token_type::format, start);
    case 's':
      next_ += at(next_ + 1) == 'p' || at(next_ + 1) == 's' ? 2U : 1U;
      return add(format_token_type::format, start);
    case 't':
      return scan_tab();
    default:
      invalid(INVALID);
  }
}

/// A doubled quote character is reduced in place.
void format_scanner::scan_quoted() {
  const char quote = text_[next_++];
  const std::size_t start = next_;
  std::size_t out = start;
  for (;; ++next_) {
    if (next_ >= end_) invalid(INVALID);
    if (text_[next_] == quote) {
      if (at(next_ + 1) != quote) break;
      ++next_;
    }
    text_[out++] = text_[next_];
  }
  ++next_;
  tokens_.emplace_back(format_token_type::string, std::string_view(text_).substr(start, out - start));
}

void format_scanner::scan_sign() {
  const std::size_t start = next_++;
  if (!pass_digits() || at(next_) != 'p') invalid(INVALID);
  ++next_;
  add(format_token_type::format, start);
}

void format_scanner::scan_digits() {
  const std::size_t start = next_;
  pass_digits();
  const char behind = at(next_);
  if (behind == 'h') invalid("FATAL: Not supported: FORMAT Hollerith edit descriptor: ");
  if (behind != 'x' && behind != 'p') return add(format_token_type::integer, start);
  ++next_;
  add(format_token_type::format, start);
}

void format_scanner::scan_tab() {
  const std::size_t start = next_++;
  if (at(next_) == 'l' || at(next_) == 'r') ++next_;
  if (!pass_digits()) invalid(INVALID);
  add(format_token_type::format, start);
}

/// A letter with a width and decimals where they stand: "e12.4", "i5", "a".
void format_scanner::scan_sized(bool may_have_decimals) {
  const std::size_t start = next_++;
  if (pass_digits() && may_have_decimals && at(next_) == '.') {
    ++next_;
    if (!pass_digits()) invalid(INVALID);
  }
  add(format_token_type::format, start);
}

bool format_scanner::pass_digits() {
  const std::size_t start = next_;
  while (is_digit(at(next_))) ++next_;
  return next_ > start;
}

void format_scanner::add(format_token_type type, std::size_t start) {
  tokens_.emplace_back(type, std::string_view(text_).substr(start, next_ - start));
}

/// The text is filtered anew, since quoted texts ahead of the fault were reduced in place.
void format_scanner::invalid(const char* reason) const { throw std::runtime_error(reason + filter(format_)); }

format_token::format_token(format_token_type kind, std::string_view text)
    : type(kind), value(text), data_edit(kind == format_token_type::format && is_data_edit(text)) {
  constexpr std::size_t ALWAYS_IN_RANGE = 10;  // a letter or sign and nine digits
  if (value.size() > ALWAYS_IN_RANGE) return;
  if (data_edit)
    size_ = size_of_field(value);
  else if (type == format_token_type::integer || value.back() == 'x' || value.back() == 'p')
    size_.width = read_number();
}

int format_token::read_number() const {
  return type == format_token_type::integer ? number_in_format(value) : number_ahead(value, 1);
}

std::shared_ptr<const format_scanner> scanned(std::string_view format) {
  struct hash : std::hash<std::string_view> {
    using is_transparent = void;
  };
  constexpr std::size_t MOST =
      1000;  // far above what a run needs: formats made at run time shall not pile up
  static std::unordered_map<std::string, std::shared_ptr<const format_scanner>, hash, std::equal_to<>> kept;
  if (const auto found = kept.find(format); found != kept.end()) return found->second;
  auto scanner = std::make_shared<const format_scanner>(format);
  if (kept.size() >= MOST) kept.clear();
  kept.emplace(format, scanner);
  return scanner;
}

}  // namespace fem
