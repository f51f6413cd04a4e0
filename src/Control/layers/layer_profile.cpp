#include "Control/layers/layer_profile.hpp"

#include <algorithm>
#include <cmath>

#include "Control/state/note.hpp"
#include "Control/state/report.hpp"
#include "Control/state/sp.hpp"

namespace tervak {

namespace {

struct scour_levels {
  double ZGEN, ZLOC;  ///< levels of general and local scour
  double RLEN;        ///< length over which the relief of the scour hole fades with depth
};

double top_of(const common& cmn, int i) { return i == 1 ? cmn.ZSEAFL : cmn.ZBOTM(i - 1); }

double total_weight(const common& cmn, int i) { return cmn.GAMTOT(cmn.LAYCOD(i).TYP); }

/// Part of the height H above the level Z that stands in pore water.
double wet_height(const common& cmn, double H, double Z) { return std::min(H, std::max(0.0, Z - cmn.ZPWP)); }

void set_unit_weights(common& cmn, const layer_profile_texts& texts) {
  for (int i = 1; i <= cmn.NUMLAY; ++i) {
    const double T = top_of(cmn, i);
    const double G = total_weight(cmn, i);
    if (cmn.ZPWP > cmn.ZBOTM(i)) {
      cmn.GAMEFF(i) = G;
    } else if (T > cmn.ZPWP) {
      cmn.GAMEFF(i) = G - cmn.GAMPWP;
    } else {
      cmn.GAMEFF(i) =
          ((cmn.ZPWP - T) * G + (G - cmn.GAMPWP) * (cmn.ZBOTM(i) - cmn.ZPWP)) / (cmn.ZBOTM(i) - T);
    }
    note_layer(cmn, i, equation_of("LAY-2"), "",
               {{"gt", G, in::weight},
                {"gp", cmn.GAMPWP, in::weight},
                {"zw", cmn.ZPWP, in::length},
                {"g'", cmn.GAMEFF(i), in::weight}});
    if (texts.low_unit_weight > cmn.GAMEFF(i)) remark(cmn, texts.weight_warning, i, cmn.GAMEFF(i));
  }
}

scour_levels find_scour_levels(const common& cmn) {
  const double slope = std::max(cmn.EPS, cmn.SCRSLP / 180 * cmn.PI);
  return {cmn.ZSEAFL + cmn.SCRGEN, cmn.ZSEAFL + cmn.SCRLOC,
          std::max(cmn.DIAM(1) / 1000, (cmn.SCRLOC - cmn.SCRGEN) / std::tan(slope))};
}

/// Stress of the soil between general and local scour level.
double stress_lost_to_local_scour(const common& cmn, const scour_levels& scour) {
  double SIGLOC = 0;
  double T = scour.ZGEN;
  for (int i = 1; i <= cmn.NUMLAY; ++i) {
    if (!(scour.ZLOC > cmn.ZBOTM(i))) {
      const double H = scour.ZLOC - T;
      const double U = wet_height(cmn, H, scour.ZLOC);
      return SIGLOC + (H * total_weight(cmn, i) - U * cmn.GAMPWP);
    }
    SIGLOC = SIGLOC + (cmn.ZBOTM(i) - T) * cmn.GAMEFF(i);
    T = cmn.ZBOTM(i);
  }
  return SIGLOC;
}

/// Overburden from the local scour level down, plus the share of the scoured soil's stress that the depth
/// gives back.
void set_overburden(common& cmn, const scour_levels& scour) {
  const double SIGLOC = stress_lost_to_local_scour(cmn, scour);
  note_layer(cmn, 0, equation_of("LAY-4"), "", {{"sl", SIGLOC, in::stress}});
  double S = 0;
  double T = scour.ZLOC;
  const auto carry = [&](int i, double H, double Z) {
    const double U = wet_height(cmn, H, Z);
    S = S + H * total_weight(cmn, i) - U * cmn.GAMPWP;
  };
  for (int i = 1; i <= cmn.NUMLAY; ++i) {
    cmn.SIGZRES(i) = 0;
    if (scour.ZLOC > cmn.ZLAY(i)) {
      note_layer(cmn, i, equation_of("LAY-6"), "above the local scour level: no stress",
                 {{"Z", cmn.ZLAY(i), in::length}, {"zl", scour.ZLOC, in::length}, {"sig'", 0.0, in::stress}});
      continue;
    }
    const double F = std::pow(sp(0.31f), (cmn.ZLAY(i) - scour.ZLOC) / scour.RLEN);
    note_layer(cmn, i, equation_of("LAY-5"), "",
               {{"d", cmn.ZLAY(i) - scour.ZLOC, in::length}, {"L", scour.RLEN, in::length}, {"F", F}});
    carry(i, cmn.ZLAY(i) - T, cmn.ZLAY(i));
    T = cmn.ZBOTM(i);
    cmn.SIGZRES(i) = S + (1 - F) * SIGLOC;
    note_layer(cmn, i, equation_of("LAY-6"), "before surface loads",
               {{"sum of g' dz from zl to Z", S, in::stress},
                {"sl", SIGLOC, in::stress},
                {"sig'", cmn.SIGZRES(i), in::stress}});
    if (cmn.MIDBOT == 1) carry(i, cmn.ZBOTM(i) - cmn.ZLAY(i), cmn.ZBOTM(i));
  }
}

/// Half-infinite embankment with a sloping edge AEMB wide, its toe BEMB away from the pile.
double embankment_stress(const common& cmn, double ZD) {
  if (cmn.EPS > std::abs(cmn.SIGEMB)) return 0;
  const auto or_eps = [&](double length) { return cmn.EPS > std::abs(length) ? cmn.EPS : length; };
  const auto angle = [&](double length) {
    const double A = std::atan(ZD / length);
    return A < 0 ? A + cmn.PI : A;
  };
  const double A1 = angle(or_eps(cmn.AEMB + cmn.BEMB));
  const double A2 = angle(or_eps(cmn.BEMB));
  return (A1 - cmn.BEMB / std::max(cmn.EPS, cmn.AEMB) * (A2 - A1)) * cmn.SIGEMB / cmn.PI;
}

/// Boussinesq's stress under point loads on a half-space.
double point_load_stress(const common& cmn, double ZD) {
  double sum = 0;
  for (int n = 1; n <= cmn.NUMFRC; ++n) {
    const double R = std::sqrt(cmn.FRCDST(n) * cmn.FRCDST(n) + ZD * ZD);
    sum = sum + (1.5 / cmn.PI) * cmn.FRCPNT(n) * (ZD * ZD * ZD) / (R * R * R * R * R);
  }
  return sum;
}

/// Stress under the centre of a circular load.
double circular_load_stress(const common& cmn, double ZD) {
  if (cmn.EPS > std::abs(cmn.SIGCIR)) return 0;
  const double C = cmn.RADCIR / ZD;
  return (1 - std::pow(1 / (C * C + 1), 1.5)) * cmn.SIGCIR;
}

void add_surface_loads(common& cmn, const scour_levels& scour) {
  for (int i = 1; i <= cmn.NUMLAY; ++i) {
    if (!(cmn.ZLAY(i) >= scour.ZLOC)) continue;
    const double ZD = cmn.ZLAY(i) - scour.ZGEN;
    const double points = point_load_stress(cmn, ZD);
    const double embankment = embankment_stress(cmn, ZD);
    const double circle = circular_load_stress(cmn, ZD);
    cmn.DSIGZ(i) = points + embankment + circle + cmn.SIGSUR;
    cmn.SIGZRES(i) = cmn.SIGZRES(i) + cmn.DSIGZ(i);
    note_layer(cmn, i, equation_of("LAY-7"), "",
               {{"z", ZD, in::length},
                {"point loads", points, in::stress},
                {"embankment", embankment, in::stress},
                {"circular load", circle, in::stress},
                {"SIGSUR", cmn.SIGSUR, in::stress},
                {"dsig", cmn.DSIGZ(i), in::stress},
                {"sig'", cmn.SIGZRES(i), in::stress}});
  }
}

bool set_strength(common& cmn, const layer_profile_texts& texts) {
  for (int i = 1; i <= cmn.NUMLAY; ++i) {
    const int t = cmn.LAYCOD(i).TYP;
    cmn.PHIR(i) = std::atan(std::tan(cmn.PHI(t) / 180 * cmn.PI) / cmn.SFTPHI) / cmn.PI * 180;
    cmn.SURED(i) = ((cmn.SU100(t) - cmn.SU0(t)) / (cmn.UNITM * 100) * cmn.ZLAY(i) + cmn.SU0(t)) / cmn.SFSU;
    note_layer(cmn, i, equation_of("LAY-9"), "",
               {{"SU0", cmn.SU0(t), in::stress},
                {"SU100", cmn.SU100(t), in::stress},
                {"Z", cmn.ZLAY(i), in::length},
                {"SFSU", cmn.SFSU},
                {"Su", cmn.SURED(i), in::stress}});
    note_layer(cmn, i, equation_of("LAY-10"), "",
               {{"PHI", cmn.PHI(t), in::degrees}, {"SFTPHI", cmn.SFTPHI}, {"phi", cmn.PHIR(i), in::degrees}});
    if (-cmn.EPS > cmn.SURED(i)) {
      fail(cmn, 1, texts.negative_su, i, t, cmn.SU0(t), cmn.SU100(t), cmn.ZLAY(i), cmn.SURED(i));
      return false;
    }
    if (cmn.PHIR(i) > cmn.EPS && cmn.SURED(i) > cmn.EPS) {
      fail(cmn, 1, texts.two_strengths, i, cmn.PHIR(i), cmn.SURED(i));
      return false;
    }
  }
  return true;
}

/// Depth below the local scour level, growing towards the depth below the general one.
void set_depths(common& cmn, const scour_levels& scour) {
  const double DS = cmn.SCRLOC - cmn.SCRGEN;
  const double FS = DS / scour.RLEN + 1;
  for (int i = 1; i <= cmn.NUMLAY; ++i) {
    const double plain = cmn.ZLAY(i) - scour.ZLOC;
    cmn.DEPTH(i) = cmn.EPS > plain ? plain : std::min(plain + DS, plain * FS);
    note_layer(cmn, i, equation_of("LAY-8"), cmn.EPS > plain ? "at or above the local scour level" : "",
               {{"d", plain, in::length},
                {"h", DS, in::length},
                {"L", scour.RLEN, in::length},
                {"X", cmn.DEPTH(i), in::length}});
  }
}

void list_clay_layers(common& cmn) {
  cmn.NUMCLY = 0;
  for (int i = 1; i <= cmn.NUMLAY; ++i) {
    if (cmn.EPS > cmn.SURED(i)) continue;
    ++cmn.NUMCLY;
    cmn.SUCLAY(cmn.NUMCLY) = cmn.SURED(i);
    cmn.DPCLAY(cmn.NUMCLY) = cmn.DEPTH(i);
    cmn.ZLCLAY(cmn.NUMCLY) = cmn.ZLAY(i);
  }
}

}  // namespace

void set_layer_levels(common& cmn) {
  for (int i = 1; i <= cmn.NUMLAY; ++i) {
    const double T = top_of(cmn, i);
    cmn.ZLAY.append(cmn.MIDBOT == 1 ? cmn.ZBOTM(i) - (cmn.ZBOTM(i) - T) * 0.5 : cmn.ZBOTM(i));
    note_layer(cmn, i, equation_of("LAY-1"), cmn.MIDBOT == 1 ? "middle" : "bottom",
               {{"zt", T, in::length}, {"zb", cmn.ZBOTM(i), in::length}, {"Z", cmn.ZLAY(i), in::length}});
  }
}

bool make_layer_profile(common& cmn, const layer_profile_texts& texts) {
  set_unit_weights(cmn, texts);
  const scour_levels scour = find_scour_levels(cmn);
  note_layer(cmn, 0, equation_of("LAY-3"), "",
             {{"SCRGEN", cmn.SCRGEN, in::length},
              {"SCRLOC", cmn.SCRLOC, in::length},
              {"SCRSLP", cmn.SCRSLP, in::degrees},
              {"zg", scour.ZGEN, in::length},
              {"zl", scour.ZLOC, in::length},
              {"L", scour.RLEN, in::length}});
  set_overburden(cmn, scour);
  add_surface_loads(cmn, scour);
  if (!set_strength(cmn, texts)) return false;
  set_depths(cmn, scour);
  list_clay_layers(cmn);
  return true;
}

}  // namespace tervak
