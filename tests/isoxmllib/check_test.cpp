// What a host asks before it writes: is everything required there, and if not, where is the gap. A gap is
// recorded as a path, process-wide and in the exception of the root tracker; nothing is thrown.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "GenLibrarySupportFiles/lmxinternals.h"
#include "isoxmllib/isoxmllib.h"
#include "support/recording_reader.h"

namespace {

// The path at which the check of `object`, called `name`, fails; "" when it passes.
template <class X>
std::string gap(X const& object, char const* name) {
  lmx::c_check_exception found;
  lmx::c_check_tracker root(nullptr, nullptr, &found);
  lmx::global_check_exception = lmx::c_check_exception();
  const bool passed = object.Check(&root, name);
  EXPECT_EQ(passed, found.get_path().empty());
  EXPECT_EQ(found.get_path(), lmx::global_check_exception.get_path());
  EXPECT_STREQ(found.get_file(), lmx::global_check_exception.get_file());
  EXPECT_EQ(found.get_line(), lmx::global_check_exception.get_line());
  EXPECT_EQ(passed, found.get_line() == -1);
  return found.get_path();
}

template <class X>
struct Step {
  char const* attribute;
  std::function<void(X&)> set;
  std::function<void(X&)> unset;
};

// Sets what is required, one attribute after the other: each time the next one is what is missing.
template <class X>
X expect_gaps(std::string const& tag, std::vector<Step<X>> const& steps) {
  X object;
  for (Step<X> const& step : steps) {
    EXPECT_EQ("/" + tag + "/" + step.attribute, gap(object, tag.c_str()));
    EXPECT_FALSE(object.IsOccursOk());
    EXPECT_EQ(std::string("/") + step.attribute, lmx::global_check_exception.get_path());
    step.set(object);
  }
  EXPECT_EQ("", gap(object, tag.c_str()));
  EXPECT_TRUE(object.IsOccursOk());
  for (Step<X> const& step : steps) {
    step.unset(object);
    EXPECT_EQ("/" + tag + "/" + step.attribute, gap(object, tag.c_str()));
    step.set(object);
  }
  return object;
}

#define STEP(X, attribute, Field, value)                                                             \
  Step<X> {                                                                                          \
    attribute, [](X& object) { object.Set##Field(value); }, [](X& object) { object.Unset##Field(); } \
  }

// No value here would pass a reader: what is there is all that is asked.
TaskData complete_task_data() {
  return expect_gaps<TaskData>(
      "ISO11783_TaskData",
      {STEP(TaskData, "VersionMajor", VersionMajor, ""), STEP(TaskData, "VersionMinor", VersionMinor, ""),
       STEP(TaskData, "ManagementSoftwareManufacturer", ManagementSoftwareManufacturer, std::string(99, 'x')),
       STEP(TaskData, "ManagementSoftwareVersion", ManagementSoftwareVersion, std::string(99, 'x')),
       STEP(TaskData, "DataTransferOrigin", DataTransferOrigin, "9")});
}

LinkList complete_link_list() {
  return expect_gaps<LinkList>(
      "ISO11783LinkList",
      {STEP(LinkList, "VersionMajor", VersionMajor, ""), STEP(LinkList, "VersionMinor", VersionMinor, ""),
       STEP(LinkList, "ManagementSoftwareManufacturer", ManagementSoftwareManufacturer, std::string(99, 'x')),
       STEP(LinkList, "ManagementSoftwareVersion", ManagementSoftwareVersion, std::string(99, 'x')),
       STEP(LinkList, "DataTransferOrigin", DataTransferOrigin, "9")});
}

AttachedFile complete_file() {
  return expect_gaps<AttachedFile>(
      "AFE",
      {STEP(AttachedFile, "A", FileNameWithExtension, "x"), STEP(AttachedFile, "B", Preserve, "9"),
       STEP(AttachedFile, "C", ManufacturerGLN, std::string(99, 'x')), STEP(AttachedFile, "D", Type, 0)});
}

LinkGroup complete_group() {
  return expect_gaps<LinkGroup>("LGP", {STEP(LinkGroup, "A", Id, "x"), STEP(LinkGroup, "B", Type, "9")});
}

Link complete_link() {
  return expect_gaps<Link>("LNK", {STEP(Link, "A", ObjectIdRef, "x"), STEP(Link, "B", Value, "")});
}

TEST(Check, FindsTheFirstMissingAttributeOfEachClass) {
  complete_task_data();
  complete_link_list();
  complete_file();
  complete_group();
  complete_link();
  expect_gaps<ExternalFileReference>(
      "XFR", {STEP(ExternalFileReference, "A", FileName, "x"), STEP(ExternalFileReference, "B", Type, "9")});
  expect_gaps<P917Metadata>("P917_Metadata", {STEP(P917Metadata, "Version", Version, "")});
  using TCC = TaskControllerCapabilities;
  expect_gaps<TCC>(
      "TCC",
      {STEP(TCC, "A", ControlFunctionName, lmx::c_binary()), STEP(TCC, "B", Designator, ""),
       STEP(TCC, "C", VersionNumber, "9"), STEP(TCC, "D", ProvidedCapabilites, 255),
       STEP(TCC, "E", NumberOfBoomsSectionControl, 255), STEP(TCC, "F", NumberOfSectionsSectionControl, 255),
       STEP(TCC, "G", NumberOfControlChannels, 255)});
  EXPECT_EQ("", gap(ExternalFileContent(), "XFC"));
}

TEST(Check, WithoutANameAddsNoLevel) {
  EXPECT_EQ("/A", gap(AttachedFile(), nullptr));
  EXPECT_FALSE(AttachedFile().Check());
  EXPECT_EQ("/A", lmx::global_check_exception.get_path());
  EXPECT_FALSE(AttachedFile().Check(nullptr, "AFE"));
  EXPECT_EQ("/AFE/A", lmx::global_check_exception.get_path());
}

TEST(Check, JoinsTheNamesOfAllTrackers) {
  lmx::c_check_exception found;
  lmx::c_check_tracker outer(nullptr, "outer", &found);
  lmx::c_check_tracker nameless(&outer, nullptr);
  lmx::c_check_exception unused;
  lmx::c_check_tracker inner(&nameless, "inner", &unused);
  EXPECT_FALSE(Link().Check(&inner, "LNK"));
  EXPECT_EQ("/outer/inner/LNK/A", found.get_path());
  EXPECT_EQ("", unused.get_path());  // only the outermost tracker's is filled
}

TEST(Check, GivesThePathThroughChildrenWithoutTheirWrappers) {
  TaskData data = complete_task_data();
  InnerTaskData& first = data.AppendInnerTaskData();
  EXPECT_EQ("", gap(data, "ISO11783_TaskData"));  // a wrapper with nothing chosen lacks nothing
  EXPECT_TRUE(first.IsOccursOk());
  first.GetAttachedFile(0) = complete_file();
  first.AppendAttachedFile() = complete_file();
  EXPECT_EQ("", gap(data, "ISO11783_TaskData"));
  first.GetAttachedFile(1).UnsetManufacturerGLN();
  EXPECT_EQ("/ISO11783_TaskData/AFE/C", gap(data, "ISO11783_TaskData"));
  data.AppendInnerTaskData().GetP917Metadata();
  EXPECT_EQ("/ISO11783_TaskData/AFE/C", gap(data, "ISO11783_TaskData"));  // the first in document order
  first.GetAttachedFile(1).SetManufacturerGLN("");
  EXPECT_EQ("/ISO11783_TaskData/P917_Metadata/Version", gap(data, "ISO11783_TaskData"));
  data.UnsetVersionMinor();
  EXPECT_EQ("/ISO11783_TaskData/VersionMinor", gap(data, "ISO11783_TaskData"));  // own attributes come first
}

TEST(Check, MissesTheFirstKindOfChildWhereOneMustBeThere) {
  ColourLegend legend;
  legend.SetId("");
  EXPECT_EQ("/CLD/CRG", gap(legend, "CLD"));
  Polygon polygon;
  polygon.SetType("");
  EXPECT_EQ("/PLN/LSG", gap(polygon, "PLN"));
  LineString line;
  line.SetType("");
  EXPECT_EQ("/LSG/PNT", gap(line, "LSG"));
  GuidanceGroup group;
  group.SetId("");
  EXPECT_EQ("/GGP/GPN", gap(group, "GGP"));
  GuidancePattern pattern;
  pattern.SetId("");
  pattern.SetType("");
  EXPECT_EQ("/GPN/LSG", gap(pattern, "GPN"));
  GuidanceAllocation allocation;
  allocation.SetGuidanceGroupIdRef("");
  EXPECT_EQ("/GAN/ASP", gap(allocation, "GAN"));
  Device device;
  device.SetId("");
  device.SetClientName(lmx::c_binary());
  device.SetStructureLabel(lmx::c_binary());
  device.SetLocalizationLabel(lmx::c_binary());
  EXPECT_EQ("/DVC/DET", gap(device, "DVC"));

  // A wrapper is enough, whatever it holds; and attributes are looked at first.
  legend.AppendInnerColourLegend();
  EXPECT_EQ("", gap(legend, "CLD"));
  EXPECT_EQ("/PLN/A", gap(Polygon(), "PLN"));
  TaskData data = complete_task_data();
  data.AppendInnerTaskData().AppendColourLegend().SetId("");
  EXPECT_EQ("/ISO11783_TaskData/CLD/CRG", gap(data, "ISO11783_TaskData"));
}

TEST(Check, GivesThePathToAnAttributeOfATask) {
  Task task;
  EXPECT_EQ("/TSK/A", gap(task, "TSK"));
  task.SetId("");
  TaskData data = complete_task_data();
  data.AppendInnerTaskData().AppendTask() = task;
  EXPECT_EQ("/ISO11783_TaskData/TSK/G", gap(data, "ISO11783_TaskData"));
}

TEST(Check, GivesThePathToADeepGap) {
  LinkList list = complete_link_list();
  LinkGroup& group = list.AppendInnerLinkList().AppendLinkGroup();
  group = complete_group();
  group.AppendInnerLinkGroup().AppendLink() = complete_link();
  group.AppendInnerLinkGroup().AppendLink().SetObjectIdRef("x");
  EXPECT_EQ("/ISO11783LinkList/LGP/LNK/B", gap(list, "ISO11783LinkList"));

  Root root;
  EXPECT_EQ("/<choice not set>", gap(root, nullptr));
  EXPECT_EQ("/document/<choice not set>", gap(root, "document"));
  root.GetLinkList() = list;
  EXPECT_EQ("/ISO11783LinkList/LGP/LNK/B", gap(root, nullptr));
  root.GetLinkList().GetInnerLinkList(0).GetLinkGroup(0).GetInnerLinkGroup(1).GetLink(0).SetValue("");
  EXPECT_EQ("", gap(root, nullptr));
  EXPECT_TRUE(root.IsOccursOk());
}

TEST(Check, AgreesWithTheReader) {
  Reading<> good("<LGP A='LGP1' B='1'><LNK A='TSK1' B='v'/></LGP>");
  ASSERT_EQ(0, good.error);
  EXPECT_EQ("", gap(good.top, nullptr));
  Reading<> tolerated("<LGP A='LGP1' B='1'><LNK A='TSK1'/></LGP>", tolerant());
  ASSERT_EQ(0, tolerated.error);
  EXPECT_EQ("/LGP/LNK/B", gap(tolerated.top, nullptr));
}

TEST(Check, LeavesARecordThatIsNeverThrown) {
  const lmx::c_check_exception fresh;
  EXPECT_STREQ("lmx check exception", fresh.what());
  EXPECT_STREQ("(not set)", fresh.get_file());
  EXPECT_EQ(-1, fresh.get_line());
  EXPECT_EQ("", fresh.get_path());
  EXPECT_NO_THROW(EXPECT_FALSE(Link().Check()));
  EXPECT_STREQ("lmx check exception", lmx::global_check_exception.what());
  EXPECT_TRUE(complete_link().Check());
}

}  // namespace
