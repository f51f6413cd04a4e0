#pragma once

namespace fem::utils {

/// Failures that name the place in the runtime where they arise, as "write_loop.cpp(120)". The place is that
/// of the call; nobody passes `file` and `line`.

/// Throws std::runtime_error: "Not implemented: " and the place.
[[noreturn]] void not_implemented(const char* file = __builtin_FILE(), int line = __builtin_LINE());

/// Throws std::runtime_error: "Control flow passes through branch that should be unreachable: " and the
/// place.
[[noreturn]] void unreachable(const char* file = __builtin_FILE(), int line = __builtin_LINE());

/// Throws std::runtime_error: the place, ": ASSERT(", the condition as written, ") failure."
[[noreturn]] void assertion_failed(const char* condition, const char* file = __builtin_FILE(),
                                   int line = __builtin_LINE());

}  // namespace fem::utils
