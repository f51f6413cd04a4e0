#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

/// Ends the fuzzer, which keeps the input as a find.
inline void must(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "does not hold: %s\n", what);
  std::abort();
}

/// What is printed about a bad file: `most` bytes, nothing that disturbs a terminal.
inline void must_be_printable(std::string_view text, std::size_t most) {
  must(text.size() <= most, "a message is bounded");
  must(std::none_of(text.begin(), text.end(),
                    [](char c) { return (static_cast<unsigned char>(c) < 0x20 && c != '\n') || c == 0x7f; }),
       "a message has no control bytes");
}
