#include "check/check.hpp"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <tuple>

#include "Platform/files.hpp"
#include "Platform/names.hpp"

namespace tervak::check {

std::unique_ptr<const deck_reading> read_deck(const std::filesystem::path& deck) {
  const auto kind = std::filesystem::status(deck).type();
  if (kind == std::filesystem::file_type::not_found || kind == std::filesystem::file_type::directory) {
    std::ifstream stream(deck, std::ios::binary);  // the reader says why in its own words
    return std::make_unique<const deck_reading>(stream, os::name_of(deck));
  }
  std::istringstream stream(os::read_file(deck));
  return std::make_unique<const deck_reading>(stream, os::name_of(deck));
}

deck_report check_deck(const deck_reading& deck, const std::set<std::string, std::less<>>& accepted) {
  deck_report report;
  report.fault_count = deck.fault_count();
  if (report.fault_count > 0) {
    report.faults = deck.refusal("\n");
    return report;
  }
  for (std::size_t i = 0; i < deck.profiles().size(); ++i) {
    const profile_view profile(deck, i);
    for (const rule* r : all_rules()) {
      if (accepted.contains(r->name)) continue;
      r->look(profile, [&](const deck_target& where, const std::string& what) {
        const deck_place place = find_place(deck, i, where).place;
        const std::string text =
            "warning: " + what + std::string(r->slip) + " [" + std::string(r->name) + "]";
        report.warnings.push_back({r->name, place, deck.described(place, text)});
      });
    }
  }
  const auto key = [](const warning& w) { return std::tie(w.place.line, w.place.column); };
  auto& all = report.warnings;
  std::stable_sort(all.begin(), all.end(),
                   [&](const warning& a, const warning& b) { return key(a) < key(b); });
  // Records that one row of the deck expands to give its warning once.
  const auto same = [](const warning& a, const warning& b) { return a.text == b.text; };
  all.erase(std::unique(all.begin(), all.end(), same), all.end());
  return report;
}

bool told_by(const explanation& message, const std::vector<warning>& warnings) {
  return message.kind == message_kind::warning && !message.places.empty() &&
         std::all_of(message.places.begin(), message.places.end(), [&](const named_place& p) {
           return std::any_of(warnings.begin(), warnings.end(), [&](const warning& w) {
             return w.place.line == p.place.line && w.place.column == p.place.column;
           });
         });
}

}  // namespace tervak::check
