#include "SoilCurves/py/py_methods.hpp"

#include "SoilCurves/py/API14.hpp"
#include "SoilCurves/py/API84.hpp"
#include "SoilCurves/py/API87.hpp"
#include "SoilCurves/py/ISO04.hpp"
#include "SoilCurves/py/NGIPy.hpp"
#include "SoilCurves/py/PYAUTO.hpp"
#include "SoilCurves/py/PYMAN.hpp"
#include "SoilCurves/py/VRK80.hpp"

namespace tervak {

curve_methods py_methods() {
  using enum deck_revisions;
  static constexpr curve_method METHODS[] = {
      {0, "MANUAL", both, by_layer<PYMAN>},
      {100, "LINEAR", both, PYAUTO},
      {101, "AUTO-1", both, PYAUTO},
      {102, "AUTO-2", both, PYAUTO},
      {103, "AUTO-3", both, PYAUTO},
      {214, "API-2014", both, by_layer<API14>},
      {284, "API-84", both, by_layer<API84>},
      {287, "API-87", both, by_layer<API87>},
      {380, "VRK-80", both, by_layer<VRK80>},
      {404, "ISO-04", both, by_layer<ISO04>},
      {570, "ModMat", both, soil_kind::clay,
       "(/,' **** SR/REV5INP : Non-accepted P-Y code. Layer,code=',2i5,/,' This is a sand layer, p-y code 570 (Modified Matlock',') is for clay only')",
       by_layer<ISO04>},
      {588, "????? ", both, soil_kind::sand,
       "(/,' **** SR/REV5INP : Non-accepted P-Y code. Layer,code=',2i5,/,' This is a clay layer, p-y code 588 is for carbonate',' sand only')",
       by_layer<API87>},
      {600, "NGI-11", only_5, soil_kind::clay,
       "(/,' **** SR/REV5INP : Non-accepted P-Y code. Layer,code=',2i5,/,' This is a sand layer, p-y code 600 (NGI-2011',') is for soft clay only')",
       by_layer<NGI11>},
  };
  static_assert(each_code_once(METHODS));
  return METHODS;
}

}  // namespace tervak
