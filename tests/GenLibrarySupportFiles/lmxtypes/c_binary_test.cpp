// Binary values: bytes, hexadecimal and base64 texts.
#include "GenLibrarySupportFiles/lmxtypes/c_binary.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <iomanip>
#include <locale>
#include <random>
#include <sstream>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace {

using namespace std::string_literals;
using lmx::c_binary;
using Bytes = std::vector<unsigned char>;

c_binary binary(Bytes const& bytes) {
  return c_binary(bytes.data(), static_cast<unsigned int>(bytes.size()));
}

Bytes bytes_of(c_binary const& value) {
  Bytes bytes(value.size());
  value.get(bytes.data(), static_cast<unsigned int>(bytes.size()));
  return bytes;
}

Bytes counting(int count) {
  Bytes bytes;
  for (int i = 0; i < count; ++i) bytes.push_back(static_cast<unsigned char>(i));
  return bytes;
}

// --- The bytes -------------------------------------------------------------------------------------------

TEST(Binary, StartsEmpty) {
  c_binary const value;
  EXPECT_TRUE(value.empty());
  EXPECT_EQ(0u, value.size());
  EXPECT_TRUE(c_binary(nullptr, 0).empty());
}

TEST(Binary, HoldsACopyOfTheBytes) {
  Bytes bytes{1, 2, 3};
  c_binary const value = binary(bytes);
  bytes[0] = 9;
  EXPECT_EQ((Bytes{1, 2, 3}), bytes_of(value));
  EXPECT_FALSE(value.empty());
}

TEST(Binary, IsCopiedAssignedMovedAndSwapped) {
  c_binary a = binary({1, 2});
  c_binary b(a);
  b[0] = 7;
  EXPECT_EQ((Bytes{1, 2}), bytes_of(a)) << "a copy stands on its own";
  a.swap(b);
  EXPECT_EQ((Bytes{7, 2}), bytes_of(a));
  EXPECT_EQ((Bytes{1, 2}), bytes_of(b));
  c_binary& self = a;
  a = self;
  EXPECT_EQ((Bytes{7, 2}), bytes_of(a));
  a = b;
  EXPECT_EQ(a, b);
  c_binary const moved = std::move(b);
  EXPECT_EQ((Bytes{1, 2}), bytes_of(moved));
}

TEST(Binary, IsSetEvenFromItsOwnBytes) {
  c_binary value = binary({1, 2, 3});
  value.set(&value[1], 2);
  EXPECT_EQ((Bytes{2, 3}), bytes_of(value));
  value.set(nullptr, 0);
  EXPECT_TRUE(value.empty());
}

TEST(Binary, IsGotNoFurtherThanItsSizeAndTheBuffer) {
  c_binary const value = binary({1, 2, 3});
  unsigned char buffer[5] = {90, 91, 92, 93, 94};
  EXPECT_EQ(buffer, value.get(buffer, 2));
  EXPECT_THAT(buffer, testing::ElementsAre(1, 2, 92, 93, 94));
  EXPECT_EQ(buffer, value.get(buffer, 5));
  EXPECT_THAT(buffer, testing::ElementsAre(1, 2, 3, 93, 94));
  EXPECT_EQ(buffer, c_binary().get(buffer, 5));
  EXPECT_THAT(buffer, testing::ElementsAre(1, 2, 3, 93, 94));
}

TEST(Binary, GrowsByOneByte) {
  c_binary value;
  value.append(1);
  EXPECT_EQ(&value, &(value += 255));
  EXPECT_EQ((Bytes{1, 255}), bytes_of(value));
}

TEST(Binary, ComparesSizeAndBytes) {
  c_binary const value = binary({1, 2});
  EXPECT_TRUE(value == binary({1, 2}));
  EXPECT_FALSE(value != binary({1, 2}));
  for (Bytes const& other : {Bytes{}, Bytes{1}, Bytes{1, 3}, Bytes{1, 2, 3}}) {
    EXPECT_FALSE(value == binary(other));
    EXPECT_TRUE(value != binary(other));
    EXPECT_FALSE(value.equal(other.data(), static_cast<unsigned int>(other.size())));
  }
  unsigned char const same[] = {1, 2, 3};
  EXPECT_TRUE(value.equal(same, 2));
  EXPECT_TRUE(c_binary().equal(nullptr, 0));
}

TEST(Binary, GivesAccessToEachByte) {
  c_binary value = binary({1, 2});
  value[1] = 7;
  value.at(0) = 8;
  c_binary const& read_only = value;
  EXPECT_EQ(7, read_only[1]);
  EXPECT_EQ(8, read_only.at(0));
}

TEST(Binary, ThrowsAtABadIndex) {
  c_binary value = binary({1, 2});
  c_binary const& read_only = value;
  auto const expect_throw = [](auto access) {
    try {
      access();
      FAIL() << "no exception";
    } catch (std::out_of_range const& error) {
      EXPECT_THAT(error.what(), testing::HasSubstr("vector::_M_range_check"));
    }
  };
  expect_throw([&] { value.at(2) = 0; });
  expect_throw([&] { return read_only.at(4294967295u); });
}

