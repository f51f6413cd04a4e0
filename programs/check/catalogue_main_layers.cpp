#include "check/catalogue_rows.hpp"

namespace tervak::check::rows {

// Main layers (REV5INP)

const std::vector<known_message> MAIN_LAYERS = {
    {"**** SR/REV5INP : Layer sequence error %i %i", "ends, 1",
     "column 1 of `MAINLAYERS`, `SKINFRICTION` or `SUBDIVISION`: the number expected, and the one "
     "found. The line does not tell which table",
     "MAINLAYERS.number~ SKINFRICTION.number~ SUBDIVISION.number~"},
    {"**** SR/REV5INP : Layer bottom z-value error\nLayer, Zlast, Znow= %i %x %x", "ends, 1",
     "`ZMAIN` is less than 0.01 m below that of the main layer above", "MAINLAYERS#1.ZMAIN"},
    {"**** SR/REV5INP : Total unit weight error\nLayer, Gamtot, Gamwater= %i %x %x", "ends, 1",
     "`GAMM` is zero, negative or above 3 times `GAMWAT`", "MAINLAYERS#1.GAMM GAMWAT"},
    {"**** SR/REV5INP : Friction angle > 60 degrees\nLayer, Phi= %i %x", "ends, 1",
     "`PHIM` is above 60 degrees", "MAINLAYERS#1.PHIM"},
    {"**** SR/REV5INP : Sand relative density error, Dr shall be 0-1\nLayer, Dr = %i %x", "ends, 1",
     "`DRM` is above 1.25, whatever the line says: a fraction, not percent", "MAINLAYERS#1.DRM"},
    {"**** SR/REV5INP : Layer %i is clay\nThis layer has non-zero sand parameters", "ends, 1",
     "`SUTOP` and `SUBOT` make the layer a clay, and `PHIM` or `DRM` is not 0.0",
     "MAINLAYERS#1.PHIM MAINLAYERS#1.DRM MAINLAYERS#1.SUTOP MAINLAYERS#1.SUBOT"},
    {"**** SR/REV5INP : Zero Su values are not allowed\nLayer, SuTop, SuBot= %i %x %x", "ends, 1",
     "a clay needs both `SUTOP` and `SUBOT` above zero", "MAINLAYERS#1.SUTOP MAINLAYERS#1.SUBOT"},
    {"**** SR/REV5INP : Non-accepted EPSC parameter\nLayer, EPSC= %i %x", "ends, 1",
     "a clay's `EPSCM` is zero, negative or above 0.1: a fraction, not percent", "MAINLAYERS#1.EPSCM"},
    {"**** SR/REV5INP : Non-accepted API J-parameter\nLayer, API-J= %i %x", "ends, 1",
     "a clay's `APIJM` is not above 0.1, or above 0.6", "MAINLAYERS#1.APIJM"},
    {"**** SR/REV5INP : Zero soil strength parameters in layer %i", "ends, 1",
     "a sand has neither cone resistance nor `PHIM` nor `DRM`",
     "MAINLAYERS#1.CPTTOP MAINLAYERS#1.PHIM MAINLAYERS#1.DRM MAINLAYERS#1.SUTOP"},
    {"**** SR/REV5INP : Non-accepted pile input values for axial capacity "
     "calcs\nDIAMP,WALL,ZTIP,MATPIL = %x %x %x %i",
     "ends, 1",
     "`MATPIL` is neither 1 nor 2, or `ZTIP` lies above the sea floor, or twice `WALL` is above "
     "`DIAMP`. Asked of every profile, also where no capacity is calculated",
     "DIAMP WALL ZTIP MATPIL"},
    {"**** SR/REV5INP : The pile tip is located below the last soil layer\nZ.pile, Z.bottom = %x %x",
     "ends, 1", "`ZTIP` lies below `ZMAIN` of the last main layer", "ZTIP MAINLAYERS$.ZMAIN"},
    {"**** SR/REV5INP : Invalid calculation method\nLayer, method= %i %i", "ends, 1",
     "`METHOD` is not 0, 1, 2 or 3", "SKINFRICTION#1.METHOD"},
    {"**** SR/REV5INP : Non-accepted factor on Go\nLayer, Go factor= %i %x", "ends, 1",
     "`GOFAC` is not above zero", "SKINFRICTION#1.GOFAC"},
    {"**** SR/REV5INP : Non-accepted t.res/t.max\nLayer, t.res/t.max= %i %x", "ends, 1",
     "`TRESM` is not between 0.01 and 1", "SKINFRICTION#1.TRESM"},
    {"---- Warning from SR/REV5INP : Layer = %i Method = %t\nNon-zero skin friction and/or tip stress "
     "values were specified, these values will be used",
     "goes on",
     "the main layer names a method and gives values too. What is given is used, the method fills in "
     "the rest: all of the skin friction where none is given, the tip stress where none is given",
     "SKINFRICTION#1.METHOD"},
    {"---- Warning from SR/REV5INP : Layer = %i\nNo calculation cmn.method specified, but given skin "
     "friction and tip resistance values are all zero",
     "goes on", "`METHOD` 0 and all values zero: the main layer will carry no axial load",
     "SKINFRICTION#1.METHOD"},
    {"**** SR/REV5INP : Non-accepted NUMPIL value = %i", "ends, 1", "`NUMPIL` is negative", "NUMPIL"},
    {"**** SR/REV5INP : Layer bottom Z-levels mismatch\nLayer, Z1, Z2 = %i %x %x", "ends, 1",
     "`ZMAIN` in `SUBDIVISION` (Z1) is not that of `MAINLAYERS` (Z2)",
     "SUBDIVISION#1.ZMAIN MAINLAYERS#1.ZMAIN"},
    {"**** SR/REV5INP : Layer sub-division conflicting specifications\nLayer, sub-division, NUMPIL = "
     "%i %i %i",
     "ends, 1", "with `NUMPIL` every `NSUBM` must be 0", "SUBDIVISION#1.NSUBM NUMPIL"},
    {"**** SR/REV5INP : Main layer sub-division error input\nLayer, subdivisions, max allowed layers = "
     "%i %i %i",
     "ends, 1", "`NSUBM` is negative or above 500", "SUBDIVISION#1.NSUBM"},
    {"**** SR/REV5INP : Main layer sub-division error input\nSubdivisions = 0 requires non-zero NUMPIL "
     "input\nLayer, subdivisions, NUMPIL= %i %i %i",
     "ends, 1", "`NSUBM` is 0, and no `NUMPIL` names a pile", "SUBDIVISION#1.NSUBM"},
    {"**** SR/REV5INP : Non-accepted P-Y code. Layer,code= %i %i"
     "|**** SR/REV5INP : Non-accepted T-Z code. Layer,code= %i %i"
     "|**** SR/REV5INP : Non-accepted Q-Z code. Layer,code= %i %i",
     "ends, 1", "`PYCODM`, `TZCODM` or `QZCODM` is not for revision 5; see Codes in [deck.md](deck.md)",
     "SUBDIVISION#1.PYCODM|SUBDIVISION#1.TZCODM|SUBDIVISION#1.QZCODM"},
    {"**** SR/REV5INP : Non-accepted P-Y code. Layer,code= %i %i\nThis is a sand layer, p-y code 570 "
     "(Modified Matlock) is for clay only",
     "ends, 1", "take 404 in sand", "SUBDIVISION#1.PYCODM MAINLAYERS#1.SUTOP"},
    {"**** SR/REV5INP : Non-accepted P-Y code. Layer,code= %i %i\nThis is a clay layer, p-y code 588 "
     "is for carbonate sand only",
     "ends, 1", "take another code in clay", "SUBDIVISION#1.PYCODM MAINLAYERS#1.SUTOP"},
    {"**** SR/REV5INP : Non-accepted P-Y code. Layer,code= %i %i\nThis is a sand layer, p-y code 600 "
     "(NGI-2011) is for soft clay only",
     "ends, 1", "take another code in sand", "SUBDIVISION#1.PYCODM MAINLAYERS#1.SUTOP"},
    {"**** SR/REV5INP : Non-accepted code for open/closed crack\nLayer, code = %i %i", "ends, 1",
     "`OPENM` is neither 0 nor 1", "SUBDIVISION#1.OPENM"},
};

}  // namespace tervak::check::rows
