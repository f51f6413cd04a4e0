#include "check/places.hpp"

#include <algorithm>
#include <cmath>
#include <optional>

#include "check/catalogue.hpp"
#include "TervakExchange/deck_numbers.hpp"

namespace tervak::check {

namespace exchange = Vrsk::Plin::TervakExchange;

namespace {

using exchange::deck_field;
using exchange::deck_keyword;
using exchange::deck_table;
using exchange::profile_map;

/// Column of a table, from 0; the number of the first after the last where it has none of that name.
std::size_t column_number(std::string_view table, std::string_view column) {
  if (column.substr(0, 1) == "#")
    return static_cast<std::size_t>(std::stoul(std::string(column.substr(1)))) - 1;
  const deck_keyword* keyword = exchange::find_keyword(table);
  const auto* of = keyword ? std::get_if<const deck_table*>(&keyword->what) : nullptr;
  return of ? (*of)->find_column(column) : static_cast<std::size_t>(-1);
}

bool is_table(std::string_view keyword) {
  const deck_keyword* known = exchange::find_keyword(keyword);
  return known && !std::holds_alternative<const exchange::deck_scalar*>(known->what);
}

bool is_curves(std::string_view keyword) { return keyword.substr(0, 6) == "MANUAL"; }

named_place scalar_place(const deck_reading& deck, const profile_map& map, const deck_target& target) {
  const auto values = deck.values(map, target.keyword);
  if (target.row > 0 && target.row <= values.size())
    return {values[target.row - 1].place,
            std::string(target.keyword) + " value " + std::to_string(target.row)};
  if (!values.empty() && values.front().place.line == values.back().place.line) {
    const deck_place& first = values.front().place;
    const deck_place& last = values.back().place;
    return {{first.line, first.column, last.column + last.length - first.column},
            std::string(target.keyword)};
  }
  return {deck.line(map.of(target.keyword).lines.front()).fields.front().place, std::string(target.keyword)};
}

named_place row_place(const deck_reading& deck, const profile_map& map, const deck_target& target) {
  const auto row = deck.row(map, target.keyword, target.row);
  const std::string table(target.keyword);
  if (row.line.fields.empty())
    return {deck.line(map.of(target.keyword).lines.front()).fields.front().place, table};
  const std::size_t number = map.of(target.keyword).records[target.row - 1].row + 1;
  std::string name = table + (is_curves(table) ? " curve " : " row ") + std::to_string(number);
  if (target.point > 0 && target.point <= row.points.size())
    return {exchange::whole_row(row.points[target.point - 1]),
            name + ", point " + std::to_string(target.point)};
  const std::size_t column =
      target.column.empty() ? row.line.fields.size() : column_number(table, target.column);
  if (column >= row.line.fields.size()) return {exchange::whole_row(row.line), name};
  if (target.column.front() != '#') name += ", " + std::string(target.column);
  return {row.line.fields[column].place, name};
}

}  // namespace

named_place find_place(const deck_reading& deck, std::size_t profile, const deck_target& target) {
  const profile_map& map = deck.maps()[profile];
  if (!exchange::find_keyword(target.keyword) || map.of(target.keyword).lines.empty())
    return {deck.heading(map), "profile " + std::to_string(profile + 1)};
  return is_table(target.keyword) ? row_place(deck, map, target) : scalar_place(deck, map, target);
}

namespace {

/// One item of a list of targets, taken apart.
struct item {
  std::string_view keyword, selector, column, condition;
};

item take_apart(std::string_view text) {
  item result;
  const auto end = std::min(text.find_first_of("#@^$.<>=~"), text.size());
  result.keyword = text.substr(0, end);
  text.remove_prefix(end);
  if (!text.empty() && text.front() != '.' &&
      (text.front() != '^' || text.size() > 1 || result.keyword == "DIAM")) {
    const auto stop = std::min(text.find('.'), text.size());
    result.selector = text.substr(0, stop);
    text.remove_prefix(stop);
  }
  if (text.empty()) return result;
  text.remove_prefix(1);
  const auto stop = std::min(text.find_first_of("<>=~^"), text.size());
  result.column = text.substr(0, stop);
  result.condition = text.substr(stop);
  return result;
}

/// The message's number that a digit names; none when the message has fewer.
std::optional<double> number_at(std::string_view digit, const std::vector<double>& numbers) {
  const auto index = static_cast<std::size_t>(digit.front() - '0');
  if (index < 1 || index > numbers.size()) return std::nullopt;
  return numbers[index - 1];
}

/// Strips "{2=4,5}"; false where the condition does not hold.
bool take_condition(std::string_view& text, const std::vector<double>& numbers) {
  if (text.front() != '{') return true;
  const auto end = text.find('}');
  const std::string_view condition = text.substr(1, end - 1);
  text.remove_prefix(end + 1);
  const auto value = number_at(condition, numbers);
  for (const std::string_view choice : split(condition.substr(2), ','))
    if (value && *value == std::stod(std::string(choice))) return true;
  return false;
}

/// Finds the places of one item.
class item_places {
 public:
  item_places(const deck_reading& deck, const profile_view& profile, const item& what,
              const std::vector<double>& numbers)
      : deck_(deck), profile_(profile), what_(what), numbers_(numbers), map_(deck.maps()[profile.index()]) {}

  [[nodiscard]] std::vector<named_place> find();

 private:
  void add(std::size_t row) {
    found_.push_back(find_place(deck_, profile_.index(), {what_.keyword, row, what_.column}));
  }
  [[nodiscard]] std::vector<std::size_t> rows() const;
  [[nodiscard]] std::vector<std::size_t> rows_of_layer() const;
  [[nodiscard]] std::optional<double> value(std::size_t row) const;
  [[nodiscard]] bool holds(std::size_t row) const;
  [[nodiscard]] std::size_t row_count() const { return map_.of(what_.keyword).records.size(); }

