#include "BlockKeeper/AllocationCallbacks.hpp"

#include <cstdlib>
#include <new>

namespace BlockKeeper {

void* AllocationCallbacks::New(std::size_t size) {
  if (void* block = std::malloc(size == 0 ? 1 : size)) return block;
  throw std::bad_alloc();
}

void AllocationCallbacks::Delete(void* pointer) noexcept { std::free(pointer); }

}  // namespace BlockKeeper
