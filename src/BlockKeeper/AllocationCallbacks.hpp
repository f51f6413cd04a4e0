#pragma once

#include <cstddef>

namespace BlockKeeper {

/// What stands behind every allocation of the program: the ordinary allocator of the platform.
struct AllocationCallbacks {
  [[nodiscard]] static void* New(std::size_t size);  ///< throws std::bad_alloc when memory is exhausted
  static void Delete(void* pointer) noexcept;
};

}  // namespace BlockKeeper
