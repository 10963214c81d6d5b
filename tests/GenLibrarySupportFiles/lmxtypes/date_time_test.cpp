// Dates and times: which texts are valid, which fields they give, how values compare, and what is written.
#include "GenLibrarySupportFiles/lmxtypes/date_time.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <iomanip>
#include <limits>
#include <locale>
#include <set>
#include <sstream>
#include <string>
#include <type_traits>

namespace {

using namespace std::string_literals;

using lmx::c_date;
using lmx::c_datetime;
using lmx::c_datetime_base;
using lmx::c_gday;
using lmx::c_gmonth;
using lmx::c_gmonthday;
using lmx::c_gyear;
using lmx::c_gyearmonth;
using lmx::c_time;

// Makes every C++ stream that is not imbued write 2.0.2.4,5.
class CommaLocale {
 public:
  CommaLocale() : m_old(std::locale::global(locale())) {}
  ~CommaLocale() { std::locale::global(m_old); }
  CommaLocale(CommaLocale const&) = delete;
  CommaLocale& operator=(CommaLocale const&) = delete;

  static std::locale locale() { return std::locale(std::locale::classic(), new Punctuation); }

 private:
  struct Punctuation : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\1"; }
  };
  std::locale m_old;
};

// All fields in their order, as in "2024/1/2 3:4:5.25 +330"; "Z" for UTC.
std::string fields(c_datetime_base const& value) {
  std::ostringstream out;
  out.imbue(std::locale::classic());
  out << value.m_year << '/' << value.m_month << '/' << value.m_day << ' ' << value.m_hours << ':'
      << value.m_mins << ':' << value.m_secs << ' ' << std::showpos << value.m_tz_offset;
  if (value.m_is_utc) out << 'Z';
  return out.str();
}

template <class T>
std::string written(T const& value) {
  std::ostringstream out;
  EXPECT_EQ(&out, &(out << value));
  EXPECT_EQ(out.str(), value.get_as_string());
  return out.str();
}

template <class T>
std::string read_fields(std::string const& text) {
  return fields(T(text));
}

template <class T>
std::string read_and_written(std::string const& text) {
  return written(T(text));
}

// --- Valid texts -----------------------------------------------------------------------------------------

struct Validity {
  const char* caption;
  bool (*is_valid)(std::string const& text);
  std::string text;
  bool valid;
};

class Validities : public testing::TestWithParam<Validity> {};

TEST_P(Validities, GoByTheShapeAlone) {
  auto const& row = GetParam();
  EXPECT_EQ(row.valid, row.is_valid(row.text)) << row.caption << ": " << row.text;
}

