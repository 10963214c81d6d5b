// clang-format off
// Generated from schema/task.toml. Edit the schema, then build the target `schema`.

#include "isoxmllib/task.h"

#include <memory>
#include <utility>

#include "isoxmllib/engine.h"
#include "isoxmllib/events.h"
#include "isoxmllib/rules.h"
#include "isoxmllib/specs.h"
#include "isoxmllib/field_geometry.h"
#include "isoxmllib/question.h"

using namespace binding;

// ---- Task ----

InnerTask::InnerTask() { init(); }
InnerTask::InnerTask(InnerTask const& other) = default;
InnerTask::InnerTask(InnerTask&& other) noexcept : chosen(std::exchange(other.chosen, NothingChosen)), m_held(std::move(other.m_held)) {}
InnerTask::InnerTask(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_OK; unmarshal(reader, error); }
InnerTask* InnerTask::clone() const { return new InnerTask(*this); }
InnerTask::~InnerTask() = default;
InnerTask& InnerTask::operator=(InnerTask const& other) { InnerTask copy(other); swap(copy); return *this; }
InnerTask& InnerTask::operator=(InnerTask&& other) noexcept { InnerTask taken(std::move(other)); swap(taken); return *this; }
void InnerTask::swap(InnerTask& other) noexcept { std::swap(chosen, other.chosen); std::swap(m_held, other.m_held); }
void InnerTask::reset() { InnerTask empty; swap(empty); }
void InnerTask::init() { chosen = NothingChosen; }

lmx::s_event_map const InnerTask::elem_event_map[] = {
    {1, "TZN", 3, elem_TreatmentZone},
    {1, "TIM", 3, elem_Time},
    {1, "OTP", 3, elem_OperTechPractice},
    {1, "WAN", 3, elem_WorkerAllocation},
    {1, "DAN", 3, elem_DeviceAllocation},
    {1, "CNN", 3, elem_Connection},
    {1, "PAN", 3, elem_ProductAllocation},
    {1, "DLT", 3, elem_DataLogTrigger},
    {1, "CAN", 3, elem_CommentAllocation},
    {1, "TLG", 3, elem_TimeLog},
    {1, "GRD", 3, elem_Grid},
    {1, "CAT", 3, elem_ControlAssignment},
    {1, "GAN", 3, elem_GuidanceAllocation},
    {1, "P917_comment", 12, elem_P917Comment},
    {0, nullptr, 0, 0},
};
void InnerTask::release_choice() { m_held.release(); chosen = NothingChosen; }
bool InnerTask::IsOccursOk(lmx::c_check_tracker*) const { return true; }
bool InnerTask::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  if (!IsOccursOk(&link)) return false;
  switch (chosen) {
    case TreatmentZoneChosen: return m_held.check(&link, "TZN");
    case TimeChosen: return m_held.check(&link, "TIM");
    case OperTechPracticeChosen: return m_held.check(&link, "OTP");
    case WorkerAllocationChosen: return m_held.check(&link, "WAN");
    case DeviceAllocationChosen: return m_held.check(&link, "DAN");
    case ConnectionChosen: return m_held.check(&link, "CNN");
    case ProductAllocationChosen: return m_held.check(&link, "PAN");
    case DataLogTriggerChosen: return m_held.check(&link, "DLT");
    case CommentAllocationChosen: return m_held.check(&link, "CAN");
    case TimeLogChosen: return m_held.check(&link, "TLG");
    case GridChosen: return m_held.check(&link, "GRD");
    case ControlAssignmentChosen: return m_held.check(&link, "CAT");
    case GuidanceAllocationChosen: return m_held.check(&link, "GAN");
    case P917CommentChosen: return m_held.check(&link, "P917_comment");
  }
  return true;
}
bool InnerTask::IsMember(lmx::xmlReader& reader) { return is_member(reader, elem_event_map); }
bool InnerTask::unmarshal(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(elem_event_map, lmx::EXAE_ELEMENT);
  switch (reader.m_event) {
    case elem_TreatmentZone: return read_run(reader, new_run<TreatmentZone>(chosen, m_held, TreatmentZoneChosen), elem_TreatmentZone, {elem_event_map, "TSK", __LINE__}, error);
    case elem_Time: return read_run(reader, new_run<Time>(chosen, m_held, TimeChosen), elem_Time, {elem_event_map, "TSK", __LINE__}, error);
    case elem_OperTechPractice: return read_one(reader, new_one<OperTechPractice>(chosen, m_held, OperTechPracticeChosen), {elem_event_map, "TSK", __LINE__}, error);
    case elem_WorkerAllocation: return read_run(reader, new_run<WorkerAllocation>(chosen, m_held, WorkerAllocationChosen), elem_WorkerAllocation, {elem_event_map, "TSK", __LINE__}, error);
    case elem_DeviceAllocation: return read_run(reader, new_run<DeviceAllocation>(chosen, m_held, DeviceAllocationChosen), elem_DeviceAllocation, {elem_event_map, "TSK", __LINE__}, error);
    case elem_Connection: return read_run(reader, new_run<Connection>(chosen, m_held, ConnectionChosen), elem_Connection, {elem_event_map, "TSK", __LINE__}, error);
    case elem_ProductAllocation: return read_run(reader, new_run<ProductAllocation>(chosen, m_held, ProductAllocationChosen), elem_ProductAllocation, {elem_event_map, "TSK", __LINE__}, error);
    case elem_DataLogTrigger: return read_run(reader, new_run<DataLogTrigger>(chosen, m_held, DataLogTriggerChosen), elem_DataLogTrigger, {elem_event_map, "TSK", __LINE__}, error);
    case elem_CommentAllocation: return read_run(reader, new_run<CommentAllocation>(chosen, m_held, CommentAllocationChosen), elem_CommentAllocation, {elem_event_map, "TSK", __LINE__}, error);
    case elem_TimeLog: return read_run(reader, new_run<TimeLog>(chosen, m_held, TimeLogChosen), elem_TimeLog, {elem_event_map, "TSK", __LINE__}, error);
    case elem_Grid: return read_one(reader, new_one<Grid>(chosen, m_held, GridChosen), {elem_event_map, "TSK", __LINE__}, error);
    case elem_ControlAssignment: return read_run(reader, new_run<ControlAssignment>(chosen, m_held, ControlAssignmentChosen), elem_ControlAssignment, {elem_event_map, "TSK", __LINE__}, error);
    case elem_GuidanceAllocation: return read_run(reader, new_run<GuidanceAllocation>(chosen, m_held, GuidanceAllocationChosen), elem_GuidanceAllocation, {elem_event_map, "TSK", __LINE__}, error);
    case elem_P917Comment: return read_one(reader, new_one<P917Comment>(chosen, m_held, P917CommentChosen), {elem_event_map, "TSK", __LINE__}, error);
  }
  return true;
}
lmx::elmx_error InnerTask::marshal(lmx::c_xml_writer& writer, char const*) const { return marshal_child_elements(writer); }
lmx::elmx_error InnerTask::marshal_child_elements(lmx::c_xml_writer& writer) const { return write_choice(writer, m_held, chosen, NothingChosen, elem_event_map, __LINE__); }

void InnerTask::SelectTreatmentZone() { selected_run<TreatmentZone>(chosen, m_held, TreatmentZoneChosen); }
TreatmentZone const& InnerTask::GetTreatmentZone(std::size_t index) const { return run_at<TreatmentZone>(m_held, {is_chosen(chosen, m_held, TreatmentZoneChosen), "chosen == TreatmentZoneChosen"}, index, "index < u.mTreatmentZone->size()"); }
TreatmentZone& InnerTask::GetTreatmentZone(std::size_t index) { return selected_run<TreatmentZone>(chosen, m_held, TreatmentZoneChosen).get_or_append(index); }
TreatmentZone& InnerTask::AppendTreatmentZone() { return selected_run<TreatmentZone>(chosen, m_held, TreatmentZoneChosen).append(); }
void InnerTask::AppendTreatmentZone(TreatmentZone* value) { std::unique_ptr<TreatmentZone> owned(value); selected_run<TreatmentZone>(chosen, m_held, TreatmentZoneChosen).append(std::move(owned)); }
TreatmentZone& InnerTask::InsertTreatmentZone(std::size_t index) { return selected_run<TreatmentZone>(chosen, m_held, TreatmentZoneChosen).insert(index); }
void InnerTask::InsertTreatmentZone(std::size_t index, TreatmentZone* value) { std::unique_ptr<TreatmentZone> owned(value); selected_run<TreatmentZone>(chosen, m_held, TreatmentZoneChosen).insert(index, std::move(owned)); }
void InnerTask::AssignTreatmentZone(std::size_t index, TreatmentZone const& value) { selected_run<TreatmentZone>(chosen, m_held, TreatmentZoneChosen).assign(index, value); }
void InnerTask::AssignTreatmentZone(std::size_t index, TreatmentZone* value) { std::unique_ptr<TreatmentZone> owned(value); selected_run<TreatmentZone>(chosen, m_held, TreatmentZoneChosen).assign(index, std::move(owned)); }
TreatmentZone& InnerTask::BackTreatmentZone() { return selected_run<TreatmentZone>(chosen, m_held, TreatmentZoneChosen).back(); }
void InnerTask::DeleteTreatmentZone(std::size_t index) { erase_at<TreatmentZone>(m_held, {is_chosen(chosen, m_held, TreatmentZoneChosen), "chosen == TreatmentZoneChosen"}, index, "index < u.mTreatmentZone->size()"); }
void InnerTask::ClearTreatmentZone() { selected_run<TreatmentZone>(chosen, m_held, TreatmentZoneChosen).clear(); }
std::size_t InnerTask::SizeTreatmentZone() const { return run_size<TreatmentZone>(m_held, m_held.holds(TreatmentZoneChosen)); }

void InnerTask::SelectTime() { selected_run<Time>(chosen, m_held, TimeChosen); }
Time const& InnerTask::GetTime(std::size_t index) const { return run_at<Time>(m_held, {is_chosen(chosen, m_held, TimeChosen), "chosen == TimeChosen"}, index, "index < u.mTime->size()"); }
Time& InnerTask::GetTime(std::size_t index) { return selected_run<Time>(chosen, m_held, TimeChosen).get_or_append(index); }
Time& InnerTask::AppendTime() { return selected_run<Time>(chosen, m_held, TimeChosen).append(); }
void InnerTask::AppendTime(Time* value) { std::unique_ptr<Time> owned(value); selected_run<Time>(chosen, m_held, TimeChosen).append(std::move(owned)); }
Time& InnerTask::InsertTime(std::size_t index) { return selected_run<Time>(chosen, m_held, TimeChosen).insert(index); }
void InnerTask::InsertTime(std::size_t index, Time* value) { std::unique_ptr<Time> owned(value); selected_run<Time>(chosen, m_held, TimeChosen).insert(index, std::move(owned)); }
void InnerTask::AssignTime(std::size_t index, Time const& value) { selected_run<Time>(chosen, m_held, TimeChosen).assign(index, value); }
void InnerTask::AssignTime(std::size_t index, Time* value) { std::unique_ptr<Time> owned(value); selected_run<Time>(chosen, m_held, TimeChosen).assign(index, std::move(owned)); }
Time& InnerTask::BackTime() { return selected_run<Time>(chosen, m_held, TimeChosen).back(); }
void InnerTask::DeleteTime(std::size_t index) { erase_at<Time>(m_held, {is_chosen(chosen, m_held, TimeChosen), "chosen == TimeChosen"}, index, "index < u.mTime->size()"); }
void InnerTask::ClearTime() { selected_run<Time>(chosen, m_held, TimeChosen).clear(); }
std::size_t InnerTask::SizeTime() const { return run_size<Time>(m_held, m_held.holds(TimeChosen)); }

void InnerTask::SelectOperTechPractice() { selected_one<OperTechPractice>(chosen, m_held, OperTechPracticeChosen); }
OperTechPractice const& InnerTask::GetOperTechPractice() const { return chosen_one<OperTechPractice>(m_held, {is_chosen(chosen, m_held, OperTechPracticeChosen), "chosen == OperTechPracticeChosen"}); }
OperTechPractice& InnerTask::GetOperTechPractice() { return selected_one<OperTechPractice>(chosen, m_held, OperTechPracticeChosen).get_or_create(); }

void InnerTask::SelectWorkerAllocation() { selected_run<WorkerAllocation>(chosen, m_held, WorkerAllocationChosen); }
WorkerAllocation const& InnerTask::GetWorkerAllocation(std::size_t index) const { return run_at<WorkerAllocation>(m_held, {is_chosen(chosen, m_held, WorkerAllocationChosen), "chosen == WorkerAllocationChosen"}, index, "index < u.mWorkerAllocation->size()"); }
WorkerAllocation& InnerTask::GetWorkerAllocation(std::size_t index) { return selected_run<WorkerAllocation>(chosen, m_held, WorkerAllocationChosen).get_or_append(index); }
WorkerAllocation& InnerTask::AppendWorkerAllocation() { return selected_run<WorkerAllocation>(chosen, m_held, WorkerAllocationChosen).append(); }
void InnerTask::AppendWorkerAllocation(WorkerAllocation* value) { std::unique_ptr<WorkerAllocation> owned(value); selected_run<WorkerAllocation>(chosen, m_held, WorkerAllocationChosen).append(std::move(owned)); }
WorkerAllocation& InnerTask::InsertWorkerAllocation(std::size_t index) { return selected_run<WorkerAllocation>(chosen, m_held, WorkerAllocationChosen).insert(index); }
void InnerTask::InsertWorkerAllocation(std::size_t index, WorkerAllocation* value) { std::unique_ptr<WorkerAllocation> owned(value); selected_run<WorkerAllocation>(chosen, m_held, WorkerAllocationChosen).insert(index, std::move(owned)); }
void InnerTask::AssignWorkerAllocation(std::size_t index, WorkerAllocation const& value) { selected_run<WorkerAllocation>(chosen, m_held, WorkerAllocationChosen).assign(index, value); }
void InnerTask::AssignWorkerAllocation(std::size_t index, WorkerAllocation* value) { std::unique_ptr<WorkerAllocation> owned(value); selected_run<WorkerAllocation>(chosen, m_held, WorkerAllocationChosen).assign(index, std::move(owned)); }
WorkerAllocation& InnerTask::BackWorkerAllocation() { return selected_run<WorkerAllocation>(chosen, m_held, WorkerAllocationChosen).back(); }
void InnerTask::DeleteWorkerAllocation(std::size_t index) { erase_at<WorkerAllocation>(m_held, {is_chosen(chosen, m_held, WorkerAllocationChosen), "chosen == WorkerAllocationChosen"}, index, "index < u.mWorkerAllocation->size()"); }
void InnerTask::ClearWorkerAllocation() { selected_run<WorkerAllocation>(chosen, m_held, WorkerAllocationChosen).clear(); }
std::size_t InnerTask::SizeWorkerAllocation() const { return run_size<WorkerAllocation>(m_held, m_held.holds(WorkerAllocationChosen)); }

void InnerTask::SelectDeviceAllocation() { selected_run<DeviceAllocation>(chosen, m_held, DeviceAllocationChosen); }
DeviceAllocation const& InnerTask::GetDeviceAllocation(std::size_t index) const { return run_at<DeviceAllocation>(m_held, {is_chosen(chosen, m_held, DeviceAllocationChosen), "chosen == DeviceAllocationChosen"}, index, "index < u.mDeviceAllocation->size()"); }
DeviceAllocation& InnerTask::GetDeviceAllocation(std::size_t index) { return selected_run<DeviceAllocation>(chosen, m_held, DeviceAllocationChosen).get_or_append(index); }
DeviceAllocation& InnerTask::AppendDeviceAllocation() { return selected_run<DeviceAllocation>(chosen, m_held, DeviceAllocationChosen).append(); }
void InnerTask::AppendDeviceAllocation(DeviceAllocation* value) { std::unique_ptr<DeviceAllocation> owned(value); selected_run<DeviceAllocation>(chosen, m_held, DeviceAllocationChosen).append(std::move(owned)); }
DeviceAllocation& InnerTask::InsertDeviceAllocation(std::size_t index) { return selected_run<DeviceAllocation>(chosen, m_held, DeviceAllocationChosen).insert(index); }
void InnerTask::InsertDeviceAllocation(std::size_t index, DeviceAllocation* value) { std::unique_ptr<DeviceAllocation> owned(value); selected_run<DeviceAllocation>(chosen, m_held, DeviceAllocationChosen).insert(index, std::move(owned)); }
void InnerTask::AssignDeviceAllocation(std::size_t index, DeviceAllocation const& value) { selected_run<DeviceAllocation>(chosen, m_held, DeviceAllocationChosen).assign(index, value); }
void InnerTask::AssignDeviceAllocation(std::size_t index, DeviceAllocation* value) { std::unique_ptr<DeviceAllocation> owned(value); selected_run<DeviceAllocation>(chosen, m_held, DeviceAllocationChosen).assign(index, std::move(owned)); }
DeviceAllocation& InnerTask::BackDeviceAllocation() { return selected_run<DeviceAllocation>(chosen, m_held, DeviceAllocationChosen).back(); }
void InnerTask::DeleteDeviceAllocation(std::size_t index) { erase_at<DeviceAllocation>(m_held, {is_chosen(chosen, m_held, DeviceAllocationChosen), "chosen == DeviceAllocationChosen"}, index, "index < u.mDeviceAllocation->size()"); }
void InnerTask::ClearDeviceAllocation() { selected_run<DeviceAllocation>(chosen, m_held, DeviceAllocationChosen).clear(); }
std::size_t InnerTask::SizeDeviceAllocation() const { return run_size<DeviceAllocation>(m_held, m_held.holds(DeviceAllocationChosen)); }

void InnerTask::SelectConnection() { selected_run<Connection>(chosen, m_held, ConnectionChosen); }
Connection const& InnerTask::GetConnection(std::size_t index) const { return run_at<Connection>(m_held, {is_chosen(chosen, m_held, ConnectionChosen), "chosen == ConnectionChosen"}, index, "index < u.mConnection->size()"); }
Connection& InnerTask::GetConnection(std::size_t index) { return selected_run<Connection>(chosen, m_held, ConnectionChosen).get_or_append(index); }
Connection& InnerTask::AppendConnection() { return selected_run<Connection>(chosen, m_held, ConnectionChosen).append(); }
void InnerTask::AppendConnection(Connection* value) { std::unique_ptr<Connection> owned(value); selected_run<Connection>(chosen, m_held, ConnectionChosen).append(std::move(owned)); }
Connection& InnerTask::InsertConnection(std::size_t index) { return selected_run<Connection>(chosen, m_held, ConnectionChosen).insert(index); }
void InnerTask::InsertConnection(std::size_t index, Connection* value) { std::unique_ptr<Connection> owned(value); selected_run<Connection>(chosen, m_held, ConnectionChosen).insert(index, std::move(owned)); }
void InnerTask::AssignConnection(std::size_t index, Connection const& value) { selected_run<Connection>(chosen, m_held, ConnectionChosen).assign(index, value); }
void InnerTask::AssignConnection(std::size_t index, Connection* value) { std::unique_ptr<Connection> owned(value); selected_run<Connection>(chosen, m_held, ConnectionChosen).assign(index, std::move(owned)); }
Connection& InnerTask::BackConnection() { return selected_run<Connection>(chosen, m_held, ConnectionChosen).back(); }
void InnerTask::DeleteConnection(std::size_t index) { erase_at<Connection>(m_held, {is_chosen(chosen, m_held, ConnectionChosen), "chosen == ConnectionChosen"}, index, "index < u.mConnection->size()"); }
void InnerTask::ClearConnection() { selected_run<Connection>(chosen, m_held, ConnectionChosen).clear(); }
std::size_t InnerTask::SizeConnection() const { return run_size<Connection>(m_held, m_held.holds(ConnectionChosen)); }

void InnerTask::SelectProductAllocation() { selected_run<ProductAllocation>(chosen, m_held, ProductAllocationChosen); }
ProductAllocation const& InnerTask::GetProductAllocation(std::size_t index) const { return run_at<ProductAllocation>(m_held, {is_chosen(chosen, m_held, ProductAllocationChosen), "chosen == ProductAllocationChosen"}, index, "index < u.mProductAllocation->size()"); }
ProductAllocation& InnerTask::GetProductAllocation(std::size_t index) { return selected_run<ProductAllocation>(chosen, m_held, ProductAllocationChosen).get_or_append(index); }
ProductAllocation& InnerTask::AppendProductAllocation() { return selected_run<ProductAllocation>(chosen, m_held, ProductAllocationChosen).append(); }
void InnerTask::AppendProductAllocation(ProductAllocation* value) { std::unique_ptr<ProductAllocation> owned(value); selected_run<ProductAllocation>(chosen, m_held, ProductAllocationChosen).append(std::move(owned)); }
ProductAllocation& InnerTask::InsertProductAllocation(std::size_t index) { return selected_run<ProductAllocation>(chosen, m_held, ProductAllocationChosen).insert(index); }
void InnerTask::InsertProductAllocation(std::size_t index, ProductAllocation* value) { std::unique_ptr<ProductAllocation> owned(value); selected_run<ProductAllocation>(chosen, m_held, ProductAllocationChosen).insert(index, std::move(owned)); }
void InnerTask::AssignProductAllocation(std::size_t index, ProductAllocation const& value) { selected_run<ProductAllocation>(chosen, m_held, ProductAllocationChosen).assign(index, value); }
void InnerTask::AssignProductAllocation(std::size_t index, ProductAllocation* value) { std::unique_ptr<ProductAllocation> owned(value); selected_run<ProductAllocation>(chosen, m_held, ProductAllocationChosen).assign(index, std::move(owned)); }
ProductAllocation& InnerTask::BackProductAllocation() { return selected_run<ProductAllocation>(chosen, m_held, ProductAllocationChosen).back(); }
void InnerTask::DeleteProductAllocation(std::size_t index) { erase_at<ProductAllocation>(m_held, {is_chosen(chosen, m_held, ProductAllocationChosen), "chosen == ProductAllocationChosen"}, index, "index < u.mProductAllocation->size()"); }
void InnerTask::ClearProductAllocation() { selected_run<ProductAllocation>(chosen, m_held, ProductAllocationChosen).clear(); }
std::size_t InnerTask::SizeProductAllocation() const { return run_size<ProductAllocation>(m_held, m_held.holds(ProductAllocationChosen)); }

