#pragma once

#include <string>

#include "support/run_directory.hpp"

/// A deck that runs to its good end: one clay, two layers, one diameter.
inline std::string small_deck() { return file("tests/run/small.inp"); }
