#pragma once

#include <string>

#include "report/curve_marks.hpp"
#include "report/rif_data.hpp"
#include "report/units.hpp"

namespace tervak::report {

/// General values, and the given soil displacements if there are any.
std::string general_table(const profile& p, const units& u);

/// One row for each kind of curve and mark that occurs: which layers, how many curves, the greatest fall or
/// step.
std::string mark_table(const profile& p);

/// RVSOILAY by layer, with a remark on marks and on layers at or above the scour level.
std::string layer_table(const profile& p, const units& u);

/// Letters of the marks of a layer, "S V"; empty when it has none.
std::string layer_mark_letters(const profile& p, const layer& l);

/// Curves with a mark of this kind, of all profiles.
std::size_t count_marked(const interface_file& file, mark_kind kind);

}  // namespace tervak::report
