#include "Control/run/OutputFiles.hpp"

#include "fem/write.hpp"
#include "IO/interface_file/TervakRIFWriter.hpp"
#include "IO/usfos/G2USFOS.hpp"

namespace tervak {

void OutputFiles(common& cmn, int PROFILECOUNT) {
  const vector1<double> DIAM = cmn.DIAM;
  try {
    G2USFOS(cmn, DIAM, 1.0, 1.0, 1, cmn.NFFEM, cmn.IERR);
    G2USFOS(cmn, DIAM, 1.0, 1.0, 2, cmn.NFF70, cmn.IERR);
  } catch (...) {
    // The text stands where the format belongs, so that this statement throws and the run ends here.
    fem::write(cmn.units, cmn.NFLOG, "********WARNING USFOS EXPORT FAILED");
  }
  if (!cmn.RIFWRITER->WriteProfile(cmn, PROFILECOUNT)) cmn.IERR = 1;
}

}  // namespace tervak
