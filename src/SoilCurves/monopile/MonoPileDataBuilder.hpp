#pragma once

#include <memory>
#include <vector>

#include "Control/state/common.hpp"
#include "SoilCurves/monopile/IMonoPileDataProvider.hpp"
#include "SoilCurves/monopile/MonoPileInputDataProvider.hpp"

namespace Varno::TervakLibrary::SoilCurves {

/// Builds and holds the monopile curves of a profile.
///
/// A curve has 29 slots with the origin in slot 15: the given points from slot 15 on, then points at the far
/// displacement (1000 times the largest diameter) with the last force, and the mirror image below. A layer
/// without data has all of its upper slots, the middle one too, at the far displacement. Layers before IFIRST
/// keep their displacements and have no force.
class MonoPileDataBuilder final : public KestraCommonLibrary::CommonData::IMonoPileDataProvider {
 public:
  MonoPileDataBuilder(std::shared_ptr<const IO::TervakUnitConverter> converter, tervak::vector1<double> DIAM,
                      int NUMLAY);

  void SetMThetaData(const Vrsk::Plin::TervakExchange::ManualMonopileSection& section,
                     const Vrsk::Plin::TervakExchange::MonopileModificationSection& modification, int IFIRST);
  void SetBMThetaData(const Vrsk::Plin::TervakExchange::ManualMonopileSection& section,
                      const Vrsk::Plin::TervakExchange::MonopileModificationSection& modification,
                      int IFIRST);
  void SetBSYData(const Vrsk::Plin::TervakExchange::ManualMonopileSection& section,
                  const Vrsk::Plin::TervakExchange::MonopileModificationSection& modification, int IFIRST);

  [[nodiscard]] bool HasMThetaData() const override { return !m_theta_.empty(); }
  [[nodiscard]] MonoPileCurve GetMThetaCurve(tervak::diameter_number ND,
                                             tervak::layer_number NL) const override {
    return Get(m_theta_, ND, NL);
  }
  [[nodiscard]] bool HasBMThetaData() const override { return !bm_theta_.empty(); }
  [[nodiscard]] MonoPileCurve GetBMThetaCurve(tervak::diameter_number ND,
                                              tervak::layer_number NL) const override {
    return Get(bm_theta_, ND, NL);
  }
  [[nodiscard]] bool HasBSYData() const override { return !bs_y_.empty(); }
  [[nodiscard]] MonoPileCurve GetBSYCurve(tervak::diameter_number ND,
                                          tervak::layer_number NL) const override {
    return Get(bs_y_, ND, NL);
  }

 private:
  using Table = std::vector<std::vector<MonoPileCurve>>;  ///< by diameter, by layer

  [[nodiscard]] static MonoPileCurve Get(const Table& table, tervak::diameter_number ND,
                                         tervak::layer_number NL);
  [[nodiscard]] Table Build(const MonoPileInputDataProvider& input, int IFIRST) const;

  std::shared_ptr<const IO::TervakUnitConverter> converter_;
  tervak::vector1<double> DIAM_;
  int NUMLAY_;
  Table m_theta_, bm_theta_, bs_y_;
};

}  // namespace Varno::TervakLibrary::SoilCurves
