// Whatever locale a host has set, a transfer set shows and writes the same.
#include <gtest/gtest.h>
#include <stdlib.h>

#include <cctype>
#include <clocale>
#include <sstream>
#include <string>
#include <vector>

#include "GenLibrarySupportFiles/lmxtypes.h"
#include "isoxmllib/isoxmllib.h"
#include "support/comma_locale.h"
#include "support/recording_reader.h"
#include "support/views_text.h"
#include "support/writing.h"
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

// A Turkish locale of single bytes, made for the length of a scope. In it the letters beyond ASCII are
// letters to the C library, and "I" in lower case is no "i".
class TurkishLocale {
 public:
  TurkishLocale() : m_saved(std::setlocale(LC_ALL, nullptr)) {
    const std::string path = m_directory.path("tr_TR.ISO-8859-9");
    const std::string make = "localedef -i tr_TR -f ISO-8859-9 '" + path + "' >/dev/null 2>&1";
    if (std::system(make.c_str()) != 0) return;
    setenv("LOCPATH", m_directory.path().c_str(), 1);
    std::setlocale(LC_ALL, "tr_TR.ISO-8859-9");
    unsetenv("LOCPATH");
  }
  TurkishLocale(TurkishLocale const&) = delete;
  TurkishLocale& operator=(TurkishLocale const&) = delete;
  ~TurkishLocale() { std::setlocale(LC_ALL, m_saved.c_str()); }

  static bool is_in_force() { return std::isalpha(0xFD) != 0 && std::tolower(0xDD) == 'i'; }

 private:
  TempDir m_directory;
  std::string m_saved;
};

std::vector<std::string> documents_with_letters() {
  std::vector<std::string> documents;
  for (char const* const encoding : {"ISO-8859-1", "iso-8859-1", "Iso-8859-1", "UTF-8", "utf-8", "US-ASCII",
                                     "us-ascii", "\xDDSO-8859-1", "\xFDso-8859-1", "KOI8-R"}) {
    documents.push_back("<?xml version=\"1.0\" encoding=\"" + std::string(encoding) +
                        "\"?><TSK A=\"TSK1\" G=\"1\" B=\"I\xFD\xDDi\"/>");
  }
  for (int byte = 0x80; byte != 0x100; ++byte) {
    const std::string letter(1, static_cast<char>(byte));
    documents.push_back("<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><TSK A=\"TSK1\" G=\"1\" B=\"" +
                        letter + "\" " + letter + "=\"1\"><" + letter + "/> &" + letter + ";</TSK>");
    documents.push_back("<TSK A=\"TSK1\" G=\"1\"><TZN A=\"1" + letter + "\"/></TSK>");
    documents.push_back("<TSK A=\"TSK1\" G=\"1\"><TIM A=\"2024-01-01" + letter +
                        "00:00:00\" D=\"1\"/></TSK>");
    documents.push_back("<TSK" + letter + "A=\"TSK1\"" + letter + "G=\"1\"/>");
  }
  return documents;
}

std::string outcome_of(std::string const& document) {
  Reading<> reading(document, tolerant());
  return std::to_string(reading.error) + ": " + reading.reader.reports() + ": " + reading.reader.unknown() +
         ": " + written(reading.top);
}

TEST(ALocaleOfSingleBytes, ChangesNothingThatADocumentGives) {
  std::vector<std::string> expected;
  for (std::string const& document : documents_with_letters()) expected.push_back(outcome_of(document));
  ASSERT_FALSE(TurkishLocale::is_in_force());
  const TurkishLocale locale;
  ASSERT_TRUE(TurkishLocale::is_in_force());
  std::size_t i = 0;
  for (std::string const& document : documents_with_letters()) {
    EXPECT_EQ(expected[i++], outcome_of(document)) << document;
  }
}

TEST(ALocaleOfSingleBytes, MakesNoOtherByteALetterADigitOrABlank) {
  const TurkishLocale locale;
  ASSERT_TRUE(TurkishLocale::is_in_force());
  for (int value = 0x80; value != 0x100; ++value) {
    const std::string byte(1, static_cast<char>(value));
    EXPECT_FALSE(lmx::is_valid_integer("1" + byte)) << value;
    EXPECT_FALSE(lmx::is_valid_float("1" + byte)) << value;
    EXPECT_EQ(0, lmx::xstricmp(byte.c_str(), byte.c_str())) << value;
    char const* at = byte.c_str();
    EXPECT_FALSE(lmx::skip_ws(at)) << value;
  }
  EXPECT_EQ(0, lmx::xstricmp("ISO-8859-1", "iso-8859-1"));
  EXPECT_NE(0, lmx::xstricmp("\xDD", "i"));
  EXPECT_NE(0, lmx::xstricmp("\xDD", "\xFD"));
}

}  // namespace
