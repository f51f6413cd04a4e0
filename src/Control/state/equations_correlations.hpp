#pragma once

#include "Control/state/equation.hpp"

namespace tervak {

/// The equations of docs/methods/correlations.md, in the order of the page.
inline constexpr equation CORRELATIONS_EQUATIONS[] = {
    {"COR-LEV-1", "v = top + (bottom - top) (Z - Ztop) / (Zbot - Ztop)", "linear interpolation"},
    {"COR-LEV-2", "Su = Su at the level / SFSU, tan(phi) = tan(PHIM) / SFTPHI", "safety factors of the deck"},
    {"COR-SAND-1", "F = 1 - 0.082 log10(sig' / 100)", "no published source known"},
    {"COR-SAND-2", "Dr from qc: Dr = 0.4 ln(qc / (22 (100 sig')^0.5)) within 0.01 to 1.1",
     "Clausen, Aas and Karlsrud 2005"},
    {"COR-SAND-3", "phi from Dr: phi = min(40, (23 + 21.4 Dr) F)", "no published source known"},
    {"COR-SAND-4", "Dr from phi, without qc: Dr = (phi / F - 23) / 21.4 within 0.01 to 1.1",
     "no published source known"},
    {"COR-SAND-5", "qc from Dr: qc = 22 (100 sig')^0.5 exp(2.5 Dr)", "Clausen, Aas and Karlsrud 2005"},
    {"COR-QC-1", "qc(Z) linear between the levels of the layers, constant beyond the first and the last",
     "linear interpolation"},
    {"COR-QC-2", "qcm = mean of qc at Z - 1.5 D, Z - 1.2 D, ... Z + 1.5 D",
     "mean over 1.5 diameters above and below: Jardine and Chow 1996"},
    {"COR-CLAY-1", "OCR = (4 Su / sig')^1.25", "no published source known"},
    {"COR-CLAY-2", "St = 2 sig' / Su within 1 to 8", "no published source known"},
    {"COR-CLAY-3", "nu = 0.5 clay, 0.3 sand; interface angle delta = 29 degrees",
     "no published source known"},
    {"COR-G-1", "sand: G = 1000 pa tan(phi) (sig' / pa)^0.5 / (2 (1 + nu)) f", "no published source known"},
    {"COR-G-2", "clay: G = Su max(50, 300 - 85 (OCR - 1)^0.5) f, OCR within 1 to 10",
     "no published source known"},
    {"COR-G-3", "revision 4, OCR not given: OCR = 4 Su / sig'", "no published source known"},
};

}  // namespace tervak
