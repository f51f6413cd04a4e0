#include "Control/run_files.hpp"

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>

#include "fem/file_positioning_chain.hpp"
#include "fem/open_chain.hpp"

namespace tervak {

void rotate(const char* name) {
  const std::string kept = std::string(name) + ".bak";
  static_cast<void>(std::remove(kept.c_str()));
  static_cast<void>(std::rename(name, kept.c_str()));
}

void open_run_file(common& cmn, int unit, const char* name, const char* status) {
  fem::open(cmn.units, unit, name)
      .status(status)
      .form("FORMATTED")
      .access("SEQUENTIAL")
      .iostat(&cmn.IERR)
      .finish();
}

bool same_content(const char* one, const char* other) {
  std::ifstream a(one, std::ios::binary), b(other, std::ios::binary);
  using bytes = std::istreambuf_iterator<char>;
  return std::equal(bytes(a), bytes(), bytes(b), bytes());
}

void close_run_files(common& cmn) {
  for (const int unit : {cmn.NFINP, cmn.NFTMP, cmn.NFLIS, cmn.NFFEM, cmn.NFF70, cmn.NFLOG})
    fem::close(cmn.units, unit, &cmn.IERR);
  cmn.units.remove_runtime_files();
}

}  // namespace tervak
