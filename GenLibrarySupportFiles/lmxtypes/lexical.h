// What every value type and generated validator stands on: scanners that walk a cursor over C text, the
// lexical checks of the simple built-in types, the measures behind the length and digit facets, and the
// conversions between UTF-8 and wide text. Nothing here follows the process locale or allocates unless it
// returns text.
#pragma once

#include <string>

#include "GenLibrarySupportFiles/lmxinternals/api.h"

namespace lmx {

// Scanners. Each takes a cursor into NUL-terminated text, moves it past what it accepts and never past the
// NUL. White space is blank, TAB, LF, VT, FF and CR. A count of bytes stops at the largest int.

/// Steps over one "-" or "+". True if there was one; `is_negative` tells whether it was "-".
ISOXML_API bool get_sign(char const*& p, bool& is_negative);
/// The same for a sign that may be missing: always true.
ISOXML_API bool get_opt_sign(char const*& p, bool& is_negative);
/// Steps over one "-" or "+". True if there was one.
ISOXML_API bool skip_sign(char const*& p);
/// The same for a sign that may be missing: always true.
ISOXML_API bool skip_opt_sign(char const*& p);

/// Reads digits into `value`, which starts from 0 and wraps in 32 bits. Gives the number of digits.
ISOXML_API int get_digits(char const*& p, unsigned int& value);
ISOXML_API int get_digits(char const*& p, int& value);
/// Steps over digits and gives how many.
ISOXML_API int skip_digits(char const*& p);

/// Reads digits, and after an optional "." more digits, into `value`. Gives the number of bytes passed, so
/// a lone "." gives 1 with the value 0. Fraction digits beyond about the 290th are passed but do not count:
/// the value is finite or infinite, never NaN.
ISOXML_API int get_decimal(char const*& p, double& value);
ISOXML_API int get_decimal(char const*& p, float& value);
/// Steps over digits, and after an optional "." over more digits. Gives the number of bytes passed, but 0
/// for a "." that ends the text, although the cursor then stands past it.
ISOXML_API int skip_decimal(char const*& p);

/// Steps over `literal` and gives true if the text goes on with it. Otherwise the cursor stays.
ISOXML_API bool skip_const(char const*& p, char const* literal);

/// Steps over white space. True if there was any.
ISOXML_API bool skip_ws(char const*& p);
/// The same for white space that may be missing: always true.
ISOXML_API bool skip_opt_ws(char const*& p);
/// Steps over what is not white space, up to the end of the text at most. Gives how many bytes it passed.
ISOXML_API int skip_non_ws(char const*& p);
/// The same for a word that may be missing: always true.
ISOXML_API bool skip_opt_non_ws(char const*& p);
/// Replaces `*word` by the bytes up to the next white space or the end. True if there were any.
ISOXML_API bool get_non_ws(char const*& p, std::string* word);

// Lexical checks (XSD part 2). The whole text must fit, so white space, or a NUL inside, fails.

/// "true", "false", "1" or "0" (XSD 3.2.2).
ISOXML_API bool is_valid_bool(std::string const& text);
/// An optional sign and at least one digit, of any number (XSD 3.3.13).
ISOXML_API bool is_valid_integer(std::string const& text);
/// "INF", "-INF", "NaN", or a decimal number with an optional exponent (XSD 3.2.5). "+INF" is not valid.
ISOXML_API bool is_valid_float(std::string const& text);

// Facets (XSD part 2, 4.3).

/// The number of characters of UTF-8 text. Each character is as long as its first byte announces, at most
/// to the end of the text; a byte that announces nothing is counted and ends the count. A surrogate pair
/// written as two times three bytes is one character.
ISOXML_API unsigned int length(std::string const& text);
/// The number of elements, with a surrogate pair as one.
ISOXML_API unsigned int length(std::wstring const& text);
/// At least `n` characters (the facet minLength).
ISOXML_API bool is_min_length_ok(std::string const& text, unsigned int n);
/// At most `n` characters (the facet maxLength).
ISOXML_API bool is_max_length_ok(std::string const& text, unsigned int n);
/// How many bytes of the text are digits. Unlike the facet totalDigits, leading and trailing zeros count.
ISOXML_API unsigned int total_digits(std::string const& text);
/// How many digits stand after the first ".". Unlike the facet fractionDigits, trailing zeros count.
ISOXML_API unsigned int fraction_digits(std::string const& text);

// Text conversions. The wide form has one element for each character.

/// Copies.
ISOXML_API void vtostring(std::string& out, std::string const& text);
/// Decodes UTF-8. A malformed sequence ends the conversion, and what came before it stays in `out`.
ISOXML_API void vtostring(std::wstring& out, std::string const& text);
/// Decodes as `vtostring` does.
ISOXML_API void convert(std::wstring* out, std::string const& text);
/// Encodes as UTF-8, with a surrogate pair as one character. An unpaired high surrogate is encoded as it
/// is, and the element after it is dropped.
ISOXML_API void convert(std::string* out, std::wstring const& text);

// Qualified names.

/// A name with the namespace it belongs to; the name is narrow (UTF-8) or wide.
template <class S>
struct ct_qname {
  std::string m_namespace;
  S m_name;
};

/// Stores namespace and name; `qname`, the name as it was written, is not used.
ISOXML_API void make_qname(ct_qname<std::string>* out, std::string const& qname,
                           std::string const& name_space, std::string const& name);
ISOXML_API void make_qname(ct_qname<std::wstring>* out, std::string const& qname,
                           std::string const& name_space, std::string const& name);
/// Stores the name as it was written and nothing else.
ISOXML_API void make_qname(std::string* out, std::string const& qname, std::string const& name_space,
                           std::string const& name);
ISOXML_API void make_qname(std::wstring* out, std::string const& qname, std::string const& name_space,
                           std::string const& name);
/// The same from one text: the name as it was written, white space, the name, white space, and all the
/// rest is the namespace.
ISOXML_API void make_qname(ct_qname<std::string>* out, std::string const& packed);
ISOXML_API void make_qname(ct_qname<std::wstring>* out, std::string const& packed);
ISOXML_API void make_qname(std::string* out, std::string const& packed);
ISOXML_API void make_qname(std::wstring* out, std::string const& packed);

// Other helpers.

/// The value of a "mustUnderstand" attribute.
enum elmx_must_understand { EMU_FALSE = 0, EMU_INVALID = 1, EMU_TRUE = 2 };

/// Reads a boolean: "1" and "true" are `EMU_TRUE`, "0" and "false" `EMU_FALSE`.
ISOXML_API elmx_must_understand bool_must_understand(std::string const& text);

/// Copies C text. The caller owns the copy and gives it back with `::operator delete`, not `delete[]`.
/// Errors: `std::bad_alloc`.
ISOXML_API char* xstrdup(char const* text);
/// Compares with the letters "A" to "Z" taken as lower case. 0 when equal, otherwise the difference of the
/// first two bytes that differ, as 0 to 255 each.
ISOXML_API int xstricmp(char const* a, char const* b);
/// Exchanges `n` bytes between two buffers that do not overlap. Gives `a`.
ISOXML_API void* bswap(void* a, void* b, unsigned int n);
/// 0.0, unknown to the compiler, so that a division by it happens at run time.
ISOXML_API double float_zero();

}  // namespace lmx
