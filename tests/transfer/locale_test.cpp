// Whatever locale a host has set, a transfer set shows and writes the same.
#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "support/comma_locale.h"
#include "support/views_text.h"
#include "transfer/IsoDDIConstants.h"
#include "transfer/IsoXmlParser.h"

namespace {

std::string shown(std::string const& name) {
  IsoXmlParser parser(ISOXML_EXAMPLE_SETS "/" + name, "TASKDATA");
  return ViewsText(parser).text();
}

TEST(ALocaleWithCommas, ChangesNothingThatASetShowsOrWrites) {
  for (char const* name : {"complete", "broken-external"}) {
    SCOPED_TRACE(name);
    const std::string expected = shown(name);
    const CommaLocale locale;
    ASSERT_TRUE(CommaLocale::is_in_force());
    EXPECT_EQ(expected, shown(name));
  }
}

TEST(ALocaleWithCommas, ChangesNoTextOfANumber) {
  const CommaLocale locale;
  ASSERT_TRUE(CommaLocale::is_in_force());
  EXPECT_EQ("012345", IsoDDIConstants::toPaddedHexString(74565, 6));
}

// And what the host has set, it keeps.
TEST(ALocaleWithCommas, IsStillThereAfterwards) {
  const CommaLocale locale;
  shown("complete");
  EXPECT_TRUE(CommaLocale::is_in_force());
  std::ostringstream out;
  out << 1234 << ' ' << 0.5;
  EXPECT_EQ("1.2.3.4 0,5", out.str());
}

}  // namespace
