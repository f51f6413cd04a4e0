#pragma once

#include <string>

#include "explain/deck_run.hpp"
#include "explain/manual_places.hpp"
#include "explain/options.hpp"

namespace tervak::explain {

/// The note as a page, complete in itself: a section a layer, each curve with its steps, its picture and an
/// anchor such as p1-l9-d1-py. `name` is the deck's, for the heading.
std::string note_page(const told_run& run, const choice& chosen, const manual_places& places,
                      const std::string& name);

}  // namespace tervak::explain
