// What element classes write: the bytes of every class, new and filled to the brim; the order of children;
// namespaces; what a choice that makes no sense does; and streams that fail at any byte.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <streambuf>
#include <string>
#include <vector>

#include "GenLibrarySupportFiles/lmxparse.h"
#include "isoxmllib/isoxmllib.h"
#include "support/code_name.h"
#include "support/document.h"
#include "support/element_rows.h"
#include "support/writing.h"

namespace {

using lmx::c_xml_writer;

// Calls `check` for a `Root` that holds a new object of each class.
template <class Check>
void for_each_class(Check check) {
  for (ElementRow const& row : element_rows) {
    SCOPED_TRACE(row.tag);
    Root root;
    row.select(root);
    check(row, root);
  }
}

// ---- Every class ----

TEST(EveryClass, IsThere) {
  EXPECT_EQ(61u, element_rows.size());
  EXPECT_EQ(29u, choice_rows.size()) << "UNABLE_TO_READ_ATTRIBUTE_VALUE wrappers and Root";
}

TEST(EveryClass, WritesANewObjectWithAllThatIsRequired) {
  for_each_class([](ElementRow const& row, Root const& root) {
    std::ostringstream out;
    c_xml_writer writer(out);
    EXPECT_EQ(0, row.marshal(root, writer));
    EXPECT_EQ(row.new_object, out.str());
    EXPECT_EQ(0, writer.depth());
  });
}

TEST(EveryClass, WritesEveryAttributeAndChildInItsPlace) {
  for_each_class([](ElementRow const& row, Root const&) {
    Root root;
    EXPECT_EQ(0, read_document(root, row.filled).code) << row.filled;
    EXPECT_EQ(row.filled, written(root));
  });
}

TEST(EveryClass, IsWrittenByRootUnderItsOwnTag) {
  for_each_class([](ElementRow const& row, Root const& root) {
    EXPECT_EQ(row.new_object, written(root, nullptr));
    EXPECT_EQ(row.new_object, written(root, "Other")) << "the name is ignored";
  });
}

TEST(EveryClass, WritesTheSameAsItsCopy) {
  for_each_class([](ElementRow const& row, Root const&) {
    Root root;
    EXPECT_EQ(0, read_document(root, row.filled).code);
    const std::unique_ptr<Root> copy(root.clone());
    root.reset();
    EXPECT_EQ(row.filled, written(*copy));
  });
}

TEST(EveryClass, CarriesTheNamespacesWhenItIsTheDocument) {
  for_each_class([](ElementRow const& row, Root const& root) {
    std::ostringstream out;
    c_xml_writer writer(out);
    writer.add_namespace("x", "urn:x");
    EXPECT_EQ(0, row.marshal(root, writer));
    const std::string start = std::string("<") + row.tag + " xmlns:x=\"urn:x\"";
    EXPECT_EQ(start, out.str().substr(0, start.size()));
    EXPECT_EQ(std::string::npos, out.str().find("xmlns", start.size())) << "once for a document";
  });
}

TEST(EveryClass, CarriesTheSchemaLocationWhenItIsTheDocument) {
  for_each_class([](ElementRow const& row, Root const&) {
    Root root;
    EXPECT_EQ(0, read_document(root, row.filled).code);
    std::ostringstream out;
    c_xml_writer writer(out);
    writer.add_schema_location("", "isoxml.xsd");
    EXPECT_EQ(0, row.marshal(root, writer));
    const std::string location =
        " xmlns:xsi=\"http://www.w3.org/2001/"
        "XMLSchema-instance\"\n\t\txsi:noNamespaceSchemaLocation=\"isoxml.xsd\"";
    const std::string name = std::string("<") + row.tag;
    const std::string filled = row.filled;
    const bool has_attributes = filled[name.size()] == ' ';
    const std::string rest = filled.substr(name.size() + (has_attributes ? 1 : 0));
    EXPECT_EQ(name + location + (has_attributes ? "\n\t\t" : "") + rest, out.str())
        << "and nothing else changes";
  });
}

// ---- Bytes ----

TEST(Written, NewObjectsByTheirText) {
  EXPECT_EQ("<TIM A=\"0001-00-00T00:00:00\"\n\t\tD=\"\"/>\n", written(Time(), "TIM"));
  EXPECT_EQ("<TSK A=\"\"\n\t\tG=\"\"/>\n", written(Task(), "TSK"));
  EXPECT_EQ("<P917_Question P917_Uuid=\"\"\n\t\tP917_ReplyType=\"\">\n\t<P917_Prompt/>\n</P917_Question>\n",
            written(P917Question(), "P917_Question"));
  EXPECT_EQ("<P917_comment/>\n", written(P917Comment(), "P917_comment"));
  EXPECT_EQ("<XFC/>\n", written(ExternalFileContent(), "XFC"));
}

TEST(Written, AttributesThenAChildsOnLinesOfTheirOwn) {
  Task task;
  task.SetId("TSK1");
  task.SetStatus("1");
  task.AppendInnerTask().AppendTreatmentZone().SetCode(3);
  EXPECT_EQ("<TSK A=\"TSK1\"\n\t\tG=\"1\">\n\t<TZN A=\"3\"/>\n</TSK>\n", written(task, "TSK"));
  task.GetInnerTask(0).GetTreatmentZone(0).SetDesignator("wet");
  EXPECT_EQ("<TSK A=\"TSK1\"\n\t\tG=\"1\">\n\t<TZN A=\"3\"\n\t\t\tB=\"wet\"/>\n</TSK>\n",
            written(task, "TSK"));
}

TEST(Written, TextStandsOnTheLineOfItsTags) {
  Task task;
  task.SetId("TSK1");
  task.SetStatus("1");
  task.AppendInnerTask().SelectP917Comment();
  EXPECT_EQ("<TSK A=\"TSK1\"\n\t\tG=\"1\"/>\n", written(task, "TSK")) << "chosen, but nothing is held";
  task.GetInnerTask(0).SetP917Comment("hi");
  EXPECT_EQ("<TSK A=\"TSK1\"\n\t\tG=\"1\">\n\t<P917_comment>hi</P917_comment>\n</TSK>\n",
            written(task, "TSK"));
  task.GetInnerTask(0).GetP917Comment().SetP917Comment("");
  EXPECT_EQ("<TSK A=\"TSK1\"\n\t\tG=\"1\">\n\t<P917_comment/>\n</TSK>\n", written(task, "TSK"));
}

TEST(Written, UnderWhateverTagIsAsked) {
  EXPECT_EQ("<Other A=\"\"\n\t\tG=\"\"/>\n", written(Task(), "Other"));
}

TEST(Written, AnAttributeThatIsUnsetAgainIsGoneUnlessRequired) {
  Task task;
  task.SetId("TSK1");
  task.SetStatus("1");
  task.SetDesignator("first cut");
  EXPECT_EQ("<TSK A=\"TSK1\"\n\t\tB=\"first cut\"\n\t\tG=\"1\"/>\n", written(task, "TSK"));
  task.UnsetDesignator();
  task.UnsetId();
  EXPECT_EQ("<TSK A=\"TSK1\"\n\t\tG=\"1\"/>\n", written(task, "TSK")) << "the flag is cleared, not the value";
}

TEST(Written, AnEmptyOptionalAttributeStaysInSight) {
  Task task;
  task.SetDesignator("");
  EXPECT_EQ("<TSK A=\"\"\n\t\tB=\"\"\n\t\tG=\"\"/>\n", written(task, "TSK"));
}

TEST(Written, ValuesStandAsTheyAreGoodOrNot) {
  Task task;
  task.SetId("no identifier at all <&>");
  task.SetStatus("99");
  EXPECT_EQ("<TSK A=\"no identifier at all &lt;&amp;>\"\n\t\tG=\"99\"/>\n", written(task, "TSK"));
}

TEST(Written, ChildrenKeepTheirOrderAcrossKinds) {
  const std::string document =
      "<TSK A=\"TSK1\"\n\t\tG=\"1\">\n\t<TZN A=\"1\"/>\n\t<TZN A=\"2\"/>\n"
      "\t<P917_comment>one</P917_comment>\n\t<TZN A=\"3\"/>\n\t<P917_comment>two</P917_comment>\n</TSK>\n";
  Root root;
  ASSERT_EQ(0, read_document(root, document).code);
  EXPECT_EQ(4u, root.GetTask().SizeInnerTask());
  EXPECT_EQ(document, written(root));
}

TEST(Written, AllInOneLineWithoutTheFourStrings) {
  Task task;
  task.AppendInnerTask().AppendTreatmentZone().SetCode(3);
  std::ostringstream out;
  c_xml_writer writer(out, "", "", "", "");
  EXPECT_EQ(0, task.marshal(writer, "TSK"));
  EXPECT_EQ("<TSK A=\"\" G=\"\"><TZN A=\"3\"/></TSK>", out.str());
}

TEST(Written, ADocumentWithDeclarationAndSchemaLocation) {
  Root root;
  root.GetExternalFileContent().AppendInnerExternalFileContent().AppendTask();
  std::ostringstream out;
  c_xml_writer writer(out, c_xml_writer::include_standalone);
  writer.add_namespace("x", "urn:x");
  writer.add_schema_location("", "isoxml.xsd");
  EXPECT_EQ(0, root.marshal(writer, nullptr));
  EXPECT_EQ(
      "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n"
      "<XFC xmlns:x=\"urn:x\"\n\t\txmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\"\n"
      "\t\txsi:noNamespaceSchemaLocation=\"isoxml.xsd\">\n\t<TSK A=\"\"\n\t\t\tG=\"\"/>\n</XFC>\n",
      out.str());
}

TEST(Written, PartsByThemselves) {
  Task task;
  task.SetId("TSK1");
  task.AppendInnerTask().AppendTreatmentZone().SetCode(3);
  task.AppendInnerTask().GetP917Comment();
  std::ostringstream out;
  c_xml_writer writer(out);
  lmx::c_xml_writer_local const scope(writer);
  writer.write_start_tag("Own");
  task.marshal_attributes(writer);
  EXPECT_EQ("<Own A=\"TSK1\"\n\t\tG=\"\"", out.str());
  out.str("");
  EXPECT_EQ(0, task.GetInnerTask(0).marshal(writer, "ignored"));
  EXPECT_EQ(">\n\t<TZN A=\"3\"/>\n", out.str());
  out.str("");
  EXPECT_EQ(0, task.marshal_child_elements(writer));
  EXPECT_EQ("\t<TZN A=\"3\"/>\n\t<P917_comment/>\n", out.str());
  out.str("");
  task.GetInnerTask(0).marshal_attributes(writer);
  EXPECT_EQ("", out.str()) << "a choice has no attributes";
}

TEST(Written, WithoutATagTheStreamTells) {
  std::ostringstream out;
  c_xml_writer writer(out);
  EXPECT_EQ(0, Task().marshal(writer, nullptr));
  EXPECT_TRUE(out.bad());
}

// ---- Choices ----

class ToleratingWriter : public c_xml_writer {
 public:
  using c_xml_writer::c_xml_writer;
  lmx::elmx_error on_error(lmx::elmx_error code, std::string const& item) override {
    reports.push_back(code_name(code) + ' ' + item);
    return lmx::ELMX_OK;
  }
  std::vector<std::string> reports;
};

TEST(EveryChoice, WritesNothingWhenNothingIsChosen) {
  for (ChoiceRow const& row : choice_rows) {
    SCOPED_TRACE(row.name);
    std::ostringstream out;
    c_xml_writer writer(out);
    EXPECT_EQ(0, row.marshal(writer, row.nothing_chosen));
    EXPECT_EQ("", out.str());
  }
}

TEST(EveryChoice, WritesNothingForAnAlternativeThatWasNeverSelected) {
  for (ChoiceRow const& row : choice_rows) {
    SCOPED_TRACE(row.name);
    for (std::int32_t chosen = 0; chosen != row.nothing_chosen; ++chosen) {
      std::ostringstream out;
      c_xml_writer writer(out);
      EXPECT_EQ(0, row.marshal(writer, chosen));
      EXPECT_EQ("", out.str());
    }
  }
}

TEST(EveryChoice, ReportsANumberThatIsNoAlternative) {
  for (ChoiceRow const& row : choice_rows) {
    SCOPED_TRACE(row.name);
    for (const std::int32_t chosen : {INT32_MIN, -1, row.nothing_chosen + 1, INT32_MAX}) {
      std::ostringstream out;
      c_xml_writer writer(out);
      EXPECT_EQ(lmx::ELMX_BAD_CHOICE, row.marshal(writer, chosen));
      EXPECT_EQ("", out.str());
      EXPECT_EQ(lmx::ELMX_BAD_CHOICE, writer.debug_error().m_code);
      EXPECT_EQ("{anonymous compositor}", writer.debug_error().m_item);
      ToleratingWriter tolerating(out);
      EXPECT_EQ(0, row.marshal(tolerating, chosen));
      EXPECT_EQ((std::vector<std::string>{"BAD_CHOICE {anonymous compositor}"}), tolerating.reports);
    }
  }
}

TEST(Choice, OfAnotherAlternativeThanIsHeldWritesNothing) {
  Task task;
  task.AppendInnerTask().AppendTreatmentZone();
  task.GetInnerTask(0).chosen = InnerTask::P917CommentChosen;
  EXPECT_EQ("<TSK A=\"\"\n\t\tG=\"\"/>\n", written(task, "TSK"));
}

// A document whose last but one comment stands in a choice that makes no sense.
TaskData with_bad_choice() {
  TaskData data;
  Task& task = data.AppendInnerTaskData().AppendTask();
  task.SetId("TSK1");
  task.AppendInnerTask().AppendTreatmentZone().SetCode(3);
  task.AppendInnerTask().chosen = 1000;
  task.AppendInnerTask().GetP917Comment();
  return data;
}

TEST(Choice, ThatMakesNoSenseCutsTheDocumentOffThere) {
  std::ostringstream out;
  c_xml_writer writer(out, "", "", "", "");
  EXPECT_EQ(lmx::ELMX_BAD_CHOICE, with_bad_choice().marshal(writer, "T"));
  EXPECT_EQ(
      "<T VersionMajor=\"\" VersionMinor=\"\" ManagementSoftwareManufacturer=\"\" "
      "ManagementSoftwareVersion=\"\" DataTransferOrigin=\"\"><TSK A=\"TSK1\" G=\"\"><TZN A=\"3\"/>",
      out.str());
  EXPECT_EQ(2, writer.depth()) << "both start tags still wait";
  EXPECT_NE(std::string::npos, writer.get_error_message().find("Inappropriate choice option selected"));
}

TEST(Choice, ThatIsToleratedIsLeftOut) {
  std::ostringstream out;
  ToleratingWriter writer(out, "", "", "", "");
  EXPECT_EQ(0, with_bad_choice().marshal(writer, "T"));
  EXPECT_EQ(1u, writer.reports.size());
  const std::string end = "<TSK A=\"TSK1\" G=\"\"><TZN A=\"3\"/><P917_comment/></TSK></T>";
  EXPECT_EQ(end, out.str().substr(out.str().size() - end.size()));
  EXPECT_EQ(0, writer.depth());
}

// ---- Depth ----

TEST(Depth, AThousandLevelsAreWrittenByteForByte) {
  constexpr int levels = 1000;
  std::string document;
  for (int depth = 0; depth != levels; ++depth) {
    const std::string tabs(static_cast<std::size_t>(depth), '\t');
    const std::string end = depth + 1 == levels ? "/>\n" : ">\n";
    document.append(tabs).append("<PDV A=\"0001\"\n").append(tabs).append("\t\tB=\"1\"").append(end);
  }
  for (int depth = levels - 1; depth-- != 0;) {
    document.append(static_cast<std::size_t>(depth), '\t').append("</PDV>\n");
  }
  Root root;
  ASSERT_EQ(0, read_document(root, document).code);
  EXPECT_EQ(document, written(root));
}

// ---- Streams ----

/// Takes so many bytes and no more; keeps count and nothing else.
class NarrowBuffer : public std::streambuf {
 public:
  NarrowBuffer(std::string const& expected, std::size_t room) : m_expected(expected), m_room(room) {}
  std::size_t taken() const { return m_taken; }
  bool is_as_expected() const { return m_is_as_expected; }

