#include "SoilCurves/monopile/MonoPileInputDataProvider.hpp"

#include <stdexcept>
#include <utility>

namespace Varno::TervakLibrary::SoilCurves {

MonoPileCurve MonoPileInputDataProvider::GetCurve(tervak::layer_number NL, double DIAM) const {
  const auto given = curves_.GetManualCurve(NL, DIAM);
  std::pair<double, double> factors = {1.0, 1.0};
  try {
    factors = modifications_.GetModification(NL, DIAM);
  } catch (const std::out_of_range&) {
    // No line covers the pair: the curve stays as given.
  }
  const auto [force_factor, displacement_factor] = factors;
  MonoPileCurve curve;
  for (const auto& [displacement, force] : given)
    curve.emplace_back(ConvertDisplacement(kind_, converter_, displacement) * displacement_factor,
                       converter_.Force(force) * force_factor);
  return curve;
}

}  // namespace Varno::TervakLibrary::SoilCurves
