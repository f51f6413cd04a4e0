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
std::pair<double, double> drawn_range(const profile& p, const std::vector<curve>& curves) {
  double low = 0.0, high = 0.0;
  for (const curve& c : curves) {
    high = std::max(high, shape_end(c, 1));
    low = std::min(low, -shape_end(c, -1));
  }
  if (low == 0.0 && high == 0.0) return {-0.1 * p.diameters.back(), 0.1 * p.diameters.back()};
  return {std::min(1.1 * low, -0.1 * high), std::max(1.1 * high, -0.1 * low)};
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

std::string cut_note(const std::vector<curve>& curves, double left, double right) {
  double far = 0.0;
  std::size_t beyond = 0;
  for (const curve& c : curves)
    for (const point& q : c)
      if (q.displacement < left || q.displacement > right) {
        far = std::max(far, std::abs(q.displacement));
        ++beyond;
      }
  if (beyond == 0) return "";
  return "Cut where the shapes end: " + std::to_string(beyond) + " points beyond, out to ±" +
         number_text(far) + ", stand in the table only.";
}

std::string zero_note(const profile& p, const std::vector<curve>& curves) {
  std::string which;
  for (std::size_t d = 0; d < curves.size(); ++d)
    if (std::all_of(curves[d].begin(), curves[d].end(), [](const point& q) { return q.stress == 0.0; }))
      which += (which.empty() ? "D = " : ", ") + number_text(p.diameters[d]);
  return which.empty() ? "" : "No resistance: " + which + ". ";
}

std::string mark_text(const kind_words& words, double diameter, const mark& m) {
  const std::string at = "D = " + number_text(diameter) + ": " + mark_name(m.kind);
  if (m.kind == mark_kind::zero) return at;
  return at + " on the " + (m.side > 0 ? words.positive : words.negative) + " side, point " +
         std::to_string(m.from + 1) + " to " + std::to_string(m.to + 1) + ", " +
         (m.kind == mark_kind::softening ? "a fall of " : "a step of ") + percent(m.share) + " of the peak";
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

const char* mark_name(mark_kind kind) {
  switch (kind) {
    case mark_kind::softening:
      return "softening";
    case mark_kind::vertical:
      return "near-vertical piece";
    case mark_kind::zero:
      break;
  }
  return "zero curve";
}

const char* mark_letter(mark_kind kind) {
  return kind == mark_kind::softening ? "S" : kind == mark_kind::vertical ? "V" : "0";
}

std::vector<std::pair<std::size_t, std::string>> letters_of(const std::vector<mark>& marks) {
  std::vector<std::pair<std::size_t, std::string>> out;
  for (const mark& m : marks) {
    if (m.kind == mark_kind::zero) continue;
    const auto there = std::find_if(out.begin(), out.end(), [&](const auto& o) { return o.first == m.to; });
    if (there == out.end())
      out.emplace_back(m.to, mark_letter(m.kind));
    else
      there->second += mark_letter(m.kind);
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
  return out;
}

curve_view view_curves(const profile& p, const layer& l, curve_kind kind, const units& u) {
  const std::vector<curve>& curves = l.of(kind);
  const kind_words words = words_of(kind);
  const auto [left, right] = drawn_range(p, curves);
  curve_view out;
  const std::string length = is_rotation(kind) ? "as given" : u.of_length();
  out.x = make_axis(left, right, std::string(words.displacement) + " [" + length + "]", curve_box.across());
  out.y = stress_axis(curves, left, right, std::string(words.stress) + " [" + stress_unit(kind, u) + "]");
  out.note = zero_note(p, curves) + cut_note(curves, left, right);
  out.marks = marks_of(p, l, kind);
  for (std::size_t d = 0; d < out.marks.size(); ++d)
    for (const mark& m : out.marks[d]) out.mark_texts.push_back(mark_text(words, p.diameters[d], m));
  return out;
}

}  // namespace tervak::report
