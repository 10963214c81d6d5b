#include "support/failing_memory.h"

#include <dirent.h>

#include <cstddef>
#include <cstdlib>

namespace {

// The tests that use this run in one thread.
long live_objects = 0;
long until_failure = 0;  // 0 when none is due
bool fails_for_ever = false;
bool failed = false;

void* allocate(std::size_t size) {
  if (until_failure != 0 && --until_failure == 0) {
    failed = true;
    if (fails_for_ever) until_failure = 1;
    throw std::bad_alloc();
  }
  void* const p = std::malloc(size != 0 ? size : 1);
  if (p == nullptr) throw std::bad_alloc();
  ++live_objects;
  return p;
}

void release(void* p) {
  if (p != nullptr) --live_objects;
  std::free(p);
}

}  // namespace

// The forms for arrays, without exceptions and with a size come down to these. An aligned object would go
// past them, and there is none.
void* operator new(std::size_t size) { return allocate(size); }
void operator delete(void* p) noexcept { release(p); }
void operator delete(void* p, std::size_t) noexcept { release(p); }

namespace memory {

long live() { return live_objects; }

void fail_at(long n, bool for_ever) {
  failed = false;
  fails_for_ever = for_ever;
  until_failure = n;
}

bool stop_failing() {
  until_failure = 0;
  return failed;
}

int open_files() {
  DIR* const directory = opendir("/proc/self/fd");
  if (directory == nullptr) return -1;
  int count = 0;
  while (readdir(directory) != nullptr) ++count;
  closedir(directory);
  return count;
}

}  // namespace memory
