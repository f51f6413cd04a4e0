#pragma once

#include <cstddef>
#include <cstdio>
#include <string>
#include <utility>

namespace fem::utils {

/// What `get` returns besides the characters 0 to 255.
constexpr int END_OF_INPUT = 256;
constexpr int READ_ERROR = 257;

/// Where a read statement takes its characters from.
class simple_istream {
 public:
  virtual ~simple_istream() = default;
  /// The next character, END_OF_INPUT or READ_ERROR.
  virtual int get() = 0;
  /// Moves back by the character of the last `get`, one step at most; nothing at end of input.
  virtual void backup() = 0;
};

/// Input from a C stream that belongs to somebody else.
class simple_istream_from_c_file : public simple_istream {
 public:
  explicit simple_istream_from_c_file(std::FILE* stream) : stream_(stream) {}
  int get() override;
  void backup() override;

 private:
  std::FILE* stream_;
  int last_ = END_OF_INPUT;
};

/// Input from a text that the stream owns.
class simple_istream_from_std_string : public simple_istream {
 public:
  explicit simple_istream_from_std_string(std::string text) : text_(std::move(text)) {}
  int get() override;
  void backup() override;

 private:
  std::string text_;
  std::size_t next_ = 0;
  bool last_was_character_ = false;
};

}  // namespace fem::utils
