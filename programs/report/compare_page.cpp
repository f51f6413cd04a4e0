#include "report/compare_page.hpp"

#include <algorithm>

#include "report/curve_marks.hpp"
#include "report/curve_view.hpp"
#include "report/svg_plot.hpp"
#include "report/text.hpp"

namespace tervak::report {
namespace {

constexpr std::size_t most_rows = 2000;
constexpr std::size_t most_layers = 100;
constexpr std::string_view compare_style = R"css(
body { font: 14px/1.45 "Liberation Sans", Arial, Helvetica, sans-serif; max-width: 1280px; margin: 0 auto; padding: 20px; }
h1 { font-size: 22px; }
h2 { font-size: 15px; margin: 24px 0 4px; }
figure { margin: 0; }
.table { overflow-x: auto; }
table { border-collapse: collapse; font-size: 12px; font-variant-numeric: tabular-nums; }
th, td { padding: 1px 8px; text-align: left; white-space: nowrap; border-bottom: 1px solid #ddd; }
td:first-child { text-align: right; }
.panels { display: grid; grid-template-columns: repeat(auto-fit, minmax(300px, 1fr)); gap: 12px; }
.sample { width: 44px; height: 10px; }
section { break-inside: avoid; }
)css";

std::string table_of(const comparison& c) {
  std::string rows;
  for (std::size_t i = 0; i < std::min(c.differences.size(), most_rows); ++i) {
    const difference& d = c.differences[i];
    rows += "<tr>";
    for (const std::string& text :
         {change_text(d), d.profile, d.layer, d.level, d.diameter, d.what, d.before, d.after})
      rows += "<td>" + escape_html(text) + "</td>";
    rows += "</tr>\n";
  }
  return "<div class=\"table\"><table><thead><tr><th>change</th><th>profile</th><th>layer</th><th>ZBOTM</th>"
         "<th>diameter</th><th>what</th><th>before</th><th>after</th></tr></thead><tbody>\n" +
         rows + "</tbody></table></div>\n";
}

std::string left_out(std::size_t all, std::size_t most, const std::string& what) {
  return all <= most ? ""
                     : "<p>" + std::to_string(all - most) + " more " + what + " are left out here.</p>\n";
}

/// Both curves, cut where their shapes end.
std::string panel(const curve& a, const curve& b, curve_kind kind, const curve_view& view) {
  double low = 0.0, high = 0.0, least = 0.0, most = 0.0;
  for (const curve* c : {&a, &b}) {
    high = std::max(high, 1.1 * shape_end(*c, 1));
    low = std::min(low, -1.1 * shape_end(*c, -1));
  }
  low = std::min(low, -0.1 * high);
  high = std::max(high, -0.1 * low);
  plot drawing{.title = std::string(words_of(kind).name) + " before and after"};
  for (const curve* c : {&a, &b}) {
    plot_line& line = drawing.lines.emplace_back();
    line.style = drawing.lines.size() - 1;
    for (const point& q : *c) line.points.emplace_back(q.displacement, q.stress);
    line.points = clip_to(line.points, low, high);
    for (const auto& [x, y] : line.points) {
      least = std::min(least, y);
      most = std::max(most, y);
    }
  }
  const double room = 0.08 * (most - least);
  drawing.x = make_axis(low, high, view.x.title, curve_box.across());
  drawing.y = make_axis(least - room, most + room, view.y.title);
  return "<figure><figcaption>" + std::string(words_of(kind).name) + "</figcaption>" + svg(drawing) +
         "</figure>\n";
}

std::string section(const interface_file& before, const interface_file& after, const changed_layer& at,
                    const units& u) {
  const profile& p = before.profiles[at.before_profile];
  const layer& a = p.layers[at.before_layer];
  const layer& b = after.profiles[at.after_profile].layers[at.after_layer];
  std::string panels;
  for (const curve_kind kind : curve_kinds)
    if (!a.of(kind).empty() && !b.of(kind).empty())
      panels += panel(a.of(kind)[at.before_diameter], b.of(kind)[at.after_diameter], kind,
                      view_curves(p, a, kind, u));
  return "<section><h2>" + escape_html(at.title) + "</h2><div class=\"panels\">" + panels +
         "</div></section>\n";
}

}  // namespace

std::string compare_page(const interface_file& before, const interface_file& after, const comparison& c,
                         const std::string& names, const units& u) {
  std::string sections;
  for (std::size_t i = 0; i < std::min(c.changed.size(), most_layers); ++i)
    sections += section(before, after, c.changed[i], u);
  const std::string title = "Comparison of " + escape_html(names);
  const std::string legend = c.changed.empty() ? ""
                                               : "<p>" + style_sample(0) + " before, " + style_sample(1) +
                                                     " after. The panels are cut where the shapes end.</p>\n";
  const std::string count =
      c.differences.empty() ? "Alike" : "Differences: " + std::to_string(c.differences.size());
  return "<!DOCTYPE html>\n<html lang=\"en\"><head><meta charset=\"utf-8\"><meta name=\"viewport\" "
         "content=\"width=device-width\"><title>" +
         title + "</title><style>" + std::string(plot_style) + std::string(compare_style) +
         "</style></head>\n<body><main><h1>" + title + "</h1><p>" + count + ", with a tolerance of " +
         number_text(c.tolerance) + " %. Compared: profiles " + std::to_string(c.profiles) + ", layers " +
         std::to_string(c.layers) + ", curves " + std::to_string(c.curves) + ".</p>\n" +
         (c.differences.empty() ? "" : table_of(c)) +
         left_out(c.differences.size(), most_rows, "differences") + legend + sections +
         left_out(c.changed.size(), most_layers, "pairs of layer and diameter with changes") +
         "</main></body></html>\n";
}

}  // namespace tervak::report
