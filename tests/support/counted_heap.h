// What a program takes from the heap: every allocation through `operator new`, by the program and by the
// library in it, is counted. For one source file of a program only, since it defines the operators.
#pragma once

#include <malloc.h>

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <new>

namespace counted_heap {

inline std::size_t now = 0;
inline std::size_t peak = 0;

/// From here on `peak` is the most that is held at once. Returns what is held already.
inline std::size_t restart() { return peak = now; }

// Not inlined: the compiler would see malloc meet operator delete and warn of it.
__attribute__((noinline)) inline void* take(std::size_t size) {
  void* const block = std::malloc(size);
  if (block == nullptr) throw std::bad_alloc();
  now += malloc_usable_size(block);
  peak = std::max(peak, now);
  return block;
}

__attribute__((noinline)) inline void give_back(void* block) noexcept {
  now -= malloc_usable_size(block);
  std::free(block);
}

}  // namespace counted_heap

void* operator new(std::size_t size) { return counted_heap::take(size); }
void operator delete(void* block) noexcept { counted_heap::give_back(block); }
void operator delete(void* block, std::size_t) noexcept { counted_heap::give_back(block); }
