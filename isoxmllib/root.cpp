// clang-format off
// Generated from schema/root.toml. Edit the schema, then build the target `schema`.

#include "isoxmllib/root.h"

#include <memory>
#include <utility>

#include "isoxmllib/engine.h"
#include "isoxmllib/events.h"
#include "isoxmllib/device.h"
#include "isoxmllib/field_geometry.h"
#include "isoxmllib/master_data.h"
#include "isoxmllib/question.h"
#include "isoxmllib/task.h"
#include "isoxmllib/task_data.h"

using namespace binding;

Root::Root() { init(); }
Root::Root(Root const& other) = default;
Root::Root(Root&& other) noexcept : chosen(std::exchange(other.chosen, NothingChosen)), m_held(std::move(other.m_held)) {}
Root::Root(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; Root content; *error = content.unmarshal(reader); swap(content); }
Root* Root::clone() const { return new Root(*this); }
Root::~Root() = default;
Root& Root::operator=(Root const& other) { Root copy(other); swap(copy); return *this; }
Root& Root::operator=(Root&& other) noexcept { Root taken(std::move(other)); swap(taken); return *this; }
void Root::swap(Root& other) noexcept { std::swap(chosen, other.chosen); std::swap(m_held, other.m_held); }
void Root::reset() { Root empty; swap(empty); }
void Root::init() { chosen = NothingChosen; }

