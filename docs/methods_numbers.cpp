// What docs/methods holds of the program, made anew; a test compares.   methods_numbers equations | numbers |
// codes
//
// equations   page, id, formula and source of every equation of the list, separated by tabs
// numbers     every block's heading and its worked number, made by the routine from the values that stand
// there

#include <array>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "manual_run.hpp"

#include "Control/axial/AxialCapacityControl.hpp"
#include "Control/layers/build5.hpp"
#include "Control/state/equations.hpp"
#include "SkinFriction/soilInput.hpp"
#include "SoilCurves/axial/axial_methods.hpp"
#include "SoilCurves/axial/QZAUTO.hpp"
#include "SoilCurves/axial/QZMAN.hpp"
#include "SoilCurves/axial/QZMISC.hpp"
#include "SoilCurves/axial/TZAUTO.hpp"
#include "SoilCurves/axial/TZMAN.hpp"
#include "SoilCurves/axial/TZMISC.hpp"
#include "SoilCurves/modify/MODIFY.hpp"
#include "SoilCurves/py/API14.hpp"
#include "SoilCurves/py/API84.hpp"
#include "SoilCurves/py/API87.hpp"
#include "SoilCurves/py/APILAT.hpp"
#include "SoilCurves/py/ISO04.hpp"
#include "SoilCurves/py/NGIPy.hpp"
#include "SoilCurves/py/py_methods.hpp"
#include "SoilCurves/py/PYAUTO.hpp"
#include "SoilCurves/py/PYMAN.hpp"
#include "SoilCurves/py/PYULT.hpp"
#include "SoilCurves/py/VRK80.hpp"

