#pragma once

#include <memory>
#include <ostream>

#include "Control/state/common.hpp"

namespace Varno::TervakLibrary::IO {

/// The interface file TERVAK.RIF: a heading, the records of all profiles one behind the other, and a closing
/// record. One writer serves the whole run. The first field of a profile's record is the count of its fields
/// and the second the number of the profile; values are in run units. A file that cannot be opened or written
/// is not reported, here or later.
class TervakRIFWriter {
 public:
  /// Opens TERVAK.RIF in the current directory, replacing an earlier one, and writes the heading.
  TervakRIFWriter();
  /// Writes the closing record.
  ~TervakRIFWriter();
  TervakRIFWriter(const TervakRIFWriter&) = delete;
  TervakRIFWriter& operator=(const TervakRIFWriter&) = delete;

  /// Writes the records of the present profile, PROFILE being its number from 1. False when the depth table
  /// cannot be interpolated at a layer's level: without a message for the shear modulus, with one on the run
  /// log for Poisson's ratio. The records written until then stay in the file.
  bool WriteProfile(tervak::common& cmn, int PROFILE);

 private:
  std::shared_ptr<std::ostream> stream_;
};

}  // namespace Varno::TervakLibrary::IO
