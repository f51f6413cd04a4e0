#pragma once

#include "SoilCurves/monopile/IMonoPileDataProvider.hpp"
#include "SoilCurves/monopile/MonoPileData.hpp"
#include "TervakExchange/monopile_lookup.hpp"

namespace Varno::TervakLibrary::SoilCurves {

using KestraCommonLibrary::CommonData::MonoPileCurve;

/// Gives the points of one kind for a layer and a diameter, converted and multiplied by their factors.
/// Refers to the kind, the converter and the two sections, which must outlive it.
class MonoPileInputDataProvider {
 public:
  MonoPileInputDataProvider(const MonoPileKind& kind, const IO::TervakUnitConverter& converter,
                            const Vrsk::Plin::TervakExchange::ManualMonopileSection& section,
                            const Vrsk::Plin::TervakExchange::MonopileModificationSection& modification)
      : kind_(kind),
        converter_(converter),
        curves_(section, converter.Length(1.0)),
        modifications_(modification, converter.Length(1.0)) {}

  /// The given points in ascending displacement; empty when the deck has no curve for the pair. DIAM in run
  /// units. A pair that no modification line covers has the factors 1.0.
  [[nodiscard]] MonoPileCurve GetCurve(tervak::layer_number NL, double DIAM) const;

 private:
  const MonoPileKind& kind_;
  const IO::TervakUnitConverter& converter_;
  Vrsk::Plin::TervakExchange::ManualCurveLookup curves_;
  Vrsk::Plin::TervakExchange::ModificationLookup modifications_;
};

}  // namespace Varno::TervakLibrary::SoilCurves
