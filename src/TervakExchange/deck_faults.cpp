#include "TervakExchange/deck_faults.hpp"

#include <algorithm>
#include <tuple>
#include <utility>

namespace Vrsk::Plin::TervakExchange {

namespace {

constexpr std::size_t MAX_FAULTS = 20;
constexpr std::size_t MAX_QUOTED = 100;
constexpr std::size_t MAX_SHOWN = 60;

std::string printable(std::string_view text) {
  std::string result(text);
  for (char& c : result) {
    const auto byte = static_cast<unsigned char>(c);
    if (c == '\t')
      c = ' ';
    else if (byte < 0x20 || byte == 0x7F)
      c = '?';
  }
  return result;
}

bool stands_before(const deck_place& a, const deck_place& b) {
  return std::tie(a.line, a.column) < std::tie(b.line, b.column);
}

}  // namespace

std::string shown(std::string_view text) {
  const bool cut = text.size() > MAX_SHOWN;
  return '"' + printable(text.substr(0, MAX_SHOWN)) + (cut ? "...\"" : "\"");
}

void deck_faults::add(const deck_place& place, std::string text) {
  ++count_;
  faults_.push_back({place, std::move(text)});
  // A deck of a million bad rows must not hold a million texts.
  if (faults_.size() >= 2 * MAX_FAULTS) drop_beyond_limit();
}

bool deck_faults::shows(const deck_place& place) const {
  const auto before = std::count_if(faults_.begin(), faults_.end(),
                                    [&](const fault& f) { return !stands_before(place, f.place); });
  return before < static_cast<std::ptrdiff_t>(MAX_FAULTS);
}

void deck_faults::drop_beyond_limit() {
  std::stable_sort(faults_.begin(), faults_.end(),
                   [](const fault& a, const fault& b) { return stands_before(a.place, b.place); });
  if (faults_.size() > MAX_FAULTS) faults_.erase(faults_.begin() + MAX_FAULTS, faults_.end());
}

std::string deck_faults::text(std::string_view line_end) const {
  deck_faults first = *this;
  first.drop_beyond_limit();
  std::string result;
  for (const fault& f : first.faults_) {
    if (!result.empty()) result += line_end;
    result += described(f.place, f.text, line_end);
  }
  if (count_ > MAX_FAULTS)
    result.append(line_end).append("and " + std::to_string(count_ - MAX_FAULTS) + " more faults");
  return result;
}

std::string deck_faults::described(const deck_place& place, std::string_view text,
                                   std::string_view line_end) const {
  const auto& [line, column, length] = place;
  std::string result(file_name_);
  result += ":" + std::to_string(line) + ":" + std::to_string(column) + ": ";
  result += text;
  if (line > lines_.size()) return result;

  const std::string_view whole = lines_[line - 1];
  std::size_t begin = column - 1 > MAX_QUOTED / 2 ? column - 1 - MAX_QUOTED / 2 : 0;
  if (whole.size() <= begin + MAX_QUOTED) begin = whole.size() > MAX_QUOTED ? whole.size() - MAX_QUOTED : 0;
  const std::string quoted = printable(whole.substr(begin, MAX_QUOTED));
  const std::size_t indent = column - 1 - begin;
  const std::size_t room = quoted.size() > indent ? quoted.size() - indent : 1;

  const std::string number = std::to_string(line);
  result.append(line_end).append("  " + number + " | " + quoted);
  result.append(line_end).append(std::string(number.size() + 2, ' ') + " | " + std::string(indent, ' ') +
                                 std::string(std::clamp<std::size_t>(length, 1, room), '^'));
  return result;
}

}  // namespace Vrsk::Plin::TervakExchange
