#pragma once

#include <utility>
#include <vector>

#include "Control/state/layer_number.hpp"

namespace Varno::KestraCommonLibrary::CommonData {

/// The 29 points of a symmetric curve, origin in the middle: displacement or rotation first, force or moment
/// second.
using MonoPileCurve = std::vector<std::pair<double, double>>;

/// What the output reads of a profile's monopile curves. Displacements and forces are in run units, moments
/// are scaled by the force unit alone, rotations stand as the deck gives them. ND and NL count from 1; a Get
/// beyond the table, or of a kind without data, gives an empty curve.
class IMonoPileDataProvider {
 public:
  virtual ~IMonoPileDataProvider() = default;
  /// Distributed moment against rotation along the shaft.
  [[nodiscard]] virtual bool HasMThetaData() const = 0;
  [[nodiscard]] virtual MonoPileCurve GetMThetaCurve(tervak::diameter_number ND,
                                                     tervak::layer_number NL) const = 0;
  /// Moment against rotation at the base.
  [[nodiscard]] virtual bool HasBMThetaData() const = 0;
  [[nodiscard]] virtual MonoPileCurve GetBMThetaCurve(tervak::diameter_number ND,
                                                      tervak::layer_number NL) const = 0;
  /// Shear force against displacement at the base.
  [[nodiscard]] virtual bool HasBSYData() const = 0;
  [[nodiscard]] virtual MonoPileCurve GetBSYCurve(tervak::diameter_number ND,
                                                  tervak::layer_number NL) const = 0;
};

}  // namespace Varno::KestraCommonLibrary::CommonData
