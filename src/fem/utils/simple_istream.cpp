#include "fem/utils/simple_istream.hpp"

namespace fem::utils {

int simple_istream_from_c_file::get() {
  last_ = std::fgetc(stream_);
  // Not ferror: an earlier write that failed leaves its mark on the stream.
  if (last_ == EOF) last_ = std::feof(stream_) != 0 ? END_OF_INPUT : READ_ERROR;
  return last_;
}

void simple_istream_from_c_file::backup() {
  if (last_ < END_OF_INPUT) static_cast<void>(std::ungetc(last_, stream_));
  last_ = END_OF_INPUT;
}

int simple_istream_from_std_string::get() {
  last_was_character_ = next_ < text_.size();
  return last_was_character_ ? static_cast<unsigned char>(text_[next_++]) : END_OF_INPUT;
}

void simple_istream_from_std_string::backup() {
  if (last_was_character_) --next_;
  last_was_character_ = false;
}

}  // namespace fem::utils
