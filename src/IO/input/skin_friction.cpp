#include <array>

#include "Control/state/report.hpp"
#include "Control/state/sp.hpp"
#include "IO/input/input_steps.hpp"
#include "IO/input/revision5_sections.hpp"
#include "IO/units/TervakUnitConverter.hpp"

namespace tervak {

namespace {

using Vrsk::Plin::TervakExchange::SkinFrictionRecord;
using Vrsk::Plin::TervakExchange::Tervak;

/// By the deck's method number. Method 0 calculates nothing: the given values stand.
constexpr std::array<const char*, 4> METHOD_LABELS{"", "API-93", "ICP-05", "NGI-05"};

void store(common& cmn, int m, const SkinFrictionRecord& record) {
  const auto& run_units = *cmn.CONVERTER;
  cmn.TCMTOP(m) = run_units.Stress(record.CompressionTop);
  cmn.TCMBOT(m) = run_units.Stress(record.CompressionBottom);
  cmn.TTNTOP(m) = run_units.Stress(record.TensionTop);
  cmn.TTNBOT(m) = run_units.Stress(record.TensionBottom);
  cmn.QTPTOP(m) = run_units.Stress(record.TipTop);
  cmn.QTPBOT(m) = run_units.Stress(record.TipBottom);
  cmn.GOFAC(m) = record.GoFactor;
  cmn.TRESM(m) = record.ResidualRatio;
  cmn.TZZRSM(m) = run_units.Length(record.ResidualDisplacement);
}

void check_layer(common& cmn, int m, int method) {
  if (method < 0 || method > 3)
    return fail(cmn, NOT_ACCEPTED,
                "(/,' **** SR/REV5INP : Invalid calculation method',/,' Layer, method=',2i5)", m, method);
  cmn.METHOD[static_cast<std::size_t>(m - 1)].assign(METHOD_LABELS[static_cast<std::size_t>(method)]);
  if (cmn.EPS > cmn.GOFAC(m))
    return fail(cmn, NOT_ACCEPTED,
                "(/,' **** SR/REV5INP : Non-accepted factor on Go',/,' Layer, Go factor=',i5,f12.3)", m,
                cmn.GOFAC(m));
  if (cmn.TRESM(m) > 1.0 || sp(0.01f) > cmn.TRESM(m))
    return fail(cmn, NOT_ACCEPTED,
                "(/,' **** SR/REV5INP : Non-accepted t.res/t.max',/,' Layer, t.res/t.max=',i5,f12.3)", m,
                cmn.TRESM(m));
}

void warn_of_given_values(common& cmn, int m, int method) {
  const double S =
      cmn.TCMTOP(m) + cmn.TCMBOT(m) + cmn.TTNTOP(m) + cmn.TTNBOT(m) + cmn.QTPTOP(m) + cmn.QTPBOT(m);
  if (method != 0 && S > cmn.EPS)
    remark(
        cmn,
        "(/,' ---- Warning from SR/REV5INP : Layer =',i3,' Method',' = ',a6,/,' Non-zero skin friction and/or tip stress values',' were specified, these values will be used',/,' ')",
        m, cmn.METHOD[static_cast<std::size_t>(m - 1)]);
  if (method == 0 && cmn.EPS > S)
    remark(
        cmn,
        "(/,' ---- Warning from SR/REV5INP : Layer =',i3,/,' No calculation cmn.method specified, but given skin friction',' and tip resistance values are all zero',/,' ')",
        m);
}

}  // namespace

void read_pile(common& cmn, const Tervak& profile) {
  const auto& section = profile.GetTervakInputData().SkinFriction;
  cmn.DIAMP = cmn.CONVERTER->Length(section.PileDiameter);
  cmn.WALL = cmn.CONVERTER->Length(section.WallThickness);
  cmn.ZTIP = cmn.CONVERTER->Length(section.PileTipZ);
  cmn.MATPIL = section.PileMaterial;
  if (cmn.MATPIL > 2 || cmn.MATPIL < 1 || cmn.ZSEAFL > cmn.ZTIP || 2 * cmn.WALL > cmn.DIAMP)
    return fail(
        cmn, NOT_ACCEPTED,
        "(/,' **** SR/REV5INP : Non-accepted pile input values for',' axial capacity calcs',/,' DIAMP,WALL,ZTIP,MATPIL =',3f10.3,i5)",
        cmn.DIAMP, cmn.WALL, cmn.ZTIP, cmn.MATPIL);
  if (-cmn.EPS > cmn.ZMAIN(cmn.NUMLAYM) - cmn.ZTIP)
    return fail(
        cmn, NOT_ACCEPTED,
        "(/,' **** SR/REV5INP : The pile tip is located below the',' last soil layer',/,' Z.pile, Z.bottom = ',2f10.3)",
        cmn.ZTIP, cmn.ZMAIN(cmn.NUMLAYM));
}

void read_skin_friction(common& cmn, const Tervak& profile) {
  for (int m = 1; m <= cmn.NUMLAYM; ++m) {
    const SkinFrictionRecord& record = entry(profile.GetTervakInputData().SkinFriction.Records, m);
    store(cmn, m, record);
    if (record.Number != m) return fail(cmn, NOT_ACCEPTED, LAYER_SEQUENCE_ERROR, m, record.Number);
    check_layer(cmn, m, record.Method);
    if (cmn.IERR != 0) return;
    warn_of_given_values(cmn, m, record.Method);
  }
}

}  // namespace tervak
