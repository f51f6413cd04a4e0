#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "TervakExchange/deck_map.hpp"

namespace Vrsk::Plin::TervakExchange {

/// How a keyword stands in a profile.
struct keyword_use {
  bool given = false;
  bool meant = false;   ///< not given, but a misspelt word most likely means it
  bool faulty = false;  ///< its line or one of its rows has a fault, so that its values are not all known
  bool cut = false;     ///< some of its rows did not reach it, so that what it lacks is no fault of its own
  deck_place place;     ///< of the keyword
  std::size_t curves = 0;  ///< AT lines behind it
  std::size_t rows = 0;    ///< rows behind it, faulty ones too

  /// Whether all its values are known.
  [[nodiscard]] bool read_whole() const { return given && !faulty && !cut; }
};

/// A profile as read, and what the checks that concern the whole profile need to know about it.
struct profile_draft {
  int number = 0;          ///< in the deck, from 1
  bool empty = true;       ///< nothing stands behind the heading
  bool any_meant = false;  ///< a word that was not looked into may mean any keyword that is not given
  Tervak profile;
  profile_map map;
  std::vector<keyword_use> uses = std::vector<keyword_use>(deck_keywords().size());

  [[nodiscard]] keyword_use& use(const deck_keyword& keyword) {
    return uses[static_cast<std::size_t>(&keyword - deck_keywords().data())];
  }
  /// By the name of a keyword that exists.
  [[nodiscard]] const keyword_use& use(std::string_view name) const {
    return uses[static_cast<std::size_t>(find_keyword(name) - deck_keywords().data())];
  }
  /// 'profile 2 "Boring B-7"', which opens what is said about the whole profile.
  [[nodiscard]] std::string title() const;
};

/// Reads the lines of one profile.
class profile_reader {
 public:
  profile_reader(const std::vector<std::string_view>& lines, const profile_lines& range, deck_faults& faults)
      : lines_(lines), range_(range), faults_(faults) {}

  [[nodiscard]] profile_draft read();

 private:
  enum class rows {
    refused,      ///< no table is open
    read,         ///< into the table or the curves of `open_`
    before_at,    ///< points in front of the first AT: told once, for the first of them
    passed_over,  ///< behind a keyword line that is at fault itself
  };

  void find_revision();
  void take_revision(const deck_statement& line);
  void refuse_missing_heading();
  void read_line(const deck_statement& line);
  void read_keyword(const deck_statement& line);
  void read_unknown(const deck_statement& line);
  void open(const deck_keyword& keyword, const deck_statement& line, Tervak& target);
  void read_at_line(const deck_statement& line);
  void lose_rows();
  void read_row(const deck_statement& line);
  void read_open_row(const deck_statement& line);
  void keep_row(const deck_statement& line);
  /// Also behind a word that was most likely meant as the name of such a table.
  [[nodiscard]] bool takes_main_layers() const {
    if (rows_ == rows::passed_over) return true;
    const auto* table = open_ ? std::get_if<const deck_table*>(&open_->what) : nullptr;
    return rows_ == rows::read && table && (*table)->counts_layers();
  }
  [[nodiscard]] bool in_curves() const {
    return (rows_ == rows::read || rows_ == rows::before_at) &&
           std::holds_alternative<const deck_curves*>(open_->what);
  }

  const std::vector<std::string_view>& lines_;
  const profile_lines& range_;
  deck_faults& faults_;
  profile_draft draft_;

  // What a row would go to
  rows rows_ = rows::refused;
  const deck_keyword* open_ = nullptr;  ///< the last keyword that was known
  std::size_t open_line_ = 0;
  Tervak* target_ = nullptr;                   ///< the profile, or `discarded_` for a table that stands twice
  bool closed_ = false;                        ///< a row with L1 = 0 closed the list
  const deck_keyword* interrupted_ = nullptr;  ///< the table that the lines since then have closed
  bool first_ = true;                          ///< no keyword line so far
  bool unknown_ = false, behind_unknown_ = false;  ///< this line, the line before is no keyword and no row
  bool end_missing_ = false;
  Tervak discarded_;
};

}  // namespace Vrsk::Plin::TervakExchange
