#pragma once

#include <cstddef>
#include <optional>
#include <set>
#include <string>

namespace tervak::report {

/// The calculation note TERVAK.NOTE.html of the directory of an interface file. It has a section p1-l9-d1-py
/// for each curve, and p1-l9-axial for each layer whose axial capacity was computed.
struct note_beside {
  std::string address;          ///< of the note as seen from the page
  std::set<std::string> axial;  ///< the sections of axial capacities

  [[nodiscard]] bool has_axial(int profile, std::size_t layer) const {
    return axial.contains("p" + std::to_string(profile) + "-l" + std::to_string(layer) + "-axial");
  }
};

/// Nothing where there is none or it cannot be read. `page` is the file that will link to it.
std::optional<note_beside> find_note_beside(const std::string& interface_file, const std::string& page);

}  // namespace tervak::report
