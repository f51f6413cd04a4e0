#include "report/page_data.hpp"

#include <algorithm>
#include <map>

#include "report/curve_view.hpp"
#include "report/depth_data.hpp"
#include "report/layer_data.hpp"
#include "report/mark_rows.hpp"
#include "report/text.hpp"

namespace tervak::report {
namespace {

/// A JSON array of what `item` makes of each element.
template <typename Items, typename Make>
std::string array_of(const Items& items, Make item) {
  std::string out = "[";
  for (const auto& i : items) out += join({out.size() > 1 ? "," : "", item(i)});
  return out + "]";
}

std::string texts(std::initializer_list<std::string_view> items) { return array_of(items, json_text); }

std::string boxes() {
  const auto box = [](const plot_box& b) {
    return array_of(std::initializer_list<double>{b.width, b.height, b.left, b.right, b.top, b.bottom},
                    number_text);
  };
  return "{\"curve\":" + box(curve_box) + ",\"depth\":" + box(depth_box) + "}";
}

std::string styles(const interface_file& file) {
  std::size_t diameters = 4;  // of the lines over depth
  for (const profile& p : file.profiles) diameters = std::max(diameters, p.diameters.size());
  std::string out;
  for (std::size_t i = 0; i < diameters; ++i) {
    const line_style s = style_of(i);
    out += (i == 0 ? "" : ",") + texts({s.colour, s.dash, s.marker, s.fill});
  }
  return "[" + out + "]";
}

std::string kind_json(const profile& p, curve_kind kind, const units& u) {
  const curve_view view = view_curves(p, p.layers.front(), kind, u);
  const kind_words w = words_of(kind);
  std::map<int, std::string> methods;
  for (const layer& l : p.layers) methods[l.code(kind)] = method_text(kind, l.code(kind));
  std::string names;
  for (const auto& [code, name] : methods)
    names += join({names.empty() ? "" : ",", "\"", std::to_string(code), "\":", json_text(name)});
  return join({"{\"name\":", json_text(w.name), ",\"x\":", json_text(view.x.title),
               ",\"y\":", json_text(view.y.title),
               ",\"words\":", texts({w.stress, w.displacement, w.stress_symbol, w.displacement_symbol}),
               ",\"sides\":", texts({w.positive, w.negative}), ",\"methods\":{", names, "}}"});
}

std::string column_json(const profile& p, const layer_column& c, const units& u, value_lists& lists) {
  std::vector<double> values;
  for (const layer& l : p.layers) values.push_back(c.value(l));
  return join({"{\"name\":", json_text(c.name), ",\"unit\":", json_text(u.named() || c.always ? c.unit : ""),
               ",\"level\":", c.level ? "1" : "0", ",\"v\":", std::to_string(lists.add(list_text(values))),
               "}"});
}

std::string mark_row_json(const mark_row& row) {
  return "[" + json_text(words_of(row.curves).name) + "," + std::to_string(static_cast<int>(row.mark)) + "," +
         (as_the_method_makes_it(row.mark) ? "0," : "1,") + json_text(row.layers) + "," +
         std::to_string(row.count) + "," + json_text(worst_text(row)) + "]";
}

std::string deck_json(const deck_profile* deck) {
  if (deck == nullptr) return "null";
  const auto layer = [](const deck_layer& l) {
    return "[" + std::to_string(l.number) + "," + number_text(l.bottom) + "]";
  };
  std::string pile = "null";
  if (deck->pile)
    pile = array_of(std::initializer_list<double>{deck->pile->diameter, deck->pile->wall, deck->pile->tip},
                    number_text);
  return "{\"layers\":" + array_of(deck->main_layers, layer) +
         ",\"scour\":" + number_text(deck->local_scour) + ",\"pile\":" + pile + "}";
}

/// By diameter: lists of skin in compression and tension, tip, capacity in compression and tension.
std::string capacity_json(const axial_capacity& capacity, value_lists& lists) {
  std::string out;
  for (const auto member : {&capacity_row::skin_compression, &capacity_row::skin_tension, &capacity_row::tip,
                            &capacity_row::capacity_compression, &capacity_row::capacity_tension}) {
    std::vector<std::optional<double>> values;
    for (const capacity_row& row : capacity.rows) values.push_back(row.*member);
    out += (out.empty() ? "" : ",") + std::to_string(lists.add(list_text(values)));
  }
  return "[" + out + "]";
}

std::string given_json(const soil_displacement& s) {
  return array_of(std::initializer_list<double>{s.level, s.x, s.y, s.z, s.hole_diameter}, number_text);
}

/// number, name, label; shown (index of the layer shown first), diameters, sea (level), scour (level of the
/// general one), general (name, unit and value a row), given (soil displacements); kinds[] of curves;
/// columns[] of the layer table; layers[] (see layer_data.hpp); marked[] (curve, mark, worth a look, layers,
/// curves, worst); depth (see depth_data.hpp); capacity; deck (main layers, level of local scour, pile), null
/// without one.
std::string profile_json(const profile& p, const page_facts& facts, std::size_t index, value_lists& lists) {
  const units& u = facts.u;
  const std::vector<axial_capacity> capacities = axial_capacities(p, facts.deck.local_scour(index));
  const auto general = [&](const general_value& g) {
    return "[" + json_text(g.name) + "," + json_text(u.named() ? g.unit : "") + "," + number_text(g.value) +
           "]";
  };
  return join({"{\"number\":",
               std::to_string(p.number),
               ",\"name\":",
               json_text(p.name),
               ",\"label\":",
               json_text(p.label),
               ",\"shown\":",
               std::to_string(first_shown(p)),
               ",\"diameters\":",
               array_of(p.diameters, number_text),
               ",\"sea\":",
               number_text(p.sea_floor),
               ",\"scour\":",
               number_text(p.sea_floor + p.general_scour),
               ",\"general\":",
               array_of(general_values(p, u), general),
               ",\"given\":",
               array_of(p.displacements, given_json),
               ",\"kinds\":",
               array_of(kinds_of(p), [&](curve_kind kind) { return kind_json(p, kind, u); }),
               ",\"columns\":",
               array_of(layer_columns(u), [&](const layer_column& c) { return column_json(p, c, u, lists); }),
               ",\"marked\":",
               array_of(mark_rows(p), mark_row_json),
               ",\"depth\":",
               depth_data(p, capacities, u, lists),
               ",\"capacity\":",
               array_of(capacities, [&](const axial_capacity& c) { return capacity_json(c, lists); }),
               ",\"deck\":",
               deck_json(facts.deck.of(index)),
               ",\"layers\":",
               array_of(p.layers, [&](const layer& l) { return layer_data(p, l, u, lists) + "\n"; }),
               "}"});
}

std::string log_json(const std::optional<run_log>& log) {
  if (!log) return "null";
  return join({"{\"ending\":", json_text(log->ending), ",\"good\":", log->good ? "true" : "false",
               ",\"messages\":", array_of(log->messages, json_text), "}"});
}

}  // namespace

std::string axis_json(const axis& a, value_lists& lists) {
  std::string ticks;
  for (const std::string& tick : a.ticks) ticks += (ticks.empty() ? "" : " ") + tick;
  // The drawing needs no more digits; with nine, neighbouring layers would hardly ever share them.
  return join({"[", rounded_text(a.low, 6), ",", rounded_text(a.high, 6), ",",
               std::to_string(lists.add(ticks)), "]"});
}

std::string page_data(const interface_file& file, const page_facts& facts) {
  const units& u = facts.u;
  value_lists lists;
  std::size_t index = 0;
  const std::string profiles =
      array_of(file.profiles, [&](const profile& p) { return profile_json(p, facts, index++, lists); });
  const auto mark = [](mark_kind kind) {
    const mark_words w = words_of(kind);
    return texts({w.letter, w.name, w.meaning});
  };
  return join({"{\"file\":",
               json_text(facts.file_name),
               ",\"named\":",
               u.named() ? "true" : "false",
               ",\"units\":",
               "{\"length\":",
               json_text(u.of_length()),
               ",\"stress\":",
               json_text(u.of_stress()),
               ",\"force\":",
               json_text(u.of_force()),
               "},\"log\":",
               log_json(facts.log),
               ",\"no_deck\":",
               json_text(facts.deck.why_not),
               ",\"date\":",
               array_of(file.date_lines, json_text),
               ",\"boxes\":",
               boxes(),
               ",\"styles\":",
               styles(file),
               ",\"marks\":",
               array_of(mark_kinds, mark),
               ",\"profiles\":",
               profiles,
               ",\"lists\":",
               lists.json(),
               "}"});
}

}  // namespace tervak::report
