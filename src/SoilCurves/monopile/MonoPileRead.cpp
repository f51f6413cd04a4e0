#include "SoilCurves/monopile/MonoPileRead.hpp"

#include <sstream>

#include "fem/write.hpp"
#include "SoilCurves/monopile/manual_checks.hpp"
#include "SoilCurves/monopile/MonoPileDataBuilder.hpp"
#include "SoilCurves/store/first_live_layer.hpp"

namespace Varno::TervakLibrary::SoilCurves {

namespace {

/// Checks the curves and modification lines of one kind; prints the findings on a refusal.
bool Accepted(tervak::common& cmn, const MonoPileKind& kind,
              const Vrsk::Plin::TervakExchange::ManualMonopileSection& section,
              const Vrsk::Plin::TervakExchange::MonopileModificationSection& modification) {
  std::ostringstream stream;
  if (ValidateManualData(cmn, stream, kind, section) &&
      ValidateModifications(cmn, stream, kind, modification))
    return true;
  fem::write(cmn.units, cmn.NFLOG, "(A)", stream.str().c_str());
  return false;
}

}  // namespace

bool MonoPileRead(tervak::common& cmn, const Vrsk::Plin::TervakExchange::Tervak& profile,
                  std::shared_ptr<KestraCommonLibrary::CommonData::IMonoPileDataProvider>& MONOPILE) {
  const auto& data = profile.GetTervakInputData();
  const auto builder = std::make_shared<MonoPileDataBuilder>(cmn.CONVERTER, cmn.DIAM, cmn.NUMLAY);
  const int IFIRST = tervak::first_live_layer(cmn);
  if (data.Control.HasDMData()) {
    if (!Accepted(cmn, M_THETA, data.ManualMtheta, data.MthetaModification)) return false;
    builder->SetMThetaData(data.ManualMtheta, data.MthetaModification, IFIRST);
  }
  if (data.Control.HasBMData()) {
    if (!Accepted(cmn, BM_THETA, data.ManualBMtheta, data.BMthetaModification)) return false;
    builder->SetBMThetaData(data.ManualBMtheta, data.BMthetaModification, IFIRST);
  }
  if (data.Control.HasBSData()) {
    if (!Accepted(cmn, BS_Y, data.ManualBSY, data.BSYModification)) return false;
    builder->SetBSYData(data.ManualBSY, data.BSYModification, IFIRST);
  }
  MONOPILE = builder;
  return true;
}

}  // namespace Varno::TervakLibrary::SoilCurves
