#pragma once

#include "Control/state/vector1.hpp"

namespace KestraCommonLibrary::Utils {

/// Piecewise linear table lookup, flat beyond both ends. Called INTPOL in the older messages.
///
/// N points of the abscissas X and ordinates Y; ISIGN is 1 for ascending and -1 for descending X; XI is
/// looked up and YI gets the result, or stays at 1.0E10 on failure. A table of one point gives Y(1) for every
/// XI. IERR: 0 good; 1 ISIGN is neither 1 nor -1; 2 an ascending, 3 a descending table whose span, or a
/// segment met on the walk to XI, is not above the tolerance of 1.0E-10. The order is checked lazily:
/// disorder behind XI goes unnoticed, and the flat ends check no segment.
void Interpolate(int N, int ISIGN, tervak::table_view X, tervak::table_view Y, double XI, double& YI,
                 int& IERR);

}  // namespace KestraCommonLibrary::Utils
