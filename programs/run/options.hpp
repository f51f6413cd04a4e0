#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace tervak::run {

extern const char* const usage_text;

struct options {
  bool help = false;
  std::filesystem::path deck, directory;
};

/// Reads the words of the command line. Throws refusal.
options parse_options(const std::vector<std::string>& words);

/// Where a deck runs when nothing else is said: a directory here with the deck's name without its ending.
std::filesystem::path default_directory(const std::filesystem::path& deck);

}  // namespace tervak::run
