#include "GenLibrarySupportFiles/lmxinternals/api.h"

#include <cstdio>
#include <cstdlib>
#include <stdexcept>
#include <string>

namespace lmx::detail {

void assertion_failed(char const* condition, char const* file, int line) noexcept {
  std::fprintf(stderr, "%s:%d: assertion failed: %s\n", file, line, condition);
  std::fflush(stderr);
  std::abort();
}

void throw_range_check(std::size_t index, std::size_t size) {
  throw std::out_of_range("vector::_M_range_check: " + std::to_string(index) + " >= " + std::to_string(size));
}

}  // namespace lmx::detail
