// Integers of any length. A value is its decimal digits as text, never a machine number, so an integer of
// 300 digits is compared with a bound as exactly as one of three. There is no arithmetic.
//
// The relations with text exist for the range tests of the reader: each integer attribute is compared with
// its two bounds while it is still text. They walk the text in place and allocate nothing.
#pragma once

#include <cstdint>
#include <iosfwd>
#include <string>
#include <string_view>
#include <utility>

#include "GenLibrarySupportFiles/lmxinternals/api.h"

namespace lmx {

/// An integer of any length (XML Schema Part 2, 3.3.13 "integer"). Its text is an optional "-" and at least
/// one digit, without leading zeros; zero is "0" and has no sign.
///
/// Errors: none are reported but by the flag of get(). Text is read as far as it is an integer and the rest
/// is dropped; is_valid_integer() gives a verdict on text before a value is made of it.
/// Threads: as for std::string; there is no shared state.
class ISOXML_API c_big_int {
 public:
  /// Zero.
  c_big_int() : m_text(1, '0') {}
  /// Reads an optional sign and digits, and drops whatever follows. No digits give zero, and so do a sign
  /// alone, "-0", the empty text and a null pointer.
  c_big_int(char const* text) { p_init(text); }
  /// The same, up to the first NUL.
  c_big_int(std::string const& text) { p_init(text.c_str()); }
  c_big_int(std::int32_t value);
  /// Cut to 32 bits, on every platform.
  c_big_int(long value) : c_big_int(static_cast<std::int32_t>(value)) {}
  // Every other integer is taken as it is.
  c_big_int(unsigned int value) : c_big_int(static_cast<unsigned long long>(value)) {}
  c_big_int(unsigned long value) : c_big_int(static_cast<unsigned long long>(value)) {}
  c_big_int(long long value);
  c_big_int(unsigned long long value);
  c_big_int(c_big_int const&) = default;
  /// Leaves zero behind.
  c_big_int(c_big_int&& other) noexcept : c_big_int() { swap(other); }
  ~c_big_int() = default;

  // Each assignment builds the new value first, so the old one stays if memory runs out, and the new one
  // may be taken from the object's own text.
  c_big_int& operator=(c_big_int const& value) { return p_take(c_big_int(value)); }
  c_big_int& operator=(c_big_int&& value) noexcept { return p_take(std::move(value)); }
  c_big_int& operator=(char const* text) { return p_take(c_big_int(text)); }
  c_big_int& operator=(std::string const& text) { return p_take(c_big_int(text)); }
  c_big_int& operator=(std::int32_t value) { return p_take(c_big_int(value)); }
  c_big_int& operator=(long value) { return p_take(c_big_int(value)); }
  c_big_int& operator=(unsigned int value) { return p_take(c_big_int(value)); }
  c_big_int& operator=(unsigned long value) { return p_take(c_big_int(value)); }
  c_big_int& operator=(long long value) { return p_take(c_big_int(value)); }
  c_big_int& operator=(unsigned long long value) { return p_take(c_big_int(value)); }

  /// Exchanges the two values.
  void swap(c_big_int& other) noexcept { m_text.swap(other.m_text); }

  /// The value's text.
  std::string get_as_string() const { return m_text; }
  /// The value as a signed 32-bit number, wrapped if it does not fit. `overflow`, which may be null, is set
  /// to whether the magnitude is above 2147483647: it is for -2147483648, though that value comes out right.
  std::int32_t get(bool* overflow = nullptr) const noexcept { return p_get(m_text, overflow); }
  /// The value as a double, built up digit by digit from the left. Digits beyond what a double holds are
  /// rounded away at each step; above 308 digits the result is an infinity.
  double get_as_float() const noexcept { return p_get_as_float(m_text); }

  // Relations. A sign and leading zeros of a text do not matter: "+5" and "0005" equal 5, "-000" equals 0.
  // A null text counts as "0". An empty text equals nothing and nothing is greater than it, so every value
  // is less than it, whichever side it stands on.