void InnerTask::SelectDataLogTrigger() { selected_run<DataLogTrigger>(chosen, m_held, DataLogTriggerChosen); }
DataLogTrigger const& InnerTask::GetDataLogTrigger(std::size_t index) const { return run_at<DataLogTrigger>(m_held, {is_chosen(chosen, m_held, DataLogTriggerChosen), "chosen == DataLogTriggerChosen"}, index, "index < u.mDataLogTrigger->size()"); }
DataLogTrigger& InnerTask::GetDataLogTrigger(std::size_t index) { return selected_run<DataLogTrigger>(chosen, m_held, DataLogTriggerChosen).get_or_append(index); }
DataLogTrigger& InnerTask::AppendDataLogTrigger() { return selected_run<DataLogTrigger>(chosen, m_held, DataLogTriggerChosen).append(); }
void InnerTask::AppendDataLogTrigger(DataLogTrigger* value) { std::unique_ptr<DataLogTrigger> owned(value); selected_run<DataLogTrigger>(chosen, m_held, DataLogTriggerChosen).append(std::move(owned)); }
DataLogTrigger& InnerTask::InsertDataLogTrigger(std::size_t index) { return selected_run<DataLogTrigger>(chosen, m_held, DataLogTriggerChosen).insert(index); }
void InnerTask::InsertDataLogTrigger(std::size_t index, DataLogTrigger* value) { std::unique_ptr<DataLogTrigger> owned(value); selected_run<DataLogTrigger>(chosen, m_held, DataLogTriggerChosen).insert(index, std::move(owned)); }
void InnerTask::AssignDataLogTrigger(std::size_t index, DataLogTrigger const& value) { selected_run<DataLogTrigger>(chosen, m_held, DataLogTriggerChosen).assign(index, value); }
void InnerTask::AssignDataLogTrigger(std::size_t index, DataLogTrigger* value) { std::unique_ptr<DataLogTrigger> owned(value); selected_run<DataLogTrigger>(chosen, m_held, DataLogTriggerChosen).assign(index, std::move(owned)); }
DataLogTrigger& InnerTask::BackDataLogTrigger() { return selected_run<DataLogTrigger>(chosen, m_held, DataLogTriggerChosen).back(); }
void InnerTask::DeleteDataLogTrigger(std::size_t index) { erase_at<DataLogTrigger>(m_held, {is_chosen(chosen, m_held, DataLogTriggerChosen), "chosen == DataLogTriggerChosen"}, index, "index < u.mDataLogTrigger->size()"); }
void InnerTask::ClearDataLogTrigger() { selected_run<DataLogTrigger>(chosen, m_held, DataLogTriggerChosen).clear(); }
std::size_t InnerTask::SizeDataLogTrigger() const { return run_size<DataLogTrigger>(m_held, m_held.holds(DataLogTriggerChosen)); }

void InnerTask::SelectCommentAllocation() { selected_run<CommentAllocation>(chosen, m_held, CommentAllocationChosen); }
CommentAllocation const& InnerTask::GetCommentAllocation(std::size_t index) const { return run_at<CommentAllocation>(m_held, {is_chosen(chosen, m_held, CommentAllocationChosen), "chosen == CommentAllocationChosen"}, index, "index < u.mCommentAllocation->size()"); }
CommentAllocation& InnerTask::GetCommentAllocation(std::size_t index) { return selected_run<CommentAllocation>(chosen, m_held, CommentAllocationChosen).get_or_append(index); }
CommentAllocation& InnerTask::AppendCommentAllocation() { return selected_run<CommentAllocation>(chosen, m_held, CommentAllocationChosen).append(); }
void InnerTask::AppendCommentAllocation(CommentAllocation* value) { std::unique_ptr<CommentAllocation> owned(value); selected_run<CommentAllocation>(chosen, m_held, CommentAllocationChosen).append(std::move(owned)); }
CommentAllocation& InnerTask::InsertCommentAllocation(std::size_t index) { return selected_run<CommentAllocation>(chosen, m_held, CommentAllocationChosen).insert(index); }
void InnerTask::InsertCommentAllocation(std::size_t index, CommentAllocation* value) { std::unique_ptr<CommentAllocation> owned(value); selected_run<CommentAllocation>(chosen, m_held, CommentAllocationChosen).insert(index, std::move(owned)); }
void InnerTask::AssignCommentAllocation(std::size_t index, CommentAllocation const& value) { selected_run<CommentAllocation>(chosen, m_held, CommentAllocationChosen).assign(index, value); }
void InnerTask::AssignCommentAllocation(std::size_t index, CommentAllocation* value) { std::unique_ptr<CommentAllocation> owned(value); selected_run<CommentAllocation>(chosen, m_held, CommentAllocationChosen).assign(index, std::move(owned)); }
CommentAllocation& InnerTask::BackCommentAllocation() { return selected_run<CommentAllocation>(chosen, m_held, CommentAllocationChosen).back(); }
void InnerTask::DeleteCommentAllocation(std::size_t index) { erase_at<CommentAllocation>(m_held, {is_chosen(chosen, m_held, CommentAllocationChosen), "chosen == CommentAllocationChosen"}, index, "index < u.mCommentAllocation->size()"); }
void InnerTask::ClearCommentAllocation() { selected_run<CommentAllocation>(chosen, m_held, CommentAllocationChosen).clear(); }
std::size_t InnerTask::SizeCommentAllocation() const { return run_size<CommentAllocation>(m_held, m_held.holds(CommentAllocationChosen)); }

void InnerTask::SelectTimeLog() { selected_run<TimeLog>(chosen, m_held, TimeLogChosen); }
TimeLog const& InnerTask::GetTimeLog(std::size_t index) const { return run_at<TimeLog>(m_held, {is_chosen(chosen, m_held, TimeLogChosen), "chosen == TimeLogChosen"}, index, "index < u.mTimeLog->size()"); }
TimeLog& InnerTask::GetTimeLog(std::size_t index) { return selected_run<TimeLog>(chosen, m_held, TimeLogChosen).get_or_append(index); }
TimeLog& InnerTask::AppendTimeLog() { return selected_run<TimeLog>(chosen, m_held, TimeLogChosen).append(); }
void InnerTask::AppendTimeLog(TimeLog* value) { std::unique_ptr<TimeLog> owned(value); selected_run<TimeLog>(chosen, m_held, TimeLogChosen).append(std::move(owned)); }
TimeLog& InnerTask::InsertTimeLog(std::size_t index) { return selected_run<TimeLog>(chosen, m_held, TimeLogChosen).insert(index); }
void InnerTask::InsertTimeLog(std::size_t index, TimeLog* value) { std::unique_ptr<TimeLog> owned(value); selected_run<TimeLog>(chosen, m_held, TimeLogChosen).insert(index, std::move(owned)); }
void InnerTask::AssignTimeLog(std::size_t index, TimeLog const& value) { selected_run<TimeLog>(chosen, m_held, TimeLogChosen).assign(index, value); }
void InnerTask::AssignTimeLog(std::size_t index, TimeLog* value) { std::unique_ptr<TimeLog> owned(value); selected_run<TimeLog>(chosen, m_held, TimeLogChosen).assign(index, std::move(owned)); }
TimeLog& InnerTask::BackTimeLog() { return selected_run<TimeLog>(chosen, m_held, TimeLogChosen).back(); }
void InnerTask::DeleteTimeLog(std::size_t index) { erase_at<TimeLog>(m_held, {is_chosen(chosen, m_held, TimeLogChosen), "chosen == TimeLogChosen"}, index, "index < u.mTimeLog->size()"); }
void InnerTask::ClearTimeLog() { selected_run<TimeLog>(chosen, m_held, TimeLogChosen).clear(); }
std::size_t InnerTask::SizeTimeLog() const { return run_size<TimeLog>(m_held, m_held.holds(TimeLogChosen)); }

void InnerTask::SelectGrid() { selected_one<Grid>(chosen, m_held, GridChosen); }
Grid const& InnerTask::GetGrid() const { return chosen_one<Grid>(m_held, {is_chosen(chosen, m_held, GridChosen), "chosen == GridChosen"}); }
Grid& InnerTask::GetGrid() { return selected_one<Grid>(chosen, m_held, GridChosen).get_or_create(); }

void InnerTask::SelectControlAssignment() { selected_run<ControlAssignment>(chosen, m_held, ControlAssignmentChosen); }
ControlAssignment const& InnerTask::GetControlAssignment(std::size_t index) const { return run_at<ControlAssignment>(m_held, {is_chosen(chosen, m_held, ControlAssignmentChosen), "chosen == ControlAssignmentChosen"}, index, "index < u.mControlAssignment->size()"); }
ControlAssignment& InnerTask::GetControlAssignment(std::size_t index) { return selected_run<ControlAssignment>(chosen, m_held, ControlAssignmentChosen).get_or_append(index); }
ControlAssignment& InnerTask::AppendControlAssignment() { return selected_run<ControlAssignment>(chosen, m_held, ControlAssignmentChosen).append(); }
void InnerTask::AppendControlAssignment(ControlAssignment* value) { std::unique_ptr<ControlAssignment> owned(value); selected_run<ControlAssignment>(chosen, m_held, ControlAssignmentChosen).append(std::move(owned)); }
ControlAssignment& InnerTask::InsertControlAssignment(std::size_t index) { return selected_run<ControlAssignment>(chosen, m_held, ControlAssignmentChosen).insert(index); }
void InnerTask::InsertControlAssignment(std::size_t index, ControlAssignment* value) { std::unique_ptr<ControlAssignment> owned(value); selected_run<ControlAssignment>(chosen, m_held, ControlAssignmentChosen).insert(index, std::move(owned)); }
void InnerTask::AssignControlAssignment(std::size_t index, ControlAssignment const& value) { selected_run<ControlAssignment>(chosen, m_held, ControlAssignmentChosen).assign(index, value); }
void InnerTask::AssignControlAssignment(std::size_t index, ControlAssignment* value) { std::unique_ptr<ControlAssignment> owned(value); selected_run<ControlAssignment>(chosen, m_held, ControlAssignmentChosen).assign(index, std::move(owned)); }
ControlAssignment& InnerTask::BackControlAssignment() { return selected_run<ControlAssignment>(chosen, m_held, ControlAssignmentChosen).back(); }
void InnerTask::DeleteControlAssignment(std::size_t index) { erase_at<ControlAssignment>(m_held, {is_chosen(chosen, m_held, ControlAssignmentChosen), "chosen == ControlAssignmentChosen"}, index, "index < u.mControlAssignment->size()"); }
void InnerTask::ClearControlAssignment() { selected_run<ControlAssignment>(chosen, m_held, ControlAssignmentChosen).clear(); }
std::size_t InnerTask::SizeControlAssignment() const { return run_size<ControlAssignment>(m_held, m_held.holds(ControlAssignmentChosen)); }

void InnerTask::SelectGuidanceAllocation() { selected_run<GuidanceAllocation>(chosen, m_held, GuidanceAllocationChosen); }
GuidanceAllocation const& InnerTask::GetGuidanceAllocation(std::size_t index) const { return run_at<GuidanceAllocation>(m_held, {is_chosen(chosen, m_held, GuidanceAllocationChosen), "chosen == GuidanceAllocationChosen"}, index, "index < u.mGuidanceAllocation->size()"); }
GuidanceAllocation& InnerTask::GetGuidanceAllocation(std::size_t index) { return selected_run<GuidanceAllocation>(chosen, m_held, GuidanceAllocationChosen).get_or_append(index); }
GuidanceAllocation& InnerTask::AppendGuidanceAllocation() { return selected_run<GuidanceAllocation>(chosen, m_held, GuidanceAllocationChosen).append(); }
void InnerTask::AppendGuidanceAllocation(GuidanceAllocation* value) { std::unique_ptr<GuidanceAllocation> owned(value); selected_run<GuidanceAllocation>(chosen, m_held, GuidanceAllocationChosen).append(std::move(owned)); }
GuidanceAllocation& InnerTask::InsertGuidanceAllocation(std::size_t index) { return selected_run<GuidanceAllocation>(chosen, m_held, GuidanceAllocationChosen).insert(index); }
void InnerTask::InsertGuidanceAllocation(std::size_t index, GuidanceAllocation* value) { std::unique_ptr<GuidanceAllocation> owned(value); selected_run<GuidanceAllocation>(chosen, m_held, GuidanceAllocationChosen).insert(index, std::move(owned)); }
void InnerTask::AssignGuidanceAllocation(std::size_t index, GuidanceAllocation const& value) { selected_run<GuidanceAllocation>(chosen, m_held, GuidanceAllocationChosen).assign(index, value); }
void InnerTask::AssignGuidanceAllocation(std::size_t index, GuidanceAllocation* value) { std::unique_ptr<GuidanceAllocation> owned(value); selected_run<GuidanceAllocation>(chosen, m_held, GuidanceAllocationChosen).assign(index, std::move(owned)); }
GuidanceAllocation& InnerTask::BackGuidanceAllocation() { return selected_run<GuidanceAllocation>(chosen, m_held, GuidanceAllocationChosen).back(); }
void InnerTask::DeleteGuidanceAllocation(std::size_t index) { erase_at<GuidanceAllocation>(m_held, {is_chosen(chosen, m_held, GuidanceAllocationChosen), "chosen == GuidanceAllocationChosen"}, index, "index < u.mGuidanceAllocation->size()"); }
void InnerTask::ClearGuidanceAllocation() { selected_run<GuidanceAllocation>(chosen, m_held, GuidanceAllocationChosen).clear(); }
std::size_t InnerTask::SizeGuidanceAllocation() const { return run_size<GuidanceAllocation>(m_held, m_held.holds(GuidanceAllocationChosen)); }

void InnerTask::SelectP917Comment() { selected_one<P917Comment>(chosen, m_held, P917CommentChosen); }
P917Comment const& InnerTask::GetP917Comment() const { return chosen_one<P917Comment>(m_held, {is_chosen(chosen, m_held, P917CommentChosen), "chosen == P917CommentChosen"}); }
P917Comment& InnerTask::GetP917Comment() { return selected_one<P917Comment>(chosen, m_held, P917CommentChosen).get_or_create(); }
void InnerTask::SetP917Comment(std::string const& text) { GetP917Comment().SetP917Comment(text); }

Task::Task() { init(); }
Task::Task(Task const& other) = default;
Task::Task(Task&& other) noexcept = default;
Task::Task(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
Task* Task::clone() const { return new Task(*this); }
Task::~Task() = default;
Task& Task::operator=(Task const& other) { Task copy(other); swap(copy); return *this; }
Task& Task::operator=(Task&& other) noexcept = default;
void Task::swap(Task& other) noexcept { std::swap(*this, other); }
void Task::reset() { Task empty; swap(empty); }
void Task::init() {}

lmx::s_event_map const Task::attr_event_map[] = {
    {1, "A", 1, attr_Id},
    {1, "B", 1, attr_Designator},
    {1, "C", 1, attr_CustomerIdRef},
    {1, "D", 1, attr_FarmIdRef},
    {1, "E", 1, attr_FieldIdRef},
    {1, "F", 1, attr_ResponsibleWorkerIdRef},
    {1, "G", 1, attr_Status},
    {1, "H", 1, attr_DefaultTreatmentZoneCode},
    {1, "I", 1, attr_PositionLostTreatmentZoneCode},
    {1, "J", 1, attr_OutOfFieldTreatmentZoneCode},
    {1, "P007_JobMetaData", 16, attr_P007JobMetaData},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const Task::elem_event_map[] = {
    {1, "TZN", 3, elem_TreatmentZone},
    {1, "TIM", 3, elem_Time},
    {1, "OTP", 3, elem_OperTechPractice},
    {1, "WAN", 3, elem_WorkerAllocation},
    {1, "DAN", 3, elem_DeviceAllocation},
    {1, "CNN", 3, elem_Connection},
    {1, "PAN", 3, elem_ProductAllocation},
    {1, "DLT", 3, elem_DataLogTrigger},
    {1, "CAN", 3, elem_CommentAllocation},
    {1, "TLG", 3, elem_TimeLog},
    {1, "GRD", 3, elem_Grid},
    {1, "CAT", 3, elem_ControlAssignment},
    {1, "GAN", 3, elem_GuidanceAllocation},
    {1, "P917_comment", 12, elem_P917Comment},
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const Task::known_elements[] = {
    {1, "TZN", 3},
    {1, "TIM", 3},
    {1, "OTP", 3},
    {1, "WAN", 3},
    {1, "DAN", 3},
    {1, "CNN", 3},
    {1, "PAN", 3},
    {1, "DLT", 3},
    {1, "CAN", 3},
    {1, "TLG", 3},
    {1, "GRD", 3},
    {1, "CAT", 3},
    {1, "GAN", 3},
    {1, "P917_comment", 12},
    {0, nullptr, 0},
};
lmx::elmx_error Task::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "TSK", __LINE__); }
lmx::elmx_error Task::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_complex_content, known_elements, true, __LINE__}, &lmx::xmlReader::addNewTask);
}
bool Task::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_Id: return read_attribute(reader, m_Id, spec_id_TSK_98, __LINE__, error);
    case attr_Designator: return read_attribute(reader, m_Designator, spec_text_32, __LINE__, error);
    case attr_CustomerIdRef: return read_attribute(reader, m_CustomerIdRef, spec_id_CTR_99, __LINE__, error);
    case attr_FarmIdRef: return read_attribute(reader, m_FarmIdRef, spec_id_FRM_100, __LINE__, error);
    case attr_FieldIdRef: return read_attribute(reader, m_FieldIdRef, spec_id_PFD_101, __LINE__, error);
    case attr_ResponsibleWorkerIdRef: return read_attribute(reader, m_ResponsibleWorkerIdRef, spec_id_WKR_102, __LINE__, error);
    case attr_Status: return read_attribute(reader, m_Status, spec_one_of_1_to_6, __LINE__, error);
    case attr_DefaultTreatmentZoneCode: return read_attribute(reader, m_DefaultTreatmentZoneCode, spec_range_0_to_254_uint8, __LINE__, error);
    case attr_PositionLostTreatmentZoneCode: return read_attribute(reader, m_PositionLostTreatmentZoneCode, spec_range_0_to_254_uint8, __LINE__, error);
    case attr_OutOfFieldTreatmentZoneCode: return read_attribute(reader, m_OutOfFieldTreatmentZoneCode, spec_range_0_to_254_uint8, __LINE__, error);
    case attr_P007JobMetaData: return read_attribute(reader, m_P007JobMetaData, spec_any_text, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* Task::accept_attribute(lmx::plain_attribute const& attribute) {
  switch (attribute.letter()) {
    case 'A': return binding::accept_attribute(m_Id, spec_id_TSK_98, attribute);
    case 'B': return binding::accept_attribute(m_Designator, spec_text_32, attribute);
    case 'C': return binding::accept_attribute(m_CustomerIdRef, spec_id_CTR_99, attribute);
    case 'D': return binding::accept_attribute(m_FarmIdRef, spec_id_FRM_100, attribute);
    case 'E': return binding::accept_attribute(m_FieldIdRef, spec_id_PFD_101, attribute);
    case 'F': return binding::accept_attribute(m_ResponsibleWorkerIdRef, spec_id_WKR_102, attribute);
    case 'G': return binding::accept_attribute(m_Status, spec_one_of_1_to_6, attribute);
    case 'H': return binding::accept_attribute(m_DefaultTreatmentZoneCode, spec_range_0_to_254_uint8, attribute);
    case 'I': return binding::accept_attribute(m_PositionLostTreatmentZoneCode, spec_range_0_to_254_uint8, attribute);
    case 'J': return binding::accept_attribute(m_OutOfFieldTreatmentZoneCode, spec_range_0_to_254_uint8, attribute);
  }
  return nullptr;
}
bool Task::has_required_attributes() const { return m_Id.is_set() && m_Status.is_set(); }
lmx::elmx_error Task::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "TSK", __LINE__, has_required_attributes());
}
bool Task::unmarshal_body(lmx::xmlReader& reader, lmx::elmx_error* error) { return read_wrappers(reader, mInnerTask, false, {elem_event_map, "TSK", __LINE__}, error); }
lmx::elmx_error Task::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void Task::marshal_attributes(lmx::c_xml_writer& writer) const {
  write_attribute(writer, "A", m_Id, spec_id_TSK_98);
  write_attribute(writer, "B", m_Designator, spec_text_32);
  write_attribute(writer, "C", m_CustomerIdRef, spec_id_CTR_99);
  write_attribute(writer, "D", m_FarmIdRef, spec_id_FRM_100);
  write_attribute(writer, "E", m_FieldIdRef, spec_id_PFD_101);
  write_attribute(writer, "F", m_ResponsibleWorkerIdRef, spec_id_WKR_102);
  write_attribute(writer, "G", m_Status, spec_one_of_1_to_6);
  write_attribute(writer, "H", m_DefaultTreatmentZoneCode, spec_range_0_to_254_uint8);
  write_attribute(writer, "I", m_PositionLostTreatmentZoneCode, spec_range_0_to_254_uint8);
  write_attribute(writer, "J", m_OutOfFieldTreatmentZoneCode, spec_range_0_to_254_uint8);
  write_attribute(writer, "P007_JobMetaData", m_P007JobMetaData, spec_any_text);
}
lmx::elmx_error Task::marshal_child_elements(lmx::c_xml_writer& writer) const {
  return write_wrappers(writer, mInnerTask);
}
bool Task::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_Id.is_set(), "A", __LINE__) &&
         check_occurs(tracker, m_Status.is_set(), "G", __LINE__);
}
bool Task::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link) && check_wrappers(&link, mInnerTask);
}
InnerTask const& Task::GetInnerTask(std::size_t index) const { LMX_ASSERT(index < mInnerTask.size()); return mInnerTask.get(index); }
InnerTask& Task::GetInnerTask(std::size_t index) { return mInnerTask.get_or_append(index); }
InnerTask& Task::AppendInnerTask() { return mInnerTask.append(); }
void Task::AppendInnerTask(InnerTask* value) { mInnerTask.append(std::unique_ptr<InnerTask>(value)); }
InnerTask& Task::InsertInnerTask(std::size_t index) { return mInnerTask.insert(index); }
void Task::InsertInnerTask(std::size_t index, InnerTask* value) { mInnerTask.insert(index, std::unique_ptr<InnerTask>(value)); }
void Task::AssignInnerTask(std::size_t index, InnerTask const& value) { mInnerTask.assign(index, value); }
void Task::AssignInnerTask(std::size_t index, InnerTask* value) { mInnerTask.assign(index, std::unique_ptr<InnerTask>(value)); }
InnerTask& Task::BackInnerTask() { return mInnerTask.back(); }
void Task::DeleteInnerTask(std::size_t index) { LMX_ASSERT(index < mInnerTask.size()); mInnerTask.erase(index); }
void Task::ClearInnerTask() { mInnerTask.clear(); }
std::size_t Task::SizeInnerTask() const { return mInnerTask.size(); }
elmx_enums Task::GetenumStatus() const { return enum_code(list_34, m_Status.get()); }
bool Task::SetenumStatus(elmx_enums code) { return set_enum(list_34, code, m_Status); }

