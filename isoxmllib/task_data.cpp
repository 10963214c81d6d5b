// clang-format off
// Generated from schema/task_data.toml. Edit the schema, then build the target `schema`.

#include "isoxmllib/task_data.h"

#include <memory>
#include <utility>

#include "isoxmllib/engine.h"
#include "isoxmllib/events.h"
#include "isoxmllib/rules.h"
#include "isoxmllib/specs.h"
#include "isoxmllib/device.h"
#include "isoxmllib/field_geometry.h"
#include "isoxmllib/master_data.h"
#include "isoxmllib/question.h"
#include "isoxmllib/task.h"

using namespace binding;

// ---- TaskData ----

InnerTaskData::InnerTaskData() { init(); }
InnerTaskData::InnerTaskData(InnerTaskData const& other) = default;
InnerTaskData::InnerTaskData(InnerTaskData&& other) noexcept : chosen(std::exchange(other.chosen, NothingChosen)), m_held(std::move(other.m_held)) {}
InnerTaskData::InnerTaskData(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_OK; unmarshal(reader, error); }
InnerTaskData* InnerTaskData::clone() const { return new InnerTaskData(*this); }
InnerTaskData::~InnerTaskData() = default;
InnerTaskData& InnerTaskData::operator=(InnerTaskData const& other) { InnerTaskData copy(other); swap(copy); return *this; }
InnerTaskData& InnerTaskData::operator=(InnerTaskData&& other) noexcept { InnerTaskData taken(std::move(other)); swap(taken); return *this; }
void InnerTaskData::swap(InnerTaskData& other) noexcept { std::swap(chosen, other.chosen); std::swap(m_held, other.m_held); }
void InnerTaskData::reset() { InnerTaskData empty; swap(empty); }
void InnerTaskData::init() { chosen = NothingChosen; }

lmx::s_event_map const InnerTaskData::elem_event_map[] = {
    {1, "P917_Metadata", 13, elem_P917Metadata},
    {1, "P917_Questions", 14, elem_P917Questions},
    {1, "AFE", 3, elem_AttachedFile},
    {1, "BSN", 3, elem_BaseStation},
    {1, "CCT", 3, elem_CodedComment},
    {1, "CCG", 3, elem_CodedCommentGroup},
    {1, "CLD", 3, elem_ColourLegend},
    {1, "CTP", 3, elem_CropType},
    {1, "CPC", 3, elem_CulturalPractice},
    {1, "CTR", 3, elem_Grower},
    {1, "DVC", 3, elem_Device},
    {1, "FRM", 3, elem_Farm},
    {1, "OTQ", 3, elem_OperationTechnique},
    {1, "PFD", 3, elem_Field},
    {1, "PDT", 3, elem_Product},
    {1, "PGP", 3, elem_ProductGroup},
    {1, "TSK", 3, elem_Task},
    {1, "TCC", 3, elem_TaskControllerCapabilities},
    {1, "VPN", 3, elem_ValuePresentation},
    {1, "WKR", 3, elem_Worker},
    {1, "XFR", 3, elem_ExternalFileReference},
    {0, nullptr, 0, 0},
};
void InnerTaskData::release_choice() { m_held.release(); chosen = NothingChosen; }
bool InnerTaskData::IsOccursOk(lmx::c_check_tracker*) const { return true; }
bool InnerTaskData::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  if (!IsOccursOk(&link)) return false;
  switch (chosen) {
    case P917MetadataChosen: return m_held.check(&link, "P917_Metadata");
    case P917QuestionsChosen: return m_held.check(&link, "P917_Questions");
    case AttachedFileChosen: return m_held.check(&link, "AFE");
    case BaseStationChosen: return m_held.check(&link, "BSN");
    case CodedCommentChosen: return m_held.check(&link, "CCT");
    case CodedCommentGroupChosen: return m_held.check(&link, "CCG");
    case ColourLegendChosen: return m_held.check(&link, "CLD");
    case CropTypeChosen: return m_held.check(&link, "CTP");
    case CulturalPracticeChosen: return m_held.check(&link, "CPC");
    case GrowerChosen: return m_held.check(&link, "CTR");
    case DeviceChosen: return m_held.check(&link, "DVC");
    case FarmChosen: return m_held.check(&link, "FRM");
    case OperationTechniqueChosen: return m_held.check(&link, "OTQ");
    case FieldChosen: return m_held.check(&link, "PFD");
    case ProductChosen: return m_held.check(&link, "PDT");
    case ProductGroupChosen: return m_held.check(&link, "PGP");
    case TaskChosen: return m_held.check(&link, "TSK");
    case TaskControllerCapabilitiesChosen: return m_held.check(&link, "TCC");
    case ValuePresentationChosen: return m_held.check(&link, "VPN");
    case WorkerChosen: return m_held.check(&link, "WKR");
    case ExternalFileReferenceChosen: return m_held.check(&link, "XFR");
  }
  return true;
}
bool InnerTaskData::IsMember(lmx::xmlReader& reader) { return is_member(reader, elem_event_map); }
bool InnerTaskData::unmarshal(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(elem_event_map, lmx::EXAE_ELEMENT);
  switch (reader.m_event) {
    case elem_P917Metadata: return read_one(reader, new_one<P917Metadata>(chosen, m_held, P917MetadataChosen), {elem_event_map, "ISO11783_TaskData", __LINE__}, error);
    case elem_P917Questions: return read_run(reader, new_run<P917Questions>(chosen, m_held, P917QuestionsChosen), elem_P917Questions, {elem_event_map, "ISO11783_TaskData", __LINE__}, error);
    case elem_AttachedFile: return read_run(reader, new_run<AttachedFile>(chosen, m_held, AttachedFileChosen), elem_AttachedFile, {elem_event_map, "ISO11783_TaskData", __LINE__}, error);
    case elem_BaseStation: return read_run(reader, new_run<BaseStation>(chosen, m_held, BaseStationChosen), elem_BaseStation, {elem_event_map, "ISO11783_TaskData", __LINE__}, error);
    case elem_CodedComment: return read_run(reader, new_run<CodedComment>(chosen, m_held, CodedCommentChosen), elem_CodedComment, {elem_event_map, "ISO11783_TaskData", __LINE__}, error);
    case elem_CodedCommentGroup: return read_run(reader, new_run<CoddedCommentGroup>(chosen, m_held, CodedCommentGroupChosen), elem_CodedCommentGroup, {elem_event_map, "ISO11783_TaskData", __LINE__}, error);
    case elem_ColourLegend: return read_run(reader, new_run<ColourLegend>(chosen, m_held, ColourLegendChosen), elem_ColourLegend, {elem_event_map, "ISO11783_TaskData", __LINE__}, error);
    case elem_CropType: return read_run(reader, new_run<CropType>(chosen, m_held, CropTypeChosen), elem_CropType, {elem_event_map, "ISO11783_TaskData", __LINE__}, error);
    case elem_CulturalPractice: return read_run(reader, new_run<CulturalPractice>(chosen, m_held, CulturalPracticeChosen), elem_CulturalPractice, {elem_event_map, "ISO11783_TaskData", __LINE__}, error);
    case elem_Grower: return read_run(reader, new_run<Grower>(chosen, m_held, GrowerChosen), elem_Grower, {elem_event_map, "ISO11783_TaskData", __LINE__}, error);
    case elem_Device: return read_run(reader, new_run<Device>(chosen, m_held, DeviceChosen), elem_Device, {elem_event_map, "ISO11783_TaskData", __LINE__}, error);
    case elem_Farm: return read_run(reader, new_run<Farm>(chosen, m_held, FarmChosen), elem_Farm, {elem_event_map, "ISO11783_TaskData", __LINE__}, error);
    case elem_OperationTechnique: return read_run(reader, new_run<OperationTechnique>(chosen, m_held, OperationTechniqueChosen), elem_OperationTechnique, {elem_event_map, "ISO11783_TaskData", __LINE__}, error);
    case elem_Field: return read_run(reader, new_run<Field>(chosen, m_held, FieldChosen), elem_Field, {elem_event_map, "ISO11783_TaskData", __LINE__}, error);
    case elem_Product: return read_run(reader, new_run<Product>(chosen, m_held, ProductChosen), elem_Product, {elem_event_map, "ISO11783_TaskData", __LINE__}, error);
    case elem_ProductGroup: return read_run(reader, new_run<ProductGroup>(chosen, m_held, ProductGroupChosen), elem_ProductGroup, {elem_event_map, "ISO11783_TaskData", __LINE__}, error);
    case elem_Task: return read_run(reader, new_run<Task>(chosen, m_held, TaskChosen), elem_Task, {elem_event_map, "ISO11783_TaskData", __LINE__}, error);
    case elem_TaskControllerCapabilities: return read_one(reader, new_one<TaskControllerCapabilities>(chosen, m_held, TaskControllerCapabilitiesChosen), {elem_event_map, "ISO11783_TaskData", __LINE__}, error);
    case elem_ValuePresentation: return read_run(reader, new_run<ValuePresentation>(chosen, m_held, ValuePresentationChosen), elem_ValuePresentation, {elem_event_map, "ISO11783_TaskData", __LINE__}, error);
    case elem_Worker: return read_run(reader, new_run<Worker>(chosen, m_held, WorkerChosen), elem_Worker, {elem_event_map, "ISO11783_TaskData", __LINE__}, error);
    case elem_ExternalFileReference: return read_run(reader, new_run<ExternalFileReference>(chosen, m_held, ExternalFileReferenceChosen), elem_ExternalFileReference, {elem_event_map, "ISO11783_TaskData", __LINE__}, error);
  }
  return true;
}
lmx::elmx_error InnerTaskData::marshal(lmx::c_xml_writer& writer, char const*) const { return marshal_child_elements(writer); }
lmx::elmx_error InnerTaskData::marshal_child_elements(lmx::c_xml_writer& writer) const { return write_choice(writer, m_held, chosen, NothingChosen, elem_event_map, __LINE__); }

void InnerTaskData::SelectP917Metadata() { selected_one<P917Metadata>(chosen, m_held, P917MetadataChosen); }
P917Metadata const& InnerTaskData::GetP917Metadata() const { return chosen_one<P917Metadata>(m_held, {is_chosen(chosen, m_held, P917MetadataChosen), "chosen == P917MetadataChosen"}); }
P917Metadata& InnerTaskData::GetP917Metadata() { return selected_one<P917Metadata>(chosen, m_held, P917MetadataChosen).get_or_create(); }

void InnerTaskData::SelectP917Questions() { selected_run<P917Questions>(chosen, m_held, P917QuestionsChosen); }
P917Questions const& InnerTaskData::GetP917Questions(std::size_t index) const { return run_at<P917Questions>(m_held, {is_chosen(chosen, m_held, P917QuestionsChosen), "chosen == P917QuestionsChosen"}, index, "index < u.mP917Questions->size()"); }
P917Questions& InnerTaskData::GetP917Questions(std::size_t index) { return selected_run<P917Questions>(chosen, m_held, P917QuestionsChosen).get_or_append(index); }
P917Questions& InnerTaskData::AppendP917Questions() { return selected_run<P917Questions>(chosen, m_held, P917QuestionsChosen).append(); }
void InnerTaskData::AppendP917Questions(P917Questions* value) { std::unique_ptr<P917Questions> owned(value); selected_run<P917Questions>(chosen, m_held, P917QuestionsChosen).append(std::move(owned)); }
P917Questions& InnerTaskData::InsertP917Questions(std::size_t index) { return selected_run<P917Questions>(chosen, m_held, P917QuestionsChosen).insert(index); }
void InnerTaskData::InsertP917Questions(std::size_t index, P917Questions* value) { std::unique_ptr<P917Questions> owned(value); selected_run<P917Questions>(chosen, m_held, P917QuestionsChosen).insert(index, std::move(owned)); }
void InnerTaskData::AssignP917Questions(std::size_t index, P917Questions const& value) { selected_run<P917Questions>(chosen, m_held, P917QuestionsChosen).assign(index, value); }
void InnerTaskData::AssignP917Questions(std::size_t index, P917Questions* value) { std::unique_ptr<P917Questions> owned(value); selected_run<P917Questions>(chosen, m_held, P917QuestionsChosen).assign(index, std::move(owned)); }
P917Questions& InnerTaskData::BackP917Questions() { return selected_run<P917Questions>(chosen, m_held, P917QuestionsChosen).back(); }
void InnerTaskData::DeleteP917Questions(std::size_t index) { erase_at<P917Questions>(m_held, {is_chosen(chosen, m_held, P917QuestionsChosen), "chosen == P917QuestionsChosen"}, index, "index < u.mP917Questions->size()"); }
void InnerTaskData::ClearP917Questions() { selected_run<P917Questions>(chosen, m_held, P917QuestionsChosen).clear(); }
std::size_t InnerTaskData::SizeP917Questions() const { return run_size<P917Questions>(m_held, m_held.holds(P917QuestionsChosen)); }

void InnerTaskData::SelectAttachedFile() { selected_run<AttachedFile>(chosen, m_held, AttachedFileChosen); }
AttachedFile const& InnerTaskData::GetAttachedFile(std::size_t index) const { return run_at<AttachedFile>(m_held, {is_chosen(chosen, m_held, AttachedFileChosen), "chosen == AttachedFileChosen"}, index, "index < u.mAttachedFile->size()"); }
AttachedFile& InnerTaskData::GetAttachedFile(std::size_t index) { return selected_run<AttachedFile>(chosen, m_held, AttachedFileChosen).get_or_append(index); }
AttachedFile& InnerTaskData::AppendAttachedFile() { return selected_run<AttachedFile>(chosen, m_held, AttachedFileChosen).append(); }
void InnerTaskData::AppendAttachedFile(AttachedFile* value) { std::unique_ptr<AttachedFile> owned(value); selected_run<AttachedFile>(chosen, m_held, AttachedFileChosen).append(std::move(owned)); }
AttachedFile& InnerTaskData::InsertAttachedFile(std::size_t index) { return selected_run<AttachedFile>(chosen, m_held, AttachedFileChosen).insert(index); }
void InnerTaskData::InsertAttachedFile(std::size_t index, AttachedFile* value) { std::unique_ptr<AttachedFile> owned(value); selected_run<AttachedFile>(chosen, m_held, AttachedFileChosen).insert(index, std::move(owned)); }
void InnerTaskData::AssignAttachedFile(std::size_t index, AttachedFile const& value) { selected_run<AttachedFile>(chosen, m_held, AttachedFileChosen).assign(index, value); }
void InnerTaskData::AssignAttachedFile(std::size_t index, AttachedFile* value) { std::unique_ptr<AttachedFile> owned(value); selected_run<AttachedFile>(chosen, m_held, AttachedFileChosen).assign(index, std::move(owned)); }
AttachedFile& InnerTaskData::BackAttachedFile() { return selected_run<AttachedFile>(chosen, m_held, AttachedFileChosen).back(); }
void InnerTaskData::DeleteAttachedFile(std::size_t index) { erase_at<AttachedFile>(m_held, {is_chosen(chosen, m_held, AttachedFileChosen), "chosen == AttachedFileChosen"}, index, "index < u.mAttachedFile->size()"); }
void InnerTaskData::ClearAttachedFile() { selected_run<AttachedFile>(chosen, m_held, AttachedFileChosen).clear(); }
std::size_t InnerTaskData::SizeAttachedFile() const { return run_size<AttachedFile>(m_held, m_held.holds(AttachedFileChosen)); }

void InnerTaskData::SelectBaseStation() { selected_run<BaseStation>(chosen, m_held, BaseStationChosen); }
BaseStation const& InnerTaskData::GetBaseStation(std::size_t index) const { return run_at<BaseStation>(m_held, {is_chosen(chosen, m_held, BaseStationChosen), "chosen == BaseStationChosen"}, index, "index < u.mBaseStation->size()"); }
BaseStation& InnerTaskData::GetBaseStation(std::size_t index) { return selected_run<BaseStation>(chosen, m_held, BaseStationChosen).get_or_append(index); }
BaseStation& InnerTaskData::AppendBaseStation() { return selected_run<BaseStation>(chosen, m_held, BaseStationChosen).append(); }
void InnerTaskData::AppendBaseStation(BaseStation* value) { std::unique_ptr<BaseStation> owned(value); selected_run<BaseStation>(chosen, m_held, BaseStationChosen).append(std::move(owned)); }
BaseStation& InnerTaskData::InsertBaseStation(std::size_t index) { return selected_run<BaseStation>(chosen, m_held, BaseStationChosen).insert(index); }
void InnerTaskData::InsertBaseStation(std::size_t index, BaseStation* value) { std::unique_ptr<BaseStation> owned(value); selected_run<BaseStation>(chosen, m_held, BaseStationChosen).insert(index, std::move(owned)); }
void InnerTaskData::AssignBaseStation(std::size_t index, BaseStation const& value) { selected_run<BaseStation>(chosen, m_held, BaseStationChosen).assign(index, value); }
void InnerTaskData::AssignBaseStation(std::size_t index, BaseStation* value) { std::unique_ptr<BaseStation> owned(value); selected_run<BaseStation>(chosen, m_held, BaseStationChosen).assign(index, std::move(owned)); }
BaseStation& InnerTaskData::BackBaseStation() { return selected_run<BaseStation>(chosen, m_held, BaseStationChosen).back(); }
void InnerTaskData::DeleteBaseStation(std::size_t index) { erase_at<BaseStation>(m_held, {is_chosen(chosen, m_held, BaseStationChosen), "chosen == BaseStationChosen"}, index, "index < u.mBaseStation->size()"); }
void InnerTaskData::ClearBaseStation() { selected_run<BaseStation>(chosen, m_held, BaseStationChosen).clear(); }
std::size_t InnerTaskData::SizeBaseStation() const { return run_size<BaseStation>(m_held, m_held.holds(BaseStationChosen)); }

void InnerTaskData::SelectCodedComment() { selected_run<CodedComment>(chosen, m_held, CodedCommentChosen); }
CodedComment const& InnerTaskData::GetCodedComment(std::size_t index) const { return run_at<CodedComment>(m_held, {is_chosen(chosen, m_held, CodedCommentChosen), "chosen == CodedCommentChosen"}, index, "index < u.mCodedComment->size()"); }
CodedComment& InnerTaskData::GetCodedComment(std::size_t index) { return selected_run<CodedComment>(chosen, m_held, CodedCommentChosen).get_or_append(index); }
CodedComment& InnerTaskData::AppendCodedComment() { return selected_run<CodedComment>(chosen, m_held, CodedCommentChosen).append(); }
void InnerTaskData::AppendCodedComment(CodedComment* value) { std::unique_ptr<CodedComment> owned(value); selected_run<CodedComment>(chosen, m_held, CodedCommentChosen).append(std::move(owned)); }
CodedComment& InnerTaskData::InsertCodedComment(std::size_t index) { return selected_run<CodedComment>(chosen, m_held, CodedCommentChosen).insert(index); }
void InnerTaskData::InsertCodedComment(std::size_t index, CodedComment* value) { std::unique_ptr<CodedComment> owned(value); selected_run<CodedComment>(chosen, m_held, CodedCommentChosen).insert(index, std::move(owned)); }
void InnerTaskData::AssignCodedComment(std::size_t index, CodedComment const& value) { selected_run<CodedComment>(chosen, m_held, CodedCommentChosen).assign(index, value); }
void InnerTaskData::AssignCodedComment(std::size_t index, CodedComment* value) { std::unique_ptr<CodedComment> owned(value); selected_run<CodedComment>(chosen, m_held, CodedCommentChosen).assign(index, std::move(owned)); }
CodedComment& InnerTaskData::BackCodedComment() { return selected_run<CodedComment>(chosen, m_held, CodedCommentChosen).back(); }
void InnerTaskData::DeleteCodedComment(std::size_t index) { erase_at<CodedComment>(m_held, {is_chosen(chosen, m_held, CodedCommentChosen), "chosen == CodedCommentChosen"}, index, "index < u.mCodedComment->size()"); }
void InnerTaskData::ClearCodedComment() { selected_run<CodedComment>(chosen, m_held, CodedCommentChosen).clear(); }
std::size_t InnerTaskData::SizeCodedComment() const { return run_size<CodedComment>(m_held, m_held.holds(CodedCommentChosen)); }

