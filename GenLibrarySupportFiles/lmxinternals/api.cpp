#include "GenLibrarySupportFiles/lmxinternals/api.h"

#include <cstdio>
#include <cstdlib>

namespace lmx::detail {

void assertion_failed(char const* condition, char const* file, int line) noexcept {
  std::fprintf(stderr, "%s:%d: assertion failed: %s\n", file, line, condition);
  std::fflush(stderr);
  std::abort();
}

}  // namespace lmx::detail
