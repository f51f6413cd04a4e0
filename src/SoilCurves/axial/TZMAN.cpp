#include "SoilCurves/axial/TZMAN.hpp"

#include "Control/state/note.hpp"
#include "SoilCurves/axial/manual_axial_curve.hpp"

namespace tervak {

void TZMAN(common& cmn, layer_number NL, diameter_number ND) {
  note(cmn, equation_of("TZ-0-1"), {{"SFSKF", cmn.SFSKF}});
  lay_manual_curve(
      cmn, tz_curves(cmn), NL, ND, cmn.SFSKF,
      {"(/,' **** SR/TZMAN : GIVEN MANUAL T-Z CURVE DOES NOT',' PASS ORIGIN',/,' LAYER,NDIAM =',2i5)",
       "(/,' **** SR/TZMAN  MAXIMUM NUMBER OF CURVE POINTS ON ONE SIDE OF ORIGIN EXCEEDED ,MAX,LEFT,RIGHT=',3i5)"});
}

}  // namespace tervak
