// clang-format off
// Generated from schema/master_data.toml. Edit the schema, then build the target `schema`.

#include "isoxmllib/master_data.h"

#include <memory>
#include <utility>

#include "isoxmllib/engine.h"
#include "isoxmllib/events.h"
#include "isoxmllib/rules.h"
#include "isoxmllib/specs.h"

using namespace binding;

// ---- Grower ----

Grower::Grower() { init(); }
Grower::Grower(Grower const& other) = default;
Grower::Grower(Grower&& other) noexcept = default;
Grower::Grower(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
Grower* Grower::clone() const { return new Grower(*this); }
Grower::~Grower() = default;
Grower& Grower::operator=(Grower const& other) { Grower copy(other); swap(copy); return *this; }
Grower& Grower::operator=(Grower&& other) noexcept = default;
void Grower::swap(Grower& other) noexcept { std::swap(*this, other); }
void Grower::reset() { Grower empty; swap(empty); }
void Grower::init() {}

lmx::s_event_map const Grower::attr_event_map[] = {
    {1, "A", 1, attr_Id},
    {1, "B", 1, attr_LastName},
    {1, "C", 1, attr_FirstName},
    {1, "D", 1, attr_Street},
    {1, "E", 1, attr_POBox},
    {1, "F", 1, attr_PostalCode},
    {1, "G", 1, attr_City},
    {1, "H", 1, attr_State},
    {1, "I", 1, attr_Country},
    {1, "J", 1, attr_Phone},
    {1, "K", 1, attr_Mobile},
    {1, "L", 1, attr_Fax},
    {1, "M", 1, attr_Email},
    {1, "P917_customerNumber", 19, attr_CustomerNumber},
    {1, "P917_middleName", 15, attr_MiddleName},
    {1, "P917_comment", 12, attr_Comment},
    {1, "P917_county", 11, attr_County},
    {1, "P917_displayName", 16, attr_DisplayName},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const Grower::elem_event_map[] = {
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const Grower::known_elements[] = {
    {0, nullptr, 0},
};
lmx::elmx_error Grower::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "CTR", __LINE__); }
lmx::elmx_error Grower::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_empty_content, known_elements, true, __LINE__}, &lmx::xmlReader::addNewGrower);
}
bool Grower::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_Id: return read_attribute(reader, m_Id, spec_id_CTR_36, __LINE__, error);
    case attr_LastName: return read_attribute(reader, m_LastName, spec_text_32, __LINE__, error);
    case attr_FirstName: return read_attribute(reader, m_FirstName, spec_text_32, __LINE__, error);
    case attr_Street: return read_attribute(reader, m_Street, spec_text_32, __LINE__, error);
    case attr_POBox: return read_attribute(reader, m_POBox, spec_text_32, __LINE__, error);
    case attr_PostalCode: return read_attribute(reader, m_PostalCode, spec_text_10, __LINE__, error);
    case attr_City: return read_attribute(reader, m_City, spec_text_32, __LINE__, error);
    case attr_State: return read_attribute(reader, m_State, spec_text_32, __LINE__, error);
    case attr_Country: return read_attribute(reader, m_Country, spec_text_32, __LINE__, error);
    case attr_Phone: return read_attribute(reader, m_Phone, spec_text_20, __LINE__, error);
    case attr_Mobile: return read_attribute(reader, m_Mobile, spec_text_20, __LINE__, error);
    case attr_Fax: return read_attribute(reader, m_Fax, spec_text_20, __LINE__, error);
    case attr_Email: return read_attribute(reader, m_Email, spec_text_64, __LINE__, error);
    case attr_CustomerNumber: return read_attribute(reader, m_CustomerNumber, spec_text_32, __LINE__, error);
    case attr_MiddleName: return read_attribute(reader, m_MiddleName, spec_text_32, __LINE__, error);
    case attr_Comment: return read_attribute(reader, m_Comment, spec_text_330, __LINE__, error);
    case attr_County: return read_attribute(reader, m_County, spec_text_32, __LINE__, error);
    case attr_DisplayName: return read_attribute(reader, m_DisplayName, spec_text_32, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* Grower::accept_attribute(lmx::plain_attribute const& attribute) {
  switch (attribute.letter()) {
    case 'A': return binding::accept_attribute(m_Id, spec_id_CTR_36, attribute);
    case 'B': return binding::accept_attribute(m_LastName, spec_text_32, attribute);
    case 'C': return binding::accept_attribute(m_FirstName, spec_text_32, attribute);
    case 'D': return binding::accept_attribute(m_Street, spec_text_32, attribute);
    case 'E': return binding::accept_attribute(m_POBox, spec_text_32, attribute);
    case 'F': return binding::accept_attribute(m_PostalCode, spec_text_10, attribute);
    case 'G': return binding::accept_attribute(m_City, spec_text_32, attribute);
    case 'H': return binding::accept_attribute(m_State, spec_text_32, attribute);
    case 'I': return binding::accept_attribute(m_Country, spec_text_32, attribute);
    case 'J': return binding::accept_attribute(m_Phone, spec_text_20, attribute);
    case 'K': return binding::accept_attribute(m_Mobile, spec_text_20, attribute);
    case 'L': return binding::accept_attribute(m_Fax, spec_text_20, attribute);
    case 'M': return binding::accept_attribute(m_Email, spec_text_64, attribute);
  }
  return nullptr;
}
bool Grower::has_required_attributes() const { return m_Id.is_set() && m_LastName.is_set(); }
lmx::elmx_error Grower::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "CTR", __LINE__, has_required_attributes());
}
bool Grower::unmarshal_body(lmx::xmlReader&, lmx::elmx_error*) { return true; }
lmx::elmx_error Grower::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void Grower::marshal_attributes(lmx::c_xml_writer& writer) const {
  write_attribute(writer, "A", m_Id, spec_id_CTR_36);
  write_attribute(writer, "B", m_LastName, spec_text_32);
  write_attribute(writer, "C", m_FirstName, spec_text_32);
  write_attribute(writer, "D", m_Street, spec_text_32);
  write_attribute(writer, "E", m_POBox, spec_text_32);
  write_attribute(writer, "F", m_PostalCode, spec_text_10);
  write_attribute(writer, "G", m_City, spec_text_32);
  write_attribute(writer, "H", m_State, spec_text_32);
  write_attribute(writer, "I", m_Country, spec_text_32);
  write_attribute(writer, "J", m_Phone, spec_text_20);
  write_attribute(writer, "K", m_Mobile, spec_text_20);
  write_attribute(writer, "L", m_Fax, spec_text_20);
  write_attribute(writer, "M", m_Email, spec_text_64);
  write_attribute(writer, "P917_customerNumber", m_CustomerNumber, spec_text_32);
  write_attribute(writer, "P917_middleName", m_MiddleName, spec_text_32);
  write_attribute(writer, "P917_comment", m_Comment, spec_text_330);
  write_attribute(writer, "P917_county", m_County, spec_text_32);
  write_attribute(writer, "P917_displayName", m_DisplayName, spec_text_32);
}
lmx::elmx_error Grower::marshal_child_elements(lmx::c_xml_writer&) const {
  return lmx::ELMX_OK;
}
bool Grower::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_Id.is_set(), "A", __LINE__) &&
         check_occurs(tracker, m_LastName.is_set(), "B", __LINE__);
}
bool Grower::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link);
}

// ---- Farm ----

Farm::Farm() { init(); }
Farm::Farm(Farm const& other) = default;
Farm::Farm(Farm&& other) noexcept = default;
Farm::Farm(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
Farm* Farm::clone() const { return new Farm(*this); }
Farm::~Farm() = default;
Farm& Farm::operator=(Farm const& other) { Farm copy(other); swap(copy); return *this; }
Farm& Farm::operator=(Farm&& other) noexcept = default;
void Farm::swap(Farm& other) noexcept { std::swap(*this, other); }
void Farm::reset() { Farm empty; swap(empty); }
void Farm::init() {}

lmx::s_event_map const Farm::attr_event_map[] = {
    {1, "A", 1, attr_Id},
    {1, "B", 1, attr_Designator},
    {1, "C", 1, attr_Street},
    {1, "D", 1, attr_POBox},
    {1, "E", 1, attr_PostalCode},
    {1, "F", 1, attr_City},
    {1, "G", 1, attr_State},
    {1, "H", 1, attr_Country},
    {1, "I", 1, attr_GrowerIdRef},
    {1, "P917_county", 11, attr_County},
    {1, "P917_firstName", 14, attr_FirstName},
    {1, "P917_middleName", 15, attr_MiddleName},
    {1, "P917_lastName", 13, attr_LastName},
    {1, "P917_phoneNumber", 16, attr_Phone},
    {1, "P917_mobileNumber", 17, attr_Mobile},
    {1, "P917_faxNumber", 14, attr_Fax},
    {1, "P917_Email", 10, attr_Email},
    {1, "P917_comment", 12, attr_Comment},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const Farm::elem_event_map[] = {
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const Farm::known_elements[] = {
    {0, nullptr, 0},
};
lmx::elmx_error Farm::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "FRM", __LINE__); }
lmx::elmx_error Farm::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_empty_content, known_elements, true, __LINE__}, &lmx::xmlReader::addNewFarm);
}
bool Farm::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_Id: return read_attribute(reader, m_Id, spec_id_FRM_58, __LINE__, error);
    case attr_Designator: return read_attribute(reader, m_Designator, spec_text_32, __LINE__, error);
    case attr_Street: return read_attribute(reader, m_Street, spec_text_32, __LINE__, error);
    case attr_POBox: return read_attribute(reader, m_POBox, spec_text_32, __LINE__, error);
    case attr_PostalCode: return read_attribute(reader, m_PostalCode, spec_text_10, __LINE__, error);
    case attr_City: return read_attribute(reader, m_City, spec_text_32, __LINE__, error);
    case attr_State: return read_attribute(reader, m_State, spec_text_32, __LINE__, error);
    case attr_Country: return read_attribute(reader, m_Country, spec_text_32, __LINE__, error);
    case attr_GrowerIdRef: return read_attribute(reader, m_GrowerIdRef, spec_id_CTR_59, __LINE__, error);
    case attr_County: return read_attribute(reader, m_County, spec_text_32, __LINE__, error);
    case attr_FirstName: return read_attribute(reader, m_FirstName, spec_text_32, __LINE__, error);
    case attr_MiddleName: return read_attribute(reader, m_MiddleName, spec_any_text, __LINE__, error);
    case attr_LastName: return read_attribute(reader, m_LastName, spec_text_32, __LINE__, error);
    case attr_Phone: return read_attribute(reader, m_Phone, spec_text_32, __LINE__, error);
    case attr_Mobile: return read_attribute(reader, m_Mobile, spec_text_32, __LINE__, error);
    case attr_Fax: return read_attribute(reader, m_Fax, spec_text_32, __LINE__, error);
    case attr_Email: return read_attribute(reader, m_Email, spec_text_64, __LINE__, error);
    case attr_Comment: return read_attribute(reader, m_Comment, spec_text_330, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* Farm::accept_attribute(lmx::plain_attribute const& attribute) {
  switch (attribute.letter()) {
    case 'A': return binding::accept_attribute(m_Id, spec_id_FRM_58, attribute);
    case 'B': return binding::accept_attribute(m_Designator, spec_text_32, attribute);
    case 'C': return binding::accept_attribute(m_Street, spec_text_32, attribute);
    case 'D': return binding::accept_attribute(m_POBox, spec_text_32, attribute);
    case 'E': return binding::accept_attribute(m_PostalCode, spec_text_10, attribute);
    case 'F': return binding::accept_attribute(m_City, spec_text_32, attribute);
    case 'G': return binding::accept_attribute(m_State, spec_text_32, attribute);
    case 'H': return binding::accept_attribute(m_Country, spec_text_32, attribute);
    case 'I': return binding::accept_attribute(m_GrowerIdRef, spec_id_CTR_59, attribute);
  }
  return nullptr;
}
bool Farm::has_required_attributes() const { return m_Id.is_set() && m_Designator.is_set(); }
lmx::elmx_error Farm::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "FRM", __LINE__, has_required_attributes());
}
bool Farm::unmarshal_body(lmx::xmlReader&, lmx::elmx_error*) { return true; }
lmx::elmx_error Farm::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void Farm::marshal_attributes(lmx::c_xml_writer& writer) const {
  write_attribute(writer, "A", m_Id, spec_id_FRM_58);
  write_attribute(writer, "B", m_Designator, spec_text_32);
  write_attribute(writer, "C", m_Street, spec_text_32);
  write_attribute(writer, "D", m_POBox, spec_text_32);
  write_attribute(writer, "E", m_PostalCode, spec_text_10);
  write_attribute(writer, "F", m_City, spec_text_32);
  write_attribute(writer, "G", m_State, spec_text_32);
  write_attribute(writer, "H", m_Country, spec_text_32);
  write_attribute(writer, "I", m_GrowerIdRef, spec_id_CTR_59);
  write_attribute(writer, "P917_county", m_County, spec_text_32);
  write_attribute(writer, "P917_firstName", m_FirstName, spec_text_32);
  write_attribute(writer, "P917_middleName", m_MiddleName, spec_any_text);
  write_attribute(writer, "P917_lastName", m_LastName, spec_text_32);
  write_attribute(writer, "P917_phoneNumber", m_Phone, spec_text_32);
  write_attribute(writer, "P917_mobileNumber", m_Mobile, spec_text_32);
  write_attribute(writer, "P917_faxNumber", m_Fax, spec_text_32);
  write_attribute(writer, "P917_Email", m_Email, spec_text_64);
  write_attribute(writer, "P917_comment", m_Comment, spec_text_330);
}
lmx::elmx_error Farm::marshal_child_elements(lmx::c_xml_writer&) const {
  return lmx::ELMX_OK;
}
bool Farm::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_Id.is_set(), "A", __LINE__) &&
         check_occurs(tracker, m_Designator.is_set(), "B", __LINE__);
}
bool Farm::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link);
}

