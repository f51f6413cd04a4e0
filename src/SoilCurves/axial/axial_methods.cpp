#include "SoilCurves/axial/axial_methods.hpp"

#include "SoilCurves/axial/QZAUTO.hpp"
#include "SoilCurves/axial/QZMAN.hpp"
#include "SoilCurves/axial/QZMISC.hpp"
#include "SoilCurves/axial/TZAUTO.hpp"
#include "SoilCurves/axial/TZMAN.hpp"
#include "SoilCurves/axial/TZMISC.hpp"

namespace tervak {

using enum deck_revisions;

curve_methods tz_methods() {
  static constexpr curve_method METHODS[] = {
      {0, "MANUAL", both, by_layer<TZMAN>}, {100, "LINEAR", both, TZAUTO}, {101, "AUTO-1", both, TZAUTO},
      {102, "AUTO-2", both, TZAUTO},        {103, "AUTO-3", both, TZAUTO}, {200, "KRAFT ", both, TZMISC},
      {214, "API-2014", both, TZMISC},      {293, "API-93", both, TZMISC}, {588, "????? ", only_4, TZMISC},
  };
  static_assert(each_code_once(METHODS));
  return METHODS;
}

curve_methods qz_methods() {
  static constexpr curve_method METHODS[] = {
      {0, "MANUAL", both, by_layer<QZMAN>}, {100, "LINEAR", both, QZAUTO}, {101, "AUTO-1", both, QZAUTO},
      {102, "AUTO-2", both, QZAUTO},        {103, "AUTO-3", both, QZAUTO}, {200, "ELAPLA", both, QZMISC},
      {214, "API-2014", both, QZMISC},      {293, "API-93", both, QZMISC},
  };
  static_assert(each_code_once(METHODS));
  return METHODS;
}

}  // namespace tervak
