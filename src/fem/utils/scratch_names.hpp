#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace fem::utils {

/// Names of scratch files: "fem_io_unit_scratch_" and eight characters out of a linear congruential generator
/// that starts at the clock, the first of them a letter.
class scratch_names {
 public:
  /// The next name for which `exists` says no; fails behind 1000 names.
  std::string next(const std::function<bool(const std::string&)>& exists);

 private:
  char character(std::uint64_t alphabet_size);

  std::optional<std::uint64_t> state_;
};

}  // namespace fem::utils
