#pragma once

#include <istream>
#include <string>
#include <string_view>
#include <vector>

#include "TervakExchange/deck_faults.hpp"
#include "TervakExchange/deck_map.hpp"
#include "TervakExchange/Tervak.hpp"

namespace Vrsk::Plin::TervakExchange {

/// A row of the deck that a record comes from: its fields with their places, the first column first.
struct deck_row {
  record_kind kind = record_kind::written;
  deck_statement line;                 ///< without fields where the record has no row
  std::vector<deck_statement> points;  ///< of a curve, behind its AT line
};

/// A deck that has been read: its profiles and the places of their values, or the faults by which it is
/// refused.
class deck_reading {
 public:
  /// Reads the stream to its end. `file_name` is the name as the stream was opened; it opens each fault. A
  /// stream that has failed is a fault like any other.
  deck_reading(std::istream& stream, std::string_view file_name);
  deck_reading(const deck_reading&) = delete;
  deck_reading& operator=(const deck_reading&) = delete;

  /// How many faults the deck has. With any, the profiles and their maps are empty.
  [[nodiscard]] std::size_t fault_count() const { return faults_.count(); }
  /// The text of the refusal, without a line end behind its last line.
  [[nodiscard]] std::string refusal(std::string_view line_end = RECORD_END) const {
    return faults_.text(line_end);
  }

  [[nodiscard]] const std::vector<Tervak>& profiles() const { return profiles_; }
  [[nodiscard]] std::vector<Tervak> take_profiles() { return std::move(profiles_); }
  /// One map a profile, in the order of the profiles.
  [[nodiscard]] const std::vector<profile_map>& maps() const { return maps_; }

  /// A text about a place of the deck, in the form of a fault: `file:line:column: text`, line, caret.
  [[nodiscard]] std::string described(const deck_place& place, std::string_view text,
                                      std::string_view line_end = "\n") const {
    return faults_.described(place, text, line_end);
  }
  /// The heading of a profile, as one place.
  [[nodiscard]] deck_place heading(const profile_map& profile) const;
  /// The values of a scalar, those of DIAM from all its lines; the words of BORING. None when it is left out.
  [[nodiscard]] std::vector<deck_field> values(const profile_map& profile, std::string_view scalar) const;
  /// The row of record number `record` of a table, which counts from 1 as the stages do. Without fields when
  /// there is no such record, and for the record that closes a list of factors.
  [[nodiscard]] deck_row row(const profile_map& profile, std::string_view table, std::size_t record) const;
  /// A line of the deck, from 1, with its fields.
  [[nodiscard]] deck_statement line(std::size_t number) const {
    return split_fields(lines_[number - 1], number);
  }

 private:
  void read_text(std::istream& stream, std::string_view file_name);
  void read_profiles();

  std::string file_name_, text_;
  std::vector<std::string_view> lines_;
  deck_faults faults_;
  std::vector<Tervak> profiles_;
  std::vector<profile_map> maps_;
};

/// A row from its first field to its last, as one place.
[[nodiscard]] deck_place whole_row(const deck_statement& line);

}  // namespace Vrsk::Plin::TervakExchange
