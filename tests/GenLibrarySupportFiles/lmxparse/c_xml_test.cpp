// The tag level: what it finds in a document, what it refuses and with which report, and what it skips.
//
// Documents are told as traces: <a b=[1]> a start tag, /> an empty one, </a> an end tag, (x) text, . the end
// of the input, and ! a failure. A [?] is a value that could not be expanded.
#include "GenLibrarySupportFiles/lmxparse/c_xml.h"

#include <gtest/gtest.h>
#include <pthread.h>

#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "GenLibrarySupportFiles/lmxparse/c_xml_reader.h"
#include "support/each_source.h"
#include "support/recording_error.h"

namespace {

using namespace std::string_literals;

// Reads the rest of a start tag. False when it is damaged.
bool trace_attributes(lmx::c_xml& xml, lmx::elmx_whitespace mode, std::string* trace) {
  std::string name, value;
  for (;;) {
    switch (xml.get_attribute_name(&name, false)) {
      case lmx::EXE_TOKEN:
        *trace += " " + name + "=";
        *trace += xml.get_attribute_value(&value, mode) ? "[" + value + "]" : "[?]";
        break;
      case lmx::EXE_START_TAG_END: *trace += ">"; return true;
      case lmx::EXE_ELEMENT_END: *trace += "/>"; return true;
      default: *trace += "!"; return false;
    }
  }
}

// Reads on to the end of the input or to the first failure.
std::string trace(lmx::c_xml& xml, lmx::elmx_whitespace mode = lmx::EXWS_PRESERVE) {
  std::string trace, name;
  lmx::c_xml_local local;
  for (;;) {
    switch (xml.get_element_name(&local, &name)) {
      case lmx::EXE_TOKEN:
        trace += "<" + name;
        if (!trace_attributes(xml, mode, &trace)) return trace;
        break;
      case lmx::EXE_ELEMENT_END: trace += "</" + name + ">"; break;
      case lmx::EXE_TEXT: trace += "(" + name + ")"; break;
      case lmx::EXE_EOM: return trace + ".";
      default: return trace + "!";
    }
  }
}

// Calls `use(xml, log)` for each kind of source over `document`.
template <class Use>
void with_xml(std::string const& document, Use use) {
  with_each_source(document, [&](lmx::c_read& read) {
    RecordingError log;
    lmx::c_xml xml(read, log, true);
    use(xml, log);
  });
}

struct Document {
  std::string caption, document, trace, reports;
};
class Documents : public testing::TestWithParam<Document> {};
TEST_P(Documents, AreTakenApart) {
  const auto& row = GetParam();
  SCOPED_TRACE(row.caption);
  with_xml(row.document, [&](lmx::c_xml& xml, RecordingError& log) {
    EXPECT_EQ(row.trace, trace(xml));
    EXPECT_EQ(row.reports, log.text());
  });
}

const char not_well_formed[] = "error NOT_WELL_FORMED XML not Well-Formed\n";  // of a tag's begin
const char bad_tag_end[] = "error NOT_WELL_FORMED XML not well-formed\n";      // of a start tag's end
const char unrecognised[] = "fatal BAD_CHAR_ENCODING Unrecognised character encoding\n";

INSTANTIATE_TEST_SUITE_P(
    Tags, Documents,
    testing::Values(
        Document{"empty file", "", ".", ""}, Document{"blanks only", " \t\r\n\v\f ", ".", ""},
        Document{"empty tag", "<a/>", "<a/>.", ""}, Document{"start and end tag", "<a></a>", "<a></a>.", ""},
        Document{"blanks in tags", "<a ></a >", "<a></a>.", ""},
        Document{"line ends in tags", "<a\r\n></a\r\n>", "<a></a>.", ""},
        Document{"blank between slash and angle", "<a/ >", "<a/>.", ""},
        Document{"every character of a name", "<_:aZ09.-\xC3\xA9/>", "<_:aZ09.-\xC3\xA9/>.", ""},
        Document{"a name of one colon", "<:/>", "<:/>.", ""},
        Document{"a name beyond ASCII", "<\xC3\xA9></\xC3\xA9>", "<\xC3\xA9></\xC3\xA9>.", ""},
        Document{"names are not compared", "<a></b>", "<a></b>.", ""},
        Document{"nor counted", "</a><b>", "</a><b>.", ""},
        Document{"several roots", "<a/><b/>", "<a/><b/>.", ""},
        Document{"behind a mark", "\xEF\xBB\xBF<a/>", "<a/>.", ""},
        Document{"a mark alone", "\xEF\xBB\xBF", ".", ""},
        Document{"a blank before the name", "< a>", "!", not_well_formed},
        Document{"a digit", "<1>", "!", not_well_formed}, Document{"a hyphen", "<-a>", "!", not_well_formed},
        Document{"a dot", "<.a>", "!", not_well_formed}, Document{"nothing", "<>", "!", not_well_formed},
        Document{"two angles", "<<a>", "!", not_well_formed},
        Document{"an ampersand", "<&a;>", "!", not_well_formed},
        Document{"an angle at the end", "<", "!", not_well_formed},
        Document{"end tag without a name", "</>", "!", ""},
        Document{"end tag with a blank first", "</ a>", "!", ""},
        Document{"end tag cut before its name", "</", "!", ""},
        Document{"end tag cut in its name", "</a", "!", not_well_formed},
        Document{"end tag cut behind its name", "</a ", "!", not_well_formed},
        Document{"end tag with an attribute", "</a b='1'>", "!", not_well_formed},
        Document{"end tag with a slash", "</a/>", "!", not_well_formed},
        Document{"end tag with a NUL", "</a\0>"s, "!", not_well_formed}));

INSTANTIATE_TEST_SUITE_P(
    Attributes, Documents,
    testing::Values(
        Document{"both quotes", "<a b=\"1\" c='2'/>", "<a b=[1] c=[2]/>.", ""},
        Document{"the other quote inside", "<a b=\"'\" c='\"'/>", "<a b=['] c=[\"]/>.", ""},
        Document{"no blank between", "<a b=\"1\"c=\"2\"/>", "<a b=[1] c=[2]/>.", ""},
        Document{"blanks around =", "<a b \n=\t '1' ></a>", "<a b=[1]></a>.", ""},
        Document{"empty value", "<a b=''/>", "<a b=[]/>.", ""},
        Document{"markup in a value", "<a b='<c/>]]>-->' />", "<a b=[<c/>]]>-->]/>.", ""},
        Document{"twice the same", "<a b='1' b='2'/>", "<a b=[1] b=[2]/>.", ""},
        Document{"line ends are folded and kept", "<a b=' x\r\ny\rz\n'/>", "<a b=[ x\ny\nz\n]/>.", ""},
        Document{"bytes beyond ASCII", "<a \xC3\xA9='\xE2\x82\xAC'/>", "<a \xC3\xA9=[\xE2\x82\xAC]/>.", ""},
        Document{"an 0xFF in a name is none", "<a b='1'\xFF='2'/>", "!", ""},
        Document{"names like a declaration",
                 "<a x='1' xm='2' xmln='3' xmlnsb='4' xmlns-='5' Xmlns='6' xml:ns='7'/>",
                 "<a x=[1] xm=[2] xmln=[3] xmlnsb=[4] xmlns-=[5] Xmlns=[6] xml:ns=[7]/>.", ""},
        Document{"and no blank before =", "<a xmln ='1'/>", "<a xmln=[1]/>.", ""},
        Document{"declarations are not delivered", "<a b='1' xmlns='u' p:c='2' xmlns:p = \"v\" d='3'/>",
                 "<a b=[1] p:c=[2] d=[3]/>.", ""},
        Document{"no =", "<a b c='1'/>", "!",
                 "fatal NOT_WELL_FORMED Schema is not Well Formed (expected '=', got 'c')\n"},
        Document{"no value", "<a b/>", "!",
                 "fatal NOT_WELL_FORMED Schema is not Well Formed (expected '=', got '/')\n"},
        Document{"no quote", "<a b=c/>", "!",
                 "fatal NOT_WELL_FORMED Schema is not Well Formed (expected '\"' or ''', got c)\n"},
        Document{"no quote in a declaration", "<a xmlns:p=u/>", "!",
                 "fatal NOT_WELL_FORMED Schema is not Well Formed (expected '\"' or ''', got u)\n"},
        Document{"no = in a declaration", "<a xmlns/>", "!",
                 "fatal NOT_WELL_FORMED Schema is not Well Formed (expected '=', got '/')\n"},
        Document{"a stray character", "<a b='1',c='2'/>", "<a b=[1]!", bad_tag_end},
        Document{"a stray digit", "<a 1='2'/>", "<a!", bad_tag_end},
        Document{"a stray quote", "<a 'b'/>", "<a!", bad_tag_end},
        Document{"an angle in the tag", "<a <b/>", "<a!", bad_tag_end},
        Document{"a NUL in the tag", "<a \0/>"s, "<a!", bad_tag_end},
        Document{"a question mark ends no element", "<a?>", "<a!", bad_tag_end},
        Document{"a character behind the slash", "<a/x>", "<a!", bad_tag_end},
        Document{"and behind a blank", "<a/ x>", "<a!", bad_tag_end},
        Document{"a slash at the end", "<a/", "<a!", bad_tag_end}));

INSTANTIATE_TEST_SUITE_P(
    Text, Documents,
    testing::Values(Document{"leading blanks go", "<a> \n x y </a>", "<a>(x y )</a>.", ""},
                    Document{"blanks alone are none", "<a> \n </a>", "<a></a>.", ""},
                    Document{"around an element", "<a>x<b/>y</a>", "<a>(x)<b/>(y)</a>.", ""},
                    Document{"at document level", "<a/>x<b/>", "<a/>(x)<b/>.", ""},
                    Document{"at the end", "<a>x", "<a>(x).", ""},
                    Document{"first of all", "x<a/>", ".", unrecognised},
                    Document{"first of all, behind a blank", " x<a/>", "(x)<a/>.", ""},
                    Document{"first of all, behind a mark", "\xEF\xBB\xBFx<a/>", "(x)<a/>.", ""},
                    Document{"line ends are folded", "<a>x\r\ny\rz</a>", "<a>(x\ny\nz)</a>.", ""},
                    Document{"an end of CDATA alone", "<a>]]></a>", "<a>(]]>)</a>.", ""},
                    Document{"a NUL", "<a>\0x</a>"s, "<a>(\0x)</a>."s, ""},
                    Document{"parted by a comment", "<a>x<!-- c -->y</a>", "<a>(x)(y)</a>.", ""},
                    Document{"a reference inside", "<a>x&amp;y&#65;z</a>", "<a>(x&yAz)</a>.", ""},
                    Document{"a reference first", "<a>&lt;x</a>", "<a>(<x)</a>.", ""},
                    Document{"a reference alone", "<a>&gt;</a>", "<a>(>)</a>.", ""},
                    Document{"a referenced blank first", "<a> &#32; x</a>", "<a>(  x)</a>.", ""},
                    Document{"an unknown reference", "<a>&foo;</a>", "<a>!", ""},
                    Document{"an unknown reference in text", "<a>x&foo;y</a>", "<a>!", ""},
                    Document{"a bare ampersand", "<a>A & B</a>", "<a>!", ""},
                    Document{"a bad reference", "<a>&#X41;</a>", "<a>!", ""},
                    Document{"CDATA", "<a><![CDATA[ <b>&lt; ]]></a>", "<a>( <b>&lt; )</a>.", ""},
                    Document{"empty CDATA", "<a><![CDATA[]]></a>", "<a>()</a>.", ""},
                    Document{"brackets in CDATA", "<a><![CDATA[]x]]y]]]]></a>", "<a>(]x]]y]])</a>.", ""},
                    Document{"an angle in CDATA", "<a><![CDATA[]>]] >]]></a>", "<a>(]>]] >)</a>.", ""},
                    Document{"two CDATA sections", "<a><![CDATA[x]]><![CDATA[y]]></a>", "<a>(x)(y)</a>.", ""},
                    Document{"CDATA without its end", "<a><![CDATA[x", "<a>(x).", ""},
                    Document{"CDATA misspelt", "<a><![CDAT[x]]></a>", "<a>!",
                             "error NOT_WELL_FORMED XML not Well-Formed\n"
                             "error NOT_WELL_FORMED XML not Well-Formed\n"}));

TEST(TextBetweenTags, IsShapedByTheModeOfTheLastValue) {
  struct Row {
    lmx::elmx_whitespace mode;
    const char* text;
  };
  for (const bool normalise : {true, false})
    for (auto const& row : {Row{lmx::EXWS_PRESERVE, "y \n z "}, Row{lmx::EXWS_REPLACE, "y   z "},
                            Row{lmx::EXWS_COLLAPSE, "y z"}})
      with_each_source("<a b='x'> y \n z </a>", [&](lmx::c_read& read) {
        lmx::c_error log;
        lmx::c_xml xml(read, log, normalise);
        EXPECT_EQ("<a b=[x]>("s + row.text + ")</a>.", trace(xml, row.mode));
      });
}

const char late_declaration[] = "fatal BAD_XML_DECL XML declaration not at start of document\n";
const char late_doctype[] = "error BAD_DTD Document Type Declaration not at start of document\n";
const char second_doctype[] = "error BAD_DTD Document Type Declaration already read\n";
const char comment_end[] = "warning BAD_COMMENT End of comment not Well-Formed\n";
const std::string decl = "<?xml version='1.0'?>";

INSTANTIATE_TEST_SUITE_P(
    Prolog, Documents,
    testing::Values(
        Document{"declaration", decl + "<a/>", "<a/>.", ""},
        Document{"declaration behind a mark", "\xEF\xBB\xBF" + decl + "<a/>", "<a/>.", ""},
        Document{"declaration behind blanks", " \n" + decl + "<a/>", "<a/>.", ""},
        Document{"declaration behind a comment", "<!-- c -->" + decl + "<a/>", "<a/>.", ""},
        Document{"declaration only", decl, ".", ""},
        Document{"line end in the declaration", "<?xml\nversion='1.0'?><a/>", "<a/>.", ""},
        Document{"second declaration", decl + decl + "<a/>", "!", late_declaration},
        Document{"second declaration behind blanks", decl + "\n" + decl + "<a/>", "!", late_declaration},
        Document{"declaration inside", "<a>" + decl + "</a>", "<a>!", late_declaration},
        Document{"declaration behind the root", "<a/>" + decl, "<a/>!", late_declaration},
        Document{"declaration behind text", " x" + decl, "(x)!", late_declaration},
        Document{"no version", "<?xml encoding='UTF-8'?><a/>", "!",
                 "error BAD_XML_DECL Version not present in XML Decl\n"},
        Document{"version 2.0", "<?xml version='2.0'?><a/>", "!",
                 "error BAD_XML_VERSION XML version 2.0 not understood\n"},
        Document{"unknown encoding", "<?xml version='1.0' encoding='KOI8-R'?><a/>", "!",
                 "fatal BAD_CHAR_ENCODING Unknown character encoding specified\n"},
        Document{"encoding that the bytes are not", "<?xml version='1.0' encoding='UTF-16'?><a/>", "!",
                 "fatal ENCODING_MISMATCH Mis-match between specfied encoding and byte format\n"},
        Document{"other damage", "<?xml version='1.0' encoding?x><a/>", "!", ""},
        Document{"a declared encoding counts from there on",
                 "<?xml version='1.0' encoding='iso-8859-1'?><a b='\xE9\x80'/>", "<a b=[\xC3\xA9\xC2\x80]/>.",
                 ""},
        Document{"DOCTYPE", "<!DOCTYPE a><a/>", "<a/>.", ""},
        Document{"DOCTYPE behind a declaration", decl + "<!DOCTYPE a><a/>", "<a/>.", ""},
        Document{"DOCTYPE with an identifier", "<!DOCTYPE a PUBLIC 'x' \"y\"><a/>", "<a/>.", ""},
        Document{"an angle in it ends it", "<!DOCTYPE a SYSTEM 'x>y'><a/>", "(y'>)<a/>.", ""},
        Document{"comments around it", "<!-- c --><!DOCTYPE a><!-- d --><?p q?><a/>", "<a/>.", ""},
        Document{"second DOCTYPE", "<!DOCTYPE a><!DOCTYPE a><a/>", "!", second_doctype},
        Document{"DOCTYPE inside", "<a><!DOCTYPE a></a>", "<a>!", late_doctype},
        Document{"second DOCTYPE inside", "<!DOCTYPE a><a><!DOCTYPE a></a>", "<a>!", late_doctype},
        Document{"DOCTYPE behind the root", "<a/><!DOCTYPE a>", "<a/>!", late_doctype},
        Document{"DOCTYPE behind CDATA", "<![CDATA[]]><!DOCTYPE a>", "()!", late_doctype},
        Document{"DOCTYPE cut", "<!DOCTYPE a", "!", ""},
        Document{"DOCTYPE in lower case", "<!doctype a><a/>", "!", ""},
        Document{"DOCTYPE misspelt", "<!DOCTYPF a><a/>", "!", ""}));

INSTANTIATE_TEST_SUITE_P(
    CommentsAndInstructions, Documents,
    testing::Values(
        Document{"comments anywhere", "<!-- a --><a><!----><b/><!-- <c> --></a><!-- -->", "<a><b/></a>.", ""},
        Document{"hyphens inside", "<!-- a -- b --><a/>", "<a/>.", ""},
        Document{"one hyphen more at the end", "<!-- a ---><a/>", "<a/>.", comment_end},
        Document{"comment cut", "<a><!-- x --", "<a>!", ""}, Document{"one hyphen", "<!-x--><a/>", "!", ""},
        Document{"no such markup", "<!x><a/>", "!", ""}, Document{"nothing behind the mark", "<!", "!", ""},
        Document{"after a warning", "<!-- x ---><!x>", "!", comment_end},
        Document{"after an external entity's warning", "<!DOCTYPE a [<!ENTITY e SYSTEM 'x'>]><!x>", "!",
                 "warning EXTERNAL_ENTITY External Entity definitions not supported\n"},
        Document{"after an unknown parameter entity", "<!DOCTYPE a [%p;]><!x>", "!",
                 "error ENTITY_NOT_FOUND Entity '%p' not found\n"},
        Document{"instructions anywhere", "<?p?><a><?p q?><b/><?p > ?></a><?p q?>", "<a><b/></a>.", ""},
        Document{"an instruction named like the declaration", "<?xml-stylesheet href='x'?><a/>", "<a/>.", ""},
        Document{"and after content", "<a/><?xml-stylesheet href='x'?><?xmlx y?>", "<a/>.", ""},
        Document{"an instruction cut", "<a><?p q", "<a>!", ""},
        Document{"x alone runs on to the next end", "<?x?><a/><?p?><b/>", "<b/>.", ""},
        Document{"xm too", "<?xm?><a/><?p?><b/>", "<b/>.", ""},
        Document{"xml too", "<?xml?><a/><?p?><b/>", "<b/>.", ""},
        Document{"no name at all too", "<\?\?><a/><?p?><b/>", "<b/>.", ""},
        Document{"x alone without another end", "<?x?><a/>", "!", ""},
        Document{"other names do not", "<?y?><a/>", "<a/>.", ""},
        Document{"x with a blank does not", "<?x ?><a/>", "<a/>.", ""}));

// Every place where the input can end inside a tag.
INSTANTIATE_TEST_SUITE_P(Cut, Documents,
                         testing::Values(Document{"in the name", "<a", "!", not_well_formed},
                                         Document{"behind the name and a blank", "<a ", "!", ""},
                                         Document{"in an attribute's name", "<a b", "!",
                                                  "fatal UNEXPECTED_EOM Unexpected end of file\n"},
                                         Document{"behind an attribute's name", "<a b ", "!",
                                                  "fatal UNEXPECTED_EOM Unexpected end of file\n"},
                                         Document{"in a name like a declaration", "<a xml", "!",
                                                  "fatal UNEXPECTED_EOM Unexpected end of file\n"},
                                         Document{"behind a declaration's name", "<a xmlns", "!",
                                                  "fatal UNEXPECTED_EOM Unexpected end of file\n"},
                                         Document{"behind a complete attribute", "<a b='1'", "!", ""},
                                         Document{"and a blank", "<a b='1' ", "!", ""},
                                         Document{"between items", "<a><b/>", "<a><b/>.", ""}));

TEST(CutInAValue, IsFatal) {
  for (const std::string document : {"<a b=", "<a b= ", "<a b='", "<a b='x", "<a b=\"x'", "<a xmlns='u"}) {
    SCOPED_TRACE(document);
    with_xml(document, [](lmx::c_xml& xml, RecordingError& log) {
      EXPECT_EQ("!", trace(xml));
      ASSERT_EQ(1u, log.reports.size());
      EXPECT_EQ(lmx::EET_FATAL, log.reports[0].type);
      EXPECT_EQ(lmx::ELMX_NOT_WELL_FORMED, log.reports[0].code);
    });
  }
}

TEST(NulInAValue, IsFatalLikeTheEndOfInput) {
  for (auto const& document : {"<a b='1\0x'/>"s, "<a b='\0'/>"s, "<a b='1' c=\"\0\" d='2'/>"s,
                               "<a xmlns:p='u\0v'/>"s, "<a b='\0\0\0"s}) {
    with_xml(document, [](lmx::c_xml& xml, RecordingError& log) {
      EXPECT_EQ("!", trace(xml));
      EXPECT_EQ(".", trace(xml));
      ASSERT_EQ(1u, log.reports.size());
      EXPECT_EQ(lmx::EET_FATAL, log.reports[0].type);
      EXPECT_EQ(lmx::ELMX_NOT_WELL_FORMED, log.reports[0].code);
    });
  }
}

TEST(BadUtf8, LooksLikeTheEndOfInputWhereItStands) {
  struct Row {
    std::string caption, document, trace;
    lmx::elmx_error_type type;
    lmx::elmx_error code;
  };
  const Row rows[] = {
      {"in a value", "<a b='x\x80y'/>", "!", lmx::EET_FATAL, lmx::ELMX_NOT_WELL_FORMED},
      {"in a value, a bad second byte", "<a b='\xE0y'/>", "!", lmx::EET_FATAL, lmx::ELMX_NOT_WELL_FORMED},
      {"between tags", "<a>\xFF</a>", "<a>.", lmx::EET_NONE, lmx::ELMX_OK},
      {"as the second byte", "<\x80/>", "!", lmx::EET_ERROR, lmx::ELMX_NOT_WELL_FORMED},
      {"as the second byte, a bad pair", "<\xC0\xAF/>", "!", lmx::EET_ERROR, lmx::ELMX_NOT_WELL_FORMED},
      {"in a name", "<a\x80/>", "!", lmx::EET_ERROR, lmx::ELMX_NOT_WELL_FORMED},
      {"a Latin-1 letter passes and its quote still closes", "<a b='\xE9'/>", "<a b=[\xE9]/>.", lmx::EET_NONE,
       lmx::ELMX_OK},
      {"another", "<a b='gr\xFC\xDF'/>", "!", lmx::EET_FATAL, lmx::ELMX_NOT_WELL_FORMED},
      {"a two-byte lead takes the quote along", "<a b='\xDF'/>", "<a b=[\xDF]/>.", lmx::EET_NONE,
       lmx::ELMX_OK},
  };
  for (auto const& row : rows) {
    SCOPED_TRACE(row.caption);
    with_xml(row.document, [&](lmx::c_xml& xml, RecordingError& log) {
      EXPECT_EQ(row.trace, trace(xml));
      EXPECT_EQ(row.type, log.last_type());
      EXPECT_EQ(row.code, log.last_code());
    });
  }
}

TEST(AfterAFailure, ReadingGoesOnBehindItUnlessItWasFatal) {
  struct Row {
    const char *caption, *document, *failure, *then;
  };
  for (auto const& row :
       {Row{"a bad tag is passed over, quotes minded", "<1 b='>'><c/>", "!", "<c/>."},
        Row{"so is bad markup", "<!x '>'><c/>", "!", "<c/>."},
        Row{"an end tag stops where it went wrong", "</a b><c/>", "!", "(>)<c/>."},
        Row{"an unknown reference", "<a>&foo;<c/>", "<a>!", "<c/>."},
        Row{"nothing behind a fatal one", "<a b=c><c/>", "!", "."},
        Row{"nor behind a late declaration", "<a/><?xml version='1.0'?><c/>", "<a/>!", "."}}) {
    SCOPED_TRACE(row.caption);
    with_xml(row.document, [&](lmx::c_xml& xml, RecordingError&) {
      EXPECT_EQ(row.failure, trace(xml));
      EXPECT_EQ(row.then, trace(xml));
    });
  }
}

TEST(AfterAFailure, OfTextTheDocumentIsPastItsProlog) {
  with_xml(" x&foo;<?xml version='1.0'?><a/>", [](lmx::c_xml& xml, RecordingError& log) {
    EXPECT_EQ("!", trace(xml));
    EXPECT_EQ(lmx::ELMX_OK, log.last_code());
    EXPECT_EQ("!", trace(xml));
    EXPECT_EQ(lmx::EET_FATAL, log.last_type());
    EXPECT_EQ(lmx::ELMX_BAD_XML_DECL, log.last_code());
  });
}

TEST(UnterminatedSection, EndsWithTheBracketsThatItHas) {
  for (auto const& [document, text] : std::map<std::string, std::string>{{"<![CDATA[ab]]", "ab"},
                                                                         {"<![CDATA[ab]]]", "ab]"},
                                                                         {"<![CDATA[ab]", "ab]"},
                                                                         {"<![CDATA[ab", "ab"},
                                                                         {"<![CDATA[]]", ""}}) {
    with_xml("<?xml version='1.0'?>" + document, [&, text = text](lmx::c_xml& xml, RecordingError& log) {
      std::string name;
      EXPECT_EQ(lmx::EXE_TEXT, xml.get_element_name(nullptr, &name));
      EXPECT_EQ(text, name);
      EXPECT_EQ("", log.text());
    });
  }
}

TEST(AfterAFailure, AnEntityBeingReadEndsWithTheInput) {
  for (const std::string value : {"x<b c=d/>z", "<b c=d/>z", "x<?xml version=\"1.0\"?>z"})
    with_xml("<!DOCTYPE a [<!ENTITY e '" + value + "'>]><a>&e;<c/></a>",
             [](lmx::c_xml& xml, RecordingError& log) {
               const std::string until_failure = trace(xml);
               EXPECT_EQ('!', until_failure.back()) << until_failure;
               EXPECT_TRUE(log.has_fatal());
               EXPECT_EQ(".", trace(xml));
               EXPECT_EQ(-1, xml.getter().get());
             });
}

TEST(Reports, CarrySourceAndLine) {
  MemoryRead read("<a>\n<1>", "memory");
  RecordingError log;
  lmx::c_xml xml(read, log, true);
  trace(xml);
  ASSERT_EQ(1u, log.reports.size());
  EXPECT_EQ("memory", log.reports[0].source);
  EXPECT_EQ(2, log.reports[0].line);
}

// --- Attribute values ------------------------------------------------------------------------------------

TEST(AttributeValues, AreExpandedAndShapedByTheMode) {
  struct Row {
    const char *caption, *raw;
    const char *preserve, *replace, *collapse;
  };
  const Row rows[] = {
      {"blanks", "  a  b  ", "  a  b  ", "  a  b  ", "a b"},
      {"line ends", "a\r\nb\tc", "a\nb\tc", "a b c", "a b c"},
      {"vertical tab and form feed", "\va\fb\v", "\va\fb\v", " a b ", "a b"},
      {"a predefined entity passes the blank by", "a &lt;b", "a <b", "a <b", "a< b"},
      {"at the start too", " &lt;a", " <a", " <a", "< a"},
      {"so does a reference beyond ASCII", "a &#233;b", "a \xC3\xA9\x62", "a \xC3\xA9\x62", "a\xC3\xA9 b"},
      {"a referenced blank", "&#32;a", " a", " a", "a"},
      {"a referenced line feed", "a&#10;b", "a\nb", "a b", "a b"},
      {"no semicolon", "&#65 b", "A b", "A b", "A b"},
      {"no semicolon before a multi-byte character", "&#65\xC3\xA9", "A\xC3\xA9", "A\xC3\xA9", "A\xC3\xA9"},
      {"a referenced quote", "&quot;&#39;", "\"'", "\"'", "\"'"},
      {"a character of four bytes", "&#x1F600;", "\xF0\x9F\x98\x80", "\xF0\x9F\x98\x80", "\xF0\x9F\x98\x80"},
  };
  const lmx::elmx_whitespace modes[] = {lmx::EXWS_PRESERVE, lmx::EXWS_REPLACE, lmx::EXWS_COLLAPSE};
  for (auto const& row : rows) {
    SCOPED_TRACE(row.caption);
    const char* const expected[] = {row.preserve, row.replace, row.collapse};
    for (const auto mode : modes)
      with_xml("<a b=\""s + row.raw + "\" c=' '/>", [&](lmx::c_xml& xml, RecordingError& log) {
        EXPECT_EQ("<a b=["s + expected[mode] + "] c=[" + (mode == lmx::EXWS_COLLAPSE ? "" : " ") + "]/>.",
                  trace(xml, mode));
        EXPECT_EQ("", log.text());
      });
  }
}

TEST(AttributeValues, KeepReferencedWhiteSpaceWithoutNormalisation) {
  with_each_source("<a b=' x&#10;y &#32; z '/>", [](lmx::c_read& read) {
    lmx::c_error log;
    lmx::c_xml xml(read, log, false);
    EXPECT_EQ("<a b=[x\ny z]/>.", trace(xml, lmx::EXWS_COLLAPSE));
  });
}

TEST(AttributeValues, ThatCanNotBeExpandedLeaveTheNextOneAlone) {
  for (const std::string value : {"&", "&foo;", "x &foo; y", "A & B", "&#X41;", "&#;", "&#x10FFFF;", "x&",
                                  "&#", "&#x100000041;", "&\xC3\xA9;"}) {
    SCOPED_TRACE(value);
    with_xml("<a b='" + value + "' c='2'/><d/>", [](lmx::c_xml& xml, RecordingError& log) {
      EXPECT_EQ("<a b=[?] c=[2]/><d/>.", trace(xml));
      EXPECT_EQ("", log.text());
    });
  }
}

TEST(AttributeValues, AreSkippedUnexpanded) {
  with_xml("<a b='A & B' c='2'/>", [](lmx::c_xml& xml, RecordingError&) {
    std::string name, value;
    lmx::c_xml_local local;
    EXPECT_EQ(lmx::EXE_TOKEN, xml.get_element_name(&local, &name));
    EXPECT_EQ(lmx::EXE_TOKEN, xml.get_attribute_name(&name, false));
    EXPECT_TRUE(xml.skip_attribute_value());
    EXPECT_EQ(lmx::EXE_TOKEN, xml.get_attribute_name(&name, false));
    EXPECT_EQ("c", name);
    EXPECT_TRUE(xml.get_attribute_value(&value, lmx::EXWS_PRESERVE));
    EXPECT_EQ("2", value);
    EXPECT_EQ(lmx::EXE_ELEMENT_END, xml.get_attribute_name(&name, false));
    EXPECT_EQ("", name);
  });
}

TEST(AttributeValues, AreReadOrSteppedOverOnce) {
  with_xml("<a b='1' c='2' d='3'/>", [](lmx::c_xml& xml, RecordingError&) {
    std::string name, value;
    xml.get_element_name(nullptr, &name);
    xml.get_attribute_name(&name, false);
    EXPECT_TRUE(xml.get_attribute_value(&value, lmx::EXWS_PRESERVE));
    EXPECT_EQ("1", value);
    EXPECT_FALSE(xml.get_attribute_value(&value, lmx::EXWS_PRESERVE)) << "it has been read";
    EXPECT_EQ("", value);
    EXPECT_TRUE(xml.skip_attribute_value());
    EXPECT_EQ(lmx::EXE_TOKEN, xml.get_attribute_name(&name, false));
    EXPECT_EQ("c", name);
    EXPECT_TRUE(xml.skip_attribute_value());
    EXPECT_TRUE(xml.skip_attribute_value());
    EXPECT_FALSE(xml.get_attribute_value(&value, lmx::EXWS_PRESERVE)) << "it has been stepped over";
    EXPECT_EQ(lmx::EXE_TOKEN, xml.get_attribute_name(&name, false));
    EXPECT_EQ("d", name);
  });
}

TEST(AttributeValues, StayBehindTheEndOfTheTagUntilTheNextStartTag) {
  with_xml("<?xml version='1.0'?><a b='1' c='2'>text</a><d e='3'/>", [](lmx::c_xml& xml, RecordingError&) {
    std::string name, value;
    xml.get_element_name(nullptr, &name);
    xml.get_attribute_name(&name, false);
    EXPECT_TRUE(xml.move_to_start_tag_end(nullptr));
    EXPECT_TRUE(xml.get_attribute_value(&value, lmx::EXWS_PRESERVE));
    EXPECT_EQ("1", value);
    EXPECT_EQ(lmx::EXE_TEXT, xml.get_element_name(nullptr, &name));
    EXPECT_EQ(lmx::EXE_ELEMENT_END, xml.get_element_name(nullptr, &name));
    EXPECT_EQ(lmx::EXE_TOKEN, xml.get_attribute_name(&name, false));
    EXPECT_EQ("c", name);
    EXPECT_TRUE(xml.get_attribute_value(&value, lmx::EXWS_PRESERVE));
    EXPECT_EQ("2", value);
    EXPECT_EQ(lmx::EXE_TOKEN, xml.get_element_name(nullptr, &name));
    EXPECT_FALSE(xml.get_attribute_value(&value, lmx::EXWS_PRESERVE));
    EXPECT_EQ(lmx::EXE_TOKEN, xml.get_attribute_name(&name, false));
    EXPECT_EQ("e", name);
  });
}

TEST(AttributeValues, AreLookedForAgainFromTheFirstOnceOneWasLookedFor) {
  with_xml("<?xml version='1.0'?><a b='1'>text</a>", [](lmx::c_xml& xml, RecordingError&) {
    std::string name, value;
    xml.get_element_name(nullptr, &name);
    xml.get_attribute_name(&name, false);
    xml.skip_attribute_value();
    EXPECT_EQ(lmx::EXE_START_TAG_END, xml.get_attribute_name(&name, false));
    EXPECT_FALSE(xml.get_named_attribute(nullptr, lmx::nsid_none, "b", &value)) << "all have been passed";
    EXPECT_TRUE(xml.get_named_attribute(nullptr, lmx::nsid_none, "b", &value));
    EXPECT_EQ("1", value);
  });
}

TEST(AttributeValues, NotTakenAreTakenForTheNextName) {
  with_xml("<?xml version='1.0'?><a b='1' c='2'/>", [](lmx::c_xml& xml, RecordingError&) {
    std::string name, value;
    xml.get_element_name(nullptr, &name);
    for (char const* const expected : {"b", "'1", "c", "'2"}) {
      EXPECT_EQ(lmx::EXE_TOKEN, xml.get_attribute_name(&name, false));
      EXPECT_EQ(expected, name);
    }
    EXPECT_EQ(lmx::EXE_ELEMENT_END, xml.get_attribute_name(&name, false));
  });
}

TEST(AttributeValues, WhatIsPushedBackBehindThemComesBeforeTheEndOfTheTag) {
  with_xml("<?xml version='1.0'?><a b='1'/>", [](lmx::c_xml& xml, RecordingError&) {
    std::string name;
    xml.get_element_name(nullptr, &name);
    xml.get_attribute_name(&name, false);
    xml.skip_attribute_value();
    xml.getter().unget('>');
    EXPECT_EQ(lmx::EXE_START_TAG_END, xml.get_attribute_name(&name, false));
    EXPECT_EQ('/', xml.getter().get());
  });
}

TEST(AttributeValues, CanBeLookedForBehindTheOneJustNamed) {
  for (char const* const sought : {"y", "z"})
    with_xml("<?xml version='1.0'?><a x='1' y='2' z='3'/>", [sought](lmx::c_xml& xml, RecordingError&) {
      std::string name, value;
      xml.get_element_name(nullptr, &name);
      xml.get_attribute_name(&name, false);
      EXPECT_TRUE(xml.get_named_attribute(nullptr, lmx::nsid_none, sought, &value)) << sought;
      EXPECT_EQ(*sought == 'y' ? "2" : "3", value);
      EXPECT_EQ(lmx::EXE_TOKEN, xml.get_attribute_name(&name, false));
      EXPECT_EQ("x", name) << "the attributes start over";
      EXPECT_TRUE(xml.get_attribute_value(&value, lmx::EXWS_PRESERVE));
      EXPECT_EQ("1", value);
    });
}

TEST(AttributeValues, CanBeAskedForWhereThereIsNone) {
  with_xml("<a b='1'/>", [](lmx::c_xml& xml, RecordingError&) {  // before anything was read
    std::string value;
    xml.skip_attribute_value();
    xml.get_attribute_value(&value, lmx::EXWS_PRESERVE);
    EXPECT_EQ("", value);
    EXPECT_EQ("<a b=[1]/>.", trace(xml));
  });
  for (const char* document : {"<a>", "<a b='1'>"})
    with_xml(document, [](lmx::c_xml& xml, RecordingError&) {
      std::string name, value;
      xml.get_element_name(nullptr, &name);
      if (xml.get_attribute_name(&name, false) == lmx::EXE_TOKEN) {
        xml.skip_attribute_value();
        for (int i = 0; i < 3; ++i) {
          xml.skip_attribute_value();
          xml.get_attribute_value(&value, lmx::EXWS_PRESERVE);
          EXPECT_EQ("", value);
        }
        EXPECT_EQ(lmx::EXE_START_TAG_END, xml.get_attribute_name(&name, false));
      }
      xml.skip_attribute_value();
      xml.get_attribute_value(&value, lmx::EXWS_PRESERVE);
      EXPECT_EQ("", value);
    });
}

static_assert(std::is_same_v<std::size_t, decltype(lmx::c_attribute_data::m_index)>,
              "a value may be as long as memory holds");

TEST(CapturedAttributes, NeverPassTheirLastByte) {
  struct Row {
    const char* caption;
    std::string bytes;
  };
  for (auto const& [caption, bytes] :
       {Row{"nothing captured", ""}, Row{"no attribute", "\0"s}, Row{"one", "a\0'1\0\0"s},
        Row{"one, not closed", "a\0'1\0"s}, Row{"one without an end", "a\0'1"s}, Row{"a name", "a\0"s},
        Row{"a name without an end", "a"s}, Row{"a quote", "a\0'"s}}) {
    SCOPED_TRACE(caption);
    const std::size_t last = bytes.empty() ? 0 : bytes.size() - 1;
    lmx::c_attribute_data data;
    data.m_data = bytes;
    std::string name;
    for (int i = 0; i < 3; ++i) {
      data.skip_value();
      EXPECT_LE(data.m_index, last) << "skipped a value";
      if (data.m_index > last) break;  // the next step would read beyond it
      data.take_name(&name);
      EXPECT_LE(data.m_index, last) << "took a name";
      if (data.m_index > last) break;
    }
  }
}

TEST(CapturedAttributes, AreWalkedByNameAndValue) {
  lmx::c_attribute_data data;
  data.m_data = "a\0'1\0bc\0\"2 3\0"s;
  data.close();
  std::string names, name;
  while (data.has_next()) {
    data.take_name(&name);
    names += name + ";";
    data.skip_value();
  }
  EXPECT_EQ("a;bc;", names);
  data.clear();
  EXPECT_TRUE(data.m_data.empty());
  EXPECT_EQ(0u, data.m_index);
  EXPECT_FALSE(data.has_next());
}

TEST(Attributes, EndAtAQuestionMarkInADeclaration) {
  struct Row {
    const char *caption, *document;
    lmx::elxp_xml_event event;
  };
  for (auto const& row :
       {Row{"?>", "<a b='1'?>", lmx::EXE_ELEMENT_END}, Row{"? >", "<a b='1' ? >", lmx::EXE_ELEMENT_END},
        Row{">", "<a b='1'>", lmx::EXE_START_TAG_END}, Row{"/>", "<a b='1'/>", lmx::EXE_ERROR},
        Row{"?x", "<a b='1'?x", lmx::EXE_ERROR}}) {
    SCOPED_TRACE(row.caption);
    with_xml(row.document, [&](lmx::c_xml& xml, RecordingError& log) {
      std::string name;
      xml.get_element_name(nullptr, &name);
      EXPECT_EQ(lmx::EXE_TOKEN, xml.get_attribute_name(&name, true));
      xml.skip_attribute_value();
      EXPECT_EQ(row.event, xml.get_attribute_name(&name, true));
      EXPECT_EQ(row.event == lmx::EXE_ERROR ? bad_tag_end : "", log.text());
    });
  }
}

// --- Namespace declarations ------------------------------------------------------------------------------

TEST(NamespaceDeclarations, AreKnownBeforeTheFirstAttribute) {
  with_xml("<a p:b='1' xmlns:p='u' xmlns='v&amp;w'/>", [](lmx::c_xml& xml, RecordingError&) {
    std::string name;
    lmx::c_xml_local local;
    EXPECT_EQ(lmx::EXE_TOKEN, xml.get_element_name(&local, &name));
    EXPECT_NE(0, xml.find_enumerated_namespace("u"));
    EXPECT_NE(0, xml.find_enumerated_namespace("v&w"));
    EXPECT_EQ(xml.find_enumerated_namespace("u"), xml.get_ns_id(&local, "p:b"));
    EXPECT_EQ(xml.find_enumerated_namespace("v&w"), xml.get_ns_id(&local, "a"));
  });
}

TEST(NamespaceDeclarations, AreOrdinaryAttributesWithoutAScope) {
  with_xml("<a xmlns='u' xmlns:p='v' xmlnsq='w'>", [](lmx::c_xml& xml, RecordingError&) {
    std::string name, all;
    EXPECT_EQ(lmx::EXE_TOKEN, xml.get_element_name(nullptr, &name));
    EXPECT_TRUE(trace_attributes(xml, lmx::EXWS_PRESERVE, &all));
    EXPECT_EQ(" xmlns=[u] xmlns:p=[v] xmlnsq=[w]>", all);
    EXPECT_EQ(0, xml.find_enumerated_namespace("u"));
  });
}

// --- Element values --------------------------------------------------------------------------------------

struct ElementValue {
  std::string caption, content;
  lmx::elmx_whitespace mode;
  bool result;
  std::string value, reports, then;  // `then`: the trace of what follows
};
class ElementValues : public testing::TestWithParam<ElementValue> {};
TEST_P(ElementValues, EndAtTheFirstTag) {
  const auto& row = GetParam();
  SCOPED_TRACE(row.caption);
  with_xml("<a>" + row.content, [&](lmx::c_xml& xml, RecordingError& log) {
    std::string name, value = "old";
    xml.get_element_name(nullptr, &name);
    ASSERT_TRUE(xml.move_to_start_tag_end(nullptr));
    EXPECT_EQ(row.result, xml.get_element_value(&value, row.mode, true));
    EXPECT_EQ(row.reports, log.text());
    if (row.result) {
      EXPECT_EQ(row.value, value);
      EXPECT_EQ(row.then, trace(xml));
    }
  });
}
const char premature[] = "error UNEXPECTED_EOM Premature end of file encountered\n";
INSTANTIATE_TEST_SUITE_P(
    Value, ElementValues,
    testing::Values(
        ElementValue{"none", "</a>", lmx::EXWS_PRESERVE, true, "", "", "</a>."},
        ElementValue{"preserved", " x\r\ny </a>", lmx::EXWS_PRESERVE, true, " x\ny ", "", "</a>."},
        ElementValue{"replaced", " x\r\ny </a>", lmx::EXWS_REPLACE, true, " x y ", "", "</a>."},
        ElementValue{"collapsed", " x \n y </a>", lmx::EXWS_COLLAPSE, true, "x y", "", "</a>."},
        ElementValue{"parted by a comment", "1<!-- c -->2</a>", lmx::EXWS_PRESERVE, true, "12", "", "</a>."},
        ElementValue{"by a comment with a bad end", "1<!-- c --->2</a>", lmx::EXWS_PRESERVE, true, "12",
                     comment_end, "</a>."},
        ElementValue{"by an instruction", "1<?p q?>2</a>", lmx::EXWS_PRESERVE, true, "12", "", "</a>."},
        ElementValue{"by CDATA", "1<![CDATA[<2&lt;]]>3</a>", lmx::EXWS_PRESERVE, true, "1<2&lt;3", "",
                     "</a>."},
        ElementValue{"CDATA keeps its blanks", "<![CDATA[ x ]]></a>", lmx::EXWS_COLLAPSE, true, " x ", "",
                     "</a>."},
        ElementValue{"CDATA passes a blank by", "1 <![CDATA[2]]>3</a>", lmx::EXWS_COLLAPSE, true, "12 3", "",
                     "</a>."},
        ElementValue{"a child ends it", "x<b/>y</a>", lmx::EXWS_PRESERVE, true, "x", "", "<b/>(y)</a>."},
        ElementValue{"references", "&lt;&#65;&amp;</a>", lmx::EXWS_PRESERVE, true, "<A&", "", "</a>."},
        ElementValue{"a referenced angle is no markup", "&#60;b/></a>", lmx::EXWS_PRESERVE, true, "<b/>", "",
                     "</a>."},
        ElementValue{"a referenced line feed", "x&#10;y&#10;</a>", lmx::EXWS_COLLAPSE, true, "x y", "",
                     "</a>."},
        ElementValue{"no semicolon before a tag", "&#65</a>", lmx::EXWS_PRESERVE, true, "A", "", "</a>."},
        ElementValue{"no semicolon before a multi-byte character", "&#65\xC3\xA9</a>", lmx::EXWS_PRESERVE,
                     true, "A\xC3\xA9", "", "</a>."},
        ElementValue{"unknown reference", "x&foo;</a>", lmx::EXWS_PRESERVE, false, "", "", ""},
        ElementValue{"bare ampersand", "A & B</a>", lmx::EXWS_PRESERVE, false, "", "", ""},
        ElementValue{"cut", "x", lmx::EXWS_PRESERVE, false, "", premature, ""},
        ElementValue{"cut in a comment", "x<!-- ", lmx::EXWS_PRESERVE, false, "", premature, ""},
        ElementValue{"cut in an instruction", "x<?p ", lmx::EXWS_PRESERVE, false, "", premature, ""},
        ElementValue{"cut in CDATA", "x<![CDATA[y", lmx::EXWS_PRESERVE, false, "", premature, ""},
        ElementValue{"bad bytes", "x\x80y</a>", lmx::EXWS_PRESERVE, false, "", premature, ""},
        ElementValue{"other markup", "x<!y></a>", lmx::EXWS_PRESERVE, false, "", bad_tag_end, ""},
        ElementValue{"half a comment's mark", "x<!-y--></a>", lmx::EXWS_PRESERVE, false, "", bad_tag_end, ""},
        ElementValue{"CDATA misspelt", "<![CDAT[y]]></a>", lmx::EXWS_PRESERVE, false, "",
                     std::string(not_well_formed) + bad_tag_end, ""}));

TEST(ElementValue, KeepsReferencesWhenAskedTo) {
  with_xml("<a> A & B &lt;&foo; </a>", [](lmx::c_xml& xml, RecordingError&) {
    std::string name, value;
    xml.get_element_name(nullptr, &name);
    xml.move_to_start_tag_end(nullptr);
    EXPECT_TRUE(xml.get_element_value(&value, lmx::EXWS_COLLAPSE, false));
    EXPECT_EQ("A & B &lt;&foo;", value);
  });
}

// --- End tags --------------------------------------------------------------------------------------------

TEST(ElementEndTag, IsComparedByteByByteAndReportsNothing) {
  struct Row {
    std::string caption, content, name;
    bool result;
  };
  const Row rows[] = {{"at once", "</a>", "a", true},
                      {"behind blanks", " \t\n</a>", "a", true},
                      {"blanks at its end", "</a \n >", "a", true},
                      {"CR LF at its end", "</a\r\n>", "a", true},
                      {"longer", "</ab>", "a", false},
                      {"shorter", "</a>", "ab", false},
                      {"another", "</b>", "a", false},
                      {"another case", "</A>", "a", false},
                      {"beyond ASCII", "</\xC3\xA9>", "\xC3\xA9", true},
                      {"something behind the name", "</a x>", "a", false},
                      {"a control character", "</a\x01>", "a", false},
                      {"a NUL", "</a\0>"s, "a", false},
                      {"text first", "x</a>", "a", false},
                      {"a comment first", "<!-- --></a>", "a", false},
                      {"a start tag", "<a>", "a", false},
                      {"cut in the name", "</a", "a", false},
                      {"cut behind it", "</a ", "a", false},
                      {"nothing", "", "a", false},
                      {"no name asked and none there", "</>", "", true}};
  for (auto const& row : rows) {
    SCOPED_TRACE(row.caption);
    with_xml("<r>" + row.content, [&](lmx::c_xml& xml, RecordingError& log) {
      std::string name;
      xml.get_element_name(nullptr, &name);
      ASSERT_TRUE(xml.move_to_start_tag_end(nullptr));
      EXPECT_EQ(row.result, xml.is_element_end_tag(row.name));
      EXPECT_EQ("", log.text());
    });
  }
}

TEST(ElementEndTag, OfAnyNameIsNotMeantByAnEmptyOne) {
  with_xml("<r></a>", [](lmx::c_xml& xml, RecordingError&) {
    std::string name;
    xml.get_element_name(nullptr, &name);
    ASSERT_TRUE(xml.move_to_start_tag_end(nullptr));
    EXPECT_FALSE(xml.is_element_end_tag(""));
  });
}

// --- Skipping --------------------------------------------------------------------------------------------

struct Skip {
  std::string caption, document;
  bool result;
  std::string then, reports;
};

template <class Operation>
void expect_skips(std::vector<Skip> const& rows, Operation operation) {
  for (auto const& row : rows) {
    SCOPED_TRACE(row.caption);
    with_xml(row.document, [&](lmx::c_xml& xml, RecordingError& log) {
      std::string name;
      lmx::c_xml_local local;
      ASSERT_EQ(lmx::EXE_TOKEN, xml.get_element_name(&local, &name));
      EXPECT_EQ(row.result, operation(xml, name));
      EXPECT_EQ(row.reports, log.text());
      if (row.result) {
        EXPECT_EQ(row.then, trace(xml));
      }
    });
  }
}

TEST(SkippingAnEmptyElement, AllowsWhiteSpaceOnly) {
  expect_skips({{"empty tag", "<a b='1'/><c/>", true, "<c/>.", ""},
                {"two tags", "<a></a><c/>", true, "<c/>.", ""},
                {"white space", "<a b='>'> \n </a ><c/>", true, "<c/>.", ""},
                {"text", "<a>x</a>", false, "", ""},
                {"child", "<a><b/></a>", false, "", ""},
                {"another end", "<a></b>", false, "", ""},
                {"cut", "<a>", false, "", ""}},
               [](lmx::c_xml& xml, std::string const& name) { return xml.skip_rest_of_empty_element(name); });
}

std::string mismatch(std::string const& start, std::string const& end) {
  return "error NOT_WELL_FORMED Element start tag (" + start + ") and end tag (" + end + ") do not match\n";
}

TEST(SkippingAnElement, ComparesItsTagsAndLooksAtNothingElse) {
  expect_skips(
      {{"empty tag", "<a/><c/>", true, "<c/>.", ""},
       {"any content", "<a b='1'>t<b c='>' c='2'/><!-- </a> --><?p </a>?><![CDATA[</a>]]><b>u</b></a><c/>",
        true, "<c/>.", ""},
       {"the same name inside", "<a><a><a/></a></a><c/>", true, "<c/>.", ""},
       {"slash and blank", "<a><b/ ></a><c/>", true, "<c/>.", ""},
       {"values are not expanded", "<a b='A & B'><b c='&foo;'/></a><c/>", true, "<c/>.", ""},
       {"references in text", "<a>&lt;x&#65;</a><c/>", true, "<c/>.", ""},
       {"a warning on the way", "<a><!-- ---></a><c/>", true, "<c/>.", comment_end},
       {"another end", "<a></b>", false, "", mismatch("a", "b")},
       {"another case", "<a></A>", false, "", mismatch("a", "A")},
       {"another end inside", "<a><b></a>", false, "", mismatch("b", "a")},
       {"cut in the start tag", "<a b='1' >"s + "<b c='1' ", false, "", ""},
       {"cut behind it", "<a>", false, "", ""},
       {"cut behind a child", "<a><b/>", false, "", ""},
       {"cut at a slash", "<a><b/", false, "", ""},
       {"unknown reference", "<a>&foo;</a>", false, "", ""},
       {"bare ampersand", "<a>A & B</a>", false, "", ""},
       {"a character behind the slash", "<a><b/ x></a>", false, "",
        "error BAD_END_TAG Illegal character(s) after / at end of tag - x\n"},
       {"DOCTYPE inside", "<a><!DOCTYPE a></a>", false, "", late_doctype},
       {"declaration inside", "<a>" + decl + "</a>", false, "", late_declaration},
       {"bad value", "<a><b c=d/></a>", false, "",
        "fatal NOT_WELL_FORMED Schema is not Well Formed (expected '\"' or ''', got d)\n"},
       {"bad tag", "<a><1></a>", false, "", not_well_formed},
       {"bad bytes", "<a>\xFF</a>", false, "", ""}},
      [](lmx::c_xml& xml, std::string const& name) { return xml.skip_rest_of_element(name); });
}

TEST(SkippingAnElement, CanBeginBehindItsStartTag) {
  expect_skips({{"empty", "<a></a><c/>", true, "<c/>.", ""},
                {"any content", "<a b='1'>t<b/></a><c/>", true, "<c/>.", ""},
                {"another end", "<a><b/></b>", false, "", mismatch("a", "b")},
                {"cut", "<a><b/>", false, "", ""}},
               [](lmx::c_xml& xml, std::string const& name) {
                 return xml.move_to_start_tag_end(nullptr) && xml.skip_element_body(name);
               });
}

TEST(SkippingAnElement, RegistersNoDeclarations) {
  with_xml("<a><b xmlns:p='u' xmlns='v' p:x='1'/></a><p:c/>", [](lmx::c_xml& xml, RecordingError&) {
    std::string name;
    lmx::c_xml_local local;
    ASSERT_EQ(lmx::EXE_TOKEN, xml.get_element_name(&local, &name));
    EXPECT_TRUE(xml.skip_rest_of_element(name));
    EXPECT_EQ(0, xml.find_enumerated_namespace("u"));
    EXPECT_EQ(0, xml.find_enumerated_namespace("v"));
    ASSERT_EQ(lmx::EXE_TOKEN, xml.get_element_name(&local, &name));
    EXPECT_EQ(0, xml.get_ns_id(&local, "p:c"));
    EXPECT_EQ(1, xml.get_ns_id(&local, "c"));
  });
}

constexpr std::size_t deep = 1'000'000;

std::string repeated(std::string const& text, std::size_t times) {
  std::string all;
  all.reserve(text.size() * times);
  for (std::size_t i = 0; i < times; ++i) all += text;
  return all;
}

// Runs `work` in a thread with a stack of that size; a stack overflow ends the process.
void run_on_stack(std::size_t bytes, std::function<void()> work) {
  pthread_attr_t attributes;
  ASSERT_EQ(0, pthread_attr_init(&attributes));
  ASSERT_EQ(0, pthread_attr_setstacksize(&attributes, bytes));
  pthread_t thread;
  const auto run = [](void* argument) -> void* {
    (*static_cast<std::function<void()>*>(argument))();
    return nullptr;
  };
  ASSERT_EQ(0, pthread_create(&thread, &attributes, run, &work));
  pthread_join(thread, nullptr);
  pthread_attr_destroy(&attributes);
}

class DeepNesting : public testing::TestWithParam<std::size_t> {};

TEST_P(DeepNesting, IsSkippedOnAnyStack) {
  struct Row {
    const char* caption;
    std::string document;
    bool result;
    std::string then, reports;
  };
  const Row rows[] = {
      {"closed", repeated("<x>", deep) + repeated("</x>", deep) + "<c/>", true, "<c/>.", ""},
      {"never closed", repeated("<x>", deep), false, ".", ""},
      {"closed wrongly at the bottom", repeated("<x>", deep) + "</y>", false, ".", mismatch("x", "y")},
  };
  for (auto const& row : rows) {
    SCOPED_TRACE(row.caption);
    run_on_stack(GetParam(), [&row] {
      MemoryRead read(row.document);
      RecordingError log;
      lmx::c_xml xml(read, log, true);
      std::string name;
      lmx::c_xml_local local;
      ASSERT_EQ(lmx::EXE_TOKEN, xml.get_element_name(&local, &name));
      EXPECT_EQ(row.result, xml.skip_rest_of_element(name));
      EXPECT_EQ(row.then, trace(xml));
      EXPECT_EQ(row.reports, log.text());
    });
  }
}

TEST_P(DeepNesting, OfUnknownElementsIsSkippedByTheEventReader) {
  const std::string document = repeated("<x>", deep) + repeated("</x>", deep) + "<c/>";
  run_on_stack(GetParam(), [&document] {
    MemoryRead read(document);
    lmx::c_xml_reader reader(read);
    const lmx::s_known_elements known[] = {{1, "c", 1}, {0, nullptr, 0}};
    const lmx::c_known_elements_selector selector(reader, known);
    auto error = lmx::ELMX_UNDEFINED_ERROR;
    reader.get_element_event(&error, &reader.m_name);
    EXPECT_EQ(lmx::ELMX_OK, error);
    EXPECT_EQ(lmx::EXE_TOKEN, reader.m_event);
    EXPECT_EQ("c", reader.m_name);
  });
}

INSTANTIATE_TEST_SUITE_P(Stacks, DeepNesting, testing::Values(std::size_t{256} << 10, std::size_t{8} << 20));

// --- Rewinding -------------------------------------------------------------------------------------------

TEST(Rewinding, ReadsTheSameDocumentAgain) {
  with_xml("<?xml version='1.0' encoding='ISO-8859-1'?>\n<!DOCTYPE a>\n<a xmlns='u' b='\xE9'>x\r\n</a>\n",
           [](lmx::c_xml& xml, RecordingError& log) {
             for (int round = 0; round < 3; ++round) {
               EXPECT_EQ(1, xml.line());
               EXPECT_EQ(0, xml.find_enumerated_namespace("u"));
               EXPECT_EQ("<a b=[\xC3\xA9]>(x\n)</a>.", trace(xml));
               EXPECT_EQ(5, xml.line());
               EXPECT_NE(0, xml.find_enumerated_namespace("u"));
               xml.rewind();
             }
             EXPECT_EQ("", log.text());
           });
}

TEST(Rewinding, WorksFromTheMiddleOfATag) {
  with_xml("<a b='1' c='2'/>", [](lmx::c_xml& xml, RecordingError&) {
    std::string name;
    lmx::c_xml_local local;
    xml.get_element_name(&local, &name);
    xml.get_attribute_name(&name, false);
    xml.rewind();
    EXPECT_EQ("<a b=[1] c=[2]/>.", trace(xml));
  });
}

}  // namespace
