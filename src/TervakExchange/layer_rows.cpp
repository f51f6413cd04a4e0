#include "TervakExchange/layer_rows.hpp"

#include <string>

namespace Vrsk::Plin::TervakExchange {

void expand_layers(profile_draft& draft, const std::vector<std::string_view>& lines, deck_faults& faults) {
  const std::optional<deck_layers> layers = known_layers(draft);
  expand_factors(draft, layers, lines, faults);
  expand_curves(draft, layers, lines, faults);
}

bool main_layers_allowed(const profile_draft& draft, const deck_field& field, deck_faults& faults) {
  const int pile = draft.profile.data.Subdivision.NumberOfPile;
  const keyword_use& number = draft.use("NUMPIL");
  if (draft.profile.version == 4) {
    faults.add(field.place, shown(field.text) + " is a main layer, and a profile of revision 4 has none");
    return false;
  }
  if (number.given && !number.faulty && pile != 0) {
    faults.add(field.place, shown(field.text) + " is a main layer, but NUMPIL " + std::to_string(pile) +
                                " takes the calculation layers from pile nodes; write layer numbers");
    return false;
  }
  return true;
}

bool main_layer_exists(const deck_layers& layers, int number, const deck_field& field, deck_faults& faults) {
  if (number >= 1 && static_cast<std::size_t>(number) <= layers.main_layers.size()) return true;
  faults.add(field.place, "there is no main layer " + std::to_string(number) + ", the profile has " +
                              std::to_string(layers.main_layers.size()));
  return false;
}

}  // namespace Vrsk::Plin::TervakExchange
