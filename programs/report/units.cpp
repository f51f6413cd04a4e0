#include "report/units.hpp"

#include <algorithm>
#include <cctype>

namespace tervak::report {

bool parse_units(const std::string& text, units& out) {
  const std::size_t comma = text.find(',');
  if (comma == std::string::npos) return false;
  const units named{text.substr(0, comma), text.substr(comma + 1)};
  const auto good = [](const std::string& name) {
    return !name.empty() && name.size() <= 8 && std::all_of(name.begin(), name.end(), [](char c) {
      return std::isalnum(static_cast<unsigned char>(c)) != 0;
    });
  };
  if (!good(named.force) || !good(named.length)) return false;
  out = named;
  return true;
}

}  // namespace tervak::report