// ---- Worker ----

Worker::Worker() { init(); }
Worker::Worker(Worker const& other) = default;
Worker::Worker(Worker&& other) noexcept = default;
Worker::Worker(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
Worker* Worker::clone() const { return new Worker(*this); }
Worker::~Worker() = default;
Worker& Worker::operator=(Worker const& other) { Worker copy(other); swap(copy); return *this; }
Worker& Worker::operator=(Worker&& other) noexcept = default;
void Worker::swap(Worker& other) noexcept { std::swap(*this, other); }
void Worker::reset() { Worker empty; swap(empty); }
void Worker::init() {}

lmx::s_event_map const Worker::attr_event_map[] = {
    {1, "A", 1, attr_Id},
    {1, "B", 1, attr_LastName},
    {1, "C", 1, attr_FirstName},
    {1, "D", 1, attr_Street},
    {1, "E", 1, attr_POBox},
    {1, "F", 1, attr_PostalCode},
    {1, "G", 1, attr_City},
    {1, "H", 1, attr_State},
    {1, "I", 1, attr_Country},
    {1, "J", 1, attr_Phone},
    {1, "K", 1, attr_Mobile},
    {1, "L", 1, attr_LicenseNumber},
    {1, "M", 1, attr_Email},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const Worker::elem_event_map[] = {
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const Worker::known_elements[] = {
    {0, nullptr, 0},
};
lmx::elmx_error Worker::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "WKR", __LINE__); }
lmx::elmx_error Worker::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_empty_content, known_elements, true, __LINE__});
}
bool Worker::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_Id: return read_attribute(reader, m_Id, spec_id_WKR_106, __LINE__, error);
    case attr_LastName: return read_attribute(reader, m_LastName, spec_text_32, __LINE__, error);
    case attr_FirstName: return read_attribute(reader, m_FirstName, spec_text_32, __LINE__, error);
    case attr_Street: return read_attribute(reader, m_Street, spec_text_32, __LINE__, error);
    case attr_POBox: return read_attribute(reader, m_POBox, spec_text_32, __LINE__, error);
    case attr_PostalCode: return read_attribute(reader, m_PostalCode, spec_text_10, __LINE__, error);
    case attr_City: return read_attribute(reader, m_City, spec_text_32, __LINE__, error);
    case attr_State: return read_attribute(reader, m_State, spec_text_32, __LINE__, error);
    case attr_Country: return read_attribute(reader, m_Country, spec_text_32, __LINE__, error);
    case attr_Phone: return read_attribute(reader, m_Phone, spec_text_20, __LINE__, error);
    case attr_Mobile: return read_attribute(reader, m_Mobile, spec_text_20, __LINE__, error);
    case attr_LicenseNumber: return read_attribute(reader, m_LicenseNumber, spec_text_32, __LINE__, error);
    case attr_Email: return read_attribute(reader, m_Email, spec_text_64, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* Worker::accept_attribute(lmx::plain_attribute const& attribute) {
  switch (attribute.letter()) {
    case 'A': return binding::accept_attribute(m_Id, spec_id_WKR_106, attribute);
    case 'B': return binding::accept_attribute(m_LastName, spec_text_32, attribute);
    case 'C': return binding::accept_attribute(m_FirstName, spec_text_32, attribute);
    case 'D': return binding::accept_attribute(m_Street, spec_text_32, attribute);
    case 'E': return binding::accept_attribute(m_POBox, spec_text_32, attribute);
    case 'F': return binding::accept_attribute(m_PostalCode, spec_text_10, attribute);
    case 'G': return binding::accept_attribute(m_City, spec_text_32, attribute);
    case 'H': return binding::accept_attribute(m_State, spec_text_32, attribute);
    case 'I': return binding::accept_attribute(m_Country, spec_text_32, attribute);
    case 'J': return binding::accept_attribute(m_Phone, spec_text_20, attribute);
    case 'K': return binding::accept_attribute(m_Mobile, spec_text_20, attribute);
    case 'L': return binding::accept_attribute(m_LicenseNumber, spec_text_32, attribute);
    case 'M': return binding::accept_attribute(m_Email, spec_text_64, attribute);
  }
  return nullptr;
}
bool Worker::has_required_attributes() const { return m_Id.is_set() && m_LastName.is_set(); }
lmx::elmx_error Worker::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "WKR", __LINE__, has_required_attributes());
}
bool Worker::unmarshal_body(lmx::xmlReader&, lmx::elmx_error*) { return true; }
lmx::elmx_error Worker::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void Worker::marshal_attributes(lmx::c_xml_writer& writer) const {
  write_attribute(writer, "A", m_Id, spec_id_WKR_106);
  write_attribute(writer, "B", m_LastName, spec_text_32);
  write_attribute(writer, "C", m_FirstName, spec_text_32);
  write_attribute(writer, "D", m_Street, spec_text_32);
  write_attribute(writer, "E", m_POBox, spec_text_32);
  write_attribute(writer, "F", m_PostalCode, spec_text_10);
  write_attribute(writer, "G", m_City, spec_text_32);
  write_attribute(writer, "H", m_State, spec_text_32);
  write_attribute(writer, "I", m_Country, spec_text_32);
  write_attribute(writer, "J", m_Phone, spec_text_20);
  write_attribute(writer, "K", m_Mobile, spec_text_20);
  write_attribute(writer, "L", m_LicenseNumber, spec_text_32);
  write_attribute(writer, "M", m_Email, spec_text_64);
}
lmx::elmx_error Worker::marshal_child_elements(lmx::c_xml_writer&) const {
  return lmx::ELMX_OK;
}
bool Worker::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_Id.is_set(), "A", __LINE__) &&
         check_occurs(tracker, m_LastName.is_set(), "B", __LINE__);
}
bool Worker::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link);
}

// ---- Product ----

InnerProduct::InnerProduct() { init(); }
InnerProduct::InnerProduct(InnerProduct const& other) = default;
InnerProduct::InnerProduct(InnerProduct&& other) noexcept : chosen(std::exchange(other.chosen, NothingChosen)), m_held(std::move(other.m_held)) {}
InnerProduct::InnerProduct(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_OK; unmarshal(reader, error); }
InnerProduct* InnerProduct::clone() const { return new InnerProduct(*this); }
InnerProduct::~InnerProduct() = default;
InnerProduct& InnerProduct::operator=(InnerProduct const& other) { InnerProduct copy(other); swap(copy); return *this; }
InnerProduct& InnerProduct::operator=(InnerProduct&& other) noexcept { InnerProduct taken(std::move(other)); swap(taken); return *this; }
void InnerProduct::swap(InnerProduct& other) noexcept { std::swap(chosen, other.chosen); std::swap(m_held, other.m_held); }
void InnerProduct::reset() { InnerProduct empty; swap(empty); }
void InnerProduct::init() { chosen = NothingChosen; }

lmx::s_event_map const InnerProduct::elem_event_map[] = {
    {1, "PRN", 3, elem_ProductRelation},
    {0, nullptr, 0, 0},
};
void InnerProduct::release_choice() { m_held.release(); chosen = NothingChosen; }
bool InnerProduct::IsOccursOk(lmx::c_check_tracker*) const { return true; }
bool InnerProduct::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  if (!IsOccursOk(&link)) return false;
  switch (chosen) {
    case ProductRelationChosen: return m_held.check(&link, "PRN");
  }
  return true;
}
bool InnerProduct::IsMember(lmx::xmlReader& reader) { return is_member(reader, elem_event_map); }
bool InnerProduct::unmarshal(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(elem_event_map, lmx::EXAE_ELEMENT);
  switch (reader.m_event) {
    case elem_ProductRelation: return read_run(reader, new_run<ProductRelation>(chosen, m_held, ProductRelationChosen), elem_ProductRelation, {elem_event_map, "PDT", __LINE__}, error);
  }
  return true;
}
lmx::elmx_error InnerProduct::marshal(lmx::c_xml_writer& writer, char const*) const { return marshal_child_elements(writer); }
lmx::elmx_error InnerProduct::marshal_child_elements(lmx::c_xml_writer& writer) const { return write_choice(writer, m_held, chosen, NothingChosen, elem_event_map, __LINE__); }

void InnerProduct::SelectProductRelation() { selected_run<ProductRelation>(chosen, m_held, ProductRelationChosen); }
ProductRelation const& InnerProduct::GetProductRelation(std::size_t index) const { return run_at<ProductRelation>(m_held, {is_chosen(chosen, m_held, ProductRelationChosen), "chosen == ProductRelationChosen"}, index, "index < u.mProductRelation->size()"); }
ProductRelation& InnerProduct::GetProductRelation(std::size_t index) { return selected_run<ProductRelation>(chosen, m_held, ProductRelationChosen).get_or_append(index); }
ProductRelation& InnerProduct::AppendProductRelation() { return selected_run<ProductRelation>(chosen, m_held, ProductRelationChosen).append(); }
void InnerProduct::AppendProductRelation(ProductRelation* value) { std::unique_ptr<ProductRelation> owned(value); selected_run<ProductRelation>(chosen, m_held, ProductRelationChosen).append(std::move(owned)); }
ProductRelation& InnerProduct::InsertProductRelation(std::size_t index) { return selected_run<ProductRelation>(chosen, m_held, ProductRelationChosen).insert(index); }
void InnerProduct::InsertProductRelation(std::size_t index, ProductRelation* value) { std::unique_ptr<ProductRelation> owned(value); selected_run<ProductRelation>(chosen, m_held, ProductRelationChosen).insert(index, std::move(owned)); }
void InnerProduct::AssignProductRelation(std::size_t index, ProductRelation const& value) { selected_run<ProductRelation>(chosen, m_held, ProductRelationChosen).assign(index, value); }
void InnerProduct::AssignProductRelation(std::size_t index, ProductRelation* value) { std::unique_ptr<ProductRelation> owned(value); selected_run<ProductRelation>(chosen, m_held, ProductRelationChosen).assign(index, std::move(owned)); }
ProductRelation& InnerProduct::BackProductRelation() { return selected_run<ProductRelation>(chosen, m_held, ProductRelationChosen).back(); }
void InnerProduct::DeleteProductRelation(std::size_t index) { erase_at<ProductRelation>(m_held, {is_chosen(chosen, m_held, ProductRelationChosen), "chosen == ProductRelationChosen"}, index, "index < u.mProductRelation->size()"); }
void InnerProduct::ClearProductRelation() { selected_run<ProductRelation>(chosen, m_held, ProductRelationChosen).clear(); }
std::size_t InnerProduct::SizeProductRelation() const { return run_size<ProductRelation>(m_held, m_held.holds(ProductRelationChosen)); }