void InnerTaskData::SelectCodedCommentGroup() { selected_run<CoddedCommentGroup>(chosen, m_held, CodedCommentGroupChosen); }
CoddedCommentGroup const& InnerTaskData::GetCodedCommentGroup(std::size_t index) const { return run_at<CoddedCommentGroup>(m_held, {is_chosen(chosen, m_held, CodedCommentGroupChosen), "chosen == CodedCommentGroupChosen"}, index, "index < u.mCodedCommentGroup->size()"); }
CoddedCommentGroup& InnerTaskData::GetCodedCommentGroup(std::size_t index) { return selected_run<CoddedCommentGroup>(chosen, m_held, CodedCommentGroupChosen).get_or_append(index); }
CoddedCommentGroup& InnerTaskData::AppendCodedCommentGroup() { return selected_run<CoddedCommentGroup>(chosen, m_held, CodedCommentGroupChosen).append(); }
void InnerTaskData::AppendCodedCommentGroup(CoddedCommentGroup* value) { std::unique_ptr<CoddedCommentGroup> owned(value); selected_run<CoddedCommentGroup>(chosen, m_held, CodedCommentGroupChosen).append(std::move(owned)); }
CoddedCommentGroup& InnerTaskData::InsertCodedCommentGroup(std::size_t index) { return selected_run<CoddedCommentGroup>(chosen, m_held, CodedCommentGroupChosen).insert(index); }
void InnerTaskData::InsertCodedCommentGroup(std::size_t index, CoddedCommentGroup* value) { std::unique_ptr<CoddedCommentGroup> owned(value); selected_run<CoddedCommentGroup>(chosen, m_held, CodedCommentGroupChosen).insert(index, std::move(owned)); }
void InnerTaskData::AssignCodedCommentGroup(std::size_t index, CoddedCommentGroup const& value) { selected_run<CoddedCommentGroup>(chosen, m_held, CodedCommentGroupChosen).assign(index, value); }
void InnerTaskData::AssignCodedCommentGroup(std::size_t index, CoddedCommentGroup* value) { std::unique_ptr<CoddedCommentGroup> owned(value); selected_run<CoddedCommentGroup>(chosen, m_held, CodedCommentGroupChosen).assign(index, std::move(owned)); }
CoddedCommentGroup& InnerTaskData::BackCodedCommentGroup() { return selected_run<CoddedCommentGroup>(chosen, m_held, CodedCommentGroupChosen).back(); }
void InnerTaskData::DeleteCodedCommentGroup(std::size_t index) { erase_at<CoddedCommentGroup>(m_held, {is_chosen(chosen, m_held, CodedCommentGroupChosen), "chosen == CodedCommentGroupChosen"}, index, "index < u.mCodedCommentGroup->size()"); }
void InnerTaskData::ClearCodedCommentGroup() { selected_run<CoddedCommentGroup>(chosen, m_held, CodedCommentGroupChosen).clear(); }
std::size_t InnerTaskData::SizeCodedCommentGroup() const { return run_size<CoddedCommentGroup>(m_held, m_held.holds(CodedCommentGroupChosen)); }

void InnerTaskData::SelectColourLegend() { selected_run<ColourLegend>(chosen, m_held, ColourLegendChosen); }
ColourLegend const& InnerTaskData::GetColourLegend(std::size_t index) const { return run_at<ColourLegend>(m_held, {is_chosen(chosen, m_held, ColourLegendChosen), "chosen == ColourLegendChosen"}, index, "index < u.mColourLegend->size()"); }
ColourLegend& InnerTaskData::GetColourLegend(std::size_t index) { return selected_run<ColourLegend>(chosen, m_held, ColourLegendChosen).get_or_append(index); }
ColourLegend& InnerTaskData::AppendColourLegend() { return selected_run<ColourLegend>(chosen, m_held, ColourLegendChosen).append(); }
void InnerTaskData::AppendColourLegend(ColourLegend* value) { std::unique_ptr<ColourLegend> owned(value); selected_run<ColourLegend>(chosen, m_held, ColourLegendChosen).append(std::move(owned)); }
ColourLegend& InnerTaskData::InsertColourLegend(std::size_t index) { return selected_run<ColourLegend>(chosen, m_held, ColourLegendChosen).insert(index); }
void InnerTaskData::InsertColourLegend(std::size_t index, ColourLegend* value) { std::unique_ptr<ColourLegend> owned(value); selected_run<ColourLegend>(chosen, m_held, ColourLegendChosen).insert(index, std::move(owned)); }
void InnerTaskData::AssignColourLegend(std::size_t index, ColourLegend const& value) { selected_run<ColourLegend>(chosen, m_held, ColourLegendChosen).assign(index, value); }
void InnerTaskData::AssignColourLegend(std::size_t index, ColourLegend* value) { std::unique_ptr<ColourLegend> owned(value); selected_run<ColourLegend>(chosen, m_held, ColourLegendChosen).assign(index, std::move(owned)); }
ColourLegend& InnerTaskData::BackColourLegend() { return selected_run<ColourLegend>(chosen, m_held, ColourLegendChosen).back(); }
void InnerTaskData::DeleteColourLegend(std::size_t index) { erase_at<ColourLegend>(m_held, {is_chosen(chosen, m_held, ColourLegendChosen), "chosen == ColourLegendChosen"}, index, "index < u.mColourLegend->size()"); }
void InnerTaskData::ClearColourLegend() { selected_run<ColourLegend>(chosen, m_held, ColourLegendChosen).clear(); }
std::size_t InnerTaskData::SizeColourLegend() const { return run_size<ColourLegend>(m_held, m_held.holds(ColourLegendChosen)); }

void InnerTaskData::SelectCropType() { selected_run<CropType>(chosen, m_held, CropTypeChosen); }
CropType const& InnerTaskData::GetCropType(std::size_t index) const { return run_at<CropType>(m_held, {is_chosen(chosen, m_held, CropTypeChosen), "chosen == CropTypeChosen"}, index, "index < u.mCropType->size()"); }
CropType& InnerTaskData::GetCropType(std::size_t index) { return selected_run<CropType>(chosen, m_held, CropTypeChosen).get_or_append(index); }
CropType& InnerTaskData::AppendCropType() { return selected_run<CropType>(chosen, m_held, CropTypeChosen).append(); }
void InnerTaskData::AppendCropType(CropType* value) { std::unique_ptr<CropType> owned(value); selected_run<CropType>(chosen, m_held, CropTypeChosen).append(std::move(owned)); }
CropType& InnerTaskData::InsertCropType(std::size_t index) { return selected_run<CropType>(chosen, m_held, CropTypeChosen).insert(index); }
void InnerTaskData::InsertCropType(std::size_t index, CropType* value) { std::unique_ptr<CropType> owned(value); selected_run<CropType>(chosen, m_held, CropTypeChosen).insert(index, std::move(owned)); }
void InnerTaskData::AssignCropType(std::size_t index, CropType const& value) { selected_run<CropType>(chosen, m_held, CropTypeChosen).assign(index, value); }
void InnerTaskData::AssignCropType(std::size_t index, CropType* value) { std::unique_ptr<CropType> owned(value); selected_run<CropType>(chosen, m_held, CropTypeChosen).assign(index, std::move(owned)); }
CropType& InnerTaskData::BackCropType() { return selected_run<CropType>(chosen, m_held, CropTypeChosen).back(); }
void InnerTaskData::DeleteCropType(std::size_t index) { erase_at<CropType>(m_held, {is_chosen(chosen, m_held, CropTypeChosen), "chosen == CropTypeChosen"}, index, "index < u.mCropType->size()"); }
void InnerTaskData::ClearCropType() { selected_run<CropType>(chosen, m_held, CropTypeChosen).clear(); }
std::size_t InnerTaskData::SizeCropType() const { return run_size<CropType>(m_held, m_held.holds(CropTypeChosen)); }

void InnerTaskData::SelectCulturalPractice() { selected_run<CulturalPractice>(chosen, m_held, CulturalPracticeChosen); }
CulturalPractice const& InnerTaskData::GetCulturalPractice(std::size_t index) const { return run_at<CulturalPractice>(m_held, {is_chosen(chosen, m_held, CulturalPracticeChosen), "chosen == CulturalPracticeChosen"}, index, "index < u.mCulturalPractice->size()"); }
CulturalPractice& InnerTaskData::GetCulturalPractice(std::size_t index) { return selected_run<CulturalPractice>(chosen, m_held, CulturalPracticeChosen).get_or_append(index); }
CulturalPractice& InnerTaskData::AppendCulturalPractice() { return selected_run<CulturalPractice>(chosen, m_held, CulturalPracticeChosen).append(); }
void InnerTaskData::AppendCulturalPractice(CulturalPractice* value) { std::unique_ptr<CulturalPractice> owned(value); selected_run<CulturalPractice>(chosen, m_held, CulturalPracticeChosen).append(std::move(owned)); }
CulturalPractice& InnerTaskData::InsertCulturalPractice(std::size_t index) { return selected_run<CulturalPractice>(chosen, m_held, CulturalPracticeChosen).insert(index); }
void InnerTaskData::InsertCulturalPractice(std::size_t index, CulturalPractice* value) { std::unique_ptr<CulturalPractice> owned(value); selected_run<CulturalPractice>(chosen, m_held, CulturalPracticeChosen).insert(index, std::move(owned)); }
void InnerTaskData::AssignCulturalPractice(std::size_t index, CulturalPractice const& value) { selected_run<CulturalPractice>(chosen, m_held, CulturalPracticeChosen).assign(index, value); }
void InnerTaskData::AssignCulturalPractice(std::size_t index, CulturalPractice* value) { std::unique_ptr<CulturalPractice> owned(value); selected_run<CulturalPractice>(chosen, m_held, CulturalPracticeChosen).assign(index, std::move(owned)); }
CulturalPractice& InnerTaskData::BackCulturalPractice() { return selected_run<CulturalPractice>(chosen, m_held, CulturalPracticeChosen).back(); }
void InnerTaskData::DeleteCulturalPractice(std::size_t index) { erase_at<CulturalPractice>(m_held, {is_chosen(chosen, m_held, CulturalPracticeChosen), "chosen == CulturalPracticeChosen"}, index, "index < u.mCulturalPractice->size()"); }
void InnerTaskData::ClearCulturalPractice() { selected_run<CulturalPractice>(chosen, m_held, CulturalPracticeChosen).clear(); }
std::size_t InnerTaskData::SizeCulturalPractice() const { return run_size<CulturalPractice>(m_held, m_held.holds(CulturalPracticeChosen)); }

void InnerTaskData::SelectGrower() { selected_run<Grower>(chosen, m_held, GrowerChosen); }
Grower const& InnerTaskData::GetGrower(std::size_t index) const { return run_at<Grower>(m_held, {is_chosen(chosen, m_held, GrowerChosen), "chosen == GrowerChosen"}, index, "index < u.mGrower->size()"); }
Grower& InnerTaskData::GetGrower(std::size_t index) { return selected_run<Grower>(chosen, m_held, GrowerChosen).get_or_append(index); }
Grower& InnerTaskData::AppendGrower() { return selected_run<Grower>(chosen, m_held, GrowerChosen).append(); }
void InnerTaskData::AppendGrower(Grower* value) { std::unique_ptr<Grower> owned(value); selected_run<Grower>(chosen, m_held, GrowerChosen).append(std::move(owned)); }
Grower& InnerTaskData::InsertGrower(std::size_t index) { return selected_run<Grower>(chosen, m_held, GrowerChosen).insert(index); }
void InnerTaskData::InsertGrower(std::size_t index, Grower* value) { std::unique_ptr<Grower> owned(value); selected_run<Grower>(chosen, m_held, GrowerChosen).insert(index, std::move(owned)); }
void InnerTaskData::AssignGrower(std::size_t index, Grower const& value) { selected_run<Grower>(chosen, m_held, GrowerChosen).assign(index, value); }
void InnerTaskData::AssignGrower(std::size_t index, Grower* value) { std::unique_ptr<Grower> owned(value); selected_run<Grower>(chosen, m_held, GrowerChosen).assign(index, std::move(owned)); }
Grower& InnerTaskData::BackGrower() { return selected_run<Grower>(chosen, m_held, GrowerChosen).back(); }
void InnerTaskData::DeleteGrower(std::size_t index) { erase_at<Grower>(m_held, {is_chosen(chosen, m_held, GrowerChosen), "chosen == GrowerChosen"}, index, "index < u.mGrower->size()"); }
void InnerTaskData::ClearGrower() { selected_run<Grower>(chosen, m_held, GrowerChosen).clear(); }
std::size_t InnerTaskData::SizeGrower() const { return run_size<Grower>(m_held, m_held.holds(GrowerChosen)); }

void InnerTaskData::SelectDevice() { selected_run<Device>(chosen, m_held, DeviceChosen); }
Device const& InnerTaskData::GetDevice(std::size_t index) const { return run_at<Device>(m_held, {is_chosen(chosen, m_held, DeviceChosen), "chosen == DeviceChosen"}, index, "index < u.mDevice->size()"); }
Device& InnerTaskData::GetDevice(std::size_t index) { return selected_run<Device>(chosen, m_held, DeviceChosen).get_or_append(index); }
Device& InnerTaskData::AppendDevice() { return selected_run<Device>(chosen, m_held, DeviceChosen).append(); }
void InnerTaskData::AppendDevice(Device* value) { std::unique_ptr<Device> owned(value); selected_run<Device>(chosen, m_held, DeviceChosen).append(std::move(owned)); }
Device& InnerTaskData::InsertDevice(std::size_t index) { return selected_run<Device>(chosen, m_held, DeviceChosen).insert(index); }
void InnerTaskData::InsertDevice(std::size_t index, Device* value) { std::unique_ptr<Device> owned(value); selected_run<Device>(chosen, m_held, DeviceChosen).insert(index, std::move(owned)); }
void InnerTaskData::AssignDevice(std::size_t index, Device const& value) { selected_run<Device>(chosen, m_held, DeviceChosen).assign(index, value); }
void InnerTaskData::AssignDevice(std::size_t index, Device* value) { std::unique_ptr<Device> owned(value); selected_run<Device>(chosen, m_held, DeviceChosen).assign(index, std::move(owned)); }
Device& InnerTaskData::BackDevice() { return selected_run<Device>(chosen, m_held, DeviceChosen).back(); }
void InnerTaskData::DeleteDevice(std::size_t index) { erase_at<Device>(m_held, {is_chosen(chosen, m_held, DeviceChosen), "chosen == DeviceChosen"}, index, "index < u.mDevice->size()"); }
void InnerTaskData::ClearDevice() { selected_run<Device>(chosen, m_held, DeviceChosen).clear(); }
std::size_t InnerTaskData::SizeDevice() const { return run_size<Device>(m_held, m_held.holds(DeviceChosen)); }

void InnerTaskData::SelectFarm() { selected_run<Farm>(chosen, m_held, FarmChosen); }
Farm const& InnerTaskData::GetFarm(std::size_t index) const { return run_at<Farm>(m_held, {is_chosen(chosen, m_held, FarmChosen), "chosen == FarmChosen"}, index, "index < u.mFarm->size()"); }
Farm& InnerTaskData::GetFarm(std::size_t index) { return selected_run<Farm>(chosen, m_held, FarmChosen).get_or_append(index); }
Farm& InnerTaskData::AppendFarm() { return selected_run<Farm>(chosen, m_held, FarmChosen).append(); }
void InnerTaskData::AppendFarm(Farm* value) { std::unique_ptr<Farm> owned(value); selected_run<Farm>(chosen, m_held, FarmChosen).append(std::move(owned)); }
Farm& InnerTaskData::InsertFarm(std::size_t index) { return selected_run<Farm>(chosen, m_held, FarmChosen).insert(index); }
void InnerTaskData::InsertFarm(std::size_t index, Farm* value) { std::unique_ptr<Farm> owned(value); selected_run<Farm>(chosen, m_held, FarmChosen).insert(index, std::move(owned)); }
void InnerTaskData::AssignFarm(std::size_t index, Farm const& value) { selected_run<Farm>(chosen, m_held, FarmChosen).assign(index, value); }
void InnerTaskData::AssignFarm(std::size_t index, Farm* value) { std::unique_ptr<Farm> owned(value); selected_run<Farm>(chosen, m_held, FarmChosen).assign(index, std::move(owned)); }
Farm& InnerTaskData::BackFarm() { return selected_run<Farm>(chosen, m_held, FarmChosen).back(); }
void InnerTaskData::DeleteFarm(std::size_t index) { erase_at<Farm>(m_held, {is_chosen(chosen, m_held, FarmChosen), "chosen == FarmChosen"}, index, "index < u.mFarm->size()"); }
void InnerTaskData::ClearFarm() { selected_run<Farm>(chosen, m_held, FarmChosen).clear(); }
std::size_t InnerTaskData::SizeFarm() const { return run_size<Farm>(m_held, m_held.holds(FarmChosen)); }

void InnerTaskData::SelectOperationTechnique() { selected_run<OperationTechnique>(chosen, m_held, OperationTechniqueChosen); }
OperationTechnique const& InnerTaskData::GetOperationTechnique(std::size_t index) const { return run_at<OperationTechnique>(m_held, {is_chosen(chosen, m_held, OperationTechniqueChosen), "chosen == OperationTechniqueChosen"}, index, "index < u.mOperationTechnique->size()"); }
OperationTechnique& InnerTaskData::GetOperationTechnique(std::size_t index) { return selected_run<OperationTechnique>(chosen, m_held, OperationTechniqueChosen).get_or_append(index); }
OperationTechnique& InnerTaskData::AppendOperationTechnique() { return selected_run<OperationTechnique>(chosen, m_held, OperationTechniqueChosen).append(); }
void InnerTaskData::AppendOperationTechnique(OperationTechnique* value) { std::unique_ptr<OperationTechnique> owned(value); selected_run<OperationTechnique>(chosen, m_held, OperationTechniqueChosen).append(std::move(owned)); }
OperationTechnique& InnerTaskData::InsertOperationTechnique(std::size_t index) { return selected_run<OperationTechnique>(chosen, m_held, OperationTechniqueChosen).insert(index); }
void InnerTaskData::InsertOperationTechnique(std::size_t index, OperationTechnique* value) { std::unique_ptr<OperationTechnique> owned(value); selected_run<OperationTechnique>(chosen, m_held, OperationTechniqueChosen).insert(index, std::move(owned)); }
void InnerTaskData::AssignOperationTechnique(std::size_t index, OperationTechnique const& value) { selected_run<OperationTechnique>(chosen, m_held, OperationTechniqueChosen).assign(index, value); }
void InnerTaskData::AssignOperationTechnique(std::size_t index, OperationTechnique* value) { std::unique_ptr<OperationTechnique> owned(value); selected_run<OperationTechnique>(chosen, m_held, OperationTechniqueChosen).assign(index, std::move(owned)); }
OperationTechnique& InnerTaskData::BackOperationTechnique() { return selected_run<OperationTechnique>(chosen, m_held, OperationTechniqueChosen).back(); }
void InnerTaskData::DeleteOperationTechnique(std::size_t index) { erase_at<OperationTechnique>(m_held, {is_chosen(chosen, m_held, OperationTechniqueChosen), "chosen == OperationTechniqueChosen"}, index, "index < u.mOperationTechnique->size()"); }
void InnerTaskData::ClearOperationTechnique() { selected_run<OperationTechnique>(chosen, m_held, OperationTechniqueChosen).clear(); }
std::size_t InnerTaskData::SizeOperationTechnique() const { return run_size<OperationTechnique>(m_held, m_held.holds(OperationTechniqueChosen)); }

