#pragma once

#include <istream>
#include <stdexcept>
#include <string>
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
/// their count of fields as field 1. DATE and TSOILPRF carry text lines. Only the lines of one record are
/// held, and of a line no more than a good one can have, so that neither memory nor a message grows with a
/// file that is none.
class record_reader {
 public:
  /// The stream must outlive the reader. One that fails throws std::runtime_error from whatever looks ahead.
  record_reader(std::string file_name, std::istream& in);

  /// Name of the next record, empty behind the last and where a line begins with blanks.
  std::string next_name();
  /// Whether only blank lines are left.
  bool at_end();
  /// The next record, whole. Throws rif_error; also behind the last record.
  record next();

  /// Refuses field `field` (from 1) of the record that was read last.
  [[noreturn]] void refuse(const record& where, std::size_t field, const std::string& text) const;
  /// Refuses what stands, or is missing, at the reader's place.
  [[noreturn]] void refuse_here(const std::string& text);

 private:
  [[noreturn]] void fail(std::size_t line, std::size_t column, const std::string& text) const;
  void read_fields(record& into, std::size_t total);
  std::size_t field_count(const record& first) const;
  double number(std::size_t line, std::size_t field_of_line) const;
  std::size_t fields_on(std::size_t line);
  std::string text_line(const record& of);
  bool has(std::size_t line);
  bool read_line();
  const std::string& line_at(std::size_t line) const { return lines_[line - first_]; }

  std::string file_name_;
  std::istream& in_;
  std::vector<std::string> lines_;  // from the first line of the last record as far as was read
  std::size_t first_ = 0;           // index in the file of lines_[0]
  std::size_t at_ = 0;              // index of the next line
};

}  // namespace tervak::report
