#include "SoilCurves/py/py_frame.hpp"

#include "Control/state/Interpolate.hpp"
#include "Control/state/note.hpp"
#include "Control/state/report.hpp"
#include "SoilCurves/py/APILAT.hpp"
#include "SoilCurves/store/curve_store.hpp"

namespace tervak {

std::optional<py_layer> open_py(common& cmn, layer_number NL, diameter_number ND, double ZTOL) {
  const double H = cmn.DEPTH(NL);
  if (!(H > ZTOL)) {
    note(cmn, equation_of("PY-OPEN-4"), "at or above the local scour level", {{"X", H, in::length}});
    store_py(cmn, NL, ND, {{0.0, cmn.BIGDSP}});
    return std::nullopt;
  }
  py_layer layer;
  layer.NL = NL;
  layer.ND = ND;
  layer.TYP = cmn.LAYCOD(NL).TYP;
  layer.PYCODE = cmn.LAYCOD(NL).PYCODE;
  layer.ICYCL = cmn.ZLAY(NL) < cmn.ZCYCL ? 1 : 0;
  layer.H = H;
  layer.D = cmn.DIAM(ND);
  layer.GAM = (cmn.SIGZRES(NL) - cmn.DSIGZ(NL)) / H;
  note(cmn, equation_of("PY-OPEN-1"),
       {{"sig'", cmn.SIGZRES(NL), in::stress},
        {"dsig", cmn.DSIGZ(NL), in::stress},
        {"X", H, in::length},
        {"gam", layer.GAM, in::weight}});
  note(cmn, equation_of("PY-OPEN-2"), layer.ICYCL == 1 ? "cyclic, Z < ZCYCL" : "static, Z >= ZCYCL",
       {{"Z", cmn.ZLAY(NL), in::length}, {"ZCYCL", cmn.ZCYCL, in::length}});
  return layer;
}

std::optional<double> table_value(common& cmn, const py_method& method, table_view X, table_view Y,
                                  double XI) {
  double YI = 0.0;
  KestraCommonLibrary::Utils::Interpolate(X.size(), 1, X, Y, XI, YI, cmn.IERR);
  if (cmn.IERR == 0) return YI;
  fail(cmn, 1, method.lookup, cmn.IERR);
  return std::nullopt;
}

std::optional<double> ultimate_resistance(common& cmn, const py_layer& layer, const py_method& method,
                                          double SU) {
  double PU = 0.0;
  APILAT(method.IYEAR, SU, cmn.APIJ(layer.TYP), cmn.PHIR(layer.NL), layer.H, cmn.SIGZRES(layer.NL), layer.GAM,
         layer.D, layer.ICYCL, PU, cmn.IERR, cmn.NOTE);
  if (cmn.IERR == 0) return PU;
  fail(cmn, 1, method.APILAT, layer.NL, layer.ND, cmn.IERR);
  return std::nullopt;
}

bool is_sand(const common& cmn, const py_layer& layer, double ZTOL) {
  const bool sand = cmn.PHIR(layer.NL) > ZTOL;
  if (sand) note(cmn, equation_of("PY-OPEN-3"), "sand, phi > 0", {{"phi", cmn.PHIR(layer.NL), in::degrees}});
  return sand;
}

bool is_stiff_clay(const common& cmn, const py_layer& layer) {
  const double SU = cmn.SURED(layer.NL);
  const bool stiff = SU > cmn.SUSTIF;
  note(cmn, equation_of("PY-OPEN-3"), stiff ? "stiff clay, Su > SUSTIF" : "soft clay, Su <= SUSTIF",
       {{"Su", SU, in::stress}, {"SUSTIF", cmn.SUSTIF, in::stress}});
  return stiff;
}

}  // namespace tervak