void InnerTaskData::SelectField() { selected_run<Field>(chosen, m_held, FieldChosen); }
Field const& InnerTaskData::GetField(std::size_t index) const { return run_at<Field>(m_held, {is_chosen(chosen, m_held, FieldChosen), "chosen == FieldChosen"}, index, "index < u.mField->size()"); }
Field& InnerTaskData::GetField(std::size_t index) { return selected_run<Field>(chosen, m_held, FieldChosen).get_or_append(index); }
Field& InnerTaskData::AppendField() { return selected_run<Field>(chosen, m_held, FieldChosen).append(); }
void InnerTaskData::AppendField(Field* value) { std::unique_ptr<Field> owned(value); selected_run<Field>(chosen, m_held, FieldChosen).append(std::move(owned)); }
Field& InnerTaskData::InsertField(std::size_t index) { return selected_run<Field>(chosen, m_held, FieldChosen).insert(index); }
void InnerTaskData::InsertField(std::size_t index, Field* value) { std::unique_ptr<Field> owned(value); selected_run<Field>(chosen, m_held, FieldChosen).insert(index, std::move(owned)); }
void InnerTaskData::AssignField(std::size_t index, Field const& value) { selected_run<Field>(chosen, m_held, FieldChosen).assign(index, value); }
void InnerTaskData::AssignField(std::size_t index, Field* value) { std::unique_ptr<Field> owned(value); selected_run<Field>(chosen, m_held, FieldChosen).assign(index, std::move(owned)); }
Field& InnerTaskData::BackField() { return selected_run<Field>(chosen, m_held, FieldChosen).back(); }
void InnerTaskData::DeleteField(std::size_t index) { erase_at<Field>(m_held, {is_chosen(chosen, m_held, FieldChosen), "chosen == FieldChosen"}, index, "index < u.mField->size()"); }
void InnerTaskData::ClearField() { selected_run<Field>(chosen, m_held, FieldChosen).clear(); }
std::size_t InnerTaskData::SizeField() const { return run_size<Field>(m_held, m_held.holds(FieldChosen)); }

void InnerTaskData::SelectProduct() { selected_run<Product>(chosen, m_held, ProductChosen); }
Product const& InnerTaskData::GetProduct(std::size_t index) const { return run_at<Product>(m_held, {is_chosen(chosen, m_held, ProductChosen), "chosen == ProductChosen"}, index, "index < u.mProduct->size()"); }
Product& InnerTaskData::GetProduct(std::size_t index) { return selected_run<Product>(chosen, m_held, ProductChosen).get_or_append(index); }
Product& InnerTaskData::AppendProduct() { return selected_run<Product>(chosen, m_held, ProductChosen).append(); }
void InnerTaskData::AppendProduct(Product* value) { std::unique_ptr<Product> owned(value); selected_run<Product>(chosen, m_held, ProductChosen).append(std::move(owned)); }
Product& InnerTaskData::InsertProduct(std::size_t index) { return selected_run<Product>(chosen, m_held, ProductChosen).insert(index); }
void InnerTaskData::InsertProduct(std::size_t index, Product* value) { std::unique_ptr<Product> owned(value); selected_run<Product>(chosen, m_held, ProductChosen).insert(index, std::move(owned)); }
void InnerTaskData::AssignProduct(std::size_t index, Product const& value) { selected_run<Product>(chosen, m_held, ProductChosen).assign(index, value); }
void InnerTaskData::AssignProduct(std::size_t index, Product* value) { std::unique_ptr<Product> owned(value); selected_run<Product>(chosen, m_held, ProductChosen).assign(index, std::move(owned)); }
Product& InnerTaskData::BackProduct() { return selected_run<Product>(chosen, m_held, ProductChosen).back(); }
void InnerTaskData::DeleteProduct(std::size_t index) { erase_at<Product>(m_held, {is_chosen(chosen, m_held, ProductChosen), "chosen == ProductChosen"}, index, "index < u.mProduct->size()"); }
void InnerTaskData::ClearProduct() { selected_run<Product>(chosen, m_held, ProductChosen).clear(); }
std::size_t InnerTaskData::SizeProduct() const { return run_size<Product>(m_held, m_held.holds(ProductChosen)); }

void InnerTaskData::SelectProductGroup() { selected_run<ProductGroup>(chosen, m_held, ProductGroupChosen); }
ProductGroup const& InnerTaskData::GetProductGroup(std::size_t index) const { return run_at<ProductGroup>(m_held, {is_chosen(chosen, m_held, ProductGroupChosen), "chosen == ProductGroupChosen"}, index, "index < u.mProductGroup->size()"); }
ProductGroup& InnerTaskData::GetProductGroup(std::size_t index) { return selected_run<ProductGroup>(chosen, m_held, ProductGroupChosen).get_or_append(index); }
ProductGroup& InnerTaskData::AppendProductGroup() { return selected_run<ProductGroup>(chosen, m_held, ProductGroupChosen).append(); }
void InnerTaskData::AppendProductGroup(ProductGroup* value) { std::unique_ptr<ProductGroup> owned(value); selected_run<ProductGroup>(chosen, m_held, ProductGroupChosen).append(std::move(owned)); }
ProductGroup& InnerTaskData::InsertProductGroup(std::size_t index) { return selected_run<ProductGroup>(chosen, m_held, ProductGroupChosen).insert(index); }
void InnerTaskData::InsertProductGroup(std::size_t index, ProductGroup* value) { std::unique_ptr<ProductGroup> owned(value); selected_run<ProductGroup>(chosen, m_held, ProductGroupChosen).insert(index, std::move(owned)); }
void InnerTaskData::AssignProductGroup(std::size_t index, ProductGroup const& value) { selected_run<ProductGroup>(chosen, m_held, ProductGroupChosen).assign(index, value); }
void InnerTaskData::AssignProductGroup(std::size_t index, ProductGroup* value) { std::unique_ptr<ProductGroup> owned(value); selected_run<ProductGroup>(chosen, m_held, ProductGroupChosen).assign(index, std::move(owned)); }
ProductGroup& InnerTaskData::BackProductGroup() { return selected_run<ProductGroup>(chosen, m_held, ProductGroupChosen).back(); }
void InnerTaskData::DeleteProductGroup(std::size_t index) { erase_at<ProductGroup>(m_held, {is_chosen(chosen, m_held, ProductGroupChosen), "chosen == ProductGroupChosen"}, index, "index < u.mProductGroup->size()"); }
void InnerTaskData::ClearProductGroup() { selected_run<ProductGroup>(chosen, m_held, ProductGroupChosen).clear(); }
std::size_t InnerTaskData::SizeProductGroup() const { return run_size<ProductGroup>(m_held, m_held.holds(ProductGroupChosen)); }

void InnerTaskData::SelectTask() { selected_run<Task>(chosen, m_held, TaskChosen); }
Task const& InnerTaskData::GetTask(std::size_t index) const { return run_at<Task>(m_held, {is_chosen(chosen, m_held, TaskChosen), "chosen == TaskChosen"}, index, "index < u.mTask->size()"); }
Task& InnerTaskData::GetTask(std::size_t index) { return selected_run<Task>(chosen, m_held, TaskChosen).get_or_append(index); }
Task& InnerTaskData::AppendTask() { return selected_run<Task>(chosen, m_held, TaskChosen).append(); }
void InnerTaskData::AppendTask(Task* value) { std::unique_ptr<Task> owned(value); selected_run<Task>(chosen, m_held, TaskChosen).append(std::move(owned)); }
Task& InnerTaskData::InsertTask(std::size_t index) { return selected_run<Task>(chosen, m_held, TaskChosen).insert(index); }
void InnerTaskData::InsertTask(std::size_t index, Task* value) { std::unique_ptr<Task> owned(value); selected_run<Task>(chosen, m_held, TaskChosen).insert(index, std::move(owned)); }
void InnerTaskData::AssignTask(std::size_t index, Task const& value) { selected_run<Task>(chosen, m_held, TaskChosen).assign(index, value); }
void InnerTaskData::AssignTask(std::size_t index, Task* value) { std::unique_ptr<Task> owned(value); selected_run<Task>(chosen, m_held, TaskChosen).assign(index, std::move(owned)); }
Task& InnerTaskData::BackTask() { return selected_run<Task>(chosen, m_held, TaskChosen).back(); }
void InnerTaskData::DeleteTask(std::size_t index) { erase_at<Task>(m_held, {is_chosen(chosen, m_held, TaskChosen), "chosen == TaskChosen"}, index, "index < u.mTask->size()"); }
void InnerTaskData::ClearTask() { selected_run<Task>(chosen, m_held, TaskChosen).clear(); }
std::size_t InnerTaskData::SizeTask() const { return run_size<Task>(m_held, m_held.holds(TaskChosen)); }

void InnerTaskData::SelectTaskControllerCapabilities() { selected_one<TaskControllerCapabilities>(chosen, m_held, TaskControllerCapabilitiesChosen); }
TaskControllerCapabilities const& InnerTaskData::GetTaskControllerCapabilities() const { return chosen_one<TaskControllerCapabilities>(m_held, {is_chosen(chosen, m_held, TaskControllerCapabilitiesChosen), "chosen == TaskControllerCapabilitiesChosen"}); }
TaskControllerCapabilities& InnerTaskData::GetTaskControllerCapabilities() { return selected_one<TaskControllerCapabilities>(chosen, m_held, TaskControllerCapabilitiesChosen).get_or_create(); }

void InnerTaskData::SelectValuePresentation() { selected_run<ValuePresentation>(chosen, m_held, ValuePresentationChosen); }
ValuePresentation const& InnerTaskData::GetValuePresentation(std::size_t index) const { return run_at<ValuePresentation>(m_held, {is_chosen(chosen, m_held, ValuePresentationChosen), "chosen == ValuePresentationChosen"}, index, "index < u.mValuePresentation->size()"); }
ValuePresentation& InnerTaskData::GetValuePresentation(std::size_t index) { return selected_run<ValuePresentation>(chosen, m_held, ValuePresentationChosen).get_or_append(index); }
ValuePresentation& InnerTaskData::AppendValuePresentation() { return selected_run<ValuePresentation>(chosen, m_held, ValuePresentationChosen).append(); }
void InnerTaskData::AppendValuePresentation(ValuePresentation* value) { std::unique_ptr<ValuePresentation> owned(value); selected_run<ValuePresentation>(chosen, m_held, ValuePresentationChosen).append(std::move(owned)); }
ValuePresentation& InnerTaskData::InsertValuePresentation(std::size_t index) { return selected_run<ValuePresentation>(chosen, m_held, ValuePresentationChosen).insert(index); }
void InnerTaskData::InsertValuePresentation(std::size_t index, ValuePresentation* value) { std::unique_ptr<ValuePresentation> owned(value); selected_run<ValuePresentation>(chosen, m_held, ValuePresentationChosen).insert(index, std::move(owned)); }
void InnerTaskData::AssignValuePresentation(std::size_t index, ValuePresentation const& value) { selected_run<ValuePresentation>(chosen, m_held, ValuePresentationChosen).assign(index, value); }
void InnerTaskData::AssignValuePresentation(std::size_t index, ValuePresentation* value) { std::unique_ptr<ValuePresentation> owned(value); selected_run<ValuePresentation>(chosen, m_held, ValuePresentationChosen).assign(index, std::move(owned)); }
ValuePresentation& InnerTaskData::BackValuePresentation() { return selected_run<ValuePresentation>(chosen, m_held, ValuePresentationChosen).back(); }
void InnerTaskData::DeleteValuePresentation(std::size_t index) { erase_at<ValuePresentation>(m_held, {is_chosen(chosen, m_held, ValuePresentationChosen), "chosen == ValuePresentationChosen"}, index, "index < u.mValuePresentation->size()"); }
void InnerTaskData::ClearValuePresentation() { selected_run<ValuePresentation>(chosen, m_held, ValuePresentationChosen).clear(); }
std::size_t InnerTaskData::SizeValuePresentation() const { return run_size<ValuePresentation>(m_held, m_held.holds(ValuePresentationChosen)); }

void InnerTaskData::SelectWorker() { selected_run<Worker>(chosen, m_held, WorkerChosen); }
Worker const& InnerTaskData::GetWorker(std::size_t index) const { return run_at<Worker>(m_held, {is_chosen(chosen, m_held, WorkerChosen), "chosen == WorkerChosen"}, index, "index < u.mWorker->size()"); }
Worker& InnerTaskData::GetWorker(std::size_t index) { return selected_run<Worker>(chosen, m_held, WorkerChosen).get_or_append(index); }
Worker& InnerTaskData::AppendWorker() { return selected_run<Worker>(chosen, m_held, WorkerChosen).append(); }
void InnerTaskData::AppendWorker(Worker* value) { std::unique_ptr<Worker> owned(value); selected_run<Worker>(chosen, m_held, WorkerChosen).append(std::move(owned)); }
Worker& InnerTaskData::InsertWorker(std::size_t index) { return selected_run<Worker>(chosen, m_held, WorkerChosen).insert(index); }
void InnerTaskData::InsertWorker(std::size_t index, Worker* value) { std::unique_ptr<Worker> owned(value); selected_run<Worker>(chosen, m_held, WorkerChosen).insert(index, std::move(owned)); }
void InnerTaskData::AssignWorker(std::size_t index, Worker const& value) { selected_run<Worker>(chosen, m_held, WorkerChosen).assign(index, value); }
void InnerTaskData::AssignWorker(std::size_t index, Worker* value) { std::unique_ptr<Worker> owned(value); selected_run<Worker>(chosen, m_held, WorkerChosen).assign(index, std::move(owned)); }
Worker& InnerTaskData::BackWorker() { return selected_run<Worker>(chosen, m_held, WorkerChosen).back(); }
void InnerTaskData::DeleteWorker(std::size_t index) { erase_at<Worker>(m_held, {is_chosen(chosen, m_held, WorkerChosen), "chosen == WorkerChosen"}, index, "index < u.mWorker->size()"); }
void InnerTaskData::ClearWorker() { selected_run<Worker>(chosen, m_held, WorkerChosen).clear(); }
std::size_t InnerTaskData::SizeWorker() const { return run_size<Worker>(m_held, m_held.holds(WorkerChosen)); }

void InnerTaskData::SelectExternalFileReference() { selected_run<ExternalFileReference>(chosen, m_held, ExternalFileReferenceChosen); }
ExternalFileReference const& InnerTaskData::GetExternalFileReference(std::size_t index) const { return run_at<ExternalFileReference>(m_held, {is_chosen(chosen, m_held, ExternalFileReferenceChosen), "chosen == ExternalFileReferenceChosen"}, index, "index < u.mExternalFileReference->size()"); }
ExternalFileReference& InnerTaskData::GetExternalFileReference(std::size_t index) { return selected_run<ExternalFileReference>(chosen, m_held, ExternalFileReferenceChosen).get_or_append(index); }
ExternalFileReference& InnerTaskData::AppendExternalFileReference() { return selected_run<ExternalFileReference>(chosen, m_held, ExternalFileReferenceChosen).append(); }
void InnerTaskData::AppendExternalFileReference(ExternalFileReference* value) { std::unique_ptr<ExternalFileReference> owned(value); selected_run<ExternalFileReference>(chosen, m_held, ExternalFileReferenceChosen).append(std::move(owned)); }
ExternalFileReference& InnerTaskData::InsertExternalFileReference(std::size_t index) { return selected_run<ExternalFileReference>(chosen, m_held, ExternalFileReferenceChosen).insert(index); }
void InnerTaskData::InsertExternalFileReference(std::size_t index, ExternalFileReference* value) { std::unique_ptr<ExternalFileReference> owned(value); selected_run<ExternalFileReference>(chosen, m_held, ExternalFileReferenceChosen).insert(index, std::move(owned)); }
void InnerTaskData::AssignExternalFileReference(std::size_t index, ExternalFileReference const& value) { selected_run<ExternalFileReference>(chosen, m_held, ExternalFileReferenceChosen).assign(index, value); }
void InnerTaskData::AssignExternalFileReference(std::size_t index, ExternalFileReference* value) { std::unique_ptr<ExternalFileReference> owned(value); selected_run<ExternalFileReference>(chosen, m_held, ExternalFileReferenceChosen).assign(index, std::move(owned)); }
ExternalFileReference& InnerTaskData::BackExternalFileReference() { return selected_run<ExternalFileReference>(chosen, m_held, ExternalFileReferenceChosen).back(); }
void InnerTaskData::DeleteExternalFileReference(std::size_t index) { erase_at<ExternalFileReference>(m_held, {is_chosen(chosen, m_held, ExternalFileReferenceChosen), "chosen == ExternalFileReferenceChosen"}, index, "index < u.mExternalFileReference->size()"); }
void InnerTaskData::ClearExternalFileReference() { selected_run<ExternalFileReference>(chosen, m_held, ExternalFileReferenceChosen).clear(); }
std::size_t InnerTaskData::SizeExternalFileReference() const { return run_size<ExternalFileReference>(m_held, m_held.holds(ExternalFileReferenceChosen)); }

