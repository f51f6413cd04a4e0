#include "check/rules.hpp"

namespace tervak::check::rules {

namespace {

constexpr std::size_t MOST_MATERIALS = 5000;

void export_size(const profile_view& profile, const rule_hit& hit) {
  const std::size_t materials = 3 * profile.layers().size() * profile.data().Diameters.size();
  if (materials > MOST_MATERIALS)
    hit({"DIAM", 1}, std::to_string(profile.layers().size()) + " layers and " +
                         std::to_string(profile.data().Diameters.size()) + " diameters make " +
                         std::to_string(materials) + " materials");
}

void never_run(const profile_view& profile, const rule_hit& hit) {
  for (std::size_t i = 0; i < profile.index(); ++i)
    if (profile.deck()[i].version == 4)
      return hit({"REVISION"}, "profile " + std::to_string(profile.index() + 1) + " is after profile " +
                                   std::to_string(i + 1) + " of revision 4");
}

/// The program uses ten characters of a label.
std::string_view label(const Tervak& profile) { return std::string_view(profile.data.Boring).substr(0, 10); }

void equal_boring(const profile_view& profile, const rule_hit& hit) {
  if (!profile.revision5() || label(profile.profile()).empty()) return;
  for (std::size_t i = 0; i < profile.index(); ++i)
    if (profile.deck()[i].version == 5 && label(profile.deck()[i]) == label(profile.profile()))
      return hit({"BORING"}, "BORING is \"" + std::string(label(profile.profile())) + "\" as in profile " +
                                 std::to_string(i + 1));
}

constexpr rule RULES[] = {
    {"export-size", "3 x layers x diameters", "above 5000",
     ", more than 5000: the USFOS exports end the run; take fewer layers or diameters in one profile",
     "the exports fail and the profiles after this one are lost", export_size},
    {"never-run", "profiles after one of revision 4", "always", ", which ends the run: it is never run",
     "a profile of revision 4 ends the run without a message", never_run},
    {"equal-boring", "`BORING`, the first ten characters", "equal in two profiles",
     ": KESTRA cannot tell the two apart; was the line copied?", "profiles are chosen by this label",
     equal_boring},
};

}  // namespace

std::span<const rule> of_deck() { return RULES; }

}  // namespace tervak::check::rules
