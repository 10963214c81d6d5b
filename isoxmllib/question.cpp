// clang-format off
// Generated from schema/question.toml. Edit the schema, then build the target `schema`.

#include "isoxmllib/question.h"

#include <memory>
#include <utility>

#include "isoxmllib/engine.h"
#include "isoxmllib/events.h"
#include "isoxmllib/rules.h"
#include "isoxmllib/specs.h"

using namespace binding;

// ---- P917Questions ----

P917Questions::P917Questions() { init(); }
P917Questions::P917Questions(P917Questions const& other) = default;
P917Questions::P917Questions(P917Questions&& other) noexcept = default;
P917Questions::P917Questions(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
P917Questions* P917Questions::clone() const { return new P917Questions(*this); }
P917Questions::~P917Questions() = default;
P917Questions& P917Questions::operator=(P917Questions const& other) { P917Questions copy(other); swap(copy); return *this; }
P917Questions& P917Questions::operator=(P917Questions&& other) noexcept = default;
void P917Questions::swap(P917Questions& other) noexcept { std::swap(*this, other); }
void P917Questions::reset() { P917Questions empty; swap(empty); }
void P917Questions::init() {}

lmx::s_event_map const P917Questions::attr_event_map[] = {
    {0, nullptr, 0, 0},
};
lmx::s_event_map const P917Questions::elem_event_map[] = {
    {1, "P917_Question", 13, elem_P917Question},
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const P917Questions::known_elements[] = {
    {1, "P917_Question", 13},
    {0, nullptr, 0},
};
lmx::elmx_error P917Questions::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "P917_Questions", __LINE__); }
lmx::elmx_error P917Questions::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_complex_content, known_elements, true, __LINE__});
}
bool P917Questions::unmarshal_attributes(lmx::xmlReader&, lmx::elmx_error*) { return false; }
lmx::c_untyped_validation_spec const* P917Questions::accept_attribute(lmx::plain_attribute const&) { return nullptr; }
bool P917Questions::has_required_attributes() const { return true; }
lmx::elmx_error P917Questions::unmarshal_attributes_check(lmx::xmlReader&) { return lmx::ELMX_OK; }
bool P917Questions::unmarshal_body(lmx::xmlReader& reader, lmx::elmx_error* error) { return read_list(reader, mP917Question, elem_P917Question, {elem_event_map, "P917_Questions", __LINE__}, error); }
lmx::elmx_error P917Questions::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void P917Questions::marshal_attributes(lmx::c_xml_writer&) const {
}
lmx::elmx_error P917Questions::marshal_child_elements(lmx::c_xml_writer& writer) const {
  return write_list(writer, mP917Question, "P917_Question");
}
bool P917Questions::IsOccursOk(lmx::c_check_tracker*) const {
  return true;
}
bool P917Questions::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link) && check_children(&link, mP917Question, "P917_Question");
}
P917Question const& P917Questions::GetP917Question(std::size_t index) const { LMX_ASSERT(index < mP917Question.size()); return mP917Question.get(index); }
P917Question& P917Questions::GetP917Question(std::size_t index) { return mP917Question.get_or_append(index); }
P917Question& P917Questions::AppendP917Question() { return mP917Question.append(); }
void P917Questions::AppendP917Question(P917Question* value) { mP917Question.append(std::unique_ptr<P917Question>(value)); }
P917Question& P917Questions::InsertP917Question(std::size_t index) { return mP917Question.insert(index); }
void P917Questions::InsertP917Question(std::size_t index, P917Question* value) { mP917Question.insert(index, std::unique_ptr<P917Question>(value)); }
void P917Questions::AssignP917Question(std::size_t index, P917Question const& value) { mP917Question.assign(index, value); }
void P917Questions::AssignP917Question(std::size_t index, P917Question* value) { mP917Question.assign(index, std::unique_ptr<P917Question>(value)); }
P917Question& P917Questions::BackP917Question() { return mP917Question.back(); }
void P917Questions::DeleteP917Question(std::size_t index) { LMX_ASSERT(index < mP917Question.size()); mP917Question.erase(index); }
void P917Questions::ClearP917Question() { mP917Question.clear(); }
std::size_t P917Questions::SizeP917Question() const { return mP917Question.size(); }

// ---- P917Question ----