lmx::s_event_map const Root::elem_event_map[] = {
    {1, "AFE", 3, elem_AttachedFile},
    {1, "ISO11783_TaskData", 17, elem_TaskData},
    {1, "P917_Metadata", 13, elem_P917Metadata},
    {1, "TCC", 3, elem_TaskControllerCapabilities},
    {1, "XFR", 3, elem_ExternalFileReference},
    {1, "ASP", 3, elem_AllocationStamp},
    {1, "BSN", 3, elem_BaseStation},
    {1, "CCT", 3, elem_CodedComment},
    {1, "CCG", 3, elem_CodedCommentGroup},
    {1, "CCL", 3, elem_CodedCommentListValue},
    {1, "CLD", 3, elem_ColourLegend},
    {1, "CRG", 3, elem_ColourRange},
    {1, "CAN", 3, elem_CommentAllocation},
    {1, "CNN", 3, elem_Connection},
    {1, "CAT", 3, elem_ControlAssignment},
    {1, "CTP", 3, elem_CropType},
    {1, "CVT", 3, elem_CropVariety},
    {1, "CPC", 3, elem_CulturalPractice},
    {1, "CTR", 3, elem_Grower},
    {1, "DLT", 3, elem_DataLogTrigger},
    {1, "DLV", 3, elem_DataLogValue},
    {1, "DVC", 3, elem_Device},
    {1, "DAN", 3, elem_DeviceAllocation},
    {1, "DET", 3, elem_DeviceElement},
    {1, "DOR", 3, elem_DeviceObjectReference},
    {1, "DPD", 3, elem_DeviceProcessData},
    {1, "DPT", 3, elem_DeviceProperty},
    {1, "DVP", 3, elem_DeviceValuePresentation},
    {1, "FRM", 3, elem_Farm},
    {1, "GRD", 3, elem_Grid},
    {1, "GAN", 3, elem_GuidanceAllocation},
    {1, "GGP", 3, elem_GuidanceGroup},
    {1, "GPN", 3, elem_GuidancePattern},
    {1, "GST", 3, elem_GuidanceShift},
    {1, "LSG", 3, elem_LineString},
    {1, "OTQ", 3, elem_OperationTechnique},
    {1, "OTR", 3, elem_OperationTechniqueReference},
    {1, "OTP", 3, elem_OperTechPractice},
    {1, "PFD", 3, elem_Field},
    {1, "PNT", 3, elem_Point},
    {1, "PLN", 3, elem_Polygon},
    {1, "PTN", 3, elem_Position},
    {1, "PDV", 3, elem_ProcessDataVariable},
    {1, "PDT", 3, elem_Product},
    {1, "PAN", 3, elem_ProductAllocation},
    {1, "PGP", 3, elem_ProductGroup},
    {1, "PRN", 3, elem_ProductRelation},
    {1, "TSK", 3, elem_Task},
    {1, "TIM", 3, elem_Time},
    {1, "TLG", 3, elem_TimeLog},
    {1, "TZN", 3, elem_TreatmentZone},
    {1, "VPN", 3, elem_ValuePresentation},
    {1, "WKR", 3, elem_Worker},
    {1, "WAN", 3, elem_WorkerAllocation},
    {1, "P917_comment", 12, elem_P917Comment},
    {1, "P917_Questions", 14, elem_P917Questions},
    {1, "P917_Question", 13, elem_P917Question},
    {1, "XFC", 3, elem_ExternalFileContent},
    {1, "ISO11783LinkList", 16, elem_LinkList},
    {1, "LNK", 3, elem_Link},
    {1, "LGP", 3, elem_LinkGroup},
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const Root::known_elements[] = {
    {1, "AFE", 3},
    {1, "ISO11783_TaskData", 17},
    {1, "P917_Metadata", 13},
    {1, "TCC", 3},
    {1, "XFR", 3},
    {1, "ASP", 3},
    {1, "BSN", 3},
    {1, "CCT", 3},
    {1, "CCG", 3},
    {1, "CCL", 3},
    {1, "CLD", 3},
    {1, "CRG", 3},
    {1, "CAN", 3},
    {1, "CNN", 3},
    {1, "CAT", 3},
    {1, "CTP", 3},
    {1, "CVT", 3},
    {1, "CPC", 3},
    {1, "CTR", 3},
    {1, "DLT", 3},
    {1, "DLV", 3},
    {1, "DVC", 3},
    {1, "DAN", 3},
    {1, "DET", 3},
    {1, "DOR", 3},
    {1, "DPD", 3},
    {1, "DPT", 3},
    {1, "DVP", 3},
    {1, "FRM", 3},
    {1, "GRD", 3},
    {1, "GAN", 3},
    {1, "GGP", 3},
    {1, "GPN", 3},
    {1, "GST", 3},
    {1, "LSG", 3},
    {1, "OTQ", 3},
    {1, "OTR", 3},
    {1, "OTP", 3},
    {1, "PFD", 3},
    {1, "PNT", 3},
    {1, "PLN", 3},
    {1, "PTN", 3},
    {1, "PDV", 3},
    {1, "PDT", 3},
    {1, "PAN", 3},
    {1, "PGP", 3},
    {1, "PRN", 3},
    {1, "TSK", 3},
    {1, "TIM", 3},
    {1, "TLG", 3},
    {1, "TZN", 3},
    {1, "VPN", 3},
    {1, "WKR", 3},
    {1, "WAN", 3},
    {1, "P917_comment", 12},
    {1, "P917_Questions", 14},
    {1, "P917_Question", 13},
    {1, "XFC", 3},
    {1, "ISO11783LinkList", 16},
    {1, "LNK", 3},
    {1, "LGP", 3},
    {0, nullptr, 0},
};
void Root::release_choice() { m_held.release(); chosen = NothingChosen; }
bool Root::IsOccursOk(lmx::c_check_tracker* tracker) const { return check_occurs(tracker, chosen != NothingChosen, "<choice not set>", __LINE__); }
bool Root::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  if (!IsOccursOk(&link)) return false;
  switch (chosen) {
    case AttachedFileChosen: return m_held.check(&link, "AFE");
    case TaskDataChosen: return m_held.check(&link, "ISO11783_TaskData");
    case P917MetadataChosen: return m_held.check(&link, "P917_Metadata");
    case TaskControllerCapabilitiesChosen: return m_held.check(&link, "TCC");
    case ExternalFileReferenceChosen: return m_held.check(&link, "XFR");
    case AllocationStampChosen: return m_held.check(&link, "ASP");
    case BaseStationChosen: return m_held.check(&link, "BSN");
    case CodedCommentChosen: return m_held.check(&link, "CCT");
    case CoddedCommentGroupChosen: return m_held.check(&link, "CCG");
    case CodedCommentListValueChosen: return m_held.check(&link, "CCL");
    case ColourLegendChosen: return m_held.check(&link, "CLD");
    case ColourRangeChosen: return m_held.check(&link, "CRG");
    case CommentAllocationChosen: return m_held.check(&link, "CAN");
    case ConnectionChosen: return m_held.check(&link, "CNN");
    case ControlAssignmentChosen: return m_held.check(&link, "CAT");
    case CropTypeChosen: return m_held.check(&link, "CTP");
    case CropVarietyChosen: return m_held.check(&link, "CVT");
    case CulturalPracticeChosen: return m_held.check(&link, "CPC");
    case GrowerChosen: return m_held.check(&link, "CTR");
    case DataLogTriggerChosen: return m_held.check(&link, "DLT");
    case DataLogValueChosen: return m_held.check(&link, "DLV");
    case DeviceChosen: return m_held.check(&link, "DVC");
    case DeviceAllocationChosen: return m_held.check(&link, "DAN");
    case DeviceElementChosen: return m_held.check(&link, "DET");
    case DeviceObjectReferenceChosen: return m_held.check(&link, "DOR");
    case DeviceProcessDataChosen: return m_held.check(&link, "DPD");
    case DevicePropertyChosen: return m_held.check(&link, "DPT");
    case DeviceValuePresentationChosen: return m_held.check(&link, "DVP");
    case FarmChosen: return m_held.check(&link, "FRM");
    case GridChosen: return m_held.check(&link, "GRD");
    case GuidanceAllocationChosen: return m_held.check(&link, "GAN");
    case GuidanceGroupChosen: return m_held.check(&link, "GGP");
    case GuidancePatternChosen: return m_held.check(&link, "GPN");
    case GuidanceShiftChosen: return m_held.check(&link, "GST");
    case LineStringChosen: return m_held.check(&link, "LSG");
    case OperationTechniqueChosen: return m_held.check(&link, "OTQ");
    case OperationTechniqueReferenceChosen: return m_held.check(&link, "OTR");
    case OperTechPracticeChosen: return m_held.check(&link, "OTP");
    case FieldChosen: return m_held.check(&link, "PFD");
    case PointChosen: return m_held.check(&link, "PNT");
    case PolygonChosen: return m_held.check(&link, "PLN");
    case PositionChosen: return m_held.check(&link, "PTN");
    case ProcessDataVariableChosen: return m_held.check(&link, "PDV");
    case ProductChosen: return m_held.check(&link, "PDT");
    case ProductAllocationChosen: return m_held.check(&link, "PAN");
    case ProductGroupChosen: return m_held.check(&link, "PGP");
    case ProductRelationChosen: return m_held.check(&link, "PRN");
    case TaskChosen: return m_held.check(&link, "TSK");
    case TimeChosen: return m_held.check(&link, "TIM");
    case TimeLogChosen: return m_held.check(&link, "TLG");
    case TreatmentZoneChosen: return m_held.check(&link, "TZN");
    case ValuePresentationChosen: return m_held.check(&link, "VPN");
    case WorkerChosen: return m_held.check(&link, "WKR");
    case WorkerAllocationChosen: return m_held.check(&link, "WAN");
    case P917CommentChosen: return m_held.check(&link, "P917_comment");
    case P917QuestionsChosen: return m_held.check(&link, "P917_Questions");
    case P917QuestionChosen: return m_held.check(&link, "P917_Question");
    case ExternalFileContentChosen: return m_held.check(&link, "XFC");
    case LinkListChosen: return m_held.check(&link, "ISO11783LinkList");
    case LinkChosen: return m_held.check(&link, "LNK");
    case LinkGroupChosen: return m_held.check(&link, "LGP");
  }
  return true;
}
bool Root::IsMember(lmx::xmlReader& reader) { return is_member(reader, elem_event_map); }
lmx::elmx_error Root::unmarshal(lmx::xmlReader& reader) { return read_any_document(*this, reader, elem_event_map, known_elements, __LINE__); }
bool Root::unmarshal(lmx::xmlReader& reader, lmx::elmx_error* error) {
  switch (reader.m_event) {
    case elem_AttachedFile: return read_alternative(reader, new_one<AttachedFile>(chosen, m_held, AttachedFileChosen), __LINE__, error);
    case elem_TaskData: return read_alternative(reader, new_one<TaskData>(chosen, m_held, TaskDataChosen), __LINE__, error);
    case elem_P917Metadata: return read_alternative(reader, new_one<P917Metadata>(chosen, m_held, P917MetadataChosen), __LINE__, error);
    case elem_TaskControllerCapabilities: return read_alternative(reader, new_one<TaskControllerCapabilities>(chosen, m_held, TaskControllerCapabilitiesChosen), __LINE__, error);
    case elem_ExternalFileReference: return read_alternative(reader, new_one<ExternalFileReference>(chosen, m_held, ExternalFileReferenceChosen), __LINE__, error);
    case elem_AllocationStamp: return read_alternative(reader, new_one<AllocationStamp>(chosen, m_held, AllocationStampChosen), __LINE__, error);
    case elem_BaseStation: return read_alternative(reader, new_one<BaseStation>(chosen, m_held, BaseStationChosen), __LINE__, error);
    case elem_CodedComment: return read_alternative(reader, new_one<CodedComment>(chosen, m_held, CodedCommentChosen), __LINE__, error);
    case elem_CodedCommentGroup: return read_alternative(reader, new_one<CoddedCommentGroup>(chosen, m_held, CoddedCommentGroupChosen), __LINE__, error);
    case elem_CodedCommentListValue: return read_alternative(reader, new_one<CodedCommentListValue>(chosen, m_held, CodedCommentListValueChosen), __LINE__, error);
    case elem_ColourLegend: return read_alternative(reader, new_one<ColourLegend>(chosen, m_held, ColourLegendChosen), __LINE__, error);
    case elem_ColourRange: return read_alternative(reader, new_one<ColourRange>(chosen, m_held, ColourRangeChosen), __LINE__, error);
    case elem_CommentAllocation: return read_alternative(reader, new_one<CommentAllocation>(chosen, m_held, CommentAllocationChosen), __LINE__, error);
    case elem_Connection: return read_alternative(reader, new_one<Connection>(chosen, m_held, ConnectionChosen), __LINE__, error);
    case elem_ControlAssignment: return read_alternative(reader, new_one<ControlAssignment>(chosen, m_held, ControlAssignmentChosen), __LINE__, error);
    case elem_CropType: return read_alternative(reader, new_one<CropType>(chosen, m_held, CropTypeChosen), __LINE__, error);
    case elem_CropVariety: return read_alternative(reader, new_one<CropVariety>(chosen, m_held, CropVarietyChosen), __LINE__, error);
    case elem_CulturalPractice: return read_alternative(reader, new_one<CulturalPractice>(chosen, m_held, CulturalPracticeChosen), __LINE__, error);
    case elem_Grower: return read_alternative(reader, new_one<Grower>(chosen, m_held, GrowerChosen), __LINE__, error);
    case elem_DataLogTrigger: return read_alternative(reader, new_one<DataLogTrigger>(chosen, m_held, DataLogTriggerChosen), __LINE__, error);
    case elem_DataLogValue: return read_alternative(reader, new_one<DataLogValue>(chosen, m_held, DataLogValueChosen), __LINE__, error);
    case elem_Device: return read_alternative(reader, new_one<Device>(chosen, m_held, DeviceChosen), __LINE__, error);
    case elem_DeviceAllocation: return read_alternative(reader, new_one<DeviceAllocation>(chosen, m_held, DeviceAllocationChosen), __LINE__, error);
    case elem_DeviceElement: return read_alternative(reader, new_one<DeviceElement>(chosen, m_held, DeviceElementChosen), __LINE__, error);
    case elem_DeviceObjectReference: return read_alternative(reader, new_one<DeviceObjectReference>(chosen, m_held, DeviceObjectReferenceChosen), __LINE__, error);
    case elem_DeviceProcessData: return read_alternative(reader, new_one<DeviceProcessData>(chosen, m_held, DeviceProcessDataChosen), __LINE__, error);
    case elem_DeviceProperty: return read_alternative(reader, new_one<DeviceProperty>(chosen, m_held, DevicePropertyChosen), __LINE__, error);
    case elem_DeviceValuePresentation: return read_alternative(reader, new_one<DeviceValuePresentation>(chosen, m_held, DeviceValuePresentationChosen), __LINE__, error);
    case elem_Farm: return read_alternative(reader, new_one<Farm>(chosen, m_held, FarmChosen), __LINE__, error);
    case elem_Grid: return read_alternative(reader, new_one<Grid>(chosen, m_held, GridChosen), __LINE__, error);
    case elem_GuidanceAllocation: return read_alternative(reader, new_one<GuidanceAllocation>(chosen, m_held, GuidanceAllocationChosen), __LINE__, error);
    case elem_GuidanceGroup: return read_alternative(reader, new_one<GuidanceGroup>(chosen, m_held, GuidanceGroupChosen), __LINE__, error);
    case elem_GuidancePattern: return read_alternative(reader, new_one<GuidancePattern>(chosen, m_held, GuidancePatternChosen), __LINE__, error);
    case elem_GuidanceShift: return read_alternative(reader, new_one<GuidanceShift>(chosen, m_held, GuidanceShiftChosen), __LINE__, error);
    case elem_LineString: return read_alternative(reader, new_one<LineString>(chosen, m_held, LineStringChosen), __LINE__, error);
    case elem_OperationTechnique: return read_alternative(reader, new_one<OperationTechnique>(chosen, m_held, OperationTechniqueChosen), __LINE__, error);
    case elem_OperationTechniqueReference: return read_alternative(reader, new_one<OperationTechniqueReference>(chosen, m_held, OperationTechniqueReferenceChosen), __LINE__, error);
    case elem_OperTechPractice: return read_alternative(reader, new_one<OperTechPractice>(chosen, m_held, OperTechPracticeChosen), __LINE__, error);
    case elem_Field: return read_alternative(reader, new_one<Field>(chosen, m_held, FieldChosen), __LINE__, error);
    case elem_Point: return read_alternative(reader, new_one<Point>(chosen, m_held, PointChosen), __LINE__, error);
    case elem_Polygon: return read_alternative(reader, new_one<Polygon>(chosen, m_held, PolygonChosen), __LINE__, error);
    case elem_Position: return read_alternative(reader, new_one<Position>(chosen, m_held, PositionChosen), __LINE__, error);
    case elem_ProcessDataVariable: return read_alternative(reader, new_one<ProcessDataVariable>(chosen, m_held, ProcessDataVariableChosen), __LINE__, error);
    case elem_Product: return read_alternative(reader, new_one<Product>(chosen, m_held, ProductChosen), __LINE__, error);
    case elem_ProductAllocation: return read_alternative(reader, new_one<ProductAllocation>(chosen, m_held, ProductAllocationChosen), __LINE__, error);
    case elem_ProductGroup: return read_alternative(reader, new_one<ProductGroup>(chosen, m_held, ProductGroupChosen), __LINE__, error);
    case elem_ProductRelation: return read_alternative(reader, new_one<ProductRelation>(chosen, m_held, ProductRelationChosen), __LINE__, error);
    case elem_Task: return read_alternative(reader, new_one<Task>(chosen, m_held, TaskChosen), __LINE__, error);
    case elem_Time: return read_alternative(reader, new_one<Time>(chosen, m_held, TimeChosen), __LINE__, error);
    case elem_TimeLog: return read_alternative(reader, new_one<TimeLog>(chosen, m_held, TimeLogChosen), __LINE__, error);
    case elem_TreatmentZone: return read_alternative(reader, new_one<TreatmentZone>(chosen, m_held, TreatmentZoneChosen), __LINE__, error);
    case elem_ValuePresentation: return read_alternative(reader, new_one<ValuePresentation>(chosen, m_held, ValuePresentationChosen), __LINE__, error);
    case elem_Worker: return read_alternative(reader, new_one<Worker>(chosen, m_held, WorkerChosen), __LINE__, error);
    case elem_WorkerAllocation: return read_alternative(reader, new_one<WorkerAllocation>(chosen, m_held, WorkerAllocationChosen), __LINE__, error);
    case elem_P917Comment: return read_alternative(reader, new_one<P917Comment>(chosen, m_held, P917CommentChosen), __LINE__, error);
    case elem_P917Questions: return read_alternative(reader, new_one<P917Questions>(chosen, m_held, P917QuestionsChosen), __LINE__, error);
    case elem_P917Question: return read_alternative(reader, new_one<P917Question>(chosen, m_held, P917QuestionChosen), __LINE__, error);
    case elem_ExternalFileContent: return read_alternative(reader, new_one<ExternalFileContent>(chosen, m_held, ExternalFileContentChosen), __LINE__, error);
    case elem_LinkList: return read_alternative(reader, new_one<LinkList>(chosen, m_held, LinkListChosen), __LINE__, error);
    case elem_Link: return read_alternative(reader, new_one<Link>(chosen, m_held, LinkChosen), __LINE__, error);
    case elem_LinkGroup: return read_alternative(reader, new_one<LinkGroup>(chosen, m_held, LinkGroupChosen), __LINE__, error);
  }
  return report_unknown_top_element(reader, __LINE__, error);
}
lmx::elmx_error Root::marshal(lmx::c_xml_writer& writer, char const*) const { return marshal_child_elements(writer); }
lmx::elmx_error Root::marshal_child_elements(lmx::c_xml_writer& writer) const { return write_choice(writer, m_held, chosen, NothingChosen, elem_event_map, __LINE__); }

