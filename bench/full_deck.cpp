// A deck of full size, 500 layers and 3 diameters with all methods mixed and everything printed: the CPU time
// of the whole run against that of writing the bytes of its results again with one flush a record. Then the
// run of 500 layers against one of 50, and the peak memory of the run.

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include "ratio.hpp"

namespace {

namespace fs = std::filesystem;

/// Ten main layers, clay and sand in turn, each of a tenth of the layers; codes and capacity methods change.
std::string deck(int layers) {
  static const char* const CLAY[] = {"284 293 293", "214 200 200", "404 214 214", "570 293 293",
                                     "600 200 200"};
  static const char* const SAND[] = {"284 200 200", "287 293 293", "214 214 214", "380 103 103",
                                     "588 293 200"};
  std::ostringstream text;
  text
      << "Full size\nREVISION 5\nBORING FULL\nGAMWAT 10.05\nATMPRS 101.3\nZCYCL 50.0\nSUSTIF 96.0\nJPRINT 2\n"
      << "DIAM 1.0 1.5 2.0\nESOL0 10000.0\nESOL1 500.0\nPOSAVR 0.4\nZSEAFL 0.0\nSCRGEN 0.5\nSCRLOC 1.5\nSCRSLP 25.0\n"
      << "ZPWP 0.0\nGAMPWP 10.05\nSIGSUR 5.0\nDIAMP 1.5\nWALL 0.05\nZTIP 90.0\nMATPIL 1\nMAINLAYERS\n";
  for (int m = 1; m <= 10; ++m)
    text << m << ' ' << m * 10
         << (m % 2 == 1 ? ".0 18.0 0.0 0.0 0.0 0.0 40.0 90.0 30 0.01 0.25 0.0\n"
                        : ".0 20.0 15.0 25.0 0.0 0.0 0.0 0.0 0 0.0 100.0 0.0\n");
  text << "SKINFRICTION\n";
  for (int m = 1; m <= 10; ++m) text << m << ' ' << 1 + m % 3 << " 0.0 0.0 0.0 0.0 0.0 0.0 1.0 0.9 0.01\n";
  text << "SUBDIVISION\n";
  for (int m = 1; m <= 10; ++m)
    text << m << ' ' << m * 10 << ".0 " << layers / 10 << ' ' << (m % 2 == 1 ? CLAY[m / 2] : SAND[m / 2 - 1])
         << " 0" << (m == 9 ? " 400.0 0.2 0.0 0.0 0.0\n" : "\n");
  return text.str();
}

struct usage {
  double seconds = 0;  ///< CPU time, user and system
  long kilobytes = 0;  ///< peak resident memory
};

/// Runs the program in a directory that holds the deck.
usage run(const fs::path& directory) {
  const pid_t child = fork();
  if (child == 0) {
    if (chdir(directory.c_str()) != 0) _exit(126);
    execl(TERVAK_PROGRAM, TERVAK_PROGRAM, static_cast<char*>(nullptr));
    _exit(127);
  }
  int status = 0;
  rusage used{};
  if (wait4(child, &status, 0, &used) != child || status != 0) {
    std::fprintf(stderr, "the run failed, see %s\n", directory.c_str());
    std::exit(1);
  }
  const auto seconds = [](const timeval& t) {
    return static_cast<double>(t.tv_sec) + 1e-6 * static_cast<double>(t.tv_usec);
  };
  return {seconds(used.ru_utime) + seconds(used.ru_stime), used.ru_maxrss};
}

fs::path prepared(int layers) {
  const fs::path directory =
      fs::temp_directory_path() / ("tervak-bench-" + std::to_string(getpid()) + "-" + std::to_string(layers));
  fs::create_directories(directory);
  for (const char* name : {"TERVAK.INP", "tervak.inp"}) std::ofstream(directory / name) << deck(layers);
  return directory;
}

struct result_file {
  std::string name;
  std::vector<std::string> records;
  bool flushed;  ///< the interface file is buffered, all others flush every record
};

std::vector<result_file> results_of(const fs::path& directory) {
  std::vector<result_file> files;
  for (const char* name : {"TERVAK.MLG", "TERVAK.LIS", "TERVAK.RIF", "soil_halde.fem", "soil_70.fem"}) {
    std::ifstream in(directory / name, std::ios::binary);
    result_file file{(directory / "again").string(), {}, std::string(name) != "TERVAK.RIF"};
    for (std::string line; std::getline(in, line);) file.records.push_back(line + "\n");
    files.push_back(std::move(file));
  }
  return files;
}

void write_again(const std::vector<result_file>& files) {
  for (const result_file& file : files) {
    std::FILE* out = std::fopen(file.name.c_str(), "wb");
    for (const std::string& record : file.records) {
      std::fwrite(record.data(), 1, record.size(), out);
      if (file.flushed) std::fflush(out);
    }
    std::fclose(out);
  }
}

double cpu_now() {
  rusage used{};
  getrusage(RUSAGE_SELF, &used);
  return static_cast<double>(used.ru_utime.tv_sec + used.ru_stime.tv_sec) +
         1e-6 * static_cast<double>(used.ru_utime.tv_usec + used.ru_stime.tv_usec);
}

const fs::path FULL = prepared(500);
const fs::path TENTH = prepared(50);

template <const fs::path& DIRECTORY>
void whole_run(benchmark::State& state) {
  for (auto _ : state) state.SetIterationTime(run(DIRECTORY).seconds);
}

void bytes_again(benchmark::State& state) {
  const std::vector<result_file> files = results_of(FULL);
  for (auto _ : state) {
    const double before = cpu_now();
    write_again(files);
    state.SetIterationTime(cpu_now() - before);
  }
}

int compare(int argc, char** argv, const char* what, double limit) {
  return ratio_reporter(ratio_reporter::clock::real).run(argc, argv, what, limit);
}

}  // namespace

int main(int argc, char** argv) {
  const usage once = run(FULL);
  run(TENTH);
  benchmark::RegisterBenchmark("ours", whole_run<FULL>)->Iterations(1)->UseManualTime();
  benchmark::RegisterBenchmark("theirs", bytes_again)->Iterations(1)->UseManualTime();
  int failed = compare(argc, argv, "run of 500 layers / writing its bytes again", 1.5);
  benchmark::ClearRegisteredBenchmarks();
  benchmark::RegisterBenchmark("ours", whole_run<FULL>)->Iterations(1)->UseManualTime();
  benchmark::RegisterBenchmark("theirs", whole_run<TENTH>)->Iterations(1)->UseManualTime();
  failed |= compare(argc, argv, "run of 500 layers / run of 50", 11.0);
  std::printf("peak memory of the run of 500 layers: %.1f MB (limit 60)\n",
              static_cast<double>(once.kilobytes) / 1024.0);
  fs::remove_all(FULL);
  fs::remove_all(TENTH);
  return failed | (once.kilobytes > 60 * 1024 ? 1 : 0);
}
