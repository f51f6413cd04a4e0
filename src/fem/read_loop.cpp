#include "fem/read_loop.hpp"

#include <exception>
#include <utility>

#include "fem/descriptor.hpp"
#include "fem/errors.hpp"
#include "fem/utils/source_position.hpp"

namespace fem {

using utils::END_OF_INPUT;
using utils::READ_ERROR;

namespace {

/// Ends a record of an unformatted file when a zero byte follows; a doubled one is one such byte of data.
constexpr int RECORD_MARK = 170;

}  // namespace

read_loop::read_loop(io& units, int unit, std::string_view format)
    : read_loop(units.stream_for_reading(unit), format) {}

read_loop::read_loop(io& units, int unit, io_mode unformatted_or_list_directed)
    : in_(units.stream_for_reading(unit)),
      mode_(unformatted_or_list_directed),
      exceptions_at_start_(std::uncaught_exceptions()) {}

read_loop::read_loop(std::unique_ptr<utils::simple_istream> in, std::string_view format)
    : in_(std::move(in)), cursor_(std::in_place, format), exceptions_at_start_(std::uncaught_exceptions()) {}

read_loop::~read_loop() noexcept(false) {
  if (std::uncaught_exceptions() == exceptions_at_start_) {
    finish();
    return;
  }
  try {
    if (in_) end_statement();
  } catch (...) {  // one failure is under way already
  }
}

read_loop& read_loop::iostat(int* iostat) {
  iostat_ = iostat;
  return *this;
}

void read_loop::finish() {
  if (!in_) return;
  end_statement();
  if (iostat_ != nullptr) *iostat_ = 0;
  in_.reset();
  cursor_.reset();
}

void read_loop::check_open() const {
  if (!in_) throw io_err("read statement has ended already");
}

void read_loop::end_statement() {
  if (mode_ == io_mode::unformatted)
    skip_unformatted_record();
  else
    skip_line();
}

void read_loop::skip_line() {
  for (;;) {
    const int c = get_char();
    if (c == '\n' || c == END_OF_INPUT) return;
  }
}

void read_loop::skip_unformatted_record() {
  for (;;)
    if (get_char() == RECORD_MARK && get_char() == 0) return;
}

void read_loop::fail(const std::string& text) {
  in_.reset();
  if (iostat_ != nullptr) *iostat_ = 1;
  throw io_err(text);
}

void read_loop::fail_at_end(const std::string& text) {
  in_.reset();
  if (iostat_ != nullptr) *iostat_ = -1;
  throw read_end(text);
}

/// Formatted records may end in LF or CR LF; list-directed input takes CR as white space.
int read_loop::get_folded() {
  const int c = in_->get();
  if (c != '\r' || mode_ != io_mode::formatted) return c;
  const int behind = in_->get();
  if (behind == '\n') return behind;
  in_->backup();
  return c;
}

int read_loop::get_char() {
  const int c = get_folded();
  if (c == READ_ERROR) fail("Error during read");
  if (first_char_ || mode_ == io_mode::unformatted) {
    first_char_ = false;
    if (c == END_OF_INPUT) fail_at_end("End of input during read");
  }
  return c;
}

std::string_view read_loop::next_edit_descriptor() {
  for (;;) {
    const format_token& token = *cursor_->next_executable_token(false);
    switch (token.type) {
      case format_token_type::string:
        utils::not_implemented();
      case format_token_type::op:
        act_on_op(token.value.front());
        break;
      case format_token_type::format:
        if (token.data_edit) return token.value;
        act_on_control(token.value);
        break;
      default:
        utils::unreachable();
    }
  }
}

void read_loop::act_on_op(char op) {
  switch (op) {
    case ':':
      return;
    case '/':
      skip_line();
      if (get_char() == END_OF_INPUT) fail_at_end("End of input while reading string");
      return in_->backup();
    case '$':
      utils::not_implemented();
    default:
      utils::unreachable();
  }
}

void read_loop::act_on_control(std::string_view descriptor) {
  if (descriptor.back() == 'x')
    skip_in_line(number_ahead(descriptor, 1));
  else if (descriptor.back() == 'p' && descriptor.front() != 's')
    scale_factor_ = number_ahead(descriptor, 1);
  else if (descriptor.front() == 'b')
    blanks_zero_ = descriptor.back() == 'z';
  else
    utils::not_implemented();  // tabs and sign control
}

void read_loop::skip_in_line(int count) {
  for (int i = 0; i < count; ++i) {
    const int c = get_char();
    if (c == '\n') return in_->backup();
    if (c == END_OF_INPUT) return;
  }
}

}  // namespace fem
