#include "check/explain.hpp"

#include <algorithm>

namespace tervak::check {

namespace {

constexpr std::size_t MOST_LINES = 4;

/// Text without its Markdown: no backquotes, no stars, of a link its words.
std::string plain(std::string_view markdown) {
  std::string text;
  for (std::size_t i = 0; i < markdown.size(); ++i) {
    const char c = markdown[i];
    if (c == '`' || c == '[' || (c == '*' && i + 1 < markdown.size() && markdown[i + 1] == '*')) {
      if (c == '*') ++i;
    } else if (c == ']' && i + 1 < markdown.size() && markdown[i + 1] == '(') {
      i = std::min(markdown.find(')', i), markdown.size());
    } else {
      text += c;
    }
  }
  return text;
}

class explainer {
 public:
  explainer(const deck_reading& deck, explained_log& result) : deck_(deck), result_(result) {
    for (std::size_t i = 0; i < deck.profiles().size(); ++i) profiles_.emplace_back(deck, i);
  }

  void add(const log_message& message);
  /// What may have ended a log that states no cause.
  void add_endings(std::string_view last_line, std::size_t profile);

 private:
  [[nodiscard]] bool continues(const log_message& message) const;
  void find_places_of(const log_message& message, explanation& into) const;

  const deck_reading& deck_;
  explained_log& result_;
  std::vector<profile_view> profiles_;
  const known_message* last_ = nullptr;
  std::size_t last_variant_ = 0, last_profile_ = 0;
};

/// Whether the message belongs to the one before: the same with other numbers, or a line of its codes.
bool explainer::continues(const log_message& message) const {
  return message.known && message.known == last_ && message.profile == last_profile_ &&
         (message.variant == last_variant_ || message.numbers.empty());
}

void explainer::find_places_of(const log_message& message, explanation& into) const {
  if (message.kind == message_kind::refusal) {
    if (message.line > 0)
      into.places.push_back(
          {{message.line, message.column, std::max<std::size_t>(message.length, 1)}, "here"});
    return;
  }
  if (!message.known || message.known->places.empty() || message.profile >= profiles_.size()) return;
  const auto variants = split(message.known->places, '|');
  const std::string_view targets = variants.size() == 1 ? variants[0] : variants[message.variant];
  if (targets.empty()) return;
  auto places = find_places(deck_, profiles_[message.profile], targets, message.numbers);
  if (places.empty() && into.places.empty()) places.push_back(find_place(deck_, message.profile, {""}));
  for (named_place& found : places) {
    const auto same = [&](const named_place& p) {
      return p.place.line == found.place.line && p.place.column == found.place.column;
    };
    if (std::none_of(into.places.begin(), into.places.end(), same)) into.places.push_back(std::move(found));
  }
}

void explainer::add(const log_message& message) {
  if (message.kind == message_kind::news) return;
  const bool more = continues(message);
  if (!more) {
    result_.messages.push_back({message.kind, {}, "", {}});
    explanation& now = result_.messages.back();
    if (message.known) now.meaning = plain(message.known->meaning);
    if (message.refusal) now.meaning = plain(message.refusal->meaning);
    if (message.kind == message_kind::unknown) {
      now.meaning = "this message is not known";
      result_.complete = false;
    }
  }
  explanation& now = result_.messages.back();
  now.lines.insert(now.lines.end(), message.lines.begin(), message.lines.end());
  if (!more || !message.numbers.empty()) find_places_of(message, now);
  last_ = message.known;
  last_variant_ = message.variant;
  last_profile_ = message.profile;
}

void explainer::add_endings(std::string_view last_line, std::size_t profile) {
  const auto is_last = [&](std::string_view phrases) {
    for (const std::string_view phrase : split(phrases, '|'))
      if (last_line.find(phrase) != std::string_view::npos) return true;
    return false;
  };
  for (const known_ending& row : known_endings()) {
    if (!is_last(row.lines)) continue;
    explanation cause{message_kind::error, {}, plain(row.meaning), {}};
    if (profile < profiles_.size()) cause.places = find_places(deck_, profiles_[profile], row.places, {});
    if (!row.places.empty() && cause.places.empty()) continue;
    cause.meaning = "the log ends without its cause; it may be: " + cause.meaning;
    result_.messages.push_back(std::move(cause));
    if (is_last("ERROR EXIT")) return;
  }
}

bool states_cause(const explanation& e) { return e.kind != message_kind::warning; }

}  // namespace

std::string explanation::text(const deck_reading& deck) const {
  std::string result;
  const char* kind_word = kind == message_kind::warning ? "warning: "
                          : kind == message_kind::error ? "error: "
                                                        : "";
  for (std::size_t i = 0; i < lines.size() && i < MOST_LINES; ++i)
    result += (i == 0 ? kind_word : "  ") + lines[i] + "\n";
  if (lines.size() > MOST_LINES)
    result += "  and " + std::to_string(lines.size() - MOST_LINES) + " more lines\n";
  result += (lines.empty() ? "error: " : "  ") + meaning;
  for (std::size_t i = 0; i < places.size() && i < MOST_PLACES; ++i)
    result += "\n" + deck.described(places[i].place, places[i].name);
  if (places.size() > MOST_PLACES)
    result += "\n  and " + std::to_string(places.size() - MOST_PLACES) + " more places";
  return result;
}

std::vector<const explanation*> explained_log::failure() const {
  std::vector<const explanation*> found;
  for (const explanation& e : messages) {
    if (!states_cause(e)) continue;
    found.push_back(&e);
    if (!e.places.empty()) break;
  }
  return found;
}

explained_log explain(std::string_view log, const deck_reading& deck) {
  explained_log result;
  explainer now(deck, result);
  const run_log read = read_log(log);
  for (const log_message& message : read.messages) now.add(message);
  const bool good_end = read.last_line == "NORMAL EXIT FROM TERVAK";
  if (!good_end && std::none_of(result.messages.begin(), result.messages.end(), states_cause))
    now.add_endings(read.last_line, read.profiles_finished);
  return result;
}

}  // namespace tervak::check
