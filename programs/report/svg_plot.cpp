#include "report/svg_plot.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>

#include "report/text.hpp"

namespace tervak::report {
namespace {

/// A coordinate of the drawing, to a tenth of a unit.
std::string px(double value) {
  std::array<char, 64> buffer{};
  const auto end =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed, 1);
  return end.ec == std::errc() && std::isfinite(value) ? std::string(buffer.data(), end.ptr) : "0.0";
}

double x_of(const plot& p, double x) {
  const double share = (x - p.x.low) / (p.x.high - p.x.low);
  return p.box.left + share * p.box.across();
}

double y_of(const plot& p, double y) {
  const double share = (y - p.y.low) / (p.y.high - p.y.low);
  return p.box.top + (1.0 - share) * (p.box.height - p.box.top - p.box.bottom);
}

std::string text_at(const std::string& css, double x, double y, const std::string& text) {
  return "<text class=\"" + css + "\" x=\"" + px(x) + "\" y=\"" + px(y) + "\">" + escape_html(text) +
         "</text>";
}

double tick(const std::string& label) { return std::strtod(label.c_str(), nullptr); }

std::string frame(const plot& p) {
  const double right = p.box.width - p.box.right, bottom = p.box.height - p.box.bottom;
  std::string path, zero, texts;
  for (const std::string& label : p.x.ticks) {
    const double x = x_of(p, tick(label));
    (tick(label) == 0.0 ? zero : path) += join({"M", px(x), " ", px(p.box.top), "V", px(bottom)});
    texts += text_at("tx", x, bottom + 14, label);
  }
  for (const std::string& label : p.y.ticks) {
    const double y = y_of(p, tick(label));
    (tick(label) == 0.0 ? zero : path) += join({"M", px(p.box.left), " ", px(y), "H", px(right)});
    texts += text_at("ty", p.box.left - 5, y + 3.5, label);
  }
  const double middle = 0.5 * (p.box.left + right), half = 0.5 * (p.box.top + bottom);
  return "<path class=\"grid\" d=\"" + path + "\"/><path class=\"zero\" d=\"" + zero +
         "\"/><path class=\"frame\" d=\"M" + px(p.box.left) + " " + px(p.box.top) + "H" + px(right) + "V" +
         px(bottom) + "H" + px(p.box.left) + "Z\"/>" + texts + text_at("tx", middle, bottom + 32, p.x.title) +
         "<text class=\"tx\" transform=\"translate(12 " + px(half) + ") rotate(-90)\">" +
         escape_html(p.y.title) + "</text>";
}

/// One path for all markers: an element each would cost the browser more than all the rest of the page.
std::string styled_paths(const line_style& s, const std::string& line, const std::string& markers) {
  return join({"<g stroke=\"", s.colour, "\"><path class=\"line\" stroke-dasharray=\"", s.dash, "\" d=\"",
               line, "\"/><path class=\"dot\" fill=\"", s.fill, "\" d=\"", markers, "\"/></g>"});
}

std::string line(const plot& p, const plot_line& l) {
  const line_style style = style_of(l.style);
  std::string path, markers;
  for (const auto& [x, y] : l.points)
    path += join({path.empty() ? "M" : "L", px(x_of(p, x)), " ", px(y_of(p, y))});
  for (const auto& [x, y] : l.points)
    if (x > p.x.low && x < p.x.high)
      markers += join({"M", px(x_of(p, x)), " ", px(y_of(p, y)), style.marker});
  return styled_paths(style, path, markers);
}

/// Round ticks, at most so many and one more.
std::vector<std::string> ticks_of(double low, double high, int most) {
  const double rough = (high - low) / most;
  const double decade = decade_of(rough);
  double step = 10.0 * decade;
  for (const double part : {5.0, 2.0, 1.0})
    if (part * decade >= rough) step = part * decade;
  std::vector<std::string> ticks;
  // Ten digits take out what the product adds behind the round value.
  const double first = std::ceil(low / step);
  for (int n = 0; n <= most && (first + n) * step <= high; ++n)
    ticks.push_back(rounded_text((first + n) * step, 10));
  return ticks;
}

/// Whether the labels leave room between them.
bool fits(const axis& a, double across) {
  if (a.ticks.size() < 2) return true;
  const double pitch = (tick(a.ticks[1]) - tick(a.ticks[0])) / (a.high - a.low) * across;
  return std::all_of(a.ticks.begin(), a.ticks.end(),
                     [&](const std::string& label) { return text_width(label) + 6.0 <= pitch; });
}

}  // namespace

