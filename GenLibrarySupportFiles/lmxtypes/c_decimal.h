// Decimals kept as they are written. A coordinate read from a document is written back with every digit it
// had, so a value is its text: a sign, integral digits, a point and fraction digits. There is no arithmetic:
// values are read, compared, converted to and from machine numbers, and written.
#pragma once

#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <string>
#include <string_view>
#include <utility>

#include "GenLibrarySupportFiles/lmxinternals/api.h"
#include "GenLibrarySupportFiles/lmxtypes/c_big_int.h"
#include "GenLibrarySupportFiles/lmxtypes/compact_text.h"

namespace lmx {

/// A decimal of any length (XML Schema Part 2, 3.2.3 "decimal"). Trailing zeros of the fraction are kept but
/// do not matter in a comparison. Unlike in XML Schema a negative zero is a value of its own: it is not equal
/// to zero and is less than it, so a lower bound of 0.0 refuses "-0.0".
///
/// Errors: none are reported but by the `overflow` flags, which may be null. Text is read as far as it is a
/// decimal and the rest is dropped; is_valid() gives a verdict on text before a value is made of it.
/// Threads: as for std::string; there is no shared state. Where a double is converted, the process locale is
/// read.
class ISOXML_API c_decimal {
 public:
  /// What may stand between the integral digits and the fraction.
  enum e_decimal_separator_handling {
    point_only,      ///< "."
    point_or_locale  ///< "." or the decimal point of the process locale
  };

  /// Zero.
  c_decimal() noexcept : m_text('0') {}
  /// Reads an optional sign, digits, and after a "." more digits, under every locale; drops whatever
  /// follows. No digits give zero; a null pointer counts as the empty text.
  c_decimal(char const* text) { p_init(text, point_only); }
  /// The same, up to the first NUL.
  c_decimal(std::string const& text) { p_init(text.c_str(), point_only); }
  /// `value` divided by ten to the power `scale`: 12345 and 2 give 123.45, 12345 and -2 give 1234500. The
  /// fraction has exactly `scale` digits.
  c_decimal(std::int32_t value, int scale);
  c_decimal(std::int32_t value, unsigned int scale) : c_decimal(value, static_cast<int>(scale)) {}
  /// `value` is cut to 32 bits, on every platform.
  c_decimal(long value, int scale) : c_decimal(static_cast<std::int32_t>(value), scale) {}
  c_decimal(long value, unsigned int scale) : c_decimal(value, static_cast<int>(scale)) {}
  c_decimal(std::int32_t value) : c_decimal(value, 0) {}
  /// `value` is cut to 32 bits, on every platform.
  c_decimal(long value) : c_decimal(value, 0) {}
  // Every other integer is taken as it is.
  c_decimal(unsigned int value) : c_decimal(static_cast<unsigned long long>(value)) {}
  c_decimal(unsigned long value) : c_decimal(static_cast<unsigned long long>(value)) {}
  c_decimal(long long value);
  c_decimal(unsigned long long value);
  /// Rounded to six fraction digits, trailing zeros removed. What is not finite gives zero, with the sign.
  c_decimal(double value) : c_decimal(value, 6u) {}
  /// Rounded to `digits` fraction digits, at most 15; otherwise as above.
  c_decimal(double value, unsigned int digits);
  c_decimal(double value, int digits) : c_decimal(value, static_cast<unsigned int>(digits)) {}
  c_decimal(c_decimal const&) = default;
  /// Leaves zero behind.
  c_decimal(c_decimal&& other) noexcept : c_decimal() { swap(other); }
  ~c_decimal() = default;

  // Each assignment builds the new value first, so the old one stays if memory runs out.
  c_decimal& operator=(c_decimal const& value) { return p_take(c_decimal(value)); }
  c_decimal& operator=(c_decimal&& value) noexcept { return p_take(std::move(value)); }
  c_decimal& operator=(char const* text) { return p_take(c_decimal(text)); }
  c_decimal& operator=(std::string const& text) { return p_take(c_decimal(text)); }
  c_decimal& operator=(std::int32_t value) { return p_take(c_decimal(value)); }
  c_decimal& operator=(long value) { return p_take(c_decimal(value)); }
  c_decimal& operator=(unsigned int value) { return p_take(c_decimal(value)); }
  c_decimal& operator=(unsigned long value) { return p_take(c_decimal(value)); }
  c_decimal& operator=(long long value) { return p_take(c_decimal(value)); }
  c_decimal& operator=(unsigned long long value) { return p_take(c_decimal(value)); }
  /// Rounded to 15 fraction digits, trailing zeros removed: construction keeps six.
  c_decimal& operator=(double value) { return p_take(c_decimal(value, 15u)); }

