#pragma once

#include "Control/state/common.hpp"

namespace tervak {

/// Reads the nodes of pile NUMPIL out of PILEPLOT.TXT in the current directory into ZNODE and NUMNOD, and the
/// file's heading into PILHDR. Unit NF17 stays open behind it.
///
/// The file: a heading; the number of piles; then for each pile its number and its number of nodes, two lines
/// of text, and one line a node with the node's number, two reals, and Z. Piles and nodes are numbered from
/// 1 without a gap. Piles behind NUMPIL are never looked at. A file that is missing, short or wrong prints
/// on the run log and ends the run (fem::stop_info). A pile of no nodes passes here; the walk along the nodes
/// then finds none (std::out_of_range).
void read_pile_nodes(common& cmn);

/// Prints the last line of a failed subdivision on the run log and ends the run.
[[noreturn]] void terminate_build5(common& cmn);

}  // namespace tervak
