// How one element is read: attributes, check, content, end, and what each fault on the way reports. The
// elements here are of the test's own making, so that each rule stands alone; a few documents of the format
// at the end show that its classes follow the same rules.
#include "GenLibrarySupportFiles/lmxparse/c_unmarshal_helper.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <ostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "GenLibrarySupportFiles/lmxinternals/bridges.h"
#include "GenLibrarySupportFiles/lmxinternals/containers.h"
#include "isoxmllib/isoxmllib.h"
#include "support/each_source.h"
#include "support/memory_read.h"
#include "support/recording_reader.h"
#include "support/temp_dir.h"
#include "transfer/reader/xmlReader.h"

namespace {

using lmx::elmx_error;
using std::string;

#define XSI_URI "http://www.w3.org/2001/XMLSchema-instance"

using Reader = Recording<lmx::c_xml_reader>;

bool any_error(elmx_error) { return true; }

// --- Elements of the test's own --------------------------------------------------------------------------
//
// E and R have attributes only (R requires "A"), S has text, c is a simple child, and T, N and M have
// children in the order of `ev_E` to `ev_R`; only M must not be empty. All but c take attributes A and B.

enum : int { ev_A = lmx::EXE_FIRST_USER + 1, ev_B, ev_E, ev_S, ev_c, ev_N, ev_T, ev_M, ev_R };

constexpr lmx::s_event_map attribute_map[] = {{1, "A", 1, ev_A}, {1, "B", 1, ev_B}, {0, nullptr, 0, 0}};
constexpr lmx::s_event_map child_map[] = {{1, "E", 1, ev_E}, {1, "S", 1, ev_S}, {1, "c", 1, ev_c},
                                          {1, "N", 1, ev_N}, {1, "T", 1, ev_T}, {1, "M", 1, ev_M},
                                          {1, "R", 1, ev_R}, {0, nullptr, 0, 0}};
constexpr lmx::s_known_elements all_children[] = {{1, "E", 1}, {1, "S", 1}, {1, "c", 1}, {1, "N", 1},
                                                  {1, "T", 1}, {1, "M", 1}, {1, "R", 1}, {0, nullptr, 0}};
constexpr lmx::s_known_elements no_children[] = {{0, nullptr, 0}};
constexpr lmx::s_ns_map no_namespaces[] = {{0, nullptr, nullptr}};

elmx_error refuse(elmx_error code, char mark, lmx::c_xml_reader& reader, string const& text) {
  if (text.find(mark) == string::npos) return lmx::ELMX_OK;
  return reader.report_error(code, reader.m_name, reader.m_code_file, reader.m_code_line);
}
elmx_error check_text(lmx::c_xml_reader& reader, string const& text) {
  return refuse(lmx::ELMX_VALUE_BAD_FORMAT, '!', reader, text);
}
elmx_error check_value(lmx::c_xml_reader& reader, string const& value) {
  return refuse(lmx::ELMX_VALUE_NOT_ENUMERATED, '?', reader, value);
}
void convert(string& value, string const& text) { value = text; }

using string_spec = lmx::c_validation_spec<string>;
constexpr string_spec collapsed(lmx::EXWS_COLLAPSE, "default", check_text, check_value, convert);
constexpr string_spec preserved(lmx::EXWS_PRESERVE, "default", check_text, check_value, convert);

struct Element {
  string tag;
  lmx::ct_simple_pod_optional<string> A, B;
  lmx::ct_simple_pod_single<string> text;
  lmx::ct_simple_pod_multi<string> simple_children;
  std::vector<std::unique_ptr<Element>> children;

  string child_tags() const {
    string tags;
    for (auto const& child : children) tags += child->tag;
    return tags;
  }
};

/// What a test may change for all elements of a document.
struct Ways {
  bool is_table_selected = true, is_body_skipped = false, is_skipping_allowed = true;
};

elmx_error read_element(Reader& reader, Element& element, string const& tag, Ways const& ways);

class Helper : public lmx::c_unmarshal_helper {
 public:
  Helper(Reader& reader, Element& element, Ways const& ways)
      : c_unmarshal_helper(reader), mr_reader(reader), mr_element(element), mr_ways(ways) {
    m_empty_allowed = element.tag != "M";
  }

  bool unmarshal_attributes(elmx_error* error) override {
    mr_reader.tokenise(attribute_map, lmx::EXAE_ATTRIBUTE);
    switch (mr_reader.m_event) {
      case ev_A: return take(mr_element.A, collapsed, error);
      case ev_B: return take(mr_element.B, preserved, error);
      default: return false;
    }
  }
  elmx_error unmarshal_attributes_check() override {
    if (mr_element.tag != "R" || mr_element.A.is_set()) return lmx::ELMX_OK;
    return report(lmx::ELMX_REQUIRED_ATTRIBUTES_MISSING);
  }
  bool unmarshal_simple_body(elmx_error* error) override {
    lmx::c_unmarshal_bridge<Reader, decltype(mr_element.text), string> bridge(mr_reader, collapsed,
                                                                              mr_element.text);
    *error = mr_reader.unmarshal_element_value_impl(bridge, collapsed);
    return *error == lmx::ELMX_OK;
  }
  bool unmarshal_complex_body(elmx_error* error) override {
    mr_reader.tokenise(child_map, lmx::EXAE_ELEMENT);
    const bool is_mandatory = mr_element.tag == "M";
    if (is_mandatory && mr_reader.m_event < ev_E) {
      *error = report(lmx::ELMX_MANDATORY_ELEMENT_MISSING);
      if (*error != lmx::ELMX_OK) return false;
    }
    for (int event = ev_E; event <= ev_R; ++event) {
      while (mr_reader.m_event == event) {
        if (!(event == ev_c ? read_simple_child(error) : read_child(error))) return false;
      }
    }
    if (is_mandatory && mr_element.children.empty()) *error = report(lmx::ELMX_MANDATORY_ELEMENT_MISSING);
    return *error == lmx::ELMX_OK;
  }
  bool is_body_skipped() override { return mr_ways.is_body_skipped; }
  bool is_skipping_allowed() override { return mr_ways.is_skipping_allowed; }

 private:
  elmx_error report(elmx_error code) { return mr_reader.report_error(code, mr_element.tag, "class", 1); }
  bool take(lmx::ct_simple_pod_optional<string>& field, string_spec const& spec, elmx_error* error) {
    lmx::c_unmarshal_bridge<Reader, lmx::ct_simple_pod_optional<string>, string> bridge(mr_reader, spec,
                                                                                        field);
    *error = mr_reader.unmarshal_attribute_value_impl(bridge, spec);
    return true;
  }
  bool read_child(elmx_error* error) {
    mr_element.children.push_back(std::make_unique<Element>());
    *error = read_element(mr_reader, *mr_element.children.back(), mr_reader.m_name, mr_ways);
    if (*error != lmx::ELMX_OK) return false;
    elmx_error read_error;
    mr_reader.get_element_event(child_map, &read_error, &mr_reader.m_name);
    if (read_error != lmx::ELMX_OK) *error = report(read_error);
    return *error == lmx::ELMX_OK;
  }
  bool read_simple_child(elmx_error* error) {
    lmx::c_unmarshal_bridge<Reader, lmx::ct_simple_pod_multi<string>, string> bridge(
        mr_reader, collapsed, mr_element.simple_children);
    *error = mr_reader.unmarshal_child_element_impl(bridge, collapsed, child_map);
    return *error == lmx::ELMX_OK;
  }

  Reader& mr_reader;
  Element& mr_element;
  Ways const& mr_ways;
};

elmx_error read_element(Reader& reader, Element& element, string const& tag, Ways const& ways) {
  element.tag = tag;
  reader.m_name = tag;
  const bool has_children = tag == "T" || tag == "N" || tag == "M";
  const bool has_attributes_only = tag == "E" || tag == "R";
  const lmx::c_known_elements_selector selector(reader, !ways.is_table_selected ? nullptr
                                                        : has_children          ? all_children
                                                        : has_attributes_only   ? no_children
                                                                                : reader.mp_known_elements);
  Helper helper(reader, element, ways);
  if (has_children) return helper.unmarshal_complex_content("complex", 3);
  return has_attributes_only ? helper.unmarshal_empty_content("empty", 4)
                             : helper.unmarshal_simple_content("simple", 5);
}

/// Reads the document's top element, whatever it is.
elmx_error read_document(Reader& reader, Element& element, Ways const& ways = {}) {
  reader.m_code_file = "document";
  reader.m_code_line = 2;
  reader.set_ns_map(no_namespaces);
  reader.m_skip_unknown = true;
  const lmx::c_xml_reader_local scope(reader);
  elmx_error error;
  reader.get_element_event(&error, &reader.m_name);
  if (error != lmx::ELMX_OK) error = reader.report_error(error, reader.m_name, "document", 2);
  if (error == lmx::ELMX_OK && reader.m_event != lmx::EXE_TOKEN) {
    error = reader.report_error(lmx::ELMX_ELEMENT_NOT_FOUND, reader.m_name, "document", 2);
  }
  if (error != lmx::ELMX_OK) return error;
  return read_element(reader, element, string(reader.m_name), ways);
}

// --- Which fault gives which reports ---------------------------------------------------------------------

struct Document {
  const char* caption;
  string document;
  string reports;  // every hook call, when the handler tolerates everything; the result is then 0