namespace {

using namespace tervak;
using namespace manual;

std::string text(const char* format, auto... values) {
  char buffer[200];
  std::snprintf(buffer, sizeof buffer, format, values...);
  return buffer;
}

/// A block of the pages: its heading, the input of its worked number as it is printed ("name value, ..."),
/// and what makes the result.
struct block {
  const char* heading;
  const char* input;
  std::string (*result)(common&);
};

/// Point N of a curve that a routine makes of layer 1.
template <auto ROUTINE, int N, int CODE = 0>
std::string py(common& cmn) {
  cmn.LAYCOD(1).PYCODE = CODE;
  if constexpr (requires { ROUTINE(cmn, 1, 1, CODE); })
    ROUTINE(cmn, 1, 1, CODE);
  else
    ROUTINE(cmn, 1, 1);
  return text("p = %.6g kPa at y = %.6g m, point %d", cmn.PYSTR(15 + N, 1, 1), cmn.PYDSP(15 + N, 1, 1), N);
}

std::string ultimate(common& cmn) {
  double PULT = 0;
  int IERR = 0;
  const double GAM = (cmn.SIGZRES(1) - cmn.DSIGZ(1)) / cmn.DEPTH(1);
  APILAT(1987, cmn.SURED(1), cmn.APIJ(1), cmn.PHIR(1), cmn.DEPTH(1), cmn.SIGZRES(1), GAM, cmn.DIAM(1), 0,
         PULT, IERR);
  return text("pu = %.6g kPa", PULT);
}

std::string earth_pressure(common& cmn) {
  double PULT = 0;
  PYULT(cmn.PHIR(1) / 180.0 * cmn.PI, cmn.SURED(1), cmn.DEPTH(1), cmn.SIGZRES(1), cmn.DIAM(1), PULT);
  return text("pu = %.6g kPa", PULT);
}

std::string given_py(common& cmn) {
  cmn.PYSTR(16, 1, 1) = 30.0, cmn.PYDSP(16, 1, 1) = 0.05, cmn.NPYPNT(1, 1) = 2;
  return "given 30 kPa at 0.05 m, " + py<PYMAN, 2>(cmn);
}

/// Point N of a T-Z or Q-Z curve of layer 1; below the origin N is negative.
template <auto ROUTINE, int N, int CODE = 0>
std::string axial(common& cmn, const curve_table& STR, const curve_table& DSP, char stress) {
  if constexpr (requires { ROUTINE(cmn, 1, 1, CODE); })
    ROUTINE(cmn, 1, 1, CODE);
  else
    ROUTINE(cmn, 1, 1);
  return text("%c = %.6g kPa at z = %.6g m, point %d", stress, STR(15 + N, 1, 1), DSP(15 + N, 1, 1), N);
}

template <auto ROUTINE, int N, int CODE = 0>
std::string tz(common& cmn) {
  return axial<ROUTINE, N, CODE>(cmn, cmn.TZSTR, cmn.TZDSP, 't');
}

template <auto ROUTINE, int N, int CODE = 0>
std::string qz(common& cmn) {
  return axial<ROUTINE, N, CODE>(cmn, cmn.QZSTR, cmn.QZDSP, 'q');
}

std::string given_tz(common& cmn) {
  cmn.TZSTR(2, 1, 1) = 30.0, cmn.TZDSP(2, 1, 1) = 0.01, cmn.NTZPNT(1, 1) = 2;
  return "given 30 kPa at 0.01 m, " + tz<TZMAN, 1>(cmn);
}

std::string given_qz(common& cmn) {
  cmn.QZSTR(2, 1, 1) = 900.0, cmn.QZDSP(2, 1, 1) = 0.05, cmn.NQZPNT(1, 1) = 2;
  return "given 900 kPa at 0.05 m, " + qz<QZMAN, 1>(cmn);
}

/// Curves of the codes 101, 293 and 293 for both layers, after the modification.
void modify(common& cmn) {
  for (layer_number i(1); i <= 2; ++i) PYAUTO(cmn, i, 1, 101), TZMISC(cmn, i, 1, 293), QZMISC(cmn, i, 1, 293);
  MODIFY(cmn);
  if (cmn.IERR != 0) std::exit(2);
}

std::string tip_tension(common& cmn) {
  modify(cmn);
  return text("q = %.6g kPa in compression, %.6g kPa in tension at z = %.6g m", cmn.QZSTR(20, 1, 1),
              std::abs(cmn.QZSTR(10, 1, 1)), cmn.QZDSP(20, 1, 1));
}

std::string dead_layer(common& cmn) {
  modify(cmn);
  return text("p = %.6g kPa at level 2, %.6g kPa at level 7", cmn.PYSTR(16, 1, 1), cmn.PYSTR(16, 1, 2));
}

template <int N>
std::string modified_py(common& cmn) {
  modify(cmn);
  return text("p = %.6g kPa at y = %.6g m, point %d", cmn.PYSTR(15 + N, 1, 1), cmn.PYDSP(15 + N, 1, 1), N);
}

std::string modified_tz(common& cmn) {
  modify(cmn);
  return text("t = %.6g kPa at z = %.6g m, point -3", cmn.TZSTR(12, 1, 1), cmn.TZDSP(12, 1, 1));
}

enum method { API_93, ICP_05, NGI_05 };

/// Skin friction or tip stress of layer 1 by a method of capacity.
template <method M, bool TIP = false>
std::string capacity(common& cmn) {
  constexpr const char* LABELS[] = {"API-93", "ICP-05", "NGI-05"};
  for (int i = 0; i < 2; ++i) cmn.METHOD.at(static_cast<std::size_t>(i)).assign(LABELS[M]);
  R5AXCAP(cmn);
  if (TIP) return text("q = %.6g kPa", cmn.QTIP(1));
  return text("tc = %.6g kPa, tt = %.6g kPa", cmn.TAUCMP(1), cmn.TAUTNS(1));
}

/// A value of layer 1 after the soil stage.
template <vector1<double> common::*VALUE>
std::string soil(common& cmn, const char* format) {
  R5SOIL(cmn);
  return text(format, (cmn.*VALUE)(1));
}

/// A value of layer 2, level 7, after the layer stage.
template <vector1<double> common::*VALUE>
std::string profile(common& cmn, const char* format) {
  BUILD5(cmn, 2);
  return text(format, (cmn.*VALUE)(2));
}

std::string levels(common& cmn) {
  cmn.LAYCOD = {}, cmn.ZBOTM = {}, cmn.ZLAY = {};
  cmn.NSUBM = {2, 2};
  BUILD5(cmn, 1);
  return text("two layers in each main layer, Z = %.6g, %.6g, %.6g, %.6g m", cmn.ZLAY(1), cmn.ZLAY(2),
              cmn.ZLAY(3), cmn.ZLAY(4));
}

std::string density(common& cmn) {
  R5SOIL(cmn);
  return text("Dr = %.6g, phi = %.6g degrees", cmn.DR(1), cmn.PHIL(1));
}

std::string overconsolidation(common& cmn) {
  R5SOIL(cmn);
  return text("OCR = %.6g, St = %.6g", cmn.OCRL(1), cmn.ST(1));
}

const block BLOCKS[] = {
    {"P-Y opening: soil kind and load",
     "phi 0, Su 50, sig' 60, dsig 20, X 5, D 1, J 0.5, eps50 0.01, ZCYCL 3", py<API14, 5, 214>},
    {"P-Y ultimate resistance of sand", "phi 35, sig' 50, X 5, D 1", ultimate},
    {"P-Y ultimate resistance of clay", "Su 50, sig' 60, dsig 20, X 5, D 1, J 0.5", ultimate},
    {"P-Y tanh curve of sand", "phi 35, sig' 50, X 5, D 1, KSOILM 22000", py<API14, 3, 214>},
    {"P-Y curve of soft clay", "Su 50, sig' 40, X 3, D 1, J 0.5, eps50 0.01, ZCYCL 3", py<API84, 3, 284>},
    {"P-Y curve of stiff clay", "Su 150, sig' 40, X 3, D 1", py<API14, 6, 214>},
    {"P-Y earth pressure resistance", "phi 30, Su 0, sig' 50, X 5, D 1", earth_pressure},
    {"P-Y 0, MANUAL", "D 1", given_py},
    {"P-Y 100, 101, 102, 103: LINEAR, AUTO-1, AUTO-2, AUTO-3", "phi 30, sig' 50, X 5, D 1",
     py<PYAUTO, 3, 103>},
    {"P-Y 214, API-2014", "phi 35, sig' 50, X 5, D 1", py<API14, 3, 214>},
    {"P-Y 284, API-84", "phi 35, sig' 50, X 5, D 1", py<API84, 2, 284>},
    {"P-Y 287, API-87", "phi 35, sig' 50, X 5, D 1", py<API87, 3, 287>},
    {"P-Y 380, VRK-80", "Su 50, sig' 50, X 5, D 1, eps50 0.01", py<VRK80, 3, 380>},
    {"P-Y 404, ISO-04", "phi 35, sig' 50, X 5, D 1, ZPWP 9", py<ISO04, 3, 404>},
    {"P-Y 570, ModMat", "Su 150, sig' 40, X 3, D 1, J 0.5, eps50 0.005, ZCYCL 3", py<ISO04, 4, 570>},
    {"P-Y 588, carbonate sand", "phi 30, sig' 50, X 5, D 1, APIJM 400, ZCYCL 3", py<API87, 4, 588>},
    {"P-Y 600, NGI-11", "Su 30, sig' 50, X 5, D 1, J 0.5, g 500, C 1, ZCYCL 3", py<NGI11, 5, 600>},
    {"T-Z maxima", "tc 80, tt 60, SFSKF 1.5, G 20000, D 1, TRESM 0.9", tz<TZMISC, -3, 293>},
    {"T-Z clay curve of API", "tc 80, tt 80, G 20000, D 1.5, TRESM 0.8, TZZRSM 0.01", tz<TZMISC, 6, 293>},
    {"T-Z 0, MANUAL", "SFSKF 1.5", given_tz},
    {"T-Z 100, 101, 102, 103: LINEAR, AUTO-1, AUTO-2, AUTO-3", "tc 80, tt 60, D 1, TRESM 0.8, TZZRSM 0.02",
     tz<TZAUTO, -3, 103>},
    {"T-Z 200, KRAFT", "tc 80, tt 80, G 20000, D 1, TRESM 0.8", tz<TZMISC, 3, 200>},
    {"T-Z 214, API-2014", "phi 35, tc 80, tt 60, G 20000, D 1", tz<TZMISC, 6, 214>},
    {"T-Z 293, API-93", "phi 35, tc 80, tt 60, G 20000, D 1", tz<TZMISC, 1, 293>},
    {"T-Z 588, carbonate sand", "tc 80, tt 60, G 20000, D 1", tz<TZMISC, 2, 588>},
    {"Q-Z maximum", "q 3000, G 20000, D 1, SFSIGT 1.5", tip_tension},
    {"Q-Z 0, MANUAL", "SFSIGT 1.5", given_qz},
    {"Q-Z 100, 101, 102, 103: LINEAR, AUTO-1, AUTO-2, AUTO-3", "q 3000, D 1", qz<QZAUTO, 3, 103>},
    {"Q-Z 200, ELAPLA", "q 3000, G 20000, nu 0.3, D 1", qz<QZMISC, 2, 200>},
    {"Q-Z 214 and 293, API-2014 and API-93", "q 3000, G 20000, D 1", qz<QZMISC, 3, 293>},
    {"Capacity pile", "phi 30, SFTPHI 1.25, sig' 100, D 1, wall 0.3, tip 30, Z 12", capacity<API_93>},
    {"Method 0, given values", "TCMTOP 20, TCMBOT 60, phi 30, sig' 20",
     [](common& cmn) { return soil<&common::TAUCMP>(cmn, "ts = %.6g kPa at level 2"); }},
    {"Method 1, API-93: skin friction in clay", "Su 50, sig' 100", capacity<API_93>},
    {"Method 1, API-93: skin friction in sand", "phi 30, sig' 100, D 1, wall 0.05", capacity<API_93>},
    {"Method 1, API-93: tip in sand", "phi 32, sig' 100, D 1, wall 0.05", capacity<API_93, true>},
    {"Method 2, ICP-05: skin friction in clay", "Su 50, sig' 100, Ip 25, St 2, D 1, wall 0.05, tip 30, Z 12",
     capacity<ICP_05>},
    {"Method 2, ICP-05: skin friction in sand", "phi 32, qc 20000, sig' 150, D 1.2, wall 0.04, tip 30, Z 20",
     capacity<ICP_05>},
    {"Method 2, ICP-05: tip in sand", "phi 32, qc 25000, Dr 0.7, sig' 200, D 0.762, wall 0.03",
     capacity<ICP_05, true>},
    {"Method 2, ICP-05: tip in clay", "Su 100, qc 1500, St 2, Ip 25, sig' 100, D 1, wall 0.05",
     capacity<ICP_05, true>},
    {"Method 3, NGI-05: skin friction in clay", "Su 40, sig' 100, Ip 30, D 1, wall 0.05", capacity<NGI_05>},
    {"Method 3, NGI-05: skin friction in sand",
     "phi 32, qc 20000, Dr 0.6, sig' 100, D 1, wall 0.05, tip 30, Z 15", capacity<NGI_05>},
    {"Method 3, NGI-05: tip in sand", "phi 32, qc 25000, Dr 0.6, sig' 200, D 1, wall 0.05",
     capacity<NGI_05, true>},
    {"Methods 1, 2 and 3: tip in clay", "Su 50, sig' 100", capacity<API_93, true>},
    {"Values at the level", "SUTOP 40, SUBOT 80, SFSU 1.2, sig' 20",
     [](common& cmn) { return soil<&common::SUCMP>(cmn, "Su = %.6g kPa at level 2"); }},
    {"Relative density, friction angle and cone resistance of sand", "qc 12000, sig' 80", density},
    {"Mean cone resistance", "qc1 8000, qc2 20000, D 3, phi 30, sig' 40",
     [](common& cmn) { return soil<&common::CPTAVR>(cmn, "qcm = %.6g kPa at level 2"); }},
    {"Overconsolidation ratio and sensitivity of clay", "Su 60, sig' 80", overconsolidation},
    {"Shear modulus", "phi 35, sig' 80",
     [](common& cmn) { return soil<&common::GSOIL>(cmn, "G = %.6g kPa"); }},
    {"Levels", "D 1", levels},
    {"Effective vertical stress and scour", "GAMM 20.05, ZPWP 0, SCRGEN 1, SCRLOC 3, SCRSLP 30",
     [](common& cmn) { return profile<&common::SIGZRES>(cmn, "sig' = %.6g kPa at level 7"); }},
    {"Surface loads", "SIGSUR 5, SIGEMB 50, AEMB 6, BEMB 4, load 1000, at 3, SIGCIR 20, RADCIR 5",
     [](common& cmn) { return profile<&common::DSIGZ>(cmn, "dsig = %.6g kPa at level 7"); }},
    {"Depth", "SCRGEN 1, SCRLOC 3, SCRSLP 20",
     [](common& cmn) { return profile<&common::DEPTH>(cmn, "X = %.6g m at level 7"); }},
    {"Strength of the layer stage", "SU0 20, SU100 220, SFSU 1.2",
     [](common& cmn) { return profile<&common::SURED>(cmn, "Su = %.6g kPa at level 7"); }},
    {"Layers above the local scour level", "phi 30, sig' 50, X 5, D 1, SCRLOC 3, G 20000", dead_layer},
    {"Factors on P-Y curves", "phi 30, sig' 50, X 5, D 1, G 20000, PYFSTR 0.8, PYFDSP 1.2, PYGAP 0.05",
     modified_py<2>},
    {"Factors on T-Z and Q-Z curves", "tc 80, tt 60, D 1, G 20000, TZFNEG 0.7, TZFDSP 1.5", modified_tz},
    {"Fill-out to 29 points", "phi 30, sig' 50, X 5, D 1, G 20000", modified_py<3>},
};

void print_equations() {
  for (const equation_page& page : EQUATION_PAGES)
    for (const equation& e : page.equations)
      std::printf("%s\t%s\t%s\t%s\n", page.file.data(), e.id.data(), e.formula.data(), e.source.data());
}

bool print_numbers() {
  for (const block& b : BLOCKS) {
    run cmn;
    if (!prepare(cmn, b.input)) {
      std::fprintf(stderr, "methods_numbers: cannot read the input \"%s\"\n", b.input);
      return false;
    }
    std::printf("## %s\n**Worked number.** %s: %s.\n", b.heading, b.input, b.result(cmn).c_str());
  }
  return true;
}

/// The tables of methods: family, code, label and the revisions that may give it; then the capacity methods.
void print_codes() {
  const auto print = [](const char* family, curve_methods methods) {
    for (const curve_method& row : methods)
      std::printf("%s %d %s%s %s\n", family, row.code, accepts(methods, row.code, 4) ? "4" : "",
                  accepts(methods, row.code, 5) ? "5" : "", row.label);
  };
  print("P-Y", py_methods());
  print("T-Z", tz_methods());
  print("Q-Z", qz_methods());
  for (int method = 0; method <= 3; ++method) std::printf("Method %d 5\n", method);
}

}  // namespace

int main(int argc, char** argv) {
  const std::string what = argc == 2 ? argv[1] : "";
  if (what == "equations") return print_equations(), 0;
  if (what == "numbers") return print_numbers() ? 0 : 1;
  if (what == "codes") return print_codes(), 0;
  std::fprintf(stderr, "usage: methods_numbers equations | numbers | codes\n");
  return 2;
}
