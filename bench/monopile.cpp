// Monopile look-ups: 25,000 curves (500 layers, 50 diameters) against 12,500. Every pair of layer and
// diameter asks for its curve, so the time must grow with the number of curves and little faster.

#include "ratio.hpp"
#include "TervakExchange/monopile_lookup.hpp"

namespace {

using namespace Vrsk::Plin::TervakExchange;

template <int LAYERS>
void measure(benchmark::State& state) {
  ManualMonopileSection section;
  for (int layer = 1; layer <= LAYERS; ++layer)
    for (int d = 1; d <= 50; ++d) section.Records.push_back({layer, 1.0 + 0.1 * d, {0.0, 1.0}, {0.0, 0.1}});
  for (auto _ : state) {
    const ManualCurveLookup curves(section, 1.0);
    std::size_t points = 0;
    for (int layer = 1; layer <= LAYERS; ++layer)
      for (int d = 1; d <= 50; ++d) points += curves.GetManualCurve(layer, 1.0 + 0.1 * d).size();
    benchmark::DoNotOptimize(points);
  }
}

BENCHMARK(measure<500>)->Name("ours");
BENCHMARK(measure<250>)->Name("theirs");

}  // namespace

int main(int argc, char** argv) {
  return ratio_reporter(ratio_reporter::clock::cpu).run(argc, argv, "25,000 curves / 12,500", 2.6);
}
