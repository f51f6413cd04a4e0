#include "IO/listing/PRINT.hpp"

#include "Control/state/identification.hpp"
#include "fem/write.hpp"
#include "IO/listing/PRINT_pages.hpp"

namespace tervak {

void print_page_head(common& cmn, const page_head& head) {
  const auto& [year, month, day, hour, minute, second] = head.time;
  fem::write(
      cmn.units, cmn.NFLIS,
      "(/,'1',/,' TERVAK Output   Program Version = ',a11,a11,5x,'Time = ',i2.2,'-',a3,'-',i4,2x,i2.2,':',i2.2,':',i2.2)",
      head.version, head.date, day, month_name(month), year, hour, minute, second);
}

void print_blank_line(common& cmn) { fem::write(cmn.units, cmn.NFLIS, "(' ')"); }

void print_gap_around_origin(common& cmn, int P) {
  if (P == cmn.MIDPNT() - 1 || P == cmn.MIDPNT()) print_blank_line(cmn);
}

void PRINT(common& cmn, fem::text_ref version, fem::text_ref date, const time_array& time) {
  const page_head head{version, date, time};
  print_summary(cmn, head);
  if (cmn.JPRINT < 2) return;

  for (diameter_number ND(1); ND <= cmn.NUMDIA; ++ND)
    for (layer_number L(1); L <= cmn.NUMLAY; ++L) print_curve_page(cmn, head, ND, L);
  if (cmn.MONOPILE) {
    for (diameter_number ND(1); ND <= cmn.NUMDIA; ++ND)
      for (layer_number L(1); L <= cmn.NUMLAY; ++L) print_monopile_page(cmn, head, ND, L);
  }
  if (cmn.NUMDSP > 0) print_displacement_page(cmn, head);
}

}  // namespace tervak
