#include "TervakExchange/profile_reader.hpp"

#include <algorithm>
#include <utility>

#include "TervakExchange/deck_values.hpp"

namespace Vrsk::Plin::TervakExchange {

namespace {

bool is_letter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }
bool opens_number(char c) { return (c >= '0' && c <= '9') || c == '+' || c == '-' || c == '.'; }

/// With the bytes that continue it, where a text of a word processor stands in UTF-8.
std::string_view first_character(std::string_view word) {
  std::size_t size = 1;
  if (static_cast<unsigned char>(word.front()) >= 0xC0)
    while (size < word.size() && size < 4 && (static_cast<unsigned char>(word[size]) & 0xC0) == 0x80) ++size;
  return word.substr(0, size);
}

}  // namespace

std::string profile_draft::title() const {
  const std::string& heading = profile.header;
  const auto begin = std::min(heading.find_first_not_of(" \t"), heading.size());
  const auto end = heading.find_last_not_of(" \t") + 1;
  return "profile " + std::to_string(number) + " " +
         shown(std::string_view(heading).substr(begin, end > begin ? end - begin : 0));
}

profile_draft profile_reader::read() {
  draft_.number = range_.number;
  draft_.map.heading = range_.heading;
  draft_.profile.header = lines_[range_.heading - 1];
  set_standard_values(draft_.profile);
  find_revision();
  refuse_missing_heading();
  for (std::size_t number = range_.first; number < range_.behind_last; ++number) {
    const deck_statement line = split_fields(lines_[number - 1], number);
    if (line.fields.empty()) continue;
    draft_.empty = false;
    read_line(line);
    if (end_missing_) break;
  }
  return std::move(draft_);
}

/// The revision is known before all lines, so that each is judged by it wherever REVISION stands.
void profile_reader::find_revision() {
  for (std::size_t number = range_.first; number < range_.behind_last; ++number) {
    const deck_statement line = split_fields(lines_[number - 1], number);
    if (!line.fields.empty() && same_word(line.fields[0].text, "REVISION")) return take_revision(line);
  }
}

void profile_reader::take_revision(const deck_statement& line) {
  if (line.fields.size() > 1) parse_revision(line.fields[1].text, draft_.profile.version);
}

void profile_reader::refuse_missing_heading() {
  const deck_statement line = split_fields(draft_.profile.header, range_.heading);
  if (line.fields.empty() || !same_word(line.fields[0].text, "REVISION")) return;
  // "Revision 4 of the soil report" is a heading, "revision 4" alone is not.
  if (line.fields[0].text != "REVISION" && line.fields.size() > 2) return;
  const char* hint = draft_.number == 1 ? "; the first line of a deck is free text"
                                        : "; behind END stands a line of free text that does not begin "
                                          "with *, C or c";
  faults_.add(line.fields[0].place,
              "profile " + std::to_string(draft_.number) + " has no heading, found REVISION" + hint);
  // Only one thing is wrong: the line counts as the REVISION that it was meant to be.
  draft_.use(*find_keyword("REVISION")).meant = true;
  if (draft_.profile.version == 0) take_revision(line);
}

void profile_reader::read_line(const deck_statement& line) {
  behind_unknown_ = std::exchange(unknown_, false);
  const char first = line.fields[0].text.front();
  if (is_main_layer(line.fields[0].text) && takes_main_layers()) return read_row(line);
  if (is_letter(first)) return read_keyword(line);
  if (opens_number(first)) return read_row(line);
  const deck_field& word = line.fields[0];
  const std::string_view character = first_character(word.text);
  std::string text = "a line cannot begin with " + shown(character);
  if (first == '*') text += "; a comment has its * in column 1";
  text += comma_hint(word.text).empty() ? ascii_hint(character) : comma_hint(word.text);
  faults_.add({word.place.line, word.place.column, character.size()}, std::move(text));
  unknown_ = true;
  // Without that character it may be a keyword, or a row.
  const std::string_view rest = word.text.substr(character.size());
  if (const deck_keyword* keyword =
          find_keyword(rest.empty() && line.fields.size() > 1 ? line.fields[1].text : rest))
    draft_.use(*keyword).meant = true;
  else if (rows_ == rows::read)
    lose_rows();
}

void profile_reader::read_keyword(const deck_statement& line) {
  const deck_field& word = line.fields[0];
  if (same_word(word.text, "AT")) return read_at_line(line);
  const deck_keyword* keyword = find_keyword(word.text);
  if (!keyword) return read_unknown(line);
  const bool first = std::exchange(first_, false);
  if (rows_ == rows::read) interrupted_ = open_;
  open_ = keyword;
  open_line_ = word.place.line;
  closed_ = false;

  const std::string name(keyword->name);
  const int version = draft_.profile.version;
  if (!keyword->belongs_to(version)) {
    rows_ = std::holds_alternative<const deck_scalar*>(keyword->what) ? rows::refused : rows::passed_over;
    faults_.add(word.place, name + " belongs to revision " + std::to_string(keyword->revision) +
                                ", this profile is revision " + std::to_string(version));
    return;
  }
  keyword_use& use = draft_.use(*keyword);
  if (name == "REVISION" && !first && !use.given)
    faults_.add(word.place, "REVISION comes first, right behind the heading of its profile");
  Tervak* target = &draft_.profile;
  if (use.given && name != "DIAM") {
    target = &discarded_;
    discarded_ = Tervak{};
    use.cut = true;
    // What is no keyword, and then REVISION: a heading. What follows belongs to the next profile.
    end_missing_ = name == "REVISION" && behind_unknown_;
    faults_.add(word.place,
                name + " stands twice in this profile, first on line " + std::to_string(use.place.line) +
                    (end_missing_ ? "; is END missing above the heading of the next profile?" : ""));
  } else if (!use.given) {
    use.given = true;
    use.place = word.place;
  }
  if (target == &draft_.profile) draft_.map.of(*keyword).lines.push_back(word.place.line);
  const std::size_t faults = faults_.count();
  open(*keyword, line, *target);
  if (faults_.count() != faults) use.faulty = true;
}

