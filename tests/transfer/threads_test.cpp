// Parsers in several threads at once. Nothing is shared but what is constant, and the guarded list that keeps
// the clones of metadata; the sanitized build proves it.

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "isoxmllib/isoxmllib.h"
#include "support/temp_dir.h"
#include "support/views_text.h"
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

// What one parser shows and writes, eight of them do at once.
TEST(Threads, ShowAndWriteTheSameSetAtOnce) {
  const auto shown = [](std::string const& name) {
    IsoXmlParser parser(ISOXML_EXAMPLE_SETS "/" + name, "TASKDATA");
    return ViewsText(parser).text();
  };
  constexpr std::size_t count = 8;
  for (std::string const name : {"complete", "broken-external"}) {
    SCOPED_TRACE(name);
    std::vector<std::string> texts(count);
    std::vector<std::thread> threads;
    for (std::size_t i = 0; i != count; ++i) {
      threads.emplace_back([&, i] { texts[i] = shown(name); });
    }
    for (std::thread& thread : threads) thread.join();
    const std::string expected = shown(name);
    EXPECT_NE("", expected);
    for (std::string const& text : texts) EXPECT_EQ(expected, text);
  }
}

// A parser may be made in one thread and used and destroyed in another.
TEST(Threads, HandAParserOn) {
  auto parser = std::make_unique<IsoXmlParser>(ISOXML_EXAMPLE_SETS "/complete", "TASKDATA");
  const std::string expected = ViewsText(*parser).text();
  std::string text;
  std::thread([&, owned = std::move(parser)] { text = ViewsText(*owned).text(); }).join();
  EXPECT_EQ(expected, text);
}

}  // namespace
