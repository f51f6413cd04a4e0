#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "check/deck_target.hpp"
#include "check/profile_view.hpp"
#include "TervakExchange/deck_reading.hpp"

namespace tervak::check {

using Vrsk::Plin::TervakExchange::deck_place;
using Vrsk::Plin::TervakExchange::deck_reading;

/// A place in the deck and what is there, "MAINLAYERS row 2, PHIM".
struct named_place {
  deck_place place;
  std::string name;
};

/// The place of a target; the keyword's where the row or the column is not in the deck, the heading of the
/// profile where the keyword is not. `profile` counts from 0.
[[nodiscard]] named_place find_place(const deck_reading& deck, std::size_t profile,
                                     const deck_target& target);

/// The places that a message leads to. `targets` are separated by blanks:
///
///     ESOL1              the value of a scalar, or the name of a table
///     DIAM#3             the value whose number is the message's third number
///     MAINLAYERS.PHIM    the column in all rows
///     MAINLAYERS#1.PHIM  in the row whose number is the first number; also a curve of a MANUAL table
///     MAINLAYERS@1.PHIM  in the row that holds the calculation layer of that number; its curves in a MANUAL
///     table MANUALTZ@1/2       of these the one of the diameter whose number is the second number
///     MAINLAYERS^.ZMAIN  in the first row,  MAINLAYERS$.ZMAIN  in the last
///     T.C<0  T.C>0  T.C=0  T.C=1  rows whose value is negative, positive, zero, the first number
///     T.C~               rows whose value is not the number of the row
///     T.C^  DIAM^        values that are not above the one before
///     MODIFYPY#1.#4      the fourth column
///     {2=4,5}X           only where the second number is 4 or 5
///
/// What the profile does not have, or the other revision has, is passed over. Each place comes once.
[[nodiscard]] std::vector<named_place> find_places(const deck_reading& deck, const profile_view& profile,
                                                   std::string_view targets,
                                                   const std::vector<double>& numbers);

}  // namespace tervak::check
