#pragma once

#include <cstddef>
#include <string>

#include "explain/deck_places.hpp"
#include "explain/deck_run.hpp"
#include "explain/options.hpp"

namespace tervak::explain {

/// A page of more bytes is slow to open: a layer is asked for.
inline constexpr std::size_t LARGEST_PAGE = 30'000'000;
/// What is said of such a page: its size and the choice that helps.
std::string too_large(const std::string& page);

/// The note as a page, complete in itself: a section a layer, each curve with its steps, its picture and an
/// anchor such as p1-l9-d1-py. `name` is the deck's, for the heading.
std::string note_page(const told_run& run, const choice& chosen, const deck_places& places,
                      const std::string& name);

}  // namespace tervak::explain