P917Question::P917Question() { init(); }
P917Question::P917Question(P917Question const& other) = default;
P917Question::P917Question(P917Question&& other) noexcept = default;
P917Question::P917Question(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
P917Question* P917Question::clone() const { return new P917Question(*this); }
P917Question::~P917Question() = default;
P917Question& P917Question::operator=(P917Question const& other) { P917Question copy(other); swap(copy); return *this; }
P917Question& P917Question::operator=(P917Question&& other) noexcept = default;
void P917Question::swap(P917Question& other) noexcept { std::swap(*this, other); }
void P917Question::reset() { P917Question empty; swap(empty); }
void P917Question::init() {}

lmx::s_event_map const P917Question::attr_event_map[] = {
    {1, "P917_Uuid", 9, attr_Uuid},
    {1, "P917_ReplyType", 14, attr_ReplyType},
    {1, "P917_Required", 13, attr_Required},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const P917Question::elem_event_map[] = {
    {1, "P917_Prompt", 11, elem_Prompt},
    {1, "P917_Reply", 10, elem_Reply},
    {1, "P917_Option", 11, elem_Option},
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const P917Question::known_elements[] = {
    {1, "P917_Prompt", 11},
    {1, "P917_Reply", 10},
    {1, "P917_Option", 11},
    {0, nullptr, 0},
};
lmx::elmx_error P917Question::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "P917_Question", __LINE__); }
lmx::elmx_error P917Question::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_complex_content, known_elements, mandatory_content_may_be_empty, __LINE__}, &lmx::xmlReader::addNewQuestion);
}
bool P917Question::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_Uuid: return read_attribute(reader, m_Uuid, spec_uuid_108, __LINE__, error);
    case attr_ReplyType: return read_attribute(reader, m_ReplyType, spec_reply_type_109, __LINE__, error);
    case attr_Required: return read_attribute(reader, m_Required, spec_boolean, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* P917Question::accept_attribute(lmx::plain_attribute const&) { return nullptr; }
bool P917Question::has_required_attributes() const { return m_Uuid.is_set() && m_ReplyType.is_set(); }
lmx::elmx_error P917Question::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "P917_Question", __LINE__, has_required_attributes());
}
bool P917Question::unmarshal_body(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(elem_event_map, lmx::EXAE_ELEMENT);
  return read_required_child(reader, m_Prompt, spec_any_text, elem_Prompt, {elem_event_map, "P917_Question", __LINE__}, error) &&
         read_optional_child(reader, m_Reply, spec_any_text, elem_Reply, {elem_event_map, "P917_Question", __LINE__}, error) &&
         read_repeated_child(reader, m_Option, spec_any_text, elem_Option, {elem_event_map, "P917_Question", __LINE__}, error);
}
lmx::elmx_error P917Question::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void P917Question::marshal_attributes(lmx::c_xml_writer& writer) const {
  write_attribute(writer, "P917_Uuid", m_Uuid, spec_uuid_108);
  write_attribute(writer, "P917_ReplyType", m_ReplyType, spec_reply_type_109);
  write_attribute(writer, "P917_Required", m_Required, spec_boolean);
}
lmx::elmx_error P917Question::marshal_child_elements(lmx::c_xml_writer& writer) const {
  write_simple_child(writer, "P917_Prompt", m_Prompt, spec_any_text);
  write_simple_child(writer, "P917_Reply", m_Reply, spec_any_text);
  write_simple_child(writer, "P917_Option", m_Option, spec_any_text);
  return lmx::ELMX_OK;
}
bool P917Question::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_Uuid.is_set(), "P917_Uuid", __LINE__) &&
         check_occurs(tracker, m_ReplyType.is_set(), "P917_ReplyType", __LINE__) &&
         check_occurs(tracker, m_Prompt.is_set(), "P917_Prompt", __LINE__);
}
bool P917Question::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link);
}

// ---- P917Comment ----

P917Comment::P917Comment() { init(); }
P917Comment::P917Comment(P917Comment const& other) = default;
P917Comment::P917Comment(P917Comment&& other) noexcept = default;
P917Comment::P917Comment(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
P917Comment* P917Comment::clone() const { return new P917Comment(*this); }
P917Comment::~P917Comment() = default;
P917Comment& P917Comment::operator=(P917Comment const& other) { P917Comment copy(other); swap(copy); return *this; }
P917Comment& P917Comment::operator=(P917Comment&& other) noexcept = default;
void P917Comment::swap(P917Comment& other) noexcept { std::swap(*this, other); }
void P917Comment::reset() { P917Comment empty; swap(empty); }
void P917Comment::init() {}

lmx::s_event_map const P917Comment::attr_event_map[] = {
    {0, nullptr, 0, 0},
};
lmx::s_event_map const P917Comment::elem_event_map[] = {
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const P917Comment::known_elements[] = {
    {0, nullptr, 0},
};
lmx::elmx_error P917Comment::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "P917_comment", __LINE__); }
lmx::elmx_error P917Comment::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_simple_content, nullptr, false, __LINE__});
}
bool P917Comment::unmarshal_attributes(lmx::xmlReader&, lmx::elmx_error*) { return false; }
lmx::c_untyped_validation_spec const* P917Comment::accept_attribute(lmx::plain_attribute const&) { return nullptr; }
bool P917Comment::has_required_attributes() const { return true; }
lmx::elmx_error P917Comment::unmarshal_attributes_check(lmx::xmlReader&) { return lmx::ELMX_OK; }
bool P917Comment::unmarshal_body(lmx::xmlReader& reader, lmx::elmx_error* error) { return read_text(reader, m_P917Comment, spec_any_text, __LINE__, error); }
lmx::elmx_error P917Comment::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void P917Comment::marshal_attributes(lmx::c_xml_writer&) const {
}
lmx::elmx_error P917Comment::marshal_child_elements(lmx::c_xml_writer& writer) const {
  write_text(writer, m_P917Comment, spec_any_text);
  return lmx::ELMX_OK;
}
bool P917Comment::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_P917Comment.is_set(), "P917_comment", __LINE__);
}
bool P917Comment::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link);
}