 protected:
  int_type overflow(int_type c) override {
    const char byte = traits_type::to_char_type(c);
    return xsputn(&byte, 1) == 1 ? c : traits_type::eof();
  }
  std::streamsize xsputn(char const* bytes, std::streamsize count) override {
    const std::size_t fit = std::min(static_cast<std::size_t>(count), m_room - m_taken);
    m_is_as_expected = m_is_as_expected && m_expected.compare(m_taken, fit, bytes, fit) == 0;
    m_taken += fit;
    return static_cast<std::streamsize>(fit);
  }

 private:
  std::string const& m_expected;
  std::size_t m_room;
  std::size_t m_taken = 0;
  bool m_is_as_expected = true;
};

// A document of some 20 KB with values of every kind.
Root large_document() {
  std::string content;
  while (content.size() < 22000) {
    for (ElementRow const& row : element_rows) {
      for (char const* tag : {"TSK", "PFD", "CTR", "TIM"}) {
        if (std::string(tag) == row.tag) content += row.filled;
      }
    }
  }
  Root root;
  EXPECT_EQ(0, read_document(root, "<XFC>" + content + "</XFC>").code);
  return root;
}

class FailingStream : public testing::Test {
 protected:
  Root const root = large_document();
  std::string const document = written(root);
};

TEST_F(FailingStream, TellsByItsStateForEachByteThatItMayFailAt) {
  ASSERT_LT(20000u, document.size());
  for (std::size_t room = 0; room <= document.size(); ++room) {
    NarrowBuffer buffer(document, room);
    std::ostream out(&buffer);
    c_xml_writer writer(out);
    const int code = root.marshal(writer, nullptr);
    const bool is_as_told = code == 0 && writer.depth() == 0 && buffer.taken() == room &&
                            buffer.is_as_expected() && out.bad() == (room != document.size());
    ASSERT_TRUE(is_as_told) << "after " << room << " bytes";
  }
}

TEST_F(FailingStream, ThatThrowsLeavesTheWriterAsAStreamOfTheHost) {
  for (std::size_t room = 0; room < document.size(); ++room) {
    NarrowBuffer buffer(document, room);
    std::ostream out(&buffer);
    out.exceptions(std::ios_base::badbit | std::ios_base::failbit);
    c_xml_writer writer(out);
    bool has_thrown = false;
    try {
      root.marshal(writer, nullptr);
    } catch (std::ios_base::failure const&) {
      has_thrown = true;
    }
    ASSERT_TRUE(has_thrown && out.bad() && buffer.taken() == room && buffer.is_as_expected())
        << "after " << room << " bytes";
  }
}

}  // namespace
