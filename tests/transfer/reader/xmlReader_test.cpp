// The reader that collects finished elements: which ones, when, in which order, and how long they live.
#include "transfer/reader/xmlReader.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstddef>
#include <filesystem>
#include <iterator>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include "isoxmllib/isoxmllib.h"
#include "support/recording_reader.h"

namespace {

static_assert(std::is_base_of_v<lmx::c_xml_reader, lmx::xmlReader>);
static_assert(!std::is_copy_constructible_v<lmx::xmlReader>);

const std::string header =
    "<ISO11783_TaskData VersionMajor='4' VersionMinor='3' ManagementSoftwareManufacturer='m' "
    "ManagementSoftwareVersion='1' DataTransferOrigin='1'>";

std::string document(std::string const& children) { return header + children + "</ISO11783_TaskData>"; }
std::string attached(std::string const& name, char const* preserve = "1") {
  return "<AFE A='" + name + "' B='" + preserve + "' C='' D='1'/>";
}
std::string reference(std::string const& name) { return "<XFR A='" + name + "' B='1'/>"; }
std::string metadata(char const* version) {
  return std::string("<P917_Metadata Version='") + version + "'/>";
}

std::vector<std::string> names(std::vector<AttachedFile*> const& files) {
  std::vector<std::string> found;
  for (AttachedFile const* const file : files) found.push_back(file->GetFileNameWithExtension());
  return found;
}

std::size_t open_files() {
  const std::filesystem::directory_iterator entries("/proc/self/fd");
  return static_cast<std::size_t>(std::distance(begin(entries), end(entries)));
}

std::vector<std::size_t> sizes(lmx::xmlReader const& reader) {
  return {reader.getGrowerContainer().size(),
          reader.getFarmContainer().size(),
          reader.getFieldContainer().size(),
          reader.getExternalFileReferenceContainer().size(),
          reader.getAttachedFileContainer().size(),
          reader.getTaskContainer().size(),
          reader.getProductContainer().size(),
          reader.getValuePreContainer().size(),
          reader.getQuestions().size(),
          reader.getCropTypeContainer().size(),
          reader.getProductGroupContainer().size()};
}

TEST(Collection, IsEmptyWithoutSuchElements) {
  Reading<> reading(document("<TCC A='A00086000C8000FF' B='' C='3' D='0' E='0' F='0' G='0'/>"));
  ASSERT_EQ(0, reading.error);
  EXPECT_EQ(std::vector<std::size_t>(11), sizes(reading.reader));
  EXPECT_EQ(nullptr, reading.reader.getP917Metadata());
}

TEST(Collection, OfEachKindIsOneOfItsOwn) {
  TempDir directory;
  lmx::xmlReader reader(directory.path("NONE.XML").c_str());
  void (*const adds[])(lmx::xmlReader&) = {
      [](lmx::xmlReader& r) { r.addNewGrower(nullptr); },
      [](lmx::xmlReader& r) { r.addNewFarm(nullptr); },
      [](lmx::xmlReader& r) { r.addNewField(nullptr); },
      [](lmx::xmlReader& r) { r.addNewExternalFileReference(nullptr); },
      [](lmx::xmlReader& r) { r.addNewAttachedFile(nullptr); },
      [](lmx::xmlReader& r) { r.addNewTask(nullptr); },
      [](lmx::xmlReader& r) { r.addNewProduct(nullptr); },
      [](lmx::xmlReader& r) { r.addNewValuePre(nullptr); },
      [](lmx::xmlReader& r) { r.addNewQuestion(nullptr); },
      [](lmx::xmlReader& r) { r.addNewCropType(nullptr); },
      [](lmx::xmlReader& r) { r.addNewProductGroup(nullptr); },
  };
  std::vector<std::size_t> expected(std::size(adds));
  for (std::size_t i = 0; i != std::size(adds); ++i) {
    adds[i](reader);
    ++expected[i];
    EXPECT_EQ(expected, sizes(reader));
  }
}

TEST(Collection, KeepsDocumentOrderAcrossRuns) {
  Reading<TaskData> reading(document(attached("AAAAAAAA.XML") + attached("BBBBBBBB.XML") +
                                     reference("CTR00001") + attached("CCCCCCCC.XML") +
                                     reference("TSK00002")));
  ASSERT_EQ(0, reading.error);
  EXPECT_EQ((std::vector<std::string>{"AAAAAAAA.XML", "BBBBBBBB.XML", "CCCCCCCC.XML"}),
            names(reading.reader.getAttachedFileContainer()));
  const std::vector<ExternalFileReference*> references = reading.reader.getExternalFileReferenceContainer();
  ASSERT_EQ(2u, references.size());
  EXPECT_EQ("CTR00001", references[0]->GetFileName());
  EXPECT_EQ(&reading.top.GetInnerTaskData(3).GetExternalFileReference(0), references[1]);
}

TEST(Collection, PointsIntoTheTreeHoweverLongTheRun) {
  std::string children;
  for (int i = 0; i != 3000; ++i) children += attached("AAAAAAAA.XML") + "\n";
  Reading<TaskData> reading(document(children));
  ASSERT_EQ(0, reading.error);
  const std::vector<AttachedFile*> files = reading.reader.getAttachedFileContainer();
  ASSERT_EQ(3000u, files.size());
  for (std::size_t i = 0; i != files.size(); ++i) {
    ASSERT_EQ(&reading.top.GetInnerTaskData(0).GetAttachedFile(i), files[i]);
  }
}

TEST(Collection, IsHandedOutAsACopy) {
  Reading<> reading(document(attached("AAAAAAAA.XML")));
  std::vector<AttachedFile*> files = reading.reader.getAttachedFileContainer();
  files.clear();
  EXPECT_EQ(1u, reading.reader.getAttachedFileContainer().size());
}

TEST(Collection, TakesAnElementWhateverItStandsIn) {
  Reading<> fragment(attached("AAAAAAAA.XML"));
  ASSERT_EQ(0, fragment.error);
  EXPECT_EQ(std::vector<AttachedFile*>{&fragment.top.GetAttachedFile()},
            fragment.reader.getAttachedFileContainer());

  Reading<AttachedFile> top(attached("AAAAAAAA.XML"));
  EXPECT_EQ(std::vector<AttachedFile*>{&top.top}, top.reader.getAttachedFileContainer());

  Reading<ExternalFileReference> misnamed("<Foo A='CTR00001' B='1'/>",
                                          tolerate({lmx::ELMX_ELEMENT_NOT_FOUND}));
  EXPECT_EQ(std::vector<ExternalFileReference*>{&misnamed.top},
            misnamed.reader.getExternalFileReferenceContainer());
}

TEST(Collection, LacksWhatWasSkipped) {
  Reading<> reading(document("<Foo>" + attached("AAAAAAAA.XML") + metadata("1") + "</Foo>"));
  EXPECT_EQ(0, reading.error);
  EXPECT_EQ(std::vector<std::size_t>(11), sizes(reading.reader));
  EXPECT_EQ(nullptr, reading.reader.getP917Metadata());
}

TEST(Collection, LacksAFailedElementAndHasItsSiblings) {
  const std::string bytes =
      document(attached("AAAAAAAA.XML") + attached("BBBBBBBB.XML", "9") + attached("CCCCCCCC.XML"));
  Reading<> reading(bytes);
  EXPECT_EQ(lmx::ELMX_VALUE_NOT_ENUMERATED, reading.error);
  EXPECT_EQ(std::vector<std::string>{"AAAAAAAA.XML"}, names(reading.reader.getAttachedFileContainer()));

  Reading<> at_its_end(document(attached("AAAAAAAA.XML") + "<AFE A='BBBBBBBB.XML' B='1' C='' D='1'>x</AFE>"));
  EXPECT_EQ(lmx::ELMX_BAD_END_OF_ELEMENT, at_its_end.error);
  EXPECT_EQ(std::vector<std::string>{"AAAAAAAA.XML"}, names(at_its_end.reader.getAttachedFileContainer()));

  Reading<> tolerated(bytes, tolerate({lmx::ELMX_VALUE_NOT_ENUMERATED}));
  EXPECT_EQ(0, tolerated.error);
  EXPECT_EQ((std::vector<std::string>{"AAAAAAAA.XML", "BBBBBBBB.XML", "CCCCCCCC.XML"}),
            names(tolerated.reader.getAttachedFileContainer()));
}

TEST(Collection, TakesAnElementWithChildrenOnceItHasEnded) {
  const std::string good = "<TSK A='TSK1' G='1'><TZN A='1'/></TSK>";
  const std::string bad = "<TSK A='TSK2' G='1'><TZN A='1'/><TZN A='255'/></TSK>";
  Reading<> reading(document(good + bad));
  EXPECT_EQ(lmx::ELMX_VALUE_EXCEEDS_MAX, reading.error);
  ASSERT_EQ(1u, reading.reader.getTaskContainer().size());
  EXPECT_EQ("TSK1", reading.reader.getTaskContainer()[0]->GetId());

  Reading<> cut(header + good + "<TSK A='TSK2' G='1'><TZN A='1'/>");
  EXPECT_EQ(lmx::ELMX_UNEXPECTED_EOM, cut.error);
  EXPECT_EQ(1u, cut.reader.getTaskContainer().size());

  Reading<> tolerated(document(bad + good), tolerate({lmx::ELMX_VALUE_EXCEEDS_MAX}));
  EXPECT_EQ(0, tolerated.error);
  ASSERT_EQ(2u, tolerated.reader.getTaskContainer().size());
  EXPECT_EQ("TSK2", tolerated.reader.getTaskContainer()[0]->GetId());
}

// One of each class that is collected, and metadata.
const std::string one_of_each =
    "<CTR A='CTR1' B='x'/><FRM A='FRM1' B='x'/><PFD A='PFD1' C='x' D='1'/>" + reference("CTR00001") +
    attached("AAAAAAAA.XML") + "<TSK A='TSK1' G='1'/><PDT A='PDT1' B='x'/><VPN A='VPN1' B='0' C='1' D='0'/>" +
    "<CTP A='CTP1' B='x'/><PGP A='PGP1' B='x'/>";

// A reader that is used again must not hold what the first document's end has freed.
TEST(Collection, BeginsAnewWithEachDocumentOfAReader) {
  TempDir directory;
  const std::string path = directory.write("DOCUMENT.XML", document(one_of_each + metadata("1")));
  lmx::xmlReader reader(path.c_str());
  const auto expect_one_of_each = [&] {
    std::vector<std::size_t> expected(11, 1);
    expected[8] = 0;  // no question
    EXPECT_EQ(expected, sizes(reader));
  };
  {
    Root first;
    ASSERT_EQ(0, first.unmarshal(reader)) << reader.get_error_message();
    expect_one_of_each();
  }
  P917Question question;
  reader.addNewQuestion(&question);
  reader.rewind();
  {
    TaskData second;  // an element class, other than `Root`
    ASSERT_EQ(0, second.unmarshal(reader)) << reader.get_error_message();
    expect_one_of_each();
    EXPECT_EQ(&second.GetInnerTaskData(0).GetGrower(0), reader.getGrowerContainer().at(0));
    EXPECT_NE(nullptr, reader.getP917Metadata());
  }
  Root none;
  EXPECT_EQ(lmx::ELMX_UNEXPECTED_EOM, none.unmarshal(reader)) << "nothing more in the file";
  EXPECT_EQ(std::vector<std::size_t>(11), sizes(reader));
  EXPECT_EQ("1", reader.getP917Metadata()->GetVersion()) << "which nothing frees";
}

TEST(Collection, FindsTheLastTaskOfAnIdentifier) {
  Reading<> reading(document("<TSK A='TSK1' G='1'/><TSK A='TSK2' G='1'/><TSK A='TSK1' G='2'/>"));
  const std::vector<Task*> tasks = reading.reader.getTaskContainer();
  ASSERT_EQ(3u, tasks.size());
  EXPECT_EQ(tasks[2], reading.reader.findLastTask("TSK1"));
  EXPECT_EQ(tasks[1], reading.reader.findLastTask("TSK2"));
  EXPECT_EQ(nullptr, reading.reader.findLastTask("TSK"));
  EXPECT_EQ(nullptr, reading.reader.findLastTask(""));
}

TEST(Metadata, IsTheLastThatWasCompleted) {
  Reading<> two(document(metadata("1") + attached("AAAAAAAA.XML") + metadata("2")));
  ASSERT_EQ(0, two.error);
  EXPECT_EQ("2", two.reader.getP917Metadata()->GetVersion());
  Reading<> failed(document(metadata("1") + "<P917_Metadata/>"));
  EXPECT_EQ(lmx::ELMX_REQUIRED_ATTRIBUTES_MISSING, failed.error);
  EXPECT_EQ("1", failed.reader.getP917Metadata()->GetVersion());
}

TEST(Metadata, IsAClone) {
  Reading<P917Metadata> reading("<P917_Metadata Version='1' CloudJob='true'/>");
  ASSERT_EQ(0, reading.error);
  P917Metadata* const kept = reading.reader.getP917Metadata();
  ASSERT_NE(nullptr, kept);
  EXPECT_NE(&reading.top, kept);
  reading.top.SetVersion("changed");
  EXPECT_EQ("1", kept->GetVersion());
  EXPECT_TRUE(kept->GetCloudJob());
}

TEST(Metadata, OutlivesReaderAndTree) {
  std::vector<P917Metadata*> kept;
  for (char const* const version : {"1", "2", "3"}) {
    Reading<> reading(document(metadata(version)));
    kept.push_back(reading.reader.getP917Metadata());
    P917Metadata other;
    other.SetVersion("other");
    reading.reader.setP917Metadata(&other);  // the first one stays valid though another took its place
    EXPECT_EQ("other", reading.reader.getP917Metadata()->GetVersion());
  }
  EXPECT_EQ("1", kept[0]->GetVersion());
  EXPECT_EQ("2", kept[1]->GetVersion());
  EXPECT_EQ("3", kept[2]->GetVersion());
}

TEST(File, IsOpenFromConstructionToDestruction) {
  TempDir directory;
  const std::string path = directory.write("DOCUMENT.XML", document(""));
  const std::size_t before = open_files();
  {
    Root root;
    lmx::xmlReader reader(path.c_str());
    EXPECT_TRUE(reader.isOpen());
    EXPECT_EQ(before + 1, open_files());
    EXPECT_EQ(0, root.unmarshal(reader));
    EXPECT_TRUE(reader.isOpen());
    EXPECT_EQ(before + 1, open_files());
  }
  EXPECT_EQ(before, open_files());
}

TEST(File, ThatCannotBeOpenedIsNotOpen) {
  TempDir directory;
  const std::size_t before = open_files();
  {
    lmx::xmlReader reader(directory.path("NONE.XML").c_str());
    EXPECT_FALSE(reader.isOpen());
    EXPECT_EQ(before, open_files());
    EXPECT_EQ(std::vector<std::size_t>(11), sizes(reader));
    Root root;
    EXPECT_EQ(lmx::ELMX_UNEXPECTED_EOM,
              root.unmarshal(reader));  // reads like an empty file, for callers that do not ask
  }
  EXPECT_EQ(before, open_files());
}

TEST(File, ThatIsAFifoOrADeviceIsNotOpened) {
  TempDir directory;
  const std::string fifo = directory.path("FIFO.XML");
  ASSERT_EQ(0, mkfifo(fifo.c_str(), 0600));
  const std::size_t before = open_files();
  for (std::string const& path : {fifo, std::string("/dev/null"), std::string("/dev/zero")}) {
    lmx::xmlReader reader(path.c_str());
    EXPECT_FALSE(reader.isOpen()) << path;
    EXPECT_EQ(before, open_files()) << path;
  }
}

TEST(File, ThatIsADirectoryReadsAsEmpty) {
  TempDir directory;
  lmx::xmlReader reader(directory.path().c_str());
  EXPECT_TRUE(reader.isOpen());
  Root root;
  EXPECT_EQ(lmx::ELMX_UNEXPECTED_EOM, root.unmarshal(reader));
  EXPECT_EQ(1, reader.line());
}

}  // namespace
