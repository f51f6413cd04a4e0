#include "check/log_messages.hpp"

#include <algorithm>
#include <charconv>
#include <optional>

#include "check/message_match.hpp"

namespace tervak::check {

namespace {

constexpr std::size_t LONGEST_LINE = 1000;

/// Bytes of the character at the front of a text in UTF-8; 0 where it is none, or a control character.
std::size_t character_size(std::string_view text) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned char lead = byte(0);
  if (lead < 0x80) return lead >= 0x20 && lead != 0x7F ? 1 : 0;
  const std::size_t size = lead >= 0xC2 && lead < 0xE0   ? 2
                           : lead >= 0xE0 && lead < 0xF0 ? 3
                           : lead < 0xF5                 ? 4
                                                         : 0;
  if (lead < 0xC2 || size == 0 || size > text.size()) return 0;
  for (std::size_t i = 1; i < size; ++i)
    if ((byte(i) & 0xC0) != 0x80) return 0;
  return lead == 0xC2 && byte(1) < 0xA0 ? 0 : size;
}

/// A line as text: tabs as blanks, control characters and bytes that are no UTF-8 as "?", without blanks at
/// its end.
std::string as_text(std::string_view line) {
  std::string text;
  line = line.substr(0, LONGEST_LINE);
  while (!line.empty()) {
    const std::size_t size = character_size(line);
    if (size == 0)
      text += line.front() == '\t' ? ' ' : '?';
    else
      text += line.substr(0, size);
    line.remove_prefix(size == 0 ? 1 : size);
  }
  return text.substr(0, text.find_last_not_of(' ') + 1);
}

std::string trimmed(const std::string& line) {
  const auto begin = line.find_first_not_of(' ');
  return begin == std::string::npos ? "" : line.substr(begin);
}

bool contains_any(std::string_view text, std::string_view phrases) {
  for (const std::string_view phrase : split(phrases, '|'))
    if (text.find(phrase) != std::string_view::npos) return true;
  return false;
}

message_kind kind_of(const known_message& row) {
  if (row.run.empty()) return message_kind::news;
  if (row.run != "goes on") return message_kind::error;
  return contains_any(row.text, "****|WARNING|Warning") ? message_kind::warning : message_kind::news;
}

/// Reads "tervak.inp:LINE:COLUMN: text".
bool read_refusal(std::string_view line, log_message& message) {
  constexpr std::string_view name = "tervak.inp:";
  const auto take_number = [&](std::size_t& value) {
    const auto [end, error] = std::from_chars(line.data(), line.data() + line.size(), value);
    if (error != std::errc() || end == line.data() + line.size() || *end != ':') return false;
    line.remove_prefix(static_cast<std::size_t>(end - line.data()) + 1);
    return true;
  };
  if (line.substr(0, name.size()) != name) return false;
  line.remove_prefix(name.size());
  return take_number(message.line) && take_number(message.column);
}

/// A message of the catalogue, taken apart.
struct pattern {
  const known_message* row;
  std::size_t variant;
  std::vector<std::string_view> records;
  std::size_t length;
};

const std::vector<pattern>& patterns() {
  static const std::vector<pattern> all = [] {
    std::vector<pattern> list;
    for (const message_section& section : message_sections())
      for (const known_message& row : *section.messages) {
        const auto variants = split(row.text, '|');
        for (std::size_t i = 0; i < variants.size(); ++i)
          list.push_back({&row, i, split(variants[i], '\n'), variants[i].size()});
      }
    return list;
  }();
  return all;
}

class log_reader {
 public:
  explicit log_reader(std::string_view text);
  [[nodiscard]] run_log read();

 private:
  void read_message();
  [[nodiscard]] bool read_refused();
  [[nodiscard]] bool read_known();
  [[nodiscard]] std::optional<std::size_t> match(const pattern& p, std::vector<double>& numbers) const;

