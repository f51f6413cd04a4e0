#include "explain/manual_places.hpp"

namespace tervak::explain {

using part = note_subject::part;

int code_of(const told_layer& layer, part family) {
  if (family == part::py) return layer.code.PYCODE;
  return family == part::tz ? layer.code.TZCODE : layer.code.QZCODE;
}

std::string manual_places::of(const told_profile& profile, part family, int NL, int ND) const {
  const auto at = [&](int layer) -> const told_layer& {
    return profile.layers[static_cast<std::size_t>(layer) - 1];
  };
  if (code_of(at(NL), family) != 0) return "";
  // The records are by layer of code 0, then by diameter.
  std::size_t record = static_cast<std::size_t>(ND);
  for (int i = 1; i < NL; ++i)
    if (code_of(at(i), family) == 0) record += profile.diameters.size();
  const char* table = family == part::py ? "MANUALPY" : family == part::tz ? "MANUALTZ" : "MANUALQZ";
  const auto& map = deck_.maps().at(static_cast<std::size_t>(profile.number) - 1);
  const auto row = deck_.row(map, table, record);
  if (row.line.fields.empty()) return "";
  const std::size_t first = row.line.fields.front().place.line;
  const std::size_t last = row.points.empty() ? first : row.points.back().fields.front().place.line;
  return std::string(table) + ", lines " + std::to_string(first) + " to " + std::to_string(last);
}

}  // namespace tervak::explain
