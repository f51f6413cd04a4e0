#include <algorithm>
#include <cstdint>
#include <string>
#include <tuple>

#include "TervakExchange/deck_reading.hpp"
#include "TervakExchange/deck_values.hpp"
#include "TervakExchange/layer_rows.hpp"

namespace Vrsk::Plin::TervakExchange {

namespace {

/// The list of one of the six tables, and how its rows name their layers.
template <class R>
struct factor_table {
  std::string_view name;
  std::vector<R>& records;
  int R::*first;
  int R::*last;
};

/// A row written for main layers, in calculation layers.
struct layer_row {
  std::size_t row = 0;
  int diameter = 0;  ///< number; 0 = all
  int first = 0, last = 0;
};

deck_statement row_line(const keyword_map& map, std::size_t row, const std::vector<std::string_view>& lines) {
  return split_fields(lines[map.rows[row] - 1], map.rows[row]);
}

/// Whether the rows name main layers. Nothing when they differ in that, or name main layers where none are.
std::optional<bool> names_main_layers(const profile_draft& draft, std::string_view name,
                                      const std::vector<std::string_view>& lines, deck_faults& faults) {
  const keyword_map& map = draft.map.of(name);
  bool main = false;
  for (std::size_t row = 0; row < map.rows.size(); ++row) {
    const deck_statement line = row_line(map, row, lines);
    const bool now = is_main_layer(line.fields[0].text);
    if (row > 0 && now != main) {
      faults.add(whole_row(line), std::string("this row names ") + (now ? "main" : "calculation") +
                                      " layers, the rows above it " + (now ? "calculation" : "main") +
                                      " layers; all rows of " + std::string(name) +
                                      " are written one way or the other");
      return std::nullopt;
    }
    main = now;
    if (row == 0 && main && !main_layers_allowed(draft, line.fields[0], faults)) return std::nullopt;
  }
  return main;
}

/// Main layers that exist, from the upper one to the lower one.
template <class R>
bool sound_main_layers(const factor_table<R>& table, const R& record, const deck_statement& line,
                       const deck_layers& layers, deck_faults& faults) {
  const int first = record.*table.first, last = record.*table.last;
  const bool exist = main_layer_exists(layers, first, line.fields[0], faults);
  if (!main_layer_exists(layers, last, line.fields[1], faults) || !exist) return false;
  if (first <= last) return true;
  faults.add(line.fields[1].place, shown(line.fields[1].text) + " lies above " + shown(line.fields[0].text) +
                                       "; the upper main layer is the first of the two");
  return false;
}

/// Refuses rows behind the one that ends the list for the stages, which do not look at them. A row with
/// layers that do not exist is theirs to refuse.
template <class R>
void refuse_unused(const factor_table<R>& table, const keyword_map& map, const deck_layers& layers,
                   const std::vector<std::string_view>& lines, deck_faults& faults) {
  std::size_t row = 0;
  for (; row < table.records.size(); ++row) {
    const R& record = table.records[row];
    if (record.L1 < 1 || record.L1 > record.L2 || record.L2 > layers.count()) return;
    const bool last = layers.means_all(record.Diameter) ||
                      layers.diameter_number(record.Diameter) == layers.last_diameter();
    if (record.L2 == layers.count() && last) break;
  }
  for (std::size_t unused = row + 1; unused < table.records.size(); ++unused)
    if (table.records[unused].L1 != 0)
      faults.add(whole_row(row_line(map, unused, lines)),
                 "this row of " + std::string(table.name) + " would not be used: the row on line " +
                     std::to_string(map.rows[row]) +
                     " reaches the last layer for the last diameter, which ends the list");
}

/// Which diameters of each main layer have a row, as bits, and which row it is.
class coverage {
 public:
  coverage(const deck_layers& layers)
      : diameters_(layers.diameters.size()),
        covered_(layers.main_layers.size()),
        rows_(covered_.size() * diameters_) {}

