#include "report/page.hpp"

#include "report/depth_plots.hpp"
#include "report/layer_html.hpp"
#include "report/page_data.hpp"
#include "report/profile_tables.hpp"
#include "report/svg_plot.hpp"
#include "report/text.hpp"

namespace tervak::report {
namespace {

std::string layer_list(const profile& p) {
  std::string items;
  for (std::size_t i = 0; i < p.layers.size(); ++i) {
    const layer& l = p.layers[i];
    const std::string number = std::to_string(i + 1);
    items += "<li><a href=\"#p" + std::to_string(p.number) + "-l" + number + "\"" +
             (i == first_shown(p) ? " aria-current=\"true\"" : "") + "><span>" + number + "</span><span>" +
             number_text(l.ZLAY) + "</span><span>" + soil_text(l) + "</span><b>" +
             (l.above_scour() ? "scour" : layer_mark_letters(p, l)) + "</b></a></li>";
  }
  return "<nav class=\"layers\"><p>Layer, Z level, soil, marks</p><ol>" + items + "</ol></nav>";
}

std::string profile_html(const profile& p, const units& u) {
  const std::string id = join({"p", std::to_string(p.number)});
  return "<section id=\"" + id + "\"><h2>Profile " + std::to_string(p.number) + ": " + escape_html(p.name) +
         "</h2><p class=\"label\">" + escape_html(p.label) + "</p>" + general_table(p, u) +
         "<h3>Marked curves</h3>" + mark_table(p) + "<h3>Layers</h3>" + layer_table(p, u) +
         "<h3>Over the level</h3>" + depth_plots(p, u) + "<h3>Peak resistance</h3>" + peak_table(p) +
         "<div class=\"curves\" id=\"" + id + "-curves\">" + layer_list(p) + "<div class=\"layer\">" +
         layer_html(p, first_shown(p), u) + "</div></div></section>\n";
}

std::string units_text(const units& u) {
  if (!u.named())
    return "The file carries no units: numbers stand in the units of the run, angles of friction in degrees.";
  return "Units as named when this page was made: " + escape_html(u.force) + " and " + escape_html(u.length) +
         "; angles of friction in degrees.";
}

}  // namespace

std::string page(const interface_file& file, const std::string& file_name, const units& u) {
  std::string date, profiles, contents;
  for (const std::string& line : file.date_lines) date += escape_html(line) + "\n";
  for (const profile& p : file.profiles) {
    profiles += profile_html(p, u);
    const std::string number = std::to_string(p.number);
    contents +=
        "<li><a href=\"#p" + number + "\">Profile " + number + ": " + escape_html(p.name) + "</a></li>";
  }
  return "<!DOCTYPE html>\n<html lang=\"en\"><head><meta charset=\"utf-8\"><meta name=\"viewport\" "
         "content=\"width=device-width\"><title>Soil curves of " +
         escape_html(file_name) + "</title><link rel=\"expect\" href=\"#end\" blocking=\"render\"><style>" +
         std::string(plot_style) + std::string(page_style) +
         "</style></head>\n<body><header><h1>Soil curves of " + escape_html(file_name) + "</h1><pre>" + date +
         "</pre><p>" + units_text(u) +
         " P-Y stress is the lateral resistance per unit length divided by the diameter, T-Z stress the skin friction, "
         "Q-Z stress the tip resistance; compression is positive. By default a pile tip takes no tension.</p>"
         "<p>Marks: <b>S</b> softening, the stress falls by more than 0.1 % of the peak going outward; <b>V</b> "
         "near-vertical, 5 % of the peak or more over at most a millionth of the diameter; <b>0</b> zero curve. "
         "Layers at or above the scour level are not marked.</p>" +
         (file.profiles.size() > 1 ? "<ul class=\"contents\">" + contents + "</ul>" : "") +
         "<noscript><p>Without its script this page shows the curves of one layer of each profile.</p></noscript>"
         "</header>\n" +
         profiles + "<script type=\"application/json\" id=\"rif-data\">" + page_data(file, u) +
         "</script>\n<script>" + std::string(page_script) + "</script><p id=\"end\"></p></body></html>\n";
}

}  // namespace tervak::report
