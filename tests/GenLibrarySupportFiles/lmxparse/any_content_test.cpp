// Names and their namespaces, look-ahead at attributes, and content captured as text.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "GenLibrarySupportFiles/lmxparse.h"
#include "support/memory_read.h"
#include "support/on_stack_of.h"

namespace {

// A reader that stands behind the name of the document's first element.
class AtFirstElement {
 public:
  explicit AtFirstElement(std::string const& document) : m_read(document), reader(m_read) {
    lmx::elmx_error error;
    reader.get_element_event(&error, &reader.m_name);
  }

 private:
  MemoryRead m_read;

 public:
  lmx::c_xml_reader reader;
};

TEST(AnyElement, IsCapturedAsText) {
  struct Row {
    char const *caption, *document, *text;
  };
  const Row rows[] = {
      {"empty", "<a/>", "<a/>"},
      {"quotes as written", "<a b='1' c=\"2\"/>", "<a b='1' c=\"2\"/>"},
      {"declarations come first", "<a b='1' xmlns:p='u'/>", "<a xmlns:p='u' b='1'/>"},
      {"references stay as they are in attributes", "<a b='&lt;'/>", "<a b='&lt;'/>"},
      {"children", "<a>x<b><c/></b>y</a>", "<a>x<b><c/></b>y</a>"},
      {"comments and instructions vanish", "<a>x<!-- c -->y<?p i?>z</a>", "<a>xyz</a>"},
      {"CDATA stays", "<a><![CDATA[<&]]></a>", "<a><![CDATA[<&]]></a>"},
      {"blank in the end tag", "<a>x</a >", "<a>x</a>"},
      {"the end of the input ends the tag", "<a b='1' ", "(failed)"},
      {"wrong end tag", "<a><b></c></a>", "(failed)"},
      {"blank after the bracket", "<a>x< b/></a>", "(failed)"},
      {"cut off", "<a>x", "(failed)"},
  };
  for (Row const& row : rows) {
    AtFirstElement at(row.document);
    std::string text;
    const bool good = at.reader.get_any_element(at.reader.m_name, &text, lmx::EXWS_PRESERVE, false);
    EXPECT_EQ(row.text, good ? text : "(failed)") << row.caption;
  }
}

TEST(AnyElement, NestsWithoutEnd) {
  constexpr int depth = 300000;
  std::string document;
  for (int i = 0; i != depth; ++i) document += "<a>";
  for (int i = 0; i != depth; ++i) document += "</a>";
  AtFirstElement at(document);
  std::string text;
  EXPECT_TRUE(at.reader.get_any_element("a", &text, lmx::EXWS_PRESERVE, false));
  EXPECT_EQ(document, text);
}

TEST(NestedValue, IsTheContentUpToTheEndTag) {
  AtFirstElement at("<a>x <b c='1'/> y</a>");
  std::string value, end_name;
  ASSERT_TRUE(at.reader.skip_start_tag(nullptr));
  EXPECT_TRUE(at.reader.get_nested_element_value(&value, &end_name, lmx::EXWS_PRESERVE, false));
  EXPECT_EQ("x <b c='1'/> y", value);
  EXPECT_EQ("a", end_name);
  EXPECT_EQ(lmx::EXE_ELEMENT_END, at.reader.m_event);
}

TEST(UrValue, TellsWhatWentWrong) {
  struct Row {
    char const *document, *value;
    int code;
  };
  const Row rows[] = {{"<a>x<b/></a>", "x<b/>", 0},
                      {"<a/>", "", 0},
                      {"<a>x</b>", "", lmx::ELMX_BAD_END_OF_ELEMENT},
                      {"<a>x", "", lmx::ELMX_UNABLE_TO_READ_ELEMENT_VALUE},
                      {"<a / x>", "", lmx::ELMX_BAD_END_OF_START_TAG}};
  for (Row const& row : rows) {
    AtFirstElement at(row.document);
    std::string value;
    lmx::elmx_error error = lmx::ELMX_OK;
    EXPECT_EQ(row.code == 0, at.reader.get_element_ur_value("a", &value, &error, nullptr)) << row.document;
    EXPECT_EQ(row.code, error) << row.document;
    if (row.code == 0) {
      EXPECT_EQ(row.value, value);
    }
  }
}

TEST(NamedAttribute, IsFoundAheadAndTheAttributesStartOver) {
  AtFirstElement at("<a xmlns:p='u' x='1' p:x=' 2 ' y='3'/>");
  lmx::c_xml_reader& reader = at.reader;
  std::string value, name;
  EXPECT_TRUE(reader.get_named_attribute(reader.mp_local, lmx::nsid_none, "y", &value));
  EXPECT_EQ("3", value);
  EXPECT_TRUE(
      reader.get_named_attribute(reader.mp_local, reader.find_enumerated_namespace("u"), "x", &value));
  EXPECT_EQ(" 2 ", value) << "blanks are kept";
  EXPECT_FALSE(reader.get_named_attribute(reader.mp_local, lmx::nsid_none, "z", &value));
  EXPECT_EQ(lmx::EXE_TOKEN, reader.get_attribute_name(&name, false));
  EXPECT_EQ("x", name) << "from the first again";
  reader.skip_attribute_value();
  EXPECT_FALSE(reader.get_named_attribute(reader.mp_local, lmx::nsid_none, "x", &value)) << "only ahead";
}

TEST(NamedAttribute, IsSoughtBehindTheOneJustNamed) {
  AtFirstElement at("<a x='1' y='2' z='3'/>");
  lmx::c_xml_reader& reader = at.reader;
  std::string value, name;
  EXPECT_EQ(lmx::EXE_TOKEN, reader.get_attribute_name(&name, false));
  EXPECT_FALSE(reader.get_named_attribute(reader.mp_local, lmx::nsid_none, "x", &value)) << "it is behind";
  EXPECT_EQ(lmx::EXE_TOKEN, reader.get_attribute_name(&name, false));
  EXPECT_EQ("x", name) << "from the first again";
  EXPECT_TRUE(reader.get_named_attribute(reader.mp_local, lmx::nsid_none, "z", &value));
  EXPECT_EQ("3", value);
}

TEST(XsiType, IsSplitIntoNamespaceAndName) {
  AtFirstElement at("<a xmlns:i='http://www.w3.org/2001/XMLSchema-instance' xmlns:p='u' i:type='p:t'/>");
  int id = 0;
  std::string type;
  ASSERT_TRUE(at.reader.get_xsi_type(at.reader.mp_local, &id, &type));
  EXPECT_EQ(at.reader.find_enumerated_namespace("u"), id);
  EXPECT_EQ("t", type);
}

TEST(NamespaceAttributes, AreReadFromTheCaptureAlone) {
  AtFirstElement at("<a xmlns='u' xmlns:p=' v ' x='1'>");
  std::string name, value;
  ASSERT_TRUE(at.reader.get_namespace_attribute_name(&name));
  EXPECT_EQ("xmlns", name);
  EXPECT_TRUE(at.reader.skip_namespace_attribute_value());
  ASSERT_TRUE(at.reader.get_namespace_attribute_name(&name));
  EXPECT_EQ("xmlns:p", name);
  EXPECT_TRUE(at.reader.get_namespace_attribute_value(&value));
  EXPECT_EQ("v", value);
  EXPECT_FALSE(at.reader.get_namespace_attribute_name(&name));
}

TEST(Namespaces, AreToldByNameAndPrefix) {
  AtFirstElement at("<a xmlns:p='u' xmlns:q='u'/>");
  lmx::c_xml_reader& reader = at.reader;
  std::string uri;
  EXPECT_EQ("u", reader.get_namespace("p:x", &uri));
  EXPECT_EQ("", reader.get_namespace("x", &uri));
  EXPECT_EQ(" ", reader.get_namespace("r:x", &uri));
  const int id = reader.find_enumerated_namespace("u");
  EXPECT_GE(id, 1000);
  EXPECT_STREQ("u", reader.find_namespace_from_id(id));
  EXPECT_STREQ("", reader.find_namespace_from_id(1));
  EXPECT_EQ(nullptr, reader.find_namespace_from_id(7));
  EXPECT_STREQ("p", reader.mp_local->find_namespace_prefix(id));
  EXPECT_STREQ("xml", reader.mp_local->find_namespace_prefix(2));
  EXPECT_EQ(nullptr, reader.mp_local->find_namespace_prefix(id + 1));
}

TEST(Namespaces, OfInnerScopesComeFirstOrLast) {
  AtFirstElement at("<a/>");
  lmx::c_xml_local outer;
  const int u = at.reader.add_namespace("u");
  const int v = at.reader.add_namespace("v");
  outer.add_namespace("p", u);
  outer.add_namespace("r", u);
  lmx::c_xml_local inner(&outer);
  inner.add_namespace("q", u);
  inner.add_namespace("p", v);
  EXPECT_STREQ("q", inner.find_namespace_prefix(u)) << "the nearest";
  EXPECT_STREQ("p", inner.find_first_namespace_prefix(u)) << "the outermost";
  lmx::c_namespace_context context;
  inner.extract_namespace_context(&context, at.reader);
  ASSERT_EQ(3u, context.m_items.size());
  EXPECT_EQ("p", context.m_items[0].m_prefix) << "in the order of first appearance";
  EXPECT_EQ("v", context.m_items[0].m_uri) << "the inner one overrides";
  EXPECT_EQ("q", context.m_items[2].m_prefix);
}

TEST(QualifiedNames, NeedABoundPrefixAndGoodParts) {
  AtFirstElement at("<a xmlns:a='u'/>");
  struct Row {
    char const* text;
    bool valid;
  };
  const Row rows[] = {{"x", true},       {"a:x", true},  {"a::b", true},    {"b:x", false}, {"a:", false},
                      {":x", false},     {"", false},    {"1x", false},     {"a:1", false}, {"a:b:c", false},
                      {"x-1.y_z", true}, {"x y", false}, {"xml:lang", true}};
  for (Row const& row : rows) EXPECT_EQ(row.valid, at.reader.is_valid_qname(row.text)) << row.text;
}

lmx::elmx_must_understand only_yes(std::string const& text) { return lmx::bool_must_understand(text); }

TEST(MustUnderstand, LooksThroughTheWholeDocumentAndGoesBack) {
  struct Row {
    char const* document;
    int verdict;
  };
  const Row rows[] = {{"<a><b x='1'/></a>", 2},
                      {"<a x='0'><b x='true'/></a>", 2},
                      {"<a><b x='0'/>text</a>", 0},
                      {"<a><b x='maybe'/></a>", 1},
                      {"<a><b></a>", 1},
                      {"text", 1},
                      {"", 1},
                      {"<a>", 1},
                      {"<a xmlns:p='u' p:x='1'/>", 0},
                      {"<!DOCTYPE a [<!ENTITY e '<a x=\"1\"/>text'>]>&e;", 2},
                      {"<!DOCTYPE a [<!ENTITY e '<a><b/>'>]>&e;</a>", 0},
                      {"<!DOCTYPE a [<!ENTITY e '<a'>]>&e; x='1'/>", 2}};
  for (Row const& row : rows) {
    MemoryRead read(row.document);
    lmx::c_xml_reader reader(read);
    for (int pass = 0; pass != 3; ++pass) {
      EXPECT_EQ(row.verdict, lmx::has_must_understand(reader, "", "x", &only_yes)) << row.document;
      EXPECT_EQ(1, reader.line());
      EXPECT_EQ(lmx::EXCE_UNKNOWN, reader.getter().encoding()) << "back at the start";
    }
  }
}

// On a stack of 256 KiB, which fewer levels than these would use up.
TEST(MustUnderstand, IsNotFoundBehindMoreLevelsThanTheStackHolds) {
  std::string deep;
  for (int i = 0; i != 300000; ++i) deep += "<a>";
  deep += "<a x='1'/>";
  for (int i = 0; i != 300000; ++i) deep += "</a>";
  int verdict = -1, shallow = -1;
  const auto run = [&] {
    MemoryRead read(deep);
    lmx::c_xml_reader reader(read);
    verdict = lmx::has_must_understand(reader, "", "x", &only_yes);
    MemoryRead other("<a><a><a><a x='1'/></a></a></a>");
    lmx::c_xml_reader other_reader(other);
    shallow = lmx::has_must_understand(other_reader, "", "x", &only_yes);
  };
  on_stack_of(256 * 1024, run);
  EXPECT_EQ(1, verdict);
  EXPECT_EQ(2, shallow);
}

TEST(InstanceNamespace, IsThatOfTheTopElement) {
  struct Row {
    char const* document;
    bool found;
    char const* uri;
  };
  const Row rows[] = {{"<a xmlns='u'/>", true, "u"},
                      {"<p:a xmlns:p='v'/>", true, "v"},
                      {"<a/>", true, ""},
                      {"<p:a/>", false, " "},
                      {"", false, ""},
                      {"<!DOCTYPE a [<!ENTITY e '<a xmlns=\"u\"/>text'>]>&e;", true, "u"},
                      {"<!DOCTYPE a [<!ENTITY v 'u'><!ENTITY e '<a xmlns=\"&v;\">'>]>&e;</a>", true, "u"}};
  for (Row const& row : rows) {
    MemoryRead read(row.document);
    lmx::c_xml_reader reader(read);
    for (int pass = 0; pass != 3; ++pass) {
      std::string uri;
      EXPECT_EQ(row.found, lmx::get_instance_namespace(reader, &uri)) << row.document;
      EXPECT_EQ(row.uri, uri);
      EXPECT_EQ(lmx::EXCE_UNKNOWN, reader.getter().encoding());
    }
  }
}

// ---- A host's own encoding ----

// Every byte is a letter of an alphabet shifted by 128.
class ShiftedTranscoder : public lmx::c_external_transcoder {
 public:
  explicit ShiftedTranscoder(lmx::c_read& read) : mr_read(read) {}
  std::pair<int, char const*> read() override {
    const int c = mr_read.get();
    if (c == 0xFF) return {0xC3, "\xA9"};
    return {c < 0 ? c : c & 0x7F, nullptr};
  }

