#pragma once

#include "Control/state/equation.hpp"

namespace tervak {

/// The equations of docs/methods/layers.md, in the order of the page.
inline constexpr equation LAYERS_EQUATIONS[] = {
    {"LAY-1",
     "Z = (zt + zb) / 2; with a subdivision by pile nodes (NUMPIL), or MIDBOT 2 in revision 4, Z = zb",
     "no published source known"},
    {"LAY-2", "g' = gt - gp below zw, gt above, averaged by length in a layer that zw cuts", "definition"},
    {"LAY-3", "L = h / tan(SCRSLP), h = SCRLOC - SCRGEN, L at least a thousandth of the smallest diameter",
     "no published source known"},
    {"LAY-4", "sl = sum of g' dz from zg to zl: stress of the soil between the two scour levels",
     "definition"},
    {"LAY-5", "F = 0.31^(d / L)", "no published source known"},
    {"LAY-6", "sig' = sum of g' dz from zl to Z + (1 - F) sl + dsig", "no published source known"},
    {"LAY-7", "dsig = SIGSUR + embankment + point loads + circular load", "superposition"},
    {"LOAD-1",
     "embankment = SIGEMB / pi (a1 - b / a (a2 - a1)), a1 = atan(z / (a + b)), a2 = atan(z / b), angles from 0 to pi",
     "elastic half-space: half-infinite load with a sloping edge"},
    {"LOAD-2", "point loads = sum of 3 P / (2 pi) z^3 / (r^2 + z^2)^2.5", "Boussinesq"},
    {"LOAD-3", "circular load = SIGCIR (1 - (1 / (1 + (RADCIR / z)^2))^1.5)", "Boussinesq, below the centre"},
    {"LAY-8", "X = min(d (1 + h / L), d + h), X = d if d <= 0", "no published source known"},
    {"LAY-9", "Su = (SU0 + (SU100 - SU0) Z / 100) / SFSU", "linear law of the deck"},
    {"LAY-10", "tan(phi) = tan(PHI) / SFTPHI", "safety factor of the deck"},
};

}  // namespace tervak
