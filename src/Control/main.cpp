#include <memory>

#include "BlockKeeper/ExhaustedMemory.hpp"
#include "Control/common.hpp"
#include "Control/CONTRL.hpp"

namespace {

[[gnu::init_priority(101)]] const BlockKeeper::ExhaustedMemory<255> exhausted_memory;  // -1

}  // namespace

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
