#include "check/catalogue_rows.hpp"

namespace tervak::check::rows {

// Lines that no run prints: the checks before them, or the values that the routines are called with, keep
// them out.

const std::vector<known_message> CANNOT_ARISE = {
    {"ABOVE ERROR CODE MEANS FILE TERVAK.INP NOT FOUND", "ends, 1",
     "does not arise: a missing `TERVAK.INP` gives IERR 1 and the line of the open problem only"},
    {"**** SR/CONTRL  FILE TERVAK.RIF OPEN PROBLEM  IERR=%i", "ends, 1",
     "does not arise: nothing is opened at this point. A `TERVAK.RIF` that cannot be written is reported "
     "nowhere; see the line of its generation under Start, files, end"},
    {"**** SR/CONTRL  INVALID P-Y CODE %i"
     "|**** SR/CONTRL  INVALID T-Z CODE %i"
     "|**** SR/CONTRL  INVALID Q-Z CODE %i",
     "ends, **0**",
     "does not arise: the input checks refuse such a code. Correct `PYCODM`, `TZCODM`, `QZCODM` "
     "(`PYCODE`, `TZCODE`, `QZCODE`)",
     "SUBDIVISION.PYCODM LAYERS.PYCODE|SUBDIVISION.TZCODM LAYERS.TZCODE|SUBDIVISION.QZCODM "
     "LAYERS.QZCODE"},
    {"**** SR/CONTRL  ERROR FROM SR/PRINT  IERR=%i", "ends, 1",
     "does not arise: no page of the listing sets an error"},
    {"**** SR/READGE : PROFILECOUNT,NUMBEROFPROFILES= %i %i", "ends, 1",
     "does not arise: the run ends after the last profile of the deck"},
    {"**** SR/READGE : NUMDIA ERROR  NUMDIA,MAX= %i %i", "ends, 1",
     "does not arise: the deck's reader requires `DIAM`, and more than 50 values give the line `NUMDIA,MAXDIA`",
     "DIAM"},
    {"The %i last lines read from the temporary input file are shown below.\nError occurred while reading the "
     "bottom line :"
     "|The %i last lines read from the temporary input file are shown below.\nAn end-of-file was encountered at the "
     "bottom line :"
     "|The %i last lines read from the temporary input file are shown below.\nThe error was detected by SR/LINERD :",
     "", "does not arise: the report has one kind of fault only"},
    {"%i : %t", "", "does not arise: a line of the deck, and the report shows none"},
    {"The above error code means that the file was not found", "ends, 255",
     "does not arise: a missing `PILEPLOT.TXT` gives IERR 1 and the line of the open problem only"},
    {"**** SR/R5AXCAP : Unknown calculation method\nMain layer, method = %i %t", "ends, 255",
     "does not arise: SR/REV5INP refuses another method than 0, 1, 2 and 3", "SKINFRICTION#1.METHOD"},
    {"**** SR/APITipResistance : Error from SR/INTPOL  IERR=%i", "ends, 255",
     "does not arise: the look-up in the method's own table cannot fail"},
    {"**** SR/R5AXCAP : Error from SR/API87SC. Layer,IERR= %i %i\nError codes from this routine "
     "are:\n1 = SIGZ < EPS   2 = Su < EPS",
     "ends, 255",
     "does not arise: skin friction in clay by API-93. A layer without effective stress is passed over, "
     "and SR/REV5INP refuses a clay without strength",
     "MAINLAYERS@1.SUTOP SKINFRICTION@1.METHOD"},
    {"**** SR/R5AXCAP : Error from SR/NGI05SS. Layer,IERR= %i %i\nError codes from this routine "
     "are:\n1 = SIGZ < EPS   2 = Dr < 0.1 or Dr > 2.0\n3 = Present layer is below pile tip\n4 = "
     "Open/closed pile tip code error",
     "ends, 255",
     "does not arise: skin friction in sand by NGI-05. Code 2 means that the relative density is below 0 "
     "or above 2; the 0.1 of the text is not tested, and a density between 0 and 0.1 gives the lower limit "
     "of the method. SR/REV5INP refuses `DRM` above 1.25, and R5SOIL replaces a negative one. A layer below "
     "the tip is calculated as if it were at the tip",
     "MAINLAYERS@1.DRM SKINFRICTION@1.METHOD"},
    {"**** SR/API14 : ERROR FROM SR/INTPOL  IERR=%i"
     "|**** SR/API87 : ERROR FROM SR/INTPOL  IERR=%i"
     "|**** SR/API84 : ERROR FROM SR/KestraCommonLibrary::Utils::Interpolate(  IERR=%i"
     "|**** SR/ISO04 : ERROR FROM SR/KestraCommonLibrary::Utils::Interpolate(  IERR=%i",
     "ends, 1", "does not arise: the look-up in the method's own table cannot fail"},
    {"**** SR/TZMISC : SOIL SHEAR MODULUS  NL,ND,G= %i %i %x", "ends, 1",
     "does not arise: in revision 4 a shear modulus of zero counts as 1E-10, and in revision 5 a layer without "
     "one has a curve without stress",
     "TZQZTABLE.G0SOIL LAYERS@1.TZCODE"},
    {"**** SR/TZMISC : ICODE IS NOT 200 OR 293  ICODE =%i", "ends, 1",
     "does not arise: the input checks refuse such a code"},
    {"**** SR/QZMISC : G-MODULUS OR POIS ERROR\nLAYER,NDIA,GMOD,POIS= %i %i %x %x", "ends, 1",
     "does not arise: as for T-Z, and SR/READG2 refuses a `POIS` that is not between 0 and 0.5",
     "TZQZTABLE.POIS LAYERS@1.QZCODE"},
    {"**** SR/QZMISC : ICODE IS NOT 200, 214 OR 293  ICODE =%i", "ends, 1",
     "does not arise: the input checks refuse such a code"},
    {"Routine API84SS trace print\nSIGZ       PHI   IOC   TAUCMP     TAUTNS"
     "|Routine API87SC trace print\nSIGZ         SU         TAUSKN"
     "|Routine ICP05SS trace print\nSIGZ       QCPT       DISTH      RAD        WALL       DELTAF     "
     "D50\nIDOPCL     TAUCMP     TAUTNS"
     "|Routine NGI05SS trace print\nSIGZ       DR         ZTIP       ZNOW     IDOPCL  TAUCMP       "
     "TAUTNS"
     "|Routine NGI05TS trace print\nSIGZ   DR   CPTTIP  CPTAVR   DIAM   WALL IDOPCL   QINS       "
     "QICLAY\nQPLGD      QCORE     IDTIP   IERR"
     "|SR/APITipResistance trace print\nMCSAND  SIGZ   PHI   SIGMAX   DIAM   WALL    QINS    QPLGD    "
     "QCORE IDTIP IERR",
     "goes on", "does not arise: no run asks these methods for a trace"},
    {"SR/PYStiffClay TRACE PRINT\nNZ  ICYCL   GAM       diam        ZZ        ZSCR        H\nSUAVR      "
     "SUZZ       SU5D       PC1        PC2 PC\nA-FACT     STFK       EPSC\nB-FACT     STFK       BPC        YC   "
     "      YP Y5",
     "goes on",
     "does not arise: no run asks the stiff clay method for a trace. These are its headings, each with a "
     "line of values below it"},
    {"# WARNING from UWRMAT: Materials missing !", "goes on",
     "does not arise: each layer and diameter gives its three materials"},
};

}  // namespace tervak::check::rows
