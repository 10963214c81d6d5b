// Whole documents and fragments of the format: the code, the line and the item that each fault gets, and what
// a reader that tolerates everything is told, in order.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "isoxmllib/isoxmllib.h"
#include "support/code_name.h"
#include "support/document.h"
#include "support/writing.h"
#include "transfer/IsoDDIConstants.h"

namespace {

std::string with_line_ends(std::string const& text, std::string const& line_end) {
  std::string out;
  for (const char c : text) {
    if (c == '\n') {
      out += line_end;
    } else {
      out += c;
    }
  }
  return out;
}

// ---- Lines ----

struct LineCase {
  char const* document;
  int code;
  int lf, cr_lf, cr;
};

class Lines : public testing::TestWithParam<LineCase> {};

TEST_P(Lines, AreThoseTheReaderHasReached) {
  LineCase const& row = GetParam();
  const std::pair<char const*, int> forms[] = {{"\n", row.lf}, {"\r\n", row.cr_lf}, {"\r", row.cr}};
  for (auto const& [line_end, line] : forms) {
    const Reading reading = read_document(with_line_ends(row.document, line_end));
    EXPECT_EQ(row.code, reading.code) << row.document;
    EXPECT_EQ(line, reading.line) << row.document << " with line ends of " << std::string(line_end).size();
  }
}

// A line feed that stops a name is counted twice, unless it was written as a lone CR.
INSTANTIATE_TEST_SUITE_P(
    Documents, Lines,
    testing::Values(
        LineCase{"<TSK\n  A=\"TSK1\"/>\n", lmx::ELMX_REQUIRED_ATTRIBUTES_MISSING, 3, 3, 2},
        LineCase{"<TSK\n\nA=\"TSK1\"/>\n", lmx::ELMX_REQUIRED_ATTRIBUTES_MISSING, 4, 4, 3},
        LineCase{"<TSK A=\"TSK1\" G=\"1\">\n  <TIM\n    A=\"2024-01-01T00:00:00\" D=\"3\"/>\n</TSK>\n",
                 lmx::ELMX_VALUE_NOT_ENUMERATED, 4, 4, 3},
        LineCase{"<PFD A=\"PFD1\"\n     C=\"North\"\n     D=\"12a\"\n     E=\"CTR1\"/>\n",
                 lmx::ELMX_VALUE_BAD_FORMAT, 4, 4, 4},
        LineCase{"<TSK A=\"TSK1\" G=\"1\">\n<Foo\n/>\n<TIM A=\"x\" D=\"1\"/>\n</TSK>\n",
                 lmx::ELMX_VALUE_BAD_FORMAT, 5, 5, 4},
        LineCase{"<TSK\nA=\"TSK1\"\nG=\"1\">\n<TZN\nA=\"1\">\n<PDV\nA=\"0001\"\nB=\"1x\"/>\n</TZN>\n</TSK>\n",
                 lmx::ELMX_VALUE_BAD_FORMAT, 11, 11, 8},
        LineCase{"<TSK A=\"TSK1\" G=\"1\">\n</TSX>\n", lmx::ELMX_BAD_END_OF_ELEMENT, 2, 2, 2},
        LineCase{"<TSK A=\"TSK1\" G=\"1\">\n\n", lmx::ELMX_UNEXPECTED_EOM, 3, 3, 3},
        LineCase{"<TSK A=\"TSK1\"\n\n\n/>\n", lmx::ELMX_REQUIRED_ATTRIBUTES_MISSING, 4, 4, 4},
        LineCase{"<TSK A=\"TSK1\"\nG=\"1\" B=\"a\nb\" C=\"CTR\"/>\n", lmx::ELMX_LENGTH_TOO_SHORT, 3, 3, 3},
        LineCase{"<TSK A\n=\"TSK1\"/>", lmx::ELMX_REQUIRED_ATTRIBUTES_MISSING, 3, 3, 2},
        LineCase{"<TSK A=\n\"TSK1\" G=1/>", lmx::ELMX_NOT_WELL_FORMED, 2, 2, 2},
        LineCase{"<TSK A=\"TSK1\" G=\"1\">\n<!-- a\nb -->\n<?p q\nr?>\n<TIM A=\"x\"/>\n</TSK>\n",
                 lmx::ELMX_VALUE_BAD_FORMAT, 6, 6, 6},
        LineCase{"<CLD A=\"CLD1\">\n\n</CLD>", lmx::ELMX_UNEXPECTED_EMPTY_ELEMENT, 3, 3, 3},
        LineCase{"<CLD A=\"CLD1\">\n<Foo/>\n</CLD>", lmx::ELMX_MANDATORY_ELEMENT_MISSING, 3, 3, 3},
        LineCase{"\n\n<Foo/>\n\n", lmx::ELMX_UNEXPECTED_EOM, 5, 5, 5},
        LineCase{"<TSK A=\"TSK1\" G=\"1", lmx::ELMX_NOT_WELL_FORMED, 1, 1, 1},
        LineCase{"<TSK A=\"TSK1\" G=\"1\"\n", lmx::ELMX_UNEXPECTED_COMPLEX_ELEMENT, 2, 2, 2},
        LineCase{"<!DOCTYPE x [\n<!ENTITY\n a \"1\">\n]>\n<TSK A=\"TSK1\"/>\n",
                 lmx::ELMX_REQUIRED_ATTRIBUTES_MISSING, 6, 6, 5},
        LineCase{"", lmx::ELMX_UNEXPECTED_EOM, 1, 1, 1},
        LineCase{" \n\n ", lmx::ELMX_UNEXPECTED_EOM, 3, 3, 3},
        LineCase{"<!-- a\n -->\n", lmx::ELMX_UNEXPECTED_EOM, 3, 3, 3},
        LineCase{"<?xml version=\"1.0\"?>\n<?p i?>\n<!DOCTYPE a>\n", lmx::ELMX_UNEXPECTED_EOM, 4, 4, 4},
        LineCase{"\xEF\xBB\xBF\n", lmx::ELMX_UNEXPECTED_EOM, 2, 2, 2},
        LineCase{"<Foo>\n\n", lmx::ELMX_BADLY_FORMED, 3, 3, 3},
        LineCase{"<Foo>\n<a>\n</b>\n</Foo>\n", lmx::ELMX_BADLY_FORMED, 3, 3, 3},
        LineCase{"<Foo>\n&nbsp;\n</Foo>\n", lmx::ELMX_BADLY_FORMED, 2, 2, 2},
        LineCase{"hello\n<TSK/>", lmx::ELMX_BAD_CHAR_ENCODING, 1, 1, 1},
        LineCase{"</x>\n", lmx::ELMX_UNEXPECTED_COMPLEX_ELEMENT, 1, 1, 1},
        LineCase{"<?xml version=\"1.0\"?>\n<ISO11783_TaskData\n  VersionMajor=\"4\"\n  VersionMinor=\"3\"\n"
                 "  ManagementSoftwareManufacturer=\"a\"\n  ManagementSoftwareVersion=\"1\"\n  "
                 "DataTransferOrigin=\"1\">\n"
                 "  <TSK A=\"TSK1\"/>\n</ISO11783_TaskData>\n",
                 lmx::ELMX_REQUIRED_ATTRIBUTES_MISSING, 9, 9, 8}));

// The writer begins a tag's attributes beside its name, so no name ends a line.
TEST(WrittenDocuments, GetTheTrueLineOfEachFault) {
  constexpr std::size_t zones = 5;
  for (std::size_t bad = 0; bad != zones; ++bad) {
    Root root;
    Task& task = root.GetTaskData().AppendInnerTaskData().AppendTask();
    root.GetTaskData().SetVersionMajor("4");
    root.GetTaskData().SetDataTransferOrigin("1");
    task.SetId("TSK1");
    task.SetStatus("1");
    for (std::size_t i = 0; i != zones; ++i) {
      TreatmentZone& zone = task.AppendInnerTask().AppendTreatmentZone();
      zone.SetDesignator(i == bad ? std::string(33, 'x') : "zone");
      zone.AppendInnerTreatmentZone().AppendProcessDataVariable().SetDDI(IsoDDIConstants::toHexBinary(1, 4));
    }
    const std::string document = written(root);
    const std::string before = document.substr(0, document.find("xxx"));
    const auto line = 1 + static_cast<int>(std::count(before.begin(), before.end(), '\n'));
    EXPECT_EQ((Reading{lmx::ELMX_LENGTH_TOO_LONG, line, "B"}), read_document(document)) << document;
  }
}

// ---- Codes ----

struct CodeCase {
  char const* caption;
  std::string document;
  int code;
};

class Faults : public testing::TestWithParam<CodeCase> {};

TEST_P(Faults, GetTheirCode) {
  EXPECT_EQ(GetParam().code, read_document(GetParam().document).code) << GetParam().caption;
}

INSTANTIATE_TEST_SUITE_P(
    WellFormedness, Faults,
    testing::Values(
        CodeCase{"unquoted value", "<TSK A=TSK1 G=\"1\"/>", lmx::ELMX_NOT_WELL_FORMED},
        CodeCase{"missing =", "<TSK A \"TSK1\"/>", lmx::ELMX_NOT_WELL_FORMED},
        CodeCase{"stray character in a start tag", "<TSK A=\"TSK1\" % G=\"1\"/>", lmx::ELMX_NOT_WELL_FORMED},
        CodeCase{"wrong end tag", "<TSK A=\"TSK1\" G=\"1\"></TSX>", lmx::ELMX_BAD_END_OF_ELEMENT},
        CodeCase{"wrong end tag inside an unknown element",
                 "<TSK A=\"TSK1\" G=\"1\"><Foo><a></b></Foo></TSK>", lmx::ELMX_BADLY_FORMED},
        CodeCase{"text among children", "<TSK A=\"TSK1\" G=\"1\">text</TSK>", lmx::ELMX_BAD_END_OF_ELEMENT},
        CodeCase{"CDATA among children", "<TSK A=\"TSK1\" G=\"1\"><![CDATA[x]]></TSK>",
                 lmx::ELMX_BAD_END_OF_ELEMENT},
        CodeCase{"empty CDATA among children", "<TSK A=\"TSK1\" G=\"1\"><![CDATA[]]></TSK>",
                 lmx::ELMX_BAD_END_OF_ELEMENT},
        CodeCase{"text where a child is mandatory", "<PLN A=\"1\">text</PLN>",
                 lmx::ELMX_MANDATORY_ELEMENT_MISSING},
        CodeCase{"CDATA where a child is mandatory", "<CLD A=\"CLD1\"><![CDATA[]]></CLD>",
                 lmx::ELMX_MANDATORY_ELEMENT_MISSING},
        CodeCase{"< in a value", "<TSK A=\"TSK1\" B=\"a<b\" G=\"1\"/>", 0},
        CodeCase{"no blank between attributes", "<TSK A=\"TSK1\"G=\"1\"/>", 0},
        CodeCase{"repeated attribute", "<TSK A=\"TSK1\" A=\"TSK1\" G=\"1\"/>",
                 lmx::ELMX_ATTRIBUTE_ALREADY_READ},
        CodeCase{"unknown attribute and element",
                 "<TSK A=\"TSK1\" G=\"1\" P1_x=\"y\"><Foo b=\"c\">d</Foo></TSK>", 0},
        CodeCase{"undeclared entity in an attribute", "<TSK A=\"TSK1\" G=\"1\" B=\"&nbsp;\"/>",
                 lmx::ELMX_UNABLE_TO_READ_ATTRIBUTE_VALUE},
        CodeCase{"undeclared entity in text",
                 "<TSK A=\"TSK1\" G=\"1\"><P917_comment>&nbsp;</P917_comment></TSK>",
                 lmx::ELMX_UNABLE_TO_READ_ELEMENT_VALUE},
        CodeCase{"undeclared entity between tags", "<TSK A=\"TSK1\" G=\"1\">&nbsp;</TSK>",
                 lmx::ELMX_BAD_END_OF_ELEMENT},
        CodeCase{"undeclared entity in an unknown element", "<TSK A=\"TSK1\" G=\"1\"><Foo>&nbsp;</Foo></TSK>",
                 lmx::ELMX_BADLY_FORMED},
        CodeCase{"undeclared entity in an unknown attribute", "<TSK A=\"TSK1\" G=\"1\" x=\"&nbsp;\"/>", 0},
        CodeCase{"ampersand alone in an attribute", "<TSK A=\"TSK1\" G=\"1\" B=\"A & B\"/>",
                 lmx::ELMX_UNABLE_TO_READ_ATTRIBUTE_VALUE},
        CodeCase{"ampersand alone in text",
                 "<TSK A=\"TSK1\" G=\"1\"><P917_comment>A & B</P917_comment></TSK>",
                 lmx::ELMX_UNABLE_TO_READ_ELEMENT_VALUE},
        CodeCase{"ampersand alone between tags", "<TSK A=\"TSK1\" G=\"1\">A & B</TSK>",
                 lmx::ELMX_BAD_END_OF_ELEMENT},
        CodeCase{"missing required attribute", "<TSK A=\"TSK1\"/>", lmx::ELMX_REQUIRED_ATTRIBUTES_MISSING},
        CodeCase{"DOCTYPE in content", "<TSK A=\"TSK1\" G=\"1\"><!DOCTYPE x></TSK>", lmx::ELMX_BAD_DTD},
        CodeCase{"second DOCTYPE", "<!DOCTYPE x><!DOCTYPE x><TSK A=\"TSK1\" G=\"1\"/>", lmx::ELMX_BAD_DTD},
        CodeCase{"NUL in a value", std::string("<TSK A=\"TSK1\0x\" G=\"1\"/>", 23),
                 lmx::ELMX_NOT_WELL_FORMED},
        CodeCase{"bad byte in a value", "<TSK A=\"TSK1\" G=\"1\" B=\"\x80\"/>", lmx::ELMX_NOT_WELL_FORMED},
        CodeCase{"bad byte in text", "<TSK A=\"TSK1\" G=\"1\"><P917_comment>\x80</P917_comment></TSK>",
                 lmx::ELMX_UNABLE_TO_READ_ELEMENT_VALUE},
        CodeCase{"bad byte between tags", "<TSK A=\"TSK1\" G=\"1\">\x80</TSK>", lmx::ELMX_UNEXPECTED_EOM},
        CodeCase{"bad byte as the second of the file", "<\x80TSK A=\"TSK1\" G=\"1\"/>",
                 lmx::ELMX_NOT_WELL_FORMED},
        CodeCase{"child of an element with text alone",
                 "<TSK A=\"TSK1\" G=\"1\"><P917_comment>a<b/></P917_comment></TSK>",
                 lmx::ELMX_BAD_END_OF_ELEMENT},
        CodeCase{"warning whose code shows later", "<TSK A=\"TSK1\" G=\"1\"><!-- x ---><!x></TSK>",
                 lmx::ELMX_BAD_COMMENT}));

INSTANTIATE_TEST_SUITE_P(
    Prolog, Faults,
    testing::Values(
        CodeCase{"version missing", "<?xml encoding=\"UTF-8\"?><TSK A=\"TSK1\" G=\"1\"/>",
                 lmx::ELMX_BAD_XML_DECL},
        CodeCase{"version 2.0", "<?xml version=\"2.0\"?><TSK A=\"TSK1\" G=\"1\"/>",
                 lmx::ELMX_BAD_XML_VERSION},
        CodeCase{"version 1.1", "<?xml version=\"1.1\"?><TSK A=\"TSK1\" G=\"1\"/>", 0},
        CodeCase{"unknown encoding", "<?xml version=\"1.0\" encoding=\"KOI8-R\"?><TSK A=\"TSK1\" G=\"1\"/>",
                 lmx::ELMX_BAD_CHAR_ENCODING},
        CodeCase{"encoding that the bytes are not",
                 "<?xml version=\"1.0\" encoding=\"UTF-16\"?><TSK A=\"TSK1\" G=\"1\"/>",
                 lmx::ELMX_ENCODING_MISMATCH},
        CodeCase{"damaged declaration", "<?xml version=\"1.0\" x?><TSK A=\"TSK1\" G=\"1\"/>",
                 lmx::ELMX_UNEXPECTED_COMPLEX_ELEMENT},
        CodeCase{"second declaration",
                 "<?xml version=\"1.0\"?><?xml version=\"1.0\"?><TSK A=\"TSK1\" G=\"1\"/>",
                 lmx::ELMX_BAD_XML_DECL},
        CodeCase{"declaration after a comment", "<!-- c --><?xml version=\"1.0\"?><TSK A=\"TSK1\" G=\"1\"/>",
                 0},
        CodeCase{"declaration in content", "<TSK A=\"TSK1\" G=\"1\"><?xml version=\"1.0\"?></TSK>",
                 lmx::ELMX_BAD_XML_DECL},
        CodeCase{"short instruction swallows the document", "<?x?><TSK A=\"TSK1\" G=\"1\"/>",
                 lmx::ELMX_UNEXPECTED_COMPLEX_ELEMENT},
        CodeCase{"short instruction up to the next", "<?x?>...?><TSK A=\"TSK1\" G=\"1\"/>", 0},
        CodeCase{"byte order mark", "\xEF\xBB\xBF<TSK A=\"TSK1\" G=\"1\"/>", 0},
        CodeCase{"lower-case encoding name",
                 "<?xml version=\"1.0\" encoding=\"utf-8\"?><TSK A=\"TSK1\" G=\"1\"/>", 0},
        CodeCase{"bad markup", "<!x><TSK A=\"TSK1\" G=\"1\"/>", lmx::ELMX_UNEXPECTED_COMPLEX_ELEMENT},
        CodeCase{"bad markup behind an external entity",
                 "<!DOCTYPE x [<!ENTITY e SYSTEM \"f\">]><!x><TSK A=\"TSK1\" G=\"1\"/>",
                 lmx::ELMX_EXTERNAL_ENTITY},
        CodeCase{"bad markup behind an unknown parameter entity",
                 "<!DOCTYPE x [%p;]><!x><TSK A=\"TSK1\" G=\"1\"/>", lmx::ELMX_ENTITY_NOT_FOUND},
        CodeCase{"DOCTYPE before the root", "<!DOCTYPE TSK><TSK A=\"TSK1\" G=\"1\"/>", 0}));

INSTANTIATE_TEST_SUITE_P(
    TopElement, Faults,
    testing::Values(CodeCase{"nothing", "", lmx::ELMX_UNEXPECTED_EOM},
                    CodeCase{"blanks", " \n ", lmx::ELMX_UNEXPECTED_EOM},
                    CodeCase{"comment alone", "<!-- a -->", lmx::ELMX_UNEXPECTED_EOM},
                    CodeCase{"instruction alone", "<?a b?>", lmx::ELMX_UNEXPECTED_EOM},
                    CodeCase{"declaration alone", "<?xml version=\"1.0\"?>", lmx::ELMX_UNEXPECTED_EOM},
                    CodeCase{"DOCTYPE alone", "<!DOCTYPE a>", lmx::ELMX_UNEXPECTED_EOM},
                    CodeCase{"mark alone", "\xEF\xBB\xBF", lmx::ELMX_UNEXPECTED_EOM},
                    CodeCase{"unknown", "<Foo/>", lmx::ELMX_UNEXPECTED_EOM},
                    CodeCase{"unknown with content", "<Foo>a<b/></Foo>", lmx::ELMX_UNEXPECTED_EOM},
                    CodeCase{"unknown and not closed", "<Foo>", lmx::ELMX_BADLY_FORMED},
                    CodeCase{"unknown with wrong end tags", "<Foo><a></b></Foo>", lmx::ELMX_BADLY_FORMED},
                    CodeCase{"unknown with an undeclared entity", "<Foo>&nbsp;</Foo>",
                             lmx::ELMX_BADLY_FORMED},
                    CodeCase{"unknown, then a good one", "<Foo/><TSK A=\"TSK1\" G=\"1\"/>", 0},
                    CodeCase{"good one, then anything", "<TSK A=\"TSK1\" G=\"1\"/><<<", 0},
                    CodeCase{"text first", "hello<TSK/>", lmx::ELMX_BAD_CHAR_ENCODING},
                    CodeCase{"blank and text first", " hello", lmx::ELMX_UNEXPECTED_COMPLEX_ELEMENT},
                    CodeCase{"end tag first", "</x>", lmx::ELMX_UNEXPECTED_COMPLEX_ELEMENT},
                    CodeCase{"known name in another namespace", "<TSK xmlns=\"u\" A=\"TSK1\" G=\"1\"/>",
                             lmx::ELMX_UNEXPECTED_EOM},
                    CodeCase{"cut off after a complete attribute", "<TSK A=\"TSK1\" G=\"1\"",
                             lmx::ELMX_UNEXPECTED_COMPLEX_ELEMENT}));

INSTANTIATE_TEST_SUITE_P(
    Content, Faults,
    testing::Values(
        CodeCase{"mandatory content, empty tag", "<PLN A=\"1\"/>", lmx::ELMX_UNEXPECTED_EMPTY_ELEMENT},
        CodeCase{"mandatory content, end tag at once", "<PLN A=\"1\"></PLN>",
                 lmx::ELMX_UNEXPECTED_EMPTY_ELEMENT},
        CodeCase{"mandatory content, blanks and a comment", "<PLN A=\"1\"> <!-- a --> </PLN>",
                 lmx::ELMX_UNEXPECTED_EMPTY_ELEMENT},
        CodeCase{"mandatory content, unknown child", "<PLN A=\"1\"><Foo/></PLN>",
                 lmx::ELMX_MANDATORY_ELEMENT_MISSING},
        CodeCase{"mandatory content, child not allowed there", "<PLN A=\"1\"><TSK/></PLN>",
                 lmx::ELMX_MANDATORY_ELEMENT_MISSING},
        CodeCase{"mandatory content, cut off", "<PLN A=\"1\">", lmx::ELMX_UNEXPECTED_EOM},
        CodeCase{"LSG", "<LSG A=\"1\"/>", lmx::ELMX_UNEXPECTED_EMPTY_ELEMENT},
        CodeCase{"GGP", "<GGP A=\"GGP1\"/>", lmx::ELMX_UNEXPECTED_EMPTY_ELEMENT},
        CodeCase{"GPN", "<GPN A=\"GPN1\" C=\"1\"/>", lmx::ELMX_UNEXPECTED_EMPTY_ELEMENT},
        CodeCase{"GAN", "<GAN A=\"GGP1\"/>", lmx::ELMX_UNEXPECTED_EMPTY_ELEMENT},
        CodeCase{"CLD", "<CLD A=\"CLD1\"/>", lmx::ELMX_UNEXPECTED_EMPTY_ELEMENT},
        CodeCase{"DVC without DET but with DPT",
                 "<DVC A=\"DVC1\" D=\"0102030405060708\" F=\"01020304050607\" G=\"FF010203040506\">"
                 "<DPT A=\"1\" B=\"0001\" C=\"1\"/></DVC>",
                 0},
        CodeCase{"DVC without DET but with DPD",
                 "<DVC A=\"DVC1\" D=\"0102030405060708\" F=\"01020304050607\" G=\"FF010203040506\">"
                 "<DPD A=\"1\" B=\"0001\" C=\"1\" D=\"1\"/></DVC>",
                 0},
        CodeCase{"DVC without DET but with DVP",
                 "<DVC A=\"DVC1\" D=\"0102030405060708\" F=\"01020304050607\" G=\"FF010203040506\">"
                 "<DVP A=\"1\" B=\"0\" C=\"1\" D=\"0\"/></DVC>",
                 0},
        CodeCase{"TSK may be empty", "<TSK A=\"TSK1\" G=\"1\"/>", 0},
        CodeCase{"allocation without stamp", "<DAN A=\"0102030405060708\" C=\"DVC1\"/>", 0},
        CodeCase{"text cut off", "<TSK A=\"TSK1\" G=\"1\"><P917_comment>hi",
                 lmx::ELMX_UNABLE_TO_READ_ELEMENT_VALUE},
        CodeCase{"questions may be empty", "<P917_Questions/>", 0},
        CodeCase{"comment may be empty", "<P917_comment/>", 0},
        CodeCase{"blank by reference behind a value whose blanks are collapsed",
                 "<TSK A=\"TSK1\" G=\"1\"><TZN B=\"Zone\" A=\"1\"/>&#32;<TZN A=\"2\"/></TSK>", 0},
        CodeCase{"blank by reference behind a value whose blanks are kept",
                 "<TSK A=\"TSK1\" G=\"1\"><TZN A=\"1\" B=\"Zone\"/>&#32;<TZN A=\"2\"/></TSK>",
                 lmx::ELMX_BAD_END_OF_ELEMENT},
        CodeCase{"attributes only: blanks, comments, instructions",
                 "<AFE A=\"ABCDEFGH.XML\" B=\"1\" C=\"\" D=\"1\"> <!-- a --> <?b c?> </AFE>", 0},
        CodeCase{"attributes only: unknown child",
                 "<AFE A=\"ABCDEFGH.XML\" B=\"1\" C=\"\" D=\"1\"><Foo/></AFE>", lmx::ELMX_BAD_END_OF_ELEMENT},
        CodeCase{"attributes only: known child",
                 "<AFE A=\"ABCDEFGH.XML\" B=\"1\" C=\"\" D=\"1\"><TSK/></AFE>", lmx::ELMX_BAD_END_OF_ELEMENT},
        CodeCase{"attributes only: text", "<AFE A=\"ABCDEFGH.XML\" B=\"1\" C=\"\" D=\"1\">x</AFE>",
                 lmx::ELMX_BAD_END_OF_ELEMENT}));

INSTANTIATE_TEST_SUITE_P(
    Values, Faults,
    testing::Values(
        CodeCase{"zone code 255", "<TZN A=\"255\"/>", lmx::ELMX_VALUE_EXCEEDS_MAX},
        CodeCase{"zone code empty", "<TZN A=\"\"/>", lmx::ELMX_VALUE_BAD_FORMAT},
        CodeCase{"zone code +5", "<TZN A=\"+5\"/>", 0}, CodeCase{"zone code 0005", "<TZN A=\"0005\"/>", 0},
        CodeCase{"zone code -0", "<TZN A=\"-0\"/>", 0},
        CodeCase{"zone code in blanks", "<TZN A=\" 5 \"/>", 0},
        CodeCase{"zone code +", "<TZN A=\"+\"/>", lmx::ELMX_VALUE_BAD_FORMAT},
        CodeCase{"zone code 1.0", "<TZN A=\"1.0\"/>", lmx::ELMX_VALUE_BAD_FORMAT},
        CodeCase{"300 digits", "<TZN A=\"" + std::string(300, '9') + "\"/>", lmx::ELMX_VALUE_EXCEEDS_MAX},
        CodeCase{"-0 under a minimum of 1", "<AFE A=\"ABCDEFGH.XML\" B=\"1\" C=\"\" D=\"-0\"/>",
                 lmx::ELMX_VALUE_EXCEEDS_MIN},
        CodeCase{"lowest threshold", "<DLT A=\"0001\" B=\"1\" E=\"-2147483648\"/>",
                 lmx::ELMX_VALUE_EXCEEDS_MIN},
        CodeCase{"lowest value", "<PDV A=\"0001\" B=\"-2147483648\"/>", 0},
        CodeCase{"cell of NaN",
                 "<GRD A=\"1\" B=\"1\" C=\"NaN\" D=\"0.5\" E=\"1\" F=\"1\" G=\"GRD00001\" I=\"1\"/>",
                 lmx::ELMX_VALUE_EXCEEDS_MIN},
        CodeCase{"cell of INF",
                 "<GRD A=\"1\" B=\"1\" C=\"INF\" D=\"0.5\" E=\"1\" F=\"1\" G=\"GRD00001\" I=\"1\"/>",
                 lmx::ELMX_VALUE_EXCEEDS_MAX},
        CodeCase{"cell of -INF",
                 "<GRD A=\"1\" B=\"1\" C=\"-INF\" D=\"0.5\" E=\"1\" F=\"1\" G=\"GRD00001\" I=\"1\"/>",
                 lmx::ELMX_VALUE_EXCEEDS_MIN},
        CodeCase{"cell of -0.0",
                 "<GRD A=\"1\" B=\"1\" C=\"-0.0\" D=\"0.5\" E=\"1\" F=\"1\" G=\"GRD00001\" I=\"1\"/>", 0},
        CodeCase{"cell of 1.0",
                 "<GRD A=\"1\" B=\"1\" C=\"1.0\" D=\"0.5\" E=\"1\" F=\"1\" G=\"GRD00001\" I=\"1\"/>", 0},
        CodeCase{"cell of 1.01",
                 "<GRD A=\"1\" B=\"1\" C=\"1.01\" D=\"0.5\" E=\"1\" F=\"1\" G=\"GRD00001\" I=\"1\"/>",
                 lmx::ELMX_VALUE_EXCEEDS_MAX},
        CodeCase{"grid rows up to the type's end",
                 "<GRD A=\"1\" B=\"1\" C=\"1\" D=\"1\" E=\"4294967295\" F=\"1\" G=\"GRD00001\" I=\"1\"/>", 0},
        CodeCase{"grid file name too short",
                 "<GRD A=\"1\" B=\"1\" C=\"1\" D=\"1\" E=\"1\" F=\"1\" G=\"GRD0001\" I=\"1\"/>",
                 lmx::ELMX_LENGTH_TOO_SHORT},
        CodeCase{"grid file name of another kind",
                 "<GRD A=\"1\" B=\"1\" C=\"1\" D=\"1\" E=\"1\" F=\"1\" G=\"GRX00001\" I=\"1\"/>",
                 lmx::ELMX_NO_PATTERN_MATCHED},
        CodeCase{"dilution of -0.0", "<PTN A=\"1\" B=\"1\" D=\"1\" E=\"-0.0\"/>",
                 lmx::ELMX_VALUE_EXCEEDS_MIN},
        CodeCase{"north of -0.0", "<PNT A=\"1\" C=\"-0.0\" D=\"0\"/>", 0},
        CodeCase{"north of 90.0000001", "<PNT A=\"1\" C=\"90.0000001\" D=\"0\"/>",
                 lmx::ELMX_VALUE_EXCEEDS_MAX},
        CodeCase{"north of -90.0", "<PNT A=\"1\" C=\"-90.0\" D=\"0\"/>", 0},
        CodeCase{"method 9",
                 "<GPN A=\"GPN1\" C=\"1\" I=\"9\"><LSG A=\"5\"><PNT A=\"6\" C=\"1\" D=\"1\"/></LSG></GPN>",
                 lmx::ELMX_VALUE_NOT_ENUMERATED},
        CodeCase{"scale of 0", "<VPN A=\"VPN1\" B=\"0\" C=\"0\" D=\"0\"/>", lmx::ELMX_VALUE_EXCEEDS_MIN},
        CodeCase{"smallest scale", "<VPN A=\"VPN1\" B=\"0\" C=\"0.000000001\" D=\"0\"/>", 0},
        CodeCase{"identifier with a hyphen", "<BSN A=\"BSN-1\" B=\"a\" C=\"1\" D=\"1\" E=\"1\"/>", 0},
        CodeCase{"identifier without a number", "<BSN A=\"BSN-\" B=\"a\" C=\"1\" D=\"1\" E=\"1\"/>",
                 lmx::ELMX_NO_PATTERN_MATCHED},
        CodeCase{"customer without a name", "<CTR A=\"CTR1\"/>", lmx::ELMX_REQUIRED_ATTRIBUTES_MISSING},
        CodeCase{"connection", "<CNN A=\"DVC1\" B=\"DET1\" C=\"DVC2\"/>",
                 lmx::ELMX_REQUIRED_ATTRIBUTES_MISSING},
        CodeCase{"element object 0", "<DET A=\"DET1\" B=\"0\" C=\"1\" E=\"1\" F=\"1\"/>",
                 lmx::ELMX_VALUE_EXCEEDS_MIN},
        CodeCase{"element object 65535", "<DET A=\"DET1\" B=\"65535\" C=\"1\" E=\"1\" F=\"1\"/>",
                 lmx::ELMX_VALUE_EXCEEDS_MAX},
        CodeCase{"process data object 65535", "<DPD A=\"65535\" B=\"0001\" C=\"0\" D=\"1\"/>",
                 lmx::ELMX_VALUE_EXCEEDS_MAX},
        CodeCase{
            "reply type with a capital",
            "<P917_Question P917_Uuid=\"92043685-072d-4caa-b3a8-c1e9d23bdb31\" P917_ReplyType=\"String\">"
            "<P917_Prompt/></P917_Question>",
            lmx::ELMX_NO_PATTERN_MATCHED},
        CodeCase{
            "padded reply type keeps its blanks",
            "<P917_Question P917_Uuid=\"92043685-072d-4caa-b3a8-c1e9d23bdb31\" P917_ReplyType=\"string \">"
            "<P917_Prompt/></P917_Question>",
            lmx::ELMX_NO_PATTERN_MATCHED},
        CodeCase{
            "padded uuid keeps its blanks",
            "<P917_Question P917_Uuid=\" 92043685-072d-4caa-b3a8-c1e9d23bdb31\" P917_ReplyType=\"string\">"
            "<P917_Prompt/></P917_Question>",
            lmx::ELMX_NO_PATTERN_MATCHED}));

TEST(NegativeZero, IsBelowEveryDecimalMinimumOfZero) {
  const auto pattern = [](char const* attribute, std::string const& zero) {
    return std::string("<GPN A=\"GPN1\" C=\"1\" ") + attribute + "=\"" + zero +
           "\"><LSG A=\"5\"><PNT A=\"6\" C=\"1\" D=\"1\"/></LSG></GPN>";
  };
  for (std::string const zero : {"-0", "-0.0", "-.0", "-0.", "-00.000"}) {
    SCOPED_TRACE(zero);
    for (char const* const dilution : {"E", "F"}) {
      EXPECT_EQ(
          (Reading{lmx::ELMX_VALUE_EXCEEDS_MIN, 1, dilution}),
          read_document("<PTN A=\"1\" B=\"1\" D=\"1\" " + std::string(dilution) + "=\"" + zero + "\"/>"));
    }
    for (char const* const accuracy : {"H", "I"}) {
      EXPECT_EQ(
          (Reading{lmx::ELMX_VALUE_EXCEEDS_MIN, 1, accuracy}),
          read_document("<PNT A=\"1\" C=\"1\" D=\"1\" " + std::string(accuracy) + "=\"" + zero + "\"/>"));
    }
    for (char const* const heading_or_accuracy : {"G", "J", "K"}) {
      EXPECT_EQ((Reading{lmx::ELMX_VALUE_EXCEEDS_MIN, 1, heading_or_accuracy}),
                read_document(pattern(heading_or_accuracy, zero)));
    }
    EXPECT_EQ(0, read_document("<PNT A=\"1\" C=\"" + zero + "\" D=\"" + zero + "\"/>").code);
    EXPECT_EQ(0, read_document("<PTN A=\"" + zero + "\" B=\"" + zero + "\" D=\"1\"/>").code);
    EXPECT_EQ(0, read_document("<GRD A=\"" + zero + "\" B=\"" + zero + "\" C=\"" + zero + "\" D=\"" + zero +
                               "\" E=\"1\" F=\"1\" G=\"GRD00001\" I=\"1\"/>")
                     .code);
  }
}

// ---- What a tolerant reader is told ----

struct ReportCase {
  char const* caption;
  char const* document;
  std::vector<Report> reports;
};

class Reports : public testing::TestWithParam<ReportCase> {};

TEST_P(Reports, ComeInOrder) {
  EXPECT_EQ(GetParam().reports, tolerated(GetParam().document)) << GetParam().caption;
}

INSTANTIATE_TEST_SUITE_P(
    Tolerated, Reports,
    testing::Values(
        ReportCase{"mandatory content, empty tag",
                   "<PLN A=\"1\"/>",
                   {{lmx::ELMX_UNEXPECTED_EMPTY_ELEMENT, "PLN"}, {lmx::ELMX_BAD_END_OF_ELEMENT, "PLN"}}},
        ReportCase{"mandatory content, end tag at once",
                   "<PLN A=\"1\"></PLN>",
                   {{lmx::ELMX_UNEXPECTED_EMPTY_ELEMENT, "PLN"}}},
        ReportCase{
            "mandatory content, unknown child",
            "<PLN A=\"1\"><Foo/></PLN>",
            {{lmx::ELMX_MANDATORY_ELEMENT_MISSING, "PLN"}, {lmx::ELMX_MANDATORY_ELEMENT_MISSING, "PLN"}}},
        ReportCase{"mandatory content, text",
                   "<PLN A=\"1\">text</PLN>",
                   {{lmx::ELMX_MANDATORY_ELEMENT_MISSING, "PLN"},
                    {lmx::ELMX_MANDATORY_ELEMENT_MISSING, "PLN"},
                    {lmx::ELMX_BAD_END_OF_ELEMENT, "PLN"}}},
        ReportCase{"text in a child",
                   "<TZN A=\"1\"><PLN A=\"1\">text</PLN></TZN>",
                   {{lmx::ELMX_MANDATORY_ELEMENT_MISSING, "PLN"},
                    {lmx::ELMX_MANDATORY_ELEMENT_MISSING, "PLN"},
                    {lmx::ELMX_BAD_END_OF_ELEMENT, "PLN"},
                    {lmx::ELMX_BAD_END_OF_ELEMENT, "TZN"}}},
        ReportCase{"mandatory content, cut off",
                   "<PLN A=\"1\">",
                   {{lmx::ELMX_UNEXPECTED_EOM, "PLN"},
                    {lmx::ELMX_MANDATORY_ELEMENT_MISSING, "PLN"},
                    {lmx::ELMX_MANDATORY_ELEMENT_MISSING, "PLN"},
                    {lmx::ELMX_BAD_END_OF_ELEMENT, "PLN"}}},
        ReportCase{"empty integer",
                   "<TZN A=\"\"/>",
                   {{lmx::ELMX_VALUE_BAD_FORMAT, "A"}, {lmx::ELMX_VALUE_EXCEEDS_MAX, "A"}}},
        ReportCase{"identifier of 15 characters",
                   "<TSK A=\"TSK123456789012\" G=\"1\"/>",
                   {{lmx::ELMX_LENGTH_TOO_LONG, "A"}}},
        ReportCase{"too long and of another kind",
                   "<TSK A=\"TSX123456789012\" G=\"1\"/>",
                   {{lmx::ELMX_LENGTH_TOO_LONG, "A"}, {lmx::ELMX_NO_PATTERN_MATCHED, "A"}}},
        ReportCase{"too short and of another kind",
                   "<AFE A=\"x\"><Foo/></AFE>",
                   {{lmx::ELMX_LENGTH_TOO_SHORT, "A"},
                    {lmx::ELMX_NO_PATTERN_MATCHED, "A"},
                    {lmx::ELMX_REQUIRED_ATTRIBUTES_MISSING, "AFE"},
                    {lmx::ELMX_BAD_END_OF_ELEMENT, "AFE"}}},
        ReportCase{"NaN fails both limits",
                   "<GRD A=\"1\" B=\"1\" C=\"NaN\" D=\"1\" E=\"1\" F=\"1\" G=\"GRD00001\" I=\"1\"/>",
                   {{lmx::ELMX_VALUE_EXCEEDS_MIN, "C"}, {lmx::ELMX_VALUE_EXCEEDS_MAX, "C"}}},
        ReportCase{"repeated attribute",
                   "<TSK A=\"TSK1\" A=\"TSK2\" G=\"1\"/>",
                   {{lmx::ELMX_ATTRIBUTE_ALREADY_READ, "@A"}}},
        ReportCase{
            "one report for all that is missing", "<CNN/>", {{lmx::ELMX_REQUIRED_ATTRIBUTES_MISSING, "CNN"}}},
        ReportCase{"cut off inside the start tag",
                   "<TSK A=\"TSK1\" G=\"1\"/",
                   {{lmx::ELMX_NOT_WELL_FORMED, ""},
                    {lmx::ELMX_UNEXPECTED_EOM, "TSK"},
                    {lmx::ELMX_BAD_END_OF_ELEMENT, "TSK"}}},
        ReportCase{"question without anything",
                   "<P917_Question/>",
                   {{lmx::ELMX_REQUIRED_ATTRIBUTES_MISSING, "P917_Question"},
                    {lmx::ELMX_UNEXPECTED_EMPTY_ELEMENT, "P917_Question"},
                    {lmx::ELMX_BAD_END_OF_ELEMENT, "P917_Question"}}}));

// ---- Children ----

std::string task(std::string const& children) { return "<TSK A=\"TSK1\" G=\"1\">" + children + "</TSK>"; }

TEST(Children, OfDifferentKindsKeepTheirOrder) {
  Root root;
  ASSERT_EQ(
      0, read_document(
             root, task("<TZN A=\"1\"/><TZN A=\"2\"/><TIM A=\"2024-01-01T00:00:00\" D=\"1\"/><TZN A=\"3\"/>"))
             .code);
  Task const& read = root.GetTask();
  ASSERT_EQ(3u, read.SizeInnerTask());
  EXPECT_EQ(2u, read.GetInnerTask(0).SizeTreatmentZone());
  EXPECT_EQ(InnerTask::TimeChosen, read.GetInnerTask(1).chosen);
  EXPECT_EQ(3, read.GetInnerTask(2).GetTreatmentZone(0).GetCode());
}

TEST(Children, UnknownOnesDoNotBreakARun) {
  Root root;
  ASSERT_EQ(0, read_document(root, task("<TZN A=\"1\"/><Foo/><TZN A=\"2\"/>")).code);
  ASSERT_EQ(1u, root.GetTask().SizeInnerTask());
  EXPECT_EQ(2u, root.GetTask().GetInnerTask(0).SizeTreatmentZone());
}

TEST(Children, ReferencesInAnExternalFileAreSkippedAndNothingIsLost) {
  Root root;
  TempDir directory;
  TolerantReader reader(
      directory
          .write("document.xml",
                 "<XFC><TSK A=\"TSK1\" G=\"1\"/><XFR A=\"TSK00002\" B=\"1\"/><TSK A=\"TSK2\" G=\"1\"/></XFC>")
          .c_str());
  ASSERT_EQ(0, root.unmarshal(reader));
  EXPECT_EQ(std::vector<std::string>{"XFR"}, reader.unknown);
  ASSERT_EQ(1u, root.GetExternalFileContent().SizeInnerExternalFileContent());
  EXPECT_EQ(2u, root.GetExternalFileContent().GetInnerExternalFileContent(0).SizeTask());
}

TEST(Children, PositionsComeInRunsOfTwo) {
  char const* const three =
      "<PTN A=\"1\" B=\"1\" D=\"1\"/><PTN A=\"2\" B=\"1\" D=\"1\"/><PTN A=\"3\" B=\"1\" D=\"1\"/>";
  Root time;
  ASSERT_EQ(
      0, read_document(time, "<TIM A=\"2024-01-01T00:00:00\" D=\"1\">" + std::string(three) + "</TIM>").code);
  ASSERT_EQ(2u, time.GetTime().SizeInnerTime());
  EXPECT_EQ(2u, time.GetTime().GetInnerTime(0).SizePosition());
  EXPECT_EQ(1u, time.GetTime().GetInnerTime(1).SizePosition());

  Root stamp;
  TempDir directory;
  TolerantReader reader(
      directory
          .write("document.xml", "<ASP A=\"2024-01-01T00:00:00\" D=\"1\">" + std::string(three) + "</ASP>")
          .c_str());
  ASSERT_EQ(0, stamp.unmarshal(reader));
  EXPECT_EQ(2u, stamp.GetAllocationStamp().GetInnerAllocationStamp().SizePosition());
  EXPECT_EQ(std::vector<std::string>{"PTN"}, reader.unknown);
  EXPECT_TRUE(reader.reports.empty());
}

TEST(Children, OutOfPlaceAreDroppedWithAllThatFollowsThem) {
  Root root;
  TempDir directory;
  char const* const stamp = "<ASP A=\"2024-01-01T00:00:00\" D=\"1\"/>";
  TolerantReader reader(
      directory.write("document.xml", "<WAN A=\"WKR1\">" + std::string(stamp) + stamp + stamp + "</WAN>")
          .c_str());
  ASSERT_EQ(0, root.unmarshal(reader));
  EXPECT_EQ((std::vector<std::string>{"ASP", "ASP"}), reader.unknown);
  EXPECT_EQ(InnerWorkerAllocation::AllocationStampChosen,
            root.GetWorkerAllocation().GetInnerWorkerAllocation().chosen);
}

TEST(Children, OfWhichOneIsTakenLoseTheSecondAndAllBehindIt) {
  const std::string stamp = "<ASP A=\"2024-01-01T00:00:00\" D=\"1\"/>";
  const std::string last = "<ASP A=\"2024-01-02T00:00:00\" D=\"1\"/>";
  for (std::string const parent :
       {"DAN A=\"0102030405060708\" C=\"DVC1\"", "WAN A=\"WKR1\"", "PAN A=\"PDT1\"",
        "CAT A=\"0102030405060708\" B=\"0102030405060708\" C=\"01020304050607\" D=\"01020304050607\" E=\"0\" "
        "F=\"0\" G=\"0001\"",
        "CAN", "GST A=\"GGP1\" B=\"GPN1\""}) {
    const std::string tag = parent.substr(0, 3);
    Root root;
    TempDir directory;
    TolerantReader reader(directory
                              .write("document.xml", '<' + parent + "><Foo/>" + stamp + "<Bar/>" + last +
                                                         "<Foo/>" + last + "</" + tag + '>')
                              .c_str());
    EXPECT_EQ(0, root.unmarshal(reader)) << parent;
    EXPECT_TRUE(reader.reports.empty()) << parent << ": " << reader.reports[0].first;
    EXPECT_EQ((std::vector<std::string>{"Foo", "Bar", "ASP", "Foo", "ASP"}), reader.unknown) << parent;
    const std::string kept = written(root);
    EXPECT_NE(std::string::npos, kept.find("2024-01-01")) << kept;
    EXPECT_EQ(std::string::npos, kept.find("2024-01-02")) << kept;
  }
}

TEST(Children, NestToAnyDepthThatIsUsual) {
  std::string document = "<PDV A=\"0001\" B=\"1\"/>";
  for (int i = 0; i != 2; ++i) document = "<PDV A=\"0001\" B=\"1\">" + document + "</PDV>";
  Root root;
  ASSERT_EQ(0, read_document(root, document).code);
  ProcessDataVariable const& inner =
      root.GetProcessDataVariable().GetInnerProcessDataVariable(0).GetProcessDataVariable(0);
  EXPECT_EQ(1u, inner.GetInnerProcessDataVariable(0).SizeProcessDataVariable());
}

TEST(Children, ABoundaryPolygonBeforeAnyPatternIsFine) {
  Root root;
  ASSERT_EQ(
      0,
      read_document(
          root, "<GGP A=\"GGP1\"><PLN A=\"1\"><LSG A=\"1\"><PNT A=\"1\" C=\"1\" D=\"1\"/></LSG></PLN></GGP>")
          .code);
  EXPECT_EQ(InnerGuidanceGroup::BoundaryPolygonChosen,
            root.GetGuidanceGroup().GetInnerGuidanceGroup(0).chosen);
}

// ---- Questions ----

std::string question(std::string const& children) {
  return "<P917_Question P917_Uuid=\"92043685-072d-4caa-b3a8-c1e9d23bdb31\" P917_ReplyType=\"string\">" +
         children + "</P917_Question>";
}

TEST(Questions, HoldPromptReplyAndOptions) {
  Root root;
  ASSERT_EQ(
      0, read_document(
             root,
             question("<P917_Prompt> a "
                      "</P917_Prompt><P917_Reply>b</P917_Reply><P917_Option>c</P917_Option><P917_Option/>"))
             .code);
  P917Question const& read = root.GetP917Question();
  EXPECT_EQ(" a ", read.GetPrompt());
  EXPECT_EQ("b", read.GetReply());
  ASSERT_EQ(2u, read.SizeOption());
  EXPECT_EQ("c", read.GetOption(0));
  EXPECT_EQ("", read.GetOption(1));
}

std::vector<std::string> options(P917Question const& question) {
  std::vector<std::string> found;
  for (std::size_t i = 0; i != question.SizeOption(); ++i) found.push_back(question.GetOption(i));
  return found;
}

TEST(Questions, HaveOptionsThatAreEditedLikeAVector) {
  using Options = std::vector<std::string>;
  P917Question edited;
  EXPECT_EQ(0u, edited.SizeOption());
  edited.AppendOption("b");
  edited.AppendOption("d");
  edited.InsertOption(0, "a");
  edited.InsertOption(2, "c");
  EXPECT_EQ((Options{"a", "b", "c", "d"}), options(edited));
  edited.SetOption(1, "B");
  EXPECT_EQ("d", edited.BackOption());
  edited.DeleteOption(0);
  EXPECT_EQ((Options{"B", "c", "d"}), options(edited));
  edited.ClearOption();
  EXPECT_EQ(Options{}, options(edited));
}

std::vector<std::string> prompts(P917Questions const& questions) {
  std::vector<std::string> found;
  for (std::size_t i = 0; i != questions.SizeP917Question(); ++i)
    found.push_back(questions.GetP917Question(i).GetPrompt());
  return found;
}

TEST(Questions, AreEditedLikeAVector) {
  using Prompts = std::vector<std::string>;
  const auto new_question = [](char const* prompt) {
    auto* question = new P917Question;
    question->SetPrompt(prompt);
    return question;
  };
  P917Questions edited;
  edited.AppendP917Question().SetPrompt("b");
  edited.AppendP917Question(new_question("d"));
  edited.InsertP917Question(0).SetPrompt("a");
  edited.InsertP917Question(2, new_question("c"));
  EXPECT_EQ((Prompts{"a", "b", "c", "d"}), prompts(edited));
  P917Question other;
  other.SetPrompt("B");
  edited.AssignP917Question(1, other);
  edited.AssignP917Question(2, new_question("C"));
  edited.BackP917Question().SetPrompt("D");
  EXPECT_EQ((Prompts{"a", "B", "C", "D"}), prompts(edited));
  edited.DeleteP917Question(1);
  edited.GetP917Question(4).SetPrompt("e");
  EXPECT_EQ((Prompts{"a", "C", "D", "", "e"}), prompts(edited));
  edited.ClearP917Question();
  EXPECT_EQ(Prompts{}, prompts(edited));
}

TEST(Questions, MissAPrompt) {
  EXPECT_EQ(lmx::ELMX_UNEXPECTED_EMPTY_ELEMENT, read_document(question("")).code);
  EXPECT_EQ((Reading{lmx::ELMX_MANDATORY_ELEMENT_MISSING, 1, "P917_Question"}),
            read_document(question("<P917_Reply>b</P917_Reply>")));
  Root root;
  EXPECT_EQ((std::vector<Report>{{lmx::ELMX_MANDATORY_ELEMENT_MISSING, "P917_Question"}}),
            tolerated(root, question("<P917_Reply>b</P917_Reply>")));
  EXPECT_EQ("b", root.GetP917Question().GetReply()) << "reading went on to the reply";
}

TEST(Questions, DropAReplyAfterAnOptionAndWhatFollows) {
  Root root;
  TempDir directory;
  TolerantReader reader(
      directory
          .write("document.xml",
                 question("<P917_Prompt>a</P917_Prompt><P917_Option>b</P917_Option><P917_Reply>c</"
                          "P917_Reply><P917_Option>d</P917_Option>"))
          .c_str());
  ASSERT_EQ(0, root.unmarshal(reader));
  EXPECT_EQ((std::vector<std::string>{"P917_Reply", "P917_Option"}), reader.unknown);
  EXPECT_EQ(1u, root.GetP917Question().SizeOption());
  EXPECT_FALSE(root.GetP917Question().IssetReply());
  EXPECT_EQ(1u, reader.getQuestions().size()) << "the question is delivered";
}

TEST(Questions, AChildElementInsideAPromptIsRefused) {
  EXPECT_EQ(lmx::ELMX_BAD_END_OF_ELEMENT, read_document(question("<P917_Prompt>a<b/></P917_Prompt>")).code);
}

TEST(Questions, DropASecondPromptAndWhatFollows) {
  Root root;
  TempDir directory;
  TolerantReader reader(
      directory
          .write("document.xml", question("<P917_Prompt>a</P917_Prompt><P917_Prompt>b</P917_Prompt>"
                                          "<P917_Reply>c</P917_Reply><P917_Option>d</P917_Option>"))
          .c_str());
  ASSERT_EQ(0, root.unmarshal(reader));
  EXPECT_TRUE(reader.reports.empty());
  EXPECT_EQ((std::vector<std::string>{"P917_Prompt", "P917_Reply", "P917_Option"}), reader.unknown);
  EXPECT_EQ("a", root.GetP917Question().GetPrompt());
  EXPECT_FALSE(root.GetP917Question().IssetReply());
  EXPECT_EQ(0u, root.GetP917Question().SizeOption());
}

TEST(Questions, AttributesOfTheirChildrenAreIgnoredWithoutAskingTheHost) {
  class Reader : public lmx::xmlReader {
   public:
    using xmlReader::xmlReader;
    lmx::elmx_error on_unknown_attribute(std::string const& name, std::vector<char> const&, char const*,
                                         int) override {
      asked += name;
      return lmx::ELMX_OK;
    }
    std::string asked;
  };
  Root root;
  TempDir directory;
  Reader reader(directory
                    .write("document.xml",
                           question("<P917_Prompt x=\"1\" xmlns:p=\"u\" p:y=\"&nbsp;\">a</P917_Prompt>"
                                    "<P917_Reply x=\"1\">b</P917_Reply><P917_Option x=\"1\">c</P917_Option>"))
                    .c_str());
  EXPECT_EQ(0, root.unmarshal(reader));
  EXPECT_EQ("", reader.asked);
  EXPECT_EQ("a", root.GetP917Question().GetPrompt());
  EXPECT_EQ("b", root.GetP917Question().GetReply());
  EXPECT_EQ("c", root.GetP917Question().GetOption(0));
}

TEST(Questions, ErrorsAfterAPromptReachTheHost) {
  Root root;
  TempDir directory;
  lmx::xmlReader reader(directory
                            .write("document.xml",
                                   "<P917_Question P917_Uuid=\"92043685-072d-4caa-b3a8-c1e9d23bdb31\" "
                                   "P917_ReplyType=\"string\"><P917_Prompt>a</P917_Prompt>")
                            .c_str());
  EXPECT_EQ(lmx::ELMX_UNEXPECTED_EOM, root.unmarshal(reader));
  EXPECT_NE(std::string::npos, reader.get_error_message().find("Unexpected end of message"));

  const std::string start =
      "<P917_Question P917_Uuid=\"92043685-072d-4caa-b3a8-c1e9d23bdb31\" P917_ReplyType=\"string\">";
  const std::vector<Report> reports = {{lmx::ELMX_UNEXPECTED_EOM, "P917_Question"},
                                       {lmx::ELMX_BAD_END_OF_ELEMENT, "P917_Question"}};
  for (std::string const children :
       {"<P917_Prompt>a</P917_Prompt>", "<P917_Prompt>a</P917_Prompt><P917_Reply>b</P917_Reply>",
        "<P917_Prompt>a</P917_Prompt><P917_Option>b</P917_Option>"}) {
    EXPECT_EQ(reports, tolerated(start + children)) << children;
  }
}

TEST(Questions, UnknownElementsBetweenThemVanish) {
  Root root;
  const std::string one = question("<P917_Prompt>a</P917_Prompt>");
  ASSERT_EQ(0, read_document(root, "<P917_Questions>" + one + "<Foo/>" + one + "</P917_Questions>").code);
  EXPECT_EQ(2u, root.GetP917Questions().SizeP917Question());
}

TEST(Comments, AreTheTextOfTheElement) {
  Root root;
  ASSERT_EQ(0, read_document(root, task("<P917_comment> hi <!-- c -->there</P917_comment>")).code);
  EXPECT_EQ(" hi there", root.GetTask().GetInnerTask(0).GetP917Comment().GetP917Comment());
  Root empty;
  ASSERT_EQ(0, read_document(empty, "<P917_comment/>").code);
  EXPECT_TRUE(empty.GetP917Comment().IssetP917Comment());
}

// ---- White space ----

TEST(WhiteSpace, GoesFromVersionsAndStaysInFreeTexts) {
  Root root;
  ASSERT_EQ(
      0,
      read_document(
          root,
          "<ISO11783_TaskData VersionMajor=\" 4 \" VersionMinor=\"3\" ManagementSoftwareManufacturer=\" a \" "
          "ManagementSoftwareVersion=\"1\" DataTransferOrigin=\" 1 \" lang=\" en \">"
          "<TSK A=\" TSK1 \" G=\"1\" P007_JobMetaData=\"  x \"/></ISO11783_TaskData>")
          .code);
  TaskData const& data = root.GetTaskData();
  EXPECT_EQ("4", data.GetVersionMajor());
  EXPECT_EQ(" a ", data.GetManagementSoftwareManufacturer());
  EXPECT_EQ("1", data.GetDataTransferOrigin());
  EXPECT_EQ("en", data.GetLanguage());
  Task const& read = data.GetInnerTaskData(0).GetTask(0);
  EXPECT_EQ("TSK1", read.GetId());
  EXPECT_EQ("  x ", read.GetP007JobMetaData());
}

TEST(WhiteSpace, StaysInEveryTextThatIsFree) {
  const std::string blanks = " a \t b  ";
  const auto set = [&](std::string const& attribute) { return ' ' + attribute + "=\"" + blanks + "\""; };
  const std::string line = "<LSG A=\"1\"><PNT A=\"1\" C=\"1\" D=\"1\"/></LSG>";
  Root root;
  ASSERT_EQ(0,
            read_document(root, "<XFC><FRM A=\"FRM1\" B=\"b\"" + set("P917_middleName") +
                                    "/><PFD A=\"PFD1\" C=\"c\" D=\"1\"" + set("P917_middleName") +
                                    "><PLN A=\"1\"" + set("P007_PolygonMetaData") + '>' + line +
                                    "</PLN><GGP A=\"GGP1\"" + set("P007_GuidanceGroupMetaData") +
                                    "><GPN A=\"GPN1\" C=\"1\"" + set("P007_GuidanceMetaData") + '>' + line +
                                    "</GPN></GGP></PFD><TSK A=\"TSK1\" G=\"1\"" + set("P007_JobMetaData") +
                                    "><P917_comment>" + blanks + "</P917_comment></TSK></XFC>")
                .code);
  ExternalFileContent const& read = root.GetExternalFileContent();
  EXPECT_EQ(blanks, read.GetInnerExternalFileContent(0).GetFarm(0).GetMiddleName());
  Field const& field = read.GetInnerExternalFileContent(1).GetField(0);
  EXPECT_EQ(blanks, field.GetMiddleName());
  EXPECT_EQ(blanks, field.GetInnerField(0).GetPolygon(0).GetP007PolygonMetaData());
  GuidanceGroup const& group = field.GetInnerField(1).GetGuidanceGroup(0);
  EXPECT_EQ(blanks, group.GetP007GuidanceGroupMetaData());
  EXPECT_EQ(blanks, group.GetInnerGuidanceGroup(0).GetGuidancePattern(0).GetP007GuidanceMetaData());
  Task const& task = read.GetInnerExternalFileContent(2).GetTask(0);
  EXPECT_EQ(blanks, task.GetP007JobMetaData());
  EXPECT_EQ(blanks, task.GetInnerTask(0).GetP917Comment().GetP917Comment());

  Root asked;
  ASSERT_EQ(0,
            read_document(asked, question("<P917_Prompt>" + blanks + "</P917_Prompt><P917_Reply>" + blanks +
                                          "</P917_Reply><P917_Option>" + blanks + "</P917_Option>"))
                .code);
  EXPECT_EQ(blanks, asked.GetP917Question().GetPrompt());
  EXPECT_EQ(blanks, asked.GetP917Question().GetReply());
  EXPECT_EQ(blanks, asked.GetP917Question().GetOption(0));
}

// ---- Hostile numbers ----

TEST(Numbers, OfHundredsOfDigitsStayFinite) {
  const std::string zeros(400, '0');
  Root point;
  ASSERT_EQ(0, read_document(point, "<PNT A=\"1\" C=\"1." + zeros + "\" D=\"1." + zeros + "\"/>").code);
  EXPECT_EQ(1.0, point.GetPoint().GetNorth().get_as_float());
  EXPECT_EQ("1." + zeros, point.GetPoint().GetNorth().get_as_string()) << "every digit is kept";
  Root time;
  ASSERT_EQ(0, read_document(time, "<TIM A=\"2024-01-01T00:00:05." + zeros + "\" D=\"1\"/>").code);
  EXPECT_EQ("2024-01-01T00:00:05", time.GetTime().GetStart().get_as_string());
}

// ---- Cut off anywhere ----

TEST(Documents, CutOffAnywhereAreRefused) {
  const std::string document =
      "<?xml version=\"1.0\"?>\n<ISO11783_TaskData VersionMajor=\"4\" VersionMinor=\"3\" "
      "ManagementSoftwareManufacturer=\"a\" ManagementSoftwareVersion=\"1\" DataTransferOrigin=\"1\"><!-- c "
      "-->"
      "<CLD A=\"CLD1\"><CRG A=\"1\" B=\"2\" C=\"3\"/></CLD><Foo a='b'>t</Foo>"
      "<TSK A=\"TSK1\" G=\"1\"><P917_comment>hi</P917_comment><TZN A=\"1\"/></TSK></ISO11783_TaskData>";
  for (std::size_t length = 0; length != document.size(); ++length) {
    const int code = read_document(document.substr(0, length)).code;
    EXPECT_NE(0, code) << document.substr(0, length);
    EXPECT_TRUE(is_code_of_a_cut(code)) << code << ": " << document.substr(0, length);
  }
  EXPECT_EQ(0, read_document(document).code);
}

}  // namespace
