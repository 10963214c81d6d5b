// A byte that begins no character reads as the end of the input where it stands, once: what stops a name
// there is what is met next, so no document is good that has one between its names and marks. What lies
// behind is read on.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "isoxmllib/isoxmllib.h"
#include "support/each_source.h"
#include "support/recording_reader.h"

namespace {

std::string task(std::string const& content) { return "<TSK A=\"TSK1\" G=\"1\">" + content + "</TSK>"; }
std::string with_subset(std::string const& subset) { return "<!DOCTYPE x [" + subset + "]>" + task(""); }

struct Row {
  char const* caption;
  std::string document;
  int code;
};

void PrintTo(Row const& row, std::ostream* out) { *out << row.caption; }

std::string reports_to_a_tolerant_host(lmx::c_read& source) {
  Root root;
  RecordingReader reader(source, tolerant());
  root.unmarshal(reader);
  return reader.reports();
}

class InvalidByte : public testing::TestWithParam<Row> {};

TEST_P(InvalidByte, EndsWhatItStandsIn) {
  Row const& row = GetParam();
  with_each_source(row.document, [&](lmx::c_read& source) {
    Root root;
    RecordingReader reader(source, strict());
    EXPECT_EQ(row.code, root.unmarshal(reader));
  });
  MemoryRead bytes(row.document);
  std::string const tolerated = reports_to_a_tolerant_host(bytes);
  EXPECT_EQ(row.code != 0, !tolerated.empty());
  with_each_source(row.document,
                   [&](lmx::c_read& source) { EXPECT_EQ(tolerated, reports_to_a_tolerant_host(source)); });
}

INSTANTIATE_TEST_SUITE_P(
    InATag, InvalidByte,
    testing::Values(
        Row{"behind an attribute's name", "<TSK A\x80=\"TSK1\" G=\"1\"/>", lmx::ELMX_UNEXPECTED_EOM},
        Row{"behind a declaration's prefix", "<TSK xmlns:p\x80=\"u\" A=\"TSK1\" G=\"1\"/>",
            lmx::ELMX_UNEXPECTED_EOM},
        Row{"behind an unknown element's attribute", task("<Foo a\x80=\"1\"/>"), lmx::ELMX_UNEXPECTED_EOM},
        Row{"between attributes", "<TSK A=\"TSK1\" \x80G=\"1\"/>", lmx::ELMX_UNEXPECTED_COMPLEX_ELEMENT},
        Row{"behind an element's name", task("<TZN\x80 A=\"1\"/>"), lmx::ELMX_NOT_WELL_FORMED},
        Row{"behind an end tag's name", "<TSK A=\"TSK1\" G=\"1\"></TSK\x80>", lmx::ELMX_NOT_WELL_FORMED}));

INSTANTIATE_TEST_SUITE_P(InContent, InvalidByte,
                         testing::Values(Row{"in an unknown element's text",
                                             task("<Foo>ab\x80"
                                                  "cd</Foo>"),
                                             lmx::ELMX_BADLY_FORMED},
                                         Row{"in text between tags",
                                             task("ab\x80"
                                                  "cd"),
                                             lmx::ELMX_BAD_END_OF_ELEMENT},
                                         Row{"behind the bracket of a tag",
                                             task("<P917_comment>abc<\x80/P917_comment>"),
                                             lmx::ELMX_BAD_END_OF_ELEMENT}));

INSTANTIATE_TEST_SUITE_P(
    InTheProlog, InvalidByte,
    testing::Values(Row{"behind the word encoding", "<?xml version=\"1.0\" encoding\x80?>" + task(""),
                        lmx::ELMX_UNEXPECTED_COMPLEX_ELEMENT},
                    Row{"behind the word standalone", "<?xml version=\"1.0\" standalone\x80?>" + task(""),
                        lmx::ELMX_UNEXPECTED_COMPLEX_ELEMENT},
                    Row{"behind a parameter entity's name", with_subset("%p\x80"), lmx::ELMX_BAD_DTD},
                    Row{"behind the name of one that there is", with_subset("<!ENTITY % p ''>%p\x80"),
                        lmx::ELMX_BAD_DTD},
                    Row{"before an entity's name", with_subset("<!ENTITY \x80 a \"1\">"),
                        lmx::ELMX_UNEXPECTED_COMPLEX_ELEMENT},
                    Row{"before an entity's value", with_subset("<!ENTITY a \x80\"1\">"),
                        lmx::ELMX_UNEXPECTED_COMPLEX_ELEMENT},
                    Row{"behind an ampersand in an entity's value, which is read on",
                        with_subset("<!ENTITY a \"1&\x80\">"), 0}));

TEST(InvalidByte, EndsAnElementThatIsTakenAsText) {
  with_each_source("<?xml version=\"1.0\"?><a>t\x80u</a>", [](lmx::c_read& source) {
    lmx::c_xml_reader reader(source);
    ASSERT_EQ(lmx::EXE_TOKEN, reader.get_element_name(reader.mp_local, &reader.m_name));
    std::string text;
    EXPECT_FALSE(reader.get_any_element(reader.m_name, &text, lmx::EXWS_PRESERVE, false));
  });
}

// A reference that is none uses up the character that shows it.
TEST(BadReference, TakesTheCharacterBehindTheNumberSign) {
  with_each_source(task("<P917_comment>a&#</P917_comment>"), [](lmx::c_read& source) {
    Root root;
    RecordingReader reader(source, tolerant());
    root.unmarshal(reader);
    EXPECT_EQ(0u, reader.reports().find("UNABLE_TO_READ_ELEMENT_VALUE P917_comment, "
                                        "BAD_END_OF_ELEMENT P917_comment"));
  });
}

}  // namespace