  /// The result with a handler that tolerates nothing: the first report that is no hook for something
  /// unknown.
  string result() const {
    for (std::size_t at = 0; at < reports.size(); at = reports.find("; ", at) + 2) {
      if (reports[at] != '?' && reports[at] != '@') return first_code(reports.substr(at));
      if (reports.find("; ", at) == string::npos) break;
    }
    return "OK";
  }
};
std::ostream& operator<<(std::ostream& out, Document const& row) { return out << row.caption; }

class Documents : public testing::TestWithParam<Document> {};
TEST_P(Documents, TellEachFaultToTheHooks) {
  with_each_source(GetParam().document, [](lmx::c_read& read) {
    Reader reader(read);
    reader.is_tolerated = any_error;
    Element element;
    EXPECT_EQ(lmx::ELMX_OK, read_document(reader, element));
    EXPECT_EQ(GetParam().reports, reader.story());
    EXPECT_TRUE(reader.m_name_stack.empty());
    EXPECT_TRUE(reader.m_name_offsets.empty());
  });
}
TEST_P(Documents, StopAtTheFirstFaultThatIsNotTolerated) {
  with_each_source(GetParam().document, [](lmx::c_read& read) {
    Reader reader(read);
    Element element;
    EXPECT_EQ(GetParam().result(), code_name(read_document(reader, element)));
    EXPECT_EQ(0u, GetParam().reports.find(reader.story())) << reader.story();
    EXPECT_EQ(GetParam().result() == "OK" ? 0u : 1u, reader.errors_asked.size());
    EXPECT_EQ(GetParam().result(), code_name(reader.debug_error().m_code));
    EXPECT_TRUE(reader.m_name_stack.empty());
    EXPECT_TRUE(reader.m_name_offsets.empty());
  });
}

INSTANTIATE_TEST_SUITE_P(
    OfAttributesOnly, Documents,
    testing::Values(
        Document{"empty tag", "<E/>", ""}, Document{"nothing inside", "<E></E >", ""},
        Document{"blanks, comment and instruction inside", "<E>\n <!-- c --> <?p q?> </E>", ""},
        Document{"text inside", "<E>text</E>", "BAD_END_OF_ELEMENT E"},
        Document{"CDATA inside", "<E><![CDATA[]]></E>", "BAD_END_OF_ELEMENT E"},
        Document{"unknown child", "<E><Foo/></E>", "?Foo in E/; BAD_END_OF_ELEMENT E"},
        Document{"a child that is known elsewhere", "<E><T/></E>", "?T in E/; BAD_END_OF_ELEMENT E"},
        Document{"itself as child", "<E><E/></E>", "?E in E/; BAD_END_OF_ELEMENT E"},
        Document{"child, then text", "<E><Foo/>x</E>", "?Foo in E/; BAD_END_OF_ELEMENT E"},
        Document{
            "child closed as another", "<E><Foo></E>",
            "?Foo in E/; BADLY_FORMED E; BAD_END_OF_ELEMENT Foo; UNEXPECTED_EOM E; BAD_END_OF_ELEMENT E"},
        Document{"another end tag", "<E></F>", "BAD_END_OF_ELEMENT E"},
        Document{"no end tag", "<E>", "UNEXPECTED_EOM E; BAD_END_OF_ELEMENT E"},
        Document{"undeclared reference inside", "<E>&foo;</E>", "BAD_END_OF_ELEMENT E"},
        Document{"required attribute missing", "<R/>", "REQUIRED_ATTRIBUTES_MISSING R"},
        Document{"required attribute empty", "<R A=''/>", ""},
        Document{"missing, and a child", "<R><Foo/></R>",
                 "REQUIRED_ATTRIBUTES_MISSING R; ?Foo in R/; BAD_END_OF_ELEMENT R"}));

INSTANTIATE_TEST_SUITE_P(
    WithText, Documents,
    testing::Values(
        Document{"text", "<S A='1'>x</S >", ""}, Document{"empty tag", "<S/>", ""},
        Document{"a child ends the text", "<S>a<b/></S>", "BAD_END_OF_ELEMENT S"},
        Document{"another end tag", "<S>a</s>", "BAD_END_OF_ELEMENT S"},
        Document{"no end tag", "<S>a", "UNABLE_TO_READ_ELEMENT_VALUE S; BAD_END_OF_ELEMENT S"},
        Document{"undeclared reference", "<S>&foo;</S>", "UNABLE_TO_READ_ELEMENT_VALUE S"},
        Document{"bad declaration", "<S>a<!x></S>", "UNABLE_TO_READ_ELEMENT_VALUE S; BAD_END_OF_ELEMENT S"},
        Document{"bad text", "<S>!</S>", "VALUE_BAD_FORMAT S"},
        Document{"bad value", "<S>?</S>", "VALUE_NOT_ENUMERATED S"},
        Document{"bad text and value", "<S>!?</S>", "VALUE_BAD_FORMAT S; VALUE_NOT_ENUMERATED S"}));

INSTANTIATE_TEST_SUITE_P(
    WithChildren, Documents,
    testing::Values(
        Document{"empty tag", "<T/>", ""}, Document{"nothing inside", "<T></T>", ""},
        Document{"blanks and comment inside", "<T> <!-- c --> </T>", ""},
        Document{"children in order", "<T><E/><E/><S>x</S><c>y</c><N><T/></N><R A='1'/></T>", ""},
        Document{"unknown children anywhere", "<T><Foo/><E/><Bar><E/>x</Bar><E/><Foo/></T>",
                 "?Foo in T/; ?Bar in T/; ?Foo in T/"},
        Document{"unknown child alone", "<T><Foo/></T>", "?Foo in T/"},
        Document{"deeper down", "<T><N><M><Foo/><E/></M></N></T>", "?Foo in T/N/M/"},
        Document{"text", "<T>text</T>", "BAD_END_OF_ELEMENT T"},
        Document{"text behind a child", "<T><E/>text</T>", "BAD_END_OF_ELEMENT T"},
        Document{"undeclared reference", "<T>&foo;</T>", "BAD_END_OF_ELEMENT T"},
        Document{"bad declaration", "<T><!x></T>", "BAD_END_OF_ELEMENT T"},
        Document{"another end tag", "<T><E/></N>", "BAD_END_OF_ELEMENT T"},
        Document{"another end tag, nothing inside", "<T></N>", "BAD_END_OF_ELEMENT T"},
        Document{"no end tag", "<T>", "UNEXPECTED_EOM T; BAD_END_OF_ELEMENT T"},
        Document{"no end tag behind a child", "<T><E/>", "UNEXPECTED_EOM T; BAD_END_OF_ELEMENT T"},
        Document{"unknown child closed as another", "<T><Foo></T>",
                 "?Foo in T/; BADLY_FORMED T; ?Foo in T/; "
                 "BAD_END_OF_ELEMENT Foo; UNEXPECTED_EOM T; BAD_END_OF_ELEMENT T"},
        Document{"fault in a child", "<T><N><E>x</E></N></T>",
                 "BAD_END_OF_ELEMENT E; BAD_END_OF_ELEMENT N; BAD_END_OF_ELEMENT T"},

        Document{"child out of order", "<T><S/><E/></T>", "?E in T/"},
        Document{"and all behind it", "<T><S/><E/><S/><E><T/></E></T>", "?E in T/; ?S in T/; ?E in T/"},
        Document{"then an unknown one", "<T><S/><E/><Foo/></T>", "?E in T/; ?Foo in T/"},
        Document{"then text", "<T><S/><E/>x</T>", "?E in T/; BAD_END_OF_ELEMENT T"},
        Document{"out of order, closed as another", "<T><S/><E></T>",
                 "?E in T/; BAD_END_OF_ELEMENT E; UNEXPECTED_EOM T; BAD_END_OF_ELEMENT T"},
        Document{"out of order, no end tag", "<T><S/><E/>",
                 "?E in T/; UNEXPECTED_EOM T; BAD_END_OF_ELEMENT T"}));

INSTANTIATE_TEST_SUITE_P(
    WithMandatoryChildren, Documents,
    testing::Values(
        Document{"a child", "<M><E/></M>", ""},
        Document{"empty tag", "<M/>", "UNEXPECTED_EMPTY_ELEMENT M; BAD_END_OF_ELEMENT M"},
        Document{"nothing inside", "<M></M>", "UNEXPECTED_EMPTY_ELEMENT M"},
        Document{"blanks, comment and instruction inside", "<M> <!-- c --><?p q?> </M>",
                 "UNEXPECTED_EMPTY_ELEMENT M"},
        Document{"another end tag", "<M></T>", "UNEXPECTED_EMPTY_ELEMENT M; BAD_END_OF_ELEMENT M"},
        Document{"unknown child only", "<M><Foo/></M>",
                 "?Foo in M/; MANDATORY_ELEMENT_MISSING M; MANDATORY_ELEMENT_MISSING M"},
        Document{"text", "<M>text</M>",
                 "MANDATORY_ELEMENT_MISSING M; MANDATORY_ELEMENT_MISSING M; BAD_END_OF_ELEMENT M"},
        Document{"text, with open ancestors", "<N><T><M>text</M></T></N>",
                 "MANDATORY_ELEMENT_MISSING M; MANDATORY_ELEMENT_MISSING M; BAD_END_OF_ELEMENT "
                 "M; BAD_END_OF_ELEMENT T; BAD_END_OF_ELEMENT N"},
        Document{"no end tag", "<M>",
                 "UNEXPECTED_EOM M; MANDATORY_ELEMENT_MISSING M; MANDATORY_ELEMENT_MISSING M; "
                 "BAD_END_OF_ELEMENT M"}));

INSTANTIATE_TEST_SUITE_P(
    WithAttributes, Documents,
    testing::Values(
        Document{"unknown", "<T zz='1'/>", "@zz in T/"},
        Document{"unknown, deeper down", "<T><N><S p:A='1'>x</S></N></T>", "@p:A in T/N/S/"},
        Document{"of schema instances", "<E xmlns:i='" XSI_URI "' i:A='1' i:type='t'/>", ""},
        Document{"by default namespace of schema instances", "<x:E zz='1' xmlns='" XSI_URI "'/>", ""},
        Document{"twice", "<E A='1' A='2'/>", "ATTRIBUTE_ALREADY_READ @A"},
        Document{"three times", "<E A='1' A='2' B='' A='3'/>",
                 "ATTRIBUTE_ALREADY_READ @A; ATTRIBUTE_ALREADY_READ @A"},
        Document{"bad text", "<E A='!'/>", "VALUE_BAD_FORMAT A"},
        Document{"bad value", "<E A='?'/>", "VALUE_NOT_ENUMERATED A"},
        Document{"undeclared reference", "<E A='&foo;'/>", "UNABLE_TO_READ_ATTRIBUTE_VALUE @A"},
        Document{"undeclared reference in an unknown one", "<E zz='&foo;'/>", "@zz in E/"},
        Document{"stray character", "<E !></E>", "NOT_WELL_FORMED "},
        Document{"stray characters", "<E A='1' !!!/>",
                 "NOT_WELL_FORMED ; NOT_WELL_FORMED ; NOT_WELL_FORMED "},
        Document{"stray behind the slash", "<E /!></E>", "NOT_WELL_FORMED "},
        Document{"slash at the end of input", "<R A='1'/",
                 "NOT_WELL_FORMED ; UNEXPECTED_EOM R; BAD_END_OF_ELEMENT R"},
        Document{"the same, with one missing", "<R/",
                 "NOT_WELL_FORMED ; REQUIRED_ATTRIBUTES_MISSING R; UNEXPECTED_EOM R; BAD_END_OF_ELEMENT R"},
        Document{"the same, with children", "<M/",
                 "NOT_WELL_FORMED ; UNEXPECTED_EOM M; MANDATORY_ELEMENT_MISSING M; MANDATORY_ELEMENT_MISSING "
                 "M; BAD_END_OF_ELEMENT M"},
        Document{"the same, with text", "<S/",
                 "NOT_WELL_FORMED ; UNABLE_TO_READ_ELEMENT_VALUE S; BAD_END_OF_ELEMENT S"}));

TEST(SimpleChild, ReportsItsOwnFaults) {
  struct Row {
    const char* caption;
    string document;
    int result;
    string reports;  // when everything is tolerated
    int tolerant_result;
  };
  for (auto const& row :
       {Row{"start tag", "<T><c / x></T>", lmx::ELMX_BAD_END_OF_START_TAG, "BAD_END_OF_START_TAG c", 0},
        Row{"text cut off", "<T><c>x", lmx::ELMX_UNABLE_TO_READ_ELEMENT_VALUE,
            "UNABLE_TO_READ_ELEMENT_VALUE c; BAD_END_OF_ELEMENT c", 34},
        Row{"child inside", "<T><c>x<c/></c></T>", lmx::ELMX_BAD_END_OF_ELEMENT,
            "BAD_END_OF_ELEMENT c; BAD_END_OF_ELEMENT T", 0},
        Row{"the next sibling's error comes back unreported", "<T><c>x</c>", lmx::ELMX_UNEXPECTED_EOM, "",
            lmx::ELMX_UNEXPECTED_EOM},
        Row{"attributes are not looked at", "<T><c A='1' zz='!'>x</c><c zz='1'/></T>", 0, "", 0}}) {
    SCOPED_TRACE(row.caption);
    with_each_source(row.document, [&](lmx::c_read& read) {
      Reader tolerant(read);
      tolerant.is_tolerated = any_error;
      Element element;
      EXPECT_EQ(row.tolerant_result, read_document(tolerant, element));
      EXPECT_EQ(row.reports, tolerant.story());
      read.rewind();
      Reader strict(read);
      EXPECT_EQ(row.result, read_document(strict, *std::make_unique<Element>()));
    });
  }
}

TEST(Report, NamesTheProgramPlaceOfTheOneWhoFoundIt) {
  struct Row {
    const char* caption;
    string document, report, place;
  };
  for (auto const& row :
       {Row{"helper of an element with attributes", "<E>x</E>", "BAD_END_OF_ELEMENT E", "empty:4"},
        Row{"helper of an element with children", "<T>x</T>", "BAD_END_OF_ELEMENT T", "complex:3"},
        Row{"attribute loop", "<S !>x</S>", "NOT_WELL_FORMED ", "simple:5"},
        Row{"unknown attribute", "<S zz=''>x</S>", "@zz in S/", "simple:5"},
        Row{"unknown child, by the reader", "<T><Foo/></T>", "?Foo in T/", "document:2"},
        Row{"child out of order, by the helper", "<T><S/><E/></T>", "?E in T/", "complex:3"},
        Row{"attribute's value", "<E A='1' A='2'/>", "ATTRIBUTE_ALREADY_READ @A", "document:2"},
        Row{"element's text", "<S>&foo;</S>", "UNABLE_TO_READ_ELEMENT_VALUE S", "document:2"},
        Row{"element's end tag", "<S>x</T>", "BAD_END_OF_ELEMENT S", "document:2"},
        Row{"start tag of a simple child", "<T><c / x></T>", "BAD_END_OF_START_TAG c", "document:2"}}) {
    SCOPED_TRACE(row.caption);
    with_each_source(row.document, [&](lmx::c_read& read) {
      Reader reader(read);
      Element element;
      read_document(reader, element);
      ASSERT_EQ(1u, reader.log.size());
      EXPECT_EQ(row.report, reader.log[0]);
      EXPECT_EQ(row.place, reader.places[0]);
    });
  }
}

TEST(Report, TellsWhereTheReaderStands) {
  with_each_source("<T>\n<E\nA='1'\nA='2'/></T>", [](lmx::c_read& read) {
    Reader reader(read);
    Element element;
    EXPECT_EQ(lmx::ELMX_ATTRIBUTE_ALREADY_READ, read_document(reader, element));
    EXPECT_EQ(5, reader.debug_error().m_xml_line) << "the line end behind a tag's name counts twice";
  });
}

TEST(Report, NamesTheFatalErrorWhenTheInputEndsByIt) {
  with_each_source("<T><E A=1/></T>", [](lmx::c_read& read) {
    Reader reader(read);
    reader.is_tolerated = any_error;
    Element element;
    read_document(reader, element);
    EXPECT_EQ("NOT_WELL_FORMED T; BAD_END_OF_ELEMENT T", reader.story());
    EXPECT_EQ(1u, reader.error_log().fatal_count());
  });
}

TEST(Report, AsksOnErrorThroughHandleError) {
  with_each_source("<E><Foo/></E>", [](lmx::c_read& read) {
    Reader reader(read);
    Element element;
    read_document(reader, element);
    EXPECT_EQ("?Foo in E/; BAD_END_OF_ELEMENT E", reader.story());
    EXPECT_EQ(std::vector<string>{"BAD_END_OF_ELEMENT E"}, reader.errors_asked)
        << "no hook stands in for another";
  });
}

// --- What is read ----------------------------------------------------------------------------------------

TEST(Attribute, TakesTheTextAsItsSpecSays) {
  struct Row {
    const char* caption;
    string tag;
    bool is_A_set;
    string A, B;
    string reports;
  };
  for (auto const& row :
       {Row{"white space by the spec", "<E A=' a  b ' B=' a  b '/>", true, "a b", " a  b ", ""},
        Row{"references", "<E A='&lt;&#65;' B='&amp;amp;'/>", true, "<A", "&amp;", ""},
        Row{"markup is text", "<E A='<b>' B='&quot;'/>", true, "<b>", "\"", ""},
        Row{"empty stays empty", "<E A='' B='b'/>", true, "", "b", ""},
        Row{"absent stays unset", "<E B='b'/>", false, "", "b", ""},
        Row{"the second value replaces the first", "<E A='1' A='2' B='b'/>", true, "2", "b",
            "ATTRIBUTE_ALREADY_READ @A"},
        Row{"bad text stands", "<E A='!' B='b'/>", true, "!", "b", "VALUE_BAD_FORMAT A"},
        Row{"bad value stands", "<E A='?' B='b'/>", true, "?", "b", "VALUE_NOT_ENUMERATED A"},
        Row{"the next one stands behind a bad reference", "<E A='x &foo; y' B='b'/>", true, "x&foo;", "b",
            "UNABLE_TO_READ_ATTRIBUTE_VALUE @A"},
        Row{"and the one behind an unknown one", "<E B='x &foo; y' zz='A' A='a'/>", true, "a", "x &foo;",
            "UNABLE_TO_READ_ATTRIBUTE_VALUE @B; @zz in E/"}}) {
    SCOPED_TRACE(row.caption);
    with_each_source(row.tag, [&](lmx::c_read& read) {
      Reader reader(read);
      reader.is_tolerated = any_error;
      Element element;
      EXPECT_EQ(lmx::ELMX_OK, read_document(reader, element));
      EXPECT_EQ(row.is_A_set, element.A.is_set());
      EXPECT_EQ(row.A, element.A.get());
      EXPECT_TRUE(element.B.is_set());
      EXPECT_EQ(row.B, element.B.get());
      EXPECT_EQ(row.reports, reader.story());
    });
  }
}

TEST(Attribute, IsSetBeforeItsValueIsCheckedButNotBeforeItsText) {
  with_each_source("<E A='!'/>", [](lmx::c_read& read) {
    Reader reader(read);
    Element element;
    EXPECT_EQ(lmx::ELMX_VALUE_BAD_FORMAT, read_document(reader, element));
    EXPECT_FALSE(element.A.is_set());
  });
  with_each_source("<E A='?' B='b'/>", [](lmx::c_read& read) {
    Reader reader(read);
    Element element;
    EXPECT_EQ(lmx::ELMX_VALUE_NOT_ENUMERATED, read_document(reader, element));
    EXPECT_TRUE(element.A.is_set());
    EXPECT_EQ("?", element.A.get());
    EXPECT_FALSE(element.B.is_set()) << "reading has stopped";
  });
}

TEST(Attribute, KeepsTheFirstValueWhenTheSecondIsNotTolerated) {
  with_each_source("<E A='1' A='2'/>", [](lmx::c_read& read) {
    Reader reader(read);
    Element element;
    EXPECT_EQ(lmx::ELMX_ATTRIBUTE_ALREADY_READ, read_document(reader, element));
    EXPECT_EQ("1", element.A.get());
  });
}

TEST(Text, TakesTheDefaultOnlyWhenEmpty) {
  struct Row {
    const char* caption;
    string document, text;
  };
  for (auto const& row :
       {Row{"empty tag", "<S/>", "default"}, Row{"nothing", "<S></S>", "default"},
        Row{"blanks that collapse", "<S> \n </S>", "default"}, Row{"comment", "<S><!-- c --></S>", "default"},
        Row{"empty CDATA", "<S><![CDATA[]]></S>", "default"}, Row{"text", "<S> a  b </S>", "a b"},
        Row{"behind attributes", "<S A='1' zz='2'>x</S>", "x"},
        Row{"around a comment", "<S>1<!-- c -->2</S>", "12"}, Row{"references", "<S>&lt;&#66;</S>", "<B"},
        Row{"CDATA", "<S><![CDATA[<&]]></S>", "<&"}}) {
    SCOPED_TRACE(row.caption);
    with_each_source(row.document, [&](lmx::c_read& read) {
      Reader reader(read);
      Element element;
      EXPECT_EQ(lmx::ELMX_OK, read_document(reader, element));
      EXPECT_TRUE(element.text.is_set());
      EXPECT_EQ(row.text, element.text.get());
      EXPECT_EQ(lmx::EXE_ELEMENT_END, reader.m_event);
    });
  }
}

TEST(Text, StandsBehindToleratedFaults) {
  struct Row {
    const char* caption;
    string document, text;
  };
  for (auto const& row : {Row{"child", "<S>a<b/></S>", "a"}, Row{"cut off", "<S>a", "a"},
                          Row{"undeclared reference", "<S>&foo;</S>", "&foo;"},
                          Row{"bad text", "<S>!</S>", "!"}, Row{"bad value", "<S>?</S>", "?"}}) {
    SCOPED_TRACE(row.caption);
    with_each_source(row.document, [&](lmx::c_read& read) {
      Reader reader(read);
      reader.is_tolerated = any_error;
      Element element;
      EXPECT_EQ(lmx::ELMX_OK, read_document(reader, element));
      EXPECT_TRUE(element.text.is_set());
      EXPECT_EQ(row.text, element.text.get());
    });
  }
}

TEST(SimpleChildren, AreReadWithTheNextSiblingsEvent) {
  with_each_source("<T><c> x </c><c/><Foo/><c></c><N/></T>", [](lmx::c_read& read) {
    Reader reader(read);
    Element element;
    EXPECT_EQ(lmx::ELMX_OK, read_document(reader, element));
    ASSERT_EQ(3u, element.simple_children.size());
    EXPECT_EQ("x", element.simple_children[0]);
    EXPECT_EQ("default", element.simple_children[1]);
    EXPECT_EQ("default", element.simple_children[2]);
    EXPECT_EQ("N", element.child_tags());
    EXPECT_EQ("?Foo in T/", reader.story());
  });
}

TEST(SimpleChild, LeavesTheNextSiblingWhenNoTableIsGiven) {
  with_each_source("<c>x</c><N/>", [](lmx::c_read& read) {
    Reader reader(read);
    elmx_error error;
    reader.get_element_event(&error, &reader.m_name);
    lmx::ct_simple_pod_single<string> field;
    lmx::c_unmarshal_bridge<Reader, lmx::ct_simple_pod_single<string>, string> bridge(reader, collapsed,
                                                                                      field);
    EXPECT_EQ(lmx::ELMX_OK, reader.unmarshal_child_element_impl(bridge, collapsed, nullptr));
    EXPECT_EQ("x", field.get());
    EXPECT_EQ(lmx::EXE_ELEMENT_END, reader.m_event);
    EXPECT_EQ("c", reader.m_name);
    EXPECT_EQ(ev_N, reader.get_element_event(child_map, &reader.m_name));
  });
}

TEST(SimpleChild, GainsAPlaceEvenWhenItsValueIsRefused) {
  with_each_source("<T><c>1</c><c>?</c></T>", [](lmx::c_read& read) {
    Reader reader(read);
    Element element;
    EXPECT_EQ(lmx::ELMX_VALUE_NOT_ENUMERATED, read_document(reader, element));
    EXPECT_EQ(2u, element.simple_children.size());
    EXPECT_EQ("1", element.simple_children[0]) << "what was read before a failure stays";
  });
}

TEST(SimpleChild, DeclaresNoNamespaceForItsSiblings) {
  with_each_source("<T><c xmlns:p='u' xmlns='v'>x</c><c>y</c><p:E/><N/></T>", [](lmx::c_read& read) {
    Reader reader(read);
    Element element;
    EXPECT_EQ(lmx::ELMX_OK, read_document(reader, element));
    EXPECT_EQ(1u, element.simple_children.size()) << "the default namespace makes the first one unknown";
    EXPECT_EQ("y", element.simple_children[0]);
    EXPECT_EQ("?c in T/; ?p:E in T/", reader.story());
    EXPECT_EQ("N", element.child_tags());
  });
  with_each_source("<T><c xmlns:p='u'>x</c><N p:A='1'/></T>", [](lmx::c_read& read) {
    Reader reader(read);
    Element element;
    EXPECT_EQ(lmx::ELMX_OK, read_document(reader, element));
    EXPECT_EQ("x", element.simple_children[0]);
    EXPECT_EQ("@p:A in T/N/", reader.story());
  });
}

TEST(SkippedElement, DeclaresNoNamespaceForItsSiblings) {
  with_each_source("<T><Foo xmlns:p='" XSI_URI "'><Bar xmlns:q='" XSI_URI "'/></Foo><N p:A='1' q:A='1'/></T>",
                   [](lmx::c_read& read) {
                     Reader reader(read);
                     Element element;
                     EXPECT_EQ(lmx::ELMX_OK, read_document(reader, element));
                     EXPECT_EQ("?Foo in T/; @p:A in T/N/; @q:A in T/N/", reader.story());
                   });
}

struct Kept {
  const char* caption;
  string document, children;
};
std::ostream& operator<<(std::ostream& out, Kept const& row) { return out << row.caption; }
class Children : public testing::TestWithParam<Kept> {};
TEST_P(Children, AreKeptUpToTheFirstOutOfPlace) {
  SCOPED_TRACE(GetParam().caption);
  with_each_source(GetParam().document, [](lmx::c_read& read) {
    Reader reader(read);
    Element element;
    EXPECT_EQ(lmx::ELMX_OK, read_document(reader, element));
    EXPECT_EQ(GetParam().children, element.child_tags());
  });
}
INSTANTIATE_TEST_SUITE_P(
    Helper, Children,
    testing::Values(Kept{"in order", "<T><E/><E/><S/><N/></T>", "EESN"},
                    Kept{"unknown ones break nothing", "<T><E/><Foo/><E/><Foo/><S/></T>", "EES"},
                    Kept{"out of place drops the rest", "<T><E/><S/><E/><S/><N/></T>", "ES"}));

// --- Unknown attributes and elements ---------------------------------------------------------------------

TEST(UnknownAttribute, IsAnErrorWhenNothingUnknownIsSkipped) {
  struct Row {
    const char* caption;
    string document;
    std::size_t unknown;
  };
  for (auto const& row : {Row{"unknown", "<E zz='1' A='a'/>", 1}, Row{"two", "<E zz='1' A='a' yy=''/>", 2},
                          Row{"schema instance", "<E xmlns:i='" XSI_URI "' i:zz='1' A='a'/>", 0},
                          Row{"declarations are none", "<E xmlns:p='u' xmlns='' A='a'/>", 0}}) {
    SCOPED_TRACE(row.caption);
    with_each_source(row.document, [&](lmx::c_read& read) {
      for (const bool is_tolerant : {false, true}) {
        read.rewind();
        Reader reader(read);
        if (is_tolerant) reader.is_tolerated = any_error;
        elmx_error error;
        reader.get_element_event(&error, &reader.m_name);
        Element element;
        EXPECT_EQ(is_tolerant || row.unknown == 0 ? lmx::ELMX_OK : lmx::ELMX_UNEXPECTED_ATTRIBUTE,
                  read_element(reader, element, "E", {}));
        EXPECT_EQ(is_tolerant || row.unknown == 0, element.A.is_set());
        if (!is_tolerant) continue;
        ASSERT_EQ(row.unknown, reader.log.size());
        for (string const& entry : reader.log) EXPECT_EQ(0u, entry.find("UNEXPECTED_ATTRIBUTE ")) << entry;
      }
    });
  }
}

TEST(UnknownAttribute, CanBeVetoedWithoutTheHandler) {
  with_each_source("<E zz='1' A='a'/>", [](lmx::c_read& read) {
    Reader reader(read);
    reader.is_tolerated = any_error;
    reader.attribute_verdict = lmx::ELMX_USER_DEFINED_1;
    Element element;
    EXPECT_EQ(lmx::ELMX_USER_DEFINED_1, read_document(reader, element));
    EXPECT_EQ("@zz in E/", reader.story());
    EXPECT_EQ(lmx::ELMX_USER_DEFINED_1, reader.debug_error().m_code);
    EXPECT_FALSE(element.A.is_set());
  });
}

struct Veto {
  const char* caption;
  string document;
  int vetoes;
  bool is_tolerant;
  int result;
  string reports;
};
std::ostream& operator<<(std::ostream& out, Veto const& row) { return out << row.caption; }
class Vetoes : public testing::TestWithParam<Veto> {};
TEST_P(Vetoes, OfUnknownElements) {
  with_each_source(GetParam().document, [](lmx::c_read& read) {
    Reader reader(read);
    if (GetParam().is_tolerant) reader.is_tolerated = any_error;
    reader.element_vetoes = GetParam().vetoes;
    Element element;
    EXPECT_EQ(GetParam().result, read_document(reader, element));
    EXPECT_EQ(GetParam().reports, reader.story());
    EXPECT_EQ(lmx::ELMX_USER_DEFINED_2, reader.debug_error().m_code);
  });
}
INSTANTIATE_TEST_SUITE_P(
    Helper, Vetoes,
    testing::Values(Veto{"while reading the first child: the handler is asked", "<T><Foo/></T>", 1, false,
                         lmx::ELMX_USER_DEFINED_2, "?Foo in T/; USER_DEFINED_2 T"},
                    Veto{"between children too", "<T><E/><Foo/></T>", 1, false, lmx::ELMX_USER_DEFINED_2,
                         "?Foo in T/; USER_DEFINED_2 T"},
                    Veto{"in an element with attributes only too", "<E><Foo/></E>", 1, false,
                         lmx::ELMX_USER_DEFINED_2, "?Foo in E/; USER_DEFINED_2 E"},
                    Veto{"tolerated, the helper skips it", "<T><Foo/><E/></T>", 1, true, 0,
                         "?Foo in T/; USER_DEFINED_2 T; ?Foo in T/; ?E in T/"},
                    Veto{"tolerated and vetoed again", "<T><Foo/></T>", 2, true, lmx::ELMX_USER_DEFINED_2,
                         "?Foo in T/; USER_DEFINED_2 T; ?Foo in T/"},
                    Veto{"out of order: the handler is not asked", "<T><S/><E/></T>", 1, false,
                         lmx::ELMX_USER_DEFINED_2, "?E in T/"},
                    Veto{"out of order, whatever the handler says", "<T><S/><E/></T>", 1, true,
                         lmx::ELMX_USER_DEFINED_2, "?E in T/"}));

TEST(UnknownElement, VanishesFromEmptyContentUnseenWithoutATable) {
  struct Row {
    const char* caption;
    string document;
    string reports;
    bool is_skipping_unknown;
  };
  for (auto const& row :
       {Row{"unknown", "<E><Foo/><Bar>x</Bar></E>", "", true},
        Row{"closed as another", "<E><Foo></E>",
            "BAD_END_OF_ELEMENT Foo; UNEXPECTED_EOM E; BAD_END_OF_ELEMENT E", true},
        Row{"text behind it", "<E><Foo/>x</E>", "BAD_END_OF_ELEMENT E", true},
        Row{"nothing unknown is skipped", "<E><Foo/></E>", "BAD_END_OF_ELEMENT E", false}}) {
    SCOPED_TRACE(row.caption);
    with_each_source(row.document, [&](lmx::c_read& read) {
      Reader reader(read);
      reader.is_tolerated = any_error;
      reader.m_skip_unknown = row.is_skipping_unknown;
      elmx_error error;
      reader.get_element_event(&error, &reader.m_name);
      Ways ways;
      ways.is_table_selected = false;
      Element element;
      EXPECT_EQ(lmx::ELMX_OK, read_element(reader, element, "E", ways));
      EXPECT_EQ(row.reports, reader.story());
    });
  }
}

TEST(ElementOutOfOrder, IsAnErrorUnlessItMayBeSkipped) {
  with_each_source("<T><S/><E/></T>", [](lmx::c_read& read) {
    for (const bool is_helper_willing : {false, true}) {
      read.rewind();
      Reader reader(read);
      elmx_error error;
      reader.get_element_event(&error, &reader.m_name);
      reader.m_skip_unknown = !is_helper_willing;
      Ways ways;
      ways.is_skipping_allowed = is_helper_willing;
      Element element;
      EXPECT_EQ(lmx::ELMX_BAD_END_OF_ELEMENT, read_element(reader, element, "T", ways));
      EXPECT_EQ("BAD_END_OF_ELEMENT T", reader.story());
    }
  });
}

// --- The base class --------------------------------------------------------------------------------------

TEST(Helper, LetsAnEmptyElementPassOnlyWhereAllowed) {
  for (const bool is_allowed : {false, true}) {
    for (const char* document : {"<X/>", "<X></X>"}) {
      with_each_source(document, [&](lmx::c_read& read) {
        Reader reader(read);
        elmx_error error;
        reader.get_element_event(&error, &reader.m_name);
        lmx::c_unmarshal_helper helper(reader);
        EXPECT_FALSE(helper.m_empty_allowed);
        helper.m_empty_allowed = is_allowed;
        EXPECT_EQ(is_allowed ? lmx::ELMX_OK : lmx::ELMX_UNEXPECTED_EMPTY_ELEMENT,
                  helper.unmarshal_complex_content("file", 1));
        EXPECT_EQ(is_allowed ? "" : "UNEXPECTED_EMPTY_ELEMENT X", reader.story());
      });
    }
  }
}

TEST(Helper, TakesNothingByItself) {
  MemoryRead memory("");
  Reader reader(memory);
  lmx::c_unmarshal_helper helper(reader);
  elmx_error error = lmx::ELMX_OK;
  EXPECT_FALSE(helper.unmarshal_attributes(&error));
  EXPECT_EQ(lmx::ELMX_OK, error);
  EXPECT_EQ(lmx::ELMX_OK, helper.unmarshal_attributes_check());
  EXPECT_FALSE(helper.is_body_skipped());
  EXPECT_TRUE(helper.is_skipping_allowed());
}

TEST(HelperDeathTest, HasNoBodyOfItsOwn) {
  MemoryRead memory("");
  Reader reader(memory);
  lmx::c_unmarshal_helper helper(reader);
  elmx_error error;
  EXPECT_DEATH(helper.unmarshal_simple_body(&error), "");
  EXPECT_DEATH(helper.unmarshal_complex_body(&error), "");
}

TEST(Helper, KeepsTheElementsNameOnTheStackWhileItLives) {
  MemoryRead memory("");
  Reader reader(memory);
  reader.m_name = "outer";
  {
    const lmx::c_unmarshal_helper outer(reader);
    reader.m_name = "b";
    {
      const lmx::c_unmarshal_helper inner(reader);
      EXPECT_EQ(string("outer\0b\0", 8), string(reader.m_name_stack.begin(), reader.m_name_stack.end()));
      EXPECT_EQ((std::vector<std::size_t>{0, 6}), reader.m_name_offsets);
    }
    EXPECT_EQ(string("outer\0", 6), string(reader.m_name_stack.begin(), reader.m_name_stack.end()));
    EXPECT_EQ((std::vector<std::size_t>{0}), reader.m_name_offsets);
  }
  EXPECT_TRUE(reader.m_name_stack.empty());
  EXPECT_TRUE(reader.m_name_offsets.empty());
}

TEST(Helper, RunsAttributesThenCheckThenBody) {
  class Steps : public lmx::c_unmarshal_helper {
   public:
    explicit Steps(Reader& reader) : c_unmarshal_helper(reader), mr_reader(reader) {}
    bool unmarshal_attributes(elmx_error* error) override {
      mr_reader.log.push_back("attribute " + mr_reader.m_name);
      mr_reader.skip_attribute_value();
      if (mr_reader.m_name == "bad") *error = lmx::ELMX_USER_DEFINED_1;
      return mr_reader.m_name != "bad";  // an error counts whatever the result
    }
    elmx_error unmarshal_attributes_check() override {
      mr_reader.log.push_back("check");
      return check;
    }
    bool unmarshal_complex_body(elmx_error* error) override {
      mr_reader.log.push_back("body");
      *error = body;
      return body == lmx::ELMX_OK;
    }
    elmx_error check = lmx::ELMX_OK, body = lmx::ELMX_OK;

   private:
    Reader& mr_reader;
  };
  struct Row {
    const char* caption;
    string document;
    elmx_error check, body, result;
    string steps;
  };
  for (auto const& row :
       {Row{"all", "<X a='' b=''>t</X>", lmx::ELMX_OK, lmx::ELMX_OK, lmx::ELMX_BAD_END_OF_ELEMENT,
            "attribute a; attribute b; check; body; BAD_END_OF_ELEMENT X"},
        Row{"attribute fails", "<X bad='' b=''>t</X>", lmx::ELMX_OK, lmx::ELMX_OK, lmx::ELMX_USER_DEFINED_1,
            "attribute bad"},
        Row{"check fails", "<X>t</X>", lmx::ELMX_USER_DEFINED_2, lmx::ELMX_OK, lmx::ELMX_USER_DEFINED_2,
            "check"},
        Row{"body fails", "<X>t</X>", lmx::ELMX_OK, lmx::ELMX_USER_DEFINED_3, lmx::ELMX_USER_DEFINED_3,
            "check; body"}}) {
    SCOPED_TRACE(row.caption);
    with_each_source(row.document, [&](lmx::c_read& read) {
      Reader reader(read);
      elmx_error error;
      reader.get_element_event(&error, &reader.m_name);
      Steps helper(reader);
      helper.check = row.check;
      helper.body = row.body;
      EXPECT_EQ(row.result, helper.unmarshal_complex_content("file", 1));
      EXPECT_EQ(row.steps, reader.story());
    });
  }
}

// What a derived class may read and call, in an order of its own: the end first, then the attributes are
// gone.
class ByHand : public lmx::c_unmarshal_helper {
 public:
  using c_unmarshal_helper::c_unmarshal_helper;
  using c_unmarshal_helper::m_code_file;
  using c_unmarshal_helper::m_code_line;
  using c_unmarshal_helper::m_name_offset;
  using c_unmarshal_helper::mp_name_stack;
  using c_unmarshal_helper::mr_reader;
  using c_unmarshal_helper::unmarshal_all_attributes;
  using c_unmarshal_helper::unmarshal_complex_content_case;
  using c_unmarshal_helper::unmarshal_empty_content_case;
  using c_unmarshal_helper::unmarshal_simple_content_case;
  using c_unmarshal_helper::verify_element_end;
  bool unmarshal_simple_body(elmx_error* error) override {
    if (!mr_reader.get_element_value(&text, lmx::EXWS_COLLAPSE))
      *error = lmx::ELMX_UNABLE_TO_READ_ELEMENT_VALUE;
    return *error == lmx::ELMX_OK;
  }
  bool unmarshal_complex_body(elmx_error*) override { return true; }
  string text;
};

TEST(DerivedHelper, SeesItsReaderItsNameAndItsPlace) {
  MemoryRead memory("<X></X>");
  Reader reader(memory);
  reader.m_name = "outer";
  const lmx::c_unmarshal_helper outer(reader);
  elmx_error error;
  reader.get_element_event(&error, &reader.m_name);
  ByHand helper(reader);
  EXPECT_EQ(&reader, &helper.mr_reader);
  EXPECT_EQ(&reader.m_name_stack, helper.mp_name_stack);
  EXPECT_EQ(6u, helper.m_name_offset);
  EXPECT_STREQ("X", helper.mp_name_stack->data() + helper.m_name_offset);
  EXPECT_EQ(nullptr, helper.m_code_file);
  EXPECT_EQ(0, helper.m_code_line);
  EXPECT_EQ(nullptr, helper.mp_any_attributes);
  EXPECT_FALSE(helper.m_empty_allowed);
  helper.m_empty_allowed = true;
  EXPECT_EQ(lmx::ELMX_OK, helper.unmarshal_complex_content("file", 7));
  EXPECT_STREQ("file", helper.m_code_file);
  EXPECT_EQ(7, helper.m_code_line);
}

TEST(DerivedHelper, TakesTheStepsOfAReadByItself) {
  struct Row {
    const char* caption;
    string document;
    std::function<elmx_error(ByHand&)> content;
    int result;
  };
  const auto empty = [](ByHand& helper) { return helper.unmarshal_empty_content_case(); };
  const auto simple = [](ByHand& helper) { return helper.unmarshal_simple_content_case(); };
  const auto complex = [](ByHand& helper) { return helper.unmarshal_complex_content_case(); };
  const auto end = [](ByHand& helper) { return helper.verify_element_end(); };
  for (auto const& row :
       {Row{"empty", "<X a=''></X>", empty, 0},
        Row{"text in an empty one", "<X>t</X>", empty, lmx::ELMX_BAD_END_OF_ELEMENT},
        Row{"text", "<X a=''>t</X>", simple, 0}, Row{"a child in text", "<X>t<Y/></X>", simple, 0},
        Row{"children", "<X a=''><Y/></X>", complex, 0},
        Row{"no children", "<X></X>", complex, lmx::ELMX_UNEXPECTED_EMPTY_ELEMENT},
        Row{"end", "<X a=''></X>", end, 0}, Row{"empty tag's end", "<X/>", end, 0},
        Row{"another end", "<X></Y>", end, lmx::ELMX_BAD_END_OF_ELEMENT},
        Row{"no end", "<X>", end, lmx::ELMX_UNEXPECTED_EOM}}) {
    SCOPED_TRACE(row.caption);
    with_each_source(row.document, [&](lmx::c_read& read) {
      Reader reader(read);
      reader.m_skip_unknown = true;
      elmx_error error;
      reader.get_element_event(&error, &reader.m_name);
      ByHand helper(reader);
      helper.m_code_file = "file";
      ASSERT_EQ(lmx::ELMX_OK, helper.unmarshal_all_attributes());
      EXPECT_EQ(row.result, row.content(helper));
      EXPECT_EQ(row.document.find('t') == string::npos || row.result != 0 ? "" : "t", helper.text);
    });
  }
}

TEST(UnknownAttributes, GoToTheListOfWhoWantsThemAndBelongToIt) {
  const string document = "<X a=' 1 ' xmlns:p='urn:p' p:b='&lt;' q:c=''/>";
  with_each_source(document, [](lmx::c_read& read) {
    Reader reader(read);
    reader.m_skip_unknown = true;
    const lmx::c_xml_reader_local scope(reader);
    elmx_error error;
    reader.get_element_event(&error, &reader.m_name);
    std::vector<lmx::c_any_info*> kept;
    {
      ByHand helper(reader);
      helper.m_empty_allowed = true;
      helper.mp_any_attributes = &kept;
      EXPECT_EQ(lmx::ELMX_OK, helper.unmarshal_complex_content("file", 1));
    }
    EXPECT_EQ("", reader.story());  // the hook is not asked
    string found;
    for (lmx::c_any_info* info : kept) {
      found += "{" + info->m_namespace + "}" + info->m_name + "=" + info->m_value + ";";
      EXPECT_EQ(0u, info->m_context.m_items.size());
      EXPECT_LE(6u, info->m_context.m_items.capacity());
      delete info;
    }
    EXPECT_EQ("{}a= 1 ;{urn:p}p:b=<;{ }q:c=;", found);
  });
}

TEST(UnknownAttributes, ThatCanNotBeReadAreLeftOutOfTheList) {
  with_each_source("<X a='&no;' b='1'/>", [](lmx::c_read& read) {
    Reader reader(read);
    reader.is_tolerated = any_error;
    elmx_error error;
    reader.get_element_event(&error, &reader.m_name);
    std::vector<lmx::c_any_info*> kept;
    ByHand helper(reader);
    helper.mp_any_attributes = &kept;
    EXPECT_EQ(lmx::ELMX_OK, helper.unmarshal_empty_content("file", 1));
    EXPECT_EQ("UNABLE_TO_READ_ATTRIBUTE_VALUE a", reader.story());
    ASSERT_EQ(1u, kept.size());
    EXPECT_EQ("b", kept[0]->m_name);
    delete kept[0];
  });
}

TEST(SkippedBody, OnlyChecksTheEnd) {
  struct Row {
    const char* caption;
    string document;
    int result;
    string reports;  // when everything is tolerated
  };
  for (auto const& row :
       {Row{"children, empty tag", "<M/>", 0, ""}, Row{"children, none", "<M></M>", 0, ""},
        Row{"children, one item left", "<M>x</M>", 0, ""},
        Row{"children, another end tag", "<M>x</T>", lmx::ELMX_BAD_END_OF_ELEMENT, "BAD_END_OF_ELEMENT M"},
        Row{"children, cut off", "<M>x", lmx::ELMX_UNEXPECTED_EOM, "UNEXPECTED_EOM M; BAD_END_OF_ELEMENT M"},
        Row{"text, empty tag", "<S/>", 0, ""}, Row{"text, none", "<S A='1'></S>", 0, ""},
        Row{"text, some", "<S>x</S>", lmx::ELMX_BAD_END_OF_ELEMENT, "BAD_END_OF_ELEMENT S"}}) {
    SCOPED_TRACE(row.caption);
    with_each_source(row.document, [&](lmx::c_read& read) {
      Ways ways;
      ways.is_body_skipped = true;
      Reader tolerant(read);
      tolerant.is_tolerated = any_error;
      Element element;
      EXPECT_EQ(lmx::ELMX_OK, read_document(tolerant, element, ways));
      EXPECT_EQ(row.reports, tolerant.story());
      EXPECT_FALSE(element.text.is_set());
      read.rewind();
      Reader strict(read);
      EXPECT_EQ(row.result, read_document(strict, *std::make_unique<Element>(), ways));
    });
  }
}

TEST(Elements, NestDeep) {
  string document;
  for (int level = 0; level != 500; ++level) document += "<T><N>";
  for (int level = 0; level != 500; ++level) document += "</N></T>";
  MemoryRead memory(document);
  Reader reader(memory);
  Element element;
  EXPECT_EQ(lmx::ELMX_OK, read_document(reader, element));
  EXPECT_TRUE(reader.m_name_stack.empty());
}

// --- Whatever comes --------------------------------------------------------------------------------------

const string rich_document =
    "<?xml version='1.0'?>\n<!-- c -->\n<T A='1' zz='2' xmlns:p='u'>\n <Foo p:x='1'><Bar/>text&lt;</Foo>\n"
    " <E A='1'/> <E\n></E><S B='&#65;'>a &amp; b<!-- c --><![CDATA[x]]></S>\n <c>simple</c><c/>"
    "<N><T/><M><E/></M></N><?pi x ?><M><Foo/><E/></M><R A='&lt;'></R><E/>\n</T>";

/// Reads with a handler that tolerates everything; an endless run of reports throws.
void read_tolerantly(lmx::c_read& read) {
  Reader reader(read);
  reader.is_tolerated = any_error;
  Element element;
  EXPECT_NO_THROW(read_document(reader, element));
  EXPECT_TRUE(reader.m_name_stack.empty());
}

TEST(AnyDocument, CutAnywhereIsReadToAnEndAndNeverPasses) {
  MemoryRead whole(rich_document);
  Reader whole_reader(whole);
  Element element;
  ASSERT_EQ(lmx::ELMX_OK, read_document(whole_reader, element)) << whole_reader.story();

  for (std::size_t size = 0; size != rich_document.size(); ++size) {
    SCOPED_TRACE("first " + std::to_string(size) + " bytes");
    with_each_source(rich_document.substr(0, size), [](lmx::c_read& read) {
      read_tolerantly(read);
      read.rewind();
      Reader strict(read);
      Element cut;
      EXPECT_NE(lmx::ELMX_OK, read_document(strict, cut));
    });
  }
}

TEST(AnyDocument, WithOneByteChangedIsReadToAnEnd) {
  for (std::size_t place = 0; place != rich_document.size(); ++place) {
    for (const char byte : {'\0', '<', '>', '&', '\'', '/', '=', ' ', '!', '?', ']', '\n', '\xC3', '\xFF'}) {
      string document = rich_document;
      document[place] = byte;
      SCOPED_TRACE(document);
      MemoryRead memory(document);
      read_tolerantly(memory);
    }
  }
}

TEST(AnyDocument, WithOneByteMissingIsReadToAnEnd) {
  for (std::size_t place = 0; place != rich_document.size(); ++place) {
    string document = rich_document;
    document.erase(place, 1);
    SCOPED_TRACE(document);
    with_each_source(document, read_tolerantly);
  }
}

// --- Elements of the format ------------------------------------------------------------------------------

using FileReader = Recording<lmx::xmlReader>;

#define GOOD_AFE "A='ABCDEFGH.XML' B='1' C='' D='1'"
#define GOOD_LGP "A='LGP1' B='1'"
#define GOOD_LNK "A='TSK1' B='x'"

class FormatDocuments : public testing::TestWithParam<Document> {};
TEST_P(FormatDocuments, FollowTheSameRules) {
  const TempDir directory;
  const string path = directory.write("document.xml", GetParam().document);
  Root tolerated;
  FileReader tolerant(path.c_str());
  tolerant.is_tolerated = any_error;
  tolerated.unmarshal(tolerant);
  EXPECT_EQ(GetParam().reports, tolerant.story());

  Root root;
  FileReader strict(path.c_str());
  EXPECT_EQ(GetParam().result(), code_name(root.unmarshal(strict)));
  EXPECT_EQ(GetParam().result(), code_name(strict.debug_error().m_code));
}
INSTANTIATE_TEST_SUITE_P(
    OfAttributesOnly, FormatDocuments,
    testing::Values(Document{"good", "<AFE " GOOD_AFE "/>", ""},
                    Document{"nothing to object to", "<AFE " GOOD_AFE "> <!-- c --><?p q?>\n</AFE>", ""},
                    Document{"unknown child", "<AFE " GOOD_AFE "><Foo/></AFE>",
                             "?Foo in AFE/; BAD_END_OF_ELEMENT AFE"},
                    Document{"child known to the format", "<AFE " GOOD_AFE "><LNK " GOOD_LNK "/></AFE>",
                             "?LNK in AFE/; BAD_END_OF_ELEMENT AFE"},
                    Document{"text", "<AFE " GOOD_AFE ">x</AFE>", "BAD_END_OF_ELEMENT AFE"},
                    Document{"bad in several ways", "<AFE A='x'><Foo/></AFE>",
                             "LENGTH_TOO_SHORT A; NO_PATTERN_MATCHED A; REQUIRED_ATTRIBUTES_MISSING AFE; "
                             "?Foo in AFE/; BAD_END_OF_ELEMENT AFE"},
                    Document{"twice", "<AFE " GOOD_AFE " D='2'/>", "ATTRIBUTE_ALREADY_READ @D"},
                    Document{"undeclared reference", "<AFE " GOOD_AFE " E='&foo;'/>",
                             "UNABLE_TO_READ_ATTRIBUTE_VALUE @E"},
                    Document{"all missing, one report", "<AFE/>", "REQUIRED_ATTRIBUTES_MISSING AFE"}));
INSTANTIATE_TEST_SUITE_P(
    WithChildren, FormatDocuments,
    testing::Values(
        Document{"empty", "<LGP " GOOD_LGP "/>", ""},
        Document{"unknown child", "<LGP " GOOD_LGP "><Foo/></LGP>", "?Foo in LGP/"},
        Document{"child known elsewhere", "<LGP " GOOD_LGP "><AFE " GOOD_AFE "/></LGP>", "?AFE in LGP/"},
        Document{"reference out of place opens no file", "<XFC><XFR A='TSK00002' B='1'/></XFC>",
                 "?XFR in XFC/"},
        Document{"cut off at the first child", "<LGP " GOOD_LGP ">",
                 "UNEXPECTED_EOM LGP; BAD_END_OF_ELEMENT LGP"},
        Document{"cut off behind a child", "<LGP " GOOD_LGP "><LNK " GOOD_LNK "/>",
                 "UNEXPECTED_EOM LGP; BAD_END_OF_ELEMENT LGP"},
        Document{"text", "<LGP " GOOD_LGP ">x</LGP>", "BAD_END_OF_ELEMENT LGP"},
        Document{"unknown attribute below", "<LGP " GOOD_LGP "><LNK z='' " GOOD_LNK "/></LGP>",
                 "@z in LGP/LNK/"},
        Document{"missing below", "<LGP " GOOD_LGP "><LNK/></LGP>", "REQUIRED_ATTRIBUTES_MISSING LNK"}));
INSTANTIATE_TEST_SUITE_P(Root, FormatDocuments,
                         testing::Values(Document{"end tag first", "</x>", "UNEXPECTED_COMPLEX_ELEMENT x"},
                                         Document{"text first", " hello", "UNEXPECTED_COMPLEX_ELEMENT hello"},
                                         Document{"unknown element in front", "<Foo/><AFE " GOOD_AFE "/>",
                                                  "?Foo in "}));

TEST(EmptyFile, IsReportedWithoutAnItem) {
  const TempDir directory;
  FileReader reader(directory.write("empty.xml", "").c_str());
  Root root;
  EXPECT_EQ(lmx::ELMX_UNEXPECTED_EOM, root.unmarshal(reader));
  EXPECT_EQ("UNEXPECTED_EOM ", reader.story());
}

TEST(EmptyFile, IsReadToAnEndByATolerantReaderOfOneClass) {
  const TempDir directory;
  FileReader reader(directory.write("empty.xml", "").c_str());
  reader.is_tolerated = any_error;
  AttachedFile file;
  file.unmarshal(reader);
  std::vector<string> codes;
  for (string const& entry : reader.log) codes.push_back(entry.substr(0, entry.find(' ')));
  EXPECT_EQ((std::vector<string>{"UNEXPECTED_EOM", "ELEMENT_NOT_FOUND", "NOT_WELL_FORMED",
                                 "REQUIRED_ATTRIBUTES_MISSING", "UNEXPECTED_EOM", "BAD_END_OF_ELEMENT"}),
            codes);
}

TEST(WrongTopElement, IsReportedAndReadWhenTolerated) {
  const TempDir directory;
  const string path = directory.write("link.xml", "<LNK " GOOD_LNK "/>");
  FileReader strict(path.c_str());
  AttachedFile file;
  EXPECT_EQ(lmx::ELMX_ELEMENT_NOT_FOUND, file.unmarshal(strict));
  EXPECT_EQ("ELEMENT_NOT_FOUND LNK", strict.story());

  FileReader tolerant(path.c_str());
  tolerant.is_tolerated = [](elmx_error code) { return code == lmx::ELMX_ELEMENT_NOT_FOUND; };
  EXPECT_EQ(lmx::ELMX_LENGTH_TOO_SHORT, file.unmarshal(tolerant));
  EXPECT_EQ("ELEMENT_NOT_FOUND LNK; LENGTH_TOO_SHORT A", tolerant.story());
}

TEST(RunOfChildren, IsNotBrokenByAnUnknownOne) {
  const TempDir directory;
  FileReader reader(directory
                        .write("links.xml", "<LGP " GOOD_LGP "><LNK " GOOD_LNK
                                            "/><Foo><LNK/></Foo><LNK " GOOD_LNK " zz=''/></LGP>")
                        .c_str());
  Root root;
  EXPECT_EQ(lmx::ELMX_OK, root.unmarshal(reader));
  LinkGroup const& group = static_cast<Root const&>(root).GetLinkGroup();
  ASSERT_EQ(1u, group.SizeInnerLinkGroup());
  EXPECT_EQ(2u, group.GetInnerLinkGroup(0).SizeLink());
  EXPECT_EQ("?Foo in LGP/; @zz in LGP/LNK/", reader.story());
}

TEST(FileReaderErrorLog, KnowsTheTrueLineOfATagLevelError) {
  const TempDir directory;
  FileReader reader(directory.write("bad.xml", "\n\n<AFE A=1/>").c_str());
  Root root;
  EXPECT_EQ(lmx::ELMX_NOT_WELL_FORMED, root.unmarshal(reader));
  lmx::elmx_error_type type;
  elmx_error code;
  int line;
  ASSERT_TRUE(reader.error_log().get_error_info(&type, &code, &line));
  EXPECT_EQ(lmx::EET_FATAL, type);
  EXPECT_EQ(lmx::ELMX_NOT_WELL_FORMED, code);
  EXPECT_EQ(3, line);
}

TEST(FileReaderErrorLog, KeepsItsTextsToItself) {
  struct Row {
    const char* caption;
    string document;
    elmx_error code;
    string of_the_log;  // a part of its text
  };
  for (auto const& row : {Row{"fatal", "<AFE A=1/>", lmx::ELMX_NOT_WELL_FORMED, "expected"},
                          Row{"error", "<AFE ;/>", lmx::ELMX_NOT_WELL_FORMED, "XML"},
                          Row{"recursion, by its value", "<!DOCTYPE a [<!ENTITY e '&e;'>]><AFE A='&e;'/>",
                              lmx::ELMX_UNABLE_TO_READ_ATTRIBUTE_VALUE, "Recursive"},
                          Row{"unknown encoding", "<?xml version='1.0' encoding='KOI8-R'?><AFE/>",
                              lmx::ELMX_BAD_CHAR_ENCODING, "specified"},
                          Row{"warning", "<!-- x ---><!x>", lmx::ELMX_BAD_COMMENT, "End of"}}) {
    SCOPED_TRACE(row.caption);
    const TempDir directory;
    FileReader reader(directory.write("bad.xml", row.document).c_str());
    Root root;
    EXPECT_EQ(row.code, root.unmarshal(reader));
    EXPECT_NE(lmx::ELMX_OK, reader.error_log().last_code());
    const string text = reader.get_error_message();
    const string start = string("Error: ") + lmx::get_error_description(row.code) + "\nItem: ";
    EXPECT_EQ(start, text.substr(0, start.size()));
    EXPECT_EQ("XML line: 1\n", text.substr(text.rfind("XML line")));
    EXPECT_EQ(5, std::count(text.begin(), text.end(), '\n')) << text;
    EXPECT_EQ(string::npos, text.substr(0, text.rfind("XML line")).find(row.of_the_log)) << text;
  }
}

TEST(KnownElementTables, HoldTheClassesOwnChildrenOnly) {
  const auto names = [](lmx::s_known_elements const* table) {
    string text;
    for (; table->mp_name != nullptr; ++table) {
      EXPECT_EQ(1, table->m_ns_id);
      EXPECT_EQ(string(table->mp_name).size(), table->m_length);
      text += string(table->mp_name) + " ";
    }
    return text;
  };
  EXPECT_EQ("LNK ", names(LinkGroup::known_elements));
  EXPECT_EQ("LGP ", names(LinkList::known_elements));
  EXPECT_EQ("", names(AttachedFile::known_elements));
  EXPECT_EQ("", names(Link::known_elements));
}

}  // namespace
