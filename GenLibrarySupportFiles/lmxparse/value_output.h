// How values become text in a document: the escaping of text, truth values and floating-point numbers, and
// the `o_to_v` of the types that have none beside the type itself. Bytes go to the stream as they are: its
// width, flags, precision and locale have no say, and its state is not tested.
#pragma once

#include <iosfwd>
#include <string>

#include "GenLibrarySupportFiles/lmxinternals/api.h"

namespace velmo::lmx {

class high_precision_c_decimal;

}  // namespace velmo::lmx

namespace lmx {

class c_datetime;

/// Writes UTF-8 text, for an attribute value or for content alike (XML 1.0, 2.4): both quotes, "&" and "<"
/// become references; ">" does where it could end a "]]>", that is right after a "]" and not among the first
/// two bytes. Everything else passes as it is: line ends, tabs and control characters too, which a reader
/// may therefore normalise or refuse.
ISOXML_API std::ostream& output_convert_to_xml(std::ostream& out, std::string const& text);
/// The same up to the NUL. `text` must not be null.
ISOXML_API std::ostream& output_convert_to_xml(std::ostream& out, char const* text);
/// The same rule for wide text, written as UTF-8. Each element is a code unit: two surrogates are one
/// character. A high surrogate without its partner ends the output.
ISOXML_API std::ostream& output_convert_to_xml(std::ostream& out, std::wstring const& text);
/// The same up to the NUL. `text` must not be null.
ISOXML_API std::ostream& output_convert_to_xml(std::ostream& out, wchar_t const* text);
/// "true" or "false" (XML Schema Part 2, 3.2.2).
ISOXML_API std::ostream& output_convert_to_xml(std::ostream& out, bool value);
/// The shorter of the fixed and the exponent form of seven significant digits, "1e+20"; "NaN", "INF" and
/// "-INF" (XML Schema Part 2, 3.2.4). What does not fit into the digits is rounded away.
ISOXML_API std::ostream& output_convert_to_xml(std::ostream& out, float value);
/// The same with 14 significant digits (XML Schema Part 2, 3.2.5).
ISOXML_API std::ostream& output_convert_to_xml(std::ostream& out, double value);

/// `output_convert_to_xml` under another name.
ISOXML_API std::ostream& output_convert_to_escaped(std::ostream& out, std::string const& text);
/// One byte for each element: itself up to 127, "." for any other. Nothing is escaped.
ISOXML_API std::ostream& output_convert_to_ascii(std::ostream& out, std::wstring const& text);
/// "1" or "0".
ISOXML_API std::ostream& output_convert_to_bool_digit(std::ostream& out, bool value);

// The output that value specs hold; for integers and binary values it stands beside their `v_to_o`.

ISOXML_API std::ostream& o_to_v(std::ostream& out, std::string const& value);
ISOXML_API std::ostream& o_to_v(std::ostream& out, bool const& value);
ISOXML_API std::ostream& o_to_v(std::ostream& out, double const& value);
/// The type's own text, see `operator<<`. The stream's fill character is "0" afterwards.
ISOXML_API std::ostream& o_to_v(std::ostream& out, c_datetime const& value);
/// Every digit that the value holds.
ISOXML_API std::ostream& o_to_v(std::ostream& out, velmo::lmx::high_precision_c_decimal const& value);

}  // namespace lmx