void Root::SelectAttachedFile() { selected_one<AttachedFile>(chosen, m_held, AttachedFileChosen); }
AttachedFile const& Root::GetAttachedFile() const { return chosen_one<AttachedFile>(m_held, {is_chosen(chosen, m_held, AttachedFileChosen), "chosen == AttachedFileChosen"}); }
AttachedFile& Root::GetAttachedFile() { return selected_one<AttachedFile>(chosen, m_held, AttachedFileChosen).get_or_create(); }

void Root::SelectTaskData() { selected_one<TaskData>(chosen, m_held, TaskDataChosen); }
TaskData const& Root::GetTaskData() const { return chosen_one<TaskData>(m_held, {is_chosen(chosen, m_held, TaskDataChosen), "chosen == TaskDataChosen"}); }
TaskData& Root::GetTaskData() { return selected_one<TaskData>(chosen, m_held, TaskDataChosen).get_or_create(); }

void Root::SelectP917Metadata() { selected_one<P917Metadata>(chosen, m_held, P917MetadataChosen); }
P917Metadata const& Root::GetP917Metadata() const { return chosen_one<P917Metadata>(m_held, {is_chosen(chosen, m_held, P917MetadataChosen), "chosen == P917MetadataChosen"}); }
P917Metadata& Root::GetP917Metadata() { return selected_one<P917Metadata>(chosen, m_held, P917MetadataChosen).get_or_create(); }

