// Conversions between text and value, one pair for each type of a value spec.
#include "GenLibrarySupportFiles/lmxtypes/conversions.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <locale>
#include <random>
#include <sstream>
#include <string>

#include "GenLibrarySupportFiles/lmxtypes/c_binary.h"
#include "GenLibrarySupportFiles/lmxtypes/lexical.h"
#include "support/comma_locale.h"

namespace {

using namespace std::string_literals;

template <class T>
T value_of(std::string const& text) {
  T value{};
  lmx::v_to_o(value, text);
  return value;
}

template <class T>
std::string text_of(T const& value) {
  std::ostringstream out;
  EXPECT_EQ(&out, &lmx::o_to_v(out, value));
  return out.str();
}

// --- Integers --------------------------------------------------------------------------------------------

struct Integer {
  const char* caption;
  std::string text;
  unsigned char u8;
  unsigned short u16;
  int i32;
  unsigned int u32;
};

class Integers : public testing::TestWithParam<Integer> {};

TEST_P(Integers, ClampTo32BitsAndAreThenCut) {
  auto const& row = GetParam();
  EXPECT_EQ(row.u8, value_of<unsigned char>(row.text)) << row.caption;
  EXPECT_EQ(row.u16, value_of<unsigned short>(row.text)) << row.caption;
  EXPECT_EQ(row.i32, value_of<int>(row.text)) << row.caption;
  EXPECT_EQ(row.u32, value_of<unsigned int>(row.text)) << row.caption;
}

constexpr int lowest = std::numeric_limits<int>::min();
constexpr int highest = std::numeric_limits<int>::max();

INSTANTIATE_TEST_SUITE_P(
    Conversions, Integers,
    testing::Values(Integer{"plain", "42", 42, 42, 42, 42}, Integer{"leading zeros", "0005", 5, 5, 5, 5},
                    Integer{"plus", "+5", 5, 5, 5, 5}, Integer{"minus zero", "-0", 0, 0, 0, 0},
                    Integer{"minus one", "-1", 255, 65535, -1, 4294967295u},
                    Integer{"cut to eight bits", "300", 44, 300, 300, 300},
                    Integer{"cut to sixteen bits", "65537", 1, 1, 65537, 65537},
                    Integer{"highest int", "2147483647", 255, 65535, highest, 2147483647u},
                    Integer{"one more", "2147483648", 255, 65535, highest, 2147483648u},
                    Integer{"lowest int", "-2147483648", 0, 0, lowest, 2147483648u},
                    Integer{"one less", "-2147483649", 0, 0, lowest, 2147483647u},
                    Integer{"highest unsigned", "4294967295", 255, 65535, highest, 4294967295u},
                    Integer{"one more than unsigned", "4294967296", 255, 65535, highest, 4294967295u},
                    Integer{"minus highest unsigned", "-4294967295", 0, 0, lowest, 1},
                    Integer{"minus one more", "-4294967296", 0, 0, lowest, 4294967295u},
                    Integer{"eleven digits", "99999999999", 255, 65535, highest, 4294967295u},
                    Integer{"minus eleven digits", "-99999999999", 0, 0, lowest, 4294967295u},
                    Integer{"2^64 and 5", "18446744073709551621", 255, 65535, highest, 4294967295u},
                    Integer{"300 digits", std::string(300, '9'), 255, 65535, highest, 4294967295u},
                    Integer{"zeros before a number", std::string(300, '0') + "7", 7, 7, 7, 7},
                    Integer{"empty", "", 0, 0, 0, 0}, Integer{"no number", "x", 0, 0, 0, 0},
                    Integer{"lone sign", "-", 0, 0, 0, 0}, Integer{"two signs", "--5", 0, 0, 0, 0},
                    Integer{"white space first", " \t\n\v\f\r-7", 249, 65529, -7, 4294967289u},
                    Integer{"white space behind the sign", "- 7", 0, 0, 0, 0},
                    Integer{"up to a letter", "12a3", 12, 12, 12, 12},
                    Integer{"up to a point", "12.9", 12, 12, 12, 12}, Integer{"no hex", "0x1F", 0, 0, 0, 0},
                    Integer{"no exponent", "1e3", 1, 1, 1, 1},
                    Integer{"up to a NUL", "12\0"s + "3", 12, 12, 12, 12},
                    Integer{"Latin-1 blank is none", "\xA0"s + "5", 0, 0, 0, 0},
                    Integer{"Latin-1 digit is none", "5\xB2", 5, 5, 5, 5}));

TEST(TextToUint32, ReadsHexadecimalDigitsAsWell) {
  EXPECT_EQ(0xABCDEF09u, lmx::text_to_uint32("abcDEF09", 16));
  EXPECT_EQ(0x1Fu, lmx::text_to_uint32("1Fg", 16));
  EXPECT_EQ(4294967295u, lmx::text_to_uint32("100000041", 16));
  EXPECT_EQ(0u, lmx::text_to_uint32("0x41", 16));
  EXPECT_EQ(highest, lmx::text_to_int32("100000041", 16));
  EXPECT_EQ(-255, lmx::text_to_int32("-fF", 16));
}

TEST(IntegerOutput, IsDigitsAlsoForABytesWorth) {
  EXPECT_EQ("65", text_of<unsigned char>('A'));
  EXPECT_EQ("0", text_of<unsigned char>(0));
  EXPECT_EQ("255", text_of<unsigned char>(255));
  EXPECT_EQ("65535", text_of<unsigned short>(65535));
  EXPECT_EQ("0", text_of(0));
  EXPECT_EQ("-2147483648", text_of(lowest));
  EXPECT_EQ("2147483647", text_of(highest));
  EXPECT_EQ("4294967295", text_of(4294967295u));
}

TEST(IntegerOutput, IgnoresFlagsAndLocaleOfTheStream) {
  std::ostringstream out;
  CommaLocale const comma;
  out.imbue(std::locale());
  out << std::hex << std::showbase << std::showpos;
  lmx::o_to_v(out, 1234567);
  out << ' ';
  lmx::o_to_v(out, 4000000000u);
  out << ' ';
  lmx::o_to_v(out, static_cast<unsigned short>(12345));
  out << ' ';
  lmx::o_to_v(out, static_cast<unsigned char>(200));
  EXPECT_EQ("1234567 4000000000 12345 200", out.str());
}

// --- Strings, booleans, bytes ----------------------------------------------------------------------------

TEST(StringInput, Copies) { EXPECT_EQ(" a\0\xC3\xA9 "s, value_of<std::string>(" a\0\xC3\xA9 "s)); }

TEST(BoolInput, IsTrueForTwoTextsOnly) {
  for (char const* text : {"true", "1"}) {
    bool value = false;
    lmx::v_to_o(value, text);
    EXPECT_TRUE(value) << text;
  }
  for (char const* text : {"false", "0", "", "TRUE", " 1", "2", "x"}) {
    bool value = true;
    lmx::v_to_o(value, text);
    EXPECT_FALSE(value) << text;
  }
}

TEST(BinaryConversion, IsHexadecimalBothWays) {
  auto const value = value_of<lmx::c_binary>("00fF1");
  ASSERT_EQ(2u, value.size());
  EXPECT_EQ("00FF", text_of(value));
  EXPECT_EQ("", text_of(lmx::c_binary()));
}

// --- Doubles ---------------------------------------------------------------------------------------------

bool same_double(double a, double b) {
  if (std::isnan(a) || std::isnan(b)) return std::isnan(a) && std::isnan(b);
  return std::memcmp(&a, &b, sizeof a) == 0;
}

TEST(DoubleInput, KnowsTheThreeNames) {
  double const infinity = std::numeric_limits<double>::infinity();
  EXPECT_TRUE(std::isnan(value_of<double>("NaN")));
  EXPECT_EQ(infinity, value_of<double>("INF"));
  EXPECT_EQ(-infinity, value_of<double>("-INF"));
}

struct Double {
  const char* caption;
  std::string text;
  double value;
};

class Doubles : public testing::TestWithParam<Double> {};

TEST_P(Doubles, HaveTheNearestValueUnderEveryLocale) {
  auto const& [caption, text, expected] = GetParam();
  EXPECT_PRED2(same_double, expected, value_of<double>(text)) << caption;
  CommaLocale const comma;
  EXPECT_PRED2(same_double, expected, value_of<double>(text)) << caption << ", comma locale";
}

INSTANTIATE_TEST_SUITE_P(
    Conversions, Doubles,
    testing::Values(Double{"integer", "42", 42.0}, Double{"fraction", "52.123456789", 52.123456789},
                    Double{"plus and exponent", "+1e5", 1e5}, Double{"point last", "1.e5", 1e5},
                    Double{"point first", ".5E-3", 0.5e-3}, Double{"minus zero", "-0.0", -0.0},
                    Double{"thousands are not grouped", "1.234", 1.234},
                    Double{"largest", "1.7976931348623157e308", std::numeric_limits<double>::max()},
                    Double{"too large", "1e309", HUGE_VAL},
                    Double{"too large below zero", "-1e309", -HUGE_VAL},
                    Double{"400 digits", std::string(400, '9'), HUGE_VAL},
                    Double{"smallest", "4.9e-324", std::numeric_limits<double>::denorm_min()},
                    Double{"too small", "1e-400", 0.0}, Double{"too small below zero", "-1e-400", -0.0},
                    Double{"far longer than any buffer", "0." + std::string(500, '0') + "1e501", 1.0},
                    Double{"halfway between two doubles goes to even", "9007199254740993",
                           9007199254740992.0},
                    Double{"a digit more decides", "9007199254740993.00000000000000000000000000000001",
                           9007199254740994.0},
                    Double{"a comma ends the number", "1,5", 1.0}, Double{"empty", "", 0.0},
                    Double{"no number", "x", 0.0}, Double{"white space first", " \t\n-1.5", -1.5},
                    Double{"up to a letter", "1.5x", 1.5}, Double{"up to a NUL", "1.5\0"s + "9", 1.5},
                    Double{"exponent without digits", "2e+", 2.0},
                    Double{"point before an exponent", ".e5", 0.0}, Double{"hexadecimal", "0x1.8p1", 3.0}));

std::string random_digits(std::mt19937& random, unsigned int most) {
  std::string digits;
  for (auto count = random() % (most + 1); count > 0; --count) {
    digits += static_cast<char>('0' + random() % 10);
  }
  return digits;
}

std::string random_float(std::mt19937& random) {
  static char const* const signs[] = {"", "+", "-"};
  std::string text = signs[random() % 3] + random_digits(random, random() % 8 == 0 ? 40 : 12);
  if (random() % 2 == 0) text += "." + random_digits(random, random() % 8 == 0 ? 400 : 20);
  if (random() % 2 == 0)
    text += (random() % 2 == 0 ? "e"s : "E"s) + signs[random() % 3] + random_digits(random, 3);
  return text;
}

TEST(DoubleInput, EqualsTheCLibrarysForEveryValidText) {
  ASSERT_STREQ(".", std::localeconv()->decimal_point);
  std::mt19937 random(20240229);
  int valid = 0;
  for (int i = 0; i < 200000; ++i) {
    std::string const text = random_float(random);
    if (lmx::is_valid_float(text)) ++valid;
    ASSERT_PRED2(same_double, std::strtod(text.c_str(), nullptr), value_of<double>(text)) << text;
  }
  EXPECT_GT(valid, 100000);
}

TEST(DoubleInput, EqualsTheCLibrarysForOtherTexts) {
  static constexpr char alphabet[] = "0123456789..+-eE xXpPaAfFnNiItTyY(),\t";
  std::mt19937 random(20240301);
  for (int i = 0; i < 200000; ++i) {
    std::string text;
    for (auto count = random() % 10; count > 0; --count) text += alphabet[random() % (sizeof alphabet - 1)];
    ASSERT_PRED2(same_double, std::strtod(text.c_str(), nullptr), value_of<double>(text)) << text;
  }
}

TEST(DoubleInput, IgnoresACommaLocaleOfTheCLibrary) {
  CommaLocale const comma;
  ASSERT_TRUE(CommaLocale::is_in_force())
      << "a locale with a decimal comma is needed; scripts/test.sh makes one";
  EXPECT_EQ(1.0, std::strtod("1.5", nullptr)) << "the locale is in force";
  EXPECT_EQ(1.5, value_of<double>("1.5"));
  EXPECT_EQ(1.0, value_of<double>("1,5"));
  EXPECT_TRUE(CommaLocale::is_in_force()) << "and stays so";
}

// --- Types without content -------------------------------------------------------------------------------

struct Nothing {};

TEST(ConversionDeathTest, NotUsedStopsTheProcess) {
  Nothing nothing;
  std::ostringstream out;
  EXPECT_DEATH(lmx::v_to_o_not_used(nothing, "x"), "assertion failed: v_to_o_not_used");
  EXPECT_DEATH(lmx::o_to_v_not_used(out, nothing), "assertion failed: o_to_v_not_used");
}

}  // namespace
