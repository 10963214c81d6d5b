// The checks behind the validators. A validator names its limits; what is tested, in which order and with
// which code stands here once. A report that the reader tolerates lets the check go on to its next test.
//
// Private to the library.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

#include "GenLibrarySupportFiles/lmxinternals/words.h"
#include "GenLibrarySupportFiles/lmxparse/c_xml_reader.h"
#include "GenLibrarySupportFiles/lmxtypes/c_big_int.h"
#include "GenLibrarySupportFiles/lmxtypes/c_binary.h"
#include "GenLibrarySupportFiles/lmxtypes/c_decimal.h"
#include "GenLibrarySupportFiles/lmxtypes/c_regex.h"
#include "GenLibrarySupportFiles/lmxtypes/date_time.h"
#include "GenLibrarySupportFiles/lmxtypes/lexical.h"
#include "isoxmllib/enums.h"

namespace binding {

inline constexpr unsigned no_max_length = std::numeric_limits<unsigned>::max();

/// Limits of a text, tested in this order.
struct text_rule {
  bool (*is_valid)(std::string const& text);  ///< Else `ELMX_VALUE_BAD_FORMAT`; null for any form.
  unsigned min_length;                        ///< In characters, else `ELMX_LENGTH_TOO_SHORT`.
  unsigned max_length;                        ///< Else `ELMX_LENGTH_TOO_LONG`; `no_max_length` for any.
  lmx::c_regex const& (*pattern)();           ///< Of all of it, else `ELMX_NO_PATTERN_MATCHED`; or null.
};

/// Reports `code` for the value now being read.
inline lmx::elmx_error report_value(lmx::c_xml_reader& reader, lmx::elmx_error code) {
  return reader.report_error(code, reader.m_name, reader.m_code_file, reader.m_code_line);
}

lmx::elmx_error check_text(lmx::c_xml_reader& reader, std::string const& text, text_rule const& rule);

/// An integer (else `ELMX_VALUE_BAD_FORMAT`) from `minimum` (`ELMX_VALUE_EXCEEDS_MIN`) to `maximum`
/// (`ELMX_VALUE_EXCEEDS_MAX`), compared as text: no length overflows.
lmx::elmx_error check_integer(lmx::c_xml_reader& reader, std::string const& text,
                              lmx::c_big_int const& minimum, lmx::c_big_int const& maximum);

/// A size in bytes from `minimum` (else `ELMX_LENGTH_TOO_SHORT`) to `maximum` (`ELMX_LENGTH_TOO_LONG`).
lmx::elmx_error check_size(lmx::c_xml_reader& reader, std::size_t size, std::size_t minimum,
                           std::size_t maximum);

/// A value from `minimum` (else `ELMX_VALUE_EXCEEDS_MIN`) to `maximum` (`ELMX_VALUE_EXCEEDS_MAX`). A value
/// that compares with nothing fails both.
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
  std::string_view text;
  elmx_enums code;
};

template <std::size_t N>
using enumeration = std::array<enumerated, N>;

/// The code of `text`; `elmx_enum_none` when it is none of the list.
template <std::size_t N>
elmx_enums enum_code(enumeration<N> const& list, std::string_view text) {
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
    field.set(std::string(row.text));
    return true;
  }
  return false;
}

/// A text of the list, else `ELMX_VALUE_NOT_ENUMERATED`.
template <std::size_t N>
lmx::elmx_error check_one_of(lmx::c_xml_reader& reader, std::string const& value,
                             enumeration<N> const& list) {
  return enum_code(list, value) != elmx_enum_none ? lmx::ELMX_OK
                                                  : report_value(reader, lmx::ELMX_VALUE_NOT_ENUMERATED);
}

// ---- The short cut for plain texts ----
//
// A plain text is ASCII, without line ends and references. Each function checks such a text and stores its
// value in one pass. False, with nothing changed, not only for what the rule refuses but for whatever is
// unusual: the checks above then decide. So these may only ever say yes where those would.

/// A pattern as a table over printable ASCII. State 0 is the dead end, 1 the start.
struct text_matcher {
  char const* pattern;           ///< What it stands for.
  unsigned char const* classes;  ///< The class of each byte up to 127.
  unsigned char const* steps;    ///< `class_count` next states for each state.
  bool const* accepting;         ///< For each state, whether the text may end there.
  unsigned class_count;
  unsigned state_count;

  unsigned step(unsigned state, char c) const {
    return steps[state * class_count + classes[static_cast<unsigned char>(c)]];
  }

