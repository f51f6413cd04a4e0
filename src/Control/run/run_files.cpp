#include "Control/run/run_files.hpp"

#include <cstdio>
#include <fstream>
#include <sstream>
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
  // A stream's inserter takes a name that cannot be read, such as a directory, for an empty file.
  std::ostringstream a, b;
  a << std::ifstream(one, std::ios::binary).rdbuf();
  b << std::ifstream(other, std::ios::binary).rdbuf();
  return a.str() == b.str();
}

void close_run_files(common& cmn) {
  for (const int unit : {cmn.NFINP, cmn.NFTMP, cmn.NFLIS, cmn.NFFEM, cmn.NFF70, cmn.NFLOG})
    fem::close(cmn.units, unit, &cmn.IERR);
  cmn.units.remove_runtime_files();
}

}  // namespace tervak
