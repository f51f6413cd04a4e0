// One row of the listing, written to a unit with its flush, against the C library printing the same bytes to
// a file opened alike.

#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "fem/open_chain.hpp"
#include "fem/write.hpp"
#include "ratio.hpp"

namespace {

constexpr double VALUES[] = {0.0123456, 1234.5678, 98.7654321, 0.5, 3.14159e-7, 2.0e5};

std::string file_here(const char* name) {
  const std::string own = std::string(name) + "." + std::to_string(getpid());
  return (std::filesystem::temp_directory_path() / own).string();
}

void print_row(std::FILE* file, int row) {
  std::fprintf(file, "%6d %13.3E%11.3E%13.3E%11.3E%13.3E%11.3E\r\n", row, VALUES[0], VALUES[1], VALUES[2],
               VALUES[3], VALUES[4], VALUES[5]);
  std::fflush(file);
}

void write_row(fem::io& units, int row) {
  fem::write(units, 16, "(i6,1p,1x,3(e13.3,e11.3))", row, VALUES[0], VALUES[1], VALUES[2], VALUES[3],
             VALUES[4], VALUES[5]);
}

void by_unit(benchmark::State& state) {
  fem::io units;
  fem::open(units, 16, file_here("row_fem")).finish();
  int row = 0;
  for (auto _ : state) write_row(units, ++row);
  units.close_unit(16, nullptr, true);
}

void by_library(benchmark::State& state) {
  const std::string name = file_here("row_printf");
  std::FILE* file = std::fopen(name.c_str(), "ab+");
  int row = 0;
  for (auto _ : state) print_row(file, ++row);
  std::fclose(file);
  std::remove(name.c_str());
}

std::string content(const std::string& name) {
  std::ifstream in(name, std::ios::binary);
  std::string text{std::istreambuf_iterator<char>(in), {}};
  std::remove(name.c_str());
  return text;
}

bool same_bytes() {
  const std::string one = file_here("same_fem");
  const std::string other = file_here("same_printf");
  {
    fem::io units;
    fem::open(units, 16, one).finish();
    write_row(units, 17);
    std::FILE* file = std::fopen(other.c_str(), "ab+");
    print_row(file, 17);
    std::fclose(file);
  }
  return content(one) == content(other);
}

constexpr int ROWS = 20000;  // fixed, so that both files grow alike

BENCHMARK(by_unit)->Name("ours")->Iterations(ROWS)->UseRealTime();
BENCHMARK(by_library)->Name("theirs")->Iterations(ROWS)->UseRealTime();

}  // namespace

int main(int argc, char** argv) {
  if (!same_bytes()) {
    std::fputs("the two rows differ\n", stderr);
    return 1;
  }
  return ratio_reporter(ratio_reporter::clock::real)
      .run(argc, argv, "listing row / fprintf with fflush", 1.0);
}
