#include "report/layer_picture.hpp"

#include <algorithm>
#include <cmath>
#include <set>
#include <string_view>
#include <vector>

#include "report/curve_view.hpp"
#include "report/text.hpp"

namespace tervak::report {
namespace {

constexpr double picture_width = 900.0;
constexpr double panel_width = 290.0;
constexpr double panel_step = 299.0;
constexpr double panel_top = 70.0;
constexpr double panel_height = 290.0;
constexpr double margin = 6.0;
constexpr double line_height = 18.0;
constexpr int shown_digits = 4;
constexpr std::string_view picture_style = R"css(svg .title { font-size: 15px; font-weight: bold; }
svg .head { font-size: 12px; font-weight: bold; }
svg .line-name { font-size: 12px; }
)css";

std::string at(double x, double y) { return "translate(" + number_text(x) + " " + number_text(y) + ")"; }

std::string text_line(const std::string& css, double x, double y, const std::string& text) {
  return "<text class=\"" + css + "\" x=\"" + number_text(x) + "\" y=\"" + number_text(y) + "\">" +
         escape_html(text) + "</text>\n";
}

std::string with_unit(double value, const std::string& unit, const units& u) {
  return rounded_text(value, shown_digits) + (u.named() ? " " + unit : "");
}

std::string soil_line(const layer& l, const units& u) {
  const bool sand = l.PHIR > 1e-10;
  return std::string(sand ? "Sand" : "Clay") + ", " +
         (sand ? "friction angle " + rounded_text(l.PHIR, shown_digits) + "°"
               : "undrained strength " + with_unit(l.SURED, u.of_stress(), u)) +
         ", effective stress " + with_unit(l.SIGZRES, u.of_stress(), u) + "; Z level " +
         with_unit(l.ZLAY, u.length, u) + ", " +
         (l.above_scour() ? "at or above the scour level"
                          : "depth " + with_unit(l.DEPTH, u.length, u) + ", corrected for scour");
}

/// What stands below the drawing, collected over its panels.
struct remarks {
  std::set<mark_kind> drawn;       // marks whose letters are in the drawing
  bool one_side = false;           // of a kind whose sides are alike
  double far = 0.0;                // greatest displacement that is not drawn
  std::vector<std::string> texts;  // marks without a letter in the drawing
};

/// Takes out the letters that would stand over an equal one.
void thin_notes(plot& drawing) {
  std::vector<plot_note> kept;
  for (const plot_note& n : drawing.notes) {
    const bool covered = std::any_of(kept.begin(), kept.end(), [&](const plot_note& k) {
      const double x = (n.x - k.x) / (drawing.x.high - drawing.x.low) * drawing.box.across();
      const double y = (n.y - k.y) / (drawing.y.high - drawing.y.low) * drawing.box.height;
      return n.text == k.text && std::abs(x) < 6.0 && std::abs(y) < 6.0;
    });
    if (!covered) kept.push_back(n);
  }
  drawing.notes = kept;
}

void remark_on(const profile& p, const layer& l, curve_kind kind, const curve_view& view, remarks& out) {
  const std::string name = std::string(words_of(kind).name) + ": ";
  const auto undrawn = [&](const point& q) {
    const double x = view.alike ? std::abs(q.displacement) : q.displacement;
    return x < view.x.low || x > view.x.high;
  };
  std::string zero;
  for (std::size_t d = 0; d < p.diameters.size(); ++d) {
    const curve& c = l.of(kind)[d];
    for (const point& q : c)
      if (undrawn(q)) out.far = std::max(out.far, std::abs(q.displacement));
    for (const mark& m : view.marks[d])
      if (m.kind == mark_kind::neighbour)
        continue;  // of two layers, and this is a picture of one
      else if (m.kind == mark_kind::zero)
        zero += (zero.empty() ? "" : ", ") + number_text(p.diameters[d]);
      else if (undrawn(c[m.to]))
        out.texts.push_back(name + words_of(m.kind).name +
                            " beyond the displacements drawn for D = " + number_text(p.diameters[d]) + ".");
      else
        out.drawn.insert(m.kind);
  }
  if (!zero.empty()) out.texts.push_back(name + "no resistance for D = " + zero + ".");
}

/// One kind of curve, its upper left corner at the origin.
std::string panel(const profile& p, const layer& l, curve_kind kind, const units& u, remarks& out) {
  const curve_view view = view_curves(p, l, kind, u);
  plot drawing = curve_plot(p, l, kind, view);
  double labels = 0.0;
  for (const std::string& tick : drawing.y.ticks) labels = std::max(labels, text_width(tick));
  drawing.box = {panel_width, panel_height, 25.0 + labels, 6.0, 8.0, 42.0};
  drawing.x = make_axis(view.x.low, view.x.high, view.x.title, drawing.box.across());
  thin_notes(drawing);
  remark_on(p, l, kind, view, out);
  out.one_side = out.one_side || view.alike;
  return text_line("head", drawing.box.left, 0.0,
                   std::string(words_of(kind).name) + ", code " + method_text(kind, l.code(kind))) +
         svg_content(drawing) + "\n";
}

/// The diameters with their line styles, in as many rows as they need. Moves `y` below them.
std::string legend(const profile& p, const units& u, double& y) {
  std::string out;
  double x = margin;
  for (std::size_t d = 0; d < p.diameters.size(); ++d) {
    const std::string text = "D = " + number_text(p.diameters[d]) + (u.named() ? " " + u.length : "");
    const double width = 50.0 + text_width(text) + 20.0;
    if (x > margin && x + width > picture_width) {
      x = margin;
      y += line_height;
    }
    out += "<g transform=\"" + at(x, y - 9.0) + "\">" + style_paths(d) + "</g>" +
           text_line("line-name", x + 50.0, y, text);
    x += std::ceil(width);
  }
  y += line_height;
  return out;
}

std::vector<std::string> remark_lines(const remarks& r, const units& u) {
  std::vector<std::string> lines;
  for (const mark_kind kind : r.drawn) {
    const mark_words words = words_of(kind);
    lines.push_back(join({words.letter, ": ", words.name, ", ", words.meaning, "."}));
  }
  lines.insert(lines.end(), r.texts.begin(), r.texts.end());
  if (r.one_side) lines.emplace_back("Where both sides are alike the positive one is drawn.");
  if (r.far > 0.0)
    lines.push_back("Beyond the displacements drawn the curves go on to ±" + with_unit(r.far, u.length, u) +
                    ".");
  return lines;
}

}  // namespace

