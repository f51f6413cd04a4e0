#pragma once

#include <string>

#include "report/csv_tables.hpp"

namespace tervak::report {

/// What the CSV tables hold, as one JSON tree. Its fields stand in docs/outputs.md and never change; those
/// that are columns of a CSV file have the column's name. A value that cannot be given is null.
std::string json_tree(const interface_file& file, const deck_beside& deck, const table_choice& choice);

}  // namespace tervak::report
