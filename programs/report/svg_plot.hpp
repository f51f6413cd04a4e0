#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tervak::report {

/// A linear axis. The labels are the decimal texts of the ticks.
struct axis {
  double low = 0.0;
  double high = 1.0;
  std::vector<std::string> ticks;
  std::string title;
};

/// An axis from `low` to `high` with up to nine round ticks. Equal ends are moved apart. `across` is the
/// length of an axis whose labels stand side by side: it gets fewer ticks where they would touch.
axis make_axis(double low, double high, std::string title, double across = 0.0);
/// About the width of a text of the plot.
double text_width(std::string_view text);

/// Width and height of a plot and its margins, in units of the drawing.
struct plot_box {
  double width, height, left, right, top, bottom;

  constexpr double across() const { return width - left - right; }
};
/// Of a layer's curves, and of values over the level with their axis on top and the soil column at the left.
/// The page's script draws into the same.
inline constexpr plot_box curve_box = {400, 320, 66, 12, 10, 42};
inline constexpr plot_box depth_box = {340, 430, 84, 14, 42, 10};

/// Seven colours that the colour-blind tell apart and that print, five dashes, eleven markers. The numbers
/// have no common divisor: any 55 neighbours differ in dash or marker also without colour.
struct line_style {
  std::string colour;
  std::string dash;
  std::string marker;  // path from its centre
  std::string fill;
};
line_style style_of(std::size_t index);
/// A short sample of a style, for legends: a drawing of its own, and its paths alone, 44 wide and 10 high.
std::string style_sample(std::size_t index);
std::string style_paths(std::size_t index);

struct plot_line {
  std::size_t style = 0;
  std::vector<std::pair<double, double>> points;  // x, y
};

struct plot_note {
  double x, y;
  std::string text;
};

struct plot {
  std::string title = {};  // read out in place of the drawing
  plot_box box = curve_box;
  axis x = {};
  axis y = {};
  std::vector<plot_line> lines = {};
  std::vector<plot_note> notes = {};
};

/// The part of a line between two x values, its ends interpolated. Far points would else make lines of a
/// million units.
std::vector<std::pair<double, double>> clip_to(const std::vector<std::pair<double, double>>& points,
                                               double low, double high);

std::string svg(const plot& p);
/// What stands within the svg element, for a part of a greater drawing.
std::string svg_content(const plot& p);
/// The style sheet of a plot.
extern const std::string_view plot_style;

}  // namespace tervak::report
