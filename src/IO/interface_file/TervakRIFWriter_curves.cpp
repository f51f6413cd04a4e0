#include <string_view>
#include <vector>

#include "IO/interface_file/DataGroup.hpp"
#include "IO/interface_file/TervakRIFWriter_records.hpp"

namespace Varno::TervakLibrary::IO {

using tervak::common;
using tervak::curve_table;

namespace {

struct characteristics {
  double greatest = -1.0E+12;
  double steepest = 0.0;
  double least = 1.0E+12;
};

/// Only a greater quotient replaces the slope, so that a falling stretch or the NaN of two equal points does
/// not; a rise at one displacement is infinite.
characteristics characterise(const curve_table& STR, const curve_table& DSP, int points,
                             tervak::diameter_number ND, tervak::layer_number L) {
  characteristics found;
  for (int P = 1; P <= points; ++P) {
    const double stress = STR(P, ND, L);
    if (stress > found.greatest) found.greatest = stress;
    if (stress < found.least) found.least = stress;
    if (P == points) break;
    const double slope = (STR(P + 1, ND, L) - stress) / (DSP(P + 1, ND, L) - DSP(P, ND, L));
    if (slope > found.steepest) found.steepest = slope;
  }
  return found;
}

struct curve_view {
  std::string_view name;
  const curve_table& STR;
  const curve_table& DSP;
  int N;  ///< points in use
};

void write_curve(std::ostream& stream, const curve_view& curve, int PROFILE, tervak::diameter_number ND,
                 tervak::layer_number L, const characteristics& found, double value3) {
  std::vector<double> values;
  values.reserve(static_cast<std::size_t>(curve.N) * 2 + 8);
  values.assign({2.0 * curve.N + 8.0, static_cast<double>(PROFILE), static_cast<double>(ND),
                 static_cast<double>(L), found.greatest, found.steepest, value3,
                 static_cast<double>(curve.N)});
  for (int P = 1; P <= curve.N; ++P) {
    values.push_back(curve.STR(P, ND, L));
    values.push_back(curve.DSP(P, ND, L));
  }
  ::IO::Tormal::write_record(stream, curve.name, values);
}

}  // namespace

void write_curves(std::ostream& stream, const common& cmn, int PROFILE) {
  for (tervak::layer_number L(1); L <= cmn.NUMLAY; ++L) {
    const double open_crack = cmn.OPEN(cmn.LAYCOD(L).TYP) == 1 ? 1.0 : 0.0;
    for (tervak::diameter_number ND(1); ND <= cmn.NUMDIA; ++ND) {
      const characteristics PY = characterise(cmn.PYSTR, cmn.PYDSP, cmn.MAXPNT, ND, L);
      const characteristics QZ = characterise(cmn.QZSTR, cmn.QZDSP, cmn.MAXPNT, ND, L);
      const characteristics TZ = characterise(cmn.TZSTR, cmn.TZDSP, cmn.MAXPNT, ND, L);
      write_curve(stream, {"RVSOILPY", cmn.PYSTR, cmn.PYDSP, cmn.NPYPNT(ND, L)}, PROFILE, ND, L, PY,
                  open_crack);
      write_curve(stream, {"RVSOILQZ", cmn.QZSTR, cmn.QZDSP, cmn.NQZPNT(ND, L)}, PROFILE, ND, L, QZ,
                  QZ.least);
      write_curve(stream, {"RVSOILTZ", cmn.TZSTR, cmn.TZDSP, cmn.NTZPNT(ND, L)}, PROFILE, ND, L, TZ,
                  TZ.least);
    }
  }
}

}  // namespace Varno::TervakLibrary::IO
