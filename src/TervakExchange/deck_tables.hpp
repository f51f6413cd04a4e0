#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "TervakExchange/deck_lines.hpp"
#include "TervakExchange/deck_revisions.hpp"
#include "TervakExchange/deck_values.hpp"
#include "TervakExchange/Tervak.hpp"

namespace Vrsk::Plin::TervakExchange {

/// One column of a table, and the place of its value in the record R.
template <class R>
struct deck_column {
  std::string_view name;
  /// The optional one takes "-" for a value that is not given.
  std::variant<double& (*)(R&), int& (*)(R&), std::optional<double>& (*)(R&)> place;
};

/// A table of a profile: `NAME` alone on its line, then one row a line.
class deck_table {
 public:
  deck_table(std::string_view name, int revision, bool required)
      : name_(name), revision_(revision), required_(required) {}
  virtual ~deck_table() = default;

  [[nodiscard]] std::string_view name() const { return name_; }
  [[nodiscard]] int revision() const { return revision_; }  ///< 4, 5 or BOTH
  [[nodiscard]] bool required() const { return required_; }
  /// Reads a row and appends its record; a row with a fault appends none. True when the row closes its list,
  /// as a row with L1 = 0 does in the lists of P-Y, T-Z and Q-Z factors.
  virtual bool read_row(const deck_statement& line, Tervak& profile, deck_faults& faults) const = 0;
  /// The number of a column by its name, from 0; the number of columns when there is none of that name.
  [[nodiscard]] virtual std::size_t find_column(std::string_view column) const = 0;
  /// Whether its rows are for a first to a last layer, which may be written as main layers.
  [[nodiscard]] virtual bool counts_layers() const = 0;

 private:
  std::string_view name_;
  int revision_;
  bool required_;
};

/// The table whose rows become records of the type R.
template <class R>
class deck_table_of final : public deck_table {
 public:
  using append_record = void (*)(Tervak&, const R&);

  /// `optional_columns` columns at the end may be left out together.
  deck_table_of(std::string_view name, int revision, bool required, std::vector<deck_column<R>> columns,
                append_record append, std::size_t optional_columns = 0)
      : deck_table(name, revision, required),
        columns_(std::move(columns)),
        append_(append),
        least_(columns_.size() - optional_columns) {
    for (std::size_t i = 0; i < columns_.size(); ++i)
      labels_.push_back(std::string(name) + " column " + std::to_string(i + 1) + ", " +
                        std::string(columns_[i].name) + ",");
  }

  bool read_row(const deck_statement& line, Tervak& profile, deck_faults& faults) const override;
  [[nodiscard]] std::size_t find_column(std::string_view column) const override {
    std::size_t i = 0;
    while (i < columns_.size() && columns_[i].name != column) ++i;
    return i;
  }
  [[nodiscard]] bool counts_layers() const override {
    return requires(R record) { record.L1; }
    || requires(R record) { record.LAY1; };
  }

 private:
  bool read_field(std::size_t i, const deck_field& field, R& record, deck_faults& faults) const;

  std::vector<deck_column<R>> columns_;
  std::vector<std::string> labels_;  ///< how a refusal calls each column
  append_record append_;
  std::size_t least_;
};

/// Refuses a row whose fields are not as many as they should be; commas are told first, as they explain it.
[[nodiscard]] bool row_has_shape(const deck_statement& line, std::string_view who, std::size_t least,
                                 std::size_t most, deck_faults& faults);

/// All tables but those of curves.
[[nodiscard]] std::span<const deck_table* const> deck_tables();

template <class R>
bool deck_table_of<R>::read_row(const deck_statement& line, Tervak& profile, deck_faults& faults) const {
  if (!row_has_shape(line, name(), least_, columns_.size(), faults)) return false;
  R record{};
  bool good = true;
  std::size_t first = 0;
  const bool main_layers = counts_layers() && is_main_layer(line.fields[0].text);
  for (; main_layers && first < 2; ++first)
    good = read_main_layer(line.fields[first], labels_[first],
                           (*std::get_if<int& (*)(R&)>(&columns_[first].place))(record), faults) &&
           good;
  for (std::size_t i = first; i < line.fields.size(); ++i)
    good = read_field(i, line.fields[i], record, faults) && good;
  if (!good) return false;
  append_(profile, record);
  if constexpr (requires { record.L1; })
    return !main_layers && record.L1 == 0;
  else
    return false;
}

template <class R>
bool deck_table_of<R>::read_field(std::size_t i, const deck_field& field, R& record,
                                  deck_faults& faults) const {
  const auto& place = columns_[i].place;
  const std::string& who = labels_[i];
  if (const auto* integer = std::get_if<int& (*)(R&)>(&place))
    return read_integer(field, who, "an integer", (*integer)(record), faults);
  if (const auto* number = std::get_if<double& (*)(R&)>(&place))
    return read_number(field, who, "a number", (*number)(record), faults);
  if (field.text == "-") return true;
  double value = 0;
  if (!read_number(field, who, "a number or \"-\"", value, faults)) return false;
  std::get<std::optional<double>& (*)(R&)>(place)(record) = value;
  return true;
}

}  // namespace Vrsk::Plin::TervakExchange
