// Loads the library into a process that has no memory for it. A failed allocation in a static initialiser
// would end the host before it could do anything about it.
//
//     library_load LIBRARY
#include <dlfcn.h>

#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <new>

namespace {

bool has_no_memory = false;

}  // namespace

// The library's own calls come here as well; what the loader needs it takes from the C library.
void* operator new(std::size_t size) {
  if (has_no_memory) {
    throw std::bad_alloc();
  }
  void* const p = std::malloc(size != 0 ? size : 1);
  if (p == nullptr) throw std::bad_alloc();
  return p;
}
void operator delete(void* p) noexcept { std::free(p); }
void operator delete(void* p, std::size_t) noexcept { std::free(p); }

namespace {

// True when what the library asks for while it works is refused as well: else it has not met the memory
// above.
bool is_refused_at_work(void* library) {
  auto const construct = reinterpret_cast<void (*)(void*)>(dlsym(library, "_ZN4RootC1Ev"));
  auto const get_task = reinterpret_cast<void* (*)(void*)>(dlsym(library, "_ZN4Root7GetTaskEv"));
  if (construct == nullptr || get_task == nullptr) return false;
  alignas(std::max_align_t) static unsigned char root[256];
  construct(root);
  has_no_memory = true;
  bool is_refused = false;
  try {
    get_task(root);
  } catch (std::bad_alloc const&) {
    is_refused = true;
  }
  has_no_memory = false;
  return is_refused;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  has_no_memory = true;
  void* const library = dlopen(argv[1], RTLD_NOW | RTLD_GLOBAL);
  has_no_memory = false;
  if (library == nullptr) {
    std::fprintf(stderr, "%s\n", dlerror());
    return 1;
  }
  if (!is_refused_at_work(library)) {
    std::fprintf(stderr, "the library has memory of its own\n");
    return 1;
  }
  return 0;
}
