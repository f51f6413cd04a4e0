#pragma once

#include <string>
#include <vector>

#include "report/curve_marks.hpp"
#include "report/rif_data.hpp"

namespace tervak::report {

/// One kind of mark in one kind of curve of a profile.
struct mark_row {
  curve_kind curves = curve_kind::py;
  mark_kind mark = mark_kind::zero;
  std::string layers = {};      // "7 to 9, 12"
  std::size_t count = 0;        // of curves
  double worst = 0.0;           // greatest fall, step or ratio, 0 of zero curves
  std::size_t worst_layer = 0;  // from 1
  double worst_diameter = 0.0;
};

/// The marks that occur, those that are worth a look first.
std::vector<mark_row> mark_rows(const profile& p);

/// "a fall of 20 % of the peak at most (layer 3, D = 2)"; empty for zero curves.
std::string worst_text(const mark_row& row);

/// "look here: profile 1, Q-Z, zero curve, layers 5, 2 curves"; one line a row that is worth a look, of all
/// profiles.
std::vector<std::string> look_here_lines(const interface_file& file);

/// Curves with a mark that is worth a look, or with one as the method makes it, of all profiles.
std::size_t count_marked(const interface_file& file, bool look_here);

}  // namespace tervak::report
