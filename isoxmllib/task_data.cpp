// clang-format off
// Generated from schema/task_data.toml. Edit the schema, then build the target `schema`.

#include "isoxmllib/task_data.h"

#include <memory>
#include <utility>

#include "isoxmllib/engine.h"
#include "isoxmllib/events.h"
#include "isoxmllib/rules.h"
#include "isoxmllib/specs.h"

using namespace binding;

// ---- TaskData ----

InnerTaskData::InnerTaskData() { init(); }
InnerTaskData::InnerTaskData(InnerTaskData const& other) = default;
InnerTaskData::InnerTaskData(InnerTaskData&& other) noexcept = default;
InnerTaskData::InnerTaskData(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_OK; unmarshal(reader, error); }
InnerTaskData* InnerTaskData::clone() const { return new InnerTaskData(*this); }
InnerTaskData::~InnerTaskData() = default;
InnerTaskData& InnerTaskData::operator=(InnerTaskData const& other) { InnerTaskData copy(other); swap(copy); return *this; }
InnerTaskData& InnerTaskData::operator=(InnerTaskData&& other) noexcept = default;
void InnerTaskData::swap(InnerTaskData& other) noexcept { std::swap(*this, other); }
void InnerTaskData::reset() { InnerTaskData empty; swap(empty); }
void InnerTaskData::init() { chosen = NothingChosen; }

lmx::s_event_map const InnerTaskData::elem_event_map[] = {
    {1, "P917_Metadata", 13, elem_P917Metadata},
    {1, "AFE", 3, elem_AttachedFile},
    {1, "TCC", 3, elem_TaskControllerCapabilities},
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
    case AttachedFileChosen: return m_held.check(&link, "AFE");
    case TaskControllerCapabilitiesChosen: return m_held.check(&link, "TCC");
    case ExternalFileReferenceChosen: return m_held.check(&link, "XFR");
  }
  return true;
}
bool InnerTaskData::IsMember(lmx::xmlReader& reader) { return is_member(reader, elem_event_map); }
bool InnerTaskData::unmarshal(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(elem_event_map, lmx::EXAE_ELEMENT);
  switch (reader.m_event) {
    case elem_P917Metadata: return read_one(reader, new_one<P917Metadata>(chosen, m_held, P917MetadataChosen), {elem_event_map, "ISO11783_TaskData", __LINE__}, error);
    case elem_AttachedFile: return read_run(reader, new_run<AttachedFile>(chosen, m_held, AttachedFileChosen), elem_AttachedFile, {elem_event_map, "ISO11783_TaskData", __LINE__}, error);
    case elem_TaskControllerCapabilities: return read_one(reader, new_one<TaskControllerCapabilities>(chosen, m_held, TaskControllerCapabilitiesChosen), {elem_event_map, "ISO11783_TaskData", __LINE__}, error);
    case elem_ExternalFileReference: return read_run(reader, new_run<ExternalFileReference>(chosen, m_held, ExternalFileReferenceChosen), elem_ExternalFileReference, {elem_event_map, "ISO11783_TaskData", __LINE__}, error);
  }
  return true;
}

void InnerTaskData::SelectP917Metadata() { selected_one<P917Metadata>(chosen, m_held, P917MetadataChosen); }
P917Metadata const& InnerTaskData::GetP917Metadata() const { return chosen_one<P917Metadata>(m_held, {is_chosen(chosen, m_held, P917MetadataChosen), "chosen == P917MetadataChosen"}); }
P917Metadata& InnerTaskData::GetP917Metadata() { return selected_one<P917Metadata>(chosen, m_held, P917MetadataChosen).get_or_create(); }

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

