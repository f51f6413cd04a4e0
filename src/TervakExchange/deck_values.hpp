#pragma once

#include <string>
#include <string_view>

#include "TervakExchange/deck_lines.hpp"

namespace Vrsk::Plin::TervakExchange {

/// Read one field as a value, or add the fault `<who> takes <what>, found "<field>"` with a hint where one
/// helps. False on a fault, and then the value stays as it was.
bool read_number(const deck_field& field, std::string_view who, std::string_view what, double& value,
                 deck_faults& faults);
bool read_integer(const deck_field& field, std::string_view who, std::string_view what, int& value,
                  deck_faults& faults);

/// M and digits, in either case: a main layer, by its number.
[[nodiscard]] bool is_main_layer(std::string_view word);

/// Reads a main layer, without its M.
bool read_main_layer(const deck_field& field, std::string_view who, int& number, deck_faults& faults);

/// Adds a fault for each field that holds a comma. True if there was one: then the fields cannot be counted.
bool refuse_commas(const deck_statement& line, std::string_view who, deck_faults& faults);

/// The hint behind a field that holds a comma; empty for other fields.
[[nodiscard]] std::string_view comma_hint(std::string_view field);

/// The hint behind a text that holds a byte beyond ASCII, such as the no-break space of a word processor,
/// which looks like a blank; empty for other texts.
[[nodiscard]] std::string_view ascii_hint(std::string_view text);

/// What is said of a field that stands where the line should have ended.
[[nodiscard]] std::string behind_it(const deck_field& field);

}  // namespace Vrsk::Plin::TervakExchange