// ---- TreatmentZone ----

InnerTreatmentZone::InnerTreatmentZone() { init(); }
InnerTreatmentZone::InnerTreatmentZone(InnerTreatmentZone const& other) = default;
InnerTreatmentZone::InnerTreatmentZone(InnerTreatmentZone&& other) noexcept : chosen(std::exchange(other.chosen, NothingChosen)), m_held(std::move(other.m_held)) {}
InnerTreatmentZone::InnerTreatmentZone(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_OK; unmarshal(reader, error); }
InnerTreatmentZone* InnerTreatmentZone::clone() const { return new InnerTreatmentZone(*this); }
InnerTreatmentZone::~InnerTreatmentZone() = default;
InnerTreatmentZone& InnerTreatmentZone::operator=(InnerTreatmentZone const& other) { InnerTreatmentZone copy(other); swap(copy); return *this; }
InnerTreatmentZone& InnerTreatmentZone::operator=(InnerTreatmentZone&& other) noexcept { InnerTreatmentZone taken(std::move(other)); swap(taken); return *this; }
void InnerTreatmentZone::swap(InnerTreatmentZone& other) noexcept { std::swap(chosen, other.chosen); std::swap(m_held, other.m_held); }
void InnerTreatmentZone::reset() { InnerTreatmentZone empty; swap(empty); }
void InnerTreatmentZone::init() { chosen = NothingChosen; }

lmx::s_event_map const InnerTreatmentZone::elem_event_map[] = {
    {1, "PLN", 3, elem_Polygon},
    {1, "PDV", 3, elem_ProcessDataVariable},
    {0, nullptr, 0, 0},
};
void InnerTreatmentZone::release_choice() { m_held.release(); chosen = NothingChosen; }
bool InnerTreatmentZone::IsOccursOk(lmx::c_check_tracker*) const { return true; }
bool InnerTreatmentZone::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  if (!IsOccursOk(&link)) return false;
  switch (chosen) {
    case PolygonChosen: return m_held.check(&link, "PLN");
    case ProcessDataVariableChosen: return m_held.check(&link, "PDV");
  }
  return true;
}
bool InnerTreatmentZone::IsMember(lmx::xmlReader& reader) { return is_member(reader, elem_event_map); }
bool InnerTreatmentZone::unmarshal(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(elem_event_map, lmx::EXAE_ELEMENT);
  switch (reader.m_event) {
    case elem_Polygon: return read_run(reader, new_run<Polygon>(chosen, m_held, PolygonChosen), elem_Polygon, {elem_event_map, "TZN", __LINE__}, error);
    case elem_ProcessDataVariable: return read_run(reader, new_run<ProcessDataVariable>(chosen, m_held, ProcessDataVariableChosen), elem_ProcessDataVariable, {elem_event_map, "TZN", __LINE__}, error);
  }
  return true;
}
lmx::elmx_error InnerTreatmentZone::marshal(lmx::c_xml_writer& writer, char const*) const { return marshal_child_elements(writer); }
lmx::elmx_error InnerTreatmentZone::marshal_child_elements(lmx::c_xml_writer& writer) const { return write_choice(writer, m_held, chosen, NothingChosen, elem_event_map, __LINE__); }

void InnerTreatmentZone::SelectPolygon() { selected_run<Polygon>(chosen, m_held, PolygonChosen); }
Polygon const& InnerTreatmentZone::GetPolygon(std::size_t index) const { return run_at<Polygon>(m_held, {is_chosen(chosen, m_held, PolygonChosen), "chosen == PolygonChosen"}, index, "index < u.mPolygon->size()"); }
Polygon& InnerTreatmentZone::GetPolygon(std::size_t index) { return selected_run<Polygon>(chosen, m_held, PolygonChosen).get_or_append(index); }
Polygon& InnerTreatmentZone::AppendPolygon() { return selected_run<Polygon>(chosen, m_held, PolygonChosen).append(); }
void InnerTreatmentZone::AppendPolygon(Polygon* value) { std::unique_ptr<Polygon> owned(value); selected_run<Polygon>(chosen, m_held, PolygonChosen).append(std::move(owned)); }
Polygon& InnerTreatmentZone::InsertPolygon(std::size_t index) { return selected_run<Polygon>(chosen, m_held, PolygonChosen).insert(index); }
void InnerTreatmentZone::InsertPolygon(std::size_t index, Polygon* value) { std::unique_ptr<Polygon> owned(value); selected_run<Polygon>(chosen, m_held, PolygonChosen).insert(index, std::move(owned)); }
void InnerTreatmentZone::AssignPolygon(std::size_t index, Polygon const& value) { selected_run<Polygon>(chosen, m_held, PolygonChosen).assign(index, value); }
void InnerTreatmentZone::AssignPolygon(std::size_t index, Polygon* value) { std::unique_ptr<Polygon> owned(value); selected_run<Polygon>(chosen, m_held, PolygonChosen).assign(index, std::move(owned)); }
Polygon& InnerTreatmentZone::BackPolygon() { return selected_run<Polygon>(chosen, m_held, PolygonChosen).back(); }
void InnerTreatmentZone::DeletePolygon(std::size_t index) { erase_at<Polygon>(m_held, {is_chosen(chosen, m_held, PolygonChosen), "chosen == PolygonChosen"}, index, "index < u.mPolygon->size()"); }
void InnerTreatmentZone::ClearPolygon() { selected_run<Polygon>(chosen, m_held, PolygonChosen).clear(); }
std::size_t InnerTreatmentZone::SizePolygon() const { return run_size<Polygon>(m_held, m_held.holds(PolygonChosen)); }

void InnerTreatmentZone::SelectProcessDataVariable() { selected_run<ProcessDataVariable>(chosen, m_held, ProcessDataVariableChosen); }
ProcessDataVariable const& InnerTreatmentZone::GetProcessDataVariable(std::size_t index) const { return run_at<ProcessDataVariable>(m_held, {is_chosen(chosen, m_held, ProcessDataVariableChosen), "chosen == ProcessDataVariableChosen"}, index, "index < u.mProcessDataVariable->size()"); }
ProcessDataVariable& InnerTreatmentZone::GetProcessDataVariable(std::size_t index) { return selected_run<ProcessDataVariable>(chosen, m_held, ProcessDataVariableChosen).get_or_append(index); }
ProcessDataVariable& InnerTreatmentZone::AppendProcessDataVariable() { return selected_run<ProcessDataVariable>(chosen, m_held, ProcessDataVariableChosen).append(); }
void InnerTreatmentZone::AppendProcessDataVariable(ProcessDataVariable* value) { std::unique_ptr<ProcessDataVariable> owned(value); selected_run<ProcessDataVariable>(chosen, m_held, ProcessDataVariableChosen).append(std::move(owned)); }
ProcessDataVariable& InnerTreatmentZone::InsertProcessDataVariable(std::size_t index) { return selected_run<ProcessDataVariable>(chosen, m_held, ProcessDataVariableChosen).insert(index); }
void InnerTreatmentZone::InsertProcessDataVariable(std::size_t index, ProcessDataVariable* value) { std::unique_ptr<ProcessDataVariable> owned(value); selected_run<ProcessDataVariable>(chosen, m_held, ProcessDataVariableChosen).insert(index, std::move(owned)); }
void InnerTreatmentZone::AssignProcessDataVariable(std::size_t index, ProcessDataVariable const& value) { selected_run<ProcessDataVariable>(chosen, m_held, ProcessDataVariableChosen).assign(index, value); }
void InnerTreatmentZone::AssignProcessDataVariable(std::size_t index, ProcessDataVariable* value) { std::unique_ptr<ProcessDataVariable> owned(value); selected_run<ProcessDataVariable>(chosen, m_held, ProcessDataVariableChosen).assign(index, std::move(owned)); }
ProcessDataVariable& InnerTreatmentZone::BackProcessDataVariable() { return selected_run<ProcessDataVariable>(chosen, m_held, ProcessDataVariableChosen).back(); }
void InnerTreatmentZone::DeleteProcessDataVariable(std::size_t index) { erase_at<ProcessDataVariable>(m_held, {is_chosen(chosen, m_held, ProcessDataVariableChosen), "chosen == ProcessDataVariableChosen"}, index, "index < u.mProcessDataVariable->size()"); }
void InnerTreatmentZone::ClearProcessDataVariable() { selected_run<ProcessDataVariable>(chosen, m_held, ProcessDataVariableChosen).clear(); }
std::size_t InnerTreatmentZone::SizeProcessDataVariable() const { return run_size<ProcessDataVariable>(m_held, m_held.holds(ProcessDataVariableChosen)); }

TreatmentZone::TreatmentZone() { init(); }
TreatmentZone::TreatmentZone(TreatmentZone const& other) = default;
TreatmentZone::TreatmentZone(TreatmentZone&& other) noexcept = default;
TreatmentZone::TreatmentZone(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
TreatmentZone* TreatmentZone::clone() const { return new TreatmentZone(*this); }
TreatmentZone::~TreatmentZone() = default;
TreatmentZone& TreatmentZone::operator=(TreatmentZone const& other) { TreatmentZone copy(other); swap(copy); return *this; }
TreatmentZone& TreatmentZone::operator=(TreatmentZone&& other) noexcept = default;
void TreatmentZone::swap(TreatmentZone& other) noexcept { std::swap(*this, other); }
void TreatmentZone::reset() { TreatmentZone empty; swap(empty); }
void TreatmentZone::init() {}

lmx::s_event_map const TreatmentZone::attr_event_map[] = {
    {1, "A", 1, attr_Code},
    {1, "B", 1, attr_Designator},
    {1, "C", 1, attr_Colour},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const TreatmentZone::elem_event_map[] = {
    {1, "PLN", 3, elem_Polygon},
    {1, "PDV", 3, elem_ProcessDataVariable},
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const TreatmentZone::known_elements[] = {
    {1, "PLN", 3},
    {1, "PDV", 3},
    {0, nullptr, 0},
};
lmx::elmx_error TreatmentZone::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "TZN", __LINE__); }
lmx::elmx_error TreatmentZone::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_complex_content, known_elements, true, __LINE__});
}
bool TreatmentZone::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_Code: return read_attribute(reader, m_Code, spec_range_0_to_254_uint8, __LINE__, error);
    case attr_Designator: return read_attribute(reader, m_Designator, spec_text_32, __LINE__, error);
    case attr_Colour: return read_attribute(reader, m_Colour, spec_range_0_to_254_uint8, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* TreatmentZone::accept_attribute(lmx::plain_attribute const& attribute) {
  switch (attribute.letter()) {
    case 'A': return binding::accept_attribute(m_Code, spec_range_0_to_254_uint8, attribute);
    case 'B': return binding::accept_attribute(m_Designator, spec_text_32, attribute);
    case 'C': return binding::accept_attribute(m_Colour, spec_range_0_to_254_uint8, attribute);
  }
  return nullptr;
}
bool TreatmentZone::has_required_attributes() const { return m_Code.is_set(); }
lmx::elmx_error TreatmentZone::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "TZN", __LINE__, has_required_attributes());
}
bool TreatmentZone::unmarshal_body(lmx::xmlReader& reader, lmx::elmx_error* error) { return read_wrappers(reader, mInnerTreatmentZone, false, {elem_event_map, "TZN", __LINE__}, error); }
lmx::elmx_error TreatmentZone::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void TreatmentZone::marshal_attributes(lmx::c_xml_writer& writer) const {
  write_attribute(writer, "A", m_Code, spec_range_0_to_254_uint8);
  write_attribute(writer, "B", m_Designator, spec_text_32);
  write_attribute(writer, "C", m_Colour, spec_range_0_to_254_uint8);
}
lmx::elmx_error TreatmentZone::marshal_child_elements(lmx::c_xml_writer& writer) const {
  return write_wrappers(writer, mInnerTreatmentZone);
}
bool TreatmentZone::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_Code.is_set(), "A", __LINE__);
}
bool TreatmentZone::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link) && check_wrappers(&link, mInnerTreatmentZone);
}
InnerTreatmentZone const& TreatmentZone::GetInnerTreatmentZone(std::size_t index) const { LMX_ASSERT(index < mInnerTreatmentZone.size()); return mInnerTreatmentZone.get(index); }
InnerTreatmentZone& TreatmentZone::GetInnerTreatmentZone(std::size_t index) { return mInnerTreatmentZone.get_or_append(index); }
InnerTreatmentZone& TreatmentZone::AppendInnerTreatmentZone() { return mInnerTreatmentZone.append(); }
void TreatmentZone::AppendInnerTreatmentZone(InnerTreatmentZone* value) { mInnerTreatmentZone.append(std::unique_ptr<InnerTreatmentZone>(value)); }
InnerTreatmentZone& TreatmentZone::InsertInnerTreatmentZone(std::size_t index) { return mInnerTreatmentZone.insert(index); }
void TreatmentZone::InsertInnerTreatmentZone(std::size_t index, InnerTreatmentZone* value) { mInnerTreatmentZone.insert(index, std::unique_ptr<InnerTreatmentZone>(value)); }
void TreatmentZone::AssignInnerTreatmentZone(std::size_t index, InnerTreatmentZone const& value) { mInnerTreatmentZone.assign(index, value); }
void TreatmentZone::AssignInnerTreatmentZone(std::size_t index, InnerTreatmentZone* value) { mInnerTreatmentZone.assign(index, std::unique_ptr<InnerTreatmentZone>(value)); }
InnerTreatmentZone& TreatmentZone::BackInnerTreatmentZone() { return mInnerTreatmentZone.back(); }
void TreatmentZone::DeleteInnerTreatmentZone(std::size_t index) { LMX_ASSERT(index < mInnerTreatmentZone.size()); mInnerTreatmentZone.erase(index); }
void TreatmentZone::ClearInnerTreatmentZone() { mInnerTreatmentZone.clear(); }
std::size_t TreatmentZone::SizeInnerTreatmentZone() const { return mInnerTreatmentZone.size(); }

// ---- ProcessDataVariable ----

InnerProcessDataVariable::InnerProcessDataVariable() { init(); }
InnerProcessDataVariable::InnerProcessDataVariable(InnerProcessDataVariable const& other) = default;
InnerProcessDataVariable::InnerProcessDataVariable(InnerProcessDataVariable&& other) noexcept : chosen(std::exchange(other.chosen, NothingChosen)), m_held(std::move(other.m_held)) {}
InnerProcessDataVariable::InnerProcessDataVariable(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_OK; unmarshal(reader, error); }
InnerProcessDataVariable* InnerProcessDataVariable::clone() const { return new InnerProcessDataVariable(*this); }
InnerProcessDataVariable::~InnerProcessDataVariable() = default;
InnerProcessDataVariable& InnerProcessDataVariable::operator=(InnerProcessDataVariable const& other) { InnerProcessDataVariable copy(other); swap(copy); return *this; }
InnerProcessDataVariable& InnerProcessDataVariable::operator=(InnerProcessDataVariable&& other) noexcept { InnerProcessDataVariable taken(std::move(other)); swap(taken); return *this; }
void InnerProcessDataVariable::swap(InnerProcessDataVariable& other) noexcept { std::swap(chosen, other.chosen); std::swap(m_held, other.m_held); }
void InnerProcessDataVariable::reset() { InnerProcessDataVariable empty; swap(empty); }
void InnerProcessDataVariable::init() { chosen = NothingChosen; }

lmx::s_event_map const InnerProcessDataVariable::elem_event_map[] = {
    {1, "PDV", 3, elem_ProcessDataVariable},
    {0, nullptr, 0, 0},
};
void InnerProcessDataVariable::release_choice() { m_held.release(); chosen = NothingChosen; }
bool InnerProcessDataVariable::IsOccursOk(lmx::c_check_tracker*) const { return true; }
bool InnerProcessDataVariable::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  if (!IsOccursOk(&link)) return false;
  switch (chosen) {
    case ProcessDataVariableChosen: return m_held.check(&link, "PDV");
  }
  return true;
}
bool InnerProcessDataVariable::IsMember(lmx::xmlReader& reader) { return is_member(reader, elem_event_map); }
bool InnerProcessDataVariable::unmarshal(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(elem_event_map, lmx::EXAE_ELEMENT);
  switch (reader.m_event) {
    case elem_ProcessDataVariable: return read_run(reader, new_run<ProcessDataVariable>(chosen, m_held, ProcessDataVariableChosen), elem_ProcessDataVariable, {elem_event_map, "PDV", __LINE__}, error);
  }
  return true;
}
lmx::elmx_error InnerProcessDataVariable::marshal(lmx::c_xml_writer& writer, char const*) const { return marshal_child_elements(writer); }
lmx::elmx_error InnerProcessDataVariable::marshal_child_elements(lmx::c_xml_writer& writer) const { return write_choice(writer, m_held, chosen, NothingChosen, elem_event_map, __LINE__); }

void InnerProcessDataVariable::SelectProcessDataVariable() { selected_run<ProcessDataVariable>(chosen, m_held, ProcessDataVariableChosen); }
ProcessDataVariable const& InnerProcessDataVariable::GetProcessDataVariable(std::size_t index) const { return run_at<ProcessDataVariable>(m_held, {is_chosen(chosen, m_held, ProcessDataVariableChosen), "chosen == ProcessDataVariableChosen"}, index, "index < u.mProcessDataVariable->size()"); }
ProcessDataVariable& InnerProcessDataVariable::GetProcessDataVariable(std::size_t index) { return selected_run<ProcessDataVariable>(chosen, m_held, ProcessDataVariableChosen).get_or_append(index); }
ProcessDataVariable& InnerProcessDataVariable::AppendProcessDataVariable() { return selected_run<ProcessDataVariable>(chosen, m_held, ProcessDataVariableChosen).append(); }
void InnerProcessDataVariable::AppendProcessDataVariable(ProcessDataVariable* value) { std::unique_ptr<ProcessDataVariable> owned(value); selected_run<ProcessDataVariable>(chosen, m_held, ProcessDataVariableChosen).append(std::move(owned)); }
ProcessDataVariable& InnerProcessDataVariable::InsertProcessDataVariable(std::size_t index) { return selected_run<ProcessDataVariable>(chosen, m_held, ProcessDataVariableChosen).insert(index); }
void InnerProcessDataVariable::InsertProcessDataVariable(std::size_t index, ProcessDataVariable* value) { std::unique_ptr<ProcessDataVariable> owned(value); selected_run<ProcessDataVariable>(chosen, m_held, ProcessDataVariableChosen).insert(index, std::move(owned)); }
void InnerProcessDataVariable::AssignProcessDataVariable(std::size_t index, ProcessDataVariable const& value) { selected_run<ProcessDataVariable>(chosen, m_held, ProcessDataVariableChosen).assign(index, value); }
void InnerProcessDataVariable::AssignProcessDataVariable(std::size_t index, ProcessDataVariable* value) { std::unique_ptr<ProcessDataVariable> owned(value); selected_run<ProcessDataVariable>(chosen, m_held, ProcessDataVariableChosen).assign(index, std::move(owned)); }
ProcessDataVariable& InnerProcessDataVariable::BackProcessDataVariable() { return selected_run<ProcessDataVariable>(chosen, m_held, ProcessDataVariableChosen).back(); }
void InnerProcessDataVariable::DeleteProcessDataVariable(std::size_t index) { erase_at<ProcessDataVariable>(m_held, {is_chosen(chosen, m_held, ProcessDataVariableChosen), "chosen == ProcessDataVariableChosen"}, index, "index < u.mProcessDataVariable->size()"); }
void InnerProcessDataVariable::ClearProcessDataVariable() { selected_run<ProcessDataVariable>(chosen, m_held, ProcessDataVariableChosen).clear(); }
std::size_t InnerProcessDataVariable::SizeProcessDataVariable() const { return run_size<ProcessDataVariable>(m_held, m_held.holds(ProcessDataVariableChosen)); }

