#include "report/curve_view.hpp"

namespace tervak::report {

plot curve_plot(const profile& p, const layer& l, curve_kind kind, const curve_view& view) {
  plot drawing{.title = std::string(words_of(kind).name) + " curves", .x = view.x, .y = view.y};
  const std::vector<curve>& curves = l.of(kind);
  for (std::size_t d = 0; d < p.diameters.size(); ++d) {
    plot_line& line = drawing.lines.emplace_back(plot_line{d, {}});
    for (const point& q : curves[d]) line.points.emplace_back(q.displacement, q.stress);
    line.points = clip_to(line.points, view.x.low, view.x.high);
    for (const auto& [at, letters] : letters_of(view.marks[d])) {
      const point& q = curves[d][at];
      if (q.displacement >= view.x.low && q.displacement <= view.x.high)
        drawing.notes.push_back({q.displacement, q.stress, letters});
    }
  }
  return drawing;
}

}  // namespace tervak::report