void InnerTaskData::SelectTaskControllerCapabilities() { selected_one<TaskControllerCapabilities>(chosen, m_held, TaskControllerCapabilitiesChosen); }
TaskControllerCapabilities const& InnerTaskData::GetTaskControllerCapabilities() const { return chosen_one<TaskControllerCapabilities>(m_held, {is_chosen(chosen, m_held, TaskControllerCapabilitiesChosen), "chosen == TaskControllerCapabilitiesChosen"}); }
TaskControllerCapabilities& InnerTaskData::GetTaskControllerCapabilities() { return selected_one<TaskControllerCapabilities>(chosen, m_held, TaskControllerCapabilitiesChosen).get_or_create(); }

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
    {1, "AFE", 3, elem_AttachedFile},
    {1, "TCC", 3, elem_TaskControllerCapabilities},
    {1, "XFR", 3, elem_ExternalFileReference},
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const TaskData::known_elements[] = {
    {1, "P917_Metadata", 13},
    {1, "AFE", 3},
    {1, "TCC", 3},
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
lmx::elmx_error TaskData::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "ISO11783_TaskData", __LINE__, m_VersionMajor.is_set() && m_VersionMinor.is_set() && m_ManagementSoftwareManufacturer.is_set() && m_ManagementSoftwareVersion.is_set() && m_DataTransferOrigin.is_set());
}
bool TaskData::unmarshal_body(lmx::xmlReader& reader, lmx::elmx_error* error) { return read_wrappers(reader, mInnerTaskData, false, {elem_event_map, "ISO11783_TaskData", __LINE__}, error); }
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
InnerExternalFileContent::InnerExternalFileContent(InnerExternalFileContent&& other) noexcept = default;
InnerExternalFileContent::InnerExternalFileContent(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_OK; unmarshal(reader, error); }
InnerExternalFileContent* InnerExternalFileContent::clone() const { return new InnerExternalFileContent(*this); }
InnerExternalFileContent::~InnerExternalFileContent() = default;
InnerExternalFileContent& InnerExternalFileContent::operator=(InnerExternalFileContent const& other) { InnerExternalFileContent copy(other); swap(copy); return *this; }
InnerExternalFileContent& InnerExternalFileContent::operator=(InnerExternalFileContent&& other) noexcept = default;
void InnerExternalFileContent::swap(InnerExternalFileContent& other) noexcept { std::swap(*this, other); }
void InnerExternalFileContent::reset() { InnerExternalFileContent empty; swap(empty); }
void InnerExternalFileContent::init() { chosen = NothingChosen; }

