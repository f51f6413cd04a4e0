#include "SoilCurves/monopile/MonoPileDataBuilder.hpp"

#include <cstddef>
#include <utility>

namespace Varno::TervakLibrary::SoilCurves {

namespace {

using namespace Vrsk::Plin::TervakExchange;

constexpr std::size_t SLOTS = tervak::CURVE_POINTS;
constexpr std::size_t MIDDLE = SLOTS / 2;  // counted from 0

/// Lays the given points out over the 29 slots.
MonoPileCurve LayOut(const MonoPileCurve& points, bool live, double FAR) {
  MonoPileCurve curve(SLOTS);
  std::size_t slot = MIDDLE;
  for (const auto& [displacement, force] : points) curve.at(slot++) = {displacement, live ? force : 0.0};
  for (; slot < SLOTS; ++slot) curve[slot] = {FAR, curve[slot - 1].second};
  for (std::size_t i = 0; i < MIDDLE; ++i) {
    const auto& [displacement, force] = curve[SLOTS - 1 - i];
    curve[i] = {-displacement, -force};
  }
  return curve;
}

}  // namespace

MonoPileDataBuilder::MonoPileDataBuilder(std::shared_ptr<const IO::TervakUnitConverter> converter,
                                         tervak::vector1<double> DIAM, int NUMLAY)
    : converter_(std::move(converter)), DIAM_(std::move(DIAM)), NUMLAY_(NUMLAY) {}

void MonoPileDataBuilder::SetMThetaData(const ManualMonopileSection& section,
                                        const MonopileModificationSection& modification, int IFIRST) {
  m_theta_ = Build({M_THETA, *converter_, section, modification}, IFIRST);
}

void MonoPileDataBuilder::SetBMThetaData(const ManualMonopileSection& section,
                                         const MonopileModificationSection& modification, int IFIRST) {
  bm_theta_ = Build({BM_THETA, *converter_, section, modification}, IFIRST);
}

void MonoPileDataBuilder::SetBSYData(const ManualMonopileSection& section,
                                     const MonopileModificationSection& modification, int IFIRST) {
  bs_y_ = Build({BS_Y, *converter_, section, modification}, IFIRST);
}

MonoPileDataBuilder::Table MonoPileDataBuilder::Build(const MonoPileInputDataProvider& input,
                                                      int IFIRST) const {
  const double FAR = DIAM_(DIAM_.size()) * 1000.0;
  Table table;
  for (tervak::diameter_number ND(1); ND <= DIAM_.size(); ++ND) {
    table.emplace_back();
    for (tervak::layer_number NL(1); NL <= NUMLAY_; ++NL)
      table.back().push_back(LayOut(input.GetCurve(NL, DIAM_(ND)), NL >= IFIRST, FAR));
  }
  return table;
}

MonoPileCurve MonoPileDataBuilder::Get(const Table& table, tervak::diameter_number ND,
                                       tervak::layer_number NL) {
  // An index of 0 wraps round to a value beyond any table.
  const std::size_t diameter = static_cast<std::size_t>(ND) - 1;
  const std::size_t layer = static_cast<std::size_t>(NL) - 1;
  if (diameter >= table.size() || layer >= table[diameter].size()) return {};
  return table[diameter][layer];
}

}  // namespace Varno::TervakLibrary::SoilCurves
