#pragma once

#include <istream>
#include <string>

#include "report/rif_data.hpp"

namespace tervak::report {

/// Reads a whole interface file, a record at a time and no further than its first fault, so that a file that
/// is none is refused at once, whatever its size. `file_name` is used in messages only.
/// Everything that a downstream program would trip over is refused with a rif_error (record_reader.hpp):
/// damaged records, counts that do not agree, records that are missing or out of order, a curve whose
/// displacements fall, peaks that are not those of the points, and a missing IEND, which says that the run
/// did not end properly. Curves of zero or falling stress are good data here; curve_marks.hpp finds them.
interface_file read_interface_file(const std::string& file_name, std::istream&& in);

}  // namespace tervak::report
