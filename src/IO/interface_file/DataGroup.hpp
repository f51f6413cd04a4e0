#pragma once

#include <cstdint>
#include <memory>
#include <ostream>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "fem/utils/text_ref.hpp"

/// The records of the TORMAL family of text files: a name of eight characters, real fields, text lines.
namespace IO::Tormal {

/// A record held in memory.
class DataGroup {
 public:
  virtual ~DataGroup() = default;

  [[nodiscard]] const std::string& name() const { return name_; }
  [[nodiscard]] const std::vector<double>& values() const { return values_; }
  [[nodiscard]] const std::vector<std::string>& text_lines() const { return text_lines_; }
  /// Records of the family whose name repeats on each line; of use to readers only, none is written here.
  [[nodiscard]] const std::set<std::string>& multi_line_names() const { return multi_line_names_; }
  [[nodiscard]] std::uint32_t kind() const { return kind_; }

 protected:
  DataGroup(std::string name, std::uint32_t kind, std::vector<double> values,
            std::vector<std::string> text_lines);

 private:
  std::vector<double> values_;
  std::vector<std::string> text_lines_;
  std::set<std::string> multi_line_names_;
  std::string name_;
  std::uint32_t kind_;
};

/// The first record of a file.
class DGIDENT : public DataGroup {
 public:
  DGIDENT();
};

/// Program, date, machine and user of the run in four lines of 72 characters. It starts with blank lines.
class DGDATE : public DataGroup {
 public:
  DGDATE();
  explicit DGDATE(std::vector<std::string> text_lines);
};

/// Writes a record in one piece: the name, as given, then fields of 16 columns "%16.8E", four a line; further
/// lines begin with eight blanks. A record with no fields is its name with no line end. Counts and codes are
/// reals too; a NaN prints without a sign. A failed stream is not reported: the caller's stream carries its
/// own state.
void write_record(std::ostream& writer, std::string_view name, std::span<const double> values);

/// The same with the record's text lines behind the fields, as they stand.
void write_record(std::ostream& writer, const DataGroup& group);

/// The DATE record of this run. `name` is the product name (10 characters), `version` has 10 and `date`, the
/// release date, 11. The clock is read once; machine and user come from the platform.
std::shared_ptr<DGDATE> make_date_record(fem::text_ref name, fem::text_ref version, fem::text_ref date);

}  // namespace IO::Tormal
