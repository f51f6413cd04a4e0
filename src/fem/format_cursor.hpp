#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <memory_resource>
#include <string_view>
#include <vector>

#include "fem/format_scanner.hpp"

namespace fem {

/// Walks the tokens of a format while the items of one statement are transferred: repeats, groups, and the
/// restart when items outlast the format.
class format_cursor {
 public:
  explicit format_cursor(std::string_view format);

  /// The next token to act on: a descriptor, quoted text or one of : / $. At the end of the list null where
  /// `final` is set (no more items), else record_end(), and the walk goes on at the last group of the
  /// outermost depth, with its repeat count, or at the head of the list. Throws std::runtime_error on a bad
  /// repeat count or parenthesis, io_err on a format without tokens.
  const format_token* next_executable_token(bool final);

  /// The "/" that a restart returns; its address tells it from one in the format.
  static const format_token& record_end();

 private:
  struct frame {
    std::uint32_t start_index;
    std::uint32_t count_left;
  };

  void open_group(std::uint32_t opened_at, std::uint32_t count);
  void close_group();
  const format_token* repeat(const format_token& count);

  std::shared_ptr<const format_scanner> scanner_;
  const std::vector<format_token>& tokens_;
  std::uint32_t next_index_ = 0;
  std::uint32_t restart_index_ = 0;
  std::uint32_t repeats_left_ = 0;
  alignas(frame) std::array<std::byte, 32 * sizeof(frame)> room_;
  std::pmr::monotonic_buffer_resource memory_{room_.data(), room_.size()};
  std::pmr::vector<frame> group_stack_{&memory_};
};

}  // namespace fem
