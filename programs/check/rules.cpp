#include "check/rules.hpp"

#include <charconv>
#include <cmath>
#include <vector>

namespace tervak::check {

std::span<const rule* const> all_rules() {
  static const std::vector<const rule*> all = [] {
    std::vector<const rule*> list;
    for (const auto part : {rules::of_soil(), rules::of_axial(), rules::of_levels(), rules::of_pile(),
                            rules::of_layers(), rules::of_curves(), rules::of_deck()})
      for (const rule& r : part) list.push_back(&r);
    return list;
  }();
  return all;
}

std::string number(double value) {
  char text[32];
  const auto end = std::to_chars(text, text + sizeof text, value).ptr;
  return {text, end};
}

std::string rounded(double value) { return number(std::round(value * 1000) / 1000); }

std::string value_is(std::string_view name, double value) {
  return std::string(name) + " is " + number(value);
}

}  // namespace tervak::check
