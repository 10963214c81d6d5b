// The list of tasks.
#include <gtest/gtest.h>

#include <cstdint>
#include <iterator>
#include <string>
#include <type_traits>
#include <vector>

#include "isoxmllib/isoxmllib.h"
#include "support/transfer_set.h"

namespace {

using lmx::TaskInfo;

std::string text(TaskInfo const& info) {
  return info.id + "/" + info.customerIdRef + "/" + info.farmIdRef + "/" + info.fieldIdRef + "/" +
         info.designator + "/" + info.jobMetaData + "/" + std::to_string(info.defaultTreatmentZoneCode) +
         "/" + std::to_string(info.positionLostTreatmentZoneCode) + "/" +
         std::to_string(info.outOfFieldTreatmentZoneCode);
}

std::string text(std::vector<TaskInfo> const& list) {
  std::string all;
  for (TaskInfo const& info : list) all += text(info) + "\n";
  return all;
}

struct Row {
  char const* caption;
  char const* attributes;
  char const* record;
};

TEST(TaskList, CarriesEachAttributeInItsOwnMember) {
  const Row rows[] = {
      {"none", "", "TSK1//////0/0/0"},
      {"designator", "B='name'", "TSK1////name//0/0/0"},
      {"customer", "C='CTR7'", "TSK1/CTR7/////0/0/0"},
      {"farm", "D='FRM7'", "TSK1//FRM7////0/0/0"},
      {"field", "E='PFD7'", "TSK1///PFD7///0/0/0"},
      {"worker, which is not carried", "F='WKR7'", "TSK1//////0/0/0"},
      {"default code", "H='254'", "TSK1//////254/0/0"},
      {"code without position", "I='1'", "TSK1//////0/1/0"},
      {"code out of the field", "J='128'", "TSK1//////0/0/128"},
      {"codes of 0 are like absent ones", "H='0' I='0' J='0'", "TSK1//////0/0/0"},
      {"metadata", "P007_JobMetaData=' m '", "TSK1///// m /0/0/0"},
      {"all", "B='b' C='CTR7' D='FRM7' E='PFD7' H='1' I='2' J='3' P007_JobMetaData='m'",
       "TSK1/CTR7/FRM7/PFD7/b/m/1/2/3"},
  };
  for (Row const& row : rows) {
    const TransferSet set(std::string("<TSK A='TSK1' G='1' ") + row.attributes + "/>");
    ASSERT_EQ(1u, set->getTaskInfoList().size()) << row.caption;
    EXPECT_EQ(row.record, text(set->getTaskInfoList()[0])) << row.caption;
  }
}

TEST(TaskList, HoldsMembersInTheirOrder) {
  const TaskInfo info = {"id", "customer", "farm", "field", "designator", "metadata", 1, 2, 3};
  EXPECT_EQ("id/customer/farm/field/designator/metadata/1/2/3", text(info));
  static_assert(std::is_same_v<std::uint16_t, decltype(TaskInfo::defaultTreatmentZoneCode)>);
  EXPECT_EQ("//////0/0/0", text(TaskInfo()));
}

TEST(TaskList, HasTasksOfEveryStateWithOrWithoutZones) {
  std::string tasks;
  for (char const* state : {"1", "2", "3", "4", "5", "6"}) {
    tasks += std::string("<TSK A='TSK") + state + "' G='" + state + "'><TZN A='1'/></TSK>";
  }
  const TransferSet set(tasks);
  EXPECT_EQ(6u, set->getTaskInfoList().size());
}

TEST(TaskList, TakesAllDocumentsInOrderAndRepeatsWhatOccursTwice) {
  const TransferSet set(SetFiles{
      {"TASKDATA.XML", task_data(reference("TSK00002") + "<TSK A='TSK1' G='1'/>" + reference("TSK00001"))},
      {"TSK00001.XML", external_file("<TSK A='TSK1' G='1' B='again'/>")},
      {"TSK00002.XML", external_file("<TSK A='TSK2' G='1'/><TSK A='TSK3' G='1'/>")}});
  EXPECT_EQ("TSK1//////0/0/0\nTSK2//////0/0/0\nTSK3//////0/0/0\nTSK1////again//0/0/0\n",
            text(set->getTaskInfoList()));
}

TEST(TaskList, IsEmptyForAnEmptySetAndAFailedOne) {
  EXPECT_TRUE(TransferSet("")->getTaskInfoList().empty());
  EXPECT_TRUE(TransferSet(SetFiles{})->getTaskInfoList().empty());
  EXPECT_TRUE(TransferSet("<TSK A='TSK1' G='1'/><TSK A='TSK2'/>")->getTaskInfoList().empty());
}

TEST(TaskList, IsEqualAtEachCallAndOutlivesTheParser) {
  TransferSet set("<TSK A='TSK1' G='1' B='b' H='9'/><TSK A='TSK2' G='1'/>");
  const std::vector<TaskInfo> list = set->getTaskInfoList();
  EXPECT_EQ(text(list), text(set->getTaskInfoList()));
  set.close();
  EXPECT_EQ("TSK1////b//9/0/0\nTSK2//////0/0/0\n", text(list));
}

TEST(TaskList, OfAReaderHasItsOwnTasksAndReadsFlagsForCodesOnly) {
  Task task;
  task.SetId("TSK1");
  task.SetDesignator("name");
  task.SetDefaultTreatmentZoneCode(7);
  task.SetPositionLostTreatmentZoneCode(8);
  task.SetOutOfFieldTreatmentZoneCode(9);
  Task const set_task = task;
  task.UnsetDesignator();
  task.UnsetDefaultTreatmentZoneCode();
  task.UnsetPositionLostTreatmentZoneCode();
  task.UnsetOutOfFieldTreatmentZoneCode();
  Task other = set_task;
  Task empty;
  lmx::xmlReader reader("no such file");
  EXPECT_TRUE(reader.getTaskInfoList().empty());
  reader.addNewTask(&task);
  reader.addNewTask(&other);
  reader.addNewTask(&empty);
  EXPECT_EQ("TSK1////name//0/0/0\nTSK1////name//7/8/9\n//////0/0/0\n", text(reader.getTaskInfoList()));
}

}  // namespace
