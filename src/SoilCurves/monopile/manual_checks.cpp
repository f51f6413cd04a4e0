#include "SoilCurves/monopile/manual_checks.hpp"

#include <cmath>
#include <string>

namespace Varno::TervakLibrary::SoilCurves {

namespace {

constexpr double TOLERANCE = 1.0E-12;

bool IsDiameter(const tervak::common& cmn, double diameter) {
  for (int k = 1; k <= cmn.DIAM.size(); ++k)
    if (std::abs(cmn.DIAM(k) - diameter) < 1.0E-8) return true;
  return false;
}

}  // namespace

bool CheckManualCurve(const tervak::common& cmn, std::ostream& stream, const MonoPileData& view) {
  const int LIMIT = cmn.MIDPNT();
  const std::string layer = " Layer: " + std::to_string(view.GetLayer()) + ".";
  const auto refuse = [&](const std::string& finding) {
    stream << view.GetErrorText() << finding << layer;
    return false;
  };
  const int N = static_cast<int>(view.GetForceCount());
  // std::to_string prints a double by "%f".
  if (!IsDiameter(cmn, view.GetDiameter()))
    return refuse(" Diameter " + std::to_string(view.GetDiameter()) + " not found.");
  if (view.GetLayer() > cmn.NUMLAY) {
    stream << view.GetErrorText() << " Layer " << std::to_string(view.GetLayer())
           << " greater than total number of layers " << std::to_string(cmn.NUMLAY) << ".";
    return false;
  }
  if (N > LIMIT)
    return refuse(" Number of points specified, " + std::to_string(N) + ", cannot be greater than " +
                  std::to_string(LIMIT) + ".");
  if (N < 2) return refuse(" Number of points specified cannot be less than 2.");
  if (view.GetDisplacement(0) > TOLERANCE || view.GetForce(0) > TOLERANCE)
    return refuse(" First point has to be the origin.");

  for (std::size_t i = 1; i < view.GetForceCount(); ++i)
    if (view.GetDisplacement(i) - view.GetDisplacement(i - 1) < TOLERANCE)
      stream << view.GetErrorText() << " Duplicate " << view.GetDisplacementName() << " value found at index "
             << std::to_string(i) << layer;
  return true;
}

bool CheckModification(const tervak::common& cmn, std::ostream& stream, int line,
                       const MonoPileDataModification& view) {
  const auto refuse = [&](const std::string& finding) {
    stream << view.GetErrorText() << finding << " Line: " << std::to_string(line) << ".";
    return false;
  };
  if (view.GetLay2() < view.GetLay1()) return refuse("LAY1 cannot be greater than LAY2");
  if (view.GetLay2() > cmn.NUMLAY) return refuse("LAY2 cannot be greater than total number of layers.");
  if (!IsDiameter(cmn, view.GetDiameter())) return refuse("A diameter not present was found in the table.");
  if (view.GetForceFactor() < TOLERANCE)
    return refuse(view.GetForceFactorName() + std::string(" has to be greater than zero."));
  if (view.GetDisplacementFactor() < TOLERANCE)
    return refuse(view.GetDisplacementFactorName() + std::string(" has to be greater than zero."));
  return true;
}

bool ValidateManualData(const tervak::common& cmn, std::ostream& stream, const MonoPileKind& kind,
                        const Vrsk::Plin::TervakExchange::ManualMonopileSection& section) {
  for (const auto& record : section.Records)
    if (!CheckManualCurve(cmn, stream, MonoPileData(kind, record, *cmn.CONVERTER))) return false;
  return true;
}

bool ValidateModifications(const tervak::common& cmn, std::ostream& stream, const MonoPileKind& kind,
                           const Vrsk::Plin::TervakExchange::MonopileModificationSection& section) {
  int line = 0;
  for (const auto& record : section.Records)
    if (!CheckModification(cmn, stream, ++line, MonoPileDataModification(kind, record, *cmn.CONVERTER)))
      return false;
  return true;
}

}  // namespace Varno::TervakLibrary::SoilCurves
