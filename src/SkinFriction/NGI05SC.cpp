#include "SkinFriction/NGI05SC.hpp"

#include <algorithm>
#include <cmath>

#include "Control/state/note.hpp"
#include "Control/state/report.hpp"
#include "Control/state/sp.hpp"
#include "SkinFriction/limits.hpp"

namespace tervak {

namespace {

constexpr int ERROR_TRACE_UNIT = 13;

int check(double SIGZ, double SU, double PLI, int IOPEN) {
  int IERR = 0;
  if (SIGZ < NO_STRESS) IERR = 1;
  if (PLI < NO_STRESS) IERR = 2;
  if (SU < NO_STRESS) IERR = 3;
  if (IOPEN < 0) IERR = 4;
  if (IOPEN > 1) IERR = 5;
  return IERR;
}

double alpha(double R, double PLI) {
  const double ANC =
      std::clamp(sp(0.08f) * 4 * std::pow(std::max(PLI, 10.00001) - 10, sp(0.3f)), sp(0.2f), 1.0);
  if (R < 0.25) return ANC;
  if (R < 1)
    return ANC + (0.5 - ANC) / (std::log10(1.0) - std::log10(0.25)) * (std::log10(R) - std::log10(0.25));
  return 0.5 * std::pow(R, -0.3);
}

double friction(double SIGZ, double SU, double PLI, int IOPEN) {
  const double R = SU / SIGZ;
  const double FT = IOPEN == 1 ? 1.0 : std::clamp(sp(0.8f) + sp(0.2f) * std::sqrt(R), 1.0, 1.25);
  const double LOW =
      std::clamp(sp(0.06f) * std::pow(std::max(PLI - 12, sp(0.001f)), sp(0.33f)), sp(0.05f), sp(0.2f)) * SIGZ;
  return std::max(FT * alpha(R, PLI) * SU, LOW);
}

}  // namespace

void NGI05SC(common& cmn, double SIGZ, double SU, double PLI, int IOPEN, double& TAUSKN, int& IERR) {
  const int request = IERR;
  IERR = check(SIGZ, SU, PLI, IOPEN);
  TAUSKN = IERR == 0 ? friction(SIGZ, SU, PLI, IOPEN) : 0.0;
  note(cmn, equation_of("AX-NGI-C4"), IERR == 0 ? "clay" : "refused",
       {{"sig'", SIGZ, in::stress}, {"Su", SU, in::stress}, {"Ip", PLI}, {"tc", TAUSKN, in::stress}});
  const int trace = IERR != 0 ? ERROR_TRACE_UNIT : request;
  if (trace > 0)
    fem::write(
        cmn.units, trace,
        "(/,' SR/NGI05SC trace print',/,'   SIGZ    SU     PLI   ','IOPEN    TAUSKN  IERR',/,f7.1,f7.1,f7.1,i5,f11.1,i6)",
        SIGZ, SU, PLI, IOPEN, TAUSKN, IERR);
  if (IERR != 0) remark(cmn, "(/,' **** SR/NGI05SC error  IERR=',i5)", IERR);
}

}  // namespace tervak
