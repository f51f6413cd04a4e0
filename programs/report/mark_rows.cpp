#include "report/mark_rows.hpp"

#include <algorithm>

#include "report/curve_view.hpp"
#include "report/text.hpp"

namespace tervak::report {
namespace {

/// The row of one kind of mark, with a count of zero when it does not occur. `marks` is by layer and
/// diameter.
mark_row row_of(const profile& p, curve_kind curves, mark_kind wanted,
                const std::vector<std::vector<std::vector<mark>>>& marks) {
  mark_row out{.curves = curves, .mark = wanted};
  std::vector<std::size_t> layers;
  for (std::size_t i = 0; i < marks.size(); ++i)
    for (std::size_t d = 0; d < marks[i].size(); ++d) {
      double worst = -1.0;
      for (const mark& m : marks[i][d])
        if (m.kind == wanted) worst = std::max(worst, m.share);
      if (worst < 0.0) continue;
      ++out.count;
      if (layers.empty() || layers.back() != i + 1) layers.push_back(i + 1);
      if (worst <= out.worst) continue;
      out.worst = worst;
      out.worst_layer = i + 1;
      out.worst_diameter = p.diameters[d];
    }
  out.layers = ranges_text(layers);
  return out;
}

}  // namespace

std::vector<mark_row> mark_rows(const profile& p) {
  std::vector<mark_row> out;
  for (const curve_kind kind : kinds_of(p)) {
    std::vector<std::vector<std::vector<mark>>> marks;
    for (const layer& l : p.layers) marks.push_back(marks_of(p, l, kind));
    for (const mark_kind wanted : mark_kinds)
      if (mark_row row = row_of(p, kind, wanted, marks); row.count > 0) out.push_back(std::move(row));
  }
  std::stable_partition(out.begin(), out.end(),
                        [](const mark_row& row) { return !as_the_method_makes_it(row.mark); });
  return out;
}

std::string worst_text(const mark_row& row) {
  if (row.mark == mark_kind::zero) return "";
  const std::string where =
      " at most (layer " + std::to_string(row.worst_layer) + ", D = " + number_text(row.worst_diameter) + ")";
  if (row.mark == mark_kind::neighbour) return rounded_text(row.worst, 3) + " times" + where;
  return std::string(row.mark == mark_kind::vertical ? "a step of " : "a fall of ") + percent(row.worst) +
         " of the peak" + where;
}

std::vector<std::string> look_here_lines(const interface_file& file) {
  std::vector<std::string> out;
  for (const profile& p : file.profiles)
    for (const mark_row& row : mark_rows(p)) {
      if (as_the_method_makes_it(row.mark)) continue;
      const std::string worst = worst_text(row);
      out.push_back(join({"look here: profile ", std::to_string(p.number), ", ", words_of(row.curves).name,
                          ", ", words_of(row.mark).name, ", layers ", row.layers, ", ",
                          std::to_string(row.count), " curves", worst.empty() ? "" : ", ", worst}));
    }
  return out;
}

std::size_t count_marked(const interface_file& file, bool look_here) {
  std::size_t count = 0;
  for (const profile& p : file.profiles)
    for (const layer& l : p.layers)
      for (const curve_kind kind : kinds_of(p))
        for (const std::vector<mark>& marks : marks_of(p, l, kind))
          if (std::any_of(marks.begin(), marks.end(),
                          [&](const mark& m) { return as_the_method_makes_it(m.kind) != look_here; }))
            ++count;
  return count;
}

}  // namespace tervak::report