TaskData::TaskData() { init(); }
TaskData::TaskData(TaskData const& other) = default;
TaskData::TaskData(TaskData&& other) noexcept = default;
TaskData::TaskData(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
TaskData* TaskData::clone() const { return new TaskData(*this); }
TaskData::~TaskData() = default;
TaskData& TaskData::operator=(TaskData const& other) { TaskData copy(other); swap(copy); return *this; }
TaskData& TaskData::operator=(TaskData&& other) noexcept = default;
void TaskData::swap(TaskData& other) noexcept { std::swap(*this, other); }
void TaskData::reset() { TaskData empty; swap(empty); }
void TaskData::init() {}

lmx::s_event_map const TaskData::attr_event_map[] = {
    {1, "VersionMajor", 12, attr_VersionMajor},
    {1, "VersionMinor", 12, attr_VersionMinor},
    {1, "ManagementSoftwareManufacturer", 30, attr_ManagementSoftwareManufacturer},
    {1, "ManagementSoftwareVersion", 25, attr_ManagementSoftwareVersion},
    {1, "TaskControllerManufacturer", 26, attr_TaskControllerManufacturer},
    {1, "TaskControllerVersion", 21, attr_TaskControllerVersion},
    {1, "DataTransferOrigin", 18, attr_DataTransferOrigin},
    {1, "lang", 4, attr_Language},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const TaskData::elem_event_map[] = {
    {1, "P917_Metadata", 13, elem_P917Metadata},
    {1, "P917_Questions", 14, elem_P917Questions},
    {1, "AFE", 3, elem_AttachedFile},
    {1, "BSN", 3, elem_BaseStation},
    {1, "CCT", 3, elem_CodedComment},
    {1, "CCG", 3, elem_CodedCommentGroup},
    {1, "CLD", 3, elem_ColourLegend},
    {1, "CTP", 3, elem_CropType},
    {1, "CPC", 3, elem_CulturalPractice},
    {1, "CTR", 3, elem_Grower},
    {1, "DVC", 3, elem_Device},
    {1, "FRM", 3, elem_Farm},
    {1, "OTQ", 3, elem_OperationTechnique},
    {1, "PFD", 3, elem_Field},
    {1, "PDT", 3, elem_Product},
    {1, "PGP", 3, elem_ProductGroup},
    {1, "TSK", 3, elem_Task},
    {1, "TCC", 3, elem_TaskControllerCapabilities},
    {1, "VPN", 3, elem_ValuePresentation},
    {1, "WKR", 3, elem_Worker},
    {1, "XFR", 3, elem_ExternalFileReference},
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const TaskData::known_elements[] = {
    {1, "P917_Metadata", 13},
    {1, "P917_Questions", 14},
    {1, "AFE", 3},
    {1, "BSN", 3},
    {1, "CCT", 3},
    {1, "CCG", 3},
    {1, "CLD", 3},
    {1, "CTP", 3},
    {1, "CPC", 3},
    {1, "CTR", 3},
    {1, "DVC", 3},
    {1, "FRM", 3},
    {1, "OTQ", 3},
    {1, "PFD", 3},
    {1, "PDT", 3},
    {1, "PGP", 3},
    {1, "TSK", 3},
    {1, "TCC", 3},
    {1, "VPN", 3},
    {1, "WKR", 3},
    {1, "XFR", 3},
    {0, nullptr, 0},
};
lmx::elmx_error TaskData::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "ISO11783_TaskData", __LINE__); }
lmx::elmx_error TaskData::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_complex_content, known_elements, true, __LINE__});
}
bool TaskData::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_VersionMajor: return read_attribute(reader, m_VersionMajor, spec_any_token, __LINE__, error);
    case attr_VersionMinor: return read_attribute(reader, m_VersionMinor, spec_any_token, __LINE__, error);
    case attr_ManagementSoftwareManufacturer: return read_attribute(reader, m_ManagementSoftwareManufacturer, spec_text_32, __LINE__, error);
    case attr_ManagementSoftwareVersion: return read_attribute(reader, m_ManagementSoftwareVersion, spec_text_32, __LINE__, error);
    case attr_TaskControllerManufacturer: return read_attribute(reader, m_TaskControllerManufacturer, spec_text_32, __LINE__, error);
    case attr_TaskControllerVersion: return read_attribute(reader, m_TaskControllerVersion, spec_text_32, __LINE__, error);
    case attr_DataTransferOrigin: return read_attribute(reader, m_DataTransferOrigin, spec_one_of_1_2, __LINE__, error);
    case attr_Language: return read_attribute(reader, m_Language, spec_token_32, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* TaskData::accept_attribute(lmx::plain_attribute const&) { return nullptr; }
bool TaskData::has_required_attributes() const { return m_VersionMajor.is_set() && m_VersionMinor.is_set() && m_ManagementSoftwareManufacturer.is_set() && m_ManagementSoftwareVersion.is_set() && m_DataTransferOrigin.is_set(); }
lmx::elmx_error TaskData::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "ISO11783_TaskData", __LINE__, has_required_attributes());
}
bool TaskData::unmarshal_body(lmx::xmlReader& reader, lmx::elmx_error* error) { return read_wrappers(reader, mInnerTaskData, false, {elem_event_map, "ISO11783_TaskData", __LINE__}, error); }
lmx::elmx_error TaskData::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void TaskData::marshal_attributes(lmx::c_xml_writer& writer) const {
  write_attribute(writer, "VersionMajor", m_VersionMajor, spec_any_token);
  write_attribute(writer, "VersionMinor", m_VersionMinor, spec_any_token);
  write_attribute(writer, "ManagementSoftwareManufacturer", m_ManagementSoftwareManufacturer, spec_text_32);
  write_attribute(writer, "ManagementSoftwareVersion", m_ManagementSoftwareVersion, spec_text_32);
  write_attribute(writer, "TaskControllerManufacturer", m_TaskControllerManufacturer, spec_text_32);
  write_attribute(writer, "TaskControllerVersion", m_TaskControllerVersion, spec_text_32);
  write_attribute(writer, "DataTransferOrigin", m_DataTransferOrigin, spec_one_of_1_2);
  write_attribute(writer, "lang", m_Language, spec_token_32);
}
lmx::elmx_error TaskData::marshal_child_elements(lmx::c_xml_writer& writer) const {
  return write_wrappers(writer, mInnerTaskData);
}
bool TaskData::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_VersionMajor.is_set(), "VersionMajor", __LINE__) &&
         check_occurs(tracker, m_VersionMinor.is_set(), "VersionMinor", __LINE__) &&
         check_occurs(tracker, m_ManagementSoftwareManufacturer.is_set(), "ManagementSoftwareManufacturer", __LINE__) &&
         check_occurs(tracker, m_ManagementSoftwareVersion.is_set(), "ManagementSoftwareVersion", __LINE__) &&
         check_occurs(tracker, m_DataTransferOrigin.is_set(), "DataTransferOrigin", __LINE__);
}
bool TaskData::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link) && check_wrappers(&link, mInnerTaskData);
}
InnerTaskData const& TaskData::GetInnerTaskData(std::size_t index) const { LMX_ASSERT(index < mInnerTaskData.size()); return mInnerTaskData.get(index); }
InnerTaskData& TaskData::GetInnerTaskData(std::size_t index) { return mInnerTaskData.get_or_append(index); }
InnerTaskData& TaskData::AppendInnerTaskData() { return mInnerTaskData.append(); }
void TaskData::AppendInnerTaskData(InnerTaskData* value) { mInnerTaskData.append(std::unique_ptr<InnerTaskData>(value)); }
InnerTaskData& TaskData::InsertInnerTaskData(std::size_t index) { return mInnerTaskData.insert(index); }
void TaskData::InsertInnerTaskData(std::size_t index, InnerTaskData* value) { mInnerTaskData.insert(index, std::unique_ptr<InnerTaskData>(value)); }
void TaskData::AssignInnerTaskData(std::size_t index, InnerTaskData const& value) { mInnerTaskData.assign(index, value); }
void TaskData::AssignInnerTaskData(std::size_t index, InnerTaskData* value) { mInnerTaskData.assign(index, std::unique_ptr<InnerTaskData>(value)); }
InnerTaskData& TaskData::BackInnerTaskData() { return mInnerTaskData.back(); }
void TaskData::DeleteInnerTaskData(std::size_t index) { LMX_ASSERT(index < mInnerTaskData.size()); mInnerTaskData.erase(index); }
void TaskData::ClearInnerTaskData() { mInnerTaskData.clear(); }
std::size_t TaskData::SizeInnerTaskData() const { return mInnerTaskData.size(); }
elmx_enums TaskData::GetenumDataTransferOrigin() const { return enum_code(list_2, m_DataTransferOrigin.get()); }
bool TaskData::SetenumDataTransferOrigin(elmx_enums code) { return set_enum(list_2, code, m_DataTransferOrigin); }

// ---- ExternalFileContent ----

InnerExternalFileContent::InnerExternalFileContent() { init(); }
InnerExternalFileContent::InnerExternalFileContent(InnerExternalFileContent const& other) = default;
InnerExternalFileContent::InnerExternalFileContent(InnerExternalFileContent&& other) noexcept : chosen(std::exchange(other.chosen, NothingChosen)), m_held(std::move(other.m_held)) {}
InnerExternalFileContent::InnerExternalFileContent(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_OK; unmarshal(reader, error); }
InnerExternalFileContent* InnerExternalFileContent::clone() const { return new InnerExternalFileContent(*this); }
InnerExternalFileContent::~InnerExternalFileContent() = default;
InnerExternalFileContent& InnerExternalFileContent::operator=(InnerExternalFileContent const& other) { InnerExternalFileContent copy(other); swap(copy); return *this; }
InnerExternalFileContent& InnerExternalFileContent::operator=(InnerExternalFileContent&& other) noexcept { InnerExternalFileContent taken(std::move(other)); swap(taken); return *this; }
void InnerExternalFileContent::swap(InnerExternalFileContent& other) noexcept { std::swap(chosen, other.chosen); std::swap(m_held, other.m_held); }
void InnerExternalFileContent::reset() { InnerExternalFileContent empty; swap(empty); }
void InnerExternalFileContent::init() { chosen = NothingChosen; }

lmx::s_event_map const InnerExternalFileContent::elem_event_map[] = {
    {1, "BSN", 3, elem_BaseStation},
    {1, "CCT", 3, elem_CodedComment},
    {1, "CCG", 3, elem_CodedCommentGroup},
    {1, "CLD", 3, elem_ColourLegend},
    {1, "CTP", 3, elem_CropType},
    {1, "CPC", 3, elem_CulturalPractice},
    {1, "CTR", 3, elem_Grower},
    {1, "DVC", 3, elem_Device},
    {1, "FRM", 3, elem_Farm},
    {1, "OTQ", 3, elem_OperationTechnique},
    {1, "PFD", 3, elem_Field},
    {1, "PDT", 3, elem_Product},
    {1, "PGP", 3, elem_ProductGroup},
    {1, "TSK", 3, elem_Task},
    {1, "VPN", 3, elem_ValuePresentation},
    {1, "WKR", 3, elem_Worker},
    {0, nullptr, 0, 0},
};
void InnerExternalFileContent::release_choice() { m_held.release(); chosen = NothingChosen; }
bool InnerExternalFileContent::IsOccursOk(lmx::c_check_tracker*) const { return true; }
bool InnerExternalFileContent::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  if (!IsOccursOk(&link)) return false;
  switch (chosen) {
    case BaseStationChosen: return m_held.check(&link, "BSN");
    case CodedCommentChosen: return m_held.check(&link, "CCT");
    case CodedCommentGroupChosen: return m_held.check(&link, "CCG");
    case ColourLegendChosen: return m_held.check(&link, "CLD");
    case CropTypeChosen: return m_held.check(&link, "CTP");
    case CulturalPracticeChosen: return m_held.check(&link, "CPC");
    case GrowerChosen: return m_held.check(&link, "CTR");
    case DeviceChosen: return m_held.check(&link, "DVC");
    case FarmChosen: return m_held.check(&link, "FRM");
    case OperationTechniqueChosen: return m_held.check(&link, "OTQ");
    case FieldChosen: return m_held.check(&link, "PFD");
    case ProductChosen: return m_held.check(&link, "PDT");
    case ProductGroupChosen: return m_held.check(&link, "PGP");
    case TaskChosen: return m_held.check(&link, "TSK");
    case ValuePresentationChosen: return m_held.check(&link, "VPN");
    case WorkerChosen: return m_held.check(&link, "WKR");
  }
  return true;
}
bool InnerExternalFileContent::IsMember(lmx::xmlReader& reader) { return is_member(reader, elem_event_map); }
bool InnerExternalFileContent::unmarshal(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(elem_event_map, lmx::EXAE_ELEMENT);
  switch (reader.m_event) {
    case elem_BaseStation: return read_run(reader, new_run<BaseStation>(chosen, m_held, BaseStationChosen), elem_BaseStation, {elem_event_map, "XFC", __LINE__}, error);
    case elem_CodedComment: return read_run(reader, new_run<CodedComment>(chosen, m_held, CodedCommentChosen), elem_CodedComment, {elem_event_map, "XFC", __LINE__}, error);
    case elem_CodedCommentGroup: return read_run(reader, new_run<CoddedCommentGroup>(chosen, m_held, CodedCommentGroupChosen), elem_CodedCommentGroup, {elem_event_map, "XFC", __LINE__}, error);
    case elem_ColourLegend: return read_run(reader, new_run<ColourLegend>(chosen, m_held, ColourLegendChosen), elem_ColourLegend, {elem_event_map, "XFC", __LINE__}, error);
    case elem_CropType: return read_run(reader, new_run<CropType>(chosen, m_held, CropTypeChosen), elem_CropType, {elem_event_map, "XFC", __LINE__}, error);
    case elem_CulturalPractice: return read_run(reader, new_run<CulturalPractice>(chosen, m_held, CulturalPracticeChosen), elem_CulturalPractice, {elem_event_map, "XFC", __LINE__}, error);
    case elem_Grower: return read_run(reader, new_run<Grower>(chosen, m_held, GrowerChosen), elem_Grower, {elem_event_map, "XFC", __LINE__}, error);
    case elem_Device: return read_run(reader, new_run<Device>(chosen, m_held, DeviceChosen), elem_Device, {elem_event_map, "XFC", __LINE__}, error);
    case elem_Farm: return read_run(reader, new_run<Farm>(chosen, m_held, FarmChosen), elem_Farm, {elem_event_map, "XFC", __LINE__}, error);
    case elem_OperationTechnique: return read_run(reader, new_run<OperationTechnique>(chosen, m_held, OperationTechniqueChosen), elem_OperationTechnique, {elem_event_map, "XFC", __LINE__}, error);
    case elem_Field: return read_run(reader, new_run<Field>(chosen, m_held, FieldChosen), elem_Field, {elem_event_map, "XFC", __LINE__}, error);
    case elem_Product: return read_run(reader, new_run<Product>(chosen, m_held, ProductChosen), elem_Product, {elem_event_map, "XFC", __LINE__}, error);
    case elem_ProductGroup: return read_run(reader, new_run<ProductGroup>(chosen, m_held, ProductGroupChosen), elem_ProductGroup, {elem_event_map, "XFC", __LINE__}, error);
    case elem_Task: return read_run(reader, new_run<Task>(chosen, m_held, TaskChosen), elem_Task, {elem_event_map, "XFC", __LINE__}, error);
    case elem_ValuePresentation: return read_run(reader, new_run<ValuePresentation>(chosen, m_held, ValuePresentationChosen), elem_ValuePresentation, {elem_event_map, "XFC", __LINE__}, error);
    case elem_Worker: return read_run(reader, new_run<Worker>(chosen, m_held, WorkerChosen), elem_Worker, {elem_event_map, "XFC", __LINE__}, error);
  }
  return true;
}
lmx::elmx_error InnerExternalFileContent::marshal(lmx::c_xml_writer& writer, char const*) const { return marshal_child_elements(writer); }
lmx::elmx_error InnerExternalFileContent::marshal_child_elements(lmx::c_xml_writer& writer) const { return write_choice(writer, m_held, chosen, NothingChosen, elem_event_map, __LINE__); }

void InnerExternalFileContent::SelectBaseStation() { selected_run<BaseStation>(chosen, m_held, BaseStationChosen); }
BaseStation const& InnerExternalFileContent::GetBaseStation(std::size_t index) const { return run_at<BaseStation>(m_held, {is_chosen(chosen, m_held, BaseStationChosen), "chosen == BaseStationChosen"}, index, "index < u.mBaseStation->size()"); }
BaseStation& InnerExternalFileContent::GetBaseStation(std::size_t index) { return selected_run<BaseStation>(chosen, m_held, BaseStationChosen).get_or_append(index); }
BaseStation& InnerExternalFileContent::AppendBaseStation() { return selected_run<BaseStation>(chosen, m_held, BaseStationChosen).append(); }
void InnerExternalFileContent::AppendBaseStation(BaseStation* value) { std::unique_ptr<BaseStation> owned(value); selected_run<BaseStation>(chosen, m_held, BaseStationChosen).append(std::move(owned)); }
BaseStation& InnerExternalFileContent::InsertBaseStation(std::size_t index) { return selected_run<BaseStation>(chosen, m_held, BaseStationChosen).insert(index); }
void InnerExternalFileContent::InsertBaseStation(std::size_t index, BaseStation* value) { std::unique_ptr<BaseStation> owned(value); selected_run<BaseStation>(chosen, m_held, BaseStationChosen).insert(index, std::move(owned)); }
void InnerExternalFileContent::AssignBaseStation(std::size_t index, BaseStation const& value) { selected_run<BaseStation>(chosen, m_held, BaseStationChosen).assign(index, value); }
void InnerExternalFileContent::AssignBaseStation(std::size_t index, BaseStation* value) { std::unique_ptr<BaseStation> owned(value); selected_run<BaseStation>(chosen, m_held, BaseStationChosen).assign(index, std::move(owned)); }
BaseStation& InnerExternalFileContent::BackBaseStation() { return selected_run<BaseStation>(chosen, m_held, BaseStationChosen).back(); }
void InnerExternalFileContent::DeleteBaseStation(std::size_t index) { erase_at<BaseStation>(m_held, {is_chosen(chosen, m_held, BaseStationChosen), "chosen == BaseStationChosen"}, index, "index < u.mBaseStation->size()"); }
void InnerExternalFileContent::ClearBaseStation() { selected_run<BaseStation>(chosen, m_held, BaseStationChosen).clear(); }
std::size_t InnerExternalFileContent::SizeBaseStation() const { return run_size<BaseStation>(m_held, m_held.holds(BaseStationChosen)); }

void InnerExternalFileContent::SelectCodedComment() { selected_run<CodedComment>(chosen, m_held, CodedCommentChosen); }
CodedComment const& InnerExternalFileContent::GetCodedComment(std::size_t index) const { return run_at<CodedComment>(m_held, {is_chosen(chosen, m_held, CodedCommentChosen), "chosen == CodedCommentChosen"}, index, "index < u.mCodedComment->size()"); }
CodedComment& InnerExternalFileContent::GetCodedComment(std::size_t index) { return selected_run<CodedComment>(chosen, m_held, CodedCommentChosen).get_or_append(index); }
CodedComment& InnerExternalFileContent::AppendCodedComment() { return selected_run<CodedComment>(chosen, m_held, CodedCommentChosen).append(); }
void InnerExternalFileContent::AppendCodedComment(CodedComment* value) { std::unique_ptr<CodedComment> owned(value); selected_run<CodedComment>(chosen, m_held, CodedCommentChosen).append(std::move(owned)); }
CodedComment& InnerExternalFileContent::InsertCodedComment(std::size_t index) { return selected_run<CodedComment>(chosen, m_held, CodedCommentChosen).insert(index); }
void InnerExternalFileContent::InsertCodedComment(std::size_t index, CodedComment* value) { std::unique_ptr<CodedComment> owned(value); selected_run<CodedComment>(chosen, m_held, CodedCommentChosen).insert(index, std::move(owned)); }
void InnerExternalFileContent::AssignCodedComment(std::size_t index, CodedComment const& value) { selected_run<CodedComment>(chosen, m_held, CodedCommentChosen).assign(index, value); }
void InnerExternalFileContent::AssignCodedComment(std::size_t index, CodedComment* value) { std::unique_ptr<CodedComment> owned(value); selected_run<CodedComment>(chosen, m_held, CodedCommentChosen).assign(index, std::move(owned)); }
CodedComment& InnerExternalFileContent::BackCodedComment() { return selected_run<CodedComment>(chosen, m_held, CodedCommentChosen).back(); }
void InnerExternalFileContent::DeleteCodedComment(std::size_t index) { erase_at<CodedComment>(m_held, {is_chosen(chosen, m_held, CodedCommentChosen), "chosen == CodedCommentChosen"}, index, "index < u.mCodedComment->size()"); }
void InnerExternalFileContent::ClearCodedComment() { selected_run<CodedComment>(chosen, m_held, CodedCommentChosen).clear(); }
std::size_t InnerExternalFileContent::SizeCodedComment() const { return run_size<CodedComment>(m_held, m_held.holds(CodedCommentChosen)); }

void InnerExternalFileContent::SelectCodedCommentGroup() { selected_run<CoddedCommentGroup>(chosen, m_held, CodedCommentGroupChosen); }
CoddedCommentGroup const& InnerExternalFileContent::GetCodedCommentGroup(std::size_t index) const { return run_at<CoddedCommentGroup>(m_held, {is_chosen(chosen, m_held, CodedCommentGroupChosen), "chosen == CodedCommentGroupChosen"}, index, "index < u.mCodedCommentGroup->size()"); }
CoddedCommentGroup& InnerExternalFileContent::GetCodedCommentGroup(std::size_t index) { return selected_run<CoddedCommentGroup>(chosen, m_held, CodedCommentGroupChosen).get_or_append(index); }
CoddedCommentGroup& InnerExternalFileContent::AppendCodedCommentGroup() { return selected_run<CoddedCommentGroup>(chosen, m_held, CodedCommentGroupChosen).append(); }
void InnerExternalFileContent::AppendCodedCommentGroup(CoddedCommentGroup* value) { std::unique_ptr<CoddedCommentGroup> owned(value); selected_run<CoddedCommentGroup>(chosen, m_held, CodedCommentGroupChosen).append(std::move(owned)); }
CoddedCommentGroup& InnerExternalFileContent::InsertCodedCommentGroup(std::size_t index) { return selected_run<CoddedCommentGroup>(chosen, m_held, CodedCommentGroupChosen).insert(index); }
void InnerExternalFileContent::InsertCodedCommentGroup(std::size_t index, CoddedCommentGroup* value) { std::unique_ptr<CoddedCommentGroup> owned(value); selected_run<CoddedCommentGroup>(chosen, m_held, CodedCommentGroupChosen).insert(index, std::move(owned)); }
void InnerExternalFileContent::AssignCodedCommentGroup(std::size_t index, CoddedCommentGroup const& value) { selected_run<CoddedCommentGroup>(chosen, m_held, CodedCommentGroupChosen).assign(index, value); }
void InnerExternalFileContent::AssignCodedCommentGroup(std::size_t index, CoddedCommentGroup* value) { std::unique_ptr<CoddedCommentGroup> owned(value); selected_run<CoddedCommentGroup>(chosen, m_held, CodedCommentGroupChosen).assign(index, std::move(owned)); }
CoddedCommentGroup& InnerExternalFileContent::BackCodedCommentGroup() { return selected_run<CoddedCommentGroup>(chosen, m_held, CodedCommentGroupChosen).back(); }
void InnerExternalFileContent::DeleteCodedCommentGroup(std::size_t index) { erase_at<CoddedCommentGroup>(m_held, {is_chosen(chosen, m_held, CodedCommentGroupChosen), "chosen == CodedCommentGroupChosen"}, index, "index < u.mCodedCommentGroup->size()"); }
void InnerExternalFileContent::ClearCodedCommentGroup() { selected_run<CoddedCommentGroup>(chosen, m_held, CodedCommentGroupChosen).clear(); }
std::size_t InnerExternalFileContent::SizeCodedCommentGroup() const { return run_size<CoddedCommentGroup>(m_held, m_held.holds(CodedCommentGroupChosen)); }

