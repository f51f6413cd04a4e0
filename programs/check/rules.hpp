#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>

#include "check/deck_target.hpp"
#include "check/profile_view.hpp"

namespace tervak::check {

/// Takes what a rule finds: where, and what is there ("PHIM is 0.61").
using rule_hit = std::function<void(const deck_target& where, const std::string& what)>;

/// Values that the program accepts and that are hardly meant. A rule looks at a value only where the soil,
/// the code or the method of its layer uses it; a 0.0 that means "not given" trips none. Ranges hold for the
/// numbers of the deck as they are written.
struct rule {
  std::string_view name;
  std::string_view looks_at;  ///< Markdown, for docs/check.md
  std::string_view warns;     ///< the range or the condition
  std::string_view slip;      ///< ends the warning, after what is there: the likely slip
  std::string_view reason;    ///< why it is looked at
  void (*look)(const profile_view& profile, const rule_hit& hit);
};

/// All rules, in the order of docs/check.md.
[[nodiscard]] std::span<const rule* const> all_rules();

/// "PHIM is 0.61"
[[nodiscard]] std::string value_is(std::string_view name, double value);
/// A number of the deck, as short as it reads back.
[[nodiscard]] std::string number(double value);
/// A number that follows from those of the deck, with three decimals at most.
[[nodiscard]] std::string rounded(double value);

namespace rules {
[[nodiscard]] std::span<const rule> of_soil();
[[nodiscard]] std::span<const rule> of_axial();
[[nodiscard]] std::span<const rule> of_levels();
[[nodiscard]] std::span<const rule> of_pile();
[[nodiscard]] std::span<const rule> of_layers();
[[nodiscard]] std::span<const rule> of_curves();
[[nodiscard]] std::span<const rule> of_deck();
}  // namespace rules

}  // namespace tervak::check
