#include <algorithm>

#include "fem/descriptor.hpp"
#include "fem/read_loop.hpp"

namespace fem {

using utils::END_OF_INPUT;

read_loop& read_loop::text(text_ref text) {
  check_open();
  if (mode_ == io_mode::unformatted) {
    text_unformatted(text);
    return *this;
  }
  if (mode_ == io_mode::formatted) {
    const std::string_view descriptor = next_edit_descriptor();
    if (descriptor.front() == 'a' && descriptor.size() > 1) {
      const auto width = static_cast<std::size_t>(size_of_field(descriptor).width);
      if (width > text.size) skip_ahead_of_text(width - text.size);
    }
  }
  text_in_line(text);
  return *this;
}

/// A field wider than the text: its last characters are stored.
void read_loop::skip_ahead_of_text(std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) {
    const int c = get_char();
    if (c == '\n') in_->backup();
    if (c == END_OF_INPUT) {
      if (i == 0) fail_at_end("End of input while reading string");
      return;
    }
  }
}

void read_loop::text_in_line(text_ref text) {
  std::size_t i = 0;
  for (; i < text.size; ++i) {
    const int c = get_char();
    if (c == END_OF_INPUT && i == 0) fail_at_end("End of input while reading string");
    if (c == '\n') in_->backup();
    if (c == '\n' || c == END_OF_INPUT) break;
    text.data[i] = static_cast<char>(c);
  }
  std::fill(text.data + i, text.data + text.size, ' ');
}

void read_loop::text_unformatted(text_ref text) {
  constexpr int ESCAPE = 170;
  for (std::size_t i = 0; i < text.size; ++i) {
    const int c = get_char();
    if (c == ESCAPE && get_char() != ESCAPE) fail_at_end("End of record during unformatted read");
    text.data[i] = static_cast<char>(c);
  }
}

}  // namespace fem
