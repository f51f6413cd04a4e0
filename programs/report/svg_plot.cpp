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
  return p.box.top + (p.y.reversed ? share : 1.0 - share) * (p.box.height - p.box.top - p.box.bottom);
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
    texts += text_at("tx", x, p.x_on_top ? p.box.top - 5 : bottom + 14, label);
  }
  for (const std::string& label : p.y.ticks) {
    const double y = y_of(p, tick(label));
    (tick(label) == 0.0 ? zero : path) += join({"M", px(p.box.left), " ", px(y), "H", px(right)});
    texts += text_at("ty", p.box.left - 5, y + 3.5, label);
  }
  const double middle = 0.5 * (p.box.left + right), half = 0.5 * (p.box.top + bottom);
  return "<path class=\"grid\" d=\"" + path + "\"/><path class=\"zero\" d=\"" + zero +
         "\"/><path class=\"frame\" d=\"M" + px(p.box.left) + " " + px(p.box.top) + "H" + px(right) + "V" +
         px(bottom) + "H" + px(p.box.left) + "Z\"/>" + texts +
         text_at("tx", middle, p.x_on_top ? p.box.top - 24 : bottom + 32, p.x.title) +
         "<text class=\"tx\" transform=\"translate(12 " + px(half) + ") rotate(-90)\">" +
         escape_html(p.y.title) + "</text>";
}

std::string bands(const plot& p) {
  std::string out;
  const double right = p.box.width - p.box.right;
  for (const plot_band& b : p.bands) {
    const double low = y_of(p, b.low), high = y_of(p, b.high);
    if (b.high > b.low)
      out += "<rect class=\"band\" x=\"" + px(p.box.left) + "\" y=\"" + px(std::min(low, high)) +
             "\" width=\"" + px(right - p.box.left) + "\" height=\"" + px(std::abs(high - low)) + "\"/>";
    else
      out += "<path class=\"level\" d=\"M" + px(p.box.left) + " " + px(low) + "H" + px(right) + "\"/>";
    out += text_at("tb", right - 4, std::max(low, high) - 3, b.text);
  }
  return out;
}

std::string line(const plot& p, const plot_line& l) {
  const line_style style = style_of(l.style);
  std::string path, markers;
  for (const auto& [x, y] : l.points)
    path += join({path.empty() ? "M" : "L", px(x_of(p, x)), " ", px(y_of(p, y))});
  for (std::size_t i = 0; i < l.points.size(); i += l.marker_step) {
    const auto& [x, y] = l.points[i];
    if (x > p.x.low && x < p.x.high)
      markers += join({"M", px(x_of(p, x)), " ", px(y_of(p, y)), style.marker});
  }
  // One path for all markers: an element each would cost the browser more than all the rest of the page.
  return "<path class=\"line\" stroke-dasharray=\"" + style.dash + "\" d=\"" + path +
         "\"/><path class=\"dot\" fill=\"" + style.fill + "\" d=\"" + markers + "\"/>";
}

/// Round ticks, at most so many and one more.
std::vector<std::string> ticks_of(double low, double high, double most) {
  const double rough = (high - low) / most;
  const double decade = std::pow(10.0, std::floor(std::log10(rough)));
  double step = 10.0 * decade;
  for (const double part : {5.0, 2.0, 1.0})
    if (part * decade >= rough) step = part * decade;
  std::vector<std::string> ticks;
  // Ten digits take out what the product adds behind the round value.
  const double first = std::ceil(low / step);
  for (double n = 0.0; n <= most && (first + n) * step <= high; n += 1.0)
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
  axis out{low, high, {}, std::move(title), false};
  for (double most = 8.0; most >= 2.0; most -= 1.0) {
    out.ticks = ticks_of(low, high, most);
    if (across == 0.0 || fits(out, across)) break;
  }
  return out;
}

line_style style_of(std::size_t index) {
  static constexpr std::array<const char*, 4> dashes = {"none", "7 3", "2 2", "9 3 2 3"};
  static constexpr std::array<const char*, 4> markers = {"m-3 0a3 3 0 1 0 6 0a3 3 0 1 0-6 0z",
                                                         "m-2.6-2.6h5.2v5.2h-5.2z", "m0-3.4l3.2 5.6h-6.4z",
                                                         "m0-3.6l3.4 3.6l-3.4 3.6l-3.4-3.6z"};
  return {dashes[index % 4], markers[index % 4], index / 4 % 2 == 0 ? "#fff" : "#000"};
}

std::string style_paths(std::size_t index) {
  const line_style style = style_of(index);
  return "<path class=\"line\" stroke-dasharray=\"" + style.dash +
         "\" d=\"M1 5H43\"/><path class=\"dot\" fill=\"" + style.fill + "\" d=\"M22 5" + style.marker +
         "\"/>";
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
  std::string out = bands(p) + frame(p);
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
svg .ty, svg .tb { text-anchor: end; }
svg .tb { font-size: 10px; font-style: italic; }
svg .mk { font-weight: bold; font-size: 13px; text-anchor: middle; paint-order: stroke; stroke: #fff; stroke-width: 3px; }
svg .grid { stroke: #d4d4d4; stroke-width: 0.6; fill: none; }
svg .zero { stroke: #777; stroke-width: 0.9; fill: none; }
svg .frame { stroke: #000; fill: none; }
svg .band { fill: #ececec; }
svg .level { stroke: #000; stroke-width: 1.6; fill: none; }
svg .line { stroke: #000; stroke-width: 1.3; fill: none; }
svg .dot { stroke: #000; }
)css";

}  // namespace tervak::report
