// Entities and the internal subset, through whole documents: what expands to what, and what a hostile subset
// gets.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "GenLibrarySupportFiles/lmxparse.h"
#include "isoxmllib/isoxmllib.h"
#include "support/code_name.h"
#include "support/document.h"
#include "support/memory_read.h"

namespace {

std::string with_subset(std::string const& subset, std::string const& content) {
  return "<!DOCTYPE x [" + subset + "]>" + content;
}

std::string task(std::string const& designator, std::string const& content = "") {
  return "<TSK A=\"TSK1\" G=\"1\" B=\"" + designator + "\">" + content + "</TSK>";
}

// The value of the first attribute of `document`, read under `mode`; "(failed)" when it can not be expanded.
std::string attribute_value(std::string const& document, lmx::elmx_whitespace mode, bool normalise = true) {
  MemoryRead read(document);
  lmx::c_error error;
  lmx::c_xml xml(read, error, normalise);
  lmx::c_xml_local scope;
  std::string name, value;
  if (xml.get_element_name(&scope, &name) != lmx::EXE_TOKEN) return "(no element)";
  if (xml.get_attribute_name(&name, false) != lmx::EXE_TOKEN) return "(no attribute)";
  return xml.get_attribute_value(&value, mode) ? value : "(failed)";
}

// Keeps each report as "code message".
class Log : public lmx::c_error {
 public:
  std::string text;

