#include <algorithm>
#include <array>

#include "report/compare.hpp"
#include "report/text.hpp"

namespace tervak::report {

std::string change_text(const difference& d) {
  switch (d.order) {
    case difference_class::one_sided:
      return "one file";
    case difference_class::code:
      return "other";
    case difference_class::from_zero:
      return "from 0";
    case difference_class::number:
      break;
  }
  return (d.percent > 0.0 ? "+" : "") + rounded_text(d.percent, 3) + " %";
}

std::string comparison_text(const comparison& c, const std::string& names) {
  const std::string count =
      c.differences.empty() ? "alike" : "differences " + std::to_string(c.differences.size());
  std::string out = names + ": " + count + " (tolerance " + number_text(c.tolerance) +
                    " %); compared profiles " + std::to_string(c.profiles) + ", layers " +
                    std::to_string(c.layers) + ", curves " + std::to_string(c.curves) + "\n";
  if (c.differences.empty()) return out;
  using row = std::array<std::string, 8>;
  std::vector<row> rows = {{"change", "profile", "layer", "ZBOTM", "diameter", "what", "before", "after"}};
  for (const difference& d : c.differences)
    rows.push_back({change_text(d), d.profile, d.layer, d.level, d.diameter, d.what, d.before, d.after});
  row::value_type::size_type widths[8] = {};
  for (const row& r : rows)
    for (std::size_t i = 0; i < r.size(); ++i) widths[i] = std::max(widths[i], r[i].size());
  for (const row& r : rows) {
    std::string line;
    for (std::size_t i = 0; i < r.size(); ++i) line += r[i] + std::string(widths[i] - r[i].size() + 2, ' ');
    out += std::string(trim_end(line)) + "\n";
  }
  return out;
}

}  // namespace tervak::report
