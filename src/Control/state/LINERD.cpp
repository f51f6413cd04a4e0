#include "Control/state/LINERD.hpp"

#include <algorithm>

#include "Control/state/read_line.hpp"
#include "fem/errors.hpp"
#include "fem/file_positioning_chain.hpp"
#include "fem/write.hpp"

namespace tervak {

namespace {

constexpr int MOST_LINES = 12;

void print_heading(common& cmn, int NFW, int lines, int KIND) {
  fem::write(cmn.units, NFW,
             "(/,' The ',i2,' last lines read from the temporary',' input file are shown below.')", lines);
  if (KIND == 1) fem::write(cmn.units, NFW, "(' Error occurred while reading the bottom line :',/,' ')");
  if (KIND == 2) fem::write(cmn.units, NFW, "(' An end-of-file was encountered at the bottom line :',/,' ')");
  if (KIND == 3) fem::write(cmn.units, NFW, "(' The error was detected by SR/LINERD :',/,' ')");
  if (KIND == 4) fem::write(cmn.units, NFW, "(' Non-accepted value(s) exist in the input :',/,' ')");
}

/// Calls `use` with each of the lines `first` to `last`. What is not there is not shown: this routine already
/// reports a fault.
template <class Use>
void for_lines(common& cmn, int unit, int first, int last, Use use) {
  try {
    for (int N = first; N <= last; ++N) use(N, read_line<80>(cmn, unit, "(a80)"));
  } catch (const fem::read_end&) {
  } catch (const fem::io_err&) {
  }
}

}  // namespace

void LINERD(common& cmn, int NFR, int NFW, int NOW, int KIND) {
  fem::rewind(cmn.units, NFR);
  const int skipped = std::max(NOW - MOST_LINES, 0);
  for_lines(cmn, NFR, 1, skipped, [](int, const auto&) {});
  print_heading(cmn, NFW, NOW - skipped, KIND);
  for_lines(cmn, NFR, skipped + 1, NOW,
            [&](int N, const auto& line) { fem::write(cmn.units, NFW, "(i5,' : ',a70)", N, line); });
}

}  // namespace tervak