void Root::SelectTaskControllerCapabilities() { selected_one<TaskControllerCapabilities>(chosen, m_held, TaskControllerCapabilitiesChosen); }
TaskControllerCapabilities const& Root::GetTaskControllerCapabilities() const { return chosen_one<TaskControllerCapabilities>(m_held, {is_chosen(chosen, m_held, TaskControllerCapabilitiesChosen), "chosen == TaskControllerCapabilitiesChosen"}); }
TaskControllerCapabilities& Root::GetTaskControllerCapabilities() { return selected_one<TaskControllerCapabilities>(chosen, m_held, TaskControllerCapabilitiesChosen).get_or_create(); }

void Root::SelectExternalFileReference() { selected_one<ExternalFileReference>(chosen, m_held, ExternalFileReferenceChosen); }
ExternalFileReference const& Root::GetExternalFileReference() const { return chosen_one<ExternalFileReference>(m_held, {is_chosen(chosen, m_held, ExternalFileReferenceChosen), "chosen == ExternalFileReferenceChosen"}); }
ExternalFileReference& Root::GetExternalFileReference() { return selected_one<ExternalFileReference>(chosen, m_held, ExternalFileReferenceChosen).get_or_create(); }

void Root::SelectAllocationStamp() { selected_one<AllocationStamp>(chosen, m_held, AllocationStampChosen); }
AllocationStamp const& Root::GetAllocationStamp() const { return chosen_one<AllocationStamp>(m_held, {is_chosen(chosen, m_held, AllocationStampChosen), "chosen == AllocationStampChosen"}); }
AllocationStamp& Root::GetAllocationStamp() { return selected_one<AllocationStamp>(chosen, m_held, AllocationStampChosen).get_or_create(); }

void Root::SelectBaseStation() { selected_one<BaseStation>(chosen, m_held, BaseStationChosen); }
BaseStation const& Root::GetBaseStation() const { return chosen_one<BaseStation>(m_held, {is_chosen(chosen, m_held, BaseStationChosen), "chosen == BaseStationChosen"}); }
BaseStation& Root::GetBaseStation() { return selected_one<BaseStation>(chosen, m_held, BaseStationChosen).get_or_create(); }

void Root::SelectCodedComment() { selected_one<CodedComment>(chosen, m_held, CodedCommentChosen); }
CodedComment const& Root::GetCodedComment() const { return chosen_one<CodedComment>(m_held, {is_chosen(chosen, m_held, CodedCommentChosen), "chosen == CodedCommentChosen"}); }
CodedComment& Root::GetCodedComment() { return selected_one<CodedComment>(chosen, m_held, CodedCommentChosen).get_or_create(); }

