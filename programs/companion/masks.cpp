#include "companion/masks.hpp"

#include <algorithm>
#include <array>

namespace tervak::companion {

namespace {

/// A line that is masked. In a pattern # is a digit, @ a capital or small letter, ? any printed character, ~
/// one that is kept, and * at the end a name of any length: the rest of the line.
struct masked_line {
  std::string_view file;
  std::size_t line;  ///< from 1; 0 for any
  std::string_view pattern;
};

constexpr std::array MASKED_LINES = {
    masked_line{"TERVAK.MLG", 26, "~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~Computer         :*"},
    masked_line{"TERVAK.MLG", 28, "  Access time  : ##-@@@-####  ##:##:##    Operating system :*"},
    masked_line{"TERVAK.MLG", 29, "??????????????????????????????????????????CPU id           :*"},
    masked_line{"TERVAK.MLG", 30, "                                          Installation     :*"},
    masked_line{"TERVAK.LIS", 0, " THIS RUN WAS STARTED :  ##-@@@-####  AT  ##:##:## HOURS"},
    masked_line{"TERVAK.LIS", 0,
                " TERVAK Output   Program Version = ~~~~~~~~~~~~~~~~~~~~~~     Time = ##-@@@-####  ##:##:##"},
    masked_line{"TERVAK.RIF", 4, "        DATE:     ##-@@@-####         TIME:         ##:##:##            "},
    masked_line{"TERVAK.RIF", 5, "        COMPUTER: ????????????????????INSTALLATION: ????????????????????"},
    masked_line{"TERVAK.RIF", 6, "        USER:     ????????????????????ACCOUNT:                          "},
};

bool is_digit(char c) { return c >= '0' && c <= '9'; }
bool is_letter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }
bool is_printed(char c) { return static_cast<unsigned char>(c) >= ' '; }

bool fits(char pattern, char c) {
  switch (pattern) {
    case '#':
      return is_digit(c);
    case '@':
      return is_letter(c);
    case '?':
      return is_printed(c);
    case '~':
      return true;
    default:
      return c == pattern;
  }
}

bool fits(std::string_view pattern, std::string_view line) {
  std::string_view rest;
  if (pattern.ends_with('*')) {
    pattern.remove_suffix(1);
    if (line.size() < pattern.size()) return false;
    rest = line.substr(pattern.size());
  }
  return line.size() == pattern.size() + rest.size() &&
         std::equal(pattern.begin(), pattern.end(), line.begin(),
                    [](char form, char c) { return fits(form, c); }) &&
         std::all_of(rest.begin(), rest.end(), is_printed);
}

void append_masked(std::string& out, std::string_view file, std::size_t number, std::string_view line) {
  for (const masked_line& form : MASKED_LINES) {
    if (form.file != file || (form.line != 0 && form.line != number) || !fits(form.pattern, line)) continue;
    for (std::size_t i = 0; i < form.pattern.size(); ++i)
      out += form.pattern[i] == '~' ? line[i] : form.pattern[i];
    return;
  }
  out += line;
}

}  // namespace

std::string masked(std::string_view file_name, std::string_view bytes) {
  std::string out;
  out.reserve(bytes.size());
  for (std::size_t number = 1, at = 0; at < bytes.size(); ++number) {
    const std::size_t end = std::min(bytes.find('\n', at), bytes.size());
    std::string_view line = bytes.substr(at, end - at);
    const bool carriage_return = line.ends_with('\r');
    if (carriage_return) line.remove_suffix(1);
    append_masked(out, file_name, number, line);
    if (carriage_return) out += '\r';
    if (end < bytes.size()) out += '\n';
    at = end + 1;
  }
  return out;
}

}  // namespace tervak::companion