INSTANTIATE_TEST_SUITE_P(
    DateTime, Validities,
    testing::Values(
        Validity{"plain", &c_datetime::is_valid, "2024-02-29T12:30:05", true},
        Validity{"UTC", &c_datetime::is_valid, "2024-02-29T12:30:05Z", true},
        Validity{"offset", &c_datetime::is_valid, "2024-02-29T12:30:05-05:30", true},
        Validity{"fraction and offset", &c_datetime::is_valid, "2024-02-29T12:30:05.123+05:30", true},
        Validity{"point without digits", &c_datetime::is_valid, "2024-02-29T12:30:05.", true},
        Validity{"point without digits, UTC", &c_datetime::is_valid, "2024-02-29T12:30:05.Z", true},
        Validity{"long fraction", &c_datetime::is_valid, "2024-02-29T12:30:05." + std::string(5000, '7'),
                 true},
        Validity{"year 0000", &c_datetime::is_valid, "0000-01-01T00:00:00", true},
        Validity{"minus year", &c_datetime::is_valid, "-0044-03-15T00:00:00", true},
        Validity{"plus year", &c_datetime::is_valid, "+2024-03-15T00:00:00", true},
        Validity{"long year", &c_datetime::is_valid, std::string(5000, '9') + "-03-15T00:00:00", true},
        Validity{"nothing within range", &c_datetime::is_valid, "2024-13-32T25:60:99+99:99", true},
        Validity{"month and day 00", &c_datetime::is_valid, "2024-00-00T00:00:00", true},
        Validity{"empty", &c_datetime::is_valid, "", false},
        Validity{"three-digit year", &c_datetime::is_valid, "202-01-01T00:00:00", false},
        Validity{"two signs", &c_datetime::is_valid, "--2024-01-01T00:00:00", false},
        Validity{"one-digit month", &c_datetime::is_valid, "2024-1-01T00:00:00", false},
        Validity{"three-digit month", &c_datetime::is_valid, "2024-001-01T00:00:00", false},
        Validity{"three-digit day", &c_datetime::is_valid, "2024-01-001T00:00:00", false},
        Validity{"one-digit hour", &c_datetime::is_valid, "2024-01-01T0:00:00", false},
        Validity{"three-digit minutes", &c_datetime::is_valid, "2024-01-01T00:000:00", false},
        Validity{"one-digit seconds", &c_datetime::is_valid, "2024-01-01T00:00:0", false},
        Validity{"one-digit seconds, point", &c_datetime::is_valid, "2024-01-01T00:00:0.", false},
        Validity{"three-digit seconds", &c_datetime::is_valid, "2024-01-01T00:00:000", false},
        Validity{"comma", &c_datetime::is_valid, "2024-01-01T00:00:00,5", false},
        Validity{"two points", &c_datetime::is_valid, "2024-01-01T00:00:00.5.", false},
        Validity{"no time", &c_datetime::is_valid, "2024-01-01", false},
        Validity{"small t", &c_datetime::is_valid, "2024-01-01t00:00:00", false},
        Validity{"blank for T", &c_datetime::is_valid, "2024-01-01 00:00:00", false},
        Validity{"small z", &c_datetime::is_valid, "2024-01-01T00:00:00z", false},
        Validity{"text behind Z", &c_datetime::is_valid, "2024-01-01T00:00:00Z ", false},
        Validity{"Z and offset", &c_datetime::is_valid, "2024-01-01T00:00:00Z+01:00", false},
        Validity{"offset without sign", &c_datetime::is_valid, "2024-01-01T00:00:00 01:00", false},
        Validity{"offset without colon", &c_datetime::is_valid, "2024-01-01T00:00:00+0100", false},
        Validity{"one-digit offset", &c_datetime::is_valid, "2024-01-01T00:00:00+1:00", false},
        Validity{"three-digit offset", &c_datetime::is_valid, "2024-01-01T00:00:00+01:000", false},
        Validity{"blank in front", &c_datetime::is_valid, " 2024-01-01T00:00:00", false},
        Validity{"NUL behind", &c_datetime::is_valid, "2024-01-01T00:00:00\0"s, false},
        Validity{"NUL and more", &c_datetime::is_valid, "2024-01-01T00:00:00Z\0+01:00"s, false},
        Validity{"Latin-1 digit", &c_datetime::is_valid, "2024-01-01T00:00:0\xB2", false},
        Validity{"byte 0xFF", &c_datetime::is_valid, "2024-01-01T00:00:00\xFF", false}));

INSTANTIATE_TEST_SUITE_P(
    OtherTypes, Validities,
    testing::Values(Validity{"date", &c_date::is_valid, "2024-02-29", true},
                    Validity{"date with offset", &c_date::is_valid, "2024-02-29+02:00", true},
                    Validity{"date that no calendar has", &c_date::is_valid, "2024-13-45", true},
                    Validity{"date with signs", &c_date::is_valid, "-2024-02-29-02:00", true},
                    Validity{"date, long year", &c_date::is_valid, "12024-02-29Z", true},
                    Validity{"date and time", &c_date::is_valid, "2024-02-29T00:00:00", false},
                    Validity{"date without day", &c_date::is_valid, "2024-02", false},
                    Validity{"date, three-digit day", &c_date::is_valid, "2024-02-029", false},
                    Validity{"time", &c_time::is_valid, "12:30:05.5Z", true},
                    Validity{"time, point without digits", &c_time::is_valid, "12:30:05.", true},
                    Validity{"time, out of range", &c_time::is_valid, "25:60:99+99:99", true},
                    Validity{"time with minus", &c_time::is_valid, "-12:30:00", true},
                    Validity{"time with plus", &c_time::is_valid, "+12:30:00", true},
                    Validity{"time with two signs", &c_time::is_valid, "+-12:30:00", false},
                    Validity{"time without seconds", &c_time::is_valid, "12:30", false},
                    Validity{"year", &c_gyear::is_valid, "2024", true},
                    Validity{"year 0000", &c_gyear::is_valid, "0000", true},
                    Validity{"year with signs", &c_gyear::is_valid, "+2024-01:00", true},
                    Validity{"year, three digits", &c_gyear::is_valid, "-202", false},
                    Validity{"year, sign alone", &c_gyear::is_valid, "-", false},
                    Validity{"year, month behind it", &c_gyear::is_valid, "2024-02", false},
                    Validity{"year and month", &c_gyearmonth::is_valid, "2024-02Z", true},
                    Validity{"year and month 99", &c_gyearmonth::is_valid, "-2024-99", true},
                    Validity{"year and month, offset", &c_gyearmonth::is_valid, "2024-02-01:00", true},
                    Validity{"year and month, day behind them", &c_gyearmonth::is_valid, "2024-02-01", false},
                    Validity{"month and day", &c_gmonthday::is_valid, "--02-30Z", true},
                    Validity{"month and day, offset", &c_gmonthday::is_valid, "--02-30-05:00", true},
                    Validity{"month and three-digit day", &c_gmonthday::is_valid, "--02-030", false},
                    Validity{"month and one-digit day", &c_gmonthday::is_valid, "--02-3", false},
                    Validity{"month and day, one dash", &c_gmonthday::is_valid, "-02-30", false},
                    Validity{"month and day, sign", &c_gmonthday::is_valid, "+--02-30", false},
                    Validity{"day", &c_gday::is_valid, "---45", true},
                    Validity{"day with offset", &c_gday::is_valid, "---31+01:00", true},
                    Validity{"day, two dashes", &c_gday::is_valid, "--31", false},
                    Validity{"day, three digits", &c_gday::is_valid, "---031", false},
                    Validity{"month", &c_gmonth::is_valid, "--13--", true},
                    Validity{"month with offset", &c_gmonth::is_valid, "--02---01:00", true},
                    Validity{"month without closing dashes", &c_gmonth::is_valid, "--02", false},
                    Validity{"month with offset, not closed", &c_gmonth::is_valid, "--02+01:00", false},
                    Validity{"month with one closing dash", &c_gmonth::is_valid, "--02-", false},
                    Validity{"month, three digits", &c_gmonth::is_valid, "--002--", false}));

