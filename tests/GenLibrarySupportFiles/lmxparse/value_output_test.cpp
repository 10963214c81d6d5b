// The text that values have in a document, byte for byte.
#include "GenLibrarySupportFiles/lmxparse/value_output.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <iomanip>
#include <limits>
#include <locale>
#include <random>
#include <sstream>
#include <streambuf>
#include <string>

#include "GenLibrarySupportFiles/lmxinternals/bridges.h"
#include "GenLibrarySupportFiles/lmxtypes/c_binary.h"
#include "GenLibrarySupportFiles/lmxtypes/c_decimal.h"
#include "GenLibrarySupportFiles/lmxtypes/conversions.h"
#include "GenLibrarySupportFiles/lmxtypes/date_time.h"

namespace {

using namespace std::string_literals;
using std::string;

using decimal = velmo::lmx::high_precision_c_decimal;

template <class Write>
string written(Write write) {
  std::ostringstream out;
  EXPECT_EQ(&out, &write(out)) << "the stream comes back";
  EXPECT_TRUE(out.good());
  return out.str();
}

template <class T>
string xml(T const& value) {
  return written([&](std::ostream& out) -> std::ostream& { return lmx::output_convert_to_xml(out, value); });
}

template <class T>
string spec_text(T const& value) {
  return written([&](std::ostream& out) -> std::ostream& { return lmx::o_to_v(out, value); });
}

string ascii(std::wstring const& text) {
  return written([&](std::ostream& out) -> std::ostream& { return lmx::output_convert_to_ascii(out, text); });
}

struct grouping : std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  string do_grouping() const override { return "\1"; }
  string do_truename() const override { return "wahr"; }
  string do_falsename() const override { return "falsch"; }
};

// ---- Text ----

struct Escape {
  const char* caption;
  string text, xml;
};

const Escape escapes[] = {
    {"nothing", "", ""},
    {"plain", "North field 7", "North field 7"},
    {"both quotes", "\"'", "&quot;&apos;"},
    {"ampersand", "a&b", "a&amp;b"},
    {"a reference is no reference", "&lt;", "&amp;lt;"},
    {"less-than", "<", "&lt;"},
    {"first and last", "<>&", "&lt;>&amp;"},
    {"all in a row", "&&\"\"''<<", "&amp;&amp;&quot;&quot;&apos;&apos;&lt;&lt;"},
    {"greater-than alone", ">", ">"},
    {"greater-than inside", "a>b", "a>b"},
    {"greater-than at index 2 without a bracket", "ab>", "ab>"},
    {"one bracket, greater-than at index 2", "a]>", "a]&gt;"},
    {"one bracket, greater-than at index 1", "]>", "]>"},
    {"two brackets", "]]>", "]]&gt;"},
    {"text around", "x]]>y", "x]]&gt;y"},
    {"not right after", "a] >", "a] >"},
    {"second of two", "]>]>", "]>]&gt;"},
    {"greater-than twice", "a]>>", "a]&gt;>"},
    {"bracket behind a reference", "&]>", "&amp;]&gt;"},
    {"after a two-byte character", "\xC3\xA9>", "\xC3\xA9>"},
    {"index counts bytes", "\xC3\xA9]>", "\xC3\xA9]&gt;"},
    {"UTF-8 of two, three and four bytes", "\xC3\xA9\xE2\x82\xAC\xF0\x9F\x9A\x9C",
     "\xC3\xA9\xE2\x82\xAC\xF0\x9F\x9A\x9C"},
    {"line ends and tabs", "a\r\n\tb", "a\r\n\tb"},
    {"control characters", "\x01\x1F\x7F", "\x01\x1F\x7F"},
    {"no UTF-8", "\xFF<\x80", "\xFF&lt;\x80"},
};

TEST(Text, IsEscapedByOneRule) {
  for (auto const& [caption, text, expected] : escapes) {
    SCOPED_TRACE(caption);
    EXPECT_EQ(expected, xml(text));
    EXPECT_EQ(expected, xml(text.c_str())) << "C text, not a truth value";
    EXPECT_EQ(expected, spec_text(text));
    EXPECT_EQ(expected, written([&t = text](std::ostream& out) -> std::ostream& {
                return lmx::output_convert_to_escaped(out, t);
              }));
  }
}

