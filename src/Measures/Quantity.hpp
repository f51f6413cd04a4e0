#pragma once

namespace Vrsk::Plin::Measures::Runtime {

struct LengthPhenomenon {};
struct StressPhenomenon {};
struct ForcePerUnitAreaPhenomenon {};
struct ForcePerUnitVolumePhenomenon {};
struct ForcePhenomenon {};
struct AnglePhenomenon {};

/// A number of a phenomenon, held in the phenomenon's base unit (m, Pa, N/m2, N/m3, N, rad).
template <class Phenomenon>
struct Quantity {
  double value = 0;
};

}  // namespace Vrsk::Plin::Measures::Runtime
