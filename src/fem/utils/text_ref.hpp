#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace fem {

/// A fixed-length text that lives elsewhere: a pointer and a length, blank-padded, without a terminator.
struct text_ref {
  char* data;
  std::size_t size;

  /// Fills the text: cut where `text` is longer, padded with blanks where it is shorter.
  void assign(std::string_view text) const {
    const std::size_t used = std::min(size, text.size());
    std::copy_n(text.begin(), used, data);
    std::fill(data + used, data + size, ' ');
  }
  [[nodiscard]] std::string_view view() const { return {data, size}; }
};

/// A text of N characters that owns its storage. It starts as N zero bytes, as all of the run state does.
template <std::size_t N>
struct fixed_text {
  std::array<char, N> characters{};

  operator text_ref() { return {characters.data(), N}; }
  void assign(std::string_view text) { text_ref(*this).assign(text); }
  [[nodiscard]] std::string_view view() const { return {characters.data(), N}; }
};

}  // namespace fem
