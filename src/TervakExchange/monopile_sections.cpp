#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "TervakExchange/TervakInputData.hpp"

namespace Vrsk::Plin::TervakExchange {

namespace {

bool fits(double record_diameter, double lengthFactor, double diameter) {
  return std::abs(record_diameter * lengthFactor - diameter) < 1.0E-8;
}

}  // namespace

ManualMonopileCurve ManualMonopileSection::GetManualCurve(int layer, double diameter,
                                                          double lengthFactor) const {
  ManualMonopileCurve curve;
  for (const ManualCurveRecord& record : Records) {
    if (record.Layer != layer || !fits(record.Diameter, lengthFactor, diameter)) continue;
    const std::size_t points = std::min(record.Stresses.size(), record.Displacements.size());
    for (std::size_t i = 0; i < points; ++i) curve[record.Displacements[i]] = record.Stresses[i];
    break;
  }
  return curve;
}

std::pair<double, double> MonopileModificationSection::GetModification(int layer, double diameter,
                                                                       double lengthFactor) const {
  for (const MonopileModificationRecord& line : Records)
    if (line.LAY1 <= layer && layer <= line.LAY2 && fits(line.Diameter, lengthFactor, diameter))
      return {line.ForceFactor, line.DisplacementFactor};
  throw std::out_of_range("no line of factors covers this layer and diameter");
}

}  // namespace Vrsk::Plin::TervakExchange
