// From numbers to data dictionary identifiers.
#include "transfer/IsoDDIConstants.h"

#include <gtest/gtest.h>

#include <limits>
#include <locale>
#include <string>

#include "isoxmllib/isoxmllib.h"

namespace {

struct Text {
  char const* caption;
  int value;
  unsigned int width;
  char const* text;
};

const Text texts[] = {
    {"filled", 6, 4, "0006"},
    {"letters are small", 255, 4, "00ff"},
    {"just fits", 0xABCD, 4, "abcd"},
    {"a longer one is not cut", 74565, 4, "12345"},
    {"nor at width 1", 255, 1, "ff"},
    {"width 0 fills nothing", 6, 0, "6"},
    {"zero", 0, 4, "0000"},
    {"zero without a width", 0, 0, "0"},
    {"negative as two's complement", -1, 4, "ffffffff"},
    {"filled in front of it too", -2, 10, "00fffffffe"},
    {"greatest", std::numeric_limits<int>::max(), 4, "7fffffff"},
    {"least", std::numeric_limits<int>::min(), 8, "80000000"},
    {"wide", 1, 20, "00000000000000000001"},
};

TEST(PaddedHexString, IsFilledOnTheLeftAndNeverCut) {
  for (Text const& row : texts) {
    EXPECT_EQ(row.text, IsoDDIConstants::toPaddedHexString(row.value, row.width)) << row.caption;
  }
}

// Groups digits by two, as some locales of the world group them by three.
class Grouping : public std::numpunct<char> {
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\2"; }
};

TEST(PaddedHexString, IsTheSameInEveryLocale) {
  const std::locale before = std::locale::global(std::locale(std::locale::classic(), new Grouping));
  const std::string text = IsoDDIConstants::toPaddedHexString(74565, 4);
  std::locale::global(before);
  EXPECT_EQ("12345", text);
}

struct Bytes {
  char const* caption;
  int value;
  unsigned int width;
  char const* hex;
};

TEST(HexBinary, HoldsAByteForEachPairOfDigits) {
  const Bytes rows[] = {
      {"two bytes", 255, 4, "00FF"},
      {"in the order of the text", 0x1234, 4, "1234"},
      {"an odd last digit is lost", 255, 3, "0F"},
      {"of a text that is longer than its width too", 74565, 4, "1234"},
      {"a lone digit gives no byte", 6, 0, ""},
      {"negative", -2, 4, "FFFFFFFE"},
  };
  for (Bytes const& row : rows) {
    const lmx::c_binary bytes = IsoDDIConstants::toHexBinary(row.value, row.width);
    EXPECT_EQ(row.hex, bytes.get_as_hex_string()) << row.caption;
  }
}

TEST(HexBinary, IsWhatAnIdentifierAttributeTakes) {
  ProcessDataVariable variable;
  variable.SetDDI(IsoDDIConstants::toHexBinary(6, 4));
  ASSERT_EQ(2u, variable.GetDDI().size());
  EXPECT_EQ(0u, variable.GetDDI().at(0));
  EXPECT_EQ(6u, variable.GetDDI().at(1));
}

}  // namespace