  /// The row, from 0, that covers part of it already, if any; otherwise it is covered from now on.
  std::optional<std::size_t> cover(int first, int last, int diameter, std::size_t row) {
    const std::uint64_t bits =
        diameter == 0 ? ~std::uint64_t{0} >> (64 - diameters_) : std::uint64_t{1} << (diameter - 1);
    for (auto m = static_cast<std::size_t>(first - 1); m < static_cast<std::size_t>(last); ++m)
      if ((covered_[m] & bits) != 0) return owner(m, covered_[m] & bits);
    for (auto m = static_cast<std::size_t>(first - 1); m < static_cast<std::size_t>(last); ++m) {
      covered_[m] |= bits;
      for (std::size_t d = 0; d < diameters_; ++d)
        if ((bits >> d & 1) != 0) rows_[m * diameters_ + d] = row;
    }
    return std::nullopt;
  }

 private:
  [[nodiscard]] std::size_t owner(std::size_t m, std::uint64_t bits) const {
    std::size_t d = 0;
    while ((bits >> d & 1) == 0) ++d;
    return rows_[m * diameters_ + d];
  }

  std::size_t diameters_;  ///< 50 at most, so that a word holds them
  std::vector<std::uint64_t> covered_;
  std::vector<std::size_t> rows_;
};

/// The rows of P-Y, T-Z or Q-Z factors in calculation layers. Rows that overlap, or are for no diameter of
/// the profile, are refused.
template <class R>
std::vector<layer_row> count_rows(const factor_table<R>& table, const keyword_map& map,
                                  const deck_layers& layers, const std::vector<std::string_view>& lines,
                                  deck_faults& faults) {
  std::vector<layer_row> rows;
  coverage covered(layers);
  for (std::size_t row = 0; row < table.records.size(); ++row) {
    const R& record = table.records[row];
    const deck_statement line = row_line(map, row, lines);
    if (!sound_main_layers(table, record, line, layers, faults)) continue;
    const int diameter = record.Diameter == 0.0 ? 0 : layers.diameter_number(record.Diameter);
    if (record.Diameter != 0.0 && diameter == 0) {
      faults.add(line.fields[2].place, std::string(table.name) +
                                           " column 3, DIAMETER, takes one of DIAM, or 0.0 for all, found " +
                                           shown(line.fields[2].text));
      continue;
    }
    const int first = record.*table.first, last = record.*table.last;
    if (const auto other = covered.cover(first, last, diameter, row))
      faults.add(whole_row(line), "this row of " + std::string(table.name) + " overlaps the row on line " +
                                      std::to_string(map.rows[*other]) +
                                      "; a main layer and a diameter take one row");
    const auto at = [&](int m) { return layers.main_layers[static_cast<std::size_t>(m - 1)]; };
    rows.push_back({row, diameter, at(first).first, at(last).last});
  }
  return rows;
}

/// The order in which the stage uses every row: those of one diameter together and ascending, and the
/// diameter whose row ends the list at the end.
void order_rows(std::vector<layer_row>& rows, const deck_layers& layers) {
  int ending = -1;
  for (const layer_row& row : rows)
    if (row.last == layers.count() && (row.diameter == 0 || row.diameter == layers.last_diameter()))
      ending = row.diameter;
  std::sort(rows.begin(), rows.end(), [ending](const layer_row& a, const layer_row& b) {
    const bool a_ends = a.diameter == ending, b_ends = b.diameter == ending;
    return std::tie(a_ends, a.diameter, a.first) < std::tie(b_ends, b.diameter, b.first);
  });
}

/// `plain` is the record of a layer without factors.
template <class R>
void lay_rows(const factor_table<R>& table, keyword_map& map, const std::vector<layer_row>& rows, R plain) {
  std::vector<R> records;
  std::vector<record_origin> origins;
  if (rows.front().first > 1) {
    plain.*table.first = 1;
    plain.*table.last = rows.front().first - 1;
    records.push_back(plain);
    origins.push_back({rows.front().row, record_kind::added});
  }
  for (const layer_row& row : rows) {
    R record = table.records[row.row];
    record.*table.first = row.first;
    record.*table.last = row.last;
    records.push_back(record);
    origins.push_back({row.row});
  }
  table.records = std::move(records);
  map.records = std::move(origins);
}

/// MODIFYPY, MODIFYTZ or MODIFYQZ.
template <class R>
void expand_list(profile_draft& draft, const std::optional<deck_layers>& layers,
                 const std::vector<std::string_view>& lines, deck_faults& faults,
                 const factor_table<R>& table, const R& plain) {
  if (!draft.use(table.name).read_whole()) return;
  keyword_map& map = draft.map.of(*find_keyword(table.name));
  const std::optional<bool> main = names_main_layers(draft, table.name, lines, faults);
  if (!main || !layers) return;
  if (!*main) return refuse_unused(table, map, *layers, lines, faults);
  const std::size_t before = faults.count();
  std::vector<layer_row> rows = count_rows(table, map, *layers, lines, faults);
  if (faults.count() != before) return;
  order_rows(rows, *layers);
  lay_rows(table, map, rows, plain);
}

/// MODIFYMTHETA, MODIFYBSY or MODIFYBMTHETA, whose rows stay as they are but for their layers.
void expand_monopile(profile_draft& draft, const std::optional<deck_layers>& layers,
                     const std::vector<std::string_view>& lines, deck_faults& faults,
                     const factor_table<MonopileModificationRecord>& table) {
  if (!draft.use(table.name).read_whole()) return;
  const keyword_map& map = draft.map.of(*find_keyword(table.name));
  const std::optional<bool> main = names_main_layers(draft, table.name, lines, faults);
  if (!main || !*main || !layers) return;
  for (std::size_t row = 0; row < table.records.size(); ++row) {
    MonopileModificationRecord& record = table.records[row];
    if (!sound_main_layers(table, record, row_line(map, row, lines), *layers, faults)) continue;
    record.LAY1 = layers->main_layers[static_cast<std::size_t>(record.LAY1 - 1)].first;
    record.LAY2 = layers->main_layers[static_cast<std::size_t>(record.LAY2 - 1)].last;
  }
}

}  // namespace

void expand_factors(profile_draft& draft, const std::optional<deck_layers>& layers,
                    const std::vector<std::string_view>& lines, deck_faults& faults) {
  TervakInputData& data = draft.profile.data;
  using py_factors = PyModificationRecord;
  using axial_factors = AxialModificationRecord;
  using monopile_factors = MonopileModificationRecord;
  expand_list(draft, layers, lines, faults,
              {"MODIFYPY", data.PyModification.Records, &py_factors::L1, &py_factors::L2},
              py_factors{1, 1, 0, 1, 1, 0, 1, 1, 1});
  expand_list(draft, layers, lines, faults,
              {"MODIFYTZ", data.TzModification.Records, &axial_factors::L1, &axial_factors::L2},
              axial_factors{1, 1, 0, 1, 1, 1, 1, 1});
  expand_list(draft, layers, lines, faults,
              {"MODIFYQZ", data.QzModification.Records, &axial_factors::L1, &axial_factors::L2},
              axial_factors{1, 1, 0, 1, 0, 1, 1, 1});
  const auto monopile = [&](std::string_view name, MonopileModificationSection& section) {
    expand_monopile(draft, layers, lines, faults,
                    {name, section.Records, &monopile_factors::LAY1, &monopile_factors::LAY2});
  };
  monopile("MODIFYMTHETA", data.MthetaModification);
  monopile("MODIFYBSY", data.BSYModification);
  monopile("MODIFYBMTHETA", data.BMthetaModification);
}

}  // namespace Vrsk::Plin::TervakExchange
