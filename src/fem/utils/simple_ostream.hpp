#pragma once

#include <cstdint>
#include <cstdio>
#include <string_view>

#include "fem/utils/text_ref.hpp"

namespace fem::utils {

/// Where a write statement puts its characters. Failures are kept for who asks; no write statement does.
class simple_ostream {
 public:
  virtual ~simple_ostream() = default;
  virtual void put(std::string_view text) = 0;
  virtual void put(char c) = 0;
  virtual void flush() = 0;
  [[nodiscard]] virtual bool failed() const = 0;
};

/// Output to a C stream that belongs to somebody else.
class simple_ostream_to_c_file : public simple_ostream {
 public:
  explicit simple_ostream_to_c_file(std::FILE* stream) : stream_(stream) {}
  void put(std::string_view text) override;
  void put(char c) override;
  void flush() override;
  [[nodiscard]] bool failed() const override;

 private:
  std::FILE* stream_;
};

/// Output into a text of fixed length. What finds no room is dropped, and all that follows with it.
class simple_ostream_to_char_ptr_and_size : public simple_ostream {
 public:
  explicit simple_ostream_to_char_ptr_and_size(text_ref target) : target_(target) {}
  void put(std::string_view text) override;
  void put(char c) override;
  void flush() override {}
  [[nodiscard]] bool failed() const override { return position_ < 0; }

 private:
  text_ref target_;
  std::int64_t position_ = 0;  ///< -1 once a character found no room
};

}  // namespace fem::utils