void Root::SelectCoddedCommentGroup() { selected_one<CoddedCommentGroup>(chosen, m_held, CoddedCommentGroupChosen); }
CoddedCommentGroup const& Root::GetCoddedCommentGroup() const { return chosen_one<CoddedCommentGroup>(m_held, {is_chosen(chosen, m_held, CoddedCommentGroupChosen), "chosen == CoddedCommentGroupChosen"}); }
CoddedCommentGroup& Root::GetCoddedCommentGroup() { return selected_one<CoddedCommentGroup>(chosen, m_held, CoddedCommentGroupChosen).get_or_create(); }

void Root::SelectCodedCommentListValue() { selected_one<CodedCommentListValue>(chosen, m_held, CodedCommentListValueChosen); }
CodedCommentListValue const& Root::GetCodedCommentListValue() const { return chosen_one<CodedCommentListValue>(m_held, {is_chosen(chosen, m_held, CodedCommentListValueChosen), "chosen == CodedCommentListValueChosen"}); }
CodedCommentListValue& Root::GetCodedCommentListValue() { return selected_one<CodedCommentListValue>(chosen, m_held, CodedCommentListValueChosen).get_or_create(); }

void Root::SelectColourLegend() { selected_one<ColourLegend>(chosen, m_held, ColourLegendChosen); }
ColourLegend const& Root::GetColourLegend() const { return chosen_one<ColourLegend>(m_held, {is_chosen(chosen, m_held, ColourLegendChosen), "chosen == ColourLegendChosen"}); }
ColourLegend& Root::GetColourLegend() { return selected_one<ColourLegend>(chosen, m_held, ColourLegendChosen).get_or_create(); }

void Root::SelectColourRange() { selected_one<ColourRange>(chosen, m_held, ColourRangeChosen); }
ColourRange const& Root::GetColourRange() const { return chosen_one<ColourRange>(m_held, {is_chosen(chosen, m_held, ColourRangeChosen), "chosen == ColourRangeChosen"}); }
ColourRange& Root::GetColourRange() { return selected_one<ColourRange>(chosen, m_held, ColourRangeChosen).get_or_create(); }

void Root::SelectCommentAllocation() { selected_one<CommentAllocation>(chosen, m_held, CommentAllocationChosen); }
CommentAllocation const& Root::GetCommentAllocation() const { return chosen_one<CommentAllocation>(m_held, {is_chosen(chosen, m_held, CommentAllocationChosen), "chosen == CommentAllocationChosen"}); }
CommentAllocation& Root::GetCommentAllocation() { return selected_one<CommentAllocation>(chosen, m_held, CommentAllocationChosen).get_or_create(); }

void Root::SelectConnection() { selected_one<Connection>(chosen, m_held, ConnectionChosen); }
Connection const& Root::GetConnection() const { return chosen_one<Connection>(m_held, {is_chosen(chosen, m_held, ConnectionChosen), "chosen == ConnectionChosen"}); }
Connection& Root::GetConnection() { return selected_one<Connection>(chosen, m_held, ConnectionChosen).get_or_create(); }

void Root::SelectControlAssignment() { selected_one<ControlAssignment>(chosen, m_held, ControlAssignmentChosen); }
ControlAssignment const& Root::GetControlAssignment() const { return chosen_one<ControlAssignment>(m_held, {is_chosen(chosen, m_held, ControlAssignmentChosen), "chosen == ControlAssignmentChosen"}); }
ControlAssignment& Root::GetControlAssignment() { return selected_one<ControlAssignment>(chosen, m_held, ControlAssignmentChosen).get_or_create(); }

void Root::SelectCropType() { selected_one<CropType>(chosen, m_held, CropTypeChosen); }
CropType const& Root::GetCropType() const { return chosen_one<CropType>(m_held, {is_chosen(chosen, m_held, CropTypeChosen), "chosen == CropTypeChosen"}); }
CropType& Root::GetCropType() { return selected_one<CropType>(chosen, m_held, CropTypeChosen).get_or_create(); }

void Root::SelectCropVariety() { selected_one<CropVariety>(chosen, m_held, CropVarietyChosen); }
CropVariety const& Root::GetCropVariety() const { return chosen_one<CropVariety>(m_held, {is_chosen(chosen, m_held, CropVarietyChosen), "chosen == CropVarietyChosen"}); }
CropVariety& Root::GetCropVariety() { return selected_one<CropVariety>(chosen, m_held, CropVarietyChosen).get_or_create(); }

void Root::SelectCulturalPractice() { selected_one<CulturalPractice>(chosen, m_held, CulturalPracticeChosen); }
CulturalPractice const& Root::GetCulturalPractice() const { return chosen_one<CulturalPractice>(m_held, {is_chosen(chosen, m_held, CulturalPracticeChosen), "chosen == CulturalPracticeChosen"}); }
CulturalPractice& Root::GetCulturalPractice() { return selected_one<CulturalPractice>(chosen, m_held, CulturalPracticeChosen).get_or_create(); }

void Root::SelectGrower() { selected_one<Grower>(chosen, m_held, GrowerChosen); }
Grower const& Root::GetGrower() const { return chosen_one<Grower>(m_held, {is_chosen(chosen, m_held, GrowerChosen), "chosen == GrowerChosen"}); }
Grower& Root::GetGrower() { return selected_one<Grower>(chosen, m_held, GrowerChosen).get_or_create(); }

void Root::SelectDataLogTrigger() { selected_one<DataLogTrigger>(chosen, m_held, DataLogTriggerChosen); }
DataLogTrigger const& Root::GetDataLogTrigger() const { return chosen_one<DataLogTrigger>(m_held, {is_chosen(chosen, m_held, DataLogTriggerChosen), "chosen == DataLogTriggerChosen"}); }
DataLogTrigger& Root::GetDataLogTrigger() { return selected_one<DataLogTrigger>(chosen, m_held, DataLogTriggerChosen).get_or_create(); }

void Root::SelectDataLogValue() { selected_one<DataLogValue>(chosen, m_held, DataLogValueChosen); }
DataLogValue const& Root::GetDataLogValue() const { return chosen_one<DataLogValue>(m_held, {is_chosen(chosen, m_held, DataLogValueChosen), "chosen == DataLogValueChosen"}); }
DataLogValue& Root::GetDataLogValue() { return selected_one<DataLogValue>(chosen, m_held, DataLogValueChosen).get_or_create(); }

