#include <exception>
#include <filesystem>
#include <iostream>
#include <stdexcept>
#include <vector>

#include "BlockKeeper/ExhaustedMemory.hpp"
#include "companion/shown.hpp"
#include "Platform/console.hpp"
#include "Platform/file_lock.hpp"
#include "Platform/files.hpp"
#include "Platform/process.hpp"
#include "run/directory_checks.hpp"
#include "run/findings.hpp"
#include "run/log_file.hpp"
#include "run/note.hpp"
#include "run/options.hpp"
#include "run/placing.hpp"
#include "run/refusal.hpp"
#include "run/verdict.hpp"

namespace {

namespace fs = std::filesystem;
using namespace tervak;
using companion::shown;

constexpr int GOOD = 0, NOT_GOOD = 1, NOT_STARTED = 2;

[[gnu::init_priority(101)]] const BlockKeeper::ExhaustedMemory<NOT_GOOD> exhausted_memory;

void make_directory(const fs::path& directory) {
  std::error_code error;
  fs::create_directories(directory, error);
  if (error || !fs::is_directory(directory, error))
    throw run::refusal("cannot make the directory " + shown(directory) +
                       (error ? ": " + error.message() : ""));
}

/// Refuses where another run is at work in the directory.
void expect_held(const os::file_lock& lock, const fs::path& directory) {
  if (lock.taken()) throw run::refusal("another run is under way in " + shown(directory));
  if (!lock.opened()) throw run::refusal("cannot write in " + shown(directory) + ": " + lock.failure());
  if (!lock.held())
    std::cerr << "tervak-run: files cannot be locked in " << shown(directory)
              << ": make sure that no other run uses it\n";
}

void show(const std::string& heading, const run::findings& found) {
  if (!found.text.empty()) std::cout << heading << '\n' << found.text << std::flush;
}

int make_run(const run::options& o, const fs::path& program, const fs::path& directory,
             const run::deck_findings& deck) {
  const run::findings of_deck = deck.of_deck();
  show(deck.refused() ? "faults of the deck:" : "warnings of the deck:", of_deck);
  const run::log_file log(directory);
  run::run_facts facts;
  facts.directory = directory;
  facts.end = os::run_program(program, directory);
  facts.log = log.read();
  if (!facts.log.empty()) {
    const run::findings of_log = deck.of_log(facts.log);
    show("warnings and errors of the run log:", of_log);
    facts.warnings = of_deck.warnings + of_log.warnings;
  }
  if (facts.end.failure.empty() && os::interrupted() == 0)
    facts.results = companion::results_of(directory, program);
  run::note_result note{{}, false};
  if (o.note && os::interrupted() == 0) {
    note = run::write_note(directory, o.deck);
    std::cout << "note:       " << note.line << '\n';
  }
  std::cout << verdict(facts);
  return is_good(facts) && !note.failed ? GOOD : NOT_GOOD;
}

/// `status`, that of this program, changes when the run begins and when it is known to be good.
void run_deck(const run::options& o, int& status) {
  run::check_lengths(o.directory, o.deck);
  if (os::kind_of(o.deck) == os::file_kind::absent) throw run::refusal("no such deck: " + shown(o.deck));
  static_cast<void>(os::read_file(o.deck));  // before a directory is made for it
  const fs::path program = os::find_program("tervak");
  if (program.empty())
    throw run::refusal("cannot find the program tervak in the directory of tervak-run or on the path");

  make_directory(o.directory);
  run::check_directory(o.directory, o.deck);
  static_cast<void>(run::placing(o.deck, o.directory));  // what is refused is refused with nothing touched
  const os::file_lock lock(o.directory / ".tervak-run.lock");
  expect_held(lock, o.directory);
  run::check_directory(o.directory, o.deck);
  const run::placing files(o.deck, o.directory);
  files.place();
  run::put_note_away(o.directory);

  const fs::path directory = fs::canonical(o.directory);
  std::cout << "deck:       " << shown(o.deck) << "\ndirectory:  " << shown(directory) << '\n';
  if (files.nodes_of_directory())
    std::cout << "pile nodes: PILEPLOT.TXT of this directory; the directory of the deck has none\n";
  std::cout << std::flush;
  status = NOT_GOOD;
  const int found = make_run(o, program, directory, run::deck_findings(files.deck(), shown(o.deck)));
  if (!std::cout.flush()) throw std::runtime_error("standard output cannot be written");
  status = found;
}

/// A deck that was dropped on the program runs beside itself: nobody has said where "here" is.
void run_words(const std::vector<std::string>& words, bool dropped, int& status) {
  run::options o = run::parse_options(words);
  if (dropped) o.directory = o.deck.parent_path() / o.directory;
  if (!o.help) return run_deck(o, status);
  if (std::cout << run::usage_text << std::flush) status = GOOD;
}

}  // namespace

int main(int count, char** words) {
  int status = NOT_STARTED;
  bool own_window = false;
  try {
    os::hold_standard_streams();
    os::catch_interrupts();
    const std::vector<std::string> given = os::start_console(count, words);
    own_window = given.size() < 2 && os::owns_console();
    run_words(given, own_window, status);
  } catch (const std::exception& error) {
    std::cerr << "tervak-run: " << error.what() << '\n';
  }
  if (own_window) os::wait_for_enter();
  if (os::interrupted() != 0) os::end_interrupted();
  return status;
}
