#pragma once

#include <cstddef>
#include <initializer_list>
#include <vector>

#include "Control/state/common.hpp"

namespace tervak {

/// The IERR of all input stages: a value of the deck is not accepted.
constexpr int NOT_ACCEPTED = 4;

/// A part of the input: takes its values out of the profile and checks them. On a value that it does not
/// accept it prints one message on the run log and leaves IERR.
using input_step = void (*)(common& cmn, const Vrsk::Plin::TervakExchange::Tervak& profile);

/// Runs the steps in their order, up to the first that leaves IERR.
inline void run_steps(common& cmn, const Vrsk::Plin::TervakExchange::Tervak& profile,
                      std::initializer_list<input_step> steps) {
  for (const input_step step : steps) {
    step(cmn, profile);
    if (cmn.IERR != 0) return;
  }
}

/// Entry i of a list of the deck, from 1. Throws std::out_of_range where the list is shorter than the counts
/// promise.
template <class T>
const T& entry(const std::vector<T>& list, int i) {
  return list.at(static_cast<std::size_t>(i) - 1);
}

}  // namespace tervak