void Root::SelectDevice() { selected_one<Device>(chosen, m_held, DeviceChosen); }
Device const& Root::GetDevice() const { return chosen_one<Device>(m_held, {is_chosen(chosen, m_held, DeviceChosen), "chosen == DeviceChosen"}); }
Device& Root::GetDevice() { return selected_one<Device>(chosen, m_held, DeviceChosen).get_or_create(); }

void Root::SelectDeviceAllocation() { selected_one<DeviceAllocation>(chosen, m_held, DeviceAllocationChosen); }
DeviceAllocation const& Root::GetDeviceAllocation() const { return chosen_one<DeviceAllocation>(m_held, {is_chosen(chosen, m_held, DeviceAllocationChosen), "chosen == DeviceAllocationChosen"}); }
DeviceAllocation& Root::GetDeviceAllocation() { return selected_one<DeviceAllocation>(chosen, m_held, DeviceAllocationChosen).get_or_create(); }

void Root::SelectDeviceElement() { selected_one<DeviceElement>(chosen, m_held, DeviceElementChosen); }
DeviceElement const& Root::GetDeviceElement() const { return chosen_one<DeviceElement>(m_held, {is_chosen(chosen, m_held, DeviceElementChosen), "chosen == DeviceElementChosen"}); }
DeviceElement& Root::GetDeviceElement() { return selected_one<DeviceElement>(chosen, m_held, DeviceElementChosen).get_or_create(); }

void Root::SelectDeviceObjectReference() { selected_one<DeviceObjectReference>(chosen, m_held, DeviceObjectReferenceChosen); }
DeviceObjectReference const& Root::GetDeviceObjectReference() const { return chosen_one<DeviceObjectReference>(m_held, {is_chosen(chosen, m_held, DeviceObjectReferenceChosen), "chosen == DeviceObjectReferenceChosen"}); }
DeviceObjectReference& Root::GetDeviceObjectReference() { return selected_one<DeviceObjectReference>(chosen, m_held, DeviceObjectReferenceChosen).get_or_create(); }

void Root::SelectDeviceProcessData() { selected_one<DeviceProcessData>(chosen, m_held, DeviceProcessDataChosen); }
DeviceProcessData const& Root::GetDeviceProcessData() const { return chosen_one<DeviceProcessData>(m_held, {is_chosen(chosen, m_held, DeviceProcessDataChosen), "chosen == DeviceProcessDataChosen"}); }
DeviceProcessData& Root::GetDeviceProcessData() { return selected_one<DeviceProcessData>(chosen, m_held, DeviceProcessDataChosen).get_or_create(); }

void Root::SelectDeviceProperty() { selected_one<DeviceProperty>(chosen, m_held, DevicePropertyChosen); }
DeviceProperty const& Root::GetDeviceProperty() const { return chosen_one<DeviceProperty>(m_held, {is_chosen(chosen, m_held, DevicePropertyChosen), "chosen == DevicePropertyChosen"}); }
DeviceProperty& Root::GetDeviceProperty() { return selected_one<DeviceProperty>(chosen, m_held, DevicePropertyChosen).get_or_create(); }

void Root::SelectDeviceValuePresentation() { selected_one<DeviceValuePresentation>(chosen, m_held, DeviceValuePresentationChosen); }
DeviceValuePresentation const& Root::GetDeviceValuePresentation() const { return chosen_one<DeviceValuePresentation>(m_held, {is_chosen(chosen, m_held, DeviceValuePresentationChosen), "chosen == DeviceValuePresentationChosen"}); }
DeviceValuePresentation& Root::GetDeviceValuePresentation() { return selected_one<DeviceValuePresentation>(chosen, m_held, DeviceValuePresentationChosen).get_or_create(); }

void Root::SelectFarm() { selected_one<Farm>(chosen, m_held, FarmChosen); }
Farm const& Root::GetFarm() const { return chosen_one<Farm>(m_held, {is_chosen(chosen, m_held, FarmChosen), "chosen == FarmChosen"}); }
Farm& Root::GetFarm() { return selected_one<Farm>(chosen, m_held, FarmChosen).get_or_create(); }

void Root::SelectGrid() { selected_one<Grid>(chosen, m_held, GridChosen); }
Grid const& Root::GetGrid() const { return chosen_one<Grid>(m_held, {is_chosen(chosen, m_held, GridChosen), "chosen == GridChosen"}); }
Grid& Root::GetGrid() { return selected_one<Grid>(chosen, m_held, GridChosen).get_or_create(); }

void Root::SelectGuidanceAllocation() { selected_one<GuidanceAllocation>(chosen, m_held, GuidanceAllocationChosen); }
GuidanceAllocation const& Root::GetGuidanceAllocation() const { return chosen_one<GuidanceAllocation>(m_held, {is_chosen(chosen, m_held, GuidanceAllocationChosen), "chosen == GuidanceAllocationChosen"}); }
GuidanceAllocation& Root::GetGuidanceAllocation() { return selected_one<GuidanceAllocation>(chosen, m_held, GuidanceAllocationChosen).get_or_create(); }

void Root::SelectGuidanceGroup() { selected_one<GuidanceGroup>(chosen, m_held, GuidanceGroupChosen); }
GuidanceGroup const& Root::GetGuidanceGroup() const { return chosen_one<GuidanceGroup>(m_held, {is_chosen(chosen, m_held, GuidanceGroupChosen), "chosen == GuidanceGroupChosen"}); }
GuidanceGroup& Root::GetGuidanceGroup() { return selected_one<GuidanceGroup>(chosen, m_held, GuidanceGroupChosen).get_or_create(); }

void Root::SelectGuidancePattern() { selected_one<GuidancePattern>(chosen, m_held, GuidancePatternChosen); }
GuidancePattern const& Root::GetGuidancePattern() const { return chosen_one<GuidancePattern>(m_held, {is_chosen(chosen, m_held, GuidancePatternChosen), "chosen == GuidancePatternChosen"}); }
GuidancePattern& Root::GetGuidancePattern() { return selected_one<GuidancePattern>(chosen, m_held, GuidancePatternChosen).get_or_create(); }

