#include "fem/write.hpp"
#include "IO/listing/PRINT_labels.hpp"
#include "IO/listing/PRINT_pages.hpp"

namespace tervak {

namespace {

/// A layer with a friction angle counts as sand, any other as clay.
void print_soil_line(common& cmn, layer_number L) {
  const char* load = method_label(cmn.ZCYCL > cmn.ZLAY(L) ? 13 : 12);
  if (cmn.PHIR(L) > cmn.EPS) {
    fem::write(cmn.units, cmn.NFLIS,
               "(/,' SOIL TYPE : SAND   PHI =',f5.1,' DEGR   GAMEFF =',f9.2,3x,a6,' P-Y')", cmn.PHIR(L),
               cmn.GAMEFF(L), load);
  } else {
    fem::write(cmn.units, cmn.NFLIS,
               "(/,' SOIL TYPE : CLAY   SU =',f8.1,'  GAMEFF =',f9.2,'  EPS50 =',f7.4,2x,a6,' P-Y')",
               cmn.SURED(L), cmn.GAMEFF(L), cmn.EPS50(cmn.LAYCOD(L).TYP), load);
  }
}

}  // namespace

void print_curve_page(common& cmn, const page_head& head, diameter_number ND, layer_number L) {
  print_page_head(cmn, head);
  fem::write(
      cmn.units, cmn.NFLIS,
      "(/,1x,a80,/,/,' COMPLETE P-Y / T-Z / Q-Z RESULTS',4x,'LAYER :',i3,'  DEPTH :',f8.2,'  DIAM :',f7.3,/,1x,32('*'),16x,'ZBOTM :',f8.2)",
      cmn.LABEL, L, cmn.DEPTH(L), cmn.DIAM(ND), cmn.ZBOTM(L));
  print_soil_line(cmn, L);
  const layer_code& code = cmn.LAYCOD(L);
  fem::write(
      cmn.units, cmn.NFLIS,
      "(/,10x,' PY-CODE=',i4.3,2x,a8,4x,'TZ-CODE=',i4.3,2x,a8,4x,'QZ-CODE=',i4.3,2x,a8,/,/,'   POINT   PY-STRESS  PY-DISPLC    TZ-STRESS  TZ-DISPLC',4x,'QZ-STRESS  QZ-DISPLC')",
      code.PYCODE, PY_label(code.PYCODE), code.TZCODE, TZ_label(code.TZCODE), code.QZCODE,
      QZ_label(code.QZCODE));
  print_blank_line(cmn);
  for (int P = 1; P <= cmn.MAXPNT; ++P) {
    fem::write(cmn.units, cmn.NFLIS, "(i6,1p,1x,3(e13.3,e11.3))", P, cmn.PYSTR(P, ND, L), cmn.PYDSP(P, ND, L),
               cmn.TZSTR(P, ND, L), cmn.TZDSP(P, ND, L), cmn.QZSTR(P, ND, L), cmn.QZDSP(P, ND, L));
    print_gap_around_origin(cmn, P);
  }
}

}  // namespace tervak
