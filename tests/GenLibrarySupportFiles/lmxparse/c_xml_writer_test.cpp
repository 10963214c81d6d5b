// The bytes of a written document: layout, attributes, children, text, namespaces, defaults, and what becomes
// of errors and of failing streams.
#include "GenLibrarySupportFiles/lmxparse/c_xml_writer.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <locale>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <streambuf>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "GenLibrarySupportFiles/lmxinternals/bridges.h"
#include "GenLibrarySupportFiles/lmxinternals/containers.h"
#include "GenLibrarySupportFiles/lmxinternals/marshal_bridges.h"
#include "GenLibrarySupportFiles/lmxparse/value_output.h"
#include "GenLibrarySupportFiles/lmxtypes/c_binary.h"
#include "GenLibrarySupportFiles/lmxtypes/c_decimal.h"
#include "GenLibrarySupportFiles/lmxtypes/conversions.h"
#include "GenLibrarySupportFiles/lmxtypes/date_time.h"
#include "support/code_name.h"

namespace {

using lmx::c_xml_writer;
using lmx::c_xml_writer_local;
using lmx::elmx_error;
using std::string;

using decimal = velmo::lmx::high_precision_c_decimal;
using strings = std::vector<string>;

// ---- Tools ----

template <class T>
constexpr lmx::c_validation_spec<T> spec_with(char const* default_text) {
  return {lmx::EXWS_COLLAPSE, default_text, &lmx::lexical_validator_empty, &lmx::value_validator_empty<T>,
          &lmx::v_to_o,       &lmx::o_to_v};
}

template <class T>
lmx::c_validation_spec<T> const spec = spec_with<T>("");

template <class T>
using single = lmx::ct_simple_pod_single<T>;
template <class T>
using optional = lmx::ct_simple_pod_optional<T>;
using multi = lmx::ct_simple_pod_multi<string>;

template <class Field, class T>
using bridge_to = lmx::c_marshal_bridge<c_xml_writer, Field, T>;

template <class Field>
Field holding(string const& value) {
  Field field;
  field.set(value);
  return field;
}

multi list_of(strings const& values) {
  multi list;
  for (string const& value : values) list.append() = value;
  return list;
}

/// A field whose values are lists of words.
class ListBridge : public lmx::c_untyped_marshal_list_bridge {
 public:
  ListBridge(c_xml_writer& writer, std::vector<strings> values)
      : mr_writer(writer), m_values(std::move(values)) {}
  std::size_t count() override { return m_values.size(); }
  string const& ref_text() override { throw std::logic_error("not mixed"); }
  std::size_t item_count(std::size_t index) override { return m_values.at(index).size(); }
  void write_item(std::size_t index, std::size_t item) override {
    lmx::o_to_v(mr_writer.stream(), m_values.at(index).at(item));
  }

 private:
  c_xml_writer& mr_writer;
  std::vector<strings> m_values;
};

constexpr lmx::s_ns_map no_namespaces[] = {{0, nullptr, nullptr}};

/// A document in memory.
struct Document {
  std::ostringstream out;
  c_xml_writer writer{out};
  string text() const { return out.str(); }
};

template <template <class, class, class> class Field, class T, class V, class C>
void attribute(c_xml_writer& writer, char const* name, Field<T, V, C> const& field) {
  lmx::c_marshal_bridge<c_xml_writer, Field<T, V, C>, T> bridge(writer, spec<T>, field);
  writer.marshal_attribute_impl(name, bridge);
}

void attribute(c_xml_writer& writer, char const* name, string const& value) {
  attribute(writer, name, holding<single<string>>(value));
}

template <class Field>
void element(c_xml_writer& writer, char const* name, Field const& field) {
  bridge_to<Field, string> bridge(writer, spec<string>, field);
  writer.marshal_element_impl(name, bridge, nullptr);
}

/// An element as the element classes write themselves.
struct Node {
  char const* tag;
  std::vector<std::pair<char const*, string>> attributes;
  std::vector<Node> children = {};
  bool has_bad_choice = false;