void Root::SelectGuidanceShift() { selected_one<GuidanceShift>(chosen, m_held, GuidanceShiftChosen); }
GuidanceShift const& Root::GetGuidanceShift() const { return chosen_one<GuidanceShift>(m_held, {is_chosen(chosen, m_held, GuidanceShiftChosen), "chosen == GuidanceShiftChosen"}); }
GuidanceShift& Root::GetGuidanceShift() { return selected_one<GuidanceShift>(chosen, m_held, GuidanceShiftChosen).get_or_create(); }

void Root::SelectLineString() { selected_one<LineString>(chosen, m_held, LineStringChosen); }
LineString const& Root::GetLineString() const { return chosen_one<LineString>(m_held, {is_chosen(chosen, m_held, LineStringChosen), "chosen == LineStringChosen"}); }
LineString& Root::GetLineString() { return selected_one<LineString>(chosen, m_held, LineStringChosen).get_or_create(); }

void Root::SelectOperationTechnique() { selected_one<OperationTechnique>(chosen, m_held, OperationTechniqueChosen); }
OperationTechnique const& Root::GetOperationTechnique() const { return chosen_one<OperationTechnique>(m_held, {is_chosen(chosen, m_held, OperationTechniqueChosen), "chosen == OperationTechniqueChosen"}); }
OperationTechnique& Root::GetOperationTechnique() { return selected_one<OperationTechnique>(chosen, m_held, OperationTechniqueChosen).get_or_create(); }

void Root::SelectOperationTechniqueReference() { selected_one<OperationTechniqueReference>(chosen, m_held, OperationTechniqueReferenceChosen); }
OperationTechniqueReference const& Root::GetOperationTechniqueReference() const { return chosen_one<OperationTechniqueReference>(m_held, {is_chosen(chosen, m_held, OperationTechniqueReferenceChosen), "chosen == OperationTechniqueReferenceChosen"}); }
OperationTechniqueReference& Root::GetOperationTechniqueReference() { return selected_one<OperationTechniqueReference>(chosen, m_held, OperationTechniqueReferenceChosen).get_or_create(); }

void Root::SelectOperTechPractice() { selected_one<OperTechPractice>(chosen, m_held, OperTechPracticeChosen); }
OperTechPractice const& Root::GetOperTechPractice() const { return chosen_one<OperTechPractice>(m_held, {is_chosen(chosen, m_held, OperTechPracticeChosen), "chosen == OperTechPracticeChosen"}); }
OperTechPractice& Root::GetOperTechPractice() { return selected_one<OperTechPractice>(chosen, m_held, OperTechPracticeChosen).get_or_create(); }

void Root::SelectField() { selected_one<Field>(chosen, m_held, FieldChosen); }
Field const& Root::GetField() const { return chosen_one<Field>(m_held, {is_chosen(chosen, m_held, FieldChosen), "chosen == FieldChosen"}); }
Field& Root::GetField() { return selected_one<Field>(chosen, m_held, FieldChosen).get_or_create(); }

void Root::SelectPoint() { selected_one<Point>(chosen, m_held, PointChosen); }
Point const& Root::GetPoint() const { return chosen_one<Point>(m_held, {is_chosen(chosen, m_held, PointChosen), "chosen == PointChosen"}); }
Point& Root::GetPoint() { return selected_one<Point>(chosen, m_held, PointChosen).get_or_create(); }

void Root::SelectPolygon() { selected_one<Polygon>(chosen, m_held, PolygonChosen); }
Polygon const& Root::GetPolygon() const { return chosen_one<Polygon>(m_held, {is_chosen(chosen, m_held, PolygonChosen), "chosen == PolygonChosen"}); }
Polygon& Root::GetPolygon() { return selected_one<Polygon>(chosen, m_held, PolygonChosen).get_or_create(); }

void Root::SelectPosition() { selected_one<Position>(chosen, m_held, PositionChosen); }
Position const& Root::GetPosition() const { return chosen_one<Position>(m_held, {is_chosen(chosen, m_held, PositionChosen), "chosen == PositionChosen"}); }
Position& Root::GetPosition() { return selected_one<Position>(chosen, m_held, PositionChosen).get_or_create(); }

void Root::SelectProcessDataVariable() { selected_one<ProcessDataVariable>(chosen, m_held, ProcessDataVariableChosen); }
ProcessDataVariable const& Root::GetProcessDataVariable() const { return chosen_one<ProcessDataVariable>(m_held, {is_chosen(chosen, m_held, ProcessDataVariableChosen), "chosen == ProcessDataVariableChosen"}); }
ProcessDataVariable& Root::GetProcessDataVariable() { return selected_one<ProcessDataVariable>(chosen, m_held, ProcessDataVariableChosen).get_or_create(); }

void Root::SelectProduct() { selected_one<Product>(chosen, m_held, ProductChosen); }
Product const& Root::GetProduct() const { return chosen_one<Product>(m_held, {is_chosen(chosen, m_held, ProductChosen), "chosen == ProductChosen"}); }
Product& Root::GetProduct() { return selected_one<Product>(chosen, m_held, ProductChosen).get_or_create(); }

void Root::SelectProductAllocation() { selected_one<ProductAllocation>(chosen, m_held, ProductAllocationChosen); }
ProductAllocation const& Root::GetProductAllocation() const { return chosen_one<ProductAllocation>(m_held, {is_chosen(chosen, m_held, ProductAllocationChosen), "chosen == ProductAllocationChosen"}); }
ProductAllocation& Root::GetProductAllocation() { return selected_one<ProductAllocation>(chosen, m_held, ProductAllocationChosen).get_or_create(); }

void Root::SelectProductGroup() { selected_one<ProductGroup>(chosen, m_held, ProductGroupChosen); }
ProductGroup const& Root::GetProductGroup() const { return chosen_one<ProductGroup>(m_held, {is_chosen(chosen, m_held, ProductGroupChosen), "chosen == ProductGroupChosen"}); }
ProductGroup& Root::GetProductGroup() { return selected_one<ProductGroup>(chosen, m_held, ProductGroupChosen).get_or_create(); }

void Root::SelectProductRelation() { selected_one<ProductRelation>(chosen, m_held, ProductRelationChosen); }
ProductRelation const& Root::GetProductRelation() const { return chosen_one<ProductRelation>(m_held, {is_chosen(chosen, m_held, ProductRelationChosen), "chosen == ProductRelationChosen"}); }
ProductRelation& Root::GetProductRelation() { return selected_one<ProductRelation>(chosen, m_held, ProductRelationChosen).get_or_create(); }

