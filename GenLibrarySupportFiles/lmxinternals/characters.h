// Character classes by ASCII alone. The C library's own follow the process locale, and a document must
// read the same under every locale. White space includes vertical tab and form feed, as in the C locale.
#pragma once

namespace lmx {

/// Blank, TAB, LF, VT, FF or CR. Takes a byte as 0 to 255; anything else, -1 included, is none.
constexpr bool is_space(int c) { return c == ' ' || (c >= '\t' && c <= '\r'); }
/// "0" to "9".
constexpr bool is_digit(int c) { return c >= '0' && c <= '9'; }
/// "A" to "Z" and "a" to "z".
constexpr bool is_letter(int c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }
/// A digit, or "A" to "F" in either case.
constexpr bool is_hex_digit(int c) { return is_digit(c) || (c >= 'A' && c <= 'F') || (c >= 'a' && c <= 'f'); }
/// The lower-case form of "A" to "Z"; any other value as it is.
constexpr int to_lower(int c) { return c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c; }

/// May start an XML name: a letter, ":", "_" or any byte of a multi-byte character (XML production 4,
/// with every character beyond ASCII admitted).
constexpr bool is_name_start(int c) { return is_letter(c) || c == ':' || c == '_' || c > 127; }
/// May stand in an XML name: a name start, a digit, "-" or "." (XML production 4a, as above).
constexpr bool is_name_char(int c) { return is_name_start(c) || is_digit(c) || c == '-' || c == '.'; }

}  // namespace lmx
