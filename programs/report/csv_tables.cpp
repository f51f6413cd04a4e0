#include "report/csv_tables.hpp"

#include <algorithm>
#include <cmath>
#include <initializer_list>

#include "report/axial_capacity.hpp"
#include "report/curve_points.hpp"
#include "report/method_label.hpp"
#include "report/text.hpp"

namespace tervak::report {
namespace {

constexpr int file_digits = 9;

std::string quoted(std::string_view text) {
  std::string out = "\"";
  for (const char c : as_utf8(text)) out += c == '"' ? std::string("\"\"") : std::string(1, c);
  return out + "\"";
}

std::string text_field(std::string_view text) {
  return text.find_first_of("\",\r\n") == std::string_view::npos ? as_utf8(text) : quoted(text);
}

std::string optional_field(const std::optional<double>& value) {
  return value ? calculated_text(*value) : std::string();
}

void add_row(std::string& out, std::initializer_list<std::string_view> fields) {
  bool first = true;
  for (const std::string_view field : fields) {
    if (!first) out += ',';
    out += field;
    first = false;
  }
  out += "\r\n";
}

std::string layers_table(const interface_file& file) {
  std::string out =
      "profile,boring,layer,zbotm,zlay,depth,soil,gameff,phir,sured,sigzres,dsigz,poisson,e,g,py_code,tz_code,"
      "qz_code\r\n";
  for (const profile& p : file.profiles)
    for (std::size_t i = 0; i < p.layers.size(); ++i) {
      const layer& l = p.layers[i];
      add_row(out, {std::to_string(p.number), text_field(p.name), std::to_string(i + 1), number_text(l.ZBOTM),
                    number_text(l.ZLAY), number_text(l.DEPTH), l.is_sand() ? "sand" : "clay",
                    number_text(l.GAMEFF), number_text(l.PHIR), number_text(l.SURED), number_text(l.SIGZRES),
                    number_text(l.DSIGZ), number_text(l.V), number_text(l.E), number_text(l.G),
                    std::to_string(l.py_code), std::to_string(l.tz_code), std::to_string(l.qz_code)});
    }
  return out;
}

void add_curve(std::string& out, const profile& p, std::size_t i, std::size_t d, curve_kind kind,
               bool all_points) {
  const layer& l = p.layers[i];
  const curve& c = l.of(kind)[d];
  const int code = l.code(kind);
  const std::string front =
      join({std::to_string(p.number), ",", std::to_string(i + 1), ",", number_text(l.ZLAY), ",",
            number_text(p.diameters[d]), ",", family_name(kind), ",", std::to_string(code), ",",
            method_label(kind, code)});
  const auto [from, to] = all_points ? std::pair(std::size_t{0}, c.size()) : points_before_filler(c, false);
  for (std::size_t n = from; n < to; ++n)
    add_row(out, {front, std::to_string(n + 1), number_text(c[n].displacement), number_text(c[n].stress),
                  kind == curve_kind::py ? calculated_text(c[n].stress * p.diameters[d]) : std::string()});
}

std::string curves_table(const interface_file& file, bool all_points) {
  std::string out =
      "profile,layer,zlay,diameter,family,code,method,point,displacement,stress,force_per_length\r\n";
  for (const profile& p : file.profiles)
    for (std::size_t i = 0; i < p.layers.size(); ++i)
      for (std::size_t d = 0; d < p.diameters.size(); ++d)
        for (const curve_kind kind : soil_kinds) add_curve(out, p, i, d, kind, all_points);
  return out;
}

/// Empty where no profile has such curves.
std::string monopile_table(const interface_file& file, bool all_points) {
  std::string out;
  for (const profile& p : file.profiles)
    for (std::size_t i = 0; i < p.layers.size(); ++i)
      for (const curve_kind kind : monopile_kinds)
        for (std::size_t d = 0; d < p.layers[i].of(kind).size(); ++d) {
          if (out.empty()) out = "profile,layer,diameter,family,point,displacement,force\r\n";
          const curve& c = p.layers[i].of(kind)[d];
          if (!all_points && is_absent(c)) continue;
          const auto [from, to] =
              all_points ? std::pair(std::size_t{0}, c.size()) : points_before_filler(c, true);
          for (std::size_t n = from; n < to; ++n)
            add_row(out, {std::to_string(p.number), std::to_string(i + 1), number_text(p.diameters[d]),
                          family_name(kind), std::to_string(n + 1), number_text(c[n].displacement),
                          number_text(c[n].stress)});
        }
  return out;
}

std::string capacity_table(const interface_file& file, const deck_beside& deck) {
  std::string out =
      "profile,diameter,level,skin_compression,skin_tension,tip,capacity_compression,capacity_tension\r\n";
  for (std::size_t i = 0; i < file.profiles.size(); ++i)
    for (const axial_capacity& pile : axial_capacities(file.profiles[i], deck.local_scour(i)))
      for (const capacity_row& row : pile.rows)
        add_row(out, {std::to_string(file.profiles[i].number), number_text(pile.diameter),
                      number_text(row.level), optional_field(row.skin_compression),
                      optional_field(row.skin_tension), optional_field(row.tip),
                      optional_field(row.capacity_compression), optional_field(row.capacity_tension)});
  return out;
}

/// Columns that are numbers without a unit, or texts, are left out.
std::string units_table(const units& u, bool monopile) {
  struct column {
    const char* file;
    const char* names;
    std::string unit;
  };
  const std::string stress = plain_stress(u), force_per_length = u.force + "/" + u.length;
  const std::string moment = u.force + " times the length unit of the deck";
  std::vector<column> columns = {
      {"layers.csv", "zbotm zlay depth", u.length},
      {"layers.csv", "gameff", u.force + "/" + u.length + "3"},
      {"layers.csv", "phir", "degrees"},
      {"layers.csv", "sured sigzres dsigz e g", stress},
      {"curves.csv", "zlay diameter displacement", u.length},
      {"curves.csv", "stress", stress},
      {"curves.csv", "force_per_length", force_per_length},
      {"capacity.csv", "diameter level", u.length},
      {"capacity.csv", "skin_compression skin_tension tip capacity_compression capacity_tension", u.force}};
  if (monopile) {
    columns.push_back({"monopile.csv", "diameter", u.length});
    columns.push_back(
        {"monopile.csv", "displacement", "bsy: " + u.length + "; mtheta and bmtheta: as given"});
    columns.push_back({"monopile.csv", "force", "bsy: " + u.force + "; mtheta and bmtheta: " + moment});
  }
  std::string out = "file,column,unit\r\n";
  for (const column& c : columns)
    for (std::string_view names = c.names; !names.empty();) {
      const std::string_view name = names.substr(0, names.find(' '));
      add_row(out, {c.file, name, c.unit});
      names.remove_prefix(std::min(names.size(), name.size() + 1));
    }
  return out;
}

}  // namespace

std::string calculated_text(double value) {
  return std::isfinite(value) ? rounded_text(value, file_digits) : std::string();
}

std::vector<csv_file> csv_files(const interface_file& file, const deck_beside& deck,
                                const table_choice& choice) {
  std::vector<csv_file> out = {{"layers.csv", layers_table(file)},
                               {"curves.csv", curves_table(file, choice.all_points)},
                               {"capacity.csv", capacity_table(file, deck)}};
  const std::string monopile = monopile_table(file, choice.all_points);
  if (!monopile.empty()) out.push_back({"monopile.csv", monopile});
  if (choice.u.named()) out.push_back({"units.csv", units_table(choice.u, !monopile.empty())});
  return out;
}

}  // namespace tervak::report
