#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace tervak::report {

/// A file that cannot be taken. The text names file, line and column, says what was expected and what stands
/// there, and shows the line.
struct rif_error : std::runtime_error {
  using std::runtime_error::runtime_error;
};

struct record {
  std::string name;  // without the blanks that fill its eight columns; empty behind the last record
  std::size_t line = 0;
  std::vector<double> values;
  std::vector<std::string> text_lines;  // without the eight blanks in front and those at the end
};

/// Takes the text of an interface file apart into records: a name in columns 1 to 8, then fields of 16
/// columns, four a line, continuation lines with eight blanks. All records but IDENT, DATE and IEND have
/// their count of fields as field 1. DATE and TSOILPRF carry text lines.
class record_reader {
 public:
  record_reader(std::string file_name, std::string_view text);

  /// Name of the next record, empty behind the last and where a line begins with blanks.
  std::string next_name() const;
  /// Whether only blank lines are left.
  bool at_end() const;
  /// The next record, whole. Throws rif_error; also behind the last record.
  record next();

  /// Refuses field `field` (from 1) of a record.
  [[noreturn]] void refuse(const record& where, std::size_t field, const std::string& text) const;
  /// Refuses what stands, or is missing, at the reader's place.
  [[noreturn]] void refuse_here(const std::string& text) const;

 private:
  [[noreturn]] void fail(std::size_t line, std::size_t column, const std::string& text) const;
  void read_fields(record& into, std::size_t total);
  std::size_t field_count(const record& first) const;
  double number(std::size_t line, std::size_t field_of_line) const;
  std::size_t fields_on(std::size_t line) const;
  std::string text_line(const record& of) const;

  std::string file_name_;
  std::vector<std::string_view> lines_;
  std::size_t at_ = 0;  // index of the next line
};

}  // namespace tervak::report