ProcessDataVariable::ProcessDataVariable() { init(); }
ProcessDataVariable::ProcessDataVariable(ProcessDataVariable const& other) = default;
ProcessDataVariable::ProcessDataVariable(ProcessDataVariable&& other) noexcept = default;
ProcessDataVariable::ProcessDataVariable(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
ProcessDataVariable* ProcessDataVariable::clone() const { return new ProcessDataVariable(*this); }
ProcessDataVariable::~ProcessDataVariable() = default;
ProcessDataVariable& ProcessDataVariable::operator=(ProcessDataVariable const& other) { ProcessDataVariable copy(other); swap(copy); return *this; }
ProcessDataVariable& ProcessDataVariable::operator=(ProcessDataVariable&& other) noexcept = default;
void ProcessDataVariable::swap(ProcessDataVariable& other) noexcept { std::swap(*this, other); }
void ProcessDataVariable::reset() { ProcessDataVariable empty; swap(empty); }
void ProcessDataVariable::init() {}

lmx::s_event_map const ProcessDataVariable::attr_event_map[] = {
    {1, "A", 1, attr_DDI},
    {1, "B", 1, attr_Value},
    {1, "C", 1, attr_ProductIdRef},
    {1, "D", 1, attr_DeviceElementIdRef},
    {1, "E", 1, attr_ValuePresentationIdRef},
    {1, "F", 1, attr_ActualCulturalPracticeValue},
    {1, "G", 1, attr_ElementTypeInstanceValue},
    {1, "P917_rxmap", 10, attr_P917Rxmap},
    {1, "P917_rxcolumn", 13, attr_P917Rxcolumn},
    {1, "P917_rxunit", 11, attr_P917Rxunit},
    {1, "P917_rxconvrate", 15, attr_P917Rxconvrate},
    {1, "P917_rxwoconvrate", 17, attr_P917Rxwoconvrate},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const ProcessDataVariable::elem_event_map[] = {
    {1, "PDV", 3, elem_ProcessDataVariable},
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const ProcessDataVariable::known_elements[] = {
    {1, "PDV", 3},
    {0, nullptr, 0},
};
lmx::elmx_error ProcessDataVariable::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "PDV", __LINE__); }
lmx::elmx_error ProcessDataVariable::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_complex_content, known_elements, true, __LINE__});
}
bool ProcessDataVariable::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_DDI: return read_attribute(reader, m_DDI, spec_bytes_2, __LINE__, error);
    case attr_Value: return read_attribute(reader, m_Value, spec_range_minus_2147483648_to_2147483647_int32, __LINE__, error);
    case attr_ProductIdRef: return read_attribute(reader, m_ProductIdRef, spec_id_PDT_83, __LINE__, error);
    case attr_DeviceElementIdRef: return read_attribute(reader, m_DeviceElementIdRef, spec_id_DET_84, __LINE__, error);
    case attr_ValuePresentationIdRef: return read_attribute(reader, m_rare.get_or_create().m_ValuePresentationIdRef, spec_id_VPN_85, __LINE__, error);
    case attr_ActualCulturalPracticeValue: return read_attribute(reader, m_rare.get_or_create().m_ActualCulturalPracticeValue, spec_range_minus_2147483648_to_2147483647_int32, __LINE__, error);
    case attr_ElementTypeInstanceValue: return read_attribute(reader, m_rare.get_or_create().m_ElementTypeInstanceValue, spec_range_minus_2147483648_to_2147483647_int32, __LINE__, error);
    case attr_P917Rxmap: return read_attribute(reader, m_rare.get_or_create().m_P917Rxmap, spec_attached_file_86, __LINE__, error);
    case attr_P917Rxcolumn: return read_attribute(reader, m_rare.get_or_create().m_P917Rxcolumn, spec_text_64, __LINE__, error);
    case attr_P917Rxunit: return read_attribute(reader, m_rare.get_or_create().m_P917Rxunit, spec_text_64, __LINE__, error);
    case attr_P917Rxconvrate: return read_attribute(reader, m_rare.get_or_create().m_P917Rxconvrate, spec_scale_factor, __LINE__, error);
    case attr_P917Rxwoconvrate: return read_attribute(reader, m_rare.get_or_create().m_P917Rxwoconvrate, spec_scale_factor, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* ProcessDataVariable::accept_attribute(lmx::plain_attribute const& attribute) {
  switch (attribute.letter()) {
    case 'A': return binding::accept_attribute(m_DDI, spec_bytes_2, attribute);
    case 'B': return binding::accept_attribute(m_Value, spec_range_minus_2147483648_to_2147483647_int32, attribute);
    case 'C': return binding::accept_attribute(m_ProductIdRef, spec_id_PDT_83, attribute);
    case 'D': return binding::accept_attribute(m_DeviceElementIdRef, spec_id_DET_84, attribute);
    case 'E': return binding::accept_attribute(m_rare.get_or_create().m_ValuePresentationIdRef, spec_id_VPN_85, attribute);
    case 'F': return binding::accept_attribute(m_rare.get_or_create().m_ActualCulturalPracticeValue, spec_range_minus_2147483648_to_2147483647_int32, attribute);
    case 'G': return binding::accept_attribute(m_rare.get_or_create().m_ElementTypeInstanceValue, spec_range_minus_2147483648_to_2147483647_int32, attribute);
  }
  return nullptr;
}
bool ProcessDataVariable::has_required_attributes() const { return m_DDI.is_set() && m_Value.is_set(); }
lmx::elmx_error ProcessDataVariable::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "PDV", __LINE__, has_required_attributes());
}
bool ProcessDataVariable::unmarshal_body(lmx::xmlReader& reader, lmx::elmx_error* error) { return read_wrappers(reader, mInnerProcessDataVariable, false, {elem_event_map, "PDV", __LINE__}, error); }
lmx::elmx_error ProcessDataVariable::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void ProcessDataVariable::marshal_attributes(lmx::c_xml_writer& writer) const {
  auto const* const rare = m_rare.find();
  write_attribute(writer, "A", m_DDI, spec_bytes_2);
  write_attribute(writer, "B", m_Value, spec_range_minus_2147483648_to_2147483647_int32);
  write_attribute(writer, "C", m_ProductIdRef, spec_id_PDT_83);
  write_attribute(writer, "D", m_DeviceElementIdRef, spec_id_DET_84);
  if (rare != nullptr) {
    write_attribute(writer, "E", rare->m_ValuePresentationIdRef, spec_id_VPN_85);
    write_attribute(writer, "F", rare->m_ActualCulturalPracticeValue, spec_range_minus_2147483648_to_2147483647_int32);
    write_attribute(writer, "G", rare->m_ElementTypeInstanceValue, spec_range_minus_2147483648_to_2147483647_int32);
    write_attribute(writer, "P917_rxmap", rare->m_P917Rxmap, spec_attached_file_86);
    write_attribute(writer, "P917_rxcolumn", rare->m_P917Rxcolumn, spec_text_64);
    write_attribute(writer, "P917_rxunit", rare->m_P917Rxunit, spec_text_64);
    write_attribute(writer, "P917_rxconvrate", rare->m_P917Rxconvrate, spec_scale_factor);
    write_attribute(writer, "P917_rxwoconvrate", rare->m_P917Rxwoconvrate, spec_scale_factor);
  }
}
lmx::elmx_error ProcessDataVariable::marshal_child_elements(lmx::c_xml_writer& writer) const {
  return write_wrappers(writer, mInnerProcessDataVariable);
}
bool ProcessDataVariable::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_DDI.is_set(), "A", __LINE__) &&
         check_occurs(tracker, m_Value.is_set(), "B", __LINE__);
}
bool ProcessDataVariable::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link) && check_wrappers(&link, mInnerProcessDataVariable);
}
InnerProcessDataVariable const& ProcessDataVariable::GetInnerProcessDataVariable(std::size_t index) const { LMX_ASSERT(index < mInnerProcessDataVariable.size()); return mInnerProcessDataVariable.get(index); }
InnerProcessDataVariable& ProcessDataVariable::GetInnerProcessDataVariable(std::size_t index) { return mInnerProcessDataVariable.get_or_append(index); }
InnerProcessDataVariable& ProcessDataVariable::AppendInnerProcessDataVariable() { return mInnerProcessDataVariable.append(); }
void ProcessDataVariable::AppendInnerProcessDataVariable(InnerProcessDataVariable* value) { mInnerProcessDataVariable.append(std::unique_ptr<InnerProcessDataVariable>(value)); }
InnerProcessDataVariable& ProcessDataVariable::InsertInnerProcessDataVariable(std::size_t index) { return mInnerProcessDataVariable.insert(index); }
void ProcessDataVariable::InsertInnerProcessDataVariable(std::size_t index, InnerProcessDataVariable* value) { mInnerProcessDataVariable.insert(index, std::unique_ptr<InnerProcessDataVariable>(value)); }
void ProcessDataVariable::AssignInnerProcessDataVariable(std::size_t index, InnerProcessDataVariable const& value) { mInnerProcessDataVariable.assign(index, value); }
void ProcessDataVariable::AssignInnerProcessDataVariable(std::size_t index, InnerProcessDataVariable* value) { mInnerProcessDataVariable.assign(index, std::unique_ptr<InnerProcessDataVariable>(value)); }
InnerProcessDataVariable& ProcessDataVariable::BackInnerProcessDataVariable() { return mInnerProcessDataVariable.back(); }
void ProcessDataVariable::DeleteInnerProcessDataVariable(std::size_t index) { LMX_ASSERT(index < mInnerProcessDataVariable.size()); mInnerProcessDataVariable.erase(index); }
void ProcessDataVariable::ClearInnerProcessDataVariable() { mInnerProcessDataVariable.clear(); }
std::size_t ProcessDataVariable::SizeInnerProcessDataVariable() const { return mInnerProcessDataVariable.size(); }

// ---- Grid ----

Grid::Grid() { init(); }
Grid::Grid(Grid const& other) = default;
Grid::Grid(Grid&& other) noexcept = default;
Grid::Grid(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
Grid* Grid::clone() const { return new Grid(*this); }
Grid::~Grid() = default;
Grid& Grid::operator=(Grid const& other) { Grid copy(other); swap(copy); return *this; }
Grid& Grid::operator=(Grid&& other) noexcept = default;
void Grid::swap(Grid& other) noexcept { std::swap(*this, other); }
void Grid::reset() { Grid empty; swap(empty); }
void Grid::init() {}

lmx::s_event_map const Grid::attr_event_map[] = {
    {1, "A", 1, attr_MinimumNorthPosition},
    {1, "B", 1, attr_MinimumEastPosition},
    {1, "C", 1, attr_CellNorthSize},
    {1, "D", 1, attr_CellEastSize},
    {1, "E", 1, attr_MaximumColumn},
    {1, "F", 1, attr_MaximumRow},
    {1, "G", 1, attr_Filename},
    {1, "H", 1, attr_Filelength},
    {1, "I", 1, attr_Type},
    {1, "J", 1, attr_TreatmentZoneCode},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const Grid::elem_event_map[] = {
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const Grid::known_elements[] = {
    {0, nullptr, 0},
};
lmx::elmx_error Grid::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "GRD", __LINE__); }
lmx::elmx_error Grid::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_empty_content, known_elements, true, __LINE__});
}
bool Grid::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_MinimumNorthPosition: return read_attribute(reader, m_MinimumNorthPosition, spec_degrees_latitude, __LINE__, error);
    case attr_MinimumEastPosition: return read_attribute(reader, m_MinimumEastPosition, spec_degrees_longitude, __LINE__, error);
    case attr_CellNorthSize: return read_attribute(reader, m_CellNorthSize, spec_cell_size, __LINE__, error);
    case attr_CellEastSize: return read_attribute(reader, m_CellEastSize, spec_cell_size, __LINE__, error);
    case attr_MaximumColumn: return read_attribute(reader, m_MaximumColumn, spec_range_0_to_4294967295_uint32, __LINE__, error);
    case attr_MaximumRow: return read_attribute(reader, m_MaximumRow, spec_range_0_to_4294967295_uint32, __LINE__, error);
    case attr_Filename: return read_attribute(reader, m_Filename, spec_file_GRD_62, __LINE__, error);
    case attr_Filelength: return read_attribute(reader, m_Filelength, spec_range_0_to_4294967294_uint32, __LINE__, error);
    case attr_Type: return read_attribute(reader, m_Type, spec_one_of_1_2, __LINE__, error);
    case attr_TreatmentZoneCode: return read_attribute(reader, m_TreatmentZoneCode, spec_range_0_to_254_uint8, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* Grid::accept_attribute(lmx::plain_attribute const& attribute) {
  switch (attribute.letter()) {
    case 'A': return binding::accept_attribute(m_MinimumNorthPosition, spec_degrees_latitude, attribute);
    case 'B': return binding::accept_attribute(m_MinimumEastPosition, spec_degrees_longitude, attribute);
    case 'E': return binding::accept_attribute(m_MaximumColumn, spec_range_0_to_4294967295_uint32, attribute);
    case 'F': return binding::accept_attribute(m_MaximumRow, spec_range_0_to_4294967295_uint32, attribute);
    case 'G': return binding::accept_attribute(m_Filename, spec_file_GRD_62, attribute);
    case 'H': return binding::accept_attribute(m_Filelength, spec_range_0_to_4294967294_uint32, attribute);
    case 'I': return binding::accept_attribute(m_Type, spec_one_of_1_2, attribute);
    case 'J': return binding::accept_attribute(m_TreatmentZoneCode, spec_range_0_to_254_uint8, attribute);
  }
  return nullptr;
}
bool Grid::has_required_attributes() const { return m_MinimumNorthPosition.is_set() && m_MinimumEastPosition.is_set() && m_CellNorthSize.is_set() && m_CellEastSize.is_set() && m_MaximumColumn.is_set() && m_MaximumRow.is_set() && m_Filename.is_set() && m_Type.is_set(); }
lmx::elmx_error Grid::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "GRD", __LINE__, has_required_attributes());
}
bool Grid::unmarshal_body(lmx::xmlReader&, lmx::elmx_error*) { return true; }
lmx::elmx_error Grid::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void Grid::marshal_attributes(lmx::c_xml_writer& writer) const {
  write_attribute(writer, "A", m_MinimumNorthPosition, spec_degrees_latitude);
  write_attribute(writer, "B", m_MinimumEastPosition, spec_degrees_longitude);
  write_attribute(writer, "C", m_CellNorthSize, spec_cell_size);
  write_attribute(writer, "D", m_CellEastSize, spec_cell_size);
  write_attribute(writer, "E", m_MaximumColumn, spec_range_0_to_4294967295_uint32);
  write_attribute(writer, "F", m_MaximumRow, spec_range_0_to_4294967295_uint32);
  write_attribute(writer, "G", m_Filename, spec_file_GRD_62);
  write_attribute(writer, "H", m_Filelength, spec_range_0_to_4294967294_uint32);
  write_attribute(writer, "I", m_Type, spec_one_of_1_2);
  write_attribute(writer, "J", m_TreatmentZoneCode, spec_range_0_to_254_uint8);
}
lmx::elmx_error Grid::marshal_child_elements(lmx::c_xml_writer&) const {
  return lmx::ELMX_OK;
}
bool Grid::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_MinimumNorthPosition.is_set(), "A", __LINE__) &&
         check_occurs(tracker, m_MinimumEastPosition.is_set(), "B", __LINE__) &&
         check_occurs(tracker, m_CellNorthSize.is_set(), "C", __LINE__) &&
         check_occurs(tracker, m_CellEastSize.is_set(), "D", __LINE__) &&
         check_occurs(tracker, m_MaximumColumn.is_set(), "E", __LINE__) &&
         check_occurs(tracker, m_MaximumRow.is_set(), "F", __LINE__) &&
         check_occurs(tracker, m_Filename.is_set(), "G", __LINE__) &&
         check_occurs(tracker, m_Type.is_set(), "I", __LINE__);
}
bool Grid::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link);
}
elmx_enums Grid::GetenumType() const { return enum_code(list_2, m_Type.get()); }
bool Grid::SetenumType(elmx_enums code) { return set_enum(list_2, code, m_Type); }

// ---- Time ----

InnerTime::InnerTime() { init(); }
InnerTime::InnerTime(InnerTime const& other) = default;
InnerTime::InnerTime(InnerTime&& other) noexcept : chosen(std::exchange(other.chosen, NothingChosen)), m_held(std::move(other.m_held)) {}
InnerTime::InnerTime(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_OK; unmarshal(reader, error); }
InnerTime* InnerTime::clone() const { return new InnerTime(*this); }
InnerTime::~InnerTime() = default;
InnerTime& InnerTime::operator=(InnerTime const& other) { InnerTime copy(other); swap(copy); return *this; }
InnerTime& InnerTime::operator=(InnerTime&& other) noexcept { InnerTime taken(std::move(other)); swap(taken); return *this; }
void InnerTime::swap(InnerTime& other) noexcept { std::swap(chosen, other.chosen); std::swap(m_held, other.m_held); }
void InnerTime::reset() { InnerTime empty; swap(empty); }
void InnerTime::init() { chosen = NothingChosen; }

lmx::s_event_map const InnerTime::elem_event_map[] = {
    {1, "PTN", 3, elem_Position},
    {1, "DLV", 3, elem_DataLogValue},
    {0, nullptr, 0, 0},
};
void InnerTime::release_choice() { m_held.release(); chosen = NothingChosen; }
bool InnerTime::IsOccursOk(lmx::c_check_tracker*) const { return true; }
bool InnerTime::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  if (!IsOccursOk(&link)) return false;
  switch (chosen) {
    case PositionChosen: return m_held.check(&link, "PTN");
    case DataLogValueChosen: return m_held.check(&link, "DLV");
  }
  return true;
}
bool InnerTime::IsMember(lmx::xmlReader& reader) { return is_member(reader, elem_event_map); }
bool InnerTime::unmarshal(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(elem_event_map, lmx::EXAE_ELEMENT);
  switch (reader.m_event) {
    case elem_Position: return read_run(reader, new_run<Position>(chosen, m_held, PositionChosen), elem_Position, {elem_event_map, "TIM", __LINE__}, error, 2);
    case elem_DataLogValue: return read_run(reader, new_run<DataLogValue>(chosen, m_held, DataLogValueChosen), elem_DataLogValue, {elem_event_map, "TIM", __LINE__}, error);
  }
  return true;
}
lmx::elmx_error InnerTime::marshal(lmx::c_xml_writer& writer, char const*) const { return marshal_child_elements(writer); }
lmx::elmx_error InnerTime::marshal_child_elements(lmx::c_xml_writer& writer) const { return write_choice(writer, m_held, chosen, NothingChosen, elem_event_map, __LINE__); }

void InnerTime::SelectPosition() { selected_run<Position>(chosen, m_held, PositionChosen); }
Position const& InnerTime::GetPosition(std::size_t index) const { return run_at<Position>(m_held, {is_chosen(chosen, m_held, PositionChosen), "chosen == PositionChosen"}, index, "index < u.mPosition->size()"); }
Position& InnerTime::GetPosition(std::size_t index) { return selected_run<Position>(chosen, m_held, PositionChosen).get_or_append(index); }
Position& InnerTime::AppendPosition() { return selected_run<Position>(chosen, m_held, PositionChosen).append(); }
void InnerTime::AppendPosition(Position* value) { std::unique_ptr<Position> owned(value); selected_run<Position>(chosen, m_held, PositionChosen).append(std::move(owned)); }
Position& InnerTime::InsertPosition(std::size_t index) { return selected_run<Position>(chosen, m_held, PositionChosen).insert(index); }
void InnerTime::InsertPosition(std::size_t index, Position* value) { std::unique_ptr<Position> owned(value); selected_run<Position>(chosen, m_held, PositionChosen).insert(index, std::move(owned)); }
void InnerTime::AssignPosition(std::size_t index, Position const& value) { selected_run<Position>(chosen, m_held, PositionChosen).assign(index, value); }
void InnerTime::AssignPosition(std::size_t index, Position* value) { std::unique_ptr<Position> owned(value); selected_run<Position>(chosen, m_held, PositionChosen).assign(index, std::move(owned)); }
Position& InnerTime::BackPosition() { return selected_run<Position>(chosen, m_held, PositionChosen).back(); }
void InnerTime::DeletePosition(std::size_t index) { erase_at<Position>(m_held, {is_chosen(chosen, m_held, PositionChosen), "chosen == PositionChosen"}, index, "index < u.mPosition->size()"); }
void InnerTime::ClearPosition() { selected_run<Position>(chosen, m_held, PositionChosen).clear(); }
std::size_t InnerTime::SizePosition() const { return run_size<Position>(m_held, m_held.holds(PositionChosen)); }