void InnerExternalFileContent::SelectColourLegend() { selected_run<ColourLegend>(chosen, m_held, ColourLegendChosen); }
ColourLegend const& InnerExternalFileContent::GetColourLegend(std::size_t index) const { return run_at<ColourLegend>(m_held, {is_chosen(chosen, m_held, ColourLegendChosen), "chosen == ColourLegendChosen"}, index, "index < u.mColourLegend->size()"); }
ColourLegend& InnerExternalFileContent::GetColourLegend(std::size_t index) { return selected_run<ColourLegend>(chosen, m_held, ColourLegendChosen).get_or_append(index); }
ColourLegend& InnerExternalFileContent::AppendColourLegend() { return selected_run<ColourLegend>(chosen, m_held, ColourLegendChosen).append(); }
void InnerExternalFileContent::AppendColourLegend(ColourLegend* value) { std::unique_ptr<ColourLegend> owned(value); selected_run<ColourLegend>(chosen, m_held, ColourLegendChosen).append(std::move(owned)); }
ColourLegend& InnerExternalFileContent::InsertColourLegend(std::size_t index) { return selected_run<ColourLegend>(chosen, m_held, ColourLegendChosen).insert(index); }
void InnerExternalFileContent::InsertColourLegend(std::size_t index, ColourLegend* value) { std::unique_ptr<ColourLegend> owned(value); selected_run<ColourLegend>(chosen, m_held, ColourLegendChosen).insert(index, std::move(owned)); }
void InnerExternalFileContent::AssignColourLegend(std::size_t index, ColourLegend const& value) { selected_run<ColourLegend>(chosen, m_held, ColourLegendChosen).assign(index, value); }
void InnerExternalFileContent::AssignColourLegend(std::size_t index, ColourLegend* value) { std::unique_ptr<ColourLegend> owned(value); selected_run<ColourLegend>(chosen, m_held, ColourLegendChosen).assign(index, std::move(owned)); }
ColourLegend& InnerExternalFileContent::BackColourLegend() { return selected_run<ColourLegend>(chosen, m_held, ColourLegendChosen).back(); }
void InnerExternalFileContent::DeleteColourLegend(std::size_t index) { erase_at<ColourLegend>(m_held, {is_chosen(chosen, m_held, ColourLegendChosen), "chosen == ColourLegendChosen"}, index, "index < u.mColourLegend->size()"); }
void InnerExternalFileContent::ClearColourLegend() { selected_run<ColourLegend>(chosen, m_held, ColourLegendChosen).clear(); }
std::size_t InnerExternalFileContent::SizeColourLegend() const { return run_size<ColourLegend>(m_held, m_held.holds(ColourLegendChosen)); }

void InnerExternalFileContent::SelectCropType() { selected_run<CropType>(chosen, m_held, CropTypeChosen); }
CropType const& InnerExternalFileContent::GetCropType(std::size_t index) const { return run_at<CropType>(m_held, {is_chosen(chosen, m_held, CropTypeChosen), "chosen == CropTypeChosen"}, index, "index < u.mCropType->size()"); }
CropType& InnerExternalFileContent::GetCropType(std::size_t index) { return selected_run<CropType>(chosen, m_held, CropTypeChosen).get_or_append(index); }
CropType& InnerExternalFileContent::AppendCropType() { return selected_run<CropType>(chosen, m_held, CropTypeChosen).append(); }
void InnerExternalFileContent::AppendCropType(CropType* value) { std::unique_ptr<CropType> owned(value); selected_run<CropType>(chosen, m_held, CropTypeChosen).append(std::move(owned)); }
CropType& InnerExternalFileContent::InsertCropType(std::size_t index) { return selected_run<CropType>(chosen, m_held, CropTypeChosen).insert(index); }
void InnerExternalFileContent::InsertCropType(std::size_t index, CropType* value) { std::unique_ptr<CropType> owned(value); selected_run<CropType>(chosen, m_held, CropTypeChosen).insert(index, std::move(owned)); }
void InnerExternalFileContent::AssignCropType(std::size_t index, CropType const& value) { selected_run<CropType>(chosen, m_held, CropTypeChosen).assign(index, value); }
void InnerExternalFileContent::AssignCropType(std::size_t index, CropType* value) { std::unique_ptr<CropType> owned(value); selected_run<CropType>(chosen, m_held, CropTypeChosen).assign(index, std::move(owned)); }
CropType& InnerExternalFileContent::BackCropType() { return selected_run<CropType>(chosen, m_held, CropTypeChosen).back(); }
void InnerExternalFileContent::DeleteCropType(std::size_t index) { erase_at<CropType>(m_held, {is_chosen(chosen, m_held, CropTypeChosen), "chosen == CropTypeChosen"}, index, "index < u.mCropType->size()"); }
void InnerExternalFileContent::ClearCropType() { selected_run<CropType>(chosen, m_held, CropTypeChosen).clear(); }
std::size_t InnerExternalFileContent::SizeCropType() const { return run_size<CropType>(m_held, m_held.holds(CropTypeChosen)); }

void InnerExternalFileContent::SelectCulturalPractice() { selected_run<CulturalPractice>(chosen, m_held, CulturalPracticeChosen); }
CulturalPractice const& InnerExternalFileContent::GetCulturalPractice(std::size_t index) const { return run_at<CulturalPractice>(m_held, {is_chosen(chosen, m_held, CulturalPracticeChosen), "chosen == CulturalPracticeChosen"}, index, "index < u.mCulturalPractice->size()"); }
CulturalPractice& InnerExternalFileContent::GetCulturalPractice(std::size_t index) { return selected_run<CulturalPractice>(chosen, m_held, CulturalPracticeChosen).get_or_append(index); }
CulturalPractice& InnerExternalFileContent::AppendCulturalPractice() { return selected_run<CulturalPractice>(chosen, m_held, CulturalPracticeChosen).append(); }
void InnerExternalFileContent::AppendCulturalPractice(CulturalPractice* value) { std::unique_ptr<CulturalPractice> owned(value); selected_run<CulturalPractice>(chosen, m_held, CulturalPracticeChosen).append(std::move(owned)); }
CulturalPractice& InnerExternalFileContent::InsertCulturalPractice(std::size_t index) { return selected_run<CulturalPractice>(chosen, m_held, CulturalPracticeChosen).insert(index); }
void InnerExternalFileContent::InsertCulturalPractice(std::size_t index, CulturalPractice* value) { std::unique_ptr<CulturalPractice> owned(value); selected_run<CulturalPractice>(chosen, m_held, CulturalPracticeChosen).insert(index, std::move(owned)); }
void InnerExternalFileContent::AssignCulturalPractice(std::size_t index, CulturalPractice const& value) { selected_run<CulturalPractice>(chosen, m_held, CulturalPracticeChosen).assign(index, value); }
void InnerExternalFileContent::AssignCulturalPractice(std::size_t index, CulturalPractice* value) { std::unique_ptr<CulturalPractice> owned(value); selected_run<CulturalPractice>(chosen, m_held, CulturalPracticeChosen).assign(index, std::move(owned)); }
CulturalPractice& InnerExternalFileContent::BackCulturalPractice() { return selected_run<CulturalPractice>(chosen, m_held, CulturalPracticeChosen).back(); }
void InnerExternalFileContent::DeleteCulturalPractice(std::size_t index) { erase_at<CulturalPractice>(m_held, {is_chosen(chosen, m_held, CulturalPracticeChosen), "chosen == CulturalPracticeChosen"}, index, "index < u.mCulturalPractice->size()"); }
void InnerExternalFileContent::ClearCulturalPractice() { selected_run<CulturalPractice>(chosen, m_held, CulturalPracticeChosen).clear(); }
std::size_t InnerExternalFileContent::SizeCulturalPractice() const { return run_size<CulturalPractice>(m_held, m_held.holds(CulturalPracticeChosen)); }

void InnerExternalFileContent::SelectGrower() { selected_run<Grower>(chosen, m_held, GrowerChosen); }
Grower const& InnerExternalFileContent::GetGrower(std::size_t index) const { return run_at<Grower>(m_held, {is_chosen(chosen, m_held, GrowerChosen), "chosen == GrowerChosen"}, index, "index < u.mGrower->size()"); }
Grower& InnerExternalFileContent::GetGrower(std::size_t index) { return selected_run<Grower>(chosen, m_held, GrowerChosen).get_or_append(index); }
Grower& InnerExternalFileContent::AppendGrower() { return selected_run<Grower>(chosen, m_held, GrowerChosen).append(); }
void InnerExternalFileContent::AppendGrower(Grower* value) { std::unique_ptr<Grower> owned(value); selected_run<Grower>(chosen, m_held, GrowerChosen).append(std::move(owned)); }
Grower& InnerExternalFileContent::InsertGrower(std::size_t index) { return selected_run<Grower>(chosen, m_held, GrowerChosen).insert(index); }
void InnerExternalFileContent::InsertGrower(std::size_t index, Grower* value) { std::unique_ptr<Grower> owned(value); selected_run<Grower>(chosen, m_held, GrowerChosen).insert(index, std::move(owned)); }
void InnerExternalFileContent::AssignGrower(std::size_t index, Grower const& value) { selected_run<Grower>(chosen, m_held, GrowerChosen).assign(index, value); }
void InnerExternalFileContent::AssignGrower(std::size_t index, Grower* value) { std::unique_ptr<Grower> owned(value); selected_run<Grower>(chosen, m_held, GrowerChosen).assign(index, std::move(owned)); }
Grower& InnerExternalFileContent::BackGrower() { return selected_run<Grower>(chosen, m_held, GrowerChosen).back(); }
void InnerExternalFileContent::DeleteGrower(std::size_t index) { erase_at<Grower>(m_held, {is_chosen(chosen, m_held, GrowerChosen), "chosen == GrowerChosen"}, index, "index < u.mGrower->size()"); }
void InnerExternalFileContent::ClearGrower() { selected_run<Grower>(chosen, m_held, GrowerChosen).clear(); }
std::size_t InnerExternalFileContent::SizeGrower() const { return run_size<Grower>(m_held, m_held.holds(GrowerChosen)); }

void InnerExternalFileContent::SelectDevice() { selected_run<Device>(chosen, m_held, DeviceChosen); }
Device const& InnerExternalFileContent::GetDevice(std::size_t index) const { return run_at<Device>(m_held, {is_chosen(chosen, m_held, DeviceChosen), "chosen == DeviceChosen"}, index, "index < u.mDevice->size()"); }
Device& InnerExternalFileContent::GetDevice(std::size_t index) { return selected_run<Device>(chosen, m_held, DeviceChosen).get_or_append(index); }
Device& InnerExternalFileContent::AppendDevice() { return selected_run<Device>(chosen, m_held, DeviceChosen).append(); }
void InnerExternalFileContent::AppendDevice(Device* value) { std::unique_ptr<Device> owned(value); selected_run<Device>(chosen, m_held, DeviceChosen).append(std::move(owned)); }
Device& InnerExternalFileContent::InsertDevice(std::size_t index) { return selected_run<Device>(chosen, m_held, DeviceChosen).insert(index); }
void InnerExternalFileContent::InsertDevice(std::size_t index, Device* value) { std::unique_ptr<Device> owned(value); selected_run<Device>(chosen, m_held, DeviceChosen).insert(index, std::move(owned)); }
void InnerExternalFileContent::AssignDevice(std::size_t index, Device const& value) { selected_run<Device>(chosen, m_held, DeviceChosen).assign(index, value); }
void InnerExternalFileContent::AssignDevice(std::size_t index, Device* value) { std::unique_ptr<Device> owned(value); selected_run<Device>(chosen, m_held, DeviceChosen).assign(index, std::move(owned)); }
Device& InnerExternalFileContent::BackDevice() { return selected_run<Device>(chosen, m_held, DeviceChosen).back(); }
void InnerExternalFileContent::DeleteDevice(std::size_t index) { erase_at<Device>(m_held, {is_chosen(chosen, m_held, DeviceChosen), "chosen == DeviceChosen"}, index, "index < u.mDevice->size()"); }
void InnerExternalFileContent::ClearDevice() { selected_run<Device>(chosen, m_held, DeviceChosen).clear(); }
std::size_t InnerExternalFileContent::SizeDevice() const { return run_size<Device>(m_held, m_held.holds(DeviceChosen)); }

void InnerExternalFileContent::SelectFarm() { selected_run<Farm>(chosen, m_held, FarmChosen); }
Farm const& InnerExternalFileContent::GetFarm(std::size_t index) const { return run_at<Farm>(m_held, {is_chosen(chosen, m_held, FarmChosen), "chosen == FarmChosen"}, index, "index < u.mFarm->size()"); }
Farm& InnerExternalFileContent::GetFarm(std::size_t index) { return selected_run<Farm>(chosen, m_held, FarmChosen).get_or_append(index); }
Farm& InnerExternalFileContent::AppendFarm() { return selected_run<Farm>(chosen, m_held, FarmChosen).append(); }
void InnerExternalFileContent::AppendFarm(Farm* value) { std::unique_ptr<Farm> owned(value); selected_run<Farm>(chosen, m_held, FarmChosen).append(std::move(owned)); }
Farm& InnerExternalFileContent::InsertFarm(std::size_t index) { return selected_run<Farm>(chosen, m_held, FarmChosen).insert(index); }
void InnerExternalFileContent::InsertFarm(std::size_t index, Farm* value) { std::unique_ptr<Farm> owned(value); selected_run<Farm>(chosen, m_held, FarmChosen).insert(index, std::move(owned)); }
void InnerExternalFileContent::AssignFarm(std::size_t index, Farm const& value) { selected_run<Farm>(chosen, m_held, FarmChosen).assign(index, value); }
void InnerExternalFileContent::AssignFarm(std::size_t index, Farm* value) { std::unique_ptr<Farm> owned(value); selected_run<Farm>(chosen, m_held, FarmChosen).assign(index, std::move(owned)); }
Farm& InnerExternalFileContent::BackFarm() { return selected_run<Farm>(chosen, m_held, FarmChosen).back(); }
void InnerExternalFileContent::DeleteFarm(std::size_t index) { erase_at<Farm>(m_held, {is_chosen(chosen, m_held, FarmChosen), "chosen == FarmChosen"}, index, "index < u.mFarm->size()"); }
void InnerExternalFileContent::ClearFarm() { selected_run<Farm>(chosen, m_held, FarmChosen).clear(); }
std::size_t InnerExternalFileContent::SizeFarm() const { return run_size<Farm>(m_held, m_held.holds(FarmChosen)); }

void InnerExternalFileContent::SelectOperationTechnique() { selected_run<OperationTechnique>(chosen, m_held, OperationTechniqueChosen); }
OperationTechnique const& InnerExternalFileContent::GetOperationTechnique(std::size_t index) const { return run_at<OperationTechnique>(m_held, {is_chosen(chosen, m_held, OperationTechniqueChosen), "chosen == OperationTechniqueChosen"}, index, "index < u.mOperationTechnique->size()"); }
OperationTechnique& InnerExternalFileContent::GetOperationTechnique(std::size_t index) { return selected_run<OperationTechnique>(chosen, m_held, OperationTechniqueChosen).get_or_append(index); }
OperationTechnique& InnerExternalFileContent::AppendOperationTechnique() { return selected_run<OperationTechnique>(chosen, m_held, OperationTechniqueChosen).append(); }
void InnerExternalFileContent::AppendOperationTechnique(OperationTechnique* value) { std::unique_ptr<OperationTechnique> owned(value); selected_run<OperationTechnique>(chosen, m_held, OperationTechniqueChosen).append(std::move(owned)); }
OperationTechnique& InnerExternalFileContent::InsertOperationTechnique(std::size_t index) { return selected_run<OperationTechnique>(chosen, m_held, OperationTechniqueChosen).insert(index); }
void InnerExternalFileContent::InsertOperationTechnique(std::size_t index, OperationTechnique* value) { std::unique_ptr<OperationTechnique> owned(value); selected_run<OperationTechnique>(chosen, m_held, OperationTechniqueChosen).insert(index, std::move(owned)); }
void InnerExternalFileContent::AssignOperationTechnique(std::size_t index, OperationTechnique const& value) { selected_run<OperationTechnique>(chosen, m_held, OperationTechniqueChosen).assign(index, value); }
void InnerExternalFileContent::AssignOperationTechnique(std::size_t index, OperationTechnique* value) { std::unique_ptr<OperationTechnique> owned(value); selected_run<OperationTechnique>(chosen, m_held, OperationTechniqueChosen).assign(index, std::move(owned)); }
OperationTechnique& InnerExternalFileContent::BackOperationTechnique() { return selected_run<OperationTechnique>(chosen, m_held, OperationTechniqueChosen).back(); }
void InnerExternalFileContent::DeleteOperationTechnique(std::size_t index) { erase_at<OperationTechnique>(m_held, {is_chosen(chosen, m_held, OperationTechniqueChosen), "chosen == OperationTechniqueChosen"}, index, "index < u.mOperationTechnique->size()"); }
void InnerExternalFileContent::ClearOperationTechnique() { selected_run<OperationTechnique>(chosen, m_held, OperationTechniqueChosen).clear(); }
std::size_t InnerExternalFileContent::SizeOperationTechnique() const { return run_size<OperationTechnique>(m_held, m_held.holds(OperationTechniqueChosen)); }

void InnerExternalFileContent::SelectField() { selected_run<Field>(chosen, m_held, FieldChosen); }
Field const& InnerExternalFileContent::GetField(std::size_t index) const { return run_at<Field>(m_held, {is_chosen(chosen, m_held, FieldChosen), "chosen == FieldChosen"}, index, "index < u.mField->size()"); }
Field& InnerExternalFileContent::GetField(std::size_t index) { return selected_run<Field>(chosen, m_held, FieldChosen).get_or_append(index); }
Field& InnerExternalFileContent::AppendField() { return selected_run<Field>(chosen, m_held, FieldChosen).append(); }
void InnerExternalFileContent::AppendField(Field* value) { std::unique_ptr<Field> owned(value); selected_run<Field>(chosen, m_held, FieldChosen).append(std::move(owned)); }
Field& InnerExternalFileContent::InsertField(std::size_t index) { return selected_run<Field>(chosen, m_held, FieldChosen).insert(index); }
void InnerExternalFileContent::InsertField(std::size_t index, Field* value) { std::unique_ptr<Field> owned(value); selected_run<Field>(chosen, m_held, FieldChosen).insert(index, std::move(owned)); }
void InnerExternalFileContent::AssignField(std::size_t index, Field const& value) { selected_run<Field>(chosen, m_held, FieldChosen).assign(index, value); }
void InnerExternalFileContent::AssignField(std::size_t index, Field* value) { std::unique_ptr<Field> owned(value); selected_run<Field>(chosen, m_held, FieldChosen).assign(index, std::move(owned)); }
Field& InnerExternalFileContent::BackField() { return selected_run<Field>(chosen, m_held, FieldChosen).back(); }
void InnerExternalFileContent::DeleteField(std::size_t index) { erase_at<Field>(m_held, {is_chosen(chosen, m_held, FieldChosen), "chosen == FieldChosen"}, index, "index < u.mField->size()"); }
void InnerExternalFileContent::ClearField() { selected_run<Field>(chosen, m_held, FieldChosen).clear(); }
std::size_t InnerExternalFileContent::SizeField() const { return run_size<Field>(m_held, m_held.holds(FieldChosen)); }