  elmx_error marshal(c_xml_writer& writer) const {
    c_xml_writer_local const scope(writer);
    writer.write_start_tag(tag);
    writer.conditionally_select_ns_map(no_namespaces);
    writer.conditionally_write_ns_attrs(false);
    for (auto const& [name, value] : attributes) attribute(writer, name, value);
    const elmx_error error = marshal_child_elements(writer);
    if (error != lmx::ELMX_OK) return error;
    writer.write_end_tag(tag);
    return lmx::ELMX_OK;
  }
  elmx_error marshal_child_elements(c_xml_writer& writer) const {
    for (Node const& child : children) {
      const elmx_error error = child.marshal(writer);
      if (error != lmx::ELMX_OK) return error;
    }
    if (!has_bad_choice) return lmx::ELMX_OK;
    return writer.report_error(lmx::ELMX_BAD_CHOICE, "{anonymous compositor}", "the file", 7);
  }
};

string written(Node const& node) {
  Document document;
  EXPECT_EQ(lmx::ELMX_OK, node.marshal(document.writer));
  EXPECT_EQ(0, document.writer.depth());
  return document.text();
}

/// Puts the process's default formats back.
class DefaultFormats {
 public:
  ~DefaultFormats() {
    c_xml_writer::set_default_tab("\t");
    c_xml_writer::set_default_nl("\n");
    c_xml_writer::set_default_attribute_tab("\t");
    c_xml_writer::set_default_attribute_nl("\n");
  }
  /// Tab, line end, and the same for attributes.
  static strings get() {
    return {c_xml_writer::get_default_tab(), c_xml_writer::get_default_nl(),
            c_xml_writer::get_default_attribute_tab(), c_xml_writer::get_default_attribute_nl()};
  }
};

// ---- Layout ----

const Node root_and_kid{"ROOT", {{"A", "1"}, {"B", "2"}}, {{"KID", {{"C", "3"}}}}};

TEST(Layout, IndentsTagsByOneAndAttributesByTwo) {
  EXPECT_EQ(
      "<ROOT A=\"1\"\n"
      "\t\tB=\"2\">\n"
      "\t<KID C=\"3\"/>\n"
      "</ROOT>\n",
      written(root_and_kid));
}

TEST(Layout, OfADeepDocument) {
  EXPECT_EQ(
      "<A>\n"
      "\t<B>\n"
      "\t\t<C D=\"1\"\n"
      "\t\t\t\tE=\"2\"\n"
      "\t\t\t\tF=\"3\"/>\n"
      "\t\t<C/>\n"
      "\t</B>\n"
      "\t<B/>\n"
      "</A>\n",
      written({"A", {}, {{"B", {}, {{"C", {{"D", "1"}, {"E", "2"}, {"F", "3"}}}, {"C", {}}}}, {"B", {}}}}));
}

TEST(Layout, OfAChildsSecondAttribute) {
  EXPECT_EQ("<R>\n\t<K C=\"3\"\n\t\t\tD=\"4\"/>\n</R>\n",
            written({"R", {}, {{"K", {{"C", "3"}, {"D", "4"}}}}}));
}

TEST(Layout, OfTextBesideChildren) {
  Document document;
  {
    c_xml_writer_local const scope(document.writer);
    document.writer.write_start_tag("TSK");
    attribute(document.writer, "A", "TSK1");
    attribute(document.writer, "G", "1");
    element(document.writer, "P917_comment", holding<single<string>>("hi"));
    element(document.writer, "P917_comment", single<string>());
    document.writer.write_end_tag("TSK");
  }
  EXPECT_EQ("<TSK A=\"TSK1\"\n\t\tG=\"1\">\n\t<P917_comment>hi</P917_comment>\n\t<P917_comment/>\n</TSK>\n",
            document.text());
}

TEST(Layout, OfAnEmptyDocumentElement) { EXPECT_EQ("<R/>\n", written({"R", {}})); }

TEST(Layout, OfTwoDocumentElementsInARow) {
  Document document;
  EXPECT_EQ(lmx::ELMX_OK, Node({"A", {}, {{"B", {}}}}).marshal(document.writer));
  EXPECT_EQ(lmx::ELMX_OK, Node({"C", {}}).marshal(document.writer));
  EXPECT_EQ("<A>\n\t<B/>\n</A>\n<C/>\n", document.text()) << "the first one left nothing behind";
}

TEST(Layout, IsGivenByTheFourStrings) {
  struct {
    const char* caption;
    char const *tab, *nl, *attribute_tab, *attribute_nl;
    const char* text;
  } const rows[] = {
      {"nothing given", nullptr, nullptr, nullptr, nullptr,
       "<ROOT A=\"1\"\n\t\tB=\"2\">\n\t<KID C=\"3\"/>\n</ROOT>\n"},
      {"all empty", "", "", "", "", R"(<ROOT A="1" B="2"><KID C="3"/></ROOT>)"},
      {"empty line end goes for attributes too", nullptr, "", nullptr, nullptr,
       "<ROOT A=\"1\"\tB=\"2\">\t<KID C=\"3\"/></ROOT>"},
      {"tab goes for attributes too", "..", nullptr, nullptr, nullptr,
       "<ROOT A=\"1\"\n....B=\"2\">\n..<KID C=\"3\"/>\n</ROOT>\n"},
      {"empty tab goes for attributes too", "", nullptr, nullptr, nullptr,
       "<ROOT A=\"1\"\nB=\"2\">\n<KID C=\"3\"/>\n</ROOT>\n"},
      {"line end goes for attributes too", nullptr, "\r\n", nullptr, nullptr,
       "<ROOT A=\"1\"\r\n\t\tB=\"2\">\r\n\t<KID C=\"3\"/>\r\n</ROOT>\r\n"},
      {"tab, but attributes have their own", "..", nullptr, "-", nullptr,
       "<ROOT A=\"1\"\n--B=\"2\">\n..<KID C=\"3\"/>\n</ROOT>\n"},
      {"line end, but attributes have their own", nullptr, "|\n", nullptr, "\n",
       "<ROOT A=\"1\"\n\t\tB=\"2\">|\n\t<KID C=\"3\"/>|\n</ROOT>|\n"},
      {"attributes on one line by a blank", nullptr, nullptr, "", "",
       "<ROOT A=\"1\" B=\"2\">\n\t<KID C=\"3\"/>\n</ROOT>\n"},
      {"attributes on one line by their tab, once", nullptr, nullptr, "  ", "",
       "<ROOT A=\"1\"  B=\"2\">\n\t<KID C=\"3\"/>\n</ROOT>\n"},
      {"attributes on lines without indentation", nullptr, nullptr, "", nullptr,
       "<ROOT A=\"1\"\nB=\"2\">\n\t<KID C=\"3\"/>\n</ROOT>\n"},
  };
  for (auto const& row : rows) {
    SCOPED_TRACE(row.caption);
    for (const bool has_flags : {false, true}) {
      std::ostringstream out;
      std::unique_ptr<c_xml_writer> const writer =
          has_flags
              ? std::make_unique<c_xml_writer>(out, 0, row.tab, row.nl, row.attribute_tab, row.attribute_nl)
              : std::make_unique<c_xml_writer>(out, row.tab, row.nl, row.attribute_tab, row.attribute_nl);
      EXPECT_EQ(lmx::ELMX_OK, root_and_kid.marshal(*writer));
      EXPECT_EQ(row.text, out.str());
    }
  }
}

// Each string null, empty, or one of its own, in all combinations, against the rule told in other words.
TEST(Layout, FollowsTheRuleForEveryCombinationOfStrings) {
  DefaultFormats const restore;
  c_xml_writer::set_default_attribute_tab("3");
  c_xml_writer::set_default_attribute_nl("4");
  c_xml_writer::set_default_tab("1");
  c_xml_writer::set_default_nl("2");
  for (char const* tab : {static_cast<char const*>(nullptr), "", "t"}) {
    for (char const* nl : {static_cast<char const*>(nullptr), "", "n"}) {
      for (char const* own_tab : {static_cast<char const*>(nullptr), "", "T"}) {
        for (char const* own_nl : {static_cast<char const*>(nullptr), "", "N"}) {
          const string t = tab ? tab : "1", n = nl ? nl : "2";
          const string at = own_tab ? own_tab : tab ? tab : "3";
          const string an = own_nl ? own_nl : nl ? nl : "4";
          const string twice = !an.empty() ? an + at + at : !at.empty() ? at : " ";
          const string thrice = !an.empty() ? an + at + at + at : !at.empty() ? at : " ";
          std::ostringstream out;
          c_xml_writer writer(out, tab, nl, own_tab, own_nl);
          Node({"R", {{"A", ""}, {"B", ""}}, {{"K", {{"C", ""}, {"D", ""}}}}}).marshal(writer);
          EXPECT_EQ(
              "<R A=\"\"" + twice + "B=\"\">" + n + t + "<K C=\"\"" + thrice + "D=\"\"/>" + n + "</R>" + n,
              out.str());
        }
      }
    }
  }
}

TEST(Layout, TextsAreCopiedFromTheCaller) {
  std::ostringstream out;
  string tab = "  ";
  c_xml_writer writer(out, tab.c_str(), nullptr, nullptr, nullptr);
  tab = "xx";
  Node({"A", {}, {{"B", {}}}}).marshal(writer);
  EXPECT_EQ("<A>\n  <B/>\n</A>\n", out.str());
}

// ---- Declaration ----

TEST(Declaration, IsWrittenAsTheFlagsAsk) {
  struct {
    const char* caption;
    int flags;
    const char* text;
  } const rows[] = {
      {"none", 0, ""},
      {"plain", c_xml_writer::include_xml_decl, "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"},
      {"standalone alone", c_xml_writer::include_standalone,
       "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n"},
      {"both", c_xml_writer::include_xml_decl | c_xml_writer::include_standalone,
       "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n"},
      {"other bits do not count", 4, ""},
      {"other bits beside", 5, "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"},
  };
  for (auto const& row : rows) {
    std::ostringstream out;
    const c_xml_writer writer(out, row.flags);
    EXPECT_EQ(row.text, out.str()) << row.caption;
  }
  EXPECT_EQ(1, c_xml_writer::include_xml_decl);
  EXPECT_EQ(2, c_xml_writer::include_standalone);
}

TEST(Declaration, EndsInTheLineEnd) {
  std::ostringstream out;
  c_xml_writer writer(out, 1, nullptr, "\r\n", nullptr, nullptr);
  Node({"R", {}}).marshal(writer);
  EXPECT_EQ("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n<R/>\r\n", out.str());
}

TEST(Declaration, IsAbsentWithoutFlags) {
  std::ostringstream out;
  const c_xml_writer writer(out, nullptr, nullptr, nullptr, nullptr);
  EXPECT_EQ("", out.str());
}

// ---- Default formats ----

TEST(Defaults, AreATabAndALineFeed) { EXPECT_EQ((strings{"\t", "\n", "\t", "\n"}), DefaultFormats::get()); }

TEST(Defaults, OfAttributesFollowTheMainOnes) {
  DefaultFormats const restore;
  c_xml_writer::set_default_tab("  ");
  EXPECT_EQ((strings{"  ", "\n", "  ", "\n"}), DefaultFormats::get());
  c_xml_writer::set_default_nl("\r\n");
  EXPECT_EQ((strings{"  ", "\r\n", "  ", "\r\n"}), DefaultFormats::get());
  c_xml_writer::set_default_tab("");
  EXPECT_EQ((strings{"", "\r\n", "", "\r\n"}), DefaultFormats::get());
}

TEST(Defaults, OfAttributesStayOnceTheirTabDiffers) {
  DefaultFormats const restore;
  c_xml_writer::set_default_attribute_tab("-");
  EXPECT_EQ((strings{"\t", "\n", "-", "\n"}), DefaultFormats::get());
  c_xml_writer::set_default_tab("  ");
  EXPECT_EQ((strings{"  ", "\n", "-", "\n"}), DefaultFormats::get());
  c_xml_writer::set_default_nl("|");
  EXPECT_EQ((strings{"  ", "|", "-", "\n"}), DefaultFormats::get()) << "the line end of attributes stays too";
}

TEST(Defaults, OfAttributesStayOnceTheirLineEndDiffers) {
  DefaultFormats const restore;
  c_xml_writer::set_default_attribute_nl("|");
  EXPECT_EQ((strings{"\t", "\n", "\t", "|"}), DefaultFormats::get());
  c_xml_writer::set_default_nl("\r\n");
  EXPECT_EQ((strings{"\t", "\r\n", "\t", "|"}), DefaultFormats::get());
  c_xml_writer::set_default_tab("  ");
  EXPECT_EQ((strings{"  ", "\r\n", "\t", "|"}), DefaultFormats::get()) << "the tab of attributes stays too";
}

TEST(Defaults, FollowAgainOnceBothPairsAreEqualAgain) {
  DefaultFormats const restore;
  c_xml_writer::set_default_attribute_tab("-");
  c_xml_writer::set_default_tab("-");
  c_xml_writer::set_default_nl("|");
  EXPECT_EQ((strings{"-", "|", "-", "|"}), DefaultFormats::get());
}

TEST(Defaults, AreNotTouchedByASeparateTextThatIsTheSame) {
  DefaultFormats const restore;
  c_xml_writer::set_default_attribute_tab("\t");
  c_xml_writer::set_default_tab("  ");
  EXPECT_EQ((strings{"  ", "\n", "  ", "\n"}), DefaultFormats::get());
}

TEST(Defaults, ApplyToLaterWritersOnly) {
  DefaultFormats const restore;
  Document before;
  c_xml_writer::set_default_tab("..");
  c_xml_writer::set_default_nl("|");
  Document after;
  root_and_kid.marshal(before.writer);
  root_and_kid.marshal(after.writer);
  EXPECT_EQ("<ROOT A=\"1\"\n\t\tB=\"2\">\n\t<KID C=\"3\"/>\n</ROOT>\n", before.text());
  EXPECT_EQ("<ROOT A=\"1\"|....B=\"2\">|..<KID C=\"3\"/>|</ROOT>|", after.text());
}

TEST(Defaults, OfElementsAndAttributesAreReadApart) {
  DefaultFormats const restore;
  c_xml_writer::set_default_attribute_tab("-");
  c_xml_writer::set_default_attribute_nl("|");
  Document document;
  root_and_kid.marshal(document.writer);
  EXPECT_EQ("<ROOT A=\"1\"|--B=\"2\">\n\t<KID C=\"3\"/>\n</ROOT>\n", document.text());
}

// ---- Tags ----

TEST(Tags, CarryNoStateFromOneElementToTheNext) {
  Document document;
  c_xml_writer& writer = document.writer;
  c_xml_writer_local const outer(writer);
  writer.write_start_tag("A");
  EXPECT_EQ(1, writer.depth());
  for (int i = 0; i < 2; ++i) {
    c_xml_writer_local const inner(writer);
    writer.write_start_tag("B");
    EXPECT_EQ(2, writer.depth());
    attribute(writer, "C", "x");
    attribute(writer, "D", "y");
    writer.write_end_tag("B");
  }
  EXPECT_EQ(1, writer.depth());
  writer.write_end_tag("A");
  EXPECT_EQ(0, writer.depth());
  const string kid = "\t<B C=\"x\"\n\t\t\tD=\"y\"/>\n";
  EXPECT_EQ("<A>\n" + kid + kid + "</A>\n", document.text());
}

TEST(Tags, OfWhichOneEndsTooMuchKeepTheDepthAtZero) {
  Document document;
  document.writer.write_end_tag("A");
  EXPECT_EQ(0, document.writer.depth());
  EXPECT_EQ("</A>\n", document.text()) << "the document's own level has its body open";
}

TEST(Tags, WithoutANameLeaveTheStreamBad) {
  Document document;
  document.writer.write_start_tag(nullptr);
  EXPECT_TRUE(document.out.bad());
  attribute(document.writer, "A", "1");
  document.writer.write_end_tag(nullptr);
  EXPECT_EQ("<", document.text());
}

TEST(Tags, OfAScopeThatOnlyKnowsItsWriterLeaveTheOthersAlone) {
  Document document;
  {
    c_xml_writer_local stray;
    stray.set_writer(&document.writer);
  }
  attribute(document.writer, "A", "1");
  attribute(document.writer, "B", "2");
  EXPECT_EQ(" A=\"1\"\n\tB=\"2\"", document.text()) << "the document's own level is still there";
}

// ---- Attributes ----

TEST(Attribute, IsWrittenForARequiredFieldThatWasNeverSet) {
  Document document;
  c_xml_writer_local const scope(document.writer);
  document.writer.write_start_tag("X");
  attribute(document.writer, "string", single<string>());
  attribute(document.writer, "uint8", single<unsigned char>());
  attribute(document.writer, "uint16", single<unsigned short>());
  attribute(document.writer, "int32", single<int>());
  attribute(document.writer, "uint32", single<unsigned int>());
  attribute(document.writer, "double", single<double>());
  attribute(document.writer, "bool", single<bool>());
  attribute(document.writer, "binary", single<lmx::c_binary>());
  attribute(document.writer, "decimal", single<decimal>());
  attribute(document.writer, "time", single<lmx::c_datetime>());
  document.writer.write_end_tag("X");
  EXPECT_EQ(
      "<X string=\"\"\n\t\tuint8=\"0\"\n\t\tuint16=\"0\"\n\t\tint32=\"0\"\n\t\tuint32=\"0\"\n\t\tdouble=\"0\""
      "\n\t\tbool=\"false\"\n\t\tbinary=\"\"\n\t\tdecimal=\"0\"\n\t\ttime=\"0001-00-00T00:00:00\"/>\n",
      document.text());
}

TEST(Attribute, OfAnElementThatWasNeverFilled) {
  struct {
    const char* caption;
    void (*write)(c_xml_writer&);
    const char* text;
  } const rows[] = {
      {"time",
       [](c_xml_writer& writer) {
         c_xml_writer_local const scope(writer);
         writer.write_start_tag("TIM");
         attribute(writer, "A", single<lmx::c_datetime>());
         attribute(writer, "B", optional<lmx::c_datetime>());
         attribute(writer, "D", single<string>());
         writer.write_end_tag("TIM");
       },
       "<TIM A=\"0001-00-00T00:00:00\"\n\t\tD=\"\"/>\n"},
      {"task",
       [](c_xml_writer& writer) {
         c_xml_writer_local const scope(writer);
         writer.write_start_tag("TSK");
         attribute(writer, "A", single<string>());
         attribute(writer, "B", optional<string>());
         attribute(writer, "G", single<string>());
         writer.write_end_tag("TSK");
       },
       "<TSK A=\"\"\n\t\tG=\"\"/>\n"},
      {"question",
       [](c_xml_writer& writer) {
         c_xml_writer_local const scope(writer);
         writer.write_start_tag("P917_Question");
         attribute(writer, "P917_Uuid", single<string>());
         attribute(writer, "P917_ReplyType", single<string>());
         attribute(writer, "P917_Required", optional<bool>());
         element(writer, "P917_Prompt", single<string>());
         element(writer, "P917_Reply", optional<string>());
         element(writer, "P917_Option", multi());
         writer.write_end_tag("P917_Question");
       },
       "<P917_Question P917_Uuid=\"\"\n\t\tP917_ReplyType=\"\">\n\t<P917_Prompt/>\n</P917_Question>\n"},
  };
  for (auto const& row : rows) {
    Document document;
    row.write(document.writer);
    EXPECT_EQ(row.text, document.text()) << row.caption;
  }
}

TEST(Attribute, ThatIsNotSetLeavesTheBlankToTheNext) {
  Document document;
  c_xml_writer_local const scope(document.writer);
  document.writer.write_start_tag("X");
  attribute(document.writer, "A", optional<string>());
  EXPECT_EQ("<X", document.text());
  attribute(document.writer, "B", holding<optional<string>>("b"));
  attribute(document.writer, "C", optional<string>());
  attribute(document.writer, "D", holding<optional<string>>(""));
  EXPECT_EQ("<X B=\"b\"\n\t\tD=\"\"", document.text()) << "an empty value is a value";
}

TEST(Attribute, ThatWasUnsetIsGone) {
  auto field = holding<optional<string>>("b");
  field.unset();
  Document document;
  attribute(document.writer, "A", field);
  EXPECT_EQ("", document.text());
}

TEST(Attribute, EscapesItsValueAndKeepsItsName) {
  Document document;
  attribute(document.writer, "A", "\"'<>&]]>\n");
  EXPECT_EQ(" A=\"&quot;&apos;&lt;>&amp;]]&gt;\n\"", document.text());
}

// ---- Simple elements ----

TEST(SimpleElement, HasNoWhiteSpaceAroundItsText) {
  Document document;
  element(document.writer, "NAME", holding<single<string>>("  a \"b\"\n"));
  EXPECT_EQ("<NAME>  a &quot;b&quot;\n</NAME>\n", document.text());
}

TEST(SimpleElement, IsWrittenForEachValue) {
  Document document;
  element(document.writer, "O", list_of({"a", "", "c"}));
  EXPECT_EQ("<O>a</O>\n<O/>\n<O>c</O>\n", document.text());
}

TEST(SimpleElement, WithoutAValueIsNotWritten) {
  Document document;
  element(document.writer, "O", multi());
  element(document.writer, "O", optional<string>());
  EXPECT_EQ("", document.text());
  element(document.writer, "O", single<string>());
  EXPECT_EQ("<O/>\n", document.text()) << "a required one is";
}

template <class T>
string element_of(T const& value) {
  Document document;
  single<T> field;
  field.set(value);
  bridge_to<single<T>, T> bridge(document.writer, spec<T>, field);
  document.writer.marshal_element_impl("E", bridge, nullptr);
  return document.text();
}

TEST(SimpleElement, IsEmptyOnlyForEmptyTextAndBytes) {
  EXPECT_EQ("<E/>\n", element_of(string()));
  EXPECT_EQ("<E/>\n", element_of(lmx::c_binary()));
  EXPECT_EQ("<E>0</E>\n", element_of(0));
  EXPECT_EQ("<E>0</E>\n", element_of(0.0));
  EXPECT_EQ("<E>0</E>\n", element_of(static_cast<unsigned char>(0)));
  EXPECT_EQ("<E>0</E>\n", element_of(static_cast<unsigned short>(0)));
  EXPECT_EQ("<E>0</E>\n", element_of(0u));
  EXPECT_EQ("<E>false</E>\n", element_of(false));
  EXPECT_EQ("<E>0</E>\n", element_of(decimal()));
  EXPECT_EQ("<E>0001-00-00T00:00:00</E>\n", element_of(lmx::c_datetime()));
  const unsigned char byte = 0xAB;
  EXPECT_EQ("<E>AB</E>\n", element_of(lmx::c_binary(&byte, 1)));
}

TEST(SimpleElement, CarriesTheDeclarationsIfItHasAMapAndIsTheFirst) {
  constexpr lmx::s_ns_map map[] = {{1000, "p", "urn:p"}, {0, nullptr, nullptr}};
  Document document;
  multi const list = list_of({"a", "b"});
  bridge_to<multi, string> bridge(document.writer, spec<string>, list);
  document.writer.marshal_element_impl("N", bridge, nullptr);
  document.writer.marshal_element_impl("M", bridge, map);
  EXPECT_EQ("<N>a</N>\n<N>b</N>\n<M xmlns:p=\"urn:p\">a</M>\n<M>b</M>\n", document.text());
}

TEST(SimpleElement, ThatMayTakeADefaultCarriesNoDeclarations) {
  Document document;
  document.writer.add_namespace("p", "urn:p");
  document.writer.conditionally_select_ns_map(no_namespaces);
  for (auto const& field : {optional<string>(), holding<optional<string>>("x")}) {
    bridge_to<optional<string>, string> bridge(document.writer, spec<string>, field);
    document.writer.marshal_element_or_default_impl("E", bridge, spec_with<string>("d"));
  }
  ListBridge list(document.writer, {{"y"}});
  document.writer.marshal_element_list_or_default_impl("L", list, spec_with<string>("d"));
  EXPECT_EQ("<E>d</E>\n<E>x</E>\n<L>y</L>\n", document.text());
}

// ---- Text of the element at hand ----

string body_of(string const& value) {
  Document document;
  c_xml_writer_local const scope(document.writer);
  document.writer.write_start_tag("T");
  attribute(document.writer, "A", "1");
  const auto field = holding<single<string>>(value);
  bridge_to<single<string>, string> bridge(document.writer, spec<string>, field);
  document.writer.marshal_element_body_impl("not used", bridge);
  document.writer.write_end_tag("T");
  return document.text();
}

TEST(Body, StandsOnTheLineOfItsTags) {
  EXPECT_EQ("<T A=\"1\">text &amp; more</T>\n", body_of("text & more"));
  EXPECT_EQ("<T A=\"1\"/>\n", body_of(""));
}

TEST(Body, InTwoPiecesHasOneStartTag) {
  Document document;
  c_xml_writer_local const scope(document.writer);
  document.writer.write_start_tag("T");
  const auto field = holding<single<string>>("x");
  bridge_to<single<string>, string> bridge(document.writer, spec<string>, field);
  document.writer.marshal_element_body_impl(nullptr, bridge);
  document.writer.marshal_element_body_impl(nullptr, bridge);
  document.writer.write_end_tag("T");
  EXPECT_EQ("<T>xx</T>\n", document.text());
}

// ---- Lists ----

const auto default_word = spec_with<string>("a<b");
const auto empty_default = spec_with<string>("");

struct ListCase {
  const char* caption;
  std::vector<strings> values;
  string attribute, attribute_or_default, element, element_or_default;
};

const ListCase list_cases[] = {
    {"no value", {}, "", " L=\"a&lt;b\"", "", "<L>a&lt;b</L>\n"},
    {"a value without items", {{}}, " L=\"\"", " L=\"\"", "<L/>\n", "<L/>\n"},
    {"one item", {{"x"}}, " L=\"x\"", " L=\"x\"", "<L>x</L>\n", "<L>x</L>\n"},
    {"three items",
     {{"x", "&", "z"}},
     " L=\"x &amp; z\"",
     " L=\"x &amp; z\"",
     "<L>x &amp; z</L>\n",
     "<L>x &amp; z</L>\n"},
    {"one empty item", {{""}}, " L=\"\"", " L=\"\"", "<L></L>\n", "<L></L>\n"},
    {"three values",
     {{"x", "y"}, {}, {"z"}},
     " L=\"x y\"",
     " L=\"x y\"",
     "<L>x y</L>\n<L/>\n<L>z</L>\n",
     "<L>x y</L>\n<L/>\n<L>z</L>\n"},
};

TEST(List, IsWrittenWithBlanksBetweenItsItems) {
  for (ListCase const& row : list_cases) {
    SCOPED_TRACE(row.caption);
    const auto written_by = [&row](auto write) {
      Document document;
      ListBridge bridge(document.writer, row.values);
      write(document.writer, bridge);
      return document.text();
    };
    EXPECT_EQ(row.attribute, written_by([](c_xml_writer& writer, ListBridge& bridge) {
                writer.marshal_attribute_list_impl("L", bridge);
              }));
    EXPECT_EQ(row.attribute_or_default, written_by([](c_xml_writer& writer, ListBridge& bridge) {
                writer.marshal_attribute_list_or_default_impl("L", bridge, default_word);
              }));
    EXPECT_EQ(row.element, written_by([](c_xml_writer& writer, ListBridge& bridge) {
                writer.marshal_element_list_impl("L", bridge, no_namespaces);
              }));
    EXPECT_EQ(row.element_or_default, written_by([](c_xml_writer& writer, ListBridge& bridge) {
                writer.marshal_element_list_or_default_impl("L", bridge, default_word);
              }));
  }
}

TEST(List, AsTextOfTheElementAtHand) {
  for (auto const& [items, text] :
       {std::pair<strings, string>{{}, "<T/>\n"}, {{"x", "<"}, "<T>x &lt;</T>\n"}}) {
    Document document;
    c_xml_writer_local const scope(document.writer);
    document.writer.write_start_tag("T");
    ListBridge bridge(document.writer, {items});
    document.writer.marshal_element_body_list_impl("not used", bridge);
    document.writer.write_end_tag("T");
    EXPECT_EQ(text, document.text());
  }
}

TEST(List, CarriesTheDeclarationsIfItHasAMap) {
  Document document;
  document.writer.add_namespace("p", "urn:p");
  ListBridge bridge(document.writer, {{"x"}, {}});
  document.writer.marshal_element_list_impl("L", bridge, no_namespaces);
  EXPECT_EQ("<L xmlns:p=\"urn:p\">x</L>\n<L/>\n", document.text());
}

TEST(List, IsNoMulti) {
  Document document;
  EXPECT_FALSE(ListBridge(document.writer, {}).is_multi());
}

// ---- Defaults of values ----

template <class Field>
string attribute_or_default(Field const& field, lmx::c_untyped_validation_spec const& with_default) {
  Document document;
  bridge_to<Field, string> bridge(document.writer, spec<string>, field);
  document.writer.marshal_attribute_or_default_impl("A", bridge, with_default);
  return document.text();
}

template <class Field>
string element_or_default(Field const& field, lmx::c_untyped_validation_spec const& with_default) {
  Document document;
  bridge_to<Field, string> bridge(document.writer, spec<string>, field);
  document.writer.marshal_element_or_default_impl("E", bridge, with_default);
  return document.text();
}

TEST(DefaultText, StandsInForAnAbsentAttribute) {
  EXPECT_EQ(" A=\"a&lt;b\"", attribute_or_default(optional<string>(), default_word));
  EXPECT_EQ(" A=\"\"", attribute_or_default(optional<string>(), empty_default));
  EXPECT_EQ(" A=\"x\"", attribute_or_default(holding<optional<string>>("x"), default_word));
  EXPECT_EQ(" A=\"\"", attribute_or_default(holding<optional<string>>(""), default_word));
  EXPECT_EQ(" A=\"\"", attribute_or_default(single<string>(), default_word))
      << "a required one is never absent";
}

TEST(DefaultText, StandsInForAnAbsentElement) {
  EXPECT_EQ("<E>a&lt;b</E>\n", element_or_default(optional<string>(), default_word));
  EXPECT_EQ("<E/>\n", element_or_default(optional<string>(), empty_default));
  EXPECT_EQ("<E>x</E>\n", element_or_default(holding<optional<string>>("x"), default_word));
  EXPECT_EQ("<E/>\n", element_or_default(holding<optional<string>>(""), default_word));
  EXPECT_EQ("<E>a</E>\n<E/>\n", element_or_default(list_of({"a", ""}), default_word));
}

TEST(DefaultText, OfAnAttributeTakesPartInTheLayout) {
  Document document;
  c_xml_writer_local const scope(document.writer);
  document.writer.write_start_tag("X");
  optional<string> const absent;
  bridge_to<optional<string>, string> bridge(document.writer, spec<string>, absent);
  document.writer.marshal_attribute_or_default_impl("A", bridge, default_word);
  document.writer.marshal_attribute_or_default_impl("B", bridge, default_word);
  EXPECT_EQ("<X A=\"a&lt;b\"\n\t\tB=\"a&lt;b\"", document.text());
}

TEST(DefaultText, OfAnElementTakesPartInTheLayout) {
  Document document;
  c_xml_writer_local const scope(document.writer);
  document.writer.write_start_tag("X");
  optional<string> const absent;
  bridge_to<optional<string>, string> bridge(document.writer, spec<string>, absent);
  document.writer.marshal_element_or_default_impl("E", bridge, default_word);
  document.writer.write_end_tag("X");
  EXPECT_EQ("<X>\n\t<E>a&lt;b</E>\n</X>\n", document.text());
}

// ---- Bridges ----

TEST(Bridge, CountsByTheKindOfField) {
  Document document;
  const auto count = [&](auto const& field) {
    return bridge_to<std::decay_t<decltype(field)>, string>(document.writer, spec<string>, field).count();
  };
  EXPECT_EQ(1u, count(single<string>()));
  EXPECT_EQ(1u, count(holding<single<string>>("x")));
  EXPECT_EQ(0u, count(optional<string>()));
  EXPECT_EQ(1u, count(holding<optional<string>>("")));
  EXPECT_EQ(0u, count(multi()));
  EXPECT_EQ(3u, count(list_of({"a", "b", "c"})));
}

TEST(Bridge, CountsAsItIsTold) {
  Document document;
  optional<string> const field;
  for (const std::size_t count : {0u, 1u}) {
    EXPECT_EQ(count,
              (bridge_to<optional<string>, string>(document.writer, spec<string>, field, count).count()));
  }
}

TEST(Bridge, ShowsTheFieldsOwnValues) {
  Document document;
  const auto field = holding<single<string>>("x");
  bridge_to<single<string>, string> one(document.writer, spec<string>, field);
  EXPECT_EQ(&field.get(), &one.ref_value(0));
  EXPECT_FALSE(one.is_multi());
  multi const list = list_of({"a", "b"});
  bridge_to<multi, string> many(document.writer, spec<string>, list);
  EXPECT_EQ(&list[1], &many.ref_value(1));
  EXPECT_FALSE(many.is_multi()) << "not even of a list";
}

TEST(Bridge, SpeltOutInFullIsTheSame) {
  using field_type = lmx::ct_simple_pod_optional<string, string, lmx::ct_non_mixed<string>>;
  Document document;
  field_type field;
  field.set("x");
  lmx::c_marshal_bridge<c_xml_writer, field_type, string, string> bridge(document.writer, spec<string>,
                                                                         field);
  lmx::c_atomic_marshal_bridge<c_xml_writer, string, string>& atomic = bridge;
  EXPECT_EQ("x", atomic.ref_value(0));
  document.writer.marshal_attribute_impl("A", atomic);
  EXPECT_EQ(" A=\"x\"", document.text());
}

TEST(Bridge, RefusesAnIndexThatAListDoesNotHave) {
  Document document;
  multi const list = list_of({"a"});
  bridge_to<multi, string> bridge(document.writer, spec<string>, list, 2);
  EXPECT_EQ("a", bridge.ref_value(0));
  for (const auto use : {+[](bridge_to<multi, string>& b) { b.ref_value(1); },
                         +[](bridge_to<multi, string>& b) { b.is_value_empty(1); },
                         +[](bridge_to<multi, string>& b) { b.write_value(1); }}) {
    try {
      use(bridge);
      FAIL() << "nothing thrown";
    } catch (std::out_of_range const& error) {
      EXPECT_NE(nullptr, std::strstr(error.what(), "vector::_M_range_check")) << error.what();
    }
  }
}

TEST(BridgeDeathTest, HasNoTextOfMixedContent) {
  Document document;
  single<string> const field;
  bridge_to<single<string>, string> bridge(document.writer, spec<string>, field);
  EXPECT_DEATH(bridge.ref_text(), "ct_non_mixed has no text");
}

TEST(BridgeDeathTest, CanNotWriteWithoutAConversion) {
  Document document;
  single<string> const field;
  lmx::c_validation_spec<string> const read_only(lmx::EXWS_COLLAPSE, "", &lmx::lexical_validator_empty,
                                                 &lmx::value_validator_empty<string>, &lmx::v_to_o);
  bridge_to<single<string>, string> bridge(document.writer, read_only, field);
  EXPECT_DEATH(bridge.write_value(0), "o_to_v");
}

// ---- Namespaces ----

using pairs = std::vector<std::pair<string, string>>;

constexpr lmx::s_ns_map two_namespaces[] = {
    {1000, "", "urn:default"}, {1001, "p", "urn:p"}, {0, nullptr, nullptr}};

const string xsi = "xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\"";

struct NamespaceCase {
  const char* caption;
  lmx::s_ns_map const* map;
  pairs namespaces, locations;
  bool force_xsi;
  string attributes;
};

const NamespaceCase namespace_cases[] = {
    {"nothing", no_namespaces, {}, {}, false, ""},
    {"of the map, in order", two_namespaces, {}, {}, false, " xmlns=\"urn:default\" xmlns:p=\"urn:p\""},
    {"added, in order",
     no_namespaces,
     {{"b", "urn:b"}, {"", "urn:a"}},
     {},
     false,
     " xmlns:b=\"urn:b\" xmlns=\"urn:a\""},
    {"map before added ones",
     two_namespaces,
     {{"q", "urn:q"}},
     {},
     false,
     " xmlns=\"urn:default\" xmlns:p=\"urn:p\" xmlns:q=\"urn:q\""},
    {"instance namespace by force", no_namespaces, {}, {}, true, " " + xsi},
    {"one location",
     no_namespaces,
     {},
     {{"urn:a", "a.xsd"}},
     false,
     " " + xsi + " xsi:schemaLocation=\"urn:a a.xsd\""},
    {"several locations, an empty namespace among them",
     no_namespaces,
     {},
     {{"urn:a", "a.xsd"}, {"", "n.xsd"}, {"urn:b", "b.xsd"}},
     false,
     " " + xsi + " xsi:schemaLocation=\"urn:a a.xsd  n.xsd urn:b b.xsd\""},
    {"first location without namespace: the others are dropped",
     no_namespaces,
     {},
     {{"", "n.xsd"}, {"urn:a", "a.xsd"}},
     false,
     " " + xsi + " xsi:noNamespaceSchemaLocation=\"n.xsd\""},
    {"location and force: declared once",
     no_namespaces,
     {},
     {{"urn:a", "a.xsd"}},
     true,
     " " + xsi + " xsi:schemaLocation=\"urn:a a.xsd\""},
    {"all together",
     two_namespaces,
     {{"q", "urn:q"}},
     {{"urn:a", "a.xsd"}},
     false,
     " xmlns=\"urn:default\" xmlns:p=\"urn:p\" xmlns:q=\"urn:q\" " + xsi +
         " xsi:schemaLocation=\"urn:a a.xsd\""},
    {"nothing is escaped",
     no_namespaces,
     {{"<", "a&b"}},
     {{"<&", "'>"}},
     false,
     " xmlns:<=\"a&b\" " + xsi + " xsi:schemaLocation=\"<& '>\""},
};

TEST(Namespaces, AreWrittenIntoTheFirstStartTag) {
  for (NamespaceCase const& row : namespace_cases) {
    SCOPED_TRACE(row.caption);
    std::ostringstream out;
    c_xml_writer writer(out, "", "", "", "");
    for (auto const& [prefix, uri] : row.namespaces) writer.add_namespace(prefix, uri);
    for (auto const& [ns, location] : row.locations) writer.add_schema_location(ns, location);
    c_xml_writer_local const scope(writer);
    writer.write_start_tag("R");
    writer.conditionally_select_ns_map(row.map);
    writer.conditionally_write_ns_attrs(row.force_xsi);
    attribute(writer, "A", "1");
    {
      c_xml_writer_local const inner(writer);
      writer.write_start_tag("K");
      writer.add_namespace("late", "urn:late");
      writer.add_schema_location("urn:late", "late.xsd");
      writer.conditionally_select_ns_map(two_namespaces);
      writer.conditionally_write_ns_attrs(true);
      writer.write_end_tag("K");
    }
    writer.write_end_tag("R");
    EXPECT_EQ("<R" + row.attributes + " A=\"1\"><K/></R>", out.str());
  }
}

TEST(Namespaces, StandOnLinesAsAttributesDo) {
  Document document;
  document.writer.add_namespace("p", "urn:p");
  document.writer.add_schema_location("", "n.xsd");
  EXPECT_EQ(lmx::ELMX_OK, root_and_kid.marshal(document.writer));
  EXPECT_EQ("<ROOT xmlns:p=\"urn:p\"\n\t\t" + xsi +
                "\n\t\txsi:noNamespaceSchemaLocation=\"n.xsd\"\n\t\tA=\"1\"\n\t\tB=\"2\">\n\t<KID "
                "C=\"3\"/>\n</ROOT>\n",
            document.text());
}

TEST(Namespaces, OfTheFirstMapStay) {
  Document document;
  document.writer.conditionally_select_ns_map(two_namespaces);
  document.writer.conditionally_select_ns_map(no_namespaces);
  document.writer.conditionally_write_ns_attrs(false);
  EXPECT_EQ(" xmlns=\"urn:default\"\n\txmlns:p=\"urn:p\"", document.text());
}

TEST(Namespaces, AreFoundByUri) {
  constexpr lmx::s_ns_map map[] = {
      {1000, "p", "urn:p"}, {1001, "again", "urn:p"}, {1002, "", "urn:default"}, {0, nullptr, nullptr}};
  Document document;
  document.writer.conditionally_select_ns_map(map);
  document.writer.add_namespace("added", "urn:added");
  document.writer.add_namespace("hidden", "urn:p");
  document.writer.add_namespace("later", "urn:added");
  EXPECT_STREQ("p", document.writer.get_namespace_prefix("urn:p"));
  EXPECT_STREQ("", document.writer.get_namespace_prefix("urn:default"));
  EXPECT_STREQ("added", document.writer.get_namespace_prefix("urn:added"));
  EXPECT_EQ(nullptr, document.writer.get_namespace_prefix("urn:other"));
  EXPECT_EQ(nullptr, document.writer.get_namespace_prefix(""));
}

TEST(NamespacesDeathTest, NeedAMap) {
  Document document;
  EXPECT_DEATH(document.writer.get_namespace_prefix("urn:p"), "mp_ns_map");
  EXPECT_DEATH(document.writer.conditionally_write_ns_attrs(false), "mp_ns_map");
}

// ---- Captured content ----

TEST(AnyLine, IsWrittenAsItIsOnALineOfItsOwn) {
  Document document;
  lmx::c_any_info info;
  info.m_name = "a";
  info.m_value = "<a b='&'>]]></a>";
  document.writer.write_any_line(info);
  document.writer.write_start_tag("X");
  document.writer.write_start_tag("Y");
  document.writer.write_any_line(info);
  EXPECT_EQ("<a b='&'>]]></a>\n<X\t<Y\t\t<a b='&'>]]></a>\n", document.text());
}

// ---- State ----

class OwnWriter : public c_xml_writer {
 public:
  using c_xml_writer::c_xml_writer;
  using c_xml_writer::m_default_attribute_nl;
  using c_xml_writer::m_default_attribute_tab;
  using c_xml_writer::m_default_nl;
  using c_xml_writer::m_default_tab;
  using c_xml_writer::m_error;
};

TEST(DerivedWriter, SeesTheDefaultsThatTheSettersKeep) {
  const DefaultFormats restored;
  EXPECT_EQ("\t", OwnWriter::m_default_tab);
  EXPECT_EQ("\n", OwnWriter::m_default_nl);
  EXPECT_EQ("\t", OwnWriter::m_default_attribute_tab);
  EXPECT_EQ("\n", OwnWriter::m_default_attribute_nl);
  c_xml_writer::set_default_tab("1");
  c_xml_writer::set_default_nl("2");
  c_xml_writer::set_default_attribute_tab("3");
  c_xml_writer::set_default_attribute_nl("4");
  EXPECT_EQ("1", OwnWriter::m_default_tab);
  EXPECT_EQ("2", OwnWriter::m_default_nl);
  EXPECT_EQ("3", OwnWriter::m_default_attribute_tab);
  EXPECT_EQ("4", OwnWriter::m_default_attribute_nl);
}

TEST(DerivedWriter, HasALogOfItsOwn) {
  std::ostringstream out;
  OwnWriter writer(out);
  EXPECT_EQ(lmx::EET_NONE, writer.m_error.m_last_type);
  EXPECT_EQ(lmx::ELMX_BAD_CHOICE, writer.report_error(lmx::ELMX_BAD_CHOICE, "item", "file", 1));
  EXPECT_EQ(0u, writer.m_error.m_error_count);  // the binding's errors are no reports of the character level
  writer.m_error.error(lmx::EET_ERROR, lmx::ELMX_OCCURS_ERROR, "");
  EXPECT_EQ(1u, writer.m_error.m_error_count);
}

// ---- Errors ----

/// Notes what the hooks are asked.
class Writer : public c_xml_writer {
 public:
  using c_xml_writer::c_xml_writer;
  elmx_error on_error(elmx_error code, string const& item) override {
    log.push_back("on_error " + code_name(code) + " " + item);
    return is_tolerant ? lmx::ELMX_OK : c_xml_writer::on_error(code, item);
  }
  elmx_error handle_error(elmx_error code, string const& item, char const* file, int line) override {
    log.push_back("handle_error " + code_name(code) + " " + item + " " + file + ":" + std::to_string(line));
    return c_xml_writer::handle_error(code, item, file, line);
  }
  strings log;
  bool is_tolerant = false;
};

const Node with_bad_choice{"A", {{"B", "1"}}, {{"C", {}, {{"D", {}}}, true}, {"E", {}}}};

TEST(Error, CutsTheDocumentOffWhereItIs) {
  std::ostringstream out;
  Writer writer(out);
  EXPECT_EQ(lmx::ELMX_BAD_CHOICE, with_bad_choice.marshal(writer));
  EXPECT_EQ("<A B=\"1\">\n\t<C>\n\t\t<D/>\n", out.str());
  EXPECT_EQ(2, writer.depth()) << "two elements wait for their end";
  EXPECT_EQ((strings{"handle_error BAD_CHOICE {anonymous compositor} the file:7",
                     "on_error BAD_CHOICE {anonymous compositor}"}),
            writer.log);
  EXPECT_EQ(
      "Error: Inappropriate choice option selected\n"
      "Item: {anonymous compositor}\n"
      "Program file: the file\n"
      "Program line: 7\n",
      writer.get_error_message());
  EXPECT_EQ(-1, writer.debug_error().m_xml_line);
}

TEST(Error, ThatIsToleratedCutsNothingOff) {
  std::ostringstream out;
  Writer writer(out);
  writer.is_tolerant = true;
  EXPECT_EQ(lmx::ELMX_OK, with_bad_choice.marshal(writer));
  EXPECT_EQ("<A B=\"1\">\n\t<C>\n\t\t<D/>\n\t</C>\n\t<E/>\n</A>\n", out.str());
  EXPECT_EQ(lmx::ELMX_BAD_CHOICE, writer.debug_error().m_code) << "recorded all the same";
}

TEST(Error, BeforeTheFirstOneHasAMessageToo) {
  Document document;
  EXPECT_EQ("Error: No Error\n", document.writer.get_error_message());
  string text = "old";
  EXPECT_EQ(&text, &document.writer.get_error_message(&text));
  EXPECT_EQ("Error: No Error\n", text);
}

TEST(Error, ThatIsCapturedAsksNobody) {
  std::ostringstream out;
  Writer writer(out);
  EXPECT_EQ(lmx::ELMX_UNEXPECTED_EOM, writer.capture_error(lmx::ELMX_UNEXPECTED_EOM, "item", "f", 1));
  EXPECT_TRUE(writer.log.empty());
  EXPECT_EQ(lmx::ELMX_OCCURS_ERROR, writer.capture_error(lmx::ELMX_OCCURS_ERROR, "last", "g", 2));
  EXPECT_EQ("Error: min/max occurs error on marshaling\nItem: last\nProgram file: g\nProgram line: 2\n",
            writer.get_error_message());
}

TEST(Error, MessageComesThroughTheVirtualForm) {
  class Own : public c_xml_writer {
   public:
    using c_xml_writer::c_xml_writer;
    using c_xml_writer::get_error_message;
    string& get_error_message(string* text) const override { return *text = "own"; }
  };
  std::ostringstream out;
  EXPECT_EQ("own", Own(out).get_error_message());
}

// ---- Hooks ----

TEST(Hooks, AreAskedBeforeEveryAttribute) {
  class Own : public c_xml_writer {
   public:
    using c_xml_writer::c_xml_writer;
    void write_attribute_break(bool) override { stream() << "|"; }
  };
  std::ostringstream out;
  Own writer(out);
  writer.add_namespace("p", "urn:p");
  writer.add_schema_location("urn:p", "p.xsd");
  EXPECT_EQ(lmx::ELMX_OK, Node({"R", {{"A", "1"}, {"B", "2"}}}).marshal(writer));
  EXPECT_EQ("<R|xmlns:p=\"urn:p\"|" + xsi + "|xsi:schemaLocation=\"urn:p p.xsd\"|A=\"1\"|B=\"2\"/>\n",
            out.str());
}

// A pointer to a virtual function holds the place of its entry in the table, on x86 with its low bit set.
template <class Function>
std::size_t slot_of(Function function) {
  std::uintptr_t place;
  static_assert(sizeof function >= sizeof place, "");
  std::memcpy(&place, &function, sizeof place);
  return (place & ~std::uintptr_t{1}) / sizeof(void*);
}

TEST(Hooks, KeepTheirOrder) {
  // Entries 0 and 1 are the destructors.
  EXPECT_EQ(2u, slot_of(&c_xml_writer::on_error));
  EXPECT_EQ(3u, slot_of(&c_xml_writer::handle_error));
  EXPECT_EQ(4u,
            slot_of(static_cast<string& (c_xml_writer::*)(string*) const>(&c_xml_writer::get_error_message)));
  EXPECT_EQ(5u, slot_of(&c_xml_writer::write_attribute_break));
  EXPECT_EQ(6u, slot_of(&c_xml_writer::write_any_line));
}

TEST(Hooks, OfBridgesKeepTheirOrder) {
  using bridge = lmx::c_untyped_marshal_bridge;
  EXPECT_EQ(0u, slot_of(&bridge::is_multi));
  EXPECT_EQ(1u, slot_of(&bridge::count));
  EXPECT_EQ(2u, slot_of(&bridge::ref_text));
  EXPECT_EQ(3u, slot_of(&bridge::is_value_empty));
  EXPECT_EQ(4u, slot_of(&bridge::write_value));
  // Entries 5 and 6 are the destructors.
  EXPECT_EQ(7u, slot_of(&lmx::c_atomic_marshal_bridge<c_xml_writer, string>::ref_value));
  EXPECT_EQ(1u, slot_of(&lmx::c_untyped_marshal_list_bridge::count));
  EXPECT_EQ(3u, slot_of(&lmx::c_untyped_marshal_list_bridge::item_count));
  EXPECT_EQ(4u, slot_of(&lmx::c_untyped_marshal_list_bridge::write_item));
}

// ---- Streams ----

struct Grouping : std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  string do_grouping() const override { return "\3"; }
};

