#include "SoilCurves/axial/QZMAN.hpp"

#include "Control/state/note.hpp"
#include "SoilCurves/axial/manual_axial_curve.hpp"

namespace tervak {

void QZMAN(common& cmn, layer_number NL, diameter_number ND) {
  note(cmn, equation_of("QZ-0-1"), {{"SFSIGT", cmn.SFSIGT}});
  lay_manual_curve(
      cmn, qz_curves(cmn), NL, ND, cmn.SFSIGT,
      {"(/,' **** SR/QZMAN : GIVEN MANUAL Q-Z CURVE DOES NOT',' PASS ORIGIN',/,' LAYER,NDIAM =',2i5)",
       "(/,' **** SR/QZMAN  MAXIMUM NUMBER OF CURVE POINTS ON ONE SIDE OF ORIGIN EXCEEDED ,MAX,LEFT,RIGHT=',3i5)"});
}

}  // namespace tervak