TEST(Text, KeepsEveryOtherByte) {
  for (int c = 0; c < 256; ++c) {
    if (std::strchr("\"'&<", c) != nullptr && c != 0) continue;
    string const text = "ab"s + static_cast<char>(c) + "c";
    EXPECT_EQ(text, xml(text)) << "byte " << c;
  }
}

TEST(Text, IsNotCutAtANul) { EXPECT_EQ("a\0&lt;"s, xml("a\0<"s)); }

TEST(Text, TakesNoPartInTheStreamsFormat) {
  std::ostringstream out;
  out << std::setw(20) << std::setfill('*');
  lmx::output_convert_to_xml(out, "a<b"s);
  EXPECT_EQ("a&lt;b", out.str());
}

TEST(Text, OfAMillionReferencesComesOutWhole) {
  constexpr std::size_t count = 1'000'000;
  EXPECT_EQ(5 * count, xml(string(count, '&')).size());
}

// ---- Wide text ----

// Units by number: literals would let the compiler join surrogates.
std::wstring units(std::initializer_list<std::uint32_t> values) {
  std::wstring text;
  for (std::uint32_t const value : values) text += static_cast<wchar_t>(value);
  return text;
}

TEST(WideText, IsEscapedByTheSameRule) {
  for (auto const& [caption, text, expected] : escapes) {
    bool is_ascii = true;
    for (char const c : text) is_ascii = is_ascii && static_cast<unsigned char>(c) < 0x80;
    if (is_ascii) {
      EXPECT_EQ(expected, xml(std::wstring(text.begin(), text.end()))) << caption;
    }
  }
}

TEST(WideText, IsWrittenAsUtf8) {
  struct {
    const char* caption;
    std::wstring text;
    string bytes;
  } const rows[] = {
      {"NUL", units({'a', 0, 'b'}), "a\0b"s},
      {"last of one byte", units({0x7F}), "\x7F"},
      {"first of two bytes", units({0x80}), "\xC2\x80"},
      {"last of two bytes", units({0x7FF}), "\xDF\xBF"},
      {"first of three bytes", units({0x800}), "\xE0\xA0\x80"},
      {"last of three bytes", units({0xFFFF}), "\xEF\xBF\xBF"},
      {"one element beyond", units({0x10000}), "\xF0\x90\x80\x80"},
      {"the last of all", units({0x10FFFF}), "\xF4\x8F\xBF\xBF"},
      {"first pair", units({0xD800, 0xDC00}), "\xF0\x90\x80\x80"},
      {"last pair", units({0xDBFF, 0xDFFF, '<'}), "\xF4\x8F\xBF\xBF&lt;"},
      {"pair in the middle", units({'a', 0xD83D, 0xDE9C, 'b'}),
       "a\xF0\x9F\x9A\x9C"
       "b"},
      {"high surrogate at the end", units({'a', 0xD800}), "a"},
      {"high surrogate before a letter", units({'a', 0xD800, 'b', 'c'}), "a"},
      {"two high surrogates", units({'a', 0xD800, 0xD800, 0xDC00}), "a"},
      {"just below the low ones", units({'a', 0xD800, 0xDBFF}), "a"},
      {"just above the low ones", units({'a', 0xD800, 0xE000}), "a"},
      {"low surrogate alone", units({0xDC00, 'b'}),
       "\xED\xB0\x80"
       "b"},
      {"index counts units", units({0xE9, ']', '>'}), "\xC3\xA9]&gt;"},
      {"no bracket before it", units({0xE9, 0xE9, '>'}), "\xC3\xA9\xC3\xA9>"},
  };
  for (auto const& row : rows) EXPECT_EQ(row.bytes, xml(row.text)) << row.caption;
}

TEST(WideText, OfALiteralIsNoTruthValue) {
  std::ostringstream out;
  lmx::output_convert_to_xml(out, L"a<b");
  lmx::output_convert_to_xml(out, "a<b");
  EXPECT_EQ("a&lt;ba&lt;b", out.str());
}