TEST(Stream, TakesOnTheClassicLocaleAndKeepsIt) {
  std::ostringstream out;
  out.imbue(std::locale(std::locale::classic(), new Grouping));
  {
    c_xml_writer writer(out);
    EXPECT_TRUE(out.getloc() == std::locale::classic());
    writer.stream() << 1234567.5f;
  }
  EXPECT_TRUE(out.getloc() == std::locale::classic()) << "also after the writer";
  EXPECT_EQ("1.23457e+06", out.str());
  std::ostringstream other;
  other.imbue(std::locale(std::locale::classic(), new Grouping));
  const c_xml_writer with_flags(other, 1);
  EXPECT_TRUE(other.getloc() == std::locale::classic());
}

TEST(Stream, OfAnyFormatGivesTheSameDocument) {
  std::ostringstream out;
  out.width(40);
  out.fill('*');
  out << std::hex << std::showpos << std::uppercase;
  c_xml_writer writer(out, 1);
  single<int> number;
  number.set(255);
  c_xml_writer_local const scope(writer);
  writer.write_start_tag("X");
  attribute(writer, "A", number);
  writer.write_end_tag("X");
  EXPECT_EQ("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<X A=\"255\"/>\n", out.str());
}

/// Takes so many bytes and no more.
class NarrowBuffer : public std::streambuf {
 public:
  explicit NarrowBuffer(std::size_t room) : m_room(room) {}
  string const& text() const { return m_text; }
  int flushes() const { return m_flushes; }

