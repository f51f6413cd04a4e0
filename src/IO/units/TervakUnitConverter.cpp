#include "IO/units/TervakUnitConverter.hpp"

#include <cmath>

#include "Measures/units.hpp"

namespace Varno::TervakLibrary::IO {

namespace rt = Vrsk::Plin::Measures::Runtime;

TervakUnitConverter::TervakUnitConverter(double UNITF, double UNITM) {
  const rt::UnitSystem system("m", "N", "delC", "s", "deg");
  const rt::UnitComposer composer(system);
  const auto kind = [&](double unit, double a, double b) {
    return scale{unit, std::pow(UNITM, a), std::pow(UNITF, b)};
  };
  length_ = kind(composer.Length(), 1.0, 0.0);
  stress_ = kind(composer.Stress(), -2.0, 1.0);
  unit_weight_ = kind(composer.ForcePerUnitVolume(), -3.0, 1.0);
  force_ = kind(composer.Force(), 0.0, 1.0);
  angle_ = kind(composer.Angle(), 0.0, 0.0);
}

}  // namespace Varno::TervakLibrary::IO
