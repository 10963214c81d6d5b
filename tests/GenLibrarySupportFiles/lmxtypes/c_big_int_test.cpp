// Integers as digit text: what is kept of a text, the 32-bit bounds, and every relation in every form.
#include "GenLibrarySupportFiles/lmxtypes/c_big_int.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstdint>
#include <iomanip>
#include <limits>
#include <locale>
#include <sstream>
#include <string>
#include <type_traits>
#include <utility>

namespace {

using lmx::c_big_int;

constexpr char const* no_text = nullptr;

// --- From text -------------------------------------------------------------------------------------------

struct Reading {
  char const* caption;
  char const* text;
  std::string kept;
};
class BigIntText : public testing::TestWithParam<Reading> {};

TEST_P(BigIntText, IsKeptInCanonicalForm) {
  const auto& [caption, text, kept] = GetParam();
  EXPECT_EQ(kept, c_big_int(text).get_as_string()) << caption;

  c_big_int assigned("77");
  assigned = text;
  EXPECT_EQ(kept, assigned.get_as_string()) << caption << ", assigned";

  if (text == nullptr) return;
  EXPECT_EQ(kept, c_big_int(std::string(text)).get_as_string()) << caption << ", from a string";
  assigned = "77";
  assigned = std::string(text);
  EXPECT_EQ(kept, assigned.get_as_string()) << caption << ", assigned from a string";
}

INSTANTIATE_TEST_SUITE_P(
    Integers, BigIntText,
    testing::Values(Reading{"empty", "", "0"}, Reading{"null", nullptr, "0"}, Reading{"zeros", "000", "0"},
                    Reading{"negative zero", "-0", "0"}, Reading{"negative zeros", "-000", "0"},
                    Reading{"positive zero", "+0", "0"}, Reading{"a plus alone", "+", "0"},
                    Reading{"a minus alone", "-", "0"}, Reading{"two signs", "--5", "0"},
                    Reading{"a sign behind zeros", "00-5", "0"}, Reading{"leading zeros", "00012", "12"},
                    Reading{"leading zeros behind a minus", "-00012", "-12"}, Reading{"a plus", "+12", "12"},
                    Reading{"zeros at the end", "1200", "1200"}, Reading{"letters behind", "12abc", "12"},
                    Reading{"letters alone", "abc", "0"}, Reading{"a minus and letters", "-abc", "0"},
                    Reading{"a blank in front", " 5", "0"}, Reading{"a point", "1.9", "1"},
                    Reading{"a byte above 127", "5\xB2", "5"}, Reading{"a byte above 127 first", "\xB2", "0"},
                    Reading{"the characters next to the digits", "5/", "5"},
                    Reading{"the characters next to the digits", "5:", "5"},
                    Reading{"thirty digits", "-123456789012345678901234567890",
                            "-123456789012345678901234567890"}));

TEST(BigInt, IsZeroByDefault) { EXPECT_EQ("0", c_big_int().get_as_string()); }

TEST(BigInt, KeepsThreeHundredDigits) {
  const std::string digits(300, '7');
  EXPECT_EQ(digits, c_big_int("000" + digits).get_as_string());
}

TEST(BigInt, ReadsAStringUpToItsFirstNul) {
  const std::string text(
      "12\0"
      "34",
      5);
  EXPECT_EQ("12", c_big_int(text).get_as_string());
}

// --- From machine numbers, copies ------------------------------------------------------------------------

TEST(BigInt, TakesMachineNumbers) {
  EXPECT_EQ("0", c_big_int(0).get_as_string());
  EXPECT_EQ("0", c_big_int(0L).get_as_string());
  EXPECT_EQ("-7", c_big_int(-7).get_as_string());
  EXPECT_EQ("42", c_big_int(42L).get_as_string());
  EXPECT_EQ("2147483647", c_big_int(std::numeric_limits<std::int32_t>::max()).get_as_string());
  EXPECT_EQ("-2147483648", c_big_int(std::numeric_limits<std::int32_t>::min()).get_as_string());

  c_big_int value("77");
  value = 0;
  EXPECT_EQ("0", value.get_as_string());
  value = -12L;
  EXPECT_EQ("-12", value.get_as_string());
  value = 5;
  EXPECT_EQ("5", value.get_as_string());
}

#if LONG_MAX > INT_MAX  // elsewhere there is nothing to cut
TEST(BigInt, CutsLongTo32Bits) {
  const long beyond = static_cast<long>((std::int64_t{1} << 32) + 5);
  EXPECT_EQ("5", c_big_int(beyond).get_as_string());
  c_big_int value;
  value = beyond;
  EXPECT_EQ("5", value.get_as_string());
}
#endif

TEST(BigInt, CopiesAndLeavesZeroWhenMovedFrom) {
  c_big_int a("-123456789012345678901234567890");
  const c_big_int copy(a);
  c_big_int moved(std::move(a));
  EXPECT_EQ(copy, moved);
  EXPECT_EQ("0", a.get_as_string());  // NOLINT(bugprone-use-after-move): promised

  a = "9";
  a = std::move(moved);
  EXPECT_EQ(copy, a);
  EXPECT_EQ("0", moved.get_as_string());  // NOLINT(bugprone-use-after-move): promised

  moved = a;
  EXPECT_EQ(copy, moved);
  const c_big_int& itself = moved;
  moved = itself;
  EXPECT_EQ(copy, moved);
  EXPECT_TRUE(std::is_nothrow_move_constructible_v<c_big_int>);
}

TEST(BigInt, Swaps) {
  c_big_int a("1");
  c_big_int b("-2");
  a.swap(b);
  EXPECT_EQ("-2", a.get_as_string());
  EXPECT_EQ("1", b.get_as_string());
}

// --- To machine numbers ----------------------------------------------------------------------------------

struct Number {
  char const* caption;
  std::string text;
  std::int32_t value;
  bool overflow;
};
class BigIntNumber : public testing::TestWithParam<Number> {};

TEST_P(BigIntNumber, WrapsIn32BitsAndTellsOverflow) {
  const auto& [caption, text, value, expected_overflow] = GetParam();
  bool overflow = !expected_overflow;
  EXPECT_EQ(value, c_big_int(text).get(&overflow)) << caption;
  EXPECT_EQ(expected_overflow, overflow) << caption;
  EXPECT_EQ(value, c_big_int(text).get(nullptr)) << caption << ", without a flag";
}

constexpr std::int32_t lowest = std::numeric_limits<std::int32_t>::min();
INSTANTIATE_TEST_SUITE_P(
    Integers, BigIntNumber,
    testing::Values(Number{"zero", "0", 0, false}, Number{"negative", "-12", -12, false},
                    Number{"highest", "2147483647", 2147483647, false},
                    Number{"one above the highest", "2147483648", lowest, true},
                    Number{"one above, next ten", "2147483650", lowest + 2, true},
                    Number{"above before the last digit", "2147483700", -2147483596, true},
                    Number{"lowest that has a magnitude", "-2147483647", -2147483647, false},
                    Number{"lowest", "-2147483648", lowest, true},
                    Number{"wrapped to a small number", "4294967301", 5, true},
                    Number{"wrapped and small again at the end", "42949672960", 0, true},
                    Number{"wrapped and negated", "-4294967301", -5, true},
                    Number{"300 digits", std::string(300, '9'), -1, true}));

// Expected bits come from an implementation of the same steps in exact arithmetic with one rounding each.
TEST(BigInt, BuildsADoubleDigitByDigit) {
  EXPECT_EQ(0.0, c_big_int("0").get_as_float());
  EXPECT_EQ(-90.0, c_big_int("-90").get_as_float());
  EXPECT_EQ(4294967295.0, c_big_int("4294967295").get_as_float());
  // A fused multiplication and addition, or a correctly rounding conversion, gives other last bits.
  EXPECT_EQ(0x1.61853f3c206a0p+70, c_big_int("1630325529264991350864").get_as_float());
  EXPECT_EQ(-0x1.4f915692b6f24p+71, c_big_int("-3095065991995321967125").get_as_float());
  EXPECT_EQ(std::numeric_limits<double>::infinity(), c_big_int(std::string(400, '1')).get_as_float());
}

// --- Relations -------------------------------------------------------------------------------------------

enum class Order { less, equal, greater };

struct Pair {
  char const* caption;
  char const* value;
  char const* text;
  Order order;
};
class BigIntRelation : public testing::TestWithParam<Pair> {};

template <class A, class B>
void expect_order(const A& a, const B& b, Order order, const std::string& where) {
  const bool equal = order == Order::equal;
  const bool greater = order == Order::greater;
  EXPECT_EQ(equal, a == b) << where << " ==";
  EXPECT_EQ(!equal, a != b) << where << " !=";
  EXPECT_EQ(greater, a > b) << where << " >";
  EXPECT_EQ(greater || equal, a >= b) << where << " >=";
  EXPECT_EQ(!greater && !equal, a < b) << where << " <";
  EXPECT_EQ(!greater, a <= b) << where << " <=";
}

Order reversed(Order order) {
  if (order == Order::equal) return order;
  return order == Order::less ? Order::greater : Order::less;
}

TEST_P(BigIntRelation, HoldsInEveryFormAndDirection) {
  const auto& [caption, value_text, text, order] = GetParam();
  const c_big_int value(value_text);
  const std::string where = std::string(caption) + " (" + value_text + ", " + (text ? text : "null") + ")";
  expect_order(value, text, order, where + ", text");
  expect_order(text, value, reversed(order), where + ", text first");
  if (text == nullptr) return;
  expect_order(value, std::string(text), order, where + ", string");
  expect_order(std::string(text), value, reversed(order), where + ", string first");
}

TEST_P(BigIntRelation, HoldsBetweenTwoValues) {
  const auto& [caption, value_text, text, order] = GetParam();
  if (text != nullptr && *text == '\0') return;  // no value behaves like the empty text
  const c_big_int a(value_text);
  const c_big_int b(text);
  expect_order(a, b, order, caption);
  expect_order(b, a, reversed(order), caption);
}

INSTANTIATE_TEST_SUITE_P(
    Integers, BigIntRelation,
    testing::Values(
        Pair{"equal", "12", "12", Order::equal}, Pair{"a plus", "12", "+12", Order::equal},
        Pair{"leading zeros", "12", "00012", Order::equal}, Pair{"negative", "-12", "-12", Order::equal},
        Pair{"negative with leading zeros", "-12", "-00012", Order::equal},
        Pair{"more digits", "100", "99", Order::greater}, Pair{"fewer digits", "99", "100", Order::less},
        Pair{"leading zeros do not count as digits", "100", "0000099", Order::greater},
        Pair{"same length, lower", "12", "13", Order::less},
        Pair{"same length, higher", "21", "13", Order::greater},
        Pair{"negative, fewer digits", "-5", "-12", Order::greater},
        Pair{"negative, more digits", "-12", "-5", Order::less},
        Pair{"negative, same length, lower magnitude", "-12", "-13", Order::greater},
        Pair{"negative, same length, higher magnitude", "-13", "-12", Order::less},
        Pair{"signs differ", "-100", "1", Order::less}, Pair{"signs differ", "1", "-100", Order::greater},
        Pair{"signs differ in one digit", "-12", "12", Order::less}, Pair{"zero", "0", "0", Order::equal},
        Pair{"zero by sign", "0", "+0", Order::equal}, Pair{"zeros", "0", "000", Order::equal},
        Pair{"negative zero", "0", "-0", Order::equal}, Pair{"negative zeros", "0", "-000", Order::equal},
        Pair{"zero and less", "0", "-0005", Order::greater}, Pair{"zero and more", "0", "5", Order::less},
        Pair{"more than zero", "5", "0", Order::greater}, Pair{"less than zero", "-5", "0", Order::less},
        Pair{"more than negative zero", "5", "-0", Order::greater},
        Pair{"less than negative zero", "-5", "-0", Order::less},
        Pair{"zero and null", "0", nullptr, Order::equal},
        Pair{"more than null", "1", nullptr, Order::greater},
        Pair{"less than null", "-1", nullptr, Order::less},
        Pair{"zero and a plus alone", "0", "+", Order::equal},
        Pair{"thirty digits", "123456789012345678901234567890", "123456789012345678901234567891",
             Order::less}));

TEST(BigIntRelations, TakeTextApartOnlyAtItsDigits) {
  EXPECT_FALSE(c_big_int("12") == "12abc");
  EXPECT_TRUE(c_big_int("12") != "12abc");
  EXPECT_FALSE(c_big_int("12") > "12abc");
  EXPECT_TRUE(c_big_int("123") > "12abc");
  EXPECT_FALSE(c_big_int("-12") > "-12abc");
  EXPECT_TRUE(c_big_int("0") == "abc") << "no digits count as zero";
  EXPECT_FALSE(c_big_int("5") == "abc");
  EXPECT_FALSE(c_big_int("-5") == "-abc");
  EXPECT_FALSE(c_big_int("0") == "-") << "a minus counts as zero only before a 0";
  EXPECT_TRUE(c_big_int("0") > "-");
}

TEST(BigIntRelations, FindNothingEqualToAnEmptyText) {
  for (char const* const text : {"0", "-1", "1", "2147483648"}) {
    expect_order(c_big_int(text), "", Order::less, text);
    expect_order(c_big_int(text), std::string(), Order::less, text);
    expect_order("", c_big_int(text), Order::greater, text);
    expect_order(std::string(), c_big_int(text), Order::greater, text);
  }
}

// Each of an integer type's values, in every way that a number is taken.
template <class Value, class Integer>
void expect_taken(Integer number) {
  const std::string text = std::to_string(number);
  SCOPED_TRACE(text);
  EXPECT_EQ(text, Value(number).get_as_string());
  Value value("77");
  value = number;
  EXPECT_EQ(text, value.get_as_string());
  EXPECT_TRUE(value == number && number == value && !(value != number) && !(number != value));
  EXPECT_TRUE(value <= number && number <= value && value >= number && number >= value);
  EXPECT_FALSE(value < number || number < value || value > number || number > value);
  const Value more(text[0] == '-' ? "0" : "18446744073709551616");
  EXPECT_TRUE(more > number && number < more && more >= number && number <= more && more != number);
  EXPECT_FALSE(more < number || number > more || more == number);
}

template <class Value, class... Integer>
void expect_limits_taken() {
  for (const bool lowest_too : {true, false}) {
    (expect_taken<Value>(lowest_too ? std::numeric_limits<Integer>::min()
                                    : std::numeric_limits<Integer>::max()),
     ...);
  }
  (expect_taken<Value>(static_cast<Integer>(1)), ...);
  (expect_taken<Value>(static_cast<Integer>(2147483648u)), ...);
}

TEST(BigIntRelations, TakeEveryIntegerAsItIs) {
  expect_limits_taken<c_big_int, unsigned int, unsigned long, long long, unsigned long long>();
  expect_taken<c_big_int>(std::numeric_limits<int>::min());
  expect_taken<c_big_int>(std::numeric_limits<short>::min());
}

TEST(BigIntRelations, TakeMachineNumbers) {
  EXPECT_TRUE(c_big_int("0") == 0);
  EXPECT_TRUE(0 == c_big_int("-0"));
  EXPECT_TRUE(c_big_int("5") > 4);
  EXPECT_TRUE(-5 < c_big_int("-4"));
  EXPECT_TRUE(c_big_int("0") == no_text);
}

struct Ranged {
  char const* caption;
  std::string text;
  bool high_enough, low_enough;
};
class BigIntBounds : public testing::TestWithParam<Ranged> {};

TEST_P(BigIntBounds, ApplyToTheTextOfAnInteger) {
  const auto& [caption, text, high_enough, low_enough] = GetParam();
  const c_big_int minimum("-2147483647");
  const c_big_int maximum("4294967294");
  EXPECT_EQ(high_enough, minimum <= text) << caption;
  EXPECT_EQ(low_enough, text <= maximum) << caption;
}

INSTANTIATE_TEST_SUITE_P(Integers, BigIntBounds,
                         testing::Values(Ranged{"inside", "5", true, true},
                                         Ranged{"a plus", "+5", true, true},
                                         Ranged{"leading zeros", "0005", true, true},
                                         Ranged{"negative zero", "-0", true, true},
                                         Ranged{"the minimum", "-2147483647", true, true},
                                         Ranged{"below the minimum", "-2147483648", false, true},
                                         Ranged{"the maximum", "4294967294", true, true},
                                         Ranged{"above the maximum", "4294967295", true, false},
                                         Ranged{"300 digits", std::string(300, '9'), true, false},
                                         Ranged{"300 digits below", "-" + std::string(300, '9'), false, true},
                                         Ranged{"300 zeros", std::string(300, '0'), true, true},
                                         Ranged{"empty: neither equal nor greater", "", true, false}));

TEST(BigIntBoundsAtOne, RefuseNegativeZero) {
  EXPECT_FALSE(c_big_int("1") <= "-0");
  EXPECT_TRUE(c_big_int("0") <= "-0");
}

// --- Output ----------------------------------------------------------------------------------------------

struct grouping : std::numpunct<char> {
  char do_thousands_sep() const override { return '\''; }
  std::string do_grouping() const override { return "\3"; }
};

TEST(BigIntOutput, IgnoresTheStreamsFormat) {
  std::ostringstream os;
  os.imbue(std::locale(std::locale::classic(), new grouping));
  os << std::showpos << c_big_int("-1234567") << c_big_int("1234567");
  EXPECT_EQ("-12345671234567", os.str());
}

TEST(BigIntOutput, IsPaddedLikeText) {
  for (char const* const text : {"5", "-12", "123456", "1234567"}) {
    for (auto const adjust : {std::left, std::right, std::internal}) {
      std::ostringstream value, expected;
      value << std::setfill('*') << adjust << std::setw(6) << c_big_int(text) << '|';
      expected << std::setfill('*') << adjust << std::setw(6) << std::string(text) << '|';
      EXPECT_EQ(expected.str(), value.str());
      EXPECT_EQ(0, value.width());
    }
  }
  std::ostringstream os;
  os << std::setw(6) << c_big_int("5") << 7;
  EXPECT_EQ("     57", os.str());
}

}  // namespace