 protected:
  int_type overflow(int_type c) override {
    if (m_text.size() == m_room) return traits_type::eof();
    m_text += traits_type::to_char_type(c);
    return c;
  }
  int sync() override {
    ++m_flushes;
    return 0;
  }

 private:
  std::size_t m_room;
  string m_text;
  int m_flushes = 0;
};

const string whole_document =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n" + written({"A", {{"B", "&"}}, {{"C", {}, {{"D", {}}}}}});

elmx_error write_whole_document(std::ostream& out) {
  c_xml_writer writer(out, 1);
  return Node({"A", {{"B", "&"}}, {{"C", {}, {{"D", {}}}}}}).marshal(writer);
}

TEST(Stream, ThatFailsAfterAnyByteFailsInSilence) {
  for (std::size_t room = 0; room <= whole_document.size(); ++room) {
    NarrowBuffer buffer(room);
    std::ostream out(&buffer);
    EXPECT_EQ(lmx::ELMX_OK, write_whole_document(out)) << "the state is the caller's to test";
    EXPECT_EQ(whole_document.substr(0, room), buffer.text());
    EXPECT_EQ(room == whole_document.size(), out.good());
  }
}

TEST(Stream, ThatThrowsLeavesNoScopeBehind) {
  for (std::size_t room = 0; room < whole_document.size(); ++room) {
    NarrowBuffer buffer(room);
    std::ostream out(&buffer);
    out.exceptions(std::ios_base::badbit);
    EXPECT_THROW(write_whole_document(out), std::ios_base::failure);
    EXPECT_EQ(whole_document.substr(0, room), buffer.text());
  }
}