TEST(BinaryDeathTest, IndexOperatorStopsOnABadIndexWithItsText) {
  c_binary value = binary({1, 2});
  c_binary const& read_only = value;
  EXPECT_DEATH(value[2] = 0, "i_in < m_value.size\\(\\)");
  EXPECT_DEATH(static_cast<void>(read_only[2]), "i_in < m_value.size\\(\\)");
  EXPECT_DEATH(c_binary()[0] = 0, "i_in < m_value.size\\(\\)");
}

// --- Hexadecimal -----------------------------------------------------------------------------------------

struct Hex {
  const char* caption;
  std::string text;
  bool is_valid;
  Bytes bytes;
};

class HexTexts : public testing::TestWithParam<Hex> {};

TEST_P(HexTexts, AreCheckedAndRead) {
  auto const& [caption, text, is_valid, bytes] = GetParam();
  EXPECT_EQ(is_valid, c_binary::is_valid_hex(text)) << caption;
  c_binary value = binary({9, 9, 9});
  value.from_hex(text);
  EXPECT_EQ(bytes, bytes_of(value)) << caption;
}

INSTANTIATE_TEST_SUITE_P(Binary, HexTexts,
                         testing::Values(Hex{"empty", "", true, {}}, Hex{"one digit", "A", false, {}},
                                         Hex{"both cases", "abcDEF09", true, {0xAB, 0xCD, 0xEF, 0x09}},
                                         Hex{"three digits", "12F", false, {0x12}},
                                         Hex{"DDI", "0001", true, {0, 1}},
                                         Hex{"all digits",
                                             "0123456789ABCDEF",
                                             true,
                                             {0x01, 0x23, 0x45, 0x67, 0x89, 0xAB, 0xCD, 0xEF}},
                                         Hex{"lower case", "abcdef", true, {0xAB, 0xCD, 0xEF}}));

TEST(Hex, IsInvalidWithAnyOtherByte) {
  for (int value = 0; value < 256; ++value) {
    auto const byte = static_cast<char>(static_cast<unsigned char>(value));
    bool const is_digit = "0123456789abcdefABCDEF"s.find(byte) != std::string::npos;
    EXPECT_EQ(is_digit, c_binary::is_valid_hex("0"s + byte)) << value;
    EXPECT_EQ(is_digit, c_binary::is_valid_hex(byte + "0"s)) << value;
    c_binary read;
    read.from_hex("12"s + byte + byte + "34");  // senseless in the middle, but never out of step
    ASSERT_EQ(3u, read.size()) << value;
    EXPECT_EQ(0x12, read[0]) << value;
    EXPECT_EQ(0x34, read[2]) << value;
  }
}

TEST(Hex, IsWrittenInUpperCaseWithTwoDigitsEach) {
  EXPECT_EQ("000AFF", binary({0, 10, 255}).get_as_hex_string());
  EXPECT_EQ("", c_binary().get_as_hex_string());
  c_binary value;
  value.from_hex("abcdef09");
  EXPECT_EQ("ABCDEF09", value.get_as_hex_string());
}

TEST(Hex, WrittenAndReadGivesTheSameBytes) {
  for (int count : {1, 255, 256, 257, 1000}) {
    c_binary const value = binary(counting(count));
    std::string const text = value.get_as_hex_string();
    EXPECT_TRUE(c_binary::is_valid_hex(text));
    EXPECT_EQ(2u * static_cast<unsigned int>(count), text.size());
    c_binary read;
    read.from_hex(text);
    EXPECT_EQ(value, read) << count;
  }
}

TEST(Hex, OutputLeavesTheFlagsAndTheFillZero) {
  std::ostringstream out;
  out << std::oct << std::showbase << std::left << std::setfill('*') << std::setw(9);
  auto const flags = out.flags();
  EXPECT_EQ(&out, &lmx::output_convert_to_hex(out, binary({1, 171})));
  EXPECT_EQ("01AB", out.str());
  EXPECT_EQ(flags, out.flags());
  EXPECT_EQ('0', out.fill());
  EXPECT_EQ(0, out.width());

  std::ostringstream untouched;
  untouched.fill('*');
  c_binary().out_hex(untouched);
  EXPECT_EQ("", untouched.str());
  EXPECT_EQ('0', untouched.fill());
}

// --- Base64 ----------------------------------------------------------------------------------------------

struct Base64 {
  const char* caption;
  std::string text;
  bool is_valid;
  std::string bytes;
};

class Base64Texts : public testing::TestWithParam<Base64> {};

TEST_P(Base64Texts, AreCheckedAndRead) {
  auto const& [caption, text, is_valid, bytes] = GetParam();
  EXPECT_EQ(is_valid, c_binary::is_valid_base64(text)) << caption;
  c_binary value = binary({9, 9, 9});
  value.from_base64(text);
  EXPECT_EQ(Bytes(bytes.begin(), bytes.end()), bytes_of(value)) << caption;
}

