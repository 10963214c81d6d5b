// The way of a text into a typed field: white space, text check, conversion, value check, and the flag.
#include "GenLibrarySupportFiles/lmxinternals/bridges.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "GenLibrarySupportFiles/lmxinternals/containers.h"
#include "GenLibrarySupportFiles/lmxtypes/c_binary.h"
#include "GenLibrarySupportFiles/lmxtypes/c_decimal.h"
#include "GenLibrarySupportFiles/lmxtypes/conversions.h"
#include "GenLibrarySupportFiles/lmxtypes/date_time.h"
#include "support/code_name.h"
#include "support/each_source.h"
#include "support/memory_read.h"

namespace {

using lmx::elmx_error;
using std::string;

/// Notes each report and each step of the specs below.
class Reader : public lmx::c_xml_reader {
 public:
  using c_xml_reader::c_xml_reader;
  elmx_error handle_error(elmx_error code, string const& item, char const* file, int line) override {
    log.push_back(code_name(code) + " " + item + " " + file + ":" + std::to_string(line));
    return is_tolerant ? lmx::ELMX_OK : code;
  }
  std::vector<string> log;
  bool is_tolerant = false;
};

elmx_error accept_text(lmx::c_xml_reader& reader, string const& text) {
  static_cast<Reader&>(reader).log.push_back("text " + text);
  return lmx::ELMX_OK;
}
elmx_error refuse_text(lmx::c_xml_reader& reader, string const& text) {
  accept_text(reader, text);
  return lmx::ELMX_USER_DEFINED_1;
}
elmx_error accept_value(lmx::c_xml_reader& reader, string const& value) {
  static_cast<Reader&>(reader).log.push_back("value " + value);
  return lmx::ELMX_OK;
}
elmx_error refuse_value(lmx::c_xml_reader& reader, string const& value) {
  accept_value(reader, value);
  return lmx::ELMX_USER_DEFINED_2;
}
void convert(string& value, string const& text) { value = "[" + text + "]"; }

template <class Container>
using string_bridge = lmx::c_unmarshal_bridge<Reader, Container, string>;
using single = lmx::ct_simple_pod_single<string>;
using optional = lmx::ct_simple_pod_optional<string>;
using multi = lmx::ct_simple_pod_multi<string>;

// Short and full spellings name the same bridge.
static_assert(std::is_same_v<string_bridge<single>, lmx::c_unmarshal_bridge<Reader, single, string, string>>);
static_assert(std::is_same_v<lmx::c_atomic_unmarshal_bridge<Reader, string>,
                             lmx::c_atomic_unmarshal_bridge<Reader, string, string>>);
static_assert(std::is_base_of_v<lmx::c_atomic_unmarshal_bridge<Reader, string>, string_bridge<optional>>);

constexpr lmx::c_validation_spec<string> good(lmx::EXWS_COLLAPSE, "default", accept_text, accept_value,
                                              convert);
constexpr lmx::c_validation_spec<string> bad_text(lmx::EXWS_COLLAPSE, "", refuse_text, accept_value, convert);
constexpr lmx::c_validation_spec<string> bad_value(lmx::EXWS_COLLAPSE, "", accept_text, refuse_value,
                                                   convert);

// --- One field -------------------------------------------------------------------------------------------

template <class Container>
class SimpleField : public testing::Test {};
using SimpleFields = testing::Types<single, optional>;
TYPED_TEST_SUITE(SimpleField, SimpleFields, );

TYPED_TEST(SimpleField, IsSeenThroughItsBridge) {
  MemoryRead memory("");
  Reader reader(memory);
  TypeParam field;
  string_bridge<TypeParam> bridge(reader, good, field);
  EXPECT_FALSE(bridge.first_query());
  EXPECT_FALSE(bridge.is_value_set());
  EXPECT_EQ(&field.ref_value(), &bridge.ref_value());
  bridge.mark_value_set();
  EXPECT_TRUE(bridge.is_value_set());
  EXPECT_TRUE(field.is_set());
  EXPECT_EQ("", field.get()) << "marked, not filled";
  EXPECT_FALSE(bridge.first_query());
}

TYPED_TEST(SimpleField, IsConvertedAndThenChecked) {
  MemoryRead memory("");
  Reader reader(memory);
  TypeParam field;
  string_bridge<TypeParam> bridge(reader, good, field);
  EXPECT_EQ(lmx::ELMX_OK, bridge.convert("x"));
  EXPECT_EQ("[x]", field.get());
  EXPECT_TRUE(field.is_set());
  EXPECT_EQ(std::vector<string>{"value [x]"}, reader.log) << "the text is checked by the caller";
  EXPECT_EQ(lmx::ELMX_OK, bridge.convert("y"));
  EXPECT_EQ("[y]", field.get());
}

TYPED_TEST(SimpleField, IsSetAndFilledEvenWhenItsValueIsRefused) {
  MemoryRead memory("");
  Reader reader(memory);
  TypeParam field;
  string_bridge<TypeParam> bridge(reader, bad_value, field);
  EXPECT_EQ(lmx::ELMX_USER_DEFINED_2, bridge.convert("x"));
  EXPECT_TRUE(bridge.is_value_set());
  EXPECT_EQ("[x]", field.get());
}

TEST(RepeatedField, GainsAnEmptyElementForEachMark) {
  MemoryRead memory("");
  Reader reader(memory);
  multi field;
  string_bridge<multi> bridge(reader, good, field);
  EXPECT_FALSE(bridge.is_value_set());
  bridge.mark_value_set();
  EXPECT_TRUE(bridge.is_value_set());
  ASSERT_EQ(1u, field.size());
  EXPECT_EQ("", field[0]);
  EXPECT_EQ(lmx::ELMX_OK, bridge.convert("x"));
  ASSERT_EQ(2u, field.size());
  EXPECT_EQ("", field[0]);
  EXPECT_EQ("[x]", field[1]);
  EXPECT_EQ(&field.back(), &bridge.ref_value());
}

TEST(BridgeDeathTest, HasNoTextForAValueThatIsNotMixed) {
  MemoryRead memory("");
  Reader reader(memory);
  single field;
  multi repeated;
  string_bridge<single> bridge(reader, good, field);
  string_bridge<multi> repeated_bridge(reader, good, repeated);
  EXPECT_DEATH(bridge.ref_text(), "");
  EXPECT_DEATH(repeated_bridge.ref_text(), "");
}

// --- The ways into a field -------------------------------------------------------------------------------

struct Way {
  const char* caption;
  lmx::c_validation_spec<string> const& spec;
  elmx_error result;
  bool is_set;
  std::vector<string> steps;
};

TEST(AttributeValue, IsCheckedAsTextThenConvertedThenCheckedAsValue) {
  for (auto const& row :
       {Way{"good", good, lmx::ELMX_OK, true, {"text a b", "value [a b]"}},
        Way{"bad text", bad_text, lmx::ELMX_USER_DEFINED_1, false, {"text a b"}},
        Way{"bad value", bad_value, lmx::ELMX_USER_DEFINED_2, true, {"text a b", "value [a b]"}}}) {
    SCOPED_TRACE(row.caption);
    with_each_source("<e A=' a  b '/>", [&](lmx::c_read& read) {
      Reader reader(read);
      elmx_error error;
      reader.get_element_event(&error, &reader.m_name);
      reader.get_attribute_event(nullptr, &error, &reader.m_name);
      single field;
      string_bridge<single> bridge(reader, row.spec, field);
      EXPECT_EQ(row.result, reader.unmarshal_attribute_value_impl(bridge, row.spec));
      EXPECT_EQ(row.is_set, field.is_set());
      EXPECT_EQ(row.steps, reader.log);
      EXPECT_EQ("a b", reader.m_value);
    });
  }
}

TEST(AttributeValue, FollowsTheWhiteSpaceOfItsSpec) {
  for (auto const& [mode, value] :
       std::vector<std::pair<lmx::elmx_whitespace, string>>{{lmx::EXWS_PRESERVE, "[ a\t\nb ]"},
                                                            {lmx::EXWS_REPLACE, "[ a  b ]"},
                                                            {lmx::EXWS_COLLAPSE, "[a b]"}}) {
    const lmx::c_validation_spec<string> spec(mode, "", accept_text, accept_value, convert);
    const string expected = value;
    with_each_source("<e A=' a\t\nb '/>", [&](lmx::c_read& read) {
      Reader reader(read);
      elmx_error error;
      reader.get_element_event(&error, &reader.m_name);
      reader.get_attribute_event(nullptr, &error, &reader.m_name);
      single field;
      string_bridge<single> bridge(reader, spec, field);
      EXPECT_EQ(lmx::ELMX_OK, reader.unmarshal_attribute_value_impl(bridge, spec));
      EXPECT_EQ(expected, field.get());
    });
  }
}

TEST(ElementValue, IsCheckedAsTextThenConvertedThenCheckedAsValue) {
  for (auto const& row :
       {Way{"good", good, lmx::ELMX_OK, true, {"text a b", "value [a b]"}},
        Way{"bad text", bad_text, lmx::ELMX_USER_DEFINED_1, false, {"text a b"}},
        Way{"bad value", bad_value, lmx::ELMX_USER_DEFINED_2, true, {"text a b", "value [a b]"}}}) {
    SCOPED_TRACE(row.caption);
    with_each_source("<e> a  b </e>", [&](lmx::c_read& read) {
      Reader reader(read);
      elmx_error error;
      reader.get_element_event(&error, &reader.m_name);
      reader.skip_start_tag(nullptr);
      single field;
      string_bridge<single> bridge(reader, row.spec, field);
      EXPECT_EQ(row.result, reader.unmarshal_element_value_impl(bridge, row.spec));
      EXPECT_EQ(row.is_set, field.is_set());
      EXPECT_EQ(row.steps, reader.log);
      EXPECT_EQ(lmx::EXE_ELEMENT_END, reader.m_event) << "the end tag is read before any check";
    });
  }
}

TEST(ElementValue, IsNotTestedForAnEarlierOne) {
  with_each_source("<e>x</e>", [](lmx::c_read& read) {
    Reader reader(read);
    elmx_error error;
    reader.get_element_event(&error, &reader.m_name);
    single field;
    field.set("old");
    string_bridge<single> bridge(reader, good, field);
    EXPECT_EQ(lmx::ELMX_OK, reader.unmarshal_child_element_impl(bridge, good, nullptr));
    EXPECT_EQ("[x]", field.get());
  });
}

TEST(ReadBody, ReadsIntoTheReadersValueUnderTheSpecsWhiteSpace) {
  struct Row {
    const char* caption;
    string document;
    bool is_tolerant;
    elmx_error result;
    std::vector<string> reports;
  };
  for (auto const& row : {Row{"text", "<e> a  b </e>", false, lmx::ELMX_OK, {}},
                          Row{"cut off",
                              "<e> a  b ",
                              false,
                              lmx::ELMX_UNABLE_TO_READ_ELEMENT_VALUE,
                              {"UNABLE_TO_READ_ELEMENT_VALUE e file:7"}},
                          Row{"cut off, tolerated",
                              "<e> a  b",
                              true,
                              lmx::ELMX_OK,
                              {"UNABLE_TO_READ_ELEMENT_VALUE e file:7"}}}) {
    SCOPED_TRACE(row.caption);
    with_each_source(row.document, [&](lmx::c_read& read) {
      Reader reader(read);
      reader.is_tolerant = row.is_tolerant;
      reader.m_code_file = "file";
      reader.m_code_line = 7;
      elmx_error error;
      reader.get_element_event(&error, &reader.m_name);
      reader.skip_start_tag(nullptr);
      single field;
      string_bridge<single> bridge(reader, good, field);
      EXPECT_EQ(row.result, bridge.read_body());
      EXPECT_EQ("a b", reader.m_value);
      EXPECT_FALSE(field.is_set());
      EXPECT_EQ(row.reports, reader.log);
    });
  }
}

// --- Types without content -------------------------------------------------------------------------------

TEST(EmptyType, RefusesAnyText) {
  MemoryRead memory("");
  Reader reader(memory);
  reader.m_name = "e";
  reader.m_code_file = "file";
  reader.m_code_line = 7;
  EXPECT_EQ(lmx::ELMX_OK, lmx::lexical_validator_empty(reader, ""));
  EXPECT_TRUE(reader.log.empty());
  EXPECT_EQ(lmx::ELMX_VALUE_BAD_FORMAT, lmx::lexical_validator_empty(reader, " "));
  EXPECT_EQ(std::vector<string>{"VALUE_BAD_FORMAT e file:7"}, reader.log);
  reader.is_tolerant = true;
  EXPECT_EQ(lmx::ELMX_OK, lmx::lexical_validator_empty(reader, "x"));
}

TEST(EmptyType, AcceptsEveryValue) {
  MemoryRead memory("");
  Reader reader(memory);
  EXPECT_EQ(lmx::ELMX_OK, lmx::value_validator_empty<string>(reader, "x"));
  EXPECT_EQ(lmx::ELMX_OK, lmx::value_validator_empty<int>(reader, -1));
}

// --- All types -------------------------------------------------------------------------------------------

template <class T>
T converted(string const& text) {
  T value{};
  lmx::v_to_o(value, text);
  return value;
}

template <template <class...> class Container, class T>
void expect_read(string const& text, T const& expected) {
  SCOPED_TRACE(text);
  MemoryRead memory("<e A='" + text + "'/>");
  Reader reader(memory);
  elmx_error error;
  reader.get_element_event(&error, &reader.m_name);
  reader.get_attribute_event(nullptr, &error, &reader.m_name);
  const lmx::c_validation_spec<T> spec(lmx::EXWS_COLLAPSE, "", accept_text, lmx::value_validator_empty<T>,
                                       lmx::v_to_o);
  Container<T> field;
  lmx::c_unmarshal_bridge<Reader, Container<T>, T> bridge(reader, spec, field);
  EXPECT_EQ(lmx::ELMX_OK, reader.unmarshal_attribute_value_impl(bridge, spec));
  EXPECT_TRUE(field.is_set());
  EXPECT_TRUE(expected == field.get());
}

template <template <class...> class Container>
void expect_all_types_read() {
  const unsigned char bytes[] = {0xA0, 0x01};
  expect_read<Container, string>("text", "text");
  expect_read<Container, double>("-1.5", -1.5);
  expect_read<Container, int>("-7", -7);
  expect_read<Container, unsigned int>("4294967295", 4294967295u);
  expect_read<Container, unsigned short>("65535", 65535);
  expect_read<Container, unsigned char>("255", 255);
  expect_read<Container, lmx::c_binary>("A001", lmx::c_binary(bytes, 2));
  expect_read<Container, velmo::lmx::high_precision_c_decimal>(
      "1.250", converted<velmo::lmx::high_precision_c_decimal>("1.250"));
  expect_read<Container, lmx::c_datetime>("2024-01-01T00:00:05",
                                          converted<lmx::c_datetime>("2024-01-01T00:00:05"));
}

TEST(RequiredField, TakesEveryType) { expect_all_types_read<lmx::ct_simple_pod_single>(); }
TEST(OptionalField, TakesEveryTypeAndTruthValues) {
  expect_all_types_read<lmx::ct_simple_pod_optional>();
  expect_read<lmx::ct_simple_pod_optional, bool>("true", true);
  expect_read<lmx::ct_simple_pod_optional, bool>("0", false);
}

TEST(SpecOfATypeWithoutContent, RefusesAnyTextAndKeepsBlanks) {
  MemoryRead read("");
  lmx::c_xml_reader reader(read);
  EXPECT_EQ(lmx::EXWS_PRESERVE, lmx::validation_spec_empty.m_whitespace);
  EXPECT_EQ(0, lmx::validation_spec_empty.mp_lexical_validator(reader, ""));
  EXPECT_EQ(lmx::ELMX_VALUE_BAD_FORMAT, lmx::validation_spec_empty.mp_lexical_validator(reader, " "));
  EXPECT_EQ(0, lmx::validation_spec_empty.mp_value_validator(reader, lmx::c_empty()));
}

TEST(SpecOfATypeWithoutContentDeathTest, NeverConverts) {
  lmx::c_empty value;
  EXPECT_DEATH(lmx::validation_spec_empty.mp_v_to_o(value, ""), "v_to_o_not_used");
}

}  // namespace