// Whoever is asked during an operation may write to the stream as well, not only by way of the writer.
TEST(Stream, IsUpToDateWheneverCodeOfTheHostRuns) {
  Document document;
  c_xml_writer& writer = document.writer;
  c_xml_writer_local const scope(writer);
  writer.write_start_tag("R");
  EXPECT_EQ("<R", document.text());
  writer.marshal_attribute("A", string("1"), spec<string>);
  EXPECT_EQ("<R A=\"1\"", document.text());
  writer.write_attribute_break(false);
  EXPECT_EQ("<R A=\"1\"\n\t\t", document.text());
  document.out << "B=\"2\"";
  attribute(writer, "C", "3");
  document.out << ">";
  writer.write_any_line({});
  EXPECT_EQ("<R A=\"1\"\n\t\tB=\"2\"\n\t\tC=\"3\">\t\n", document.text());
  writer.write_end_tag("R");
  EXPECT_EQ("<R A=\"1\"\n\t\tB=\"2\"\n\t\tC=\"3\">\t\n/>\n", document.text());
}

TEST(Stream, IsUpToDateWhenABridgeIsAsked) {
  /// Notes what stands in the stream at each question.
  class Witness : public lmx::c_untyped_marshal_bridge {
   public:
    explicit Witness(std::ostringstream& out) : mr_out(out) {}
    std::size_t count() override { return 2; }
    string const& ref_text() override { throw std::logic_error("not mixed"); }
    bool is_value_empty(std::size_t) override {
      m_seen.push_back(mr_out.str());
      return false;
    }
    void write_value(std::size_t index) override {
      m_seen.push_back(mr_out.str());
      mr_out << index;
    }
    strings m_seen;

   private:
    std::ostringstream& mr_out;
  };
  Document document;
  Witness witness(document.out);
  document.writer.marshal_element_impl("E", witness, nullptr);
  EXPECT_EQ((strings{"<E", "<E>", "<E>0</E>\n<E", "<E>0</E>\n<E>"}), witness.m_seen);
  EXPECT_EQ("<E>0</E>\n<E>1</E>\n", document.text());
}

