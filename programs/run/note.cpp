#include "run/note.hpp"

#include <exception>
#include <sstream>
#include <vector>

#include "companion/shown.hpp"
#include "explain/note_page.hpp"
#include "Platform/files.hpp"
#include "Platform/names.hpp"
#include "TervakExchange/deck_reading.hpp"

namespace tervak::run {

namespace {

namespace fs = std::filesystem;

constexpr const char* NAME = "TERVAK.NOTE.html";

std::vector<std::string> lines_of(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

std::string page_of(const fs::path& directory, const fs::path& deck) {
  std::istringstream stream(os::read_file(directory / "TERVAK.INP"));
  const Vrsk::Plin::TervakExchange::deck_reading reading(stream, os::name_of(deck.filename()));
  explain::told_run told;
  if (reading.fault_count() > 0)
    told.stop = lines_of(reading.refusal("\n"));
  else
    told = explain::run_deck(os::name_of(directory / "TERVAK.INP"));
  return explain::note_page(told, {}, explain::deck_places(reading), os::name_of(deck.filename()));
}

}  // namespace

void put_note_away(const fs::path& directory) {
  const fs::path note = directory / NAME;
  if (os::kind_of(note) != os::file_kind::absent) fs::rename(note, directory / (std::string(NAME) + ".bak"));
}

note_result write_note(const fs::path& directory, const fs::path& deck) {
  try {
    const std::string page = page_of(directory, deck);
    if (page.size() > explain::LARGEST_PAGE)
      return {
          explain::too_large(page) + ": tervak-explain " + companion::shown(deck) + " --layer 1 -o FILE.html",
          false};
    os::replace_file(directory / NAME, page);
    return {NAME, false};
  } catch (const std::exception& error) {
    return {std::string("not written: ") + error.what(), true};
  }
}

}  // namespace tervak::run
