#include "check/rules.hpp"

namespace tervak::check::rules {

namespace {

void look_outside(std::string_view name, double value, double least, double most, const rule_hit& hit) {
  if (value < least || value > most) hit({name}, value_is(name, value));
}

constexpr rule RULES[] = {
    {"water-weight", "`GAMWAT`", "outside 9.5 to 10.5",
     ", not within 9.5 to 10.5 kN/m3; water has 9.81 to 10.1",
     "stiff clay and the sand modulus measure by it",
     [](const profile_view& p, const rule_hit& hit) {
       look_outside("GAMWAT", p.profile().waterUnitWeight, 9.5, 10.5, hit);
     }},
    {"atmosphere", "`ATMPRS`", "outside 90 to 110", ", not within 90 to 110 kPa; the atmosphere has 101.3",
     "several methods measure stresses by it",
     [](const profile_view& p, const rule_hit& hit) {
       look_outside("ATMPRS", p.data().AtmosphericPressure, 90, 110, hit);
     }},
    {"pore-gradient", "`GAMPWP`", "not `GAMWAT`", ": the pore pressure is not hydrostatic; is this meant?",
     "0.0 makes effective weights total ones",
     [](const profile_view& p, const rule_hit& hit) {
       if (p.data().PorePressureUnitWeight != p.profile().waterUnitWeight)
         hit({"GAMPWP"}, value_is("GAMPWP", p.data().PorePressureUnitWeight) + ", " +
                             value_is("GAMWAT", p.profile().waterUnitWeight));
     }},
    {"pore-level", "`ZPWP`", "below the sea floor",
     ": the soil above it has its total weight; is it the level of the sea floor?",
     "under the sea pore pressure begins at the sea floor",
     [](const profile_view& p, const rule_hit& hit) {
       if (p.data().PorePressureLevel > p.profile().zSeafloor)
         hit({"ZPWP"}, value_is("ZPWP", p.data().PorePressureLevel) + ", below the sea floor at " +
                           number(p.profile().zSeafloor));
     }},
    {"cyclic-level", "`ZCYCL`", "above the sea floor",
     ": no curve is cyclic; Z grows downward, is the sign right?", "all P-Y curves come out static",
     [](const profile_view& p, const rule_hit& hit) {
       if (p.profile().lowestLevelWithCyclicPY < p.profile().zSeafloor)
         hit({"ZCYCL"}, value_is("ZCYCL", p.profile().lowestLevelWithCyclicPY) + ", above the sea floor at " +
                            number(p.profile().zSeafloor));
     }},
};

}  // namespace

std::span<const rule> of_levels() { return RULES; }

}  // namespace tervak::check::rules
