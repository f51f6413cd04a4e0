#pragma once

#include <string>

namespace fem::utils {

/// A real as a list-directed write shows it: 23 characters, fifteen significant digits, with an exponent of
/// three digits below 0.1 and from 1e15 on.
std::string list_directed_to_string(double value);

}  // namespace fem::utils