void InnerExternalFileContent::SelectProduct() { selected_run<Product>(chosen, m_held, ProductChosen); }
Product const& InnerExternalFileContent::GetProduct(std::size_t index) const { return run_at<Product>(m_held, {is_chosen(chosen, m_held, ProductChosen), "chosen == ProductChosen"}, index, "index < u.mProduct->size()"); }
Product& InnerExternalFileContent::GetProduct(std::size_t index) { return selected_run<Product>(chosen, m_held, ProductChosen).get_or_append(index); }
Product& InnerExternalFileContent::AppendProduct() { return selected_run<Product>(chosen, m_held, ProductChosen).append(); }
void InnerExternalFileContent::AppendProduct(Product* value) { std::unique_ptr<Product> owned(value); selected_run<Product>(chosen, m_held, ProductChosen).append(std::move(owned)); }
Product& InnerExternalFileContent::InsertProduct(std::size_t index) { return selected_run<Product>(chosen, m_held, ProductChosen).insert(index); }
void InnerExternalFileContent::InsertProduct(std::size_t index, Product* value) { std::unique_ptr<Product> owned(value); selected_run<Product>(chosen, m_held, ProductChosen).insert(index, std::move(owned)); }
void InnerExternalFileContent::AssignProduct(std::size_t index, Product const& value) { selected_run<Product>(chosen, m_held, ProductChosen).assign(index, value); }
void InnerExternalFileContent::AssignProduct(std::size_t index, Product* value) { std::unique_ptr<Product> owned(value); selected_run<Product>(chosen, m_held, ProductChosen).assign(index, std::move(owned)); }
Product& InnerExternalFileContent::BackProduct() { return selected_run<Product>(chosen, m_held, ProductChosen).back(); }
void InnerExternalFileContent::DeleteProduct(std::size_t index) { erase_at<Product>(m_held, {is_chosen(chosen, m_held, ProductChosen), "chosen == ProductChosen"}, index, "index < u.mProduct->size()"); }
void InnerExternalFileContent::ClearProduct() { selected_run<Product>(chosen, m_held, ProductChosen).clear(); }
std::size_t InnerExternalFileContent::SizeProduct() const { return run_size<Product>(m_held, m_held.holds(ProductChosen)); }

void InnerExternalFileContent::SelectProductGroup() { selected_run<ProductGroup>(chosen, m_held, ProductGroupChosen); }
ProductGroup const& InnerExternalFileContent::GetProductGroup(std::size_t index) const { return run_at<ProductGroup>(m_held, {is_chosen(chosen, m_held, ProductGroupChosen), "chosen == ProductGroupChosen"}, index, "index < u.mProductGroup->size()"); }
ProductGroup& InnerExternalFileContent::GetProductGroup(std::size_t index) { return selected_run<ProductGroup>(chosen, m_held, ProductGroupChosen).get_or_append(index); }
ProductGroup& InnerExternalFileContent::AppendProductGroup() { return selected_run<ProductGroup>(chosen, m_held, ProductGroupChosen).append(); }
void InnerExternalFileContent::AppendProductGroup(ProductGroup* value) { std::unique_ptr<ProductGroup> owned(value); selected_run<ProductGroup>(chosen, m_held, ProductGroupChosen).append(std::move(owned)); }
ProductGroup& InnerExternalFileContent::InsertProductGroup(std::size_t index) { return selected_run<ProductGroup>(chosen, m_held, ProductGroupChosen).insert(index); }
void InnerExternalFileContent::InsertProductGroup(std::size_t index, ProductGroup* value) { std::unique_ptr<ProductGroup> owned(value); selected_run<ProductGroup>(chosen, m_held, ProductGroupChosen).insert(index, std::move(owned)); }
void InnerExternalFileContent::AssignProductGroup(std::size_t index, ProductGroup const& value) { selected_run<ProductGroup>(chosen, m_held, ProductGroupChosen).assign(index, value); }
void InnerExternalFileContent::AssignProductGroup(std::size_t index, ProductGroup* value) { std::unique_ptr<ProductGroup> owned(value); selected_run<ProductGroup>(chosen, m_held, ProductGroupChosen).assign(index, std::move(owned)); }
ProductGroup& InnerExternalFileContent::BackProductGroup() { return selected_run<ProductGroup>(chosen, m_held, ProductGroupChosen).back(); }
void InnerExternalFileContent::DeleteProductGroup(std::size_t index) { erase_at<ProductGroup>(m_held, {is_chosen(chosen, m_held, ProductGroupChosen), "chosen == ProductGroupChosen"}, index, "index < u.mProductGroup->size()"); }
void InnerExternalFileContent::ClearProductGroup() { selected_run<ProductGroup>(chosen, m_held, ProductGroupChosen).clear(); }
std::size_t InnerExternalFileContent::SizeProductGroup() const { return run_size<ProductGroup>(m_held, m_held.holds(ProductGroupChosen)); }

void InnerExternalFileContent::SelectTask() { selected_run<Task>(chosen, m_held, TaskChosen); }
Task const& InnerExternalFileContent::GetTask(std::size_t index) const { return run_at<Task>(m_held, {is_chosen(chosen, m_held, TaskChosen), "chosen == TaskChosen"}, index, "index < u.mTask->size()"); }
Task& InnerExternalFileContent::GetTask(std::size_t index) { return selected_run<Task>(chosen, m_held, TaskChosen).get_or_append(index); }
Task& InnerExternalFileContent::AppendTask() { return selected_run<Task>(chosen, m_held, TaskChosen).append(); }
void InnerExternalFileContent::AppendTask(Task* value) { std::unique_ptr<Task> owned(value); selected_run<Task>(chosen, m_held, TaskChosen).append(std::move(owned)); }
Task& InnerExternalFileContent::InsertTask(std::size_t index) { return selected_run<Task>(chosen, m_held, TaskChosen).insert(index); }
void InnerExternalFileContent::InsertTask(std::size_t index, Task* value) { std::unique_ptr<Task> owned(value); selected_run<Task>(chosen, m_held, TaskChosen).insert(index, std::move(owned)); }
void InnerExternalFileContent::AssignTask(std::size_t index, Task const& value) { selected_run<Task>(chosen, m_held, TaskChosen).assign(index, value); }
void InnerExternalFileContent::AssignTask(std::size_t index, Task* value) { std::unique_ptr<Task> owned(value); selected_run<Task>(chosen, m_held, TaskChosen).assign(index, std::move(owned)); }
Task& InnerExternalFileContent::BackTask() { return selected_run<Task>(chosen, m_held, TaskChosen).back(); }
void InnerExternalFileContent::DeleteTask(std::size_t index) { erase_at<Task>(m_held, {is_chosen(chosen, m_held, TaskChosen), "chosen == TaskChosen"}, index, "index < u.mTask->size()"); }
void InnerExternalFileContent::ClearTask() { selected_run<Task>(chosen, m_held, TaskChosen).clear(); }
std::size_t InnerExternalFileContent::SizeTask() const { return run_size<Task>(m_held, m_held.holds(TaskChosen)); }

void InnerExternalFileContent::SelectValuePresentation() { selected_run<ValuePresentation>(chosen, m_held, ValuePresentationChosen); }
ValuePresentation const& InnerExternalFileContent::GetValuePresentation(std::size_t index) const { return run_at<ValuePresentation>(m_held, {is_chosen(chosen, m_held, ValuePresentationChosen), "chosen == ValuePresentationChosen"}, index, "index < u.mValuePresentation->size()"); }
ValuePresentation& InnerExternalFileContent::GetValuePresentation(std::size_t index) { return selected_run<ValuePresentation>(chosen, m_held, ValuePresentationChosen).get_or_append(index); }
ValuePresentation& InnerExternalFileContent::AppendValuePresentation() { return selected_run<ValuePresentation>(chosen, m_held, ValuePresentationChosen).append(); }
void InnerExternalFileContent::AppendValuePresentation(ValuePresentation* value) { std::unique_ptr<ValuePresentation> owned(value); selected_run<ValuePresentation>(chosen, m_held, ValuePresentationChosen).append(std::move(owned)); }
ValuePresentation& InnerExternalFileContent::InsertValuePresentation(std::size_t index) { return selected_run<ValuePresentation>(chosen, m_held, ValuePresentationChosen).insert(index); }
void InnerExternalFileContent::InsertValuePresentation(std::size_t index, ValuePresentation* value) { std::unique_ptr<ValuePresentation> owned(value); selected_run<ValuePresentation>(chosen, m_held, ValuePresentationChosen).insert(index, std::move(owned)); }
void InnerExternalFileContent::AssignValuePresentation(std::size_t index, ValuePresentation const& value) { selected_run<ValuePresentation>(chosen, m_held, ValuePresentationChosen).assign(index, value); }
void InnerExternalFileContent::AssignValuePresentation(std::size_t index, ValuePresentation* value) { std::unique_ptr<ValuePresentation> owned(value); selected_run<ValuePresentation>(chosen, m_held, ValuePresentationChosen).assign(index, std::move(owned)); }
ValuePresentation& InnerExternalFileContent::BackValuePresentation() { return selected_run<ValuePresentation>(chosen, m_held, ValuePresentationChosen).back(); }
void InnerExternalFileContent::DeleteValuePresentation(std::size_t index) { erase_at<ValuePresentation>(m_held, {is_chosen(chosen, m_held, ValuePresentationChosen), "chosen == ValuePresentationChosen"}, index, "index < u.mValuePresentation->size()"); }
void InnerExternalFileContent::ClearValuePresentation() { selected_run<ValuePresentation>(chosen, m_held, ValuePresentationChosen).clear(); }
std::size_t InnerExternalFileContent::SizeValuePresentation() const { return run_size<ValuePresentation>(m_held, m_held.holds(ValuePresentationChosen)); }

void InnerExternalFileContent::SelectWorker() { selected_run<Worker>(chosen, m_held, WorkerChosen); }
Worker const& InnerExternalFileContent::GetWorker(std::size_t index) const { return run_at<Worker>(m_held, {is_chosen(chosen, m_held, WorkerChosen), "chosen == WorkerChosen"}, index, "index < u.mWorker->size()"); }
Worker& InnerExternalFileContent::GetWorker(std::size_t index) { return selected_run<Worker>(chosen, m_held, WorkerChosen).get_or_append(index); }
Worker& InnerExternalFileContent::AppendWorker() { return selected_run<Worker>(chosen, m_held, WorkerChosen).append(); }
void InnerExternalFileContent::AppendWorker(Worker* value) { std::unique_ptr<Worker> owned(value); selected_run<Worker>(chosen, m_held, WorkerChosen).append(std::move(owned)); }
Worker& InnerExternalFileContent::InsertWorker(std::size_t index) { return selected_run<Worker>(chosen, m_held, WorkerChosen).insert(index); }
void InnerExternalFileContent::InsertWorker(std::size_t index, Worker* value) { std::unique_ptr<Worker> owned(value); selected_run<Worker>(chosen, m_held, WorkerChosen).insert(index, std::move(owned)); }
void InnerExternalFileContent::AssignWorker(std::size_t index, Worker const& value) { selected_run<Worker>(chosen, m_held, WorkerChosen).assign(index, value); }
void InnerExternalFileContent::AssignWorker(std::size_t index, Worker* value) { std::unique_ptr<Worker> owned(value); selected_run<Worker>(chosen, m_held, WorkerChosen).assign(index, std::move(owned)); }
Worker& InnerExternalFileContent::BackWorker() { return selected_run<Worker>(chosen, m_held, WorkerChosen).back(); }
void InnerExternalFileContent::DeleteWorker(std::size_t index) { erase_at<Worker>(m_held, {is_chosen(chosen, m_held, WorkerChosen), "chosen == WorkerChosen"}, index, "index < u.mWorker->size()"); }
void InnerExternalFileContent::ClearWorker() { selected_run<Worker>(chosen, m_held, WorkerChosen).clear(); }
std::size_t InnerExternalFileContent::SizeWorker() const { return run_size<Worker>(m_held, m_held.holds(WorkerChosen)); }

ExternalFileContent::ExternalFileContent() { init(); }
ExternalFileContent::ExternalFileContent(ExternalFileContent const& other) = default;
ExternalFileContent::ExternalFileContent(ExternalFileContent&& other) noexcept = default;
ExternalFileContent::ExternalFileContent(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
ExternalFileContent* ExternalFileContent::clone() const { return new ExternalFileContent(*this); }
ExternalFileContent::~ExternalFileContent() = default;
ExternalFileContent& ExternalFileContent::operator=(ExternalFileContent const& other) { ExternalFileContent copy(other); swap(copy); return *this; }
ExternalFileContent& ExternalFileContent::operator=(ExternalFileContent&& other) noexcept = default;
void ExternalFileContent::swap(ExternalFileContent& other) noexcept { std::swap(*this, other); }
void ExternalFileContent::reset() { ExternalFileContent empty; swap(empty); }
void ExternalFileContent::init() {}

lmx::s_event_map const ExternalFileContent::attr_event_map[] = {
    {0, nullptr, 0, 0},
};
lmx::s_event_map const ExternalFileContent::elem_event_map[] = {
    {1, "BSN", 3, elem_BaseStation},
    {1, "CCT", 3, elem_CodedComment},
    {1, "CCG", 3, elem_CodedCommentGroup},
    {1, "CLD", 3, elem_ColourLegend},
    {1, "CTP", 3, elem_CropType},
    {1, "CPC", 3, elem_CulturalPractice},
    {1, "CTR", 3, elem_Grower},
    {1, "DVC", 3, elem_Device},
    {1, "FRM", 3, elem_Farm},
    {1, "OTQ", 3, elem_OperationTechnique},
    {1, "PFD", 3, elem_Field},
    {1, "PDT", 3, elem_Product},
    {1, "PGP", 3, elem_ProductGroup},
    {1, "TSK", 3, elem_Task},
    {1, "VPN", 3, elem_ValuePresentation},
    {1, "WKR", 3, elem_Worker},
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const ExternalFileContent::known_elements[] = {
    {1, "BSN", 3},
    {1, "CCT", 3},
    {1, "CCG", 3},
    {1, "CLD", 3},
    {1, "CTP", 3},
    {1, "CPC", 3},
    {1, "CTR", 3},
    {1, "DVC", 3},
    {1, "FRM", 3},
    {1, "OTQ", 3},
    {1, "PFD", 3},
    {1, "PDT", 3},
    {1, "PGP", 3},
    {1, "TSK", 3},
    {1, "VPN", 3},
    {1, "WKR", 3},
    {0, nullptr, 0},
};
lmx::elmx_error ExternalFileContent::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "XFC", __LINE__); }
lmx::elmx_error ExternalFileContent::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_complex_content, known_elements, true, __LINE__});
}
bool ExternalFileContent::unmarshal_attributes(lmx::xmlReader&, lmx::elmx_error*) { return false; }
lmx::c_untyped_validation_spec const* ExternalFileContent::accept_attribute(lmx::plain_attribute const&) { return nullptr; }
bool ExternalFileContent::has_required_attributes() const { return true; }
lmx::elmx_error ExternalFileContent::unmarshal_attributes_check(lmx::xmlReader&) { return lmx::ELMX_OK; }
bool ExternalFileContent::unmarshal_body(lmx::xmlReader& reader, lmx::elmx_error* error) { return read_wrappers(reader, mInnerExternalFileContent, false, {elem_event_map, "XFC", __LINE__}, error); }
lmx::elmx_error ExternalFileContent::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void ExternalFileContent::marshal_attributes(lmx::c_xml_writer&) const {
}
lmx::elmx_error ExternalFileContent::marshal_child_elements(lmx::c_xml_writer& writer) const {
  return write_wrappers(writer, mInnerExternalFileContent);
}
bool ExternalFileContent::IsOccursOk(lmx::c_check_tracker*) const {
  return true;
}
bool ExternalFileContent::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link) && check_wrappers(&link, mInnerExternalFileContent);
}
InnerExternalFileContent const& ExternalFileContent::GetInnerExternalFileContent(std::size_t index) const { LMX_ASSERT(index < mInnerExternalFileContent.size()); return mInnerExternalFileContent.get(index); }
InnerExternalFileContent& ExternalFileContent::GetInnerExternalFileContent(std::size_t index) { return mInnerExternalFileContent.get_or_append(index); }
InnerExternalFileContent& ExternalFileContent::AppendInnerExternalFileContent() { return mInnerExternalFileContent.append(); }
void ExternalFileContent::AppendInnerExternalFileContent(InnerExternalFileContent* value) { mInnerExternalFileContent.append(std::unique_ptr<InnerExternalFileContent>(value)); }
InnerExternalFileContent& ExternalFileContent::InsertInnerExternalFileContent(std::size_t index) { return mInnerExternalFileContent.insert(index); }
void ExternalFileContent::InsertInnerExternalFileContent(std::size_t index, InnerExternalFileContent* value) { mInnerExternalFileContent.insert(index, std::unique_ptr<InnerExternalFileContent>(value)); }
void ExternalFileContent::AssignInnerExternalFileContent(std::size_t index, InnerExternalFileContent const& value) { mInnerExternalFileContent.assign(index, value); }
void ExternalFileContent::AssignInnerExternalFileContent(std::size_t index, InnerExternalFileContent* value) { mInnerExternalFileContent.assign(index, std::unique_ptr<InnerExternalFileContent>(value)); }
InnerExternalFileContent& ExternalFileContent::BackInnerExternalFileContent() { return mInnerExternalFileContent.back(); }
void ExternalFileContent::DeleteInnerExternalFileContent(std::size_t index) { LMX_ASSERT(index < mInnerExternalFileContent.size()); mInnerExternalFileContent.erase(index); }
void ExternalFileContent::ClearInnerExternalFileContent() { mInnerExternalFileContent.clear(); }
std::size_t ExternalFileContent::SizeInnerExternalFileContent() const { return mInnerExternalFileContent.size(); }

// ---- ExternalFileReference ----

ExternalFileReference::ExternalFileReference() { init(); }
ExternalFileReference::ExternalFileReference(ExternalFileReference const& other) = default;
ExternalFileReference::ExternalFileReference(ExternalFileReference&& other) noexcept = default;
ExternalFileReference::ExternalFileReference(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
ExternalFileReference* ExternalFileReference::clone() const { return new ExternalFileReference(*this); }
ExternalFileReference::~ExternalFileReference() = default;
ExternalFileReference& ExternalFileReference::operator=(ExternalFileReference const& other) { ExternalFileReference copy(other); swap(copy); return *this; }
ExternalFileReference& ExternalFileReference::operator=(ExternalFileReference&& other) noexcept = default;
void ExternalFileReference::swap(ExternalFileReference& other) noexcept { std::swap(*this, other); }
void ExternalFileReference::reset() { ExternalFileReference empty; swap(empty); }
void ExternalFileReference::init() {}

lmx::s_event_map const ExternalFileReference::attr_event_map[] = {
    {1, "A", 1, attr_FileName},
    {1, "B", 1, attr_Type},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const ExternalFileReference::elem_event_map[] = {
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const ExternalFileReference::known_elements[] = {
    {0, nullptr, 0},
};
lmx::elmx_error ExternalFileReference::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "XFR", __LINE__); }
lmx::elmx_error ExternalFileReference::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_empty_content, known_elements, true, __LINE__}, &lmx::xmlReader::addNewExternalFileReference);
}
bool ExternalFileReference::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_FileName: return read_attribute(reader, m_FileName, spec_external_file_12, __LINE__, error);
    case attr_Type: return read_attribute(reader, m_Type, spec_one_of_1, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* ExternalFileReference::accept_attribute(lmx::plain_attribute const& attribute) {
  switch (attribute.letter()) {
    case 'A': return binding::accept_attribute(m_FileName, spec_external_file_12, attribute);
    case 'B': return binding::accept_attribute(m_Type, spec_one_of_1, attribute);
  }
  return nullptr;
}
bool ExternalFileReference::has_required_attributes() const { return m_FileName.is_set() && m_Type.is_set(); }
lmx::elmx_error ExternalFileReference::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "XFR", __LINE__, has_required_attributes());
}
bool ExternalFileReference::unmarshal_body(lmx::xmlReader&, lmx::elmx_error*) { return true; }
lmx::elmx_error ExternalFileReference::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void ExternalFileReference::marshal_attributes(lmx::c_xml_writer& writer) const {
  write_attribute(writer, "A", m_FileName, spec_external_file_12);
  write_attribute(writer, "B", m_Type, spec_one_of_1);
}
lmx::elmx_error ExternalFileReference::marshal_child_elements(lmx::c_xml_writer&) const {
  return lmx::ELMX_OK;
}
bool ExternalFileReference::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_FileName.is_set(), "A", __LINE__) &&
         check_occurs(tracker, m_Type.is_set(), "B", __LINE__);
}
bool ExternalFileReference::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link);
}
elmx_enums ExternalFileReference::GetenumType() const { return enum_code(list_11, m_Type.get()); }
bool ExternalFileReference::SetenumType(elmx_enums code) { return set_enum(list_11, code, m_Type); }

