#include "IO/usfos/G2USFOS.hpp"

#include "Control/state/sp.hpp"
#include "fem/write.hpp"
#include "IO/usfos/G2USFOS_materials.hpp"

namespace tervak {

namespace {

const double PI = sp(3.14159f);

std::vector<usfos_point> curve_points(const common& cmn, double factor, const curve_table& STR,
                                      const curve_table& DSP, diameter_number K, layer_number LAY) {
  std::vector<usfos_point> points;
  points.reserve(static_cast<std::size_t>(cmn.MAXPNT));
  for (int P = 1; P <= cmn.MAXPNT; ++P) points.push_back({factor * STR(P, K, LAY), DSP(P, K, LAY)});
  return points;
}

/// Appends the three materials of a layer and returns their numbers. The stresses act on the pile's diameter,
/// its circumference and its tip area.
usfos_layer layer_materials(const common& cmn, double D, diameter_number K, layer_number LAY,
                            std::vector<usfos_material>& materials) {
  const std::array<std::vector<usfos_point>, 3> curves = {
      curve_points(cmn, D, cmn.PYSTR, cmn.PYDSP, K, LAY),
      curve_points(cmn, D * PI, cmn.TZSTR, cmn.TZDSP, K, LAY),
      curve_points(cmn, D * PI * D * 0.25, cmn.QZSTR, cmn.QZDSP, K, LAY)};
  usfos_layer numbers{};
  for (int T = 1; T <= 3; ++T) {
    const auto kind = static_cast<std::size_t>(T - 1);
    materials.push_back(usfos_make_material(curves[kind], D, LAY, T));
    numbers[kind] = materials.back().number;
  }
  return numbers;
}

}  // namespace

void G2USFOS(common& cmn, const vector1<double>& DIAM, double F, double L, int MODE, int UNIT, int& IERR) {
  std::vector<usfos_material> materials;
  for (diameter_number K(1); K <= cmn.NUMDIA; ++K) {
    const double D = DIAM(K);
    std::vector<usfos_layer> layers;
    for (layer_number LAY(1); LAY <= cmn.NUMLAY; ++LAY)
      layers.push_back(layer_materials(cmn, D, K, LAY, materials));
    usfos_write_soilchar(cmn, UNIT, D, F, L, layers);
  }
  int error = 0;
  G2U_WMAT(cmn, UNIT, MODE, materials, error);
  if (error != 0) {
    fem::write(cmn.units, UNIT, "(/,2x,'*** ERROR IN G2USFOS ***')");
    IERR = -1;
  }
}

}  // namespace tervak
