#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

/// Runs the two registered benchmarks "ours" and "theirs" interleaved, nine repetitions each, and compares
/// the medians. Prints the ratio; the exit status is 1 when it is above the limit that the program is held
/// to.
class ratio_reporter : public benchmark::ConsoleReporter {
 public:
  enum class clock { real, cpu };

  explicit ratio_reporter(clock counted) : counted_(counted) {}

  void ReportRuns(const std::vector<Run>& runs) override {
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs)
      if (run.run_type == Run::RT_Iteration)
        times_[run.run_name.function_name].push_back(counted_ == clock::cpu ? run.GetAdjustedCPUTime()
                                                                            : run.GetAdjustedRealTime());
  }

  int run(int argc, char** argv, const char* what, double limit) {
    std::vector<char*> arguments(argv, argv + argc);
    std::string interleaving = "--benchmark_enable_random_interleaving=true";
    std::string repetitions = "--benchmark_repetitions=9";
    arguments.push_back(interleaving.data());
    arguments.push_back(repetitions.data());
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    benchmark::RunSpecifiedBenchmarks(this);
    const double ratio = median("ours") / median("theirs");
    std::printf("%s: %.2f (limit %.2f)\n", what, ratio, limit);
    return ratio <= limit ? 0 : 1;
  }

 private:
  double median(const std::string& name) {
    std::vector<double>& times = times_[name];
    std::sort(times.begin(), times.end());
    return times.at(times.size() / 2);
  }

  clock counted_;
  std::map<std::string, std::vector<double>> times_;
};
