#include "report/curve_view.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "report/method_label.hpp"
#include "report/text.hpp"

namespace tervak::report {
namespace {

bool is_rotation(curve_kind kind) { return kind == curve_kind::mtheta || kind == curve_kind::bmtheta; }
bool is_monopile(curve_kind kind) { return is_rotation(kind) || kind == curve_kind::bsy; }

std::string stress_unit(curve_kind kind, const units& u) {
  if (!is_monopile(kind)) return u.of_stress();
  if (kind == curve_kind::bsy) return u.of_force();
  // Moments are scaled by the force alone on their way into the file.
  return u.named() ? u.force + " × length unit of the deck" : u.of_force();
}

/// The drawn range: the shapes of all diameters and a tenth more, and never a side shorter than a tenth of
/// the other.
std::pair<double, double> shape_range(const profile& p, const std::vector<curve>& curves, bool alike) {
  double low = 0.0, high = 0.0;
  for (const curve& c : curves) {
    high = std::max(high, shape_end(c, 1));
    low = std::min(low, -shape_end(c, -1));
  }
  if (low == 0.0 && high == 0.0) high = 0.1 * p.diameters.back(), low = -high;
  return {alike ? 0.0 : std::min(1.1 * low, -0.1 * high), std::max(1.1 * high, -0.1 * low)};
}

std::pair<double, double> full_range(const std::vector<curve>& curves, bool alike) {
  double low = 0.0, high = 0.0;
  for (const curve& c : curves)
    for (const point& q : c) {
      low = std::min(low, q.displacement);
      high = std::max(high, q.displacement);
    }
  if (alike) low = 0.0;
  const double room = 0.03 * (high - low);
  return {alike ? 0.0 : low - room, high + room};
}

bool sides_alike(const curve& c) {
  for (std::size_t i = 0, j = c.size(); i < c.size(); ++i)
    if (const point& a = c[i], &b = c[--j]; a.stress != -b.stress || a.displacement != -b.displacement)
      return false;
  return true;
}

axis stress_axis(const std::vector<curve>& curves, double left, double right, std::string title) {
  double low = 0.0, high = 0.0;
  for (const curve& c : curves)
    for (const point& q : c)
      if (q.displacement >= left && q.displacement <= right) {
        low = std::min(low, q.stress);
        high = std::max(high, q.stress);
      }
  const double room = 0.08 * (high - low);
  return make_axis(low - room, high + room, std::move(title));
}

void compare_neighbours(const profile& p, const layer& l, curve_kind kind,
                        std::vector<std::vector<mark>>& out) {
  constexpr double limit = 3.0;
  const auto index = static_cast<std::size_t>(&l - p.layers.data());
  if (index == 0) return;
  const layer& above = p.layers[index - 1];
  if (above.above_scour() || soil_text(above) != soil_text(l) || above.code(kind) != l.code(kind)) return;
  for (std::size_t d = 0; d < out.size(); ++d) {
    const double here = peak_stress(l.of(kind)[d], 1), there = peak_stress(above.of(kind)[d], 1);
    const double low = std::min(here, there), high = std::max(here, there);
    if (low > 0.0 && high > limit * low) out[d].push_back({mark_kind::neighbour, 1, 0, 0, high / low});
  }
}

}  // namespace

kind_words words_of(curve_kind kind) {
  switch (kind) {
    case curve_kind::py:
      return {"P-Y", "stress p", "displacement y", "positive", "negative", "p", "y"};
    case curve_kind::tz:
      return {"T-Z", "skin friction t", "displacement z", "compression", "tension", "t", "z"};
    case curve_kind::qz:
      return {"Q-Z", "tip stress q", "displacement z", "compression", "tension", "q", "z"};
    case curve_kind::mtheta:
      return {"M-theta", "distributed moment", "rotation", "positive", "negative", "moment", "rotation"};
    case curve_kind::bsy:
      return {"BS-Y", "base shear", "displacement y", "positive", "negative", "shear", "y"};
    case curve_kind::bmtheta:
      break;
  }
  return {"BM-theta", "base moment", "rotation", "positive", "negative", "moment", "rotation"};
}

std::string method_text(curve_kind kind, int code) {
  const std::string label = method_label(kind, code);
  return std::to_string(code) + (label[0] == '?' ? "" : " (" + label + ")");
}

std::vector<curve_kind> kinds_of(const profile& p) {
  std::vector<curve_kind> kinds;
  for (const curve_kind kind : curve_kinds)
    if (!p.layers.front().of(kind).empty()) kinds.push_back(kind);
  return kinds;
}

const char* soil_text(const layer& l) { return l.is_sand() ? "sand" : "clay"; }

bool as_the_method_makes_it(mark_kind mark) { return mark == mark_kind::softening; }

mark_words words_of(mark_kind kind) {
  switch (kind) {
    case mark_kind::softening:
      return {"S", "softening",
              "going outward the stress falls by more than 0.1 % of the peak and stays above zero"};
    case mark_kind::fall:
      return {"F", "fall to zero", "going outward the stress falls to zero or beyond"};
    case mark_kind::second_peak:
      return {"P", "second peak", "the stress falls and rises again, both by more than 0.1 % of the peak"};
    case mark_kind::vertical:
      return {"V", "near-vertical piece", "5 % of the peak or more over at most a millionth of the diameter"};
    case mark_kind::zero:
      return {"0", "zero curve", "no resistance below the scour level"};
    case mark_kind::neighbour:
      break;
  }
  return {"N", "jump to the layer above", "same soil and code, peaks that differ by more than three times"};
}

std::vector<std::pair<std::size_t, std::string>> letters_of(const std::vector<mark>& marks) {
  std::vector<std::pair<std::size_t, std::string>> out;
  for (const mark& m : marks) {
    if (m.kind == mark_kind::zero || m.kind == mark_kind::neighbour) continue;
    const auto there = std::find_if(out.begin(), out.end(), [&](const auto& o) { return o.first == m.to; });
    if (there == out.end())
      out.emplace_back(m.to, words_of(m.kind).letter);
    else
      there->second += words_of(m.kind).letter;
  }
  return out;
}

std::string percent(double share) {
  std::array<char, 40> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), 100.0 * share,
                                 std::chars_format::general, 3);
  return std::string(digits.data(), end.ptr) + " %";
}