void InnerTime::SelectDataLogValue() { selected_run<DataLogValue>(chosen, m_held, DataLogValueChosen); }
DataLogValue const& InnerTime::GetDataLogValue(std::size_t index) const { return run_at<DataLogValue>(m_held, {is_chosen(chosen, m_held, DataLogValueChosen), "chosen == DataLogValueChosen"}, index, "index < u.mDataLogValue->size()"); }
DataLogValue& InnerTime::GetDataLogValue(std::size_t index) { return selected_run<DataLogValue>(chosen, m_held, DataLogValueChosen).get_or_append(index); }
DataLogValue& InnerTime::AppendDataLogValue() { return selected_run<DataLogValue>(chosen, m_held, DataLogValueChosen).append(); }
void InnerTime::AppendDataLogValue(DataLogValue* value) { std::unique_ptr<DataLogValue> owned(value); selected_run<DataLogValue>(chosen, m_held, DataLogValueChosen).append(std::move(owned)); }
DataLogValue& InnerTime::InsertDataLogValue(std::size_t index) { return selected_run<DataLogValue>(chosen, m_held, DataLogValueChosen).insert(index); }
void InnerTime::InsertDataLogValue(std::size_t index, DataLogValue* value) { std::unique_ptr<DataLogValue> owned(value); selected_run<DataLogValue>(chosen, m_held, DataLogValueChosen).insert(index, std::move(owned)); }
void InnerTime::AssignDataLogValue(std::size_t index, DataLogValue const& value) { selected_run<DataLogValue>(chosen, m_held, DataLogValueChosen).assign(index, value); }
void InnerTime::AssignDataLogValue(std::size_t index, DataLogValue* value) { std::unique_ptr<DataLogValue> owned(value); selected_run<DataLogValue>(chosen, m_held, DataLogValueChosen).assign(index, std::move(owned)); }
DataLogValue& InnerTime::BackDataLogValue() { return selected_run<DataLogValue>(chosen, m_held, DataLogValueChosen).back(); }
void InnerTime::DeleteDataLogValue(std::size_t index) { erase_at<DataLogValue>(m_held, {is_chosen(chosen, m_held, DataLogValueChosen), "chosen == DataLogValueChosen"}, index, "index < u.mDataLogValue->size()"); }
void InnerTime::ClearDataLogValue() { selected_run<DataLogValue>(chosen, m_held, DataLogValueChosen).clear(); }
std::size_t InnerTime::SizeDataLogValue() const { return run_size<DataLogValue>(m_held, m_held.holds(DataLogValueChosen)); }

Time::Time() { init(); }
Time::Time(Time const& other) = default;
Time::Time(Time&& other) noexcept = default;
Time::Time(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
Time* Time::clone() const { return new Time(*this); }
Time::~Time() = default;
Time& Time::operator=(Time const& other) { Time copy(other); swap(copy); return *this; }
Time& Time::operator=(Time&& other) noexcept = default;
void Time::swap(Time& other) noexcept { std::swap(*this, other); }
void Time::reset() { Time empty; swap(empty); }
void Time::init() {}

lmx::s_event_map const Time::attr_event_map[] = {
    {1, "A", 1, attr_Start},
    {1, "B", 1, attr_Stop},
    {1, "C", 1, attr_Duration},
    {1, "D", 1, attr_Type},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const Time::elem_event_map[] = {
    {1, "PTN", 3, elem_Position},
    {1, "DLV", 3, elem_DataLogValue},
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const Time::known_elements[] = {
    {1, "PTN", 3},
    {1, "DLV", 3},
    {0, nullptr, 0},
};
lmx::elmx_error Time::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "TIM", __LINE__); }
lmx::elmx_error Time::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_complex_content, known_elements, true, __LINE__});
}
bool Time::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_Start: return read_attribute(reader, m_Start, spec_date_time, __LINE__, error);
    case attr_Stop: return read_attribute(reader, m_Stop, spec_date_time, __LINE__, error);
    case attr_Duration: return read_attribute(reader, m_Duration, spec_range_0_to_4294967294_uint32, __LINE__, error);
    case attr_Type: return read_attribute(reader, m_Type, spec_one_of_1_2_4_to_8, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* Time::accept_attribute(lmx::plain_attribute const& attribute) {
  switch (attribute.letter()) {
    case 'A': return binding::accept_attribute(m_Start, spec_date_time, attribute);
    case 'B': return binding::accept_attribute(m_Stop, spec_date_time, attribute);
    case 'C': return binding::accept_attribute(m_Duration, spec_range_0_to_4294967294_uint32, attribute);
    case 'D': return binding::accept_attribute(m_Type, spec_one_of_1_2_4_to_8, attribute);
  }
  return nullptr;
}
bool Time::has_required_attributes() const { return m_Start.is_set() && m_Type.is_set(); }
lmx::elmx_error Time::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "TIM", __LINE__, has_required_attributes());
}
bool Time::unmarshal_body(lmx::xmlReader& reader, lmx::elmx_error* error) { return read_wrappers(reader, mInnerTime, false, {elem_event_map, "TIM", __LINE__}, error); }
lmx::elmx_error Time::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void Time::marshal_attributes(lmx::c_xml_writer& writer) const {
  write_attribute(writer, "A", m_Start, spec_date_time);
  write_attribute(writer, "B", m_Stop, spec_date_time);
  write_attribute(writer, "C", m_Duration, spec_range_0_to_4294967294_uint32);
  write_attribute(writer, "D", m_Type, spec_one_of_1_2_4_to_8);
}
lmx::elmx_error Time::marshal_child_elements(lmx::c_xml_writer& writer) const {
  return write_wrappers(writer, mInnerTime);
}
bool Time::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_Start.is_set(), "A", __LINE__) &&
         check_occurs(tracker, m_Type.is_set(), "D", __LINE__);
}
bool Time::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link) && check_wrappers(&link, mInnerTime);
}
InnerTime const& Time::GetInnerTime(std::size_t index) const { LMX_ASSERT(index < mInnerTime.size()); return mInnerTime.get(index); }
InnerTime& Time::GetInnerTime(std::size_t index) { return mInnerTime.get_or_append(index); }
InnerTime& Time::AppendInnerTime() { return mInnerTime.append(); }
void Time::AppendInnerTime(InnerTime* value) { mInnerTime.append(std::unique_ptr<InnerTime>(value)); }
InnerTime& Time::InsertInnerTime(std::size_t index) { return mInnerTime.insert(index); }
void Time::InsertInnerTime(std::size_t index, InnerTime* value) { mInnerTime.insert(index, std::unique_ptr<InnerTime>(value)); }
void Time::AssignInnerTime(std::size_t index, InnerTime const& value) { mInnerTime.assign(index, value); }
void Time::AssignInnerTime(std::size_t index, InnerTime* value) { mInnerTime.assign(index, std::unique_ptr<InnerTime>(value)); }
InnerTime& Time::BackInnerTime() { return mInnerTime.back(); }
void Time::DeleteInnerTime(std::size_t index) { LMX_ASSERT(index < mInnerTime.size()); mInnerTime.erase(index); }
void Time::ClearInnerTime() { mInnerTime.clear(); }
std::size_t Time::SizeInnerTime() const { return mInnerTime.size(); }
elmx_enums Time::GetenumType() const { return enum_code(list_35, m_Type.get()); }
bool Time::SetenumType(elmx_enums code) { return set_enum(list_35, code, m_Type); }

// ---- Position ----

Position::Position() { init(); }
Position::Position(Position const& other) = default;
Position::Position(Position&& other) noexcept = default;
Position::Position(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
Position* Position::clone() const { return new Position(*this); }
Position::~Position() = default;
Position& Position::operator=(Position const& other) { Position copy(other); swap(copy); return *this; }
Position& Position::operator=(Position&& other) noexcept = default;
void Position::swap(Position& other) noexcept { std::swap(*this, other); }
void Position::reset() { Position empty; swap(empty); }
void Position::init() {}

lmx::s_event_map const Position::attr_event_map[] = {
    {1, "A", 1, attr_North},
    {1, "B", 1, attr_East},
    {1, "C", 1, attr_Altitude},
    {1, "D", 1, attr_Status},
    {1, "E", 1, attr_PDOP},
    {1, "F", 1, attr_HDOP},
    {1, "G", 1, attr_NumberOfSatelites},
    {1, "H", 1, attr_GpsUtcTime},
    {1, "I", 1, attr_PgsUtcDate},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const Position::elem_event_map[] = {
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const Position::known_elements[] = {
    {0, nullptr, 0},
};
lmx::elmx_error Position::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "PTN", __LINE__); }
lmx::elmx_error Position::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_empty_content, known_elements, true, __LINE__});
}
bool Position::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_North: return read_attribute(reader, m_North, spec_degrees_latitude, __LINE__, error);
    case attr_East: return read_attribute(reader, m_East, spec_degrees_longitude, __LINE__, error);
    case attr_Altitude: return read_attribute(reader, m_Altitude, spec_range_minus_2147483648_to_2147483647_int32, __LINE__, error);
    case attr_Status: return read_attribute(reader, m_Status, spec_one_of_0_to_15, __LINE__, error);
    case attr_PDOP: return read_attribute(reader, m_PDOP, spec_dilution, __LINE__, error);
    case attr_HDOP: return read_attribute(reader, m_HDOP, spec_dilution, __LINE__, error);
    case attr_NumberOfSatelites: return read_attribute(reader, m_NumberOfSatelites, spec_range_0_to_254_uint8, __LINE__, error);
    case attr_GpsUtcTime: return read_attribute(reader, m_GpsUtcTime, spec_range_0_to_4294967294_uint32, __LINE__, error);
    case attr_PgsUtcDate: return read_attribute(reader, m_PgsUtcDate, spec_range_0_to_65534_uint16, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* Position::accept_attribute(lmx::plain_attribute const& attribute) {
  switch (attribute.letter()) {
    case 'A': return binding::accept_attribute(m_North, spec_degrees_latitude, attribute);
    case 'B': return binding::accept_attribute(m_East, spec_degrees_longitude, attribute);
    case 'C': return binding::accept_attribute(m_Altitude, spec_range_minus_2147483648_to_2147483647_int32, attribute);
    case 'D': return binding::accept_attribute(m_Status, spec_one_of_0_to_15, attribute);
    case 'E': return binding::accept_attribute(m_PDOP, spec_dilution, attribute);
    case 'F': return binding::accept_attribute(m_HDOP, spec_dilution, attribute);
    case 'G': return binding::accept_attribute(m_NumberOfSatelites, spec_range_0_to_254_uint8, attribute);
    case 'H': return binding::accept_attribute(m_GpsUtcTime, spec_range_0_to_4294967294_uint32, attribute);
    case 'I': return binding::accept_attribute(m_PgsUtcDate, spec_range_0_to_65534_uint16, attribute);
  }
  return nullptr;
}
bool Position::has_required_attributes() const { return m_North.is_set() && m_East.is_set() && m_Status.is_set(); }
lmx::elmx_error Position::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "PTN", __LINE__, has_required_attributes());
}
bool Position::unmarshal_body(lmx::xmlReader&, lmx::elmx_error*) { return true; }
lmx::elmx_error Position::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void Position::marshal_attributes(lmx::c_xml_writer& writer) const {
  write_attribute(writer, "A", m_North, spec_degrees_latitude);
  write_attribute(writer, "B", m_East, spec_degrees_longitude);
  write_attribute(writer, "C", m_Altitude, spec_range_minus_2147483648_to_2147483647_int32);
  write_attribute(writer, "D", m_Status, spec_one_of_0_to_15);
  write_attribute(writer, "E", m_PDOP, spec_dilution);
  write_attribute(writer, "F", m_HDOP, spec_dilution);
  write_attribute(writer, "G", m_NumberOfSatelites, spec_range_0_to_254_uint8);
  write_attribute(writer, "H", m_GpsUtcTime, spec_range_0_to_4294967294_uint32);
  write_attribute(writer, "I", m_PgsUtcDate, spec_range_0_to_65534_uint16);
}
lmx::elmx_error Position::marshal_child_elements(lmx::c_xml_writer&) const {
  return lmx::ELMX_OK;
}
bool Position::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_North.is_set(), "A", __LINE__) &&
         check_occurs(tracker, m_East.is_set(), "B", __LINE__) &&
         check_occurs(tracker, m_Status.is_set(), "D", __LINE__);
}
bool Position::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link);
}
elmx_enums Position::GetenumStatus() const { return enum_code(list_32, m_Status.get()); }
bool Position::SetenumStatus(elmx_enums code) { return set_enum(list_32, code, m_Status); }

// ---- DataLogTrigger ----

DataLogTrigger::DataLogTrigger() { init(); }
DataLogTrigger::DataLogTrigger(DataLogTrigger const& other) = default;
DataLogTrigger::DataLogTrigger(DataLogTrigger&& other) noexcept = default;
DataLogTrigger::DataLogTrigger(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
DataLogTrigger* DataLogTrigger::clone() const { return new DataLogTrigger(*this); }
DataLogTrigger::~DataLogTrigger() = default;
DataLogTrigger& DataLogTrigger::operator=(DataLogTrigger const& other) { DataLogTrigger copy(other); swap(copy); return *this; }
DataLogTrigger& DataLogTrigger::operator=(DataLogTrigger&& other) noexcept = default;
void DataLogTrigger::swap(DataLogTrigger& other) noexcept { std::swap(*this, other); }
void DataLogTrigger::reset() { DataLogTrigger empty; swap(empty); }
void DataLogTrigger::init() {}

lmx::s_event_map const DataLogTrigger::attr_event_map[] = {
    {1, "A", 1, attr_DDI},
    {1, "B", 1, attr_Method},
    {1, "C", 1, attr_DistanceInterval},
    {1, "D", 1, attr_TimeInterval},
    {1, "E", 1, attr_ThresholdMinimum},
    {1, "F", 1, attr_ThresholdMaximum},
    {1, "G", 1, attr_ThresholdChange},
    {1, "H", 1, attr_DeviceElementIdRef},
    {1, "I", 1, attr_ValuePresentationIdRef},
    {1, "J", 1, attr_PGN},
    {1, "K", 1, attr_PGNStartBit},
    {1, "L", 1, attr_PGNStopBit},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const DataLogTrigger::elem_event_map[] = {
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const DataLogTrigger::known_elements[] = {
    {0, nullptr, 0},
};
lmx::elmx_error DataLogTrigger::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "DLT", __LINE__); }
lmx::elmx_error DataLogTrigger::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_empty_content, known_elements, true, __LINE__});
}
bool DataLogTrigger::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_DDI: return read_attribute(reader, m_DDI, spec_bytes_2, __LINE__, error);
    case attr_Method: return read_attribute(reader, m_Method, spec_range_1_to_31_uint8, __LINE__, error);
    case attr_DistanceInterval: return read_attribute(reader, m_DistanceInterval, spec_range_0_to_1000000_uint32, __LINE__, error);
    case attr_TimeInterval: return read_attribute(reader, m_TimeInterval, spec_range_0_to_60000_uint16, __LINE__, error);
    case attr_ThresholdMinimum: return read_attribute(reader, m_ThresholdMinimum, spec_range_minus_2147483647_to_2147483647_int32, __LINE__, error);
    case attr_ThresholdMaximum: return read_attribute(reader, m_ThresholdMaximum, spec_range_minus_2147483647_to_2147483647_int32, __LINE__, error);
    case attr_ThresholdChange: return read_attribute(reader, m_ThresholdChange, spec_range_minus_2147483647_to_2147483647_int32, __LINE__, error);
    case attr_DeviceElementIdRef: return read_attribute(reader, m_DeviceElementIdRef, spec_id_DET_44, __LINE__, error);
    case attr_ValuePresentationIdRef: return read_attribute(reader, m_ValuePresentationIdRef, spec_id_VPN_45, __LINE__, error);
    case attr_PGN: return read_attribute(reader, m_PGN, spec_range_0_to_262143_uint32, __LINE__, error);
    case attr_PGNStartBit: return read_attribute(reader, m_PGNStartBit, spec_range_0_to_63_uint8, __LINE__, error);
    case attr_PGNStopBit: return read_attribute(reader, m_PGNStopBit, spec_range_0_to_63_uint8, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* DataLogTrigger::accept_attribute(lmx::plain_attribute const& attribute) {
  switch (attribute.letter()) {
    case 'A': return binding::accept_attribute(m_DDI, spec_bytes_2, attribute);
    case 'B': return binding::accept_attribute(m_Method, spec_range_1_to_31_uint8, attribute);
    case 'C': return binding::accept_attribute(m_DistanceInterval, spec_range_0_to_1000000_uint32, attribute);
    case 'D': return binding::accept_attribute(m_TimeInterval, spec_range_0_to_60000_uint16, attribute);
    case 'E': return binding::accept_attribute(m_ThresholdMinimum, spec_range_minus_2147483647_to_2147483647_int32, attribute);
    case 'F': return binding::accept_attribute(m_ThresholdMaximum, spec_range_minus_2147483647_to_2147483647_int32, attribute);
    case 'G': return binding::accept_attribute(m_ThresholdChange, spec_range_minus_2147483647_to_2147483647_int32, attribute);
    case 'H': return binding::accept_attribute(m_DeviceElementIdRef, spec_id_DET_44, attribute);
    case 'I': return binding::accept_attribute(m_ValuePresentationIdRef, spec_id_VPN_45, attribute);
    case 'J': return binding::accept_attribute(m_PGN, spec_range_0_to_262143_uint32, attribute);
    case 'K': return binding::accept_attribute(m_PGNStartBit, spec_range_0_to_63_uint8, attribute);
    case 'L': return binding::accept_attribute(m_PGNStopBit, spec_range_0_to_63_uint8, attribute);
  }
  return nullptr;
}
bool DataLogTrigger::has_required_attributes() const { return m_DDI.is_set() && m_Method.is_set(); }
lmx::elmx_error DataLogTrigger::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "DLT", __LINE__, has_required_attributes());
}
bool DataLogTrigger::unmarshal_body(lmx::xmlReader&, lmx::elmx_error*) { return true; }
lmx::elmx_error DataLogTrigger::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void DataLogTrigger::marshal_attributes(lmx::c_xml_writer& writer) const {
  write_attribute(writer, "A", m_DDI, spec_bytes_2);
  write_attribute(writer, "B", m_Method, spec_range_1_to_31_uint8);
  write_attribute(writer, "C", m_DistanceInterval, spec_range_0_to_1000000_uint32);
  write_attribute(writer, "D", m_TimeInterval, spec_range_0_to_60000_uint16);
  write_attribute(writer, "E", m_ThresholdMinimum, spec_range_minus_2147483647_to_2147483647_int32);
  write_attribute(writer, "F", m_ThresholdMaximum, spec_range_minus_2147483647_to_2147483647_int32);
  write_attribute(writer, "G", m_ThresholdChange, spec_range_minus_2147483647_to_2147483647_int32);
  write_attribute(writer, "H", m_DeviceElementIdRef, spec_id_DET_44);
  write_attribute(writer, "I", m_ValuePresentationIdRef, spec_id_VPN_45);
  write_attribute(writer, "J", m_PGN, spec_range_0_to_262143_uint32);
  write_attribute(writer, "K", m_PGNStartBit, spec_range_0_to_63_uint8);
  write_attribute(writer, "L", m_PGNStopBit, spec_range_0_to_63_uint8);
}
lmx::elmx_error DataLogTrigger::marshal_child_elements(lmx::c_xml_writer&) const {
  return lmx::ELMX_OK;
}
bool DataLogTrigger::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_DDI.is_set(), "A", __LINE__) &&
         check_occurs(tracker, m_Method.is_set(), "B", __LINE__);
}
bool DataLogTrigger::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link);
}

// ---- DataLogValue ----

