#pragma once

#include <cstddef>
#include <string>

namespace tervak::run {

/// What is to be told of a deck or a log, and how many warnings are in it.
struct findings {
  std::string text;
  std::size_t warnings = 0;
};

findings findings_of_log(const std::string& log);

}  // namespace tervak::run
