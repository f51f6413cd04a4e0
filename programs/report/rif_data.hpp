#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace tervak::report {

/// One point of a curve. P-Y stress is resistance per unit length divided by the diameter, T-Z skin friction,
/// Q-Z tip stress; compression positive. In a monopile curve `stress` is the moment or shear and
/// `displacement` may be a rotation.
struct point {
  double stress = 0.0;
  double displacement = 0.0;
};

/// Points in the order of the file: displacements do not fall. Normally 29, the origin in the middle.
using curve = std::vector<point>;

enum class curve_kind : std::size_t { py, tz, qz, mtheta, bsy, bmtheta };
inline constexpr std::array<curve_kind, 6> curve_kinds = {
    curve_kind::py, curve_kind::tz, curve_kind::qz, curve_kind::mtheta, curve_kind::bsy, curve_kind::bmtheta};
inline constexpr std::array<curve_kind, 3> soil_kinds = {curve_kind::py, curve_kind::tz, curve_kind::qz};
inline constexpr std::array<curve_kind, 3> monopile_kinds = {curve_kind::mtheta, curve_kind::bsy,
                                                             curve_kind::bmtheta};

/// Record RVSOILAY and the curves of the layer. Levels grow downward.
struct layer {
  double ZBOTM = 0.0;
  double ZLAY = 0.0;     // level of the curves
  double DEPTH = 0.0;    // of ZLAY below the local scour level; zero or less: at or above it
  double GAMEFF = 0.0;   // effective unit weight
  double PHIR = 0.0;     // friction angle, degrees; 0 in clay
  double SURED = 0.0;    // undrained shear strength; 0 in sand
  double SIGZRES = 0.0;  // effective vertical stress at ZLAY
  double DSIGZ = 0.0;    // the part of SIGZRES that comes from surface loads
  double V = 0.0;        // Poisson's ratio
  double E = 0.0;        // Young's modulus
  double G = 0.0;        // shear modulus
  int py_code = 0;
  int tz_code = 0;
  int qz_code = 0;
  /// By kind, then by diameter. A kind that the file does not have holds no curves.
  std::array<std::vector<curve>, curve_kinds.size()> curves;

  const std::vector<curve>& of(curve_kind kind) const { return curves[static_cast<std::size_t>(kind)]; }
  std::vector<curve>& of(curve_kind kind) { return curves[static_cast<std::size_t>(kind)]; }
  bool above_scour() const { return DEPTH <= 0.0; }
  /// Sand above the scour level whose angle is not given has none here, and counts as clay.
  bool is_sand() const { return PHIR > 1e-10; }
  /// Of P-Y, T-Z or Q-Z.
  int code(curve_kind kind) const {
    return kind == curve_kind::py ? py_code : kind == curve_kind::tz ? tz_code : qz_code;
  }
};

/// Record RDSOIDSP: given soil displacement and open hole at a level.
struct soil_displacement {
  double level = 0.0, x = 0.0, y = 0.0, z = 0.0, hole_diameter = 0.0;
};

/// Records TSOILPRF, RDSOILDI, RDSOIPRF and those of the layers.
struct profile {
  int number = 0;
  std::string name;   // of the boring, trailing blanks cut
  std::string label;  // trailing blanks cut
  std::vector<double> diameters;
  double sea_floor = 0.0;      // Z level
  double general_scour = 0.0;  // depth below the sea floor
  double ESOL0 = 0.0, ESOL1 = 0.0, ESOL2 = 0.0, POSAVR = 0.0;
  std::vector<soil_displacement> displacements;
  std::vector<layer> layers;
};

struct interface_file {
  std::array<std::string, 4> date_lines;  // program and version, date and time, computer, user
  std::vector<profile> profiles;
};

}  // namespace tervak::report
