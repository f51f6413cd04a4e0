#pragma once

#include <stdexcept>

namespace Vrsk::Plin::TervakExchange {

/// A deck that is refused. The text names every fault with its place; its records are parted by CR LF, and
/// none stands behind the last one.
struct deck_error : std::runtime_error {
  using std::runtime_error::runtime_error;
};

}  // namespace Vrsk::Plin::TervakExchange
