#pragma once

#include "IO/units/TervakUnitConverter.hpp"
#include "SoilCurves/monopile/MonoPileKind.hpp"
#include "TervakExchange/TervakInputData.hpp"

namespace Varno::TervakLibrary::SoilCurves {

/// A displacement or rotation of a curve of this kind, in run units.
[[nodiscard]] inline double ConvertDisplacement(const MonoPileKind& kind,
                                                const IO::TervakUnitConverter& converter, double value) {
  return kind.displacement_is_length ? converter.Length(value) : value;
}

/// One manual curve as its checks see it, whatever its kind: values in run units, points counted from 0.
/// Refers to the kind, the record and the converter, which must outlive it.
class MonoPileData {
 public:
  MonoPileData(const MonoPileKind& kind, const Vrsk::Plin::TervakExchange::ManualCurveRecord& record,
               const IO::TervakUnitConverter& converter)
      : kind_(kind), record_(record), converter_(converter) {}

  [[nodiscard]] const char* GetErrorText() const { return kind_.curve_error; }
  [[nodiscard]] const char* GetDisplacementName() const { return kind_.displacement_name; }
  [[nodiscard]] const char* GetForceName() const { return kind_.force_name; }
  [[nodiscard]] int GetLayer() const { return record_.Layer; }
  [[nodiscard]] double GetDiameter() const { return converter_.Length(record_.Diameter); }
  [[nodiscard]] std::size_t GetForceCount() const { return record_.Stresses.size(); }
  [[nodiscard]] std::size_t GetDisplacementCount() const { return record_.Displacements.size(); }
  /// A moment is scaled by the force unit alone.
  [[nodiscard]] double GetForce(std::size_t i) const { return converter_.Force(record_.Stresses.at(i)); }
  [[nodiscard]] double GetDisplacement(std::size_t i) const {
    return ConvertDisplacement(kind_, converter_, record_.Displacements.at(i));
  }

 private:
  const MonoPileKind& kind_;
  const Vrsk::Plin::TervakExchange::ManualCurveRecord& record_;
  const IO::TervakUnitConverter& converter_;
};

/// One modification line as its checks see it, whatever its kind; the same lifetimes.
class MonoPileDataModification {
 public:
  MonoPileDataModification(const MonoPileKind& kind,
                           const Vrsk::Plin::TervakExchange::MonopileModificationRecord& record,
                           const IO::TervakUnitConverter& converter)
      : kind_(kind), record_(record), converter_(converter) {}

  [[nodiscard]] const char* GetErrorText() const { return kind_.modification_error; }
  [[nodiscard]] const char* GetDisplacementFactorName() const { return kind_.displacement_factor_name; }
  [[nodiscard]] const char* GetForceFactorName() const { return kind_.force_factor_name; }
  [[nodiscard]] double GetDisplacementFactor() const { return record_.DisplacementFactor; }
  [[nodiscard]] double GetForceFactor() const { return record_.ForceFactor; }
  [[nodiscard]] int GetLay1() const { return record_.LAY1; }
  [[nodiscard]] int GetLay2() const { return record_.LAY2; }
  [[nodiscard]] double GetDiameter() const { return converter_.Length(record_.Diameter); }

 private:
  const MonoPileKind& kind_;
  const Vrsk::Plin::TervakExchange::MonopileModificationRecord& record_;
  const IO::TervakUnitConverter& converter_;
};

}  // namespace Varno::TervakLibrary::SoilCurves