  bool matches(lmx::plain_text_view text) const {
    unsigned state = 1;
    for (char const* p = text.begin; p != text.end; ++p) state = step(state, *p);
    return accepting[state];
  }
};

/// Stores a text that is mostly one or two characters, which cost less one by one than in a call.
inline void store(std::string& value, lmx::plain_text_view text) {
  std::size_t const size = static_cast<std::size_t>(text.end - text.begin);
  if (size == 1 || size == 2) {
    value.clear();
    value.push_back(text.begin[0]);
    if (size == 2) value.push_back(text.begin[1]);
  } else {
    value.assign(text.begin, size);
  }
}

/// A text whose blanks are kept.
bool accept_text(std::string& value, lmx::plain_text_view text, text_rule const& rule);
/// A text that has no blanks to collapse.
bool accept_token(std::string& value, lmx::plain_text_view text, text_rule const& rule);
/// A text that matches a pattern which admits no blanks.
bool accept_match(std::string& value, lmx::plain_text_view text, text_rule const& rule,
                  text_matcher const& matcher);

template <std::size_t N>
bool accept_one_of(std::string& value, lmx::plain_text_view text, enumeration<N> const& list) {
  std::string_view const wanted(text.begin, static_cast<std::size_t>(text.end - text.begin));
  if (enum_code(list, wanted) == elmx_enum_none) return false;
  store(value, text);
  return true;
}

/// An integer without "+" and leading zeros; `*value` is it.
bool scan_integer(lmx::plain_text_view text, std::int64_t* value);

template <class T>
bool accept_integer(T& value, lmx::plain_text_view text, std::int64_t minimum, std::int64_t maximum) {
  std::int64_t number = 0;
  if (!scan_integer(text, &number) || number < minimum || number > maximum) return false;
  value = static_cast<T>(number);
  return true;
}

/// The whole parts of the numbers that are in a range whatever fraction they have.
struct whole_parts {
  unsigned least;           ///< Of numbers without a sign.
  unsigned below;           ///< The same, past the highest.
  unsigned negative_below;  ///< Of numbers with a "-", past the highest.

  bool hold(bool is_negative, unsigned whole) const {
    return is_negative ? whole < negative_below : whole >= least && whole < below;
  }
};

inline unsigned digit_at(char const* p) { return static_cast<unsigned char>(*p) - unsigned{'0'}; }

/// A usual coordinate in the range: one to three whole digits, a point and decimals, at most 15 bytes. False
/// for any other decimal.
inline bool is_coordinate(char const* begin, char const* end, whole_parts const& range) {
  constexpr std::size_t word = lmx::words::word_size;
  constexpr std::size_t most_bytes = 15;
  constexpr unsigned most_whole_digits = 3;
  bool const is_negative = begin != end && *begin == '-';
  char const* const digits = begin + (is_negative ? 1 : 0);
  std::size_t const size = static_cast<std::size_t>(end - digits);
  if (size < word || size > most_bytes) return false;
  // A bit for each of the first eight bytes, then for each of the last: some may have two.
  unsigned const others = lmx::words::no_digits(digits, end - word);
  unsigned const first_others = others & 0xFF;
  if (first_others == 0 || (first_others & (first_others - 1)) != 0) return false;
  unsigned const point = static_cast<unsigned>(__builtin_ctz(first_others));
  if (point == 0 || point > most_whole_digits || digits[point] != '.') return false;
  if (others >> (3 * word - size) != 0) return false;  // among those with one bit, behind the first eight
  unsigned whole = digit_at(digits);
  if (point > 1) {
    if (whole == 0) return false;
    whole = whole * 10 + digit_at(digits + 1);
    if (point > 2) whole = whole * 10 + digit_at(digits + 2);
  }
  return range.hold(is_negative, whole);
}

/// The same for a decimal of any length, without "+" and leading zeros.
bool is_decimal(char const* begin, char const* end, whole_parts const& range);

// The text goes on as two pointers: a copy of both at once would wait for the stores of each.
inline bool accept_decimal(lmx::c_decimal& value, lmx::plain_text_view const& text,
                           whole_parts const& range) {
  char const* const begin = text.begin;
  char const* const end = text.end;
  if (!is_coordinate(begin, end, range) && !is_decimal(begin, end, range)) return false;
  value.set_canonical(begin, end);
  return true;
}

bool accept_bytes(lmx::c_binary& value, lmx::plain_text_view text, std::size_t minimum, std::size_t maximum);

/// A date with a time of day, in local time or with a "Z", of seconds with at most nine decimals.
bool accept_date_time(lmx::c_datetime& value, lmx::plain_text_view text);

}  // namespace binding
