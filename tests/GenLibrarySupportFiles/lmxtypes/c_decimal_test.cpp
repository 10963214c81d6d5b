// Decimals as digit text: what survives reading and writing, the order, and the machine numbers.
#include "GenLibrarySupportFiles/lmxtypes/c_decimal.h"

#include <gtest/gtest.h>

#include <climits>
#include <clocale>
#include <cmath>
#include <cstdint>
#include <iomanip>
#include <limits>
#include <locale>
#include <sstream>
#include <string>
#include <type_traits>
#include <utility>

#include "support/comma_locale.h"

namespace {

using lmx::c_decimal;
using velmo::lmx::high_precision_c_decimal;

constexpr std::int32_t lowest = std::numeric_limits<std::int32_t>::min();

std::string written(const c_decimal& value) {
  std::ostringstream os;
  os << value;
  EXPECT_EQ(os.str(), value.get_as_string());
  return os.str();
}

// --- From text and back ----------------------------------------------------------------------------------

struct Text {
  char const* caption;
  std::string text;
  bool valid;
  std::string back;
};
class DecimalText : public testing::TestWithParam<Text> {};

TEST_P(DecimalText, IsJudged) {
  EXPECT_EQ(GetParam().valid, c_decimal::is_valid(GetParam().text)) << GetParam().caption;
}

TEST_P(DecimalText, ComesBackWithEveryDigit) {
  const auto& [caption, text, valid, back] = GetParam();
  EXPECT_EQ(back, written(c_decimal(text))) << caption;
  EXPECT_EQ(back, written(c_decimal(text.c_str()))) << caption;
  EXPECT_EQ(back, written(high_precision_c_decimal(text))) << caption;

  c_decimal assigned("-77.7");
  assigned = text.c_str();
  EXPECT_EQ(back, written(assigned)) << caption << ", assigned";
  assigned = "-77.7";
  assigned = text;
  EXPECT_EQ(back, written(assigned)) << caption << ", assigned from a string";

  high_precision_c_decimal converted("-77.7");
  v_to_o(converted, text);
  EXPECT_EQ(back, written(converted)) << caption << ", converted";
}

INSTANTIATE_TEST_SUITE_P(
    Decimals, DecimalText,
    testing::Values(
        Text{"integer", "5", true, "5"}, Text{"point at the end", "5.", true, "5"},
        Text{"point in front", ".5", true, "0.5"}, Text{"minus and point", "-.5", true, "-0.5"},
        Text{"plus", "+1.25", true, "1.25"}, Text{"plus and point", "+.5", true, "0.5"},
        Text{"minus, point at the end", "-5.", true, "-5"}, Text{"leading zeros", "0001.25", true, "1.25"},
        Text{"leading zeros behind a minus", "-0001.25", true, "-1.25"},
        Text{"trailing zeros", "1.500", true, "1.500"}, Text{"zero fraction", "7.0", true, "7.0"},
        Text{"zeros behind the point", "0.0005", true, "0.0005"}, Text{"zero", "0", true, "0"},
        Text{"negative zero", "-0", true, "-0"}, Text{"negative zero with a fraction", "-0.0", true, "-0.0"},
        Text{"fifty digits", "-1234567890123456789012345.1234567890123456789012345", true,
             "-1234567890123456789012345.1234567890123456789012345"},
        Text{"1000 zeros behind a 1", "1." + std::string(1000, '0'), true, "1." + std::string(1000, '0')},
        Text{"empty", "", false, "0"}, Text{"a plus alone", "+", false, "0"},
        Text{"a minus alone", "-", false, "-0"}, Text{"a point alone", ".", false, "0"},
        Text{"a minus and a point", "-.", false, "-0"}, Text{"two points", "1.2.3", false, "1.2"},
        Text{"two points together", "1..2", false, "1"}, Text{"a sign behind", "1-", false, "1"},
        Text{"a sign behind the point", "1.-2", false, "1"}, Text{"exponent", "1e5", false, "1"},
        Text{"exponent behind a fraction", "1.5E5", false, "1.5"}, Text{"comma", "1,5", false, "1"},
        Text{"blank in front", " 5", false, "0"}, Text{"blank behind", "5 ", false, "5"},
        Text{"letters", "abc", false, "0"}, Text{"INF", "INF", false, "0"}, Text{"NaN", "NaN", false, "0"},
        Text{"a byte above 127", "5\xB2", false, "5"},
        Text{"a NUL",
             std::string("1\0"
                         "2",
                         3),
             false, "1"},
        Text{"a NUL behind", std::string("1\0", 2), false, "1"}));

TEST(Decimal, IsZeroByDefault) {
  EXPECT_EQ("0", written(c_decimal()));
  EXPECT_EQ("0", written(high_precision_c_decimal()));
}

TEST(Decimal, TakesANullTextAsEmpty) {
  EXPECT_EQ("0", written(c_decimal(static_cast<char const*>(nullptr))));
}

TEST(DecimalOutput, IgnoresTheStreamsFormat) {
  struct grouping : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
  };
  std::ostringstream os;
  os.imbue(std::locale(std::locale::classic(), new grouping));
  os << std::showpos << std::fixed << std::setprecision(2) << c_decimal("1234567.1250");
  EXPECT_EQ("1234567.1250", os.str());
}