  const deck_reading& deck_;
  const profile_view& profile_;
  const item& what_;
  const std::vector<double>& numbers_;
  const profile_map& map_;
  std::vector<named_place> found_;
};

std::vector<named_place> item_places::find() {
  const deck_keyword* keyword = exchange::find_keyword(what_.keyword);
  if (!keyword || !keyword->belongs_to(profile_.profile().version) || map_.of(what_.keyword).lines.empty())
    return {};
  if (!is_table(what_.keyword)) {
    const auto values = deck_.values(map_, what_.keyword);
    if (what_.selector == "^") {
      for (std::size_t i = 1; i < values.size(); ++i) {
        double before = 0, now = 0;
        static_cast<void>(exchange::parse_number(values[i - 1].text, before));
        static_cast<void>(exchange::parse_number(values[i].text, now));
        if (!(now > before)) add(i + 1);
      }
    } else {
      const auto index =
          what_.selector.empty() ? std::nullopt : number_at(what_.selector.substr(1), numbers_);
      add(index && *index > 0 ? static_cast<std::size_t>(*index) : 0);
    }
  } else if (what_.selector.empty() && what_.column.empty()) {
    add(0);
  } else {
    for (const std::size_t row : rows())
      if (holds(row)) add(row);
  }
  return std::move(found_);
}

std::vector<std::size_t> item_places::rows() const {
  std::vector<std::size_t> all;
  for (std::size_t i = 1; i <= row_count(); ++i)
    if (map_.of(what_.keyword).records[i - 1].kind != exchange::record_kind::added) all.push_back(i);
  if (what_.selector.empty() || all.empty()) return all;
  if (what_.selector == "^") return {all.front()};
  if (what_.selector == "$") return {all.back()};
  const auto number = number_at(what_.selector.substr(1), numbers_);
  if (what_.selector.front() == '@') return rows_of_layer();
  if (number && *number >= 1 && *number <= static_cast<double>(row_count())) {
    const auto row = static_cast<std::size_t>(*number);
    if (map_.of(what_.keyword).records[row - 1].kind != exchange::record_kind::added) return {row};
  }
  return all;
}

/// Where the layers are not known from the deck alone, all rows can be meant.
std::vector<std::size_t> item_places::rows_of_layer() const {
  const auto number = number_at(what_.selector.substr(1), numbers_);
  const int layer = number && *number > 0 && *number < 1e6 ? static_cast<int>(*number) : 0;
  std::vector<std::size_t> rows;
  if (is_curves(what_.keyword)) {
    double diameter = -1;
    if (const auto slash = what_.selector.find('/'); slash != std::string_view::npos) {
      const auto index = number_at(what_.selector.substr(slash + 1), numbers_);
      const auto& all = profile_.data().Diameters;
      if (index && *index >= 1 && *index <= static_cast<double>(all.size()))
        diameter = all[static_cast<std::size_t>(*index) - 1];
    }
    const auto& records = profile_.curves(what_.keyword);
    for (std::size_t i = 0; i < records.size() && i < row_count(); ++i)
      if (records[i].Layer == layer && (diameter < 0 || records[i].Diameter == diameter))
        rows.push_back(i + 1);
    return rows;
  }
  const auto& layers = profile_.layers();
  if (layer >= 1 && static_cast<std::size_t>(layer) <= layers.size()) {
    const std::size_t row = layers[static_cast<std::size_t>(layer) - 1].row;
    if (what_.keyword != "SOILTYPES") return {row + 1};
    const int type = profile_.data().Layers[row].SoilType;
    return {static_cast<std::size_t>(std::max(type, 0))};
  }
  for (std::size_t i = 1; i <= row_count(); ++i) rows.push_back(i);
  return rows;
}

std::optional<double> item_places::value(std::size_t row) const {
  const auto found = deck_.row(map_, what_.keyword, row);
  const std::size_t column = column_number(what_.keyword, what_.column);
  double value = 0;
  if (column >= found.line.fields.size() ||
      exchange::parse_number(found.line.fields[column].text, value) != exchange::number_fault::none)
    return std::nullopt;
  return value;
}

bool item_places::holds(std::size_t row) const {
  if (what_.condition.empty()) return true;
  const auto now = value(row);
  if (!now) return false;
  switch (what_.condition.front()) {
    case '<':
      return *now < 0;
    case '>':
      return *now > 0;
    case '~':
      return *now != static_cast<double>(row);
    case '=':
      return what_.condition == "=0" ? *now == 0 : now == number_at(what_.condition.substr(1), numbers_);
    default: {
      const auto before = row > 1 ? value(row - 1) : std::nullopt;
      return before && !(*now > *before);
    }
  }
}

}  // namespace

std::vector<named_place> find_places(const deck_reading& deck, const profile_view& profile,
                                     std::string_view targets, const std::vector<double>& numbers) {
  std::vector<named_place> all;
  for (std::string_view text : split(targets, ' ')) {
    if (text.empty() || !take_condition(text, numbers)) continue;
    const item what = take_apart(text);
    for (named_place& found : item_places(deck, profile, what, numbers).find()) {
      const auto same = [&](const named_place& p) {
        return p.place.line == found.place.line && p.place.column == found.place.column;
      };
      if (std::none_of(all.begin(), all.end(), same)) all.push_back(std::move(found));
    }
  }
  return all;
}

}  // namespace tervak::check
