// Memory that runs out at a chosen moment. A program that links `failing_memory.cpp` has its `operator new`;
// what the C library and libxml2 allocate for themselves is not touched.
#pragma once

#include <gtest/gtest.h>

#include <new>
#include <string>

namespace memory {

/// How many objects are allocated and not freed.
long live();
/// Lets the `n`-th allocation from now on fail, n = 1, 2, ...; with `for_ever` every later one too.
void fail_at(long n, bool for_ever);
/// Ends it. True when an allocation failed.
bool stop_failing();
/// How many files the process has open.
int open_files();

/// Runs `run` with the first allocation failing, then with the second, until it needs no more; then again,
/// with all later ones failing as well. Nothing but `std::bad_alloc` may come out of it, and what it took and
/// opened must be given back. `prepare` comes before each run, `inspect` after each that failed.
template <class Prepare, class Run, class Inspect>
void expect_survives(Prepare prepare, Run run, Inspect inspect) {
  prepare();
  run();  // for what is made on first use and kept
  for (const bool for_ever : {false, true}) {
    for (long n = 1;; ++n) {
      SCOPED_TRACE("allocation " + std::to_string(n) + (for_ever ? " and all later ones" : ""));
      prepare();
      const long live_before = live();
      const int files_before = open_files();
      bool has_thrown = false;
      fail_at(n, for_ever);
      try {
        run();
      } catch (std::bad_alloc const&) {
        has_thrown = true;
      } catch (...) {
        stop_failing();
        throw;
      }
      const bool has_failed = stop_failing();
      const long live_after = live();
      EXPECT_EQ(has_failed, has_thrown) << "a failure was kept quiet";
      EXPECT_EQ(files_before, open_files());
      if (!has_failed) break;
      EXPECT_EQ(live_before, live_after) << "lost";
      inspect();
      if (testing::Test::HasFailure()) return;
    }
  }
}

template <class Run>
void expect_survives(Run run) {
  expect_survives([] {}, run, [] {});
}

/// The same for a change to what `make` makes: a change that fails leaves what `state` tells as it was.
template <class Make, class Change, class State>
void expect_unchanged(Make make, Change change, State state) {
  auto object = make();
  const std::string before = state(object);
  expect_survives([&] { object = make(); }, [&] { change(object); },
                  [&] { EXPECT_EQ(before, state(object)) << "changed by half"; });
}

}  // namespace memory
