#include "IO/input/general_values.hpp"

#include <algorithm>

#include "Control/state/report.hpp"
#include "Control/state/sp.hpp"
#include "IO/input/input_steps.hpp"
#include "IO/units/TervakUnitConverter.hpp"

namespace tervak {

namespace {

using Varno::TervakLibrary::IO::TervakUnitConverter;
using Vrsk::Plin::TervakExchange::Tervak;

void read_labels_and_scales(common& cmn, const Tervak& profile) {
  const auto& input = profile.GetTervakInputData();
  cmn.LABEL.assign(profile.GetHeader());
  if (profile.GetVersion() == 5) cmn.BORING.assign(input.Boring);
  cmn.UNITF = cmn.EPS > input.UnitF ? 1.0 : input.UnitF;
  cmn.UNITM = cmn.EPS > input.UnitM ? 1.0 : input.UnitM;
  cmn.CONVERTER = std::make_shared<TervakUnitConverter>(cmn.UNITF, cmn.UNITM);
}

void read_counts(common& cmn, const Tervak& profile) {
  const auto& input = profile.GetTervakInputData();
  const bool revision4 = profile.GetVersion() == 4;
  if (revision4) cmn.NUMTYP = input.NumberOfSoilTypes;
  cmn.NUMTQZ = revision4 ? input.NumberOfTzQzRows : 0;  // REV5INP counts its own rows
  cmn.NUMLAY = revision4 ? input.NumberOfLayers : input.NumberOfMainLayers;
  cmn.NUMLAYM = cmn.NUMLAY;
  cmn.NUMDSP = input.NumberOfDisplacements;
  cmn.MIDBOT = revision4 ? input.LevelSwitch : 0;  // the layer build of revision 5 sets its own
}

void read_environment(common& cmn, const Tervak& profile) {
  const auto& input = profile.GetTervakInputData();
  const TervakUnitConverter& run_units = *cmn.CONVERTER;
  cmn.GAMWAT = run_units(profile.GetWaterUnitWeight());
  cmn.ATMPRS = run_units.Stress(input.AtmosphericPressure);
  cmn.ZCYCL = run_units(profile.GetLowestLevelWithCyclicPY());
  cmn.SUSTIF = run_units(profile.GetLowestShearStiff());
  cmn.JPRINT = input.PrintLevel;
  cmn.JECHO = input.EchoSwitch;
}

void check_counts(common& cmn, const Tervak& profile) {
  const bool revision4 = profile.GetVersion() == 4;
  if (revision4 && (cmn.NUMTYP < 1 || cmn.NUMTYP > cmn.MAXTYP))
    return fail(cmn, NOT_ACCEPTED, "(/,' **** SR/READGE : NUMTYP ERROR  NUMTYP,MAX=',2i5)", cmn.NUMTYP,
                cmn.MAXTYP);
  if (revision4 && (cmn.NUMTQZ < 1 || cmn.NUMTQZ > cmn.MAXTQZ))
    return fail(cmn, NOT_ACCEPTED, "(/,' **** SR/READGE : NUMTQZ ERROR  NUMTQZ,MAX=',2i5)", cmn.NUMTQZ,
                cmn.MAXTQZ);
  if (cmn.NUMLAYM < 1 || cmn.NUMLAYM > cmn.MAXLAY)
    return fail(cmn, NOT_ACCEPTED, "(/,' **** SR/READGE : NUMLAYM ERROR  NUMLAYM,MAX=',2i5)", cmn.NUMLAYM,
                cmn.MAXLAY);
  if (cmn.NUMDSP < 0 || cmn.NUMDSP > cmn.MAXDSP)
    return fail(cmn, NOT_ACCEPTED, "(/,' **** SR/READGE : NUMDSP ERROR  NUMDSP,MAX=',2i5)", cmn.NUMDSP,
                cmn.MAXDSP);
  if (revision4 && cmn.MIDBOT != 1 && cmn.MIDBOT != 2)
    return fail(cmn, NOT_ACCEPTED, "(/,' **** SR/READGE : MIDBOT ERROR  MIDBOT = ',i5)", cmn.MIDBOT);
}

void check_environment(common& cmn, const Tervak&) {
  if (cmn.EPS * 0.01 > cmn.GAMWAT)
    return fail(cmn, NOT_ACCEPTED, "(/,' **** SR/READGE : GAMWAT ERROR  GAMWAT = ',f10.3)", cmn.GAMWAT);
  if (cmn.EPS > cmn.ATMPRS)
    return fail(cmn, NOT_ACCEPTED, "(/,' **** SR/READGE : ATMPRS ERROR  ATMPRS =',f10.3)", cmn.ATMPRS);

  constexpr const char* SUSTIF_WARNING = "(/,' **** WARNING FROM SR/READGE : SUSTIF = ',f10.3)";
  if (cmn.EPS > cmn.SUSTIF) remark(cmn, SUSTIF_WARNING, cmn.SUSTIF);
  if (cmn.SUSTIF / cmn.ATMPRS > 10.0) remark(cmn, SUSTIF_WARNING, cmn.SUSTIF);
}

void clamp_switches(common& cmn, const Tervak&) {
  if (cmn.JPRINT > 2) remark(cmn, "(/,' **** WARNING FROM SR/READGE : JPRINT =',i5)", cmn.JPRINT);
  cmn.JPRINT = std::clamp(cmn.JPRINT, 0, 2);
  if (cmn.JECHO > 1) remark(cmn, "(/,' **** WARNING FROM SR/READGE : JECHO =',i5)", cmn.JECHO);
  cmn.JECHO = std::clamp(cmn.JECHO, 0, 1);
}

void read_safety_factors(common& cmn, const Tervak& profile) {
  cmn.SFTPHI = profile.GetTanPhiCoeff();
  cmn.SFSU = profile.GetShearStrengthCoeff();
  cmn.SFSKF = profile.GetSkinFrictionCoeff();
  cmn.SFSIGT = profile.GetPileTipResistanceCoeff();
  if (cmn.EPS > cmn.SFTPHI)
    return fail(cmn, NOT_ACCEPTED, "(/,' **** SR/READGE : SFTPHI ERROR  SFTPHI =',f10.3)", cmn.SFTPHI);
  if (cmn.EPS > cmn.SFSU)
    return fail(cmn, NOT_ACCEPTED, "(/,' **** SR/READGE : SFSU ERROR  SFSU =',f10.3)", cmn.SFSU);
  if (cmn.EPS > cmn.SFSKF)
    return fail(cmn, NOT_ACCEPTED, "(/,' **** SR/READGE : SFSKF ERROR  SFSKF =',f10.3)", cmn.SFSKF);
  if (cmn.EPS > cmn.SFSIGT)
    return fail(cmn, NOT_ACCEPTED, "(/,' **** SR/READGE : SFSIGT ERROR  SFSIGT =',f10.3)", cmn.SFSIGT);
}

void read_diameters(common& cmn, const Tervak& profile) {
  cmn.NUMDIA = static_cast<int>(profile.GetDiameterCount());
  if (cmn.NUMDIA > MOST_DIAMETERS)
    return fail(cmn, TOO_MANY_DIAMETERS, "(/,' **** SR/READGE : NUMDIA,MAXDIA=',2i5)", cmn.NUMDIA,
                MOST_DIAMETERS);
  cmn.DIAM.allocate(cmn.NUMDIA);
  for (diameter_number ND(1); ND <= cmn.NUMDIA; ++ND)
    cmn.DIAM(ND) = cmn.CONVERTER->Length(entry(profile.GetTervakInputData().Diameters, ND));

  if (cmn.NUMDIA < 1 || cmn.NUMDIA > cmn.MAXDIA)
    return fail(cmn, NOT_ACCEPTED, "(/,' **** SR/READGE : NUMDIA ERROR  NUMDIA,MAX=',2i5)", cmn.NUMDIA,
                cmn.MAXDIA);
  for (int n = 2; n <= cmn.NUMDIA; ++n)
    if (!(cmn.DIAM(n) - cmn.DIAM(n - 1) > cmn.EPS))
      return fail(cmn, NOT_ACCEPTED, "(/,' **** SR/READGE : DIAM SEQUENCE ERROR',2f10.3)", cmn.DIAM(n - 1),
                  cmn.DIAM(n));
}

void read_moduli(common& cmn, const Tervak& profile) {
  const double third = profile.GetTervakInputData().ThirdModulus;
  cmn.ESOL0 = (*cmn.CONVERTER)(profile.GetModulusOfElasticity());
  cmn.ESOL1 = (*cmn.CONVERTER)(profile.GetModulusOfElasticitySlope());
  cmn.ESOL2 = profile.GetVersion() == 5 && third >= sp(0.01f) ? third : 1.0;
  cmn.POSAVR = profile.GetAveragePoissonRatio();
  if (-cmn.EPS > cmn.ESOL1)
    return fail(cmn, NOT_ACCEPTED, "(/,' **** SR/READGE : ESOL0,ESOL1 ERROR',2f10.3)", cmn.ESOL0, cmn.ESOL1);
  if (-cmn.EPS > cmn.POSAVR || cmn.POSAVR > sp(0.50001f))
    return fail(cmn, NOT_ACCEPTED, "(/,' **** SR/READGE : POSAVR ERROR',f10.3)", cmn.POSAVR);
}

void read_levels(common& cmn, const Tervak& profile) {
  const auto& input = profile.GetTervakInputData();
  const TervakUnitConverter& run_units = *cmn.CONVERTER;
  cmn.ZSEAFL = run_units(profile.GetZSeafloor());
  cmn.SCRGEN = run_units(profile.GetDepthOfScour());
  cmn.SCRLOC = run_units(profile.GetDepthOfLocalScour());
  cmn.SCRSLP = run_units(profile.GetSideSlope());
  cmn.ZPWP = run_units.Length(input.PorePressureLevel);
  cmn.GAMPWP = run_units.ForcePerUnitVolume(input.PorePressureUnitWeight);
}

void check_levels(common& cmn, const Tervak&) {
  const bool negative = -cmn.EPS > cmn.SCRGEN || -cmn.EPS > cmn.SCRLOC;
  const double DSCR = negative ? -1.0 : cmn.SCRLOC - cmn.SCRGEN;
  if (-cmn.EPS > DSCR)
    return fail(cmn, NOT_ACCEPTED, "(/,' **** SR/READGE : SCRGEN,SCRLOC ERROR',2f10.3)", cmn.SCRGEN,
                cmn.SCRLOC);
  // A flat side is good as long as there is no scour hole.
  if ((DSCR > cmn.EPS && sp(0.1f) > cmn.SCRSLP) || -cmn.EPS > cmn.SCRSLP || cmn.SCRSLP > sp(89.9f))
    return fail(cmn, NOT_ACCEPTED, "(/,' **** SR/READGE : LOCAL SCOUR SLOPE ERROR',f10.3)", cmn.SCRSLP);
  if (-cmn.EPS > cmn.GAMPWP || cmn.GAMPWP > cmn.GAMWAT * sp(2.1f))
    return fail(cmn, NOT_ACCEPTED, "(/,' **** SR/READGE : GAMPWP,GAMMAW ERROR',2f10.3)", cmn.GAMPWP,
                cmn.GAMWAT);
}

}  // namespace

void read_general_values(common& cmn, const Tervak& profile) {
  run_steps(cmn, profile,
            {read_labels_and_scales, read_counts, read_environment, check_counts, check_environment,
             clamp_switches, read_safety_factors, read_diameters, read_moduli, read_levels, check_levels});
}

}  // namespace tervak
