#include "report/depth_plots.hpp"

#include <algorithm>
#include <functional>

#include "report/curve_view.hpp"
#include "report/svg_plot.hpp"
#include "report/text.hpp"

namespace tervak::report {
namespace {

using value_of = std::function<double(const layer&)>;

/// One quantity over the level. Where `gaps` is set, a zero is a layer without the quantity and breaks the
/// line.
struct depth_line {
  std::size_t style;
  value_of value;
  bool gaps = false;
};

axis level_axis(const profile& p, const units& u) {
  double low = p.sea_floor, high = p.layers.back().ZBOTM;
  for (const layer& l : p.layers) {
    low = std::min(low, l.ZLAY);
    high = std::max({high, l.ZBOTM, l.ZLAY});
  }
  axis a = make_axis(low - 0.05 * (high - low), high, "Z level, downward [" + u.of_length() + "]");
  a.reversed = true;
  return a;
}

std::vector<plot_band> ground(const profile& p) {
  std::vector<plot_band> bands = {{p.sea_floor, p.sea_floor, "sea floor"}};
  double bottom = p.sea_floor;
  for (const layer& l : p.layers)
    if (l.above_scour()) bottom = std::max(bottom, l.ZBOTM);
  if (bottom > p.sea_floor) bands.push_back({p.sea_floor, bottom, ""});
  return bands;
}

std::string depth_plot(const profile& p, const units& u, const std::string& title, const std::string& x_title,
                       const std::vector<depth_line>& lines, const std::string& legend) {
  double low = 0.0, high = 0.0;
  for (const depth_line& line : lines)
    for (const layer& l : p.layers) {
      low = std::min(low, line.value(l));
      high = std::max(high, line.value(l));
    }
  if (low == 0.0 && high == 0.0) return "";
  const double room = 0.05 * (high - low);
  plot drawing{.title = title + " over the level",
               .box = depth_box,
               .x_on_top = true,
               .x = make_axis(low - room, high + room, x_title, depth_box.across()),
               .y = level_axis(p, u),
               .bands = ground(p)};
  for (const depth_line& line : lines) {
    plot_line run{line.style, {}, p.layers.size() / 30 + 1};
    for (const layer& l : p.layers) {
      const bool gap = line.gaps && line.value(l) == 0.0;
      if (!gap) run.points.emplace_back(line.value(l), l.ZLAY);
      if ((gap || &l == &p.layers.back()) && !run.points.empty()) {
        drawing.lines.push_back(run);
        run.points.clear();
      }
    }
  }
  return "<figure class=\"depth\"><h4>" + title + "</h4>" + svg(drawing) + "<p class=\"legend\">" + legend +
         (drawing.bands.size() > 1 ? "<span>shaded: at or above the scour level</span>" : "") +
         "</p></figure>";
}

std::string peak_plot(const profile& p, const units& u, curve_kind kind) {
  std::vector<depth_line> lines;
  std::string legend;
  for (std::size_t d = 0; d < p.diameters.size(); ++d) {
    legend += "<span>" + style_sample(d) + "D = " + number_text(p.diameters[d]) + "</span> ";
    lines.push_back({d, [kind, d](const layer& l) { return peak_stress(l.of(kind)[d], 1); }});
    if (kind != curve_kind::py)
      lines.push_back({d, [kind, d](const layer& l) { return peak_stress(l.of(kind)[d], -1); }, true});
  }
  const kind_words words = words_of(kind);
  const std::string signs = kind == curve_kind::py ? "" : ", compression positive";
  return depth_plot(p, u, std::string("Peak ") + words.name + " resistance",
                    std::string(words.stress) + signs + " [" + u.of_stress() + "]", lines, legend);
}

std::string sample(std::size_t style, const std::string& text) {
  return "<span>" + style_sample(style) + text + "</span> ";
}

}  // namespace

double peak_stress(const curve& c, int side) {
  double peak = c.empty() ? 0.0 : c.front().stress;
  for (const point& q : c) peak = side > 0 ? std::max(peak, q.stress) : std::min(peak, q.stress);
  return peak;
}

std::string depth_plots(const profile& p, const units& u) {
  const std::string stress = " [" + u.of_stress() + "]";
  std::vector<depth_line> stresses = {{0, [](const layer& l) { return l.SIGZRES; }}};
  std::string stress_legend = sample(0, "effective stress");
  if (std::any_of(p.layers.begin(), p.layers.end(), [](const layer& l) { return l.DSIGZ != 0.0; })) {
    stresses.push_back({1, [](const layer& l) { return l.DSIGZ; }});
    stress_legend += sample(1, "of it from surface loads");
  }
  return "<div class=\"depths\">" +
         depth_plot(p, u, "Effective vertical stress", "stress" + stress, stresses, stress_legend) +
         depth_plot(p, u, "Undrained shear strength", "strength" + stress,
                    {{0, [](const layer& l) { return l.SURED; }, true}}, sample(0, "clay layers")) +
         depth_plot(p, u, "Friction angle", "angle [°]", {{0, [](const layer& l) { return l.PHIR; }, true}},
                    sample(0, "sand layers")) +
         depth_plot(p, u, "Soil modulus", "modulus" + stress,
                    {{0, [](const layer& l) { return l.E; }}, {1, [](const layer& l) { return l.G; }}},
                    sample(0, "Young’s modulus E") + sample(1, "shear modulus G")) +
         peak_plot(p, u, curve_kind::py) + peak_plot(p, u, curve_kind::tz) + peak_plot(p, u, curve_kind::qz) +
         "</div>";
}

std::string peak_table(const profile& p) {
  struct column {
    const char* title;
    curve_kind kind;
    int side;
  };
  const std::vector<column> columns = {{"P-Y", curve_kind::py, 1},
                                       {"T-Z compression", curve_kind::tz, 1},
                                       {"T-Z tension", curve_kind::tz, -1},
                                       {"Q-Z compression", curve_kind::qz, 1},
                                       {"Q-Z tension", curve_kind::qz, -1}};
  std::string out;
  // As many diameters a table as fit a page across.
  for (std::size_t from = 0; from < p.diameters.size(); from += 3) {
    const std::size_t to = std::min(from + 3, p.diameters.size());
    std::string head, sub, body;
    for (const column& c : columns) {
      head += "<th colspan=\"" + std::to_string(to - from) + "\">" + c.title + "</th>";
      for (std::size_t d = from; d < to; ++d) sub += "<th>D = " + number_text(p.diameters[d]) + "</th>";
    }
    for (std::size_t i = 0; i < p.layers.size(); ++i) {
      body += "<tr><th>" + std::to_string(i + 1) + "</th><td>" + number_text(p.layers[i].ZLAY) + "</td>";
      for (const column& c : columns)
        for (std::size_t d = from; d < to; ++d)
          body += "<td>" + number_text(peak_stress(p.layers[i].of(c.kind)[d], c.side)) + "</td>";
      body += "</tr>";
    }
    out += "<table class=\"wide\"><thead><tr><th></th><th></th>" + head +
           "</tr><tr><th>layer</th><th>ZLAY</th>" + sub + "</tr></thead><tbody>" + body + "</tbody></table>";
  }
  return out;
}

}  // namespace tervak::report
