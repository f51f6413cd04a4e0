#pragma once

#include <cstdint>
#include <exception>
#include <stdexcept>
#include <string>

namespace fem {

/// An input or output failure that the program may meet on bad files.
struct io_err : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// End of input during a read.
struct read_end : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// A stop of the run from within a stage. The code is -1 when the stop has none.
class stop_info : public std::exception {
 public:
  stop_info(std::string source, std::int64_t line, std::int64_t code, std::string message);
  [[nodiscard]] const char* what() const noexcept override;

 private:
  std::string source_;
  std::int64_t line_;
  std::int64_t code_;
  std::string message_;
  mutable std::string what_;
};

}  // namespace fem
