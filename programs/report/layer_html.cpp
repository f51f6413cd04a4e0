#include "report/layer_html.hpp"

#include <algorithm>

#include "report/curve_view.hpp"
#include "report/text.hpp"

namespace tervak::report {
namespace {

constexpr std::size_t diameters_a_table = 3;

std::string with_unit(double value, const std::string& unit, bool named) {
  return number_text(value) + (named ? " " + unit : "");
}

std::string mark_cell(const std::vector<mark>& marks, std::size_t point) {
  for (const auto& [at, letters] : letters_of(marks))
    if (at == point) return letters;
  return "";
}

/// The points of up to three diameters beside one another.
std::string curve_table(const profile& p, const layer& l, curve_kind kind, const curve_view& view,
                        std::size_t from) {
  const kind_words words = words_of(kind);
  const std::vector<curve>& curves = l.of(kind);
  const std::size_t to = std::min(from + diameters_a_table, curves.size());
  std::string head, sub, body;
  std::size_t rows = 0;
  for (std::size_t d = from; d < to; ++d) {
    head += "<th colspan=\"3\">D = " + number_text(p.diameters[d]) + "</th>";
    sub += join({"<th>", words.displacement_symbol, "</th><th>", words.stress_symbol, "</th><th></th>"});
    rows = std::max(rows, curves[d].size());
  }
  for (std::size_t i = 0; i < rows; ++i) {
    body += "<tr><th>" + std::to_string(i + 1) + "</th>";
    for (std::size_t d = from; d < to; ++d) {
      if (i >= curves[d].size()) {
        body += "<td></td><td></td><td></td>";
        continue;
      }
      body += "<td>" + number_text(curves[d][i].displacement) + "</td><td>" +
              number_text(curves[d][i].stress) + "</td><td class=\"m\">" + mark_cell(view.marks[d], i) +
              "</td>";
    }
    body += "</tr>";
  }
  return "<table class=\"points\"><thead><tr><th></th>" + head + "</tr><tr><th>pt</th>" + sub +
         "</tr></thead><tbody>" + body + "</tbody></table>";
}

std::string kind_html(const profile& p, const layer& l, curve_kind kind, std::size_t number, const units& u) {
  const curve_view view = view_curves(p, l, kind, u);
  std::string tables, marks;
  for (std::size_t d = 0; d < p.diameters.size(); d += diameters_a_table)
    tables += curve_table(p, l, kind, view, d);
  for (const std::string& text : view.mark_texts) marks += "<li>" + escape_html(text) + "</li>";
  return "<div class=\"kind\" data-kind=\"" + std::to_string(number) + "\"><h4>" + words_of(kind).name +
         "</h4><div class=\"pair\"><figure><p class=\"legend\">" + legend_html(p, u) + "</p>" +
         svg(curve_plot(p, l, kind, view)) + "<p class=\"readout\"></p><figcaption>" +
         escape_html(view.note) + "</figcaption><ul class=\"marks\">" + marks +
         "</ul></figure><div class=\"tables\">" + tables + "</div></div></div>";
}

}  // namespace

const char* soil_text(const layer& l) { return l.PHIR > 1e-10 ? "sand" : "clay"; }

std::string layer_summary(const layer& l, const units& u) {
  std::string out = "Z level " + with_unit(l.ZLAY, u.length, u.named()) + ", bottom at " +
                    with_unit(l.ZBOTM, u.length, u.named()) + "; " + soil_text(l) + ", ";
  out += l.PHIR > 1e-10 ? "friction angle " + number_text(l.PHIR) + "°"
                        : "undrained strength " + with_unit(l.SURED, u.of_stress(), u.named());
  out += "; effective stress " + with_unit(l.SIGZRES, u.of_stress(), u.named()) + "; P-Y " +
         method_text(curve_kind::py, l.py_code) + ", T-Z " + method_text(curve_kind::tz, l.tz_code) +
         ", Q-Z " + method_text(curve_kind::qz, l.qz_code) + ".";
  if (l.above_scour()) out += " This layer lies at or above the scour level.";
  if (!u.named()) out += " Numbers in run units.";
  return out;
}

std::string legend_html(const profile& p, const units& u) {
  std::string out;
  for (std::size_t d = 0; d < p.diameters.size(); ++d)
    out += "<span>" + style_sample(d) + "D = " + escape_html(with_unit(p.diameters[d], u.length, u.named())) +
           "</span> ";
  return out;
}

std::string layer_html(const profile& p, std::size_t index, const units& u) {
  const layer& l = p.layers[index];
  std::string out = "<h3>Layer " + std::to_string(index + 1) + " of " + std::to_string(p.layers.size()) +
                    "</h3><p class=\"summary\">" + escape_html(layer_summary(l, u)) + "</p>";
  std::size_t number = 0;
  for (const curve_kind kind : kinds_of(p)) out += kind_html(p, l, kind, number++, u);
  return out;
}

std::size_t first_shown(const profile& p) {
  const auto live =
      std::find_if(p.layers.begin(), p.layers.end(), [](const layer& l) { return !l.above_scour(); });
  return live == p.layers.end() ? 0 : static_cast<std::size_t>(live - p.layers.begin());
}

}  // namespace tervak::report
