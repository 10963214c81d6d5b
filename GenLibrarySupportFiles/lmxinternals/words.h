// Eight or sixteen bytes of text at a time. Everything here gives the same on every machine.
//
// Private to the library.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace lmx::words {

/// The bytes of a word.
inline constexpr std::size_t word_size = 8;

inline constexpr std::uint64_t ones = 0x0101010101010101u;
inline constexpr std::uint64_t high_bits = 0x8080808080808080u;
inline constexpr std::uint64_t blanks = ones * static_cast<unsigned char>(' ');

/// The eight bytes at `p`, in memory order.
inline std::uint64_t load(void const* p) {
  std::uint64_t word = 0;
  std::memcpy(&word, p, sizeof word);
  return word;
}
/// The four.
inline std::uint32_t load_4(void const* p) {
  std::uint32_t word = 0;
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

/// The first byte from `p` on that is no blank. It may stop early, where fewer bytes than a word are left.
inline unsigned char const* skip_blanks(unsigned char const* p, unsigned char const* end) {
#if defined(__SSE2__)
  __m128i const sixteen_blanks = _mm_set1_epi8(' ');
  for (; end - p >= 16; p += 16) {
    __m128i const bytes = _mm_loadu_si128(reinterpret_cast<__m128i const*>(p));
    int const others = _mm_movemask_epi8(_mm_cmpeq_epi8(bytes, sixteen_blanks)) ^ 0xFFFF;
    if (others != 0) return p + __builtin_ctz(static_cast<unsigned>(others));
  }
#endif
  while (end - p >= 8 && load(p) == blanks) p += 8;
  return p;
}

#if defined(__SSE2__)
namespace detail {

/// A bit for each of the sixteen bytes at `p`, and none above: 1 for what is not `quote`, "&" or unprintable.
inline unsigned literals(unsigned char const* p, unsigned char quote) {
  // Either quote differs from "&" in one bit. As signed numbers, one more than a byte that is unprintable is
  // at most a blank: that of 127 is the least of all.
  __m128i const bytes = _mm_loadu_si128(reinterpret_cast<__m128i const*>(p));
  __m128i const with_difference = _mm_or_si128(bytes, _mm_set1_epi8(static_cast<char>(quote ^ '&')));
  __m128i const quotes = _mm_cmpeq_epi8(with_difference, _mm_set1_epi8(static_cast<char>(quote | '&')));
  __m128i const printable = _mm_cmpgt_epi8(_mm_add_epi8(bytes, _mm_set1_epi8(1)), _mm_set1_epi8(' '));
  return static_cast<unsigned>(_mm_movemask_epi8(_mm_andnot_si128(quotes, printable)));
}

}  // namespace detail
#endif

/// The first byte from `p` on that is `quote`, "&" or unprintable. It may stop early, where fewer bytes than
/// a word are left.
inline unsigned char const* skip_literal(unsigned char const* p, unsigned char const* end,
                                         unsigned char quote) {
#if defined(__SSE2__)
  for (; end - p >= 16; p += 16) {
    unsigned const literals = detail::literals(p, quote);
    if (literals != 0xFFFF) return p + __builtin_ctz(~literals);
  }
#endif
  for (; end - p >= 8; p += 8) {
    std::uint64_t const word = load(p);
    std::uint64_t const marks = marks_of(word, quote) | marks_of(word, '&') | marks_of_unprintable(word);
    if (marks != 0) return p + before_mark(marks);
  }
  return p;
}

/// How many of the sixteen bytes at `p` stand before the first that is `quote`, "&" or unprintable. It may be
/// fewer, on a machine whose words can not tell.
inline unsigned before_stop(unsigned char const* p, unsigned char quote) {
#if defined(__SSE2__)
  return static_cast<unsigned>(__builtin_ctz(~detail::literals(p, quote)));
#else
  return static_cast<unsigned>(skip_literal(p, p + 16, quote) - p);
#endif
}

/// Copies up to 16 bytes, without the call that a copy of any length costs. The two may overlap.
inline void copy_short(char* to, char const* from, std::size_t size) {
  if (size >= 8) {
    std::uint64_t const first = load(from);
    std::uint64_t const last = load(from + size - 8);
    std::memcpy(to, &first, sizeof first);
    std::memcpy(to + size - 8, &last, sizeof last);
  } else if (size >= 4) {
    char kept[8];
    std::memcpy(kept, from, 4);
    std::memcpy(kept + 4, from + size - 4, 4);
    std::memcpy(to, kept, 4);
    std::memcpy(to + size - 4, kept + 4, 4);
  } else {
    for (std::size_t i = 0; i != size; ++i) to[i] = from[i];
  }
}

/// True when all eight bytes are "0" to "9".
inline bool are_digits(std::uint64_t word) {
  std::uint64_t const upper_halves = word & (ones * 0xF0);
  std::uint64_t const carried = (word + ones * 6) & (ones * 0xF0);
  return upper_halves == ones * 0x30 && carried == ones * 0x30;
}

/// A bit for each byte of the words at `a` and then of those at `b` that is none of "0" to "9".
inline unsigned no_digits(char const* a, char const* b) {
#if defined(__SSE2__)
  __m128i const low = _mm_loadl_epi64(reinterpret_cast<__m128i const*>(a));
  __m128i const high = _mm_loadl_epi64(reinterpret_cast<__m128i const*>(b));
  // As signed numbers, the digits become the least ten of all.
  __m128i const shifted =
      _mm_add_epi8(_mm_unpacklo_epi64(low, high), _mm_set1_epi8(static_cast<char>(0x80 - '0')));
  return static_cast<unsigned>(
      _mm_movemask_epi8(_mm_cmpgt_epi8(shifted, _mm_set1_epi8(static_cast<char>(0x80 + 9)))));
#else
  unsigned bits = 0;
  for (std::size_t i = 0; i != word_size; ++i) {
    bits |= (static_cast<unsigned char>(a[i]) - unsigned{'0'} > 9 ? 1u : 0u) << i;
    bits |= (static_cast<unsigned char>(b[i]) - unsigned{'0'} > 9 ? 1u : 0u) << (word_size + i);
  }
  return bits;
#endif
}

/// True when the bytes are those of `shape` where `fixed` is 0xFF, and "0" to "9" where it is 0.
inline bool has_shape(std::uint64_t word, std::uint64_t shape, std::uint64_t fixed) {
  return ((word ^ shape) & fixed) == 0 && are_digits((word & ~fixed) | (ones * '0' & fixed));
}

}  // namespace lmx::words
