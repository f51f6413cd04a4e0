#include "report/compare_match.hpp"

#include <algorithm>
#include <cmath>
#include <map>

namespace tervak::report {

std::vector<std::pair<std::string, int>> keys_of(const interface_file& file) {
  std::map<std::string, int> count;
  std::vector<std::pair<std::string, int>> out;
  for (const profile& p : file.profiles) out.emplace_back(p.name, ++count[p.name]);
  return out;
}

std::vector<match> match_profiles(const interface_file& before, const interface_file& after) {
  const auto old_keys = keys_of(before), new_keys = keys_of(after);
  std::vector<match> out;
  for (std::size_t i = 0; i < old_keys.size(); ++i) {
    const auto there = std::find(new_keys.begin(), new_keys.end(), old_keys[i]);
    out.emplace_back(i, there == new_keys.end() ? none : static_cast<std::size_t>(there - new_keys.begin()));
  }
  for (std::size_t i = 0; i < new_keys.size(); ++i)
    if (std::find(old_keys.begin(), old_keys.end(), new_keys[i]) == old_keys.end()) out.emplace_back(none, i);
  return out;
}

std::vector<match> match_values(const std::vector<double>& before, const std::vector<double>& after,
                                double tolerance, double relative) {
  std::vector<match> out;
  std::size_t i = 0, k = 0;
  while (i < before.size() || k < after.size()) {
    const bool both = i < before.size() && k < after.size();
    const double room = both ? tolerance + relative * std::abs(before[i]) : 0.0;
    if (both && std::abs(before[i] - after[k]) <= room)
      out.emplace_back(i++, k++);
    else if (k == after.size() || (both && before[i] < after[k]))
      out.emplace_back(i++, none);
    else
      out.emplace_back(none, k++);
  }
  return out;
}

}  // namespace tervak::report
