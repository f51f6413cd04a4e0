// Reading a deck of 10,000 lines against one of 5,000: the time must grow with the length and no faster.

#include <malloc.h>

#include <sstream>
#include <string>

#include "ratio.hpp"
#include "TervakExchange/TervakMultipleSoilProfiles.hpp"

namespace {

/// A deck of about `lines` lines in profiles of 50 lines, as a site with many borings has them.
std::string deck(int lines) {
  std::ostringstream text;
  for (int profile = 0; profile * 50 < lines; ++profile) {
    text << "Boring " << profile
         << "\nREVISION 5\nBORING B-1\nGAMWAT 10.0\nATMPRS 101.3\nZCYCL 0.0\nSUSTIF 96.0\n"
         << "DIAM 1.0\nESOL0 10000.0\nESOL1 500.0\nPOSAVR 0.4\nZSEAFL 0.0\nZPWP 0.0\nGAMPWP 10.0\nDIAMP 1.0\n"
         << "WALL 0.05\nZTIP 8.0\nMATPIL 1\nMAINLAYERS\n";
    for (int m = 1; m <= 9; ++m)
      text << m << ' ' << m << ".0 18.0 0.0 0.0 0.0 0.0 40.0 60.0 30 0.01 0.25 0.0\n";
    text << "SKINFRICTION\n";
    for (int m = 1; m <= 9; ++m) text << m << " 0 20.0 30.0 20.0 30.0 360.0 540.0 1.0 0.9 0.01\n";
    text << "SUBDIVISION\n";
    for (int m = 1; m <= 9; ++m) text << m << ' ' << m << ".0 2 284 293 293 0\n";
    text << "* end of the boring\nEND\n";
  }
  return text.str();
}

template <int LINES>
void measure(benchmark::State& state) {
  const std::string text = deck(LINES);
  for (auto _ : state) {
    std::istringstream stream(text);
    Vrsk::Plin::TervakExchange::TervakMultipleSoilProfiles profiles;
    profiles.Import(stream, "m", "N");
    benchmark::DoNotOptimize(profiles.GetSoilProfiles().size());
  }
}

BENCHMARK(measure<10000>)->Name("ours");
BENCHMARK(measure<5000>)->Name("theirs");

}  // namespace

int main(int argc, char** argv) {
  // Between repetitions the allocator would give the pages of the long deck back and those of the short one
  // not, which a run, with its one deck, never does.
  mallopt(M_TRIM_THRESHOLD, 1 << 28);
  mallopt(M_MMAP_THRESHOLD, 1 << 28);
  return ratio_reporter(ratio_reporter::clock::cpu).run(argc, argv, "deck of 10,000 lines / of 5,000", 2.5);
}