Product::Product() { init(); }
Product::Product(Product const& other) = default;
Product::Product(Product&& other) noexcept = default;
Product::Product(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
Product* Product::clone() const { return new Product(*this); }
Product::~Product() = default;
Product& Product::operator=(Product const& other) { Product copy(other); swap(copy); return *this; }
Product& Product::operator=(Product&& other) noexcept = default;
void Product::swap(Product& other) noexcept { std::swap(*this, other); }
void Product::reset() { Product empty; swap(empty); }
void Product::init() {}

lmx::s_event_map const Product::attr_event_map[] = {
    {1, "A", 1, attr_Id},
    {1, "B", 1, attr_Designator},
    {1, "C", 1, attr_ProductGroupIdRef},
    {1, "D", 1, attr_ValuePresentationIdRef},
    {1, "E", 1, attr_QuantityDDI},
    {1, "F", 1, attr_Type},
    {1, "G", 1, attr_MixtureRecipeQuantity},
    {1, "H", 1, attr_DensityMassPerVolume},
    {1, "I", 1, attr_DensityMassPerCount},
    {1, "J", 1, attr_DensityVolumePerCount},
    {1, "P917_ingredientManufacturer", 27, attr_P917IngredientManufacturer},
    {1, "P917_ingredientRegistration", 27, attr_P917IngredientRegistration},
    {1, "P917_ingredientComposition", 26, attr_P917IngredientComposition},
    {1, "P917_ingredientNotes", 20, attr_P917IngredientNotes},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const Product::elem_event_map[] = {
    {1, "PRN", 3, elem_ProductRelation},
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const Product::known_elements[] = {
    {1, "PRN", 3},
    {0, nullptr, 0},
};
lmx::elmx_error Product::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "PDT", __LINE__); }
lmx::elmx_error Product::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_complex_content, known_elements, true, __LINE__}, &lmx::xmlReader::addNewProduct);
}
bool Product::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_Id: return read_attribute(reader, m_Id, spec_id_PDT_87, __LINE__, error);
    case attr_Designator: return read_attribute(reader, m_Designator, spec_text_32, __LINE__, error);
    case attr_ProductGroupIdRef: return read_attribute(reader, m_ProductGroupIdRef, spec_id_PGP_88, __LINE__, error);
    case attr_ValuePresentationIdRef: return read_attribute(reader, m_ValuePresentationIdRef, spec_id_VPN_89, __LINE__, error);
    case attr_QuantityDDI: return read_attribute(reader, m_QuantityDDI, spec_bytes_2, __LINE__, error);
    case attr_Type: return read_attribute(reader, m_Type, spec_one_of_1_to_3, __LINE__, error);
    case attr_MixtureRecipeQuantity: return read_attribute(reader, m_MixtureRecipeQuantity, spec_range_0_to_2147483647_uint32, __LINE__, error);
    case attr_DensityMassPerVolume: return read_attribute(reader, m_DensityMassPerVolume, spec_range_0_to_2147483647_uint32, __LINE__, error);
    case attr_DensityMassPerCount: return read_attribute(reader, m_DensityMassPerCount, spec_range_0_to_2147483647_uint32, __LINE__, error);
    case attr_DensityVolumePerCount: return read_attribute(reader, m_DensityVolumePerCount, spec_range_0_to_2147483647_uint32, __LINE__, error);
    case attr_P917IngredientManufacturer: return read_attribute(reader, m_P917IngredientManufacturer, spec_text_32, __LINE__, error);
    case attr_P917IngredientRegistration: return read_attribute(reader, m_P917IngredientRegistration, spec_text_32, __LINE__, error);
    case attr_P917IngredientComposition: return read_attribute(reader, m_P917IngredientComposition, spec_text_330, __LINE__, error);
    case attr_P917IngredientNotes: return read_attribute(reader, m_P917IngredientNotes, spec_text_330, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* Product::accept_attribute(lmx::plain_attribute const& attribute) {
  switch (attribute.letter()) {
    case 'A': return binding::accept_attribute(m_Id, spec_id_PDT_87, attribute);
    case 'B': return binding::accept_attribute(m_Designator, spec_text_32, attribute);
    case 'C': return binding::accept_attribute(m_ProductGroupIdRef, spec_id_PGP_88, attribute);
    case 'D': return binding::accept_attribute(m_ValuePresentationIdRef, spec_id_VPN_89, attribute);
    case 'E': return binding::accept_attribute(m_QuantityDDI, spec_bytes_2, attribute);
    case 'F': return binding::accept_attribute(m_Type, spec_one_of_1_to_3, attribute);
    case 'G': return binding::accept_attribute(m_MixtureRecipeQuantity, spec_range_0_to_2147483647_uint32, attribute);
    case 'H': return binding::accept_attribute(m_DensityMassPerVolume, spec_range_0_to_2147483647_uint32, attribute);
    case 'I': return binding::accept_attribute(m_DensityMassPerCount, spec_range_0_to_2147483647_uint32, attribute);
    case 'J': return binding::accept_attribute(m_DensityVolumePerCount, spec_range_0_to_2147483647_uint32, attribute);
  }
  return nullptr;
}
bool Product::has_required_attributes() const { return m_Id.is_set() && m_Designator.is_set(); }
lmx::elmx_error Product::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "PDT", __LINE__, has_required_attributes());
}
bool Product::unmarshal_body(lmx::xmlReader& reader, lmx::elmx_error* error) { return read_wrappers(reader, mInnerProduct, false, {elem_event_map, "PDT", __LINE__}, error); }
lmx::elmx_error Product::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void Product::marshal_attributes(lmx::c_xml_writer& writer) const {
  write_attribute(writer, "A", m_Id, spec_id_PDT_87);
  write_attribute(writer, "B", m_Designator, spec_text_32);
  write_attribute(writer, "C", m_ProductGroupIdRef, spec_id_PGP_88);
  write_attribute(writer, "D", m_ValuePresentationIdRef, spec_id_VPN_89);
  write_attribute(writer, "E", m_QuantityDDI, spec_bytes_2);
  write_attribute(writer, "F", m_Type, spec_one_of_1_to_3);
  write_attribute(writer, "G", m_MixtureRecipeQuantity, spec_range_0_to_2147483647_uint32);
  write_attribute(writer, "H", m_DensityMassPerVolume, spec_range_0_to_2147483647_uint32);
  write_attribute(writer, "I", m_DensityMassPerCount, spec_range_0_to_2147483647_uint32);
  write_attribute(writer, "J", m_DensityVolumePerCount, spec_range_0_to_2147483647_uint32);
  write_attribute(writer, "P917_ingredientManufacturer", m_P917IngredientManufacturer, spec_text_32);
  write_attribute(writer, "P917_ingredientRegistration", m_P917IngredientRegistration, spec_text_32);
  write_attribute(writer, "P917_ingredientComposition", m_P917IngredientComposition, spec_text_330);
  write_attribute(writer, "P917_ingredientNotes", m_P917IngredientNotes, spec_text_330);
}
lmx::elmx_error Product::marshal_child_elements(lmx::c_xml_writer& writer) const {
  return write_wrappers(writer, mInnerProduct);
}
bool Product::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_Id.is_set(), "A", __LINE__) &&
         check_occurs(tracker, m_Designator.is_set(), "B", __LINE__);
}
bool Product::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link) && check_wrappers(&link, mInnerProduct);
}
InnerProduct const& Product::GetInnerProduct(std::size_t index) const { LMX_ASSERT(index < mInnerProduct.size()); return mInnerProduct.get(index); }
InnerProduct& Product::GetInnerProduct(std::size_t index) { return mInnerProduct.get_or_append(index); }
InnerProduct& Product::AppendInnerProduct() { return mInnerProduct.append(); }
void Product::AppendInnerProduct(InnerProduct* value) { mInnerProduct.append(std::unique_ptr<InnerProduct>(value)); }
InnerProduct& Product::InsertInnerProduct(std::size_t index) { return mInnerProduct.insert(index); }
void Product::InsertInnerProduct(std::size_t index, InnerProduct* value) { mInnerProduct.insert(index, std::unique_ptr<InnerProduct>(value)); }
void Product::AssignInnerProduct(std::size_t index, InnerProduct const& value) { mInnerProduct.assign(index, value); }
void Product::AssignInnerProduct(std::size_t index, InnerProduct* value) { mInnerProduct.assign(index, std::unique_ptr<InnerProduct>(value)); }
InnerProduct& Product::BackInnerProduct() { return mInnerProduct.back(); }
void Product::DeleteInnerProduct(std::size_t index) { LMX_ASSERT(index < mInnerProduct.size()); mInnerProduct.erase(index); }
void Product::ClearInnerProduct() { mInnerProduct.clear(); }
std::size_t Product::SizeInnerProduct() const { return mInnerProduct.size(); }
elmx_enums Product::GetenumType() const { return enum_code(list_17, m_Type.get()); }
bool Product::SetenumType(elmx_enums code) { return set_enum(list_17, code, m_Type); }

// ---- ProductGroup ----

ProductGroup::ProductGroup() { init(); }
ProductGroup::ProductGroup(ProductGroup const& other) = default;
ProductGroup::ProductGroup(ProductGroup&& other) noexcept = default;
ProductGroup::ProductGroup(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
ProductGroup* ProductGroup::clone() const { return new ProductGroup(*this); }
ProductGroup::~ProductGroup() = default;
ProductGroup& ProductGroup::operator=(ProductGroup const& other) { ProductGroup copy(other); swap(copy); return *this; }
ProductGroup& ProductGroup::operator=(ProductGroup&& other) noexcept = default;
void ProductGroup::swap(ProductGroup& other) noexcept { std::swap(*this, other); }
void ProductGroup::reset() { ProductGroup empty; swap(empty); }
void ProductGroup::init() {}

lmx::s_event_map const ProductGroup::attr_event_map[] = {
    {1, "A", 1, attr_Id},
    {1, "B", 1, attr_Designator},
    {1, "C", 1, attr_Type},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const ProductGroup::elem_event_map[] = {
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const ProductGroup::known_elements[] = {
    {0, nullptr, 0},
};
lmx::elmx_error ProductGroup::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "PGP", __LINE__); }
lmx::elmx_error ProductGroup::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_empty_content, known_elements, true, __LINE__}, &lmx::xmlReader::addNewProductGroup);
}
bool ProductGroup::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_Id: return read_attribute(reader, m_Id, spec_id_PGP_95, __LINE__, error);
    case attr_Designator: return read_attribute(reader, m_Designator, spec_text_32, __LINE__, error);
    case attr_Type: return read_attribute(reader, m_Type, spec_one_of_1_2, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* ProductGroup::accept_attribute(lmx::plain_attribute const& attribute) {
  switch (attribute.letter()) {
    case 'A': return binding::accept_attribute(m_Id, spec_id_PGP_95, attribute);
    case 'B': return binding::accept_attribute(m_Designator, spec_text_32, attribute);
    case 'C': return binding::accept_attribute(m_Type, spec_one_of_1_2, attribute);
  }
  return nullptr;
}
bool ProductGroup::has_required_attributes() const { return m_Id.is_set() && m_Designator.is_set(); }
lmx::elmx_error ProductGroup::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "PGP", __LINE__, has_required_attributes());
}
bool ProductGroup::unmarshal_body(lmx::xmlReader&, lmx::elmx_error*) { return true; }
lmx::elmx_error ProductGroup::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void ProductGroup::marshal_attributes(lmx::c_xml_writer& writer) const {
  write_attribute(writer, "A", m_Id, spec_id_PGP_95);
  write_attribute(writer, "B", m_Designator, spec_text_32);
  write_attribute(writer, "C", m_Type, spec_one_of_1_2);
}
lmx::elmx_error ProductGroup::marshal_child_elements(lmx::c_xml_writer&) const {
  return lmx::ELMX_OK;
}
bool ProductGroup::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_Id.is_set(), "A", __LINE__) &&
         check_occurs(tracker, m_Designator.is_set(), "B", __LINE__);
}
bool ProductGroup::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link);
}
elmx_enums ProductGroup::GetenumType() const { return enum_code(list_2, m_Type.get()); }
bool ProductGroup::SetenumType(elmx_enums code) { return set_enum(list_2, code, m_Type); }

// ---- ProductRelation ----

ProductRelation::ProductRelation() { init(); }
ProductRelation::ProductRelation(ProductRelation const& other) = default;
ProductRelation::ProductRelation(ProductRelation&& other) noexcept = default;
ProductRelation::ProductRelation(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
ProductRelation* ProductRelation::clone() const { return new ProductRelation(*this); }
ProductRelation::~ProductRelation() = default;
ProductRelation& ProductRelation::operator=(ProductRelation const& other) { ProductRelation copy(other); swap(copy); return *this; }
ProductRelation& ProductRelation::operator=(ProductRelation&& other) noexcept = default;
void ProductRelation::swap(ProductRelation& other) noexcept { std::swap(*this, other); }
void ProductRelation::reset() { ProductRelation empty; swap(empty); }
void ProductRelation::init() {}

lmx::s_event_map const ProductRelation::attr_event_map[] = {
    {1, "A", 1, attr_ProductIdRef},
    {1, "B", 1, attr_QuantityValue},
    {1, "P917_vpn", 8, attr_P917Vpn},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const ProductRelation::elem_event_map[] = {
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const ProductRelation::known_elements[] = {
    {0, nullptr, 0},
};
lmx::elmx_error ProductRelation::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "PRN", __LINE__); }
lmx::elmx_error ProductRelation::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_empty_content, known_elements, true, __LINE__});
}
bool ProductRelation::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_ProductIdRef: return read_attribute(reader, m_ProductIdRef, spec_id_PDT_96, __LINE__, error);
    case attr_QuantityValue: return read_attribute(reader, m_QuantityValue, spec_range_0_to_2147483647_uint32, __LINE__, error);
    case attr_P917Vpn: return read_attribute(reader, m_P917Vpn, spec_id_VPN_97, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* ProductRelation::accept_attribute(lmx::plain_attribute const& attribute) {
  switch (attribute.letter()) {
    case 'A': return binding::accept_attribute(m_ProductIdRef, spec_id_PDT_96, attribute);
    case 'B': return binding::accept_attribute(m_QuantityValue, spec_range_0_to_2147483647_uint32, attribute);
  }
  return nullptr;
}
bool ProductRelation::has_required_attributes() const { return m_ProductIdRef.is_set() && m_QuantityValue.is_set(); }
lmx::elmx_error ProductRelation::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "PRN", __LINE__, has_required_attributes());
}
bool ProductRelation::unmarshal_body(lmx::xmlReader&, lmx::elmx_error*) { return true; }
lmx::elmx_error ProductRelation::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void ProductRelation::marshal_attributes(lmx::c_xml_writer& writer) const {
  write_attribute(writer, "A", m_ProductIdRef, spec_id_PDT_96);
  write_attribute(writer, "B", m_QuantityValue, spec_range_0_to_2147483647_uint32);
  write_attribute(writer, "P917_vpn", m_P917Vpn, spec_id_VPN_97);
}
lmx::elmx_error ProductRelation::marshal_child_elements(lmx::c_xml_writer&) const {
  return lmx::ELMX_OK;
}
bool ProductRelation::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_ProductIdRef.is_set(), "A", __LINE__) &&
         check_occurs(tracker, m_QuantityValue.is_set(), "B", __LINE__);
}
bool ProductRelation::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link);
}

