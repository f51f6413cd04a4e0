#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "fem/format_cursor.hpp"
#include "fem/io.hpp"
#include "fem/utils/string_to_double.hpp"
#include "fem/utils/text_ref.hpp"

namespace fem {

/// One read statement, with a format or list-directed. However few items it takes, its end leaves the unit at
/// the start of the next line; a destructor that finds the statement unfinished ends it, also behind a
/// failure. Failures throw read_end at end of input, io_err otherwise, also where iostat is set; the unit
/// stays open and usable.
///
/// Traps: a text takes as many characters as it is long, whatever smaller width the format gives. A field of
/// blanks is 0. A line shorter than what is asked for is filled out. What follows a number inside its field
/// is not looked at.
class read_loop {
 public:
  read_loop(io& units, int unit, std::string_view format);
  read_loop(io& units, int unit, io_mode unformatted_or_list_directed = io_mode::list_directed);
  read_loop(std::unique_ptr<utils::simple_istream> in, std::string_view format);
  ~read_loop() noexcept(false);
  read_loop(const read_loop&) = delete;
  read_loop& operator=(const read_loop&) = delete;

  /// Receives 0 when the statement ends well, 1 on failures, -1 at end of input.
  read_loop& iostat(int* iostat);

  read_loop& text(text_ref text);
  read_loop& integer(int& value);
  read_loop& real(double& value);

  read_loop& operator()(text_ref item) { return text(item); }
  read_loop& operator()(int& item) { return integer(item); }
  read_loop& operator()(double& item) { return real(item); }

  /// Ends the statement; a second call does nothing.
  void finish();

 private:
  void check_open() const;
  int get_char();
  int get_folded();
  std::string_view next_edit_descriptor();
  void act_on_op(char op);
  void act_on_control(std::string_view descriptor);
  void skip_in_line(int count);
  void skip_line();
  void skip_unformatted_record();
  void skip_ahead_of_text(std::size_t count);
  void text_in_line(text_ref text);
  void text_unformatted(text_ref text);
  int integer_field(int width);
  int integer_free();
  double real_field(int width, int decimals);
  double real_free();
  double value_of(const utils::number_result& result);
  [[noreturn]] void fail_at_end(const std::string& text);
  [[noreturn]] void fail(const std::string& text);
  void end_statement();

  std::unique_ptr<utils::simple_istream> in_;  ///< null once the statement has ended or failed
  bool first_char_ = true;                     ///< nothing was taken yet: end of input is a failure
  std::optional<format_cursor> cursor_;
  bool blanks_zero_ = false;
  int scale_factor_ = 0;
  io_mode mode_ = io_mode::formatted;
  int* iostat_ = nullptr;
  int exceptions_at_start_;
};

}  // namespace fem
