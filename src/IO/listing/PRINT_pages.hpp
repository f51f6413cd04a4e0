#pragma once

#include "Control/state/common.hpp"

namespace tervak {

/// What stands in the head of every page of the listing.
struct page_head {
  fem::text_ref version;  ///< 10 characters
  fem::text_ref date;     ///< 11 characters, the release date
  time_array time;        ///< of the run start
};

/// The line that opens a page. The "1" in column 1 is the carriage control mark of line printers.
void print_page_head(common& cmn, const page_head& head);

/// A line of one blank, which separates blocks of rows.
void print_blank_line(common& cmn);

/// The line behind row P of a curve table: the origin's row stands alone between blank lines.
void print_gap_around_origin(common& cmn, int P);

/// Layer data in blocks of one soil type, and the level at which the curves are made.
void print_summary(common& cmn, const page_head& head);

/// All MAXPNT points of the three curves of diameter ND and layer L, used or not.
void print_curve_page(common& cmn, const page_head& head, diameter_number ND, layer_number L);

/// The monopile curves of diameter ND and layer L: one table when all three kinds exist, else a table a kind.
/// MONOPILE must not be null. The page head stands even when no table follows it.
void print_monopile_page(common& cmn, const page_head& head, diameter_number ND, layer_number L);

/// The given soil displacements and open hole diameters. The profile's label is left blank on this page.
void print_displacement_page(common& cmn, const page_head& head);

}  // namespace tervak
