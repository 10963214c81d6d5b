#include "GenLibrarySupportFiles/lmxparse/stack_guard.h"

#include <pthread.h>
#include <sys/resource.h>

#include <algorithm>
#include <cstddef>

#include "GenLibrarySupportFiles/lmxparse/limits.h"

namespace lmx {

namespace {

// The address of a frame of this call. Not inlined, so that it is below the caller's.
__attribute__((noinline)) char const* here() { return static_cast<char const*>(__builtin_frame_address(0)); }

struct stack_bounds {
  char const* low = nullptr;
  char const* high = nullptr;
};

stack_bounds ask_for_bounds() {
  stack_bounds bounds;
  pthread_attr_t attributes;
  if (pthread_getattr_np(pthread_self(), &attributes) != 0) return bounds;
  void* bottom = nullptr;
  std::size_t size = 0;
  if (pthread_attr_getstack(&attributes, &bottom, &size) == 0) {
    bounds.low = static_cast<char const*>(bottom);
    bounds.high = bounds.low + size;
  }
  pthread_attr_destroy(&attributes);
  return bounds;
}

// Asking takes long: for a process's first thread the C library reads a file of the kernel's. The answer
// holds for as long as the thread lives and the limit on stacks stays as it is.
stack_bounds bounds_of_this_thread() {
  struct answer {
    stack_bounds bounds;
    rlim_t limit = 0;
    bool is_there = false;
  };
  thread_local answer known;
  rlimit limit{};
  getrlimit(RLIMIT_STACK, &limit);
  if (!known.is_there || known.limit != limit.rlim_cur) known = {ask_for_bounds(), limit.rlim_cur, true};
  return known.bounds;
}

}  // namespace

void stack_guard::begin() {
  m_has_begun = true;
  char const* const now = here();
  stack_bounds const bounds = bounds_of_this_thread();
  mp_lowest =
      now >= bounds.low && now < bounds.high
          ? bounds.low + std::min(limits::stack_margin, static_cast<std::size_t>(now - bounds.low) / 2)
          : now - limits::foreign_stack;
}

bool stack_guard::p_has_room() {
  if (!m_has_begun) begin();
  return here() > mp_lowest;
}

}  // namespace lmx