DataLogValue::DataLogValue() { init(); }
DataLogValue::DataLogValue(DataLogValue const& other) = default;
DataLogValue::DataLogValue(DataLogValue&& other) noexcept = default;
DataLogValue::DataLogValue(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
DataLogValue* DataLogValue::clone() const { return new DataLogValue(*this); }
DataLogValue::~DataLogValue() = default;
DataLogValue& DataLogValue::operator=(DataLogValue const& other) { DataLogValue copy(other); swap(copy); return *this; }
DataLogValue& DataLogValue::operator=(DataLogValue&& other) noexcept = default;
void DataLogValue::swap(DataLogValue& other) noexcept { std::swap(*this, other); }
void DataLogValue::reset() { DataLogValue empty; swap(empty); }
void DataLogValue::init() {}

lmx::s_event_map const DataLogValue::attr_event_map[] = {
    {1, "A", 1, attr_PrecessDataDDI},
    {1, "B", 1, attr_PrecessDataValue},
    {1, "C", 1, attr_DeviceElementIdRef},
    {1, "D", 1, attr_PGN},
    {1, "E", 1, attr_PGNStartBit},
    {1, "F", 1, attr_PGNStopBit},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const DataLogValue::elem_event_map[] = {
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const DataLogValue::known_elements[] = {
    {0, nullptr, 0},
};
lmx::elmx_error DataLogValue::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "DLV", __LINE__); }
lmx::elmx_error DataLogValue::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_empty_content, known_elements, true, __LINE__});
}
bool DataLogValue::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_PrecessDataDDI: return read_attribute(reader, m_PrecessDataDDI, spec_bytes_2, __LINE__, error);
    case attr_PrecessDataValue: return read_attribute(reader, m_PrecessDataValue, spec_range_minus_2147483648_to_2147483647_int32, __LINE__, error);
    case attr_DeviceElementIdRef: return read_attribute(reader, m_DeviceElementIdRef, spec_id_DET_48, __LINE__, error);
    case attr_PGN: return read_attribute(reader, m_rare.get_or_create().m_PGN, spec_range_0_to_262143_uint32, __LINE__, error);
    case attr_PGNStartBit: return read_attribute(reader, m_rare.get_or_create().m_PGNStartBit, spec_range_0_to_63_uint8, __LINE__, error);
    case attr_PGNStopBit: return read_attribute(reader, m_rare.get_or_create().m_PGNStopBit, spec_range_0_to_63_uint8, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* DataLogValue::accept_attribute(lmx::plain_attribute const& attribute) {
  switch (attribute.letter()) {
    case 'A': return binding::accept_attribute(m_PrecessDataDDI, spec_bytes_2, attribute);
    case 'B': return binding::accept_attribute(m_PrecessDataValue, spec_range_minus_2147483648_to_2147483647_int32, attribute);
    case 'C': return binding::accept_attribute(m_DeviceElementIdRef, spec_id_DET_48, attribute);
    case 'D': return binding::accept_attribute(m_rare.get_or_create().m_PGN, spec_range_0_to_262143_uint32, attribute);
    case 'E': return binding::accept_attribute(m_rare.get_or_create().m_PGNStartBit, spec_range_0_to_63_uint8, attribute);
    case 'F': return binding::accept_attribute(m_rare.get_or_create().m_PGNStopBit, spec_range_0_to_63_uint8, attribute);
  }
  return nullptr;
}
bool DataLogValue::has_required_attributes() const { return m_PrecessDataDDI.is_set() && m_PrecessDataValue.is_set() && m_DeviceElementIdRef.is_set(); }
lmx::elmx_error DataLogValue::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "DLV", __LINE__, has_required_attributes());
}
bool DataLogValue::unmarshal_body(lmx::xmlReader&, lmx::elmx_error*) { return true; }
lmx::elmx_error DataLogValue::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void DataLogValue::marshal_attributes(lmx::c_xml_writer& writer) const {
  auto const* const rare = m_rare.find();
  write_attribute(writer, "A", m_PrecessDataDDI, spec_bytes_2);
  write_attribute(writer, "B", m_PrecessDataValue, spec_range_minus_2147483648_to_2147483647_int32);
  write_attribute(writer, "C", m_DeviceElementIdRef, spec_id_DET_48);
  if (rare != nullptr) {
    write_attribute(writer, "D", rare->m_PGN, spec_range_0_to_262143_uint32);
    write_attribute(writer, "E", rare->m_PGNStartBit, spec_range_0_to_63_uint8);
    write_attribute(writer, "F", rare->m_PGNStopBit, spec_range_0_to_63_uint8);
  }
}
lmx::elmx_error DataLogValue::marshal_child_elements(lmx::c_xml_writer&) const {
  return lmx::ELMX_OK;
}
bool DataLogValue::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_PrecessDataDDI.is_set(), "A", __LINE__) &&
         check_occurs(tracker, m_PrecessDataValue.is_set(), "B", __LINE__) &&
         check_occurs(tracker, m_DeviceElementIdRef.is_set(), "C", __LINE__);
}
bool DataLogValue::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link);
}

// ---- TimeLog ----

TimeLog::TimeLog() { init(); }
TimeLog::TimeLog(TimeLog const& other) = default;
TimeLog::TimeLog(TimeLog&& other) noexcept = default;
TimeLog::TimeLog(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
TimeLog* TimeLog::clone() const { return new TimeLog(*this); }
TimeLog::~TimeLog() = default;
TimeLog& TimeLog::operator=(TimeLog const& other) { TimeLog copy(other); swap(copy); return *this; }
TimeLog& TimeLog::operator=(TimeLog&& other) noexcept = default;
void TimeLog::swap(TimeLog& other) noexcept { std::swap(*this, other); }
void TimeLog::reset() { TimeLog empty; swap(empty); }
void TimeLog::init() {}

lmx::s_event_map const TimeLog::attr_event_map[] = {
    {1, "A", 1, attr_Filename},
    {1, "B", 1, attr_Filelength},
    {1, "C", 1, attr_Type},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const TimeLog::elem_event_map[] = {
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const TimeLog::known_elements[] = {
    {0, nullptr, 0},
};
lmx::elmx_error TimeLog::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "TLG", __LINE__); }
lmx::elmx_error TimeLog::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_empty_content, known_elements, true, __LINE__});
}
bool TimeLog::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_Filename: return read_attribute(reader, m_Filename, spec_file_TLG_103, __LINE__, error);
    case attr_Filelength: return read_attribute(reader, m_Filelength, spec_range_0_to_4294967294_uint32, __LINE__, error);
    case attr_Type: return read_attribute(reader, m_Type, spec_one_of_1, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* TimeLog::accept_attribute(lmx::plain_attribute const& attribute) {
  switch (attribute.letter()) {
    case 'A': return binding::accept_attribute(m_Filename, spec_file_TLG_103, attribute);
    case 'B': return binding::accept_attribute(m_Filelength, spec_range_0_to_4294967294_uint32, attribute);
    case 'C': return binding::accept_attribute(m_Type, spec_one_of_1, attribute);
  }
  return nullptr;
}
bool TimeLog::has_required_attributes() const { return m_Filename.is_set() && m_Type.is_set(); }
lmx::elmx_error TimeLog::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "TLG", __LINE__, has_required_attributes());
}
bool TimeLog::unmarshal_body(lmx::xmlReader&, lmx::elmx_error*) { return true; }
lmx::elmx_error TimeLog::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void TimeLog::marshal_attributes(lmx::c_xml_writer& writer) const {
  write_attribute(writer, "A", m_Filename, spec_file_TLG_103);
  write_attribute(writer, "B", m_Filelength, spec_range_0_to_4294967294_uint32);
  write_attribute(writer, "C", m_Type, spec_one_of_1);
}
lmx::elmx_error TimeLog::marshal_child_elements(lmx::c_xml_writer&) const {
  return lmx::ELMX_OK;
}
bool TimeLog::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_Filename.is_set(), "A", __LINE__) &&
         check_occurs(tracker, m_Type.is_set(), "C", __LINE__);
}
bool TimeLog::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link);
}
elmx_enums TimeLog::GetenumType() const { return enum_code(list_11, m_Type.get()); }
bool TimeLog::SetenumType(elmx_enums code) { return set_enum(list_11, code, m_Type); }

// ---- AllocationStamp ----

InnerAllocationStamp::InnerAllocationStamp() { init(); }
InnerAllocationStamp::InnerAllocationStamp(InnerAllocationStamp const& other) = default;
InnerAllocationStamp::InnerAllocationStamp(InnerAllocationStamp&& other) noexcept : chosen(std::exchange(other.chosen, NothingChosen)), m_held(std::move(other.m_held)) {}
InnerAllocationStamp::InnerAllocationStamp(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_OK; unmarshal(reader, error); }
InnerAllocationStamp* InnerAllocationStamp::clone() const { return new InnerAllocationStamp(*this); }
InnerAllocationStamp::~InnerAllocationStamp() = default;
InnerAllocationStamp& InnerAllocationStamp::operator=(InnerAllocationStamp const& other) { InnerAllocationStamp copy(other); swap(copy); return *this; }
InnerAllocationStamp& InnerAllocationStamp::operator=(InnerAllocationStamp&& other) noexcept { InnerAllocationStamp taken(std::move(other)); swap(taken); return *this; }
void InnerAllocationStamp::swap(InnerAllocationStamp& other) noexcept { std::swap(chosen, other.chosen); std::swap(m_held, other.m_held); }
void InnerAllocationStamp::reset() { InnerAllocationStamp empty; swap(empty); }
void InnerAllocationStamp::init() { chosen = NothingChosen; }

lmx::s_event_map const InnerAllocationStamp::elem_event_map[] = {
    {1, "PTN", 3, elem_Position},
    {0, nullptr, 0, 0},
};
void InnerAllocationStamp::release_choice() { m_held.release(); chosen = NothingChosen; }
bool InnerAllocationStamp::IsOccursOk(lmx::c_check_tracker*) const { return true; }
bool InnerAllocationStamp::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  if (!IsOccursOk(&link)) return false;
  switch (chosen) {
    case PositionChosen: return m_held.check(&link, "PTN");
  }
  return true;
}
bool InnerAllocationStamp::IsMember(lmx::xmlReader& reader) { return is_member(reader, elem_event_map); }
bool InnerAllocationStamp::unmarshal(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(elem_event_map, lmx::EXAE_ELEMENT);
  switch (reader.m_event) {
    case elem_Position: return read_run(reader, new_run<Position>(chosen, m_held, PositionChosen), elem_Position, {elem_event_map, "ASP", __LINE__}, error, 2);
  }
  return true;
}
lmx::elmx_error InnerAllocationStamp::marshal(lmx::c_xml_writer& writer, char const*) const { return marshal_child_elements(writer); }
lmx::elmx_error InnerAllocationStamp::marshal_child_elements(lmx::c_xml_writer& writer) const { return write_choice(writer, m_held, chosen, NothingChosen, elem_event_map, __LINE__); }

void InnerAllocationStamp::SelectPosition() { selected_run<Position>(chosen, m_held, PositionChosen); }
Position const& InnerAllocationStamp::GetPosition(std::size_t index) const { LMX_ASSERT(index < 2); return run_at<Position>(m_held, {is_chosen(chosen, m_held, PositionChosen), "chosen == PositionChosen"}, index, "index < u.mPosition->size()"); }
Position& InnerAllocationStamp::GetPosition(std::size_t index) { LMX_ASSERT(index < 2); return selected_run<Position>(chosen, m_held, PositionChosen).get_or_append(index); }
Position& InnerAllocationStamp::AppendPosition() { return selected_run<Position>(chosen, m_held, PositionChosen).append(); }
void InnerAllocationStamp::AppendPosition(Position* value) { std::unique_ptr<Position> owned(value); selected_run<Position>(chosen, m_held, PositionChosen).append(std::move(owned)); }
Position& InnerAllocationStamp::InsertPosition(std::size_t index) { return selected_run<Position>(chosen, m_held, PositionChosen).insert(index); }
void InnerAllocationStamp::InsertPosition(std::size_t index, Position* value) { std::unique_ptr<Position> owned(value); selected_run<Position>(chosen, m_held, PositionChosen).insert(index, std::move(owned)); }
void InnerAllocationStamp::AssignPosition(std::size_t index, Position const& value) { selected_run<Position>(chosen, m_held, PositionChosen).assign(index, value); }
void InnerAllocationStamp::AssignPosition(std::size_t index, Position* value) { std::unique_ptr<Position> owned(value); selected_run<Position>(chosen, m_held, PositionChosen).assign(index, std::move(owned)); }
Position& InnerAllocationStamp::BackPosition() { return selected_run<Position>(chosen, m_held, PositionChosen).back(); }
void InnerAllocationStamp::DeletePosition(std::size_t index) { erase_at<Position>(m_held, {is_chosen(chosen, m_held, PositionChosen), "chosen == PositionChosen"}, index, "index < u.mPosition->size()"); }
void InnerAllocationStamp::ClearPosition() { selected_run<Position>(chosen, m_held, PositionChosen).clear(); }
std::size_t InnerAllocationStamp::SizePosition() const { return run_size<Position>(m_held, m_held.holds(PositionChosen)); }

AllocationStamp::AllocationStamp() { init(); }
AllocationStamp::AllocationStamp(AllocationStamp const& other) = default;
AllocationStamp::AllocationStamp(AllocationStamp&& other) noexcept = default;
AllocationStamp::AllocationStamp(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
AllocationStamp* AllocationStamp::clone() const { return new AllocationStamp(*this); }
AllocationStamp::~AllocationStamp() = default;
AllocationStamp& AllocationStamp::operator=(AllocationStamp const& other) { AllocationStamp copy(other); swap(copy); return *this; }
AllocationStamp& AllocationStamp::operator=(AllocationStamp&& other) noexcept = default;
void AllocationStamp::swap(AllocationStamp& other) noexcept { std::swap(*this, other); }
void AllocationStamp::reset() { AllocationStamp empty; swap(empty); }
void AllocationStamp::init() {}

lmx::s_event_map const AllocationStamp::attr_event_map[] = {
    {1, "A", 1, attr_Start},
    {1, "B", 1, attr_Stop},
    {1, "C", 1, attr_Duration},
    {1, "D", 1, attr_Type},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const AllocationStamp::elem_event_map[] = {
    {1, "PTN", 3, elem_Position},
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const AllocationStamp::known_elements[] = {
    {1, "PTN", 3},
    {0, nullptr, 0},
};
lmx::elmx_error AllocationStamp::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "ASP", __LINE__); }
lmx::elmx_error AllocationStamp::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_complex_content, known_elements, true, __LINE__});
}
bool AllocationStamp::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_Start: return read_attribute(reader, m_Start, spec_date_time, __LINE__, error);
    case attr_Stop: return read_attribute(reader, m_Stop, spec_date_time, __LINE__, error);
    case attr_Duration: return read_attribute(reader, m_Duration, spec_range_0_to_4294967294_uint32, __LINE__, error);
    case attr_Type: return read_attribute(reader, m_Type, spec_one_of_1_4, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* AllocationStamp::accept_attribute(lmx::plain_attribute const& attribute) {
  switch (attribute.letter()) {
    case 'A': return binding::accept_attribute(m_Start, spec_date_time, attribute);
    case 'B': return binding::accept_attribute(m_Stop, spec_date_time, attribute);
    case 'C': return binding::accept_attribute(m_Duration, spec_range_0_to_4294967294_uint32, attribute);
    case 'D': return binding::accept_attribute(m_Type, spec_one_of_1_4, attribute);
  }
  return nullptr;
}
bool AllocationStamp::has_required_attributes() const { return m_Start.is_set() && m_Type.is_set(); }
lmx::elmx_error AllocationStamp::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "ASP", __LINE__, has_required_attributes());
}
bool AllocationStamp::unmarshal_body(lmx::xmlReader& reader, lmx::elmx_error* error) { return read_wrapper(reader, mInnerAllocationStamp, {elem_event_map, "ASP", __LINE__}, error); }
lmx::elmx_error AllocationStamp::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void AllocationStamp::marshal_attributes(lmx::c_xml_writer& writer) const {
  write_attribute(writer, "A", m_Start, spec_date_time);
  write_attribute(writer, "B", m_Stop, spec_date_time);
  write_attribute(writer, "C", m_Duration, spec_range_0_to_4294967294_uint32);
  write_attribute(writer, "D", m_Type, spec_one_of_1_4);
}
lmx::elmx_error AllocationStamp::marshal_child_elements(lmx::c_xml_writer& writer) const {
  return write_wrapper(writer, mInnerAllocationStamp);
}
bool AllocationStamp::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_Start.is_set(), "A", __LINE__) &&
         check_occurs(tracker, m_Type.is_set(), "D", __LINE__);
}
bool AllocationStamp::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link) && check_wrapper(&link, mInnerAllocationStamp);
}
InnerAllocationStamp const& AllocationStamp::GetInnerAllocationStamp() const { return mInnerAllocationStamp.get(); }
InnerAllocationStamp& AllocationStamp::GetInnerAllocationStamp() { return mInnerAllocationStamp.get_or_create(); }
void AllocationStamp::AssignInnerAllocationStamp(InnerAllocationStamp const& value) { mInnerAllocationStamp.assign(value.clone()); }
void AllocationStamp::AssignInnerAllocationStamp(InnerAllocationStamp* value) { mInnerAllocationStamp.assign(value); }
bool AllocationStamp::IssetInnerAllocationStamp() const { return mInnerAllocationStamp.is_set(); }
void AllocationStamp::UnsetInnerAllocationStamp() { mInnerAllocationStamp.unset(); }
elmx_enums AllocationStamp::GetenumType() const { return enum_code(list_13, m_Type.get()); }
bool AllocationStamp::SetenumType(elmx_enums code) { return set_enum(list_13, code, m_Type); }

// ---- CommentAllocation ----

InnerCommentAllocation::InnerCommentAllocation() { init(); }
InnerCommentAllocation::InnerCommentAllocation(InnerCommentAllocation const& other) = default;
InnerCommentAllocation::InnerCommentAllocation(InnerCommentAllocation&& other) noexcept : chosen(std::exchange(other.chosen, NothingChosen)), m_held(std::move(other.m_held)) {}
InnerCommentAllocation::InnerCommentAllocation(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_OK; unmarshal(reader, error); }
InnerCommentAllocation* InnerCommentAllocation::clone() const { return new InnerCommentAllocation(*this); }
InnerCommentAllocation::~InnerCommentAllocation() = default;
InnerCommentAllocation& InnerCommentAllocation::operator=(InnerCommentAllocation const& other) { InnerCommentAllocation copy(other); swap(copy); return *this; }
InnerCommentAllocation& InnerCommentAllocation::operator=(InnerCommentAllocation&& other) noexcept { InnerCommentAllocation taken(std::move(other)); swap(taken); return *this; }
void InnerCommentAllocation::swap(InnerCommentAllocation& other) noexcept { std::swap(chosen, other.chosen); std::swap(m_held, other.m_held); }
void InnerCommentAllocation::reset() { InnerCommentAllocation empty; swap(empty); }
void InnerCommentAllocation::init() { chosen = NothingChosen; }

lmx::s_event_map const InnerCommentAllocation::elem_event_map[] = {
    {1, "ASP", 3, elem_AllocationStamp},
    {0, nullptr, 0, 0},
};
void InnerCommentAllocation::release_choice() { m_held.release(); chosen = NothingChosen; }
bool InnerCommentAllocation::IsOccursOk(lmx::c_check_tracker*) const { return true; }
bool InnerCommentAllocation::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  if (!IsOccursOk(&link)) return false;
  switch (chosen) {
    case AllocationStampChosen: return m_held.check(&link, "ASP");
  }
  return true;
}
bool InnerCommentAllocation::IsMember(lmx::xmlReader& reader) { return is_member(reader, elem_event_map); }
bool InnerCommentAllocation::unmarshal(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(elem_event_map, lmx::EXAE_ELEMENT);
  switch (reader.m_event) {
    case elem_AllocationStamp: return read_one(reader, new_one<AllocationStamp>(chosen, m_held, AllocationStampChosen), {elem_event_map, "CAN", __LINE__}, error);
  }
  return true;
}
lmx::elmx_error InnerCommentAllocation::marshal(lmx::c_xml_writer& writer, char const*) const { return marshal_child_elements(writer); }
lmx::elmx_error InnerCommentAllocation::marshal_child_elements(lmx::c_xml_writer& writer) const { return write_choice(writer, m_held, chosen, NothingChosen, elem_event_map, __LINE__); }

void InnerCommentAllocation::SelectAllocationStamp() { selected_one<AllocationStamp>(chosen, m_held, AllocationStampChosen); }
AllocationStamp const& InnerCommentAllocation::GetAllocationStamp() const { return chosen_one<AllocationStamp>(m_held, {is_chosen(chosen, m_held, AllocationStampChosen), "chosen == AllocationStampChosen"}); }
AllocationStamp& InnerCommentAllocation::GetAllocationStamp() { return selected_one<AllocationStamp>(chosen, m_held, AllocationStampChosen).get_or_create(); }

CommentAllocation::CommentAllocation() { init(); }
CommentAllocation::CommentAllocation(CommentAllocation const& other) = default;
CommentAllocation::CommentAllocation(CommentAllocation&& other) noexcept = default;
CommentAllocation::CommentAllocation(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
CommentAllocation* CommentAllocation::clone() const { return new CommentAllocation(*this); }
CommentAllocation::~CommentAllocation() = default;
CommentAllocation& CommentAllocation::operator=(CommentAllocation const& other) { CommentAllocation copy(other); swap(copy); return *this; }
CommentAllocation& CommentAllocation::operator=(CommentAllocation&& other) noexcept = default;
void CommentAllocation::swap(CommentAllocation& other) noexcept { std::swap(*this, other); }
void CommentAllocation::reset() { CommentAllocation empty; swap(empty); }
void CommentAllocation::init() {}

lmx::s_event_map const CommentAllocation::attr_event_map[] = {
    {1, "A", 1, attr_CodedCommentIdRef},
    {1, "B", 1, attr_CodedCommentListValueIdRef},
    {1, "C", 1, attr_FreeCommentText},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const CommentAllocation::elem_event_map[] = {
    {1, "ASP", 3, elem_AllocationStamp},
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const CommentAllocation::known_elements[] = {
    {1, "ASP", 3},
    {0, nullptr, 0},
};
lmx::elmx_error CommentAllocation::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "CAN", __LINE__); }
lmx::elmx_error CommentAllocation::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_complex_content, known_elements, true, __LINE__});
}
bool CommentAllocation::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_CodedCommentIdRef: return read_attribute(reader, m_CodedCommentIdRef, spec_id_CCT_22, __LINE__, error);
    case attr_CodedCommentListValueIdRef: return read_attribute(reader, m_CodedCommentListValueIdRef, spec_id_CCL_23, __LINE__, error);
    case attr_FreeCommentText: return read_attribute(reader, m_FreeCommentText, spec_text_32, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* CommentAllocation::accept_attribute(lmx::plain_attribute const& attribute) {
  switch (attribute.letter()) {
    case 'A': return binding::accept_attribute(m_CodedCommentIdRef, spec_id_CCT_22, attribute);
    case 'B': return binding::accept_attribute(m_CodedCommentListValueIdRef, spec_id_CCL_23, attribute);
    case 'C': return binding::accept_attribute(m_FreeCommentText, spec_text_32, attribute);
  }
  return nullptr;
}
bool CommentAllocation::has_required_attributes() const { return true; }
lmx::elmx_error CommentAllocation::unmarshal_attributes_check(lmx::xmlReader&) { return lmx::ELMX_OK; }
bool CommentAllocation::unmarshal_body(lmx::xmlReader& reader, lmx::elmx_error* error) { return read_wrapper(reader, mInnerCommentAllocation, {elem_event_map, "CAN", __LINE__}, error); }
lmx::elmx_error CommentAllocation::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void CommentAllocation::marshal_attributes(lmx::c_xml_writer& writer) const {
  write_attribute(writer, "A", m_CodedCommentIdRef, spec_id_CCT_22);
  write_attribute(writer, "B", m_CodedCommentListValueIdRef, spec_id_CCL_23);
  write_attribute(writer, "C", m_FreeCommentText, spec_text_32);
}
lmx::elmx_error CommentAllocation::marshal_child_elements(lmx::c_xml_writer& writer) const {
  return write_wrapper(writer, mInnerCommentAllocation);
}
bool CommentAllocation::IsOccursOk(lmx::c_check_tracker*) const {
  return true;
}
bool CommentAllocation::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link) && check_wrapper(&link, mInnerCommentAllocation);
}
InnerCommentAllocation const& CommentAllocation::GetInnerCommentAllocation() const { return mInnerCommentAllocation.get(); }
InnerCommentAllocation& CommentAllocation::GetInnerCommentAllocation() { return mInnerCommentAllocation.get_or_create(); }
void CommentAllocation::AssignInnerCommentAllocation(InnerCommentAllocation const& value) { mInnerCommentAllocation.assign(value.clone()); }
void CommentAllocation::AssignInnerCommentAllocation(InnerCommentAllocation* value) { mInnerCommentAllocation.assign(value); }
bool CommentAllocation::IssetInnerCommentAllocation() const { return mInnerCommentAllocation.is_set(); }
void CommentAllocation::UnsetInnerCommentAllocation() { mInnerCommentAllocation.unset(); }

