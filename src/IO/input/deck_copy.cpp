#include "IO/input/deck_copy.hpp"

#include "Control/state/read_line.hpp"
#include "fem/errors.hpp"
#include "fem/file_positioning_chain.hpp"
#include "fem/write.hpp"

namespace tervak {

namespace {

bool is_comment(std::string_view line) { return line[0] == '*' || line[0] == 'C' || line[0] == 'c'; }

void copy_lines(common& cmn) {
  for (int count = 1;; ++count) {
    fem::fixed_text<120> line;
    try {
      line = read_line_of_deck<120>(cmn, cmn.NFINP, "(a123)", count == 1);
    } catch (const fem::read_end&) {
      return;
    } catch (const fem::io_err&) {
      return;
    }
    if (line.view().substr(0, 3) == "END") return;
    if (count > 1 && is_comment(line.view())) continue;
    fem::write(cmn.units, cmn.NFTMP, "(a120)", line);
  }
}

}  // namespace

void copy_deck(common& cmn) {
  fem::rewind(cmn.units, cmn.NFINP);
  // Nobody opens NFTMP: the first use of the unit makes a file of the runtime's own name.
  fem::rewind(cmn.units, cmn.NFTMP);
  copy_lines(cmn);
  fem::rewind(cmn.units, cmn.NFTMP);
}

}  // namespace tervak
