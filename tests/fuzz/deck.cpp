#include <sstream>

#include "invariants.hpp"
#include "TervakExchange/deck_reading.hpp"
#if __has_include("check/check.hpp")
#include "check/check.hpp"
#endif

using namespace Vrsk::Plin::TervakExchange;

namespace {

/// Every record leads back to a line of the deck, every value to its field.
void look_up_all(const deck_reading& deck, const profile_map& map) {
  must(deck.heading(map).line > 0, "a heading has a line");
  for (const deck_keyword& keyword : deck_keywords()) {
    const keyword_map& lines = map.of(keyword.name);
    if (std::holds_alternative<const deck_scalar*>(keyword.what))
      must(deck.values(map, keyword.name).size() >= lines.lines.size(), "a scalar has a value");
    for (std::size_t i = 1; i <= lines.records.size(); ++i) {
      const deck_row row = deck.row(map, keyword.name, i);
      must(!row.line.fields.empty(), "a record has a row");
      must_be_printable(deck.described(whole_row(row.line), "text"), 500);
    }
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::istringstream stream(std::string(reinterpret_cast<const char*>(data), size));
  const deck_reading deck(stream, "TERVAK.INP");
  must((deck.fault_count() == 0) == !deck.profiles().empty(), "a deck has faults or profiles");
  must(deck.maps().size() == deck.profiles().size(), "a profile has a map");
  must_be_printable(deck.refusal("\n"), 20000);
  for (const profile_map& map : deck.maps()) look_up_all(deck, map);
#if __has_include("check/check.hpp")
  for (const auto& warning : tervak::check::check_deck(deck).warnings) must_be_printable(warning.text, 1000);
#endif
  return 0;
}
