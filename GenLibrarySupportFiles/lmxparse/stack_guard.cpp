#include "GenLibrarySupportFiles/lmxparse/stack_guard.h"

#include <pthread.h>

#include <algorithm>
#include <cstddef>

#include "GenLibrarySupportFiles/lmxparse/limits.h"

namespace lmx {

namespace {

// The address of a frame of this call. Not inlined, so that it is below the caller's.
__attribute__((noinline)) char const* here() { return static_cast<char const*>(__builtin_frame_address(0)); }

}  // namespace

void stack_guard::begin() {
  char const* const now = here();
  mp_lowest = now - limits::foreign_stack;
  pthread_attr_t attributes;
  if (pthread_getattr_np(pthread_self(), &attributes) != 0) return;
  void* bottom = nullptr;
  std::size_t size = 0;
  if (pthread_attr_getstack(&attributes, &bottom, &size) == 0) {
    char const* const low = static_cast<char const*>(bottom);
    if (now >= low && now < low + size)
      mp_lowest = low + std::min(limits::stack_margin, static_cast<std::size_t>(now - low) / 2);
  }
  pthread_attr_destroy(&attributes);
}

bool stack_guard::has_room() {
  if (mp_lowest == nullptr) begin();
  return here() > mp_lowest;
}

}  // namespace lmx
