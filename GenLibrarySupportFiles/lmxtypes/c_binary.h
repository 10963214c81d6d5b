// Binary values: the bytes of hexBinary and base64Binary texts.
#pragma once

#include <cstddef>
#include <iosfwd>
#include <string>
#include <string_view>

#include "GenLibrarySupportFiles/lmxinternals/api.h"

namespace lmx {

/// A run of bytes of any length, read from and written as hexadecimal or base64 text (XSD part 2, 3.2.15
/// and 3.2.16). Task data uses the hexadecimal form only.
///
/// Errors: reading never fails; `is_valid_hex` and `is_valid_base64` tell beforehand whether a text is one.
class ISOXML_API c_binary {
 public:
  /// No bytes.
  c_binary() = default;
  /// Copies `size` bytes. `bytes` may be null if `size` is 0.
  c_binary(unsigned char const* bytes, unsigned int size);
  c_binary(c_binary const&) = default;
  c_binary(c_binary&&) noexcept = default;
  c_binary& operator=(c_binary const& other);
  c_binary& operator=(c_binary&&) noexcept = default;
  ~c_binary() = default;

  void swap(c_binary& other) noexcept { m_value.swap(other.m_value); }

  /// Replaces the content by a copy of `size` bytes, which may be bytes of this object.
  void set(unsigned char const* bytes, unsigned int size);
  /// Copies the first bytes to `out`, as many as `size` allows and the content has. Gives `out`.
  unsigned char* get(unsigned char* out, unsigned int size) const;

  /// One byte. Stops the process unless `i_in < size()`.
  unsigned char& operator[](unsigned int i_in);
  unsigned char const& operator[](unsigned int i_in) const;
  /// One byte. Errors: throws `std::out_of_range` unless `index < size()`.
  unsigned char& at(unsigned int index) { return p_as_byte(m_value[p_checked(index)]); }
  unsigned char const& at(unsigned int index) const { return p_as_byte(m_value[p_checked(index)]); }

  std::size_t size() const { return m_value.size(); }
  bool empty() const { return m_value.empty(); }
  /// The bytes, valid until the object changes; not to be looked at when there are none.
  unsigned char const* data() const noexcept {
    return reinterpret_cast<unsigned char const*>(m_value.data());
  }

  /// Adds one byte at the end.
  void append(unsigned char byte) { m_value.push_back(static_cast<char>(byte)); }
  c_binary& operator+=(unsigned char byte);

  /// Same size and same bytes. There is no ordering.
  bool operator==(c_binary const& other) const { return m_value == other.m_value; }
  bool operator!=(c_binary const& other) const { return m_value != other.m_value; }
  bool equal(unsigned char const* bytes, unsigned int size) const;

  /// True for an even number of hexadecimal digits, in either case, and nothing else. None is valid too.
  static bool is_valid_hex(std::string const& text);
  /// True for base64 characters, in groups of four once padding is counted in, with at most two bytes of
  /// padding. White space between them is free, but after the padding starts it counts as padding does.
  /// Looser than the standard: blanks alone, at least two, are valid and mean no bytes.
  static bool is_valid_base64(std::string const& text);

  /// Replaces the content: one byte for each pair of digits. A last digit without a partner is dropped.
  /// Nothing is checked, and other characters give senseless bytes.
  void from_hex(std::string const& text) { from_hex_digits(text); }
  /// The same of a text that is no string.
  void from_hex_digits(std::string_view text);
  /// Replaces the content: three bytes for each four base64 characters, and one, one or two for one, two or
  /// three characters left over. All other characters are stepped over.
  void from_base64(std::string const& text);

  /// Writes two upper-case digits for each byte. The stream's fill character is "0" afterwards.
  void out_hex(std::ostream& out) const;
  /// Writes base64 with padding, on one line however long it is.
  void out_base64(std::ostream& out) const;
  std::string get_as_hex_string() const;
  std::string get_as_base64_string() const;

 private:
  std::size_t p_checked(std::size_t index) const {
    if (index >= size()) detail::throw_range_check(index, size());
    return index;
  }
  static unsigned char& p_as_byte(char& c) { return reinterpret_cast<unsigned char&>(c); }
  static unsigned char const& p_as_byte(char const& c) { return reinterpret_cast<unsigned char const&>(c); }
  static unsigned int p_base64_char_to_6_bits(int c);
  static char p_6_bits_to_base64_char(unsigned int bits);
  static void p_convert_24bits_to_4x6bits(std::ostream& out, unsigned int bits, unsigned int count);
  void p_base64_convert_24bits_to_bytes(unsigned int bits, unsigned int count);

  std::string m_value;  // which keeps few bytes in place
};

/// Writes `value` as `out_hex` does. Gives the stream.
ISOXML_API std::ostream& output_convert_to_hex(std::ostream& out, c_binary const& value);
/// Writes `value` as `out_base64` does. Gives the stream.
ISOXML_API std::ostream& output_convert_to_base64(std::ostream& out, c_binary const& value);

}  // namespace lmx