// ---- DeviceAllocation ----

InnerDeviceAllocation::InnerDeviceAllocation() { init(); }
InnerDeviceAllocation::InnerDeviceAllocation(InnerDeviceAllocation const& other) = default;
InnerDeviceAllocation::InnerDeviceAllocation(InnerDeviceAllocation&& other) noexcept : chosen(std::exchange(other.chosen, NothingChosen)), m_held(std::move(other.m_held)) {}
InnerDeviceAllocation::InnerDeviceAllocation(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_OK; unmarshal(reader, error); }
InnerDeviceAllocation* InnerDeviceAllocation::clone() const { return new InnerDeviceAllocation(*this); }
InnerDeviceAllocation::~InnerDeviceAllocation() = default;
InnerDeviceAllocation& InnerDeviceAllocation::operator=(InnerDeviceAllocation const& other) { InnerDeviceAllocation copy(other); swap(copy); return *this; }
InnerDeviceAllocation& InnerDeviceAllocation::operator=(InnerDeviceAllocation&& other) noexcept { InnerDeviceAllocation taken(std::move(other)); swap(taken); return *this; }
void InnerDeviceAllocation::swap(InnerDeviceAllocation& other) noexcept { std::swap(chosen, other.chosen); std::swap(m_held, other.m_held); }
void InnerDeviceAllocation::reset() { InnerDeviceAllocation empty; swap(empty); }
void InnerDeviceAllocation::init() { chosen = NothingChosen; }

lmx::s_event_map const InnerDeviceAllocation::elem_event_map[] = {
    {1, "ASP", 3, elem_AllocationStamp},
    {0, nullptr, 0, 0},
};
void InnerDeviceAllocation::release_choice() { m_held.release(); chosen = NothingChosen; }
bool InnerDeviceAllocation::IsOccursOk(lmx::c_check_tracker*) const { return true; }
bool InnerDeviceAllocation::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  if (!IsOccursOk(&link)) return false;
  switch (chosen) {
    case AllocationStampChosen: return m_held.check(&link, "ASP");
  }
  return true;
}
bool InnerDeviceAllocation::IsMember(lmx::xmlReader& reader) { return is_member(reader, elem_event_map); }
bool InnerDeviceAllocation::unmarshal(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(elem_event_map, lmx::EXAE_ELEMENT);
  switch (reader.m_event) {
    case elem_AllocationStamp: return read_one(reader, new_one<AllocationStamp>(chosen, m_held, AllocationStampChosen), {elem_event_map, "DAN", __LINE__}, error);
  }
  return true;
}
lmx::elmx_error InnerDeviceAllocation::marshal(lmx::c_xml_writer& writer, char const*) const { return marshal_child_elements(writer); }
lmx::elmx_error InnerDeviceAllocation::marshal_child_elements(lmx::c_xml_writer& writer) const { return write_choice(writer, m_held, chosen, NothingChosen, elem_event_map, __LINE__); }

void InnerDeviceAllocation::SelectAllocationStamp() { selected_one<AllocationStamp>(chosen, m_held, AllocationStampChosen); }
AllocationStamp const& InnerDeviceAllocation::GetAllocationStamp() const { return chosen_one<AllocationStamp>(m_held, {is_chosen(chosen, m_held, AllocationStampChosen), "chosen == AllocationStampChosen"}); }
AllocationStamp& InnerDeviceAllocation::GetAllocationStamp() { return selected_one<AllocationStamp>(chosen, m_held, AllocationStampChosen).get_or_create(); }

DeviceAllocation::DeviceAllocation() { init(); }
DeviceAllocation::DeviceAllocation(DeviceAllocation const& other) = default;
DeviceAllocation::DeviceAllocation(DeviceAllocation&& other) noexcept = default;
DeviceAllocation::DeviceAllocation(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
DeviceAllocation* DeviceAllocation::clone() const { return new DeviceAllocation(*this); }
DeviceAllocation::~DeviceAllocation() = default;
DeviceAllocation& DeviceAllocation::operator=(DeviceAllocation const& other) { DeviceAllocation copy(other); swap(copy); return *this; }
DeviceAllocation& DeviceAllocation::operator=(DeviceAllocation&& other) noexcept = default;
void DeviceAllocation::swap(DeviceAllocation& other) noexcept { std::swap(*this, other); }
void DeviceAllocation::reset() { DeviceAllocation empty; swap(empty); }
void DeviceAllocation::init() {}

lmx::s_event_map const DeviceAllocation::attr_event_map[] = {
    {1, "A", 1, attr_ClientNameValue},
    {1, "B", 1, attr_ClientNameMask},
    {1, "C", 1, attr_DeviceIdRef},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const DeviceAllocation::elem_event_map[] = {
    {1, "ASP", 3, elem_AllocationStamp},
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const DeviceAllocation::known_elements[] = {
    {1, "ASP", 3},
    {0, nullptr, 0},
};
lmx::elmx_error DeviceAllocation::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "DAN", __LINE__); }
lmx::elmx_error DeviceAllocation::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_complex_content, known_elements, true, __LINE__});
}
bool DeviceAllocation::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_ClientNameValue: return read_attribute(reader, m_ClientNameValue, spec_bytes_8, __LINE__, error);
    case attr_ClientNameMask: return read_attribute(reader, m_ClientNameMask, spec_bytes_8, __LINE__, error);
    case attr_DeviceIdRef: return read_attribute(reader, m_DeviceIdRef, spec_id_DVC_52, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* DeviceAllocation::accept_attribute(lmx::plain_attribute const& attribute) {
  switch (attribute.letter()) {
    case 'A': return binding::accept_attribute(m_ClientNameValue, spec_bytes_8, attribute);
    case 'B': return binding::accept_attribute(m_ClientNameMask, spec_bytes_8, attribute);
    case 'C': return binding::accept_attribute(m_DeviceIdRef, spec_id_DVC_52, attribute);
  }
  return nullptr;
}
bool DeviceAllocation::has_required_attributes() const { return m_ClientNameValue.is_set(); }
lmx::elmx_error DeviceAllocation::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "DAN", __LINE__, has_required_attributes());
}
bool DeviceAllocation::unmarshal_body(lmx::xmlReader& reader, lmx::elmx_error* error) { return read_wrapper(reader, mInnerDeviceAllocation, {elem_event_map, "DAN", __LINE__}, error); }
lmx::elmx_error DeviceAllocation::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void DeviceAllocation::marshal_attributes(lmx::c_xml_writer& writer) const {
  write_attribute(writer, "A", m_ClientNameValue, spec_bytes_8);
  write_attribute(writer, "B", m_ClientNameMask, spec_bytes_8);
  write_attribute(writer, "C", m_DeviceIdRef, spec_id_DVC_52);
}
lmx::elmx_error DeviceAllocation::marshal_child_elements(lmx::c_xml_writer& writer) const {
  return write_wrapper(writer, mInnerDeviceAllocation);
}
bool DeviceAllocation::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_ClientNameValue.is_set(), "A", __LINE__);
}
bool DeviceAllocation::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link) && check_wrapper(&link, mInnerDeviceAllocation);
}
InnerDeviceAllocation const& DeviceAllocation::GetInnerDeviceAllocation() const { return mInnerDeviceAllocation.get(); }
InnerDeviceAllocation& DeviceAllocation::GetInnerDeviceAllocation() { return mInnerDeviceAllocation.get_or_create(); }
void DeviceAllocation::AssignInnerDeviceAllocation(InnerDeviceAllocation const& value) { mInnerDeviceAllocation.assign(value.clone()); }
void DeviceAllocation::AssignInnerDeviceAllocation(InnerDeviceAllocation* value) { mInnerDeviceAllocation.assign(value); }
bool DeviceAllocation::IssetInnerDeviceAllocation() const { return mInnerDeviceAllocation.is_set(); }
void DeviceAllocation::UnsetInnerDeviceAllocation() { mInnerDeviceAllocation.unset(); }

// ---- WorkerAllocation ----

InnerWorkerAllocation::InnerWorkerAllocation() { init(); }
InnerWorkerAllocation::InnerWorkerAllocation(InnerWorkerAllocation const& other) = default;
InnerWorkerAllocation::InnerWorkerAllocation(InnerWorkerAllocation&& other) noexcept : chosen(std::exchange(other.chosen, NothingChosen)), m_held(std::move(other.m_held)) {}
InnerWorkerAllocation::InnerWorkerAllocation(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_OK; unmarshal(reader, error); }
InnerWorkerAllocation* InnerWorkerAllocation::clone() const { return new InnerWorkerAllocation(*this); }
InnerWorkerAllocation::~InnerWorkerAllocation() = default;
InnerWorkerAllocation& InnerWorkerAllocation::operator=(InnerWorkerAllocation const& other) { InnerWorkerAllocation copy(other); swap(copy); return *this; }
InnerWorkerAllocation& InnerWorkerAllocation::operator=(InnerWorkerAllocation&& other) noexcept { InnerWorkerAllocation taken(std::move(other)); swap(taken); return *this; }
void InnerWorkerAllocation::swap(InnerWorkerAllocation& other) noexcept { std::swap(chosen, other.chosen); std::swap(m_held, other.m_held); }
void InnerWorkerAllocation::reset() { InnerWorkerAllocation empty; swap(empty); }
void InnerWorkerAllocation::init() { chosen = NothingChosen; }

lmx::s_event_map const InnerWorkerAllocation::elem_event_map[] = {
    {1, "ASP", 3, elem_AllocationStamp},
    {0, nullptr, 0, 0},
};
void InnerWorkerAllocation::release_choice() { m_held.release(); chosen = NothingChosen; }
bool InnerWorkerAllocation::IsOccursOk(lmx::c_check_tracker*) const { return true; }
bool InnerWorkerAllocation::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  if (!IsOccursOk(&link)) return false;
  switch (chosen) {
    case AllocationStampChosen: return m_held.check(&link, "ASP");
  }
  return true;
}
bool InnerWorkerAllocation::IsMember(lmx::xmlReader& reader) { return is_member(reader, elem_event_map); }
bool InnerWorkerAllocation::unmarshal(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(elem_event_map, lmx::EXAE_ELEMENT);
  switch (reader.m_event) {
    case elem_AllocationStamp: return read_one(reader, new_one<AllocationStamp>(chosen, m_held, AllocationStampChosen), {elem_event_map, "WAN", __LINE__}, error);
  }
  return true;
}
lmx::elmx_error InnerWorkerAllocation::marshal(lmx::c_xml_writer& writer, char const*) const { return marshal_child_elements(writer); }
lmx::elmx_error InnerWorkerAllocation::marshal_child_elements(lmx::c_xml_writer& writer) const { return write_choice(writer, m_held, chosen, NothingChosen, elem_event_map, __LINE__); }

void InnerWorkerAllocation::SelectAllocationStamp() { selected_one<AllocationStamp>(chosen, m_held, AllocationStampChosen); }
AllocationStamp const& InnerWorkerAllocation::GetAllocationStamp() const { return chosen_one<AllocationStamp>(m_held, {is_chosen(chosen, m_held, AllocationStampChosen), "chosen == AllocationStampChosen"}); }
AllocationStamp& InnerWorkerAllocation::GetAllocationStamp() { return selected_one<AllocationStamp>(chosen, m_held, AllocationStampChosen).get_or_create(); }

WorkerAllocation::WorkerAllocation() { init(); }
WorkerAllocation::WorkerAllocation(WorkerAllocation const& other) = default;
WorkerAllocation::WorkerAllocation(WorkerAllocation&& other) noexcept = default;
WorkerAllocation::WorkerAllocation(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
WorkerAllocation* WorkerAllocation::clone() const { return new WorkerAllocation(*this); }
WorkerAllocation::~WorkerAllocation() = default;
WorkerAllocation& WorkerAllocation::operator=(WorkerAllocation const& other) { WorkerAllocation copy(other); swap(copy); return *this; }
WorkerAllocation& WorkerAllocation::operator=(WorkerAllocation&& other) noexcept = default;
void WorkerAllocation::swap(WorkerAllocation& other) noexcept { std::swap(*this, other); }
void WorkerAllocation::reset() { WorkerAllocation empty; swap(empty); }
void WorkerAllocation::init() {}

lmx::s_event_map const WorkerAllocation::attr_event_map[] = {
    {1, "A", 1, attr_WorkerIdRef},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const WorkerAllocation::elem_event_map[] = {
    {1, "ASP", 3, elem_AllocationStamp},
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const WorkerAllocation::known_elements[] = {
    {1, "ASP", 3},
    {0, nullptr, 0},
};
lmx::elmx_error WorkerAllocation::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "WAN", __LINE__); }
lmx::elmx_error WorkerAllocation::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_complex_content, known_elements, true, __LINE__});
}
bool WorkerAllocation::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_WorkerIdRef: return read_attribute(reader, m_WorkerIdRef, spec_id_WKR_107, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* WorkerAllocation::accept_attribute(lmx::plain_attribute const& attribute) {
  switch (attribute.letter()) {
    case 'A': return binding::accept_attribute(m_WorkerIdRef, spec_id_WKR_107, attribute);
  }
  return nullptr;
}
bool WorkerAllocation::has_required_attributes() const { return m_WorkerIdRef.is_set(); }
lmx::elmx_error WorkerAllocation::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "WAN", __LINE__, has_required_attributes());
}
bool WorkerAllocation::unmarshal_body(lmx::xmlReader& reader, lmx::elmx_error* error) { return read_wrapper(reader, mInnerWorkerAllocation, {elem_event_map, "WAN", __LINE__}, error); }
lmx::elmx_error WorkerAllocation::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void WorkerAllocation::marshal_attributes(lmx::c_xml_writer& writer) const {
  write_attribute(writer, "A", m_WorkerIdRef, spec_id_WKR_107);
}
lmx::elmx_error WorkerAllocation::marshal_child_elements(lmx::c_xml_writer& writer) const {
  return write_wrapper(writer, mInnerWorkerAllocation);
}
bool WorkerAllocation::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_WorkerIdRef.is_set(), "A", __LINE__);
}
bool WorkerAllocation::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link) && check_wrapper(&link, mInnerWorkerAllocation);
}
InnerWorkerAllocation const& WorkerAllocation::GetInnerWorkerAllocation() const { return mInnerWorkerAllocation.get(); }
InnerWorkerAllocation& WorkerAllocation::GetInnerWorkerAllocation() { return mInnerWorkerAllocation.get_or_create(); }
void WorkerAllocation::AssignInnerWorkerAllocation(InnerWorkerAllocation const& value) { mInnerWorkerAllocation.assign(value.clone()); }
void WorkerAllocation::AssignInnerWorkerAllocation(InnerWorkerAllocation* value) { mInnerWorkerAllocation.assign(value); }
bool WorkerAllocation::IssetInnerWorkerAllocation() const { return mInnerWorkerAllocation.is_set(); }
void WorkerAllocation::UnsetInnerWorkerAllocation() { mInnerWorkerAllocation.unset(); }

// ---- ProductAllocation ----

InnerProductAllocation::InnerProductAllocation() { init(); }
InnerProductAllocation::InnerProductAllocation(InnerProductAllocation const& other) = default;
InnerProductAllocation::InnerProductAllocation(InnerProductAllocation&& other) noexcept : chosen(std::exchange(other.chosen, NothingChosen)), m_held(std::move(other.m_held)) {}
InnerProductAllocation::InnerProductAllocation(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_OK; unmarshal(reader, error); }
InnerProductAllocation* InnerProductAllocation::clone() const { return new InnerProductAllocation(*this); }
InnerProductAllocation::~InnerProductAllocation() = default;
InnerProductAllocation& InnerProductAllocation::operator=(InnerProductAllocation const& other) { InnerProductAllocation copy(other); swap(copy); return *this; }
InnerProductAllocation& InnerProductAllocation::operator=(InnerProductAllocation&& other) noexcept { InnerProductAllocation taken(std::move(other)); swap(taken); return *this; }
void InnerProductAllocation::swap(InnerProductAllocation& other) noexcept { std::swap(chosen, other.chosen); std::swap(m_held, other.m_held); }
void InnerProductAllocation::reset() { InnerProductAllocation empty; swap(empty); }
void InnerProductAllocation::init() { chosen = NothingChosen; }

lmx::s_event_map const InnerProductAllocation::elem_event_map[] = {
    {1, "ASP", 3, elem_AllocationStamp},
    {0, nullptr, 0, 0},
};
void InnerProductAllocation::release_choice() { m_held.release(); chosen = NothingChosen; }
bool InnerProductAllocation::IsOccursOk(lmx::c_check_tracker*) const { return true; }
bool InnerProductAllocation::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  if (!IsOccursOk(&link)) return false;
  switch (chosen) {
    case AllocationStampChosen: return m_held.check(&link, "ASP");
  }
  return true;
}
bool InnerProductAllocation::IsMember(lmx::xmlReader& reader) { return is_member(reader, elem_event_map); }
bool InnerProductAllocation::unmarshal(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(elem_event_map, lmx::EXAE_ELEMENT);
  switch (reader.m_event) {
    case elem_AllocationStamp: return read_one(reader, new_one<AllocationStamp>(chosen, m_held, AllocationStampChosen), {elem_event_map, "PAN", __LINE__}, error);
  }
  return true;
}
lmx::elmx_error InnerProductAllocation::marshal(lmx::c_xml_writer& writer, char const*) const { return marshal_child_elements(writer); }
lmx::elmx_error InnerProductAllocation::marshal_child_elements(lmx::c_xml_writer& writer) const { return write_choice(writer, m_held, chosen, NothingChosen, elem_event_map, __LINE__); }

void InnerProductAllocation::SelectAllocationStamp() { selected_one<AllocationStamp>(chosen, m_held, AllocationStampChosen); }
AllocationStamp const& InnerProductAllocation::GetAllocationStamp() const { return chosen_one<AllocationStamp>(m_held, {is_chosen(chosen, m_held, AllocationStampChosen), "chosen == AllocationStampChosen"}); }
AllocationStamp& InnerProductAllocation::GetAllocationStamp() { return selected_one<AllocationStamp>(chosen, m_held, AllocationStampChosen).get_or_create(); }

