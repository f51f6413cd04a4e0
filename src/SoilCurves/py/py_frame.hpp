#pragma once

#include <optional>

#include "Control/state/common.hpp"

namespace tervak {

/// What every P-Y method knows about the layer and the diameter that it works on. Run units.
struct py_layer {
  layer_number NL;
  diameter_number ND;
  int TYP = 0;     ///< index into the soil type table
  int PYCODE = 0;  ///< code of the method
  int ICYCL = 0;   ///< 0 static, 1 cyclic
  double H = 0;    ///< depth below the local scour level
  double D = 0;    ///< diameter
  double GAM = 0;  ///< mean effective unit weight above the level, without the stress from surface loads
};

/// What a method hands to the steps that it shares with others: the edition of the rules and its messages.
/// APILAT and PYRCK take NL, ND and the code of the failure, lookup the code alone.
struct py_method {
  int IYEAR;
  const char* APILAT;
  const char* PYRCK;
  const char* lookup;
};

/// The zero limit of API87 and API14; that of the other methods is EPS.
inline constexpr double FINE_ZTOL = 1.0E-12;

/// Opens the curve of one layer and one diameter. A layer whose depth is not greater than ZTOL lies at or
/// above the scoured sea floor: it gets the curve of three points without resistance, and nothing is
/// returned. Cyclic is a matter of level alone: a layer strictly above ZCYCL is cyclic.
std::optional<py_layer> open_py(common& cmn, layer_number NL, diameter_number ND, double ZTOL);

/// Whether the layer is sand: its friction angle is above the method's zero limit.
[[nodiscard]] bool is_sand(const common& cmn, const py_layer& layer, double ZTOL);

/// Whether a clay is stiff: its strength is above SUSTIF.
[[nodiscard]] bool is_stiff_clay(const common& cmn, const py_layer& layer);

/// A published table at XI. On failure prints the method's message, sets IERR to 1 and returns nothing.
std::optional<double> table_value(common& cmn, const py_method& method, table_view X, table_view Y,
                                  double XI);

/// Ultimate resistance of the layer by APILAT, as a stress; a strength SU of 0.0 asks for the sand formula.
/// On failure prints the method's message, sets IERR to 1 and returns nothing.
std::optional<double> ultimate_resistance(common& cmn, const py_layer& layer, const py_method& method,
                                          double SU);

}  // namespace tervak
