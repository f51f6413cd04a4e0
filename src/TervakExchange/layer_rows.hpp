#pragma once

#include <optional>

#include "TervakExchange/deck_layers.hpp"

namespace Vrsk::Plin::TervakExchange {

/// Turns rows of factors and curves that are written for main layers into records for calculation layers, and
/// refuses rows and curves that the stages would not use, and curves too few. The map of the draft follows.
/// To be called once the profile is read and otherwise checked, before the lists get their closing records.
void expand_layers(profile_draft& draft, const std::vector<std::string_view>& lines, deck_faults& faults);

/// The two halves of it. `layers` is empty when they are not known.
void expand_factors(profile_draft& draft, const std::optional<deck_layers>& layers,
                    const std::vector<std::string_view>& lines, deck_faults& faults);
void expand_curves(profile_draft& draft, const std::optional<deck_layers>& layers,
                   const std::vector<std::string_view>& lines, deck_faults& faults);

/// Whether main layers can stand in this profile, and otherwise the fault at the field that names one.
[[nodiscard]] bool main_layers_allowed(const profile_draft& draft, const deck_field& field,
                                       deck_faults& faults);

/// Whether main layer `number`, which `field` names, exists, and otherwise the fault.
[[nodiscard]] bool main_layer_exists(const deck_layers& layers, int number, const deck_field& field,
                                     deck_faults& faults);

}  // namespace Vrsk::Plin::TervakExchange
