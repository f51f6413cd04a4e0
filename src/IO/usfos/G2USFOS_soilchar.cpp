#include <cmath>

#include "Control/state/sp.hpp"
#include "fem/write.hpp"
#include "IO/usfos/G2USFOS_materials.hpp"

namespace tervak {

// USFOS has Z upwards. The heading lines begin with an apostrophe, which makes them comments there.
void usfos_write_soilchar(common& cmn, int UNIT, double D, double F, double L,
                          const std::vector<usfos_layer>& layers) {
  const double Z_mud = -cmn.ZSEAFL;
  fem::write(cmn.units, UNIT,
             "('''',/,'''','            Soil_ID  Type  Z_mud      D_ref  ','   F_Fac     L_Fac ')");
  if (F >= sp(0.001f) && L >= sp(0.001f))
    fem::write(cmn.units, UNIT, "(' SOILCHAR ',2i7,4f10.3)", usfos_soil_number(D), 1, Z_mud, D, F, L);
  else
    fem::write(cmn.units, UNIT, "(' SOILCHAR ',2i7,4e12.3)", usfos_soil_number(D), 1, Z_mud, D, F, L);
  fem::write(cmn.units, UNIT,
             "('''',/,'''','                           Z_top      Z_bott ','   P-Y       T-Z       Q-Z ')");
  double top = 0.0;
  int I = 0;
  for (const auto& [py, tz, qz] : layers) {
    const double bottom = -1.0 * (cmn.ZBOTM(++I) - std::fabs(Z_mud));
    fem::write(cmn.units, UNIT, "(20x,2f12.2,3i10)", top, bottom, py, tz, qz);
    top = bottom;
  }
}

}  // namespace tervak
