#include "Control/layers/build5_pile_nodes.hpp"

#include "Control/state/report.hpp"
#include "fem/file_positioning_chain.hpp"
#include "fem/open_chain.hpp"
#include "fem/read.hpp"

namespace tervak {

namespace {

constexpr int HEAD_OF_FILE = 100;

void open_pile_file(common& cmn) {
  fem::close(cmn.units, cmn.NF17);
  fem::open(cmn.units, cmn.NF17, "PILEPLOT.TXT").status("OLD").iostat(&cmn.IERR).finish();
  if (cmn.IERR != 0) {
    remark(cmn, "(/,' **** SR/BUILD5 : File \"PILEPLOT.TXT\" open problem,',' IERR=',i5)", cmn.IERR);
    if (cmn.IERR == 29) remark(cmn, "(' The above error code means that the file was not found')");
    terminate_build5(cmn);
  }
  fem::rewind(cmn.units, cmn.NF17);
}

int read_head_of_file(common& cmn) {
  int piles = 0;
  fem::read(cmn.units, cmn.NF17, "(a80)", cmn.PILHDR);
  fem::read_list_directed(cmn.units, cmn.NF17, piles);
  if (piles < cmn.NUMPIL) {
    remark(
        cmn,
        "(/,' **** SR/BUILD5 : Layer sub-division using pile',' NUMPIL=',i5,/,' File with pile node coords only has',i4,' piles',/,' This file has heading line :',/,1x,a78)",
        cmn.NUMPIL, piles, cmn.PILHDR);
    terminate_build5(cmn);
  }
  return piles;
}

void read_head_of_pile(common& cmn, int pile) {
  int number = 0;
  fem::read_list_directed(cmn.units, cmn.NF17, number, cmn.NUMNOD);
  if (number != pile) {
    remark(cmn, "(/,' **** SR/BUILD5 : File NF17 pile sequence error',/,' Pile1, Pile2 =',2i5)", pile,
           number);
    terminate_build5(cmn);
  }
  fem::fixed_text<80> passed_over;
  fem::read(cmn.units, cmn.NF17, "(a80)", passed_over);
  fem::read(cmn.units, cmn.NF17, "(a80)", passed_over);
}

void read_node(common& cmn, int pile, int node) {
  int number = 0;
  double X = 0, Y = 0, Z = 0;
  fem::read_list_directed(cmn.units, cmn.NF17, number, X, Y, Z);
  if (number != node) {
    remark(cmn, "(/,' **** SR/BUILD5 : File NF17 pile node sequence error',/,' Pile, Node1, Node2 =',3i5)",
           pile, node, number);
    terminate_build5(cmn);
  }
  cmn.ZNODE.append(Z);
}

/// Location follows what is being read, for the message of a read that fails.
void read_piles(common& cmn, int& Location) {
  Location = HEAD_OF_FILE;
  const int piles = read_head_of_file(cmn);
  for (int pile = 1;; ++pile) {
    if (pile > piles) stop("Control\\build5", __LINE__, " **** SR/BUILD5 : Impossible error 50");
    Location = HEAD_OF_FILE + pile;
    read_head_of_pile(cmn, pile);
    cmn.ZNODE.clear();
    for (int node = 1; node <= cmn.NUMNOD; ++node) {
      Location = pile * 1000 + node;
      read_node(cmn, pile, node);
    }
    if (pile == cmn.NUMPIL) return;
  }
}

}  // namespace

void read_pile_nodes(common& cmn) {
  open_pile_file(cmn);
  int Location = 0;
  try {
    read_piles(cmn, Location);
    return;
  } catch (const fem::read_end&) {
    remark(cmn, "(/,' **** SR/BUILD5 : End-of-file error reading file',' NF17',/,' Location =',i5)",
           Location);
  } catch (const fem::io_err&) {
    remark(cmn, "(/,' **** SR/BUILD5 : Input format error reading file',' NF17',/,' Location =',i5)",
           Location);
  }
  terminate_build5(cmn);
}

void terminate_build5(common& cmn) {
  remark(cmn, "(/,' **** Error termination by SR/BUILD5')");
  stop("Control\\build5", 637, " ");
}

}  // namespace tervak