  std::vector<std::string> lines_;
  std::size_t now_ = 0;
  run_log log_;
  std::size_t profile_ = 0;
};

log_reader::log_reader(std::string_view text) {
  for (std::string_view line : split(text, '\n')) {
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    // Findings on monopile curves follow one another on one line.
    constexpr std::string_view finding = "****  MANUAL ";
    std::string rest = as_text(line);
    for (std::size_t next; (next = rest.find(finding, finding.size() + 2)) != std::string::npos;) {
      lines_.push_back(rest.substr(0, next));
      rest.erase(0, next);
    }
    lines_.push_back(std::move(rest));
  }
}

run_log log_reader::read() {
  // Lines of the head begin with several blanks, messages with one.
  while (now_ < lines_.size() && (lines_[now_].empty() || lines_[now_].substr(0, 2) == "  ")) ++now_;
  while (now_ < lines_.size()) {
    if (lines_[now_].empty())
      ++now_;
    else
      read_message();
  }
  const auto last =
      std::find_if(lines_.rbegin(), lines_.rend(), [](const std::string& l) { return !l.empty(); });
  if (last != lines_.rend()) log_.last_line = trimmed(*last);
  log_.profiles_finished = profile_;
  return std::move(log_);
}

void log_reader::read_message() {
  if (read_refused() || read_known()) return;
  const std::string line = trimmed(lines_[now_++]);
  if (line == "NORMAL EXIT FROM TERVAK" || line == "ERROR EXIT FROM TERVAK") return;
  log_message message;
  message.lines = {line};
  message.profile = profile_;
  log_.messages.push_back(std::move(message));
}

bool log_reader::read_refused() {
  log_message message;
  const std::string& line = lines_[now_];
  const bool more = line.substr(0, 4) == "and " && line.find(" more fault") != std::string::npos;
  if (!more && !read_refusal(line, message)) return false;
  message.kind = message_kind::refusal;
  message.lines = {line};
  for (const known_refusal& row : known_refusals())
    if (!message.refusal && contains_any(line, row.phrases)) message.refusal = &row;
  if (!message.refusal) message.kind = message_kind::unknown;
  // The quoted line and the caret under it
  for (++now_; now_ < lines_.size() && lines_[now_].substr(0, 2) == "  " &&
               lines_[now_].find('|') != std::string::npos;
       ++now_)
    if (lines_[now_].find_first_not_of(' ') == lines_[now_].find('|'))
      message.length = static_cast<std::size_t>(std::count(lines_[now_].begin(), lines_[now_].end(), '^'));
  log_.messages.push_back(std::move(message));
  return true;
}

/// How many lines the message takes; none where it is another one.
std::optional<std::size_t> log_reader::match(const pattern& p, std::vector<double>& numbers) const {
  std::size_t at = now_;
  numbers.clear();
  for (const std::string_view record : p.records) {
    // Free text may be blank; the other records may have blank lines before them.
    if (record != "%t")
      while (at < lines_.size() && lines_[at].empty()) ++at;
    if (at >= lines_.size() || !matches(lines_[at], record, numbers)) return std::nullopt;
    ++at;
  }
  return at - now_;
}

bool log_reader::read_known() {
  log_message best;
  std::size_t taken = 0, weight = 0;
  const known_message* before = log_.messages.empty() ? nullptr : log_.messages.back().known;
  std::vector<double> numbers;
  for (const pattern& p : patterns()) {
    const auto lines = match(p, numbers);
    if (!lines) continue;
    // The more lines and the more of their text, the surer; what goes on from the line above takes
    // precedence.
    const std::size_t now = (p.row == before ? 100'000 : 0) + *lines * 1000 + p.length;
    if (now <= weight) continue;
    weight = now;
    taken = *lines;
    best.known = p.row;
    best.variant = p.variant;
    best.numbers = numbers;
  }
  if (!best.known) return false;
  best.kind = kind_of(*best.known);
  best.profile = profile_;
  for (std::size_t i = now_; i < now_ + taken; ++i)
    if (!lines_[i].empty()) best.lines.push_back(trimmed(lines_[i]));
  now_ += taken;
  if (best.lines.front().find("HAS BEEN GENERATED") != std::string::npos) ++profile_;
  log_.messages.push_back(std::move(best));
  return true;
}

}  // namespace

run_log read_log(std::string_view text) { return log_reader(text).read(); }

}  // namespace tervak::check