TEST(Stream, IsUpToDateWhenADerivedWriterIsAsked) {
  class Witness : public c_xml_writer {
   public:
    explicit Witness(std::ostringstream& out) : c_xml_writer(out), mr_out(out) {}
    void write_attribute_break(bool) override {
      m_seen.push_back(mr_out.str());
      mr_out << '|';
    }
    strings m_seen;

   private:
    std::ostringstream& mr_out;
  };
  std::ostringstream out;
  Witness writer(out);
  c_xml_writer::gathering const all(writer);
  writer.add_namespace("p", "urn:p");
  writer.add_namespace("q", "urn:q");
  EXPECT_EQ(lmx::ELMX_OK, Node({"R", {{"A", "1"}}}).marshal(writer));
  EXPECT_EQ((strings{"<R", "<R|xmlns:p=\"urn:p\"", "<R|xmlns:p=\"urn:p\"|xmlns:q=\"urn:q\""}), writer.m_seen);
  EXPECT_EQ("<R|xmlns:p=\"urn:p\"|xmlns:q=\"urn:q\"|A=\"1\"/>\n", out.str());
}

std::ostream& witness_to_length(std::ostream& out, string const& value) {
  return out << static_cast<std::ostringstream&>(out).str().size() << value;
}

std::ostream& refuse(std::ostream&, string const&) { throw std::logic_error("refused"); }