TEST(DecimalOutput, IsPaddedLikeText) {
  for (char const* const text : {"0.5", "-1.25", "123.456", "1234567.1250"}) {
    for (auto const adjust : {std::left, std::right, std::internal}) {
      std::ostringstream value, expected;
      value << std::setfill('*') << adjust << std::setw(7) << c_decimal(text) << '|';
      expected << std::setfill('*') << adjust << std::setw(7) << std::string(text) << '|';
      EXPECT_EQ(expected.str(), value.str());
      EXPECT_EQ(0, value.width());
    }
  }
  std::ostringstream os;
  os << std::setw(6) << velmo::lmx::high_precision_c_decimal("0.5") << 7;
  EXPECT_EQ("   0.57", os.str());
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

TEST(Decimal, TakesEveryIntegerAsItIs) {
  expect_limits_taken<c_decimal, unsigned int, unsigned long, long long, unsigned long long>();
  expect_taken<c_decimal>(std::numeric_limits<int>::min());
  expect_taken<c_decimal>(std::numeric_limits<short>::min());
  expect_limits_taken<velmo::lmx::high_precision_c_decimal, unsigned int, unsigned long, long long,
                      unsigned long long>();
  expect_taken<velmo::lmx::high_precision_c_decimal>(std::numeric_limits<int>::min());
  expect_taken<velmo::lmx::high_precision_c_decimal>(std::numeric_limits<short>::min());
}

// --- From machine numbers --------------------------------------------------------------------------------

struct Scaled {
  char const* caption;
  std::int32_t value;
  int scale;
  std::string text;
};
class DecimalScaled : public testing::TestWithParam<Scaled> {};

TEST_P(DecimalScaled, PutsThePointWhereTheScaleSays) {
  const auto& [caption, value, scale, text] = GetParam();
  EXPECT_EQ(text, written(c_decimal(value, scale))) << caption;
  EXPECT_EQ(text, written(c_decimal(static_cast<long>(value), scale))) << caption << ", long";
  c_decimal set("-77.7");
  set.set_scaled(value, scale);
  EXPECT_EQ(text, written(set)) << caption << ", set";
  if (scale < 0) return;
  EXPECT_EQ(text, written(c_decimal(value, static_cast<unsigned>(scale)))) << caption << ", unsigned scale";
  EXPECT_EQ(text, written(c_decimal(static_cast<long>(value), static_cast<unsigned>(scale))))
      << caption << ", long, unsigned scale";
}

INSTANTIATE_TEST_SUITE_P(
    Decimals, DecimalScaled,
    testing::Values(
        Scaled{"two places", 12345, 2, "123.45"}, Scaled{"more places than digits", 5, 3, "0.005"},
        Scaled{"as many places as digits", 123, 3, "0.123"}, Scaled{"zeros inside", 1002, 3, "1.002"},
        Scaled{"zeros at the end", 1500, 3, "1.500"}, Scaled{"negative", -12345, 2, "-123.45"},
        Scaled{"no scale", 12345, 0, "12345"}, Scaled{"scaled up", 12345, -2, "1234500"},
        Scaled{"negative scaled up", -5, -1, "-50"}, Scaled{"zero scaled up", 0, -3, "0"},
        Scaled{"zero", 0, 0, "0"}, Scaled{"zero scaled up without end", 0, lowest, "0"},
        Scaled{"zero with places", 0, 3, "0.000"},
        Scaled{"more places than 32 bits have digits", 2147483647, 12, "0.002147483647"},
        Scaled{"ten places", 2147483647, 10, "0.2147483647"}, Scaled{"lowest", lowest, 0, "-2147483648"},
        Scaled{"lowest with places", lowest, 3, "-2147483.648"}));

#if LONG_MAX > INT_MAX  // elsewhere there is nothing to cut
TEST(Decimal, CutsLongTo32Bits) {
  const long beyond = static_cast<long>((std::int64_t{1} << 32) + 5);
  EXPECT_EQ("5", written(c_decimal(beyond)));
  EXPECT_EQ("0.5", written(c_decimal(beyond, 1)));
  c_decimal value;
  value = beyond;
  EXPECT_EQ("5", written(value));
}
#endif

TEST(Decimal, TakesWholeNumbers) {
  EXPECT_EQ("0", written(c_decimal(0)));
  EXPECT_EQ("0", written(c_decimal(0L)));
  EXPECT_EQ("-7", written(c_decimal(-7)));
  c_decimal value("1.5");
  value = 0;
  EXPECT_EQ("0", written(value));
  value = -12L;
  EXPECT_EQ("-12", written(value));
}

struct Double {
  char const* caption;
  double value;
  std::string constructed, assigned;
};
class DecimalDouble : public testing::TestWithParam<Double> {};

TEST_P(DecimalDouble, KeepsSixDigitsConstructedAndFifteenAssigned) {
  const auto& [caption, value, constructed, assigned] = GetParam();
  EXPECT_EQ(constructed, written(c_decimal(value))) << caption;
  c_decimal target("-77.7");
  target = value;
  EXPECT_EQ(assigned, written(target)) << caption << ", assigned";
}

constexpr double inf = std::numeric_limits<double>::infinity();
INSTANTIATE_TEST_SUITE_P(
    Decimals, DecimalDouble,
    testing::Values(Double{"zero", 0.0, "0", "0"}, Double{"negative zero", -0.0, "-0", "-0"},
                    Double{"exact", 1.5, "1.5", "1.5"}, Double{"negative", -2.25, "-2.25", "-2.25"},
                    Double{"zeros inside the fraction", 1.00001, "1.00001", "1.00001"},
                    Double{"rounded", 0.123456789, "0.123457", "0.123456789"},
                    Double{"rounded up to a whole", 0.9999999, "1", "0.9999999"},
                    Double{"fifteen digits show the binary value", 0.1 + 0.2, "0.3", "0.3"},
                    Double{"a whole with zeros", 1200.0, "1200", "1200"},
                    Double{"too small for six digits", -1e-9, "-0", "-0.000000001"},
                    Double{"infinity", inf, "0", "0"}, Double{"negative infinity", -inf, "-0", "-0"},
                    Double{"not a number", std::numeric_limits<double>::quiet_NaN(), "0", "0"},
                    Double{"negative not a number", std::copysign(std::nan(""), -1.0), "-0", "-0"}));

struct Rounded {
  char const* caption;
  double value;
  int digits;
  std::string text;
};
class DecimalRounded : public testing::TestWithParam<Rounded> {};

TEST_P(DecimalRounded, KeepsTheDigitsAskedForUpToFifteen) {
  const auto& [caption, value, digits, text] = GetParam();
  EXPECT_EQ(text, written(c_decimal(value, static_cast<unsigned>(digits)))) << caption;
  EXPECT_EQ(text, written(c_decimal(value, digits))) << caption << ", int";
  c_decimal set("-77.7");
  set.set(value, static_cast<unsigned>(digits));
  EXPECT_EQ(text, written(set)) << caption << ", set";
}

INSTANTIATE_TEST_SUITE_P(
    Decimals, DecimalRounded,
    testing::Values(Rounded{"three", 1.23456, 3, "1.235"}, Rounded{"culled", 1.5, 3, "1.5"},
                    Rounded{"all culled", 2.0, 9, "2"}, Rounded{"none", 1234.5678, 0, "1235"},
                    Rounded{"none, zeros in front of the point", 1200.0, 0, "1200"},
                    Rounded{"fifteen", 1.0 / 3.0, 15, "0.333333333333333"},
                    Rounded{"more than fifteen", 1.0 / 3.0, 16, "0.333333333333333"},
                    Rounded{"far more", 1.0 / 3.0, std::numeric_limits<int>::max(), "0.333333333333333"}));

TEST(Decimal, TakesTheGreatestDoubleWithAllItsDigits) {
  const std::string text = written(c_decimal(-1e308, 15));
  EXPECT_EQ(1u + 309u, text.size());
  EXPECT_EQ("-100000000000000001097906362944045541740492309677311846336810682903157585404911491537163328",
            text.substr(0, 91));
}

// --- Locale ----------------------------------------------------------------------------------------------

TEST(DecimalInACommaLocale, ReadsDoublesAsEverAndTextByThePointOnly) {
  const CommaLocale locale;
  ASSERT_TRUE(locale.is_in_force()) << "a locale with a decimal comma is needed; scripts/test.sh makes one";
  EXPECT_EQ("1.5", written(c_decimal(1.5)));
  EXPECT_EQ("-0.25", written(c_decimal(-0.25, 4)));
  EXPECT_EQ("2", written(c_decimal(2.4, 0)));
  EXPECT_EQ("0", written(c_decimal(inf)));
  c_decimal assigned;
  assigned = 1.00001;
  EXPECT_EQ("1.00001", written(assigned));

  EXPECT_EQ("1", written(c_decimal("1,5")));
  EXPECT_EQ("1.5", written(c_decimal("1.5")));
  EXPECT_FALSE(c_decimal::is_valid("1,5"));
  EXPECT_TRUE(c_decimal::is_valid("1.5"));
  EXPECT_EQ(1.5, c_decimal("1.5").get_as_float());
}

// --- Order -----------------------------------------------------------------------------------------------

enum class Order { less, equal, greater };

struct Pair {
  char const* caption;
  char const* a;
  char const* b;
  Order order;
};
class DecimalOrder : public testing::TestWithParam<Pair> {};

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

TEST_P(DecimalOrder, HoldsInBothDirections) {
  const auto& [caption, a, b, order] = GetParam();
  const std::string where = std::string(caption) + " (" + a + ", " + b + ")";
  Order other_way = order;
  if (order != Order::equal) other_way = order == Order::less ? Order::greater : Order::less;
  expect_order(c_decimal(a), c_decimal(b), order, where);
  expect_order(c_decimal(b), c_decimal(a), other_way, where + ", swapped");
  expect_order(high_precision_c_decimal(a), high_precision_c_decimal(b), order, where + ", high precision");
  expect_order(high_precision_c_decimal(b), c_decimal(a), other_way, where + ", mixed");
}

INSTANTIATE_TEST_SUITE_P(
    Decimals, DecimalOrder,
    testing::Values(Pair{"equal", "1.5", "1.5", Order::equal},
                    Pair{"trailing zeros", "1.5", "1.500", Order::equal},
                    Pair{"trailing zeros alone", "1", "1.000", Order::equal},
                    Pair{"trailing zeros, negative", "-1.5", "-1.50", Order::equal},
                    Pair{"zero with and without a fraction", "0", "0.0", Order::equal},
                    Pair{"negative zeros", "-0", "-0.00", Order::equal},
                    Pair{"plus", "+1.5", "1.5", Order::equal},
                    Pair{"leading zeros", "001.5", "1.5", Order::equal},
                    Pair{"zero is greater than negative zero", "0.0", "-0.0", Order::greater},
                    Pair{"negative zero is less than all that is not negative", "-0.0", "0.001", Order::less},
                    Pair{"negative zero is greater than less", "-0.0", "-0.001", Order::greater},
                    Pair{"integral decides", "10.1", "9.9", Order::greater},
                    Pair{"integral decides, negative", "-10.1", "-9.9", Order::less},
                    Pair{"signs differ", "1.5", "-1.5", Order::greater},
                    Pair{"signs differ, greater magnitude", "-100", "1", Order::less},
                    Pair{"fraction decides", "1.25", "1.3", Order::less},
                    Pair{"fraction decides, negative", "-1.25", "-1.3", Order::greater},
                    Pair{"longer fraction", "1.5", "1.5001", Order::less},
                    Pair{"longer fraction, negative", "-1.5", "-1.5001", Order::greater},
                    Pair{"fraction against none", "1.001", "1", Order::greater},
                    Pair{"fraction against none, negative", "-1.001", "-1", Order::less},
                    Pair{"zeros in front of a digit", "1.05", "1.5", Order::less},
                    Pair{"zero, then digits, against longer", "1.0", "1.0000000001", Order::less},
                    Pair{"digits no double can tell apart", "52.12345678901234567890",
                         "52.12345678901234567891", Order::less},
                    Pair{"at a bound", "-90.0", "-90", Order::equal}));

TEST(DecimalOrderAgainstNumbers, TakesThemAsTheyAreWritten) {
  EXPECT_TRUE(c_decimal("0.0") >= 0);
  EXPECT_FALSE(c_decimal("-0.0") >= 0.0) << "a lower bound of zero refuses the negative zero";
  EXPECT_TRUE(high_precision_c_decimal("-0.0") >= -90);
  EXPECT_TRUE(c_decimal("99.9") == 99.9);
  EXPECT_TRUE(high_precision_c_decimal("360.000000000000000001") > c_decimal("360.0"));
}

// --- To machine numbers ----------------------------------------------------------------------------------

struct AsFloat {
  char const* caption;
  std::string text;
  double value;
};
class DecimalAsFloat : public testing::TestWithParam<AsFloat> {};

// Expected bits come from an implementation of the same steps in exact arithmetic with one rounding each.
// Where a caption says "last bits", a fused multiplication and addition, and a correctly rounding
// conversion, both give other bits.
TEST_P(DecimalAsFloat, ComesOutBitForBit) {
  const auto& [caption, text, value] = GetParam();
  const double converted = c_decimal(text).get_as_float();
  EXPECT_EQ(value, converted) << caption;
  EXPECT_EQ(std::signbit(value), std::signbit(converted)) << caption;
}

INSTANTIATE_TEST_SUITE_P(
    Decimals, DecimalAsFloat,
    testing::Values(AsFloat{"zero", "0", 0.0}, AsFloat{"negative zero", "-0.0", -0.0},
                    AsFloat{"whole", "-90", -90.0}, AsFloat{"no integral", ".5", 0.5},
                    AsFloat{"coordinate", "-179.9999999", -0x1.67fffffca501bp+7},
                    AsFloat{"small", "0.000000001", 0x1.12e0be826d695p-30},
                    AsFloat{"trailing zeros", "1.500000000000000000000", 1.5},
                    AsFloat{"many digits", "52.123456789012345678", 0x1.a0fcd6e9ba37cp+5},
                    AsFloat{"last bits 1", "178.4912931603392816429", 0x1.64fb8ac6f0cfap+7},
                    AsFloat{"last bits 2", "30.6137142913487789066", 0x1.e9d1c613a6e49p+4},
                    AsFloat{"last bits 3", "-171.5596161367516773877", -0x1.571e86019b531p+7},
                    AsFloat{"last bits 4", "122.7457799070378274648", 0x1.eafbadba5af72p+6},
                    AsFloat{"last bits before the point", "1630325529264991350864", 0x1.61853f3c206a0p+70},
                    AsFloat{"290 fraction digits", "1." + std::string(290, '4'), 0x1.71c71c71c71c9p+0},
                    AsFloat{"no more than 290", "1." + std::string(290, '4') + std::string(100, '7'),
                            0x1.71c71c71c71c9p+0},
                    AsFloat{"fraction digits beyond a double", "1." + std::string(400, '3'),
                            0x1.555555555554fp+0},
                    AsFloat{"zeros beyond a double", "1." + std::string(400, '0'), 1.0},
                    AsFloat{"zeros beyond a double behind zero", "-0." + std::string(5000, '0'), -0.0},
                    AsFloat{"integral beyond a double", "-" + std::string(400, '1') + ".5", -inf}));

struct Part {
  char const* caption;
  std::string text;
  int argument;
  std::int64_t value;
  bool overflow;
};

class DecimalGetScaled : public testing::TestWithParam<Part> {};
TEST_P(DecimalGetScaled, GivesTheValueTimesAPowerOfTenCutTowardsZero) {
  const auto& [caption, text, scale, value, expected_overflow] = GetParam();
  bool overflow = !expected_overflow;
  EXPECT_EQ(value, c_decimal(text).get_scaled(scale, &overflow)) << caption;
  EXPECT_EQ(expected_overflow, overflow) << caption;
  EXPECT_EQ(value, c_decimal(text).get_scaled(scale)) << caption << ", without a flag";
}
INSTANTIATE_TEST_SUITE_P(
    Decimals, DecimalGetScaled,
    testing::Values(Part{"all fraction digits", "123.45", 2, 12345, false},
                    Part{"fewer fraction digits", "-123.459", 2, -12345, false},
                    Part{"more than there are", "123.45", 4, 1234500, false},
                    Part{"none", "123.99", 0, 123, false}, Part{"one taken off", "129.99", -1, 12, false},
                    Part{"negative, one taken off", "-129.99", -1, -12, false},
                    Part{"all taken off", "999", -3, 0, false},
                    Part{"more taken off than there are", "999", -4, 0, false},
                    Part{"the most taken off", "999", lowest, 0, false},
                    Part{"leading zeros", "0.005", 3, 5, false},
                    Part{"highest", "214748.3647", 4, 2147483647, false},
                    Part{"above the highest", "214748.3648", 4, lowest, true},
                    Part{"lowest", "-214748.3648", 4, lowest, true},
                    Part{"above by missing digits", "3", 9, -1294967296, true},
                    Part{"too many to hold, cut to what fits", "12345678901", -2, 123456789, false},
                    Part{"one missing digit", "214748364", 1, 2147483640, false},
                    Part{"wrapped to zero", "1", std::numeric_limits<int>::max(), 0, true},
                    Part{"zero without end", "0", std::numeric_limits<int>::max(), 0, false}));

class DecimalGetIntegral : public testing::TestWithParam<Part> {};
TEST_P(DecimalGetIntegral, GivesTheDigitsBeforeThePointWithTheSign) {
  const auto& [caption, text, unused, value, expected_overflow] = GetParam();
  bool overflow = !expected_overflow;
  EXPECT_EQ(value, c_decimal(text).get_integral(&overflow)) << caption;
  EXPECT_EQ(expected_overflow, overflow) << caption;
  EXPECT_EQ(value, c_decimal(text).get_integral()) << caption << ", without a flag";
}
INSTANTIATE_TEST_SUITE_P(Decimals, DecimalGetIntegral,
                         testing::Values(Part{"positive", "12.9", 0, 12, false},
                                         Part{"negative", "-12.9", 0, -12, false},
                                         Part{"none", ".9", 0, 0, false},
                                         Part{"highest", "2147483647.9", 0, 2147483647, false},
                                         Part{"above", "2147483648", 0, lowest, true},
                                         Part{"lowest", "-2147483648", 0, lowest, true},
                                         Part{"wrapped", "-4294967301", 0, -5, true}));

class DecimalGetFractional : public testing::TestWithParam<Part> {};
TEST_P(DecimalGetFractional, GivesTheFirstDigitsBehindThePoint) {
  const auto& [caption, text, digits, value, expected_overflow] = GetParam();
  bool overflow = !expected_overflow;
  EXPECT_EQ(value, c_decimal(text).get_fractional(digits, &overflow)) << caption;
  EXPECT_EQ(expected_overflow, overflow) << caption;
  EXPECT_EQ(value, c_decimal(text).get_fractional(digits)) << caption << ", without a flag";
}
INSTANTIATE_TEST_SUITE_P(
    Decimals, DecimalGetFractional,
    testing::Values(Part{"more than there are", "0.12", 4, 1200, false}, Part{"fewer", "0.12", 1, 1, false},
                    Part{"none", "0.12", 0, 0, false}, Part{"less than none", "0.12", -1, 0, false},
                    Part{"without the sign", "-7.25", 2, 25, false}, Part{"no fraction", "7", 3, 0, false},
                    Part{"zeros in front", "0.005", 3, 5, false},
                    Part{"highest", "0.4294967295", 10, 4294967295, false},
                    Part{"one above", "0.4294967296", 10, 0, true},
                    Part{"above before the last digit", "0.42949672999", 10, 3, true},
                    Part{"eleven digits", "0.42949672959", 11, 4294967295, true},
                    Part{"highest by missing digits", "0.429496729", 10, 4294967290, false},
                    Part{"above by missing digits", "0.42949673", 10, 4, true},
                    Part{"wrapped to zero", "0.1", std::numeric_limits<int>::max(), 0, true},
                    Part{"zero without end", "0.0", std::numeric_limits<int>::max(), 0, false}));

// --- Replacing a part ------------------------------------------------------------------------------------

TEST(DecimalSetIntegral, ReplacesSignAndDigitsAndLeavesTheFraction) {
  c_decimal value("1.50");
  value.set_integral(-12);
  EXPECT_EQ("-12.50", written(value));
  value.set_integral(0);
  EXPECT_EQ("0.50", written(value));
  value.set_integral(2147483647);
  EXPECT_EQ("2147483647.50", written(value));
}

// Kept: the magnitude of the lowest number is that number again.
TEST(DecimalSetIntegral, WritesTwoMinusSignsForTheLowestNumber) {
  c_decimal value("1.5");
  value.set_integral(lowest);
  EXPECT_EQ("--2147483648.5", written(value));
  bool overflow = false;
  EXPECT_EQ(lowest, value.get_integral(&overflow));
  EXPECT_TRUE(overflow);
  EXPECT_EQ(lowest, value.get_scaled(0, &overflow));
  EXPECT_TRUE(overflow);
  EXPECT_EQ(-214748364, value.get_scaled(-1, &overflow));
  EXPECT_FALSE(overflow);
}

struct Fraction {
  char const* caption;
  std::uint32_t value;
  unsigned digits;
  std::string text;
};
class DecimalSetFractional : public testing::TestWithParam<Fraction> {};
TEST_P(DecimalSetFractional, MakesTheFractionExactlySoLong) {
  const auto& [caption, fraction, digits, text] = GetParam();
  c_decimal value("-7.123456789");
  value.set_fractional(fraction, digits);
  EXPECT_EQ(text, written(value)) << caption;
}
INSTANTIATE_TEST_SUITE_P(Decimals, DecimalSetFractional,
                         testing::Values(Fraction{"drops the low end", 12345, 3, "-7.123"},
                                         Fraction{"zeros in front", 5, 3, "-7.005"},
                                         Fraction{"exact", 250, 3, "-7.250"}, Fraction{"zero", 0, 2, "-7.00"},
                                         Fraction{"no digits", 5, 0, "-7"},
                                         Fraction{"highest", 4294967295, 12, "-7.004294967295"}));

// --- Copies and the named type ---------------------------------------------------------------------------

TEST(Decimal, CopiesAndLeavesZeroWhenMovedFrom) {
  c_decimal a("-12345678901234567890.12345678901234567890");
  const c_decimal copy(a);
  c_decimal moved(std::move(a));
  EXPECT_EQ(written(copy), written(moved));
  EXPECT_EQ("0", written(a));  // NOLINT(bugprone-use-after-move): promised

  a = "9.9";
  a = std::move(moved);
  EXPECT_EQ(written(copy), written(a));
  EXPECT_EQ("0", written(moved));  // NOLINT(bugprone-use-after-move): promised

  moved = a;
  EXPECT_EQ(written(copy), written(moved));
  const c_decimal& itself = moved;
  moved = itself;
  EXPECT_EQ(written(copy), written(moved));
  EXPECT_TRUE(std::is_nothrow_move_constructible_v<c_decimal>);
  EXPECT_TRUE(std::is_nothrow_move_constructible_v<high_precision_c_decimal>);
}

TEST(Decimal, Swaps) {
  c_decimal a("-1.50");
  c_decimal b("2");
  a.swap(b);
  EXPECT_EQ("2", written(a));
  EXPECT_EQ("-1.50", written(b));
}

TEST(HighPrecisionDecimal, DoesWhatADecimalDoes) {
  EXPECT_EQ(sizeof(c_decimal), sizeof(high_precision_c_decimal));
  EXPECT_FALSE(std::is_polymorphic_v<high_precision_c_decimal>);

  high_precision_c_decimal value(c_decimal("1.250"));
  EXPECT_EQ("1.250", written(value));
  const high_precision_c_decimal copy(value);
  value = c_decimal("-2.50");
  EXPECT_EQ("-2.50", written(value));
  value = copy;
  EXPECT_EQ("1.250", written(value));
  value = "3.0";
  EXPECT_EQ("3.0", written(value));
  value = std::string("4.0");
  EXPECT_EQ("4.0", written(value));
  value = 0.0000001;
  EXPECT_EQ("0.0000001", written(value));
  value = 0;
  EXPECT_EQ("0", written(value));
  EXPECT_EQ("5.25", written(high_precision_c_decimal("5.25")));
  EXPECT_EQ("5.25", written(high_precision_c_decimal(5.25)));
}

}  // namespace
