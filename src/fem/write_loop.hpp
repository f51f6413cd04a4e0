#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <optional>
#include <string_view>

#include "fem/format_cursor.hpp"
#include "fem/io.hpp"
#include "fem/utils/text_ref.hpp"

namespace fem {

/// One write statement. Items are handed over one call each, then finish() ends the record and flushes; a
/// destructor that finds the statement unfinished ends it. Records on a numbered unit end in CR LF, on units
/// 0, 5 and 6 and in a text target in LF. A text target is filled with blanks, what does not fit is dropped.
///
/// Traps: a text constant stands right-justified in its field, a fixed-length text left-justified. E and D
/// fields show asterisks when they are too narrow, F and I fields widen. A NaN prints "isNAN" and leaves its
/// descriptor to the next item. Output errors are not noticed; a failure in the format ends the statement
/// with what was written so far, without a record end.
class write_loop {
 public:
  write_loop(io& units, int unit, std::string_view format);
  write_loop(io& units, int unit, io_mode unformatted_or_list_directed);
  write_loop(text_ref target, std::string_view format);
  ~write_loop() noexcept(false);
  write_loop(const write_loop&) = delete;
  write_loop& operator=(const write_loop&) = delete;

  write_loop& operator()(const char* text);
  write_loop& operator()(text_ref text) { return fixed_length(text.view()); }
  template <std::size_t N>
  write_loop& operator()(const fixed_text<N>& text) {
    return fixed_length(text.view());
  }
  write_loop& operator()(int value);
  write_loop& operator()(double value);
  write_loop& operator()(char) = delete;
  write_loop& operator()(bool) = delete;

  /// Ends the statement; a second call does nothing.
  void finish();

 private:
  /// A failure takes the stream away, so that nothing follows what was written so far. Nothing is done once
  /// the stream is gone.
  template <class Action>
  write_loop& guarded(Action action) {
    if (!out_) return *this;
    try {
      action();
    } catch (...) {
      hand_over();
      out_.reset();
      throw;
    }
    return *this;
  }
  /// An item, as the kind of statement has it.
  template <class Unformatted, class ListDirected, class Formatted>
  write_loop& by_mode(Unformatted unformatted, ListDirected list_directed, Formatted formatted) {
    return guarded([&] {
      switch (mode_) {
        case io_mode::unformatted:
          return unformatted();
        case io_mode::list_directed:
          return list_directed();
        case io_mode::formatted:
          return formatted();
      }
    });
  }
  template <class Value>
  void put_raw(const Value& value);
  write_loop& fixed_length(std::string_view text);
  /// The descriptor of the next item; none where the format has ended.
  const format_token* next_edit_descriptor(bool final);
  void act_on_op(char op, bool final);
  void act_on_control(const format_token& token);
  void edit_text_constant(std::string_view text);
  void edit_fixed_length(std::string_view text);
  void edit_integer(int value);
  void edit_real(double value);
  void put_edited(std::string_view field);
  void put_list_directed_text(std::string_view text);
  void put_list_directed_number(std::string_view number);
  void put_list_directed(std::string_view item, bool separated);
  void put(std::string_view text);
  void put_blanks(std::size_t count);
  void put_pending_blanks();
  void put_record_end();
  void hand_over();
  void end_statement();

  bool use_crlf_ = false;
  std::size_t column_ = 0;
  bool prev_was_string_ = false;
  int scale_factor_ = 0;
  std::size_t pending_blanks_ = 0;
  bool dollar_seen_ = false;
  std::unique_ptr<utils::simple_ostream> out_;  ///< null once the statement has ended
  int internal_length_ = -1;                    ///< length of the text target, -1 for a unit
  io_mode mode_ = io_mode::formatted;
  std::optional<format_cursor> cursor_;
  bool terminated_by_colon_ = false;
  int exceptions_at_start_;

  // Text on its way to the stream: one call of the stream a statement, not one an item.
  std::array<char, 512> waiting_;
  std::size_t waiting_size_ = 0;
};

}  // namespace fem