// ---- AttachedFile ----

AttachedFile::AttachedFile() { init(); }
AttachedFile::AttachedFile(AttachedFile const& other) = default;
AttachedFile::AttachedFile(AttachedFile&& other) noexcept = default;
AttachedFile::AttachedFile(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
AttachedFile* AttachedFile::clone() const { return new AttachedFile(*this); }
AttachedFile::~AttachedFile() = default;
AttachedFile& AttachedFile::operator=(AttachedFile const& other) { AttachedFile copy(other); swap(copy); return *this; }
AttachedFile& AttachedFile::operator=(AttachedFile&& other) noexcept = default;
void AttachedFile::swap(AttachedFile& other) noexcept { std::swap(*this, other); }
void AttachedFile::reset() { AttachedFile empty; swap(empty); }
void AttachedFile::init() {}

lmx::s_event_map const AttachedFile::attr_event_map[] = {
    {1, "A", 1, attr_FileNameWithExtension},
    {1, "B", 1, attr_Preserve},
    {1, "C", 1, attr_ManufacturerGLN},
    {1, "D", 1, attr_Type},
    {1, "E", 1, attr_FileVersion},
    {1, "F", 1, attr_FileLength},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const AttachedFile::elem_event_map[] = {
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const AttachedFile::known_elements[] = {
    {0, nullptr, 0},
};
lmx::elmx_error AttachedFile::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "AFE", __LINE__); }
lmx::elmx_error AttachedFile::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_empty_content, known_elements, true, __LINE__}, &lmx::xmlReader::addNewAttachedFile);
}
bool AttachedFile::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_FileNameWithExtension: return read_attribute(reader, m_FileNameWithExtension, spec_attached_file_1, __LINE__, error);
    case attr_Preserve: return read_attribute(reader, m_Preserve, spec_one_of_1_2, __LINE__, error);
    case attr_ManufacturerGLN: return read_attribute(reader, m_ManufacturerGLN, spec_gln_32, __LINE__, error);
    case attr_Type: return read_attribute(reader, m_Type, spec_range_1_to_254_uint8, __LINE__, error);
    case attr_FileVersion: return read_attribute(reader, m_FileVersion, spec_text_32, __LINE__, error);
    case attr_FileLength: return read_attribute(reader, m_FileLength, spec_range_0_to_4294967294_uint32, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* AttachedFile::accept_attribute(lmx::plain_attribute const& attribute) {
  switch (attribute.letter()) {
    case 'A': return binding::accept_attribute(m_FileNameWithExtension, spec_attached_file_1, attribute);
    case 'B': return binding::accept_attribute(m_Preserve, spec_one_of_1_2, attribute);
    case 'C': return binding::accept_attribute(m_ManufacturerGLN, spec_gln_32, attribute);
    case 'D': return binding::accept_attribute(m_Type, spec_range_1_to_254_uint8, attribute);
    case 'E': return binding::accept_attribute(m_FileVersion, spec_text_32, attribute);
    case 'F': return binding::accept_attribute(m_FileLength, spec_range_0_to_4294967294_uint32, attribute);
  }
  return nullptr;
}
bool AttachedFile::has_required_attributes() const { return m_FileNameWithExtension.is_set() && m_Preserve.is_set() && m_ManufacturerGLN.is_set() && m_Type.is_set(); }
lmx::elmx_error AttachedFile::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "AFE", __LINE__, has_required_attributes());
}
bool AttachedFile::unmarshal_body(lmx::xmlReader&, lmx::elmx_error*) { return true; }
lmx::elmx_error AttachedFile::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void AttachedFile::marshal_attributes(lmx::c_xml_writer& writer) const {
  write_attribute(writer, "A", m_FileNameWithExtension, spec_attached_file_1);
  write_attribute(writer, "B", m_Preserve, spec_one_of_1_2);
  write_attribute(writer, "C", m_ManufacturerGLN, spec_gln_32);
  write_attribute(writer, "D", m_Type, spec_range_1_to_254_uint8);
  write_attribute(writer, "E", m_FileVersion, spec_text_32);
  write_attribute(writer, "F", m_FileLength, spec_range_0_to_4294967294_uint32);
}
lmx::elmx_error AttachedFile::marshal_child_elements(lmx::c_xml_writer&) const {
  return lmx::ELMX_OK;
}
bool AttachedFile::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_FileNameWithExtension.is_set(), "A", __LINE__) &&
         check_occurs(tracker, m_Preserve.is_set(), "B", __LINE__) &&
         check_occurs(tracker, m_ManufacturerGLN.is_set(), "C", __LINE__) &&
         check_occurs(tracker, m_Type.is_set(), "D", __LINE__);
}
bool AttachedFile::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link);
}
elmx_enums AttachedFile::GetenumPreserve() const { return enum_code(list_2, m_Preserve.get()); }
bool AttachedFile::SetenumPreserve(elmx_enums code) { return set_enum(list_2, code, m_Preserve); }

// ---- TaskControllerCapabilities ----

TaskControllerCapabilities::TaskControllerCapabilities() { init(); }
TaskControllerCapabilities::TaskControllerCapabilities(TaskControllerCapabilities const& other) = default;
TaskControllerCapabilities::TaskControllerCapabilities(TaskControllerCapabilities&& other) noexcept = default;
TaskControllerCapabilities::TaskControllerCapabilities(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
TaskControllerCapabilities* TaskControllerCapabilities::clone() const { return new TaskControllerCapabilities(*this); }
TaskControllerCapabilities::~TaskControllerCapabilities() = default;
TaskControllerCapabilities& TaskControllerCapabilities::operator=(TaskControllerCapabilities const& other) { TaskControllerCapabilities copy(other); swap(copy); return *this; }
TaskControllerCapabilities& TaskControllerCapabilities::operator=(TaskControllerCapabilities&& other) noexcept = default;
void TaskControllerCapabilities::swap(TaskControllerCapabilities& other) noexcept { std::swap(*this, other); }
void TaskControllerCapabilities::reset() { TaskControllerCapabilities empty; swap(empty); }
void TaskControllerCapabilities::init() {}

lmx::s_event_map const TaskControllerCapabilities::attr_event_map[] = {
    {1, "A", 1, attr_ControlFunctionName},
    {1, "B", 1, attr_Designator},
    {1, "C", 1, attr_VersionNumber},
    {1, "D", 1, attr_ProvidedCapabilites},
    {1, "E", 1, attr_NumberOfBoomsSectionControl},
    {1, "F", 1, attr_NumberOfSectionsSectionControl},
    {1, "G", 1, attr_NumberOfControlChannels},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const TaskControllerCapabilities::elem_event_map[] = {
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const TaskControllerCapabilities::known_elements[] = {
    {0, nullptr, 0},
};
lmx::elmx_error TaskControllerCapabilities::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "TCC", __LINE__); }
lmx::elmx_error TaskControllerCapabilities::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_empty_content, known_elements, true, __LINE__});
}
bool TaskControllerCapabilities::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_ControlFunctionName: return read_attribute(reader, m_ControlFunctionName, spec_bytes_8, __LINE__, error);
    case attr_Designator: return read_attribute(reader, m_Designator, spec_text_153, __LINE__, error);
    case attr_VersionNumber: return read_attribute(reader, m_VersionNumber, spec_one_of_0_to_4, __LINE__, error);
    case attr_ProvidedCapabilites: return read_attribute(reader, m_ProvidedCapabilites, spec_range_0_to_63_uint8, __LINE__, error);
    case attr_NumberOfBoomsSectionControl: return read_attribute(reader, m_NumberOfBoomsSectionControl, spec_range_0_to_254_uint8, __LINE__, error);
    case attr_NumberOfSectionsSectionControl: return read_attribute(reader, m_NumberOfSectionsSectionControl, spec_range_0_to_254_uint8, __LINE__, error);
    case attr_NumberOfControlChannels: return read_attribute(reader, m_NumberOfControlChannels, spec_range_0_to_254_uint8, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* TaskControllerCapabilities::accept_attribute(lmx::plain_attribute const& attribute) {
  switch (attribute.letter()) {
    case 'A': return binding::accept_attribute(m_ControlFunctionName, spec_bytes_8, attribute);
    case 'B': return binding::accept_attribute(m_Designator, spec_text_153, attribute);
    case 'C': return binding::accept_attribute(m_VersionNumber, spec_one_of_0_to_4, attribute);
    case 'D': return binding::accept_attribute(m_ProvidedCapabilites, spec_range_0_to_63_uint8, attribute);
    case 'E': return binding::accept_attribute(m_NumberOfBoomsSectionControl, spec_range_0_to_254_uint8, attribute);
    case 'F': return binding::accept_attribute(m_NumberOfSectionsSectionControl, spec_range_0_to_254_uint8, attribute);
    case 'G': return binding::accept_attribute(m_NumberOfControlChannels, spec_range_0_to_254_uint8, attribute);
  }
  return nullptr;
}
bool TaskControllerCapabilities::has_required_attributes() const { return m_ControlFunctionName.is_set() && m_Designator.is_set() && m_VersionNumber.is_set() && m_ProvidedCapabilites.is_set() && m_NumberOfBoomsSectionControl.is_set() && m_NumberOfSectionsSectionControl.is_set() && m_NumberOfControlChannels.is_set(); }
lmx::elmx_error TaskControllerCapabilities::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "TCC", __LINE__, has_required_attributes());
}
bool TaskControllerCapabilities::unmarshal_body(lmx::xmlReader&, lmx::elmx_error*) { return true; }
lmx::elmx_error TaskControllerCapabilities::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void TaskControllerCapabilities::marshal_attributes(lmx::c_xml_writer& writer) const {
  write_attribute(writer, "A", m_ControlFunctionName, spec_bytes_8);
  write_attribute(writer, "B", m_Designator, spec_text_153);
  write_attribute(writer, "C", m_VersionNumber, spec_one_of_0_to_4);
  write_attribute(writer, "D", m_ProvidedCapabilites, spec_range_0_to_63_uint8);
  write_attribute(writer, "E", m_NumberOfBoomsSectionControl, spec_range_0_to_254_uint8);
  write_attribute(writer, "F", m_NumberOfSectionsSectionControl, spec_range_0_to_254_uint8);
  write_attribute(writer, "G", m_NumberOfControlChannels, spec_range_0_to_254_uint8);
}
lmx::elmx_error TaskControllerCapabilities::marshal_child_elements(lmx::c_xml_writer&) const {
  return lmx::ELMX_OK;
}
bool TaskControllerCapabilities::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_ControlFunctionName.is_set(), "A", __LINE__) &&
         check_occurs(tracker, m_Designator.is_set(), "B", __LINE__) &&
         check_occurs(tracker, m_VersionNumber.is_set(), "C", __LINE__) &&
         check_occurs(tracker, m_ProvidedCapabilites.is_set(), "D", __LINE__) &&
         check_occurs(tracker, m_NumberOfBoomsSectionControl.is_set(), "E", __LINE__) &&
         check_occurs(tracker, m_NumberOfSectionsSectionControl.is_set(), "F", __LINE__) &&
         check_occurs(tracker, m_NumberOfControlChannels.is_set(), "G", __LINE__);
}
bool TaskControllerCapabilities::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link);
}
elmx_enums TaskControllerCapabilities::GetenumVersionNumber() const { return enum_code(list_10, m_VersionNumber.get()); }
bool TaskControllerCapabilities::SetenumVersionNumber(elmx_enums code) { return set_enum(list_10, code, m_VersionNumber); }

// ---- P917Metadata ----

P917Metadata::P917Metadata() { init(); }
P917Metadata::P917Metadata(P917Metadata const& other) = default;
P917Metadata::P917Metadata(P917Metadata&& other) noexcept = default;
P917Metadata::P917Metadata(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
P917Metadata* P917Metadata::clone() const { return new P917Metadata(*this); }
P917Metadata::~P917Metadata() = default;
P917Metadata& P917Metadata::operator=(P917Metadata const& other) { P917Metadata copy(other); swap(copy); return *this; }
P917Metadata& P917Metadata::operator=(P917Metadata&& other) noexcept = default;
void P917Metadata::swap(P917Metadata& other) noexcept { std::swap(*this, other); }
void P917Metadata::reset() { P917Metadata empty; swap(empty); }
void P917Metadata::init() {}

lmx::s_event_map const P917Metadata::attr_event_map[] = {
    {1, "Version", 7, attr_Version},
    {1, "CloudJob", 8, attr_CloudJob},
    {1, "originationId", 13, attr_OriginationId},
    {1, "jobStatusId", 11, attr_JobStatusId},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const P917Metadata::elem_event_map[] = {
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const P917Metadata::known_elements[] = {
    {0, nullptr, 0},
};
lmx::elmx_error P917Metadata::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "P917_Metadata", __LINE__); }
lmx::elmx_error P917Metadata::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_empty_content, known_elements, true, __LINE__}, &lmx::xmlReader::setP917Metadata);
}
bool P917Metadata::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_Version: return read_attribute(reader, m_Version, spec_any_token, __LINE__, error);
    case attr_CloudJob: return read_attribute(reader, m_CloudJob, spec_boolean, __LINE__, error);
    case attr_OriginationId: return read_attribute(reader, m_OriginationId, spec_one_of_FC_USB_API_PORTAL, __LINE__, error);
    case attr_JobStatusId: return read_attribute(reader, m_JobStatusId, spec_one_of_1_to_4, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* P917Metadata::accept_attribute(lmx::plain_attribute const&) { return nullptr; }
bool P917Metadata::has_required_attributes() const { return m_Version.is_set(); }
lmx::elmx_error P917Metadata::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "P917_Metadata", __LINE__, has_required_attributes());
}
bool P917Metadata::unmarshal_body(lmx::xmlReader&, lmx::elmx_error*) { return true; }
lmx::elmx_error P917Metadata::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void P917Metadata::marshal_attributes(lmx::c_xml_writer& writer) const {
  write_attribute(writer, "Version", m_Version, spec_any_token);
  write_attribute(writer, "CloudJob", m_CloudJob, spec_boolean);
  write_attribute(writer, "originationId", m_OriginationId, spec_one_of_FC_USB_API_PORTAL);
  write_attribute(writer, "jobStatusId", m_JobStatusId, spec_one_of_1_to_4);
}
lmx::elmx_error P917Metadata::marshal_child_elements(lmx::c_xml_writer&) const {
  return lmx::ELMX_OK;
}
bool P917Metadata::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_Version.is_set(), "Version", __LINE__);
}
bool P917Metadata::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link);
}
elmx_enums P917Metadata::GetenumOriginationId() const { return enum_code(list_7, m_OriginationId.get()); }
bool P917Metadata::SetenumOriginationId(elmx_enums code) { return set_enum(list_7, code, m_OriginationId); }
elmx_enums P917Metadata::GetenumJobStatusId() const { return enum_code(list_8, m_JobStatusId.get()); }
bool P917Metadata::SetenumJobStatusId(elmx_enums code) { return set_enum(list_8, code, m_JobStatusId); }

// ---- LinkList ----

InnerLinkList::InnerLinkList() { init(); }
InnerLinkList::InnerLinkList(InnerLinkList const& other) = default;
InnerLinkList::InnerLinkList(InnerLinkList&& other) noexcept : chosen(std::exchange(other.chosen, NothingChosen)), m_held(std::move(other.m_held)) {}
InnerLinkList::InnerLinkList(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_OK; unmarshal(reader, error); }
InnerLinkList* InnerLinkList::clone() const { return new InnerLinkList(*this); }
InnerLinkList::~InnerLinkList() = default;
InnerLinkList& InnerLinkList::operator=(InnerLinkList const& other) { InnerLinkList copy(other); swap(copy); return *this; }
InnerLinkList& InnerLinkList::operator=(InnerLinkList&& other) noexcept { InnerLinkList taken(std::move(other)); swap(taken); return *this; }
void InnerLinkList::swap(InnerLinkList& other) noexcept { std::swap(chosen, other.chosen); std::swap(m_held, other.m_held); }
void InnerLinkList::reset() { InnerLinkList empty; swap(empty); }
void InnerLinkList::init() { chosen = NothingChosen; }

lmx::s_event_map const InnerLinkList::elem_event_map[] = {
    {1, "LGP", 3, elem_LinkGroup},
    {0, nullptr, 0, 0},
};
void InnerLinkList::release_choice() { m_held.release(); chosen = NothingChosen; }
bool InnerLinkList::IsOccursOk(lmx::c_check_tracker*) const { return true; }
bool InnerLinkList::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  if (!IsOccursOk(&link)) return false;
  switch (chosen) {
    case LinkGroupChosen: return m_held.check(&link, "LGP");
  }
  return true;
}
bool InnerLinkList::IsMember(lmx::xmlReader& reader) { return is_member(reader, elem_event_map); }
bool InnerLinkList::unmarshal(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(elem_event_map, lmx::EXAE_ELEMENT);
  switch (reader.m_event) {
    case elem_LinkGroup: return read_run(reader, new_run<LinkGroup>(chosen, m_held, LinkGroupChosen), elem_LinkGroup, {elem_event_map, "ISO11783LinkList", __LINE__}, error);
  }
  return true;
}
lmx::elmx_error InnerLinkList::marshal(lmx::c_xml_writer& writer, char const*) const { return marshal_child_elements(writer); }
lmx::elmx_error InnerLinkList::marshal_child_elements(lmx::c_xml_writer& writer) const { return write_choice(writer, m_held, chosen, NothingChosen, elem_event_map, __LINE__); }

void InnerLinkList::SelectLinkGroup() { selected_run<LinkGroup>(chosen, m_held, LinkGroupChosen); }
LinkGroup const& InnerLinkList::GetLinkGroup(std::size_t index) const { return run_at<LinkGroup>(m_held, {is_chosen(chosen, m_held, LinkGroupChosen), "chosen == LinkGroupChosen"}, index, "index < u.mLinkGroup->size()"); }
LinkGroup& InnerLinkList::GetLinkGroup(std::size_t index) { return selected_run<LinkGroup>(chosen, m_held, LinkGroupChosen).get_or_append(index); }
LinkGroup& InnerLinkList::AppendLinkGroup() { return selected_run<LinkGroup>(chosen, m_held, LinkGroupChosen).append(); }
void InnerLinkList::AppendLinkGroup(LinkGroup* value) { std::unique_ptr<LinkGroup> owned(value); selected_run<LinkGroup>(chosen, m_held, LinkGroupChosen).append(std::move(owned)); }
LinkGroup& InnerLinkList::InsertLinkGroup(std::size_t index) { return selected_run<LinkGroup>(chosen, m_held, LinkGroupChosen).insert(index); }
void InnerLinkList::InsertLinkGroup(std::size_t index, LinkGroup* value) { std::unique_ptr<LinkGroup> owned(value); selected_run<LinkGroup>(chosen, m_held, LinkGroupChosen).insert(index, std::move(owned)); }
void InnerLinkList::AssignLinkGroup(std::size_t index, LinkGroup const& value) { selected_run<LinkGroup>(chosen, m_held, LinkGroupChosen).assign(index, value); }
void InnerLinkList::AssignLinkGroup(std::size_t index, LinkGroup* value) { std::unique_ptr<LinkGroup> owned(value); selected_run<LinkGroup>(chosen, m_held, LinkGroupChosen).assign(index, std::move(owned)); }
LinkGroup& InnerLinkList::BackLinkGroup() { return selected_run<LinkGroup>(chosen, m_held, LinkGroupChosen).back(); }
void InnerLinkList::DeleteLinkGroup(std::size_t index) { erase_at<LinkGroup>(m_held, {is_chosen(chosen, m_held, LinkGroupChosen), "chosen == LinkGroupChosen"}, index, "index < u.mLinkGroup->size()"); }
void InnerLinkList::ClearLinkGroup() { selected_run<LinkGroup>(chosen, m_held, LinkGroupChosen).clear(); }
std::size_t InnerLinkList::SizeLinkGroup() const { return run_size<LinkGroup>(m_held, m_held.holds(LinkGroupChosen)); }