TEST(WideText, BecomesAsciiWithPointsForTheRest) {
  EXPECT_EQ("", ascii(L""));
  EXPECT_EQ("a<&\"'>]]>", ascii(L"a<&\"'>]]>")) << "nothing is escaped";
  EXPECT_EQ("\x7F..", ascii(units({0x7F, 0x80, 0xFFFF})));
  EXPECT_EQ("..", ascii(units({0xD83D, 0xDE9C}))) << "each unit of a pair";
  EXPECT_EQ("\0\t"s, ascii(units({0, '\t'})));
  EXPECT_EQ(".", ascii(units({0xFFFFFFFF}))) << "negative where wchar_t is signed";
}

// ---- Truth values ----

TEST(TruthValue, HasAWordOrADigit) {
  EXPECT_EQ("true", xml(true));
  EXPECT_EQ("false", xml(false));
  EXPECT_EQ("true", spec_text(true));
  EXPECT_EQ("false", spec_text(false));
  const auto digit = [](bool value) {
    return written(
        [&](std::ostream& out) -> std::ostream& { return lmx::output_convert_to_bool_digit(out, value); });
  };
  EXPECT_EQ("1", digit(true));
  EXPECT_EQ("0", digit(false));
}

// ---- Floating-point numbers ----

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

TEST(Double, IsWrittenWith14SignificantDigits) {
  struct {
    const char* caption;
    double value;
    const char* text;
  } const rows[] = {
      {"zero", 0.0, "0"},
      {"negative zero", -0.0, "-0"},
      {"whole", 1.0, "1"},
      {"negative", -2.5, "-2.5"},
      {"no binary fraction", 0.1, "0.1"},
      {"rounding error goes", 0.1 + 0.2, "0.3"},
      {"third", 1.0 / 3.0, "0.33333333333333"},
      {"two thirds round up", 2.0 / 3.0, "0.66666666666667"},
      {"14 digits", 12345678901234.0, "12345678901234"},
      {"15 digits", 123456789012346.0, "1.2345678901235e+14"},
      {"15 digits, tie to even", 123456789012345.0, "1.2345678901234e+14"},
      {"fraction is cut to fit", 50.123456789012345, "50.123456789012"},
      {"last without exponent", 99999999999999.0, "99999999999999"},
      {"first with exponent", 1e14, "1e+14"},
      {"large", 1e20, "1e+20"},
      {"three digits of exponent", 1e300, "1e+300"},
      {"small without exponent", 0.0001, "0.0001"},
      {"small with exponent", 0.00001, "1e-05"},
      {"most characters", -0.00012345678901234, "-0.00012345678901234"},
      {"greatest", std::numeric_limits<double>::max(), "1.7976931348623e+308"},
      {"least", std::numeric_limits<double>::denorm_min(), "4.9406564584125e-324"},
      {"not a number", nan, "NaN"},
      {"negative not a number", -nan, "NaN"},
      {"infinite", infinity, "INF"},
      {"negative infinite", -infinity, "-INF"},
  };
  for (auto const& row : rows) {
    EXPECT_EQ(row.text, xml(row.value)) << row.caption;
    EXPECT_EQ(row.text, spec_text(row.value)) << row.caption;
  }
}

TEST(Float, IsWrittenWithSevenSignificantDigits) {
  struct {
    const char* caption;
    float value;
    const char* text;
  } const rows[] = {
      {"zero", 0.0f, "0"},
      {"no binary fraction", 0.1f, "0.1"},
      {"third", 1.0f / 3.0f, "0.3333333"},
      {"seven digits", 1234567.0f, "1234567"},
      {"eight digits", 12345678.0f, "1.234568e+07"},
      {"greatest", std::numeric_limits<float>::max(), "3.402823e+38"},
      {"not a number", std::numeric_limits<float>::quiet_NaN(), "NaN"},
      {"infinite", std::numeric_limits<float>::infinity(), "INF"},
      {"negative infinite", -std::numeric_limits<float>::infinity(), "-INF"},
  };
  for (auto const& row : rows) EXPECT_EQ(row.text, xml(row.value)) << row.caption;
}

