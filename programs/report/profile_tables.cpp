#include "report/profile_tables.hpp"

#include <algorithm>
#include <array>

#include "report/curve_view.hpp"
#include "report/layer_html.hpp"
#include "report/text.hpp"

namespace tervak::report {
namespace {

constexpr std::array<mark_kind, 3> mark_kinds = {mark_kind::softening, mark_kind::vertical, mark_kind::zero};

std::string row(const std::string& name, const std::string& value) {
  return "<tr><th>" + name + "</th><td>" + value + "</td></tr>";
}

std::string unit_of(const std::string& unit, const units& u) { return u.named() ? " [" + unit + "]" : ""; }

bool has(const std::vector<mark>& marks, mark_kind kind) {
  return std::any_of(marks.begin(), marks.end(), [&](const mark& m) { return m.kind == kind; });
}

/// The row of one kind of curve and mark, empty when none occurs.
std::string mark_row(const profile& p, curve_kind kind, mark_kind wanted) {
  std::vector<std::size_t> layers;
  std::size_t curves = 0, worst_layer = 0, worst_diameter = 0;
  double worst = 0.0;
  for (std::size_t i = 0; i < p.layers.size(); ++i) {
    const auto marks = marks_of(p, p.layers[i], kind);
    for (std::size_t d = 0; d < marks.size(); ++d) {
      if (!has(marks[d], wanted)) continue;
      ++curves;
      if (layers.empty() || layers.back() != i + 1) layers.push_back(i + 1);
      for (const mark& m : marks[d])
        if (m.kind == wanted && m.share > worst) {
          worst = m.share;
          worst_layer = i + 1;
          worst_diameter = d;
        }
    }
  }
  if (curves == 0) return "";
  return std::string("<tr><th>") + words_of(kind).name + "</th><td class=\"m\">" + mark_letter(wanted) +
         "</td><td>" + mark_name(wanted) + "</td><td>" + ranges_text(layers) + "</td><td>" +
         std::to_string(curves) + "</td><td>" +
         (wanted == mark_kind::zero ? ""
                                    : percent(worst) + " of the peak (layer " + std::to_string(worst_layer) +
                                          ", D = " + number_text(p.diameters[worst_diameter]) + ")") +
         "</td></tr>";
}

std::string displacement_table(const profile& p, const units& u) {
  if (p.displacements.empty()) return "";
  std::string body;
  for (const soil_displacement& s : p.displacements) {
    body += "<tr>";
    for (const double value : {s.level, s.x, s.y, s.z, s.hole_diameter})
      body += "<td>" + number_text(value) + "</td>";
    body += "</tr>";
  }
  const std::string unit = unit_of(u.of_length(), u);
  return "<h3>Given soil displacements and open hole</h3><table><thead><tr><th>Z level" + unit +
         "</th><th>x" + unit + "</th><th>y" + unit + "</th><th>z" + unit + "</th><th>hole diameter" + unit +
         "</th></tr></thead><tbody>" + body + "</tbody></table>";
}

}  // namespace

std::string general_table(const profile& p, const units& u) {
  std::string diameters;
  for (const double d : p.diameters) diameters += (diameters.empty() ? "" : ", ") + number_text(d);
  const std::string length = unit_of(u.of_length(), u);
  return "<table class=\"general\"><tbody>" + row("Layers", std::to_string(p.layers.size())) +
         row("Pile diameters" + length, diameters) +
         row("Sea floor, Z level" + length, number_text(p.sea_floor)) +
         row("General scour below the sea floor" + length, number_text(p.general_scour)) +
         row("ESOL0, modulus at the surface" + unit_of(u.of_stress(), u), number_text(p.ESOL0)) +
         row("ESOL1, its slope with depth" + unit_of(u.of_weight(), u), number_text(p.ESOL1)) +
         row("ESOL2", number_text(p.ESOL2)) + row("POSAVR, average Poisson’s ratio", number_text(p.POSAVR)) +
         "</tbody></table>" + displacement_table(p, u);
}

std::string mark_table(const profile& p) {
  std::string rows;
  for (const curve_kind kind : kinds_of(p))
    for (const mark_kind wanted : mark_kinds) rows += mark_row(p, kind, wanted);
  if (rows.empty()) return "<p>No curve is marked.</p>";
  return "<table class=\"marked\"><thead><tr><th>curve</th><th></th><th>mark</th><th>layers</th><th>curves</th><th>"
         "greatest fall or step</th></tr></thead><tbody>" +
         rows + "</tbody></table>";
}

std::string layer_mark_letters(const profile& p, const layer& l) {
  std::string letters;
  for (const mark_kind wanted : mark_kinds) {
    bool found = false;
    for (const curve_kind kind : kinds_of(p))
      for (const auto& marks : marks_of(p, l, kind)) found = found || has(marks, wanted);
    if (found) letters += std::string(letters.empty() ? "" : " ") + mark_letter(wanted);
  }
  return letters;
}

std::size_t count_marked(const interface_file& file, mark_kind kind) {
  std::size_t count = 0;
  for (const profile& p : file.profiles)
    for (const layer& l : p.layers)
      for (const curve_kind curves : kinds_of(p))
        for (const auto& marks : marks_of(p, l, curves)) count += has(marks, kind) ? 1U : 0U;
  return count;
}

std::string layer_table(const profile& p, const units& u) {
  struct column {
    const char* name;
    double layer::*value;
    std::string unit;
  };
  const std::vector<column> columns = {{"ZBOTM", &layer::ZBOTM, u.of_length()},
                                       {"ZLAY", &layer::ZLAY, u.of_length()},
                                       {"DEPTH", &layer::DEPTH, u.of_length()},
                                       {"GAMEFF", &layer::GAMEFF, u.of_weight()},
                                       {"PHIR", &layer::PHIR, "°"},
                                       {"SURED", &layer::SURED, u.of_stress()},
                                       {"SIGZRES", &layer::SIGZRES, u.of_stress()},
                                       {"DSIGZ", &layer::DSIGZ, u.of_stress()},
                                       {"V", &layer::V, "–"},
                                       {"E", &layer::E, u.of_stress()},
                                       {"G", &layer::G, u.of_stress()}};
  std::string names = "<th>layer</th><th>soil</th>", unit_row = "<th></th><th></th>", body;
  for (const column& c : columns) {
    names += std::string("<th>") + c.name + "</th>";
    unit_row += "<th>" + (u.named() || c.value == &layer::PHIR ? c.unit : "") + "</th>";
  }
  for (std::size_t i = 0; i < p.layers.size(); ++i) {
    const layer& l = p.layers[i];
    const std::string link = "#p" + std::to_string(p.number) + "-l" + std::to_string(i + 1);
    body += "<tr><th><a href=\"" + link + "\">" + std::to_string(i + 1) + "</a></th><td class=\"text\">" +
            soil_text(l) + "</td>";
    for (const column& c : columns) body += "<td>" + number_text(l.*c.value) + "</td>";
    for (const int code : {l.py_code, l.tz_code, l.qz_code}) body += "<td>" + std::to_string(code) + "</td>";
    body += "<td class=\"text\">" +
            (l.above_scour() ? "at or above scour level" : "<b>" + layer_mark_letters(p, l) + "</b>") +
            "</td></tr>";
  }
  return "<table class=\"wide\"><thead><tr>" + names +
         "<th>P-Y</th><th>T-Z</th><th>Q-Z</th><th class=\"text\">remark</th></tr><tr>" + unit_row +
         "<th>code</th><th>code</th><th>code</th><th></th></tr></thead><tbody>" + body + "</tbody></table>";
}

}  // namespace tervak::report
