#include "fem/utils/simple_ostream.hpp"

#include <algorithm>

namespace fem::utils {

void simple_ostream_to_c_file::put(std::string_view text) {
  static_cast<void>(std::fwrite(text.data(), 1, text.size(), stream_));
}

void simple_ostream_to_c_file::put(char c) { static_cast<void>(std::fputc(c, stream_)); }

void simple_ostream_to_c_file::flush() { static_cast<void>(std::fflush(stream_)); }

bool simple_ostream_to_c_file::failed() const { return std::ferror(stream_) != 0; }

void simple_ostream_to_char_ptr_and_size::put(std::string_view text) {
  if (position_ < 0) return;
  const auto start = static_cast<std::size_t>(position_);
  const std::size_t fits = std::min(text.size(), target_.size - start);
  std::copy_n(text.begin(), fits, target_.data + start);
  position_ = fits < text.size() ? -1 : static_cast<std::int64_t>(start + fits);
}

void simple_ostream_to_char_ptr_and_size::put(char c) { put(std::string_view(&c, 1)); }

}  // namespace fem::utils
