// Scanners, lexical checks, facets, text conversions, qualified names and the small helpers.
#include "GenLibrarySupportFiles/lmxtypes/lexical.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <new>
#include <string>
#include <vector>

namespace {

using namespace std::string_literals;

// --- Scanners --------------------------------------------------------------------------------------------

struct Scan {
  const char* caption;
  std::string text;
  int result;
  std::size_t passed;  // where the cursor stands afterwards
};

template <class Scanner>
void expect_scans(Scanner scan, std::vector<Scan> const& rows) {
  for (auto const& row : rows) {
    char const* p = row.text.c_str();
    EXPECT_EQ(row.result, static_cast<int>(scan(p))) << row.caption;
    EXPECT_EQ(row.passed, static_cast<std::size_t>(p - row.text.c_str())) << row.caption;
  }
}

TEST(Signs, AreSteppedOverOnceAndReported) {
  expect_scans(lmx::skip_sign, {{"minus", "-1", 1, 1},
                                {"plus", "+1", 1, 1},
                                {"none", "1", 0, 0},
                                {"empty", "", 0, 0},
                                {"only the first", "--", 1, 1},
                                {"not behind a blank", " -", 0, 0}});
  expect_scans(lmx::skip_opt_sign, {{"minus", "-1", 1, 1}, {"none is fine", "1", 1, 0}});
}

TEST(Signs, SetTheFlagOnlyForMinus) {
  struct Row {
    const char* caption;
    const char* text;
    bool found, is_negative;
  };
  for (auto const& row : {Row{"minus", "-", true, true}, Row{"plus", "+", true, false},
                          Row{"none clears the flag", "5", false, false}}) {
    bool is_negative = !row.is_negative;
    char const* p = row.text;
    EXPECT_EQ(row.found, lmx::get_sign(p, is_negative)) << row.caption;
    EXPECT_EQ(row.is_negative, is_negative) << row.caption;
    EXPECT_EQ(row.found ? 1 : 0, p - row.text) << row.caption;

    is_negative = !row.is_negative;
    p = row.text;
    EXPECT_TRUE(lmx::get_opt_sign(p, is_negative)) << row.caption;
    EXPECT_EQ(row.is_negative, is_negative) << row.caption;
    EXPECT_EQ(row.found ? 1 : 0, p - row.text) << row.caption;
  }
}

TEST(Digits, AreReadIntoAValueThatWrapsIn32Bits) {
  struct Row {
    const char* caption;
    const char* text;
    int count;
    unsigned int value;
  };
  for (auto const& row :
       {Row{"no digit sets 0", "x1", 0, 0}, Row{"empty sets 0", "", 0, 0},
        Row{"up to a letter", "12a3", 2, 12}, Row{"leading zeros count", "007", 3, 7},
        Row{"a sign is no digit", "-1", 0, 0}, Row{"largest", "4294967295", 10, 4294967295u},
        Row{"one more wraps", "4294967296", 10, 0}, Row{"far more wraps", "99999999999", 11, 1215752191u}}) {
    unsigned int value = 77;
    char const* p = row.text;
    EXPECT_EQ(row.count, lmx::get_digits(p, value)) << row.caption;
    EXPECT_EQ(row.value, value) << row.caption;
    EXPECT_EQ(row.count, p - row.text) << row.caption;

    int narrow = 77;
    p = row.text;
    EXPECT_EQ(row.count, lmx::get_digits(p, narrow)) << row.caption;
    EXPECT_EQ(static_cast<int>(row.value), narrow) << row.caption;

    p = row.text;
    EXPECT_EQ(row.count, lmx::skip_digits(p)) << row.caption;
    EXPECT_EQ(row.count, p - row.text) << row.caption;
  }
}

TEST(SkipDecimal, GivesTheBytesPassedButNothingForALonePoint) {
  expect_scans(lmx::skip_decimal, {{"empty", "", 0, 0},
                                   {"lone point, passed all the same", ".", 0, 1},
                                   {"point last", "5.", 2, 2},
                                   {"point first", ".5", 2, 2},
                                   {"both sides", "1.25", 4, 4},
                                   {"no point", "12", 2, 2},
                                   {"up to a letter", "1.5e3", 3, 3},
                                   {"second point stays", "1.2.3", 3, 3},
                                   {"a point before a letter is passed", ".x", 1, 1},
                                   {"a sign is none of it", "-1.5", 0, 0},
                                   {"a comma is no point", "1,5", 1, 1}});
}

struct Decimal {
  const char* caption;
  std::string text;
  int count;
  double value;
};

class GetDecimal : public testing::TestWithParam<Decimal> {};

TEST_P(GetDecimal, ReadsDigitsAndFraction) {
  auto const& [caption, text, count, expected] = GetParam();
  char const* p = text.c_str();
  double value = 77;
  EXPECT_EQ(count, lmx::get_decimal(p, value)) << caption;
  EXPECT_EQ(expected, value) << caption;
  EXPECT_EQ(count, p - text.c_str()) << caption;

  p = text.c_str();
  float narrow = 77;
  EXPECT_EQ(count, lmx::get_decimal(p, narrow)) << caption;
  EXPECT_EQ(static_cast<float>(expected), narrow) << caption;
}

INSTANTIATE_TEST_SUITE_P(
    Lexical, GetDecimal,
    testing::Values(Decimal{"empty", "", 0, 0.0}, Decimal{"no number", "x", 0, 0.0},
                    Decimal{"integer", "12", 2, 12.0}, Decimal{"lone point is one byte", ".", 1, 0.0},
                    Decimal{"point last", "5.", 2, 5.0}, Decimal{"point first", ".5", 2, 0.5},
                    Decimal{"both sides", "59.999", 6, 59.999}, Decimal{"up to a letter", "1.5S", 3, 1.5},
                    Decimal{"a sign is none of it", "-1", 0, 0.0}));

TEST(GetDecimal, NeverGivesNaNForAnyNumberOfDigits) {
  double const infinity = std::numeric_limits<double>::infinity();
  for (auto const& row :
       {Decimal{"400 zeros behind the point", "5." + std::string(400, '0'), 402, 5.0},
        Decimal{"400 nines before the point", std::string(400, '9'), 400, infinity},
        Decimal{"400 on both sides", std::string(400, '9') + "." + std::string(400, '9'), 801, infinity}}) {
    char const* p = row.text.c_str();
    double value = 77;
    EXPECT_EQ(row.count, lmx::get_decimal(p, value)) << row.caption;
    EXPECT_DOUBLE_EQ(row.value, value) << row.caption;
    EXPECT_EQ('\0', *p) << row.caption;
  }
}

TEST(GetDecimal, Uses290FractionDigitsInReadingOrder) {
  std::string const text = "0." + std::string(289, '3') + "7";
  double value = 0.0, scale = 1.0;
  for (char const digit : text.substr(2)) {
    value = value * 10.0 + (digit - '0');
    scale *= 10.0;
  }
  for (std::string const more :
       {"", "9", "99999999999999999999999999999999", "0000000000000000000000000001"}) {
    std::string const longer = text + more;
    char const* p = longer.c_str();
    double read = 77;
    EXPECT_EQ(static_cast<int>(longer.size()), lmx::get_decimal(p, read)) << "the rest is counted";
    EXPECT_EQ(value / scale, read) << "and nothing else: " << more;
  }
}

TEST(SkipConst, MovesOnlyPastTheWholeLiteral) {
  struct Row {
    const char* caption;
    const char* text;
    const char* literal;
    bool found;
    int passed;
  };
  for (auto const& row :
       {Row{"whole text", "abc", "abc", true, 3}, Row{"start of the text", "abcd", "abc", true, 3},
        Row{"in part", "abx", "abc", false, 0}, Row{"text too short", "ab", "abc", false, 0},
        Row{"empty literal", "abc", "", true, 0}, Row{"both empty", "", "", true, 0},
        Row{"empty text", "", "a", false, 0}, Row{"case counts", "ABC", "abc", false, 0}}) {
    char const* p = row.text;
    EXPECT_EQ(row.found, lmx::skip_const(p, row.literal)) << row.caption;
    EXPECT_EQ(row.passed, p - row.text) << row.caption;
  }
}

TEST(WhiteSpace, IsTheSixAsciiBytes) {
  expect_scans(lmx::skip_ws, {{"all six", " \t\n\v\f\rx", 1, 6},
                              {"none", "x ", 0, 0},
                              {"empty", "", 0, 0},
                              {"NEL of Latin-1 is none", "\x85", 0, 0},
                              {"no-break space of Latin-1 is none", "\xA0", 0, 0},
                              {"up to the end", "  ", 1, 2}});
  expect_scans(lmx::skip_opt_ws, {{"some", " x", 1, 1}, {"none is fine", "x", 1, 0}});
}

TEST(NonWhiteSpace, EndsAtWhiteSpaceOrTheEnd) {
  expect_scans(lmx::skip_non_ws, {{"up to a blank", "abc d", 3, 3},
                                  {"up to the end, never past it", "abc\0def "s, 3, 3},
                                  {"empty", "", 0, 0},
                                  {"blank first", " a", 0, 0},
                                  {"high bytes belong to the word", "\x85\xA0\xFF x", 3, 3}});
  expect_scans(lmx::skip_opt_non_ws, {{"some", "ab c", 1, 2}, {"none is fine", " c", 1, 0}});
}

TEST(NonWhiteSpace, IsCollectedInPlaceOfTheOldWord) {
  char const* const text =
      "\xC3\xA9"
      "a\tb";
  char const* p = text;
  std::string word = "old";
  EXPECT_TRUE(lmx::get_non_ws(p, &word));
  EXPECT_EQ(
      "\xC3\xA9"
      "a",
      word);
  EXPECT_EQ(3, p - text);
  EXPECT_FALSE(lmx::get_non_ws(p, &word)) << "stands on the TAB";
  EXPECT_EQ("", word);
  lmx::skip_ws(p);
  EXPECT_TRUE(lmx::get_non_ws(p, &word));
  EXPECT_EQ("b", word);
  EXPECT_FALSE(lmx::get_non_ws(p, &word)) << "at the end";
  EXPECT_EQ('\0', *p);
}

// --- Lexical checks --------------------------------------------------------------------------------------

struct Check {
  const char* caption;
  std::string text;
  bool is_valid;
};

TEST(IsValidBool, TakesFourTextsOnly) {
  for (auto const& row :
       {Check{"true", "true", true}, Check{"1", "1", true}, Check{"false", "false", true},
        Check{"0", "0", true}, Check{"empty", "", false}, Check{"case counts", "True", false},
        Check{"blank", " true", false}, Check{"longer", "truex", false}, Check{"two digits", "01", false},
        Check{"yes", "yes", false}, Check{"NUL inside", "1\0"s, false}}) {
    EXPECT_EQ(row.is_valid, lmx::is_valid_bool(row.text)) << row.caption;
  }
}

TEST(IsValidInteger, WantsASignPerhapsAndDigitsOnly) {
  for (auto const& row :
       {Check{"empty", "", false}, Check{"lone plus", "+", false}, Check{"lone minus", "-", false},
        Check{"plus zero", "+0", true}, Check{"minus zero", "-0", true}, Check{"leading zeros", "0005", true},
        Check{"300 digits", std::string(300, '9'), true}, Check{"fraction", "1.0", false},
        Check{"exponent", "1e3", false}, Check{"blank before", " 5", false},
        Check{"blank after", "5 ", false}, Check{"two signs", "+-5", false}, Check{"sign last", "5-", false},
        Check{"hex", "0x1", false}, Check{"NUL inside", "5\0"s, false}, Check{"NUL and more", "5\0x"s, false},
        Check{"high byte", "5\xB2", false}}) {
    EXPECT_EQ(row.is_valid, lmx::is_valid_integer(row.text)) << row.caption;
  }
}

TEST(IsValidFloat, TakesDecimalsExponentsAndThreeNames) {
  for (auto const& row : {Check{"INF", "INF", true},
                          Check{"minus INF", "-INF", true},
                          Check{"NaN", "NaN", true},
                          Check{"plus INF", "+INF", false},
                          Check{"minus NaN", "-NaN", false},
                          Check{"lower inf", "inf", false},
                          Check{"lower nan", "nan", false},
                          Check{"infinity", "INFINITY", false},
                          Check{"INF and more", "INF0", false},
                          Check{"plus and exponent", "+1e5", true},
                          Check{"point and exponent", "1.e5", true},
                          Check{"point first", ".5E-3", true},
                          Check{"plain", "-12.50", true},
                          Check{"exponent sign", "1e+5", true},
                          Check{"empty", "", false},
                          Check{"sign", "-", false},
                          Check{"point", ".", false},
                          Check{"sign and point", "+.", false},
                          Check{"no digit in the exponent", "1e", false},
                          Check{"sign without digit", "1e+", false},
                          Check{"exponent with point", "1e5.0", false},
                          Check{"exponent alone", "e5", false},
                          Check{"hex", "0x1p3", false},
                          Check{"comma", "1,5", false},
                          Check{"blank before", " 1", false},
                          Check{"blank after", "1 ", false},
                          Check{"NUL inside", "1\0"s, false},
                          Check{"two points", "1.2.3", false}}) {
    EXPECT_EQ(row.is_valid, lmx::is_valid_float(row.text)) << row.caption;
  }
}

// --- Facets ----------------------------------------------------------------------------------------------

struct Measure {
  const char* caption;
  std::string text;
  unsigned int length;
};

class Length : public testing::TestWithParam<Measure> {};

TEST_P(Length, CountsCharacters) {
  auto const& [caption, text, expected] = GetParam();
  EXPECT_EQ(expected, lmx::length(text)) << caption;
}

INSTANTIATE_TEST_SUITE_P(
    Lexical, Length,
    testing::Values(
        Measure{"empty", "", 0}, Measure{"ASCII", "abc", 3}, Measure{"two bytes", "\xC3\xA9", 1},
        Measure{"three bytes", "\xE2\x82\xAC", 1}, Measure{"four bytes", "\xF0\x9F\x9A\x9C", 1},
        Measure{"mixed", "a\xC3\xA9z", 3}, Measure{"NUL is a character", "a\0b"s, 3},
        Measure{"surrogate pair in six bytes", "\xED\xA0\xBD\xED\xBA\x9Cx", 2},
        Measure{"low surrogate half takes six too", "\xED\xBA\x9Cxyz!", 2},
        Measure{"0xED before an ordinary character", "\xED\x95\x9Cx", 2},
        Measure{"continuation byte ends the count, counted", "\x80zzz", 1},
        Measure{"continuation byte behind characters", "ab\xBFzzz", 3},
        Measure{"0xF8 ends the count", "\xF8zzz", 1}, Measure{"0xFF ends the count", "\xFFzzz", 1},
        Measure{"continuations are not looked at", "\xC3zq", 2},
        Measure{"cut off after one of two", "a\xC3", 2}, Measure{"cut off after one of three", "\xE2", 1},
        Measure{"cut off after three of four", "\xF0\x9F\x9A", 1},
        Measure{"cut off after half a pair", "\xED\xA0\xBD", 1}, Measure{"0xED last", "a\xED", 2}));

TEST(Length, OfWideTextCountsASurrogatePairOnce) {
  EXPECT_EQ(0u, lmx::length(L""s));
  EXPECT_EQ(3u, lmx::length(L"abc"s));
  EXPECT_EQ(1u, lmx::length(std::wstring{static_cast<wchar_t>(0x1F69C)}));
  EXPECT_EQ(2u, lmx::length(std::wstring{static_cast<wchar_t>(0xD83D), static_cast<wchar_t>(0xDE9C), L'x'}));
  EXPECT_EQ(1u, lmx::length(std::wstring{static_cast<wchar_t>(0xD83D)})) << "high half last";
  EXPECT_EQ(1u, lmx::length(std::wstring{static_cast<wchar_t>(0xD83D), L'x'})) << "any element goes with it";
  EXPECT_EQ(2u, lmx::length(std::wstring{static_cast<wchar_t>(0xDE9C), L'x'})) << "low half alone is one";
  EXPECT_EQ(2u, lmx::length(std::wstring{static_cast<wchar_t>(0xDBFF), L'x', static_cast<wchar_t>(0xDC00)}));
}

struct Limit {
  const char* caption;
  std::string text;
  unsigned int n;
  bool min_ok, max_ok;
};

class LengthLimits : public testing::TestWithParam<Limit> {};

TEST_P(LengthLimits, AreInCharacters) {
  auto const& [caption, text, n, min_ok, max_ok] = GetParam();
  EXPECT_EQ(min_ok, lmx::is_min_length_ok(text, n)) << caption;
  EXPECT_EQ(max_ok, lmx::is_max_length_ok(text, n)) << caption;
}

std::string repeated(int count, std::string const& text) {
  std::string all;
  for (int i = 0; i < count; ++i) all += text;
  return all;
}

INSTANTIATE_TEST_SUITE_P(
    Lexical, LengthLimits,
    testing::Values(Limit{"empty against 0", "", 0, true, true}, Limit{"one against 0", "a", 0, true, false},
                    Limit{"empty against 1", "", 1, false, true}, Limit{"exact", "abc", 3, true, true},
                    Limit{"one short", "ab", 3, false, true}, Limit{"one long", "abcd", 3, true, false},
                    Limit{"32 of two bytes", repeated(32, "\xC3\xA9"), 32, true, true},
                    Limit{"33 of two bytes", repeated(33, "\xC3\xA9"), 32, true, false},
                    Limit{"31 of two bytes", repeated(31, "\xC3\xA9"), 32, false, true},
                    Limit{"32 of four bytes", repeated(32, "\xF0\x9F\x9A\x9C"), 32, true, true},
                    Limit{"31 of four bytes", repeated(31, "\xF0\x9F\x9A\x9C"), 32, false, true},
                    Limit{"far longer", std::string(1000, 'a'), 32, true, false},
                    Limit{"four times the limit is enough uncounted", "\x80zzz", 1, true, true},
                    Limit{"pairs of six bytes count as long by size", repeated(3, "\xED\xA0\xBD\xED\xBA\x9C"),
                          4, true, false},
                    Limit{"highest limit", "abc", 4294967295u, false, true},
                    Limit{"limit whose fourfold leaves 32 bits", "abcdefgh", 1073741825u, false, true}));

TEST(DigitFacets, CountEveryDigit) {
  struct Row {
    const char* caption;
    const char* text;
    unsigned int total, fraction;
  };
  for (auto const& row :
       {Row{"empty", "", 0, 0}, Row{"zeros at both ends", "007.50", 5, 2}, Row{"point last", "1.", 1, 0},
        Row{"fraction", "1.50", 3, 2}, Row{"no point", "-12", 2, 0}, Row{"point first", ".5", 1, 1},
        Row{"lone point", ".", 0, 0}, Row{"comma is no point", "1,25", 3, 0}}) {
    EXPECT_EQ(row.total, lmx::total_digits(row.text)) << row.caption;
    EXPECT_EQ(row.fraction, lmx::fraction_digits(row.text)) << row.caption;
  }
}

// --- Text conversions ------------------------------------------------------------------------------------

std::wstring wide(std::vector<unsigned int> const& elements) {
  std::wstring text;
  for (auto const element : elements) text += static_cast<wchar_t>(element);
  return text;
}

struct Decode {
  const char* caption;
  std::string text;
  std::vector<unsigned int> elements;
};

class DecodeUtf8 : public testing::TestWithParam<Decode> {};

TEST_P(DecodeUtf8, KeepsWhatCameBeforeABadSequence) {
  auto const& [caption, text, elements] = GetParam();
  std::wstring out = L"old";
  lmx::vtostring(out, text);
  EXPECT_EQ(wide(elements), out) << caption;
  out = L"old";
  lmx::convert(&out, text);
  EXPECT_EQ(wide(elements), out) << caption;
}

INSTANTIATE_TEST_SUITE_P(
    Lexical, DecodeUtf8,
    testing::Values(Decode{"empty", "", {}}, Decode{"ASCII", "az", {'a', 'z'}},
                    Decode{"NUL", "a\0b"s, {'a', 0, 'b'}}, Decode{"two bytes", "\xC3\xA9", {0xE9}},
                    Decode{"three bytes", "\xE2\x82\xAC", {0x20AC}},
                    Decode{"four bytes", "\xF0\x9F\x9A\x9C", {0x1F69C}},
                    Decode{"highest of two and three", "\xDF\xBF\xEF\xBF\xBF", {0x7FF, 0xFFFF}},
                    Decode{"overlong passes", "\xC0\x80", {0}},
                    Decode{"above Unicode passes", "\xF7\xBF\xBF\xBF", {0x1FFFFF}},
                    Decode{"continuation first", "a\x80z", {'a'}}, Decode{"0xF8 first", "a\xF8z", {'a'}},
                    Decode{"ASCII for a continuation", "a\xC3zz", {'a'}},
                    Decode{"lead for a continuation", "a\xE2\x82\xC3zz", {'a'}},
                    Decode{"overruns the text", "a\xE2\x82", {'a'}},
                    Decode{"surrogate pair", "\xED\xA0\xBD\xED\xBA\x9Cz", {0x1F69C, 'z'}},
                    Decode{"high half at the end", "a\xED\xA0\xBD", {'a'}},
                    Decode{"high half before ASCII", "a\xED\xA0\xBDz", {'a'}},
                    Decode{"high half twice", "a\xED\xA0\xBD\xED\xA0\xBD\xED\xBA\x9C", {'a'}},
                    Decode{"high half before a bad sequence", "a\xED\xA0\xBD\xED", {'a'}},
                    Decode{"low half alone passes", "\xED\xBA\x9Cz", {0xDE9C, 'z'}}));

struct Encode {
  const char* caption;
  std::vector<unsigned int> elements;
  std::string text;
};

class EncodeUtf8 : public testing::TestWithParam<Encode> {};

TEST_P(EncodeUtf8, WritesOneToFourBytes) {
  auto const& [caption, elements, text] = GetParam();
  std::string out = "old";
  lmx::convert(&out, wide(elements));
  EXPECT_EQ(text, out) << caption;
}

INSTANTIATE_TEST_SUITE_P(
    Lexical, EncodeUtf8,
    testing::Values(
        Encode{"empty", {}, ""}, Encode{"NUL and ASCII", {0, 0x7F}, "\0\x7F"s},
        Encode{"two bytes", {0x80, 0x7FF}, "\xC2\x80\xDF\xBF"},
        Encode{"three bytes", {0x800, 0xFFFF}, "\xE0\xA0\x80\xEF\xBF\xBF"},
        Encode{"four bytes", {0x10000, 0x10FFFF}, "\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"},
        Encode{"surrogate pair", {0xD83D, 0xDE9C, 'z'}, "\xF0\x9F\x9A\x9Cz"},
        Encode{"first and last pair", {0xD800, 0xDC00, 0xDBFF, 0xDFFF}, "\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"},
        Encode{"element after an unpaired high half is dropped",
               {0xD83D, 'a', 'b'},
               "\xED\xA0\xBD"
               "b"},
        Encode{"high half dropped after a high half", {0xD83D, 0xD83D, 0xDE9C}, "\xED\xA0\xBD\xED\xBA\x9C"},
        Encode{"high half last", {'a', 0xD83D}, "a\xED\xA0\xBD"},
        Encode{"low half alone",
               {0xDE9C, 'a'},
               "\xED\xBA\x9C"
               "a"}));

TEST(VToString, CopiesNarrowText) {
  std::string out = "old";
  lmx::vtostring(out, "a\0\xFF"s);
  EXPECT_EQ("a\0\xFF"s, out);
}

// --- Qualified names -------------------------------------------------------------------------------------

TEST(MakeQname, StoresNamespaceAndName) {
  lmx::ct_qname<std::string> narrow;
  lmx::make_qname(&narrow, "p:n", "urn:u", "n");
  auto const& [name_space, name] = narrow;  // in this order
  EXPECT_EQ("urn:u", name_space);
  EXPECT_EQ("n", name);

  lmx::ct_qname<std::wstring> wide_name;
  lmx::make_qname(&wide_name, "p:n", "urn:u", "\xC3\xA9");
  EXPECT_EQ("urn:u", wide_name.m_namespace);
  EXPECT_EQ(wide({0xE9}), wide_name.m_name);
}

TEST(MakeQname, IntoPlainTextStoresTheNameAsWritten) {
  std::string narrow;
  lmx::make_qname(&narrow, "p:n", "urn:u", "n");
  EXPECT_EQ("p:n", narrow);
  std::wstring wide_name;
  lmx::make_qname(&wide_name, "p:\xC3\xA9", "urn:u", "n");
  EXPECT_EQ(wide({'p', ':', 0xE9}), wide_name);
}

struct Packed {
  const char* caption;
  const char* packed;
  const char* qname;
  const char* name;
  const char* name_space;
};

class MakePackedQname : public testing::TestWithParam<Packed> {};

TEST_P(MakePackedQname, SplitsAtWhiteSpaceTwice) {
  auto const& [caption, packed, qname, name, name_space] = GetParam();
  lmx::ct_qname<std::string> narrow;
  lmx::make_qname(&narrow, packed);
  EXPECT_EQ(name_space, narrow.m_namespace) << caption;
  EXPECT_EQ(name, narrow.m_name) << caption;

  lmx::ct_qname<std::wstring> wide_name;
  lmx::make_qname(&wide_name, packed);
  std::wstring expected;
  lmx::vtostring(expected, std::string(name));
  EXPECT_EQ(name_space, wide_name.m_namespace) << caption;
  EXPECT_EQ(expected, wide_name.m_name) << caption;

  std::string text;
  lmx::make_qname(&text, packed);
  EXPECT_EQ(qname, text) << caption;

  std::wstring wide_text;
  lmx::make_qname(&wide_text, packed);
  lmx::vtostring(expected, std::string(qname));
  EXPECT_EQ(expected, wide_text) << caption;
}

INSTANTIATE_TEST_SUITE_P(
    Lexical, MakePackedQname,
    testing::Values(Packed{"three parts", "p:n n urn:u", "p:n", "n", "urn:u"},
                    Packed{"runs of white space", "p:n \t\n n \r urn:u", "p:n", "n", "urn:u"},
                    Packed{"the third keeps inner and trailing white space", "p:n n a b  c ", "p:n", "n",
                           "a b  c "},
                    Packed{"one part", "n", "n", "", ""}, Packed{"two parts", "p:n n", "p:n", "n", ""},
                    Packed{"empty", "", "", "", ""},
                    Packed{"white space first: the first part is empty", " n u", "", "n", "u"},
                    Packed{"high bytes are no white space", "\xC2\xA0 \xC3\xA9 \xC2\x85", "\xC2\xA0",
                           "\xC3\xA9", "\xC2\x85"}));

// --- Other helpers ---------------------------------------------------------------------------------------

TEST(MustUnderstand, HasThreeValues) {
  struct Row {
    const char* text;
    int value;
  };
  for (auto const& row : {Row{"1", 2}, Row{"true", 2}, Row{"0", 0}, Row{"false", 0}, Row{"", 1},
                          Row{"TRUE", 1}, Row{" 1", 1}, Row{"2", 1}}) {
    EXPECT_EQ(static_cast<lmx::elmx_must_understand>(row.value), lmx::bool_must_understand(row.text))
        << row.text;
  }
}

TEST(XStrDup, GivesACopyToBeDeleted) {
  char const original[] = "a\xFF";
  char* const copy = lmx::xstrdup(original);
  EXPECT_STREQ(original, copy);
  EXPECT_NE(original, copy);
  ::operator delete(copy);
  char* const empty = lmx::xstrdup("");
  EXPECT_STREQ("", empty);
  ::operator delete(empty);
}

TEST(XStriCmp, ComparesLowerCaseBytes) {
  struct Row {
    const char* caption;
    const char* a;
    const char* b;
    int difference;
  };
  for (auto const& row :
       {Row{"equal but for case", "UTF-8", "utf-8", 0}, Row{"equal", "a", "a", 0}, Row{"empty", "", "", 0},
        Row{"difference of two letters", "aC", "Ab", 'c' - 'b'}, Row{"first is shorter", "a", "ab", -'b'},
        Row{"second is shorter", "ab", "a", 'b'}, Row{"bytes are 0 to 255", "\xFF", "a", 255 - 'a'},
        Row{"high letters keep their case", "\xC9", "\xE9", 0xC9 - 0xE9},
        Row{"only letters fold", "[", "{", '[' - '{'},
        Row{"dotted I stays apart", "I", "\xDD", 'i' - 0xDD}}) {
    EXPECT_EQ(row.difference, lmx::xstricmp(row.a, row.b)) << row.caption;
  }
}

TEST(BSwap, ExchangesTheFirstBytes) {
  char a[] = "abcd", b[] = "wxyz";
  EXPECT_EQ(a, lmx::bswap(a, b, 3));
  EXPECT_STREQ("wxyd", a);
  EXPECT_STREQ("abcz", b);
  EXPECT_EQ(a, lmx::bswap(a, b, 0));
  EXPECT_STREQ("wxyd", a);
}

TEST(FloatZero, IsZeroAtRunTime) {
  EXPECT_EQ(0.0, lmx::float_zero());
  EXPECT_FALSE(std::signbit(lmx::float_zero()));
}

// Every byte value but 0 stands once in the middle of each kind of text: no scanner may take a byte above
// 127 for a digit, a sign, a letter or white space, whatever the sign of `char`.
TEST(HighBytes, BelongToNoClass) {
  for (int value = 128; value < 256; ++value) {
    std::string const byte(1, static_cast<char>(static_cast<unsigned char>(value)));
    std::string const text = "1" + byte + "1";
    EXPECT_FALSE(lmx::is_valid_integer(text)) << value;
    EXPECT_FALSE(lmx::is_valid_float(text)) << value;
    EXPECT_EQ(2u, lmx::total_digits(text)) << value;
    expect_scans(lmx::skip_digits, {{"digits", byte, 0, 0}});
    expect_scans(lmx::skip_sign, {{"sign", byte, 0, 0}});
    expect_scans(lmx::skip_ws, {{"white space", byte, 0, 0}});
    expect_scans(lmx::skip_non_ws, {{"word", text, 3, 3}});
    EXPECT_EQ(value - 'a', lmx::xstricmp(byte.c_str(), "A")) << value;
  }
}

}  // namespace
