#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tervak::check {

/// A message of the run log, or several of one meaning. docs/messages.md and `tervak-check --explain` are
/// both made from this.
struct known_message {
  /// Messages of one meaning are separated by "|", the records of a message by a line end. %i is a whole
  /// number, %x one with a point, %t a text; any number of blanks counts as none.
  std::string_view text;
  std::string_view run;      ///< what becomes of the run, Markdown: "goes on", "ends, 1"; "" for a remark
  std::string_view meaning;  ///< and what to correct, Markdown
  /// Where in the deck it comes from, for each message of `text`, separated by "|"; see places.hpp.
  std::string_view places = {};
};

/// A refusal by the reader of the deck.
struct known_refusal {
  std::string_view says;     ///< Markdown
  std::string_view phrases;  ///< a text that holds one of these is meant; separated by "|"
  std::string_view meaning;
};

/// Why a log ends without a message that states the cause.
struct known_ending {
  std::string_view last_line;  ///< Markdown
  std::string_view lines;      ///< the log's last line holds one of these, separated by "|"; "" is any
  std::string_view meaning;
  std::string_view places = {};  ///< a cause with places holds only where the deck has one of them
};

struct message_section {
  std::string_view title;  ///< heading in docs/messages.md
  const std::vector<known_message>* messages;
};

[[nodiscard]] std::span<const message_section> message_sections();
[[nodiscard]] std::span<const known_refusal> known_refusals();
[[nodiscard]] std::span<const known_ending> known_endings();

/// The rows of docs/messages.md, each table after its heading "## TITLE".
[[nodiscard]] std::string catalogue_page();

/// The parts of a text between the separators, empty ones too.
[[nodiscard]] std::vector<std::string_view> split(std::string_view text, char separator);

}  // namespace tervak::check
