#include "fem/utils/source_position.hpp"

#include <stdexcept>
#include <string>
#include <string_view>

namespace fem::utils {

namespace {

std::string position(std::string_view file, int line) {
  const std::size_t slash = file.find_last_of("/\\");
  if (slash != std::string_view::npos) file.remove_prefix(slash + 1);
  return std::string(file) + "(" + std::to_string(line) + ")";
}

}  // namespace

void not_implemented(const char* file, int line) {
  throw std::runtime_error("Not implemented: " + position(file, line));
}

void unreachable(const char* file, int line) {
  throw std::runtime_error("Control flow passes through branch that should be unreachable: " +
                           position(file, line));
}

void assertion_failed(const char* condition, const char* file, int line) {
  throw std::runtime_error(position(file, line) + ": ASSERT(" + condition + ") failure.");
}

}  // namespace fem::utils
