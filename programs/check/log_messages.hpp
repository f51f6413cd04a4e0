#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "check/catalogue.hpp"

namespace tervak::check {

enum class message_kind {
  news,     ///< how far the run has come
  warning,  ///< the run goes on
  error,    ///< the run ends
  refusal,  ///< a fault that the reader of the deck found
  unknown,
};

/// A message of the run log.
struct log_message {
  message_kind kind = message_kind::unknown;
  std::vector<std::string> lines;  ///< without the blanks around them; bytes that are no text as "?"
  const known_message* known = nullptr;
  std::size_t variant = 0;  ///< which of the messages of `known`
  std::vector<double> numbers;
  const known_refusal* refusal = nullptr;
  std::size_t line = 0, column = 0, length = 0;  ///< of a refusal
  std::size_t profile = 0;                       ///< from 0, by the profiles that the log has finished
};

struct run_log {
  std::vector<log_message> messages;  ///< in the order of the log, the head and blank lines left out
  std::string last_line;              ///< that is not blank
  std::size_t profiles_finished = 0;
};

/// Takes a run log apart. It may hold anything: bytes that are no text, lines of any length, no head.
[[nodiscard]] run_log read_log(std::string_view text);

}  // namespace tervak::check
