#include <string_view>
#include <vector>

#include "IO/interface_file/DataGroup.hpp"
#include "IO/interface_file/TervakRIFWriter_records.hpp"
#include "SoilCurves/monopile/IMonoPileDataProvider.hpp"

namespace Varno::TervakLibrary::IO {

using KestraCommonLibrary::CommonData::MonoPileCurve;

namespace {

/// `points` hold the displacement first; in the record the force goes first.
void write_points(std::ostream& stream, std::string_view name, const MonoPileCurve& points, int PROFILE,
                  tervak::diameter_number ND, tervak::layer_number L) {
  const auto M = static_cast<double>(points.size());
  std::vector<double> values;
  values.reserve(points.size() * 2 + 5);
  values.assign(
      {2.0 * M + 5.0, static_cast<double>(PROFILE), static_cast<double>(ND), static_cast<double>(L), M});
  for (const auto& [displacement, force] : points) {
    values.push_back(force);
    values.push_back(displacement);
  }
  ::IO::Tormal::write_record(stream, name, values);
}

}  // namespace

void write_monopile(std::ostream& stream, const tervak::common& cmn, int PROFILE) {
  const auto& data = *cmn.MONOPILE;
  for (tervak::layer_number L(1); L <= cmn.NUMLAY; ++L) {
    for (tervak::diameter_number ND(1); ND <= cmn.NUMDIA; ++ND) {
      if (data.HasBMThetaData())
        write_points(stream, "RVSOILBM", data.GetBMThetaCurve(ND, L), PROFILE, ND, L);
      if (data.HasMThetaData()) write_points(stream, "RVSOILDM", data.GetMThetaCurve(ND, L), PROFILE, ND, L);
      if (data.HasBSYData()) write_points(stream, "RVSOILBS", data.GetBSYCurve(ND, L), PROFILE, ND, L);
    }
  }
}

}  // namespace Varno::TervakLibrary::IO