LinkList::LinkList() { init(); }
LinkList::LinkList(LinkList const& other) = default;
LinkList::LinkList(LinkList&& other) noexcept = default;
LinkList::LinkList(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
LinkList* LinkList::clone() const { return new LinkList(*this); }
LinkList::~LinkList() = default;
LinkList& LinkList::operator=(LinkList const& other) { LinkList copy(other); swap(copy); return *this; }
LinkList& LinkList::operator=(LinkList&& other) noexcept = default;
void LinkList::swap(LinkList& other) noexcept { std::swap(*this, other); }
void LinkList::reset() { LinkList empty; swap(empty); }
void LinkList::init() {}

lmx::s_event_map const LinkList::attr_event_map[] = {
    {1, "VersionMajor", 12, attr_VersionMajor},
    {1, "VersionMinor", 12, attr_VersionMinor},
    {1, "ManagementSoftwareManufacturer", 30, attr_ManagementSoftwareManufacturer},
    {1, "ManagementSoftwareVersion", 25, attr_ManagementSoftwareVersion},
    {1, "TaskControllerManufacturer", 26, attr_TaskControllerManufacturer},
    {1, "TaskControllerVersion", 21, attr_TaskControllerVersion},
    {1, "FileVersion", 11, attr_FileVersion},
    {1, "DataTransferOrigin", 18, attr_DataTransferOrigin},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const LinkList::elem_event_map[] = {
    {1, "LGP", 3, elem_LinkGroup},
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const LinkList::known_elements[] = {
    {1, "LGP", 3},
    {0, nullptr, 0},
};
lmx::elmx_error LinkList::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "ISO11783LinkList", __LINE__); }
lmx::elmx_error LinkList::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_complex_content, known_elements, true, __LINE__});
}
bool LinkList::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_VersionMajor: return read_attribute(reader, m_VersionMajor, spec_any_token, __LINE__, error);
    case attr_VersionMinor: return read_attribute(reader, m_VersionMinor, spec_any_token, __LINE__, error);
    case attr_ManagementSoftwareManufacturer: return read_attribute(reader, m_ManagementSoftwareManufacturer, spec_text_32, __LINE__, error);
    case attr_ManagementSoftwareVersion: return read_attribute(reader, m_ManagementSoftwareVersion, spec_text_32, __LINE__, error);
    case attr_TaskControllerManufacturer: return read_attribute(reader, m_TaskControllerManufacturer, spec_text_32, __LINE__, error);
    case attr_TaskControllerVersion: return read_attribute(reader, m_TaskControllerVersion, spec_text_32, __LINE__, error);
    case attr_FileVersion: return read_attribute(reader, m_FileVersion, spec_text_32, __LINE__, error);
    case attr_DataTransferOrigin: return read_attribute(reader, m_DataTransferOrigin, spec_one_of_1_2, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* LinkList::accept_attribute(lmx::plain_attribute const&) { return nullptr; }
bool LinkList::has_required_attributes() const { return m_VersionMajor.is_set() && m_VersionMinor.is_set() && m_ManagementSoftwareManufacturer.is_set() && m_ManagementSoftwareVersion.is_set() && m_DataTransferOrigin.is_set(); }
lmx::elmx_error LinkList::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "ISO11783LinkList", __LINE__, has_required_attributes());
}
bool LinkList::unmarshal_body(lmx::xmlReader& reader, lmx::elmx_error* error) { return read_wrappers(reader, mInnerLinkList, false, {elem_event_map, "ISO11783LinkList", __LINE__}, error); }
lmx::elmx_error LinkList::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void LinkList::marshal_attributes(lmx::c_xml_writer& writer) const {
  write_attribute(writer, "VersionMajor", m_VersionMajor, spec_any_token);
  write_attribute(writer, "VersionMinor", m_VersionMinor, spec_any_token);
  write_attribute(writer, "ManagementSoftwareManufacturer", m_ManagementSoftwareManufacturer, spec_text_32);
  write_attribute(writer, "ManagementSoftwareVersion", m_ManagementSoftwareVersion, spec_text_32);
  write_attribute(writer, "TaskControllerManufacturer", m_TaskControllerManufacturer, spec_text_32);
  write_attribute(writer, "TaskControllerVersion", m_TaskControllerVersion, spec_text_32);
  write_attribute(writer, "FileVersion", m_FileVersion, spec_text_32);
  write_attribute(writer, "DataTransferOrigin", m_DataTransferOrigin, spec_one_of_1_2);
}
lmx::elmx_error LinkList::marshal_child_elements(lmx::c_xml_writer& writer) const {
  return write_wrappers(writer, mInnerLinkList);
}
bool LinkList::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_VersionMajor.is_set(), "VersionMajor", __LINE__) &&
         check_occurs(tracker, m_VersionMinor.is_set(), "VersionMinor", __LINE__) &&
         check_occurs(tracker, m_ManagementSoftwareManufacturer.is_set(), "ManagementSoftwareManufacturer", __LINE__) &&
         check_occurs(tracker, m_ManagementSoftwareVersion.is_set(), "ManagementSoftwareVersion", __LINE__) &&
         check_occurs(tracker, m_DataTransferOrigin.is_set(), "DataTransferOrigin", __LINE__);
}
bool LinkList::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link) && check_wrappers(&link, mInnerLinkList);
}
InnerLinkList const& LinkList::GetInnerLinkList(std::size_t index) const { LMX_ASSERT(index < mInnerLinkList.size()); return mInnerLinkList.get(index); }
InnerLinkList& LinkList::GetInnerLinkList(std::size_t index) { return mInnerLinkList.get_or_append(index); }
InnerLinkList& LinkList::AppendInnerLinkList() { return mInnerLinkList.append(); }
void LinkList::AppendInnerLinkList(InnerLinkList* value) { mInnerLinkList.append(std::unique_ptr<InnerLinkList>(value)); }
InnerLinkList& LinkList::InsertInnerLinkList(std::size_t index) { return mInnerLinkList.insert(index); }
void LinkList::InsertInnerLinkList(std::size_t index, InnerLinkList* value) { mInnerLinkList.insert(index, std::unique_ptr<InnerLinkList>(value)); }
void LinkList::AssignInnerLinkList(std::size_t index, InnerLinkList const& value) { mInnerLinkList.assign(index, value); }
void LinkList::AssignInnerLinkList(std::size_t index, InnerLinkList* value) { mInnerLinkList.assign(index, std::unique_ptr<InnerLinkList>(value)); }
InnerLinkList& LinkList::BackInnerLinkList() { return mInnerLinkList.back(); }
void LinkList::DeleteInnerLinkList(std::size_t index) { LMX_ASSERT(index < mInnerLinkList.size()); mInnerLinkList.erase(index); }
void LinkList::ClearInnerLinkList() { mInnerLinkList.clear(); }
std::size_t LinkList::SizeInnerLinkList() const { return mInnerLinkList.size(); }
elmx_enums LinkList::GetenumDataTransferOrigin() const { return enum_code(list_2, m_DataTransferOrigin.get()); }
bool LinkList::SetenumDataTransferOrigin(elmx_enums code) { return set_enum(list_2, code, m_DataTransferOrigin); }

// ---- LinkGroup ----

InnerLinkGroup::InnerLinkGroup() { init(); }
InnerLinkGroup::InnerLinkGroup(InnerLinkGroup const& other) = default;
InnerLinkGroup::InnerLinkGroup(InnerLinkGroup&& other) noexcept : chosen(std::exchange(other.chosen, NothingChosen)), m_held(std::move(other.m_held)) {}
InnerLinkGroup::InnerLinkGroup(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_OK; unmarshal(reader, error); }
InnerLinkGroup* InnerLinkGroup::clone() const { return new InnerLinkGroup(*this); }
InnerLinkGroup::~InnerLinkGroup() = default;
InnerLinkGroup& InnerLinkGroup::operator=(InnerLinkGroup const& other) { InnerLinkGroup copy(other); swap(copy); return *this; }
InnerLinkGroup& InnerLinkGroup::operator=(InnerLinkGroup&& other) noexcept { InnerLinkGroup taken(std::move(other)); swap(taken); return *this; }
void InnerLinkGroup::swap(InnerLinkGroup& other) noexcept { std::swap(chosen, other.chosen); std::swap(m_held, other.m_held); }
void InnerLinkGroup::reset() { InnerLinkGroup empty; swap(empty); }
void InnerLinkGroup::init() { chosen = NothingChosen; }

lmx::s_event_map const InnerLinkGroup::elem_event_map[] = {
    {1, "LNK", 3, elem_Link},
    {0, nullptr, 0, 0},
};
void InnerLinkGroup::release_choice() { m_held.release(); chosen = NothingChosen; }
bool InnerLinkGroup::IsOccursOk(lmx::c_check_tracker*) const { return true; }
bool InnerLinkGroup::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  if (!IsOccursOk(&link)) return false;
  switch (chosen) {
    case LinkChosen: return m_held.check(&link, "LNK");
  }
  return true;
}
bool InnerLinkGroup::IsMember(lmx::xmlReader& reader) { return is_member(reader, elem_event_map); }
bool InnerLinkGroup::unmarshal(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(elem_event_map, lmx::EXAE_ELEMENT);
  switch (reader.m_event) {
    case elem_Link: return read_run(reader, new_run<Link>(chosen, m_held, LinkChosen), elem_Link, {elem_event_map, "LGP", __LINE__}, error);
  }
  return true;
}
lmx::elmx_error InnerLinkGroup::marshal(lmx::c_xml_writer& writer, char const*) const { return marshal_child_elements(writer); }
lmx::elmx_error InnerLinkGroup::marshal_child_elements(lmx::c_xml_writer& writer) const { return write_choice(writer, m_held, chosen, NothingChosen, elem_event_map, __LINE__); }

void InnerLinkGroup::SelectLink() { selected_run<Link>(chosen, m_held, LinkChosen); }
Link const& InnerLinkGroup::GetLink(std::size_t index) const { return run_at<Link>(m_held, {is_chosen(chosen, m_held, LinkChosen), "chosen == LinkChosen"}, index, "index < u.mLink->size()"); }
Link& InnerLinkGroup::GetLink(std::size_t index) { return selected_run<Link>(chosen, m_held, LinkChosen).get_or_append(index); }
Link& InnerLinkGroup::AppendLink() { return selected_run<Link>(chosen, m_held, LinkChosen).append(); }
void InnerLinkGroup::AppendLink(Link* value) { std::unique_ptr<Link> owned(value); selected_run<Link>(chosen, m_held, LinkChosen).append(std::move(owned)); }
Link& InnerLinkGroup::InsertLink(std::size_t index) { return selected_run<Link>(chosen, m_held, LinkChosen).insert(index); }
void InnerLinkGroup::InsertLink(std::size_t index, Link* value) { std::unique_ptr<Link> owned(value); selected_run<Link>(chosen, m_held, LinkChosen).insert(index, std::move(owned)); }
void InnerLinkGroup::AssignLink(std::size_t index, Link const& value) { selected_run<Link>(chosen, m_held, LinkChosen).assign(index, value); }
void InnerLinkGroup::AssignLink(std::size_t index, Link* value) { std::unique_ptr<Link> owned(value); selected_run<Link>(chosen, m_held, LinkChosen).assign(index, std::move(owned)); }
Link& InnerLinkGroup::BackLink() { return selected_run<Link>(chosen, m_held, LinkChosen).back(); }
void InnerLinkGroup::DeleteLink(std::size_t index) { erase_at<Link>(m_held, {is_chosen(chosen, m_held, LinkChosen), "chosen == LinkChosen"}, index, "index < u.mLink->size()"); }
void InnerLinkGroup::ClearLink() { selected_run<Link>(chosen, m_held, LinkChosen).clear(); }
std::size_t InnerLinkGroup::SizeLink() const { return run_size<Link>(m_held, m_held.holds(LinkChosen)); }

LinkGroup::LinkGroup() { init(); }
LinkGroup::LinkGroup(LinkGroup const& other) = default;
LinkGroup::LinkGroup(LinkGroup&& other) noexcept = default;
LinkGroup::LinkGroup(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
LinkGroup* LinkGroup::clone() const { return new LinkGroup(*this); }
LinkGroup::~LinkGroup() = default;
LinkGroup& LinkGroup::operator=(LinkGroup const& other) { LinkGroup copy(other); swap(copy); return *this; }
LinkGroup& LinkGroup::operator=(LinkGroup&& other) noexcept = default;
void LinkGroup::swap(LinkGroup& other) noexcept { std::swap(*this, other); }
void LinkGroup::reset() { LinkGroup empty; swap(empty); }
void LinkGroup::init() {}

lmx::s_event_map const LinkGroup::attr_event_map[] = {
    {1, "A", 1, attr_Id},
    {1, "B", 1, attr_Type},
    {1, "C", 1, attr_ManufacturerGLN},
    {1, "D", 1, attr_Namespace},
    {1, "E", 1, attr_Designator},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const LinkGroup::elem_event_map[] = {
    {1, "LNK", 3, elem_Link},
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const LinkGroup::known_elements[] = {
    {1, "LNK", 3},
    {0, nullptr, 0},
};
lmx::elmx_error LinkGroup::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "LGP", __LINE__); }
lmx::elmx_error LinkGroup::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_complex_content, known_elements, true, __LINE__});
}
bool LinkGroup::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_Id: return read_attribute(reader, m_Id, spec_id_LGP_112, __LINE__, error);
    case attr_Type: return read_attribute(reader, m_Type, spec_one_of_1_to_4, __LINE__, error);
    case attr_ManufacturerGLN: return read_attribute(reader, m_ManufacturerGLN, spec_gln_64, __LINE__, error);
    case attr_Namespace: return read_attribute(reader, m_Namespace, spec_token_255, __LINE__, error);
    case attr_Designator: return read_attribute(reader, m_Designator, spec_text_32, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* LinkGroup::accept_attribute(lmx::plain_attribute const& attribute) {
  switch (attribute.letter()) {
    case 'A': return binding::accept_attribute(m_Id, spec_id_LGP_112, attribute);
    case 'B': return binding::accept_attribute(m_Type, spec_one_of_1_to_4, attribute);
    case 'C': return binding::accept_attribute(m_ManufacturerGLN, spec_gln_64, attribute);
    case 'D': return binding::accept_attribute(m_Namespace, spec_token_255, attribute);
    case 'E': return binding::accept_attribute(m_Designator, spec_text_32, attribute);
  }
  return nullptr;
}
bool LinkGroup::has_required_attributes() const { return m_Id.is_set() && m_Type.is_set(); }
lmx::elmx_error LinkGroup::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "LGP", __LINE__, has_required_attributes());
}
bool LinkGroup::unmarshal_body(lmx::xmlReader& reader, lmx::elmx_error* error) { return read_wrappers(reader, mInnerLinkGroup, false, {elem_event_map, "LGP", __LINE__}, error); }
lmx::elmx_error LinkGroup::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void LinkGroup::marshal_attributes(lmx::c_xml_writer& writer) const {
  write_attribute(writer, "A", m_Id, spec_id_LGP_112);
  write_attribute(writer, "B", m_Type, spec_one_of_1_to_4);
  write_attribute(writer, "C", m_ManufacturerGLN, spec_gln_64);
  write_attribute(writer, "D", m_Namespace, spec_token_255);
  write_attribute(writer, "E", m_Designator, spec_text_32);
}
lmx::elmx_error LinkGroup::marshal_child_elements(lmx::c_xml_writer& writer) const {
  return write_wrappers(writer, mInnerLinkGroup);
}
bool LinkGroup::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_Id.is_set(), "A", __LINE__) &&
         check_occurs(tracker, m_Type.is_set(), "B", __LINE__);
}
bool LinkGroup::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link) && check_wrappers(&link, mInnerLinkGroup);
}
InnerLinkGroup const& LinkGroup::GetInnerLinkGroup(std::size_t index) const { LMX_ASSERT(index < mInnerLinkGroup.size()); return mInnerLinkGroup.get(index); }
InnerLinkGroup& LinkGroup::GetInnerLinkGroup(std::size_t index) { return mInnerLinkGroup.get_or_append(index); }
InnerLinkGroup& LinkGroup::AppendInnerLinkGroup() { return mInnerLinkGroup.append(); }
void LinkGroup::AppendInnerLinkGroup(InnerLinkGroup* value) { mInnerLinkGroup.append(std::unique_ptr<InnerLinkGroup>(value)); }
InnerLinkGroup& LinkGroup::InsertInnerLinkGroup(std::size_t index) { return mInnerLinkGroup.insert(index); }
void LinkGroup::InsertInnerLinkGroup(std::size_t index, InnerLinkGroup* value) { mInnerLinkGroup.insert(index, std::unique_ptr<InnerLinkGroup>(value)); }
void LinkGroup::AssignInnerLinkGroup(std::size_t index, InnerLinkGroup const& value) { mInnerLinkGroup.assign(index, value); }
void LinkGroup::AssignInnerLinkGroup(std::size_t index, InnerLinkGroup* value) { mInnerLinkGroup.assign(index, std::unique_ptr<InnerLinkGroup>(value)); }
InnerLinkGroup& LinkGroup::BackInnerLinkGroup() { return mInnerLinkGroup.back(); }
void LinkGroup::DeleteInnerLinkGroup(std::size_t index) { LMX_ASSERT(index < mInnerLinkGroup.size()); mInnerLinkGroup.erase(index); }
void LinkGroup::ClearInnerLinkGroup() { mInnerLinkGroup.clear(); }
std::size_t LinkGroup::SizeInnerLinkGroup() const { return mInnerLinkGroup.size(); }
elmx_enums LinkGroup::GetenumType() const { return enum_code(list_8, m_Type.get()); }
bool LinkGroup::SetenumType(elmx_enums code) { return set_enum(list_8, code, m_Type); }

// ---- Link ----

Link::Link() { init(); }
Link::Link(Link const& other) = default;
Link::Link(Link&& other) noexcept = default;
Link::Link(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
Link* Link::clone() const { return new Link(*this); }
Link::~Link() = default;
Link& Link::operator=(Link const& other) { Link copy(other); swap(copy); return *this; }
Link& Link::operator=(Link&& other) noexcept = default;
void Link::swap(Link& other) noexcept { std::swap(*this, other); }
void Link::reset() { Link empty; swap(empty); }
void Link::init() {}

lmx::s_event_map const Link::attr_event_map[] = {
    {1, "A", 1, attr_ObjectIdRef},
    {1, "B", 1, attr_Value},
    {1, "C", 1, attr_Designator},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const Link::elem_event_map[] = {
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const Link::known_elements[] = {
    {0, nullptr, 0},
};
lmx::elmx_error Link::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "LNK", __LINE__); }
lmx::elmx_error Link::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_empty_content, known_elements, true, __LINE__});
}
bool Link::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_ObjectIdRef: return read_attribute(reader, m_ObjectIdRef, spec_object_id_ref_110, __LINE__, error);
    case attr_Value: return read_attribute(reader, m_Value, spec_token_255, __LINE__, error);
    case attr_Designator: return read_attribute(reader, m_Designator, spec_text_32, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* Link::accept_attribute(lmx::plain_attribute const& attribute) {
  switch (attribute.letter()) {
    case 'A': return binding::accept_attribute(m_ObjectIdRef, spec_object_id_ref_110, attribute);
    case 'B': return binding::accept_attribute(m_Value, spec_token_255, attribute);
    case 'C': return binding::accept_attribute(m_Designator, spec_text_32, attribute);
  }
  return nullptr;
}
bool Link::has_required_attributes() const { return m_ObjectIdRef.is_set() && m_Value.is_set(); }
lmx::elmx_error Link::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "LNK", __LINE__, has_required_attributes());
}
bool Link::unmarshal_body(lmx::xmlReader&, lmx::elmx_error*) { return true; }
lmx::elmx_error Link::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void Link::marshal_attributes(lmx::c_xml_writer& writer) const {
  write_attribute(writer, "A", m_ObjectIdRef, spec_object_id_ref_110);
  write_attribute(writer, "B", m_Value, spec_token_255);
  write_attribute(writer, "C", m_Designator, spec_text_32);
}
lmx::elmx_error Link::marshal_child_elements(lmx::c_xml_writer&) const {
  return lmx::ELMX_OK;
}
bool Link::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_ObjectIdRef.is_set(), "A", __LINE__) &&
         check_occurs(tracker, m_Value.is_set(), "B", __LINE__);
}
bool Link::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link);
}
