#include "fem/errors.hpp"

#include <utility>

namespace fem {

stop_info::stop_info(std::string source, std::int64_t line, std::int64_t code, std::string message)
    : source_(std::move(source)), line_(line), code_(code), message_(std::move(message)) {}

const char* stop_info::what() const noexcept {
  if (what_.empty()) {
    what_ = "STOP at " + source_ + "(" + std::to_string(line_) + ")";
    if (!message_.empty())
      what_ += ": " + message_;
    else if (code_ > 0)
      what_ += ": code=" + std::to_string(code_);
  }
  return what_.c_str();
}

}  // namespace fem
