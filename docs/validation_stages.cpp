// The layer stage, the correlations and the shear modulus.

#include <string>

#include "Control/layers/BUILD.hpp"
#include "Control/layers/build5.hpp"
#include "IO/input/main_layer_tables.hpp"
#include "SkinFriction/soilInput.hpp"
#include "SoilCurves/axial/QZMISC.hpp"
#include "SoilCurves/axial/TZMISC.hpp"
#include "SoilCurves/modify/MODIFY.hpp"
#include "SoilCurves/py/PYAUTO.hpp"
#include "validation.hpp"

namespace validation {

namespace {

using namespace tervak;
using std::string;

/// A value of layer 2, level 7, after the layer stage.
template <vector1<double> common::*VALUE>
double profile(common& cmn) {
  BUILD5(cmn, 2);
  return (cmn.*VALUE)(2);
}

/// The strength by the line of main layer 2, at level 7. Zt of the input is the bottom of calculation
/// layer 1.
double strength_by_the_line(common& cmn) {
  cmn.GAMM(1) = cmn.GAMM(2) = 20.05;
  map_main_layers(cmn, Vrsk::Plin::TervakExchange::Tervak{});
  return profile<&common::SURED>(cmn);
}

/// A value of layer 1, level 2, after the soil stage.
template <vector1<double> common::*VALUE>
double soil(common& cmn) {
  R5SOIL(cmn);
  return (cmn.*VALUE)(1);
}

/// The shear modulus of the depth row at 7.5 m of a revision 4 deck; it is in layer 2, level 7.
double revision_4_modulus(common& cmn) {
  cmn.REVISION = 4;
  BUILD(cmn);
  return cmn.G0SOIL(4);
}

/// Curves of the codes 101, 293 and 293 for both layers, after the modification.
void modify(common& cmn) {
  PYAUTO(cmn, 1, 1, 101), TZMISC(cmn, 1, 1, 293), QZMISC(cmn, 1, 1, 293);
  PYAUTO(cmn, 2, 1, 101), TZMISC(cmn, 2, 1, 293), QZMISC(cmn, 2, 1, 293);
  MODIFY(cmn);
}

void add(rows& all, const string& line, const string& input, const string& result, const string& source,
         const string& formula, double (*ours)(common&), double tolerance = 1e-6) {
  all.push_back({"Layers and soil values", "Stages/" + line + "/rows", line, input, result, source, formula,
                 ours, tolerance});
}

void add_stress(rows& all) {
  const auto stress = profile<&common::SIGZRES>;
  const string definition = "overburden";
  add(all, "stress", "GAMM 20.05", "sig', kPa", definition, "g = GAMM - 10.05; s = 7 * g", stress);
  add(all, "stress", "GAMM 20.05, ZPWP 3", "sig', kPa", definition + ", water from 3 m",
      "s = 3 * GAMM + 4 * (GAMM - 10.05)", stress);
  add(all, "scour", "GAMM 20.05, SCRGEN 1, SCRLOC 1", "sig', kPa", definition + " below the general scour",
      "g = GAMM - 10.05; s = (7 - SCRGEN) * g", stress);
  const string relief = "methods/layers.md, LAY-3 to LAY-6; no published source known";
  const string hole = "h = SCRLOC - SCRGEN; L = h / tan(SCRSLP); d = 7 - SCRLOC; ";
  add(all, "scour", "GAMM 20.05, SCRGEN 1, SCRLOC 3, SCRSLP 30", "sig', kPa", relief,
      "g = GAMM - 10.05; " + hole + "F = 0.31^(d / L); s = d * g + (1 - F) * h * g", stress);
  for (const char* input : {"SCRGEN 1, SCRLOC 3, SCRSLP 20", "SCRGEN 1, SCRLOC 3, SCRSLP 40"})
    add(all, "depth", input, "X, m", "methods/layers.md, LAY-8; no published source known",
        hole + "X = min(d * (1 + h / L), d + h)", profile<&common::DEPTH>);
  add(all, "strength of the stiff clay", "SU0 20, SU100 220, SFSU 1.2", "Su, kPa", "methods/layers.md, LAY-9",
      "Su = (SU0 + (SU100 - SU0) * 7 / 100) / SFSU", profile<&common::SURED>);
  for (const char* input : {"SUTOP 100, SUBOT 220, Zt 4, SFSU 1.2", "SUTOP 100, SUBOT 220, Zt 2, SFSU 1.2"})
    add(all, "strength of the stiff clay", input, "Su, kPa",
        "methods/py.md, PY-STIFF-1: main layer from 4 to 10 m, calculation layer 1 down to Zt",
        "Su = (SUTOP + (SUBOT - SUTOP) * (7 - Zt) / (10 - Zt)) / SFSU", strength_by_the_line);
}

void add_loads(rows& all) {
  const auto load = profile<&common::DSIGZ>;
  add(all, "surface loads", "SIGEMB 50, AEMB 6, BEMB 4", "dsig, kPa",
      "half-infinite load with a sloping edge on an elastic half-space",
      "a1 = atan(7 / (AEMB + BEMB)) / 180; a2 = atan(7 / BEMB) / 180; s = SIGEMB * (a1 - BEMB / AEMB * (a2 - a1))",
      load);
  add(all, "surface loads", "load 1000, at 3", "dsig, kPa", "Boussinesq 1885",
      "s = 3 * load / (2 * pi) * 7^3 / (at^2 + 7^2)^2.5", load);
  add(all, "surface loads", "SIGSUR 5, SIGCIR 20, RADCIR 7", "dsig, kPa",
      "uniform load; Boussinesq's half-space, below the centre of a circle (0.646 of its load at a depth of one radius)",
      "s = SIGSUR + SIGCIR * (1 - (1 / (1 + (RADCIR / 7)^2))^1.5)", load);
}

void add_correlations(rows& all) {
  const string density = "Clausen, Aas and Karlsrud 2005";
  const string angle = "methods/correlations.md, COR-SAND-1, 3, 4; no published source known";
  const string F = "F = 1 - 0.082 * log10(sig' / 100); ";
  const string from_qc = "Dr = 0.4 * ln(qc / (22 * sqrt(100 * sig')))";
  add(all, "correlations, sand", "qc 12000, sig' 80", "Dr", density, from_qc, soil<&common::DR>);
  add(all, "correlations, sand", "qc 12000, sig' 80", "phi, degrees", angle,
      from_qc + "; " + F + "f = min(40, (23 + 21.4 * Dr) * F)", soil<&common::PHIL>);
  add(all, "correlations, sand", "phi 35, sig' 150", "Dr", angle, F + "Dr = (phi / F - 23) / 21.4",
      soil<&common::DR>);
  add(all, "correlations, sand", "Dr 0.6, sig' 150", "qc, kPa", density,
      "qc = 22 * sqrt(100 * sig') * exp(2.5 * Dr)", soil<&common::CPTTIP>);
  add(all, "correlations, sand", "PHIM 35, SFTPHI 1.25, sig' 80", "phi, degrees",
      "methods/correlations.md, COR-LEV-2", "f = atan(tan(PHIM) / SFTPHI)", soil<&common::PHIR>);
  const string clay = "methods/correlations.md; the form of Ladd and Foott 1974";
  add(all, "correlations, clay", "Su 60, sig' 80", "OCR", clay, "OCR = (4 * Su / sig')^1.25",
      soil<&common::OCRL>);
  add(all, "correlations, clay", "Su 60, sig' 80", "St", "methods/correlations.md, COR-CLAY-2",
      "St = min(8, max(1, 2 * sig' / Su))", soil<&common::ST>);
  add(all, "correlations, clay", "SUTOP 40, SUBOT 80, SFSU 1.2, sig' 20", "Su, kPa",
      "methods/correlations.md, COR-LEV-1, 2",
      "Su = (SUTOP + (SUBOT - SUTOP) * (2 + 0.001) / (4 - 0.001 + 0.001)) / SFSU", soil<&common::SUCMP>);
  // Levels 2 and 7 m: the mean reaches from 2 - 1.5 D to 2 + 1.5 D, the first five of eleven levels are above
  // 2 m.
  add(all, "mean cone resistance", "qc1 8000, qc2 20000, D 3, phi 30, sig' 40", "qcm, kPa",
      "mean over 1.5 diameters above and below: Jardine and Chow 1996",
      "qcm = qc1 + (qc2 - qc1) * (1 + 2 + 3 + 4 + 5) * 0.3 * D / (7 - 2) / 11", soil<&common::CPTAVR>);
  const string modulus = "methods/correlations.md, COR-G-1, COR-G-2; no published source known";
  add(all, "shear modulus, sand", "phi 35, sig' 80", "G, kPa", modulus,
      "G = 1000 * 101.3 * tan(phi) * sqrt(sig' / 101.3) / (2 * (1 + 0.3))", soil<&common::GSOIL>);
  const string clay_modulus =
      "OCR = (4 * Su / sig')^1.25; G = Su * max(50, 300 - 85 * sqrt(min(10, max(1, OCR)) - 1))";
  for (const char* input : {"Su 60, sig' 80", "Su 15, sig' 80", "Su 90, sig' 40"})
    add(all, "shear modulus, clay", input, "G, kPa", modulus, clay_modulus, soil<&common::GSOIL>);
  const string row = "; depth row at 7.5 m";
  add(all, "shear modulus, revision 4", "SU0 50, SU100 50, GAMM 20.05", "G, kPa", modulus + row,
      "s = 7 * (GAMM - 10.05); OCR = 4 * SU0 / s; G = SU0 * max(50, 300 - 85 * sqrt(min(10, max(1, OCR)) - 1))",
      revision_4_modulus);
  add(all, "shear modulus, revision 4", "phi 35, GAMM 20.05, nu 0.3", "G, kPa", modulus + row,
      "s = 7 * (GAMM - 10.05); G = 1000 * 101.3 * tan(phi) * sqrt(s / 101.3) / (2 * (1 + nu))",
      revision_4_modulus);
}

void add_factors(rows& all) {
  const string source = "factors of the deck";
  const string line = "factors on curves";
  add(all, line, "phi 30, sig' 50, X 5, D 1.2, PYFDSP 1.2, PYGAP 0.05, G 20000", "y of point 2 of P-Y 101, m",
      source, "y = 0.1 * D * PYFDSP + PYGAP", [](common& cmn) { return modify(cmn), cmn.PYDSP(17, 1, 1); });
  add(all, line, "tc 80, tt 60, G 20000, D 1.2, TZFNEG 0.7", "t of point -3 of T-Z 293, kPa", source,
      "t = -0.75 * TZFNEG * tt", [](common& cmn) { return modify(cmn), cmn.TZSTR(12, 1, 1); });
}

}  // namespace

void add_stages(rows& all) {
  add_stress(all);
  add_loads(all);
  add_correlations(all);
  add_factors(all);
}

}  // namespace validation
