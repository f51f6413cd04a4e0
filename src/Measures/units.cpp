#include "Measures/units.hpp"

#include <stdexcept>
#include <string>

namespace Vrsk::Plin::Measures::Runtime {

namespace {

constexpr Unit UNITS[] = {
    {"stress", "Pa", 1.0},
    {"stress", "psi", 6894.75729316759},
    {"stress", "kPa", 1000.0},
    {"stress", "MPa", 1e6},
    {"stress", "GPa", 1e9},
    {"stress", "ksi", 6894757.29316759},
    {"stress", "bar", 100000.0},
    {"stress", "atm", 101325.0},
    {"length", "km", 1000.0},
    {"length", "m", 1.0},
    {"length", "dm", 0.1},
    {"length", "cm", 0.01},
    {"length", "mm", 0.001},
    {"length", "in", 0.0254},
    {"length", "ft", 0.3048},
    {"force", "N", 1.0},
    {"force", "kN", 1000.0},
    {"force", "MN", 1e6},
    {"force", "GN", 1e9},
    {"force", "mN", 0.001},
    {"force", "lbf", 4.44822161526},
    {"force", "kipf", 4448.22161526},
    {"force", "kgf", 9.80665},
    {"angle", "rad", 1.0},
    {"angle", "deg", 0.017453292519943295},
    {"angle", "rev", 6.283185307179586},
    {"energy", "J", 1.0},
    {"energy", "kJ", 1000.0},
    {"energy", "MJ", 1e6},
    {"energy", "GJ", 1e9},
    {"energy", "Btu", 1055.05585262},
};

}  // namespace

const Unit& FindUnit(std::string_view phenomenon, std::string_view name) {
  for (const Unit& unit : UNITS)
    if (unit.phenomenon == phenomenon && unit.name == name) return unit;
  throw std::invalid_argument("no unit of " + std::string(phenomenon) + " is called " + std::string(name));
}

UnitComposer::UnitComposer(const UnitSystem& system)
    : length_(FindUnit("length", system.length).GetConversionFactor()),
      force_(FindUnit("force", system.force).GetConversionFactor()),
      angle_(FindUnit("angle", system.angle).GetConversionFactor()) {}

}  // namespace Vrsk::Plin::Measures::Runtime
