// What the reader makes of a document's items: the event numbers, the unknown elements that vanish, the
// codes, and whom it asks about an error. Documents are walked by hand here; whole elements are read in
// c_unmarshal_helper_test.cpp.
#include "GenLibrarySupportFiles/lmxparse/c_xml_reader.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "support/code_name.h"
#include "support/each_source.h"
#include "support/memory_read.h"

namespace {

using lmx::elmx_error;
using std::string;

#define XSI_URI "http://www.w3.org/2001/XMLSchema-instance"

enum : int { ev_a = lmx::EXE_FIRST_USER + 1, ev_ab, ev_bound_a, ev_never };

constexpr lmx::s_event_map names[] = {
    {1, "a", 1, ev_a},
    {1, "ab", 2, ev_ab},
    {lmx::nsid_first_user, "a", 1, ev_bound_a},
    {1, "a", 1, ev_never},                 // the first match counts
    {lmx::nsid_xsi, "type", 4, ev_never},  // names of that namespace are not looked up
    {0, nullptr, 0, 0},
};
constexpr lmx::s_event_map other_names[] = {{1, "b", 1, ev_ab}, {0, nullptr, 0, 0}};
constexpr lmx::s_event_map no_names[] = {{0, nullptr, 0, 0}};

constexpr lmx::s_known_elements known[] = {
    {1, "T", 1}, {1, "a", 1}, {lmx::nsid_first_user, "a", 1}, {0, nullptr, 0}};
constexpr lmx::s_known_elements none_known[] = {{0, nullptr, 0}};

/// Writes down what each hook was told, in order.
class Reader : public lmx::c_xml_reader {
 public:
  using c_xml_reader::c_xml_reader;

  elmx_error on_error(elmx_error code, string const& item) override {
    log.push_back("on_error " + code_name(code) + " " + item);
    return tolerant ? lmx::ELMX_OK : c_xml_reader::on_error(code, item);
  }
  elmx_error handle_error(elmx_error code, string const& item, char const* file, int line) override {
    log.push_back("handle_error " + code_name(code) + " " + item + " " + place(file, line));
    return c_xml_reader::handle_error(code, item, file, line);
  }
  elmx_error on_unknown_element(string const& name, std::vector<char> const& path, char const* file,
                                int line) override {
    log.push_back("?" + name);
    last_unknown = string(path.begin(), path.end()) + place(file, line);
    return veto;
  }

  std::vector<string> log;
  string last_unknown;
  bool tolerant = false;
  elmx_error veto = lmx::ELMX_OK;