ProductAllocation::ProductAllocation() { init(); }
ProductAllocation::ProductAllocation(ProductAllocation const& other) = default;
ProductAllocation::ProductAllocation(ProductAllocation&& other) noexcept = default;
ProductAllocation::ProductAllocation(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
ProductAllocation* ProductAllocation::clone() const { return new ProductAllocation(*this); }
ProductAllocation::~ProductAllocation() = default;
ProductAllocation& ProductAllocation::operator=(ProductAllocation const& other) { ProductAllocation copy(other); swap(copy); return *this; }
ProductAllocation& ProductAllocation::operator=(ProductAllocation&& other) noexcept = default;
void ProductAllocation::swap(ProductAllocation& other) noexcept { std::swap(*this, other); }
void ProductAllocation::reset() { ProductAllocation empty; swap(empty); }
void ProductAllocation::init() {}

lmx::s_event_map const ProductAllocation::attr_event_map[] = {
    {1, "A", 1, attr_ProductIdRef},
    {1, "B", 1, attr_QuantityDDI},
    {1, "C", 1, attr_QuantityValue},
    {1, "D", 1, attr_TransferMode},
    {1, "E", 1, attr_DeviceElementIdRef},
    {1, "F", 1, attr_ValuePresentationIdRef},
    {1, "G", 1, attr_ProductSubTypeIdRef},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const ProductAllocation::elem_event_map[] = {
    {1, "ASP", 3, elem_AllocationStamp},
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const ProductAllocation::known_elements[] = {
    {1, "ASP", 3},
    {0, nullptr, 0},
};
lmx::elmx_error ProductAllocation::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "PAN", __LINE__); }
lmx::elmx_error ProductAllocation::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_complex_content, known_elements, true, __LINE__});
}
bool ProductAllocation::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_ProductIdRef: return read_attribute(reader, m_ProductIdRef, spec_id_PDT_91, __LINE__, error);
    case attr_QuantityDDI: return read_attribute(reader, m_QuantityDDI, spec_bytes_2, __LINE__, error);
    case attr_QuantityValue: return read_attribute(reader, m_QuantityValue, spec_range_0_to_2147483647_uint32, __LINE__, error);
    case attr_TransferMode: return read_attribute(reader, m_TransferMode, spec_one_of_1_to_3, __LINE__, error);
    case attr_DeviceElementIdRef: return read_attribute(reader, m_DeviceElementIdRef, spec_id_DET_92, __LINE__, error);
    case attr_ValuePresentationIdRef: return read_attribute(reader, m_ValuePresentationIdRef, spec_id_VPN_93, __LINE__, error);
    case attr_ProductSubTypeIdRef: return read_attribute(reader, m_ProductSubTypeIdRef, spec_id_PDT_94, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* ProductAllocation::accept_attribute(lmx::plain_attribute const& attribute) {
  switch (attribute.letter()) {
    case 'A': return binding::accept_attribute(m_ProductIdRef, spec_id_PDT_91, attribute);
    case 'B': return binding::accept_attribute(m_QuantityDDI, spec_bytes_2, attribute);
    case 'C': return binding::accept_attribute(m_QuantityValue, spec_range_0_to_2147483647_uint32, attribute);
    case 'D': return binding::accept_attribute(m_TransferMode, spec_one_of_1_to_3, attribute);
    case 'E': return binding::accept_attribute(m_DeviceElementIdRef, spec_id_DET_92, attribute);
    case 'F': return binding::accept_attribute(m_ValuePresentationIdRef, spec_id_VPN_93, attribute);
    case 'G': return binding::accept_attribute(m_ProductSubTypeIdRef, spec_id_PDT_94, attribute);
  }
  return nullptr;
}
bool ProductAllocation::has_required_attributes() const { return m_ProductIdRef.is_set(); }
lmx::elmx_error ProductAllocation::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "PAN", __LINE__, has_required_attributes());
}
bool ProductAllocation::unmarshal_body(lmx::xmlReader& reader, lmx::elmx_error* error) { return read_wrapper(reader, mInnerProductAllocation, {elem_event_map, "PAN", __LINE__}, error); }
lmx::elmx_error ProductAllocation::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void ProductAllocation::marshal_attributes(lmx::c_xml_writer& writer) const {
  write_attribute(writer, "A", m_ProductIdRef, spec_id_PDT_91);
  write_attribute(writer, "B", m_QuantityDDI, spec_bytes_2);
  write_attribute(writer, "C", m_QuantityValue, spec_range_0_to_2147483647_uint32);
  write_attribute(writer, "D", m_TransferMode, spec_one_of_1_to_3);
  write_attribute(writer, "E", m_DeviceElementIdRef, spec_id_DET_92);
  write_attribute(writer, "F", m_ValuePresentationIdRef, spec_id_VPN_93);
  write_attribute(writer, "G", m_ProductSubTypeIdRef, spec_id_PDT_94);
}
lmx::elmx_error ProductAllocation::marshal_child_elements(lmx::c_xml_writer& writer) const {
  return write_wrapper(writer, mInnerProductAllocation);
}
bool ProductAllocation::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_ProductIdRef.is_set(), "A", __LINE__);
}
bool ProductAllocation::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link) && check_wrapper(&link, mInnerProductAllocation);
}
InnerProductAllocation const& ProductAllocation::GetInnerProductAllocation() const { return mInnerProductAllocation.get(); }
InnerProductAllocation& ProductAllocation::GetInnerProductAllocation() { return mInnerProductAllocation.get_or_create(); }
void ProductAllocation::AssignInnerProductAllocation(InnerProductAllocation const& value) { mInnerProductAllocation.assign(value.clone()); }
void ProductAllocation::AssignInnerProductAllocation(InnerProductAllocation* value) { mInnerProductAllocation.assign(value); }
bool ProductAllocation::IssetInnerProductAllocation() const { return mInnerProductAllocation.is_set(); }
void ProductAllocation::UnsetInnerProductAllocation() { mInnerProductAllocation.unset(); }
elmx_enums ProductAllocation::GetenumTransferMode() const { return enum_code(list_17, m_TransferMode.get()); }
bool ProductAllocation::SetenumTransferMode(elmx_enums code) { return set_enum(list_17, code, m_TransferMode); }

// ---- ControlAssignment ----

InnerControlAssignment::InnerControlAssignment() { init(); }
InnerControlAssignment::InnerControlAssignment(InnerControlAssignment const& other) = default;
InnerControlAssignment::InnerControlAssignment(InnerControlAssignment&& other) noexcept : chosen(std::exchange(other.chosen, NothingChosen)), m_held(std::move(other.m_held)) {}
InnerControlAssignment::InnerControlAssignment(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_OK; unmarshal(reader, error); }
InnerControlAssignment* InnerControlAssignment::clone() const { return new InnerControlAssignment(*this); }
InnerControlAssignment::~InnerControlAssignment() = default;
InnerControlAssignment& InnerControlAssignment::operator=(InnerControlAssignment const& other) { InnerControlAssignment copy(other); swap(copy); return *this; }
InnerControlAssignment& InnerControlAssignment::operator=(InnerControlAssignment&& other) noexcept { InnerControlAssignment taken(std::move(other)); swap(taken); return *this; }
void InnerControlAssignment::swap(InnerControlAssignment& other) noexcept { std::swap(chosen, other.chosen); std::swap(m_held, other.m_held); }
void InnerControlAssignment::reset() { InnerControlAssignment empty; swap(empty); }
void InnerControlAssignment::init() { chosen = NothingChosen; }

lmx::s_event_map const InnerControlAssignment::elem_event_map[] = {
    {1, "ASP", 3, elem_AllocationStamp},
    {0, nullptr, 0, 0},
};
void InnerControlAssignment::release_choice() { m_held.release(); chosen = NothingChosen; }
bool InnerControlAssignment::IsOccursOk(lmx::c_check_tracker*) const { return true; }
bool InnerControlAssignment::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  if (!IsOccursOk(&link)) return false;
  switch (chosen) {
    case AllocationStampChosen: return m_held.check(&link, "ASP");
  }
  return true;
}
bool InnerControlAssignment::IsMember(lmx::xmlReader& reader) { return is_member(reader, elem_event_map); }
bool InnerControlAssignment::unmarshal(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(elem_event_map, lmx::EXAE_ELEMENT);
  switch (reader.m_event) {
    case elem_AllocationStamp: return read_one(reader, new_one<AllocationStamp>(chosen, m_held, AllocationStampChosen), {elem_event_map, "CAT", __LINE__}, error);
  }
  return true;
}
lmx::elmx_error InnerControlAssignment::marshal(lmx::c_xml_writer& writer, char const*) const { return marshal_child_elements(writer); }
lmx::elmx_error InnerControlAssignment::marshal_child_elements(lmx::c_xml_writer& writer) const { return write_choice(writer, m_held, chosen, NothingChosen, elem_event_map, __LINE__); }

void InnerControlAssignment::SelectAllocationStamp() { selected_one<AllocationStamp>(chosen, m_held, AllocationStampChosen); }
AllocationStamp const& InnerControlAssignment::GetAllocationStamp() const { return chosen_one<AllocationStamp>(m_held, {is_chosen(chosen, m_held, AllocationStampChosen), "chosen == AllocationStampChosen"}); }
AllocationStamp& InnerControlAssignment::GetAllocationStamp() { return selected_one<AllocationStamp>(chosen, m_held, AllocationStampChosen).get_or_create(); }

ControlAssignment::ControlAssignment() { init(); }
ControlAssignment::ControlAssignment(ControlAssignment const& other) = default;
ControlAssignment::ControlAssignment(ControlAssignment&& other) noexcept = default;
ControlAssignment::ControlAssignment(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
ControlAssignment* ControlAssignment::clone() const { return new ControlAssignment(*this); }
ControlAssignment::~ControlAssignment() = default;
ControlAssignment& ControlAssignment::operator=(ControlAssignment const& other) { ControlAssignment copy(other); swap(copy); return *this; }
ControlAssignment& ControlAssignment::operator=(ControlAssignment&& other) noexcept = default;
void ControlAssignment::swap(ControlAssignment& other) noexcept { std::swap(*this, other); }
void ControlAssignment::reset() { ControlAssignment empty; swap(empty); }
void ControlAssignment::init() {}

lmx::s_event_map const ControlAssignment::attr_event_map[] = {
    {1, "A", 1, attr_SourceClientName},
    {1, "B", 1, attr_UserClientName},
    {1, "C", 1, attr_SourceDeviceStructureLabel},
    {1, "D", 1, attr_UserDeviceStructureLabel},
    {1, "E", 1, attr_SourceDeviceElementNumber},
    {1, "F", 1, attr_UserDevieceElementNumber},
    {1, "G", 1, attr_ProcessDataDDI},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const ControlAssignment::elem_event_map[] = {
    {1, "ASP", 3, elem_AllocationStamp},
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const ControlAssignment::known_elements[] = {
    {1, "ASP", 3},
    {0, nullptr, 0},
};
lmx::elmx_error ControlAssignment::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "CAT", __LINE__); }
lmx::elmx_error ControlAssignment::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_complex_content, known_elements, true, __LINE__});
}
bool ControlAssignment::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_SourceClientName: return read_attribute(reader, m_SourceClientName, spec_bytes_8, __LINE__, error);
    case attr_UserClientName: return read_attribute(reader, m_UserClientName, spec_bytes_8, __LINE__, error);
    case attr_SourceDeviceStructureLabel: return read_attribute(reader, m_SourceDeviceStructureLabel, spec_structure_label_28, __LINE__, error);
    case attr_UserDeviceStructureLabel: return read_attribute(reader, m_UserDeviceStructureLabel, spec_structure_label_upper_first_29, __LINE__, error);
    case attr_SourceDeviceElementNumber: return read_attribute(reader, m_SourceDeviceElementNumber, spec_range_0_to_4095_uint16, __LINE__, error);
    case attr_UserDevieceElementNumber: return read_attribute(reader, m_UserDevieceElementNumber, spec_range_0_to_4095_uint16, __LINE__, error);
    case attr_ProcessDataDDI: return read_attribute(reader, m_ProcessDataDDI, spec_bytes_2, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* ControlAssignment::accept_attribute(lmx::plain_attribute const& attribute) {
  switch (attribute.letter()) {
    case 'A': return binding::accept_attribute(m_SourceClientName, spec_bytes_8, attribute);
    case 'B': return binding::accept_attribute(m_UserClientName, spec_bytes_8, attribute);
    case 'C': return binding::accept_attribute(m_SourceDeviceStructureLabel, spec_structure_label_28, attribute);
    case 'D': return binding::accept_attribute(m_UserDeviceStructureLabel, spec_structure_label_upper_first_29, attribute);
    case 'E': return binding::accept_attribute(m_SourceDeviceElementNumber, spec_range_0_to_4095_uint16, attribute);
    case 'F': return binding::accept_attribute(m_UserDevieceElementNumber, spec_range_0_to_4095_uint16, attribute);
    case 'G': return binding::accept_attribute(m_ProcessDataDDI, spec_bytes_2, attribute);
  }
  return nullptr;
}
bool ControlAssignment::has_required_attributes() const { return m_SourceClientName.is_set() && m_UserClientName.is_set() && m_SourceDeviceStructureLabel.is_set() && m_UserDeviceStructureLabel.is_set() && m_SourceDeviceElementNumber.is_set() && m_UserDevieceElementNumber.is_set() && m_ProcessDataDDI.is_set(); }
lmx::elmx_error ControlAssignment::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "CAT", __LINE__, has_required_attributes());
}
bool ControlAssignment::unmarshal_body(lmx::xmlReader& reader, lmx::elmx_error* error) { return read_wrapper(reader, mInnerControlAssignment, {elem_event_map, "CAT", __LINE__}, error); }
lmx::elmx_error ControlAssignment::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void ControlAssignment::marshal_attributes(lmx::c_xml_writer& writer) const {
  write_attribute(writer, "A", m_SourceClientName, spec_bytes_8);
  write_attribute(writer, "B", m_UserClientName, spec_bytes_8);
  write_attribute(writer, "C", m_SourceDeviceStructureLabel, spec_structure_label_28);
  write_attribute(writer, "D", m_UserDeviceStructureLabel, spec_structure_label_upper_first_29);
  write_attribute(writer, "E", m_SourceDeviceElementNumber, spec_range_0_to_4095_uint16);
  write_attribute(writer, "F", m_UserDevieceElementNumber, spec_range_0_to_4095_uint16);
  write_attribute(writer, "G", m_ProcessDataDDI, spec_bytes_2);
}
lmx::elmx_error ControlAssignment::marshal_child_elements(lmx::c_xml_writer& writer) const {
  return write_wrapper(writer, mInnerControlAssignment);
}
bool ControlAssignment::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_SourceClientName.is_set(), "A", __LINE__) &&
         check_occurs(tracker, m_UserClientName.is_set(), "B", __LINE__) &&
         check_occurs(tracker, m_SourceDeviceStructureLabel.is_set(), "C", __LINE__) &&
         check_occurs(tracker, m_UserDeviceStructureLabel.is_set(), "D", __LINE__) &&
         check_occurs(tracker, m_SourceDeviceElementNumber.is_set(), "E", __LINE__) &&
         check_occurs(tracker, m_UserDevieceElementNumber.is_set(), "F", __LINE__) &&
         check_occurs(tracker, m_ProcessDataDDI.is_set(), "G", __LINE__);
}
bool ControlAssignment::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link) && check_wrapper(&link, mInnerControlAssignment);
}
InnerControlAssignment const& ControlAssignment::GetInnerControlAssignment() const { return mInnerControlAssignment.get(); }
InnerControlAssignment& ControlAssignment::GetInnerControlAssignment() { return mInnerControlAssignment.get_or_create(); }
void ControlAssignment::AssignInnerControlAssignment(InnerControlAssignment const& value) { mInnerControlAssignment.assign(value.clone()); }
void ControlAssignment::AssignInnerControlAssignment(InnerControlAssignment* value) { mInnerControlAssignment.assign(value); }
bool ControlAssignment::IssetInnerControlAssignment() const { return mInnerControlAssignment.is_set(); }
void ControlAssignment::UnsetInnerControlAssignment() { mInnerControlAssignment.unset(); }

// ---- Connection ----

Connection::Connection() { init(); }
Connection::Connection(Connection const& other) = default;
Connection::Connection(Connection&& other) noexcept = default;
Connection::Connection(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
Connection* Connection::clone() const { return new Connection(*this); }
Connection::~Connection() = default;
Connection& Connection::operator=(Connection const& other) { Connection copy(other); swap(copy); return *this; }
Connection& Connection::operator=(Connection&& other) noexcept = default;
void Connection::swap(Connection& other) noexcept { std::swap(*this, other); }
void Connection::reset() { Connection empty; swap(empty); }
void Connection::init() {}

lmx::s_event_map const Connection::attr_event_map[] = {
    {1, "A", 1, attr_DeviceIdRef_0},
    {1, "B", 1, attr_DeviceElementIdRef_0},
    {1, "C", 1, attr_DeviceIdRef_1},
    {1, "D", 1, attr_DeviceElementIdRef_1},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const Connection::elem_event_map[] = {
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const Connection::known_elements[] = {
    {0, nullptr, 0},
};
lmx::elmx_error Connection::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "CNN", __LINE__); }
lmx::elmx_error Connection::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_empty_content, known_elements, true, __LINE__});
}
bool Connection::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_DeviceIdRef_0: return read_attribute(reader, m_DeviceIdRef_0, spec_id_DVC_24, __LINE__, error);
    case attr_DeviceElementIdRef_0: return read_attribute(reader, m_DeviceElementIdRef_0, spec_id_DET_25, __LINE__, error);
    case attr_DeviceIdRef_1: return read_attribute(reader, m_DeviceIdRef_1, spec_id_DVC_26, __LINE__, error);
    case attr_DeviceElementIdRef_1: return read_attribute(reader, m_DeviceElementIdRef_1, spec_id_DET_27, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* Connection::accept_attribute(lmx::plain_attribute const& attribute) {
  switch (attribute.letter()) {
    case 'A': return binding::accept_attribute(m_DeviceIdRef_0, spec_id_DVC_24, attribute);
    case 'B': return binding::accept_attribute(m_DeviceElementIdRef_0, spec_id_DET_25, attribute);
    case 'C': return binding::accept_attribute(m_DeviceIdRef_1, spec_id_DVC_26, attribute);
    case 'D': return binding::accept_attribute(m_DeviceElementIdRef_1, spec_id_DET_27, attribute);
  }
  return nullptr;
}
bool Connection::has_required_attributes() const { return m_DeviceIdRef_0.is_set() && m_DeviceElementIdRef_0.is_set() && m_DeviceIdRef_1.is_set() && m_DeviceElementIdRef_1.is_set(); }
lmx::elmx_error Connection::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "CNN", __LINE__, has_required_attributes());
}
bool Connection::unmarshal_body(lmx::xmlReader&, lmx::elmx_error*) { return true; }
lmx::elmx_error Connection::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void Connection::marshal_attributes(lmx::c_xml_writer& writer) const {
  write_attribute(writer, "A", m_DeviceIdRef_0, spec_id_DVC_24);
  write_attribute(writer, "B", m_DeviceElementIdRef_0, spec_id_DET_25);
  write_attribute(writer, "C", m_DeviceIdRef_1, spec_id_DVC_26);
  write_attribute(writer, "D", m_DeviceElementIdRef_1, spec_id_DET_27);
}
lmx::elmx_error Connection::marshal_child_elements(lmx::c_xml_writer&) const {
  return lmx::ELMX_OK;
}
bool Connection::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_DeviceIdRef_0.is_set(), "A", __LINE__) &&
         check_occurs(tracker, m_DeviceElementIdRef_0.is_set(), "B", __LINE__) &&
         check_occurs(tracker, m_DeviceIdRef_1.is_set(), "C", __LINE__) &&
         check_occurs(tracker, m_DeviceElementIdRef_1.is_set(), "D", __LINE__);
}
bool Connection::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link);
}

// ---- OperTechPractice ----

OperTechPractice::OperTechPractice() { init(); }
OperTechPractice::OperTechPractice(OperTechPractice const& other) = default;
OperTechPractice::OperTechPractice(OperTechPractice&& other) noexcept = default;
OperTechPractice::OperTechPractice(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
OperTechPractice* OperTechPractice::clone() const { return new OperTechPractice(*this); }
OperTechPractice::~OperTechPractice() = default;
OperTechPractice& OperTechPractice::operator=(OperTechPractice const& other) { OperTechPractice copy(other); swap(copy); return *this; }
OperTechPractice& OperTechPractice::operator=(OperTechPractice&& other) noexcept = default;
void OperTechPractice::swap(OperTechPractice& other) noexcept { std::swap(*this, other); }
void OperTechPractice::reset() { OperTechPractice empty; swap(empty); }
void OperTechPractice::init() {}

lmx::s_event_map const OperTechPractice::attr_event_map[] = {
    {1, "A", 1, attr_CulturalPracticeIdRef},
    {1, "B", 1, attr_OperationTechniqueIdRef},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const OperTechPractice::elem_event_map[] = {
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const OperTechPractice::known_elements[] = {
    {0, nullptr, 0},
};
lmx::elmx_error OperTechPractice::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "OTP", __LINE__); }
lmx::elmx_error OperTechPractice::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_empty_content, known_elements, true, __LINE__});
}
bool OperTechPractice::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_CulturalPracticeIdRef: return read_attribute(reader, m_CulturalPracticeIdRef, spec_id_CPC_72, __LINE__, error);
    case attr_OperationTechniqueIdRef: return read_attribute(reader, m_OperationTechniqueIdRef, spec_id_OTQ_73, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* OperTechPractice::accept_attribute(lmx::plain_attribute const& attribute) {
  switch (attribute.letter()) {
    case 'A': return binding::accept_attribute(m_CulturalPracticeIdRef, spec_id_CPC_72, attribute);
    case 'B': return binding::accept_attribute(m_OperationTechniqueIdRef, spec_id_OTQ_73, attribute);
  }
  return nullptr;
}
bool OperTechPractice::has_required_attributes() const { return m_CulturalPracticeIdRef.is_set(); }
lmx::elmx_error OperTechPractice::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "OTP", __LINE__, has_required_attributes());
}
bool OperTechPractice::unmarshal_body(lmx::xmlReader&, lmx::elmx_error*) { return true; }
lmx::elmx_error OperTechPractice::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void OperTechPractice::marshal_attributes(lmx::c_xml_writer& writer) const {
  write_attribute(writer, "A", m_CulturalPracticeIdRef, spec_id_CPC_72);
  write_attribute(writer, "B", m_OperationTechniqueIdRef, spec_id_OTQ_73);
}
lmx::elmx_error OperTechPractice::marshal_child_elements(lmx::c_xml_writer&) const {
  return lmx::ELMX_OK;
}
bool OperTechPractice::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_CulturalPracticeIdRef.is_set(), "A", __LINE__);
}
bool OperTechPractice::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link);
}
