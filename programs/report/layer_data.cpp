#include "report/layer_data.hpp"

#include <algorithm>
#include <utility>

#include "report/curve_points.hpp"
#include "report/curve_view.hpp"
#include "report/page_data.hpp"
#include "report/text.hpp"

namespace tervak::report {
namespace {

/// First and last point that any of the curves needs.
std::pair<std::size_t, std::size_t> before_filler(const std::vector<curve>& curves, curve_kind kind) {
  const bool monopile = kind >= curve_kind::mtheta;
  std::size_t first = curves.empty() ? 0 : curves.front().size(), end = 1;
  for (const curve& c : curves) {
    const auto [low, high] = points_before_filler(c, monopile);
    first = std::min(first, low);
    end = std::max(end, high);
  }
  return {first, end - 1};
}

std::string marks_json(const curve_view& view) {
  std::string out;
  for (std::size_t d = 0; d < view.marks.size(); ++d)
    for (const mark& m : view.marks[d]) {
      if (view.alike && m.side < 0) continue;
      out += out.empty() ? "[" : ",[";
      for (const std::size_t n : {d, static_cast<std::size_t>(m.kind),
                                  as_the_method_makes_it(m.kind) ? std::size_t{0} : std::size_t{1}})
        out += std::to_string(n) + ",";
      out += std::to_string(m.side) + "," + std::to_string(m.from) + "," + std::to_string(m.to) + "," +
             rounded_text(m.share, 3) + "]";
    }
  return "[" + out + "]";
}

std::string kind_json(const profile& p, const layer& l, curve_kind kind, const units& u, value_lists& lists) {
  const curve_view view = view_curves(p, l, kind, u);
  const auto [first, last] = before_filler(l.of(kind), kind);
  std::string curves;
  for (const curve& c : l.of(kind))
    curves += join({curves.empty() ? "" : ",", std::to_string(lists.add(stress_text(c))), ",",
                    std::to_string(lists.add(displacement_text(c)))});
  return join({"{\"x\":", axis_json(view.x, lists), ",\"y\":", axis_json(view.y, lists),
               ",\"fx\":", axis_json(view.full_x, lists), ",\"fy\":", axis_json(view.full_y, lists),
               ",\"s\":", view.alike ? "1" : "0", ",\"f\":[", std::to_string(first), ",",
               std::to_string(last), "],\"m\":", marks_json(view), ",\"c\":[", curves, "]}"});
}

}  // namespace

std::vector<layer_column> layer_columns(const units& u) {
  const auto member = [](double layer::*value) { return [value](const layer& l) { return l.*value; }; };
  const auto code = [](int layer::*value) { return [value](const layer& l) { return double(l.*value); }; };
  const std::string length = u.of_length(), stress = u.of_stress();
  return {{"ZBOTM", length, member(&layer::ZBOTM), true},
          {"ZLAY", length, member(&layer::ZLAY), true},
          {"DEPTH", length, member(&layer::DEPTH), true},
          {"GAMEFF", u.of_weight(), member(&layer::GAMEFF)},
          {"PHIR", "°", member(&layer::PHIR), false, true},
          {"SURED", stress, member(&layer::SURED)},
          {"SIGZRES", stress, member(&layer::SIGZRES)},
          {"DSIGZ", stress, member(&layer::DSIGZ)},
          {"Poisson", "–", member(&layer::V), false, true},
          {"E", stress, member(&layer::E)},
          {"G", stress, member(&layer::G)},
          {"P-Y", "code", code(&layer::py_code), false, true},
          {"T-Z", "code", code(&layer::tz_code), false, true},
          {"Q-Z", "code", code(&layer::qz_code), false, true}};
}

std::vector<general_value> general_values(const profile& p, const units& u) {
  return {{"Layers", "", static_cast<double>(p.layers.size())},
          {"Sea floor, Z level", u.of_length(), p.sea_floor},
          {"General scour below the sea floor", u.of_length(), p.general_scour},
          {"ESOL0, modulus at the surface", u.of_stress(), p.ESOL0},
          {"ESOL1, its slope with depth", u.of_weight(), p.ESOL1},
          {"ESOL2", "", p.ESOL2},
          {"POSAVR, average Poisson’s ratio", "", p.POSAVR}};
}

std::size_t first_shown(const profile& p) {
  const auto live =
      std::find_if(p.layers.begin(), p.layers.end(), [](const layer& l) { return !l.above_scour(); });
  return live == p.layers.end() ? 0 : static_cast<std::size_t>(live - p.layers.begin());
}

std::string layer_data(const profile& p, const layer& l, const units& u, value_lists& lists) {
  return "[" + [&] {
    std::string out;
    for (const curve_kind kind : kinds_of(p))
      out += (out.empty() ? "" : ",") + kind_json(p, l, kind, u, lists);
    return out;
  }() + "]";
}

}  // namespace tervak::report
