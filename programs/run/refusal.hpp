#pragma once

#include <stdexcept>

namespace tervak::run {

/// The run is not started; the text says why.
class refusal : public std::runtime_error {
  using std::runtime_error::runtime_error;
};

}  // namespace tervak::run
