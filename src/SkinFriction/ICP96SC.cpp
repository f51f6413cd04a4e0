#include "SkinFriction/ICP96SC.hpp"

#include <algorithm>
#include <array>
#include <cmath>

#include "Control/state/Interpolate.hpp"
#include "Control/state/note.hpp"
#include "Control/state/sp.hpp"
#include "fem/write.hpp"
#include "SkinFriction/limits.hpp"

namespace tervak {

namespace {

/// Tangent of the interface angle by plasticity index.
constexpr std::array<double, 6> PLI_TABLE{0, 10, 20, 30, 40, 50};
constexpr std::array<double, 6> TD_TABLE{sp(0.6f), sp(0.47f), sp(0.35f), sp(0.26f), sp(0.24f), sp(0.22f)};

int check(double SIGZ, double OCR, double SUCMP, double ST, double PLI, double RAT) {
  int IERR = 0;
  if (SIGZ < NO_STRESS) IERR = 1;
  if (RAT < sp(7.99f)) IERR = 2;
  if (PLI < sp(0.1f)) IERR = 3;
  if (OCR < sp(0.1f) && SUCMP < NO_STRESS) IERR = 4;
  if (ST < sp(0.9f)) IERR = 5;
  return IERR;
}

}  // namespace

void ICP96SC(common& cmn, double SIGZ, double& OCR, double SUCMP, double ST, double PLI, double RAT,
             double& TAUSKN, int& IERR) {
  IERR = check(SIGZ, OCR, SUCMP, ST, PLI, RAT);
  if (IERR != 0) return;

  if (OCR < sp(0.1f)) {
    const double PC = std::clamp(PLI, 20.0, 30.0);
    OCR = std::exp((std::log(SUCMP / SIGZ) - (sp(-0.82f) - sp(0.019f) * PC)) / 0.75);
    OCR = std::clamp(OCR, 1.0, 30.0);
    note(cmn, equation_of("AX-ICP-C1"),
         {{"Su", SUCMP, in::stress}, {"sig'", SIGZ, in::stress}, {"Ipc", PC}, {"YSR", OCR}});
  }
  double TD = 0;
  KestraCommonLibrary::Utils::Interpolate(6, 1, PLI_TABLE, TD_TABLE, PLI, TD, IERR);
  if (IERR != 0) {
    IERR = 100 + IERR;
    return;
  }
  TAUSKN = (sp(2.2f) + sp(0.016f) * OCR - sp(0.87f) * std::log10(ST)) * std::pow(OCR, sp(0.42f)) *
           std::pow(RAT, sp(-0.2f)) * SIGZ * sp(0.8f) * TD;
  note(cmn, equation_of("AX-ICP-C2"), {{"St", ST}, {"h / Rs", RAT}});
  note(cmn, equation_of("AX-ICP-C3"), "clay",
       {{"Ip", PLI}, {"tan(delta)", TD}, {"tc", TAUSKN, in::stress}, {"tt", TAUSKN, in::stress}});
  fem::write(
      cmn.units, cmn.NFLIS,
      "(/,' Routine ICP96SC trace print',/,'   SIGZ       OCR','        SUCMP      ST         PLI        RAT        TAUSKN',/,1p,7e11.3)",
      SIGZ, OCR, SUCMP, ST, PLI, RAT, TAUSKN);
}

}  // namespace tervak
