#include "check/catalogue_rows.hpp"

namespace tervak::check::rows {

// On the listing

const std::vector<known_message> ON_THE_LISTING = {
    {"PROGRAM TERVAK   Soil Data Generator for Program KESTRA\nVERSION :  %t %t"
     "|Program TERVAK   Soil Data Generator for Program KESTRA\nVersion : Revision 5 - %t %t",
     "goes on", "heads each profile of revision 4, of revision 5"},
    {"ECHO PRINT OF INPUT DATA TO PROGRAM \"%t\"", "goes on",
     "the deck follows, line by line (`JECHO` 1). Each profile prints the whole deck, 80 columns of it"},
    {"**** ERROR IN SR/ECHO  NFR,NFW,NOW= %i %i %i", "goes on",
     "goes to standard error: the deck could not be read to its end for the echo"},
    {"Routine ICP96SC trace print\nSIGZ       OCR        SUCMP      ST         PLI        RAT        "
     "TAUSKN",
     "goes on",
     "no fault: the values of the ICP-05 skin friction in clay, one block for each layer. ST "
     "sensitivity, RAT distance to the tip over the radius, TAUSKN the friction"},
    {"Routine ICPXXTS trace print\nMCSAND  SIGZ   DR   CPTTIP  CPTAVR   DIAM   WALL IDOPCL   "
     "QINS\nQPLGD      QCORE     IDTIP   IERR",
     "goes on",
     "no fault: the values of the ICP-05 tip resistance in sand. IDOPCL 1 open, 2 closed; QPLGD "
     "plugged force, QCORE force on the steel; IDTIP 1 coring, 2 plugged"},
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
     "goes on", "do not arise: no run asks these methods for a trace"},
    {"SR/NGI05SC trace print\nSIGZ    SU     PLI   IOPEN    TAUSKN  IERR", "ends, 255",
     "stands in the temporary file `fem_io_unit_013` after an error of NGI05SC: the values that were "
     "refused"},
    {"SR/PYStiffClay TRACE PRINT\nNZ  ICYCL   GAM       diam        ZZ        ZSCR        H"
     "|SUAVR      SUZZ       SU5D       PC1        PC2 PC"
     "|A-FACT     STFK       EPSC"
     "|B-FACT     STFK       BPC        YC         YP Y5",
     "goes on", "do not arise: no run asks the stiff clay method for a trace"},
};

// On the USFOS exports

const std::vector<known_message> ON_THE_USFOS_EXPORTS = {
    {"*** ERROR IN G2U_WMAT ***"
     "|*** Number of Materials Exceeds Max of %i",
     "ends, 255",
     "three times layers times diameters is above 5000: fewer layers or fewer diameters in one profile",
     "|DIAM SUBDIVISION.NSUBM NUMLAY"},
    {"*** ERROR IN UWRMAT ***", "ends, 255",
     "two materials bear one number: two diameters are equal when rounded (to a thousandth of a "
     "length unit; from 99.5 units on to whole units), or layer 101 of one diameter meets layer 1 of "
     "a diameter a thousandth greater. Only `soil_70.fem` states it; `soil_halde.fem` holds the "
     "number twice",
     "DIAM"},
    {"*** ERROR IN G2USFOS ***", "ends, 255", "follows the lines above"},
    {"ELPLCURV %i"
     "|HYPELAST %i"
     "|'            Mat  ID               P           Delta",
     "", "no messages: heads of materials, see [outputs.md](outputs.md)"},
};

// Interface file

const std::vector<known_message> INTERFACE_FILE = {
    {"**** SR/!SAVE : ERROR FROM SR/KestraCommonLibrary::Utils::Interpolate(   IERR=%i", "ends, 1",
     "the depth table's levels do not ascend, as described under T-Z. Mostly the run ends with status "
     "1 and without this line, at the shear modulus that is looked up first. The records of the "
     "layers after, and all curves of the profile, are missing in `TERVAK.RIF`",
     "MAINLAYERS^.ZMAIN ZSEAFL TZQZTABLE.ZTQZ^"},
};

}  // namespace tervak::check::rows