INSTANTIATE_TEST_SUITE_P(
    Binary, Base64Texts,
    testing::Values(
        Base64{"empty", "", true, ""}, Base64{"one character", "Z", false, "\x64"},
        Base64{"two characters", "Zm", false, "f"}, Base64{"three characters", "Zm9", false, "fo"},
        Base64{"four characters", "Zm9v", true, "foo"}, Base64{"five characters", "Zm9vZ", false, "foo\x64"},
        Base64{"two and two", "Zg==", true, "f"}, Base64{"three and one", "Zm8=", true, "fo"},
        Base64{"one and three", "Z===", false, "\x64"}, Base64{"padding of four", "Zm9v====", false, "foo"},
        Base64{"one equals sign", "=", false, ""}, Base64{"two equals signs", "==", false, ""},
        Base64{"four equals signs", "====", false, ""},
        Base64{"all of the alphabet's end", "+/+/", true, "\xFB\xFF\xBF"},
        Base64{"line ends between characters", "Zm\n9v\r\nYmFy\n", true, "foobar"},
        Base64{"blanks between characters", " Z m 9 v ", true, "foo"},
        Base64{"VT and FF", "Zm\v\f9v", true, "foo"}, Base64{"one white space", " ", false, ""},
        Base64{"two white spaces", " \n", true, ""}, Base64{"five white spaces", " \t\n\v\f", true, ""},
        Base64{"white space behind the padding", "Zm8=\n", false, "fo"},
        Base64{"white space inside the padding", "Zg= =", false, "f"},
        Base64{"white space for the last padding", "Zg= ", true, "f"},
        Base64{"white space before the padding", "Zg ==", true, "f"},
        Base64{"padding goes on with a character", "Zg=v", false, "f\x0B"},
        Base64{"wrong byte", "Zm9*", false, "fo"},
        Base64{"wrong byte before white space", "Zg* ", false, "f"},
        Base64{"URL alphabet", "-_-_", false, ""}, Base64{"NUL for padding", "Zm8\0"s, false, "fo"},
        Base64{"NUL among the characters", "Zm\0"s + "9v", false, "foo"},
        Base64{"high byte", "Zm9\xE9", false, "fo"}, Base64{"Latin-1 blank", "Zm9v\xA0", false, "foo"}));

TEST(Base64, IsWrittenWithPadding) {
  EXPECT_EQ("", c_binary().get_as_base64_string());
  EXPECT_EQ("Zg==", binary({'f'}).get_as_base64_string());
  EXPECT_EQ("Zm8=", binary({'f', 'o'}).get_as_base64_string());
  EXPECT_EQ("Zm9v", binary({'f', 'o', 'o'}).get_as_base64_string());
  EXPECT_EQ("Zm9vYg==", binary({'f', 'o', 'o', 'b'}).get_as_base64_string());
  EXPECT_EQ("+/+/AAA=", binary({0xFB, 0xFF, 0xBF, 0, 0}).get_as_base64_string());
}

TEST(Base64, UsesEveryCharacterInOrder) {
  std::string const alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  c_binary value;
  value.from_base64(alphabet);
  ASSERT_EQ(48u, value.size());
  EXPECT_EQ(0x00, value[0]);
  EXPECT_EQ(0x10, value[1]);
  EXPECT_EQ(0x83, value[2]);
  EXPECT_EQ(0xBF, value[47]);
  EXPECT_EQ(alphabet, value.get_as_base64_string());
}

TEST(Base64, IsOneLineForAnyLength) {
  EXPECT_EQ(136u, binary(counting(100)).get_as_base64_string().size());
  std::string const text = binary(counting(10000)).get_as_base64_string();
  EXPECT_EQ(13336u, text.size());
  EXPECT_EQ(std::string::npos, text.find_first_of("\r\n"));
}

TEST(Base64, WrittenAndReadGivesTheSameBytes) {
  for (int count = 0; count < 300; ++count) {
    c_binary const value = binary(counting(count));
    std::ostringstream out;
    EXPECT_EQ(&out, &lmx::output_convert_to_base64(out, value));
    EXPECT_TRUE(c_binary::is_valid_base64(out.str())) << count;
    c_binary read;
    read.from_base64(out.str());
    EXPECT_EQ(value, read) << count;
  }
}

// --- Locale ----------------------------------------------------------------------------------------------

// Groups digits one by one, and has a comma for a point.
struct Punctuation : std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\1"; }
};

TEST(Binary, TextsDoNotFollowTheLocale) {
  std::locale const old = std::locale::global(std::locale(std::locale::classic(), new Punctuation));
  std::ostringstream out;
  out << 12;
  EXPECT_EQ("1.2", out.str()) << "the locale is in force";
  out.str("");
  binary({0x12, 0x34}).out_hex(out);
  EXPECT_EQ("1234", out.str());
  EXPECT_EQ("1234", binary({0x12, 0x34}).get_as_hex_string());
  EXPECT_EQ("EjQ=", binary({0x12, 0x34}).get_as_base64_string());
  std::locale::global(old);
}

}  // namespace
