#pragma once

#include <cstddef>
#include <filesystem>
#include <string>

#include "companion/results.hpp"
#include "Platform/process.hpp"

namespace tervak::run {

/// What is known when a run and the check of its results are done.
struct run_facts {
  std::filesystem::path directory;
  os::process_end end;
  std::string log;  ///< "" where the run has made none
  companion::results results;
  std::size_t warnings = 0;
};

/// The run ended with status 0 and NORMAL EXIT, and its results are whole.
bool is_good(const run_facts& facts);

/// The result files, each whole or not and why not, and at the end the sentence that says what the run is.
std::string verdict(const run_facts& facts);

}  // namespace tervak::run
