#pragma once

#include <span>
#include <string_view>
#include <variant>

#include "TervakExchange/deck_lines.hpp"
#include "TervakExchange/deck_revisions.hpp"
#include "TervakExchange/Tervak.hpp"

namespace Vrsk::Plin::TervakExchange {

/// Scalars that the general rule "NAME and one value" does not fit.
enum class special_scalar { revision, boring, diameters };

/// One scalar of a profile: `NAME value`.
struct deck_scalar {
  using number_place = double& (*)(Tervak&);
  using integer_place = int& (*)(Tervak&);

  std::string_view name;
  int revision = BOTH;  ///< 4, 5 or BOTH
  bool required = OPTIONAL;
  double standard = 0;  ///< the value when it is left out
  std::variant<number_place, integer_place, special_scalar> place;
};

[[nodiscard]] std::span<const deck_scalar> deck_scalars();

/// Gives every scalar its value when left out.
void set_standard_values(Tervak& profile);

/// The value of REVISION. False when the field is neither 4 nor 5, and then the revision stays as it was.
bool parse_revision(std::string_view field, Version& revision);

/// Reads the line of a scalar. The side slope stands in degrees until the profile is complete.
void read_scalar(const deck_scalar& scalar, const deck_statement& line, Tervak& profile, deck_faults& faults);

}  // namespace Vrsk::Plin::TervakExchange
