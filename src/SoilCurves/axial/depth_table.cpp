#include "SoilCurves/axial/depth_table.hpp"

#include <cstddef>

#include "Control/state/Interpolate.hpp"

namespace tervak {

namespace {

const vector1<double>& column_of(const common& cmn, depth_column column) {
  switch (column) {
    case depth_column::TCMP:
      return cmn.TCMP;
    case depth_column::TTNS:
      return cmn.TTNS;
    case depth_column::G0SOIL:
      return cmn.G0SOIL;
    case depth_column::TZDRAT:
      return cmn.TZDRAT;
    case depth_column::SIGTIP:
      return cmn.SIGTIP;
    case depth_column::QZDRAT:
      return cmn.QZDRAT;
    case depth_column::POIS:
      break;
  }
  return cmn.POIS;
}

}  // namespace

int depth_values(common& cmn, layer_number NL, diameter_number ND,
                 std::initializer_list<depth_request> requests) {
  for (const depth_request& request : requests) {
    depth_lookup& kept = cmn.DEPTHLOOKUPS.at(static_cast<std::size_t>(request.column));
    if (ND == 1 || kept.NL != NL) {
      int IERR = 0;
      kept.NL = layer_number();
      KestraCommonLibrary::Utils::Interpolate(cmn.NUMTQZ, 1, cmn.ZTQZ, column_of(cmn, request.column),
                                              cmn.ZLAY(NL), kept.YI, IERR);
      if (IERR != 0) return IERR;
      kept.NL = NL;
    }
    request.YI = kept.YI;
  }
  return 0;
}

}  // namespace tervak
