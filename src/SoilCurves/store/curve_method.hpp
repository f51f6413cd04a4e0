#pragma once

#include <algorithm>
#include <cstddef>
#include <span>
#include <stdexcept>
#include <string_view>

#include "Control/state/common.hpp"

namespace tervak {

/// The deck revisions that may give a code.
enum class deck_revisions { both, only_4, only_5 };

/// The kind of soil that a code is for. The check of a revision 5 deck holds the code of a main layer against
/// it.
enum class soil_kind { any, clay, sand };

/// The routine of a code. ND and NL as everywhere; `code` tells the codes of one routine apart.
using curve_routine = void (*)(common& cmn, layer_number NL, diameter_number ND, int code);

/// A routine that serves one code, or reads it from the run state.
template <void (*ROUTINE)(common&, layer_number, diameter_number)>
void by_layer(common& cmn, layer_number NL, diameter_number ND, int) {
  ROUTINE(cmn, NL, ND);
}

/// A row of the table of a family of curves: all that the program knows of a code. The tables are
/// SoilCurves/py/py_methods.cpp and SoilCurves/axial/axial_methods.cpp.
struct curve_method {
  int code;
  const char* label;  ///< in the listing; right-justified there in eight columns, blanks included
  deck_revisions revisions;
  soil_kind soil;
  const char* wrong_soil;  ///< printed where the soil is another; items: main layer, code. Null for any soil
  curve_routine make;

  /// Does not compile where a piece is missing.
  consteval curve_method(int number, const char* name, deck_revisions decks, soil_kind kind,
                         const char* wrong_soil_text, curve_routine routine)
      : code(number), label(name), revisions(decks), soil(kind), wrong_soil(wrong_soil_text), make(routine) {
    if (std::string_view(name).empty()) throw std::logic_error("a method without a label");
    if ((kind == soil_kind::any) != (wrong_soil_text == nullptr))
      throw std::logic_error("a method for one kind of soil says so where the soil is another");
  }
  consteval curve_method(int number, const char* name, deck_revisions decks, curve_routine routine)
      : curve_method(number, name, decks, soil_kind::any, nullptr, routine) {}
  // A comparison with null is no constant under the sanitizers.
  curve_method(int, const char*, deck_revisions, soil_kind, const char*, std::nullptr_t) = delete;
  curve_method(int, const char*, deck_revisions, std::nullptr_t) = delete;
};

using curve_methods = std::span<const curve_method>;

/// The row of a code, null where there is none.
constexpr const curve_method* find_method(curve_methods methods, int code) {
  const auto found = std::find_if(methods.begin(), methods.end(),
                                  [code](const curve_method& row) { return row.code == code; });
  return found == methods.end() ? nullptr : &*found;
}

/// What each table asserts: no code has two rows.
constexpr bool each_code_once(curve_methods methods) {
  return std::all_of(methods.begin(), methods.end(),
                     [methods](const curve_method& row) { return find_method(methods, row.code) == &row; });
}

/// True where a deck of the revision may give the code.
inline bool accepts(curve_methods methods, int code, int revision) {
  const curve_method* method = find_method(methods, code);
  if (method == nullptr) return false;
  return method->revisions == deck_revisions::both ||
         method->revisions == (revision == 4 ? deck_revisions::only_4 : deck_revisions::only_5);
}

}  // namespace tervak