// ---- ValuePresentation ----

ValuePresentation::ValuePresentation() { init(); }
ValuePresentation::ValuePresentation(ValuePresentation const& other) = default;
ValuePresentation::ValuePresentation(ValuePresentation&& other) noexcept = default;
ValuePresentation::ValuePresentation(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
ValuePresentation* ValuePresentation::clone() const { return new ValuePresentation(*this); }
ValuePresentation::~ValuePresentation() = default;
ValuePresentation& ValuePresentation::operator=(ValuePresentation const& other) { ValuePresentation copy(other); swap(copy); return *this; }
ValuePresentation& ValuePresentation::operator=(ValuePresentation&& other) noexcept = default;
void ValuePresentation::swap(ValuePresentation& other) noexcept { std::swap(*this, other); }
void ValuePresentation::reset() { ValuePresentation empty; swap(empty); }
void ValuePresentation::init() {}

lmx::s_event_map const ValuePresentation::attr_event_map[] = {
    {1, "A", 1, attr_Id},
    {1, "B", 1, attr_Offset},
    {1, "C", 1, attr_Scale},
    {1, "D", 1, attr_NumberOfDecimals},
    {1, "E", 1, attr_UnitDesignator},
    {1, "F", 1, attr_ColourLegendIdRef},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const ValuePresentation::elem_event_map[] = {
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const ValuePresentation::known_elements[] = {
    {0, nullptr, 0},
};
lmx::elmx_error ValuePresentation::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "VPN", __LINE__); }
lmx::elmx_error ValuePresentation::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_empty_content, known_elements, true, __LINE__}, &lmx::xmlReader::addNewValuePre);
}
bool ValuePresentation::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_Id: return read_attribute(reader, m_Id, spec_id_VPN_104, __LINE__, error);
    case attr_Offset: return read_attribute(reader, m_Offset, spec_range_minus_2147483648_to_2147483647_int32, __LINE__, error);
    case attr_Scale: return read_attribute(reader, m_Scale, spec_scale_factor, __LINE__, error);
    case attr_NumberOfDecimals: return read_attribute(reader, m_NumberOfDecimals, spec_range_0_to_7_uint8, __LINE__, error);
    case attr_UnitDesignator: return read_attribute(reader, m_UnitDesignator, spec_text_32, __LINE__, error);
    case attr_ColourLegendIdRef: return read_attribute(reader, m_ColourLegendIdRef, spec_id_CLD_105, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* ValuePresentation::accept_attribute(lmx::plain_attribute const& attribute) {
  switch (attribute.letter()) {
    case 'A': return binding::accept_attribute(m_Id, spec_id_VPN_104, attribute);
    case 'B': return binding::accept_attribute(m_Offset, spec_range_minus_2147483648_to_2147483647_int32, attribute);
    case 'C': return binding::accept_attribute(m_Scale, spec_scale_factor, attribute);
    case 'D': return binding::accept_attribute(m_NumberOfDecimals, spec_range_0_to_7_uint8, attribute);
    case 'E': return binding::accept_attribute(m_UnitDesignator, spec_text_32, attribute);
    case 'F': return binding::accept_attribute(m_ColourLegendIdRef, spec_id_CLD_105, attribute);
  }
  return nullptr;
}
bool ValuePresentation::has_required_attributes() const { return m_Id.is_set() && m_Offset.is_set() && m_Scale.is_set() && m_NumberOfDecimals.is_set(); }
lmx::elmx_error ValuePresentation::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "VPN", __LINE__, has_required_attributes());
}
bool ValuePresentation::unmarshal_body(lmx::xmlReader&, lmx::elmx_error*) { return true; }
lmx::elmx_error ValuePresentation::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void ValuePresentation::marshal_attributes(lmx::c_xml_writer& writer) const {
  write_attribute(writer, "A", m_Id, spec_id_VPN_104);
  write_attribute(writer, "B", m_Offset, spec_range_minus_2147483648_to_2147483647_int32);
  write_attribute(writer, "C", m_Scale, spec_scale_factor);
  write_attribute(writer, "D", m_NumberOfDecimals, spec_range_0_to_7_uint8);
  write_attribute(writer, "E", m_UnitDesignator, spec_text_32);
  write_attribute(writer, "F", m_ColourLegendIdRef, spec_id_CLD_105);
}
lmx::elmx_error ValuePresentation::marshal_child_elements(lmx::c_xml_writer&) const {
  return lmx::ELMX_OK;
}
bool ValuePresentation::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_Id.is_set(), "A", __LINE__) &&
         check_occurs(tracker, m_Offset.is_set(), "B", __LINE__) &&
         check_occurs(tracker, m_Scale.is_set(), "C", __LINE__) &&
         check_occurs(tracker, m_NumberOfDecimals.is_set(), "D", __LINE__);
}
bool ValuePresentation::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link);
}

// ---- CropType ----

InnerCropType::InnerCropType() { init(); }
InnerCropType::InnerCropType(InnerCropType const& other) = default;
InnerCropType::InnerCropType(InnerCropType&& other) noexcept : chosen(std::exchange(other.chosen, NothingChosen)), m_held(std::move(other.m_held)) {}
InnerCropType::InnerCropType(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_OK; unmarshal(reader, error); }
InnerCropType* InnerCropType::clone() const { return new InnerCropType(*this); }
InnerCropType::~InnerCropType() = default;
InnerCropType& InnerCropType::operator=(InnerCropType const& other) { InnerCropType copy(other); swap(copy); return *this; }
InnerCropType& InnerCropType::operator=(InnerCropType&& other) noexcept { InnerCropType taken(std::move(other)); swap(taken); return *this; }
void InnerCropType::swap(InnerCropType& other) noexcept { std::swap(chosen, other.chosen); std::swap(m_held, other.m_held); }
void InnerCropType::reset() { InnerCropType empty; swap(empty); }
void InnerCropType::init() { chosen = NothingChosen; }

lmx::s_event_map const InnerCropType::elem_event_map[] = {
    {1, "CVT", 3, elem_CropVariety},
    {0, nullptr, 0, 0},
};
void InnerCropType::release_choice() { m_held.release(); chosen = NothingChosen; }
bool InnerCropType::IsOccursOk(lmx::c_check_tracker*) const { return true; }
bool InnerCropType::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  if (!IsOccursOk(&link)) return false;
  switch (chosen) {
    case CropVarietyChosen: return m_held.check(&link, "CVT");
  }
  return true;
}
bool InnerCropType::IsMember(lmx::xmlReader& reader) { return is_member(reader, elem_event_map); }
bool InnerCropType::unmarshal(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(elem_event_map, lmx::EXAE_ELEMENT);
  switch (reader.m_event) {
    case elem_CropVariety: return read_run(reader, new_run<CropVariety>(chosen, m_held, CropVarietyChosen), elem_CropVariety, {elem_event_map, "CTP", __LINE__}, error);
  }
  return true;
}
lmx::elmx_error InnerCropType::marshal(lmx::c_xml_writer& writer, char const*) const { return marshal_child_elements(writer); }
lmx::elmx_error InnerCropType::marshal_child_elements(lmx::c_xml_writer& writer) const { return write_choice(writer, m_held, chosen, NothingChosen, elem_event_map, __LINE__); }

void InnerCropType::SelectCropVariety() { selected_run<CropVariety>(chosen, m_held, CropVarietyChosen); }
CropVariety const& InnerCropType::GetCropVariety(std::size_t index) const { return run_at<CropVariety>(m_held, {is_chosen(chosen, m_held, CropVarietyChosen), "chosen == CropVarietyChosen"}, index, "index < u.mCropVariety->size()"); }
CropVariety& InnerCropType::GetCropVariety(std::size_t index) { return selected_run<CropVariety>(chosen, m_held, CropVarietyChosen).get_or_append(index); }
CropVariety& InnerCropType::AppendCropVariety() { return selected_run<CropVariety>(chosen, m_held, CropVarietyChosen).append(); }
void InnerCropType::AppendCropVariety(CropVariety* value) { std::unique_ptr<CropVariety> owned(value); selected_run<CropVariety>(chosen, m_held, CropVarietyChosen).append(std::move(owned)); }
CropVariety& InnerCropType::InsertCropVariety(std::size_t index) { return selected_run<CropVariety>(chosen, m_held, CropVarietyChosen).insert(index); }
void InnerCropType::InsertCropVariety(std::size_t index, CropVariety* value) { std::unique_ptr<CropVariety> owned(value); selected_run<CropVariety>(chosen, m_held, CropVarietyChosen).insert(index, std::move(owned)); }
void InnerCropType::AssignCropVariety(std::size_t index, CropVariety const& value) { selected_run<CropVariety>(chosen, m_held, CropVarietyChosen).assign(index, value); }
void InnerCropType::AssignCropVariety(std::size_t index, CropVariety* value) { std::unique_ptr<CropVariety> owned(value); selected_run<CropVariety>(chosen, m_held, CropVarietyChosen).assign(index, std::move(owned)); }
CropVariety& InnerCropType::BackCropVariety() { return selected_run<CropVariety>(chosen, m_held, CropVarietyChosen).back(); }
void InnerCropType::DeleteCropVariety(std::size_t index) { erase_at<CropVariety>(m_held, {is_chosen(chosen, m_held, CropVarietyChosen), "chosen == CropVarietyChosen"}, index, "index < u.mCropVariety->size()"); }
void InnerCropType::ClearCropVariety() { selected_run<CropVariety>(chosen, m_held, CropVarietyChosen).clear(); }
std::size_t InnerCropType::SizeCropVariety() const { return run_size<CropVariety>(m_held, m_held.holds(CropVarietyChosen)); }

CropType::CropType() { init(); }
CropType::CropType(CropType const& other) = default;
CropType::CropType(CropType&& other) noexcept = default;
CropType::CropType(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
CropType* CropType::clone() const { return new CropType(*this); }
CropType::~CropType() = default;
CropType& CropType::operator=(CropType const& other) { CropType copy(other); swap(copy); return *this; }
CropType& CropType::operator=(CropType&& other) noexcept = default;
void CropType::swap(CropType& other) noexcept { std::swap(*this, other); }
void CropType::reset() { CropType empty; swap(empty); }
void CropType::init() {}

lmx::s_event_map const CropType::attr_event_map[] = {
    {1, "A", 1, attr_Id},
    {1, "B", 1, attr_Designator},
    {1, "C", 1, attr_ProductGroupIdRef},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const CropType::elem_event_map[] = {
    {1, "CVT", 3, elem_CropVariety},
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const CropType::known_elements[] = {
    {1, "CVT", 3},
    {0, nullptr, 0},
};
lmx::elmx_error CropType::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "CTP", __LINE__); }
lmx::elmx_error CropType::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_complex_content, known_elements, true, __LINE__}, &lmx::xmlReader::addNewCropType);
}
bool CropType::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_Id: return read_attribute(reader, m_Id, spec_id_CTP_31, __LINE__, error);
    case attr_Designator: return read_attribute(reader, m_Designator, spec_text_32, __LINE__, error);
    case attr_ProductGroupIdRef: return read_attribute(reader, m_ProductGroupIdRef, spec_id_PGP_32, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* CropType::accept_attribute(lmx::plain_attribute const& attribute) {
  switch (attribute.letter()) {
    case 'A': return binding::accept_attribute(m_Id, spec_id_CTP_31, attribute);
    case 'B': return binding::accept_attribute(m_Designator, spec_text_32, attribute);
    case 'C': return binding::accept_attribute(m_ProductGroupIdRef, spec_id_PGP_32, attribute);
  }
  return nullptr;
}
bool CropType::has_required_attributes() const { return m_Id.is_set() && m_Designator.is_set(); }
lmx::elmx_error CropType::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "CTP", __LINE__, has_required_attributes());
}
bool CropType::unmarshal_body(lmx::xmlReader& reader, lmx::elmx_error* error) { return read_wrappers(reader, mInnerCropType, false, {elem_event_map, "CTP", __LINE__}, error); }
lmx::elmx_error CropType::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void CropType::marshal_attributes(lmx::c_xml_writer& writer) const {
  write_attribute(writer, "A", m_Id, spec_id_CTP_31);
  write_attribute(writer, "B", m_Designator, spec_text_32);
  write_attribute(writer, "C", m_ProductGroupIdRef, spec_id_PGP_32);
}
lmx::elmx_error CropType::marshal_child_elements(lmx::c_xml_writer& writer) const {
  return write_wrappers(writer, mInnerCropType);
}
bool CropType::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_Id.is_set(), "A", __LINE__) &&
         check_occurs(tracker, m_Designator.is_set(), "B", __LINE__);
}
bool CropType::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link) && check_wrappers(&link, mInnerCropType);
}
InnerCropType const& CropType::GetInnerCropType(std::size_t index) const { LMX_ASSERT(index < mInnerCropType.size()); return mInnerCropType.get(index); }
InnerCropType& CropType::GetInnerCropType(std::size_t index) { return mInnerCropType.get_or_append(index); }
InnerCropType& CropType::AppendInnerCropType() { return mInnerCropType.append(); }
void CropType::AppendInnerCropType(InnerCropType* value) { mInnerCropType.append(std::unique_ptr<InnerCropType>(value)); }
InnerCropType& CropType::InsertInnerCropType(std::size_t index) { return mInnerCropType.insert(index); }
void CropType::InsertInnerCropType(std::size_t index, InnerCropType* value) { mInnerCropType.insert(index, std::unique_ptr<InnerCropType>(value)); }
void CropType::AssignInnerCropType(std::size_t index, InnerCropType const& value) { mInnerCropType.assign(index, value); }
void CropType::AssignInnerCropType(std::size_t index, InnerCropType* value) { mInnerCropType.assign(index, std::unique_ptr<InnerCropType>(value)); }
InnerCropType& CropType::BackInnerCropType() { return mInnerCropType.back(); }
void CropType::DeleteInnerCropType(std::size_t index) { LMX_ASSERT(index < mInnerCropType.size()); mInnerCropType.erase(index); }
void CropType::ClearInnerCropType() { mInnerCropType.clear(); }
std::size_t CropType::SizeInnerCropType() const { return mInnerCropType.size(); }