constexpr lmx::c_validation_spec<string> spec_with_output(std::ostream& (*output)(std::ostream&,
                                                                                  string const&)) {
  return {lmx::EXWS_COLLAPSE, "",    &lmx::lexical_validator_empty, &lmx::value_validator_empty<string>,
          &lmx::v_to_o,       output};
}

TEST(Stream, IsUpToDateForAnOutputOfTheHosts) {
  lmx::c_validation_spec<string> const own = spec_with_output(&witness_to_length);
  Document document;
  {
    c_xml_writer::gathering const all(document.writer);
    c_xml_writer_local const scope(document.writer);
    document.writer.write_start_tag("R");
    document.writer.marshal_attribute("A", string("<"), own);
    document.writer.marshal_attribute("B", string("<"), spec<string>);
    document.writer.write_end_tag("R");
  }
  EXPECT_EQ("<R A=\"6<\"\n\t\tB=\"&lt;\"/>\n", document.text());
}

TEST(Stream, GetsWhatWasGatheredAtTheLatestAtTheEnd) {
  Document document;
  {
    c_xml_writer::gathering const all(document.writer);
    {
      c_xml_writer::gathering const part(document.writer);
      document.writer.write_start_tag("R");
    }
    EXPECT_EQ("<R", static_cast<std::ostringstream&>(document.writer.stream()).str())
        << "when it is asked for";
    document.writer.write_end_tag("R");
  }
  EXPECT_EQ("<R</R>\n", document.text());
}

