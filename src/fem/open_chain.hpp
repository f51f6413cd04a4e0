#pragma once

#include <string_view>

#include "fem/io.hpp"

namespace fem {

/// One open statement:
///   fem::open(units, 14, "TERVAK.INP").status("OLD").form("FORMATTED").iostat(&IERR).finish();
/// Nothing is opened before finish(). A keyword that is none throws std::runtime_error.
class open_chain {
 public:
  open_chain(io& units, int unit, std::string_view file_name)
      : units_(units), file_(units.open_unit(unit, file_name)) {}

  open_chain& access(std::string_view keyword);  ///< SEQUENTIAL, DIRECT
  open_chain& form(std::string_view keyword);    ///< FORMATTED, UNFORMATTED
  open_chain& status(std::string_view keyword);  ///< OLD, NEW, SCRATCH, UNKNOWN
  open_chain& recl(int length);
  open_chain& iostat(int* iostat);
  void finish() { units_.finish_open(file_, iostat_); }

 private:
  io& units_;
  unit_file& file_;
  int* iostat_ = nullptr;
};

/// An empty name means a name of the runtime's own, or the unit's present file where it has one.
inline open_chain open(io& units, int unit, std::string_view file_name = {}) {
  return {units, unit, file_name};
}

}  // namespace fem
