#include "Control/axial/AxialCapacityControl.hpp"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "Control/axial/axial_messages.hpp"
#include "Control/state/note.hpp"
#include "Control/state/report.hpp"
#include "Control/state/sp.hpp"
#include "SkinFriction/API84SS.hpp"
#include "SkinFriction/API87SC.hpp"
#include "SkinFriction/ICP05SS.hpp"
#include "SkinFriction/ICP96SC.hpp"
#include "SkinFriction/NGI05SC.hpp"
#include "SkinFriction/NGI05SS.hpp"
#include "TipResistance/APITipResistance.hpp"
#include "TipResistance/ICPXXTS.hpp"
#include "TipResistance/NGI05TS.hpp"

namespace tervak {

namespace {

constexpr int OPEN_TIP = 1;
constexpr int CLOSED_TIP = 2;
constexpr int PLUGGED = 2;

// So great that the tip counts as plugged.
constexpr double QINS = 1000000.0;
constexpr double QICLAY = 500000.0;

struct pile_at_layer {
  int i, m;
  std::string_view method;
  bool sand;
  double SIGZ, SU, PHIU;  ///< strength with the safety factors undone
  int IDOPCL;
  double DISTH, RAD, RAT, AREA;
};

[[noreturn]] void terminate(common& cmn) {
  remark(cmn, "(/,' **** Error termination by SR/R5AXCAP')");
  stop("Control\\AxialCapacityControl", __LINE__, " ");
}

void check(common& cmn, const axial_messages::method_texts& texts, int i, int IERR) {
  if (IERR == 0) return;
  for (const int unit : {cmn.NFLOG, cmn.NFLIS}) fem::write(cmn.units, unit, texts.message, i, IERR);
  for (const int unit : {cmn.NFLOG, cmn.NFLIS}) fem::write(cmn.units, unit, texts.codes);
  terminate(cmn);
}

[[noreturn]] void refuse_method(common& cmn, int m) {
  for (const int unit : {cmn.NFLOG, cmn.NFLIS})
    fem::write(cmn.units, unit,
               "(/,' **** SR/R5AXCAP : Unknown calculation method',/,' Main layer, method =',i4,2x,a6)", m,
               cmn.METHOD.at(static_cast<std::size_t>(m) - 1));
  terminate(cmn);
}

pile_at_layer describe(const common& cmn, int i) {
  pile_at_layer p{};
  p.i = i;
  p.m = cmn.LAYCOD(i).TYP;
  const std::string_view label = cmn.METHOD.at(static_cast<std::size_t>(p.m) - 1).view();
  p.method = label.substr(0, label.find_last_not_of(' ') + 1);
  p.sand = cmn.PHIL(i) > cmn.EPS;
  p.SIGZ = cmn.SIGZ(i);
  p.SU = cmn.SUCMP(i) * cmn.SFSU;
  p.PHIU = std::atan(std::tan(cmn.PI * cmn.PHIL(i) / 180) * cmn.SFTPHI) * 180 / cmn.PI;
  p.IDOPCL = cmn.WALL / cmn.DIAMP > 0.25 ? CLOSED_TIP : OPEN_TIP;
  p.DISTH = cmn.ZTIP - cmn.ZNOW(i);
  if (cmn.EPS > p.DISTH) p.DISTH = cmn.EPS;
  p.RAD = cmn.DIAMP / 2;
  const double inner = p.RAD - cmn.WALL;
  const double RQ = p.IDOPCL == CLOSED_TIP ? p.RAD : std::sqrt(p.RAD * p.RAD - inner * inner);
  p.RAT = std::max(p.DISTH / RQ, 8.0);
  p.AREA = cmn.DIAMP * cmn.DIAMP * cmn.PI / 4;
  return p;
}

void tell_pile(const common& cmn, const pile_at_layer& p) {
  note(cmn, equation_of("AX-PILE-1"), p.IDOPCL == CLOSED_TIP ? "closed tip" : "open tip",
       {{"w", cmn.WALL, in::length}, {"D", cmn.DIAMP, in::length}});
  note(cmn, equation_of("AX-PILE-2"),
       {{"ZTIP", cmn.ZTIP, in::length}, {"Z", cmn.ZNOW(p.i), in::length}, {"h", p.DISTH, in::length}});
  note(cmn, equation_of("AX-PILE-3"), {{"h / Rs", p.RAT}});
  note(cmn, equation_of("AX-PILE-4"), p.method, {{"Su", p.SU, in::stress}, {"phi", p.PHIU, in::degrees}});
}

void sand_friction(common& cmn, const pile_at_layer& p) {
  double& TAUCMP = cmn.TAUCMP(p.i);
  double& TAUTNS = cmn.TAUTNS(p.i);
  int IERR = 0;
  if (p.method == "API-93") {
    API84SS(cmn, p.SIGZ, p.PHIU, p.IDOPCL, TAUCMP, TAUTNS, IERR);
    check(cmn, axial_messages::API84SS, p.i, IERR);
  } else if (p.method == "ICP-05") {
    ICP05SS(cmn, 4, p.SIGZ, cmn.CPTTIP(p.i), p.DISTH, p.RAD, cmn.WALL, cmn.DELTAF(p.i), 0.0, p.IDOPCL, TAUCMP,
            TAUTNS, IERR);
    check(cmn, axial_messages::ICP05SS, p.i, IERR);
  } else if (p.method == "NGI-05") {
    NGI05SS(cmn, p.SIGZ, cmn.DR(p.i), cmn.ZTIP, cmn.ZNOW(p.i), p.IDOPCL, TAUCMP, TAUTNS, IERR);
    check(cmn, axial_messages::NGI05SS, p.i, IERR);
  } else {
    refuse_method(cmn, p.m);
  }
}

void clay_friction(common& cmn, const pile_at_layer& p) {
  double TAUSKN = 0;
  int IERR = 0;
  if (p.method == "API-93") {
    API87SC(cmn, p.SIGZ, p.SU, TAUSKN, IERR);
    check(cmn, axial_messages::API87SC, p.i, IERR);
  } else if (p.method == "ICP-05") {
    double OCR = 0;  // the method derives its own
    ICP96SC(cmn, p.SIGZ, OCR, p.SU, cmn.ST(p.i), cmn.PLI(p.i), p.RAT, TAUSKN, IERR);
    check(cmn, axial_messages::ICP96SC, p.i, IERR);
  } else if (p.method == "NGI-05") {
    // Its code for a closed tip is 0, not 2: a closed tip in clay ends the run. This is meant to stay so.
    NGI05SC(cmn, p.SIGZ, p.SU, cmn.PLI(p.i), p.IDOPCL, TAUSKN, IERR);
    check(cmn, axial_messages::NGI05SC, p.i, IERR);
  } else {
    refuse_method(cmn, p.m);
  }
  cmn.TAUCMP(p.i) = TAUSKN;
  cmn.TAUTNS(p.i) = TAUSKN;
}

double clay_tip(const common& cmn, const pile_at_layer& p) {
  const double by_strength = 9 * p.SU;
  const double QCM = std::min(cmn.CPTAVR(p.i), cmn.CPTTIP(p.i));
  if (p.method != "ICP-05" || cmn.EPS > QCM) {
    note(cmn, equation_of("AX-CLAY-1"), "clay", {{"Su", p.SU, in::stress}, {"q", by_strength, in::stress}});
    return by_strength;
  }
  const double q = (p.IDOPCL == OPEN_TIP ? sp(0.4f) : sp(0.8f)) * QCM;
  note(cmn, equation_of("AX-ICP-T5"), "clay", {{"min(qcm, qc)", QCM, in::stress}, {"q", q, in::stress}});
  return q;
}

double sand_tip(common& cmn, const pile_at_layer& p) {
  const double FP = cmn.ATMPRS / sp(101.3f);  // the methods' kPa in run units
  const double SIGP = p.SIGZ / FP;
  double QPLGD = 0, QPLUG = 0, QCORE = 0;
  int IDTIP = 0;
  int IERR = 0;
  if (p.method == "API-93") {
    APITipResistance(cmn, 2, SIGP, p.PHIU, 0.0, cmn.DIAMP, cmn.WALL, QINS, p.IDOPCL, QPLGD, QPLUG, QCORE,
                     IDTIP, IERR);
    check(cmn, axial_messages::APITipResistance, p.i, IERR);
    if (IDTIP != PLUGGED) {
      remark(cmn, "(/,' **** SR/R5AXCAP : Tip code error in SR/APITipResistance',/,' Layer,ITIP=',2i5)", p.i,
             IDTIP);
      terminate(cmn);
    }
    return QPLGD / p.AREA * FP;
  }
  if (p.method == "ICP-05") {
    ICPXXTS(cmn, 4, SIGP, cmn.DR(p.i), cmn.CPTTIP(p.i), cmn.CPTAVR(p.i), cmn.DIAMP, cmn.WALL, p.IDOPCL, QINS,
            QPLGD, QPLUG, QCORE, IDTIP, IERR);
    check(cmn, axial_messages::ICPXXTS, p.i, IERR);
    return (IDTIP == PLUGGED ? QPLGD : QCORE) / p.AREA * FP;
  }
  if (p.method != "NGI-05") refuse_method(cmn, p.m);
  NGI05TS(cmn, p.SIGZ, cmn.DR(p.i), cmn.CPTTIP(p.i), cmn.CPTAVR(p.i), cmn.DIAMP, cmn.WALL, p.IDOPCL, QINS,
          QICLAY, cmn.ZTIP * 0.5, cmn.ATMPRS, QPLGD, QPLUG, QCORE, IDTIP, IERR);
  check(cmn, axial_messages::NGI05TS, p.i, IERR);
  if (IDTIP != PLUGGED) {
    remark(cmn, "(/,' **** SR/R5AXCAP : Tip code error in SR/NGI05TS',/,' Layer,ITIP=',2i5)", p.i, IDTIP);
    terminate(cmn);
  }
  return QPLGD / p.AREA * FP;
}

void calculate(common& cmn, const pile_at_layer& p) {
  note_about(cmn, {note_subject::part::axial, p.i, 0});
  if (!p.method.empty()) tell_pile(cmn, p);
  const bool friction_given = cmn.TAUCMP(p.i) + cmn.TAUTNS(p.i) > cmn.EPS;
  const bool tip_given = cmn.QTIP(p.i) > cmn.EPS;
  // The label is tested only where something is to be calculated.
  if (!friction_given && !p.method.empty()) {
    if (p.sand) {
      sand_friction(cmn, p);
    } else {
      clay_friction(cmn, p);
    }
  }
  if (!tip_given && !p.method.empty()) cmn.QTIP(p.i) = p.sand ? sand_tip(cmn, p) : clay_tip(cmn, p);
  if (friction_given || p.method.empty())
    note(cmn, equation_of("AX-0-1"), "friction of the deck",
         {{"tc", cmn.TAUCMP(p.i), in::stress}, {"tt", cmn.TAUTNS(p.i), in::stress}});
  if (tip_given || p.method.empty())
    note(cmn, equation_of("AX-0-1"), "tip stress of the deck", {{"q", cmn.QTIP(p.i), in::stress}});
}

}  // namespace

void R5AXCAP(common& cmn) {
  for (int i = 1; i <= cmn.NUMLAY; ++i)
    if (!(cmn.EPS > cmn.SIGZ(i))) calculate(cmn, describe(cmn, i));
}

}  // namespace tervak
