// Documents that nest deeper than any stack: refused with their code, never a crash, on stacks of any size.
// What was read of them can be copied, checked, written and destroyed on the same stack.

#include <gtest/gtest.h>
#include <pthread.h>

#include <cstddef>
#include <sstream>
#include <string>

#include "GenLibrarySupportFiles/lmxparse.h"
#include "isoxmllib/isoxmllib.h"
#include "support/document.h"

namespace {

std::string nested(std::string const& start, std::string const& end, int depth) {
  std::string document;
  document.reserve((start.size() + end.size()) * static_cast<std::size_t>(depth));
  for (int i = 0; i != depth; ++i) document += start;
  for (int i = 0; i != depth; ++i) document += end;
  return document;
}

std::string nested_variables(int depth) { return nested("<PDV A=\"0001\" B=\"1\">", "</PDV>", depth); }

// Runs `body` on a thread whose stack has `size` bytes.
template <class Body>
void on_stack_of(std::size_t size, Body body) {
  pthread_attr_t attributes;
  ASSERT_EQ(0, pthread_attr_init(&attributes));
  ASSERT_EQ(0, pthread_attr_setstacksize(&attributes, size));
  pthread_t thread;
  const auto run = [](void* p) -> void* {
    (*static_cast<Body*>(p))();
    return nullptr;
  };
  ASSERT_EQ(0, pthread_create(&thread, &attributes, run, &body));
  pthread_join(thread, nullptr);
  pthread_attr_destroy(&attributes);
}

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
      EXPECT_EQ(5, reading.code);
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
    EXPECT_EQ((std::vector<Report>{{5, "PDV"}}), reports);
  });
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
