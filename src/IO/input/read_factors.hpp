#pragma once

#include "Control/state/common.hpp"

namespace tervak {

/// Factors that MODIFY applies to the finished curves, by layers L1 to L2 and one diameter (0 or less: all).
/// A list ends at a record with L1 = 0, or behind the record that reaches the last layer for the last
/// diameter; records that are missing before that throw std::out_of_range. Layers without a record keep the
/// values that PYMOD, TZMOD and QZMOD were allocated with. On a value that is not accepted, or a record
/// behind the end: one message on the run log, IERR 4. The number in "MODIF VALUES" tells the last value at
/// fault, in the order of the list.

/// PYFSTR PYFDSP PYGAP PYLIMS PYFEND PYDEND; the gap is a length, in run units.
void read_py_factors(common& cmn, const Vrsk::Plin::TervakExchange::Tervak& profile);

/// TZFPOS TZFNEG TZFDSP TZFEND TZDEND.
void read_tz_factors(common& cmn, const Vrsk::Plin::TervakExchange::Tervak& profile);

/// QZFPOS QZFNEG QZFDSP QZFEND QZDEND. A positive QZFNEG lets the pile tip carry tension, which prints a
/// warning once.
void read_qz_factors(common& cmn, const Vrsk::Plin::TervakExchange::Tervak& profile);

}  // namespace tervak