// ---- CropVariety ----

CropVariety::CropVariety() { init(); }
CropVariety::CropVariety(CropVariety const& other) = default;
CropVariety::CropVariety(CropVariety&& other) noexcept = default;
CropVariety::CropVariety(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
CropVariety* CropVariety::clone() const { return new CropVariety(*this); }
CropVariety::~CropVariety() = default;
CropVariety& CropVariety::operator=(CropVariety const& other) { CropVariety copy(other); swap(copy); return *this; }
CropVariety& CropVariety::operator=(CropVariety&& other) noexcept = default;
void CropVariety::swap(CropVariety& other) noexcept { std::swap(*this, other); }
void CropVariety::reset() { CropVariety empty; swap(empty); }
void CropVariety::init() {}

lmx::s_event_map const CropVariety::attr_event_map[] = {
    {1, "A", 1, attr_Id},
    {1, "B", 1, attr_Designator},
    {1, "C", 1, attr_ProductIdRef},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const CropVariety::elem_event_map[] = {
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const CropVariety::known_elements[] = {
    {0, nullptr, 0},
};
lmx::elmx_error CropVariety::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "CVT", __LINE__); }
lmx::elmx_error CropVariety::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_empty_content, known_elements, true, __LINE__});
}
bool CropVariety::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_Id: return read_attribute(reader, m_Id, spec_id_CVT_33, __LINE__, error);
    case attr_Designator: return read_attribute(reader, m_Designator, spec_text_32, __LINE__, error);
    case attr_ProductIdRef: return read_attribute(reader, m_ProductIdRef, spec_id_PDT_34, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* CropVariety::accept_attribute(lmx::plain_attribute const& attribute) {
  switch (attribute.letter()) {
    case 'A': return binding::accept_attribute(m_Id, spec_id_CVT_33, attribute);
    case 'B': return binding::accept_attribute(m_Designator, spec_text_32, attribute);
    case 'C': return binding::accept_attribute(m_ProductIdRef, spec_id_PDT_34, attribute);
  }
  return nullptr;
}
bool CropVariety::has_required_attributes() const { return m_Id.is_set() && m_Designator.is_set(); }
lmx::elmx_error CropVariety::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "CVT", __LINE__, has_required_attributes());
}
bool CropVariety::unmarshal_body(lmx::xmlReader&, lmx::elmx_error*) { return true; }
lmx::elmx_error CropVariety::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void CropVariety::marshal_attributes(lmx::c_xml_writer& writer) const {
  write_attribute(writer, "A", m_Id, spec_id_CVT_33);
  write_attribute(writer, "B", m_Designator, spec_text_32);
  write_attribute(writer, "C", m_ProductIdRef, spec_id_PDT_34);
}
lmx::elmx_error CropVariety::marshal_child_elements(lmx::c_xml_writer&) const {
  return lmx::ELMX_OK;
}
bool CropVariety::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_Id.is_set(), "A", __LINE__) &&
         check_occurs(tracker, m_Designator.is_set(), "B", __LINE__);
}
bool CropVariety::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link);
}

// ---- CulturalPractice ----

InnerCulturalPractice::InnerCulturalPractice() { init(); }
InnerCulturalPractice::InnerCulturalPractice(InnerCulturalPractice const& other) = default;
InnerCulturalPractice::InnerCulturalPractice(InnerCulturalPractice&& other) noexcept : chosen(std::exchange(other.chosen, NothingChosen)), m_held(std::move(other.m_held)) {}
InnerCulturalPractice::InnerCulturalPractice(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_OK; unmarshal(reader, error); }
InnerCulturalPractice* InnerCulturalPractice::clone() const { return new InnerCulturalPractice(*this); }
InnerCulturalPractice::~InnerCulturalPractice() = default;
InnerCulturalPractice& InnerCulturalPractice::operator=(InnerCulturalPractice const& other) { InnerCulturalPractice copy(other); swap(copy); return *this; }
InnerCulturalPractice& InnerCulturalPractice::operator=(InnerCulturalPractice&& other) noexcept { InnerCulturalPractice taken(std::move(other)); swap(taken); return *this; }
void InnerCulturalPractice::swap(InnerCulturalPractice& other) noexcept { std::swap(chosen, other.chosen); std::swap(m_held, other.m_held); }
void InnerCulturalPractice::reset() { InnerCulturalPractice empty; swap(empty); }
void InnerCulturalPractice::init() { chosen = NothingChosen; }

lmx::s_event_map const InnerCulturalPractice::elem_event_map[] = {
    {1, "OTR", 3, elem_OperationTechniqueReference},
    {0, nullptr, 0, 0},
};
void InnerCulturalPractice::release_choice() { m_held.release(); chosen = NothingChosen; }
bool InnerCulturalPractice::IsOccursOk(lmx::c_check_tracker*) const { return true; }
bool InnerCulturalPractice::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  if (!IsOccursOk(&link)) return false;
  switch (chosen) {
    case OperationTechniqueReferenceChosen: return m_held.check(&link, "OTR");
  }
  return true;
}
bool InnerCulturalPractice::IsMember(lmx::xmlReader& reader) { return is_member(reader, elem_event_map); }
bool InnerCulturalPractice::unmarshal(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(elem_event_map, lmx::EXAE_ELEMENT);
  switch (reader.m_event) {
    case elem_OperationTechniqueReference: return read_run(reader, new_run<OperationTechniqueReference>(chosen, m_held, OperationTechniqueReferenceChosen), elem_OperationTechniqueReference, {elem_event_map, "CPC", __LINE__}, error);
  }
  return true;
}
lmx::elmx_error InnerCulturalPractice::marshal(lmx::c_xml_writer& writer, char const*) const { return marshal_child_elements(writer); }
lmx::elmx_error InnerCulturalPractice::marshal_child_elements(lmx::c_xml_writer& writer) const { return write_choice(writer, m_held, chosen, NothingChosen, elem_event_map, __LINE__); }

void InnerCulturalPractice::SelectOperationTechniqueReference() { selected_run<OperationTechniqueReference>(chosen, m_held, OperationTechniqueReferenceChosen); }
OperationTechniqueReference const& InnerCulturalPractice::GetOperationTechniqueReference(std::size_t index) const { return run_at<OperationTechniqueReference>(m_held, {is_chosen(chosen, m_held, OperationTechniqueReferenceChosen), "chosen == OperationTechniqueReferenceChosen"}, index, "index < u.mOperationTechniqueReference->size()"); }
OperationTechniqueReference& InnerCulturalPractice::GetOperationTechniqueReference(std::size_t index) { return selected_run<OperationTechniqueReference>(chosen, m_held, OperationTechniqueReferenceChosen).get_or_append(index); }
OperationTechniqueReference& InnerCulturalPractice::AppendOperationTechniqueReference() { return selected_run<OperationTechniqueReference>(chosen, m_held, OperationTechniqueReferenceChosen).append(); }
void InnerCulturalPractice::AppendOperationTechniqueReference(OperationTechniqueReference* value) { std::unique_ptr<OperationTechniqueReference> owned(value); selected_run<OperationTechniqueReference>(chosen, m_held, OperationTechniqueReferenceChosen).append(std::move(owned)); }
OperationTechniqueReference& InnerCulturalPractice::InsertOperationTechniqueReference(std::size_t index) { return selected_run<OperationTechniqueReference>(chosen, m_held, OperationTechniqueReferenceChosen).insert(index); }
void InnerCulturalPractice::InsertOperationTechniqueReference(std::size_t index, OperationTechniqueReference* value) { std::unique_ptr<OperationTechniqueReference> owned(value); selected_run<OperationTechniqueReference>(chosen, m_held, OperationTechniqueReferenceChosen).insert(index, std::move(owned)); }
void InnerCulturalPractice::AssignOperationTechniqueReference(std::size_t index, OperationTechniqueReference const& value) { selected_run<OperationTechniqueReference>(chosen, m_held, OperationTechniqueReferenceChosen).assign(index, value); }
void InnerCulturalPractice::AssignOperationTechniqueReference(std::size_t index, OperationTechniqueReference* value) { std::unique_ptr<OperationTechniqueReference> owned(value); selected_run<OperationTechniqueReference>(chosen, m_held, OperationTechniqueReferenceChosen).assign(index, std::move(owned)); }
OperationTechniqueReference& InnerCulturalPractice::BackOperationTechniqueReference() { return selected_run<OperationTechniqueReference>(chosen, m_held, OperationTechniqueReferenceChosen).back(); }
void InnerCulturalPractice::DeleteOperationTechniqueReference(std::size_t index) { erase_at<OperationTechniqueReference>(m_held, {is_chosen(chosen, m_held, OperationTechniqueReferenceChosen), "chosen == OperationTechniqueReferenceChosen"}, index, "index < u.mOperationTechniqueReference->size()"); }
void InnerCulturalPractice::ClearOperationTechniqueReference() { selected_run<OperationTechniqueReference>(chosen, m_held, OperationTechniqueReferenceChosen).clear(); }
std::size_t InnerCulturalPractice::SizeOperationTechniqueReference() const { return run_size<OperationTechniqueReference>(m_held, m_held.holds(OperationTechniqueReferenceChosen)); }

