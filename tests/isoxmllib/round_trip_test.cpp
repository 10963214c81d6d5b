// Reading, writing and reading again: nothing is lost but what the list of losses says, and what was written
// once is written the same from then on.
#include <gtest/gtest.h>
#include <libxml/parser.h>
#include <libxml/tree.h>

#include <cstdlib>
#include <filesystem>
#include <map>
#include <memory>
#include <ostream>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

#include "GenLibrarySupportFiles/lmxparse.h"
#include "isoxmllib/isoxmllib.h"
#include "support/comma_locale.h"
#include "support/document.h"
#include "support/file_bytes.h"
#include "support/writing.h"

namespace {

// ---- Whole documents ----

class XmlTree {
 public:
  explicit XmlTree(std::string const& bytes)
      : m_document(xmlReadMemory(bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr,
                                 XML_PARSE_NOBLANKS | XML_PARSE_NOERROR),
                   &xmlFreeDoc) {}
  xmlNode const* root() const { return xmlDocGetRootElement(m_document.get()); }

 private:
  std::unique_ptr<xmlDoc, decltype(&xmlFreeDoc)> m_document;
};

std::string text_of(xmlNode const* node) {
  std::unique_ptr<xmlChar, decltype(xmlFree)> text(xmlNodeGetContent(node), xmlFree);
  return reinterpret_cast<char const*>(text.get());
}

// One text for all texts that mean the same value: of a number, a truth value, a time or bytes.
std::string meaning(std::string const& text) {
  static const std::regex number("[+-]?[0-9]+([.][0-9]*)?"), fraction_zeros("([.][0-9]*?)0+(?=Z|[+]|$)"),
      bytes("[0-9A-Fa-f]{14,}");
  if (text == "true") return meaning("1");
  if (text == "false") return meaning("0");
  if (std::regex_match(text, bytes)) {
    std::string upper;
    for (const char c : text) upper += c >= 'a' && c <= 'f' ? static_cast<char>(c - 'a' + 'A') : c;
    return upper;
  }
  if (std::regex_match(text, number)) {
    std::ostringstream exact;
    exact << std::hexfloat << std::strtod(text.c_str(), nullptr);
    return exact.str();
  }
  return std::regex_replace(text, fraction_zeros, "$1");
}

std::map<std::string, std::string> attributes_of(xmlNode const* node) {
  std::map<std::string, std::string> attributes;
  for (xmlAttr const* attribute = node->properties; attribute != nullptr; attribute = attribute->next) {
    attributes[reinterpret_cast<char const*>(attribute->name)] =
        meaning(text_of(reinterpret_cast<xmlNode const*>(attribute)));
  }
  return attributes;
}

// Elements in the same order, with the same attributes and the same text.
void expect_same_tree(xmlNode const* one, xmlNode const* other) {
  SCOPED_TRACE(reinterpret_cast<char const*>(one->name));
  ASSERT_STREQ(reinterpret_cast<char const*>(one->name), reinterpret_cast<char const*>(other->name));
  ASSERT_EQ(one->type, other->type);
  if (one->type == XML_TEXT_NODE) {
    EXPECT_EQ(text_of(one), text_of(other));
    return;
  }
  EXPECT_EQ(attributes_of(one), attributes_of(other));
  xmlNode const* child = one->children;
  xmlNode const* other_child = other->children;
  for (; child != nullptr && other_child != nullptr; child = child->next, other_child = other_child->next) {
    expect_same_tree(child, other_child);
    if (testing::Test::HasFatalFailure()) return;
  }
  EXPECT_EQ(nullptr, child) << "lost";
  EXPECT_EQ(nullptr, other_child) << "added";
}

void expect_round_trip(std::filesystem::path const& path) {
  SCOPED_TRACE(path.filename().string());
  const std::string document = file_bytes(path);
  Root first;
  ASSERT_EQ(0, read_document(first, document).code);
  EXPECT_TRUE(first.Check());
  const Writing once = write_element(first);
  EXPECT_EQ(0, once.code);

  Root second;
  ASSERT_EQ(0, read_document(second, once.bytes).code);
  EXPECT_EQ(first.chosen, second.chosen);
  EXPECT_TRUE(second.Check());
  EXPECT_TRUE(once.bytes == written(second)) << "writing is a fixed point";

  const XmlTree original(document), rewritten(once.bytes);
  ASSERT_NE(nullptr, original.root());
  ASSERT_NE(nullptr, rewritten.root());
  expect_same_tree(original.root(), rewritten.root());
}

std::size_t expect_round_trips(std::filesystem::path const& directory) {
  std::size_t documents = 0;
  for (auto const& entry : std::filesystem::directory_iterator(directory)) {
    if (entry.path().extension() != ".XML") continue;
    expect_round_trip(entry.path());
    ++documents;
  }
  return documents;
}

TEST(RoundTrip, KeepsTheExampleSet) {
  EXPECT_EQ(4u, expect_round_trips(std::filesystem::path(ISOXML_EXAMPLE_SETS) / "complete"));
}

TEST(RoundTrip, KeepsASetWithEveryClassAndAttribute) {
  EXPECT_EQ(6u, expect_round_trips(ISOXML_WRITTEN_SET));
}

TEST(RoundTrip, IsTheSameUnderALocaleWithCommas) {
  for (auto const& entry : std::filesystem::directory_iterator(ISOXML_WRITTEN_SET)) {
    const std::string document = file_bytes(entry.path());
    const auto rewritten = [&] {
      Root root;
      EXPECT_EQ(0, read_document(root, document).code) << entry.path();
      return written(root);
    };
    const std::string expected = rewritten();
    const CommaLocale locale;
    ASSERT_TRUE(CommaLocale::is_in_force());
    EXPECT_TRUE(expected == rewritten()) << entry.path();
  }
}

// ---- Losses ----

struct Loss {
  char const* caption;
  std::string before, in, behind;  // the document: what is between changes
  std::string out;
};

void PrintTo(Loss const& row, std::ostream* out) { *out << row.caption << ": " << row.in; }

class Losses : public testing::TestWithParam<Loss> {};

TEST_P(Losses, AreThisAndNoMore) {
  Loss const& row = GetParam();
  const std::string document = row.before + row.in + row.behind;
  Root root;
  ASSERT_EQ(0, read_document(root, document).code) << row.caption;
  const std::string expected = row.before + row.out + row.behind;
  EXPECT_EQ(expected, written(root)) << row.caption;
  Root again;
  ASSERT_EQ(0, read_document(again, expected).code) << row.caption;
  EXPECT_EQ(expected, written(again)) << row.caption << ": nothing more is lost later";
}

Loss time(char const* caption, std::string const& in, std::string const& out) {
  return {caption, "<TIM A=\"", in, "\"\n\t\tD=\"1\"/>\n", out};
}

const std::string day = "2024-02-09T02:03:";

INSTANTIATE_TEST_SUITE_P(
    OfTimes, Losses,
    testing::Values(time("UTC is kept", day + "05Z", day + "05Z"),
                    time("no zone is kept", day + "05", day + "05"),
                    time("an offset is kept", day + "05+05:30", day + "05+05:30"),
                    time("a fraction is kept", day + "05.125-11:00", day + "05.125-11:00"),
                    time("an offset of zero, east, is lost", day + "05+00:00", day + "05"),
                    time("an offset of zero, west, is lost", day + "05-00:00", day + "05"),
                    time("zeros at the end of a fraction are lost", day + "05.500", day + "05.5"),
                    time("a fraction of zeros is lost", day + "05.000Z", day + "05Z"),
                    time("BAD_XML_VERSION digits are kept", day + "12.345678901234", day + "12.345678901234"),
                    time("a 15th digit is lost", day + "12.3456789012341", day + "12.345678901234"),
                    time("seconds round up without a carry", day + "59.999999999999999", day + "60"),
                    time("a plus before the year is lost", "+2024-02-09T02:03:05", day + "05"),
                    time("a year of five digits is kept", "12024-02-09T02:03:05Z", "12024-02-09T02:03:05Z"),
                    time("fields out of range are kept", "2024-13-32T25:61:05", "2024-13-32T25:61:05")));

Loss cell(char const* caption, std::string const& in, std::string const& out) {
  return {caption, "<GRD A=\"1\"\n\t\tB=\"1\"\n\t\tC=\"", in,
          "\"\n\t\tD=\"1\"\n\t\tE=\"1\"\n\t\tF=\"1\"\n\t\tG=\"GRD00001\"\n\t\tI=\"1\"/>\n", out};
}

INSTANTIATE_TEST_SUITE_P(
    OfDoubles, Losses,
    testing::Values(cell("BAD_XML_VERSION digits are kept", "0.12345678901234", "0.12345678901234"),
                    cell("a 15th digit is lost", "0.123456789012341", "0.12345678901234"),
                    cell("and rounds", "0.123456789012347", "0.12345678901235"),
                    cell("zeros at the end are lost", "0.500", "0.5"), cell("a plus is lost", "+1", "1"),
                    cell("a small value takes an exponent", "0.00001", "1e-05"),
                    cell("a negative zero is kept", "-0.0", "-0")));

Loss point(char const* caption, std::string const& in, std::string const& out) {
  return {caption, "<PNT A=\"1\"\n\t\tC=\"", in, "\"\n\t\tD=\"0\"/>\n", out};
}

INSTANTIATE_TEST_SUITE_P(OfDecimals, Losses,
                         testing::Values(point("every digit is kept", "52.123456789012345678901234567890",
                                               "52.123456789012345678901234567890"),
                                         point("zeros at the end are kept", "52.500", "52.500"),
                                         point("zeros in front", "052.5", "52.5"),
                                         point("a plus", "+5", "5")));

Loss zone(char const* caption, std::string const& in, std::string const& out) {
  return {caption, "<TZN A=\"", in, "\"/>\n", out};
}

INSTANTIATE_TEST_SUITE_P(OfIntegers, Losses,
                         testing::Values(zone("as it stands", "17", "17"), zone("a plus", "+5", "5"),
                                         zone("leading zeros", "0005", "5"), zone("white space", " 5 ", "5"),
                                         zone("a negative zero", "-0", "0")));

Loss metadata(char const* caption, std::string const& in, std::string const& out) {
  return {caption, "<P917_Metadata Version=\"1\"\n\t\tCloudJob=\"", in, "\"/>\n", out};
}

INSTANTIATE_TEST_SUITE_P(OfTruthValues, Losses,
                         testing::Values(metadata("as words", "true", "true"), metadata("digit", "1", "true"),
                                         metadata("digit for false", "0", "false")));

Loss comment(char const* caption, std::string const& in, std::string const& out) {
  return {caption, "<P917_comment>", in, "</P917_comment>\n", out};
}

INSTANTIATE_TEST_SUITE_P(
    OfText, Losses,
    testing::Values(comment("white space is kept", " a\n\tb ", " a\n\tb "),
                    comment("line ends are line feeds", "a\r\nb\rc", "a\nb\nc"),
                    comment("a section becomes references", "<![CDATA[a<b]]>", "a&lt;b"),
                    comment("a comment is lost", "a<!-- b -->c", "ac"),
                    comment("quotes become references", "'\"", "&apos;&quot;"),
                    comment("characters by number become themselves", "&#233;&#x7530;", "\u00e9\u7530"),
                    comment("what could end a section stays a reference", "]]&gt;", "]]&gt;")));

Loss designator(char const* caption, std::string const& in, std::string const& out) {
  return {caption, "<TSK A=\"TSK1\"\n\t\tB=\"", in, "\"\n\t\tG=\"1\"/>\n", out};
}

INSTANTIATE_TEST_SUITE_P(OfAttributes, Losses,
                         testing::Values(designator("blanks are kept", " a  b ", " a  b "),
                                         designator("a reference becomes the character", "a&#65;", "aA")));

TEST(Loss, SecondsJustBelowTenAreWrittenAsNoReaderTakesThem) {
  Root root;
  ASSERT_EQ(0, read_document(root, "<TIM A=\"2024-02-09T02:03:09.99999999999999Z\" D=\"1\"/>").code);
  const std::string rewritten = written(root);
  EXPECT_EQ("<TIM A=\"2024-02-09T02:03:010Z\"\n\t\tD=\"1\"/>\n", rewritten);
  EXPECT_EQ(lmx::ELMX_VALUE_BAD_FORMAT, read_document(rewritten).code);
}

TEST(Loss, WhatTheFormatDoesNotKnowIsLeftOut) {
  Root root;
  ASSERT_EQ(0, read_document(root,
                             "<?xml version=\"1.0\"?><!-- c --><TSK A=\"TSK1\" Z=\"1\" G=\"1\"><Foo><TZN "
                             "A=\"1\"/></Foo><?p?></TSK>")
                   .code);
  EXPECT_EQ("<TSK A=\"TSK1\"\n\t\tG=\"1\"/>\n", written(root));
}

TEST(Loss, AttributesTakeTheOrderOfTheFormat) {
  Root root;
  ASSERT_EQ(0, read_document(root, "<TSK G='1' B='b' A='TSK1'/>").code);
  EXPECT_EQ("<TSK A=\"TSK1\"\n\t\tB=\"b\"\n\t\tG=\"1\"/>\n", written(root));
}

}  // namespace
