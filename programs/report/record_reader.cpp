#include "report/record_reader.hpp"

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <cmath>
#include <cstring>
#include <string_view>

#include "report/text.hpp"

namespace tervak::report {
namespace {

constexpr std::size_t name_width = 8;
constexpr std::string_view blank_name = "        ";
constexpr std::size_t field_width = 16;
constexpr std::size_t fields_a_line = 4;
constexpr std::size_t longest_text = 255;  // the code of a text is 100 plus its length, up to 355
constexpr std::size_t longest_line = name_width + longest_text;

struct record_form {
  std::string_view name;
  std::size_t fixed_fields;  // 0: field 1 holds the count
  std::size_t text_lines;
};
constexpr std::array<record_form, 14> record_forms = {{{"IDENT", 3, 0},
                                                       {"DATE", 4, 4},
                                                       {"IEND", 4, 0},
                                                       {"TSOILPRF", 0, 2},
                                                       {"RDSOILDI", 0, 0},
                                                       {"RDSOIPRF", 0, 0},
                                                       {"RDSOIDSP", 0, 0},
                                                       {"RVSOILAY", 0, 0},
                                                       {"RVSOILPY", 0, 0},
                                                       {"RVSOILQZ", 0, 0},
                                                       {"RVSOILTZ", 0, 0},
                                                       {"RVSOILBM", 0, 0},
                                                       {"RVSOILDM", 0, 0},
                                                       {"RVSOILBS", 0, 0}}};

bool digits(std::string_view text) {
  return !text.empty() && std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

/// One digit, point, eight digits, E, sign, two or three digits.
bool has_number_form(std::string_view text) {
  if (!text.empty() && text[0] == '-') text.remove_prefix(1);
  return (text.size() == 14 || text.size() == 15) && digits(text.substr(0, 1)) && text[1] == '.' &&
         digits(text.substr(2, 8)) && text[10] == 'E' && (text[11] == '+' || text[11] == '-') &&
         digits(text.substr(12));
}

/// A line as it is shown in a message: bytes that could disturb a terminal become '?'.
std::string shown(std::string_view text) {
  std::string out(text);
  for (char& c : out)
    if (static_cast<unsigned char>(c) < 0x20 || c == 0x7f) c = '?';
  return out;
}

}  // namespace

record_reader::record_reader(std::string file_name, std::istream& in)
    : file_name_(std::move(file_name)), in_(in) {}

/// Of a line that is too long only so much is read as shows that; whoever takes it refuses it.
bool record_reader::read_line() {
  std::array<char, longest_line + 3> room;  // one character too many, CR, and the end that getline sets
  errno = 0;
  in_.getline(room.data(), room.size());
  if (in_.bad()) throw std::runtime_error(file_name_ + ": cannot be read: " + std::strerror(errno));
  std::size_t size = static_cast<std::size_t>(in_.gcount());
  if (size == 0) return false;
  if (in_.good()) --size;  // the line end counts
  if (size > 0 && room[size - 1] == '\r') --size;
  lines_.emplace_back(room.data(), size);
  return true;
}

bool record_reader::has(std::size_t line) {
  while (line >= first_ + lines_.size())
    if (!read_line()) return false;
  return true;
}

std::string record_reader::next_name() {
  return has(at_) ? std::string(trim_end(std::string_view(line_at(at_)).substr(0, name_width)))
                  : std::string();
}

bool record_reader::at_end() {
  const auto blank = [&](std::size_t line) {
    return line_at(line).size() <= longest_line && trim_end(line_at(line)).empty();
  };
  if (!has(at_)) return true;
  // Of blank lines one is kept, for a message to show.
  while (blank(at_) && has(at_ + 1) && blank(at_ + 1)) lines_.pop_back();
  return blank(at_) && !has(at_ + 1);
}

void record_reader::fail(std::size_t line, std::size_t column, const std::string& text) const {
  throw rif_error(file_name_ + ":" + std::to_string(line + 1) + ":" + std::to_string(column) + ": " + text +
                  "\n  " + shown(line_at(line)) + "\n  " + std::string(column - 1, ' ') + "^");
}

void record_reader::refuse(const record& where, std::size_t field, const std::string& text) const {
  fail(where.line - 1 + (field - 1) / fields_a_line,
       name_width + (field - 1) % fields_a_line * field_width + 1, text);
}

void record_reader::refuse_here(const std::string& text) {
  if (has(at_)) fail(at_, 1, text);
  throw rif_error(file_name_ + ":" + std::to_string(at_) + ": behind the last line: " + text);
}

std::size_t record_reader::fields_on(std::size_t line) {
  const std::size_t width = line_at(line).size();
  const std::size_t over = width < name_width ? 0 : (width - name_width) % field_width;
  const std::size_t count = width < name_width ? 0 : (width - name_width) / field_width;
  constexpr std::size_t full = name_width + fields_a_line * field_width;
  if (width > full)
    fail(line, full + 1,
         "the line goes on, expected no more than four fields, which end in column " + std::to_string(full));
  if (over != 0 || count == 0) {
    const std::size_t from = name_width + count * field_width + 1;
    fail(line, width + 1,
         "the line ends in column " + std::to_string(width) + ", expected a field in columns " +
             std::to_string(from) + " to " + std::to_string(from + field_width - 1) +
             (!has(line + 1) ? "; this is the last line: the file is cut off" : ""));
  }
  return count;
}

double record_reader::number(std::size_t line, std::size_t field_of_line) const {
  const std::size_t from = name_width + field_of_line * field_width;
  const std::string_view field = std::string_view(line_at(line)).substr(from, field_width);
  const std::string_view text = field.substr(std::min(field.find_first_not_of(' '), field.size()));
  double value = 0.0;
  const bool good = has_number_form(text);
  if (!good || std::from_chars(text.data(), text.data() + text.size(), value).ec != std::errc())
    fail(line, from + 1,
         "expected a number of the form 1.00000000E+00 in columns " + std::to_string(from + 1) + " to " +
             std::to_string(from + field_width) + ", found \"" + shown(text) + "\"");
  return value;
}

std::size_t record_reader::field_count(const record& first) const {
  const double count = first.values.front();
  if (!(count >= 1.0 && count <= 1000.0) || std::floor(count) != count)
    refuse(first, 1,
           "expected the count of the fields of record " + first.name + ", found " + number_text(count));
  return static_cast<std::size_t>(count);
}

void record_reader::read_fields(record& into, std::size_t total) {
  for (bool first = true; first || into.values.size() < total; first = false) {
    const auto found = [&] {
      return "record " + into.name + " of line " + std::to_string(into.line) + " has " +
             std::to_string(total) + " fields, found " + std::to_string(into.values.size());
    };
    if (!has(at_))
      refuse_here(found() +
                  " when the file ended: it is cut off, or the run that wrote it did not end properly");
    if (!first && !line_at(at_).starts_with(blank_name))
      refuse_here(found() + ", expected a continuation line with eight blanks in front");
    const std::size_t count = fields_on(at_);
    for (std::size_t i = 0; i < count; ++i) into.values.push_back(number(at_, i));
    ++at_;
    if (first && total == 0) total = field_count(into);
    const std::size_t full =
        std::min(total, (into.values.size() + fields_a_line - 1) / fields_a_line * fields_a_line);
    if (into.values.size() != full) {
      --at_;
      refuse_here(found() + " up to the end of this line, expected " + std::to_string(full));
    }
  }
}

std::string record_reader::text_line(const record& of) {
  if (!has(at_))
    refuse_here("the file ends within the text lines of record " + of.name + " of line " +
                std::to_string(of.line));
  const std::string_view line = line_at(at_);
  if (!line.starts_with(blank_name))
    refuse_here("expected a text line of record " + of.name + " with eight blanks in front");
  if (line.size() > longest_line)
    fail(at_, longest_line + 1,
         "the text line goes on, expected at most " + std::to_string(longest_text) +
             " characters, which end in column " + std::to_string(longest_line));
  return std::string(trim_end(line.substr(name_width)));
}

record record_reader::next() {
  lines_.erase(lines_.begin(), lines_.begin() + static_cast<std::ptrdiff_t>(at_ - first_));
  first_ = at_;
  if (!has(at_)) refuse_here("the file ends where a record was expected");
  record out;
  out.name = next_name();
  out.line = at_ + 1;
  const auto form = std::find_if(record_forms.begin(), record_forms.end(),
                                 [&](const record_form& f) { return f.name == out.name; });
  if (out.name.empty()) refuse_here("expected a record name in columns 1 to 8, found blanks");
  if (form == record_forms.end()) refuse_here("unknown record name \"" + shown(out.name) + "\"");
  read_fields(out, form->fixed_fields);
  for (std::size_t i = 0; i < form->text_lines; ++i, ++at_) out.text_lines.push_back(text_line(out));
  return out;
}

}  // namespace tervak::report
