#include "report/page_data.hpp"

#include <algorithm>

#include "report/curve_view.hpp"
#include "report/layer_html.hpp"
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

std::string range_and_ticks(const std::string& name, const axis& a) {
  return "\"" + name + "\":[" + number_text(a.low) + "," + number_text(a.high) + "],\"" + name +
         "t\":" + array_of(a.ticks, json_text);
}

std::string points(const curve& c) {
  return array_of(c,
                  [](const point& q) { return number_text(q.stress) + "," + number_text(q.displacement); });
}

std::string places(const std::vector<std::vector<mark>>& marks) {
  std::string out;
  for (std::size_t d = 0; d < marks.size(); ++d)
    for (const auto& [at, letters] : letters_of(marks[d]))
      out += (out.empty() ? "[" : ",[") + std::to_string(d) + "," + std::to_string(at) + "," +
             json_text(letters) + "]";
  return join({"[", out, "]"});
}

std::string kind_data(const profile& p, const layer& l, curve_kind kind, const units& u) {
  const curve_view view = view_curves(p, l, kind, u);
  return join({"{", range_and_ticks("x", view.x), ",", range_and_ticks("y", view.y),
               ",\"n\":", json_text(view.note), ",\"m\":", array_of(view.mark_texts, json_text),
               ",\"p\":", places(view.marks), ",\"c\":", array_of(l.of(kind), points), "}"});
}

std::string layer_data(const profile& p, const layer& l, const units& u) {
  const auto kind = [&](curve_kind k) { return kind_data(p, l, k, u); };
  return join({"{\"h\":", json_text(layer_summary(l, u)), ",\"k\":", array_of(kinds_of(p), kind), "}\n"});
}

std::string profile_data(const profile& p, const units& u) {
  const auto names = [&](curve_kind kind) {
    const curve_view view = view_curves(p, p.layers.front(), kind, u);
    const kind_words words = words_of(kind);
    return "{\"name\":" + json_text(words.name) + ",\"x\":" + json_text(view.x.title) +
           ",\"y\":" + json_text(view.y.title) + ",\"stress\":" + json_text(words.stress) +
           ",\"displacement\":" + json_text(words.displacement) + ",\"symbols\":[" +
           json_text(words.stress_symbol) + "," + json_text(words.displacement_symbol) + "]}";
  };
  return "{\"shown\":" + std::to_string(first_shown(p)) +
         ",\"diameters\":" + array_of(p.diameters, number_text) +
         ",\"kinds\":" + array_of(kinds_of(p), names) +
         ",\"layers\":" + array_of(p.layers, [&](const layer& l) { return layer_data(p, l, u); }) + "}";
}

}  // namespace

std::string page_data(const interface_file& file, const units& u) {
  std::size_t diameters = 0;
  for (const profile& p : file.profiles) diameters = std::max(diameters, p.diameters.size());
  std::string styles;
  for (std::size_t i = 0; i < diameters; ++i) {
    const line_style s = style_of(i);
    styles +=
        (i == 0 ? "[" : ",[") + json_text(s.dash) + "," + json_text(s.marker) + "," + json_text(s.fill) + "]";
  }
  const plot_box& b = curve_box;
  return "{\"box\":" +
         array_of(std::initializer_list<double>{b.width, b.height, b.left, b.right, b.top, b.bottom},
                  number_text) +
         ",\"styles\":[" + styles +
         "],\"profiles\":" + array_of(file.profiles, [&](const profile& p) { return profile_data(p, u); }) +
         "}";
}

}  // namespace tervak::report
