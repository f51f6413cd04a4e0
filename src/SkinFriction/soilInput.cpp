#include "SkinFriction/soilInput.hpp"

#include <algorithm>
#include <cmath>

#include "Control/state/Interpolate.hpp"
#include "Control/state/note.hpp"
#include "Control/state/report.hpp"
#include "Control/state/shear_modulus.hpp"
#include "Control/state/sp.hpp"

namespace tervak {

namespace {

constexpr const char* SOURCE = "SkinFriction\\soilInput";

/// The main layers' values against Z: two rows a main layer, just inside its top and just inside its bottom.
struct main_layer_rows {
  int count;
  vector1<double> Z, CPT, SU, TCM, TTN, QTP;

  explicit main_layer_rows(const common& cmn);
  void append(double z, double cpt, double su, double tcm, double ttn, double qtp) {
    Z.append(z);
    CPT.append(cpt);
    SU.append(su);
    TCM.append(tcm);
    TTN.append(ttn);
    QTP.append(qtp);
  }
};

main_layer_rows::main_layer_rows(const common& cmn) : count(2 * cmn.NUMLAYM) {
  const double OFS = cmn.UNITM * sp(0.001f);
  for (int m = 1; m <= cmn.NUMLAYM; ++m) {
    const double T = m == 1 ? cmn.ZSEAFL : cmn.ZMAIN(m - 1);
    // The first row lies above the sea floor.
    append(m == 1 ? T - OFS : T + OFS, cmn.CPTTOP(m), cmn.SUTOP(m), cmn.TCMTOP(m), cmn.TTNTOP(m),
           cmn.QTPTOP(m));
    append(cmn.ZMAIN(m) - OFS, cmn.CPTBOT(m), cmn.SUBOT(m), cmn.TCMBOT(m), cmn.TTNBOT(m), cmn.QTPBOT(m));
  }
}

/// The depth table has a row of its own ahead of the main layers', so each value lands one row above the
/// level that it was made for, and the last row keeps its old value. This is meant to stay so.
void set_depth_table_poisson(common& cmn, const main_layer_rows& rows) {
  for (int r = 1; r <= rows.count; ++r) cmn.POIS(r) = rows.SU(r) > cmn.EPS ? 0.5 : sp(0.3f);
}

double looked_up(common& cmn, int i, int N, const vector1<double>& X, const vector1<double>& Y, double XI) {
  double YI = 0;
  int IERR = 0;
  KestraCommonLibrary::Utils::Interpolate(N, 1, X, Y, XI, YI, IERR);
  if (IERR != 0) {
    remark(cmn, "(/,' **** SR/R5SOIL : Error from SR/INTPOL  LAY,IERR=',2i5)", i, IERR);
    remark(cmn, "(/,' **** Error termination by SR/R5SOIL')");
    stop(SOURCE, __LINE__, " ");
  }
  return YI;
}

void take_values_at_level(common& cmn, int i, int m, const main_layer_rows& rows) {
  if (cmn.UNITM * sp(0.002f) > std::abs(cmn.ZLAY(i) - cmn.ZMAIN(m))) {
    cmn.CPTTIP(i) = cmn.CPTBOT(m);
    cmn.SUCMP(i) = cmn.SUBOT(m);
    cmn.TAUCMP(i) = cmn.TCMBOT(m);
    cmn.TAUTNS(i) = cmn.TTNBOT(m);
    cmn.QTIP(i) = cmn.QTPBOT(m);
  } else {
    const auto at_level = [&](const vector1<double>& Y) {
      return looked_up(cmn, i, rows.count, rows.Z, Y, cmn.ZLAY(i));
    };
    cmn.CPTTIP(i) = at_level(rows.CPT);
    cmn.SUCMP(i) = at_level(rows.SU);
    cmn.TAUCMP(i) = at_level(rows.TCM);
    cmn.TAUTNS(i) = at_level(rows.TTN);
    cmn.QTIP(i) = at_level(rows.QTP);
  }
  cmn.DR(i) = cmn.DRM(m);
  cmn.PLI(i) = cmn.PLIM(m);
  const double SU = cmn.SUCMP(i);
  cmn.SUCMP(i) = SU / cmn.SFSU;
  cmn.PHIL(i) = std::atan(std::tan(cmn.PI * cmn.PHIM(m) / 180) / cmn.SFTPHI) * 180 / cmn.PI;
  note_layer(cmn, i, equation_of("COR-LEV-1"), "",
             {{"Z", cmn.ZLAY(i), in::length}, {"qc", cmn.CPTTIP(i), in::stress}, {"Su", SU, in::stress}});
  note_layer(cmn, i, equation_of("COR-LEV-2"), "",
             {{"SFSU", cmn.SFSU},
              {"Su", cmn.SUCMP(i), in::stress},
              {"PHIM", cmn.PHIM(m), in::degrees},
              {"SFTPHI", cmn.SFTPHI},
              {"phi", cmn.PHIL(i), in::degrees}});
  cmn.ZNOW(i) = cmn.ZLAY(i);
  cmn.SIGZ(i) = cmn.SIGZRES(i);
}

/// Above the local scour level. SURED stays as BUILD5 left it and GSOIL is not set.
void clear_strength(common& cmn, int i) {
  cmn.PHIR(i) = cmn.PHIL(i);
  for (vector1<double>* value :
       {&cmn.SUCMP, &cmn.DELTAF, &cmn.PLI, &cmn.CPTTIP, &cmn.CPTAVR, &cmn.PHIL, &cmn.DR, &cmn.OCRL, &cmn.ST,
        &cmn.TAUCMP, &cmn.TAUTNS, &cmn.QTIP, &cmn.POISL})
    (*value)(i) = 0.0;
}

double limited_density(double DR) { return std::clamp(DR, sp(0.01f), sp(1.1f)); }

/// What the deck left out of cone resistance, relative density and friction angle.
void correlate_sand(common& cmn, int i) {
  const double S = cmn.SIGZ(i);
  const double PATM = cmn.UNITF * 100 / cmn.UNITM / cmn.UNITM;
  const double A = sp(21.4f);
  const double F = 1 - 0.082 * std::log10(S / PATM);
  double& CPT = cmn.CPTTIP(i);
  double& PHIL = cmn.PHIL(i);
  double& DR = cmn.DR(i);

  if (PHIL + CPT + DR < cmn.EPS) {
    remark(
        cmn,
        "(/,' **** SR/R5SOIL : Missing sand layer strength',' parameter',/,' Layer,CPT,PHI,Dr=',i5,3f12.3)",
        i, CPT, PHIL, DR);
    stop(SOURCE, __LINE__, " ");
  }
  note_layer(cmn, i, equation_of("COR-SAND-1"), "", {{"sig'", S, in::stress}, {"F", F}});
  if (CPT > cmn.EPS) {
    const double DRC = limited_density(sp(0.4f) * std::log(CPT / (22 * std::sqrt(S * PATM))));
    note_layer(cmn, i, equation_of("COR-SAND-2"), cmn.EPS > DR ? "Dr from qc" : "Dr of the deck stays",
               {{"qc", CPT, in::stress}, {"Dr", DRC}});
    if (cmn.EPS > DR) DR = DRC;
    if (cmn.EPS > PHIL) {
      PHIL = std::min(40.0, (DR * A + 23) * F);
      note_layer(cmn, i, equation_of("COR-SAND-3"), "phi from Dr", {{"Dr", DR}, {"phi", PHIL, in::degrees}});
    }
  }
  if (cmn.EPS > CPT) {
    if (cmn.EPS > DR) {
      if (cmn.EPS > F) stop(SOURCE, __LINE__, "**** SR/R5SOIL : Zero division");
      DR = limited_density((PHIL / F - 23) / A);
      note_layer(cmn, i, equation_of("COR-SAND-4"), "Dr from phi", {{"phi", PHIL, in::degrees}, {"Dr", DR}});
    }
    // Here the factor's constant is single precision, in F above it is double.
    if (cmn.EPS > PHIL) {
      PHIL = std::min(40.0, (DR * A + 23) * (1 - sp(0.082f) * std::log10(S / PATM)));
      note_layer(cmn, i, equation_of("COR-SAND-3"), "phi from Dr", {{"Dr", DR}, {"phi", PHIL, in::degrees}});
    }
    CPT = std::exp(2.5 * DR) * 22 * std::sqrt(S * PATM);
    note_layer(cmn, i, equation_of("COR-SAND-5"), "qc from Dr", {{"Dr", DR}, {"qc", CPT, in::stress}});
  }
  cmn.POISL(i) = sp(0.3f);
}

void derive_clay_values(common& cmn, int i) {
  cmn.OCRL(i) = 1;
  cmn.ST(i) = 1;
  if (cmn.SUCMP(i) > cmn.EPS) {
    cmn.OCRL(i) = std::pow(4 * cmn.SUCMP(i) / cmn.SIGZ(i), 1.25);
    cmn.ST(i) = std::clamp(2 * cmn.SIGZ(i) / cmn.SUCMP(i), 1.0, 8.0);
    cmn.POISL(i) = 0.5;
    note_layer(cmn, i, equation_of("COR-CLAY-1"), "", {{"OCR", cmn.OCRL(i)}});
    note_layer(cmn, i, equation_of("COR-CLAY-2"), "", {{"St", cmn.ST(i)}});
  }
}

void set_shear_modulus(common& cmn, int i, int m) {
  if (cmn.PHIR(i) > cmn.EPS) {
    cmn.GSOIL(i) = cmn.ATMPRS * std::tan(cmn.PHIR(i) * cmn.PI / 180) * 1000 *
                   std::sqrt(std::max(0.0, cmn.SIGZRES(i) / cmn.ATMPRS)) * 0.5 / (cmn.POISL(i) + 1) *
                   cmn.GOFAC(m);
    note_layer(cmn, i, equation_of("COR-G-1"), "sand, phi > 0",
               {{"phi", cmn.PHIR(i), in::degrees},
                {"sig'", cmn.SIGZRES(i), in::stress},
                {"f", cmn.GOFAC(m)},
                {"G", cmn.GSOIL(i), in::stress}});
    // The depth table's row is that of the main layer's number, as it stands.
    if (cmn.EPS > cmn.G0SOIL(m)) cmn.G0SOIL(m) = cmn.EPS;
    return;
  }
  double R = cmn.OCRL(i);
  if (cmn.EPS > R) R = std::pow(4 * cmn.SURED(i) / std::max(cmn.EPS, cmn.SIGZRES(i)), 1.25);
  cmn.GSOIL(i) = clay_stiffness_ratio(R) * cmn.SURED(i) * cmn.GOFAC(m);
  note_layer(
      cmn, i, equation_of("COR-G-2"), "clay",
      {{"OCR", R}, {"Su", cmn.SURED(i), in::stress}, {"f", cmn.GOFAC(m)}, {"G", cmn.GSOIL(i), in::stress}});
}

void set_layer(common& cmn, int i, const main_layer_rows& rows) {
  const int m = cmn.LAYCOD(i).TYP;
  take_values_at_level(cmn, i, m, rows);
  if (cmn.EPS > cmn.SIGZ(i)) {
    clear_strength(cmn, i);
    return;
  }
  if (!(cmn.SUCMP(i) > cmn.EPS)) correlate_sand(cmn, i);
  derive_clay_values(cmn, i);
  cmn.PHIR(i) = cmn.PHIL(i);
  cmn.SURED(i) = cmn.SUCMP(i);
  cmn.DELTAF(i) = 29;
  note_layer(cmn, i, equation_of("COR-CLAY-3"), "",
             {{"nu", cmn.POISL(i)}, {"delta", cmn.DELTAF(i), in::degrees}});
  set_shear_modulus(cmn, i, m);
}

/// Mean of the cone resistance over eleven levels from 1.5 diameters above to 1.5 below.
void average_cone_resistance(common& cmn, int i) {
  const double H = cmn.DIAMP * 3 / 10;
  double sum = 0;
  for (int j = 1; j <= 11; ++j)
    sum += looked_up(cmn, i, cmn.NUMLAY, cmn.ZLAY, cmn.CPTTIP, cmn.ZLAY(i) - 1.5 * cmn.DIAMP + (j - 1) * H);
  cmn.CPTAVR(i) = sum / 11;
  note_layer(cmn, i, equation_of("COR-QC-2"), "",
             {{"D", cmn.DIAMP, in::length}, {"qcm", cmn.CPTAVR(i), in::stress}});
}

}  // namespace

void R5SOIL(common& cmn) {
  const main_layer_rows rows(cmn);
  set_depth_table_poisson(cmn, rows);
  for (int i = 1; i <= cmn.NUMLAY; ++i) set_layer(cmn, i, rows);
  for (int i = 1; i <= cmn.NUMLAY; ++i) average_cone_resistance(cmn, i);
}

}  // namespace tervak
