#include "GenLibrarySupportFiles/lmxparse/stack_guard.h"

#include <pthread.h>

#include <algorithm>
#include <cstddef>

namespace lmx {

namespace {

// What a level may need beside its own calls: attributes, patterns, a host's hooks, and later the calls that
// copy, check or destroy what was read, which need less for each level than reading does.
constexpr std::size_t margin = 96 * 1024;

// On a stack that is not the thread's own, such as a coroutine's, nothing tells where it ends.
constexpr std::size_t assumed_on_a_foreign_stack = 32 * 1024;

// The address of a frame of this call. Not inlined, so that it is below the caller's.
__attribute__((noinline)) char const* here() { return static_cast<char const*>(__builtin_frame_address(0)); }

}  // namespace

void stack_guard::begin() {
  char const* const now = here();
  mp_lowest = now - assumed_on_a_foreign_stack;
  pthread_attr_t attributes;
  if (pthread_getattr_np(pthread_self(), &attributes) != 0) return;
  void* bottom = nullptr;
  std::size_t size = 0;
  if (pthread_attr_getstack(&attributes, &bottom, &size) == 0) {
    char const* const low = static_cast<char const*>(bottom);
    // A small stack keeps half of what is left for the margin.
    if (now >= low && now < low + size)
      mp_lowest = low + std::min(margin, static_cast<std::size_t>(now - low) / 2);
  }
  pthread_attr_destroy(&attributes);
}

bool stack_guard::has_room() {
  if (mp_lowest == nullptr) begin();
  return here() > mp_lowest;
}

}  // namespace lmx
