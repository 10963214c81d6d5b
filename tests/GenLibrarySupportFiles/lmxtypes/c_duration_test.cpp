// Durations: which texts are valid, which fields they give, normalising, relations, and what is written.
#include <gtest/gtest.h>

#include <algorithm>
#include <clocale>
#include <cstddef>
#include <iomanip>
#include <limits>
#include <locale>
#include <sstream>
#include <string>

#include "GenLibrarySupportFiles/lmxtypes/date_time.h"

namespace {

using lmx::c_duration;

constexpr unsigned int highest = std::numeric_limits<unsigned int>::max();
constexpr double infinity = std::numeric_limits<double>::infinity();

// All fields in their order, as in "-1/2/3 4:5:6.5".
std::string fields(c_duration const& value) {
  std::ostringstream out;
  out.imbue(std::locale::classic());
  out << (value.m_is_negative ? "-" : "") << value.m_years << '/' << value.m_months << '/' << value.m_days
      << ' ' << value.m_hours << ':' << value.m_mins << ':' << std::setprecision(15) << value.m_secs;
  return out.str();
}

std::string written(c_duration const& value) {
  std::ostringstream out;
  EXPECT_EQ(&out, &(out << value));
  EXPECT_EQ(out.str(), value.get_as_string());
  return out.str();
}

c_duration time_part(unsigned int hours, unsigned int mins, double secs) {
  c_duration value;
  value.m_hours = hours;
  value.m_mins = mins;
  value.m_secs = secs;
  return value;
}

// --- Texts -----------------------------------------------------------------------------------------------

struct Text {
  const char* caption;
  std::string text;
  bool valid;
  std::string fields;
};

class Texts : public testing::TestWithParam<Text> {};

TEST_P(Texts, AreValidatedByTheirShape) {
  auto const& row = GetParam();
  EXPECT_EQ(row.valid, c_duration::is_valid(row.text.c_str())) << row.caption << ": " << row.text;
}

TEST_P(Texts, FillTheFieldsAsFarAsTheyFit) {
  auto const& row = GetParam();
  EXPECT_EQ(row.fields, fields(c_duration(row.text))) << row.caption << ": " << row.text;
  c_duration value("-P1Y2M3DT4H5M6.5S");
  EXPECT_EQ(&value, &(value = row.text.c_str()));
  EXPECT_EQ(row.fields, fields(value)) << "nothing is left of the old value; " << row.caption;
}

INSTANTIATE_TEST_SUITE_P(
    Valid, Texts,
    testing::Values(
        Text{"all parts", "P1Y2M3DT4H5M6.5S", true, "1/2/3 4:5:6.5"},
        Text{"minus", "-P1Y2M3DT4H5M6.5S", true, "-1/2/3 4:5:6.5"}, Text{"plus", "+P1Y", true, "1/0/0 0:0:0"},
        Text{"nothing", "P", true, "0/0/0 0:0:0"}, Text{"minus nothing", "-P", true, "-0/0/0 0:0:0"},
        Text{"years", "P20Y", true, "20/0/0 0:0:0"}, Text{"months", "P20M", true, "0/20/0 0:0:0"},
        Text{"days", "P20D", true, "0/0/20 0:0:0"}, Text{"years and days", "P1Y2D", true, "1/0/2 0:0:0"},
        Text{"hours", "PT20H", true, "0/0/0 20:0:0"}, Text{"minutes", "PT20M", true, "0/0/0 0:20:0"},
        Text{"seconds", "PT20S", true, "0/0/0 0:0:20"},
        Text{"months and minutes", "P1MT2M", true, "0/1/0 0:2:0"},
        Text{"hours and seconds", "PT1H2S", true, "0/0/0 1:0:2"},
        Text{"leading zeros", "P001YT002.50S", true, "1/0/0 0:0:2.5"},
        Text{"digits after the point only", "PT.5S", true, "0/0/0 0:0:0.5"},
        Text{"digits before the point only", "PT5.S", true, "0/0/0 0:0:5"},
        Text{"digits before T are dropped", "P5T1H", true, "0/0/0 1:0:0"},
        Text{"digits behind a part before T", "P1Y5T1H", true, "1/0/0 1:0:0"},
        Text{"digits behind the days before T", "P1D5T1H", true, "0/0/1 1:0:0"},
        Text{"most that is read", "P2147483647Y", true, "2147483647/0/0 0:0:0"},
        Text{"more than is read", "P2147483648Y99999999999M" + std::string(300, '9') + "D", true,
             "2147483647/2147483647/2147483647 0:0:0"},
        Text{"seconds of 400 digits", "PT" + std::string(400, '9') + "S", true, "0/0/0 0:0:inf"},
        Text{"fraction of 400 zeros", "PT5." + std::string(400, '0') + "S", true, "0/0/0 0:0:5"}));

INSTANTIATE_TEST_SUITE_P(
    Invalid, Texts,
    testing::Values(
        Text{"empty", "", false, "0/0/0 0:0:0"}, Text{"lone sign", "-", false, "-0/0/0 0:0:0"},
        Text{"no P", "-1Y", false, "-0/0/0 0:0:0"}, Text{"small p", "p1Y", false, "0/0/0 0:0:0"},
        Text{"two signs", "--P1Y", false, "-0/0/0 0:0:0"},
        Text{"sign behind P", "P-1Y", false, "0/0/0 0:0:0"},
        Text{"blank in front", " P1Y", false, "0/0/0 0:0:0"},
        Text{"blank behind", "P1Y ", false, "1/0/0 0:0:0"},
        Text{"designator without digits", "PY", false, "0/0/0 0:0:0"},
        Text{"digits without designator", "P5", false, "0/0/0 0:0:0"},
        Text{"digits behind a part", "P1Y5", false, "1/0/0 0:0:0"},
        Text{"digits behind the days", "P1D5", false, "0/0/1 0:0:0"},
        Text{"wrong order", "P1M2Y", false, "0/1/0 0:0:0"}, Text{"part twice", "P1Y2Y", false, "1/0/0 0:0:0"},
        Text{"small designator", "P1y", false, "0/0/0 0:0:0"},
        Text{"fraction of a day", "P1.5D", false, "0/0/0 0:0:0"},
        Text{"hours without T", "P1H", false, "0/0/0 0:0:0"},
        Text{"nothing behind T", "PT", false, "0/0/0 0:0:0"},
        Text{"nothing behind T, with years", "P1YT", false, "1/0/0 0:0:0"},
        Text{"two T", "PTT1H", false, "0/0/0 0:0:0"}, Text{"days behind T", "PT1D", false, "0/0/0 0:0:0"},
        Text{"time out of order", "PT1M2H", false, "0/0/0 0:1:0"},
        Text{"time digits without designator", "PT5", false, "0/0/0 0:0:0"},
        Text{"digits behind hours", "PT1H5", false, "0/0/0 1:0:0"},
        Text{"point ends the text", "PT5.", false, "0/0/0 0:0:0"},
        Text{"lone point", "PT.", false, "0/0/0 0:0:0"}, Text{"no S", "PT5.5", false, "0/0/0 0:0:0"},
        Text{"point without digits", "PT.S", false, "0/0/0 0:0:0"},
        Text{"S without digits", "PTS", false, "0/0/0 0:0:0"},
        Text{"fraction of an hour", "PT1.5H", false, "0/0/0 0:0:0"},
        Text{"comma", "PT1,5S", false, "0/0/0 0:0:0"}, Text{"exponent", "PT1e1S", false, "0/0/0 0:0:0"},
        Text{"text behind S", "PT1S2", false, "0/0/0 0:0:1"},
        Text{"seconds twice", "PT1S2S", false, "0/0/0 0:0:1"},
        Text{"hexadecimal", "PT0x1S", false, "0/0/0 0:0:0"},
        Text{"byte 0xFF", "P\xFF", false, "0/0/0 0:0:0"}));

TEST(Duration, EveryCutOfALongTextIsInvalidUnlessItEndsAPart) {
  std::string const text = "-P1Y2M3DT4H5M6.5S";
  for (std::size_t size = 0; size <= text.size(); ++size) {
    std::string const cut = text.substr(0, size);
    bool const ends_a_part = !cut.empty() && std::string("PYMDHS").find(cut.back()) != std::string::npos;
    EXPECT_EQ(ends_a_part, c_duration::is_valid(cut.c_str())) << cut;
  }
}

// The C library's locale decides; whichever this machine has, the result is told by its decimal point.
TEST(Duration, FractionOfSecondsFollowsTheProcessLocale) {
  for (char const* name : {"C", "de_DE.UTF-8", "de_DE.utf8", "de_DE", "fr_FR.UTF-8", "fr_FR.utf8"}) {
    if (std::setlocale(LC_NUMERIC, name) == nullptr) continue;
    bool const has_point = std::string(".") == std::localeconv()->decimal_point;
    EXPECT_EQ(has_point ? 6.5 : 6.0, c_duration("PT6.5S").m_secs) << name;
    EXPECT_EQ("PT12.5S", time_part(0, 0, 12.5).get_as_string()) << name;
  }
  std::setlocale(LC_NUMERIC, "C");
}

TEST(Duration, HasAGetterAndASetterForEachField) {
  c_duration value;
  EXPECT_EQ("0/0/0 0:0:0", fields(value));
  value.set_is_negative(true);
  value.set_years(1);
  value.set_months(2);
  value.set_days(3);
  value.set_hours(4);
  value.set_mins(5);
  value.set_secs(6.5);
  EXPECT_EQ("-1/2/3 4:5:6.5", fields(value));
  EXPECT_TRUE(value.get_is_negative());
  EXPECT_EQ(1u, value.get_years());
  EXPECT_EQ(2u, value.get_months());
  EXPECT_EQ(3u, value.get_days());
  EXPECT_EQ(4u, value.get_hours());
  EXPECT_EQ(5u, value.get_mins());
  EXPECT_EQ(6.5, value.get_secs());
}

// The tables must agree with the calendar: a leap and a common year, from every month on.
TEST(Duration, DaysOfConsecutiveMonthsAreTheCalendarsExtremes) {
  constexpr unsigned int days_of_month[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  for (unsigned int count = 0; count != 12; ++count) {
    unsigned int most = 0;
    unsigned int fewest = highest;
    for (unsigned int first = 0; first != 12; ++first) {
      unsigned int sum = 0;
      unsigned int leap_day = 0;
      for (unsigned int i = first; i != first + count; ++i) {
        sum += days_of_month[i % 12];
        if (i % 12 == 1) leap_day = 1;
      }
      most = std::max(most, sum + leap_day);
      fewest = std::min(fewest, sum);
    }
    EXPECT_EQ(most, c_duration::m_day_mons_maxs[count]) << count;
    EXPECT_EQ(fewest, c_duration::m_day_mons_mins[count]) << count;
  }
}

// --- Normalising -----------------------------------------------------------------------------------------

struct Normalised {
  const char* caption;
  c_duration value;
  std::string fields;
};

class Normalising : public testing::TestWithParam<Normalised> {};

TEST_P(Normalising, CarriesUpToYearsAndUpToDays) {
  auto const& row = GetParam();
  c_duration value = row.value;
  value.normalize();
  EXPECT_EQ(row.fields, fields(value)) << row.caption;
}

c_duration all_highest() {
  c_duration value = time_part(highest, highest, 1e300);
  value.m_years = value.m_months = value.m_days = highest;
  return value;
}

INSTANTIATE_TEST_SUITE_P(
    Duration, Normalising,
    testing::Values(
        Normalised{"nothing to carry", "-P1Y11M40DT23H59M59.5S", "-1/11/40 23:59:59.5"},
        Normalised{"months", "P1Y25M", "3/1/0 0:0:0"}, Normalised{"seconds", "PT60S", "0/0/0 0:1:0"},
        Normalised{"seconds with a fraction", "PT125.25S", "0/0/0 0:2:5.25"},
        Normalised{"just below a minute", "PT59.99999999999999S", "0/0/0 0:0:60"},  // printed in 15 digits
        Normalised{"all the way to days", "PT23H59M60S", "0/0/1 0:0:0"},
        Normalised{"minutes", "PT1500M", "0/0/1 1:0:0"}, Normalised{"hours", "P1DT49H", "0/0/3 1:0:0"},
        Normalised{"days stay", "P400D", "0/0/400 0:0:0"},
        Normalised{"infinite seconds carry the most minutes", time_part(0, 0, infinity),
                   "0/0/2982616 4:15:inf"},
        Normalised{"more minutes than 32 bits hold stay seconds", time_part(0, 0, 1e12),
                   "0/0/2982616 4:15:742301962300"},
        Normalised{"minutes beyond 32 bits", time_part(0, 59, infinity), "0/0/2982616 5:14:inf"},
        Normalised{"hours beyond 32 bits", time_part(highest, 60, 0), "0/0/178956970 16:0:0"},
        Normalised{"years and days stop at the most", all_highest(), "4294967295/3/4294967295 23:30:1e+300"},
        Normalised{"negative seconds carry nothing", time_part(0, 5, -90.0), "0/0/0 0:5:-90"},
        Normalised{"no number carries nothing", time_part(0, 5, std::numeric_limits<double>::quiet_NaN()),
                   "0/0/0 0:5:nan"}));

// --- Relations -------------------------------------------------------------------------------------------

// The operators that hold between two values, as in "!= > >=".
std::string relations(c_duration const& a, c_duration const& b) {
  std::string holding;
  if (a == b) holding += "== ";
  if (a != b) holding += "!= ";
  if (a > b) holding += "> ";
  if (a >= b) holding += ">= ";
  if (a < b) holding += "< ";
  if (a <= b) holding += "<= ";
  return holding;
}

const std::string equal = "== >= <= ";
const std::string greater = "!= > >= ";
const std::string less = "!= < <= ";
const std::string unknown = "!= ";

struct Relation {
  const char* caption;
  c_duration a, b;
  std::string forwards, backwards;
};

class DurationRelations : public testing::TestWithParam<Relation> {};

TEST_P(DurationRelations, HoldBothWays) {
  auto const& row = GetParam();
  EXPECT_EQ(row.forwards, relations(row.a, row.b)) << row.caption;
  EXPECT_EQ(row.backwards, relations(row.b, row.a)) << row.caption;
  EXPECT_EQ(row.forwards == unknown, row.a.p_is_indeterminate(row.b)) << row.caption;
  EXPECT_EQ(row.forwards == unknown, row.b.p_is_indeterminate(row.a)) << row.caption;
}

c_duration months_and_days(unsigned int months, unsigned int days) {
  c_duration value;
  value.m_months = months;
  value.m_days = days;
  return value;
}

c_duration years_and_months(unsigned int years, unsigned int months) {
  c_duration value;
  value.m_years = years;
  value.m_months = months;
  return value;
}

INSTANTIATE_TEST_SUITE_P(
    Duration, DurationRelations,
    testing::Values(Relation{"same", "P1Y2M3DT4H5M6.5S", "P1Y2M3DT4H5M6.5S", equal, equal},
                    Relation{"twelve months are a year", "P1Y", "P12M", equal, equal},
                    Relation{"sixty seconds are a minute", "PT60S", "PT1M", equal, equal},
                    Relation{"24 hours are a day", "P1D", "PT24H", equal, equal},
                    Relation{"seconds decide last", "PT1M0.5S", "PT1M0.25S", greater, less},
                    Relation{"minutes before seconds", "PT2M", "PT1M59S", greater, less},
                    Relation{"hours before minutes", "PT2H", "PT1H59M", greater, less},
                    Relation{"days before hours", "P2D", "P1DT23H", greater, less},
                    Relation{"days compare unsigned", "P2147483647DT2147483647H", "P1D", greater, less},
                    Relation{"a month and 28 days", "P1M", "P28D", greater, less},
                    Relation{"a month and 29 days", "P1M", "P29D", unknown, unknown},
                    Relation{"a month and 30 days", "P1M", "P30D", unknown, unknown},
                    Relation{"a month and 31 days", "P1M", "P31D", greater, less},
                    Relation{"a month and 40 days: fields decide", "P1M", "P40D", greater, less},
                    Relation{"hours play no part in the overlap", "P1M", "P30DT23H", unknown, unknown},
                    Relation{"hours carried into days do", "P1M", "P30DT24H", greater, less},
                    Relation{"both negative", "-P1M", "-P30D", unknown, unknown},
                    Relation{"signs differ: never unknown", "-P1M", "P30D", greater, less},
                    Relation{"a year and 365 days: same months", "P1Y", "P365D", greater, less},
                    Relation{"twelve months and 365 days", "P12M", "P365D", greater, less},
                    Relation{"years of one side are 365 or 366 days", "P1Y1M", "P395D", unknown, unknown},
                    Relation{"most days of a year and a month", "P1Y1M", "P396D", unknown, unknown},
                    Relation{"as many as the most", "P1Y1M", "P397D", greater, less},
                    Relation{"as few as the fewest", "P1Y1M", "P393D", greater, less},
                    Relation{"one more than the fewest", "P1Y1M", "P394D", unknown, unknown},
                    Relation{"years of both cancel out", "P5Y1M", "P5Y30D", unknown, unknown},
                    Relation{"years of the side without months", "P2Y", "P1Y11M30D", unknown, unknown},
                    Relation{"13 months are a year and one", "P13M", "P1Y30D", unknown, unknown},
                    Relation{"24 months and 731 days: same months", "P24M", "P731D", greater, less},
                    Relation{"days near the most", months_and_days(1, highest - 29),
                             months_and_days(0, highest), unknown, unknown},
                    Relation{"years whose days pass 32 bits", years_and_months(11767033, 1),
                             months_and_days(0, highest), unknown, unknown},
                    Relation{"years near the most", years_and_months(highest, 1), years_and_months(0, 0),
                             greater, less},
                    Relation{"opposite signs are each less than the other", "-P1Y", "P1Y", less, less},
                    Relation{"sign does not matter for greater", "-P2Y", "P1Y", greater, less},
                    Relation{"minus zero is not zero", "-P", "P", less, less}));

TEST(Duration, IndeterminatePairsAreStillOrderedByTheirFields) {
  c_duration const month("P1M"), days("P30D");
  EXPECT_TRUE(month.p_is_greater_than(days));
  EXPECT_FALSE(days.p_is_greater_than(month));
  EXPECT_FALSE(month.p_is_equal(days));
}

TEST(Duration, ComparingChangesNeitherSide) {
  c_duration const a("P13M"), b("PT60S");
  EXPECT_TRUE(a > b);
  EXPECT_EQ("0/13/0 0:0:0", fields(a));
  EXPECT_EQ("0/0/0 0:0:60", fields(b));
}

// --- Writing ---------------------------------------------------------------------------------------------

TEST(Duration, OfMoreSecondsThanDigitsIsWrittenWithAnExponent) {
  EXPECT_EQ("PT99999999999999S", c_duration("PT99999999999999S").get_as_string());
  EXPECT_EQ("PT2.0602068864592e+14S", c_duration("PT206020688645919.7S").get_as_string());
}

struct Written {
  const char* caption;
  c_duration value;
  std::string text;
};

class DurationsWritten : public testing::TestWithParam<Written> {};

TEST_P(DurationsWritten, ShowThePartsThatAreNotZero) {
  auto const& row = GetParam();
  EXPECT_EQ(row.text, written(row.value)) << row.caption;
}

TEST_P(DurationsWritten, AreValidTexts) {
  EXPECT_TRUE(c_duration::is_valid(written(GetParam().value).c_str())) << GetParam().caption;
}

INSTANTIATE_TEST_SUITE_P(
    Duration, DurationsWritten,
    testing::Values(
        Written{"zero", c_duration(), "P"}, Written{"minus zero", "-P", "-P"},
        Written{"all parts", "-P1Y2M3DT4H5M6.5S", "-P1Y2M3DT4H5M6.5S"},
        Written{"not normalised", "P13M", "P13M"}, Written{"not normalised either", "PT60S", "PT60S"},
        Written{"days alone", "P1D", "P1D"}, Written{"minutes alone", "PT1M", "PT1M"},
        Written{"months and seconds", "P1MT5S", "P1MT5S"}, Written{"one digit of seconds", "PT5.0S", "PT5S"},
        Written{"small seconds", "PT0.0005S", "PT0.0005S"}, Written{"0.001", "PT0.001S", "PT0.001S"},
        Written{"smaller than 14 digits hold", time_part(0, 0, 1e-14), "PT0S"},
        Written{"14 digits round up", "PT59.999999999999999S", "PT60S"},
        Written{"more than 14 digits", "PT12.3456789012345S", "PT12.345678901234S"},
        Written{"dropped digits", "P5T1H", "PT1H"}, Written{"plus is dropped", "+P1Y", "P1Y"},
        Written{"largest number", years_and_months(highest, 1234567), "P4294967295Y1234567M"}));

TEST(Duration, WritingLeavesTheStreamAsItWas) {
  struct Punctuation : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    std::string do_grouping() const override { return "\1"; }
  };
  std::locale const comma_locale(std::locale::classic(), new Punctuation);
  std::ostringstream out;
  out.imbue(comma_locale);
  out << std::setfill('*') << std::hex << std::showpos << std::fixed << std::setprecision(3);
  std::ios_base::fmtflags const flags = out.flags();
  out << std::setw(30) << c_duration("P1000YT12.5S");
  EXPECT_EQ("P1000YT12.5S", out.str());
  EXPECT_EQ('*', out.fill());
  EXPECT_EQ(0, out.width());
  EXPECT_EQ(3, out.precision());
  EXPECT_EQ(flags, out.flags());
  EXPECT_TRUE(comma_locale == out.getloc());
}

TEST(DurationDeathTest, NegativeSecondsStopTheProcess) {
  std::ostringstream out;
  EXPECT_DEATH(out << time_part(0, 0, -1.0), "r_d_in\\.m_secs >= 0\\.0");
  EXPECT_DEATH(out << time_part(0, 0, std::numeric_limits<double>::quiet_NaN()), "r_d_in\\.m_secs >= 0\\.0");
  EXPECT_DEATH(static_cast<void>(time_part(0, 0, -1.0).get_as_string()), "r_d_in\\.m_secs >= 0\\.0");
}

}  // namespace