lmx::s_event_map const InnerExternalFileContent::elem_event_map[] = {
    {0, nullptr, 0, 0},
};
void InnerExternalFileContent::release_choice() { m_held.release(); chosen = NothingChosen; }
bool InnerExternalFileContent::IsOccursOk(lmx::c_check_tracker*) const { return true; }
bool InnerExternalFileContent::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link);
}
bool InnerExternalFileContent::IsMember(lmx::xmlReader& reader) { return is_member(reader, elem_event_map); }
bool InnerExternalFileContent::unmarshal(lmx::xmlReader& reader, lmx::elmx_error* ) {
  reader.tokenise(elem_event_map, lmx::EXAE_ELEMENT);
  switch (reader.m_event) {
  }
  return true;
}

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
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const ExternalFileContent::known_elements[] = {
    {0, nullptr, 0},
};
lmx::elmx_error ExternalFileContent::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "XFC", __LINE__); }
lmx::elmx_error ExternalFileContent::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_complex_content, known_elements, true, __LINE__});
}
bool ExternalFileContent::unmarshal_attributes(lmx::xmlReader&, lmx::elmx_error*) { return false; }
lmx::elmx_error ExternalFileContent::unmarshal_attributes_check(lmx::xmlReader&) { return lmx::ELMX_OK; }
bool ExternalFileContent::unmarshal_body(lmx::xmlReader& reader, lmx::elmx_error* error) { return read_wrappers(reader, mInnerExternalFileContent, false, {elem_event_map, "XFC", __LINE__}, error); }
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
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_empty_content, known_elements, false, __LINE__}, &lmx::xmlReader::addNewExternalFileReference);
}
bool ExternalFileReference::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_FileName: return read_attribute(reader, m_FileName, spec_external_file_12, __LINE__, error);
    case attr_Type: return read_attribute(reader, m_Type, spec_one_of_1, __LINE__, error);
  }
  return false;
}
lmx::elmx_error ExternalFileReference::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "XFR", __LINE__, m_FileName.is_set() && m_Type.is_set());
}
bool ExternalFileReference::unmarshal_body(lmx::xmlReader&, lmx::elmx_error*) { return true; }
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
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_empty_content, known_elements, false, __LINE__}, &lmx::xmlReader::addNewAttachedFile);
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
lmx::elmx_error AttachedFile::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "AFE", __LINE__, m_FileNameWithExtension.is_set() && m_Preserve.is_set() && m_ManufacturerGLN.is_set() && m_Type.is_set());
}
bool AttachedFile::unmarshal_body(lmx::xmlReader&, lmx::elmx_error*) { return true; }
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
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_empty_content, known_elements, false, __LINE__});
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
lmx::elmx_error TaskControllerCapabilities::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "TCC", __LINE__, m_ControlFunctionName.is_set() && m_Designator.is_set() && m_VersionNumber.is_set() && m_ProvidedCapabilites.is_set() && m_NumberOfBoomsSectionControl.is_set() && m_NumberOfSectionsSectionControl.is_set() && m_NumberOfControlChannels.is_set());
}
bool TaskControllerCapabilities::unmarshal_body(lmx::xmlReader&, lmx::elmx_error*) { return true; }
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
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_empty_content, known_elements, false, __LINE__}, &lmx::xmlReader::setP917Metadata);
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
lmx::elmx_error P917Metadata::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "P917_Metadata", __LINE__, m_Version.is_set());
}
bool P917Metadata::unmarshal_body(lmx::xmlReader&, lmx::elmx_error*) { return true; }
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
InnerLinkList::InnerLinkList(InnerLinkList&& other) noexcept = default;
InnerLinkList::InnerLinkList(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_OK; unmarshal(reader, error); }
InnerLinkList* InnerLinkList::clone() const { return new InnerLinkList(*this); }
InnerLinkList::~InnerLinkList() = default;
InnerLinkList& InnerLinkList::operator=(InnerLinkList const& other) { InnerLinkList copy(other); swap(copy); return *this; }
InnerLinkList& InnerLinkList::operator=(InnerLinkList&& other) noexcept = default;
void InnerLinkList::swap(InnerLinkList& other) noexcept { std::swap(*this, other); }
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
lmx::elmx_error LinkList::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "ISO11783LinkList", __LINE__, m_VersionMajor.is_set() && m_VersionMinor.is_set() && m_ManagementSoftwareManufacturer.is_set() && m_ManagementSoftwareVersion.is_set() && m_DataTransferOrigin.is_set());
}
bool LinkList::unmarshal_body(lmx::xmlReader& reader, lmx::elmx_error* error) { return read_wrappers(reader, mInnerLinkList, false, {elem_event_map, "ISO11783LinkList", __LINE__}, error); }
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
InnerLinkGroup::InnerLinkGroup(InnerLinkGroup&& other) noexcept = default;
InnerLinkGroup::InnerLinkGroup(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_OK; unmarshal(reader, error); }
InnerLinkGroup* InnerLinkGroup::clone() const { return new InnerLinkGroup(*this); }
InnerLinkGroup::~InnerLinkGroup() = default;
InnerLinkGroup& InnerLinkGroup::operator=(InnerLinkGroup const& other) { InnerLinkGroup copy(other); swap(copy); return *this; }
InnerLinkGroup& InnerLinkGroup::operator=(InnerLinkGroup&& other) noexcept = default;
void InnerLinkGroup::swap(InnerLinkGroup& other) noexcept { std::swap(*this, other); }
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
lmx::elmx_error LinkGroup::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "LGP", __LINE__, m_Id.is_set() && m_Type.is_set());
}
bool LinkGroup::unmarshal_body(lmx::xmlReader& reader, lmx::elmx_error* error) { return read_wrappers(reader, mInnerLinkGroup, false, {elem_event_map, "LGP", __LINE__}, error); }
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
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_empty_content, known_elements, false, __LINE__});
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
lmx::elmx_error Link::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "LNK", __LINE__, m_ObjectIdRef.is_set() && m_Value.is_set());
}
bool Link::unmarshal_body(lmx::xmlReader&, lmx::elmx_error*) { return true; }
bool Link::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_ObjectIdRef.is_set(), "A", __LINE__) &&
         check_occurs(tracker, m_Value.is_set(), "B", __LINE__);
}
bool Link::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link);
}
