#include "report/json_tree.hpp"

#include <initializer_list>
#include <utility>

#include "report/axial_capacity.hpp"
#include "report/curve_points.hpp"
#include "report/method_label.hpp"
#include "report/text.hpp"

namespace tervak::report {
namespace {

using field = std::pair<std::string_view, std::string>;

std::string object(std::initializer_list<field> fields) {
  std::string out = "{";
  for (const auto& [name, value] : fields) out += join({out.size() > 1 ? "," : "", "\"", name, "\":", value});
  return out + "}";
}

/// The lines of an array of objects, one each.
class array {
 public:
  void add(std::string_view item) { text_ += join({text_.empty() ? "[\n" : ",\n", item}); }
  std::string text() const { return text_.empty() ? "[]" : text_ + "]"; }

 private:
  std::string text_;
};

/// The values that `item` makes of the points from `from` to in front of `to`, on one line.
template <typename Make>
std::string array_of(std::size_t from, std::size_t to, Make item) {
  std::string out = "[";
  for (std::size_t n = from; n < to; ++n) out += join({n > from ? "," : "", item(n)});
  return out + "]";
}

std::string optional_value(const std::optional<double>& value) {
  const std::string text = value ? calculated_text(*value) : "";
  return text.empty() ? "null" : text;
}

std::string curve_object(const profile& p, const layer& l, std::size_t d, curve_kind kind, bool all_points) {
  const curve& c = l.of(kind)[d];
  const double diameter = p.diameters[d];
  const auto [from, to] = all_points ? std::pair(std::size_t{0}, c.size()) : points_before_filler(c, false);
  return object(
      {{"diameter", number_text(diameter)},
       {"family", json_text(family_name(kind))},
       {"code", std::to_string(l.code(kind))},
       {"method", json_text(method_label(kind, l.code(kind)))},
       {"point", array_of(from, to, [](std::size_t n) { return std::to_string(n + 1); })},
       {"displacement", array_of(from, to, [&](std::size_t n) { return number_text(c[n].displacement); })},
       {"stress", array_of(from, to, [&](std::size_t n) { return number_text(c[n].stress); })},
       {"force_per_length", kind != curve_kind::py ? "null" : array_of(from, to, [&](std::size_t n) {
          return optional_value(c[n].stress * diameter);
        })}});
}

std::string monopile_array(const profile& p, const layer& l, bool all_points) {
  array out;
  for (const curve_kind kind : monopile_kinds)
    for (std::size_t d = 0; d < l.of(kind).size(); ++d) {
      const curve& c = l.of(kind)[d];
      if (!all_points && is_absent(c)) continue;
      const auto [from, to] =
          all_points ? std::pair(std::size_t{0}, c.size()) : points_before_filler(c, true);
      out.add(
          object({{"diameter", number_text(p.diameters[d])},
                  {"family", json_text(family_name(kind))},
                  {"point", array_of(from, to, [](std::size_t n) { return std::to_string(n + 1); })},
                  {"displacement",
                   array_of(from, to, [&](std::size_t n) { return number_text(c[n].displacement); })},
                  {"force", array_of(from, to, [&](std::size_t n) { return number_text(c[n].stress); })}}));
    }
  return out.text();
}

std::string layer_object(const profile& p, std::size_t i, bool all_points) {
  const layer& l = p.layers[i];
  array curves;
  for (std::size_t d = 0; d < p.diameters.size(); ++d)
    for (const curve_kind kind : soil_kinds) curves.add(curve_object(p, l, d, kind, all_points));
  return object({{"layer", std::to_string(i + 1)},
                 {"zbotm", number_text(l.ZBOTM)},
                 {"zlay", number_text(l.ZLAY)},
                 {"depth", number_text(l.DEPTH)},
                 {"soil", l.is_sand() ? "\"sand\"" : "\"clay\""},
                 {"gameff", number_text(l.GAMEFF)},
                 {"phir", number_text(l.PHIR)},
                 {"sured", number_text(l.SURED)},
                 {"sigzres", number_text(l.SIGZRES)},
                 {"dsigz", number_text(l.DSIGZ)},
                 {"poisson", number_text(l.V)},
                 {"e", number_text(l.E)},
                 {"g", number_text(l.G)},
                 {"py_code", std::to_string(l.py_code)},
                 {"tz_code", std::to_string(l.tz_code)},
                 {"qz_code", std::to_string(l.qz_code)},
                 {"curves", curves.text()},
                 {"monopile", monopile_array(p, l, all_points)}});
}

std::string capacity_array(const profile& p, std::optional<double> local_scour) {
  array out;
  for (const axial_capacity& pile : axial_capacities(p, local_scour))
    for (const capacity_row& row : pile.rows)
      out.add(object({{"diameter", number_text(pile.diameter)},
                      {"level", number_text(row.level)},
                      {"skin_compression", optional_value(row.skin_compression)},
                      {"skin_tension", optional_value(row.skin_tension)},
                      {"tip", optional_value(row.tip)},
                      {"capacity_compression", optional_value(row.capacity_compression)},
                      {"capacity_tension", optional_value(row.capacity_tension)}}));
  return out.text();
}

std::string profile_object(const profile& p, std::optional<double> local_scour, bool all_points) {
  array layers, displacements;
  for (std::size_t i = 0; i < p.layers.size(); ++i) layers.add(layer_object(p, i, all_points));
  for (const soil_displacement& s : p.displacements)
    displacements.add(object({{"level", number_text(s.level)},
                              {"x", number_text(s.x)},
                              {"y", number_text(s.y)},
                              {"z", number_text(s.z)},
                              {"hole_diameter", number_text(s.hole_diameter)}}));
  return object({{"profile", std::to_string(p.number)},
                 {"boring", json_text(p.name)},
                 {"heading", json_text(p.label)},
                 {"sea_floor", number_text(p.sea_floor)},
                 {"general_scour", number_text(p.general_scour)},
                 {"local_scour_level", local_scour ? number_text(*local_scour) : "null"},
                 {"diameters", array_of(0, p.diameters.size(),
                                        [&](std::size_t d) { return number_text(p.diameters[d]); })},
                 {"soil_displacements", displacements.text()},
                 {"layers", layers.text()},
                 {"capacity", capacity_array(p, local_scour)}});
}

std::string units_object(const units& u) {
  if (!u.named()) return "null";
  return object({{"length", json_text(u.length)},
                 {"force", json_text(u.force)},
                 {"stress", json_text(plain_stress(u))},
                 {"unit_weight", json_text(u.force + "/" + u.length + "3")},
                 {"force_per_length", json_text(u.force + "/" + u.length)}});
}

}  // namespace

std::string json_tree(const interface_file& file, const deck_beside& deck, const table_choice& choice) {
  array run, profiles;
  for (const std::string& line : file.date_lines) run.add(json_text(line));
  for (std::size_t i = 0; i < file.profiles.size(); ++i)
    profiles.add(profile_object(file.profiles[i], deck.local_scour(i), choice.all_points));
  return object({{"run", run.text()}, {"units", units_object(choice.u)}, {"profiles", profiles.text()}}) +
         "\n";
}

}  // namespace tervak::report
