#include "IO/input/REV5INP.hpp"

#include "Control/layers/build5.hpp"
#include "IO/input/input_steps.hpp"
#include "IO/input/revision5_sections.hpp"

namespace tervak {

void REV5INP(common& cmn, const Vrsk::Plin::TervakExchange::Tervak& profile) {
  cmn.IERR = 0;
  run_steps(cmn, profile, {read_main_layers, read_pile, read_skin_friction, read_subdivision});
  if (cmn.IERR == 0) BUILD5(cmn, 1);
}

}  // namespace tervak
