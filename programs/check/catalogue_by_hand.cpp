#include "check/catalogue_rows.hpp"

namespace tervak::check::rows {

// Curves given by hand, factors, soil displacements (READG3)

const std::vector<known_message> CURVES_GIVEN_BY_HAND_FACTORS_SOIL_DISPLACEMENTS = {
    {"**** SR/READG3 : MANUAL P-Y LAYER SEQUENCE  NL,LAY %i %i"
     "|**** SR/READG3 : MANUAL T-Z LAYER SEQUENCE  NL,LAY %i %i"
     "|**** SR/READG3 : MANUAL Q-Z LAYER SEQUENCE  NL,LAY %i %i",
     "ends, 1",
     "`MANUALPY`, `MANUALTZ`, `MANUALQZ`: the next curve should be for calculation layer NL, its `AT` "
     "names LAY. There is one curve for each diameter of each layer of code 0, from the top: the curves "
     "are out of order, or, with pile nodes, one is missing or too many above. `AT M1 1.2` saves counting where "
     "the subdivision is by counts",
     "MANUALPY@2 MANUALPY|MANUALTZ@2 MANUALTZ|MANUALQZ@2 MANUALQZ"},
    {"**** SR/READG3 : MANUAL P-Y DIAMETER  NL,DIA= %i %x"
     "|**** SR/READG3 : MANUAL T-Z DIAMETER  NL,DIA= %i %x"
     "|**** SR/READG3 : MANUAL Q-Z DIAMETER  NL,DIA= %i %x",
     "ends, 1", "the `AT` of layer NL names this diameter, which is not the next one of `DIAM`",
     "MANUALPY@1|MANUALTZ@1|MANUALQZ@1"},
    {"**** SR/READG3 : MANUAL P-Y CURVE POINTS  NL,NUM= %i %i", "ends, 1",
     "the curve of layer NL has NUM points; a P-Y curve has 2 to 15", "MANUALPY@1"},
    {"**** SR/READG3 : MANUAL T-Z CURVE POINTS  NL,NUM= %i %i"
     "|**** SR/READG3 : MANUAL Q-Z CURVE POINTS  NL,NUM= %i %i",
     "ends, 1",
     "the curve of layer NL has NUM points; at most 29 are allowed, at least 2, and 14 on each side "
     "of the origin",
     "MANUALTZ@1|MANUALQZ@1"},
    {"**** SR/READG3 : MANUAL P-Y FIRST POINT NOT ZERO\n%i %x %x", "ends, 1",
     "a P-Y curve begins with `0.0 0.0`. Layer, stress and displacement of its first point", "MANUALPY@1"},
    {"**** SR/READG3 : MANUAL P-Y Y-DISPL SEQUENCE ERROR\n%i %x %x"
     "|**** SR/READG3 : MANUAL T-Z Z-DISPL SEQUENCE ERROR\n%i %x %x"
     "|**** SR/READG3 : MANUAL Q-Z Z-DISPL SEQUENCE ERROR\n%i %x %x",
     "ends, 1",
     "displacements do not ascend. Layer, and two neighbouring displacements: with three decimals "
     "they may look alike",
     "MANUALPY@1|MANUALTZ@1|MANUALQZ@1"},
    {"**** SR/READG3 : P-Y MODIF LAYER SEQUENCE ERROR\nNOW,L1,L2,LAST1,LAST2= %i %i %i %i %i"
     "|**** SR/READG3 : T-Z MODIF LAYER SEQUENCE ERROR\nNOW,L1,L2,LAST1,LAST2= %i %i %i %i %i"
     "|**** SR/READG3 : Q-Z MODIF LAYER SEQUENCE ERROR\nNOW,L1,L2,LAST1,LAST2= %i %i %i %i %i",
     "ends, 1",
     "row NOW of `MODIFYPY`, `MODIFYTZ`, `MODIFYQZ`: the first row does not begin with layer 1 (rows "
     "with main layers, `M2 M3`, need not), or "
     "`L1` is above `L2`, or a row for the same diameter does not lie below the row before it (LAST1, "
     "LAST2)",
     "MODIFYPY#1.L1 MODIFYPY#1.L2|MODIFYTZ#1.L1 MODIFYTZ#1.L2|MODIFYQZ#1.L1 MODIFYQZ#1.L2"},
    {"**** SR/READG3 : P-Y MODIF LAYER ERROR  LAY,NUMLAY= %i %i"
     "|**** SR/READG3 : T-Z MODIF LAYER ERROR  LAY,NUMLAY= %i %i"
     "|**** SR/READG3 : Q-Z MODIF LAYER ERROR  LAY,NUMLAY= %i %i",
     "ends, 1", "`L2` is LAY, the profile has only NUMLAY calculation layers",
     "MODIFYPY.L2=1|MODIFYTZ.L2=1|MODIFYQZ.L2=1"},
    {"**** SR/READG3 : P-Y MODIF DIAM  NOW,DIA= %i %x"
     "|**** SR/READG3 : T-Z MODIF DIAM  NOW,DIA= %i %x"
     "|**** SR/READG3 : Q-Z MODIF DIAM  NOW,DIA= %i %x",
     "ends, 1",
     "the DIAMETER of row NOW is none of `DIAM`, or `DIAM` itself is at fault (millimetres?); 0.0 "
     "means all",
     "MODIFYPY#1.DIAMETER DIAM|MODIFYTZ#1.DIAMETER DIAM|MODIFYQZ#1.DIAMETER DIAM"},
    {"**** SR/READG3 : P-Y MODIF VALUES  NOW,IERR= %i %i", "ends, 1",
     "row NOW. IERR names the value: 1 `PYFSTR`, 2 `PYFDSP`, 3 `PYGAP`, 4 `PYLIMS` above 1, 5 "
     "`PYLIMS` negative, 6 `PYFEND`, 7 `PYDEND`. Where several are at fault, the last",
     "{2=1}MODIFYPY#1.PYFSTR {2=2}MODIFYPY#1.PYFDSP {2=3}MODIFYPY#1.PYGAP {2=4,5}MODIFYPY#1.PYLIMS "
     "{2=6}MODIFYPY#1.PYFEND {2=7}MODIFYPY#1.PYDEND"},
    {"**** SR/READG3 : T-Z MODIF VALUES  NOW,IERR= %i %i"
     "|**** SR/READG3 : Q-Z MODIF VALUES  NOW,IERR= %i %i",
     "ends, 1",
     "row NOW. IERR names the value: 1 `TZFPOS`, 2 `TZFNEG`, 3 `TZFDSP`, 4 `TZFEND`, 5 `TZDEND`, or "
     "the same of Q-Z",
     "{2=1}MODIFYTZ#1.TZFPOS {2=2}MODIFYTZ#1.TZFNEG {2=3}MODIFYTZ#1.TZFDSP {2=4}MODIFYTZ#1.TZFEND "
     "{2=5}MODIFYTZ#1.TZDEND|{2=1}MODIFYQZ#1.QZFPOS {2=2}MODIFYQZ#1.QZFNEG {2=3}MODIFYQZ#1.QZFDSP "
     "{2=4}MODIFYQZ#1.QZFEND {2=5}MODIFYQZ#1.QZDEND"},
    {"**** SR/READGE WARNING : PILE TIP TENSION ALLOWED", "goes on",
     "a row of `MODIFYQZ` has `QZFNEG` above zero: pile tips take tension. Make sure that this is "
     "meant",
     "MODIFYQZ.QZFNEG>0"},
    {"**** SR/READG3 : GIVEN SOIL DISPL SEQUENCE ERROR\nN,ZLAST,ZNOW= %i %x %x", "ends, 1",
     "`DISPLACEMENTS`: `DSPLEV` of row N does not lie below the row before it", "DISPLACEMENTS#1.DSPLEV"},
    {"**** SR/READG3 : HOLE DIAM   N,HOLDIA= %i %x", "ends, 1",
     "`DISPLACEMENTS`: `HOLDIA` of row N is negative", "DISPLACEMENTS#1.HOLDIA"},
};

}  // namespace tervak::check::rows
