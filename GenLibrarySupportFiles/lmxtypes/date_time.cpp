// A shape is a string of marks, walked one mark at a time by three small interpreters: one validates, one
// reads into the fields, one writes. A duration has one scanner, which validates and, if it is given a
// duration, fills it on the way.
//
// Text is put together here and handed to a stream in one piece, so that neither the flags nor the locale
// of a host's stream reach it.
#include "GenLibrarySupportFiles/lmxtypes/date_time.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iterator>
#include <limits>
#include <ostream>
#include <tuple>

#include "GenLibrarySupportFiles/lmxinternals/characters.h"
#include "GenLibrarySupportFiles/lmxtypes/conversions.h"
#include "GenLibrarySupportFiles/lmxtypes/lexical.h"
#include "GenLibrarySupportFiles/lmxtypes/value_text.h"

namespace lmx {

namespace {

// ---- Shapes ----

// The marks: "+" an optional sign, "Y" the year, "M" month, "D" day, "h" hours, "m" minutes, "s" seconds,
// "d" a day of any number of digits, "!" no sign. Any other byte stands for itself. A zone ends every shape.
struct s_shape {
  char const* valid;
  char const* parsed;  // and written, where "+" and "!" give nothing
};

// Validating and reading disagree in three rows. Kept: both are settled behaviour of these types.
constexpr s_shape shapes[] = {
    {"+Y-M-DTh:m:s", "+Y-M-DTh:m:s"},  // datetime
    {"+Y-M-D", "+Y-M-D"},              // date
    {"+h:m:s", "!h:m:s"},              // time
    {"+Y", "+Y"},                      // gyear
    {"+Y-M", "+Y-M"},                  // gyearmonth
    {"--M-D", "--M-d"},                // gmonthday
    {"---D", "---d"},                  // gday
    {"--M--", "--M--"},                // gmonth
};
static_assert(std::size(shapes) == static_cast<std::size_t>(detail::e_date_shape::gmonth) + 1);

constexpr s_shape const& shape_of(detail::e_date_shape shape) {
  return shapes[static_cast<std::size_t>(shape)];
}

constexpr int min_year_digits = 4;
constexpr int field_digits = 2;

bool skip_byte(char const*& p, char byte) noexcept {
  if (*p != byte) return false;
  ++p;
  return true;
}

// A third digit needs no test: what has to follow in every shape is no digit.
bool skip_two_digits(char const*& p) noexcept {
  if (!is_digit(p[0]) || !is_digit(p[1])) return false;
  p += 2;
  return true;
}

bool skip_field(char const*& p, char mark) noexcept {
  switch (mark) {
    case '+': return skip_opt_sign(p);
    case 'Y': return skip_digits(p) >= min_year_digits;
    case 'M':
    case 'D':
    case 'h':
    case 'm': return skip_two_digits(p);
    case 's':
      if (!skip_two_digits(p)) return false;
      if (skip_byte(p, '.')) skip_digits(p);
      return true;
    default: return skip_byte(p, mark);
  }
}

// ---- Text ----

constexpr std::size_t year_width = 4;
constexpr std::size_t field_width = 2;

// Zeros fill up to the width, in front of a minus sign too.
template <class T>
void append_number(std::string& text, T value, std::size_t width = 0) {
  char digits[std::numeric_limits<T>::digits10 + 2];  // one more digit, and a sign
  auto const end = std::to_chars(std::begin(digits), std::end(digits), value).ptr;
  auto const size = static_cast<std::size_t>(end - digits);
  text.append(width > size ? width - size : 0, '0').append(digits, size);
}

void append_real(std::string& text, double value) {
  constexpr int precision = 14;
  char digits[32];
  auto const end =
      std::to_chars(std::begin(digits), std::end(digits), value, std::chars_format::general, precision).ptr;
  text.append(digits, end);
}

// The smallest values would get an exponent, which no type here allows: anything below 0.001 but zero is
// printed with 1 added, and the 1 replaced. A negative zero, which no text gives, keeps its sign.
void append_seconds(std::string& text, double secs) {
  constexpr double most_usual = 60.0;
  if (!std::signbit(secs) && secs <= most_usual && secs == static_cast<int>(secs)) {
    return append_number(text, static_cast<int>(secs));  // the same text, sooner
  }
  constexpr double lowest_without_exponent = 0.001;
  bool const is_small = secs != 0.0 && secs < lowest_without_exponent;
  std::size_t const start = text.size();
  append_real(text, is_small ? secs + 1.0 : secs);
  if (is_small) text[start] = '0';
}

void append_two_digit_seconds(std::string& text, double secs) {
  constexpr double lowest_of_two_digits = 10.0;
  if (secs < lowest_of_two_digits) text += '0';
  append_seconds(text, secs);
}

// A width that the host has set is used up, as by any other value, but does not pad.
std::ostream& write(std::ostream& out, std::string const& text) {
  out.width(0);
  return out.write(text.data(), static_cast<std::streamsize>(text.size()));
}

template <class T>
std::ostream& write_date(std::ostream& out, T const& value) {
  out.fill('0');
  return write(out, value.get_as_string());
}

// What the relations compare: no zone.
auto fields_in_order(c_datetime_base const& value) {
  return std::tie(value.m_year, value.m_month, value.m_day, value.m_hours, value.m_mins, value.m_secs);
}

}  // namespace

// ---- Date and time types ----

bool c_datetime_base::is_equal(c_datetime_base const& other) const noexcept {
  return fields_in_order(*this) == fields_in_order(other);
}

bool c_datetime_base::is_greater_than(c_datetime_base const& other) const noexcept {
  return fields_in_order(*this) > fields_in_order(other);
}

bool c_datetime_base::is_valid_tz(char const*& p) noexcept {
  if (*p == '\0') return true;
  if (skip_byte(p, 'Z')) return *p == '\0';
  return skip_sign(p) && skip_two_digits(p) && skip_byte(p, ':') && skip_two_digits(p) && *p == '\0';
}

void c_datetime_base::set_tz(char const* text) noexcept {
  char const* end = text;
  if (!is_valid_tz(end)) return;
  m_is_utc = *text == 'Z';
  m_tz_offset = 0;
  bool is_negative = false;
  if (!get_sign(text, is_negative)) return;
  int hours = 0;
  int mins = 0;
  get_digits(text, hours);
  skip_byte(text, ':');
  get_digits(text, mins);
  m_tz_offset = hours * 60 + mins;
  if (is_negative) m_tz_offset = -m_tz_offset;
}

bool c_datetime_base::p_is_valid(detail::e_date_shape shape, std::string const& text) noexcept {
  char const* p = text.c_str();
  for (char const* mark = shape_of(shape).valid; *mark != '\0'; ++mark) {
    if (!skip_field(p, *mark)) return false;
  }
  return is_valid_tz(p) && p == text.c_str() + text.size();
}

void c_datetime_base::p_parse(detail::e_date_shape shape, char const* p) noexcept {
  bool is_negative = false;
  for (char const* mark = shape_of(shape).parsed; *mark != '\0'; ++mark) {
    if (*mark == '+') {
      get_sign(p, is_negative);
    } else if (!p_parse_field(p, *mark)) {
      return;
    }
  }
  // Unsigned, as the year may have wrapped to the lowest int, which has no opposite.
  if (is_negative) m_year = static_cast<int>(0u - static_cast<unsigned int>(m_year));
  set_tz(p);
}

bool c_datetime_base::p_parse_field(char const*& p, char mark) noexcept {
  switch (mark) {
    case 'Y': return get_digits(p, m_year) >= min_year_digits;
    case 'M': return get_digits(p, m_month) == field_digits;
    case 'D': return get_digits(p, m_day) == field_digits;
    case 'd': return get_digits(p, m_day) > 0;
    case 'h': return get_digits(p, m_hours) == field_digits;
    case 'm': return get_digits(p, m_mins) == field_digits;
    case 's': return get_decimal(p, m_secs) >= field_digits;
    case '!': return *p != '+' && *p != '-';
    default: return skip_byte(p, mark);
  }
}

std::string c_datetime_base::p_text(detail::e_date_shape shape) const {
  std::string text;
  for (char const* mark = shape_of(shape).parsed; *mark != '\0'; ++mark) p_append_field(text, *mark);
  p_append_tz(text);
  return text;
}

void c_datetime_base::p_append_field(std::string& text, char mark) const {
  switch (mark) {
    case '+':  // the year brings its own sign
    case '!': return;
    case 'Y': return append_number(text, m_year, year_width);
    case 'M': return append_number(text, m_month, field_width);
    case 'D':
    case 'd': return append_number(text, m_day, field_width);
    case 'h': return append_number(text, m_hours, field_width);
    case 'm': return append_number(text, m_mins, field_width);
    case 's':
      LMX_ASSERT_TEXT(m_secs >= 0.0, "r_v_in.m_secs >= 0.0");
      return append_two_digit_seconds(text, m_secs);
    default: text += mark;
  }
}

void c_datetime_base::p_append_tz(std::string& text) const {
  if (m_is_utc) {
    text += 'Z';
  } else if (m_tz_offset != 0) {
    auto const bits = static_cast<unsigned int>(m_tz_offset);
    unsigned int const magnitude = m_tz_offset < 0 ? 0u - bits : bits;
    text += m_tz_offset < 0 ? '-' : '+';
    append_number(text, magnitude / 60, field_width);
    text += ':';
    append_number(text, magnitude % 60, field_width);
  }
}

void c_datetime_base::output_tz(std::ostream& out) const {
  std::string text;
  p_append_tz(text);
  if (!text.empty()) write(out, text);
}

void c_datetime_base::output_seconds(std::ostream& out) const {
  std::string text;
  append_two_digit_seconds(text, m_secs);
  write(out, text);
}

void detail::put(output_buffer& out, c_datetime const& value) {
  out.stream().fill('0');
  out.stream().width(0);
  out.append(value.get_as_string());
}

std::ostream& operator<<(std::ostream& out, c_datetime const& value) {
  return detail::put_through(out, value);
}
std::ostream& operator<<(std::ostream& out, c_date const& value) { return write_date(out, value); }
std::ostream& operator<<(std::ostream& out, c_time const& value) { return write_date(out, value); }
std::ostream& operator<<(std::ostream& out, c_gyear const& value) { return write_date(out, value); }
std::ostream& operator<<(std::ostream& out, c_gyearmonth const& value) { return write_date(out, value); }
std::ostream& operator<<(std::ostream& out, c_gmonthday const& value) { return write_date(out, value); }
std::ostream& operator<<(std::ostream& out, c_gday const& value) { return write_date(out, value); }
std::ostream& operator<<(std::ostream& out, c_gmonth const& value) { return write_date(out, value); }

void v_to_o(c_datetime& value, std::string const& text) { value = text; }

// ---- Durations ----

namespace {

struct s_part {
  char designator;
  unsigned int c_duration::*field;
};

constexpr s_part date_parts[] = {
    {'Y', &c_duration::m_years}, {'M', &c_duration::m_months}, {'D', &c_duration::m_days}};
constexpr s_part time_parts[] = {{'H', &c_duration::m_hours}, {'M', &c_duration::m_mins}};

// Takes the parts that are there, in their order. Gives the start of the digits that no designator has
// claimed; the cursor stands behind them.
template <std::size_t count>
char const* scan_parts(char const*& p, s_part const (&parts)[count], c_duration* out) {
  char const* digits = p;
  skip_digits(p);
  for (s_part const& part : parts) {
    if (digits == p || *p != part.designator) continue;
    if (out != nullptr) out->*part.field = static_cast<unsigned int>(text_to_int32(digits));
    digits = ++p;
    skip_digits(p);
  }
  return digits;
}

// Digits may be missing on one side of the point, not on both.
bool scan_seconds(char const*& p, c_duration* out) {
  char const* const number = p;
  if (!is_digit(*number == '.' ? number[1] : *number)) return false;
  skip_decimal(p);
  if (!skip_byte(p, 'S')) return false;
  // Kept: the fraction follows the process locale, unlike every other number of the library.
  if (out != nullptr) out->m_secs = std::strtod(number, nullptr);
  return true;
}

// True if the whole text is a duration. Fills `out`, if it is not null, as far as the text fits.
bool scan_duration(char const* p, c_duration* out) {
  bool is_negative = false;
  get_sign(p, is_negative);
  if (out != nullptr) out->m_is_negative = is_negative;
  if (!skip_byte(p, 'P')) return false;
  bool const has_unclaimed_digits = scan_parts(p, date_parts, out) != p;
  if (*p == '\0') return !has_unclaimed_digits;
  if (!skip_byte(p, 'T') || *p == '\0') return false;  // kept: unclaimed digits pass before the "T"
  char const* const unclaimed = scan_parts(p, time_parts, out);
  if (p == unclaimed && *p == '\0') return true;
  p = unclaimed;
  return scan_seconds(p, out) && *p == '\0';
}

constexpr std::uint64_t highest = std::numeric_limits<unsigned int>::max();

unsigned int saturated(std::uint64_t value) { return static_cast<unsigned int>(std::min(value, highest)); }

// The whole minutes in a number of seconds. An infinite number gives the most; one that is negative or
// none at all is a caller's fault and gives nothing.
std::uint64_t whole_minutes(double secs) {
  double const minutes = secs / 60.0;
  if (minutes >= static_cast<double>(highest)) return highest;
  return minutes > 0.0 ? static_cast<std::uint64_t>(minutes) : 0;
}

// The days that a normalised duration can last, with `extra_years` of its years.
std::uint64_t days(c_duration const& value, unsigned int const (&days_of_months)[12],
                   std::uint64_t extra_years, std::uint64_t days_of_year) {
  return std::uint64_t{value.m_days} + days_of_months[value.m_months] + extra_years * days_of_year;
}

// What the relations compare: no sign.
auto fields_in_order(c_duration const& value) {
  return std::tie(value.m_years, value.m_months, value.m_days, value.m_hours, value.m_mins, value.m_secs);
}

}  // namespace

c_duration& c_duration::operator=(char const* text) {
  *this = c_duration();
  scan_duration(text, this);
  return *this;
}

bool c_duration::is_valid(char const* text) noexcept { return scan_duration(text, nullptr); }

// In 64 bits every sum is exact; only what a field cannot hold is cut off, at the very end.
void c_duration::normalize() noexcept {
  m_years = saturated(std::uint64_t{m_years} + m_months / 12);
  m_months %= 12;
  std::uint64_t const minutes = whole_minutes(m_secs);
  m_secs -= static_cast<double>(minutes) * 60;
  std::uint64_t const mins = m_mins + minutes;
  std::uint64_t const hours = m_hours + mins / 60;
  m_mins = static_cast<unsigned int>(mins % 60);
  m_hours = static_cast<unsigned int>(hours % 24);
  m_days = saturated(m_days + hours / 24);
}

c_duration c_duration::p_normalized() const noexcept {
  c_duration copy = *this;
  copy.normalize();
  return copy;
}

// Years that both have cancel out; only the surplus of one side counts as days.
bool c_duration::p_is_indeterminate(c_duration const& other) const noexcept {
  if (m_is_negative != other.m_is_negative) return false;
  if (m_months % 12 == other.m_months % 12) return false;
  c_duration const a = p_normalized();
  c_duration const b = other.p_normalized();
  std::uint64_t const a_years = a.m_years > b.m_years ? a.m_years - b.m_years : 0;
  std::uint64_t const b_years = b.m_years > a.m_years ? b.m_years - a.m_years : 0;
  return days(a, m_day_mons_maxs, a_years, 366) > days(b, m_day_mons_mins, b_years, 365) &&
         days(a, m_day_mons_mins, a_years, 365) < days(b, m_day_mons_maxs, b_years, 366);
}

bool c_duration::p_is_equal(c_duration const& other) const noexcept {
  c_duration const a = p_normalized();
  c_duration const b = other.p_normalized();
  return a.m_is_negative == b.m_is_negative && fields_in_order(a) == fields_in_order(b);
}

bool c_duration::p_is_greater_than(c_duration const& other) const noexcept {
  c_duration const a = p_normalized();
  c_duration const b = other.p_normalized();
  return fields_in_order(a) > fields_in_order(b);
}

std::string c_duration::get_as_string() const {
  LMX_ASSERT_TEXT(m_secs >= 0.0, "r_d_in.m_secs >= 0.0");
  std::string text = m_is_negative ? "-P" : "P";
  auto const append_parts = [&](auto const& parts) {
    for (s_part const& part : parts) {
      unsigned int const value = this->*part.field;
      if (value == 0) continue;
      append_number(text, value);
      text += part.designator;
    }
  };
  append_parts(date_parts);
  if (m_hours == 0 && m_mins == 0 && m_secs == 0.0) return text;
  text += 'T';
  append_parts(time_parts);
  if (m_secs == 0.0) return text;
  append_seconds(text, m_secs);
  text += 'S';
  return text;
}

std::ostream& operator<<(std::ostream& out, c_duration const& value) {
  return write(out, value.get_as_string());
}

}  // namespace lmx
