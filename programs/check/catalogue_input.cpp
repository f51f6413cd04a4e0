#include "check/catalogue_rows.hpp"

namespace tervak::check::rows {

// General values (READGE)

const std::vector<known_message> GENERAL_VALUES = {
    {"**** SR/READGE : PROFILECOUNT,NUMBEROFPROFILES= %i %i", "ends, 1", "does not arise"},
    {"**** SR/READGE : NUMTYP ERROR  NUMTYP,MAX= %i %i", "ends, 1",
     "`SOILTYPES` has no row, or more than 500", "NUMTYP SOILTYPES"},
    {"**** SR/READGE : NUMTQZ ERROR  NUMTQZ,MAX= %i %i", "ends, 1",
     "`TZQZTABLE` has no row, or more than 10000", "NUMTQZ TZQZTABLE"},
    {"**** SR/READGE : NUMLAYM ERROR  NUMLAYM,MAX= %i %i", "ends, 1",
     "`MAINLAYERS` has no row, or more than 500. In revision 4 the line means `NUMLAY`, the "
     "calculation layers of `LAYERS`",
     "NUMLAYM NUMLAY MAINLAYERS LAYERS"},
    {"**** SR/READGE : NUMDSP ERROR  NUMDSP,MAX= %i %i", "ends, 1", "`DISPLACEMENTS` has more than 50 rows",
     "NUMDSP DISPLACEMENTS"},
    {"**** SR/READGE : MIDBOT ERROR  MIDBOT = %i", "ends, 1", "`MIDBOT` is neither 1 nor 2", "MIDBOT"},
    {"**** SR/READGE : GAMWAT ERROR  GAMWAT = %x", "ends, 1", "`GAMWAT` is not above zero", "GAMWAT"},
    {"**** SR/READGE : ATMPRS ERROR  ATMPRS = %x", "ends, 1", "`ATMPRS` is not above zero", "ATMPRS"},
    {"**** WARNING FROM SR/READGE : SUSTIF = %x", "goes on",
     "`SUSTIF` is zero or negative (all clay counts as stiff), or above 10 atmospheres (no clay "
     "does). If it is as meant, look at `ATMPRS`: kPa, 101.3",
     "SUSTIF"},
    {"**** WARNING FROM SR/READGE : JPRINT = %i", "goes on",
     "`JPRINT` is above 2 and counts as 2. A negative one counts as 0 without a word", "JPRINT"},
    {"**** WARNING FROM SR/READGE : JECHO = %i", "goes on",
     "`JECHO` is above 1 and counts as 1. A negative one counts as 0 without a word", "JECHO"},
    {"**** SR/READGE : SFTPHI ERROR  SFTPHI = %x"
     "|**** SR/READGE : SFSU ERROR  SFSU = %x"
     "|**** SR/READGE : SFSKF ERROR  SFSKF = %x"
     "|**** SR/READGE : SFSIGT ERROR  SFSIGT = %x",
     "ends, 1", "this safety factor is not above zero", "SFTPHI|SFSU|SFSKF|SFSIGT"},
    {"**** SR/READGE : NUMDIA,MAXDIA= %i %i", "ends, 1",
     "more than 50 values after `DIAM`. No lines of SR/LINERD follow", "DIAM"},
    {"**** SR/READGE : NUMDIA ERROR  NUMDIA,MAX= %i %i", "ends, 1",
     "does not arise: the deck's reader asks for `DIAM`, and the line above takes more than 50", "DIAM"},
    {"**** SR/READGE : DIAM SEQUENCE ERROR %x %x", "ends, 1",
     "two neighbouring values of `DIAM` do not ascend. A first value of zero or below passes here, "
     "and fails in the P-Y stage",
     "DIAM^"},
    {"**** SR/READGE : ESOL0,ESOL1 ERROR %x %x", "ends, 1", "`ESOL1` is negative; `ESOL0` is not judged",
     "ESOL1 ESOL0"},
    {"**** SR/READGE : POSAVR ERROR %x", "ends, 1", "`POSAVR` is not between 0 and 0.5", "POSAVR"},
    {"**** SR/READGE : SCRGEN,SCRLOC ERROR %x %x", "ends, 1",
     "one of them is negative, or `SCRLOC` is less than `SCRGEN`", "SCRGEN SCRLOC"},
    {"**** SR/READGE : LOCAL SCOUR SLOPE ERROR %x", "ends, 1",
     "`SCRSLP`, in degrees, is not between 0 and 89.9, or is not above 0.1 although there is local "
     "scour (`SCRLOC` above `SCRGEN`)",
     "SCRSLP SCRLOC"},
    {"**** SR/READGE : GAMPWP,GAMMAW ERROR %x %x", "ends, 1",
     "`GAMPWP` is negative or not below 2.1 times `GAMWAT`", "GAMPWP GAMWAT"},
};

// Report of the input stages (LINERD)

const std::vector<known_message> LINE_REPORT = {
    {"The %i last lines read from the temporary input file are shown below.", "", "N is 0"},
    {"Non-accepted value(s) exist in the input :", "", "the usual second line"},
    {"Error occurred while reading the bottom line :"
     "|An end-of-file was encountered at the bottom line :"
     "|The error was detected by SR/LINERD :",
     "", "do not arise"},
    {"%i : %t", "", "does not arise: a line of the deck"},
};

// Surface loads, soil types, depth table, layers (READG2)

const std::vector<known_message> SURFACE_LOADS_SOIL_TYPES_DEPTH_TABLE_LAYERS = {
    {"**** SR/READG2 : NUMFRC ERROR  NUMFRC,MAX= %i %i", "ends, 1", "`POINTLOADS` has more than 45 rows",
     "POINTLOADS"},
    {"**** SR/READG2 : AEMB ERROR %x", "ends, 1", "`AEMB` is negative", "AEMB"},
    {"**** SR/READG2 : RADIUS CIRCULAR LOAD ERROR %x", "ends, 1", "`RADCIR` is negative", "RADCIR"},
    {"**** SR/READG2 : SOIL TYPE SEQUENCE ERROR %i %i", "ends, 1",
     "`SOILTYPES`: the number expected, and the one found in column 1", "SOILTYPES#1.number"},
    {"**** SR/READG2 : TYP,GAMTOT,GAMMAW= %i %x %x", "goes on",
     "a remark in spite of its stars: `GAMTOT` is below 0.1 or above 3 times `GAMWAT`", "SOILTYPES#1.GAMTOT"},
    {"**** SR/READG2 : TYP,PHI-ANGLE= %i %x", "ends, 1", "`PHI` is not between 0 and 89 degrees",
     "SOILTYPES#1.PHI"},
    {"**** SR/READG2 : TYP,EPS50= %i %x", "ends, 1",
     "`EPS50` is not between 0 and 0.5: a fraction, not percent", "SOILTYPES#1.EPS50"},
    {"**** SR/READG2 : TYP,OCR= %i %x", "ends, 1", "a clay's `OCR` is not between 0 and 100",
     "SOILTYPES#1.OCR"},
    {"**** SR/READG2 : TYP,APIJ= %i %x", "ends, 1", "a clay's `APIJ` is not between 0 and 1",
     "SOILTYPES#1.APIJ"},
    {"**** SR/READG2 : TYP,OPEN= %i %i", "ends, 1", "`OPEN` is neither 0 nor 1", "SOILTYPES#1.OPEN"},
    {"**** SR/READG2 : TYP,TRES/TMAX= %i %x", "ends, 1", "`TRESMX` is negative or not below 1.01",
     "SOILTYPES#1.TRESMX"},
    {"**** SR/READG2 : TYP,TZZRES=", "ends, 1",
     "a `TZZRES` is negative. The line ends at the sign, without type and value: look through the "
     "last column of `SOILTYPES`",
     "SOILTYPES.TZZRES<0"},
    {"**** SR/READG2 : ZONINF ERROR %x", "ends, 1", "`ZONINF` is below 1.01", "ZONINF"},
    {"**** SR/READG2 : RFTZ ERROR %x", "ends, 1", "`RFTZ` is not between 0 and 1", "RFTZ"},
    {"**** SR/READG2 : TZ/QZ SEQUENCE ERROR %i %x %x", "ends, 1",
     "`TZQZTABLE`: row N does not lie deeper than the row before it; both levels", "TZQZTABLE#1.ZTQZ"},
    {"**** SR/READG2 : TCMP,TTNS ERROR  N,IERR= %i %x|**** SR/READG2 : TCMP,TTNS ERROR  N,IERR= %x",
     "ends, 1",
     "`TCMP` or `TTNS` is negative. After the heading `N,IERR` stand the row and `TCMP`; the same "
     "line comes again, with `TTNS` alone. There is no IERR",
     "TZQZTABLE.TCMP<0 TZQZTABLE.TTNS<0"},
    {"**** WARNING FROM SR/READG2 : TCMP.LT.cmn.ttns %i %x %x", "goes on",
     "row N: `TTNS` is above `TCMP`, skin friction in tension above that in compression", "TZQZTABLE#1.TTNS"},
    {"**** SR/READG2 : TYP,G0SOIL= %i %x", "ends, 1",
     "`G0SOIL` is below -100. Here and in the next four lines TYP is not a soil type but the row of "
     "`TZQZTABLE`",
     "TZQZTABLE#1.G0SOIL"},
    {"**** SR/READG2 : TYP,TZ/D-RATIO= %i %x"
     "|**** SR/READG2 : TYP,QZ/D-RATIO= %i %x",
     "ends, 1", "`TZDRAT` or `QZDRAT` is not between 0 and 0.5", "TZQZTABLE#1.TZDRAT|TZQZTABLE#1.QZDRAT"},
    {"**** SR/READG2 : TYP,SIGTIP= %i %x", "ends, 1", "`SIGTIP` is negative", "TZQZTABLE#1.SIGTIP"},
    {"**** SR/READG2 : TYP,POIS= %i %x", "ends, 1", "`POIS` is not between 0 and 0.5", "TZQZTABLE#1.POIS"},
    {"**** SR/READG2 : LAYER Z-SEQUENCE ERROR %i %x %x", "ends, 1",
     "`LAYERS`: `ZBOTM` of row N is not below the level reached so far (the sea floor, for row 1); "
     "both levels",
     "LAYERS#1.ZBOTM"},
    {"**** SR/READG2 : LAYER NUMBERING  NOW,L1,L2,MAX= %i %i %i %i", "ends, 1",
     "`LAYERS`: `L1` of row NOW is not the layer after the last `L2`, or `L1` is above `L2`, or `L2` "
     "is above `NUMLAY`. The last number is always 500 and not the limit that was broken",
     "LAYERS#1.L1 LAYERS#1.L2 NUMLAY"},
    {"**** SR/READG2 : SOIL TYPE ERROR  NOW,TYPE,NUMTYP= %i %i %i", "ends, 1",
     "`LAYERS`: `TYPE` of row NOW is no row of `SOILTYPES`", "LAYERS#1.TYPE"},
    {"**** SR/READG2 : PY/TZ/QZ CODE ERROR  NOW,CODES= %i %i %i %i", "ends, 1",
     "`LAYERS`: one of the three codes of row NOW is not for revision 4. The line does not tell "
     "which; see Codes in [deck.md](deck.md)",
     "LAYERS#1.PYCODE LAYERS#1.TZCODE LAYERS#1.QZCODE"},
};

}  // namespace tervak::check::rows
