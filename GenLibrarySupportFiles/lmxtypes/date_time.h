// The date, time and duration types of XML Schema, held as separate numeric fields.
//
// They know the shape of a text, not the calendar: month 13 and second 99 pass, no class but the duration
// knows how long a month is, and zones are kept but never applied. What is read is written back as it was,
// which is what a terminal needs from the time stamps of others.
//
// The eight date and time types differ only in which fields they show and what stands between these. That
// is one row of a table in the source for each; everything else stands once, in c_datetime_base and in the
// template over it.
#pragma once

#include <iosfwd>
#include <string>

#include "GenLibrarySupportFiles/lmxinternals/api.h"

namespace lmx {

namespace detail {

/// The date and time types, in the order of their rows in the source's table.
enum class e_date_shape { datetime, date, time, gyear, gyearmonth, gmonthday, gday, gmonth };

}  // namespace detail

/// The fields that all date and time types share, and what they do alike. A type uses the fields that its
/// text shows; the others keep their start values.
class ISOXML_API c_datetime_base {
 public:
  /// Negative for a year written with "-". Read modulo 2^32.
  int get_year() const noexcept { return m_year; }
  void set_year(int year) noexcept { m_year = year; }
  unsigned int get_month() const noexcept { return m_month; }
  void set_month(unsigned int month) noexcept { m_month = month; }
  unsigned int get_day() const noexcept { return m_day; }
  void set_day(unsigned int day) noexcept { m_day = day; }
  unsigned int get_hours() const noexcept { return m_hours; }
  void set_hours(unsigned int hours) noexcept { m_hours = hours; }
  unsigned int get_mins() const noexcept { return m_mins; }
  void set_mins(unsigned int mins) noexcept { m_mins = mins; }
  /// Seconds with their fraction. A negative number must not be set: writing it stops the process.
  double get_secs() const noexcept { return m_secs; }
  void set_secs(double secs) noexcept { m_secs = secs; }
  /// Minutes that the zone is ahead of UTC; east is positive.
  int get_tz_offset() const noexcept { return m_tz_offset; }
  void set_tz_offset(int minutes) noexcept { m_tz_offset = minutes; }
  /// True if the text ended in "Z". False with an offset of 0 means that no zone was given, or +00:00.
  bool get_is_utc() const noexcept { return m_is_utc; }
  void set_is_utc(bool is_utc) noexcept { m_is_utc = is_utc; }

  /// Compares the written fields from the year to the seconds. The zone plays no part: 12:00:00Z equals
  /// 12:00:00+05:00.
  bool is_equal(c_datetime_base const& other) const noexcept;
  /// The first of these fields that differs decides. The zone plays no part here either.
  bool is_greater_than(c_datetime_base const& other) const noexcept;

  /// True if the rest of a text is a zone: nothing, "Z", or a sign with hh:mm. The cursor then stands at
  /// the end of the text; otherwise it stands anywhere in it.
  static bool is_valid_tz(char const*& p) noexcept;
  /// Takes the zone from its text, with nothing as "no zone". Any other text changes nothing.
  void set_tz(char const* text) noexcept;
  /// Writes "Z", or the offset as a sign with hh:mm, or nothing if the offset is zero.
  void output_tz(std::ostream& out) const;
  /// Writes the seconds with at least two digits before the point, rounded to 14 significant digits. The
  /// rounding is not carried: 59.999999999999999 gives 60 and 9.999999999999999 gives 010.
  void output_seconds(std::ostream& out) const;

  int m_year = 1;
  unsigned int m_month = 0;
  unsigned int m_day = 0;
  unsigned int m_hours = 0;
  unsigned int m_mins = 0;
  double m_secs = 0.0;
  int m_tz_offset = 0;
  bool m_is_utc = false;

 protected:
  static bool p_is_valid(detail::e_date_shape shape, std::string const& text) noexcept;
  void p_parse(detail::e_date_shape shape, char const* text) noexcept;
  std::string p_text(detail::e_date_shape shape) const;

 private:
  bool p_parse_field(char const*& p, char mark) noexcept;
  void p_append_field(std::string& text, char mark) const;
  void p_append_tz(std::string& text) const;
};

/// What each of the date and time types offers; `T` is that type.
///
/// Errors: none are reported. Reading stops at the first thing that does not fit, and the fields read so
/// far keep what they got; is_valid() gives a verdict on a text before a value is made of it.
/// Threads: as for an int; there is no shared state.
template <class T, detail::e_date_shape shape>
class ct_datetime : public c_datetime_base {
 public:
  /// The start values: year 1, everything else 0, no zone.
  ct_datetime() = default;
  /// Start values, then the text is assigned. `text` must not be null.
  ct_datetime(char const* text) noexcept { p_parse(shape, text); }
  /// The same, up to the first NUL.
  ct_datetime(std::string const& text) noexcept { p_parse(shape, text.c_str()); }

  /// Reads the fields one after the other in place. Fields behind a place that does not fit stay as they
  /// were; a number with the wrong count of digits has already been stored. `text` must not be null.
  T& operator=(char const* text) noexcept {
    p_parse(shape, text);
    return static_cast<T&>(*this);
  }
  /// The same, up to the first NUL.
  T& operator=(std::string const& text) noexcept { return *this = text.c_str(); }

