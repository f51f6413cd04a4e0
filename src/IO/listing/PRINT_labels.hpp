#pragma once

namespace tervak {

/// The label of a method by its index from 1 to 18; any other index throws std::out_of_range.
const char* method_label(int index);

/// Labels of the curve codes, from the tables of methods. A code without a row is "MANUAL" below 100 and has
/// index code - 95 from 100 on, which throws std::out_of_range above 113: the checks of the input keep such
/// codes out.
const char* PY_label(int code);
const char* TZ_label(int code);
const char* QZ_label(int code);

}  // namespace tervak