CulturalPractice::CulturalPractice() { init(); }
CulturalPractice::CulturalPractice(CulturalPractice const& other) = default;
CulturalPractice::CulturalPractice(CulturalPractice&& other) noexcept = default;
CulturalPractice::CulturalPractice(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
CulturalPractice* CulturalPractice::clone() const { return new CulturalPractice(*this); }
CulturalPractice::~CulturalPractice() = default;
CulturalPractice& CulturalPractice::operator=(CulturalPractice const& other) { CulturalPractice copy(other); swap(copy); return *this; }
CulturalPractice& CulturalPractice::operator=(CulturalPractice&& other) noexcept = default;
void CulturalPractice::swap(CulturalPractice& other) noexcept { std::swap(*this, other); }
void CulturalPractice::reset() { CulturalPractice empty; swap(empty); }
void CulturalPractice::init() {}

lmx::s_event_map const CulturalPractice::attr_event_map[] = {
    {1, "A", 1, attr_Id},
    {1, "B", 1, attr_Designator},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const CulturalPractice::elem_event_map[] = {
    {1, "OTR", 3, elem_OperationTechniqueReference},
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const CulturalPractice::known_elements[] = {
    {1, "OTR", 3},
    {0, nullptr, 0},
};
lmx::elmx_error CulturalPractice::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "CPC", __LINE__); }
lmx::elmx_error CulturalPractice::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_complex_content, known_elements, true, __LINE__});
}
bool CulturalPractice::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_Id: return read_attribute(reader, m_Id, spec_id_CPC_35, __LINE__, error);
    case attr_Designator: return read_attribute(reader, m_Designator, spec_text_32, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* CulturalPractice::accept_attribute(lmx::plain_attribute const& attribute) {
  switch (attribute.letter()) {
    case 'A': return binding::accept_attribute(m_Id, spec_id_CPC_35, attribute);
    case 'B': return binding::accept_attribute(m_Designator, spec_text_32, attribute);
  }
  return nullptr;
}
bool CulturalPractice::has_required_attributes() const { return m_Id.is_set() && m_Designator.is_set(); }
lmx::elmx_error CulturalPractice::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "CPC", __LINE__, has_required_attributes());
}
bool CulturalPractice::unmarshal_body(lmx::xmlReader& reader, lmx::elmx_error* error) { return read_wrappers(reader, mInnerCulturalPractice, false, {elem_event_map, "CPC", __LINE__}, error); }
lmx::elmx_error CulturalPractice::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void CulturalPractice::marshal_attributes(lmx::c_xml_writer& writer) const {
  write_attribute(writer, "A", m_Id, spec_id_CPC_35);
  write_attribute(writer, "B", m_Designator, spec_text_32);
}
lmx::elmx_error CulturalPractice::marshal_child_elements(lmx::c_xml_writer& writer) const {
  return write_wrappers(writer, mInnerCulturalPractice);
}
bool CulturalPractice::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_Id.is_set(), "A", __LINE__) &&
         check_occurs(tracker, m_Designator.is_set(), "B", __LINE__);
}
bool CulturalPractice::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link) && check_wrappers(&link, mInnerCulturalPractice);
}
InnerCulturalPractice const& CulturalPractice::GetInnerCulturalPractice(std::size_t index) const { LMX_ASSERT(index < mInnerCulturalPractice.size()); return mInnerCulturalPractice.get(index); }
InnerCulturalPractice& CulturalPractice::GetInnerCulturalPractice(std::size_t index) { return mInnerCulturalPractice.get_or_append(index); }
InnerCulturalPractice& CulturalPractice::AppendInnerCulturalPractice() { return mInnerCulturalPractice.append(); }
void CulturalPractice::AppendInnerCulturalPractice(InnerCulturalPractice* value) { mInnerCulturalPractice.append(std::unique_ptr<InnerCulturalPractice>(value)); }
InnerCulturalPractice& CulturalPractice::InsertInnerCulturalPractice(std::size_t index) { return mInnerCulturalPractice.insert(index); }
void CulturalPractice::InsertInnerCulturalPractice(std::size_t index, InnerCulturalPractice* value) { mInnerCulturalPractice.insert(index, std::unique_ptr<InnerCulturalPractice>(value)); }
void CulturalPractice::AssignInnerCulturalPractice(std::size_t index, InnerCulturalPractice const& value) { mInnerCulturalPractice.assign(index, value); }
void CulturalPractice::AssignInnerCulturalPractice(std::size_t index, InnerCulturalPractice* value) { mInnerCulturalPractice.assign(index, std::unique_ptr<InnerCulturalPractice>(value)); }
InnerCulturalPractice& CulturalPractice::BackInnerCulturalPractice() { return mInnerCulturalPractice.back(); }
void CulturalPractice::DeleteInnerCulturalPractice(std::size_t index) { LMX_ASSERT(index < mInnerCulturalPractice.size()); mInnerCulturalPractice.erase(index); }
void CulturalPractice::ClearInnerCulturalPractice() { mInnerCulturalPractice.clear(); }
std::size_t CulturalPractice::SizeInnerCulturalPractice() const { return mInnerCulturalPractice.size(); }

// ---- OperationTechnique ----

OperationTechnique::OperationTechnique() { init(); }
OperationTechnique::OperationTechnique(OperationTechnique const& other) = default;
OperationTechnique::OperationTechnique(OperationTechnique&& other) noexcept = default;
OperationTechnique::OperationTechnique(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
OperationTechnique* OperationTechnique::clone() const { return new OperationTechnique(*this); }
OperationTechnique::~OperationTechnique() = default;
OperationTechnique& OperationTechnique::operator=(OperationTechnique const& other) { OperationTechnique copy(other); swap(copy); return *this; }
OperationTechnique& OperationTechnique::operator=(OperationTechnique&& other) noexcept = default;
void OperationTechnique::swap(OperationTechnique& other) noexcept { std::swap(*this, other); }
void OperationTechnique::reset() { OperationTechnique empty; swap(empty); }
void OperationTechnique::init() {}

lmx::s_event_map const OperationTechnique::attr_event_map[] = {
    {1, "A", 1, attr_Id},
    {1, "B", 1, attr_Designator},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const OperationTechnique::elem_event_map[] = {
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const OperationTechnique::known_elements[] = {
    {0, nullptr, 0},
};
lmx::elmx_error OperationTechnique::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "OTQ", __LINE__); }
lmx::elmx_error OperationTechnique::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_empty_content, known_elements, true, __LINE__});
}
bool OperationTechnique::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_Id: return read_attribute(reader, m_Id, spec_id_OTQ_70, __LINE__, error);
    case attr_Designator: return read_attribute(reader, m_Designator, spec_text_32, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* OperationTechnique::accept_attribute(lmx::plain_attribute const& attribute) {
  switch (attribute.letter()) {
    case 'A': return binding::accept_attribute(m_Id, spec_id_OTQ_70, attribute);
    case 'B': return binding::accept_attribute(m_Designator, spec_text_32, attribute);
  }
  return nullptr;
}
bool OperationTechnique::has_required_attributes() const { return m_Id.is_set() && m_Designator.is_set(); }
lmx::elmx_error OperationTechnique::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "OTQ", __LINE__, has_required_attributes());
}
bool OperationTechnique::unmarshal_body(lmx::xmlReader&, lmx::elmx_error*) { return true; }
lmx::elmx_error OperationTechnique::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void OperationTechnique::marshal_attributes(lmx::c_xml_writer& writer) const {
  write_attribute(writer, "A", m_Id, spec_id_OTQ_70);
  write_attribute(writer, "B", m_Designator, spec_text_32);
}
lmx::elmx_error OperationTechnique::marshal_child_elements(lmx::c_xml_writer&) const {
  return lmx::ELMX_OK;
}
bool OperationTechnique::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_Id.is_set(), "A", __LINE__) &&
         check_occurs(tracker, m_Designator.is_set(), "B", __LINE__);
}
bool OperationTechnique::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link);
}

// ---- OperationTechniqueReference ----

OperationTechniqueReference::OperationTechniqueReference() { init(); }
OperationTechniqueReference::OperationTechniqueReference(OperationTechniqueReference const& other) = default;
OperationTechniqueReference::OperationTechniqueReference(OperationTechniqueReference&& other) noexcept = default;
OperationTechniqueReference::OperationTechniqueReference(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
OperationTechniqueReference* OperationTechniqueReference::clone() const { return new OperationTechniqueReference(*this); }
OperationTechniqueReference::~OperationTechniqueReference() = default;
OperationTechniqueReference& OperationTechniqueReference::operator=(OperationTechniqueReference const& other) { OperationTechniqueReference copy(other); swap(copy); return *this; }
OperationTechniqueReference& OperationTechniqueReference::operator=(OperationTechniqueReference&& other) noexcept = default;
void OperationTechniqueReference::swap(OperationTechniqueReference& other) noexcept { std::swap(*this, other); }
void OperationTechniqueReference::reset() { OperationTechniqueReference empty; swap(empty); }
void OperationTechniqueReference::init() {}

lmx::s_event_map const OperationTechniqueReference::attr_event_map[] = {
    {1, "A", 1, attr_OperationTechniqueIdRef},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const OperationTechniqueReference::elem_event_map[] = {
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const OperationTechniqueReference::known_elements[] = {
    {0, nullptr, 0},
};
lmx::elmx_error OperationTechniqueReference::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "OTR", __LINE__); }
lmx::elmx_error OperationTechniqueReference::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_empty_content, known_elements, true, __LINE__});
}
bool OperationTechniqueReference::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_OperationTechniqueIdRef: return read_attribute(reader, m_OperationTechniqueIdRef, spec_id_OTQ_71, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* OperationTechniqueReference::accept_attribute(lmx::plain_attribute const& attribute) {
  switch (attribute.letter()) {
    case 'A': return binding::accept_attribute(m_OperationTechniqueIdRef, spec_id_OTQ_71, attribute);
  }
  return nullptr;
}
bool OperationTechniqueReference::has_required_attributes() const { return m_OperationTechniqueIdRef.is_set(); }
lmx::elmx_error OperationTechniqueReference::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "OTR", __LINE__, has_required_attributes());
}
bool OperationTechniqueReference::unmarshal_body(lmx::xmlReader&, lmx::elmx_error*) { return true; }
lmx::elmx_error OperationTechniqueReference::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void OperationTechniqueReference::marshal_attributes(lmx::c_xml_writer& writer) const {
  write_attribute(writer, "A", m_OperationTechniqueIdRef, spec_id_OTQ_71);
}
lmx::elmx_error OperationTechniqueReference::marshal_child_elements(lmx::c_xml_writer&) const {
  return lmx::ELMX_OK;
}
bool OperationTechniqueReference::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_OperationTechniqueIdRef.is_set(), "A", __LINE__);
}
bool OperationTechniqueReference::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link);
}

// ---- CodedComment ----

InnerCodedComment::InnerCodedComment() { init(); }
InnerCodedComment::InnerCodedComment(InnerCodedComment const& other) = default;
InnerCodedComment::InnerCodedComment(InnerCodedComment&& other) noexcept : chosen(std::exchange(other.chosen, NothingChosen)), m_held(std::move(other.m_held)) {}
InnerCodedComment::InnerCodedComment(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_OK; unmarshal(reader, error); }
InnerCodedComment* InnerCodedComment::clone() const { return new InnerCodedComment(*this); }
InnerCodedComment::~InnerCodedComment() = default;
InnerCodedComment& InnerCodedComment::operator=(InnerCodedComment const& other) { InnerCodedComment copy(other); swap(copy); return *this; }
InnerCodedComment& InnerCodedComment::operator=(InnerCodedComment&& other) noexcept { InnerCodedComment taken(std::move(other)); swap(taken); return *this; }
void InnerCodedComment::swap(InnerCodedComment& other) noexcept { std::swap(chosen, other.chosen); std::swap(m_held, other.m_held); }
void InnerCodedComment::reset() { InnerCodedComment empty; swap(empty); }
void InnerCodedComment::init() { chosen = NothingChosen; }

lmx::s_event_map const InnerCodedComment::elem_event_map[] = {
    {1, "CCL", 3, elem_CodedCommentListValue},
    {0, nullptr, 0, 0},
};
void InnerCodedComment::release_choice() { m_held.release(); chosen = NothingChosen; }
bool InnerCodedComment::IsOccursOk(lmx::c_check_tracker*) const { return true; }
bool InnerCodedComment::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  if (!IsOccursOk(&link)) return false;
  switch (chosen) {
    case CodedCommentListValueChosen: return m_held.check(&link, "CCL");
  }
  return true;
}
bool InnerCodedComment::IsMember(lmx::xmlReader& reader) { return is_member(reader, elem_event_map); }
bool InnerCodedComment::unmarshal(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(elem_event_map, lmx::EXAE_ELEMENT);
  switch (reader.m_event) {
    case elem_CodedCommentListValue: return read_run(reader, new_run<CodedCommentListValue>(chosen, m_held, CodedCommentListValueChosen), elem_CodedCommentListValue, {elem_event_map, "CCT", __LINE__}, error);
  }
  return true;
}
lmx::elmx_error InnerCodedComment::marshal(lmx::c_xml_writer& writer, char const*) const { return marshal_child_elements(writer); }
lmx::elmx_error InnerCodedComment::marshal_child_elements(lmx::c_xml_writer& writer) const { return write_choice(writer, m_held, chosen, NothingChosen, elem_event_map, __LINE__); }

void InnerCodedComment::SelectCodedCommentListValue() { selected_run<CodedCommentListValue>(chosen, m_held, CodedCommentListValueChosen); }
CodedCommentListValue const& InnerCodedComment::GetCodedCommentListValue(std::size_t index) const { return run_at<CodedCommentListValue>(m_held, {is_chosen(chosen, m_held, CodedCommentListValueChosen), "chosen == CodedCommentListValueChosen"}, index, "index < u.mCodedCommentListValue->size()"); }
CodedCommentListValue& InnerCodedComment::GetCodedCommentListValue(std::size_t index) { return selected_run<CodedCommentListValue>(chosen, m_held, CodedCommentListValueChosen).get_or_append(index); }
CodedCommentListValue& InnerCodedComment::AppendCodedCommentListValue() { return selected_run<CodedCommentListValue>(chosen, m_held, CodedCommentListValueChosen).append(); }
void InnerCodedComment::AppendCodedCommentListValue(CodedCommentListValue* value) { std::unique_ptr<CodedCommentListValue> owned(value); selected_run<CodedCommentListValue>(chosen, m_held, CodedCommentListValueChosen).append(std::move(owned)); }
CodedCommentListValue& InnerCodedComment::InsertCodedCommentListValue(std::size_t index) { return selected_run<CodedCommentListValue>(chosen, m_held, CodedCommentListValueChosen).insert(index); }
void InnerCodedComment::InsertCodedCommentListValue(std::size_t index, CodedCommentListValue* value) { std::unique_ptr<CodedCommentListValue> owned(value); selected_run<CodedCommentListValue>(chosen, m_held, CodedCommentListValueChosen).insert(index, std::move(owned)); }
void InnerCodedComment::AssignCodedCommentListValue(std::size_t index, CodedCommentListValue const& value) { selected_run<CodedCommentListValue>(chosen, m_held, CodedCommentListValueChosen).assign(index, value); }
void InnerCodedComment::AssignCodedCommentListValue(std::size_t index, CodedCommentListValue* value) { std::unique_ptr<CodedCommentListValue> owned(value); selected_run<CodedCommentListValue>(chosen, m_held, CodedCommentListValueChosen).assign(index, std::move(owned)); }
CodedCommentListValue& InnerCodedComment::BackCodedCommentListValue() { return selected_run<CodedCommentListValue>(chosen, m_held, CodedCommentListValueChosen).back(); }
void InnerCodedComment::DeleteCodedCommentListValue(std::size_t index) { erase_at<CodedCommentListValue>(m_held, {is_chosen(chosen, m_held, CodedCommentListValueChosen), "chosen == CodedCommentListValueChosen"}, index, "index < u.mCodedCommentListValue->size()"); }
void InnerCodedComment::ClearCodedCommentListValue() { selected_run<CodedCommentListValue>(chosen, m_held, CodedCommentListValueChosen).clear(); }
std::size_t InnerCodedComment::SizeCodedCommentListValue() const { return run_size<CodedCommentListValue>(m_held, m_held.holds(CodedCommentListValueChosen)); }