 private:
  lmx::c_read& mr_read;
};

class ShiftedFactory : public lmx::c_external_transcoder_factory {
 public:
  lmx::c_external_transcoder* create(lmx::c_read& read, lmx::c_error&, lmx::elxp_char_encoding,
                                     char const* name) const override {
    return std::string(name) == "shifted" ? new ShiftedTranscoder(read) : nullptr;
  }
};

TEST(Transcoders, ReadWhatFollowsTheDeclaration) {
  std::string document = "<?xml version='1.0' encoding='shifted'?>";
  for (const char c : std::string("<a b='x")) document += static_cast<char>(c | 0x80);
  document += '\xFF';
  for (const char c : std::string("'/>")) document += static_cast<char>(c | 0x80);
  const ShiftedFactory factory;
  MemoryRead read(document);
  lmx::c_error error;
  lmx::c_xml xml(read, error, true);
  xml.getter().set_external_transcoder_factory(factory);
  lmx::c_xml_local scope;
  std::string name, value;
  for (int pass = 0; pass != 2; ++pass) {
    ASSERT_EQ(lmx::EXE_TOKEN, xml.get_element_name(&scope, &name));
    EXPECT_EQ("a", name);
    EXPECT_EQ(lmx::EXCE_EXTERNAL, xml.getter().encoding());
    ASSERT_EQ(lmx::EXE_TOKEN, xml.get_attribute_name(&name, false));
    EXPECT_TRUE(xml.get_attribute_value(&value, lmx::EXWS_PRESERVE));
    EXPECT_EQ("x\xC3\xA9", value);
    xml.rewind();
  }
}

TEST(Transcoders, ThatNobodyKnowsAreFatal) {
  const ShiftedFactory factory;
  lmx::c_get_as_utf8::set_default_external_transcoder_factory(factory);
  for (char const* name : {"other", "shifted"}) {
    MemoryRead read("<?xml version='1.0' encoding='" + std::string(name) + "'?>");
    lmx::c_error error;
    lmx::c_xml xml(read, error, true);
    lmx::c_xml_local scope;
    std::string element;
    xml.get_element_name(&scope, &element);
    EXPECT_EQ(std::string(name) == "other", error.has_fatal()) << name;
  }
  lmx::c_get_as_utf8::clear_default_external_transcoder_factory();
  MemoryRead read("<?xml version='1.0' encoding='shifted'?>");
  lmx::c_error error;
  lmx::c_xml xml(read, error, true);
  lmx::c_xml_local scope;
  std::string element;
  EXPECT_EQ(lmx::EXE_ERROR, xml.get_element_name(&scope, &element));
  EXPECT_EQ(lmx::ELMX_BAD_CHAR_ENCODING, error.last_code());
}

}  // namespace
