// List-typed values: the way of a text into a list, and back.
#include "GenLibrarySupportFiles/lmxinternals/list_bridges.h"

#include <gtest/gtest.h>

#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "GenLibrarySupportFiles/lmxinternals/containers.h"
#include "GenLibrarySupportFiles/lmxparse/c_xml_writer.h"
#include "GenLibrarySupportFiles/lmxparse/value_output.h"
#include "GenLibrarySupportFiles/lmxtypes/conversions.h"
#include "support/code_name.h"
#include "support/each_source.h"

namespace {

using lmx::elmx_error;
using std::string;
using strings = std::vector<string>;
using numbers = std::vector<int>;

/// Notes each report and each step of the validators below.
class Reader : public lmx::c_xml_reader {
 public:
  using c_xml_reader::c_xml_reader;
  elmx_error handle_error(elmx_error code, string const& item, char const*, int) override {
    log.push_back(code_name(code) + " " + item);
    return is_tolerant ? lmx::ELMX_OK : code;
  }
  strings log;
  bool is_tolerant = false;
};

elmx_error check(lmx::c_xml_reader& reader, string const& step, bool is_good) {
  static_cast<Reader&>(reader).log.push_back(step);
  if (is_good) return lmx::ELMX_OK;
  return reader.report_error(lmx::ELMX_USER_DEFINED_1, reader.m_name, "", 0);
}
elmx_error list_is_no_secret(lmx::c_xml_reader& reader, string const& text) {
  return check(reader, "list [" + text + "]", text != "secret");
}
elmx_error token_is_integer(lmx::c_xml_reader& reader, string const& text) {
  return check(reader, "token " + text, lmx::is_valid_integer(text));
}
elmx_error item_is_small(lmx::c_xml_reader& reader, int const& item) {
  return check(reader, "item " + std::to_string(item), item < 100);
}

using field = lmx::ct_simple_pod_optional<numbers>;
using repeated_field = lmx::ct_simple_pod_multi<numbers>;
template <class Container>
using number_bridge = lmx::c_unmarshal_list_bridge<Reader, Container, int>;

constexpr lmx::c_validation_spec<int> number_spec(lmx::EXWS_COLLAPSE, "7 8", token_is_integer, item_is_small,
                                                  lmx::v_to_o, lmx::o_to_v);

// The specs differ from `number_spec` in one thing each.
constexpr lmx::c_validation_spec<int> without_default(lmx::EXWS_COLLAPSE, "", token_is_integer, item_is_small,
                                                      lmx::v_to_o, lmx::o_to_v);
constexpr lmx::c_validation_spec<int> preserving(lmx::EXWS_PRESERVE, "", token_is_integer, item_is_small,
                                                 lmx::v_to_o, lmx::o_to_v);

void open(Reader& reader) {
  elmx_error error;
  reader.get_element_event(&error, &reader.m_name);
}

void open_attribute(Reader& reader) {
  open(reader);
  elmx_error error;
  reader.get_attribute_event(nullptr, &error, &reader.m_name);
}

// ---- What both forms share ----

struct Case {
  const char* caption;
  string text;
  bool is_tolerant;
  elmx_error result;
  bool is_set;
  numbers items;
  strings steps;
};

const Case cases[] = {
    {"good",
     " 1  -2 ",
     false,
     lmx::ELMX_OK,
     true,
     {1, -2},
     {"list [1 -2]", "token 1", "item 1", "token -2", "item -2"}},
    {"the whole text is refused",
     "secret",
     false,
     lmx::ELMX_USER_DEFINED_1,
     false,
     {},
     {"list [secret]", "USER_DEFINED_1 N"}},
    {"a token is refused",
     "1 x 3",
     false,
     lmx::ELMX_USER_DEFINED_1,
     true,
     {1},
     {"list [1 x 3]", "token 1", "item 1", "token x", "USER_DEFINED_1 N"}},
    {"an item is refused, and stays",
     "1 100 3",
     false,
     lmx::ELMX_USER_DEFINED_1,
     true,
     {1, 100},
     {"list [1 100 3]", "token 1", "item 1", "token 100", "item 100", "USER_DEFINED_1 N"}},
    {"refusals that are let pass",
     "x 100 3",
     true,
     lmx::ELMX_OK,
     true,
     {0, 100, 3},
     {"list [x 100 3]", "token x", "USER_DEFINED_1 N", "item 0", "token 100", "item 100", "USER_DEFINED_1 N",
      "token 3", "item 3"}},
};

TEST(AttributeList, IsCheckedWholeThenTokenByToken) {
  for (Case const& row : cases) {
    SCOPED_TRACE(row.caption);
    with_each_source("<e N='" + row.text + "'/>", [&](lmx::c_read& read) {
      Reader reader(read);
      reader.is_tolerant = row.is_tolerant;
      open_attribute(reader);
      field list;
      number_bridge<field> bridge(reader, number_spec, list);
      EXPECT_EQ(row.result,
                reader.unmarshal_attribute_list_value_impl(bridge, number_spec, list_is_no_secret));
      EXPECT_EQ(row.is_set, list.is_set());
      EXPECT_EQ(row.items, list.get());
      EXPECT_EQ(row.steps, reader.log);
    });
  }
}

TEST(ElementList, IsCheckedWholeThenTokenByToken) {
  for (Case const& row : cases) {
    SCOPED_TRACE(row.caption);
    with_each_source("<N>" + row.text + "</N>", [&](lmx::c_read& read) {
      Reader reader(read);
      reader.is_tolerant = row.is_tolerant;
      open(reader);
      reader.skip_start_tag(nullptr);
      field list;
      number_bridge<field> bridge(reader, number_spec, list);
      EXPECT_EQ(row.result, reader.unmarshal_element_list_value_impl(bridge, number_spec, list_is_no_secret));
      EXPECT_EQ(row.is_set, list.is_set());
      EXPECT_EQ(row.items, list.get());
      EXPECT_EQ(row.steps, reader.log);
      EXPECT_EQ(lmx::EXE_ELEMENT_END, reader.m_event) << "the end tag is read before any check";
    });
  }
}

TEST(List, FallsIntoTokensWhateverItsWhiteSpaceMode) {
  with_each_source("<e N=' 1\t\n2 '/>", [](lmx::c_read& read) {
    Reader reader(read);
    open_attribute(reader);
    field list;
    number_bridge<field> bridge(reader, preserving, list);
    EXPECT_EQ(lmx::ELMX_OK,
              reader.unmarshal_attribute_list_value_impl(bridge, preserving, list_is_no_secret));
    EXPECT_EQ((numbers{1, 2}), list.get());
    EXPECT_EQ("list [ 1\t\n2 ]", reader.log.front());
  });
}

// ---- Empty text ----

TEST(AttributeList, IsEmptyWhenItsTextIs) {
  with_each_source("<e N=''/>", [](lmx::c_read& read) {
    Reader reader(read);
    open_attribute(reader);
    field list;
    number_bridge<field> bridge(reader, number_spec, list);
    EXPECT_EQ(lmx::ELMX_OK,
              reader.unmarshal_attribute_list_value_impl(bridge, number_spec, list_is_no_secret));
    EXPECT_TRUE(list.is_set());
    EXPECT_TRUE(list.get().empty()) << "a default is for elements";
    EXPECT_EQ(strings{"list []"}, reader.log);
  });
}

TEST(ElementList, TakesTheDefaultWhenItsTextIsEmpty) {
  struct Row {
    string document;
    lmx::c_validation_spec<int> const& spec;
    numbers items;
    string first_step;
  };
  for (auto const& row :
       {Row{"<N/>", number_spec, {7, 8}, "list [7 8]"}, Row{"<N></N>", number_spec, {7, 8}, "list [7 8]"},
        Row{"<N> </N>", number_spec, {7, 8}, "list [7 8]"}, Row{"<N>1</N>", number_spec, {1}, "list [1]"},
        Row{"<N/>", without_default, {}, "list []"}, Row{"<N></N>", without_default, {}, "list []"}}) {
    SCOPED_TRACE(row.document);
    with_each_source(row.document, [&](lmx::c_read& read) {
      Reader reader(read);
      open(reader);
      field list;
      number_bridge<field> bridge(reader, row.spec, list);
      EXPECT_EQ(lmx::ELMX_OK,
                reader.unmarshal_child_element_list_impl(bridge, row.spec, list_is_no_secret, nullptr));
      EXPECT_TRUE(list.is_set());
      EXPECT_EQ(row.items, list.get());
      EXPECT_EQ(row.first_step, reader.log.front());
    });
  }
}

// ---- What goes wrong around the text ----

TEST(AttributeList, IsReportedWhenItIsSetAlreadyAndReplacedWhenThatIsLetPass) {
  with_each_source("<e N='1 2'/>", [](lmx::c_read& read) {
    for (const bool is_tolerant : {false, true}) {
      read.rewind();
      Reader reader(read);
      reader.is_tolerant = is_tolerant;
      open_attribute(reader);
      field list;
      list.set({9, 9, 9});
      number_bridge<field> bridge(reader, number_spec, list);
      EXPECT_EQ(is_tolerant ? lmx::ELMX_OK : lmx::ELMX_ATTRIBUTE_ALREADY_READ,
                reader.unmarshal_attribute_list_value_impl(bridge, number_spec, list_is_no_secret));
      EXPECT_EQ("ATTRIBUTE_ALREADY_READ @N", reader.log.front());
      EXPECT_EQ(is_tolerant ? (numbers{1, 2}) : (numbers{9, 9, 9}), list.get());
    }
  });
}

TEST(AttributeList, IsReportedWhenItCanNotBeRead) {
  with_each_source("<e N='1 &none; 2'/>", [](lmx::c_read& read) {
    Reader reader(read);
    open_attribute(reader);
    field list;
    number_bridge<field> bridge(reader, number_spec, list);
    EXPECT_EQ(lmx::ELMX_UNABLE_TO_READ_ATTRIBUTE_VALUE,
              reader.unmarshal_attribute_list_value_impl(bridge, number_spec, list_is_no_secret));
    EXPECT_FALSE(list.is_set());
  });
}

TEST(ElementList, IsReportedWhenItDoesNotEndInOrder) {
  struct Row {
    string document;
    elmx_error result;
    string report;
  };
  for (auto const& row :
       {Row{"<N>1", lmx::ELMX_UNABLE_TO_READ_ELEMENT_VALUE, "UNABLE_TO_READ_ELEMENT_VALUE N"},
        Row{"<N>1</M>", lmx::ELMX_BAD_END_OF_ELEMENT, "BAD_END_OF_ELEMENT N"},
        Row{"<N>1<b/></N>", lmx::ELMX_BAD_END_OF_ELEMENT, "BAD_END_OF_ELEMENT N"},
        Row{"<N", lmx::ELMX_BAD_END_OF_START_TAG, "BAD_END_OF_START_TAG N"}}) {
    SCOPED_TRACE(row.document);
    with_each_source(row.document, [&](lmx::c_read& read) {
      Reader reader(read);
      open(reader);
      reader.m_name = "N";
      field list;
      number_bridge<field> bridge(reader, number_spec, list);
      EXPECT_EQ(row.result,
                reader.unmarshal_child_element_list_impl(bridge, number_spec, list_is_no_secret, nullptr));
      EXPECT_EQ(strings{row.report}, reader.log);
      EXPECT_FALSE(list.is_set());
    });
  }
}

TEST(ElementList, ReadsTheNextSiblingWhenItHasAMap) {
  constexpr lmx::s_event_map map[] = {{1, "M", 1, 20}, {0, nullptr, 0, 0}};
  with_each_source("<N>1</N><M/>", [&](lmx::c_read& read) {
    Reader reader(read);
    open(reader);
    field list;
    number_bridge<field> bridge(reader, number_spec, list);
    EXPECT_EQ(lmx::ELMX_OK,
              reader.unmarshal_child_element_list_impl(bridge, number_spec, list_is_no_secret, map));
    EXPECT_EQ(20, reader.m_event);
    EXPECT_EQ("M", reader.m_name);
  });
}

// ---- Bridges ----

TEST(ListBridge, ShowsItsField) {
  MemoryRead read("");
  Reader reader(read);
  field list;
  number_bridge<field> bridge(reader, number_spec, list);
  EXPECT_FALSE(bridge.first_query());
  EXPECT_FALSE(bridge.is_value_set());
  EXPECT_EQ(&list.ref_value(), &bridge.ref_value());
  bridge.mark_value_set();
  EXPECT_TRUE(bridge.is_value_set()) << "an empty list is one";
  EXPECT_EQ(lmx::ELMX_OK, bridge.add_item("5"));
  EXPECT_EQ(numbers{5}, list.get());
  bridge.mark_value_set();
  EXPECT_TRUE(list.get().empty()) << "a list begins anew";
}

TEST(ListBridge, AddsAListToARepeatedFieldForEachElement) {
  with_each_source("<a><N>1 2</N><N/></a>", [](lmx::c_read& read) {
    constexpr lmx::s_event_map map[] = {{1, "N", 1, 20}, {0, nullptr, 0, 0}};
    Reader reader(read);
    open(reader);
    reader.skip_start_tag(nullptr);
    reader.get_element_event(map, &reader.m_name);
    repeated_field lists;
    number_bridge<repeated_field> bridge(reader, without_default, lists);
    while (reader.m_event == 20) {
      ASSERT_EQ(lmx::ELMX_OK,
                reader.unmarshal_child_element_list_impl(bridge, without_default, list_is_no_secret, map));
    }
    ASSERT_EQ(2u, lists.size());
    EXPECT_EQ((numbers{1, 2}), lists[0]);
    EXPECT_TRUE(lists[1].empty());
  });
}

TEST(ListBridgeDeathTest, HasNoTextForAValueThatIsNotMixed) {
  MemoryRead read("");
  Reader reader(read);
  std::ostringstream out;
  lmx::c_xml_writer writer(out);
  field list;
  number_bridge<field> bridge(reader, number_spec, list);
  lmx::c_marshal_list_bridge<lmx::c_xml_writer, field, int> writing(writer, number_spec, list);
  EXPECT_DEATH(bridge.ref_text(), "");
  EXPECT_DEATH(writing.ref_text(), "");
}

// ---- Writing ----

template <class Container>
using writing_bridge = lmx::c_marshal_list_bridge<lmx::c_xml_writer, Container, int>;

template <class Container>
string written(Container const& container) {
  std::ostringstream out;
  lmx::c_xml_writer writer(out);
  writing_bridge<Container> bridge(writer, number_spec, container);
  writer.marshal_element_list_impl("N", bridge, nullptr);
  return out.str();
}

TEST(List, IsWrittenAsItIsRead) {
  lmx::ct_simple_pod_single<numbers> required;
  EXPECT_EQ("<N/>\n", written(required)) << "even if it was never set";
  required.set({1, -2, 30});
  EXPECT_EQ("<N>1 -2 30</N>\n", written(required));

  field optional;
  EXPECT_EQ("", written(optional));
  optional.set({});
  EXPECT_EQ("<N/>\n", written(optional));
  optional.set({4});
  EXPECT_EQ("<N>4</N>\n", written(optional));

  repeated_field repeated;
  EXPECT_EQ("", written(repeated));
  repeated.append() = {1, 2};
  repeated.append();
  repeated.append() = {3};
  EXPECT_EQ("<N>1 2</N>\n<N/>\n<N>3</N>\n", written(repeated));
}

TEST(List, WritesItsItemsByTheirSpec) {
  const lmx::c_validation_spec<string> words(lmx::EXWS_COLLAPSE, "", list_is_no_secret,
                                             lmx::value_validator_empty<string>, lmx::v_to_o, lmx::o_to_v);
  std::ostringstream out;
  lmx::c_xml_writer writer(out);
  lmx::ct_simple_pod_single<strings> list;
  list.set({"a&b", "<"});
  lmx::c_marshal_list_bridge<lmx::c_xml_writer, decltype(list), string> bridge(writer, words, list);
  writer.marshal_attribute_list_impl("N", bridge);
  EXPECT_EQ(" N=\"a&amp;b &lt;\"", out.str());
}

TEST(List, HoldsTruthValuesToo) {
  const lmx::c_validation_spec<bool> truths(lmx::EXWS_COLLAPSE, "", list_is_no_secret,
                                            lmx::value_validator_empty<bool>, lmx::v_to_o, lmx::o_to_v);
  using truth_field = lmx::ct_simple_pod_optional<std::vector<bool>>;
  truth_field list;
  with_each_source("<e N='true 0 1'/>", [&](lmx::c_read& read) {
    Reader reader(read);
    open_attribute(reader);
    list.unset();
    lmx::c_unmarshal_list_bridge<Reader, truth_field, bool> bridge(reader, truths, list);
    EXPECT_EQ(lmx::ELMX_OK, reader.unmarshal_attribute_list_value_impl(bridge, truths, list_is_no_secret));
    EXPECT_EQ((std::vector<bool>{true, false, true}), list.get());
  });
  std::ostringstream out;
  lmx::c_xml_writer writer(out);
  lmx::c_marshal_list_bridge<lmx::c_xml_writer, truth_field, bool> bridge(writer, truths, list);
  writer.marshal_attribute_list_impl("N", bridge);
  EXPECT_EQ(" N=\"true false true\"", out.str());
}

TEST(WritingListBridge, CountsAsItIsToldAndRefusesWhatIsNotThere) {
  std::ostringstream out;
  lmx::c_xml_writer writer(out);
  repeated_field lists;
  lists.append() = {1, 2};
  lists.append();
  writing_bridge<repeated_field> bridge(writer, number_spec, lists);
  EXPECT_EQ(2u, bridge.count());
  EXPECT_EQ(1u, (writing_bridge<repeated_field>(writer, number_spec, lists, 1).count()));
  EXPECT_EQ(2u, bridge.item_count(0));
  EXPECT_EQ(0u, bridge.item_count(1));
  EXPECT_EQ(&lists[1], &bridge.ref_value(1));
  EXPECT_THROW(bridge.ref_value(2), std::out_of_range);
  EXPECT_THROW(bridge.write_item(0, 2), std::out_of_range);
  EXPECT_FALSE(bridge.is_multi());
}

}  // namespace