CodedComment::CodedComment() { init(); }
CodedComment::CodedComment(CodedComment const& other) = default;
CodedComment::CodedComment(CodedComment&& other) noexcept = default;
CodedComment::CodedComment(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
CodedComment* CodedComment::clone() const { return new CodedComment(*this); }
CodedComment::~CodedComment() = default;
CodedComment& CodedComment::operator=(CodedComment const& other) { CodedComment copy(other); swap(copy); return *this; }
CodedComment& CodedComment::operator=(CodedComment&& other) noexcept = default;
void CodedComment::swap(CodedComment& other) noexcept { std::swap(*this, other); }
void CodedComment::reset() { CodedComment empty; swap(empty); }
void CodedComment::init() {}

lmx::s_event_map const CodedComment::attr_event_map[] = {
    {1, "A", 1, attr_Id},
    {1, "B", 1, attr_Designator},
    {1, "C", 1, attr_Scope},
    {1, "D", 1, attr_CodedCommentGroupIdRef},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const CodedComment::elem_event_map[] = {
    {1, "CCL", 3, elem_CodedCommentListValue},
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const CodedComment::known_elements[] = {
    {1, "CCL", 3},
    {0, nullptr, 0},
};
lmx::elmx_error CodedComment::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "CCT", __LINE__); }
lmx::elmx_error CodedComment::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_complex_content, known_elements, true, __LINE__});
}
bool CodedComment::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_Id: return read_attribute(reader, m_Id, spec_id_CCT_17, __LINE__, error);
    case attr_Designator: return read_attribute(reader, m_Designator, spec_text_32, __LINE__, error);
    case attr_Scope: return read_attribute(reader, m_Scope, spec_one_of_1_to_3, __LINE__, error);
    case attr_CodedCommentGroupIdRef: return read_attribute(reader, m_CodedCommentGroupIdRef, spec_id_CCG_18, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* CodedComment::accept_attribute(lmx::plain_attribute const& attribute) {
  switch (attribute.letter()) {
    case 'A': return binding::accept_attribute(m_Id, spec_id_CCT_17, attribute);
    case 'B': return binding::accept_attribute(m_Designator, spec_text_32, attribute);
    case 'C': return binding::accept_attribute(m_Scope, spec_one_of_1_to_3, attribute);
    case 'D': return binding::accept_attribute(m_CodedCommentGroupIdRef, spec_id_CCG_18, attribute);
  }
  return nullptr;
}
bool CodedComment::has_required_attributes() const { return m_Id.is_set() && m_Designator.is_set() && m_Scope.is_set(); }
lmx::elmx_error CodedComment::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "CCT", __LINE__, has_required_attributes());
}
bool CodedComment::unmarshal_body(lmx::xmlReader& reader, lmx::elmx_error* error) { return read_wrappers(reader, mInnerCodedComment, false, {elem_event_map, "CCT", __LINE__}, error); }
lmx::elmx_error CodedComment::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void CodedComment::marshal_attributes(lmx::c_xml_writer& writer) const {
  write_attribute(writer, "A", m_Id, spec_id_CCT_17);
  write_attribute(writer, "B", m_Designator, spec_text_32);
  write_attribute(writer, "C", m_Scope, spec_one_of_1_to_3);
  write_attribute(writer, "D", m_CodedCommentGroupIdRef, spec_id_CCG_18);
}
lmx::elmx_error CodedComment::marshal_child_elements(lmx::c_xml_writer& writer) const {
  return write_wrappers(writer, mInnerCodedComment);
}
bool CodedComment::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_Id.is_set(), "A", __LINE__) &&
         check_occurs(tracker, m_Designator.is_set(), "B", __LINE__) &&
         check_occurs(tracker, m_Scope.is_set(), "C", __LINE__);
}
bool CodedComment::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link) && check_wrappers(&link, mInnerCodedComment);
}
InnerCodedComment const& CodedComment::GetInnerCodedComment(std::size_t index) const { LMX_ASSERT(index < mInnerCodedComment.size()); return mInnerCodedComment.get(index); }
InnerCodedComment& CodedComment::GetInnerCodedComment(std::size_t index) { return mInnerCodedComment.get_or_append(index); }
InnerCodedComment& CodedComment::AppendInnerCodedComment() { return mInnerCodedComment.append(); }
void CodedComment::AppendInnerCodedComment(InnerCodedComment* value) { mInnerCodedComment.append(std::unique_ptr<InnerCodedComment>(value)); }
InnerCodedComment& CodedComment::InsertInnerCodedComment(std::size_t index) { return mInnerCodedComment.insert(index); }
void CodedComment::InsertInnerCodedComment(std::size_t index, InnerCodedComment* value) { mInnerCodedComment.insert(index, std::unique_ptr<InnerCodedComment>(value)); }
void CodedComment::AssignInnerCodedComment(std::size_t index, InnerCodedComment const& value) { mInnerCodedComment.assign(index, value); }
void CodedComment::AssignInnerCodedComment(std::size_t index, InnerCodedComment* value) { mInnerCodedComment.assign(index, std::unique_ptr<InnerCodedComment>(value)); }
InnerCodedComment& CodedComment::BackInnerCodedComment() { return mInnerCodedComment.back(); }
void CodedComment::DeleteInnerCodedComment(std::size_t index) { LMX_ASSERT(index < mInnerCodedComment.size()); mInnerCodedComment.erase(index); }
void CodedComment::ClearInnerCodedComment() { mInnerCodedComment.clear(); }
std::size_t CodedComment::SizeInnerCodedComment() const { return mInnerCodedComment.size(); }
elmx_enums CodedComment::GetenumScope() const { return enum_code(list_17, m_Scope.get()); }
bool CodedComment::SetenumScope(elmx_enums code) { return set_enum(list_17, code, m_Scope); }

// ---- CoddedCommentGroup ----

CoddedCommentGroup::CoddedCommentGroup() { init(); }
CoddedCommentGroup::CoddedCommentGroup(CoddedCommentGroup const& other) = default;
CoddedCommentGroup::CoddedCommentGroup(CoddedCommentGroup&& other) noexcept = default;
CoddedCommentGroup::CoddedCommentGroup(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
CoddedCommentGroup* CoddedCommentGroup::clone() const { return new CoddedCommentGroup(*this); }
CoddedCommentGroup::~CoddedCommentGroup() = default;
CoddedCommentGroup& CoddedCommentGroup::operator=(CoddedCommentGroup const& other) { CoddedCommentGroup copy(other); swap(copy); return *this; }
CoddedCommentGroup& CoddedCommentGroup::operator=(CoddedCommentGroup&& other) noexcept = default;
void CoddedCommentGroup::swap(CoddedCommentGroup& other) noexcept { std::swap(*this, other); }
void CoddedCommentGroup::reset() { CoddedCommentGroup empty; swap(empty); }
void CoddedCommentGroup::init() {}

lmx::s_event_map const CoddedCommentGroup::attr_event_map[] = {
    {1, "A", 1, attr_Id},
    {1, "B", 1, attr_Designator},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const CoddedCommentGroup::elem_event_map[] = {
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const CoddedCommentGroup::known_elements[] = {
    {0, nullptr, 0},
};
lmx::elmx_error CoddedCommentGroup::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "CCG", __LINE__); }
lmx::elmx_error CoddedCommentGroup::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_empty_content, known_elements, true, __LINE__});
}
bool CoddedCommentGroup::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_Id: return read_attribute(reader, m_Id, spec_id_CCG_19, __LINE__, error);
    case attr_Designator: return read_attribute(reader, m_Designator, spec_text_32, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* CoddedCommentGroup::accept_attribute(lmx::plain_attribute const& attribute) {
  switch (attribute.letter()) {
    case 'A': return binding::accept_attribute(m_Id, spec_id_CCG_19, attribute);
    case 'B': return binding::accept_attribute(m_Designator, spec_text_32, attribute);
  }
  return nullptr;
}
bool CoddedCommentGroup::has_required_attributes() const { return m_Id.is_set() && m_Designator.is_set(); }
lmx::elmx_error CoddedCommentGroup::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "CCG", __LINE__, has_required_attributes());
}
bool CoddedCommentGroup::unmarshal_body(lmx::xmlReader&, lmx::elmx_error*) { return true; }
lmx::elmx_error CoddedCommentGroup::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void CoddedCommentGroup::marshal_attributes(lmx::c_xml_writer& writer) const {
  write_attribute(writer, "A", m_Id, spec_id_CCG_19);
  write_attribute(writer, "B", m_Designator, spec_text_32);
}
lmx::elmx_error CoddedCommentGroup::marshal_child_elements(lmx::c_xml_writer&) const {
  return lmx::ELMX_OK;
}
bool CoddedCommentGroup::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_Id.is_set(), "A", __LINE__) &&
         check_occurs(tracker, m_Designator.is_set(), "B", __LINE__);
}
bool CoddedCommentGroup::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link);
}

// ---- CodedCommentListValue ----

CodedCommentListValue::CodedCommentListValue() { init(); }
CodedCommentListValue::CodedCommentListValue(CodedCommentListValue const& other) = default;
CodedCommentListValue::CodedCommentListValue(CodedCommentListValue&& other) noexcept = default;
CodedCommentListValue::CodedCommentListValue(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
CodedCommentListValue* CodedCommentListValue::clone() const { return new CodedCommentListValue(*this); }
CodedCommentListValue::~CodedCommentListValue() = default;
CodedCommentListValue& CodedCommentListValue::operator=(CodedCommentListValue const& other) { CodedCommentListValue copy(other); swap(copy); return *this; }
CodedCommentListValue& CodedCommentListValue::operator=(CodedCommentListValue&& other) noexcept = default;
void CodedCommentListValue::swap(CodedCommentListValue& other) noexcept { std::swap(*this, other); }
void CodedCommentListValue::reset() { CodedCommentListValue empty; swap(empty); }
void CodedCommentListValue::init() {}

lmx::s_event_map const CodedCommentListValue::attr_event_map[] = {
    {1, "A", 1, attr_Id},
    {1, "B", 1, attr_Designator},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const CodedCommentListValue::elem_event_map[] = {
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const CodedCommentListValue::known_elements[] = {
    {0, nullptr, 0},
};
lmx::elmx_error CodedCommentListValue::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "CCL", __LINE__); }
lmx::elmx_error CodedCommentListValue::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_empty_content, known_elements, true, __LINE__});
}
bool CodedCommentListValue::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_Id: return read_attribute(reader, m_Id, spec_id_CCL_20, __LINE__, error);
    case attr_Designator: return read_attribute(reader, m_Designator, spec_text_32, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* CodedCommentListValue::accept_attribute(lmx::plain_attribute const& attribute) {
  switch (attribute.letter()) {
    case 'A': return binding::accept_attribute(m_Id, spec_id_CCL_20, attribute);
    case 'B': return binding::accept_attribute(m_Designator, spec_text_32, attribute);
  }
  return nullptr;
}
bool CodedCommentListValue::has_required_attributes() const { return m_Id.is_set() && m_Designator.is_set(); }
lmx::elmx_error CodedCommentListValue::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "CCL", __LINE__, has_required_attributes());
}
bool CodedCommentListValue::unmarshal_body(lmx::xmlReader&, lmx::elmx_error*) { return true; }
lmx::elmx_error CodedCommentListValue::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void CodedCommentListValue::marshal_attributes(lmx::c_xml_writer& writer) const {
  write_attribute(writer, "A", m_Id, spec_id_CCL_20);
  write_attribute(writer, "B", m_Designator, spec_text_32);
}
lmx::elmx_error CodedCommentListValue::marshal_child_elements(lmx::c_xml_writer&) const {
  return lmx::ELMX_OK;
}
bool CodedCommentListValue::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_Id.is_set(), "A", __LINE__) &&
         check_occurs(tracker, m_Designator.is_set(), "B", __LINE__);
}
bool CodedCommentListValue::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link);
}

// ---- ColourLegend ----

