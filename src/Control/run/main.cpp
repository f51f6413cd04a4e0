#include <memory>

#include "Control/run/CONTRL.hpp"
#include "Control/state/common.hpp"

/// No arguments and no environment: everything lies in the current directory.
int main() {
  try {
    const auto cmn = std::make_unique<tervak::common>();
    return tervak::CONTRL(*cmn);
  } catch (...) {
    // A stop has said what it has to say on the run log; the status tells that the run broke off.
    return -1;
  }
}
