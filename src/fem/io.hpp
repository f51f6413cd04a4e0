#pragma once

#include <cstdio>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "fem/utils/scratch_names.hpp"
#include "fem/utils/simple_istream.hpp"
#include "fem/utils/simple_ostream.hpp"

namespace fem {

/// How a statement transfers its items.
enum class io_mode { unformatted = 0, list_directed = 1, formatted = 2 };

enum class file_access { sequential = 0, direct = 1, unspecified = 2 };
enum class file_form { formatted = 0, unformatted = 1, unspecified = 2 };
enum class file_blank { null = 0, unspecified = 2 };
enum class file_status { old_file = 0, new_file = 1, scratch = 2, unknown = 3, unspecified = 4 };

/// The record of one unit. The stream belongs to the unit table, but for the standard units 0, 5 and 6.
struct unit_file {
  int unit = 0;
  std::string file_name;        ///< as used to open the file; empty for the standard units
  std::FILE* stream = nullptr;  ///< null while not open
  bool writing = false;         ///< prepared for writing since the last open, read or rewind
  file_access access = file_access::unspecified;
  file_form form = file_form::unspecified;
  int recl = 0;  ///< record length, 0 when not given
  file_blank blank = file_blank::unspecified;
  file_status status = file_status::unspecified;
  int open_failed = 0;  ///< 1 after a failed open or rewind
};

/// The table of numbered units. Units 0, 5 and 6 are the standard error, input and output streams: never
/// closed, truncated or deleted. A unit that no one opened comes into being at its first use, on the file
/// "fem_io_unit_030" for unit 30. Destruction closes all units and deletes scratch files.
///
/// An open file may be read and then written: the first write behind an open, a read or a rewind cuts the
/// file at the present position.
///
/// iostat is 0 or 1 (-1 at end of input, reads only); where a pointer to one is given nothing is thrown,
/// without one failures throw io_err. finish_open is the exception: success leaves iostat as it was, so that
/// the failure of an earlier open stays visible.
class io {
 public:
  io();
  ~io();
  io(io&&) noexcept = default;
  io& operator=(io&& other) noexcept;
  io(const io&) = delete;
  io& operator=(const io&) = delete;

  /// First half of an open statement; open_chain.hpp states a whole one. Closes what the unit was connected
  /// to. The caller then sets access, form, status and recl.
  unit_file& open_unit(int unit, std::string_view file_name);

  /// Second half. An OLD file that does not exist throws nothing even without iostat; the unit then has no
  /// stream.
  void finish_open(unit_file& file, int* iostat);

  /// A unit that is not in the table is passed over, iostat stays as it was.
  void close_unit(int unit, int* iostat = nullptr, bool remove = false);
  void rewind_unit(int unit, int* iostat = nullptr);

  /// Cuts the file at the present position.
  void end_file(int unit);

  /// There is none: always throws "Not implemented: ".
  [[noreturn]] void backspace(int unit);

  /// The stream for one statement. A unit without a stream throws io_err.
  std::unique_ptr<utils::simple_ostream_to_c_file> stream_for_writing(int unit);
  std::unique_ptr<utils::simple_istream_from_c_file> stream_for_reading(int unit);

  /// Index of a keyword (blanks at its ends and case do not count) in a null-ended table. Without a match -1,
  /// or where a context is given a std::runtime_error: `OPEN FORM: invalid keyword: "PRINT"`.
  static int keyword_index(const char* const* table, std::string_view text, const char* context);

  /// Deletes the regular files of the current directory whose names begin with "fem_io", of whichever run.
  static void remove_runtime_files();

  [[nodiscard]] static bool is_standard_unit(int unit) { return unit == 0 || unit == 5 || unit == 6; }

 private:
  unit_file& fetch(int unit);
  void disconnect(unit_file& file, bool remove);
  std::string actual_name(const unit_file& file);

  std::map<int, unit_file> units_;
  utils::scratch_names scratch_names_;
};

}  // namespace fem
