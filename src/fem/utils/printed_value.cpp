#include "fem/utils/printed_value.hpp"

#include <algorithm>
#include <cstdio>
#include <stdexcept>

#include "fem/utils/source_position.hpp"

namespace fem::utils {

template <class Value>
void printed_value::print(const char* conversion, Value value) {
  const int length = std::snprintf(short_text_.data(), short_text_.size(), conversion, value);
  if (length < 0) throw std::runtime_error(std::string("width out of range in conversion: ") + conversion);
  const auto size = static_cast<std::size_t>(length);
  if (size < short_text_.size()) {
    text_ = {short_text_.data(), size};
    return;
  }
  long_text_.resize(size + 1);
  static_cast<void>(std::snprintf(long_text_.data(), size + 1, conversion, value));
  text_ = std::string_view(long_text_).substr(0, size);
}

template void printed_value::print(const char*, double);
template void printed_value::print(const char*, int);

printf_conversion::printf_conversion(std::string_view descriptor, char letter) {
  const std::size_t n = descriptor.size();
  if (!(n + 2 < text_.size())) assertion_failed("n + 2 < 64");
  text_[0] = '%';
  std::copy(descriptor.begin() + 1, descriptor.end(), text_.begin() + 1);
  text_[n] = letter;
  text_[n + 1] = '\0';
}

}  // namespace fem::utils
