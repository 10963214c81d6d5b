// The checks behind the validators. A validator names its limits; what is tested, in which order and with
// which code stands here once. A report that the reader tolerates lets the check go on to its next test.
//
// Private to the library.
#pragma once

#include <array>
#include <cstddef>
#include <limits>
#include <string>

#include "GenLibrarySupportFiles/lmxparse/c_xml_reader.h"
#include "GenLibrarySupportFiles/lmxtypes/c_big_int.h"
#include "GenLibrarySupportFiles/lmxtypes/c_binary.h"
#include "GenLibrarySupportFiles/lmxtypes/c_decimal.h"
#include "GenLibrarySupportFiles/lmxtypes/c_regex.h"
#include "GenLibrarySupportFiles/lmxtypes/lexical.h"
#include "isoxmllib/enums.h"

namespace binding {

inline constexpr unsigned no_max_length = std::numeric_limits<unsigned>::max();

/// Limits of a text, tested in this order.
struct text_rule {
  bool (*is_valid)(std::string const& text);  ///< The form (35); null for any.
  unsigned min_length;                        ///< In characters (20).
  unsigned max_length;                        ///< In characters (19); `no_max_length` for any.
  lmx::c_regex const* pattern;                ///< What the whole text must match (22); null for anything.
};

/// Reports `code` for the value now being read.
inline lmx::elmx_error report_value(lmx::c_xml_reader& reader, lmx::elmx_error code) {
  return reader.report_error(code, reader.m_name, reader.m_code_file, reader.m_code_line);
}

lmx::elmx_error check_text(lmx::c_xml_reader& reader, std::string const& text, text_rule const& rule);

/// An integer (35) from `minimum` (37) to `maximum` (36), compared as text: no length overflows.
lmx::elmx_error check_integer(lmx::c_xml_reader& reader, std::string const& text,
                              lmx::c_big_int const& minimum, lmx::c_big_int const& maximum);

/// A size in bytes from `minimum` (20) to `maximum` (19).
lmx::elmx_error check_size(lmx::c_xml_reader& reader, std::size_t size, std::size_t minimum,
                           std::size_t maximum);

/// A value from `minimum` (37) to `maximum` (36). A value that compares with nothing fails both.
template <class T>
lmx::elmx_error check_range(lmx::c_xml_reader& reader, T const& value, T const& minimum, T const& maximum) {
  if (!(value >= minimum)) {
    lmx::elmx_error const error = report_value(reader, lmx::ELMX_VALUE_EXCEEDS_MIN);
    if (error != lmx::ELMX_OK) return error;
  }
  if (!(value <= maximum)) return report_value(reader, lmx::ELMX_VALUE_EXCEEDS_MAX);
  return lmx::ELMX_OK;
}

/// One text of an enumeration and its code.
struct enumerated {
  char const* text;
  elmx_enums code;
};

template <std::size_t N>
using enumeration = std::array<enumerated, N>;

/// The code of `text`; 0 when it is none of the list.
template <std::size_t N>
elmx_enums enum_code(enumeration<N> const& list, std::string const& text) {
  for (enumerated const& row : list) {
    if (text == row.text) return row.code;
  }
  return elmx_enum_none;
}

/// Stores the text of `code` in the field. False, and no change, when the list does not have it.
template <std::size_t N, class Field>
bool set_enum(enumeration<N> const& list, elmx_enums code, Field& field) {
  for (enumerated const& row : list) {
    if (row.code != code) continue;
    field.set(row.text);
    return true;
  }
  return false;
}

/// A text of the list (38).
template <std::size_t N>
lmx::elmx_error check_one_of(lmx::c_xml_reader& reader, std::string const& value,
                             enumeration<N> const& list) {
  return enum_code(list, value) != elmx_enum_none ? lmx::ELMX_OK
                                                  : report_value(reader, lmx::ELMX_VALUE_NOT_ENUMERATED);
}

}  // namespace binding
