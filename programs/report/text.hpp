#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace tervak::report {

/// The parts one behind the other.
std::string join(std::initializer_list<std::string_view> parts);

/// Cuts blanks at the end.
std::string_view trim_end(std::string_view text);

/// The text as valid UTF-8: bytes that are none count as Latin-1, and control characters become the
/// replacement character.
std::string as_utf8(std::string_view text);

/// Text for the body or an attribute of the page, or of a picture, whose readers refuse a file with any byte
/// out of place: bytes that are no UTF-8 count as Latin-1, and control characters become the replacement
/// character.
std::string escape_html(std::string_view text);

/// A quoted JSON text that may stand inside a script element: no '<' is left in it.
std::string json_text(std::string_view text);

/// The shortest decimal that reads back as the same number, so that the page shows the digits of the file:
/// fixed from 1e-4 to 1e9, else with an exponent as in 1.5e-6. Both zeros are "0". The page's script has the
/// same rule.
std::string number_text(double value);

/// The same of the value rounded to so many significant digits.
std::string rounded_text(double value, int digits);

/// The power of ten at or below a positive number, as its decimal reads: std::pow gives another last bit on
/// some systems, and a tick more or less with it. Any other number is given back.
double decade_of(double value);

/// "1 to 4, 7, 9 to 12" from ascending numbers.
std::string ranges_text(const std::vector<std::size_t>& numbers);

}  // namespace tervak::report
