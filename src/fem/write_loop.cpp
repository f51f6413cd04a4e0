#include "fem/write_loop.hpp"

#include <algorithm>
#include <exception>
#include <stdexcept>

#include "fem/utils/source_position.hpp"

namespace fem {

write_loop::write_loop(io& units, int unit, std::string_view format)
    : use_crlf_(!io::is_standard_unit(unit)),
      out_(units.stream_for_writing(unit)),
      cursor_(std::in_place, format),
      exceptions_at_start_(std::uncaught_exceptions()) {}

write_loop::write_loop(io& units, int unit, io_mode unformatted_or_list_directed)
    : use_crlf_(!io::is_standard_unit(unit)),
      out_(units.stream_for_writing(unit)),
      mode_(unformatted_or_list_directed),
      exceptions_at_start_(std::uncaught_exceptions()) {}

write_loop::write_loop(text_ref target, std::string_view format)
    : out_(std::make_unique<utils::simple_ostream_to_char_ptr_and_size>(target)),
      internal_length_(static_cast<int>(target.size)),
      cursor_(std::in_place, format),
      exceptions_at_start_(std::uncaught_exceptions()) {}

write_loop::~write_loop() noexcept(false) {
  if (std::uncaught_exceptions() == exceptions_at_start_) {
    finish();
    return;
  }
  // An item failed on its way to the statement: the record ends with what it holds.
  try {
    finish();
  } catch (...) {  // one failure is under way already
  }
}

void write_loop::finish() {
  if (!out_) return;
  guarded([this] { end_statement(); });
  out_.reset();
  cursor_.reset();
}

void write_loop::end_statement() {
  if (mode_ == io_mode::formatted) next_edit_descriptor(true);
  if (internal_length_ >= 0) {
    const auto length = static_cast<std::size_t>(internal_length_);
    if (column_ < length) put_blanks(length - column_);
    hand_over();
    return;
  }
  if (!dollar_seen_) put_record_end();
  hand_over();
  out_->flush();
}

const format_token* write_loop::next_edit_descriptor(bool final) {
  bool restarted = false;
  while (!terminated_by_colon_) {
    const format_token* token = cursor_->next_executable_token(final);
    if (token == nullptr) break;
    if (token == &format_cursor::record_end()) {
      // Without an item descriptor in what repeats, the statement would fill the disk.
      if (restarted)
        throw std::runtime_error("no data edit descriptor in the part of the format that repeats");
      restarted = true;
    }
    switch (token->type) {
      case format_token_type::string:
        put_pending_blanks();
        put(token->value);
        break;
      case format_token_type::op:
        act_on_op(token->value.front(), final);
        break;
      case format_token_type::format:
        if (token->data_edit) return token;
        act_on_control(*token);
        break;
      default:
        utils::unreachable();
    }
  }
  return nullptr;
}

void write_loop::act_on_op(char op, bool final) {
  switch (op) {
    case ':':
      terminated_by_colon_ = terminated_by_colon_ || final;
      break;
    case '/':
      put_pending_blanks();
      put_record_end();
      break;
    case '$':
      dollar_seen_ = true;
      break;
    default:
      utils::unreachable();
  }
}

void write_loop::act_on_control(const format_token& token) {
  if (token.value.back() == 'x')
    pending_blanks_ += static_cast<std::size_t>(token.number());
  else if (token.value.back() == 'p' && token.value.front() != 's')
    scale_factor_ = token.number();
  else
    utils::not_implemented();  // tabs, sign control and blank control
}

void write_loop::put_pending_blanks() {
  put_blanks(pending_blanks_);
  pending_blanks_ = 0;
}

void write_loop::put_record_end() { put(use_crlf_ ? "\r\n" : "\n"); }

void write_loop::put_blanks(std::size_t count) {
  constexpr std::string_view blanks = "                                                                ";
  for (; count > blanks.size(); count -= blanks.size()) put(blanks);
  put(blanks.substr(0, count));
}

void write_loop::put(std::string_view text) {
  column_ += text.size();
  if (text.size() > waiting_.size() - waiting_size_) {
    hand_over();
    if (text.size() > waiting_.size()) return out_->put(text);
  }
  std::copy(text.begin(), text.end(), waiting_.begin() + static_cast<std::ptrdiff_t>(waiting_size_));
  waiting_size_ += text.size();
}

void write_loop::hand_over() {
  out_->put(std::string_view(waiting_.data(), waiting_size_));
  waiting_size_ = 0;
}

}  // namespace fem
