// Eight bytes of text at a time. Everything here gives the same on every machine; what byte order decides is
// only how a stop inside a word is found.
//
// Private to the library.
#pragma once

#include <cstdint>
#include <cstring>

namespace lmx::words {

inline constexpr std::uint64_t ones = 0x0101010101010101u;
inline constexpr std::uint64_t high_bits = 0x8080808080808080u;
inline constexpr std::uint64_t blanks = ones * static_cast<unsigned char>(' ');

/// The eight bytes at `p`, in memory order.
inline std::uint64_t load(void const* p) {
  std::uint64_t word = 0;
  std::memcpy(&word, p, sizeof word);
  return word;
}

// Each of these marks the high bits of the bytes it is about. The first mark in memory order is right, on a
// machine that loads it lowest; behind it there may be marks too many.

inline std::uint64_t marks_of_zero(std::uint64_t word) { return (word - ones) & ~word & high_bits; }
/// Bytes equal to `c`.
inline std::uint64_t marks_of(std::uint64_t word, unsigned char c) {
  return marks_of_zero(word ^ (ones * c));
}
/// Bytes below 32 and above 126.
inline std::uint64_t marks_of_unprintable(std::uint64_t word) {
  return (((word - ones * 32) & ~word) | (word + ones) | word) & high_bits;
}

/// How many bytes stand before the first mark.
inline unsigned before_mark(std::uint64_t marks) {
#if defined(__BYTE_ORDER__) && __BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__
  return static_cast<unsigned>(__builtin_ctzll(marks)) / 8;
#else
  (void)marks;
  return 0;  // a loop over single bytes finds it
#endif
}

/// True when all eight bytes are "0" to "9".
inline bool are_digits(std::uint64_t word) {
  std::uint64_t const upper_halves = word & (ones * 0xF0);
  std::uint64_t const carried = (word + ones * 6) & (ones * 0xF0);
  return upper_halves == ones * 0x30 && carried == ones * 0x30;
}

}  // namespace lmx::words
