#pragma once

#include "Control/state/equation.hpp"

namespace tervak {

/// The equations of docs/methods/qz.md, in the order of the page.
inline constexpr equation QZ_EQUATIONS[] = {
    {"QZ-MAX-1", "qm = qs / SFSIGT", "safety factor of the deck"},
    {"QZ-MAX-2", "tension side: q becomes QZFNEG q, QZFNEG = 0 without a row of MODIFYQZ",
     "no published source known"},
    {"QZ-0-1", "q = q given / SFSIGT, z as given", "given curve"},
    {"QZ-100-1", "zm = QZDRAT D, in revision 5 zm = 0.05 D", "no published source known"},
    {"QZ-100-2", "code 100: q = qm z / zm up to 1000 zm", "no published source known"},
    {"QZ-101-1", "code 101: q = qm min(1, z / zm)", "no published source known"},
    {"QZ-102-1", "code 102: q = 0.75 qm at 0.3 zm, qm from zm on", "no published source known"},
    {"QZ-103-1", "code 103: q = 0.75 qm at 0.3 zm, qm at zm, 0.5 qm from 2 zm on",
     "no published source known"},
    {"QZ-200-1", "E = 2 (1 + nu) G", "theory of elasticity"},
    {"QZ-200-2", "ze = 0.6 (1 - nu^2) qm D / E, or zm / 2 where qm = 0", "no published source known"},
    {"QZ-200-3", "zm = QZDRAT D, in revision 5 zm = 0.05 D", "no published source known"},
    {"QZ-200-4", "q = 0.5, 0.85, 0.97, 1 qm at z1 = ze / 2, z1 + h, z1 + 2 h, zm; h = (zm - z1) / 3",
     "no published source known"},
    {"QZ-200-5", "where ze >= zm: q = qm min(1, z / zm)", "no published source known"},
    {"QZ-API-1", "q / qm = 0.25, 0.50, 0.75, 0.90, 1 at z / D = 0.002, 0.013, 0.042, 0.073, 0.100; then qm",
     "API RP 2A, 6.7.3"},
};

}  // namespace tervak
