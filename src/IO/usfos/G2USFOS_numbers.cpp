#include <cmath>
#include <limits>
#include <stdexcept>

#include "IO/usfos/G2USFOS_materials.hpp"

namespace tervak {

namespace {

int checked(double number) {
  if (!(std::fabs(number) <= std::numeric_limits<int>::max()))
    throw std::out_of_range("USFOS number out of range");
  return static_cast<int>(number);
}

/// The diameter in whole length units, or in thousandths when that is below `limit`.
double number_of_diameter(double D, double limit) {
  const double whole = std::floor(D + 0.5);
  return whole < limit ? std::floor(D * 1000 + 0.5) : whole;
}

}  // namespace

int usfos_soil_number(double D) { return checked(number_of_diameter(D, 5)); }

int usfos_material_number(double D, layer_number L, int T) {
  return checked((number_of_diameter(D, 100) * 100 + L) * 10 + T);
}

usfos_material usfos_make_material(const std::vector<usfos_point>& curve, double D, layer_number L, int T) {
  double squares = 0.0;
  for (const usfos_point& point : curve) squares += point.F * point.F;
  if (squares < 0.1) return {};

  const std::vector<usfos_point> points = usfos_thin(curve);
  usfos_material material;
  material.number = usfos_material_number(D, L, T);
  material.record = {T == 3 ? 2.0 : 4.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, static_cast<double>(points.size())};
  for (const usfos_point& point : points) {
    material.record.push_back(point.F);
    material.record.push_back(point.U);
  }
  return material;
}

}  // namespace tervak
