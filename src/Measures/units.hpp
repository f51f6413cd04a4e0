#pragma once

#include <string_view>

namespace Vrsk::Plin::Measures::Runtime {

/// A named unit; the factor is its size in the phenomenon's base unit (Pa, m, N, rad, J).
struct Unit {
  std::string_view phenomenon;
  std::string_view name;
  double factor;

  [[nodiscard]] double GetConversionFactor() const { return factor; }
};

/// Looks a unit up by its phenomenon ("stress", "length", "force", "angle", "energy") and name ("kPa", "m").
/// Throws std::invalid_argument for a pair that is not in the table.
[[nodiscard]] const Unit& FindUnit(std::string_view phenomenon, std::string_view name);

/// The unit names by which a run states its quantities.
struct UnitSystem {
  UnitSystem(std::string_view length_, std::string_view force_, std::string_view temperature_,
             std::string_view time_, std::string_view angle_)
      : length(length_), force(force_), temperature(temperature_), time(time_), angle(angle_) {}
  std::string_view length, force, temperature, time, angle;
};

/// Conversion factors of the composed units of a system.
class UnitComposer {
 public:
  explicit UnitComposer(const UnitSystem& system);
  [[nodiscard]] double Length() const { return length_; }
  [[nodiscard]] double Force() const { return force_; }
  [[nodiscard]] double Angle() const { return angle_; }
  [[nodiscard]] double Stress() const { return force_ / (length_ * length_); }
  [[nodiscard]] double ForcePerUnitVolume() const { return force_ / (length_ * length_ * length_); }

 private:
  double length_, force_, angle_;
};

}  // namespace Vrsk::Plin::Measures::Runtime
