#include "report/note_beside.hpp"

#include <filesystem>
#include <stdexcept>
#include <string_view>

#include "Platform/names.hpp"
#include "report/files.hpp"

namespace tervak::report {

namespace fs = std::filesystem;

std::optional<note_beside> find_note_beside(const std::string& interface_file, const std::string& page) {
  const fs::path note = os::path_of(interface_file).parent_path() / "TERVAK.NOTE.html";
  std::error_code error;
  if (!fs::is_regular_file(note, error)) return std::nullopt;
  try {
    const fs::path from = os::path_of(page).parent_path();
    const std::u8string address = fs::proximate(note, from.empty() ? fs::path(".") : from).generic_u8string();
    note_beside found{{address.begin(), address.end()}, {}};
    const std::string text = read_file(os::name_of(note));
    constexpr std::string_view END = "-axial\"";
    for (std::size_t at = 0; (at = text.find(END, at)) != std::string::npos; at += END.size()) {
      const std::size_t from_id = text.rfind('"', at) + 1;
      found.axial.insert(text.substr(from_id, at + END.size() - 1 - from_id));
    }
    return found;
  } catch (const std::runtime_error&) {
    return std::nullopt;
  }
}

}  // namespace tervak::report
