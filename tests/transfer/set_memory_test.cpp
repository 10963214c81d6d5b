// Memory that runs out while a transfer set is opened or looked at: wherever that happens, `std::bad_alloc`
// comes out, nothing is lost, and no file stays open.
#include <gtest/gtest.h>

#include <cstddef>
#include <filesystem>
#include <string>

#include "isoxmllib/isoxmllib.h"
#include "support/failing_memory.h"
#include "support/file_bytes.h"
#include "support/temp_dir.h"
#include "transfer/IsoDDIConstants.h"
#include "transfer/IsoXmlParser.h"

namespace {

using memory::expect_survives;

// One of the example sets, without the metadata: a clone of those is kept for good, which looks like a loss.
class ExampleSet {
 public:
  explicit ExampleSet(std::string const& name) {
    for (auto const& entry : std::filesystem::directory_iterator(ISOXML_EXAMPLE_SETS "/" + name)) {
      std::string bytes = file_bytes(entry.path());
      const std::size_t metadata = bytes.find("<P917_Metadata");
      if (metadata != std::string::npos) bytes.erase(metadata, bytes.find("/>", metadata) + 2 - metadata);
      m_directory.write(entry.path().filename().string(), bytes);
    }
  }
  std::string path() const { return m_directory.path(); }

 private:
  TempDir m_directory;
};

TEST(FailingMemory, EndsTheOpeningOfASetInOrder) {
  struct Row {
    char const* name;
    char const* main_document;
    std::size_t documents, errors;
  };
  for (Row const& row : {Row{"complete", "TASKDATA", 4, 0}, Row{"broken-external", "TASKDATA", 3, 1},
                         Row{"complete", "MISSING", 1, 1}}) {
    SCOPED_TRACE(row.name);
    const ExampleSet set(row.name);
    expect_survives([&] { const IsoXmlParser parser(set.path(), row.main_document); });
    const IsoXmlParser parser(set.path(), row.main_document);
    EXPECT_EQ(row.documents, parser.getDocuments().size());
    EXPECT_EQ(row.errors, parser.getErrors().size());
  }
}

TEST(FailingMemory, EndsEveryViewInOrder) {
  const ExampleSet set("complete");
  IsoXmlParser parser(set.path(), "TASKDATA");
  void (*const views[])(IsoXmlParser & parser) = {
      [](IsoXmlParser& p) { p.getDocuments(); },
      [](IsoXmlParser& p) { p.isSchemaVersion4(); },
      [](IsoXmlParser& p) { p.getIsoUuid("TSK1 and so long that no buffer holds it"); },
      [](IsoXmlParser& p) { p.getFarms(); },
      [](IsoXmlParser& p) { p.getGrowers(); },
      [](IsoXmlParser& p) { p.getAttachedFiles(); },
      [](IsoXmlParser& p) { p.getTasks(); },
      [](IsoXmlParser& p) { p.getProducts(); },
      [](IsoXmlParser& p) { p.getProductGroups(); },
      [](IsoXmlParser& p) { p.getValuePresentations(); },
      [](IsoXmlParser& p) { p.getQuestions(); },
      [](IsoXmlParser& p) { p.getCropTypes(); },
      [](IsoXmlParser& p) { p.getFields(); },
      [](IsoXmlParser& p) { p.getLmxFields(); },
      [](IsoXmlParser& p) { p.fillIsoField(p.getLmxFields().front()); },
      [](IsoXmlParser& p) {
        for (lmx::TaskInfo const& info : p.getTaskInfoList()) {
          lmx::ISORxMap map;
          p.getISORxMap(info, map);
        }
      },
      [](IsoXmlParser& p) { p.getISORxMaps(); },
  };
  std::size_t index = 0;
  for (auto const view : views) {
    SCOPED_TRACE("view " + std::to_string(index++));
    expect_survives([&] { view(parser); });
  }
}

// A failed opening leaves a parser that can be used as before.
TEST(FailingMemory, LeavesAParserThatAnswers) {
  const ExampleSet set("complete");
  IsoXmlParser parser(set.path(), "TASKDATA");
  const std::size_t fields = parser.getFields().size();
  ASSERT_NE(0u, fields);
  expect_survives([] {}, [&] { parser.getFields(); }, [&] { EXPECT_EQ(fields, parser.getFields().size()); });
  expect_survives([] {},
                  [&] {
                    lmx::elmx_error error;
                    parser.openFile("CTR00001", &error);
                  },
                  [&] { EXPECT_TRUE(parser.getErrors().empty()); });
}

TEST(FailingMemory, EndsTheTextsOfNumbersInOrder) {
  expect_survives([] { IsoDDIConstants::toPaddedHexString(74565, 40); });
}

}  // namespace
