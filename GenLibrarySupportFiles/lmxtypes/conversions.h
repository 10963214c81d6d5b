// The conversions between text and value that the value specs hold, one overload for each type. They
// cannot fail: lexical and value validators stand in front of them, and a text those would refuse still
// gives some value. Dates, decimals and the output of strings, booleans and doubles have theirs beside the
// type or the writer.
#pragma once

#include <cstdint>
#include <iosfwd>
#include <string>

#include "GenLibrarySupportFiles/lmxinternals/api.h"

namespace lmx {

class c_binary;

/// A value of string type: UTF-8 bytes.
using tlmx_unicode_string = std::string;

/// The integer that C text starts with: white space, an optional sign, then digits of `base` (10 or 16,
/// without a "0x") up to the first other byte. No digits give 0. A number that 32 bits cannot hold gives
/// the nearest one they can, whatever the width of `long`.
ISOXML_API std::int32_t text_to_int32(char const* text, unsigned int base = 10);
/// The same without a sign of its own: "-1" gives 4294967295, a number too large in size gives the highest.
ISOXML_API std::uint32_t text_to_uint32(char const* text, unsigned int base = 10);

/// Copies.
ISOXML_API void v_to_o(std::string& value, std::string const& text);
/// A number is first clamped to 32 bits and then cut to the type: 8 bits from "300" hold 44, from
/// "99999999999" they hold 255.
ISOXML_API void v_to_o(unsigned char& value, std::string const& text);
ISOXML_API void v_to_o(unsigned short& value, std::string const& text);
ISOXML_API void v_to_o(int& value, std::string const& text);
ISOXML_API void v_to_o(unsigned int& value, std::string const& text);
/// True for "true" and "1", false for everything else.
ISOXML_API void v_to_o(bool& value, std::string const& text);
/// "NaN", "INF" and "-INF", or a number read as by `strtod` in the "C" locale, whatever the locale in
/// force. Too large gives an infinity, no number 0.
ISOXML_API void v_to_o(double& value, std::string const& text);
/// Pairs of hexadecimal digits, see `c_binary::from_hex`.
ISOXML_API void v_to_o(c_binary& value, std::string const& text);

/// The value's decimal digits, a byte as a number too. The stream's flags, width and locale play no part.
ISOXML_API std::ostream& o_to_v(std::ostream& out, unsigned char const& value);
ISOXML_API std::ostream& o_to_v(std::ostream& out, unsigned short const& value);
ISOXML_API std::ostream& o_to_v(std::ostream& out, int const& value);
ISOXML_API std::ostream& o_to_v(std::ostream& out, unsigned int const& value);
/// Upper-case hexadecimal digits, two for each byte, see `c_binary::out_hex`.
ISOXML_API std::ostream& o_to_v(std::ostream& out, c_binary const& value);

/// For the spec of a type without content, which must never convert: stops the process.
template <class T>
void v_to_o_not_used(T&, std::string const&) {
  LMX_ASSERT_TEXT(false, "v_to_o_not_used");
}

/// For the spec of a type without content, which must never convert: stops the process.
template <class T>
std::ostream& o_to_v_not_used(std::ostream& out, T const&) {
  LMX_ASSERT_TEXT(false, "o_to_v_not_used");
  return out;
}

}  // namespace lmx
