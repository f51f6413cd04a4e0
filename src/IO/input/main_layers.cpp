#include "Control/state/report.hpp"
#include "Control/state/sp.hpp"
#include "IO/input/input_steps.hpp"
#include "IO/input/revision5_sections.hpp"
#include "IO/units/TervakUnitConverter.hpp"

namespace tervak {

namespace {

using Vrsk::Plin::TervakExchange::SoilMainLayerRecord;
using Vrsk::Plin::TervakExchange::Tervak;

void store(common& cmn, int m, const SoilMainLayerRecord& record) {
  const auto& run_units = *cmn.CONVERTER;
  cmn.ZMAIN(m) = run_units.Length(record.BottomZ);
  cmn.GAMM(m) = run_units.ForcePerUnitVolume(record.TotalUnitWeight);
  cmn.CPTTOP(m) = run_units.Stress(record.CptTop) * 1000.0;
  cmn.CPTBOT(m) = run_units.Stress(record.CptBottom) * 1000.0;
  cmn.PHIM(m) = record.FrictionAngle;
  cmn.DRM(m) = record.RelativeDensity;
  cmn.SUTOP(m) = run_units.Stress(record.SuTop);
  cmn.SUBOT(m) = run_units.Stress(record.SuBottom);
  cmn.PLIM(m) = record.PlasticityIndex;
  cmn.EPSCM(m) = record.EpsC;
  cmn.APIJM(m) = record.ApiJ;
  cmn.KSOILM(m) = run_units.ForcePerUnitVolume(record.KSoil);
}

void check_layer(common& cmn, int m, double ZLAST) {
  if (cmn.UNITM * sp(0.01f) > cmn.ZMAIN(m) - ZLAST)
    return fail(cmn, NOT_ACCEPTED,
                "(/,' **** SR/REV5INP : Layer bottom z-value error',/,' Layer, Zlast, Znow=',i5,2f12.4)", m,
                ZLAST, cmn.ZMAIN(m));
  if (cmn.GAMM(m) > cmn.GAMWAT * 3.0 || cmn.EPS * 0.01 > cmn.GAMM(m))
    return fail(cmn, NOT_ACCEPTED,
                "(/,' **** SR/REV5INP : Total unit weight error',/,' Layer, Gamtot, Gamwater=',i5,2f12.2)", m,
                cmn.GAMM(m), cmn.GAMWAT);
  if (cmn.PHIM(m) > 60.0)
    return fail(cmn, NOT_ACCEPTED,
                "(/,' **** SR/REV5INP : Friction angle > 60 degrees',/,' Layer, Phi=',i5,f10.2)", m,
                cmn.PHIM(m));
  // The limit is 1.25, whatever the message says.
  if (cmn.DRM(m) > 1.25)
    return fail(
        cmn, NOT_ACCEPTED,
        "(/,' **** SR/REV5INP : Sand relative density error, Dr',' shall be 0-1',/,' Layer, Dr =',i5,f8.3)",
        m, cmn.DRM(m));
}

void check_clay(common& cmn, int m) {
  if (cmn.DRM(m) + cmn.PHIM(m) > cmn.EPS)
    return fail(cmn, NOT_ACCEPTED,
                "(/,' **** SR/REV5INP : Layer',i3,' is clay',/,' This layer has non-zero sand parameters')",
                m);
  if (cmn.EPS > cmn.SUBOT(m) || cmn.EPS > cmn.SUTOP(m))
    return fail(cmn, NOT_ACCEPTED,
                "(/,' **** SR/REV5INP : Zero Su values are not allowed',/,' Layer, SuTop, SuBot=',i5,2f12.2)",
                m, cmn.SUTOP(m), cmn.SUBOT(m));
  if (cmn.EPSCM(m) > sp(0.1f) || cmn.EPS > cmn.EPSCM(m))
    return fail(cmn, NOT_ACCEPTED,
                "(/,' **** SR/REV5INP : Non-accepted EPSC parameter',/,' Layer, EPSC=',i5,f12.4)", m,
                cmn.EPSCM(m));
  if (cmn.APIJM(m) > sp(0.6f) || sp(0.1f) > cmn.APIJM(m))
    return fail(cmn, NOT_ACCEPTED,
                "(/,' **** SR/REV5INP : Non-accepted API J-parameter',/,' Layer, API-J=',i5,f12.3)", m,
                cmn.APIJM(m));
}

void check_sand(common& cmn, int m) {
  if (cmn.EPS > cmn.DRM(m) + cmn.PHIM(m) + cmn.CPTTOP(m) + cmn.CPTBOT(m))
    fail(cmn, NOT_ACCEPTED, "(/,' **** SR/REV5INP : Zero soil strength parameters',' in layer',i3)", m);
}

}  // namespace

void read_main_layers(common& cmn, const Tervak& profile) {
  double ZLAST = -1000000.0;  // the first main layer may lie anywhere
  for (int m = 1; m <= cmn.NUMLAYM; ++m) {
    const SoilMainLayerRecord& record = entry(profile.GetTervakInputData().MainLayers.Records, m);
    store(cmn, m, record);
    if (record.Number != m) return fail(cmn, NOT_ACCEPTED, LAYER_SEQUENCE_ERROR, m, record.Number);
    check_layer(cmn, m, ZLAST);
    if (cmn.IERR != 0) return;
    ZLAST = cmn.ZMAIN(m);
    const bool clay = cmn.SUTOP(m) + cmn.SUBOT(m) > cmn.EPS;
    if (clay)
      check_clay(cmn, m);
    else
      check_sand(cmn, m);
    if (cmn.IERR != 0) return;
  }
}

}  // namespace tervak