 private:
  void report(lmx::elmx_error_type type, lmx::elmx_error code, char const*, int,
              char const* message) override {
    text += (type == lmx::EET_FATAL ? "fatal " : "") + code_name(code) + ' ' + message + '\n';
  }
};

// What the error log is told while `document` is read to its end, each attribute's value with it.
std::string log_of(std::string const& document) {
  MemoryRead read(document);
  Log error;
  lmx::c_xml xml(read, error, true);
  lmx::c_xml_local scope;
  std::string name, value;
  for (;;) {
    const lmx::elxp_xml_event event = xml.get_element_name(&scope, &name);
    if (event == lmx::EXE_EOM || event == lmx::EXE_ERROR) return error.text;
    if (event != lmx::EXE_TOKEN) continue;
    while (xml.get_attribute_name(&name, false) == lmx::EXE_TOKEN)
      xml.get_attribute_value(&value, lmx::EXWS_PRESERVE);
  }
}

struct ValueCase {
  char const* caption;
  char const* subset;
  char const* raw;
  char const *preserve, *replace, *collapse;
};

TEST(References, ComeOutUnderEachWhiteSpaceMode) {
  constexpr char const* failed = "(failed)";
  const ValueCase rows[] = {
      {"a named one does not flush the blank", "", "a &lt;b", "a <b", "a <b", "a< b"},
      {"a blank in front", "", " &lt;a", " <a", " <a", "< a"},
      {"nor does a character beyond ASCII", "", "a &#233;b",
       "a \xC3\xA9"
       "b",
       "a \xC3\xA9"
       "b",
       "a\xC3\xA9 b"},
      {"a blank by reference", "", "&#32;a", " a", " a", "a"},
      {"a line feed by reference", "", "a&#10;b", "a\nb", "a b", "a b"},
      {"an entity in blanks", "<!ENTITY e ' x '>", "a&e;b", "a x b", "a x b", "a x b"},
      {"the character after a nested one is dropped", "<!ENTITY e '&lt;ab'>", "a&e;b", "a<bb", "a<bb",
       "a<bb"},
      {"also when it is a blank", "<!ENTITY e 'x &amp; y'>", "a&e;", "ax &y", "ax &y", "ax& y"},
      {"a missing semicolon", "", "&#65 b", "A b", "A b", "A b"},
      {"a percent sign starts a reference", "<!ENTITY e '&#37;'>", "&e;c", failed, failed, failed},
      {"a nested one at the end of the value", "<!ENTITY e 'x&lt;'>", "&e;y", "x<y", "x<y", "x<y"},
      {"no name", "", "a&", failed, failed, failed},
      {"a name that is not declared", "", "&e;", failed, failed, failed},
      {"a capital X", "", "&#X41;", failed, failed, failed},
      {"no digits", "", "&#;", failed, failed, failed},
      {"beyond the highest", "", "&#x10FFFF;", failed, failed, failed},
      {"the highest", "", "&#x100000;", "\xF4\x80\x80\x80", "\xF4\x80\x80\x80", "\xF4\x80\x80\x80"},
      {"far beyond 32 bits", "", "&#x100000041;", failed, failed, failed},
      {"four bytes", "", "&#x1F600;", "\xF0\x9F\x98\x80", "\xF0\x9F\x98\x80", "\xF0\x9F\x98\x80"},
      {"half a surrogate pair", "", "&#xD800;", "\xED\xA0\x80", "\xED\xA0\x80", "\xED\xA0\x80"},
      {"next line becomes a line feed", "", "a&#x85;b", "a\nb", "a b", "a b"},
      {"predefined names stay", "<!ENTITY lt 'x'>", "&lt;", "<", "<", "<"},
      {"the last declaration wins", "<!ENTITY e '1'><!ENTITY e '2'>", "&e;", "2", "2", "2"},
      {"an external one is empty", "<!ENTITY e SYSTEM 'f'>", "a&e;b", "ab", "ab", "ab"},
      {"a damaged one is empty", "<!ENTITY e what>", "a&e;b", "ab", "ab", "ab"},
      {"a value out of a parameter entity", "<!ENTITY % p 'in'><!ENTITY e 'a%p;b'>", "&e;", "ainb", "ainb",
       "ainb"},
      {"a quote out of a parameter entity does not close", "<!ENTITY % p \"'\"><!ENTITY e 'a%p;b'>", "&e;",
       "a'b", "a'b", "a'b"},
      {"other declarations have no effect", "<!ELEMENT a (b)><!ATTLIST a b CDATA '>'><!-- c --><?p i?>",
       "&gt;", ">", ">", ">"},
      {"an unknown parameter entity is passed over", "%nope; <!ENTITY e '1'>", "&e;", "1", "1", "1"},
  };
  for (ValueCase const& row : rows) {
    SCOPED_TRACE(row.caption);
    const std::string document = with_subset(row.subset, "<x a=\"" + std::string(row.raw) + "\"/>");
    EXPECT_EQ(row.preserve, attribute_value(document, lmx::EXWS_PRESERVE));
    EXPECT_EQ(row.replace, attribute_value(document, lmx::EXWS_REPLACE));
    EXPECT_EQ(row.collapse, attribute_value(document, lmx::EXWS_COLLAPSE));
  }
}

TEST(References, KeepWhiteSpaceWhenItIsNotNormalised) {
  EXPECT_EQ("a\nb", attribute_value("<x a=\"a&#10;b\"/>", lmx::EXWS_COLLAPSE, false));
  EXPECT_EQ("a b", attribute_value("<x a=\"a&#32;&#32;b\"/>", lmx::EXWS_COLLAPSE, false))
      << "a blank does not survive";
}

struct CodeCase {
  char const* caption;
  std::string document;
  int code;
};

TEST(Entities, GetTheirCodes) {
  const std::string self = "<!ENTITY a \"&a;\">";
  const std::string pair = "<!ENTITY a \"&b;\"><!ENTITY b \"&a;\">";
  const CodeCase rows[] = {
      {"markup in content is read", with_subset("<!ENTITY z '<TZN A=\"1\"/>'>", task("", "&z;")), 0},
      {"naming itself, in an attribute", with_subset(self, task("&a;")),
       lmx::ELMX_UNABLE_TO_READ_ATTRIBUTE_VALUE},
      {"naming itself, between tags", with_subset(self, task("", "&a;")), lmx::ELMX_BAD_DTD},
      {"naming itself, after text", with_subset(self, task("", "x&a;")), lmx::ELMX_BAD_END_OF_ELEMENT},
      {"naming itself, in text", with_subset(self, task("", "<P917_comment>&a;</P917_comment>")),
       lmx::ELMX_UNABLE_TO_READ_ELEMENT_VALUE},
      {"naming itself, in an unknown element", with_subset(self, task("", "<Foo>&a;</Foo>")),
       lmx::ELMX_BADLY_FORMED},
      {"naming each other, in an attribute", with_subset(pair, task("&a;")),
       lmx::ELMX_UNABLE_TO_READ_ATTRIBUTE_VALUE},
      {"naming each other, between tags", with_subset(pair, task("", "&b;")), lmx::ELMX_BAD_DTD},
      {"naming itself, in a namespace", with_subset(self, "<TSK xmlns:p=\"&a;\" A=\"TSK1\" G=\"1\"/>"),
       lmx::ELMX_BAD_DTD},
      {"an undeclared name in a namespace", "<TSK xmlns:p=\"a&b;c\" A=\"TSK1\" G=\"1\"/>", 0},
      {"naming itself without a semicolon", with_subset("<!ENTITY a '&a'>", task("", "&a; ")),
       lmx::ELMX_BAD_DTD},
      {"a parameter entity naming itself", with_subset("<!ENTITY % a \"&#37;a;\"> %a;", task("")),
       lmx::ELMX_BAD_DTD},
      {"the same without a semicolon", with_subset("<!ENTITY % a \"&#37;a\"> %a;", task("")),
       lmx::ELMX_BAD_DTD},
      {"a parameter entity with text", with_subset("<!ENTITY % p 'x'>%p;", task("")), lmx::ELMX_BAD_DTD},
      {"a bad character in the subset", with_subset("x", task("")), lmx::ELMX_BAD_DTD},
      {"no end after the subset", "<!DOCTYPE x []x>" + task(""), lmx::ELMX_BAD_DTD},
      {"redeclared while it is read",
       with_subset("<!ENTITY % a \"&#60;!ENTITY &#37; a 'z'&#62; \"> %a;", task("")), 0},
      {"an end in a quoted identifier", "<!DOCTYPE x SYSTEM \"a>b\">" + task(""),
       lmx::ELMX_UNEXPECTED_COMPLEX_ELEMENT},
      {"a short instruction swallows", with_subset("<?pi?><!ENTITY a 'x'><?q ?>", task("&a;")),
       lmx::ELMX_UNABLE_TO_READ_ATTRIBUTE_VALUE},
      {"cut off in the subset", "<!DOCTYPE x [<!ENTITY a 'x'>", lmx::ELMX_BAD_DTD},
      {"cut off in a declaration", "<!DOCTYPE x [<!ENTITY a 'x'", lmx::ELMX_UNEXPECTED_COMPLEX_ELEMENT},
  };
  for (CodeCase const& row : rows) EXPECT_EQ(row.code, read_document(row.document).code) << row.caption;
}

TEST(Entities, ThatNameThemselvesCountOneFatalError) {
  const std::string self = "<!ENTITY a \"&a;\">";
  const CodeCase rows[] = {
      {"in an attribute", with_subset(self, task("&a;")), lmx::ELMX_UNABLE_TO_READ_ATTRIBUTE_VALUE},
      {"between tags", with_subset(self, task("", "&a;")), lmx::ELMX_BAD_DTD},
      {"between tags, its text first", with_subset("<!ENTITY a \"x&a;\">", task("", "&a;")),
       lmx::ELMX_BAD_END_OF_ELEMENT},
      {"in text", with_subset(self, task("", "<P917_comment>&a;</P917_comment>")),
       lmx::ELMX_UNABLE_TO_READ_ELEMENT_VALUE},
      {"in text, its own first",
       with_subset("<!ENTITY a \"x&a;\">", task("", "<P917_comment>&a;</P917_comment>")),
       lmx::ELMX_UNABLE_TO_READ_ELEMENT_VALUE},
  };
  for (CodeCase const& row : rows) {
    SCOPED_TRACE(row.caption);
    TempDir directory;
    lmx::xmlReader reader(directory.write("document.xml", row.document).c_str());
    Root root;
    EXPECT_EQ(row.code, root.unmarshal(reader));
    EXPECT_EQ(1u, reader.error_log().fatal_count());
    EXPECT_EQ(lmx::ELMX_BAD_DTD, reader.error_log().last_code());
  }
}

TEST(Entities, LinesCountRealInputAlone) {
  const Reading reading = read_document("<!DOCTYPE x [\n<!ENTITY\n a \"1\">\n]>\n<TSK A=\"TSK1\"/>\n");
  EXPECT_EQ((Reading{lmx::ELMX_REQUIRED_ATTRIBUTES_MISSING, 6, "TSK"}), reading);
  const Reading lone_cr = read_document("<!DOCTYPE x [\r<!ENTITY\r a \"1\">\r]>\r<TSK A=\"TSK1\"/>\r");
  EXPECT_EQ((Reading{lmx::ELMX_REQUIRED_ATTRIBUTES_MISSING, 5, "TSK"}), lone_cr);
  EXPECT_EQ(1,
            read_document(with_subset("<!ENTITY e '\n\n'>", "<TSK A=\"TSK1\" G=\"1\">&e;&e;</TSK>")).line - 2)
      << "the two line ends of the declaration count, not those of the text";
}

TEST(Entities, ThatNameThemselvesAreReportedInOneWayWhereverTheyStand) {
  struct Row {
    char const *caption, *subset, *document, *value;
  };
  constexpr char const* self = "<!ENTITY a '&a;'>";
  constexpr char const* pair = "<!ENTITY a '&b;'><!ENTITY b '&a;'>";
  constexpr char const* deeper = "<!ENTITY a 'x&b;'><!ENTITY b 'y&c;'><!ENTITY c 'z&b;'>";
  for (Row const& row :
       {Row{"in an attribute", self, "<x a='&a;'/>", "&a;"}, Row{"between tags", self, "<x>&a;</x>", "&a;"},
        Row{"in text", self, "<x>t&a;</x>", "&a;"}, Row{"in a namespace", self, "<x xmlns:p='&a;'/>", "&a;"},
        Row{"two in an attribute", pair, "<x a='&a;'/>", "&b;"},
        Row{"two between tags", pair, "<x>&a;</x>", "&b;"},
        Row{"two in a namespace", pair, "<x xmlns='&a;'/>", "&b;"},
        Row{"not the first in an attribute", deeper, "<x a='&a;'/>", "y&c;"},
        Row{"not the first in text", deeper, "<x>&a;</x>", "y&c;"},
        Row{"in the subset", "<!ENTITY % a '&#37;a;'> %a;", "<x/>", "%a;"}}) {
    EXPECT_EQ("fatal BAD_DTD Recursive entity definition for: " + std::string(row.value) + "\n",
              log_of(with_subset(row.subset, row.document)))
        << row.caption;
  }
}

// The text that is being read goes on to its end; the new one is what the next reference gets.
TEST(Entities, ThatAreRedeclaredWhileTheyAreReadChangeFromTheNextReferenceOn) {
  const std::string first =
      "<!ENTITY % a \"&#60;!ENTITY &#37; a '&#38;#60;!ENTITY g &#34;new&#34;&#38;#62;'&#62;"
      "&#60;!ENTITY g 'old'&#62;&#60;!ENTITY h 'rest'&#62; \"> %a;";
  const auto value = [&](std::string const& subset) {
    return attribute_value(with_subset(subset, "<x a='&g; &h;'/>"), lmx::EXWS_PRESERVE);
  };
  EXPECT_EQ("old rest", value(first));
  EXPECT_EQ("new rest", value(first + " %a;"));
}

// ---- Limits ----

std::string chain(std::size_t length) {
  std::string subset;
  for (std::size_t i = 0; i != length; ++i) {
    subset += "<!ENTITY e" + std::to_string(i) + " '" +
              (i + 1 == length ? "x" : "&e" + std::to_string(i + 1) + ";") + "'>";
  }
  return subset;
}

TEST(EntityLimits, AreThese) {
  EXPECT_EQ(64u, lmx::limits::nested_entities_in_values);
  EXPECT_EQ(1024u, lmx::limits::active_entities);
  EXPECT_EQ(8u << 20, lmx::limits::free_expansion);
  EXPECT_EQ(100u, lmx::limits::expansion_factor);
  EXPECT_EQ(20u, lmx::limits::reference_cost);
}

TEST(EntityLimits, OfNestingInValues) {
  const std::size_t limit = lmx::limits::nested_entities_in_values;
  EXPECT_EQ(0, read_document(with_subset(chain(limit - 1), task("&e0;"))).code);
  EXPECT_EQ(0, read_document(with_subset(chain(limit), task("&e0;"))).code);
  EXPECT_EQ(lmx::ELMX_UNABLE_TO_READ_ATTRIBUTE_VALUE,
            read_document(with_subset(chain(limit + 1), task("&e0;"))).code);
}

TEST(EntityLimits, OfNestingInInput) {
  const std::size_t limit = lmx::limits::active_entities;
  const auto comment = [](std::string const& text) { return "<P917_comment>" + text + "</P917_comment>"; };
  EXPECT_EQ(0, read_document(with_subset(chain(limit - 1), comment("&e0;"))).code);
  EXPECT_EQ(0, read_document(with_subset(chain(limit), comment("&e0;"))).code);
  EXPECT_EQ(lmx::ELMX_UNABLE_TO_READ_ELEMENT_VALUE,
            read_document(with_subset(chain(limit + 1), comment("&e0;"))).code);
}

// `count` references in text to one entity of `size` bytes.
std::string expansion(std::size_t size, std::size_t count) {
  std::string references;
  for (std::size_t i = 0; i != count; ++i) references += "&e;";
  return with_subset("<!ENTITY e '" + std::string(size, 'x') + "'>",
                     "<P917_comment>" + references + "</P917_comment>");
}

TEST(EntityLimits, OfExpansion) {
  // Each reference costs its text and a little more; the free start ends inside the last one that is let
  // through.
  const std::size_t size = 1000;
  const std::size_t cost = size + lmx::limits::reference_cost;
  const std::size_t count = static_cast<std::size_t>(lmx::limits::free_expansion / cost);
  EXPECT_EQ(0, read_document(expansion(size, count - 1)).code);
  EXPECT_EQ(0, read_document(expansion(size, count)).code);
  EXPECT_EQ(lmx::ELMX_UNABLE_TO_READ_ELEMENT_VALUE, read_document(expansion(size, count + 1)).code);
}

TEST(EntityLimits, OfExpansionInValues) {
  struct Row {
    char const* caption;
    std::string value;
    std::size_t declared;  // what its declaration costs
    std::size_t cost;      // what each reference to it costs
    std::size_t length;    // of what it becomes
  };
  const std::size_t reference = lmx::limits::reference_cost;
  std::string characters, numbers, nothing;
  for (int i = 0; i != 100; ++i) {  // the character behind a nested reference is dropped
    characters += "&lt;-";
    numbers += "&#38;#233;-";
    nothing += "&n;-";
  }
  for (Row const& row : {Row{"text", std::string(1000, 'x'), 0, reference + 1000, 1000},
                         Row{"references to characters", characters, 0, 101 * reference, 100},
                         Row{"references by number", numbers, 100 * reference, 101 * reference, 200},
                         Row{"references to nothing", nothing, 0, 101 * reference, 0}}) {
    const auto count = static_cast<std::size_t>((lmx::limits::free_expansion - row.declared) / row.cost);
    const auto value = [&](std::size_t references) {
      std::string raw;
      for (std::size_t i = 0; i != references; ++i) raw += "&e;";
      return attribute_value(
          with_subset("<!ENTITY n ''><!ENTITY e '" + row.value + "'>", "<x a='" + raw + "'/>"),
          lmx::EXWS_PRESERVE);
    };
    EXPECT_EQ(count * row.length, value(count).size()) << row.caption;
    EXPECT_EQ("(failed)", value(count + 1)) << row.caption;
  }
}

TEST(EntityLimits, LetADocumentWithoutEntitiesHaveAnyNumberOfReferences) {
  std::string references;
  for (int i = 0; i != 1000000; ++i) references += "&lt;";
  EXPECT_EQ(1000000u, attribute_value("<x a='" + references + "'/>", lmx::EXWS_PRESERVE).size());
  EXPECT_EQ(0, read_document("<P917_comment>" + references + "</P917_comment>").code);
}

TEST(EntityLimits, LetALargeDocumentExpandInProportion) {
  // 200 000 bytes of document may cost 20 million.
  const std::string padding = "<!--" + std::string(200000, ' ') + "-->";
  EXPECT_EQ(0, read_document(padding + expansion(1000, 15000)).code);
  EXPECT_EQ(lmx::ELMX_UNABLE_TO_READ_ELEMENT_VALUE, read_document(padding + expansion(1000, 40000)).code);
}

TEST(EntityLimits, StopTheBillionLaughs) {
  std::string subset = "<!ENTITY l0 'ha'>";
  for (int i = 1; i != 20; ++i) {
    const std::string last = "&l" + std::to_string(i - 1) + ";";
    subset += "<!ENTITY l" + std::to_string(i) + " '";
    for (int k = 0; k != 10; ++k) subset += last + " ";
    subset += "'>";
  }
  EXPECT_EQ(lmx::ELMX_UNABLE_TO_READ_ATTRIBUTE_VALUE, read_document(with_subset(subset, task("&l19;"))).code);
  EXPECT_EQ(lmx::ELMX_UNABLE_TO_READ_ELEMENT_VALUE,
            read_document(with_subset(subset, "<P917_comment>&l19;</P917_comment>")).code);
  EXPECT_EQ(lmx::ELMX_BAD_END_OF_ELEMENT, read_document(with_subset(subset, task("", "&l19;"))).code);
  EXPECT_EQ(lmx::ELMX_BADLY_FORMED, read_document(with_subset(subset, task("", "<Foo>&l19;</Foo>"))).code);
}

TEST(EntityLimits, StopEmptyEntitiesToo) {
  std::string subset = "<!ENTITY l0 ''>";
  for (int i = 1; i != 9; ++i) {
    const std::string last = "&l" + std::to_string(i - 1) + ";";
    subset += "<!ENTITY l" + std::to_string(i) + " '";
    for (int k = 0; k != 10; ++k) subset += last;
    subset += "'>";
  }
  EXPECT_EQ(lmx::ELMX_UNABLE_TO_READ_ELEMENT_VALUE,
            read_document(with_subset(subset, "<P917_comment>&l8;</P917_comment>")).code);
}

TEST(EntityLimits, AHundredThousandEntitiesAreFound) {
  std::string subset;
  for (int i = 0; i != 100000; ++i) subset += "<!ENTITY e" + std::to_string(i) + " 'v'>";
  EXPECT_EQ(0, read_document(with_subset(subset, task("&e0;&e99999;"))).code);
}

// ---- After a fatal error ----

TEST(Getters, DeliverNothingMoreOfAnEntityAfterAFatalError) {
  MemoryRead read("<!DOCTYPE x [<!ENTITY a 'bc'>]><r>&a;</r>");
  lmx::c_error error;
  lmx::c_xml xml(read, error, true);
  lmx::c_xml_local scope;
  std::string name;
  ASSERT_EQ(lmx::EXE_TOKEN, xml.get_element_name(&scope, &name));
  ASSERT_TRUE(xml.move_to_start_tag_end(nullptr));
  lmx::c_get_for_xml& getter = xml.getter();
  ASSERT_EQ('&', getter.get());
  lmx::c_entity_name_reader_for_c_get reader(getter);
  reader.m_push_as_input = true;
  ASSERT_TRUE(getter.select_general_entity(reader, &name));
  ASSERT_EQ('b', getter.get());
  getter.unget('b');
  error.error(lmx::EET_FATAL, lmx::ELMX_BAD_DTD, "stop");
  EXPECT_EQ(-1, getter.get());
  for (int i = 0; i != 10; ++i) getter.unget('x');
  EXPECT_EQ(-1, getter.get());
}

TEST(Getters, ForgetEntitiesWhenTheDocumentStartsAgain) {
  MemoryRead read("<!DOCTYPE x [<!ENTITY a '<r/>'>]>&a;");
  lmx::c_error error;
  lmx::c_xml xml(read, error, true);
  lmx::c_xml_local scope;
  std::string name;
  for (int pass = 0; pass != 2; ++pass) {
    EXPECT_EQ(lmx::EXE_TOKEN, xml.get_element_name(&scope, &name));
    EXPECT_EQ("r", name);
    xml.rewind();  // while the entity is still being read
  }
}

TEST(EntitySources, DeliverBytesAsUnsignedAndTakeThemBack) {
  char const* position = "\xE9z";
  lmx::c_entity_name_reader_for_entity reader(&position);
  const int first = reader.get();
  EXPECT_EQ(0xE9, first);
  reader.unget(first);
  reader.unget('q');  // not past the start
  EXPECT_EQ(0xE9, reader.get());
  EXPECT_EQ('z', reader.get());
  EXPECT_EQ(-1, reader.get());
  EXPECT_EQ(-1, reader.get());
}

TEST(EntitySources, AnEntityReadAsInputDeliversItsBytesAsUnsigned) {
  std::string all;
  for (int c = 1; c != 256; ++c) all += static_cast<char>(c);
  MemoryRead read("<e;r");
  lmx::c_error error;
  lmx::c_get_for_xml getter(read, error, true);
  getter.add_general_entity("e", all);
  ASSERT_EQ('<', getter.get());
  lmx::c_entity_name_reader_for_c_get reader(getter);
  reader.m_push_as_input = true;
  std::string out;
  ASSERT_TRUE(getter.select_general_entity(reader, &out));
  for (int c = 1; c != 256; ++c) {
    ASSERT_EQ(c, getter.get());
    getter.unget(c);
    ASSERT_EQ(c, getter.get()) << "and as they were pushed back";
  }
  EXPECT_EQ('r', getter.get());
}

TEST(EntitySourcesDeathTest, AnEntityAtItsEndHasNoByte) {
  lmx::c_dtd_active_entity entity("a");
  EXPECT_EQ('a', entity.get());
  EXPECT_DEATH(entity.get(), "\\*p_current != '.0'");
}

TEST(EntitySources, AByteBeyondAsciiAfterANumberIsNoAssertion) {
  EXPECT_EQ("A\xC3\xA9", attribute_value("<x a=\"&#65\xC3\xA9\"/>", lmx::EXWS_PRESERVE));
}

}  // namespace
