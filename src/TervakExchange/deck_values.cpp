#include "TervakExchange/deck_values.hpp"

#include <algorithm>
#include <string>

#include "TervakExchange/deck_numbers.hpp"

namespace Vrsk::Plin::TervakExchange {

bool is_main_layer(std::string_view word) {
  return word.size() > 1 && (word.front() == 'M' || word.front() == 'm') &&
         std::all_of(word.begin() + 1, word.end(), [](char c) { return c >= '0' && c <= '9'; });
}

namespace {

void refuse(const deck_field& field, std::string_view who, std::string_view what, std::string_view hint,
            deck_faults& faults) {
  std::string text(who);
  text.append(" takes ").append(what).append(", found ").append(shown(field.text)).append(hint);
  faults.add(field.place, std::move(text));
}

std::string_view hint_for(std::string_view field, bool integer) {
  double value = 0;
  if (!comma_hint(field).empty()) return comma_hint(field);
  if (field.front() == '=' || field.front() == ':')
    return "; only blanks stand between a keyword and its value";
  if (integer && is_main_layer(field)) return "; a main layer as M stands in both columns";
  if (integer && parse_number(field, value) == number_fault::none)
    return "; an integer takes no point and no exponent";
  return ascii_hint(field);
}

}  // namespace

std::string_view comma_hint(std::string_view field) {
  if (field.find(',') == std::string_view::npos) return "";
  return "; write a decimal point or a blank, no comma";
}

std::string_view ascii_hint(std::string_view text) {
  if (std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) <= 0x7F; }))
    return "";
  return "; it holds a character that is not plain ASCII";
}

std::string behind_it(const deck_field& field) {
  std::string_view hint = comma_hint(field.text);
  if (hint.empty()) hint = ascii_hint(field.text);
  if (hint.empty()) hint = "; comments open with \"!\"";
  return shown(field.text).append(" behind it").append(hint);
}

bool read_number(const deck_field& field, std::string_view who, std::string_view what, double& value,
                 deck_faults& faults) {
  const number_fault fault = parse_number(field.text, value);
  if (fault == number_fault::none) return true;
  const bool range = fault == number_fault::range;
  refuse(field, who, what, range ? "; it is beyond the range of a double" : hint_for(field.text, false),
         faults);
  return false;
}

bool read_integer(const deck_field& field, std::string_view who, std::string_view what, int& value,
                  deck_faults& faults) {
  const number_fault fault = parse_integer(field.text, value);
  if (fault == number_fault::none) return true;
  const bool range = fault == number_fault::range;
  refuse(field, who, what, range ? "; it is beyond 32 bits" : hint_for(field.text, true), faults);
  return false;
}

bool read_main_layer(const deck_field& field, std::string_view who, int& number, deck_faults& faults) {
  if (is_main_layer(field.text) && parse_integer(field.text.substr(1), number) == number_fault::none)
    return true;
  refuse(field, who, "a main layer as M and its number", "", faults);
  return false;
}

bool refuse_commas(const deck_statement& line, std::string_view who, deck_faults& faults) {
  bool found = false;
  for (const deck_field& field : line.fields) {
    if (comma_hint(field.text).empty()) continue;
    found = true;
    refuse(field, who, "numbers parted by blanks", comma_hint(field.text), faults);
  }
  return found;
}

}  // namespace Vrsk::Plin::TervakExchange
