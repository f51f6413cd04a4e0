#pragma once

#include "Control/state/equation.hpp"

namespace tervak {

/// The equations of docs/methods/tz.md, in the order of the page.
inline constexpr equation TZ_EQUATIONS[] = {
    {"TZ-MAX-1", "tc = ts / SFSKF, tt = ts / SFSKF, each from its own ts", "safety factor of the deck"},
    {"TZ-MAX-2", "t = 0 in a revision 5 layer above the local scour level, codes from 200 on",
     "no published source known"},
    {"TZ-API-1", "t / tmax = 0.30, 0.50, 0.75, 0.90, 1 at z / D = 0.0016, 0.0031, 0.0057, 0.0080, 0.0100",
     "API RP 2A, 6.7.2"},
    {"TZ-API-2", "t = rt tmax from z = 0.02 D + zr on, rt at most 1", "API RP 2A, 6.7.2"},
    {"TZ-0-1", "t = t given / SFSKF, z as given", "given curve"},
    {"TZ-100-1", "zc = TZDRAT D, in revision 5 zc = 0.01 D", "no published source known"},
    {"TZ-100-2", "zt = max(0.00001 D, zc tt / tc), with the given tt and tc of SKINFRICTION or TZQZTABLE",
     "no published source known"},
    {"TZ-100-3", "code 100: t = tc z / zc up to 1000 zc, on both sides", "no published source known"},
    {"TZ-101-1", "code 101: t = tmax min(1, z / zm), zm = zc or zt", "no published source known"},
    {"TZ-102-1", "code 102: t = 0.75 tmax at 0.3 zm, tmax from zm on", "no published source known"},
    {"TZ-103-1", "code 103: t = 0.75 tmax at 0.3 zm, tmax at zm, rt tmax from zm + zr on",
     "no published source known"},
    {"TZ-200-1", "z = t D / (2 G) ln((rm - r) / (1 - r)), r = rf t / tmax", "Kraft, Ray and Kagawa 1981"},
    {"TZ-200-2", "z_k = k D for point k, on a side where tmax = 0 or G <= tmax", "no published source known"},
    {"TZ-200-3", "t = rt tmax from z_6 + zr on", "no published source known"},
    {"TZ-214-S1", "sand: TZ-API-1, then t = tmax from z = 0.01 D on", "API RP 2GEO, 8.4.2"},
    {"TZ-293-S1", "sand: ze = 2.507E-4 ATMPRS / GAMWAT", "API RP 2A, 6.7.2: 0.10 inch"},
    {"TZ-293-S2", "sand: t = tmax min(1, z / ze)", "API RP 2A, 6.7.2"},
    {"TZ-588-1", "t = tmax at z = 0.01 D, 0.75 tmax from z = 0.1 D on", "no published source known"},
};

}  // namespace tervak
