#include "Measures/units.hpp"
#include "TervakExchange/deck_reading.hpp"
#include "TervakExchange/TervakMultipleSoilProfiles.hpp"

namespace Vrsk::Plin::TervakExchange {

void TervakMultipleSoilProfiles::Import(std::istream& stream, std::string_view lengthUnit,
                                        std::string_view forceUnit, std::string_view file_name) {
  // Numbers are taken as they stand; the names only have to be those of units.
  static_cast<void>(Measures::Runtime::FindUnit("length", lengthUnit));
  static_cast<void>(Measures::Runtime::FindUnit("force", forceUnit));
  deck_reading deck(stream, file_name);
  if (deck.fault_count() > 0) throw deck_error(deck.refusal());
  profiles_ = deck.take_profiles();
}

}  // namespace Vrsk::Plin::TervakExchange
