#pragma once

#include "Control/state/equation.hpp"

namespace tervak {

/// The equations of docs/methods/modification.md, in the order of the page.
inline constexpr equation MODIFICATION_EQUATIONS[] = {
    {"MOD-1", "p = t = q = 0 in layers above the first with Z > ZSEAFL + SCRLOC",
     "no published source known"},
    {"MOD-PY-1", "p becomes PYFSTR p, y becomes PYFDSP y", "factors of the deck"},
    {"MOD-PY-2", "y moves outward by PYGAP on both sides, p = 0 up to PYGAP", "factors of the deck"},
    {"MOD-PY-3", "|p| at most PYFEND times the greatest p, if PYLIMS is between 0 and 1",
     "factors of the deck"},
    {"MOD-PY-4", "p becomes PYFEND p and y becomes PYDEND y at the two far points of each side",
     "factors of the deck"},
    {"MOD-TZ-1",
     "t becomes TZFPOS t in compression, TZFNEG t in tension; z becomes TZFDSP z; Q-Z alike with its own factors",
     "factors of the deck"},
    {"MOD-TZ-2", "t becomes TZFEND t and z becomes TZDEND z at the two far points of each side; Q-Z alike",
     "factors of the deck"},
    {"MOD-FILL-1", "free points repeat the end stress, in steps of 1.0 run units of length",
     "no published source known"},
    {"MOD-FILL-2", "displacements ascend by 1E-10 or more", "no published source known"},
};

}  // namespace tervak
