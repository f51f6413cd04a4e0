#include "report/depth_data.hpp"

#include <algorithm>
#include <cmath>
#include <functional>

#include "report/curve_view.hpp"
#include "report/page_data.hpp"
#include "report/text.hpp"

namespace tervak::report {
namespace {

using values = std::vector<std::optional<double>>;

struct depth_line {
  std::string name;
  int diameter = -1;
  values by_layer;
};

struct depth_plot {
  std::string title;
  std::string x;
  std::vector<depth_line> lines;
};

/// The part of the profile from the sea floor to a level.
struct window {
  std::string name;
  double bottom;
};

/// The whole, then round depths down to a sixtieth of it.
std::vector<window> windows_of(const profile& p, const units& u) {
  double bottom = p.layers.front().ZBOTM;
  for (const layer& l : p.layers) bottom = std::max(bottom, l.ZBOTM);
  std::vector<window> out = {{"all depths", bottom}};
  const double whole = bottom - p.sea_floor;
  if (!(whole > 0.0) || !std::isfinite(whole)) return out;
  double decade = decade_of(whole);
  while (decade >= whole / 1000.0) {
    for (const double part : {5.0, 2.0, 1.0})
      if (const double depth = part * decade; depth < 0.9 * whole && depth >= whole / 60.0)
        out.push_back({join({"the upper ", rounded_text(depth, 3), u.named() ? " " + u.length : ""}),
                       p.sea_floor + depth});
    decade /= 10.0;
  }
  return out;
}

values of_layers(const profile& p, const std::function<std::optional<double>(const layer&)>& value) {
  values out;
  for (const layer& l : p.layers) out.push_back(value(l));
  return out;
}

std::optional<double> if_any(double value) { return value == 0.0 ? std::nullopt : std::optional(value); }

depth_plot peak_plot(const profile& p, curve_kind kind, const units& u) {
  const kind_words words = words_of(kind);
  depth_plot out{
      std::string("Peak ") + words.name,
      join({words.stress, kind == curve_kind::py ? "" : ", compression positive", " [", u.of_stress(), "]"}),
      {}};
  for (const int side : {1, -1})
    for (std::size_t d = 0; d < p.diameters.size(); ++d)
      if (side > 0 || kind != curve_kind::py)
        out.lines.push_back(
            {side > 0 ? "" : words.negative, static_cast<int>(d), of_layers(p, [&](const layer& l) {
               const double peak = peak_stress(l.of(kind)[d], side);
               return side > 0 ? std::optional(peak) : if_any(peak);
             })});
  return out;
}

depth_plot capacity_plot(const std::vector<axial_capacity>& capacities, bool compression, const units& u) {
  depth_plot out{compression ? "Axial capacity in compression" : "Axial capacity in tension",
                 "force [" + u.of_force() + "]",
                 {}};
  for (std::size_t d = 0; d < capacities.size(); ++d) {
    values v;
    for (const capacity_row& row : capacities[d].rows)
      v.push_back(compression ? row.capacity_compression : row.capacity_tension);
    out.lines.push_back({"", static_cast<int>(d), std::move(v)});
  }
  return out;
}

std::vector<depth_plot> plots_of(const profile& p, const std::vector<axial_capacity>& capacities,
                                 const units& u) {
  const std::string stress = " [" + u.of_stress() + "]";
  const auto all = [&](double layer::*value) {
    return of_layers(p, [=](const layer& l) { return std::optional(l.*value); });
  };
  const auto any = [&](double layer::*value) {
    return of_layers(p, [=](const layer& l) { return if_any(l.*value); });
  };
  std::vector<depth_plot> out = {
      capacity_plot(capacities, true, u),
      capacity_plot(capacities, false, u),
      peak_plot(p, curve_kind::py, u),
      peak_plot(p, curve_kind::tz, u),
      peak_plot(p, curve_kind::qz, u),
      {"Effective vertical stress", "stress" + stress, {{"effective stress", -1, all(&layer::SIGZRES)}}},
      {"Undrained shear strength", "strength" + stress, {{"clay layers", -1, any(&layer::SURED)}}},
      {"Friction angle", "angle [°]", {{"sand layers", -1, any(&layer::PHIR)}}},
      {"Soil modulus",
       "modulus" + stress,
       {{"Young’s modulus E", -1, all(&layer::E)}, {"shear modulus G", -1, all(&layer::G)}}}};
  if (std::any_of(p.layers.begin(), p.layers.end(), [](const layer& l) { return l.DSIGZ != 0.0; }))
    out[5].lines.push_back({"of it from surface loads", -1, all(&layer::DSIGZ)});
  return out;
}

std::string plot_json(const profile& p, const depth_plot& plot, const std::vector<window>& windows,
                      value_lists& lists) {
  std::string axes, lines;
  for (const window& w : windows) {
    double low = 0.0, high = 0.0;
    for (const depth_line& line : plot.lines)
      for (std::size_t i = 0; i < p.layers.size(); ++i) {
        if (i > 0 && p.layers[i - 1].ZBOTM >= w.bottom) break;
        low = std::min(low, line.by_layer[i].value_or(0.0));
        high = std::max(high, line.by_layer[i].value_or(0.0));
      }
    const double room = 0.05 * (high - low);
    axes += (axes.empty() ? "" : ",") +
            axis_json(make_axis(low < 0.0 ? low - room : 0.0, high + room, "", depth_box.across()), lists);
  }
  for (const depth_line& line : plot.lines)
    lines += join({lines.empty() ? "" : ",", "{\"name\":", json_text(line.name),
                   ",\"d\":", std::to_string(line.diameter),
                   ",\"v\":", std::to_string(lists.add(list_text(line.by_layer))), "}"});
  return join({"{\"title\":", json_text(plot.title), ",\"x\":", json_text(plot.x), ",\"axes\":[", axes,
               "],\"lines\":[", lines, "]}"});
}

}  // namespace

std::string depth_data(const profile& p, const std::vector<axial_capacity>& capacities, const units& u,
                       value_lists& lists) {
  const std::vector<window> windows = windows_of(p, u);
  std::string names, plots;
  for (const window& w : windows)
    names +=
        join({names.empty() ? "" : ",", "{\"name\":", json_text(w.name), ",\"y\":",
              axis_json(make_axis(p.sea_floor - 0.06 * (w.bottom - p.sea_floor), w.bottom, ""), lists), "}"});
  for (const depth_plot& plot : plots_of(p, capacities, u))
    plots += (plots.empty() ? "" : ",") + plot_json(p, plot, windows, lists);
  return join({"{\"windows\":[", names, "],\"plots\":[", plots, "]}"});
}

}  // namespace tervak::report