void Root::SelectTask() { selected_one<Task>(chosen, m_held, TaskChosen); }
Task const& Root::GetTask() const { return chosen_one<Task>(m_held, {is_chosen(chosen, m_held, TaskChosen), "chosen == TaskChosen"}); }
Task& Root::GetTask() { return selected_one<Task>(chosen, m_held, TaskChosen).get_or_create(); }

void Root::SelectTime() { selected_one<Time>(chosen, m_held, TimeChosen); }
Time const& Root::GetTime() const { return chosen_one<Time>(m_held, {is_chosen(chosen, m_held, TimeChosen), "chosen == TimeChosen"}); }
Time& Root::GetTime() { return selected_one<Time>(chosen, m_held, TimeChosen).get_or_create(); }

void Root::SelectTimeLog() { selected_one<TimeLog>(chosen, m_held, TimeLogChosen); }
TimeLog const& Root::GetTimeLog() const { return chosen_one<TimeLog>(m_held, {is_chosen(chosen, m_held, TimeLogChosen), "chosen == TimeLogChosen"}); }
TimeLog& Root::GetTimeLog() { return selected_one<TimeLog>(chosen, m_held, TimeLogChosen).get_or_create(); }

void Root::SelectTreatmentZone() { selected_one<TreatmentZone>(chosen, m_held, TreatmentZoneChosen); }
TreatmentZone const& Root::GetTreatmentZone() const { return chosen_one<TreatmentZone>(m_held, {is_chosen(chosen, m_held, TreatmentZoneChosen), "chosen == TreatmentZoneChosen"}); }
TreatmentZone& Root::GetTreatmentZone() { return selected_one<TreatmentZone>(chosen, m_held, TreatmentZoneChosen).get_or_create(); }

void Root::SelectValuePresentation() { selected_one<ValuePresentation>(chosen, m_held, ValuePresentationChosen); }
ValuePresentation const& Root::GetValuePresentation() const { return chosen_one<ValuePresentation>(m_held, {is_chosen(chosen, m_held, ValuePresentationChosen), "chosen == ValuePresentationChosen"}); }
ValuePresentation& Root::GetValuePresentation() { return selected_one<ValuePresentation>(chosen, m_held, ValuePresentationChosen).get_or_create(); }

void Root::SelectWorker() { selected_one<Worker>(chosen, m_held, WorkerChosen); }
Worker const& Root::GetWorker() const { return chosen_one<Worker>(m_held, {is_chosen(chosen, m_held, WorkerChosen), "chosen == WorkerChosen"}); }
Worker& Root::GetWorker() { return selected_one<Worker>(chosen, m_held, WorkerChosen).get_or_create(); }

void Root::SelectWorkerAllocation() { selected_one<WorkerAllocation>(chosen, m_held, WorkerAllocationChosen); }
WorkerAllocation const& Root::GetWorkerAllocation() const { return chosen_one<WorkerAllocation>(m_held, {is_chosen(chosen, m_held, WorkerAllocationChosen), "chosen == WorkerAllocationChosen"}); }
WorkerAllocation& Root::GetWorkerAllocation() { return selected_one<WorkerAllocation>(chosen, m_held, WorkerAllocationChosen).get_or_create(); }

void Root::SelectP917Comment() { selected_one<P917Comment>(chosen, m_held, P917CommentChosen); }
P917Comment const& Root::GetP917Comment() const { return chosen_one<P917Comment>(m_held, {is_chosen(chosen, m_held, P917CommentChosen), "chosen == P917CommentChosen"}); }
P917Comment& Root::GetP917Comment() { return selected_one<P917Comment>(chosen, m_held, P917CommentChosen).get_or_create(); }
void Root::SetP917Comment(std::string const& text) { GetP917Comment().SetP917Comment(text); }

void Root::SelectP917Questions() { selected_one<P917Questions>(chosen, m_held, P917QuestionsChosen); }
P917Questions const& Root::GetP917Questions() const { return chosen_one<P917Questions>(m_held, {is_chosen(chosen, m_held, P917QuestionsChosen), "chosen == P917QuestionsChosen"}); }
P917Questions& Root::GetP917Questions() { return selected_one<P917Questions>(chosen, m_held, P917QuestionsChosen).get_or_create(); }

void Root::SelectP917Question() { selected_one<P917Question>(chosen, m_held, P917QuestionChosen); }
P917Question const& Root::GetP917Question() const { return chosen_one<P917Question>(m_held, {is_chosen(chosen, m_held, P917QuestionChosen), "chosen == P917QuestionChosen"}); }
P917Question& Root::GetP917Question() { return selected_one<P917Question>(chosen, m_held, P917QuestionChosen).get_or_create(); }

void Root::SelectExternalFileContent() { selected_one<ExternalFileContent>(chosen, m_held, ExternalFileContentChosen); }
ExternalFileContent const& Root::GetExternalFileContent() const { return chosen_one<ExternalFileContent>(m_held, {is_chosen(chosen, m_held, ExternalFileContentChosen), "chosen == ExternalFileContentChosen"}); }
ExternalFileContent& Root::GetExternalFileContent() { return selected_one<ExternalFileContent>(chosen, m_held, ExternalFileContentChosen).get_or_create(); }

void Root::SelectLinkList() { selected_one<LinkList>(chosen, m_held, LinkListChosen); }
LinkList const& Root::GetLinkList() const { return chosen_one<LinkList>(m_held, {is_chosen(chosen, m_held, LinkListChosen), "chosen == LinkListChosen"}); }
LinkList& Root::GetLinkList() { return selected_one<LinkList>(chosen, m_held, LinkListChosen).get_or_create(); }

void Root::SelectLink() { selected_one<Link>(chosen, m_held, LinkChosen); }
Link const& Root::GetLink() const { return chosen_one<Link>(m_held, {is_chosen(chosen, m_held, LinkChosen), "chosen == LinkChosen"}); }
Link& Root::GetLink() { return selected_one<Link>(chosen, m_held, LinkChosen).get_or_create(); }

void Root::SelectLinkGroup() { selected_one<LinkGroup>(chosen, m_held, LinkGroupChosen); }
LinkGroup const& Root::GetLinkGroup() const { return chosen_one<LinkGroup>(m_held, {is_chosen(chosen, m_held, LinkGroupChosen), "chosen == LinkGroupChosen"}); }
LinkGroup& Root::GetLinkGroup() { return selected_one<LinkGroup>(chosen, m_held, LinkGroupChosen).get_or_create(); }
