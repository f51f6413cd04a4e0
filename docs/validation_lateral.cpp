// Lateral resistance and P-Y curves.

#include <string>

#include "SoilCurves/py/API14.hpp"
#include "SoilCurves/py/API84.hpp"
#include "SoilCurves/py/API87.hpp"
#include "SoilCurves/py/APILAT.hpp"
#include "SoilCurves/py/ISO04.hpp"
#include "SoilCurves/py/NGIPy.hpp"
#include "SoilCurves/py/PYAUTO.hpp"
#include "SoilCurves/py/VRK80.hpp"
#include "validation.hpp"

namespace validation {

namespace {

using namespace tervak;
using std::string;

/// The wedge and the deep flow take pi as 3.14159, and cancel digits.
constexpr double COARSE_PI = 3e-5;

const string WEDGE =
    "b = 45 + phi / 2; "
    "C1 = tan(b)^2 * tan(phi / 2) / tan(b - phi) + 0.4 * (tan(phi) * sin(b) / (cos(phi / 2) * tan(b - phi)) + "
    "tan(b) * (tan(phi) * sin(b) - tan(phi / 2))); "
    "C2 = tan(b) / tan(b - phi) - tan(b - phi)^2; "
    "C3 = tan(b - phi)^2 * (tan(b)^8 - 1) + 0.4 * tan(phi) * tan(b)^4; "
    "pu = min((C1 * X / D + C2) * sig', C3 * sig')";
const string MATLOCK = "pu = min(3 * Su + (sig' - dsig) + J * Su * X / D, 9 * Su)";

const string API_SAND = "API RP 2A 1993, 6.8.6-1, 6.8.6-2; API RP 2GEO 2011, 8.5.6";
const string API_CLAY = "Matlock 1970; API RP 2A 1993, 6.8.2-1, 6.8.2-2";

double resistance(common& cmn) {
  double PULT = 0;
  int IERR = 0;
  const double GAM = (cmn.SIGZRES(1) - cmn.DSIGZ(1)) / cmn.DEPTH(1);
  APILAT(1987, cmn.SURED(1), cmn.APIJ(1), cmn.PHIR(1), cmn.DEPTH(1), cmn.SIGZRES(1), GAM, cmn.DIAM(1), 0,
         PULT, IERR);
  return PULT;
}

void add_resistance(rows& all) {
  for (const char* input :
       {"phi 35, sig' 10, X 1, D 1", "phi 30, sig' 20, X 2, D 1.5", "phi 20, sig' 50, X 5, D 1",
        "phi 25, sig' 50, X 5, D 1", "phi 40, sig' 50, X 5, D 1", "phi 30, sig' 250, X 30, D 1"})
    all.push_back({"Ultimate lateral resistance", "P-Y/pu of 214 to 588/sand static", "sand", input,
                   "pu, kPa", API_SAND, WEDGE, resistance, COARSE_PI});
  for (const char* input :
       {"Su 25, sig' 8, dsig 0, X 1, D 0.6, J 0.5", "Su 25, sig' 400, dsig 0, X 50, D 0.6, J 0.5",
        "Su 50, sig' 60, dsig 20, X 5, D 1, J 0.25"})
    all.push_back({"Ultimate lateral resistance", "P-Y/pu of 214 to 588/soft clay static", "clay", input,
                   "pu, kPa", API_CLAY, MATLOCK, resistance});
}

void make_curve(common& cmn, int code) {
  cmn.LAYCOD(1).PYCODE = code;
  switch (code) {
    case 214:
      API14(cmn, 1, 1);
      break;
    case 284:
      API84(cmn, 1, 1);
      break;
    case 287:
    case 588:
      API87(cmn, 1, 1);
      break;
    case 380:
      VRK80(cmn, 1, 1);
      break;
    case 404:
    case 570:
      ISO04(cmn, 1, 1);
      break;
    case 600:
      NGI11(cmn, 1, 1);
      break;
    default:
      PYAUTO(cmn, 1, 1, code);
  }
}

/// What the rows of one code, soil and load share.
struct kind {
  int code;
  string column, input, source, curve;  ///< curve: the formula up to what its points need
  double tolerance = 1e-6;
};

/// A stress (quantity p) or displacement (y) of a point; 1 is the first point after the origin.
void add_point(rows& all, const kind& of, char quantity, int point, const string& step) {
  const string what =
      string(1, quantity) + " of point " + std::to_string(point) + (quantity == 'p' ? ", kPa" : ", m");
  const string code = std::to_string(of.code);
  all.push_back({"P-Y curves", "P-Y/" + code + "/" + of.column, code + " " + of.column, of.input, what,
                 of.source, of.curve + "; " + step,
                 [code = of.code, quantity, point](common& cmn) {
                   make_curve(cmn, code);
                   return (quantity == 'p' ? cmn.PYSTR : cmn.PYDSP)(15 + point, 1, 1);
                 },
                 of.tolerance});
}

const string STATIC_A = "; A = max(0.9, 3 - 0.8 * X / D)";
const string CYCLIC_A = "; A = 0.9";

void add_tanh_sand(rows& all) {
  const string own = "phi 30, sig' 20, X 2, D 1.5, KSOILM 11000";
  const string table = "phi 35, sig' 10, X 1, D 1";
  const string api_rp_2a = "API RP 2A 1993, 6.8.7-1; k of figure 6.8.7-1 by methods/py.md";
  const string api_rp_2geo = "API RP 2GEO 2011, addendum 2014, 8.5.7";
  const string iso = "ISO 19902, 17.8; k of API RP 2A 1993, figure 6.8.7-1, by methods/py.md";
  const kind kinds[] = {
      {214, "sand static", own, api_rp_2geo, WEDGE + STATIC_A + "; k = KSOILM", COARSE_PI},
      {214, "sand static", table, api_rp_2geo, WEDGE + STATIC_A + "; k = 2189 * 10.05", COARSE_PI},
      {214, "sand cyclic", own + ", ZCYCL 3", api_rp_2geo, WEDGE + CYCLIC_A + "; k = KSOILM", COARSE_PI},
      {287, "sand static", table, api_rp_2a,
       WEDGE + STATIC_A + "; k = (869 + (2498 - 869) * (phi - 30) / 6) * 10.05", COARSE_PI},
      {287, "sand cyclic", table + ", ZPWP 9, ZCYCL 3", api_rp_2a,
       WEDGE + CYCLIC_A + "; k = (1222 + (4263 - 1222) * (phi - 30) / 6) * 10.05", COARSE_PI},
      {404, "sand static", "phi 38, sig' 20, X 2, D 1.5", iso,
       WEDGE + STATIC_A + "; k = (2498 + (4209 - 2498) * (phi - 36) / 4) * 10.05", COARSE_PI},
      {404, "sand cyclic", "phi 38, sig' 20, X 2, D 1.5, ZCYCL 3", iso,
       WEDGE + CYCLIC_A + "; k = (2498 + (4209 - 2498) * (phi - 36) / 4) * 10.05", COARSE_PI}};
  for (const kind& of : kinds) {
    const string y = "y = 0.333 * 3.8 * A * pu * D / (k * X)";
    add_point(all, of, 'y', 3, y);
    add_point(all, of, 'p', 3, y + "; p = A * pu * tanh(k * X * y / (A * pu * D))");
  }
}

void add_reese_sand(rows& all) {
  const string source = "Reese, Cox and Koop 1974; k, A and B by methods/py.md";
  const string curve =
      "; yM = D / 60; yU = 3 * D / 80; n = pM * (yU - yM) / (yM * (pU - pM)); k = 1628 * 10.05; "
      "yK = (pM * D / (k * X * yM^(1 / n)))^(n / (n - 1))";
  const string input = "phi 35, sig' 25, X 2.5, D 1.25";
  const kind kinds[] = {
      {284, "sand static", input, source, WEDGE + "; pU = 1.46 * pu; pM = 1.05 * pu" + curve, COARSE_PI},
      {284, "sand cyclic", input + ", ZCYCL 3", source, WEDGE + "; pU = 1.04 * pu; pM = 0.83 * pu" + curve,
       COARSE_PI}};
  for (const kind& of : kinds) {
    add_point(all, of, 'p', 1, "p = k * X * yK / D");
    add_point(all, of, 'p', 2, "y = yK + (yM - yK) / 3; p = pM * (y / yM)^(1 / n)");
    add_point(all, of, 'p', 4, "p = pM");
    add_point(all, of, 'y', 5, "y = yU");
  }
}

/// The factors A and B of the Reese sand curve against the charts, which are read off within 0.05.
void add_reese_charts(rows& all) {
  const struct {
    const char* name;
    bool cyclic;
    int from_end;  ///< the point of A is the last but one of its side, that of B the last but two
    double chart[6];
  } charts[] = {{"A", false, 1, {2.90, 2.13, 1.48, 1.04, 0.88, 0.88}},
                {"A", true, 1, {0.75, 1.06, 1.01, 0.93, 0.88, 0.88}},
                {"B", false, 2, {2.20, 1.56, 1.05, 0.70, 0.54, 0.50}},
                {"B", true, 2, {0.50, 0.84, 0.82, 0.69, 0.56, 0.55}}};
  for (const auto& [name, cyclic, from_end, chart] : charts)
    for (int x = 0; x <= 5; ++x) {
      const string column = cyclic ? "sand cyclic" : "sand static";
      const string depth = x == 0 ? "0.00001" : std::to_string(x);
      all.push_back({"A and B of the Reese sand curve", "P-Y/284/" + column, "284 " + column,
                     "phi 35, sig' 50, X " + depth + ", D 1, ZCYCL " + (cyclic ? "3" : "0"), name,
                     string("Reese, Cox and Koop 1974, chart of ") + name + ", read off within 0.05", "",
                     [back = from_end](common& cmn) {
                       API84(cmn, 1, 1);
                       return cmn.PYSTR(15 + cmn.NPYPNT(1, 1) / 2 - back, 1, 1) / resistance(cmn);
                     },
                     0.0501 / chart[x], chart[x]});
    }
}

void add_soft_clay(rows& all) {
  const string five = "Matlock 1970; API RP 2A 1993, 6.8.3";
  const string seven = "Matlock 1970; API RP 2GEO 2011, 8.5.3";
  const string input = "Su 50, sig' 24, dsig 0, X 3, D 1.2, J 0.5, eps50 0.01";
  const string deep = "Su 50, sig' 160, dsig 0, X 20, D 1.2, J 0.5, eps50 0.01";
  const string yc = MATLOCK + "; yc = 2.5 * eps50 * D";
  const string pr =
      yc + "; XR = max(2.5 * D, 6 * D / ((sig' - dsig) / X * D / Su + J)); pr = 0.72 * pu * min(1, X / XR)";
  for (const int code : {214, 404, 570}) {
    add_point(all, {code, "soft clay static", input, seven, yc}, 'p', 2, "p = 0.33 * pu");
    add_point(all, {code, "soft clay static", input, seven, yc}, 'y', 4, "y = 3 * yc");
    add_point(all, {code, "soft clay cyclic", input + ", ZCYCL 3", seven, pr}, 'p', 5, "p = pr");
    add_point(all, {code, "soft clay cyclic", input + ", ZCYCL 3", seven, pr}, 'y', 5, "y = 15 * yc");
  }
  add_point(all, {214, "soft clay cyclic", deep + ", ZCYCL 3", seven, pr}, 'p', 6, "p = pr");
  for (const int code : {284, 287}) {
    add_point(all, {code, "soft clay static", input, five, yc}, 'p', 2, "p = 0.72 * pu");
    add_point(all, {code, "soft clay static", input, five, yc}, 'y', 3, "y = 8 * yc");
    add_point(all, {code, "soft clay cyclic", input + ", ZCYCL 3", five, pr}, 'p', 3, "p = pr");
  }
}

void add_modified_clay(rows& all) {
  const string input = "Su 150, sig' 40, dsig 0, X 3, D 1.2, J 0.5, eps50 0.005";
  const string yc = MATLOCK + "; yc = 2.5 * eps50 * D";
  const string source = "methods/py.md, PY-570; yc and pr: Matlock 1970";
  add_point(all, {570, "stiff clay static", input, source, yc}, 'p', 4, "p = 0.72 * pu");
  const kind cyclic{570, "stiff clay cyclic", input + ", ZCYCL 3", source,
                    yc + "; XR = max(2.5 * D, 6 * D / ((sig' - dsig) / X * D / Su + J))"};
  add_point(all, cyclic, 'p', 4, "p = 0.72 * pu * min(1, X / XR)");
  add_point(all, cyclic, 'y', 4, "y = 15 * yc");
}

/// Strength the same at all depths, a unit of water that makes a metre a metre, and A and B at X / D 1 and 2.
void add_stiff_clay(rows& all) {
  const string source = "Reese, Cox and Koop 1975; A and B by methods/py.md";
  const string pc = "Pc = min(2 * Su * D + sig' * D + 2.83 * Su * X, 11 * Su * D); ";
  const string one = "Su 100, sig' 9, X 1, D 1, GAMWAT 10", two = "Su 200, sig' 20, X 2.4, D 1.2, GAMWAT 10";
  const string one_static = pc + "yc = 0.005 * D; ya = 0.42 * yc",
               two_static = pc + "yc = 0.004 * D; ya = 0.55 * yc";
  const string one_cyclic = pc + "yc = 0.005 * D; yp = 4.1 * 0.42 * yc";
  const string two_cyclic = pc + "yc = 0.004 * D; yp = 4.1 * 0.55 * yc";
  const string rise = "p = 0.5 * Pc * sqrt(y / yc) / D";
  const string fall = "p = (0.5 * Pc * sqrt(y / yc) - 0.055 * Pc * ((y - ya) / ya)^1.25) / D";
  const kind static_214{214, "stiff clay static", one, source, one_static};
  add_point(all, static_214, 'p', 3, "y = ya; " + rise);
  add_point(all, static_214, 'p', 7, "y = 6 * ya; " + fall);
  add_point(all, static_214, 'p', 9,
            "p = (0.5 * Pc * sqrt(6 * 0.42) - 0.411 * Pc - 0.0625 * Pc * 12 * ya / yc) / D");
  add_point(all, {284, "stiff clay static", two, source, two_static}, 'p', 5, "y = 3.5 * ya; " + fall);
  add_point(all, {287, "stiff clay static", two, source, two_static}, 'p', 8,
            "p = (0.5 * Pc * sqrt(6 * 0.55) - 0.411 * Pc - 0.0625 * Pc * ya / yc) / D");
  add_point(all, {404, "stiff clay static", two, source, two_static}, 'p', 2, "y = 2 / 3 * ya; " + rise);
  const kind cyclic_214{214, "stiff clay cyclic", one + ", ZCYCL 3", source, one_cyclic};
  add_point(all, cyclic_214, 'p', 4, "p = 0.28 * Pc / D");
  add_point(all, cyclic_214, 'y', 4, "y = 0.45 * yp");
  add_point(all, {284, "stiff clay cyclic", two + ", ZCYCL 3", source, two_cyclic}, 'p', 6,
            "y = 0.55 * yp; p = 0.3 * Pc * (1 - ((y - 0.45 * yp) / (0.45 * yp))^2.5) / D");
  add_point(all, {287, "stiff clay cyclic", two + ", ZCYCL 3", source, two_cyclic}, 'p', 8,
            "y = 0.7 * yp; p = (0.936 * 0.3 * Pc - 0.085 * Pc * (y - 0.6 * yp) / yc) / D");
  add_point(all, {404, "stiff clay cyclic", two + ", ZCYCL 3", source, two_cyclic}, 'p', 2,
            "y = 0.225 * yp; p = 0.3 * Pc * (1 - ((0.45 * yp - y) / (0.45 * yp))^2.5) / D");
  // c1 at depth 2 m, c2 at 7 m, straight between and constant above.
  const string slope = "c1 + (c2 - c1) * ";
  add_point(
      all,
      {214, "stiff clay static", "Su 120, c1 100, c2 200, sig' 27, X 3, D 1, GAMWAT 10",
       "Reese, Cox and Koop 1975; strengths c1 at 2 m and c2 at 7 m",
       "cm = (c1 + c1 + c1 + (" + slope + "(2.25 - 2) / 5) + (" + slope + "(3 - 2) / 5)) / 5; cX = " + slope +
           "(3 - 2) / 5; Pc = min(2 * cm * D + sig' * D + 2.83 * cm * X, 11 * cX * D); A = (0.55 + 0.6 * (X - 2)"
           " / 2 - 0.55 * (X - 2) / 2); yc = 0.005 * D; ya = A * yc"},
      'p', 3, "y = ya; " + rise);
}

void add_vrk_80(rows& all) {
  const string source = "methods/py.md, PY-380; no published source known";
  const string slope = "; E = 1200 * 10.05 * X / D; T = 1 - pu / (E * 0.04 * D); y = 3 / 6 * 0.04 * D";
  const string p = "p = y / (y * T / pu + 1 / E)";
  const string passive = "* (1 + sin(phi)) / (1 - sin(phi)) * sig'";
  add_point(all, {380, "sand static", "phi 35, sig' 50, X 5, D 1.2", source, "pu = 4 " + passive + slope},
            'p', 3, p);
  add_point(all,
            {380, "sand cyclic", "phi 35, sig' 20, X 2, D 1.2, ZCYCL 3", source,
             "pu = min(3, 1.5 * X / D) " + passive + slope, COARSE_PI},
            'p', 3, p);
  const kind overconsolidated{380, "soft clay static", "Su 50, sig' 50, X 2, D 1.2, eps50 0.01", source,
                              "R = 4 * Su / sig'; pu = min(8, 1 + 7 * X / (5 * D)) * Su"};
  add_point(
      all, overconsolidated, 'p', 3,
      "E = 30 * pu / (eps50^0.25 * D); A = 5 * eps50; T = 1 - pu / (E * A * D); y = 3 / 6 * A * D; " + p);
  add_point(all, overconsolidated, 'p', 7, "p = min(0.5, 0.25 + 0.25 * X / (5 * D)) * pu");
  add_point(all, overconsolidated, 'y', 7, "y = 8 * eps50 * D");
  add_point(
      all,
      {380, "soft clay cyclic", "Su 10, sig' 50, X 5, D 1.2, eps50 0.01, ZCYCL 3", source,
       "R = 4 * Su / sig'; pu = min(8, 8 * X / (10 * D)) * Su; E = 10 * pu / (eps50^0.25 * D); A = 7.5 * eps50; "
       "T = 1 - pu / (E * A * D); y = 3 / 6 * A * D"},
      'p', 3, p);
}

void add_carbonate_sand(rows& all) {
  const string source = "methods/py.md, PY-588; no published source known";
  const string input = "phi 30, sig' 20, X 2, D 1.5, APIJM 400";
  const string step = "p = min(qc, 1.5 * r * sig'^(1 / 3) * qc^(2 / 3) * sqrt(y / D))";
  add_point(all, {588, "sand static", input, source, "qc = APIJM * X; r = 1; y = 0.002 * 1.75^3 * D"}, 'p', 4,
            step);
  add_point(all,
            {588, "sand cyclic", input + ", ZCYCL 3", source,
             "qc = APIJM * X; r = 0.9 / max(0.9, 3 - 0.8 * X / D); y = 0.002 * 1.75^9 * D"},
            'p', 10, step);
}

void add_ngi_11(rows& all) {
  const string source = "methods/py.md, PY-600; form of Jeanjean 2009";
  const string input = "Su 30, sig' 50, X 5, D 1.2, J 0.5, g 500, C 0.8";
  const string pu =
      "s = Su / min(1, (2 + Su / sig') / 3); "
      "pu = min(11.9 * 0.69 * s, 0.5 * (0.69 * s + 0.53 * s) * (4 + 2 * (X / D)^0.6) + sig')";
  const string at_y0 = pu + "; p5 = pu * tanh(g / 100 * sqrt(0.025))";
  add_point(all, {600, "soft clay static", input, source, at_y0}, 'p', 5, "p = p5");
  const kind cyclic{600, "soft clay cyclic", input + ", ZCYCL 3", source,
                    at_y0 + "; p7 = pu * tanh(g / 100 * sqrt(3 * 0.025))"};
  add_point(all, cyclic, 'p', 5, "p = p5 / (1 + C * p5 / p7)");
  add_point(all, cyclic, 'p', 7, "p = p7 / (1 + C)");
  add_point(all, cyclic, 'p', 8,
            "XR = max(2.5 * D, 6 * D / (sig' * D / (X * Su) + J)); p = 0.72 * pu * min(1, X / XR) / (1 + C)");
}

void add_simple_shapes(rows& all) {
  const string source = "resistance: Brinch Hansen 1961; shape: methods/py.md, PY-100 to PY-103";
  const string sand =
      "w = exp((90 + phi) * pi / 180 * tan(phi)) * cos(phi) * tan(45 + phi / 2); "
      "Kq0 = w - exp(-(90 - phi) * pi / 180 * tan(phi)) * cos(phi) * tan(45 - phi / 2); "
      "Nc = (exp(pi * tan(phi)) * tan(45 + phi / 2)^2 - 1) / tan(phi); "
      "KqI = Nc * (1.58 + 4.09 * tan(phi)^4) * (1 - sin(phi)) * tan(phi); "
      "aq = Kq0 / (KqI - Kq0) * (1 - sin(phi)) * sin(phi) / sin(45 + phi / 2); "
      "pu = (Kq0 + aq * KqI * X / D) / (1 + aq * X / D) * sig'";
  const string clay =
      "Kc0 = 1 + pi / 2; KcI = (2 + pi) * 1.58; ac = 2 * Kc0 / (KcI - Kc0) * sin(45); "
      "pu = (Kc0 + ac * KcI * X / D) / (1 + ac * X / D) * Su";
  const string in_sand = "phi 30, sig' 50, X 5, D 1.2", in_clay = "Su 50, sig' 50, X 5, D 1.2";
  const struct {
    int code, point;
    char quantity;
    const char *in_sand, *in_clay;
  } points[] = {{100, 1, 'p', "p = 1000 * pu", "p = 1000 * pu"},
                {101, 1, 'p', "p = pu", "p = pu"},
                {102, 1, 'p', "p = 0.75 * pu", "p = 0.75 * pu"},
                {103, 3, 'p', "p = 0.5 * pu", "p = 0.5 * pu"}};
  for (const auto& r : points) {
    add_point(all, {r.code, "sand static", in_sand, source, sand}, r.quantity, r.point, r.in_sand);
    add_point(all, {r.code, "soft clay static", in_clay, source, clay}, r.quantity, r.point, r.in_clay);
  }
}

}  // namespace

void add_lateral(rows& all) {
  add_resistance(all);
  add_reese_charts(all);
  add_tanh_sand(all);
  add_reese_sand(all);
  add_soft_clay(all);
  add_modified_clay(all);
  add_stiff_clay(all);
  add_vrk_80(all);
  add_carbonate_sand(all);
  add_ngi_11(all);
  add_simple_shapes(all);
}

}  // namespace validation