TEST(Double, IsWhatAClassicStreamPrints) {
  std::mt19937_64 random(20);
  for (int i = 0; i < 20000; ++i) {
    std::uint64_t const bits = random();
    double value;
    std::memcpy(&value, &bits, sizeof value);
    if (value != value || value == value / 2) continue;
    std::ostringstream expected;
    expected.imbue(std::locale::classic());
    expected << std::setprecision(14) << value;
    ASSERT_EQ(expected.str(), xml(value)) << "bits " << bits;
  }
}

// ---- All types of a spec ----

// Every type's output by the one name, as the specs take it.
template <class T>
string by_spec(T const& value) {
  lmx::c_validation_spec<T> const spec(lmx::EXWS_COLLAPSE, "", &lmx::lexical_validator_empty,
                                       &lmx::value_validator_empty<T>, &lmx::v_to_o, &lmx::o_to_v);
  return written([&](std::ostream& out) -> std::ostream& { return spec.mp_o_to_v(out, value); });
}

TEST(Output, HasOneNameForAllTypesOfASpec) {
  EXPECT_EQ("a&amp;b", by_spec("a&b"s));
  EXPECT_EQ("65", by_spec(static_cast<unsigned char>(65))) << "a number, not a letter";
  EXPECT_EQ("255", by_spec(static_cast<unsigned char>(255)));
  EXPECT_EQ("65535", by_spec(static_cast<unsigned short>(65535)));
  EXPECT_EQ("-2147483648", by_spec(std::numeric_limits<int>::min()));
  EXPECT_EQ("4294967295", by_spec(4294967295u));
  EXPECT_EQ("true", by_spec(true));
  EXPECT_EQ("1234567.5", by_spec(1234567.5));
  EXPECT_EQ("2024-02-29T23:59:05.5+01:30", by_spec(lmx::c_datetime("2024-02-29T23:59:05.5+01:30")));
  EXPECT_EQ("50.1234567890123456789000", by_spec(decimal("50.1234567890123456789000")));
  lmx::c_binary bytes;
  bytes.from_hex("000aff");
  EXPECT_EQ("000AFF", by_spec(bytes));
}

TEST(Output, OfDefaultValues) {
  EXPECT_EQ("", by_spec(string()));
  EXPECT_EQ("0", by_spec(0));
  EXPECT_EQ("0", by_spec(0.0));
  EXPECT_EQ("false", by_spec(false));
  EXPECT_EQ("", by_spec(lmx::c_binary()));
  EXPECT_EQ("0", by_spec(decimal()));
  EXPECT_EQ("0001-00-00T00:00:00", by_spec(lmx::c_datetime()));
}

TEST(Output, IgnoresTheStreamsFormatAndLocale) {
  std::ostringstream out;
  out.imbue(std::locale(std::locale::classic(), new grouping));
  out << std::hex << std::showpos << std::showpoint << std::fixed << std::uppercase << std::boolalpha
      << std::setprecision(3) << std::setfill('*');
  for (int width : {0, 30}) {
    out.str("");
    const auto put = [&](auto const& value) {
      out.width(width);
      lmx::o_to_v(out, value).put(';');
    };
    put(1234567);
    put(4000000000u);
    put(static_cast<unsigned char>(200));
    put(1234567.25);
    put(1e20);
    put(infinity);
    put(true);
    put(decimal("1234567.50"));
    put(lmx::c_datetime("12024-01-01T00:00:05.25"));
    EXPECT_EQ("1234567;4000000000;200;1234567.25;1e+20;INF;true;1234567.50;12024-01-01T00:00:05.25;",
              out.str())
        << "width " << width;
  }
  EXPECT_EQ(3, out.precision()) << "the host's precision is back";
  EXPECT_TRUE((out.flags() & std::ios_base::fixed) != 0);
}

TEST(Output, ToAFailedStreamIsNothing) {
  std::ostringstream out;
  out.setstate(std::ios_base::failbit);
  lmx::o_to_v(out, "a<b"s);
  lmx::o_to_v(out, 1.5);
  lmx::o_to_v(out, true);
  lmx::output_convert_to_xml(out, L"a<b");
  lmx::output_convert_to_ascii(out, L"ab");
  EXPECT_EQ("", out.str());
  EXPECT_TRUE(out.fail());
}

}  // namespace
