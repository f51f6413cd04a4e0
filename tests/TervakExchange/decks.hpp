#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "TervakExchange/TervakMultipleSoilProfiles.hpp"

namespace decks {

using namespace Vrsk::Plin::TervakExchange;

/// The smallest good profiles; every number is another one, so that no two can be mixed up unseen.
inline const char* const REVISION5 =
    "Heading 5\n"                                       // line 1
    "REVISION 5\n"                                      // 2
    "GAMWAT 10.1\n"                                     // 3
    "ATMPRS 101.3\n"                                    // 4
    "ZCYCL 20.5\n"                                      // 5
    "SUSTIF 96\n"                                       // 6
    "DIAM 1.2 1.5\n"                                    // 7
    "ESOL0 1E4\n"                                       // 8
    "ESOL1 500.5\n"                                     // 9
    "POSAVR .4\n"                                       // 10
    "ZSEAFL -3.\n"                                      // 11
    "ZPWP 0.7\n"                                        // 12
    "GAMPWP 10.2\n"                                     // 13
    "DIAMP 1.6\n"                                       // 14
    "WALL 0.05\n"                                       // 15
    "ZTIP 28\n"                                         // 16
    "MATPIL 2\n"                                        // 17
    "MAINLAYERS\n"                                      // 18
    "1 30.5 18.1 12 20 35 0.7 21 45 31 0.01 0.25 99\n"  // 19
    "SKINFRICTION\n"                                    // 20
    "1 3 15 16 17 18 19 20 1.1 0.9 0.02\n"              // 21
    "SUBDIVISION\n"                                     // 22
    "1 30.5 4 284 293 200 1\n";                         // 23

inline const char* const REVISION4 =
    "Heading 4\n"                             // line 1
    "revision 4\n"                            // 2
    "MIDBOT 2\n"                              // 3
    "gamwat 10.1\n"                           // 4
    "ATMPRS 101.3\n"                          // 5
    "ZCYCL 20.5\n"                            // 6
    "SUSTIF 96\n"                             // 7
    "DIAM 1.2\n"                              // 8
    "ESOL0 1E4\n"                             // 9
    "ESOL1 500.5\n"                           // 10
    "POSAVR .4\n"                             // 11
    "ZSEAFL 0\n"                              // 12
    "ZPWP 0.7\n"                              // 13
    "GAMPWP 10.2\n"                           // 14
    "ZONINF 10.5\n"                           // 15
    "RFTZ 0.8\n"                              // 16
    "SOILTYPES\n"                             // 17
    "1 18 30 21 22 0.01 2 0.25 1 0.9 0.02\n"  // 18
    "TZQZTABLE\n"                             // 19
    "0.5 15 16 - 0.03 900 0.35 0.05\n"        // 20
    "9 25 26 7000 0.04 901 0.36 0.06\n"       // 21
    "LAYERS\n"                                // 22
    "1 4 1 8.5 284 293 200\n"                 // 23
    "5 12 1 30 287 214 101\n";                // 24

inline std::vector<Tervak> read(const std::string& deck) {
  std::istringstream stream(deck);
  TervakMultipleSoilProfiles profiles;
  profiles.Import(stream, "m", "N");
  return profiles.GetSoilProfiles();
}

/// The text by which a deck is refused, or "accepted".
inline std::string refusal(const std::string& deck) {
  try {
    read(deck);
  } catch (const deck_error& error) {
    return error.what();
  }
  return "accepted";
}

/// The first lines of the faults, behind the name of the file; the quoted lines are left out.
inline std::string places(const std::string& deck) {
  std::istringstream text(refusal(deck) + "\r\n");
  std::string result;
  for (std::string line; std::getline(text, line); line.clear()) {
    line.back() = '\n';
    if (line.rfind("  ", 0) != 0) result += line.substr(line.rfind("tervak.inp:", 0) == 0 ? 11 : 0);
  }
  return result;
}

/// The deck with line `number` replaced; the new line may be several, or none.
inline std::string with(const std::string& deck, int number, const std::string& lines) {
  std::size_t begin = 0;
  for (int i = 1; i < number; ++i) begin = deck.find('\n', begin) + 1;
  return deck.substr(0, begin) + lines + deck.substr(deck.find('\n', begin) + 1);
}

}  // namespace decks
