#pragma once

#include <string>
#include <string_view>

#include "report/rif_data.hpp"

namespace tervak::report {

/// Reads a whole interface file from its text. `file_name` is used in messages only.
/// Everything that a downstream program would trip over is refused with a rif_error (record_reader.hpp):
/// damaged records, counts that do not agree, records that are missing or out of order, a curve whose
/// displacements fall, peaks that are not those of the points, and a missing IEND, which says that the run
/// did not end properly. Curves of zero or falling stress are good data here; curve_marks.hpp finds them.
interface_file read_interface_file(const std::string& file_name, std::string_view text);

}  // namespace tervak::report