TEST(Stream, GetsWhatWasGatheredBeforeAnException) {
  lmx::c_validation_spec<string> const own = spec_with_output(&refuse);
  Document document;
  EXPECT_THROW(
      {
        c_xml_writer::gathering const all(document.writer);
        c_xml_writer_local const scope(document.writer);
        document.writer.write_start_tag("R");
        document.writer.marshal_attribute("A", string(), own);
      },
      std::logic_error);
  EXPECT_EQ("<R A=\"", document.text());
  EXPECT_THROW(
      {
        c_xml_writer::gathering const all(document.writer);
        document.writer.write_attribute_break(false);
        throw std::logic_error("of the host");
      },
      std::logic_error);
  EXPECT_EQ("<R A=\" ", document.text());
}

TEST(Stream, GetsLongAndShortPiecesInOrder) {
  for (std::size_t const length : {1u, 15u, 16u, 17u, 63u, 64u, 65u, 4000u, 4095u, 4096u, 4097u, 20000u}) {
    SCOPED_TRACE(length);
    string const plain(length, 'x');
    string const special(length, '"');
    std::vector<unsigned char> const bytes(length, 0xA5);
    string hexadecimal;
    string references;
    for (std::size_t i = 0; i != length; ++i) {
      hexadecimal += "A5";
      references += "&quot;";
    }
    Document document;
    {
      c_xml_writer::gathering const all(document.writer);
      c_xml_writer_local const scope(document.writer);
      document.writer.write_start_tag(plain.c_str());
      document.writer.marshal_attribute("A", plain, spec<string>);
      document.writer.marshal_attribute("B", special, spec<string>);
      document.writer.marshal_attribute("C", lmx::c_binary(bytes.data(), static_cast<unsigned int>(length)),
                                        spec<lmx::c_binary>);
      document.writer.marshal_attribute("D", decimal(lmx::c_decimal(string(length, '7'))), spec<decimal>);
      document.writer.marshal_attribute("E", 7, spec<int>);
      document.writer.write_end_tag("R");
    }
    string const line = "\"\n\t\t";
    EXPECT_EQ("<" + plain + " A=\"" + plain + line + "B=\"" + references + line + "C=\"" + hexadecimal +
                  line + "D=\"" + string(length, '7') + line + "E=\"7\"/>\n",
              document.text());
  }
}

TEST(Stream, IsNotFlushed) {
  NarrowBuffer buffer(1000);
  std::ostream out(&buffer);
  EXPECT_EQ(lmx::ELMX_OK, write_whole_document(out));
  EXPECT_EQ(0, buffer.flushes());
}

TEST(Stream, ThatHasFailedBeforeIsNotTested) {
  std::ostringstream out;
  out.setstate(std::ios_base::badbit);
  EXPECT_EQ(lmx::ELMX_OK, write_whole_document(out));
  EXPECT_EQ("", out.str());
}

TEST(Stream, TakesTenThousandLevels) {
  constexpr int levels = 10000;
  std::ostringstream out;
  c_xml_writer writer(out, "", "", "", "");
  std::vector<std::unique_ptr<c_xml_writer_local>> scopes;
  string expected;
  for (int i = 0; i < levels; ++i) {
    scopes.push_back(std::make_unique<c_xml_writer_local>(writer));
    writer.write_start_tag("L");
    expected += i + 1 < levels ? "<L>" : "<L/>";
  }
  EXPECT_EQ(levels, writer.depth());
  for (int i = 0; i < levels; ++i) {
    writer.write_end_tag("L");
    scopes.pop_back();
    if (i > 0) expected += "</L>";
  }
  EXPECT_EQ(expected, out.str());
  EXPECT_EQ(0, writer.depth());
}

TEST(Writer, IsNotCopied) {
  EXPECT_FALSE(std::is_copy_constructible_v<c_xml_writer>);
  EXPECT_FALSE(std::is_copy_assignable_v<c_xml_writer>);
  EXPECT_FALSE(std::is_copy_constructible_v<c_xml_writer_local>);
}

}  // namespace
