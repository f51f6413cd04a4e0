#pragma once

#include <span>

#include "Control/state/equation.hpp"
#include "Control/state/equations_axial.hpp"
#include "Control/state/equations_correlations.hpp"
#include "Control/state/equations_layers.hpp"
#include "Control/state/equations_modification.hpp"
#include "Control/state/equations_py.hpp"
#include "Control/state/equations_qz.hpp"
#include "Control/state/equations_tz.hpp"

namespace tervak {

/// A page of docs/methods and the equations on it.
struct equation_page {
  std::string_view file;
  std::span<const equation> equations;
};

inline constexpr equation_page EQUATION_PAGES[] = {
    {"py.md", PY_EQUATIONS},
    {"tz.md", TZ_EQUATIONS},
    {"qz.md", QZ_EQUATIONS},
    {"axial.md", AXIAL_EQUATIONS},
    {"correlations.md", CORRELATIONS_EQUATIONS},
    {"layers.md", LAYERS_EQUATIONS},
    {"modification.md", MODIFICATION_EQUATIONS},
};

/// The equation of a literal id. An id that is in no list does not compile.
consteval const equation& equation_of(std::string_view id) {
  for (const equation_page& page : EQUATION_PAGES)
    for (const equation& candidate : page.equations)
      if (candidate.id == id) return candidate;
  throw "no equation has this id";
}

}  // namespace tervak
