#include <algorithm>
#include <exception>
#include <fstream>
#include <iostream>

#include "explain/deck_run.hpp"
#include "explain/note_page.hpp"
#include "explain/note_text.hpp"
#include "explain/options.hpp"
#include "Platform/console.hpp"
#include "Platform/names.hpp"
#include "Platform/process.hpp"
#include "report/files.hpp"
#include "TervakExchange/deck_reading.hpp"

namespace {

namespace os = tervak::os;
using namespace tervak::explain;

constexpr int WHOLE = 0, STOPPED = 1, REFUSED = 2;

void in_deck(const std::string& what, int wanted, std::size_t count) {
  if (wanted > static_cast<int>(count))
    throw usage_error("expected a " + what + " from 1 to " + std::to_string(count) + ", found " +
                      std::to_string(wanted));
}

/// A choice that no profile has is a mistake on the command line; of a run that stopped nothing is known.
void check_choice(const choice& chosen, const told_run& run) {
  if (!run.whole) return;
  in_deck("profile", chosen.profile, run.profiles.size());
  std::size_t layers = 0, diameters = 0;
  for (const told_profile& profile : run.profiles) {
    if (chosen.profile > 0 && chosen.profile != profile.number) continue;
    layers = std::max(layers, profile.layers.size());
    diameters = std::max(diameters, profile.diameters.size());
  }
  in_deck("layer", chosen.layer, layers);
  in_deck("diameter", chosen.diameter, diameters);
}

void write_page(const options& o, const told_run& run, const deck_places& places) {
  const std::string page = note_page(run, o.chosen, places, os::name_of(os::path_of(o.deck).filename()));
  if (page.size() > LARGEST_PAGE) throw usage_error(too_large(page));
  tervak::report::write_file(o.output, page);
  std::cout << stop_text(run);
}

int explain(const options& o) {
  if (o.help) {
    std::cout << usage_text;
    return WHOLE;
  }
  if (!o.output.empty() && tervak::report::same_file(o.deck, o.output))
    throw usage_error("'" + o.output + "' is the deck: the page would replace it");
  std::ifstream stream(tervak::os::path_of(o.deck), std::ios::binary);
  const Vrsk::Plin::TervakExchange::deck_reading deck(stream, o.deck);
  if (deck.fault_count() > 0) {
    std::cerr << deck.refusal("\n") << '\n';
    return REFUSED;
  }
  const told_run run = run_deck(o.deck);
  if (os::interrupted() != 0) os::end_interrupted();  // what it made is removed
  check_choice(o.chosen, run);
  if (o.output.empty())
    std::cout << text_note(run, o.chosen, deck_places(deck));
  else
    write_page(o, run, deck_places(deck));
  return run.whole ? WHOLE : STOPPED;
}

}  // namespace

int main(int count, char** arguments) {
  os::catch_interrupts();
  try {
    const int status = explain(parse_options(tervak::os::start_console(count, arguments)));
    if (!std::cout.flush()) throw std::runtime_error("standard output cannot be written");
    if (os::interrupted() != 0) os::end_interrupted();
    return status;
  } catch (const usage_error& error) {
    std::cerr << "tervak-explain: " << error.what() << "; see tervak-explain --help\n";
  } catch (const std::exception& error) {
    std::cerr << "tervak-explain: " << error.what() << '\n';
  }
  return REFUSED;
}
