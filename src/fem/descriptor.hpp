#pragma once

#include <string_view>

namespace fem {

/// Width and decimals of a data edit descriptor such as "e12.4"; 0 where they do not stand.
struct field_size {
  int width;
  int decimals;
};

field_size size_of_field(std::string_view descriptor);

/// True where the descriptor transfers an item: its first letter is one of a d e f g i l z.
bool is_data_edit(std::string_view descriptor);

/// A number of a format, with a sign or without. Throws std::runtime_error where it passes the range of int.
int number_in_format(std::string_view digits);

/// The number ahead of the letter of "3x" or "-1p"; `otherwise` for the letter alone.
int number_ahead(std::string_view descriptor, int otherwise);

}  // namespace fem
