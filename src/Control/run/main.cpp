#include <cstdio>
#include <memory>

#include "BlockKeeper/ExhaustedMemory.hpp"
#include "Control/run/CONTRL.hpp"
#include "Control/state/common.hpp"
#include "Platform/console.hpp"
#include "Platform/desktop.hpp"
#include "Platform/streams.hpp"

namespace {

[[gnu::init_priority(101)]] const BlockKeeper::ExhaustedMemory<255> exhausted_memory;  // -1

}  // namespace

/// Everything lies in the current directory. An argument is a misunderstanding, and then no file is touched.
int main(int argc, char**) {
  if (argc > 1) {
    tervak::os::attach_to_calling_console();
    std::fputs("usage: tervak (no arguments: it reads TERVAK.INP and tervak.inp in the current directory)\n",
               stderr);
    return 2;
  }
  tervak::os::make_streams_binary();
  if (const tervak::os::desktop* const calls = tervak::os::system_desktop();
      calls && !tervak::os::enter(*calls))
    return 1;
  try {
    const auto cmn = std::make_unique<tervak::common>();
    return tervak::CONTRL(*cmn);
  } catch (...) {
    // A stop has said what it has to say on the run log; the status tells that the run broke off.
    return -1;
  }
}
