#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Vrsk::Plin::TervakExchange {

/// The line end inside the text of a refusal, as in the whole log.
inline constexpr std::string_view RECORD_END = "\r\n";

/// A place in the deck. Line and column count from 1, column and length in bytes.
struct deck_place {
  std::size_t line = 1, column = 1, length = 1;
};

/// Collects the faults of a deck and makes the one text by which it is refused: for each fault
/// `file:line:column: text`, the line itself and a caret under the place. Faults may be added in any order;
/// the text has them in the order of the file, those of one place as they were added.
class deck_faults {
 public:
  /// `lines` are the lines of the whole deck without line ends; both arguments must outlive the object. A
  /// place beyond the lines, as in a deck that cannot be opened, is not quoted.
  deck_faults(std::string_view file_name, const std::vector<std::string_view>& lines)
      : file_name_(file_name), lines_(lines) {}

  void add(const deck_place& place, std::string text);
  [[nodiscard]] std::size_t count() const { return count_; }
  /// Whether a fault at this place would be among those whose text is shown, as far as is known by now.
  [[nodiscard]] bool shows(const deck_place& place) const;
  /// The refusal: the first 20 faults, then the number of the others.
  [[nodiscard]] std::string text(std::string_view line_end = RECORD_END) const;
  /// A text about a place, in the form of a fault.
  [[nodiscard]] std::string described(const deck_place& place, std::string_view text,
                                      std::string_view line_end) const;

 private:
  struct fault {
    deck_place place;
    std::string text;
  };
  void drop_beyond_limit();

  std::string_view file_name_;
  const std::vector<std::string_view>& lines_;
  std::vector<fault> faults_;
  std::size_t count_ = 0;
};

/// A text out of the deck as a message shows it: in quotes, control bytes as "?", tabs as blanks, cut when
/// long.
[[nodiscard]] std::string shown(std::string_view text);

}  // namespace Vrsk::Plin::TervakExchange
