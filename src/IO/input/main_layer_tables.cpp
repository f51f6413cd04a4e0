#include "IO/input/main_layer_tables.hpp"

#include "Control/state/report.hpp"
#include "Control/state/sp.hpp"

namespace tervak {

namespace {

using Vrsk::Plin::TervakExchange::Tervak;

/// SU0 and SU100, the values at Z = 0 and Z = 100 of the straight line of Su. The 100 is in run units, though
/// the layer build reads the law over 100 metres.
void fit_strength(common& cmn, int m) {
  const double ZT = m == 1 ? cmn.ZSEAFL : cmn.ZBOTM(m - 1);
  const double H = cmn.ZMAIN(m) - ZT;
  if (sp(0.001f) > H) stop("IO\\readg2", 181, " **** SR/READG2 : Impossible error 120");
  const double S = (cmn.SUBOT(m) - cmn.SUTOP(m)) / H;
  cmn.SU0(m) = cmn.SUTOP(m) - S * ZT;
  cmn.SU100(m) = S * 100.0 + cmn.SU0(m);
}

void fill_soil_type(common& cmn, int m) {
  cmn.GAMTOT(m) = cmn.GAMM(m);
  cmn.PHI(m) = cmn.PHIM(m);
  fit_strength(cmn, m);
  cmn.EPS50(m) = cmn.EPS > cmn.EPSCM(m) ? sp(0.01f) : cmn.EPSCM(m);
  cmn.OCR(m) = 0.0;
  cmn.APIJ(m) = cmn.APIJM(m);
  cmn.OPEN(m) = cmn.OPENM(m);
  cmn.TRESMX(m) = cmn.EPS > cmn.TRESM(m) ? 1.0 : cmn.TRESM(m);
  cmn.TZZRES(m) = cmn.TZZRSM(m);
}

void fill_row(common& cmn, int r, double Z, double compression, double tension, double tip) {
  cmn.ZTQZ(r) = Z;
  cmn.TCMP(r) = compression;
  cmn.TTNS(r) = tension;
  cmn.SIGTIP(r) = tip;
  cmn.G0SOIL(r) = 0.0;
  cmn.TZDRAT(r) = sp(0.01f);
  cmn.POIS(r) = 0.0;
  cmn.QZDRAT(r) = sp(0.05f);
}

void fill_depth_table(common& cmn) {
  const double INSIDE = cmn.UNITM * sp(0.001f);
  fill_row(cmn, 1, cmn.ZSEAFL - sp(0.001f), 0.0, 0.0, 0.0);  // not scaled by UNITM, unlike the rows below
  for (int m = 1; m <= cmn.NUMLAYM; ++m) {
    const double T = m == 1 ? cmn.ZSEAFL : cmn.ZMAIN(m - 1);
    fill_row(cmn, 2 * m, INSIDE + T, cmn.TCMTOP(m), cmn.TTNTOP(m), cmn.QTPTOP(m));
    fill_row(cmn, 2 * m + 1, cmn.ZMAIN(m) - INSIDE, cmn.TCMBOT(m), cmn.TTNBOT(m), cmn.QTPBOT(m));
  }
  cmn.NUMTQZ = 2 * cmn.NUMLAYM + 1;
}

}  // namespace

void map_main_layers(common& cmn, const Tervak&) {
  for (int m = 1; m <= cmn.NUMLAYM; ++m) fill_soil_type(cmn, m);
  cmn.ZONINF = 10.0;
  cmn.RFTZ = sp(0.9f);
  fill_depth_table(cmn);
}

}  // namespace tervak
