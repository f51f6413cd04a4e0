#include <algorithm>

#include "check/rules.hpp"

namespace tervak::check::rules {

namespace {

constexpr int CLAY_CURVES[] = {214, 284, 287, 404, 570, 380};  // read eps50
constexpr int J_CURVES[] = {214, 284, 287, 404, 570};
constexpr int CARBONATE[] = {588};

/// The name of a column in the soil table of the profile's revision.
std::string_view column(const soil& s, std::string_view revision5, std::string_view revision4) {
  return s.table == "MAINLAYERS" ? revision5 : revision4;
}

void look_outside(const soil& s, std::string_view name, double value, double least, double most,
                  const rule_hit& hit) {
  if (value < least || value > most) hit({s.table, s.row, name}, value_is(name, value));
}

void angle(const profile_view& profile, const rule_hit& hit) {
  for (const soil& s : profile.soils())
    if (!s.clay && s.angle != 0 && s.uses_strength())
      look_outside(s, column(s, "PHIM", "PHI"), s.angle, 15, 45, hit);
}

/// The end of the layer that gives the strength: the stronger or the weaker one.
void point_at_strength(const soil& s, bool stronger, const rule_hit& hit) {
  const bool top = (s.su_top > s.su_bottom) == stronger;
  const std::string_view name = top ? column(s, "SUTOP", "SU0") : column(s, "SUBOT", "SU100");
  hit({s.table, s.row, name}, value_is(name, top ? s.su_top : s.su_bottom));
}

void strength_high(const profile_view& profile, const rule_hit& hit) {
  for (const soil& s : profile.soils())
    if (s.clay && s.uses_strength() &&
        std::any_of(s.su.begin(), s.su.end(), [](double su) { return su > 1000; }))
      point_at_strength(s, true, hit);
}

void strength_low(const profile_view& profile, const rule_hit& hit) {
  for (const soil& s : profile.soils())
    if (s.clay && s.uses_strength() &&
        std::any_of(s.su.begin(), s.su.end(), [](double su) { return su > 0 && su < 0.5; }))
      point_at_strength(s, false, hit);
}

void strength_swapped(const profile_view& profile, const rule_hit& hit) {
  if (!profile.revision5()) return;
  for (const soil& s : profile.soils())
    if (s.clay && s.uses_strength() && s.su_top > 1.25 * s.su_bottom)
      hit({s.table, s.row, "SUTOP"}, value_is("SUTOP", s.su_top) + ", " + value_is("SUBOT", s.su_bottom));
}

void weight_low(const profile_view& profile, const rule_hit& hit) {
  for (const soil& s : profile.soils())
    look_outside(s, column(s, "GAMM", "GAMTOT"), s.unit_weight, 12, 1e300, hit);
}

void weight_high(const profile_view& profile, const rule_hit& hit) {
  for (const soil& s : profile.soils())
    look_outside(s, column(s, "GAMM", "GAMTOT"), s.unit_weight, -1e300, 25, hit);
}

/// Sand: the missing strengths are correlated from the cone, ICP-05 and NGI-05 read it.
bool uses_cone(const profile_view& profile, const soil& s) {
  if (s.clay) return profile.reads_clay_cone(s);
  return (s.method >= 2 && (s.calculates_friction() || s.calculates_tip())) ||
         (s.uses_strength() && (s.angle == 0 || s.density == 0));
}

void cone_above(const profile_view& profile, bool clay_only, double most, const rule_hit& hit) {
  for (const soil& s : profile.soils()) {
    if (!uses_cone(profile, s) || (clay_only && !s.clay)) continue;
    if (clay_only && std::max(s.cone_top, s.cone_bottom) > 100) continue;  // told by the rule of all soils
    look_outside(s, "CPTTOP", s.cone_top, -1e300, most, hit);
    look_outside(s, "CPTBOT", s.cone_bottom, -1e300, most, hit);
  }
}

void cone_low(const profile_view& profile, const rule_hit& hit) {
  for (const soil& s : profile.soils())
    if (!s.clay && s.has_cone() && uses_cone(profile, s) && std::max(s.cone_top, s.cone_bottom) < 2)
      hit({s.table, s.row, "CPTTOP"},
          value_is("CPTTOP", s.cone_top) + ", " + value_is("CPTBOT", s.cone_bottom));
}

void density(const profile_view& profile, const rule_hit& hit) {
  for (const soil& s : profile.soils())
    if (!s.clay && s.uses_strength()) look_outside(s, "DRM", s.density, -1e300, 1.1, hit);
}

void eps50(const profile_view& profile, const rule_hit& hit) {
  for (const soil& s : profile.soils())
    if (s.clay && s.eps50 != 0 && s.has_py(CLAY_CURVES))
      look_outside(s, column(s, "EPSCM", "EPS50"), s.eps50, 0.002, 0.04, hit);
}

void j_high(const profile_view& profile, const rule_hit& hit) {
  for (const soil& s : profile.soils())
    if (s.clay && s.has_py(J_CURVES) && !s.has_py(CARBONATE))
      look_outside(s, column(s, "APIJM", "APIJ"), s.j, -1e300, 0.6, hit);
}

/// Revision 4 has the cone resistance at the surface in OCR, so that there a rise of zero may be meant.
void carbonate_rise(const profile_view& profile, const rule_hit& hit) {
  for (const soil& s : profile.soils())
    if (!s.clay && s.has_py(CARBONATE) && (profile.revision5() || s.j != 0))
      look_outside(s, column(s, "APIJM", "APIJ"), s.j, 10, 1e300, hit);
}

constexpr rule RULES[] = {
    {"friction-angle", "`PHIM` (`PHI`) of sand", "outside 15 to 45",
     ", not within 15 to 45 degrees; is it in radians, or of another soil?",
     "sands have 20 to 45 degrees; 0.61 is 35 degrees in radians", angle},
    {"strength-high", "`SUTOP`, `SUBOT` (`SU0`, `SU100`), at the levels of the layers", "above 1000",
     ": more than 1000 kPa at a layer's level; is it in Pa?", "1000 kPa is rock; 20000 is 20 kPa in Pa",
     strength_high},
    {"strength-low", "`SUTOP`, `SUBOT` (`SU0`, `SU100`), at the levels of the layers", "below 0.5",
     ": less than 0.5 kPa at a layer's level; is it in MPa?", "0.02 is 20 kPa in MPa", strength_low},
    {"strength-swapped", "`SUTOP` and `SUBOT`", "`SUTOP` above `SUBOT` by more than a quarter",
     ": the strength falls with depth by more than a quarter of SUBOT; are they swapped?",
     "strength seldom falls with depth within one layer", strength_swapped},
    {"submerged-weight", "`GAMM` (`GAMTOT`)", "below 12",
     ", less than 12 kN/m3; the total unit weight is wanted, is this the submerged one?",
     "submerged weights make the effective stress too low or negative", weight_low},
    {"unit-weight", "`GAMM` (`GAMTOT`)", "above 25", ", more than 25 kN/m3; is it in another unit?",
     "no soil is heavier", weight_high},
    {"cone-high", "`CPTTOP`, `CPTBOT` where they are used", "above 100", ", more than 100 MPa; is it in kPa?",
     "the cone resistance is in MPa, unlike all other stresses",
     [](const profile_view& p, const rule_hit& hit) { cone_above(p, false, 100, hit); }},
    {"cone-clay", "`CPTTOP`, `CPTBOT` of clay where ICP-05 or NGI-05 uses them", "above 10",
     ", more than 10 MPa in clay; is it in kPa, or of a sand?", "clay has 0.1 to 5 MPa",
     [](const profile_view& p, const rule_hit& hit) { cone_above(p, true, 10, hit); }},
    {"cone-low", "`CPTTOP` and `CPTBOT` of sand where they are used", "both below 2",
     ", less than 2 MPa in sand; is this a clay whose SUTOP and SUBOT were left out?",
     "a layer without strengths counts as sand", cone_low},
    {"density", "`DRM` of sand", "above 1.1", ", more than 1.1; is it in percent?",
     "the relative density is a fraction", density},
    {"eps50", "`EPSCM` (`EPS50`) of clay, P-Y codes 214, 284, 287, 380, 404, 570", "outside 0.002 to 0.04",
     ", not within 0.002 to 0.04; is it in percent?", "eps50 is a fraction, 0.005 to 0.02 in most clays",
     eps50},
    {"j-high", "`APIJM` (`APIJ`) of clay, P-Y codes 214, 284, 287, 404, 570", "above 0.6",
     ", more than 0.6; J is 0.25 to 0.5",
     "J of Matlock is 0.25 to 0.5; only code 588 reads the column otherwise", j_high},
    {"carbonate-rise", "`APIJM` (`APIJ`) of sand with P-Y code 588", "below 10",
     ", less than 10; with code 588 it is the rise of the cone resistance in kPa a metre, is this J, or in MPa?",
     "code 588 reads the column as the rise of the cone resistance with depth, kPa a metre", carbonate_rise},
};

}  // namespace

std::span<const rule> of_soil() { return RULES; }

}  // namespace tervak::check::rules
