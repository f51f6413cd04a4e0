#include "fem/format_cursor.hpp"

#include <stdexcept>

#include "fem/descriptor.hpp"
#include "fem/errors.hpp"

namespace fem {

namespace {

const format_token RECORD_END(format_token_type::op, "/");

bool is_op(const format_token& token, char op) {
  return token.type == format_token_type::op && token.value.front() == op;
}

}  // namespace

format_cursor::format_cursor(std::string_view format)
    : scanner_(scanned(format)), tokens_(scanner_->tokens()) {
  group_stack_.reserve(32);
}

const format_token& format_cursor::record_end() { return RECORD_END; }

const format_token* format_cursor::next_executable_token(bool final) {
  if (repeats_left_ > 0) {
    --repeats_left_;
    return &tokens_[next_index_ - 1];
  }
  while (next_index_ < tokens_.size()) {
    const format_token& token = tokens_[next_index_++];
    if (token.type == format_token_type::integer) {
      if (const format_token* repeated = repeat(token)) return repeated;
    } else if (is_op(token, '(')) {
      open_group(next_index_ - 1, 1);
    } else if (is_op(token, ')')) {
      close_group();
    } else {
      return &token;
    }
  }
  if (final) return nullptr;
  if (tokens_.empty()) throw io_err("Empty format string but data editing requested.");
  next_index_ = restart_index_;
  return &record_end();
}

/// The token that the count repeats, null where it opens a group. Consumes both.
const format_token* format_cursor::repeat(const format_token& count) {
  const std::uint32_t count_index = next_index_ - 1;
  if (next_index_ == tokens_.size()) throw std::runtime_error("Trailing lone repeat count in format string.");
  const auto times = static_cast<std::uint32_t>(count.number());
  if (times == 0) throw std::runtime_error("Zero repeat count in format string.");
  const format_token& repeated = tokens_[next_index_++];
  if (is_op(repeated, '(')) {
    open_group(count_index, times);
    return nullptr;
  }
  repeats_left_ = times - 1;
  return &repeated;
}

void format_cursor::open_group(std::uint32_t opened_at, std::uint32_t count) {
  group_stack_.push_back({next_index_, count});
  if (group_stack_.size() == 1) restart_index_ = opened_at;
}

void format_cursor::close_group() {
  if (group_stack_.empty()) throw std::runtime_error("Unexpected closing parenthesis in format string.");
  frame& group = group_stack_.back();
  if (--group.count_left > 0)
    next_index_ = group.start_index;
  else
    group_stack_.pop_back();
}

}  // namespace fem
