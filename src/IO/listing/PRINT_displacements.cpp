#include "fem/write.hpp"
#include "IO/listing/PRINT_pages.hpp"

namespace tervak {

void print_displacement_page(common& cmn, const page_head& head) {
  print_page_head(cmn, head);
  fem::write(
      cmn.units, cmn.NFLIS,
      "(/,1x,a80,/,/,' GIVEN SOIL DISPLACEMENTS AND OPEN HOLE',/,1x,38('*'),/,/,' POINT  Z-LEVEL    DISPL-X     DISPL-Y','     DISPL-Z   OPEN HOLE DIAM')",
      "");
  for (int N = 1; N <= cmn.NUMDSP; ++N)
    fem::write(cmn.units, cmn.NFLIS, "(i4,f11.3,1p,4e12.3)", N, cmn.DSPLEV(N), cmn.DSPX(N), cmn.DSPY(N),
               cmn.DSPZ(N), cmn.HOLDIA(N));
}

}  // namespace tervak