std::string layer_picture(const profile& p, std::size_t index, const units& u) {
  const layer& l = p.layers[index];
  const std::string title = "Profile " + std::to_string(p.number) + ": " + p.name + ", layer " +
                            std::to_string(index + 1) + " of " + std::to_string(p.layers.size());
  std::string drawn = text_line("title", margin, 18.0, title) +
                      text_line("line-name", margin, 35.0, p.label) +
                      text_line("line-name", margin, 51.0, soil_line(l, u));
  remarks found;
  double x = margin;
  for (const curve_kind kind : {curve_kind::py, curve_kind::tz, curve_kind::qz}) {
    drawn += "<g transform=\"" + at(x, panel_top) + "\">" + panel(p, l, kind, u, found) + "</g>\n";
    x += panel_step;
  }
  double y = panel_top + panel_height + line_height;
  drawn += legend(p, u, y);
  for (const std::string& line : remark_lines(found, u)) {
    drawn += text_line("remark", margin, y, line);
    y += 15.0;
  }
  const std::string size = number_text(picture_width) + "\" height=\"" + number_text(y);
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" +
         size + "\" viewBox=\"0 0 " + number_text(picture_width) + " " + number_text(y) +
         "\" role=\"img\">\n<title>" + escape_html(title) + "</title>\n<style>" + std::string(plot_style) +
         std::string(picture_style) + "</style>\n<rect width=\"" + size + "\" fill=\"#fff\"/>\n" + drawn +
         "</svg>\n";
}

}  // namespace tervak::report
