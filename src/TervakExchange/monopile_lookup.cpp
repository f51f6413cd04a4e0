#include "TervakExchange/monopile_lookup.hpp"

#include <algorithm>
#include <iterator>
#include <limits>
#include <set>
#include <stdexcept>
#include <tuple>

namespace Vrsk::Plin::TervakExchange {

namespace {

constexpr double TOLERANCE = 1.0E-8;
constexpr std::size_t NO_LINE = std::numeric_limits<std::size_t>::max();

// A difference of doubles never falls when its first term rises, so the diameters that fit lie side by side.
bool too_small(double given, double diameter) { return given - diameter <= -TOLERANCE; }
bool too_large(double given, double diameter) { return given - diameter >= TOLERANCE; }

}  // namespace

ManualCurveLookup::ManualCurveLookup(const ManualMonopileSection& section, double lengthFactor)
    : section_(section) {
  for (std::size_t i = 0; i < section.Records.size(); ++i)
    keys_.push_back({section.Records[i].Layer, section.Records[i].Diameter * lengthFactor, i});
  const auto same = [](const key& a, const key& b) { return a.layer == b.layer && a.diameter == b.diameter; };
  std::sort(keys_.begin(), keys_.end(), [](const key& a, const key& b) {
    return std::tie(a.layer, a.diameter, a.record) < std::tie(b.layer, b.diameter, b.record);
  });
  keys_.erase(std::unique(keys_.begin(), keys_.end(), same), keys_.end());
}

ManualMonopileCurve ManualCurveLookup::GetManualCurve(int layer, double diameter) const {
  auto at = std::partition_point(keys_.begin(), keys_.end(), [&](const key& k) {
    return k.layer < layer || (k.layer == layer && too_small(k.diameter, diameter));
  });
  std::size_t first = NO_LINE;
  for (; at != keys_.end() && at->layer == layer && !too_large(at->diameter, diameter); ++at)
    first = std::min(first, at->record);
  ManualMonopileCurve curve;
  if (first == NO_LINE) return curve;
  const ManualCurveRecord& record = section_.Records[first];
  const std::size_t points = std::min(record.Stresses.size(), record.Displacements.size());
  for (std::size_t i = 0; i < points; ++i) curve[record.Displacements[i]] = record.Stresses[i];
  return curve;
}

ModificationLookup::ModificationLookup(const MonopileModificationSection& section, double lengthFactor)
    : section_(section) {
  for (std::size_t i = 0; i < section.Records.size(); ++i)
    lines_.emplace_back(section.Records[i].Diameter * lengthFactor, i);
  std::sort(lines_.begin(), lines_.end());
}

ModificationLookup::first_lines ModificationLookup::lines_for(double diameter) const {
  struct edge {
    long long layer;  ///< where the line begins, or the layer after its last one
    bool begins;
    std::size_t line;
  };
  std::vector<edge> edges;
  auto at = std::partition_point(lines_.begin(), lines_.end(),
                                 [&](const auto& line) { return too_small(line.first, diameter); });
  for (; at != lines_.end() && !too_large(at->first, diameter); ++at) {
    const MonopileModificationRecord& line = section_.Records[at->second];
    if (line.LAY1 > line.LAY2) continue;
    edges.push_back({line.LAY1, true, at->second});
    edges.push_back({static_cast<long long>(line.LAY2) + 1, false, at->second});
  }
  std::sort(edges.begin(), edges.end(), [](const edge& a, const edge& b) { return a.layer < b.layer; });
  first_lines first;
  std::set<std::size_t> open;
  for (const edge& e : edges) {
    if (e.begins)
      open.insert(e.line);
    else
      open.erase(e.line);
    first[e.layer] = open.empty() ? NO_LINE : *open.begin();
  }
  return first;
}

std::pair<double, double> ModificationLookup::GetModification(int layer, double diameter) const {
  auto found = found_.find(diameter);
  if (found == found_.end()) found = found_.emplace(diameter, lines_for(diameter)).first;
  const first_lines& first = found->second;
  const auto after = first.upper_bound(layer);
  if (after == first.begin() || std::prev(after)->second == NO_LINE)
    throw std::out_of_range("no line of factors covers this layer and diameter");
  const MonopileModificationRecord& line = section_.Records[std::prev(after)->second];
  return {line.ForceFactor, line.DisplacementFactor};
}

}  // namespace Vrsk::Plin::TervakExchange