double text_width(std::string_view text) {
  double width = 0.0;
  for (const char c : text) width += c == '.' || c == ' ' ? 3.1 : c == '-' ? 3.7 : 6.2;
  return width;
}

axis make_axis(double low, double high, std::string title, double across) {
  // Numbers of a foreign file, of which the difference would not be a number.
  constexpr double limit = 1e300;
  low = std::clamp(low, -limit, limit);
  high = std::clamp(high, -limit, limit);
  if (!(high - low > 1.0 / limit)) {
    const double half = std::max(1.0, std::abs(low) * 0.1);
    low -= half;
    high += half;
  }
  axis out{low, high, {}, std::move(title)};
  for (int most = 8; most >= 2; --most) {
    out.ticks = ticks_of(low, high, most);
    if (across == 0.0 || fits(out, across)) break;
  }
  return out;
}

line_style style_of(std::size_t index) {
  static constexpr std::array<const char*, 7> colours = {"#0072b2", "#c84600", "#007a5a", "#9c3f8c",
                                                         "#000000", "#8a6100", "#3d8bd0"};
  static constexpr std::array<const char*, 5> dashes = {"none", "7 3", "2 2", "9 3 2 3", "14 4"};
  // Circle, square, triangle, diamond, triangle on its tip, cross.
  static constexpr std::array<const char*, 6> markers = {
      "m-3 0a3 3 0 1 0 6 0a3 3 0 1 0-6 0z", "m-2.6-2.6h5.2v5.2h-5.2z", "m0-3.4l3.2 5.6h-6.4z",
      "m0-3.6l3.4 3.6l-3.4 3.6l-3.4-3.6z",  "m0 3.4l3.2-5.6h-6.4z",    "m-3-3l6 6m0-6l-6 6"};
  const char* const colour = colours[index % colours.size()];
  const std::size_t shape = index % (2 * markers.size() - 1);
  return {colour, dashes[index % dashes.size()], markers[shape % markers.size()],
          shape < markers.size() ? "#fff" : colour};
}

std::string style_paths(std::size_t index) {
  const line_style style = style_of(index);
  return styled_paths(style, "M1 5H43", "M22 5" + style.marker);
}

std::string style_sample(std::size_t index) {
  return "<svg class=\"sample\" viewBox=\"0 0 44 10\" aria-hidden=\"true\">" + style_paths(index) + "</svg>";
}

std::vector<std::pair<double, double>> clip_to(const std::vector<std::pair<double, double>>& points,
                                               double low, double high) {
  std::vector<std::pair<double, double>> out;
  for (std::size_t i = 0; i < points.size(); ++i) {
    const auto at = [&](double x) {
      const auto& [x0, y0] = points[i - 1];
      const auto& [x1, y1] = points[i];
      return std::pair(x, y0 + (y1 - y0) * (x - x0) / (x1 - x0));
    };
    const double x = points[i].first;
    if (i > 0 && points[i - 1].first < low && x > low) out.push_back(at(low));
    if (i > 0 && points[i - 1].first < high && x > high) out.push_back(at(high));
    if (x >= low && x <= high) out.push_back(points[i]);
  }
  return out;
}

std::string svg_content(const plot& p) {
  std::string out = frame(p);
  for (const plot_line& l : p.lines) out += line(p, l);
  for (const plot_note& n : p.notes) out += text_at("mk", x_of(p, n.x), y_of(p, n.y) - 7, n.text);
  return out;
}

std::string svg(const plot& p) {
  return "<svg class=\"plot\" viewBox=\"0 0 " + px(p.box.width) + " " + px(p.box.height) +
         "\" role=\"img\" aria-label=\"" + escape_html(p.title) + "\">" + svg_content(p) + "</svg>";
}

const std::string_view plot_style = R"css(
svg text { font: 11px "Liberation Sans", Arial, Helvetica, sans-serif; }
svg .tx { text-anchor: middle; }
svg .ty { text-anchor: end; }
svg .mk { font-weight: bold; font-size: 13px; text-anchor: middle; paint-order: stroke; stroke: #fff; stroke-width: 3px; }
svg .grid { stroke: #d4d4d4; stroke-width: 0.6; fill: none; }
svg .zero { stroke: #777; stroke-width: 0.9; fill: none; }
svg .frame { stroke: #000; fill: none; }
svg .line { stroke-width: 1.4; fill: none; }
)css";

}  // namespace tervak::report
