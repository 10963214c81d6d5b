// The text of a list falls into tokens at white space.
#include "GenLibrarySupportFiles/lmxparse/c_xml_list_tokeniser.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "GenLibrarySupportFiles/lmxparse.h"

namespace {

using std::string;

struct Text {
  const char* caption;
  string text;
  std::vector<string> tokens;
};

const Text texts[] = {
    {"nothing", "", {}},
    {"blanks alone", " \t\r\n ", {}},
    {"one", "a", {"a"}},
    {"two", "a b", {"a", "b"}},
    {"white space around", "  a b\n", {"a", "b"}},
    {"white space of every kind", "a b\tc\nd\re\vf\fg", {"a", "b", "c", "d", "e", "f", "g"}},
    {"much white space", "a \t\n  b", {"a", "b"}},
    {"longer tokens", "alpha -1.5 &lt;", {"alpha", "-1.5", "&lt;"}},
    {"characters beyond ASCII", "h\xC3\xB6he \xC2\xA0 \xC2\x85", {"h\xC3\xB6he", "\xC2\xA0", "\xC2\x85"}},
    {"a NUL is no white space", string("a\0b c", 5), {string("a\0b", 3), "c"}},
};

TEST(ListTokeniser, GivesWhatStandsBetweenWhiteSpace) {
  for (Text const& row : texts) {
    SCOPED_TRACE(row.caption);
    lmx::c_xml_list_tokeniser tokeniser(row.text);
    std::vector<string> tokens;
    string token;
    while (tokeniser.get(&token)) tokens.push_back(token);
    EXPECT_EQ(row.tokens, tokens);
    EXPECT_EQ(static_cast<int>(row.tokens.size()), lmx::c_xml_list_tokeniser::count(row.text));
  }
}

TEST(ListTokeniser, StaysAtItsEndAndStoresNothingThere) {
  lmx::c_xml_list_tokeniser tokeniser("a ");
  string token;
  EXPECT_TRUE(tokeniser.get(&token));
  EXPECT_FALSE(tokeniser.get(&token));
  EXPECT_FALSE(tokeniser.get(&token));
  EXPECT_EQ("a", token);
}

TEST(ListTokeniser, BeginsAgainWithAnotherText) {
  lmx::c_xml_list_tokeniser tokeniser("a b c");
  string token;
  EXPECT_TRUE(tokeniser.get(&token));
  tokeniser.set("x y");
  EXPECT_TRUE(tokeniser.get(&token));
  EXPECT_EQ("x", token);
  EXPECT_TRUE(tokeniser.get(&token));
  EXPECT_EQ("y", token);
  EXPECT_FALSE(tokeniser.get(&token));
}

TEST(ListTokeniser, KeepsATextOfItsOwn) {
  string text = "a b";
  lmx::c_xml_list_tokeniser tokeniser(text);
  text = "????";
  string token;
  EXPECT_TRUE(tokeniser.get(&token));
  EXPECT_EQ("a", token);
}

}  // namespace
