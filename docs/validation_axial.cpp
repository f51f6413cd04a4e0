// Skin friction, tip stress, T-Z and Q-Z curves.

#include <string>

#include "Control/axial/AxialCapacityControl.hpp"
#include "SoilCurves/axial/QZAUTO.hpp"
#include "SoilCurves/axial/QZMISC.hpp"
#include "SoilCurves/axial/TZAUTO.hpp"
#include "SoilCurves/axial/TZMISC.hpp"
#include "validation.hpp"

namespace validation {

namespace {

using namespace tervak;
using std::string;

enum value { COMPRESSION, TENSION, TIP };

/// What rows of the capacity methods share. The method's label is the first word of the line.
struct capacity {
  string line, column, input, source;
};

void add_capacity(rows& all, const capacity& of, value what, const string& formula, double tolerance = 1e-6) {
  const char* const names[] = {"tc, kPa", "tt, kPa", "q, kPa"};
  all.push_back({what == TIP ? "Tip stress" : "Skin friction", "Axial methods/" + of.line + "/" + of.column,
                 of.line + ", " + of.column, of.input, names[what], of.source, formula,
                 [label = of.line, what](common& cmn) {
                   for (auto& method : cmn.METHOD) method.assign(label.c_str());
                   R5AXCAP(cmn);
                   return what == COMPRESSION ? cmn.TAUCMP(1) : what == TENSION ? cmn.TAUTNS(1) : cmn.QTIP(1);
                 },
                 tolerance});
}

void add_api_93(rows& all) {
  const string source = "API RP 2A 1993, 6.4.2-1, 6.4.2-2";
  const capacity clay{"API-93", "skin, clay, open", "Su 50, sig' 100", source};
  add_capacity(all, clay, COMPRESSION, "psi = Su / sig'; tc = 0.5 * psi^-0.5 * Su");
  for (const char* input : {"Su 60, sig' 150", "Su 100, sig' 100"})
    add_capacity(all, {clay.line, clay.column, input, source}, TENSION,
                 "psi = Su / sig'; tt = 0.5 * psi^-0.5 * Su");
  for (const char* input : {"Su 150, sig' 100", "Su 200, sig' 50"})
    add_capacity(all, {clay.line, clay.column, input, source}, COMPRESSION,
                 "psi = Su / sig'; tc = 0.5 * psi^-0.25 * Su");
  add_capacity(all, {clay.line, clay.column, "Su 20, sig' 150", source}, COMPRESSION,
               "psi = Su / sig'; tc = min(1, 0.5 * psi^-0.5) * Su");
  const string sand_source = "API RP 2A 1993, 6.4.3-1; limit by methods/axial.md, AX-API-S2";
  const string limit = "tl = 3.35 * phi - 19; ";
  add_capacity(all, {"API-93", "skin, sand, open", "phi 30, sig' 100", sand_source}, COMPRESSION,
               limit + "tc = min(0.8 * sig' * tan(phi - 5), tl)");
  add_capacity(all, {"API-93", "skin, sand, open", "phi 33, sig' 300", sand_source}, TENSION,
               limit + "tt = min(0.8 * sig' * tan(phi - 5), tl)");
  add_capacity(all, {"API-93", "skin, sand, closed", "phi 30, sig' 100, wall 0.3", sand_source}, COMPRESSION,
               limit + "tc = min(1.0 * sig' * tan(phi - 5), tl)");
  add_capacity(all, {"API-93", "tip, clay, open", "Su 50, sig' 100", "API RP 2A 1993, 6.4.2-3"}, TIP,
               "q = 9 * Su");
  const string tip_source = "API RP 2A 1993, 6.4.3-2, table 6.4.3-1 between 30 and 35 degrees";
  const string tip =
      "Nq = 20 + (40 - 20) * (phi - 30) / 5; ql = 4800 + (9600 - 4800) * (phi - 30) / 5; "
      "q = min(Nq * sig', ql)";
  add_capacity(all, {"API-93", "tip, sand, open, plugged", "phi 32, sig' 100", tip_source}, TIP, tip, 1e-5);
  add_capacity(all, {"API-93", "tip, sand, open, plugged", "phi 32, sig' 400", tip_source}, TIP, tip, 1e-5);
  add_capacity(all, {"API-93", "tip, sand, closed", "phi 34, sig' 200, wall 0.3", tip_source}, TIP, tip,
               1e-5);
}

/// The equivalent radius, from diameter and wall.
const string OPEN_RADIUS = "Rs = sqrt((D / 2)^2 - (D / 2 - wall)^2)";
const string CLOSED_RADIUS = "Rs = D / 2";

void add_icp_clay(rows& all) {
  const string source = "Jardine and Chow 1996; YSR and St by methods/axial.md";
  const string kc =
      "; h = max(8, (tip - Z) / Rs); YSR = exp((ln(Su / sig') + 0.82 + 0.019 * Ip) / 0.75); "
      "Kc = (2.2 + 0.016 * YSR - 0.87 * log10(St)) * YSR^0.42 * h^-0.2; ";
  const capacity open{"ICP-05", "skin, clay, open",
                      "Su 50, sig' 100, Ip 25, St 2, D 1.2, wall 0.05, tip 30, Z 12", source};
  add_capacity(all, open, COMPRESSION, OPEN_RADIUS + kc + "tc = 0.8 * Kc * sig' * (0.35 + 0.26) / 2");
  const capacity closed{"ICP-05", "skin, clay, closed",
                        "Su 150, sig' 120, Ip 22, St 1.5, D 0.6, wall 0.2, tip 30, Z 12", source};
  add_capacity(all, closed, TENSION,
               CLOSED_RADIUS + kc + "tt = 0.8 * Kc * sig' * (0.35 + (0.26 - 0.35) * (Ip - 20) / 10)");
  const string tip_source = "Jardine and Chow 1996: undrained loading";
  add_capacity(all, {"ICP-05", "tip, clay, open", "Su 100, qc 1500, St 2, Ip 25, sig' 100", tip_source}, TIP,
               "q = 0.4 * qc");
  add_capacity(
      all, {"ICP-05", "tip, clay, closed", "Su 100, qc 1500, St 2, Ip 25, sig' 100, wall 0.3", tip_source},
      TIP, "q = 0.8 * qc");
}

void add_icp_sand(rows& all) {
  const string source = "Jardine, Chow, Overy and Standing 2005";
  const string friction =
      "; src = 0.029 * qc * (sig' / 100)^0.13 * ((tip - Z) / Rs)^-0.38; eta = qc / sqrt(100 * sig'); "
      "Gd = qc / (0.0203 + 0.00125 * eta - 0.000001216 * eta^2); dsrd = 2 * Gd * 0.00002 / (D / 2); ";
  const string input = "phi 32, qc 10000, sig' 200, D 1.83, wall 0.05, tip 44, Z 10, delta 28.5";
  const string shut = "phi 32, qc 20000, sig' 150, D 0.762, wall 0.2, tip 30, Z 20, delta 29";
  const string second = "phi 32, qc 20000, sig' 150, D 1.2, wall 0.04, tip 30, Z 20, delta 29";
  for (const string& of : {input, second}) {
    const capacity open{"ICP-05", "skin, sand, open", of, source};
    add_capacity(all, open, COMPRESSION, OPEN_RADIUS + friction + "tc = (src + dsrd) * tan(delta)", 3e-5);
    add_capacity(all, open, TENSION, OPEN_RADIUS + friction + "tt = 0.9 * (0.8 * src + dsrd) * tan(delta)",
                 3e-5);
  }
  const capacity closed{"ICP-05", "skin, sand, closed", shut, source};
  add_capacity(all, closed, COMPRESSION, CLOSED_RADIUS + friction + "tc = (src + dsrd) * tan(delta)", 3e-5);
  add_capacity(all, closed, TENSION, CLOSED_RADIUS + friction + "tt = (0.8 * src + dsrd) * tan(delta)", 3e-5);
  add_capacity(all,
               {"ICP-05", "tip, sand, closed", "phi 32, qc 25000, Dr 0.7, sig' 200, D 0.5, wall 0.2", source},
               TIP, "q = qc * max(0.3, 1 - 0.5 * log10(D / 0.036))", 1e-5);
  add_capacity(all,
               {"ICP-05", "tip, sand, open, plugged",
                "phi 32, qc 25000, Dr 0.7, sig' 200, D 0.762, wall 0.03", source},
               TIP, "q = qc * max(0.15, 0.5 - 0.25 * log10(D / 0.036))", 1e-5);
  add_capacity(all,
               {"ICP-05", "tip, sand, open, not plugged",
                "phi 32, qc 25000, Dr 0.6, sig' 200, D 1.83, wall 0.05", source},
               TIP, "q = qc * (D^2 - (D - 2 * wall)^2) / D^2", 1e-5);
}

void add_ngi_05(rows& all) {
  const string clay_source = "Karlsrud, Clausen and Aas 2005";
  const string column = "skin, clay, open";
  const string normal = "psi = Su / sig'; an = min(1, max(0.2, 0.32 * (Ip - 10)^0.3)); ";
  add_capacity(all, {"NGI-05", column, "Su 20, sig' 100, Ip 30", clay_source}, COMPRESSION,
               normal + "tc = an * Su");
  add_capacity(all, {"NGI-05", column, "Su 40, sig' 100, Ip 30", clay_source}, TENSION,
               normal + "tt = (an + (0.5 - an) * ln(psi / 0.25) / ln(4)) * Su");
  add_capacity(all, {"NGI-05", column, "Su 150, sig' 100, Ip 20", clay_source}, COMPRESSION,
               "psi = Su / sig'; tc = 0.5 * psi^-0.3 * Su");
  add_capacity(all, {"NGI-05", column, "Su 10, sig' 200, Ip 15", clay_source}, COMPRESSION,
               "tc = 0.06 * (Ip - 12)^0.33 * sig'");
  const string sand_source = "Clausen, Aas and Karlsrud 2005";
  const string tau = "t = 100 * Z / tip * 2.1 * (Dr - 0.1)^1.7 * (sig' / 100)^0.25; ";
  const string input = "phi 32, qc 20000, Dr 0.6, sig' 150, D 1, tip 30, Z 15";
  const capacity open{"NGI-05", "skin, sand, open", input, sand_source};
  add_capacity(all, open, COMPRESSION, tau + "tc = max(1.3 * t, 0.1 * sig')");
  add_capacity(all, open, TENSION, tau + "tt = max(t, 0.1 * sig')");
  const capacity closed{"NGI-05", "skin, sand, closed", input + ", wall 0.3", sand_source};
  add_capacity(all, closed, COMPRESSION, tau + "tc = max(1.3 * 1.6 * t, 0.1 * sig')");
  add_capacity(all, closed, TENSION, tau + "tt = max(1.6 * t, 0.1 * sig')");
  add_capacity(all,
               {"NGI-05", open.column, "phi 32, qc 20000, Dr 0.05, sig' 400, D 1, tip 30, Z 30", sand_source},
               TENSION, "tt = 0.1 * sig'");
  add_capacity(all, {"NGI-05", "tip, sand, open, plugged", "phi 32, qc 25000, Dr 0.6, sig' 200", sand_source},
               TIP, "q = 0.7 * qc / (1 + 3 * Dr^2)", 1e-5);
  add_capacity(all,
               {"NGI-05", "tip, sand, closed", "phi 32, qc 25000, Dr 0.6, sig' 200, wall 0.3", sand_source},
               TIP, "q = 0.8 * qc / (1 + Dr^2)", 1e-5);
  add_capacity(all, {"NGI-05", "tip, clay, open", "Su 80, Ip 20, sig' 100", "API RP 2A 1993, 6.4.2-3"}, TIP,
               "q = 9 * Su");
}

/// A stress (quantity t or q) or displacement (z) of a point of a T-Z or Q-Z curve; negative in tension.
struct curve {
  string family;
  int code;
  string column, input, source;
};

void add_point(rows& all, const curve& of, char quantity, int point, const string& formula,
               double tolerance = 1e-6) {
  const bool skin = of.family == "T-Z";
  const string code = std::to_string(of.code);
  all.push_back(
      {of.family + " curves", of.family + "/" + code + "/" + of.column, code + " " + of.column, of.input,
       string(1, quantity) + " of point " + std::to_string(point) + (quantity == 'z' ? ", m" : ", kPa"),
       of.source, formula,
       [code = of.code, skin, quantity, point](common& cmn) {
         if (skin && code < 200)
           TZAUTO(cmn, 1, 1, code);
         else if (skin)
           TZMISC(cmn, 1, 1, code);
         else if (code < 200)
           QZAUTO(cmn, 1, 1, code);
         else
           QZMISC(cmn, 1, 1, code);
         const curve_table& stress = skin ? cmn.TZSTR : cmn.QZSTR;
         return (quantity == 'z' ? (skin ? cmn.TZDSP : cmn.QZDSP) : stress)(15 + point, 1, 1);
       },
       tolerance});
}

void add_tz(rows& all) {
  const string shapes = "methods/tz.md, TZ-100 to TZ-103; no published source known";
  const string input = "tc 80, tt 60, G 20000, D 1.2, SFSKF 1.25, TRESM 0.8, TZZRSM 0.02";
  const string zc = "zc = 0.01 * D", zt = zc + "; zt = zc * tt / tc";
  const auto any = [&](int code, char quantity, int point, const string& formula) {
    add_point(all, {"T-Z", code, point > 0 ? "clay compression" : "clay tension", input, shapes}, quantity,
              point, formula);
  };
  any(100, 't', 1, "t = 1000 * tc / SFSKF");
  any(100, 'z', -1, zc + "; z = -1000 * zc");
  any(101, 't', 1, "t = tc / SFSKF");
  any(101, 'z', -1, zt + "; z = -zt");
  any(102, 'z', 1, zc + "; z = 0.3 * zc");
  any(102, 't', -1, "t = -0.75 * tt / SFSKF");
  any(103, 't', 3, "t = TRESM * tc / SFSKF");
  any(103, 'z', -3, zt + "; z = -(zt + TZZRSM)");
  const string kraft = "Kraft, Ray and Kagawa 1981";
  const auto hyperbola = [](const string& t, const string& ratio) {
    return "r = 0.9 * " + ratio + "; t = " + ratio + " * " + t +
           "; z = t * D / (2 * G) * ln((10 - r) / (1 - r))";
  };
  const string plain = "tc 35.355339, tt 30, G 20000, D 1, TRESM 0.9, TZZRSM 0.01";
  const curve up{"T-Z", 200, "clay compression", plain, kraft},
      down{"T-Z", 200, "clay tension", plain, kraft};
  add_point(all, up, 'z', 2, hyperbola("tc", "0.6"));
  add_point(all, up, 'z', 3, hyperbola("tc", "0.8"));
  add_point(all, up, 't', 7, "t = TRESM * tc");
  add_point(all, down, 'z', -4, hyperbola("tt", "-0.9").replace(0, 14, "r = 0.9 * 0.9"));
  const string api_93 = "API RP 2A 1993, 6.7.2", api_2014 = "API RP 2GEO 2011, 8.4.2";
  for (const int code : {214, 293}) {
    const string source = code == 214 ? api_2014 : api_93;
    add_point(all, {"T-Z", code, "clay compression", input, source}, 'z', 6, "z = 0.02 * D + TZZRSM");
    add_point(all, {"T-Z", code, "clay compression", input, source}, 't', 6, "t = TRESM * tc / SFSKF");
    add_point(all, {"T-Z", code, "clay tension", input, source}, 't', -3, "t = -0.75 * tt / SFSKF");
    add_point(all, {"T-Z", code, "clay tension", input, source}, 'z', -3, "z = -0.0057 * D");
  }
  const string sand = "phi 35, " + input;
  add_point(all, {"T-Z", 214, "sand compression", sand, api_2014}, 't', 6, "t = tc / SFSKF");
  add_point(all, {"T-Z", 214, "sand tension", sand, api_2014}, 't', -6, "t = -tt / SFSKF");
  add_point(all, {"T-Z", 293, "sand compression", sand + ", GAMWAT 10", api_93 + ": 0.10 inch"}, 'z', 1,
            "z = 0.1 * 0.0254", 2e-4);
  add_point(all, {"T-Z", 293, "sand tension", sand, api_93}, 't', -1, "t = -tt / SFSKF");
  const string carbonate = "methods/tz.md, TZ-588; no published source known";
  add_point(all, {"T-Z", 588, "sand compression", input, carbonate}, 't', 2, "t = 0.75 * tc / SFSKF");
  add_point(all, {"T-Z", 588, "sand tension", input, carbonate}, 'z', -2, "z = -0.1 * D");
}

void add_qz(rows& all) {
  const string shapes = "methods/qz.md, QZ-100 to QZ-103; no published source known";
  const string input = "q 3000, G 20000, D 1.2, SFSIGT 1.5";
  const auto any = [&](int code, char quantity, int point, const string& formula) {
    add_point(all, {"Q-Z", code, "clay", input, shapes}, quantity, point, formula);
  };
  any(100, 'q', 1, "q = 1000 * q / SFSIGT");
  any(101, 'z', 1, "z = 0.05 * D");
  any(102, 'z', 1, "z = 0.3 * 0.05 * D");
  any(103, 'q', 3, "q = 0.5 * q / SFSIGT");
  const string elapla =
      "elastic part as a rigid circle on a half-space, 0.6 for pi / 4; methods/qz.md, QZ-200";
  const string settlement =
      "E = 2 * (1 + nu) * G; ze = 0.6 * (1 - nu^2) * q * D / E; zm = 0.05 * D; z1 = ze / 2; h = (zm - z1) / 3; ";
  const curve clay{"Q-Z", 200, "clay", "q 900, G 20000, nu 0.5, D 1.2", elapla};
  const curve sand{"Q-Z", 200, "sand", "phi 35, q 3000, G 30000, nu 0.3, D 1.2", elapla};
  add_point(all, clay, 'z', 1, settlement + "z = z1");
  add_point(all, clay, 'z', 2, settlement + "z = z1 + h");
  add_point(all, clay, 'q', 2, "q2 = 0.85 * q");
  add_point(all, sand, 'z', 3, settlement + "z = z1 + 2 * h");
  for (const int code : {214, 293}) {
    const string source = code == 214 ? "API RP 2GEO 2011, 8.4.3" : "API RP 2A 1993, 6.7.3";
    add_point(all, {"Q-Z", code, "clay", input, source}, 'q', 3, "q3 = 0.75 * q / SFSIGT");
    add_point(all, {"Q-Z", code, "sand", "phi 35, " + input, source}, 'z', 4, "z = 0.073 * D");
  }
}

}  // namespace

void add_axial_capacity(rows& all) {
  add_api_93(all);
  add_icp_clay(all);
  add_icp_sand(all);
  add_ngi_05(all);
}

void add_axial_curves(rows& all) {
  add_tz(all);
  add_qz(all);
}

}  // namespace validation
