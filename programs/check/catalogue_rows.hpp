#pragma once

#include "check/catalogue.hpp"

/// The parts of the catalogue, one table of docs/messages.md each.
namespace tervak::check::rows {

extern const std::vector<known_message> START_FILES_END, GENERAL_VALUES, LINE_REPORT,
    SURFACE_LOADS_SOIL_TYPES_DEPTH_TABLE_LAYERS, MAIN_LAYERS, CURVES_GIVEN_BY_HAND_FACTORS_SOIL_DISPLACEMENTS,
    LAYER_BUILD, PILE_NODES, SOIL_STRENGTH, AXIAL_CAPACITY, PY_CURVES, TZ_CURVES, QZ_CURVES,
    MANUAL_CURVES_LAID_OUT, MODIFICATION, MONOPILE_CURVES, ON_THE_LISTING, ON_THE_USFOS_EXPORTS,
    INTERFACE_FILE;

}  // namespace tervak::check::rows
