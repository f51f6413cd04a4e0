#include "SoilCurves/store/first_live_layer.hpp"

namespace tervak {

int first_live_layer(const common& cmn) {
  for (int i = 1; i <= cmn.NUMLAY; ++i)
    if (cmn.ZLAY(i) > cmn.ZSEAFL + cmn.SCRLOC) return i;
  return cmn.NUMLAY;
}

}  // namespace tervak