 private:
  static string place(char const* file, int line) { return string(file) + ":" + std::to_string(line); }
};

string error_text(elmx_error error, int event) {
  return "!" + code_name(error) + "(" + std::to_string(event) + ")";
}

/// Every item up to the first failure: "<a" a start tag, "<a/" an empty one, "</a" an end tag, "'x'" text,
/// "?a" an unknown element offered to the hook, "!UNEXPECTED_EOM(0)" the error with the event.
string walk(Reader& reader) {
  string seen;
  for (int items = 0; items != 1000; ++items) {
    elmx_error error = lmx::ELMX_UNDEFINED_ERROR;
    reader.log.clear();
    reader.get_element_event(&error, &reader.m_name);
    for (string const& entry : reader.log) seen += entry + " ";
    if (error != lmx::ELMX_OK || reader.m_event == lmx::EXE_ERROR) {
      return seen + error_text(error, reader.m_event);
    }
    bool is_empty = false;
    switch (reader.m_event) {
      case lmx::EXE_TOKEN:
        EXPECT_TRUE(reader.skip_start_tag(&is_empty));
        seen += "<" + reader.m_name + (is_empty ? "/ " : " ");
        break;
      case lmx::EXE_ELEMENT_END: seen += "</" + reader.m_name + " "; break;
      case lmx::EXE_SKIPPED_TO_END: seen += "..</" + reader.m_name + " "; break;
      case lmx::EXE_TEXT: seen += "'" + reader.m_name + "' "; break;
      default: return seen + "unexpected event " + std::to_string(reader.m_event);
    }
  }
  return seen + "no end";
}

// --- The start -------------------------------------------------------------------------------------------

TEST(NewReader, HoldsNothingYet) {
  MemoryRead memory("");
  Reader reader(memory);
  EXPECT_EQ(lmx::EXE_EOM, reader.m_event);
  EXPECT_EQ("", reader.m_name);
  EXPECT_EQ("", reader.m_value);
  EXPECT_STREQ("<unspecified>", reader.m_code_file);
  EXPECT_EQ(-1, reader.m_code_line);
  EXPECT_FALSE(reader.m_skip_unknown);
  EXPECT_EQ(nullptr, reader.mp_known_elements);
  EXPECT_NE(nullptr, reader.mp_local);
  EXPECT_TRUE(reader.m_name_stack.empty());
  EXPECT_TRUE(reader.m_name_offsets.empty());
  EXPECT_EQ(lmx::EXWS_PRESERVE, reader.getter().ws_mode());
  EXPECT_EQ(1, reader.line());
  EXPECT_EQ("Error: No Error\n", reader.get_error_message());
}

TEST(NewReader, CountsALineFeedThatComesFirst) {
  with_each_source("\n</", [](lmx::c_read& read) {
    Reader reader(read);
    walk(reader);
    EXPECT_EQ(2, reader.line());
  });
}

TEST(NewReader, AsksTheBaseHooksForPlainAnswers) {
  MemoryRead memory("");
  lmx::c_xml_reader reader(memory);
  const std::vector<char> path = {'T', '\0'};
  EXPECT_EQ(lmx::ELMX_BAD_COMMENT, reader.on_error(lmx::ELMX_BAD_COMMENT, "x"));
  EXPECT_EQ(lmx::ELMX_BAD_COMMENT, reader.handle_error(lmx::ELMX_BAD_COMMENT, "x", "file", 1));
  EXPECT_EQ(lmx::ELMX_OK, reader.on_unknown_attribute("x", path, "file", 1));
  EXPECT_EQ(lmx::ELMX_OK, reader.on_unknown_element("x", path, "file", 1));
}

TEST(NewReader, TakesReferencedWhiteSpaceForWhiteSpaceUnlessToldOtherwise) {
  const auto read_with = [](auto... normalise) {
    MemoryRead memory("<e a='x&#10;y'/>");
    lmx::c_xml_reader reader(memory, normalise...);
    elmx_error error;
    string value;
    reader.get_element_event(&error, &reader.m_name);
    reader.get_attribute_event(nullptr, &error, &reader.m_name);
    EXPECT_TRUE(reader.get_attribute_value(&value, lmx::EXWS_COLLAPSE));
    return value;
  };
  EXPECT_EQ("x y", read_with());
  EXPECT_EQ("x y", read_with(true));
  EXPECT_EQ("x\ny", read_with(false));
}

// --- Names to numbers ------------------------------------------------------------------------------------

struct Lookup {
  const char* caption;
  string name;
  int as_element, as_attribute;
};
std::ostream& operator<<(std::ostream& out, Lookup const& row) { return out << row.caption; }
class Lookups : public testing::TestWithParam<Lookup> {};
TEST_P(Lookups, FollowTheTable) {
  const auto& [caption, name, as_element, as_attribute] = GetParam();
  MemoryRead memory("");
  Reader reader(memory);
  reader.mp_local->add_namespace("p", lmx::nsid_first_user);
  reader.mp_local->add_namespace("gone", lmx::nsid_not_found);
  reader.mp_local->add_namespace("xsi", lmx::nsid_xsi);
  reader.m_event = lmx::EXE_TOKEN;
  EXPECT_EQ(as_element, reader.tokenise(names, name, lmx::EXAE_ELEMENT)) << caption;
  EXPECT_EQ(as_element, reader.m_event) << caption;
  reader.m_event = lmx::EXE_TOKEN;
  EXPECT_EQ(as_attribute, reader.tokenise(names, name, lmx::EXAE_ATTRIBUTE)) << caption;
}
INSTANTIATE_TEST_SUITE_P(
    Tokenise, Lookups,
    testing::Values(
        Lookup{"the first match wins", "a", ev_a, ev_a}, Lookup{"a longer name", "ab", ev_ab, ev_ab},
        Lookup{"not by its beginning", "abc", 1, 1}, Lookup{"another case", "A", 1, 1},
        Lookup{"same length, same first letter", "ac", 1, 1}, Lookup{"no name", "", 1, 1},
        Lookup{"a bound prefix", "p:a", ev_bound_a, ev_bound_a},
        Lookup{"in another namespace only", "p:ab", 1, 1}, Lookup{"an unbound prefix", "q:a", 1, 1},
        Lookup{"a prefix bound to nothing", "gone:a", 1, 1},
        Lookup{"only the first colon parts", "p:a:a", 1, 1},
        Lookup{"the table is not asked", "xsi:type", lmx::EXE_XSI_TYPE, lmx::EXE_XSI_TYPE},
        Lookup{"nil", "xsi:nil", lmx::EXE_XSI_NIL, lmx::EXE_XSI_NIL},
        Lookup{"location", "xsi:schemaLocation", lmx::EXE_XSI_SCHEMA_LOCATION, lmx::EXE_XSI_SCHEMA_LOCATION},
        Lookup{"location without namespace", "xsi:noNamespaceSchemaLocation",
               lmx::EXE_XSI_NO_NAMESPACE_SCHEMA_LOCATION, lmx::EXE_XSI_NO_NAMESPACE_SCHEMA_LOCATION},
        Lookup{"any other of that namespace", "xsi:a", 1, 1}));

TEST(Tokenise, AppliesTheDefaultNamespaceToElementsOnly) {
  MemoryRead memory("");
  Reader reader(memory);
  reader.mp_local->add_namespace("", lmx::nsid_first_user);
  reader.m_event = lmx::EXE_TOKEN;
  EXPECT_EQ(ev_bound_a, reader.tokenise(names, "a", lmx::EXAE_ELEMENT));
  EXPECT_EQ(ev_a, reader.tokenise(names, "a", lmx::EXAE_ATTRIBUTE));
  reader.mp_local->add_namespace("", lmx::nsid_xsi);
  EXPECT_EQ(lmx::EXE_XSI_TYPE, reader.tokenise(names, "type", lmx::EXAE_ELEMENT));
  reader.m_event = lmx::EXE_TOKEN;
  EXPECT_EQ(lmx::EXE_UNKNOWN, reader.tokenise(names, "type", lmx::EXAE_ATTRIBUTE));
}

TEST(Tokenise, LeavesEventsThatAreNoNamesAlone) {
  MemoryRead memory("");
  Reader reader(memory);
  for (int event = 0; event != ev_never; ++event) {
    const bool is_name = event == lmx::EXE_UNKNOWN || event == lmx::EXE_TOKEN || event >= lmx::EXE_FIRST_USER;
    reader.m_event = event;
    EXPECT_EQ(is_name ? ev_a : event, reader.tokenise(names, "a", lmx::EXAE_ELEMENT)) << event;
  }
}

TEST(Tokenise, TakesANameToOneTableAfterAnother) {
  with_each_source("<a/>", [](lmx::c_read& read) {
    Reader reader(read);
    elmx_error error;
    reader.get_element_event(&error, &reader.m_name);
    for (auto const& [map, event] :
         std::vector<std::pair<lmx::s_event_map const*, int>>{{names, int{ev_a}},
                                                              {other_names, int{lmx::EXE_UNKNOWN}},
                                                              {no_names, int{lmx::EXE_UNKNOWN}},
                                                              {names, int{ev_a}}}) {
      reader.tokenise(map, lmx::EXAE_ELEMENT);
      EXPECT_EQ(event, reader.m_event);
    }
  });
}

// --- Attributes ------------------------------------------------------------------------------------------

struct Attributes {
  const char* caption;
  string tag, events;
};
std::ostream& operator<<(std::ostream& out, Attributes const& row) { return out << row.caption; }
class AttributeEvents : public testing::TestWithParam<Attributes> {};
TEST_P(AttributeEvents, ComeInOrder) {
  SCOPED_TRACE(GetParam().caption);
  with_each_source(GetParam().tag, [](lmx::c_read& read) {
    Reader reader(read);
    elmx_error error;
    reader.get_element_event(&error, &reader.m_name);
    ASSERT_EQ(lmx::EXE_TOKEN, reader.m_event);
    string seen;
    while (reader.get_attribute_event(names, &error, &reader.m_name) && error == lmx::ELMX_OK) {
      seen += reader.m_name + "=" + std::to_string(reader.m_event) + " ";
      EXPECT_TRUE(reader.skip_attribute_value());
    }
    seen += error == lmx::ELMX_OK ? std::to_string(reader.m_event) : error_text(error, reader.m_event);
    EXPECT_EQ(GetParam().events, seen);
  });
}
INSTANTIATE_TEST_SUITE_P(
    Reader, AttributeEvents,
    testing::Values(
        Attributes{"none, empty tag", "<e/>", "6"}, Attributes{"none, open tag", "<e>", "4"},
        Attributes{"by the table", "<e ab='1' a='2' z='3'/>", "ab=15 a=14 z=1 6"},
        Attributes{"twice", "<e a='1' a='2'>", "a=14 a=14 4"},
        Attributes{"no default namespace", "<e xmlns='u' a='1'/>", "a=14 6"},
        Attributes{"nor that of schema instances", "<e xmlns='" XSI_URI "' type='1'/>", "type=1 6"},
        Attributes{"unbound prefix", "<e p:a='1'/>", "p:a=1 6"},
        Attributes{"bound prefix", "<e xmlns:p='u' p:a='1'/>", "p:a=16 6"},
        Attributes{"bound behind its use", "<e p:a='1' xmlns:p='u'/>", "p:a=16 6"},
        Attributes{"prefix bound to nothing", "<e xmlns:p='' p:a='1'/>", "p:a=1 6"},
        Attributes{"only looks like a declaration", "<e xmlnsa='1' xmln='2' xm='3'/>",
                   "xmlnsa=1 xmln=1 xm=1 6"},
        Attributes{"schema instance",
                   "<e xmlns:i='" XSI_URI
                   "' i:type='' i:nil='' i:schemaLocation='' i:noNamespaceSchemaLocation='' i:a=''/>",
                   "i:type=8 i:nil=9 i:schemaLocation=10 i:noNamespaceSchemaLocation=11 i:a=1 6"},
        Attributes{"stray character", "<e a='1' !>", "a=14 !NOT_WELL_FORMED(3)"},
        Attributes{"stray behind the slash", "<e / x>", "!NOT_WELL_FORMED(3)"},
        Attributes{"cut off behind the slash", "<e a='1'/", "a=14 !NOT_WELL_FORMED(3)"}));

TEST(AttributeEvent, IsLeftUntokenisedWithoutATable) {
  with_each_source("<e a='1'/>", [](lmx::c_read& read) {
    Reader reader(read);
    elmx_error error;
    reader.get_element_event(&error, &reader.m_name);
    ASSERT_TRUE(reader.get_attribute_event(nullptr, &error, &reader.m_name));
    EXPECT_EQ(lmx::EXE_TOKEN, reader.m_event);
    EXPECT_EQ("a", reader.m_name);
    reader.tokenise(names, lmx::EXAE_ATTRIBUTE);
    EXPECT_EQ(ev_a, reader.m_event);
  });
}

TEST(AttributeEvent, ShortFormReturnsTheEvent) {
  with_each_source("<e ab='1'>", [](lmx::c_read& read) {
    Reader reader(read);
    EXPECT_EQ(lmx::EXE_UNKNOWN, reader.get_element_event(names, &reader.m_name));
    EXPECT_EQ(ev_ab, reader.get_attribute_event(names, &reader.m_name));
    EXPECT_TRUE(reader.skip_attribute_value());
    EXPECT_EQ(lmx::EXE_START_TAG_END, reader.get_attribute_event(names, &reader.m_name));
    EXPECT_EQ(lmx::EXE_START_TAG_END, reader.m_event);
  });
}

// --- Items of content ------------------------------------------------------------------------------------

struct Items {
  const char* caption;
  bool is_table_selected;
  string document, items;
};
std::ostream& operator<<(std::ostream& out, Items const& row) { return out << row.caption; }
class ElementEvents : public testing::TestWithParam<Items> {};
TEST_P(ElementEvents, ComeInOrder) {
  SCOPED_TRACE(GetParam().caption);
  with_each_source(GetParam().document, [](lmx::c_read& read) {
    Reader reader(read);
    const lmx::c_known_elements_selector selector(reader, GetParam().is_table_selected ? known : nullptr);
    EXPECT_EQ(GetParam().items, walk(reader));
  });
}
constexpr bool all = false, by_table = true;
INSTANTIATE_TEST_SUITE_P(
    Reader, ElementEvents,
    testing::Values(
        Items{"every start tag", all, "<T><Foo/><p:a></p:a></T>",
              "<T <Foo/ <p:a </p:a </T !UNEXPECTED_EOM(0)"},
        Items{"text, less the blanks before it", all, "<T> \n x y </T>", "<T 'x y ' </T !UNEXPECTED_EOM(0)"},
        Items{"text at document level", all, "<T/>x", "<T/ 'x' !UNEXPECTED_EOM(0)"},
        Items{"comments and instructions vanish", all, "<!-- c --><T><?p q?><!-- c --></T>",
              "<T </T !UNEXPECTED_EOM(0)"},
        Items{"end tags are not compared", all, "<T></a>", "<T </a !UNEXPECTED_EOM(0)"},

        Items{"unknown one in front", by_table, "<T><Foo/><a/></T>", "<T ?Foo <a/ </T !UNEXPECTED_EOM(0)"},
        Items{"with all its content", by_table, "<T><Foo x='1'><a/>text<T/></Foo><a/></T>",
              "<T ?Foo <a/ </T !UNEXPECTED_EOM(0)"},
        Items{"right before the end tag", by_table, "<T><a/><Foo/></T>",
              "<T <a/ ?Foo ..</T !UNEXPECTED_EOM(0)"},
        Items{"two of them", by_table, "<T><Foo/><Bar></Bar></T>", "<T ?Foo ?Bar ..</T !UNEXPECTED_EOM(0)"},
        Items{"a comment between does not matter", by_table, "<T><Foo/> <!-- c --> </T>",
              "<T ?Foo ..</T !UNEXPECTED_EOM(0)"},
        Items{"each call starts afresh", by_table, "<T><Foo/><a></a></T>",
              "<T ?Foo <a </a </T !UNEXPECTED_EOM(0)"},
        Items{"before text", by_table, "<T><Foo/>x</T>", "<T ?Foo 'x' </T !UNEXPECTED_EOM(0)"},
        Items{"before the end of input", by_table, "<T><Foo/>", "<T ?Foo !UNEXPECTED_EOM(0)"},
        Items{"never closed", by_table, "<T><Foo>", "<T ?Foo !BADLY_FORMED(7)"},
        Items{"closed as another", by_table, "<T><Foo></Bar></T>", "<T ?Foo !BADLY_FORMED(7)"},
        Items{"nested and closed as another", by_table, "<T><Foo><Bar></Foo></T>",
              "<T ?Foo !BADLY_FORMED(7)"},
        Items{"bad reference inside", by_table, "<T><Foo>&nbsp;</Foo></T>", "<T ?Foo !BADLY_FORMED(7)"},
        Items{"its tag never ends", by_table, "<T><Foo !", "<T ?Foo !BADLY_FORMED(7)"},
        Items{"only the whole name is known", by_table, "<T><aa/></T>", "<T ?aa ..</T !UNEXPECTED_EOM(0)"},

        Items{"unbound prefix", by_table, "<T><p:a/></T>", "<T ?p:a ..</T !UNEXPECTED_EOM(0)"},
        Items{"the table's namespace", by_table, "<T><p:a xmlns:p='u'/></T>",
              "<T <p:a/ </T !UNEXPECTED_EOM(0)"},
        Items{"the same by default", by_table, "<T><a xmlns='u'/></T>", "<T <a/ </T !UNEXPECTED_EOM(0)"},
        Items{"another namespace", by_table, "<T xmlns:p='u'><p:T/></T>", "<T ?p:T ..</T !UNEXPECTED_EOM(0)"},
        Items{"another default namespace", by_table, "<T xmlns:p='u'><a xmlns='v'/></T>",
              "<T ?a ..</T !UNEXPECTED_EOM(0)"},
        Items{"default namespace taken back", by_table, "<T><a xmlns=''/></T>",
              "<T <a/ </T !UNEXPECTED_EOM(0)"}));

INSTANTIATE_TEST_SUITE_P(
    Failures, ElementEvents,
    testing::Values(Items{"empty input", all, "", "!UNEXPECTED_EOM(0)"},
                    Items{"blanks only", all, " \n ", "!UNEXPECTED_EOM(0)"},
                    Items{"comment only", all, "<!-- c -->", "!UNEXPECTED_EOM(0)"},
                    Items{"end tag without a name says nothing", all, "</>", "!OK(3)"},
                    Items{"end tag cut off", all, "</a", "!NOT_WELL_FORMED(3)"},
                    Items{"end tag with more", all, "</a b>", "!NOT_WELL_FORMED(3)"},
                    Items{"no name", all, "<1>", "!NOT_WELL_FORMED(3)"},
                    Items{"name cut off", all, "<a", "!NOT_WELL_FORMED(3)"},
                    Items{"unknown declaration says nothing", all, "<!x>", "!OK(3)"},
                    Items{"what a warning left behind", all, "<!-- x ---><!x>", "!BAD_COMMENT(3)"},
                    Items{"comment cut off says nothing", all, "<!-- x", "!OK(3)"},
                    Items{"instruction cut off says nothing", all, "<?p q", "!OK(3)"},
                    Items{"bad CDATA keyword", all, "<![CDAT[x]]>", "!NOT_WELL_FORMED(3)"},
                    Items{"undeclared reference says nothing", all, " &foo;", "!OK(3)"},
                    Items{"attribute cut off behind its name", all, "<a b", "!UNEXPECTED_EOM(3)"},
                    Items{"attribute without value", all, "<a b>", "!NOT_WELL_FORMED(3)"},
                    Items{"value without quotes", all, "<a b=1>", "!NOT_WELL_FORMED(3)"},
                    Items{"value cut off", all, "<a b='1", "!NOT_WELL_FORMED(3)"},
                    Items{"tag cut off behind a whole attribute says nothing", all, "<a b='1' ", "!OK(3)"}));

TEST(ElementEvent, LooksAKnownNameUp) {
  with_each_source("<Foo/><a/><T/>x", [](lmx::c_read& read) {
    Reader reader(read);
    const lmx::c_known_elements_selector selector(reader, known);
    elmx_error error = lmx::ELMX_UNDEFINED_ERROR;
    reader.get_element_event(names, &error, &reader.m_name);
    EXPECT_EQ(lmx::ELMX_OK, error);
    EXPECT_EQ(ev_a, reader.m_event);
    reader.skip_start_tag(nullptr);
    EXPECT_EQ(lmx::EXE_UNKNOWN, reader.get_element_event(names, &reader.m_name)) << "known, not in the map";
    reader.skip_start_tag(nullptr);
    EXPECT_EQ(lmx::EXE_TEXT, reader.get_element_event(names, &reader.m_name));
  });
}

// A host may build a table anew where the last one stood.
TEST(ElementEvent, IsLookedUpInATableAsItStandsNow) {
  with_each_source("<a/><a/><a/>", [](lmx::c_read& read) {
    Reader reader(read);
    lmx::s_event_map map[] = {{1, "a", 1, 20}, {0, nullptr, 0, 0}};
    for (const int event : {20, 21, 22}) {
      map[0].m_event = event;
      EXPECT_EQ(event, reader.get_element_event(map, &reader.m_name));
      map[0].m_event = 30 + event;
      reader.tokenise(map, lmx::EXAE_ELEMENT);
      EXPECT_EQ(30 + event, reader.m_event) << "the same name again";
      reader.skip_start_tag(nullptr);
    }
  });
}

TEST(ElementEvent, IsKnownIfTheTableHoldsItsNameNow) {
  with_each_source("<a/><a/><a/><b/>", [](lmx::c_read& read) {
    Reader reader(read);
    lmx::s_known_elements table[] = {{1, "a", 1}, {0, nullptr, 0}};
    const lmx::c_known_elements_selector selector(reader, table);
    for (char const* const expected : {"a", "a", "b"}) {
      table[0].mp_name = expected;
      elmx_error error = lmx::ELMX_UNDEFINED_ERROR;
      reader.get_element_event(&error, &reader.m_name);
      EXPECT_EQ(expected, reader.m_name);
      reader.skip_start_tag(nullptr);
    }
  });
}

TEST(ElementEvent, TellsTheHookTheWholeNameThePathAndTheProgramPlace) {
  with_each_source("<p:Foo xmlns:p='u'/>", [](lmx::c_read& read) {
    Reader reader(read);
    reader.m_name_stack = {'T', '\0', 'S', '\0'};
    reader.m_code_file = "file";
    reader.m_code_line = 12;
    const lmx::c_known_elements_selector selector(reader, none_known);
    EXPECT_EQ("?p:Foo !UNEXPECTED_EOM(0)", walk(reader));
    EXPECT_EQ(string("T\0S\0file:12", 11), reader.last_unknown);
    EXPECT_EQ("Error: No Error\n", reader.get_error_message());
  });
}

TEST(ElementEvent, StopsAtAVetoWithoutAskingTheHandler) {
  with_each_source("<Foo/><a/>", [](lmx::c_read& read) {
    Reader reader(read);
    reader.veto = lmx::ELMX_USER_DEFINED_1;
    const lmx::c_known_elements_selector selector(reader, known);
    EXPECT_EQ("?Foo !USER_DEFINED_1(7)", walk(reader));
    EXPECT_EQ(lmx::ELMX_USER_DEFINED_1, reader.debug_error().m_code);
    EXPECT_TRUE(reader.skip_start_tag(nullptr)) << "the element is still to be read";
    EXPECT_EQ("<a/ !UNEXPECTED_EOM(0)", walk(reader));
  });
}

TEST(ElementEvent, FetchesNoCodeForAPrefixThatIsNotBound) {
  with_each_source("<T><p:a/></T>", [](lmx::c_read& read) {
    Reader reader(read);
    const lmx::c_known_elements_selector selector(reader, known);
    walk(reader);
    lmx::elmx_error_type type;
    elmx_error code;
    int line;
    EXPECT_FALSE(reader.error_log().get_error_info(&type, &code, &line));
    EXPECT_EQ(lmx::ELMX_OK, reader.debug_error().m_code);
  });
}

TEST(KnownElements, BelongToTheInnermostSelector) {
  MemoryRead memory("");
  Reader reader(memory);
  {
    const lmx::c_known_elements_selector outer(reader, known);
    {
      const lmx::c_known_elements_selector inner(reader, none_known);
      EXPECT_EQ(none_known, reader.mp_known_elements);
    }
    EXPECT_EQ(known, reader.mp_known_elements);
  }
  EXPECT_EQ(nullptr, reader.mp_known_elements);
}

TEST(KnownElementEvent, ReadsAsTheOtherFormDoes) {
  with_each_source("<Foo/><a/><T/>", [](lmx::c_read& read) {
    Reader reader(read);
    const lmx::c_known_elements_selector selector(reader, known);
    elmx_error error = lmx::ELMX_UNDEFINED_ERROR;
    reader.get_known_element_event(names, &error, &reader.m_name);
    EXPECT_EQ(ev_a, reader.m_event);
    EXPECT_EQ("a", reader.m_name);
    reader.skip_start_tag(nullptr);
    reader.get_known_element_event(&error, &reader.m_name);
    EXPECT_EQ(lmx::EXE_TOKEN, reader.m_event);
    reader.skip_start_tag(nullptr);
    reader.get_known_element_event(&error, &reader.m_name);
    EXPECT_EQ(lmx::ELMX_UNEXPECTED_EOM, error);
    EXPECT_EQ(std::vector<string>{"?Foo"}, reader.log);
  });
}

TEST(KnownElementEventDeathTest, StopsTheProcessWithoutATable) {
  MemoryRead memory("<a/>");
  Reader reader(memory);
  elmx_error error;
  EXPECT_DEATH(reader.get_known_element_event(&error, &reader.m_name), "mp_known_elements");
  EXPECT_DEATH(reader.get_known_element_event(names, &error, &reader.m_name), "mp_known_elements");
}

// --- Pieces of elements ----------------------------------------------------------------------------------

TEST(IgnoreElement, SkipsItAndReadsTheNextEvent) {
  struct Row {
    const char* caption;
    string document;
    elmx_error result;
    int event;
  };
  for (auto const& row : {Row{"sibling", "<b><a>x</a></b><a/>", lmx::ELMX_OK, ev_a},
                          Row{"empty", "<b/></T>", lmx::ELMX_OK, lmx::EXE_ELEMENT_END},
                          Row{"the next one's error", "<b/>", lmx::ELMX_UNEXPECTED_EOM, lmx::EXE_EOM},
                          Row{"closed as another", "<b></c>", lmx::ELMX_BADLY_FORMED, lmx::EXE_TOKEN}}) {
    SCOPED_TRACE(row.caption);
    with_each_source(row.document, [&](lmx::c_read& read) {
      Reader reader(read);
      elmx_error error;
      reader.get_element_event(&error, &reader.m_name);
      EXPECT_EQ(row.result, reader.ignore_element(names));
      EXPECT_EQ(row.event, reader.m_event);
    });
  }
}

struct EndTag {
  const char* caption;
  string document;
  bool is_tolerant, result;
  elmx_error error;
  int event;
  std::vector<string> reports;
};
std::ostream& operator<<(std::ostream& out, EndTag const& row) { return out << row.caption; }
class EndTags : public testing::TestWithParam<EndTag> {};
TEST_P(EndTags, MustBeTheOnesAskedFor) {
  SCOPED_TRACE(GetParam().caption);
  with_each_source(GetParam().document, [](lmx::c_read& read) {
    EndTag const& row = GetParam();
    Reader reader(read);
    reader.tolerant = row.is_tolerant;
    const lmx::c_known_elements_selector selector(reader, known);
    int event = -1;
    elmx_error error = lmx::ELMX_OK;
    EXPECT_EQ(row.result, reader.get_end_tag(names, "e", &event, &error));
    EXPECT_EQ(row.error, error);
    EXPECT_EQ(row.event, event);
    EXPECT_EQ(row.reports, reader.log);
  });
}
const std::vector<string> asked_cut = {"handle_error UNEXPECTED_EOM e <unspecified>:-1",
                                       "on_error UNEXPECTED_EOM e"};
const std::vector<string> asked_bad_end = {"handle_error BAD_END_OF_ELEMENT e <unspecified>:-1",
                                           "on_error BAD_END_OF_ELEMENT e"};
INSTANTIATE_TEST_SUITE_P(
    Reader, EndTags,
    testing::Values(
        EndTag{"the one", "</e>", false, true, lmx::ELMX_OK, 6, {}},
        EndTag{"end of input", "", false, false, lmx::ELMX_UNEXPECTED_EOM, 0, asked_cut},
        EndTag{"end of input, whatever the handler says", "", true, false, lmx::ELMX_UNEXPECTED_EOM, 0,
               asked_cut},
        EndTag{"another end tag", "</f>", false, false, lmx::ELMX_BAD_END_OF_ELEMENT, 6, asked_bad_end},
        EndTag{"another, tolerated", "</f>", true, true, lmx::ELMX_OK, 6, asked_bad_end},
        EndTag{"a start tag", "<a/>", false, false, lmx::ELMX_BAD_END_OF_ELEMENT, ev_a, asked_bad_end},
        EndTag{"text, tolerated", " x</e>", true, true, lmx::ELMX_OK, 5, asked_bad_end},
        EndTag{"no markup", "<!x>", false, false, lmx::ELMX_BAD_END_OF_ELEMENT, 3, asked_bad_end},
        EndTag{"reached by skipping",
               "<Foo/></e>",
               false,
               false,
               lmx::ELMX_BAD_END_OF_ELEMENT,
               12,
               {"?Foo", asked_bad_end[0], asked_bad_end[1]}}));

TEST(SkipStartTag, TellsWhetherTheTagWasEmpty) {
  struct Row {
    const char* caption;
    string document;
    bool result, is_empty;
    int event;
  };
  for (auto const& row : {Row{"open", "<e a='/>'>", true, false, lmx::EXE_START_TAG_END},
                          Row{"empty", "<e/ >", true, true, lmx::EXE_ELEMENT_END},
                          Row{"characters behind the slash", "<e/ x>", false, true, lmx::EXE_ELEMENT_END},
                          Row{"slash at the end of input", "<e/", true, true, lmx::EXE_ELEMENT_END}}) {
    SCOPED_TRACE(row.caption);
    with_each_source(row.document, [&](lmx::c_read& read) {
      for (const bool is_asked : {true, false}) {
        read.rewind();
        Reader reader(read);
        elmx_error error;
        reader.get_element_event(&error, &reader.m_name);
        bool is_empty = !row.is_empty;
        EXPECT_EQ(row.result, reader.skip_start_tag(is_asked ? &is_empty : nullptr));
        EXPECT_EQ(row.event, reader.m_event);
        EXPECT_EQ(is_asked ? row.is_empty : !row.is_empty, is_empty);
      }
    });
  }
}

TEST(ElementValue, IsEmptyForAnElementThatHasEnded) {
  with_each_source("<e/>text", [](lmx::c_read& read) {
    Reader reader(read);
    elmx_error error;
    reader.get_element_event(&error, &reader.m_name);
    reader.skip_start_tag(nullptr);
    string value = "old";
    EXPECT_TRUE(reader.get_element_value(&value, lmx::EXWS_PRESERVE));
    EXPECT_EQ("", value);
    EXPECT_EQ(lmx::EXE_ELEMENT_END, reader.m_event);
    EXPECT_EQ("'text' !UNEXPECTED_EOM(0)", walk(reader)) << "nothing was read";
  });
}

TEST(ElementValue, EndsAtMarkupAndLeavesTheTextEvent) {
  struct Row {
    const char* caption;
    string document;
    bool result;
    string value;
  };
  for (auto const& row :
       {Row{"up to the end tag", "<e> a &amp; b </e>", true, " a & b "},
        Row{"across a comment", "<e>1<!-- c -->2</e>", true, "12"},
        Row{"across an instruction", "<e>1<?p q?>2</e>", true, "12"},
        Row{"with CDATA", "<e>1<![CDATA[<&]]>2</e>", true, "1<&2"},
        Row{"up to a child", "<e>1<f/></e>", true, "1"}, Row{"end of input", "<e>1", false, "1"},
        Row{"undeclared reference", "<e>1&foo;2</e>", false, "1&foo;"}}) {
    SCOPED_TRACE(row.caption);
    with_each_source(row.document, [&](lmx::c_read& read) {
      Reader reader(read);
      elmx_error error;
      reader.get_element_event(&error, &reader.m_name);
      reader.skip_start_tag(nullptr);
      string value = "old";
      EXPECT_EQ(row.result, reader.get_element_value(&value, lmx::EXWS_PRESERVE));
      EXPECT_EQ(row.value, value);
      EXPECT_EQ(lmx::EXE_TEXT, reader.m_event);
    });
  }
}

TEST(SimpleTypeValue, IsReadFromStartTagToEndTag) {
  struct Row {
    const char* caption;
    string document;
    bool result;
    elmx_error error;
    string value;
    bool is_empty;
  };
  for (auto const& row :
       {Row{"text", "<e a='1'> x  y </e>", true, lmx::ELMX_OK, "x y", false},
        Row{"empty tag", "<e/>", true, lmx::ELMX_OK, "", true},
        Row{"no text", "<e></e >", true, lmx::ELMX_OK, "", false},
        Row{"start tag cut off", "<e !", false, lmx::ELMX_BAD_END_OF_START_TAG, "", false},
        Row{"bad empty tag", "<e/x>", false, lmx::ELMX_BAD_END_OF_START_TAG, "", true},
        Row{"cut off", "<e>x", false, lmx::ELMX_UNABLE_TO_READ_ELEMENT_VALUE, "x", false},
        Row{"child", "<e>x<f/></e>", false, lmx::ELMX_BAD_END_OF_ELEMENT, "x", false},
        Row{"another end tag", "<e>x</f>", false, lmx::ELMX_BAD_END_OF_ELEMENT, "x", false}}) {
    SCOPED_TRACE(row.caption);
    with_each_source(row.document, [&](lmx::c_read& read) {
      Reader reader(read);
      elmx_error error;
      reader.get_element_event(&error, &reader.m_name);
      error = lmx::ELMX_OK;
      string value = "old";
      bool is_empty = false;
      EXPECT_EQ(row.result, reader.get_simple_type_value("e", lmx::EXWS_COLLAPSE, &value, &error, &is_empty));
      EXPECT_EQ(row.error, error);
      EXPECT_EQ(row.value, value);
      EXPECT_EQ(row.is_empty, is_empty);
      EXPECT_TRUE(reader.log.empty()) << "codes go to the caller alone";
    });
  }
}

TEST(SimpleTypeValue, IsEmptyForAnElementThatHasEnded) {
  MemoryRead memory(" text");
  Reader reader(memory);
  reader.m_event = lmx::EXE_ELEMENT_END;
  string value = "old";
  elmx_error error = lmx::ELMX_OK;
  bool is_empty = false;
  EXPECT_TRUE(reader.get_simple_type_value("e", lmx::EXWS_PRESERVE, &value, &error, &is_empty));
  EXPECT_EQ("", value);
  EXPECT_EQ(lmx::ELMX_OK, error);
  EXPECT_EQ("'text' !UNEXPECTED_EOM(0)", walk(reader)) << "nothing was read";
}

TEST(Rewind, StartsTheDocumentAgainAndKeepsTheEvent) {
  with_each_source("<?xml version='1.0'?>\n<T>x</T>", [](lmx::c_read& read) {
    Reader reader(read);
    const string first = walk(reader);
    EXPECT_EQ("<T 'x' </T !UNEXPECTED_EOM(0)", first);
    reader.m_event = lmx::EXE_TEXT;
    reader.rewind();
    EXPECT_EQ(lmx::EXE_TEXT, reader.m_event);
    EXPECT_EQ(1, reader.line());
    EXPECT_EQ(first, walk(reader));
  });
}

// --- Errors ----------------------------------------------------------------------------------------------

TEST(CapturedError, HoldsCodeItemPlaceAndLine) {
  with_each_source("\n\n</a", [](lmx::c_read& read) {
    Reader reader(read);
    walk(reader);
    EXPECT_EQ(lmx::ELMX_BAD_CHOICE, reader.capture_error(lmx::ELMX_BAD_CHOICE, "item", "file", 7));
    EXPECT_EQ(
        "Error: Inappropriate choice option selected\nItem: item\nProgram file: file\nProgram line: 7\n"
        "XML line: 3\n",
        reader.get_error_message());
    EXPECT_TRUE(reader.log.empty()) << "capturing decides nothing";
    reader.capture_error(lmx::ELMX_BAD_DTD, "later", "file", 8);
    EXPECT_EQ(lmx::ELMX_BAD_DTD, reader.debug_error().m_code) << "the last one counts";
    EXPECT_EQ("later", reader.debug_error().m_item);
  });
}

struct Capture {
  const char* caption;
  string document;
  elmx_error reported, captured;
};
std::ostream& operator<<(std::ostream& out, Capture const& row) { return out << row.caption; }
class Captures : public testing::TestWithParam<Capture> {};
TEST_P(Captures, TellTheFatalCodeForTheEndItCaused) {
  SCOPED_TRACE(GetParam().caption);
  with_each_source(GetParam().document, [](lmx::c_read& read) {
    Reader reader(read);
    walk(reader);
    EXPECT_EQ(GetParam().captured, reader.capture_error(GetParam().reported, "x", "file", 1));
    EXPECT_EQ(GetParam().captured, reader.debug_error().m_code);
    EXPECT_EQ(GetParam().captured, reader.report_error(GetParam().reported, "x", "file", 1));
  });
}
INSTANTIATE_TEST_SUITE_P(
    Reader, Captures,
    testing::Values(
        Capture{"a true end", "", lmx::ELMX_UNEXPECTED_EOM, lmx::ELMX_UNEXPECTED_EOM},
        Capture{"after a fatal error", "<a b=1>", lmx::ELMX_UNEXPECTED_EOM, lmx::ELMX_NOT_WELL_FORMED},
        Capture{"after one that was not fatal", "</a", lmx::ELMX_UNEXPECTED_EOM, lmx::ELMX_UNEXPECTED_EOM},
        Capture{"after a warning", "<!-- x --->", lmx::ELMX_UNEXPECTED_EOM, lmx::ELMX_UNEXPECTED_EOM},
        Capture{"other codes stand", "<a b=1>", lmx::ELMX_BAD_END_OF_ELEMENT, lmx::ELMX_BAD_END_OF_ELEMENT}));

TEST(ReportedError, IsCapturedAndThenDecidedByTheHandler) {
  MemoryRead memory("");
  Reader reader(memory);
  EXPECT_EQ(lmx::ELMX_BAD_DTD, reader.report_error(lmx::ELMX_BAD_DTD, "item", "file", 7));
  EXPECT_EQ((std::vector<string>{"handle_error BAD_DTD item file:7", "on_error BAD_DTD item"}), reader.log);

  reader.tolerant = true;
  EXPECT_EQ(lmx::ELMX_OK, reader.report_error(lmx::ELMX_BAD_CHOICE, "other", "file", 8));
  EXPECT_EQ(lmx::ELMX_BAD_CHOICE, reader.debug_error().m_code) << "tolerated, yet on record";
}

TEST(ReportedError, ShowsTheHandlerTheCodeThatWasCaptured) {
  with_each_source("<a b=1>", [](lmx::c_read& read) {
    Reader reader(read);
    walk(reader);
    reader.log.clear();
    reader.report_error(lmx::ELMX_UNEXPECTED_EOM, "item", "file", 7);
    EXPECT_EQ(
        (std::vector<string>{"handle_error NOT_WELL_FORMED item file:7", "on_error NOT_WELL_FORMED item"}),
        reader.log);
  });
}

TEST(ReportedError, OfAnAttributeNamesItAndThePlaceOfTheClass) {
  MemoryRead memory("");
  Reader reader(memory);
  reader.m_name = "A";
  reader.m_code_file = "file";
  reader.m_code_line = 7;
  EXPECT_EQ(lmx::ELMX_ATTRIBUTE_ALREADY_READ,
            reader.report_attribute_error(lmx::ELMX_ATTRIBUTE_ALREADY_READ));
  EXPECT_EQ((std::vector<string>{"handle_error ATTRIBUTE_ALREADY_READ @A file:7",
                                 "on_error ATTRIBUTE_ALREADY_READ @A"}),
            reader.log);
}

TEST(ErrorMessage, ComesFromTheFormThatHostsOverride) {
  class Translated : public lmx::c_xml_reader {
   public:
    using c_xml_reader::c_xml_reader;
    using c_xml_reader::get_error_message;
    string& get_error_message(string* text) const override { return *text = "translated"; }
  };
  MemoryRead memory("");
  const Translated translated(memory);
  EXPECT_EQ("translated", translated.get_error_message());

  Reader reader(memory);
  reader.capture_error(lmx::ELMX_BAD_DTD, "x", "file", 1);
  string text = "old";
  EXPECT_EQ(&text, &reader.get_error_message(&text));
  EXPECT_EQ(reader.debug_error().to_string(), text);
}

TEST(ErrorLog, KnowsTheTrueLineOfATagLevelError) {
  struct Row {
    const char* caption;
    string document;
    lmx::elmx_error_type type;
    elmx_error code;
  };
  for (auto const& row : {Row{"error", "\n\n</a", lmx::EET_ERROR, lmx::ELMX_NOT_WELL_FORMED},
                          Row{"fatal", "\n\n<a b", lmx::EET_FATAL, lmx::ELMX_UNEXPECTED_EOM},
                          Row{"warning", "\n<!--\n x --->", lmx::EET_WARNING, lmx::ELMX_BAD_COMMENT}}) {
    SCOPED_TRACE(row.caption);
    with_each_source(row.document, [&](lmx::c_read& read) {
      Reader reader(read);
      walk(reader);
      lmx::elmx_error_type type = lmx::EET_NONE;
      elmx_error code = lmx::ELMX_OK;
      int line = 0;
      ASSERT_TRUE(reader.error_log().get_error_info(&type, &code, &line));
      EXPECT_EQ(row.type, type);
      EXPECT_EQ(row.code, code);
      EXPECT_EQ(3, line);
    });
  }
}

TEST(ErrorLog, EndsTheInputAtTheFirstFatalError) {
  with_each_source("<a b=1><a/></T>", [](lmx::c_read& read) {
    Reader reader(read);
    EXPECT_EQ("!NOT_WELL_FORMED(3)", walk(reader));
    EXPECT_EQ("!UNEXPECTED_EOM(0)", walk(reader));
    EXPECT_EQ(1u, reader.error_log().fatal_count());
  });
}

// --- Whatever comes --------------------------------------------------------------------------------------

TEST(AnyInput, IsWalkedToAnEnd) {
  const string document =
      "<?xml version='1.0'?><!-- c --><T xmlns='' xmlns:p='u'><Foo p:x='1'><Bar/>&lt;</Foo>"
      "<a>x<![CDATA[y]]>&#65;</a><?p q?><p:a/></T>";
  for (std::size_t size = 0; size <= document.size(); ++size) {
    with_each_source(document.substr(0, size), [](lmx::c_read& read) {
      for (lmx::s_known_elements const* table : {static_cast<lmx::s_known_elements const*>(nullptr), known}) {
        read.rewind();
        Reader reader(read);
        const lmx::c_known_elements_selector selector(reader, table);
        for (int failures = 0; failures != 100 && reader.m_event != -1; ++failures) {
          const string seen = walk(reader);
          EXPECT_EQ(string::npos, seen.find("no end")) << seen;
          if (seen == "!UNEXPECTED_EOM(0)") reader.m_event = -1;
        }
        EXPECT_EQ(-1, reader.m_event) << "the end of the input was never reached";
      }
    });
  }
}

}  // namespace
