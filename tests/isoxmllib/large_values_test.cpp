// Values of many megabytes against the format's own patterns: a verdict in time that grows with the text and
// not faster. The hang guard is the only clock.

#include <gtest/gtest.h>

#include <string>

#include "support/document.h"

namespace {

constexpr std::size_t twenty_megabytes = 20 * 1000 * 1000;

std::string device_with_label(std::string const& label) {
  return "<DVC A=\"DVC1\" D=\"0102030405060708\" F=\"" + label +
         "\" G=\"FF010203040506\"><DET A=\"DET1\" B=\"1\" C=\"1\" "
         "E=\"0\" F=\"0\"/></DVC>";
}

TEST(LargeValues, OfHexadecimalDigitsFitThePatternAndAreTooLong) {
  EXPECT_EQ((Reading{lmx::ELMX_LENGTH_TOO_LONG, 1, "F"}),
            read_document(device_with_label(std::string(twenty_megabytes, '1'))));
}

TEST(LargeValues, ThatMissThePatternAtTheirEndAreRefused) {
  EXPECT_EQ((Reading{lmx::ELMX_VALUE_BAD_FORMAT, 1, "F"}),
            read_document(device_with_label(std::string(twenty_megabytes, '1') + "x")));
  EXPECT_EQ((Reading{lmx::ELMX_NO_PATTERN_MATCHED, 1, "F"}),
            read_document(device_with_label("FF" + std::string(twenty_megabytes, '1'))));
}

TEST(LargeValues, OfAnIdentifierAreTooLong) {
  EXPECT_EQ((Reading{lmx::ELMX_LENGTH_TOO_LONG, 1, "A"}),
            read_document("<TSK A=\"TSK" + std::string(twenty_megabytes, '1') + "\" G=\"1\"/>"));
}

TEST(LargeValues, OfAUuidAreNoUuid) {
  EXPECT_EQ((Reading{lmx::ELMX_NO_PATTERN_MATCHED, 1, "P917_Uuid"}),
            read_document("<P917_Question P917_Uuid=\"" + std::string(twenty_megabytes, 'a') +
                          "\" P917_ReplyType=\"string\"><P917_Prompt/></P917_Question>"));
}

TEST(LargeValues, OfAnIntegerAreAboveItsBound) {
  EXPECT_EQ((Reading{lmx::ELMX_VALUE_EXCEEDS_MAX, 1, "A"}),
            read_document("<TZN A=\"" + std::string(twenty_megabytes, '9') + "\"/>"));
  EXPECT_EQ((Reading{0, 1, ""}), read_document("<TZN A=\"" + std::string(twenty_megabytes, '0') + "7\"/>"));
}

TEST(LargeValues, OfADecimalKeepEveryDigit) {
  Root root;
  ASSERT_EQ(
      0,
      read_document(root, "<PNT A=\"1\" C=\"1." + std::string(twenty_megabytes, '3') + "\" D=\"1\"/>").code);
  EXPECT_EQ(twenty_megabytes + 2, root.GetPoint().GetNorth().get_as_string().size());
}

}  // namespace