std::vector<std::vector<mark>> marks_of(const profile& p, const layer& l, curve_kind kind) {
  const std::vector<curve>& curves = l.of(kind);
  std::vector<std::vector<mark>> out(curves.size());
  if (l.above_scour()) return out;
  for (std::size_t d = 0; d < curves.size(); ++d) {
    out[d] = find_marks(curves[d], is_rotation(kind) ? 0.0 : p.diameters[d]);
    if (is_monopile(kind)) std::erase_if(out[d], [](const mark& m) { return m.kind == mark_kind::zero; });
  }
  if (!is_monopile(kind)) compare_neighbours(p, l, kind, out);
  return out;
}

curve_view view_curves(const profile& p, const layer& l, curve_kind kind, const units& u) {
  const std::vector<curve>& curves = l.of(kind);
  const kind_words words = words_of(kind);
  const std::string length = is_rotation(kind) ? "as given" : u.of_length();
  const std::string across = std::string(words.displacement) + " [" + length + "]";
  const std::string up = std::string(words.stress) + " [" + stress_unit(kind, u) + "]";
  curve_view out;
  out.alike = std::all_of(curves.begin(), curves.end(), sides_alike);
  const auto [left, right] = shape_range(p, curves, out.alike);
  out.x = make_axis(left, right, across, curve_box.across());
  out.y = stress_axis(curves, left, right, up);
  const auto [low, high] = full_range(curves, out.alike);
  out.full_x = make_axis(low, high, across, curve_box.across());
  out.full_y = stress_axis(curves, low, high, up);
  out.marks = marks_of(p, l, kind);
  return out;
}

}  // namespace tervak::report
