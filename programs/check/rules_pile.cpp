#include <algorithm>

#include "check/rules.hpp"

namespace tervak::check::rules {

namespace {

constexpr double GREATEST = 15;

void diameter(const profile_view& profile, const rule_hit& hit) {
  const auto& all = profile.data().Diameters;
  for (std::size_t i = 0; i < all.size(); ++i)
    if (all[i] > GREATEST) hit({"DIAM", i + 1}, value_is("DIAM", all[i]));
  const double capacity = profile.data().SkinFriction.PileDiameter;
  if (profile.calculates_capacity() && capacity > GREATEST) hit({"DIAMP"}, value_is("DIAMP", capacity));
}

void wall(const profile_view& profile, const rule_hit& hit) {
  if (!profile.calculates_capacity()) return;
  const auto& pile = profile.data().SkinFriction;
  const double rounding = 1e-9 * pile.PileDiameter;
  if (pile.WallThickness < pile.PileDiameter / 200 - rounding ||
      pile.WallThickness > pile.PileDiameter / 2 + rounding)
    hit({"WALL"}, value_is("WALL", pile.WallThickness) + ", " + value_is("DIAMP", pile.PileDiameter));
}

void capacity_diameter(const profile_view& profile, const rule_hit& hit) {
  const auto& all = profile.data().Diameters;
  const double capacity = profile.data().SkinFriction.PileDiameter;
  if (profile.calculates_capacity() && std::find(all.begin(), all.end(), capacity) == all.end())
    hit({"DIAMP"}, value_is("DIAMP", capacity));
}

void several_diameters(const profile_view& profile, const rule_hit& hit) {
  if (profile.calculates_capacity() && profile.data().Diameters.size() > 1)
    hit({"DIAM", 2}, "DIAM has " + std::to_string(profile.data().Diameters.size()) + " values");
}

constexpr rule RULES[] = {
    {"diameter", "`DIAM`; `DIAMP` where a capacity is calculated", "above 15",
     ", more than 15 m; is it in mm?", "no pile is wider", diameter},
    {"wall", "`WALL` where a capacity is calculated", "below `DIAMP` / 200 or above `DIAMP` / 2",
     "; a wall has a 200th to a half of the diameter, is it in another unit?",
     "the tip by its wall is open or closed, plugs or cores", wall},
    {"capacity-diameter", "`DIAMP` where a capacity is calculated", "none of `DIAM`",
     ", none of DIAM: skin friction and tip stress are those of another pile",
     "curves of a diameter would take the skin friction of another", capacity_diameter},
    {"several-diameters", "`DIAM` where a capacity is calculated", "several values",
     ": skin friction and tip stress of all of them are those of DIAMP; give each pile a profile of its own",
     "the capacity is that of one pile", several_diameters},
};

}  // namespace

std::span<const rule> of_pile() { return RULES; }

}  // namespace tervak::check::rules
