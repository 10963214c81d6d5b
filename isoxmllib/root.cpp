// clang-format off
// Generated from schema/root.toml. Edit the schema, then build the target `schema`.

#include "isoxmllib/root.h"

#include <memory>
#include <utility>

#include "isoxmllib/engine.h"
#include "isoxmllib/events.h"
#include "isoxmllib/task_data.h"

using namespace binding;

Root::Root() { init(); }
Root::Root(Root const& other) = default;
Root::Root(Root&& other) noexcept = default;
Root::Root(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; Root content; *error = content.unmarshal(reader); swap(content); }
Root* Root::clone() const { return new Root(*this); }
Root::~Root() = default;
Root& Root::operator=(Root const& other) { Root copy(other); swap(copy); return *this; }
Root& Root::operator=(Root&& other) noexcept = default;
void Root::swap(Root& other) noexcept { std::swap(*this, other); }
void Root::reset() { Root empty; swap(empty); }
void Root::init() { chosen = NothingChosen; }

lmx::s_event_map const Root::elem_event_map[] = {
    {1, "AFE", 3, elem_AttachedFile},
    {1, "ISO11783_TaskData", 17, elem_TaskData},
    {1, "P917_Metadata", 13, elem_P917Metadata},
    {1, "TCC", 3, elem_TaskControllerCapabilities},
    {1, "XFR", 3, elem_ExternalFileReference},
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
    case elem_ExternalFileContent: return read_alternative(reader, new_one<ExternalFileContent>(chosen, m_held, ExternalFileContentChosen), __LINE__, error);
    case elem_LinkList: return read_alternative(reader, new_one<LinkList>(chosen, m_held, LinkListChosen), __LINE__, error);
    case elem_Link: return read_alternative(reader, new_one<Link>(chosen, m_held, LinkChosen), __LINE__, error);
    case elem_LinkGroup: return read_alternative(reader, new_one<LinkGroup>(chosen, m_held, LinkGroupChosen), __LINE__, error);
  }
  return report_unknown_top_element(reader, __LINE__, error);
}

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
