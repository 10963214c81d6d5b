// Documents that nest deeper than any stack: refused with their code, never a crash, on stacks of any size.
// What was read of them can be copied, checked, written and destroyed on the same stack.

#include <gtest/gtest.h>

#include <cstddef>
#include <sstream>
#include <string>

#include "GenLibrarySupportFiles/lmxparse.h"
#include "isoxmllib/isoxmllib.h"
#include "support/document.h"
#include "support/memory_read.h"
#include "support/on_stack_of.h"

namespace {

std::string nested(std::string const& start, std::string const& end, int depth) {
  std::string document;
  document.reserve((start.size() + end.size()) * static_cast<std::size_t>(depth));
  for (int i = 0; i != depth; ++i) document += start;
  for (int i = 0; i != depth; ++i) document += end;
  return document;
}

std::string nested_variables(int depth) { return nested("<PDV A=\"0001\" B=\"1\">", "</PDV>", depth); }

constexpr std::size_t kib = 1024;
constexpr std::size_t usual_stack = 8192 * kib;

TEST(Nesting, AThousandLevelsAreRead) {
  on_stack_of(usual_stack, [] {
    Root root;
    EXPECT_EQ(0, read_document(root, nested_variables(1000)).code);
    const Root copy(root);
    EXPECT_TRUE(copy.Check());
  });
}

TEST(Nesting, AMillionLevelsAreRefusedWithoutACrash) {
  const std::string document = nested_variables(1000000);
  for (const std::size_t size : {128 * kib, 256 * kib, 1024 * kib, usual_stack}) {
    SCOPED_TRACE(size);
    on_stack_of(size, [&] {
      Root root;
      const Reading reading = read_document(root, document);
      EXPECT_EQ(lmx::ELMX_BADLY_FORMED, reading.code);
      EXPECT_EQ("PDV", reading.item);
      const Root copy(root);
      EXPECT_FALSE(copy.Check()) << "the refused element has no attributes";
      std::ostringstream out;
      lmx::c_xml_writer writer(out, "", "", "", "");
      EXPECT_EQ(0, copy.marshal(writer, nullptr));
      const std::string start = out.str().substr(0, out.str().find("/>"));
      EXPECT_EQ(document.substr(0, start.rfind("<PDV")), start.substr(0, start.rfind("<PDV")));
      EXPECT_EQ("<PDV A=\"\" B=\"0\"", start.substr(start.rfind("<PDV"))) << "the refused element";
    });
  }
}

TEST(Nesting, ATolerantReaderSkipsWhatIsTooDeep) {
  on_stack_of(usual_stack, [] {
    Root root;
    const std::vector<Report> reports = tolerated(root, nested_variables(1000000));
    EXPECT_EQ((std::vector<Report>{{lmx::ELMX_BADLY_FORMED, "PDV"}}), reports);
  });
}

TEST(Nesting, WhatIsTooDeepIsSkippedAloneAndReadingGoesOnBehindIt) {
  on_stack_of(usual_stack, [] {
    Root root;
    const std::vector<Report> reports =
        tolerated(root, "<TSK A=\"TSK1\" G=\"1\"><TZN A=\"1\">" + nested_variables(200000) +
                            "<PDV A=\"0002\" B=\"7\"/></TZN><TZN A=\"2\"/></TSK>");
    EXPECT_EQ((std::vector<Report>{{lmx::ELMX_BADLY_FORMED, "PDV"}}), reports);
    InnerTask const& zones = root.GetTask().GetInnerTask(0);
    ASSERT_EQ(2u, zones.SizeTreatmentZone());
    InnerTreatmentZone const& variables = zones.GetTreatmentZone(0).GetInnerTreatmentZone(0);
    ASSERT_EQ(2u, variables.SizeProcessDataVariable());
    EXPECT_EQ(7, variables.GetProcessDataVariable(1).GetValue());
  });
}

// Reads when `used` bytes of the stack are taken already.
__attribute__((noinline)) int read_below(std::size_t used, lmx::xmlReader& reader) {
  auto* const taken = static_cast<char volatile*>(__builtin_alloca(used + 1));
  taken[0] = 0;
  Root root;
  return root.unmarshal(reader) + taken[0];
}

TEST(Nesting, IsRefusedHoweverLittleIsLeftOfTheStack) {
  const std::string document = nested_variables(100000);
  for (const std::size_t used : {0 * kib, 256 * kib, 768 * kib, 832 * kib}) {
    SCOPED_TRACE(used);
    int code = 0;
    on_stack_of(1024 * kib, [&] {
      MemoryRead read(document);
      lmx::xmlReader reader(read);
      code = read_below(used, reader);
    });
    EXPECT_EQ(lmx::ELMX_BADLY_FORMED, code);
  }
}

TEST(Nesting, SkippedElementsNeedNoStack) {
  const std::string document =
      "<TSK A=\"TSK1\" G=\"1\">" + nested("<Foo>", "</Foo>", 1000000) + "<TZN A=\"1\"/></TSK>";
  on_stack_of(256 * kib, [&] {
    Root root;
    EXPECT_EQ(0, read_document(root, document).code);
    EXPECT_EQ(1u, root.GetTask().GetInnerTask(0).SizeTreatmentZone());
  });
}

}  // namespace
