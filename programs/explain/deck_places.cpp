#include "explain/deck_places.hpp"

#include <cmath>
#include <tuple>

namespace tervak::explain {

using Vrsk::Plin::TervakExchange::record_kind;
using part = note_subject::part;

/// Diameters that differ by less are one, as in the run.
constexpr double EPS = 1e-10;

int code_of(const told_layer& layer, part family) {
  if (family == part::py) return layer.code.PYCODE;
  return family == part::tz ? layer.code.TZCODE : layer.code.QZCODE;
}

std::string deck_places::of(const told_profile& profile, part family, int NL, int ND) const {
  return given(profile, family, NL, ND) + factors(profile, family, NL, ND);
}

std::string deck_places::given(const told_profile& profile, part family, int NL, int ND) const {
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
  return ", given in the deck at " + std::string(table) + ", lines " + std::to_string(first) + " to " +
         std::to_string(last);
}

std::string deck_places::factors(const told_profile& profile, part family, int NL, int ND) const {
  const std::size_t index = static_cast<std::size_t>(profile.number) - 1;
  const auto& data = deck_.profiles().at(index).data;
  const double D = profile.diameters[static_cast<std::size_t>(ND) - 1];
  const auto place = [&](const char* table, const auto& records) {
    std::string text;
    for (std::size_t i = 0; i < records.size(); ++i) {
      const auto& [L1, L2, diameter] = std::tie(records[i].L1, records[i].L2, records[i].Diameter);
      if (NL < L1 || NL > L2 || !(diameter < EPS || std::abs(diameter - D) < EPS)) continue;
      const auto row = deck_.row(deck_.maps().at(index), table, i + 1);
      if (row.line.fields.empty() || row.kind == record_kind::added) continue;
      text = ", factors at " + std::string(table) + ", line " +
             std::to_string(row.line.fields.front().place.line);
    }
    return text;
  };
  if (family == part::py) return place("MODIFYPY", data.PyModification.Records);
  if (family == part::tz) return place("MODIFYTZ", data.TzModification.Records);
  return place("MODIFYQZ", data.QzModification.Records);
}

}  // namespace tervak::explain
