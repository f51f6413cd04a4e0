#include <array>

#include "Control/state/Interpolate.hpp"
#include "Control/state/report.hpp"
#include "Control/state/sp.hpp"
#include "IO/interface_file/DataGroup.hpp"
#include "IO/interface_file/TervakRIFWriter_records.hpp"

namespace Varno::TervakLibrary::IO {

using ::IO::Tormal::write_record;
using ::KestraCommonLibrary::Utils::Interpolate;
using tervak::common;

namespace {

/// Shear modulus G and Poisson's ratio V of layer L. The depth table is looked up in a revision 5 profile
/// too, so that its faults are found there as well, though the values then come from the layer.
bool elastic_values(common& cmn, tervak::layer_number L, double& G, double& V) {
  int IERR = 0;
  Interpolate(cmn.NUMTQZ, 1, cmn.ZTQZ, cmn.G0SOIL, cmn.ZLAY(L), G, IERR);
  if (IERR != 0) return false;
  Interpolate(cmn.NUMTQZ, 1, cmn.ZTQZ, cmn.POIS, cmn.ZLAY(L), V, IERR);
  if (IERR != 0) {
    tervak::remark(cmn,
                   "(/,' **** SR/!SAVE : ERROR FROM SR/KestraCommonLibrary::Utils::Interpolate(   IERR=',i5)",
                   IERR);
    return false;
  }
  if (cmn.REVISION == 5) {
    G = cmn.GSOIL(L);
    V = cmn.SURED(L) > cmn.EPS ? 0.5 : tervak::sp(0.3f);
  }
  return true;
}

}  // namespace

bool write_layers(std::ostream& stream, common& cmn, int PROFILE) {
  for (tervak::layer_number L(1); L <= cmn.NUMLAY; ++L) {
    double G = 0.0;
    double V = 0.0;
    if (!elastic_values(cmn, L, G, V)) return false;
    double E = (V + 1.0) * G;
    E = E + E;
    const tervak::layer_code& code = cmn.LAYCOD(L);
    const std::array<double, 17> values = {17.0,
                                           static_cast<double>(PROFILE),
                                           static_cast<double>(L),
                                           cmn.ZBOTM(L),
                                           cmn.ZLAY(L),
                                           cmn.DEPTH(L),
                                           cmn.GAMEFF(L),
                                           cmn.PHIR(L),
                                           cmn.SURED(L),
                                           cmn.SIGZRES(L),
                                           cmn.DSIGZ(L),
                                           V,
                                           E,
                                           G,
                                           static_cast<double>(code.PYCODE),
                                           static_cast<double>(code.TZCODE),
                                           static_cast<double>(code.QZCODE)};
    write_record(stream, "RVSOILAY", values);
  }
  return true;
}

}  // namespace Varno::TervakLibrary::IO
