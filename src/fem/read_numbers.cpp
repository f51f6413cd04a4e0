#include <string>

#include "fem/descriptor.hpp"
#include "fem/errors.hpp"
#include "fem/read_loop.hpp"
#include "fem/utils/digits.hpp"
#include "fem/utils/source_position.hpp"

namespace fem {

using utils::END_OF_INPUT;
using utils::is_digit;
using utils::READ_ERROR;

namespace {

constexpr const char* BAD_INTEGER = "Invalid character while reading integer value.";
constexpr const char* END_IN_INTEGER = "End of input while reading integer value";

bool is_white(int c) { return c == '\t' || c == '\n' || c == '\r' || c == ' '; }

/// Integers wrap around; nobody checks their range.
unsigned with_digit(unsigned value, int c) { return 10U * value + static_cast<unsigned>(c - '0'); }
int with_sign(unsigned value, bool negative) { return static_cast<int>(negative ? 0U - value : value); }

}  // namespace

read_loop& read_loop::integer(int& value) {
  check_open();
  if (mode_ == io_mode::unformatted) utils::not_implemented();
  if (mode_ == io_mode::formatted) {
    const std::string_view descriptor = next_edit_descriptor();
    if (descriptor.front() == 'i' && descriptor.size() > 1) {
      value = integer_field(size_of_field(descriptor).width);
      return *this;
    }
  }
  value = integer_free();
  return *this;
}

/// Blanks inside the field do not count: "1 2" is 12.
int read_loop::integer_field(int width) {
  unsigned value = 0;
  bool negative = false;
  bool begun = false;
  for (int i = 0; i < width; ++i) {
    const int c = get_char();
    if (c == '\n') in_->backup();
    if (c == END_OF_INPUT || c == ',' || c == '\n') break;
    if (c == ' ') continue;
    if (is_digit(c))
      value = with_digit(value, c);
    else if (!begun && (c == '+' || c == '-'))
      negative = c == '-';
    else
      fail(BAD_INTEGER);
    begun = true;
  }
  return with_sign(value, negative);
}

/// A failure behind the first character leaves the stream and iostat as they are.
int read_loop::integer_free() {
  int c = get_char();
  while (is_white(c)) c = get_char();
  if (c == END_OF_INPUT) fail_at_end(END_IN_INTEGER);
  const bool negative = c == '-';
  if (c == '+' || c == '-') {
    c = get_char();
    if (c == END_OF_INPUT) throw read_end(END_IN_INTEGER);
  }
  unsigned value = 0;
  for (; c != END_OF_INPUT && c != ',' && !is_white(c); c = get_char()) {
    if (!is_digit(c)) throw io_err(BAD_INTEGER);
    value = with_digit(value, c);
  }
  if (c == '\n') in_->backup();
  return with_sign(value, negative);
}

read_loop& read_loop::real(double& value) {
  check_open();
  if (mode_ == io_mode::unformatted) utils::not_implemented();
  if (mode_ == io_mode::formatted) {
    const std::string_view descriptor = next_edit_descriptor();
    const char letter = descriptor.front();
    if ((letter == 'd' || letter == 'e' || letter == 'f' || letter == 'g') && descriptor.size() > 1) {
      const auto [width, decimals] = size_of_field(descriptor);
      value = real_field(width, decimals);
      first_char_ = false;
      return *this;
    }
  }
  value = real_free();
  return *this;
}

double read_loop::real_field(int width, int decimals) {
  std::string field;
  for (int i = 0; i < width; ++i) {
    const int c = get_folded();
    if (c == READ_ERROR) fail("Input error while reading floating-point value.");
    if (c == END_OF_INPUT && i == 0) fail_at_end("End of input while reading floating-point value.");
    if (c == '\n') in_->backup();
    if (c == END_OF_INPUT || c == '\n') break;
    if (c != ' ')
      field += static_cast<char>(c);
    else if (blanks_zero_)
      field += '0';
  }
  if (field.empty()) return 0.0;
  utils::simple_istream_from_std_string text(field);
  return value_of(utils::string_to_double(text, decimals, scale_factor_));
}

double read_loop::real_free() {
  const double value = value_of(utils::string_to_double(*in_, 0, 0));
  first_char_ = false;
  const int c = get_char();
  if (c == '\n') in_->backup();
  if (c == END_OF_INPUT || c == ',' || is_white(c)) return value;
  fail("Invalid character while reading floating-point value: " + utils::character_description(c));
}

double read_loop::value_of(const utils::number_result& result) {
  if (!result.failure) return result.value;
  if (result.at_end) fail_at_end(*result.failure);
  fail(*result.failure);
}

}  // namespace fem
