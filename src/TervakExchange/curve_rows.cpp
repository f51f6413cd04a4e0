#include <algorithm>
#include <map>
#include <string>
#include <tuple>

#include "TervakExchange/deck_curves.hpp"
#include "TervakExchange/deck_values.hpp"
#include "TervakExchange/layer_rows.hpp"

namespace Vrsk::Plin::TervakExchange {

namespace {

constexpr std::size_t MOST_POINTS = 29;  ///< of a curve that any stage accepts

/// A curve of one calculation layer and one diameter.
struct layer_curve {
  int layer = 0;
  double diameter = 0;
  record_origin origin;
};

/// One table of curves while it is laid out.
struct curve_table {
  const deck_curves& table;
  std::size_t family;            ///< 0 to 2: P-Y, T-Z, Q-Z; above: monopile
  std::string_view family_name;  ///< of the first three
  const deck_layers& layers;
  const std::vector<std::string_view>& lines;
  deck_faults& faults;
  profile_draft& draft;

  [[nodiscard]] bool monopile() const { return family > 2; }
  [[nodiscard]] int code(int layer) const {
    return layers.codes[static_cast<std::size_t>(layer - 1)][family];
  }
  /// A diameter as the deck writes it.
  [[nodiscard]] std::string diameter_text(int number) const {
    auto left = static_cast<std::size_t>(number);
    for (const std::size_t line : draft.map.of("DIAM").lines) {
      const std::vector<deck_field> fields = split_fields(lines[line - 1], line).fields;
      if (left < fields.size()) return std::string(fields[left].text);
      left -= fields.size() - 1;
    }
    return "";
  }
  [[nodiscard]] deck_statement at_line(std::size_t row) const {
    const std::size_t number = draft.map.of(table.name).rows[row];
    return split_fields(lines[number - 1], number);
  }
};

bool names_main_layer(const deck_statement& at) { return is_main_layer(at.fields[1].text); }

void refuse_code(const curve_table& curves, const deck_statement& at, int layer) {
  curves.faults.add(at.fields[0].place,
                    "this curve would not be used: " + std::string(names_main_layer(at) ? "main " : "") +
                        "layer " + std::string(at.fields[1].text.substr(names_main_layer(at) ? 1 : 0)) +
                        " has the " + std::string(curves.family_name) + " code " +
                        std::to_string(curves.code(layer)) + ", not 0");
}

void refuse_diameter(const curve_table& curves, const deck_statement& at) {
  curves.faults.add(at.fields[2].place,
                    "this curve would not be used: " + shown(at.fields[2].text) + " is no DIAM");
}

/// The curves that `AT M2 1.2` or `AT M2 0` opens.
void expand_curve(const curve_table& curves, std::size_t row, int main_layer, double diameter,
                  std::vector<layer_curve>& result) {
  const deck_statement at = curves.at_line(row);
  if (!main_layer_exists(curves.layers, main_layer, at.fields[1], curves.faults)) return;
  auto [first, last] = curves.layers.main_layers[static_cast<std::size_t>(main_layer - 1)];
  if (!curves.monopile() && curves.code(first) != 0) return refuse_code(curves, at, first);
  std::vector<double> diameters{diameter};
  if (diameter == 0.0)
    diameters = curves.layers.diameters;
  else if (curves.layers.diameter_number(diameter) == 0) {
    if (!curves.monopile()) return refuse_diameter(curves, at);
    last = first;  // no layer looks for it, so that one record does
  }
  for (int layer = first; layer <= last; ++layer)
    for (const double each : diameters) result.push_back({layer, each, {row, record_kind::expanded}});
}

/// Refuses curves of layers and diameters that have one already, and of the first three families those that
/// no layer wants. Gives the layers and diameter numbers that have their curve.
std::map<std::pair<int, int>, std::size_t> check_wanted(const curve_table& curves,
                                                        const std::vector<layer_curve>& all) {
  std::map<std::pair<int, int>, std::size_t> found;
  std::size_t refused = all.size();  // an AT line with a fault has one fault
  for (const layer_curve& curve : all) {
    const std::size_t row = curve.origin.row;
    if (row == refused) continue;
    const std::size_t before = curves.faults.count();
    const int diameter = curves.layers.diameter_number(curve.diameter);
    const bool exists = curve.layer >= 1 && curve.layer <= curves.layers.count();
    if (exists && diameter != 0 && (curves.monopile() || curves.code(curve.layer) == 0)) {
      const auto [first, is_new] = found.insert({{curve.layer, diameter}, row});
      if (!is_new)
        curves.faults.add(curves.at_line(row).fields[0].place,
                          "layer " + std::to_string(curve.layer) +
                              " and this diameter have their curve already, on line " +
                              std::to_string(curves.draft.map.of(curves.table.name).rows[first->second]));
    } else if (curves.monopile()) {
      continue;
    } else if (!exists) {
      curves.faults.add(curves.at_line(row).fields[1].place,
                        "this curve would not be used: the profile has the layers 1 to " +
                            std::to_string(curves.layers.count()));
    } else if (diameter == 0) {
      refuse_diameter(curves, curves.at_line(row));
    } else {
      refuse_code(curves, curves.at_line(row), curve.layer);
    }
    if (curves.faults.count() != before) refused = row;
  }
  return found;
}

/// The first layer and diameter of a family that lack their curve, and how many there are.
void refuse_missing(const curve_table& curves, const std::map<std::pair<int, int>, std::size_t>& found) {
  std::size_t missing = 0;
  std::string lacks;
  for (int layer = 1; layer <= curves.layers.count(); ++layer)
    for (int d = 1; curves.code(layer) == 0 && d <= curves.layers.last_diameter(); ++d) {
      if (found.contains({layer, d})) continue;
      if (missing++ == 0)
        lacks = " for layer " + std::to_string(layer) + " and diameter " + curves.diameter_text(d) +
                "; layer " + std::to_string(layer);
    }
  if (missing == 0) return;
  const keyword_use& use = curves.draft.use(curves.table.name);
  lacks += " has the " + std::string(curves.family_name) + " code 0";
  const std::string more = missing > 1 ? ", and " + std::to_string(missing - 1) + " more are missing" : "";
  const std::string name(curves.table.name);
  if (use.given)
    curves.faults.add(use.place, name + " has no curve" + lacks + more);
  else if (!use.meant)
    curves.faults.add({curves.draft.map.heading, 1, 1}, curves.draft.title() + " has no " + name + lacks);
}

/// Puts the curves of a table that names main layers in the order of the layers and diameters.
void lay_curves(const curve_table& curves, std::vector<layer_curve> all) {
  std::stable_sort(all.begin(), all.end(), [](const layer_curve& a, const layer_curve& b) {
    return std::tie(a.layer, a.diameter) < std::tie(b.layer, b.diameter);
  });
  std::vector<ManualCurveRecord>& records = curves.table.records(curves.draft.profile);
  std::vector<ManualCurveRecord> laid;
  std::vector<record_origin> origins;
  std::vector<bool> copied(records.size());
  for (const layer_curve& curve : all) {
    ManualCurveRecord& source = records[curve.origin.row];
    laid.push_back({curve.layer, curve.diameter, source.Stresses, source.Displacements});
    // The stage ends at the first copy of a curve with too many points; the others need not be as long.
    if (!copied[curve.origin.row] && source.Stresses.size() > MOST_POINTS + 1) {
      source.Stresses.resize(MOST_POINTS + 1);
      source.Displacements.resize(MOST_POINTS + 1);
    }
    copied[curve.origin.row] = true;
    origins.push_back(curve.origin);
  }
  records = std::move(laid);
  curves.draft.map.of(*find_keyword(curves.table.name)).records = std::move(origins);
}

/// Whether an AT line names a main layer. Nothing when one does where none are.
std::optional<bool> names_main_layers(const profile_draft& draft, const deck_curves& table,
                                      const std::vector<std::string_view>& lines, deck_faults& faults) {
  for (const std::size_t number : draft.map.of(table.name).rows) {
    const deck_statement at = split_fields(lines[number - 1], number);
    if (names_main_layer(at))
      return main_layers_allowed(draft, at.fields[1], faults) ? std::optional(true) : std::nullopt;
  }
  return false;
}

void expand_table(const curve_table& curves, bool main) {
  const std::vector<ManualCurveRecord>& records = curves.table.records(curves.draft.profile);
  const std::size_t before = curves.faults.count();
  std::vector<layer_curve> all;
  for (std::size_t row = 0; row < records.size(); ++row) {
    const auto& [layer, diameter, stresses, displacements] = records[row];
    if (main && names_main_layer(curves.at_line(row)))
      expand_curve(curves, row, layer, diameter, all);
    else
      all.push_back({layer, diameter, {row}});
  }
  if (curves.monopile() && !main) return;
  const auto found = check_wanted(curves, all);
  if (curves.faults.count() != before) return;
  if (!curves.monopile()) refuse_missing(curves, found);
  if (main && curves.faults.count() == before) lay_curves(curves, std::move(all));
}

}  // namespace

void expand_curves(profile_draft& draft, const std::optional<deck_layers>& layers,
                   const std::vector<std::string_view>& lines, deck_faults& faults) {
  constexpr std::string_view FAMILIES[] = {"P-Y", "T-Z", "Q-Z", "", "", ""};
  for (std::size_t family = 0; const deck_curves& table : deck_curves_tables()) {
    const std::size_t now = family++;
    const keyword_use& use = draft.use(table.name);
    if (use.faulty || use.cut || (use.given && use.curves == 0)) continue;
    const std::optional<bool> main = names_main_layers(draft, table, lines, faults);
    if (!main || !layers) continue;
    const bool wanted = now < 3 && std::any_of(layers->codes.begin(), layers->codes.end(),
                                               [now](const auto& codes) { return codes[now] == 0; });
    // A table that no layer wants has been refused as a whole.
    if (now < 3 ? wanted : use.given)
      expand_table({table, now, FAMILIES[now], *layers, lines, faults, draft}, *main);
  }
}

}  // namespace Vrsk::Plin::TervakExchange
