// Parsers in several threads at once. Nothing is shared but what is constant, and the guarded list that keeps
// the clones of metadata; the sanitized build proves it.

#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <vector>

#include "isoxmllib/isoxmllib.h"
#include "support/temp_dir.h"
#include "transfer/IsoXmlParser.h"

namespace {

// Every kind of rule is at work: patterns, ranges, lengths, enumerations, dates, decimals, doubles, binaries.
std::string content() {
  std::string text =
      "<ISO11783_TaskData VersionMajor=\"4\" VersionMinor=\"3\" ManagementSoftwareManufacturer=\"a\" "
      "ManagementSoftwareVersion=\"1\" DataTransferOrigin=\"1\">\n"
      "<P917_Metadata Version=\"1\"/><AFE A=\"LINKLIST.XML\" B=\"1\" C=\"\" D=\"1\"/><XFR A=\"TSK00001\" "
      "B=\"1\"/>\n";
  for (int i = 1; i != 200; ++i) {
    text += "<TSK A=\"TSK" + std::to_string(i) +
            "\" G=\"1\"><TIM A=\"2024-01-01T00:00:00\" D=\"1\"><PTN A=\"1.5\" B=\"2.5\" D=\"1\"/></TIM>"
            "<TZN A=\"1\"><PDV A=\"0001\" B=\"-5\"/></TZN>"
            "<GRD A=\"1\" B=\"1\" C=\"0.5\" D=\"0.5\" E=\"1\" F=\"1\" G=\"GRD00001\" I=\"1\"/></TSK>\n";
  }
  return text + "</ISO11783_TaskData>\n";
}

TEST(Threads, ReadTheSameSetAtOnce) {
  TempDir directory;
  directory.write("TASKDATA.XML", content());
  directory.write("TSK00001.XML", "<XFC><TSK A=\"TSK999\" G=\"9\"/></XFC>");
  directory.write(
      "LINKLIST.XML",
      "<ISO11783LinkList VersionMajor=\"4\" VersionMinor=\"3\" ManagementSoftwareManufacturer=\"a\" "
      "ManagementSoftwareVersion=\"1\" DataTransferOrigin=\"1\"><LGP A=\"LGP1\" B=\"1\">"
      "<LNK A=\"TSK1\" B=\"u\"/></LGP></ISO11783LinkList>");
  constexpr std::size_t count = 8;
  std::vector<std::string> outcomes(count);
  std::vector<P917Metadata*> metadata(count);
  std::vector<std::thread> threads;
  for (std::size_t i = 0; i != count; ++i) {
    threads.emplace_back([&, i] {
      IsoXmlParser parser(directory.path(), "TASKDATA.XML");
      for (IsoXmlError const& error : parser.getErrors())
        outcomes[i] += error.fileName + std::to_string(error.error);
      outcomes[i] += parser.getIsoUuid("TSK1");
      metadata[i] = parser.getP917Metadata();
    });
  }
  for (std::thread& thread : threads) thread.join();
  for (std::size_t i = 0; i != count; ++i) {
    EXPECT_EQ("TSK0000138u", outcomes[i]);
    EXPECT_EQ("1", metadata[i]->GetVersion()) << "a clone outlives its parser";
  }
}

}  // namespace
