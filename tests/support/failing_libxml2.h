// Memory that runs out at a chosen moment for libxml2 alone, which then reports and goes on without. Copies
// of texts always succeed: older releases do not survive the opposite. They also lose some of what they hold
// when they give up, so the leak checker does not look at what they take meanwhile.
#pragma once

#include <libxml/xmlmemory.h>

#include <cstddef>
#include <cstdlib>
#include <cstring>

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#include <sanitizer/lsan_interface.h>
#define ISOXML_TEST_CHECKS_LEAKS
#endif
#endif

namespace libxml2_memory {

// The tests that use this run in one thread.
inline bool is_on = false;
inline long until_failure = 0;  // 0 when none is due
inline bool fails_for_ever = false;
inline bool failed = false;

inline bool fails_now() {
  if (until_failure == 0 || --until_failure != 0) return false;
  failed = true;
  if (fails_for_ever) until_failure = 1;
  return true;
}

/// What `take` gives, unless it is to fail.
template <class Take>
auto allocated(Take take) -> decltype(take()) {
  if (fails_now()) return nullptr;
#ifdef ISOXML_TEST_CHECKS_LEAKS
  if (is_on) {
    __lsan::ScopedDisabler const unchecked;
    return take();
  }
#endif
  return take();
}

/// Lets the `n`-th allocation from now on fail, n = 1, 2, ...; with `for_ever` every later one too.
inline void fail_at(long n, bool for_ever) {
  static bool const is_set_up =
      xmlGcMemSetup(
          [](void* p) { std::free(p); },
          [](std::size_t size) { return allocated([&] { return std::malloc(size); }); },
          [](std::size_t size) { return std::malloc(size); },  // for texts
          [](void* p, std::size_t size) { return allocated([&] { return std::realloc(p, size); }); },
          [](char const* text) { return strdup(text); }) == 0;
  if (!is_set_up) std::abort();
  failed = false;
  fails_for_ever = for_ever;
  until_failure = n;
  is_on = true;
}

/// Ends it. True when an allocation failed.
inline bool stop_failing() {
  is_on = false;
  until_failure = 0;
  return failed;
}

}  // namespace libxml2_memory
