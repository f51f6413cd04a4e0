#include <array>
#include <charconv>
#include <cmath>
#include <cstring>
#include <optional>

#include "fem/utils/double_to_string.hpp"
#include "fem/utils/general_to_string.hpp"
#include "fem/utils/list_directed_to_string.hpp"
#include "fem/utils/printed_value.hpp"
#include "fem/utils/source_position.hpp"
#include "fem/write_loop.hpp"

namespace fem {

namespace {

/// The width of "i5"; none where the C library has more to say, as with "i", "i4.3" and "i05".
std::optional<std::size_t> plain_width(std::string_view descriptor) {
  if (descriptor.size() < 2 || descriptor.size() > 4 || descriptor[1] == '0') return {};
  std::size_t width = 0;
  for (const char c : descriptor.substr(1)) {
    if (c == '.') return {};
    width = 10 * width + static_cast<std::size_t>(c - '0');
  }
  return width;
}

}  // namespace

write_loop& write_loop::operator()(const char* text) {
  return by_mode([&] { put(text); }, [&] { put_list_directed_text(text); },
                 [&] { edit_text_constant(text); });
}

write_loop& write_loop::fixed_length(std::string_view text) {
  return by_mode([&] { put(text); }, [&] { put_list_directed_text(text); }, [&] { edit_fixed_length(text); });
}

write_loop& write_loop::operator()(int value) {
  return by_mode([&] { put_raw(value); },
                 [&] { put_list_directed_number(utils::printed_value("%11d", value).text()); },
                 [&] { edit_integer(value); });
}

write_loop& write_loop::operator()(double value) {
  return by_mode([&] { put_raw(value); },
                 [&] { put_list_directed_number(utils::list_directed_to_string(value)); },
                 [&] { edit_real(value); });
}

template <class Value>
void write_loop::put_raw(const Value& value) {
  std::array<char, sizeof(Value)> bytes;
  std::memcpy(bytes.data(), &value, bytes.size());
  put({bytes.data(), bytes.size()});
}

/// Right-justified: a text constant under "a8" stands at the end of its field.
void write_loop::edit_text_constant(std::string_view text) {
  const format_token& edit = *next_edit_descriptor(false);
  put_pending_blanks();
  if (edit.value.front() != 'a' || edit.value.size() == 1) return put(text);
  const auto width = static_cast<std::size_t>(edit.size().width);
  if (text.size() < width) put_blanks(width - text.size());
  put(text.substr(0, width));
}

/// Left-justified.
void write_loop::edit_fixed_length(std::string_view text) {
  const format_token& edit = *next_edit_descriptor(false);
  put_pending_blanks();
  if (edit.value.front() != 'a' || edit.value.size() == 1) return put(text);
  const auto width = static_cast<std::size_t>(edit.size().width);
  put(text.substr(0, width));
  if (text.size() < width) put_blanks(width - text.size());
}

void write_loop::edit_integer(int value) {
  const std::string_view descriptor = next_edit_descriptor(false)->value;
  if (descriptor.front() != 'i') return put_edited(utils::printed_value(" %d", value).text());
  if (const auto plain = plain_width(descriptor)) {
    // What "%5d" prints, without the way through the C library.
    std::array<char, 16> digits;
    const std::to_chars_result end = std::to_chars(digits.data(), digits.data() + digits.size(), value);
    const auto size = static_cast<std::size_t>(end.ptr - digits.data());
    put_pending_blanks();
    if (size < *plain) put_blanks(*plain - size);
    return put({digits.data(), size});
  }
  const utils::printf_conversion conversion(descriptor, 'd');
  put_edited(utils::printed_value(conversion.c_str(), value).text());
}

void write_loop::edit_real(double value) {
  if (std::isnan(value)) {
    put_pending_blanks();
    return put("isNAN");
  }
  const format_token& edit = *next_edit_descriptor(false);
  const std::string_view descriptor = edit.value;
  const bool sized = descriptor.size() > 1;
  switch (descriptor.front()) {
    case 'f': {
      const utils::printf_conversion conversion(descriptor, 'f');
      return put_edited(utils::printed_value(conversion.c_str(), value).text());
    }
    case 'd':
    case 'e': {
      if (!sized) break;
      const auto [w, d] = edit.size();
      utils::e_field field;
      const char letter = descriptor.front() == 'd' ? 'D' : 'E';
      return put_edited(utils::double_to_string(field, value, w, d, scale_factor_, letter));
    }
    case 'g': {
      if (!sized) utils::assertion_failed("n > 1");
      const auto [w, d] = edit.size();
      return put_edited(utils::general_to_string(value, w, d, scale_factor_));
    }
    default:
      break;
  }
  put_edited(utils::printed_value(" %.6g", value).text());
}

void write_loop::put_edited(std::string_view field) {
  put_pending_blanks();
  put(field);
}

void write_loop::put_list_directed_text(std::string_view text) {
  put_list_directed(text, !prev_was_string_);
  prev_was_string_ = true;
}

void write_loop::put_list_directed_number(std::string_view number) {
  put_list_directed(number, true);
  prev_was_string_ = false;
}

/// A record begins with a blank and stays within 80 columns.
void write_loop::put_list_directed(std::string_view item, bool separated) {
  const std::size_t column = column_;
  const std::size_t separator = separated ? 1 : 0;
  const bool next_record = column > 0 && column + separator + item.size() >= 81;
  if (next_record) put_record_end();
  if (column == 0 || next_record || separated) put(" ");
  if (next_record) column_ = 1;
  put(item);
}

}  // namespace fem