void profile_reader::read_unknown(const deck_statement& line) {
  const deck_field& word = line.fields[0];
  std::string text = "unknown keyword " + shown(word.text);
  const bool at = in_curves() && same_word(word.text.substr(0, 2), "AT");
  // A deck may have a million such lines, and the search is long: it is made where the fault is shown.
  const bool sought = faults_.shows(word.place);
  const nearest_keyword nearest =
      at || !sought ? nearest_keyword{} : find_nearest(word.text, draft_.profile.version);
  if (!at && !sought) draft_.any_meant = true;
  if (!comma_hint(word.text).empty())
    text += comma_hint(word.text);
  else if (at || nearest.sure ||
           (nearest.keyword && (line.fields.size() < 2 || opens_number(line.fields[1].text.front()))))
    text += "; did you mean " + std::string(at ? "AT" : nearest.keyword->name) + "?";
  text += ascii_hint(word.text);
  // One mistake, one fault: what the word means is not missing too, and the rows behind it are passed over.
  if (nearest.sure) draft_.use(*nearest.keyword).meant = true;
  if (rows_ == rows::read || rows_ == rows::before_at) {
    interrupted_ = open_;
    // A row that begins with a letter, or a misspelt AT, and no keyword
    if (at || !sought || (!nearest.sure && line.fields.size() > 2)) lose_rows();
  }
  rows_ = rows::passed_over;
  unknown_ = true;
  faults_.add(word.place, std::move(text));
}

/// Rows of the table that is, or was, open do not reach it: what it lacks now is no fault of its own.
void profile_reader::lose_rows() {
  const deck_keyword* table = rows_ == rows::read || rows_ == rows::before_at ? open_ : interrupted_;
  if (table) draft_.use(*table).cut = draft_.use(*table).faulty = true;
}

void profile_reader::open(const deck_keyword& keyword, const deck_statement& line, Tervak& target) {
  if (const auto* scalar = std::get_if<const deck_scalar*>(&keyword.what)) {
    rows_ = rows::refused;
    return read_scalar(**scalar, line, target, faults_);
  }
  rows_ = rows::read;
  interrupted_ = nullptr;
  target_ = &target;
  if (line.fields.size() > 1)
    faults_.add(line.fields[1].place,
                std::string(keyword.name) + " stands alone on its line, found " + behind_it(line.fields[1]));
  if (const auto* curves = std::get_if<const deck_curves*>(&keyword.what))
    if (bool* flag = (*curves)->flag(target)) *flag = true;
}

void profile_reader::read_at_line(const deck_statement& line) {
  if (!in_curves()) {
    if (rows_ == rows::passed_over) return;
    faults_.add(line.fields[0].place, "AT opens a curve; it stands only behind the name of a curve table");
    if (rows_ == rows::read) lose_rows();
    rows_ = rows::passed_over;
    return;
  }
  rows_ = rows::read;
  if (target_ == &draft_.profile) {
    ++draft_.use(*open_).curves;
    keep_row(line);
    draft_.map.of(*open_).points.emplace_back();
  }
  const std::size_t faults = faults_.count();
  read_at(**std::get_if<const deck_curves*>(&open_->what), line, *target_, faults_);
  if (faults_.count() != faults) draft_.use(*open_).faulty = true;
}

void profile_reader::read_row(const deck_statement& line) {
  if (rows_ == rows::read) return read_open_row(line);
  lose_rows();
  if (rows_ != rows::refused) return;
  std::string text = "this row belongs to no table";
  if (open_)
    text += ", " + std::string(open_->name) + " on line " + std::to_string(open_line_) + " takes no rows";
  faults_.add(line.fields[0].place, std::move(text));
}

void profile_reader::read_open_row(const deck_statement& line) {
  keyword_use& use = draft_.use(*open_);
  if (target_ == &draft_.profile) ++use.rows;
  const std::size_t faults = faults_.count();
  if (closed_) {
    faults_.add(line.fields[0].place, "this row of " + std::string(open_->name) +
                                          " stands behind a row whose L1 is 0, which closes the list");
  } else if (const auto* table = std::get_if<const deck_table*>(&open_->what)) {
    keep_row(line);
    closed_ = (*table)->read_row(line, *target_, faults_);
  } else if (read_point(**std::get_if<const deck_curves*>(&open_->what), line, *target_, faults_)) {
    if (target_ == &draft_.profile) draft_.map.of(*open_).points.back().push_back(line.fields[0].place.line);
  } else {
    lose_rows();
    rows_ = rows::before_at;
  }
  if (faults_.count() != faults) use.faulty = true;
}

/// The places of a table that stands twice, and of rows with a fault, serve nobody: the deck is refused.
void profile_reader::keep_row(const deck_statement& line) {
  if (target_ != &draft_.profile) return;
  keyword_map& map = draft_.map.of(*open_);
  map.records.push_back({map.rows.size()});
  map.rows.push_back(line.fields[0].place.line);
}

}  // namespace Vrsk::Plin::TervakExchange
