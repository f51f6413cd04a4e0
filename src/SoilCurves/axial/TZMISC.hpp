#pragma once

#include "Control/state/common.hpp"

namespace tervak {

/// T-Z curve (skin friction against axial displacement) of layer NL and diameter index ND by a published
/// method. Compression is positive. Writes TZSTR, TZDSP and NTZPNT.
///
/// ICODE 200: hyperbola from the shear modulus, z = t / G * D / 2 * ln((ZONINF - R) / (1 - R)) with
/// R = t / t.max * RFTZ (Kraft, Ray and Kagawa, "Theoretical t-z curves", 1981; ZONINF is the radius of
/// influence over the pile radius, RFTZ the hyperbola's constant), 17 points with the residual part.
/// ICODE 293: API RP 2A, 6.7.2, clay in 15 points, sand in 5. ICODE 214: the same clay; sand follows the clay
/// shape without a residual drop. ICODE 588: carbonate sand, full friction at 1 % of the diameter, three
/// quarters from 10 % on, 7 points.
///
/// A revision 5 layer above the local scour level (no shear modulus) gets 5 points of zero stress for any
/// ICODE. In code 200 a side whose full friction is zero or not below G gets displacements in steps of one
/// diameter. A residual ratio TRESMX of 0 means 1 in code 200 and 0.8 in codes 293 and 214, where it is also
/// capped at 1. IERR 1: the depth table, the shear modulus of code 200, or ICODE.
void TZMISC(common& cmn, layer_number NL, diameter_number ND, int ICODE);

}  // namespace tervak
