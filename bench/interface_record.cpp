// The curve record of the interface file, 66 fields of 29 points: the writer's own rendering against
// insertions into the same kind of stream.

#include <cmath>
#include <fstream>
#include <iomanip>
#include <sstream>
#include <vector>

#include "IO/interface_file/DataGroup.hpp"
#include "ratio.hpp"

namespace {

std::vector<double> curve_record() {
  std::vector<double> values = {66.0, 1.0, 2.0, 3.0, 1234.5678, 987654.321, 0.0, 29.0};
  for (int P = -14; P <= 14; ++P) {
    values.push_back(1234.5678 * std::tanh(0.21 * P));
    values.push_back(P * P * P * 0.00137);
  }
  return values;
}

void by_insertions(std::ostream& stream, const std::vector<double>& values) {
  stream << "RVSOILPY";
  for (std::size_t i = 0; i < values.size(); ++i) {
    if (i > 0 && i % 4 == 0) stream << "\n        ";
    stream << std::setw(16) << values[i];
  }
  stream << '\n';
}

void by_record(std::ostream& stream, const std::vector<double>& values) {
  IO::Tormal::write_record(stream, "RVSOILPY", values);
}

void set_notation(std::ostream& stream) {
  stream << std::scientific << std::uppercase << std::setprecision(8);
}

template <void (*write)(std::ostream&, const std::vector<double>&)>
void measure(benchmark::State& state) {
  const std::vector<double> values = curve_record();
  std::ofstream stream("/dev/null");
  set_notation(stream);
  for (auto _ : state) write(stream, values);
}

BENCHMARK(measure<by_record>)->Name("ours");
BENCHMARK(measure<by_insertions>)->Name("theirs");

bool same_bytes() {
  std::ostringstream one, other;
  set_notation(other);
  by_record(one, curve_record());
  by_insertions(other, curve_record());
  return one.str() == other.str();
}

}  // namespace

int main(int argc, char** argv) {
  if (!same_bytes()) {
    std::fputs("the two renderings differ\n", stderr);
    return 1;
  }
  return ratio_reporter(ratio_reporter::clock::cpu).run(argc, argv, "curve record / stream insertions", 0.4);
}