  friend bool operator==(c_big_int const& a, char const* b) noexcept { return a.p_equals(b); }
  friend bool operator!=(c_big_int const& a, char const* b) noexcept { return !a.p_equals(b); }
  friend bool operator>(c_big_int const& a, char const* b) noexcept { return a.p_is_greater(b); }
  friend bool operator>=(c_big_int const& a, char const* b) noexcept { return a == b || a > b; }
  friend bool operator<(c_big_int const& a, char const* b) noexcept { return !(a == b) && !(a > b); }
  friend bool operator<=(c_big_int const& a, char const* b) noexcept { return !(a > b); }

  friend bool operator==(c_big_int const& a, std::string const& b) noexcept { return a == b.c_str(); }
  friend bool operator!=(c_big_int const& a, std::string const& b) noexcept { return a != b.c_str(); }
  friend bool operator>(c_big_int const& a, std::string const& b) noexcept { return a > b.c_str(); }
  friend bool operator>=(c_big_int const& a, std::string const& b) noexcept { return a >= b.c_str(); }
  friend bool operator<(c_big_int const& a, std::string const& b) noexcept { return a < b.c_str(); }
  friend bool operator<=(c_big_int const& a, std::string const& b) noexcept { return a <= b.c_str(); }

  friend bool operator==(char const* a, c_big_int const& b) noexcept { return b == a; }
  friend bool operator!=(char const* a, c_big_int const& b) noexcept { return b != a; }
  friend bool operator>(char const* a, c_big_int const& b) noexcept { return b < a; }
  friend bool operator>=(char const* a, c_big_int const& b) noexcept { return b <= a; }
  friend bool operator<(char const* a, c_big_int const& b) noexcept { return b > a; }
  friend bool operator<=(char const* a, c_big_int const& b) noexcept { return b >= a; }

  friend bool operator==(std::string const& a, c_big_int const& b) noexcept { return b == a; }
  friend bool operator!=(std::string const& a, c_big_int const& b) noexcept { return b != a; }
  friend bool operator>(std::string const& a, c_big_int const& b) noexcept { return b < a; }
  friend bool operator>=(std::string const& a, c_big_int const& b) noexcept { return b <= a; }
  friend bool operator<(std::string const& a, c_big_int const& b) noexcept { return b > a; }
  friend bool operator<=(std::string const& a, c_big_int const& b) noexcept { return b >= a; }

  friend bool operator==(c_big_int const& a, c_big_int const& b) noexcept { return a.m_text == b.m_text; }
  friend bool operator!=(c_big_int const& a, c_big_int const& b) noexcept { return a.m_text != b.m_text; }
  friend bool operator>(c_big_int const& a, c_big_int const& b) noexcept { return a > b.m_text; }
  friend bool operator>=(c_big_int const& a, c_big_int const& b) noexcept { return a >= b.m_text; }
  friend bool operator<(c_big_int const& a, c_big_int const& b) noexcept { return a < b.m_text; }
  friend bool operator<=(c_big_int const& a, c_big_int const& b) noexcept { return a <= b.m_text; }

 private:
  friend class c_decimal;  // keeps its integral digits as the text of such a number
  friend ISOXML_API std::ostream& operator<<(std::ostream& os, c_big_int const& value);

  void p_init(char const* text);
  c_big_int& p_take(c_big_int value) noexcept {
    swap(value);
    return *this;
  }
  bool p_is_negative() const noexcept { return m_text.front() == '-'; }
  bool p_is_zero() const noexcept { return m_text.front() == '0'; }
  // What the text of a value, as `m_text` has it, stands for.
  static std::int32_t p_get(std::string_view text, bool* overflow) noexcept;
  static double p_get_as_float(std::string_view text) noexcept;
  static bool p_is_greater(std::string_view a, std::string_view b) noexcept;
  bool p_equals(char const* text) const noexcept;
  bool p_is_greater(char const* text) const noexcept;

 protected:
  std::string m_text;  ///< A "-" for a negative number, then its digits without leading zeros.
};

/// Inserts the value's text, as inserting a string does: padded to the stream's width, which is then 0. No
/// other flag and no locale has a say in it.
ISOXML_API std::ostream& operator<<(std::ostream& os, c_big_int const& value);

}  // namespace lmx