struct Walk {
  const char* caption;
  bool (*is_valid)(std::string const& text);
  std::string text;
  std::set<std::size_t> valid_sizes;  // of what is left of the text once it is cut off
};

class Walks : public testing::TestWithParam<Walk> {};

TEST_P(Walks, EveryCutIsInvalidUnlessItEndsAField) {
  auto const& row = GetParam();
  for (std::size_t size = 0; size <= row.text.size(); ++size) {
    EXPECT_EQ(row.valid_sizes.count(size) == 1, row.is_valid(row.text.substr(0, size)))
        << row.caption << ": " << row.text.substr(0, size);
  }
}

TEST_P(Walks, EveryByteReplacedByALetterIsInvalid) {
  auto const& row = GetParam();
  for (std::size_t index = 0; index != row.text.size(); ++index) {
    for (char const letter : {'d', 's', 'Y', ' ', '\xC3'}) {
      std::string text = row.text;
      text[index] = letter;
      EXPECT_FALSE(row.is_valid(text)) << row.caption << ": " << text;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(
    DateTime, Walks,
    testing::Values(
        Walk{"datetime", &c_datetime::is_valid, "-2024-01-02T03:04:05.25+05:30", {20, 21, 22, 23, 29}},
        Walk{"date", &c_date::is_valid, "2024-01-02Z", {10, 11}},
        Walk{"time", &c_time::is_valid, "03:04:05.2-05:30", {8, 9, 10, 16}},
        Walk{"gyear", &c_gyear::is_valid, "12024+05:30", {4, 5, 11}},
        Walk{"gyearmonth", &c_gyearmonth::is_valid, "2024-01+05:30", {7, 13}},
        Walk{"gmonthday", &c_gmonthday::is_valid, "--01-02Z", {7, 8}},
        Walk{"gday", &c_gday::is_valid, "---02+05:30", {5, 11}},
        Walk{"gmonth", &c_gmonth::is_valid, "--01--+05:30", {6, 12}}));

// --- Reading ---------------------------------------------------------------------------------------------

struct Parse {
  const char* caption;
  std::string (*read)(std::string const& text);
  std::string text;
  std::string fields;
};

class Parses : public testing::TestWithParam<Parse> {};

TEST_P(Parses, FillTheFieldsOfTheType) {
  auto const& row = GetParam();
  EXPECT_EQ(row.fields, row.read(row.text)) << row.caption << ": " << row.text;
}

INSTANTIATE_TEST_SUITE_P(
    Whole, Parses,
    testing::Values(
        Parse{"datetime", &read_fields<c_datetime>, "2024-02-29T12:30:05", "2024/2/29 12:30:5 +0"},
        Parse{"UTC", &read_fields<c_datetime>, "2024-02-29T12:30:05.25Z", "2024/2/29 12:30:5.25 +0Z"},
        Parse{"east", &read_fields<c_datetime>, "2024-02-29T12:30:05+05:30", "2024/2/29 12:30:5 +330"},
        Parse{"west", &read_fields<c_datetime>, "2024-02-29T12:30:05-05:30", "2024/2/29 12:30:5 -330"},
        Parse{"minus year", &read_fields<c_datetime>, "-0044-03-15T00:00:00", "-44/3/15 0:0:0 +0"},
        Parse{"plus year", &read_fields<c_datetime>, "+12024-03-15T00:00:00", "12024/3/15 0:0:0 +0"},
        Parse{"out of range", &read_fields<c_datetime>, "0000-13-45T25:60:99+99:99",
              "0/13/45 25:60:99 +6039"},
        Parse{"point without digits", &read_fields<c_datetime>, "2024-02-29T12:30:05.Z",
              "2024/2/29 12:30:5 +0Z"},
        Parse{"400 zeros of a fraction", &read_fields<c_datetime>,
              "2024-01-01T00:00:05." + std::string(400, '0'), "2024/1/1 0:0:5 +0"},
        Parse{"lowest year", &read_fields<c_datetime>, "-2147483648-01-01T00:00:00",
              "-2147483648/1/1 0:0:0 +0"},
        Parse{"year wraps", &read_fields<c_datetime>, "4294967297-01-01T00:00:00", "1/1/1 0:0:0 +0"},
        Parse{"date", &read_fields<c_date>, "-2024-02-29Z", "-2024/2/29 0:0:0 +0Z"},
        Parse{"date, offset", &read_fields<c_date>, "2024-02-29-01:00", "2024/2/29 0:0:0 -60"},
        Parse{"time", &read_fields<c_time>, "12:30:05.5+01:00", "1/0/0 12:30:5.5 +60"},
        Parse{"year", &read_fields<c_gyear>, "-2024+01:00", "-2024/0/0 0:0:0 +60"},
        Parse{"year and month", &read_fields<c_gyearmonth>, "-2024-02-01:00", "-2024/2/0 0:0:0 -60"},
        Parse{"month and day", &read_fields<c_gmonthday>, "--02-29Z", "1/2/29 0:0:0 +0Z"},
        Parse{"month and three-digit day", &read_fields<c_gmonthday>, "--02-123Z", "1/2/123 0:0:0 +0Z"},
        Parse{"month and one-digit day", &read_fields<c_gmonthday>, "--02-3Z", "1/2/3 0:0:0 +0Z"},
        Parse{"day", &read_fields<c_gday>, "---31-02:00", "1/0/31 0:0:0 -120"},
        Parse{"three-digit day", &read_fields<c_gday>, "---123Z", "1/0/123 0:0:0 +0Z"},
        Parse{"month", &read_fields<c_gmonth>, "--12--Z", "1/12/0 0:0:0 +0Z"}));

INSTANTIATE_TEST_SUITE_P(
    StopsWhereItDoesNotFit, Parses,
    testing::Values(
        Parse{"empty: a year without digits is 0", &read_fields<c_datetime>, "", "0/0/0 0:0:0 +0"},
        Parse{"no year", &read_fields<c_datetime>, "x", "0/0/0 0:0:0 +0"},
        Parse{"year too short is stored", &read_fields<c_datetime>, "-202-05-06T00:00:00",
              "202/0/0 0:0:0 +0"},
        Parse{"month too long is stored", &read_fields<c_datetime>, "2024-123-06T00:00:00",
              "2024/123/0 0:0:0 +0"},
        Parse{"sign of the year comes last", &read_fields<c_datetime>, "-2024-05-06T07:08:0",
              "2024/5/6 7:8:0 +0"},
        Parse{"one-digit seconds are stored", &read_fields<c_datetime>, "2024-05-06T07:08:9",
              "2024/5/6 7:8:9 +0"},
        Parse{"three-digit seconds are read", &read_fields<c_datetime>, "2024-05-06T07:08:123Z",
              "2024/5/6 7:8:123 +0Z"},
        Parse{"one digit and a point suffice", &read_fields<c_datetime>, "2024-05-06T07:08:9.Z",
              "2024/5/6 7:8:9 +0Z"},
        Parse{"wrong separator", &read_fields<c_datetime>, "2024-05-06 07:08:09", "2024/5/6 0:0:0 +0"},
        Parse{"wrong zone", &read_fields<c_datetime>, "-2024-05-06T07:08:09z", "-2024/5/6 7:8:9 +0"},
        Parse{"text behind the zone", &read_fields<c_datetime>, "2024-05-06T07:08:09+01:00x",
              "2024/5/6 7:8:9 +0"},
        Parse{"up to a NUL", &read_fields<c_datetime>, "2024-05-06T07:08:09Z\0+01:00"s, "2024/5/6 7:8:9 +0Z"},
        Parse{"date, day missing", &read_fields<c_date>, "-2024-05-", "2024/5/0 0:0:0 +0"},
        Parse{"time with minus", &read_fields<c_time>, "-12:30:00", "1/0/0 0:0:0 +0"},
        Parse{"time with plus", &read_fields<c_time>, "+12:30:00", "1/0/0 0:0:0 +0"},
        Parse{"time, one-digit minutes", &read_fields<c_time>, "12:3:00", "1/0/0 12:3:0 +0"},
        Parse{"month and day, one-digit month", &read_fields<c_gmonthday>, "--2-03Z", "1/2/0 0:0:0 +0"},
        Parse{"month and day, no day", &read_fields<c_gmonthday>, "--02-Z", "1/2/0 0:0:0 +0"},
        Parse{"day, two dashes", &read_fields<c_gday>, "--12", "1/0/0 0:0:0 +0"},
        Parse{"day, none", &read_fields<c_gday>, "---Z", "1/0/0 0:0:0 +0"},
        Parse{"month not closed: no zone", &read_fields<c_gmonth>, "--12Z", "1/12/0 0:0:0 +0"},
        Parse{"month half closed: no zone", &read_fields<c_gmonth>, "--12-Z", "1/12/0 0:0:0 +0"}));

TEST(DateTime, StartsWithYearOneAndZeros) {
  c_datetime const value{};
  EXPECT_EQ("1/0/0 0:0:0 +0", fields(value));
  EXPECT_EQ("0001-00-00T00:00:00", written(value));
  EXPECT_EQ("1/0/0 0:0:0 +0", fields(c_gmonth()));
}

TEST(DateTime, AssignmentReadsInPlace) {
  c_datetime value("2024-05-06T07:08:09+01:00");
  EXPECT_EQ(&value, &(value = "1999-10"));
  EXPECT_EQ("1999/10/6 7:8:9 +60", fields(value));
  EXPECT_EQ(&value, &(value = "2000-01-02T03:04:05?"s));
  EXPECT_EQ("2000/1/2 3:4:5 +60", fields(value));
  c_time time("12:30:00Z");
  time = "-01:02:03";
  EXPECT_EQ("1/0/0 12:30:0 +0Z", fields(time));
}

TEST(DateTime, IsReadFromAttributeText) {
  c_datetime value;
  lmx::v_to_o(value, "2024-05-06T07:08:09Z"s);
  EXPECT_EQ("2024/5/6 7:8:9 +0Z", fields(value));
}

TEST(DateTime, HasAGetterAndASetterForEachField) {
  c_datetime value;
  value.set_year(-2024);
  value.set_month(2);
  value.set_day(3);
  value.set_hours(4);
  value.set_mins(5);
  value.set_secs(6.5);
  value.set_tz_offset(-7);
  value.set_is_utc(true);
  EXPECT_EQ("-2024/2/3 4:5:6.5 -7Z", fields(value));
  EXPECT_EQ(-2024, value.get_year());
  EXPECT_EQ(2u, value.get_month());
  EXPECT_EQ(3u, value.get_day());
  EXPECT_EQ(4u, value.get_hours());
  EXPECT_EQ(5u, value.get_mins());
  EXPECT_EQ(6.5, value.get_secs());
  EXPECT_EQ(-7, value.get_tz_offset());
  EXPECT_TRUE(value.get_is_utc());
}

template <class T>
void expect_plain_value_over_the_common_base() {
  EXPECT_TRUE((std::is_base_of_v<c_datetime_base, T>));
  EXPECT_TRUE(std::is_trivially_copyable_v<T>);
  EXPECT_EQ(sizeof(c_datetime_base), sizeof(T));
}

TEST(DateTime, TypesAddNoFieldToTheirBase) {
  expect_plain_value_over_the_common_base<c_datetime>();
  expect_plain_value_over_the_common_base<c_date>();
  expect_plain_value_over_the_common_base<c_time>();
  expect_plain_value_over_the_common_base<c_gyear>();
  expect_plain_value_over_the_common_base<c_gyearmonth>();
  expect_plain_value_over_the_common_base<c_gmonthday>();
  expect_plain_value_over_the_common_base<c_gday>();
  expect_plain_value_over_the_common_base<c_gmonth>();
}

// --- Writing ---------------------------------------------------------------------------------------------

struct RoundTrip {
  const char* caption;
  std::string (*read_and_write)(std::string const& text);
  std::string text;
  std::string written;
};

class RoundTrips : public testing::TestWithParam<RoundTrip> {};

TEST_P(RoundTrips, GiveTheTextOrWhatIsKeptOfIt) {
  auto const& row = GetParam();
  EXPECT_EQ(row.written, row.read_and_write(row.text)) << row.caption;
}

TEST_P(RoundTrips, DoNotFollowTheGlobalLocale) {
  auto const& row = GetParam();
  CommaLocale const comma_locale;
  EXPECT_EQ(row.written, row.read_and_write(row.text)) << row.caption;
}

RoundTrip kept(const char* caption, std::string (*read_and_write)(std::string const&), std::string text) {
  return {caption, read_and_write, text, text};
}

INSTANTIATE_TEST_SUITE_P(
    DateTime, RoundTrips,
    testing::Values(kept("datetime in UTC", &read_and_written<c_datetime>, "2024-02-09T02:03:05Z"),
                    kept("datetime without zone", &read_and_written<c_datetime>, "0001-12-31T23:59:59"),
                    kept("datetime, east", &read_and_written<c_datetime>, "2024-02-09T02:03:05.5+05:30"),
                    kept("datetime, west", &read_and_written<c_datetime>, "2024-02-09T02:03:05.5-11:09"),
                    kept("long year", &read_and_written<c_datetime>, "12024-02-09T02:03:05Z"),
                    kept("minus year of four digits", &read_and_written<c_datetime>, "-2024-02-09T02:03:05Z"),
                    kept("out of range", &read_and_written<c_datetime>, "0000-13-32T25:60:99+99:59"),
                    kept("date", &read_and_written<c_date>, "2024-02-09Z"),
                    kept("time", &read_and_written<c_time>, "02:03:05.25-01:00"),
                    kept("year", &read_and_written<c_gyear>, "0024+14:00"),
                    kept("year and month", &read_and_written<c_gyearmonth>, "0024-02Z"),
                    kept("month and day", &read_and_written<c_gmonthday>, "--02-09+01:00"),
                    kept("day", &read_and_written<c_gday>, "---09Z"),
                    kept("month", &read_and_written<c_gmonth>, "--02--Z"),
                    RoundTrip{"offset of zero, east", &read_and_written<c_datetime>,
                              "2024-02-09T02:03:05+00:00", "2024-02-09T02:03:05"},
                    RoundTrip{"offset of zero, west", &read_and_written<c_datetime>,
                              "2024-02-09T02:03:05-00:00", "2024-02-09T02:03:05"},
                    RoundTrip{"minutes of the zone are carried", &read_and_written<c_time>, "02:03:05+01:60",
                              "02:03:05+02:00"},
                    RoundTrip{"three-digit hours of the zone", &read_and_written<c_time>, "02:03:05-99:99",
                              "02:03:05-100:39"},
                    RoundTrip{"trailing zero", &read_and_written<c_datetime>, "2024-02-09T02:03:05.500Z",
                              "2024-02-09T02:03:05.5Z"},
                    RoundTrip{"only zeros", &read_and_written<c_datetime>, "2024-02-09T02:03:05.000Z",
                              "2024-02-09T02:03:05Z"},
                    RoundTrip{"400 zeros", &read_and_written<c_datetime>,
                              "2024-02-09T02:03:05." + std::string(400, '0'), "2024-02-09T02:03:05"},
                    RoundTrip{"point without digits", &read_and_written<c_time>, "12:30:05.", "12:30:05"},
                    RoundTrip{"more than 14 digits", &read_and_written<c_time>, "12:30:12.3456789012345",
                              "12:30:12.345678901234"},
                    RoundTrip{"14 digits round up to 60", &read_and_written<c_time>,
                              "12:30:59.999999999999999", "12:30:60"},
                    RoundTrip{"14 digits round up to 010", &read_and_written<c_time>,
                              "12:30:09.99999999999999", "12:30:010"},
                    RoundTrip{"plus is dropped", &read_and_written<c_datetime>, "+2024-02-09T02:03:05",
                              "2024-02-09T02:03:05"},
                    RoundTrip{"short minus year", &read_and_written<c_date>, "-0005-02-09", "00-5-02-09"},
                    RoundTrip{"three-digit minus year", &read_and_written<c_gyear>, "-0123", "-123"},
                    RoundTrip{"leading zeros of a long year", &read_and_written<c_gyear>, "0002024", "2024"},
                    RoundTrip{"lowest year", &read_and_written<c_gyear>, "-2147483648", "-2147483648"},
                    RoundTrip{"three-digit day", &read_and_written<c_gday>, "---123", "---123"},
                    RoundTrip{"one-digit day", &read_and_written<c_gday>, "---3", "---03"}));

struct Seconds {
  const char* caption;
  double secs;
  std::string written;
};

class SecondsWritten : public testing::TestWithParam<Seconds> {};

TEST_P(SecondsWritten, HaveTwoDigitsAndNoExponent) {
  auto const& row = GetParam();
  c_datetime_base value;
  value.set_secs(row.secs);
  std::ostringstream out;
  out << std::setprecision(3) << std::fixed;
  value.output_seconds(out);
  EXPECT_EQ(row.written, out.str()) << row.caption;
  EXPECT_EQ(3, out.precision()) << row.caption;
}

INSTANTIATE_TEST_SUITE_P(
    DateTime, SecondsWritten,
    testing::Values(Seconds{"zero", 0.0, "00"}, Seconds{"negative zero keeps its sign", -0.0, "0-0"},
                    Seconds{"one digit", 5.0, "05"}, Seconds{"two digits and a fraction", 12.25, "12.25"},
                    Seconds{"ten", 10.0, "10"}, Seconds{"just below ten", 9.875, "09.875"},
                    Seconds{"small", 0.0005, "00.0005"},
                    Seconds{"small, 13 places", 0.00012345678901234, "00.000123456789"},
                    Seconds{"not quite small", 0.001, "00.001"},
                    Seconds{"13 places", 1e-13, "00.0000000000001"},
                    Seconds{"smaller than 14 digits hold", 1e-14, "00"},
                    Seconds{"smallest", std::numeric_limits<double>::denorm_min(), "00"},
                    Seconds{"14 digits round up", 9.999999999999999, "010"},
                    Seconds{"three digits", 100.5, "100.5"}));

struct Zone {
  const char* caption;
  std::string text;
  bool valid;
  int offset;  // after set_tz on a value with an offset of 77 and UTC set
  bool is_utc;
};

class Zones : public testing::TestWithParam<Zone> {};

TEST_P(Zones, AreValidatedWithTheCursorAtTheEnd) {
  auto const& row = GetParam();
  char const* p = row.text.c_str();
  EXPECT_EQ(row.valid, c_datetime_base::is_valid_tz(p)) << row.caption;
  if (row.valid) {
    EXPECT_EQ(row.text.c_str() + row.text.size(), p) << row.caption;
  }
}

TEST_P(Zones, ChangeNothingUnlessValid) {
  auto const& row = GetParam();
  c_datetime_base value;
  value.m_tz_offset = 77;
  value.m_is_utc = true;
  value.set_tz(row.text.c_str());
  EXPECT_EQ(row.offset, value.m_tz_offset) << row.caption;
  EXPECT_EQ(row.is_utc, value.m_is_utc) << row.caption;
}

INSTANTIATE_TEST_SUITE_P(
    DateTime, Zones,
    testing::Values(Zone{"none", "", true, 0, false}, Zone{"UTC", "Z", true, 0, true},
                    Zone{"east", "+05:30", true, 330, false}, Zone{"west", "-05:30", true, -330, false},
                    Zone{"minus zero", "-00:00", true, 0, false},
                    Zone{"highest", "+99:99", true, 6039, false}, Zone{"small z", "z", false, 77, true},
                    Zone{"text behind Z", "Zx", false, 77, true}, Zone{"lone sign", "+", false, 77, true},
                    Zone{"no sign", "05:30", false, 77, true},
                    Zone{"one-digit hours", "+5:30", false, 77, true},
                    Zone{"three-digit hours", "+005:30", false, 77, true},
                    Zone{"no minutes", "+05", false, 77, true}, Zone{"colon only", "+05:", false, 77, true},
                    Zone{"one-digit minutes", "+05:3", false, 77, true},
                    Zone{"three-digit minutes", "+05:300", false, 77, true},
                    Zone{"text behind", "+05:30 ", false, 77, true}));

TEST(DateTime, ZoneIsWrittenAsUtcOffsetOrNothing) {
  auto const zone = [](int offset, bool is_utc) {
    c_datetime_base value;
    value.m_tz_offset = offset;
    value.m_is_utc = is_utc;
    std::ostringstream out;
    value.output_tz(out);
    return out.str();
  };
  EXPECT_EQ("", zone(0, false));
  EXPECT_EQ("Z", zone(0, true));
  EXPECT_EQ("Z", zone(60, true));
  EXPECT_EQ("+01:05", zone(65, false));
  EXPECT_EQ("-00:01", zone(-1, false));
  EXPECT_EQ("-35791394:08", zone(std::numeric_limits<int>::min(), false));
}

TEST(DateTime, WritingLeavesTheFillAtZeroAndAllElseAsItWas) {
  std::ostringstream out;
  std::locale const comma_locale = CommaLocale::locale();
  out.imbue(comma_locale);
  out << std::setfill('*') << std::left << std::hex << std::showpos << std::scientific
      << std::setprecision(3);
  std::ios_base::fmtflags const flags = out.flags();
  out << std::setw(30) << c_datetime("2024-10-11T12:13:14.5+10:11");
  EXPECT_EQ("2024-10-11T12:13:14.5+10:11", out.str());
  EXPECT_EQ('0', out.fill());
  EXPECT_EQ(0, out.width());
  EXPECT_EQ(3, out.precision());
  EXPECT_EQ(flags, out.flags());
  EXPECT_TRUE(comma_locale == out.getloc());
}

template <class T>
char fill_after(T const& value) {
  std::ostringstream out;
  out << value;
  return out.fill();
}

TEST(DateTime, EveryTypeLeavesTheFillAtZero) {
  EXPECT_EQ('0', fill_after(c_date()));
  EXPECT_EQ('0', fill_after(c_time()));
  EXPECT_EQ('0', fill_after(c_gyear()));
  EXPECT_EQ('0', fill_after(c_gyearmonth()));
  EXPECT_EQ('0', fill_after(c_gmonthday()));
  EXPECT_EQ('0', fill_after(c_gday()));
  EXPECT_EQ('0', fill_after(c_gmonth()));
}

TEST(DateTimeDeathTest, NegativeSecondsStopTheProcess) {
  c_datetime datetime;
  c_time time;
  datetime.m_secs = time.m_secs = -1.0;
  std::ostringstream out;
  EXPECT_DEATH(out << datetime, "r_v_in\\.m_secs >= 0\\.0");
  EXPECT_DEATH(out << time, "r_v_in\\.m_secs >= 0\\.0");
  EXPECT_DEATH(static_cast<void>(time.get_as_string()), "r_v_in\\.m_secs >= 0\\.0");
  time.m_secs = std::numeric_limits<double>::quiet_NaN();
  EXPECT_DEATH(out << time, "r_v_in\\.m_secs >= 0\\.0");
}

TEST(DateTime, TypesThatShowNoSecondsDoNotLookAtThem) {
  c_date date("2024-02-09");
  date.m_secs = -1.0;
  EXPECT_EQ("2024-02-09", written(date));
}

// --- Relations -------------------------------------------------------------------------------------------

// The operators that hold between two values, as in "!= > >=".
template <class T>
std::string relations(T const& a, T const& b) {
  std::string holding;
  if (a == b) holding += "== ";
  if (a != b) holding += "!= ";
  if (a > b) holding += "> ";
  if (a >= b) holding += ">= ";
  if (a < b) holding += "< ";
  if (a <= b) holding += "<= ";
  return holding;
}

constexpr char const* equal = "== >= <= ";
constexpr char const* greater = "!= > >= ";
constexpr char const* less = "!= < <= ";

struct Relation {
  const char* caption;
  std::string a, b;
  const char* holding;
};

class Relations : public testing::TestWithParam<Relation> {};

TEST_P(Relations, GoByTheWrittenFields) {
  auto const& row = GetParam();
  EXPECT_EQ(row.holding, relations(c_datetime(row.a), c_datetime(row.b))) << row.caption;
  std::string const reverse = row.holding == equal ? equal : row.holding == greater ? less : greater;
  EXPECT_EQ(reverse, relations(c_datetime(row.b), c_datetime(row.a))) << row.caption;
}

INSTANTIATE_TEST_SUITE_P(
    DateTime, Relations,
    testing::Values(Relation{"same", "2024-01-01T12:00:00", "2024-01-01T12:00:00", equal},
                    Relation{"zones differ", "2024-01-01T12:00:00Z", "2024-01-01T12:00:00+05:00", equal},
                    Relation{"no zone and UTC", "2024-01-01T00:00:00", "2024-01-01T00:00:00Z", equal},
                    Relation{"later by the clock, earlier in truth", "2024-01-01T12:00:01+05:00",
                             "2024-01-01T12:00:00Z", greater},
                    Relation{"60 seconds are no minute", "2024-01-01T12:00:60", "2024-01-01T12:01:00", less},
                    Relation{"fractions", "2024-01-01T12:00:00.5", "2024-01-01T12:00:00.25", greater},
                    Relation{"minutes before seconds", "2024-01-01T12:01:00", "2024-01-01T12:00:59", greater},
                    Relation{"hours before minutes", "2024-01-01T13:00:00", "2024-01-01T12:59:00", greater},
                    Relation{"day before hours", "2024-01-02T00:00:00", "2024-01-01T23:00:00", greater},
                    Relation{"month before day", "2024-02-01T00:00:00", "2024-01-31T00:00:00", greater},
                    Relation{"year before month", "2025-01-01T00:00:00", "2024-12-01T00:00:00", greater},
                    Relation{"year is signed", "0001-01-01T00:00:00", "-0001-01-01T00:00:00", greater},
                    Relation{"both years minus", "-0005-01-01T00:00:00", "-0004-01-01T00:00:00", less}));

TEST(DateTime, FieldsOtherThanTheYearCompareUnsigned) {
  c_datetime high, low;
  high.m_month = std::numeric_limits<unsigned int>::max();
  low.m_month = 1;
  EXPECT_EQ(greater, relations(high, low));
}

TEST(DateTime, EveryTypeCompares) {
  EXPECT_EQ(less, relations(c_date("2024-01-01"), c_date("2024-01-02Z")));
  EXPECT_EQ(equal, relations(c_time("12:00:00Z"), c_time("12:00:00+05:00")));
  EXPECT_EQ(greater, relations(c_gyear("2024"), c_gyear("-2024")));
  EXPECT_EQ(less, relations(c_gyearmonth("2024-01"), c_gyearmonth("2024-02")));
  EXPECT_EQ(less, relations(c_gmonthday("--01-31"), c_gmonthday("--02-01")));
  EXPECT_EQ(equal, relations(c_gday("---01"), c_gday("---1Z")));
  EXPECT_EQ(greater, relations(c_gmonth("--12--"), c_gmonth("--02--")));
}

}  // namespace
