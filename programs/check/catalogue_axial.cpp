#include "check/catalogue_rows.hpp"

namespace tervak::check::rows {

// Axial capacity (R5AXCAP)

const std::vector<known_message> AXIAL_CAPACITY = {
    {"**** SR/R5AXCAP : Unknown calculation method\nMain layer, method = %i %t", "ends, 255",
     "does not arise", "SKINFRICTION#1.METHOD"},
    {"**** SR/R5AXCAP : Tip code error in SR/APITipResistance\nLayer,ITIP= %i %i"
     "|**** SR/R5AXCAP : Tip code error in SR/NGI05TS\nLayer,ITIP= %i %i",
     "ends, 255",
     "the tip came out as not plugged: its resistance is 1000000 or more in the run's units of force. "
     "Nearly always a matter of units: run in kN and m, or give `QTPTOP` and `QTPBOT`",
     "SKINFRICTION@1.METHOD DIAMP UNITF"},
    {"**** Error termination by SR/R5AXCAP", "ends, 255", "follows each message of this stage"},
    {"**** SR/NGI05SC error  IERR=%i", "ends, 255", "is above the line of NGI05SC below, with the same code"},
    {"**** SR/ICPXXTS ERROR   IERR =%i", "ends, 255",
     "is above the line of ICPXXTS below, with the same code"},
    {"**** SR/NGI05TS ERROR   IERR =%i", "ends, 255",
     "is above the line of NGI05TS below, with the same code"},
    {"**** SR/APITipResistance : Error from SR/INTPOL  IERR=%i", "ends, 255", "does not arise"},
    {"**** SR/R5AXCAP : Error from SR/API84SS. Layer,IERR= %i %i"
     "|Error codes from this routine are:\n1 = SIGZ < EPS   2 = PHI < 10 degr   3 = Open/closed code "
     "error",
     "ends, 255",
     "skin friction in sand by API-93. 2: the friction angle, given or found from the cone, is below "
     "10 degrees: `PHIM`, `CPTTOP`, `CPTBOT`. 1 and 3 do not arise",
     "{2=2}MAINLAYERS@1.PHIM {2=2}MAINLAYERS@1.CPTTOP SKINFRICTION@1.METHOD|"},
    {"**** SR/R5AXCAP : Error from SR/API87SC. Layer,IERR= %i %i"
     "|Error codes from this routine are:\n1 = SIGZ < EPS   2 = Su < EPS",
     "ends, 255", "skin friction in clay by API-93. 2: `SUTOP`, `SUBOT`",
     "{2=2}MAINLAYERS@1.SUTOP SKINFRICTION@1.METHOD|"},
    {"**** SR/R5AXCAP : Error from SR/ICP05SS. Layer,IERR= %i %i"
     "|Error codes from this routine are:\n-1 or -2 = MCSAND error   1 = SIGZ < EPS   2 = QCPT < EPS\n3 "
     "= DISTH < -EPS   4 = Radius < 0.01m   5 = Wall < 1mm\n6 = DELTAF < EPS and D50 < EPS  7 = "
     "Open/closed code error\n8 = Radius-Wall is negative",
     "ends, 255",
     "skin friction in sand by ICP-05. 4: `DIAMP` is below 0.02; 5: `WALL` is below 0.001, in run "
     "units, which this method takes for metres. The others do not arise",
     "{2=4,8}DIAMP {2=5,8}WALL SKINFRICTION@1.METHOD|"},
    {"**** SR/R5AXCAP : Error from SR/ICP96SC. Layer,IERR= %i %i"
     "|Error codes from this routine are:\n1 = SIGZ < EPS   2 = H/R < 8   3 = Ip < 0.1 %\n4 = OCR < 0.1 "
     "and SuCMP < EPS  5 = St < 0.9\n100+N = SR/INTPOL error",
     "ends, 255",
     "skin friction in clay by ICP-05. 3: `PLIM` is 0, the method needs the plasticity index. 4: "
     "`SUTOP`, `SUBOT`. The others do not arise",
     "{2=3}MAINLAYERS@1.PLIM {2=4}MAINLAYERS@1.SUTOP SKINFRICTION@1.METHOD|"},
    {"**** SR/R5AXCAP : Error from SR/NGI05SS. Layer,IERR= %i %i"
     "|Error codes from this routine are:\n1 = SIGZ < EPS   2 = Dr < 0.1 or Dr > 2.0\n3 = Present layer "
     "is below pile tip\n4 = Open/closed pile tip code error",
     "ends, 255",
     "skin friction in sand by NGI-05. 2: `DRM`; the limits are 0 and 2, whatever the text says. The "
     "others do not arise: a layer below the tip is worked as if at the tip",
     "{2=2}MAINLAYERS@1.DRM SKINFRICTION@1.METHOD|"},
    {"**** SR/R5AXCAP : Error from SR/NGI05SC. Layer,IERR= %i %i"
     "|Error codes from this routine are:\n1 = SIGZ < EPS   2 = Ip < EPS   3 = Su < EPS\n4 or 5 = "
     "Open/closed pile tip code error",
     "ends, 255",
     "skin friction in clay by NGI-05. 2: `PLIM` is 0. 5: the tip counts as closed, since `WALL` is "
     "above a quarter of `DIAMP`; the method takes open tips only: give the skin friction, or another "
     "method",
     "{2=2}MAINLAYERS@1.PLIM {2=3}MAINLAYERS@1.SUTOP {2=4,5}WALL {2=4,5}DIAMP SKINFRICTION@1.METHOD|"},
    {"**** SR/R5AXCAP : Error from SR/APITipResistance. Layer,IERR= %i %i"
     "|Error codes from this routine are:\n1,2 = MCSAND error   3 = SIGZ < EPS   4 = PHI < 1 degree",
     "ends, 255",
     "tip in sand by API-93. 4: the friction angle is below 1 degree: `PHIM`. The others do not arise",
     "{2=4}MAINLAYERS@1.PHIM SKINFRICTION@1.METHOD|"},
    {"**** SR/R5AXCAP : Error from SR/ICPXXTS. Layer,IERR= %i %i"
     "|Error codes from this routine are:\n1,2 = MCSAND error   3 = SIGZ < EPS   4 = Dr < 0.0\n5 = Dr > "
     "1.5   6-9 = CPT qc problem  10 = DIAm < 0.05m\n11 = DIAM > 10m   12 = WALL < 1mm   13 = DIAINS < "
     "0.0\n14,15 = Open/closed tip code error",
     "ends, 255",
     "tip in sand by ICP-05. 7: the cone resistance is above 200000 (200 MPa, in kN and m); 9: its "
     "mean around the tip. 10, 11: `DIAMP`, and 12: `WALL`, in run units, which this method takes for "
     "metres: with `UNITM` 1000.0 every pile is wider than 10. The others do not arise",
     "{2=4,5}MAINLAYERS@1.DRM {2=6,7,8,9}MAINLAYERS@1.CPTTOP {2=10,11}DIAMP {2=12,13}WALL "
     "SKINFRICTION@1.METHOD|"},
    {"**** SR/R5AXCAP : Error from SR/NGI05TS. Layer,IERR= %i %i"
     "|Error codes from this routine are:\n1,2 = MCSAND error   3 = SIGZ < EPS   4 = Dr < 0.0\n5 = Dr > "
     "1.5   6-9 = CPT qc problem  10 = DIAM < 0.05m\n11 = DIAM > 10m   12 = WALL < 1mm   13 = DIAINS < "
     "0.0\n14,15 = Open/closed tip code error",
     "ends, 255",
     "tip in sand by NGI-05. 7 and 9: the cone resistance is above 2000 `ATMPRS`. The others as for "
     "ICP-05",
     "{2=4,5}MAINLAYERS@1.DRM {2=6,7,8,9}MAINLAYERS@1.CPTTOP {2=10,11}DIAMP {2=12,13}WALL "
     "SKINFRICTION@1.METHOD|"},
};

}  // namespace tervak::check::rows
