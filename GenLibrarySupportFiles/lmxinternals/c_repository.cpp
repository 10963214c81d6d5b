#include "GenLibrarySupportFiles/lmxinternals/c_repository.h"

#include <chrono>
#include <cstdint>

namespace lmx::detail {

namespace {

// Arithmetic modulo this prime needs no division.
constexpr std::uint64_t prime = (std::uint64_t{1} << 31) - 1;

constexpr std::uint64_t reduced(std::uint64_t value) {
  value = (value & prime) + (value >> 31);
  return (value & prime) + (value >> 31);
}

constexpr std::uint64_t mixed(std::uint64_t value) {
  value = (value ^ (value >> 30)) * 0xBF58476D1CE4E5B9u;
  value = (value ^ (value >> 27)) * 0x94D049BB133111EBu;
  return value ^ (value >> 31);
}

// What a document cannot know: when and where the process was started.
struct s_secret {
  s_secret() {
    auto const now = static_cast<std::uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count());
    std::uint64_t const chance =
        mixed(now ^ reinterpret_cast<std::uintptr_t>(this)) ^ mixed(reinterpret_cast<std::uintptr_t>(&now));
    constexpr std::uint64_t least = 1u << 24;
    base = least + mixed(chance + 1) % (prime - least);
    factor = mixed(chance + 2) | 1;
  }
  std::uint64_t base;
  std::uint64_t factor;
};

}  // namespace

// The name is a number whose digits are three bytes each, in a secret base.
std::size_t hash_of_name(std::string const& name) {
  static s_secret const secret;
  auto const byte = [&name](std::size_t i) { return std::uint64_t{static_cast<unsigned char>(name[i])}; };
  std::uint64_t hash = reduced(name.size());
  std::size_t i = 0;
  for (; name.size() - i >= 3; i += 3) {
    hash = reduced(hash * secret.base + (byte(i) << 16 | byte(i + 1) << 8 | byte(i + 2)));
  }
  for (; i != name.size(); ++i) hash = reduced(hash * secret.base + byte(i));
  return static_cast<std::size_t>((hash * secret.factor) >> 32);
}

}  // namespace lmx::detail
