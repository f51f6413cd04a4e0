#pragma once

#include <string>
#include <vector>

#include "report/deck_beside.hpp"
#include "report/rif_data.hpp"
#include "report/units.hpp"

namespace tervak::report {

/// What the tables of numbers hold besides what they always do.
struct table_choice {
  bool all_points = false;  // filler points of the curves too
  units u;                  // unnamed: nothing is said of units
};

struct csv_file {
  std::string name;
  std::string text;
};

/// layers.csv, curves.csv, capacity.csv; monopile.csv where a profile has such curves, units.csv where the
/// units are named. Records end in CR LF, fields are quoted by RFC 4180 where they have to be, texts are
/// UTF-8. The names of the columns stand in docs/outputs.md and never change. A value that cannot be given is
/// an empty field. Values of the file have its digits; what is calculated here is rounded to as many.
std::vector<csv_file> csv_files(const interface_file& file, const deck_beside& deck,
                                const table_choice& choice);

/// A value that was calculated, with the nine digits of the interface file; empty when it went beyond the
/// range of numbers, as products of those of a foreign file may.
std::string calculated_text(double value);

}  // namespace tervak::report
