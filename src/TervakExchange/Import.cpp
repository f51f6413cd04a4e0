#include <sys/stat.h>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <string>

#include "Measures/units.hpp"
#include "TervakExchange/profile_checks.hpp"
#include "TervakExchange/TervakMultipleSoilProfiles.hpp"

namespace Vrsk::Plin::TervakExchange {

namespace {

/// Refuses a deck for a reason that no line of it shows.
[[noreturn]] void refuse_whole(std::string_view file_name, const std::string& text) {
  const std::vector<std::string_view> no_lines;
  deck_faults faults(file_name, no_lines);
  faults.add({}, text);
  throw deck_error(faults.text());
}

[[noreturn]] void refuse_unopened(std::string_view file_name) {
  const std::string name(file_name);
  struct stat entry {};
  errno = 0;
  if (lstat(name.c_str(), &entry) != 0 && errno == ENOENT)
    refuse_whole(file_name, "cannot open the deck: " + std::string(std::strerror(ENOENT)) +
                                "; upper and lower case are two names on this file system, and the deck must "
                                "stand under both TERVAK.INP and tervak.inp: ln -s TERVAK.INP tervak.inp");
  if (S_ISLNK(entry.st_mode) && stat(name.c_str(), &entry) != 0)
    refuse_whole(file_name, "cannot open the deck: it is a link to a file that cannot be reached: " +
                                std::string(std::strerror(errno)));
  errno = 0;
  const std::ifstream again(name, std::ios::binary);
  refuse_whole(file_name,
               std::string("cannot open the deck: ") +
                   (again.is_open() || errno == 0 ? "its stream has failed" : std::strerror(errno)));
}

std::string read_whole(std::istream& stream, std::string_view file_name) {
  std::string deck;
  std::vector<char> piece(1 << 16);
  errno = 0;
  while (stream.read(piece.data(), static_cast<std::streamsize>(piece.size())) || stream.gcount() > 0)
    deck.append(piece.data(), static_cast<std::size_t>(stream.gcount()));
  if (stream.bad())  // a directory, say, opens but cannot be read
    refuse_whole(file_name, std::string("cannot read the deck: ") +
                                (errno == 0 ? "its stream has failed" : std::strerror(errno)));
  return deck;
}

}  // namespace

void TervakMultipleSoilProfiles::Import(std::istream& stream, std::string_view lengthUnit,
                                        std::string_view forceUnit, std::string_view file_name) {
  // Numbers are taken as they stand; the names only have to be those of units.
  static_cast<void>(Measures::Runtime::FindUnit("length", lengthUnit));
  static_cast<void>(Measures::Runtime::FindUnit("force", forceUnit));
  if (!stream) refuse_unopened(file_name);
  const std::string deck = read_whole(stream, file_name);
  if (deck.empty()) refuse_whole(file_name, "the deck is empty, expected the heading of a profile");

  const std::vector<std::string_view> lines = split_lines(deck);
  deck_faults faults(file_name, lines);
  const std::vector<profile_lines> ranges = split_profiles(lines, faults);
  std::vector<Tervak> profiles;
  profiles.reserve(ranges.size());
  for (const profile_lines& range : ranges) {
    profile_draft draft = profile_reader(lines, range, faults).read();
    check_profile(draft, faults);
    complete_profile(draft);
    profiles.push_back(std::move(draft.profile));
  }
  if (faults.count() > 0) throw deck_error(faults.text());
  profiles_ = std::move(profiles);
}

}  // namespace Vrsk::Plin::TervakExchange
