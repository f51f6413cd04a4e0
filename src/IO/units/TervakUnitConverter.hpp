#pragma once

#include <type_traits>

#include "Measures/Quantity.hpp"

namespace Varno::TervakLibrary::IO {

/// Deck quantities to run units. UNITF is one kilonewton and UNITM one metre in the run's units.
///
/// A quantity q of a kind with the length exponent a and the force exponent b becomes
/// q / (factor of the kind's unit in the system m, N, delC, s, deg) * UNITM^a * UNITF^b.
/// The factor is 1 for all kinds but the angle, which is held in radians and comes out in degrees.
class TervakUnitConverter {
 public:
  TervakUnitConverter(double UNITF, double UNITM);

  [[nodiscard]] double Length(double value) const { return convert(value, length_); }            // a 1, b 0
  [[nodiscard]] double Stress(double value) const { return convert(value, stress_); }            // a -2, b 1
  [[nodiscard]] double ForcePerUnitArea(double value) const { return convert(value, stress_); }  // a -2, b 1
  [[nodiscard]] double ForcePerUnitVolume(double value) const {
    return convert(value, unit_weight_);
  }                                                                                  // a -3, b 1
  [[nodiscard]] double Force(double value) const { return convert(value, force_); }  // a 0, b 1
  [[nodiscard]] double Angle(double value) const { return convert(value, angle_); }  // a 0, b 0

  template <class P>
  [[nodiscard]] double operator()(Vrsk::Plin::Measures::Runtime::Quantity<P> quantity) const;

 private:
  struct scale {
    double unit, length_power, force_power;
  };
  [[nodiscard]] static double convert(double value, const scale& s) {
    return value / s.unit * s.length_power * s.force_power;
  }
  scale length_, stress_, unit_weight_, force_, angle_;
};

template <class P>
double TervakUnitConverter::operator()(Vrsk::Plin::Measures::Runtime::Quantity<P> quantity) const {
  namespace rt = Vrsk::Plin::Measures::Runtime;
  if constexpr (std::is_same_v<P, rt::LengthPhenomenon>) return Length(quantity.value);
  if constexpr (std::is_same_v<P, rt::StressPhenomenon>) return Stress(quantity.value);
  if constexpr (std::is_same_v<P, rt::ForcePerUnitAreaPhenomenon>) return ForcePerUnitArea(quantity.value);
  if constexpr (std::is_same_v<P, rt::ForcePerUnitVolumePhenomenon>)
    return ForcePerUnitVolume(quantity.value);
  if constexpr (std::is_same_v<P, rt::ForcePhenomenon>) return Force(quantity.value);
  if constexpr (std::is_same_v<P, rt::AnglePhenomenon>) return Angle(quantity.value);
}

}  // namespace Varno::TervakLibrary::IO
