// The allocation operators of the program. The sanitizer build leaves them out: the sanitizer has its own.

#include <cstddef>
#include <new>

#include "BlockKeeper/AllocationCallbacks.hpp"

void* operator new(std::size_t size) { return BlockKeeper::AllocationCallbacks::New(size); }
void* operator new[](std::size_t size) { return BlockKeeper::AllocationCallbacks::New(size); }
void operator delete(void* pointer) noexcept { BlockKeeper::AllocationCallbacks::Delete(pointer); }
void operator delete[](void* pointer) noexcept { BlockKeeper::AllocationCallbacks::Delete(pointer); }
void operator delete(void* pointer, std::size_t) noexcept {
  BlockKeeper::AllocationCallbacks::Delete(pointer);
}
void operator delete[](void* pointer, std::size_t) noexcept {
  BlockKeeper::AllocationCallbacks::Delete(pointer);
}
