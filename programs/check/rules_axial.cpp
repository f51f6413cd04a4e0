#include "check/rules.hpp"

namespace tervak::check::rules {

namespace {

void plasticity(const profile_view& profile, const rule_hit& hit) {
  for (const soil& s : profile.soils())
    if (s.clay && s.method >= 2 && s.calculates_friction() && (s.plasticity == 0 || s.plasticity > 200))
      hit({s.table, s.row, "PLIM"}, value_is("PLIM", s.plasticity));
}

void no_axial(const profile_view& profile, const rule_hit& hit) {
  for (const soil& s : profile.soils()) {
    const bool by_hand = s.tz == std::vector<int>{0} && s.qz == std::vector<int>{0};
    if (profile.revision5() && s.method == 0 && !s.friction_given && !s.tip_given && !by_hand)
      hit({"SKINFRICTION", s.row, "METHOD"}, "METHOD is 0 and all values of the row are zero");
  }
}

void angle_only(const profile_view& profile, const rule_hit& hit) {
  for (const soil& s : profile.soils())
    if (!s.clay && s.method >= 2 && (s.calculates_friction() || s.calculates_tip()) && s.angle > 0 &&
        s.density == 0 && !s.has_cone())
      hit({s.table, s.row, "CPTTOP"},
          "METHOD is " + std::to_string(s.method) + " and the sand is known by PHIM only");
}

void clay_without_cone(const profile_view& profile, const rule_hit& hit) {
  for (const soil& s : profile.soils())
    if (!s.has_cone() && profile.reads_clay_cone(s))
      hit({s.table, s.row, "CPTTOP"}, "the clay has no cone resistance");
}

void tip_without_stress(const profile_view& profile, const rule_hit& hit) {
  if (!profile.revision5()) return;
  const double tip = profile.data().SkinFriction.PileTipZ;
  const auto& rows = profile.data().MainLayers.Records;
  for (const soil& s : profile.soils()) {
    const std::size_t m = s.row - 1;
    const bool here = profile.top_of(m) <= tip &&
                      (tip < rows[m].BottomZ || (tip == rows[m].BottomZ && s.row == rows.size()));
    if (here && s.method == 0 && !s.tip_given && s.qz.front() != 0)
      hit({"ZTIP"}, value_is("ZTIP", tip) + ", in main layer " + std::to_string(s.row));
  }
}

constexpr rule RULES[] = {
    {"plasticity", "`PLIM` of clay whose skin friction is by ICP-05 or NGI-05", "0 or above 200",
     "; METHOD 2 and 3 read the plasticity index, in percent",
     "the methods stop at 0, and misread a number of another unit", plasticity},
    {"no-axial", "`METHOD` and the values of `SKINFRICTION`", "`METHOD` 0 and all values zero",
     ": the layer carries no axial load; was the method forgotten?", "T-Z and Q-Z curves come out as zero",
     no_axial},
    {"angle-only", "sand of ICP-05 or NGI-05", "known by `PHIM` only",
     ": its cone resistance and density are then made from the angle; give CPTTOP and CPTBOT, or DRM",
     "the methods rest on the cone, and a correlation from the angle is a guess", angle_only},
    {"clay-without-cone", "clay of ICP-05, and clay next to a sand whose tip stress is by ICP-05 or NGI-05",
     "no cone resistance", "; the tip by METHOD 2 or 3, here or in the sand next to it, reads it as 0.0",
     "the mean of the cone around a tip counts it with zero", clay_without_cone},
    {"tip-in-zero", "`ZTIP`", "in a main layer without tip stress",
     ", whose tip stress is zero; is the level right?", "the pile has no tip resistance", tip_without_stress},
};

}  // namespace

std::span<const rule> of_axial() { return RULES; }

}  // namespace tervak::check::rules
