#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "report/rif_data.hpp"

namespace tervak::report {

/// Texts that the page's data holds once each, by number: most stresses and displacements of a run occur in
/// many curves. The script reads the number lists back (page/data.js), digit by digit those of the file.
class value_lists {
 public:
  std::size_t add(const std::string& text);
  /// All texts as a JSON array.
  std::string json() const;

 private:
  std::unordered_map<std::string, std::size_t> numbers;
  std::vector<std::string> texts;
};

/// The numbers with a blank between. "5*3" is 5 three times, "5+3" is 5, 6, 7 and 8: the points that fill a
/// curve out.
std::string list_text(const std::vector<double>& values);
/// The same with "-" where a value is missing, and nine digits: of values that are calculated.
std::string list_text(const std::vector<std::optional<double>>& values);

/// The stresses or displacements of a curve. Of one whose halves mirror each other only the upper half is
/// written, with
/// "-|" before it; with "0|" where the lower half is zero.
std::string stress_text(const curve& c);
std::string displacement_text(const curve& c);

}  // namespace tervak::report
