#include "TervakExchange/deck_reading.hpp"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "Platform/names.hpp"
#include "Platform/streams.hpp"
#include "TervakExchange/layer_rows.hpp"
#include "TervakExchange/profile_checks.hpp"

namespace Vrsk::Plin::TervakExchange {

namespace {

/// Why a deck cannot be opened. Only the name by which the program itself reads its deck has a second name
/// beside it, in capitals, that the engineer may have written instead.
std::string why_unopened(const std::string& name) {
  std::error_code error;
  const std::filesystem::path file = tervak::os::path_of(name);
  const std::filesystem::file_status entry = std::filesystem::symlink_status(file, error);
  if (error == std::errc::no_such_file_or_directory) {
    std::string text = std::string("cannot open the deck: ") + std::strerror(ENOENT);
    if (name == "tervak.inp" && tervak::os::case_tells_names_apart())
      text +=
          "; upper and lower case are two names on this file system, and the deck must "
          "stand under both TERVAK.INP and tervak.inp: ln -s TERVAK.INP tervak.inp";
    return text;
  }
  if (std::filesystem::is_symlink(entry)) {
    static_cast<void>(std::filesystem::status(file, error));
    if (error)
      return std::string("cannot open the deck: it is a link to a file that cannot be reached: ") +
             error.message();
  }
  errno = 0;
  const std::ifstream again(file, std::ios::binary);
  return std::string("cannot open the deck: ") +
         (again.is_open() || errno == 0 ? "its stream has failed" : std::strerror(errno));
}

/// Two bytes a character: by its mark, or by every second byte of the beginning being zero.
bool is_utf16(std::string_view text) {
  if (text.starts_with("\xFF\xFE") || text.starts_with("\xFE\xFF")) return true;
  std::size_t zeros[2] = {0, 0};
  const std::size_t looked_at = std::min<std::size_t>(text.size(), 1000) / 2 * 2;
  for (std::size_t i = 0; i < looked_at; ++i)
    if (text[i] == '\0') ++zeros[i % 2];
  const std::size_t most = std::max(zeros[0], zeros[1]), least = std::min(zeros[0], zeros[1]);
  return least == 0 && 4 * most > looked_at;
}

}  // namespace

deck_reading::deck_reading(std::istream& stream, std::string_view file_name)
    : file_name_(file_name), faults_(file_name_, lines_) {
  read_text(stream, file_name);
  if (faults_.count() > 0) return;
  lines_ = split_lines(text_);
  read_profiles();
}

void deck_reading::read_text(std::istream& stream, std::string_view file_name) {
  // These faults point at a line that is not there, so that none is quoted.
  if (!stream) return faults_.add({}, why_unopened(std::string(file_name)));
  std::vector<char> piece(1 << 16);
  errno = 0;
  while (stream.read(piece.data(), static_cast<std::streamsize>(piece.size())) || stream.gcount() > 0)
    text_.append(piece.data(), static_cast<std::size_t>(stream.gcount()));
  if (stream.bad())  // a directory, say, opens but cannot be read
    faults_.add({}, std::string("cannot read the deck: ") +
                        (errno == 0 ? "its stream has failed" : std::strerror(errno)));
  if (text_.starts_with("\xEF\xBB\xBF")) text_.erase(0, 3);
  if (faults_.count() > 0) return;
  if (is_utf16(text_))
    faults_.add({},
                "the deck is written in UTF-16, two bytes a character; save it as plain text in UTF-8 (or "
                "ANSI), in the editor by \"Save as\" and the encoding");
  else if (text_.empty())
    faults_.add({}, "the deck is empty, expected the heading of a profile");
}

void deck_reading::read_profiles() {
  const std::vector<profile_lines> ranges = split_profiles(lines_, faults_);
  profiles_.reserve(ranges.size());
  maps_.reserve(ranges.size());
  for (const profile_lines& range : ranges) {
    profile_draft draft = profile_reader(lines_, range, faults_).read();
    check_profile(draft, faults_);
    expand_layers(draft, lines_, faults_);
    complete_profile(draft);
    if (faults_.count() > 0) continue;
    profiles_.push_back(std::move(draft.profile));
    maps_.push_back(std::move(draft.map));
  }
  if (faults_.count() == 0) return;
  profiles_.clear();
  maps_.clear();
}

deck_place deck_reading::heading(const profile_map& profile) const {
  const std::size_t width = lines_[profile.heading - 1].size();
  return {profile.heading, 1, std::max<std::size_t>(width, 1)};
}

std::vector<deck_field> deck_reading::values(const profile_map& profile, std::string_view scalar) const {
  std::vector<deck_field> values;
  for (const std::size_t number : profile.of(scalar).lines) {
    const deck_statement statement = line(number);
    values.insert(values.end(), statement.fields.begin() + 1, statement.fields.end());
  }
  return values;
}

deck_row deck_reading::row(const profile_map& profile, std::string_view table, std::size_t record) const {
  const keyword_map& map = profile.of(table);
  if (record < 1 || record > map.records.size()) return {};
  const auto& [row, kind] = map.records[record - 1];
  deck_row result{kind, line(map.rows[row]), {}};
  if (row < map.points.size())
    for (const std::size_t number : map.points[row]) result.points.push_back(line(number));
  return result;
}

deck_place whole_row(const deck_statement& line) {
  const deck_place& first = line.fields.front().place;
  const deck_place& last = line.fields.back().place;
  return {first.line, first.column, last.column + last.length - first.column};
}

}  // namespace Vrsk::Plin::TervakExchange
