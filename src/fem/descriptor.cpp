#include "fem/descriptor.hpp"

#include <cstdint>
#include <limits>
#include <stdexcept>
#include <string>

#include "fem/utils/digits.hpp"

namespace fem {

using utils::is_digit;

namespace {

/// Takes the digits at the front of the text off it; 0 where there are none.
int take_number(std::string_view& text) {
  std::int64_t value = 0;
  std::size_t used = 0;
  for (; used < text.size() && is_digit(text[used]); ++used) {
    value = 10 * value + (text[used] - '0');
    if (value > std::numeric_limits<int>::max())
      throw std::runtime_error("number out of range in format: " + std::string(text));
  }
  text.remove_prefix(used);
  return static_cast<int>(value);
}

}  // namespace

int number_in_format(std::string_view digits) {
  const bool negative = digits.front() == '-';
  if (negative || digits.front() == '+') digits.remove_prefix(1);
  const int value = take_number(digits);
  return negative ? -value : value;
}

field_size size_of_field(std::string_view descriptor) {
  descriptor.remove_prefix(1);
  field_size size{};
  size.width = take_number(descriptor);
  if (descriptor.empty()) return size;
  descriptor.remove_prefix(1);  // the point
  size.decimals = take_number(descriptor);
  return size;
}

bool is_data_edit(std::string_view descriptor) {
  switch (descriptor.front()) {
    case 'a':
    case 'd':
    case 'e':
    case 'f':
    case 'g':
    case 'i':
    case 'l':
    case 'z':
      return true;
    default:
      return false;
  }
}

int number_ahead(std::string_view descriptor, int otherwise) {
  return descriptor.size() > 1 ? number_in_format(descriptor) : otherwise;
}

}  // namespace fem
