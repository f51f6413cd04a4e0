#include "check/catalogue_rows.hpp"

namespace tervak::check::rows {

// P-Y curves

const std::vector<known_message> PY_CURVES = {
    {"**** SR/API14 : ERROR FROM SR/APILAT  NL,ND,IERR= %i %i %i"
     "|**** SR/API84 : ERROR FROM SR/APILAT  NL,ND,IERR= %i %i %i"
     "|**** SR/API87 : ERROR FROM SR/APILAT  NL,ND,IERR= %i %i %i"
     "|**** SR/ISO04 : ERROR FROM SR/APILAT  NL,ND,IERR= %i %i %i",
     "ends, 1",
     "no ultimate resistance for this layer and diameter. IERR 1: neither friction angle nor Su; 2: "
     "the level lies within a millionth of the local scour level; 3: the effective stress is "
     "negative; 4: a `DIAM` that is zero or negative; 6: the mean effective unit weight above the "
     "level is negative. 3 and 6: `GAMPWP` against `GAMM` (`GAMTOT`), or `SIGSUR`, `SIGEMB`, `SIGCIR` "
     "or a load that is negative. 5 and 7 do not arise. Where several hold, the last number stands",
     "{3=1}MAINLAYERS@1.PHIM {3=1}MAINLAYERS@1.SUTOP {3=1}SOILTYPES@1.PHI {3=2}SCRLOC "
     "{3=2}SUBDIVISION@1.NSUBM {3=2}LAYERS@1.ZBOTM {3=3,6}GAMPWP {3=3,6}MAINLAYERS@1.GAMM "
     "{3=3,6}SOILTYPES@1.GAMTOT {3=4}DIAM#2 SUBDIVISION@1.PYCODM LAYERS@1.PYCODE"},
    {"**** SR/API14 : ERROR FROM SR/PYRCK  NL,ND,IERR= %i %i %i"
     "|**** SR/API84 : ERROR FROM SR/PYRCK  NL,ND,IERR= %i %i %i"
     "|**** SR/API87 : ERROR FROM SR/PYRCK  NL,ND,IERR= %i %i %i"
     "|**** SR/ISO04 : ERROR FROM SR/PYRCK  NL,ND,IERR= %i %i %i",
     "ends, 1",
     "the stiff clay curve (Su above `SUSTIF`) looks up the strengths of all clay layers by depth. "
     "IERR 12: depths do not ascend: `ATMPRS` or `GAMWAT`, by which they are brought to metres, is "
     "far off. Over 20: does not arise",
     "ATMPRS GAMWAT SUBDIVISION@1.PYCODM LAYERS@1.PYCODE"},
    {"**** SR/API14 : ERROR FROM SR/INTPOL  IERR=%i"
     "|**** SR/API87 : ERROR FROM SR/INTPOL  IERR=%i"
     "|**** SR/API84 : ERROR FROM SR/KestraCommonLibrary::Utils::Interpolate(  IERR=%i"
     "|**** SR/ISO04 : ERROR FROM SR/KestraCommonLibrary::Utils::Interpolate(  IERR=%i",
     "ends, 1", "does not arise: the look-up in the method's own table failed"},
    {"WARNING FROM SR/API84 : ND,NL,EXPN= %i %i %x\nABOVE EXPONENT VALUE WAS REPLACED BY 1.01", "goes on",
     "code 284 in sand: the parabola between the straight parts came out as no parabola and was "
     "flattened. Diameter first, then layer. Look at the curve in the listing",
     "SUBDIVISION@2.PYCODM LAYERS@2.PYCODE DIAM#1"},
    {"**** SR/VRK80 : ERROR FROM SR/VRKLAT  NL,ND,IERR= %i", "ends, 1",
     "code 380. The one number is the error code, though it stands in the place of NL; layer and "
     "diameter stand in the next line of SR/CONTRL. 1, 2, 4 as above; 3: the effective stress is not "
     "above zero; 6: the mean effective unit weight is not above zero",
     "{1=1}MAINLAYERS.PHIM {1=3,6}GAMPWP {1=4}DIAM"},
    {"**** SR/NGI11 : Non-accepted ratio Gmax/Su\nLayer,Type,Diameter,Gmax/Su = %i %i %x %x\n**** Run "
     "was stopped by SR/NGI11",
     "ends, 255",
     "code 600: the first of the five parameters in `SUBDIVISION` is not between 25 and 2500. It is "
     "0.0 where the row gives no parameters",
     "SUBDIVISION#2.#8"},
};

// T-Z curves

const std::vector<known_message> TZ_CURVES = {
    {"**** SR/TZMISC : ERROR FROM SR/KestraCommonLibrary::Utils::Interpolate(   IERR=%i"
     "|**** SR/TZAUTO : ERROR FROM SR/KestraCommonLibrary::Utils::Interpolate(   IERR=%i",
     "ends, 1",
     "levels of the depth table do not ascend. Revision 5: the first main layer is 2 mm thick or "
     "less: `ZMAIN` of row 1 against `ZSEAFL`",
     "MAINLAYERS^.ZMAIN ZSEAFL TZQZTABLE.ZTQZ^|MAINLAYERS^.ZMAIN ZSEAFL TZQZTABLE.ZTQZ^"},
    {"**** SR/TZMISC : SOIL SHEAR MODULUS  NL,ND,G= %i %i %x", "ends, 1",
     "code 200, revision 4: no shear modulus at this level: `G0SOIL`, or the strength that it is "
     "calculated from",
     "LAYERS@1.TZCODE SUBDIVISION@1.TZCODM SOILTYPES@1.SU0 TZQZTABLE.G0SOIL"},
    {"**** SR/TZMISC : ICODE IS NOT 200 OR 293  ICODE =%i", "ends, 1",
     "does not arise: the input checks refuse such a code"},
};

// Q-Z curves

const std::vector<known_message> QZ_CURVES = {
    {"**** SR/QZMISC : ERROR FROM SR/KestraCommonLibrary::Utils::Interpolate(   IERR=%i"
     "|**** SR/QZAUTO : ERROR FROM SR/KestraCommonLibrary::Utils::Interpolate(   IERR=%i",
     "ends, 1", "as for T-Z", "MAINLAYERS^.ZMAIN ZSEAFL TZQZTABLE.ZTQZ^"},
    {"**** SR/QZMISC : G-MODULUS OR POIS ERROR\nLAYER,NDIA,GMOD,POIS= %i %i %x %x", "ends, 1",
     "code 200, revision 4: no shear modulus, or Poisson's ratio not between 0 and 0.5, at this "
     "level: `G0SOIL`, `POIS`, or the strength that the modulus is calculated from",
     "LAYERS@1.QZCODE SUBDIVISION@1.QZCODM TZQZTABLE.POIS"},
    {"**** WARNING FROM SR/QZMISC : INITIAL STIFFNESS PROBLEM\nLAYER,NDIA,ESOIL,DSPELAST,DSPMAX= %i %i "
     "%x %x %x",
     "goes on",
     "code 200: the elastic settlement DSPELAST is not below DSPMAX, the displacement at full stress "
     "(0.05 diameters, revision 4: `QZDRAT` diameters). The curve is a straight line to full stress. "
     "The soil is too soft for its tip stress: `QTPTOP`, `QTPBOT` (`SIGTIP`), `GOFAC` (`G0SOIL`)",
     "SKINFRICTION@1.QTPTOP SKINFRICTION@1.GOFAC LAYERS@1.QZCODE"},
    {"**** SR/QZMISC : ICODE IS NOT 200, 214 OR 293  ICODE =%i", "ends, 1",
     "does not arise: the input checks refuse such a code"},
};

// Manual curves, laid out (TZMAN, QZMAN)

const std::vector<known_message> MANUAL_CURVES_LAID_OUT = {
    {"**** SR/TZMAN : GIVEN MANUAL T-Z CURVE DOES NOT PASS ORIGIN\nLAYER,NDIAM = %i %i"
     "|**** SR/QZMAN : GIVEN MANUAL Q-Z CURVE DOES NOT PASS ORIGIN\nLAYER,NDIAM = %i %i",
     "ends, 1", "one of the points of a curve in `MANUALTZ` or `MANUALQZ` must be `0.0 0.0`",
     "MANUALTZ@1/2|MANUALQZ@1/2"},
    {"**** SR/TZMAN  MAXIMUM NUMBER OF CURVE POINTS ON ONE SIDE OF ORIGIN EXCEEDED ,MAX,LEFT,RIGHT= "
     "%i %i %i"
     "|**** SR/QZMAN  MAXIMUM NUMBER OF CURVE POINTS ON ONE SIDE OF ORIGIN EXCEEDED ,MAX,LEFT,RIGHT= "
     "%i %i %i",
     "ends, 1",
     "at most 14 points stand on each side of the origin; so a curve that begins there has at most 15",
     "MANUALTZ MANUALQZ|MANUALQZ MANUALTZ"},
};

// Modification (MODIFY)

const std::vector<known_message> MODIFICATION = {
    {"**** SR/MODIFY : GAP GAVE P-Y MAX POINTS ERROR\nNDIA,LAY,NUMPNTS,MAX= %i %i %i %i", "ends, 1",
     "a gap (`PYGAP`) takes one more point on each side, and the curve has none left. Give at most 13 "
     "points in `MANUALPY` where the layer has a gap",
     "MODIFYPY.PYGAP>0 MANUALPY@2/1"},
    {"**** SR/MODIFY : P-Y DATA SEQUENCE ERROR\nNDIA,LAY,N, PYDSP(N),PYDSP(N-1)= %i %i %i %x %x"
     "|**** SR/MODIFY : T-Z DATA SEQUENCE ERROR\nNDIA,LAY,N,TZDSP(N),TZDSP(N-1)= %i %i %i %x %x"
     "|**** SR/MODIFY : Q-Z DATA SEQUENCE ERROR\nNDIA,LAY,N,QZDSP(N),QZDSP(N-1)= %i %i %i %x %x",
     "ends, 1",
     "the displacements of a finished curve do not ascend: point N of 29 and the one before it. "
     "Mostly `PYDEND`, `TZDEND` or `QZDEND` is so small that it draws the two far points back over "
     "the point before them",
     "MODIFYPY.PYDEND MANUALPY@2/1|MODIFYTZ.TZDEND MANUALTZ@2/1|MODIFYQZ.QZDEND MANUALQZ@2/1"},
};

}  // namespace tervak::check::rows
