#pragma once

#include <string>

#include "report/options.hpp"
#include "report/rif_data.hpp"

namespace tervak::report {

/// Writes the CSV files and the JSON file that the options ask for, each whole or not at all, and returns a
/// line for each, and one that says from which level the axial capacity counts. Throws usage_error when one
/// of them would replace the input, std::runtime_error when one cannot be written.
std::string write_tables(const options& o, const interface_file& file);

}  // namespace tervak::report
