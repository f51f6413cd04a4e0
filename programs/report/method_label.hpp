#pragma once

#include <string>

#include "report/rif_data.hpp"

namespace tervak::report {

/// The listing's label of a code, "API-84" for 284 of P-Y; "?????" where the listing has none of its own.
std::string method_label(curve_kind kind, int code);

/// Name of a kind in the tables of numbers: py, tz, qz, mtheta, bsy, bmtheta.
const char* family_name(curve_kind kind);

}  // namespace tervak::report
