// The line a report carries, for every kind of line end, and the code and line a host gets for damaged
// documents. A report stands where the reader stands: all attributes of a tag are read before the first is
// looked at, and a line end that stopped a name counts twice, once when it stops it and once when read again.
#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "GenLibrarySupportFiles/lmxparse/c_xml.h"
#include "isoxmllib/isoxmllib.h"
#include "support/code_name.h"
#include "support/each_source.h"
#include "support/temp_dir.h"
#include "transfer/reader/xmlReader.h"

namespace {

using namespace std::string_literals;

std::string with_line_ends(std::string const& document, std::string const& line_end) {
  std::string all;
  for (const char c : document) all += c == '\n' ? line_end : std::string(1, c);
  return all;
}

// Where the reader stands at the end of each item: start tag with its attributes, text, end tag, end of
// input.
std::vector<int> lines(lmx::c_xml& xml) {
  std::vector<int> lines;
  std::string name;
  lmx::c_xml_local local;
  for (;;) {
    const auto event = xml.get_element_name(&local, &name);
    if (event == lmx::EXE_TOKEN)
      while (xml.get_attribute_name(&name, false) == lmx::EXE_TOKEN) xml.skip_attribute_value();
    lines.push_back(xml.line());
    if (event == lmx::EXE_EOM || event == lmx::EXE_ERROR) return lines;
  }
}

struct Lines {
  std::string caption, document;  // with LF
  std::vector<int> lf_and_cr_lf, cr;
};
class LinesOfItems : public testing::TestWithParam<Lines> {};
TEST_P(LinesOfItems, DriftOnlyByLineEndsThatStopAName) {
  const auto& row = GetParam();
  SCOPED_TRACE(row.caption);
  for (const std::string line_end : {"\n", "\r\n", "\r"}) {
    SCOPED_TRACE(testing::PrintToString(line_end));
    with_each_source(with_line_ends(row.document, line_end), [&](lmx::c_read& read) {
      lmx::c_error log;
      lmx::c_xml xml(read, log, true);
      EXPECT_EQ(line_end == "\r" ? row.cr : row.lf_and_cr_lf, lines(xml));
    });
  }
}

std::string header_document(std::string const& first_blank) {
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<ISO11783_TaskData" + first_blank +
         "VersionMajor=\"4\"\nVersionMinor=\"3\"\nManagementSoftwareManufacturer=\"m\"\n"
         "ManagementSoftwareVersion=\"1\"\nDataTransferOrigin=\"1\">\n  <TSK "
         "A=\"TSK1\"/>\n</ISO11783_TaskData>\n";
}

using Numbers = std::vector<int>;
INSTANTIATE_TEST_SUITE_P(
    Drift, LinesOfItems,
    testing::Values(
        Lines{"behind an element's name", "<TSK\n  A=\"TSK1\"/>\n", Numbers{3, 4}, Numbers{2, 3}},
        Lines{"two behind a name, only the first doubles", "<TSK\n\nA=\"TSK1\"/>\n", Numbers{4, 5},
              Numbers{3, 4}},
        Lines{"behind a child's name",
              "<TSK A=\"TSK1\" G=\"1\">\n  <TIM\n    A=\"2024-01-01T00:00:00\" D=\"3\"/>\n</TSK>\n",
              Numbers{1, 4, 5, 6}, Numbers{1, 3, 4, 5}},
        Lines{"behind an unknown one's name",
              "<TSK A=\"TSK1\" G=\"1\">\n<Foo\n/>\n<TIM A=\"x\" D=\"1\"/>\n</TSK>\n", Numbers{1, 4, 5, 6, 7},
              Numbers{1, 3, 4, 5, 6}},
        Lines{"three names",
              "<TSK\nA=\"TSK1\"\nG=\"1\">\n<TZN\nA=\"1\">\n<PDV\nA=\"0001\"\nB=\"1x\"/>\n</TZN>\n</TSK>\n",
              Numbers{4, 7, 11, 12, 13, 14}, Numbers{3, 5, 8, 9, 10, 11}},
        Lines{"behind an attribute's name", "<TSK A\n=\"TSK1\"/>", Numbers{3, 3}, Numbers{2, 2}},
        Lines{"behind a name like a declaration", "<a xml\n='1'/>", Numbers{3, 3}, Numbers{2, 2}},
        Lines{"behind a default declaration's name", "<a\nxmlns\n='u'/>", Numbers{5, 5}, Numbers{3, 3}},
        Lines{"behind a prefix declaration's name", "<a\nxmlns:p\n='u'/>", Numbers{5, 5}, Numbers{3, 3}},
        Lines{"behind a reference without its semicolon", "<a>&#65\n</a>", Numbers{1, 3, 3, 3},
              Numbers{1, 2, 2, 2}},
        Lines{"behind a named one", "<a>x&lt\n</a>", Numbers{1, 3, 3, 3}, Numbers{1, 2, 2, 2}},
        Lines{"behind a declaration's keyword", "<!DOCTYPE a [<!ENTITY\ne 'x'>]>\n<a/>", Numbers{4, 4},
              Numbers{3, 3}},
        Lines{"behind another declaration's keyword", "<!DOCTYPE a [<!ELEMENT\na (b)>]>\n<a/>", Numbers{4, 4},
              Numbers{3, 3}},
        Lines{"behind an entity's name", "<!DOCTYPE a [<!ENTITY e\n'x'>]>\n<a/>", Numbers{4, 4},
              Numbers{3, 3}},
        Lines{"behind an entity's word", "<!DOCTYPE a [<!ENTITY e SYSTEM\n'x'>]>\n<a/>", Numbers{4, 4},
              Numbers{3, 3}},
        Lines{"behind a parameter entity without its semicolon", "<!DOCTYPE a [<!ENTITY % e ''>%e\n]>\n<a/>",
              Numbers{4, 4}, Numbers{3, 3}},
        Lines{"a full header, the name alone on its line", header_document("\n"), Numbers{8, 9, 10, 11},
              Numbers{7, 8, 9, 10}},
        Lines{"a full header, the first attribute beside the name", header_document(" "), Numbers{6, 7, 8, 9},
              Numbers{6, 7, 8, 9}}));

Lines exact(std::string caption, std::string document, Numbers numbers) {
  return {std::move(caption), std::move(document), numbers, numbers};
}
INSTANTIATE_TEST_SUITE_P(
    Exact, LinesOfItems,
    testing::Values(exact("nothing", "", {1}), exact("around an element", "\n\n<Foo/>\n\n", {3, 5}),
                    exact("between attributes",
                          "<PFD A=\"PFD1\"\n     C=\"North\"\n     D=\"12a\"\n     E=\"CTR1\"/>\n", {4, 5}),
                    exact("behind the last attribute", "<TSK A=\"TSK1\"\n\n\n/>\n", {4, 5}),
                    exact("in a value", "<TSK A=\"TSK1\"\nG=\"1\" B=\"a\nb\" C=\"CTR\"/>\n", {3, 4}),
                    exact("in a value, behind a reference", "<a b='&#65\nc'/>", {2, 2}),
                    exact("behind the equals sign", "<TSK A=\n\"TSK1\"/>", {2, 2}),
                    exact("before a damaged value", "<TSK A=\n\"TSK1\" G=1/>", {2}),
                    exact("in text", "<a>x\ny\n</a>\n", {1, 3, 3, 4}),
                    exact("behind a reference", "<a>&#65;\n</a>", {1, 2, 2, 2}),
                    exact("in an end tag", "<a></a\n>\n", {1, 2, 3}),
                    exact("behind a slash", "<a/\n>\n", {2, 3}),
                    exact("before an end tag", "<CLD A=\"CLD1\">\n\n</CLD>", {1, 3, 3}),
                    exact("in comments and instructions",
                          "<TSK A=\"TSK1\" G=\"1\">\n<!-- a\nb -->\n<?p q\nr?>\n<TIM A=\"x\"/>\n</TSK>\n",
                          {1, 6, 7, 8}),
                    exact("in a declaration", "<?xml\nversion='1.0'\nencoding='UTF-8'\n?>\n<a/>", {5, 5}),
                    exact("in a DOCTYPE", "<!DOCTYPE\na\n>\n<a/>", {4, 4}),
                    exact("in an entity's value", "<!DOCTYPE a [<!ENTITY e '\n\n'\n>]>\n<a/>", {5, 5}),
                    exact("in CDATA", "<a><![CDATA[\n\n]]></a>", {1, 3, 3, 3}),
                    exact("before the end of the input", "<TSK A=\"TSK1\" G=\"1\">\n\n", {1, 3}),
                    exact("cut in a value", "<TSK A=\"TSK1\" G=\"1", {1}),
                    exact("cut behind an attribute", "<TSK A=\"TSK1\" G=\"1\"\n", {2})));

// --- What a host gets ------------------------------------------------------------------------------------

const std::string list =
    "<ISO11783LinkList VersionMajor=\"4\" VersionMinor=\"3\" ManagementSoftwareManufacturer=\"m\" "
    "ManagementSoftwareVersion=\"1\" DataTransferOrigin=\"1\">";
const std::string list_end = "</ISO11783LinkList>";
const std::string file = "<AFE A=\"ABCDEFGH.XML\" B=\"1\" C=\"\" D=\"1\"";

struct Outcome {
  int code, line;
};
Outcome read_document(std::string const& document) {
  const TempDir directory;
  lmx::xmlReader reader(directory.write("TASKDATA.XML", document).c_str());
  Root root;
  const lmx::elmx_error code = root.unmarshal(reader);
  EXPECT_EQ(code, reader.debug_error().m_code);
  return {code, reader.debug_error().m_xml_line};
}

struct Fault {
  std::string caption, document;
  int code;
};
class Faults : public testing::TestWithParam<Fault> {};
TEST_P(Faults, GiveTheirCode) {
  EXPECT_EQ(GetParam().code, read_document(GetParam().document).code) << GetParam().caption;
}

INSTANTIATE_TEST_SUITE_P(
    Accepted, Faults,
    testing::Values(Fault{"nothing wrong", list + list_end, 0},
                    Fault{"an attribute-only root", file + "/>", 0},
                    Fault{"an angle in a value", file + " E=\"<\"/>", 0},
                    Fault{"no blank between attributes", file + "E=\"1\"/>", 0},
                    Fault{"unknown attribute", file + " X=\"1\"/>", 0},
                    Fault{"unknown attribute with a bare ampersand", file + " X=\"A & B\"/>", 0},
                    Fault{"unknown element", list + "<Foo><Bar/></Foo>" + list_end, 0},
                    Fault{"a mark", "\xEF\xBB\xBF" + list + list_end, 0},
                    Fault{"a bad comment end", "<!-- --->" + list + list_end, 0},
                    Fault{"an instruction that swallows no root", "<?x?><?y?>" + list + list_end, 0},
                    Fault{"a Latin-1 letter without a declaration", file + " E=\"\xE9\"/>", 0},
                    Fault{"behind the root anything", list + list_end + "<", 0}));

INSTANTIATE_TEST_SUITE_P(
    Refused, Faults,
    testing::Values(
        Fault{"unquoted value", list + "<LGP A=LGP1/>", lmx::ELMX_NOT_WELL_FORMED},
        Fault{"no equals sign", list + "<LGP A/>", lmx::ELMX_NOT_WELL_FORMED},
        Fault{"stray character in a tag", file + ",/>", lmx::ELMX_NOT_WELL_FORMED},
        Fault{"other end tag", list + "</ISO11783LinkLisT>", lmx::ELMX_BAD_END_OF_ELEMENT},
        Fault{"other end tag in an unknown element", list + "<Foo><Bar></Foo>" + list_end,
              lmx::ELMX_BADLY_FORMED},
        Fault{"text among elements", list + "x" + list_end, lmx::ELMX_BAD_END_OF_ELEMENT},
        Fault{"CDATA among elements", list + "<![CDATA[]]>" + list_end, lmx::ELMX_BAD_END_OF_ELEMENT},
        Fault{"attribute twice", file + " D=\"1\"/>", lmx::ELMX_ATTRIBUTE_ALREADY_READ},
        Fault{"undeclared entity in a value", file + " E=\"&nbsp;\"/>",
              lmx::ELMX_UNABLE_TO_READ_ATTRIBUTE_VALUE},
        Fault{"bare ampersand in a value", file + " E=\"A & B\"/>", lmx::ELMX_UNABLE_TO_READ_ATTRIBUTE_VALUE},
        Fault{"undeclared entity among elements", list + "&nbsp;" + list_end, lmx::ELMX_BAD_END_OF_ELEMENT},
        Fault{"bare ampersand among elements", list + "& " + list_end, lmx::ELMX_BAD_END_OF_ELEMENT},
        Fault{"bare ampersand in an unknown element", list + "<Foo>A & B</Foo>" + list_end,
              lmx::ELMX_BADLY_FORMED},
        Fault{"DOCTYPE in content", list + "<!DOCTYPE a>" + list_end, lmx::ELMX_BAD_DTD},
        Fault{"second DOCTYPE", "<!DOCTYPE a><!DOCTYPE a>" + list + list_end, lmx::ELMX_BAD_DTD},
        Fault{"second declaration", "<?xml version='1.0'?><?xml version='1.0'?>" + list + list_end,
              lmx::ELMX_BAD_XML_DECL},
        Fault{"no version", "<?xml encoding='UTF-8'?>" + list + list_end, lmx::ELMX_BAD_XML_DECL},
        Fault{"version 2.0", "<?xml version='2.0'?>" + list + list_end, lmx::ELMX_BAD_XML_VERSION},
        Fault{"unknown encoding", "<?xml version='1.0' encoding='KOI8-R'?>" + list + list_end,
              lmx::ELMX_BAD_CHAR_ENCODING},
        Fault{"encoding that the bytes are not", "<?xml version='1.0' encoding='UTF-16'?>" + list + list_end,
              lmx::ELMX_ENCODING_MISMATCH},
        Fault{"other damage to the declaration", "<?xml version='1.0' x?>" + list + list_end,
              lmx::ELMX_UNEXPECTED_COMPLEX_ELEMENT},
        Fault{"first byte that no document has", "hello<a/>", lmx::ELMX_BAD_CHAR_ENCODING},
        Fault{"an instruction that swallows the root", "<?x?>" + list + list_end,
              lmx::ELMX_UNEXPECTED_COMPLEX_ELEMENT},
        Fault{"no such markup", "<!x>" + list + list_end, lmx::ELMX_UNEXPECTED_COMPLEX_ELEMENT},
        Fault{"a warning's code leaks into it", "<!-- x ---><!x>" + list + list_end, lmx::ELMX_BAD_COMMENT},
        Fault{"NUL in a value", file + " E=\"T\0x\" F=\"1\"/>"s, lmx::ELMX_NOT_WELL_FORMED},
        Fault{"bad byte in a value", file + " E=\"\x80\"/>", lmx::ELMX_NOT_WELL_FORMED},
        Fault{"umlaut in Latin-1 without a declaration", file + " E=\"\xF6\"/>", lmx::ELMX_NOT_WELL_FORMED},
        Fault{"bad byte among elements", list + "\x80" + list_end, lmx::ELMX_UNEXPECTED_EOM},
        Fault{"bad second byte", "<\x80/>", lmx::ELMX_NOT_WELL_FORMED}));

INSTANTIATE_TEST_SUITE_P(
    Cut, Faults,
    testing::Values(Fault{"empty file", "", lmx::ELMX_UNEXPECTED_EOM},
                    Fault{"blanks", " \n ", lmx::ELMX_UNEXPECTED_EOM},
                    Fault{"a mark", "\xEF\xBB\xBF", lmx::ELMX_UNEXPECTED_EOM},
                    Fault{"between items", list, lmx::ELMX_UNEXPECTED_EOM},
                    Fault{"between items, behind a child", list + "<LGP A=\"LGP1\" B=\"1\"/>",
                          lmx::ELMX_UNEXPECTED_EOM},
                    Fault{"in a name", list + "<LGP", lmx::ELMX_NOT_WELL_FORMED},
                    Fault{"in an unknown name", list + "<Foo", lmx::ELMX_NOT_WELL_FORMED},
                    Fault{"behind a name and a blank", list + "<LGP ", lmx::ELMX_BAD_END_OF_ELEMENT},
                    Fault{"in an attribute's name", list + "<LGP A", lmx::ELMX_UNEXPECTED_EOM},
                    Fault{"behind the equals sign", list + "<LGP A=", lmx::ELMX_NOT_WELL_FORMED},
                    Fault{"in a value", list + "<LGP A=\"LG", lmx::ELMX_NOT_WELL_FORMED},
                    Fault{"behind an attribute", list + "<LGP A=\"LGP1\"", lmx::ELMX_BAD_END_OF_ELEMENT},
                    Fault{"behind an attribute of the root", file, lmx::ELMX_UNEXPECTED_COMPLEX_ELEMENT},
                    Fault{"behind the root's name", "<AFE ", lmx::ELMX_UNEXPECTED_COMPLEX_ELEMENT},
                    Fault{"in the root's name", "<AFE", lmx::ELMX_NOT_WELL_FORMED},
                    Fault{"in the root's attribute's name", "<AFE A", lmx::ELMX_UNEXPECTED_EOM},
                    Fault{"in an unknown element", list + "<Foo>", lmx::ELMX_BADLY_FORMED},
                    Fault{"in a comment", list + "<!-- ", lmx::ELMX_BAD_END_OF_ELEMENT},
                    Fault{"in a comment before the root", "<!-- ", lmx::ELMX_UNEXPECTED_COMPLEX_ELEMENT},
                    Fault{"in an instruction", list + "<?p", lmx::ELMX_BAD_END_OF_ELEMENT},
                    Fault{"in an end tag's name", list + "</ISO11783Link", lmx::ELMX_NOT_WELL_FORMED}));

TEST(ADocumentCutAtAnyByte, FailsUntilTheRootsLastAngle) {
  const std::string document =
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!-- c -->\n<!DOCTYPE a>\n<?p q?>\n" + list +
      "\n<Foo x='&gt;'>t<Bar/></Foo><!-- c --><LGP A=\"LGP1\" B=\"1\" E=\"a&amp;b\">"
      "<LNK A=\"CTR1\" B=\"{x}\"/></LGP>" +
      list_end;
  EXPECT_EQ(0, read_document(document).code);
  for (std::size_t length = 0; length < document.size(); ++length) {
    const int code = read_document(document.substr(0, length)).code;
    EXPECT_TRUE(is_code_of_a_cut(code)) << code << " for " << document.substr(0, length);
  }
}

struct FaultLine {
  std::string caption, document;
  int code, lf_and_cr_lf, cr;
};
class FaultLines : public testing::TestWithParam<FaultLine> {};
TEST_P(FaultLines, AreWhereTheReaderStands) {
  const auto& row = GetParam();
  for (const std::string line_end : {"\n", "\r\n", "\r"}) {
    SCOPED_TRACE(row.caption + " " + testing::PrintToString(line_end));
    const Outcome outcome = read_document(with_line_ends(row.document, line_end));
    EXPECT_EQ(row.code, outcome.code);
    EXPECT_EQ(line_end == "\r" ? row.cr : row.lf_and_cr_lf, outcome.line);
  }
}
INSTANTIATE_TEST_SUITE_P(
    Host, FaultLines,
    testing::Values(
        FaultLine{"empty file", "", lmx::ELMX_UNEXPECTED_EOM, 1, 1},
        FaultLine{"wrong first byte", "hello\n", lmx::ELMX_BAD_CHAR_ENCODING, 1, 1},
        FaultLine{"unknown root alone", "\n\n<Foo/>\n\n", lmx::ELMX_UNEXPECTED_EOM, 5, 5},
        FaultLine{"missing attribute behind a drift", "<AFE\n  A=\"ABCDEFGH.XML\"/>\n",
                  lmx::ELMX_REQUIRED_ATTRIBUTES_MISSING, 3, 2},
        FaultLine{"missing attribute behind more line ends", "<AFE\n\nA=\"ABCDEFGH.XML\"/>\n",
                  lmx::ELMX_REQUIRED_ATTRIBUTES_MISSING, 4, 3},
        FaultLine{"missing attribute without one", "<AFE A=\"ABCDEFGH.XML\"\n\n\n/>\n",
                  lmx::ELMX_REQUIRED_ATTRIBUTES_MISSING, 4, 4},
        FaultLine{"line end behind an attribute's name", "<AFE A\n=\"ABCDEFGH.XML\"/>",
                  lmx::ELMX_REQUIRED_ATTRIBUTES_MISSING, 3, 2},
        FaultLine{"damaged value", "<AFE A=\n\"ABCDEFGH.XML\" B=1/>", lmx::ELMX_NOT_WELL_FORMED, 2, 2},
        FaultLine{"a value's fault stands at the tag's end",
                  "<AFE A=\"ABCDEFGH.XML\"\nB=\"3\"\nC=\"\"\nD=\"1\"/>\n", lmx::ELMX_VALUE_NOT_ENUMERATED, 4,
                  4},
        FaultLine{"a child behind a drift", list + "\n<LGP\nA=\"LGP1\"\nB=\"9\"/>\n" + list_end,
                  lmx::ELMX_VALUE_NOT_ENUMERATED, 5, 4},
        FaultLine{"skipped elements drift too", list + "\n<Foo\n/>\n<LGP A=\"LGP1\"/>\n" + list_end,
                  lmx::ELMX_REQUIRED_ATTRIBUTES_MISSING, 5, 4},
        FaultLine{"comments and instructions do not",
                  list + "\n<!-- a\nb -->\n<?p q\nr?>\n<LGP A=\"LGP1\"/>\n" + list_end,
                  lmx::ELMX_REQUIRED_ATTRIBUTES_MISSING, 6, 6},
        FaultLine{"other end tag", list + "\n</X>\n", lmx::ELMX_BAD_END_OF_ELEMENT, 2, 2},
        FaultLine{"cut", list + "\n\n", lmx::ELMX_UNEXPECTED_EOM, 3, 3},
        FaultLine{"cut in a value", "<AFE A=\"ABCDEFGH.XML\" B=\"1", lmx::ELMX_NOT_WELL_FORMED, 1, 1},
        FaultLine{"cut behind an attribute", "<AFE A=\"ABCDEFGH.XML\" B=\"1\"\n",
                  lmx::ELMX_UNEXPECTED_COMPLEX_ELEMENT, 2, 2}));

}  // namespace
