#include "fem/write.hpp"
#include "IO/listing/PRINT_pages.hpp"

namespace tervak {

void print_summary(common& cmn, const page_head& head) {
  print_page_head(cmn, head);
  fem::write(cmn.units, cmn.NFLIS, "(/,1x,a80,/,/,' SUMMARY OF LAYER DATA',/,1x,21('*'),/)", cmn.LABEL);
  fem::write(
      cmn.units, cmn.NFLIS,
      "(' LAY TYP   ZBOTM    ZLAY   DEPTH GAMEFF   PHIR   SURED','     SIGZRES   DSIGZ   PY  TZ  QZ')");
  print_blank_line(cmn);
  for (layer_number L(1); L <= cmn.NUMLAY; ++L) {
    const layer_code& code = cmn.LAYCOD(L);
    fem::write(cmn.units, cmn.NFLIS, "(i3,i4,f8.2,f8.2,f8.2,f9.2,f6.1,f9.1,f11.1,f8.2,1x,3i4.3)", L, code.TYP,
               cmn.ZBOTM(L), cmn.ZLAY(L), cmn.DEPTH(L), cmn.GAMEFF(L), cmn.PHIR(L), cmn.SURED(L),
               cmn.SIGZRES(L), cmn.DSIGZ(L), code.PYCODE, code.TZCODE, code.QZCODE);
    if (L < cmn.NUMLAY && cmn.LAYCOD(L + 1).TYP != code.TYP) print_blank_line(cmn);
  }
  if (cmn.MIDBOT == 1)
    fem::write(cmn.units, cmn.NFLIS, "(/,' P-Y AND T-Z DATA TO BE GENERATED AT LAYER MID POINT')");
  if (cmn.MIDBOT == 2)
    fem::write(cmn.units, cmn.NFLIS, "(/,' P-Y AND T-Z DATA TO BE GENERATED AT LAYER BOTTOM')");
}

}  // namespace tervak
