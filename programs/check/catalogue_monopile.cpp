#include "check/catalogue_rows.hpp"

namespace tervak::check::rows {

// Monopile curves

const std::vector<known_message> MONOPILE_CURVES = {
    {"****  MANUAL M-THETA ERROR: Diameter %x not found. Layer: %i."
     "|****  MANUAL BM-THETA ERROR: Diameter %x not found. Layer: %i."
     "|****  MANUAL BS-Y ERROR: Diameter %x not found. Layer: %i.",
     "ends, **0**", "the diameter of an `AT` is none of `DIAM`",
     "MANUALMTHETA@2 DIAM|MANUALBMTHETA@2 DIAM|MANUALBSY@2 DIAM"},
    {"****  MANUAL M-THETA ERROR: Layer %i greater than total number of layers %i."
     "|****  MANUAL BM-THETA ERROR: Layer %i greater than total number of layers %i."
     "|****  MANUAL BS-Y ERROR: Layer %i greater than total number of layers %i.",
     "ends, **0**", "the layer of an `AT`. Layers of 0 or below pass, and are never used",
     "MANUALMTHETA@1|MANUALBMTHETA@1|MANUALBSY@1"},
    {"****  MANUAL M-THETA ERROR: Number of points specified, %i, cannot be greater than %i. Layer: "
     "%i."
     "|****  MANUAL BM-THETA ERROR: Number of points specified, %i, cannot be greater than %i. Layer: "
     "%i."
     "|****  MANUAL BS-Y ERROR: Number of points specified, %i, cannot be greater than %i. Layer: %i.",
     "ends, **0**", "a curve has at most 15 points", "MANUALMTHETA@3|MANUALBMTHETA@3|MANUALBSY@3"},
    {"****  MANUAL M-THETA ERROR: Number of points specified cannot be less than 2. Layer: %i."
     "|****  MANUAL BM-THETA ERROR: Number of points specified cannot be less than 2. Layer: %i."
     "|****  MANUAL BS-Y ERROR: Number of points specified cannot be less than 2. Layer: %i.",
     "ends, **0**", "a curve has at least two points", "MANUALMTHETA@1|MANUALBMTHETA@1|MANUALBSY@1"},
    {"****  MANUAL M-THETA ERROR: First point has to be the origin. Layer: %i."
     "|****  MANUAL BM-THETA ERROR: First point has to be the origin. Layer: %i."
     "|****  MANUAL BS-Y ERROR: First point has to be the origin. Layer: %i.",
     "ends, **0**", "a curve begins with `0.0 0.0`. A first value below zero passes",
     "MANUALMTHETA@1|MANUALBMTHETA@1|MANUALBSY@1"},
    {"****  MANUAL M-THETA ERROR: Duplicate THETA value found at index %i Layer: %i."
     "|****  MANUAL BM-THETA ERROR: Duplicate THETA value found at index %i Layer: %i."
     "|****  MANUAL BS-Y ERROR: Duplicate Y value found at index %i Layer: %i.",
     "goes on",
     "a rotation or displacement does not ascend. This refuses nothing, and is printed only beside a "
     "finding that does. The points are used in ascending order, of equal ones the last. Points count "
     "from 0",
     "MANUALMTHETA@2|MANUALBMTHETA@2|MANUALBSY@2"},
    {"****  MANUAL M-THETA DATA MODIFICATION ERROR: LAY1 cannot be greater than LAY2 Line: %i."
     "|****  MANUAL BM-THETA DATA MODIFICATION ERROR: LAY1 cannot be greater than LAY2 Line: %i."
     "|****  MANUAL BS-Y DATA MODIFICATION ERROR: LAY1 cannot be greater than LAY2 Line: %i.",
     "ends, **0**", "row N of `MODIFYMTHETA`, `MODIFYBMTHETA`, `MODIFYBSY`",
     "MODIFYMTHETA#1.LAY1 MODIFYMTHETA#1.LAY2|MODIFYBMTHETA#1.LAY1 "
     "MODIFYBMTHETA#1.LAY2|MODIFYBSY#1.LAY1 MODIFYBSY#1.LAY2"},
    {"****  MANUAL M-THETA DATA MODIFICATION ERROR: LAY2 cannot be greater than total number of "
     "layers. Line: %i."
     "|****  MANUAL BM-THETA DATA MODIFICATION ERROR: LAY2 cannot be greater than total number of "
     "layers. Line: %i."
     "|****  MANUAL BS-Y DATA MODIFICATION ERROR: LAY2 cannot be greater than total number of layers. "
     "Line: %i.",
     "ends, **0**", "`LAY2` of row N", "MODIFYMTHETA#1.LAY2|MODIFYBMTHETA#1.LAY2|MODIFYBSY#1.LAY2"},
    {"****  MANUAL M-THETA DATA MODIFICATION ERROR: A diameter not present was found in the table. "
     "Line: %i."
     "|****  MANUAL BM-THETA DATA MODIFICATION ERROR: A diameter not present was found in the table. "
     "Line: %i."
     "|****  MANUAL BS-Y DATA MODIFICATION ERROR: A diameter not present was found in the table. "
     "Line: %i.",
     "ends, **0**", "the diameter of row N is none of `DIAM`; here 0.0 does not mean all",
     "MODIFYMTHETA#1.DIAMETER|MODIFYBMTHETA#1.DIAMETER|MODIFYBSY#1.DIAMETER"},
    {"****  MANUAL M-THETA DATA MODIFICATION ERROR: MFACT has to be greater than zero. Line: %i."
     "|****  MANUAL M-THETA DATA MODIFICATION ERROR: THETAFACT has to be greater than zero. Line: %i."
     "|****  MANUAL BM-THETA DATA MODIFICATION ERROR: BMFACT has to be greater than zero. Line: %i."
     "|****  MANUAL BM-THETA DATA MODIFICATION ERROR: THETAFACT has to be greater than zero. Line: %i."
     "|****  MANUAL BS-Y DATA MODIFICATION ERROR: BSFACT has to be greater than zero. Line: %i."
     "|****  MANUAL BS-Y DATA MODIFICATION ERROR: YFACT has to be greater than zero. Line: %i.",
     "ends, **0**",
     "a factor of row N: `MFACT`, `BMFACT`, `BSFACT` on moments and forces, `THETAFACT`, `YFACT` on "
     "rotations and displacements",
     "MODIFYMTHETA#1.#4|MODIFYMTHETA#1.#5|MODIFYBMTHETA#1.#4|MODIFYBMTHETA#1.#5|MODIFYBSY#1.#4|MODIFYBSY#1.#5"},
};

}  // namespace tervak::check::rows
