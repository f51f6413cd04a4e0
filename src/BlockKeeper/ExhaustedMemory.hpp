#pragma once

#include <cstdlib>
#include <exception>
#include <new>

namespace BlockKeeper {

/// Ends a program with STATUS where memory is exhausted and no handler can be reached: before main, while the
/// tables are made, and in functions of the standard library that let no exception out. Anything else that
/// is thrown there is an error of the program and aborts it. One object a program, made before all others:
///
///   [[gnu::init_priority(101)]] const BlockKeeper::ExhaustedMemory<2> exhausted_memory;
template <int STATUS>
class ExhaustedMemory {
 public:
  ExhaustedMemory() noexcept { std::set_terminate(End); }

 private:
  /// Behind a function that lets nothing out the exception may be unknown here; the library's own throw
  /// nothing but this there.
  [[noreturn]] static void End() {
    try {
      if (const std::exception_ptr thrown = std::current_exception()) std::rethrow_exception(thrown);
    } catch (const std::bad_alloc&) {  // exits, below
    } catch (...) {
      std::abort();
    }
    std::_Exit(STATUS);
  }
};

}  // namespace BlockKeeper