  /// True if the whole text has the type's shape. The values of the numbers do not matter, a month of 13
  /// passes. Allocates nothing.
  static bool is_valid(std::string const& text) noexcept { return p_is_valid(shape, text); }

  /// The text that operator<< writes.
  std::string get_as_string() const { return p_text(shape); }

  // Relations by is_equal() and is_greater_than(): the zones play no part.

  friend bool operator==(T const& a, T const& b) noexcept { return a.is_equal(b); }
  friend bool operator!=(T const& a, T const& b) noexcept { return !a.is_equal(b); }
  friend bool operator>(T const& a, T const& b) noexcept { return a.is_greater_than(b); }
  friend bool operator>=(T const& a, T const& b) noexcept { return a == b || a > b; }
  friend bool operator<(T const& a, T const& b) noexcept { return !(a == b) && !(a > b); }
  friend bool operator<=(T const& a, T const& b) noexcept { return !(a > b); }
};

// In the shapes below Y is four or more digits and every other letter one digit; [+-] is a sign that may be
// missing, and zone is what is_valid_tz() accepts. They are looser than XML Schema: year 0000, a "+" before
// the year and a "." without digits pass.

/// A date with a time of day (XML Schema Part 2, 3.2.7 "dateTime"): [+-]Y-MM-DDThh:mm:ss, then optionally
/// "." and any number of digits, then zone. Task data gives its times in this type.
class ISOXML_API c_datetime : public ct_datetime<c_datetime, detail::e_date_shape::datetime> {
 public:
  using ct_datetime::ct_datetime;
  using ct_datetime::operator=;
};

/// A day (3.2.9 "date"): [+-]Y-MM-DD zone.
class ISOXML_API c_date : public ct_datetime<c_date, detail::e_date_shape::date> {
 public:
  using ct_datetime::ct_datetime;
  using ct_datetime::operator=;
};

/// A time of day (3.2.8 "time"): [+-]hh:mm:ss, then optionally "." and digits, then zone. A sign is valid,
/// but nothing is read from a text that has one.
class ISOXML_API c_time : public ct_datetime<c_time, detail::e_date_shape::time> {
 public:
  using ct_datetime::ct_datetime;
  using ct_datetime::operator=;
};

/// A year (3.2.11 "gYear"): [+-]Y zone.
class ISOXML_API c_gyear : public ct_datetime<c_gyear, detail::e_date_shape::gyear> {
 public:
  using ct_datetime::ct_datetime;
  using ct_datetime::operator=;
};

/// A month of one year (3.2.10 "gYearMonth"): [+-]Y-MM zone.
class ISOXML_API c_gyearmonth : public ct_datetime<c_gyearmonth, detail::e_date_shape::gyearmonth> {
 public:
  using ct_datetime::ct_datetime;
  using ct_datetime::operator=;
};

/// A day of every year (3.2.12 "gMonthDay"): --MM-DD zone. Reading takes a day of any number of digits.
class ISOXML_API c_gmonthday : public ct_datetime<c_gmonthday, detail::e_date_shape::gmonthday> {
 public:
  using ct_datetime::ct_datetime;
  using ct_datetime::operator=;
};

/// A day of every month (3.2.13 "gDay"): ---DD zone. Reading takes a day of any number of digits.
class ISOXML_API c_gday : public ct_datetime<c_gday, detail::e_date_shape::gday> {
 public:
  using ct_datetime::ct_datetime;
  using ct_datetime::operator=;
};

/// A month of every year (3.2.14 "gMonth", in the form of its first edition): --MM-- zone. The closing "--"
/// is required.
class ISOXML_API c_gmonth : public ct_datetime<c_gmonth, detail::e_date_shape::gmonth> {
 public:
  using ct_datetime::ct_datetime;
  using ct_datetime::operator=;
};

// Each writes the fields in the type's shape: the year with at least four characters, the other numbers
// with at least two, zeros in front, also in front of a minus sign (year -5 is "00-5"). The stream's flags,
// precision and locale have no say; its fill character is "0" afterwards. A c_datetime or c_time with
// negative seconds stops the process.

ISOXML_API std::ostream& operator<<(std::ostream& out, c_datetime const& value);
ISOXML_API std::ostream& operator<<(std::ostream& out, c_date const& value);
ISOXML_API std::ostream& operator<<(std::ostream& out, c_time const& value);
ISOXML_API std::ostream& operator<<(std::ostream& out, c_gyear const& value);
ISOXML_API std::ostream& operator<<(std::ostream& out, c_gyearmonth const& value);
ISOXML_API std::ostream& operator<<(std::ostream& out, c_gmonthday const& value);
ISOXML_API std::ostream& operator<<(std::ostream& out, c_gday const& value);
ISOXML_API std::ostream& operator<<(std::ostream& out, c_gmonth const& value);

/// Sets `value` from an attribute's text, which is_valid() has seen before.
ISOXML_API void v_to_o(c_datetime& value, std::string const& text);

/// A span of time (XML Schema Part 2, 3.2.6 "duration"): a sign, years, months, days, hours, minutes and
/// seconds, each kept as it was written: P13M stays P13M.
///
/// Errors and threads: as for the date types. Where a text is read, the process locale is read with it.
class ISOXML_API c_duration {
 public:
  /// Zero.
  c_duration() = default;
  /// Reads the text. It must not be null.
  c_duration(char const* text) { *this = text; }
  /// The same, up to the first NUL.
  c_duration(std::string const& text) : c_duration(text.c_str()) {}