InnerColourLegend::InnerColourLegend() { init(); }
InnerColourLegend::InnerColourLegend(InnerColourLegend const& other) = default;
InnerColourLegend::InnerColourLegend(InnerColourLegend&& other) noexcept : chosen(std::exchange(other.chosen, NothingChosen)), m_held(std::move(other.m_held)) {}
InnerColourLegend::InnerColourLegend(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_OK; unmarshal(reader, error); }
InnerColourLegend* InnerColourLegend::clone() const { return new InnerColourLegend(*this); }
InnerColourLegend::~InnerColourLegend() = default;
InnerColourLegend& InnerColourLegend::operator=(InnerColourLegend const& other) { InnerColourLegend copy(other); swap(copy); return *this; }
InnerColourLegend& InnerColourLegend::operator=(InnerColourLegend&& other) noexcept { InnerColourLegend taken(std::move(other)); swap(taken); return *this; }
void InnerColourLegend::swap(InnerColourLegend& other) noexcept { std::swap(chosen, other.chosen); std::swap(m_held, other.m_held); }
void InnerColourLegend::reset() { InnerColourLegend empty; swap(empty); }
void InnerColourLegend::init() { chosen = NothingChosen; }

lmx::s_event_map const InnerColourLegend::elem_event_map[] = {
    {1, "CRG", 3, elem_ColourRange},
    {0, nullptr, 0, 0},
};
void InnerColourLegend::release_choice() { m_held.release(); chosen = NothingChosen; }
bool InnerColourLegend::IsOccursOk(lmx::c_check_tracker*) const { return true; }
bool InnerColourLegend::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  if (!IsOccursOk(&link)) return false;
  switch (chosen) {
    case ColourRangeChosen: return m_held.check(&link, "CRG");
  }
  return true;
}
bool InnerColourLegend::IsMember(lmx::xmlReader& reader) { return is_member(reader, elem_event_map); }
bool InnerColourLegend::unmarshal(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(elem_event_map, lmx::EXAE_ELEMENT);
  switch (reader.m_event) {
    case elem_ColourRange: return read_mandatory_run(reader, new_run<ColourRange>(chosen, m_held, ColourRangeChosen), elem_ColourRange, {elem_event_map, "CLD", __LINE__}, error);
  }
  return report(reader, lmx::ELMX_UNEXPECTED_COMPLEX_ELEMENT, {elem_event_map, "CLD", __LINE__}, error);
}
lmx::elmx_error InnerColourLegend::marshal(lmx::c_xml_writer& writer, char const*) const { return marshal_child_elements(writer); }
lmx::elmx_error InnerColourLegend::marshal_child_elements(lmx::c_xml_writer& writer) const { return write_choice(writer, m_held, chosen, NothingChosen, elem_event_map, __LINE__); }

void InnerColourLegend::SelectColourRange() { selected_run<ColourRange>(chosen, m_held, ColourRangeChosen); }
ColourRange const& InnerColourLegend::GetColourRange(std::size_t index) const { return run_at<ColourRange>(m_held, {is_chosen(chosen, m_held, ColourRangeChosen), "chosen == ColourRangeChosen"}, index, "index < u.mColourRange->size()"); }
ColourRange& InnerColourLegend::GetColourRange(std::size_t index) { return selected_run<ColourRange>(chosen, m_held, ColourRangeChosen).get_or_append(index); }
ColourRange& InnerColourLegend::AppendColourRange() { return selected_run<ColourRange>(chosen, m_held, ColourRangeChosen).append(); }
void InnerColourLegend::AppendColourRange(ColourRange* value) { std::unique_ptr<ColourRange> owned(value); selected_run<ColourRange>(chosen, m_held, ColourRangeChosen).append(std::move(owned)); }
ColourRange& InnerColourLegend::InsertColourRange(std::size_t index) { return selected_run<ColourRange>(chosen, m_held, ColourRangeChosen).insert(index); }
void InnerColourLegend::InsertColourRange(std::size_t index, ColourRange* value) { std::unique_ptr<ColourRange> owned(value); selected_run<ColourRange>(chosen, m_held, ColourRangeChosen).insert(index, std::move(owned)); }
void InnerColourLegend::AssignColourRange(std::size_t index, ColourRange const& value) { selected_run<ColourRange>(chosen, m_held, ColourRangeChosen).assign(index, value); }
void InnerColourLegend::AssignColourRange(std::size_t index, ColourRange* value) { std::unique_ptr<ColourRange> owned(value); selected_run<ColourRange>(chosen, m_held, ColourRangeChosen).assign(index, std::move(owned)); }
ColourRange& InnerColourLegend::BackColourRange() { return selected_run<ColourRange>(chosen, m_held, ColourRangeChosen).back(); }
void InnerColourLegend::DeleteColourRange(std::size_t index) { erase_at<ColourRange>(m_held, {is_chosen(chosen, m_held, ColourRangeChosen), "chosen == ColourRangeChosen"}, index, "index < u.mColourRange->size()"); }
void InnerColourLegend::ClearColourRange() { selected_run<ColourRange>(chosen, m_held, ColourRangeChosen).clear(); }
std::size_t InnerColourLegend::SizeColourRange() const { return run_size<ColourRange>(m_held, m_held.holds(ColourRangeChosen)); }

ColourLegend::ColourLegend() { init(); }
ColourLegend::ColourLegend(ColourLegend const& other) = default;
ColourLegend::ColourLegend(ColourLegend&& other) noexcept = default;
ColourLegend::ColourLegend(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
ColourLegend* ColourLegend::clone() const { return new ColourLegend(*this); }
ColourLegend::~ColourLegend() = default;
ColourLegend& ColourLegend::operator=(ColourLegend const& other) { ColourLegend copy(other); swap(copy); return *this; }
ColourLegend& ColourLegend::operator=(ColourLegend&& other) noexcept = default;
void ColourLegend::swap(ColourLegend& other) noexcept { std::swap(*this, other); }
void ColourLegend::reset() { ColourLegend empty; swap(empty); }
void ColourLegend::init() {}

lmx::s_event_map const ColourLegend::attr_event_map[] = {
    {1, "A", 1, attr_Id},
    {1, "B", 1, attr_DefaultColour},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const ColourLegend::elem_event_map[] = {
    {1, "CRG", 3, elem_ColourRange},
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const ColourLegend::known_elements[] = {
    {1, "CRG", 3},
    {0, nullptr, 0},
};
lmx::elmx_error ColourLegend::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "CLD", __LINE__); }
lmx::elmx_error ColourLegend::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_complex_content, known_elements, mandatory_content_may_be_empty, __LINE__});
}
bool ColourLegend::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_Id: return read_attribute(reader, m_Id, spec_id_CLD_21, __LINE__, error);
    case attr_DefaultColour: return read_attribute(reader, m_DefaultColour, spec_range_0_to_254_uint8, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* ColourLegend::accept_attribute(lmx::plain_attribute const& attribute) {
  switch (attribute.letter()) {
    case 'A': return binding::accept_attribute(m_Id, spec_id_CLD_21, attribute);
    case 'B': return binding::accept_attribute(m_DefaultColour, spec_range_0_to_254_uint8, attribute);
  }
  return nullptr;
}
bool ColourLegend::has_required_attributes() const { return m_Id.is_set(); }
lmx::elmx_error ColourLegend::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "CLD", __LINE__, has_required_attributes());
}
bool ColourLegend::unmarshal_body(lmx::xmlReader& reader, lmx::elmx_error* error) { return read_wrappers(reader, mInnerColourLegend, true, {elem_event_map, "CLD", __LINE__}, error); }
lmx::elmx_error ColourLegend::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void ColourLegend::marshal_attributes(lmx::c_xml_writer& writer) const {
  write_attribute(writer, "A", m_Id, spec_id_CLD_21);
  write_attribute(writer, "B", m_DefaultColour, spec_range_0_to_254_uint8);
}
lmx::elmx_error ColourLegend::marshal_child_elements(lmx::c_xml_writer& writer) const {
  return write_wrappers(writer, mInnerColourLegend);
}
bool ColourLegend::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_Id.is_set(), "A", __LINE__) &&
         check_occurs(tracker, !mInnerColourLegend.empty(), "CRG", __LINE__);
}
bool ColourLegend::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link) && check_wrappers(&link, mInnerColourLegend);
}
InnerColourLegend const& ColourLegend::GetInnerColourLegend(std::size_t index) const { LMX_ASSERT(index < mInnerColourLegend.size()); return mInnerColourLegend.get(index); }
InnerColourLegend& ColourLegend::GetInnerColourLegend(std::size_t index) { return mInnerColourLegend.get_or_append(index); }
InnerColourLegend& ColourLegend::AppendInnerColourLegend() { return mInnerColourLegend.append(); }
void ColourLegend::AppendInnerColourLegend(InnerColourLegend* value) { mInnerColourLegend.append(std::unique_ptr<InnerColourLegend>(value)); }
InnerColourLegend& ColourLegend::InsertInnerColourLegend(std::size_t index) { return mInnerColourLegend.insert(index); }
void ColourLegend::InsertInnerColourLegend(std::size_t index, InnerColourLegend* value) { mInnerColourLegend.insert(index, std::unique_ptr<InnerColourLegend>(value)); }
void ColourLegend::AssignInnerColourLegend(std::size_t index, InnerColourLegend const& value) { mInnerColourLegend.assign(index, value); }
void ColourLegend::AssignInnerColourLegend(std::size_t index, InnerColourLegend* value) { mInnerColourLegend.assign(index, std::unique_ptr<InnerColourLegend>(value)); }
InnerColourLegend& ColourLegend::BackInnerColourLegend() { return mInnerColourLegend.back(); }
void ColourLegend::DeleteInnerColourLegend(std::size_t index) { LMX_ASSERT(index < mInnerColourLegend.size()); mInnerColourLegend.erase(index); }
void ColourLegend::ClearInnerColourLegend() { mInnerColourLegend.clear(); }
std::size_t ColourLegend::SizeInnerColourLegend() const { return mInnerColourLegend.size(); }

// ---- ColourRange ----

ColourRange::ColourRange() { init(); }
ColourRange::ColourRange(ColourRange const& other) = default;
ColourRange::ColourRange(ColourRange&& other) noexcept = default;
ColourRange::ColourRange(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
ColourRange* ColourRange::clone() const { return new ColourRange(*this); }
ColourRange::~ColourRange() = default;
ColourRange& ColourRange::operator=(ColourRange const& other) { ColourRange copy(other); swap(copy); return *this; }
ColourRange& ColourRange::operator=(ColourRange&& other) noexcept = default;
void ColourRange::swap(ColourRange& other) noexcept { std::swap(*this, other); }
void ColourRange::reset() { ColourRange empty; swap(empty); }
void ColourRange::init() {}

lmx::s_event_map const ColourRange::attr_event_map[] = {
    {1, "A", 1, attr_MinimumValue},
    {1, "B", 1, attr_MaximumValue},
    {1, "C", 1, attr_Colour},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const ColourRange::elem_event_map[] = {
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const ColourRange::known_elements[] = {
    {0, nullptr, 0},
};
lmx::elmx_error ColourRange::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "CRG", __LINE__); }
lmx::elmx_error ColourRange::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_empty_content, known_elements, true, __LINE__});
}
bool ColourRange::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_MinimumValue: return read_attribute(reader, m_MinimumValue, spec_range_minus_2147483647_to_2147483647_int32, __LINE__, error);
    case attr_MaximumValue: return read_attribute(reader, m_MaximumValue, spec_range_minus_2147483647_to_2147483647_int32, __LINE__, error);
    case attr_Colour: return read_attribute(reader, m_Colour, spec_range_0_to_254_uint8, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* ColourRange::accept_attribute(lmx::plain_attribute const& attribute) {
  switch (attribute.letter()) {
    case 'A': return binding::accept_attribute(m_MinimumValue, spec_range_minus_2147483647_to_2147483647_int32, attribute);
    case 'B': return binding::accept_attribute(m_MaximumValue, spec_range_minus_2147483647_to_2147483647_int32, attribute);
    case 'C': return binding::accept_attribute(m_Colour, spec_range_0_to_254_uint8, attribute);
  }
  return nullptr;
}
bool ColourRange::has_required_attributes() const { return m_MinimumValue.is_set() && m_MaximumValue.is_set() && m_Colour.is_set(); }
lmx::elmx_error ColourRange::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "CRG", __LINE__, has_required_attributes());
}
bool ColourRange::unmarshal_body(lmx::xmlReader&, lmx::elmx_error*) { return true; }
lmx::elmx_error ColourRange::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void ColourRange::marshal_attributes(lmx::c_xml_writer& writer) const {
  write_attribute(writer, "A", m_MinimumValue, spec_range_minus_2147483647_to_2147483647_int32);
  write_attribute(writer, "B", m_MaximumValue, spec_range_minus_2147483647_to_2147483647_int32);
  write_attribute(writer, "C", m_Colour, spec_range_0_to_254_uint8);
}
lmx::elmx_error ColourRange::marshal_child_elements(lmx::c_xml_writer&) const {
  return lmx::ELMX_OK;
}
bool ColourRange::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_MinimumValue.is_set(), "A", __LINE__) &&
         check_occurs(tracker, m_MaximumValue.is_set(), "B", __LINE__) &&
         check_occurs(tracker, m_Colour.is_set(), "C", __LINE__);
}
bool ColourRange::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link);
}