  /// Takes `value` rounded to `digits` fraction digits, at most 15, trailing zeros removed.
  void set(double value, unsigned int digits) { p_take(c_decimal(value, digits)); }
  /// Takes `value` divided by ten to the power `scale`.
  void set_scaled(std::int32_t value, int scale) { p_take(c_decimal(value, scale)); }
  /// The value times ten to the power `scale`, cut towards zero, as a signed 32-bit number that wraps if it
  /// does not fit. `overflow` is set to whether the magnitude is above 2147483647. When `scale` takes off
  /// all integral digits or more, the result is 0 without overflow.
  std::int32_t get_scaled(int scale, bool* overflow = nullptr) const;

  /// The digits before the point with the sign, as c_big_int::get() gives them.
  std::int32_t get_integral(bool* overflow = nullptr) const noexcept;
  /// Replaces the sign and the digits before the point; the fraction stays. For -2147483648 the text
  /// afterwards begins with two minus signs.
  void set_integral(std::int32_t value);
  /// The first `digits` fraction digits as a number, wrapping in 32 bits: of 0.12, two give 12 and four
  /// give 1200. `overflow` is set to whether it is above 4294967295. Zero or fewer give 0.
  std::uint32_t get_fractional(int digits, bool* overflow = nullptr) const noexcept;
  /// Makes the fraction `digits` digits long: `value` with zeros in front, or only its first `digits`
  /// digits if it has more. 5 in three digits is 005; 12345 in three is 123.
  void set_fractional(std::uint32_t value, unsigned int digits);

  /// The value as a double. All digits together are built up in one double from the left, which is then
  /// divided once by the power of ten of the fraction's length, each step in IEEE double arithmetic: this
  /// order decides the last bit of every coordinate. More than about 15 significant digits lose the low
  /// ones. Fraction digits beyond the 290th are left out, so that the divisor stays finite.
  double get_as_float() const noexcept;
  /// The text that operator<< writes.
  std::string get_as_string() const { return std::string(view()); }
  /// The same, valid until the value changes or moves.
  std::string_view view() const noexcept { return m_text.view(); }

  /// Takes text that is as get_as_string() gives it, which nothing checks.
  void set_canonical(char const* begin, char const* end) {
    m_text.assign({begin, static_cast<std::size_t>(end - begin)});
  }

  /// Exchanges the two values.
  void swap(c_decimal& other) noexcept { m_text.swap(other.m_text); }

  /// True for an optional sign and digits with at most one "." in front, behind or among them, and nothing
  /// else: "5", "5.", ".5". No exponent, no white space; a sign or a "." needs a digit.
  static bool is_valid(std::string const& text) noexcept;

  friend bool operator==(c_decimal const& a, c_decimal const& b) noexcept { return a.p_equals(b); }
  friend bool operator!=(c_decimal const& a, c_decimal const& b) noexcept { return !a.p_equals(b); }
  friend bool operator>(c_decimal const& a, c_decimal const& b) noexcept { return a.p_is_greater(b); }
  friend bool operator>=(c_decimal const& a, c_decimal const& b) noexcept { return a == b || a > b; }
  friend bool operator<(c_decimal const& a, c_decimal const& b) noexcept { return !(a == b) && !(a > b); }
  friend bool operator<=(c_decimal const& a, c_decimal const& b) noexcept { return !(a > b); }

 private:
  friend ISOXML_API std::ostream& operator<<(std::ostream& os, c_decimal const& value);

  // The text taken apart. The integral digits may have a "-" of their own.
  struct s_parts {
    bool is_negative;
    std::string_view integral;
    std::string_view fraction;
  };
  s_parts p_parts() const noexcept;
  void p_init(char const* text, e_decimal_separator_handling handling);
  static bool p_skip_decimal_separator(char const*& text, e_decimal_separator_handling handling);
  static int p_fraction_comp(std::string_view a, std::string_view b) noexcept;
  c_decimal& p_take(c_decimal value) noexcept {
    swap(value);
    return *this;
  }
  bool p_equals(c_decimal const& other) const noexcept;
  bool p_is_greater(c_decimal const& other) const noexcept;

  detail::compact_text m_text;  // as it is written
};

/// Inserts "-" if the value is negative, the integral digits, and "." with the fraction digits if there are
/// any, as inserting a string does: padded to the stream's width, which is then 0. Nothing is rounded or
/// removed: no other flag, no precision and no locale has a say in it.
ISOXML_API std::ostream& operator<<(std::ostream& os, c_decimal const& value);

}  // namespace lmx

namespace velmo::lmx {

/// The type of every attribute that must not lose digits, such as the coordinates of a point. It is a
/// c_decimal in all it does, under a name of its own.
class ISOXML_API high_precision_c_decimal : public ::lmx::c_decimal {
 public:
  using c_decimal::c_decimal;
  using c_decimal::operator=;
  high_precision_c_decimal() = default;
  high_precision_c_decimal(c_decimal const& value) : c_decimal(value) {}
  high_precision_c_decimal(c_decimal&& value) noexcept : c_decimal(std::move(value)) {}
};

}  // namespace velmo::lmx

namespace lmx {

/// Sets `value` from an attribute's text, which is_valid() has seen before.
ISOXML_API void v_to_o(velmo::lmx::high_precision_c_decimal& value, std::string const& text);

}  // namespace lmx