  /// Becomes zero and then takes the sign and every part up to the first thing that does not fit. A number
  /// above 2147483647 counts as that. Seconds are read as by `strtod`: under a process locale with another
  /// decimal point than "." their fraction is lost.
  c_duration& operator=(char const* text);

  /// True for a sign that may be missing, "P", the parts nY, nM, nD, and then "T" with at least one of the
  /// parts nH, nM and n.nS; all parts may be missing and have their order. Looser than XML Schema: "P"
  /// alone is valid, as it is what zero is written as; seconds may lack the digits on one side of their
  /// point; and digits right before the "T" are stepped over. `text` must not be null.
  static bool is_valid(char const* text) noexcept;

  /// The text that operator<< writes.
  std::string get_as_string() const;

  /// Carries months into years, and seconds into minutes, hours and days. Days stay days, as months differ
  /// in length. Years and days stop at the largest number they can hold.
  void normalize() noexcept;

  /// True if neither is known to be the longer: the signs are equal, the months differ (modulo 12), and
  /// the days that the one can last overlap with those of the other. Hours, minutes and seconds play no
  /// part.
  bool p_is_indeterminate(c_duration const& other) const noexcept;
  /// True if all fields are equal once both are normalised: P1Y equals P12M.
  bool p_is_equal(c_duration const& other) const noexcept;
  /// Once both are normalised, the first field that differs decides, from the years to the seconds. The
  /// sign plays no part: -P2Y is greater than P1Y.
  bool p_is_greater_than(c_duration const& other) const noexcept;

  // For an indeterminate pair only != is true. Of two that differ in nothing but their sign each is less
  // than the other.

  friend bool operator==(c_duration const& a, c_duration const& b) noexcept {
    return !a.p_is_indeterminate(b) && a.p_is_equal(b);
  }
  friend bool operator!=(c_duration const& a, c_duration const& b) noexcept { return !(a == b); }
  friend bool operator>(c_duration const& a, c_duration const& b) noexcept {
    return !a.p_is_indeterminate(b) && a.p_is_greater_than(b);
  }
  friend bool operator>=(c_duration const& a, c_duration const& b) noexcept { return a > b || a == b; }
  friend bool operator<(c_duration const& a, c_duration const& b) noexcept {
    return !a.p_is_indeterminate(b) && !a.p_is_equal(b) && !a.p_is_greater_than(b);
  }
  friend bool operator<=(c_duration const& a, c_duration const& b) noexcept {
    return !a.p_is_indeterminate(b) && !a.p_is_greater_than(b);
  }

  bool get_is_negative() const noexcept { return m_is_negative; }
  void set_is_negative(bool is_negative) noexcept { m_is_negative = is_negative; }
  unsigned int get_years() const noexcept { return m_years; }
  void set_years(unsigned int years) noexcept { m_years = years; }
  unsigned int get_months() const noexcept { return m_months; }
  void set_months(unsigned int months) noexcept { m_months = months; }
  unsigned int get_days() const noexcept { return m_days; }
  void set_days(unsigned int days) noexcept { m_days = days; }
  unsigned int get_hours() const noexcept { return m_hours; }
  void set_hours(unsigned int hours) noexcept { m_hours = hours; }
  unsigned int get_mins() const noexcept { return m_mins; }
  void set_mins(unsigned int mins) noexcept { m_mins = mins; }
  /// Seconds with their fraction. A negative number must not be set: writing it stops the process.
  double get_secs() const noexcept { return m_secs; }
  void set_secs(double secs) noexcept { m_secs = secs; }

  /// The most and the fewest days that so many consecutive months can have.
  static constexpr unsigned int m_day_mons_maxs[12] = {0, 31, 62, 92, 123, 153, 184, 215, 245, 276, 306, 337};
  static constexpr unsigned int m_day_mons_mins[12] = {0, 28, 59, 89, 120, 150, 181, 212, 242, 273, 303, 334};

  bool m_is_negative = false;
  unsigned int m_years = 0;
  unsigned int m_months = 0;
  unsigned int m_days = 0;
  unsigned int m_hours = 0;
  unsigned int m_mins = 0;
  double m_secs = 0.0;

 private:
  c_duration p_normalized() const noexcept;
};

/// Writes the parts that are not zero, zero itself as "P". Seconds are rounded to 14 significant digits.
/// The stream's flags, fill, precision and locale have no say. Negative seconds stop the process.
ISOXML_API std::ostream& operator<<(std::ostream& out, c_duration const& value);

}  // namespace lmx
