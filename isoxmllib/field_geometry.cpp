// clang-format off
// Generated from schema/field_geometry.toml. Edit the schema, then build the target `schema`.

#include "isoxmllib/field_geometry.h"

#include <memory>
#include <utility>

#include "isoxmllib/engine.h"
#include "isoxmllib/events.h"
#include "isoxmllib/rules.h"
#include "isoxmllib/specs.h"
#include "isoxmllib/task.h"

using namespace binding;

// ---- Field ----

InnerField::InnerField() { init(); }
InnerField::InnerField(InnerField const& other) = default;
InnerField::InnerField(InnerField&& other) noexcept : chosen(std::exchange(other.chosen, NothingChosen)), m_held(std::move(other.m_held)) {}
InnerField::InnerField(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_OK; unmarshal(reader, error); }
InnerField* InnerField::clone() const { return new InnerField(*this); }
InnerField::~InnerField() = default;
InnerField& InnerField::operator=(InnerField const& other) { InnerField copy(other); swap(copy); return *this; }
InnerField& InnerField::operator=(InnerField&& other) noexcept { InnerField taken(std::move(other)); swap(taken); return *this; }
void InnerField::swap(InnerField& other) noexcept { std::swap(chosen, other.chosen); std::swap(m_held, other.m_held); }
void InnerField::reset() { InnerField empty; swap(empty); }
void InnerField::init() { chosen = NothingChosen; }

lmx::s_event_map const InnerField::elem_event_map[] = {
    {1, "PLN", 3, elem_Polygon},
    {1, "LSG", 3, elem_LineString},
    {1, "PNT", 3, elem_Point},
    {1, "GGP", 3, elem_GuidanceGroup},
    {0, nullptr, 0, 0},
};
void InnerField::release_choice() { m_held.release(); chosen = NothingChosen; }
bool InnerField::IsOccursOk(lmx::c_check_tracker*) const { return true; }
bool InnerField::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  if (!IsOccursOk(&link)) return false;
  switch (chosen) {
    case PolygonChosen: return m_held.check(&link, "PLN");
    case LineStringChosen: return m_held.check(&link, "LSG");
    case PointChosen: return m_held.check(&link, "PNT");
    case GuidanceGroupChosen: return m_held.check(&link, "GGP");
  }
  return true;
}
bool InnerField::IsMember(lmx::xmlReader& reader) { return is_member(reader, elem_event_map); }
bool InnerField::unmarshal(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(elem_event_map, lmx::EXAE_ELEMENT);
  switch (reader.m_event) {
    case elem_Polygon: return read_run(reader, new_run<Polygon>(chosen, m_held, PolygonChosen), elem_Polygon, {elem_event_map, "PFD", __LINE__}, error);
    case elem_LineString: return read_run(reader, new_run<LineString>(chosen, m_held, LineStringChosen), elem_LineString, {elem_event_map, "PFD", __LINE__}, error);
    case elem_Point: return read_run(reader, new_run<Point>(chosen, m_held, PointChosen), elem_Point, {elem_event_map, "PFD", __LINE__}, error);
    case elem_GuidanceGroup: return read_run(reader, new_run<GuidanceGroup>(chosen, m_held, GuidanceGroupChosen), elem_GuidanceGroup, {elem_event_map, "PFD", __LINE__}, error);
  }
  return true;
}
lmx::elmx_error InnerField::marshal(lmx::c_xml_writer& writer, char const*) const { return marshal_child_elements(writer); }
lmx::elmx_error InnerField::marshal_child_elements(lmx::c_xml_writer& writer) const { return write_choice(writer, m_held, chosen, NothingChosen, elem_event_map, __LINE__); }

void InnerField::SelectPolygon() { selected_run<Polygon>(chosen, m_held, PolygonChosen); }
Polygon const& InnerField::GetPolygon(std::size_t index) const { return run_at<Polygon>(m_held, {is_chosen(chosen, m_held, PolygonChosen), "chosen == PolygonChosen"}, index, "index < u.mPolygon->size()"); }
Polygon& InnerField::GetPolygon(std::size_t index) { return selected_run<Polygon>(chosen, m_held, PolygonChosen).get_or_append(index); }
Polygon& InnerField::AppendPolygon() { return selected_run<Polygon>(chosen, m_held, PolygonChosen).append(); }
void InnerField::AppendPolygon(Polygon* value) { std::unique_ptr<Polygon> owned(value); selected_run<Polygon>(chosen, m_held, PolygonChosen).append(std::move(owned)); }
Polygon& InnerField::InsertPolygon(std::size_t index) { return selected_run<Polygon>(chosen, m_held, PolygonChosen).insert(index); }
void InnerField::InsertPolygon(std::size_t index, Polygon* value) { std::unique_ptr<Polygon> owned(value); selected_run<Polygon>(chosen, m_held, PolygonChosen).insert(index, std::move(owned)); }
void InnerField::AssignPolygon(std::size_t index, Polygon const& value) { selected_run<Polygon>(chosen, m_held, PolygonChosen).assign(index, value); }
void InnerField::AssignPolygon(std::size_t index, Polygon* value) { std::unique_ptr<Polygon> owned(value); selected_run<Polygon>(chosen, m_held, PolygonChosen).assign(index, std::move(owned)); }
Polygon& InnerField::BackPolygon() { return selected_run<Polygon>(chosen, m_held, PolygonChosen).back(); }
void InnerField::DeletePolygon(std::size_t index) { erase_at<Polygon>(m_held, {is_chosen(chosen, m_held, PolygonChosen), "chosen == PolygonChosen"}, index, "index < u.mPolygon->size()"); }
void InnerField::ClearPolygon() { selected_run<Polygon>(chosen, m_held, PolygonChosen).clear(); }
std::size_t InnerField::SizePolygon() const { return run_size<Polygon>(m_held, m_held.holds(PolygonChosen)); }

void InnerField::SelectLineString() { selected_run<LineString>(chosen, m_held, LineStringChosen); }
LineString const& InnerField::GetLineString(std::size_t index) const { return run_at<LineString>(m_held, {is_chosen(chosen, m_held, LineStringChosen), "chosen == LineStringChosen"}, index, "index < u.mLineString->size()"); }
LineString& InnerField::GetLineString(std::size_t index) { return selected_run<LineString>(chosen, m_held, LineStringChosen).get_or_append(index); }
LineString& InnerField::AppendLineString() { return selected_run<LineString>(chosen, m_held, LineStringChosen).append(); }
void InnerField::AppendLineString(LineString* value) { std::unique_ptr<LineString> owned(value); selected_run<LineString>(chosen, m_held, LineStringChosen).append(std::move(owned)); }
LineString& InnerField::InsertLineString(std::size_t index) { return selected_run<LineString>(chosen, m_held, LineStringChosen).insert(index); }
void InnerField::InsertLineString(std::size_t index, LineString* value) { std::unique_ptr<LineString> owned(value); selected_run<LineString>(chosen, m_held, LineStringChosen).insert(index, std::move(owned)); }
void InnerField::AssignLineString(std::size_t index, LineString const& value) { selected_run<LineString>(chosen, m_held, LineStringChosen).assign(index, value); }
void InnerField::AssignLineString(std::size_t index, LineString* value) { std::unique_ptr<LineString> owned(value); selected_run<LineString>(chosen, m_held, LineStringChosen).assign(index, std::move(owned)); }
LineString& InnerField::BackLineString() { return selected_run<LineString>(chosen, m_held, LineStringChosen).back(); }
void InnerField::DeleteLineString(std::size_t index) { erase_at<LineString>(m_held, {is_chosen(chosen, m_held, LineStringChosen), "chosen == LineStringChosen"}, index, "index < u.mLineString->size()"); }
void InnerField::ClearLineString() { selected_run<LineString>(chosen, m_held, LineStringChosen).clear(); }
std::size_t InnerField::SizeLineString() const { return run_size<LineString>(m_held, m_held.holds(LineStringChosen)); }

void InnerField::SelectPoint() { selected_run<Point>(chosen, m_held, PointChosen); }
Point const& InnerField::GetPoint(std::size_t index) const { return run_at<Point>(m_held, {is_chosen(chosen, m_held, PointChosen), "chosen == PointChosen"}, index, "index < u.mPoint->size()"); }
Point& InnerField::GetPoint(std::size_t index) { return selected_run<Point>(chosen, m_held, PointChosen).get_or_append(index); }
Point& InnerField::AppendPoint() { return selected_run<Point>(chosen, m_held, PointChosen).append(); }
void InnerField::AppendPoint(Point* value) { std::unique_ptr<Point> owned(value); selected_run<Point>(chosen, m_held, PointChosen).append(std::move(owned)); }
Point& InnerField::InsertPoint(std::size_t index) { return selected_run<Point>(chosen, m_held, PointChosen).insert(index); }
void InnerField::InsertPoint(std::size_t index, Point* value) { std::unique_ptr<Point> owned(value); selected_run<Point>(chosen, m_held, PointChosen).insert(index, std::move(owned)); }
void InnerField::AssignPoint(std::size_t index, Point const& value) { selected_run<Point>(chosen, m_held, PointChosen).assign(index, value); }
void InnerField::AssignPoint(std::size_t index, Point* value) { std::unique_ptr<Point> owned(value); selected_run<Point>(chosen, m_held, PointChosen).assign(index, std::move(owned)); }
Point& InnerField::BackPoint() { return selected_run<Point>(chosen, m_held, PointChosen).back(); }
void InnerField::DeletePoint(std::size_t index) { erase_at<Point>(m_held, {is_chosen(chosen, m_held, PointChosen), "chosen == PointChosen"}, index, "index < u.mPoint->size()"); }
void InnerField::ClearPoint() { selected_run<Point>(chosen, m_held, PointChosen).clear(); }
std::size_t InnerField::SizePoint() const { return run_size<Point>(m_held, m_held.holds(PointChosen)); }

void InnerField::SelectGuidanceGroup() { selected_run<GuidanceGroup>(chosen, m_held, GuidanceGroupChosen); }
GuidanceGroup const& InnerField::GetGuidanceGroup(std::size_t index) const { return run_at<GuidanceGroup>(m_held, {is_chosen(chosen, m_held, GuidanceGroupChosen), "chosen == GuidanceGroupChosen"}, index, "index < u.mGuidanceGroup->size()"); }
GuidanceGroup& InnerField::GetGuidanceGroup(std::size_t index) { return selected_run<GuidanceGroup>(chosen, m_held, GuidanceGroupChosen).get_or_append(index); }
GuidanceGroup& InnerField::AppendGuidanceGroup() { return selected_run<GuidanceGroup>(chosen, m_held, GuidanceGroupChosen).append(); }
void InnerField::AppendGuidanceGroup(GuidanceGroup* value) { std::unique_ptr<GuidanceGroup> owned(value); selected_run<GuidanceGroup>(chosen, m_held, GuidanceGroupChosen).append(std::move(owned)); }
GuidanceGroup& InnerField::InsertGuidanceGroup(std::size_t index) { return selected_run<GuidanceGroup>(chosen, m_held, GuidanceGroupChosen).insert(index); }
void InnerField::InsertGuidanceGroup(std::size_t index, GuidanceGroup* value) { std::unique_ptr<GuidanceGroup> owned(value); selected_run<GuidanceGroup>(chosen, m_held, GuidanceGroupChosen).insert(index, std::move(owned)); }
void InnerField::AssignGuidanceGroup(std::size_t index, GuidanceGroup const& value) { selected_run<GuidanceGroup>(chosen, m_held, GuidanceGroupChosen).assign(index, value); }
void InnerField::AssignGuidanceGroup(std::size_t index, GuidanceGroup* value) { std::unique_ptr<GuidanceGroup> owned(value); selected_run<GuidanceGroup>(chosen, m_held, GuidanceGroupChosen).assign(index, std::move(owned)); }
GuidanceGroup& InnerField::BackGuidanceGroup() { return selected_run<GuidanceGroup>(chosen, m_held, GuidanceGroupChosen).back(); }
void InnerField::DeleteGuidanceGroup(std::size_t index) { erase_at<GuidanceGroup>(m_held, {is_chosen(chosen, m_held, GuidanceGroupChosen), "chosen == GuidanceGroupChosen"}, index, "index < u.mGuidanceGroup->size()"); }
void InnerField::ClearGuidanceGroup() { selected_run<GuidanceGroup>(chosen, m_held, GuidanceGroupChosen).clear(); }
std::size_t InnerField::SizeGuidanceGroup() const { return run_size<GuidanceGroup>(m_held, m_held.holds(GuidanceGroupChosen)); }

Field::Field() { init(); }
Field::Field(Field const& other) = default;
Field::Field(Field&& other) noexcept = default;
Field::Field(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
Field* Field::clone() const { return new Field(*this); }
Field::~Field() = default;
Field& Field::operator=(Field const& other) { Field copy(other); swap(copy); return *this; }
Field& Field::operator=(Field&& other) noexcept = default;
void Field::swap(Field& other) noexcept { std::swap(*this, other); }
void Field::reset() { Field empty; swap(empty); }
void Field::init() {}

lmx::s_event_map const Field::attr_event_map[] = {
    {1, "A", 1, attr_Id},
    {1, "B", 1, attr_FieldCode},
    {1, "C", 1, attr_Designator},
    {1, "D", 1, attr_Area},
    {1, "E", 1, attr_GrowerIdRef},
    {1, "F", 1, attr_FarmIdRef},
    {1, "G", 1, attr_CropTypeIdRef},
    {1, "H", 1, attr_CropVarietyIdRef},
    {1, "I", 1, attr_FieldIdRef},
    {1, "P917_firstName", 14, attr_P917FirstName},
    {1, "P917_middleName", 15, attr_Field_MiddleName},
    {1, "P917_lastName", 13, attr_P917LastName},
    {1, "P917_phoneNumber", 16, attr_P917PhoneNumber},
    {1, "P917_mobileNumber", 17, attr_P917MobileNumber},
    {1, "P917_faxNumber", 14, attr_P917FaxNumber},
    {1, "P917_Email", 10, attr_P917Email},
    {1, "P917_street", 11, attr_P917Street},
    {1, "P917_poBox", 10, attr_P917PoBox},
    {1, "P917_postalCode", 15, attr_P917PostalCode},
    {1, "P917_city", 9, attr_P917City},
    {1, "P917_state", 10, attr_State},
    {1, "P917_country", 12, attr_P917Country},
    {1, "P917_section", 12, attr_Section},
    {1, "P917_township", 13, attr_Township},
    {1, "P917_county", 11, attr_County},
    {1, "P917_comment", 12, attr_Comment},
    {1, "P917_crop", 9, attr_Crop},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const Field::elem_event_map[] = {
    {1, "PLN", 3, elem_Polygon},
    {1, "LSG", 3, elem_LineString},
    {1, "PNT", 3, elem_Point},
    {1, "GGP", 3, elem_GuidanceGroup},
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const Field::known_elements[] = {
    {1, "PLN", 3},
    {1, "LSG", 3},
    {1, "PNT", 3},
    {1, "GGP", 3},
    {0, nullptr, 0},
};
lmx::elmx_error Field::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "PFD", __LINE__); }
lmx::elmx_error Field::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_complex_content, known_elements, true, __LINE__}, &lmx::xmlReader::addNewField);
}
bool Field::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_Id: return read_attribute(reader, m_Id, spec_id_PFD_74, __LINE__, error);
    case attr_FieldCode: return read_attribute(reader, m_FieldCode, spec_text_32, __LINE__, error);
    case attr_Designator: return read_attribute(reader, m_Designator, spec_text_32, __LINE__, error);
    case attr_Area: return read_attribute(reader, m_Area, spec_range_0_to_4294967294_uint32, __LINE__, error);
    case attr_GrowerIdRef: return read_attribute(reader, m_GrowerIdRef, spec_id_CTR_75, __LINE__, error);
    case attr_FarmIdRef: return read_attribute(reader, m_FarmIdRef, spec_id_FRM_76, __LINE__, error);
    case attr_CropTypeIdRef: return read_attribute(reader, m_CropTypeIdRef, spec_id_CTP_77, __LINE__, error);
    case attr_CropVarietyIdRef: return read_attribute(reader, m_CropVarietyIdRef, spec_id_CVT_78, __LINE__, error);
    case attr_FieldIdRef: return read_attribute(reader, m_FieldIdRef, spec_id_PFD_79, __LINE__, error);
    case attr_P917FirstName: return read_attribute(reader, m_P917FirstName, spec_text_32, __LINE__, error);
    case attr_Field_MiddleName: return read_attribute(reader, m_MiddleName, spec_any_text, __LINE__, error);
    case attr_P917LastName: return read_attribute(reader, m_P917LastName, spec_text_32, __LINE__, error);
    case attr_P917PhoneNumber: return read_attribute(reader, m_P917PhoneNumber, spec_text_32, __LINE__, error);
    case attr_P917MobileNumber: return read_attribute(reader, m_P917MobileNumber, spec_text_32, __LINE__, error);
    case attr_P917FaxNumber: return read_attribute(reader, m_P917FaxNumber, spec_text_32, __LINE__, error);
    case attr_P917Email: return read_attribute(reader, m_P917Email, spec_text_64, __LINE__, error);
    case attr_P917Street: return read_attribute(reader, m_P917Street, spec_text_32, __LINE__, error);
    case attr_P917PoBox: return read_attribute(reader, m_P917PoBox, spec_text_32, __LINE__, error);
    case attr_P917PostalCode: return read_attribute(reader, m_P917PostalCode, spec_text_10, __LINE__, error);
    case attr_P917City: return read_attribute(reader, m_P917City, spec_text_32, __LINE__, error);
    case attr_State: return read_attribute(reader, m_State, spec_text_32, __LINE__, error);
    case attr_P917Country: return read_attribute(reader, m_P917Country, spec_text_32, __LINE__, error);
    case attr_Section: return read_attribute(reader, m_Section, spec_text_32, __LINE__, error);
    case attr_Township: return read_attribute(reader, m_Township, spec_text_32, __LINE__, error);
    case attr_County: return read_attribute(reader, m_County, spec_text_32, __LINE__, error);
    case attr_Comment: return read_attribute(reader, m_Comment, spec_text_330, __LINE__, error);
    case attr_Crop: return read_attribute(reader, m_Crop, spec_text_32, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* Field::accept_attribute(lmx::plain_attribute const& attribute) {
  switch (attribute.letter()) {
    case 'A': return binding::accept_attribute(m_Id, spec_id_PFD_74, attribute);
    case 'B': return binding::accept_attribute(m_FieldCode, spec_text_32, attribute);
    case 'C': return binding::accept_attribute(m_Designator, spec_text_32, attribute);
    case 'D': return binding::accept_attribute(m_Area, spec_range_0_to_4294967294_uint32, attribute);
    case 'E': return binding::accept_attribute(m_GrowerIdRef, spec_id_CTR_75, attribute);
    case 'F': return binding::accept_attribute(m_FarmIdRef, spec_id_FRM_76, attribute);
    case 'G': return binding::accept_attribute(m_CropTypeIdRef, spec_id_CTP_77, attribute);
    case 'H': return binding::accept_attribute(m_CropVarietyIdRef, spec_id_CVT_78, attribute);
    case 'I': return binding::accept_attribute(m_FieldIdRef, spec_id_PFD_79, attribute);
  }
  return nullptr;
}
bool Field::has_required_attributes() const { return m_Id.is_set() && m_Designator.is_set() && m_Area.is_set(); }
lmx::elmx_error Field::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "PFD", __LINE__, has_required_attributes());
}
bool Field::unmarshal_body(lmx::xmlReader& reader, lmx::elmx_error* error) { return read_wrappers(reader, mInnerField, false, {elem_event_map, "PFD", __LINE__}, error); }
lmx::elmx_error Field::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void Field::marshal_attributes(lmx::c_xml_writer& writer) const {
  write_attribute(writer, "A", m_Id, spec_id_PFD_74);
  write_attribute(writer, "B", m_FieldCode, spec_text_32);
  write_attribute(writer, "C", m_Designator, spec_text_32);
  write_attribute(writer, "D", m_Area, spec_range_0_to_4294967294_uint32);
  write_attribute(writer, "E", m_GrowerIdRef, spec_id_CTR_75);
  write_attribute(writer, "F", m_FarmIdRef, spec_id_FRM_76);
  write_attribute(writer, "G", m_CropTypeIdRef, spec_id_CTP_77);
  write_attribute(writer, "H", m_CropVarietyIdRef, spec_id_CVT_78);
  write_attribute(writer, "I", m_FieldIdRef, spec_id_PFD_79);
  write_attribute(writer, "P917_firstName", m_P917FirstName, spec_text_32);
  write_attribute(writer, "P917_middleName", m_MiddleName, spec_any_text);
  write_attribute(writer, "P917_lastName", m_P917LastName, spec_text_32);
  write_attribute(writer, "P917_phoneNumber", m_P917PhoneNumber, spec_text_32);
  write_attribute(writer, "P917_mobileNumber", m_P917MobileNumber, spec_text_32);
  write_attribute(writer, "P917_faxNumber", m_P917FaxNumber, spec_text_32);
  write_attribute(writer, "P917_Email", m_P917Email, spec_text_64);
  write_attribute(writer, "P917_street", m_P917Street, spec_text_32);
  write_attribute(writer, "P917_poBox", m_P917PoBox, spec_text_32);
  write_attribute(writer, "P917_postalCode", m_P917PostalCode, spec_text_10);
  write_attribute(writer, "P917_city", m_P917City, spec_text_32);
  write_attribute(writer, "P917_state", m_State, spec_text_32);
  write_attribute(writer, "P917_country", m_P917Country, spec_text_32);
  write_attribute(writer, "P917_section", m_Section, spec_text_32);
  write_attribute(writer, "P917_township", m_Township, spec_text_32);
  write_attribute(writer, "P917_county", m_County, spec_text_32);
  write_attribute(writer, "P917_comment", m_Comment, spec_text_330);
  write_attribute(writer, "P917_crop", m_Crop, spec_text_32);
}
lmx::elmx_error Field::marshal_child_elements(lmx::c_xml_writer& writer) const {
  return write_wrappers(writer, mInnerField);
}
bool Field::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_Id.is_set(), "A", __LINE__) &&
         check_occurs(tracker, m_Designator.is_set(), "C", __LINE__) &&
         check_occurs(tracker, m_Area.is_set(), "D", __LINE__);
}
bool Field::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link) && check_wrappers(&link, mInnerField);
}
InnerField const& Field::GetInnerField(std::size_t index) const { LMX_ASSERT(index < mInnerField.size()); return mInnerField.get(index); }
InnerField& Field::GetInnerField(std::size_t index) { return mInnerField.get_or_append(index); }
InnerField& Field::AppendInnerField() { return mInnerField.append(); }
void Field::AppendInnerField(InnerField* value) { mInnerField.append(std::unique_ptr<InnerField>(value)); }
InnerField& Field::InsertInnerField(std::size_t index) { return mInnerField.insert(index); }
void Field::InsertInnerField(std::size_t index, InnerField* value) { mInnerField.insert(index, std::unique_ptr<InnerField>(value)); }
void Field::AssignInnerField(std::size_t index, InnerField const& value) { mInnerField.assign(index, value); }
void Field::AssignInnerField(std::size_t index, InnerField* value) { mInnerField.assign(index, std::unique_ptr<InnerField>(value)); }
InnerField& Field::BackInnerField() { return mInnerField.back(); }
void Field::DeleteInnerField(std::size_t index) { LMX_ASSERT(index < mInnerField.size()); mInnerField.erase(index); }
void Field::ClearInnerField() { mInnerField.clear(); }
std::size_t Field::SizeInnerField() const { return mInnerField.size(); }

// ---- Polygon ----

InnerPolygon::InnerPolygon() { init(); }
InnerPolygon::InnerPolygon(InnerPolygon const& other) = default;
InnerPolygon::InnerPolygon(InnerPolygon&& other) noexcept : chosen(std::exchange(other.chosen, NothingChosen)), m_held(std::move(other.m_held)) {}
InnerPolygon::InnerPolygon(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_OK; unmarshal(reader, error); }
InnerPolygon* InnerPolygon::clone() const { return new InnerPolygon(*this); }
InnerPolygon::~InnerPolygon() = default;
InnerPolygon& InnerPolygon::operator=(InnerPolygon const& other) { InnerPolygon copy(other); swap(copy); return *this; }
InnerPolygon& InnerPolygon::operator=(InnerPolygon&& other) noexcept { InnerPolygon taken(std::move(other)); swap(taken); return *this; }
void InnerPolygon::swap(InnerPolygon& other) noexcept { std::swap(chosen, other.chosen); std::swap(m_held, other.m_held); }
void InnerPolygon::reset() { InnerPolygon empty; swap(empty); }
void InnerPolygon::init() { chosen = NothingChosen; }

lmx::s_event_map const InnerPolygon::elem_event_map[] = {
    {1, "LSG", 3, elem_LineString},
    {0, nullptr, 0, 0},
};
void InnerPolygon::release_choice() { m_held.release(); chosen = NothingChosen; }
bool InnerPolygon::IsOccursOk(lmx::c_check_tracker*) const { return true; }
bool InnerPolygon::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  if (!IsOccursOk(&link)) return false;
  switch (chosen) {
    case LineStringChosen: return m_held.check(&link, "LSG");
  }
  return true;
}
bool InnerPolygon::IsMember(lmx::xmlReader& reader) { return is_member(reader, elem_event_map); }
bool InnerPolygon::unmarshal(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(elem_event_map, lmx::EXAE_ELEMENT);
  switch (reader.m_event) {
    case elem_LineString: return read_mandatory_run(reader, new_run<LineString>(chosen, m_held, LineStringChosen), elem_LineString, {elem_event_map, "PLN", __LINE__}, error);
  }
  return report(reader, lmx::ELMX_UNEXPECTED_COMPLEX_ELEMENT, {elem_event_map, "PLN", __LINE__}, error);
}
lmx::elmx_error InnerPolygon::marshal(lmx::c_xml_writer& writer, char const*) const { return marshal_child_elements(writer); }
lmx::elmx_error InnerPolygon::marshal_child_elements(lmx::c_xml_writer& writer) const { return write_choice(writer, m_held, chosen, NothingChosen, elem_event_map, __LINE__); }

void InnerPolygon::SelectLineString() { selected_run<LineString>(chosen, m_held, LineStringChosen); }
LineString const& InnerPolygon::GetLineString(std::size_t index) const { return run_at<LineString>(m_held, {is_chosen(chosen, m_held, LineStringChosen), "chosen == LineStringChosen"}, index, "index < u.mLineString->size()"); }
LineString& InnerPolygon::GetLineString(std::size_t index) { return selected_run<LineString>(chosen, m_held, LineStringChosen).get_or_append(index); }
LineString& InnerPolygon::AppendLineString() { return selected_run<LineString>(chosen, m_held, LineStringChosen).append(); }
void InnerPolygon::AppendLineString(LineString* value) { std::unique_ptr<LineString> owned(value); selected_run<LineString>(chosen, m_held, LineStringChosen).append(std::move(owned)); }
LineString& InnerPolygon::InsertLineString(std::size_t index) { return selected_run<LineString>(chosen, m_held, LineStringChosen).insert(index); }
void InnerPolygon::InsertLineString(std::size_t index, LineString* value) { std::unique_ptr<LineString> owned(value); selected_run<LineString>(chosen, m_held, LineStringChosen).insert(index, std::move(owned)); }
void InnerPolygon::AssignLineString(std::size_t index, LineString const& value) { selected_run<LineString>(chosen, m_held, LineStringChosen).assign(index, value); }
void InnerPolygon::AssignLineString(std::size_t index, LineString* value) { std::unique_ptr<LineString> owned(value); selected_run<LineString>(chosen, m_held, LineStringChosen).assign(index, std::move(owned)); }
LineString& InnerPolygon::BackLineString() { return selected_run<LineString>(chosen, m_held, LineStringChosen).back(); }
void InnerPolygon::DeleteLineString(std::size_t index) { erase_at<LineString>(m_held, {is_chosen(chosen, m_held, LineStringChosen), "chosen == LineStringChosen"}, index, "index < u.mLineString->size()"); }
void InnerPolygon::ClearLineString() { selected_run<LineString>(chosen, m_held, LineStringChosen).clear(); }
std::size_t InnerPolygon::SizeLineString() const { return run_size<LineString>(m_held, m_held.holds(LineStringChosen)); }

Polygon::Polygon() { init(); }
Polygon::Polygon(Polygon const& other) = default;
Polygon::Polygon(Polygon&& other) noexcept = default;
Polygon::Polygon(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
Polygon* Polygon::clone() const { return new Polygon(*this); }
Polygon::~Polygon() = default;
Polygon& Polygon::operator=(Polygon const& other) { Polygon copy(other); swap(copy); return *this; }
Polygon& Polygon::operator=(Polygon&& other) noexcept = default;
void Polygon::swap(Polygon& other) noexcept { std::swap(*this, other); }
void Polygon::reset() { Polygon empty; swap(empty); }
void Polygon::init() {}

lmx::s_event_map const Polygon::attr_event_map[] = {
    {1, "A", 1, attr_Type},
    {1, "B", 1, attr_Designator},
    {1, "C", 1, attr_Area},
    {1, "D", 1, attr_Colour},
    {1, "E", 1, attr_Id},
    {1, "P007_PolygonMetaData", 20, attr_P007PolygonMetaData},
    {1, "P917_SprayProperty", 18, attr_P917SprayProperty},
    {1, "P917_PlantProperty", 18, attr_P917PlantProperty},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const Polygon::elem_event_map[] = {
    {1, "LSG", 3, elem_LineString},
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const Polygon::known_elements[] = {
    {1, "LSG", 3},
    {0, nullptr, 0},
};
lmx::elmx_error Polygon::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "PLN", __LINE__); }
lmx::elmx_error Polygon::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_complex_content, known_elements, mandatory_content_may_be_empty, __LINE__});
}
bool Polygon::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_Type: return read_attribute(reader, m_Type, spec_one_of_1_to_12, __LINE__, error);
    case attr_Designator: return read_attribute(reader, m_Designator, spec_text_32, __LINE__, error);
    case attr_Area: return read_attribute(reader, m_Area, spec_range_0_to_4294967294_uint32, __LINE__, error);
    case attr_Colour: return read_attribute(reader, m_Colour, spec_range_0_to_254_uint8, __LINE__, error);
    case attr_Id: return read_attribute(reader, m_Id, spec_id_PLN_82, __LINE__, error);
    case attr_P007PolygonMetaData: return read_attribute(reader, m_rare.get_or_create().m_P007PolygonMetaData, spec_any_text, __LINE__, error);
    case attr_P917SprayProperty: return read_attribute(reader, m_rare.get_or_create().m_P917SprayProperty, spec_one_of_1_2, __LINE__, error);
    case attr_P917PlantProperty: return read_attribute(reader, m_rare.get_or_create().m_P917PlantProperty, spec_one_of_1_2, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* Polygon::accept_attribute(lmx::plain_attribute const& attribute) {
  switch (attribute.letter()) {
    case 'A': return binding::accept_attribute(m_Type, spec_one_of_1_to_12, attribute);
    case 'B': return binding::accept_attribute(m_Designator, spec_text_32, attribute);
    case 'C': return binding::accept_attribute(m_Area, spec_range_0_to_4294967294_uint32, attribute);
    case 'D': return binding::accept_attribute(m_Colour, spec_range_0_to_254_uint8, attribute);
    case 'E': return binding::accept_attribute(m_Id, spec_id_PLN_82, attribute);
  }
  return nullptr;
}
bool Polygon::has_required_attributes() const { return m_Type.is_set(); }
lmx::elmx_error Polygon::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "PLN", __LINE__, has_required_attributes());
}
bool Polygon::unmarshal_body(lmx::xmlReader& reader, lmx::elmx_error* error) { return read_wrappers(reader, mInnerPolygon, true, {elem_event_map, "PLN", __LINE__}, error); }
lmx::elmx_error Polygon::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void Polygon::marshal_attributes(lmx::c_xml_writer& writer) const {
  auto const* const rare = m_rare.find();
  write_attribute(writer, "A", m_Type, spec_one_of_1_to_12);
  write_attribute(writer, "B", m_Designator, spec_text_32);
  write_attribute(writer, "C", m_Area, spec_range_0_to_4294967294_uint32);
  write_attribute(writer, "D", m_Colour, spec_range_0_to_254_uint8);
  write_attribute(writer, "E", m_Id, spec_id_PLN_82);
  if (rare != nullptr) {
    write_attribute(writer, "P007_PolygonMetaData", rare->m_P007PolygonMetaData, spec_any_text);
    write_attribute(writer, "P917_SprayProperty", rare->m_P917SprayProperty, spec_one_of_1_2);
    write_attribute(writer, "P917_PlantProperty", rare->m_P917PlantProperty, spec_one_of_1_2);
  }
}
lmx::elmx_error Polygon::marshal_child_elements(lmx::c_xml_writer& writer) const {
  return write_wrappers(writer, mInnerPolygon);
}
bool Polygon::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_Type.is_set(), "A", __LINE__) &&
         check_occurs(tracker, !mInnerPolygon.empty(), "LSG", __LINE__);
}
bool Polygon::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link) && check_wrappers(&link, mInnerPolygon);
}
InnerPolygon const& Polygon::GetInnerPolygon(std::size_t index) const { LMX_ASSERT(index < mInnerPolygon.size()); return mInnerPolygon.get(index); }
InnerPolygon& Polygon::GetInnerPolygon(std::size_t index) { return mInnerPolygon.get_or_append(index); }
InnerPolygon& Polygon::AppendInnerPolygon() { return mInnerPolygon.append(); }
void Polygon::AppendInnerPolygon(InnerPolygon* value) { mInnerPolygon.append(std::unique_ptr<InnerPolygon>(value)); }
InnerPolygon& Polygon::InsertInnerPolygon(std::size_t index) { return mInnerPolygon.insert(index); }
void Polygon::InsertInnerPolygon(std::size_t index, InnerPolygon* value) { mInnerPolygon.insert(index, std::unique_ptr<InnerPolygon>(value)); }
void Polygon::AssignInnerPolygon(std::size_t index, InnerPolygon const& value) { mInnerPolygon.assign(index, value); }
void Polygon::AssignInnerPolygon(std::size_t index, InnerPolygon* value) { mInnerPolygon.assign(index, std::unique_ptr<InnerPolygon>(value)); }
InnerPolygon& Polygon::BackInnerPolygon() { return mInnerPolygon.back(); }
void Polygon::DeleteInnerPolygon(std::size_t index) { LMX_ASSERT(index < mInnerPolygon.size()); mInnerPolygon.erase(index); }
void Polygon::ClearInnerPolygon() { mInnerPolygon.clear(); }
std::size_t Polygon::SizeInnerPolygon() const { return mInnerPolygon.size(); }
elmx_enums Polygon::GetenumType() const { return enum_code(list_31, m_Type.get()); }
bool Polygon::SetenumType(elmx_enums code) { return set_enum(list_31, code, m_Type); }
elmx_enums Polygon::GetenumP917SprayProperty() const { return enum_code(list_2, m_rare.get().m_P917SprayProperty.get()); }
bool Polygon::SetenumP917SprayProperty(elmx_enums code) { return set_enum(list_2, code, m_rare.get_or_create().m_P917SprayProperty); }
elmx_enums Polygon::GetenumP917PlantProperty() const { return enum_code(list_2, m_rare.get().m_P917PlantProperty.get()); }
bool Polygon::SetenumP917PlantProperty(elmx_enums code) { return set_enum(list_2, code, m_rare.get_or_create().m_P917PlantProperty); }

// ---- LineString ----

InnerLineString::InnerLineString() { init(); }
InnerLineString::InnerLineString(InnerLineString const& other) = default;
InnerLineString::InnerLineString(InnerLineString&& other) noexcept : chosen(std::exchange(other.chosen, NothingChosen)), m_held(std::move(other.m_held)) {}
InnerLineString::InnerLineString(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_OK; unmarshal(reader, error); }
InnerLineString* InnerLineString::clone() const { return new InnerLineString(*this); }
InnerLineString::~InnerLineString() = default;
InnerLineString& InnerLineString::operator=(InnerLineString const& other) { InnerLineString copy(other); swap(copy); return *this; }
InnerLineString& InnerLineString::operator=(InnerLineString&& other) noexcept { InnerLineString taken(std::move(other)); swap(taken); return *this; }
void InnerLineString::swap(InnerLineString& other) noexcept { std::swap(chosen, other.chosen); std::swap(m_held, other.m_held); }
void InnerLineString::reset() { InnerLineString empty; swap(empty); }
void InnerLineString::init() { chosen = NothingChosen; }

lmx::s_event_map const InnerLineString::elem_event_map[] = {
    {1, "PNT", 3, elem_Point},
    {0, nullptr, 0, 0},
};
void InnerLineString::release_choice() { m_held.release(); chosen = NothingChosen; }
bool InnerLineString::IsOccursOk(lmx::c_check_tracker*) const { return true; }
bool InnerLineString::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  if (!IsOccursOk(&link)) return false;
  switch (chosen) {
    case PointChosen: return m_held.check(&link, "PNT");
  }
  return true;
}
bool InnerLineString::IsMember(lmx::xmlReader& reader) { return is_member(reader, elem_event_map); }
bool InnerLineString::unmarshal(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(elem_event_map, lmx::EXAE_ELEMENT);
  switch (reader.m_event) {
    case elem_Point: return read_mandatory_run(reader, new_run<Point>(chosen, m_held, PointChosen), elem_Point, {elem_event_map, "LSG", __LINE__}, error);
  }
  return report(reader, lmx::ELMX_UNEXPECTED_COMPLEX_ELEMENT, {elem_event_map, "LSG", __LINE__}, error);
}
lmx::elmx_error InnerLineString::marshal(lmx::c_xml_writer& writer, char const*) const { return marshal_child_elements(writer); }
lmx::elmx_error InnerLineString::marshal_child_elements(lmx::c_xml_writer& writer) const { return write_choice(writer, m_held, chosen, NothingChosen, elem_event_map, __LINE__); }

void InnerLineString::SelectPoint() { selected_run<Point>(chosen, m_held, PointChosen); }
Point const& InnerLineString::GetPoint(std::size_t index) const { return run_at<Point>(m_held, {is_chosen(chosen, m_held, PointChosen), "chosen == PointChosen"}, index, "index < u.mPoint->size()"); }
Point& InnerLineString::GetPoint(std::size_t index) { return selected_run<Point>(chosen, m_held, PointChosen).get_or_append(index); }
Point& InnerLineString::AppendPoint() { return selected_run<Point>(chosen, m_held, PointChosen).append(); }
void InnerLineString::AppendPoint(Point* value) { std::unique_ptr<Point> owned(value); selected_run<Point>(chosen, m_held, PointChosen).append(std::move(owned)); }
Point& InnerLineString::InsertPoint(std::size_t index) { return selected_run<Point>(chosen, m_held, PointChosen).insert(index); }
void InnerLineString::InsertPoint(std::size_t index, Point* value) { std::unique_ptr<Point> owned(value); selected_run<Point>(chosen, m_held, PointChosen).insert(index, std::move(owned)); }
void InnerLineString::AssignPoint(std::size_t index, Point const& value) { selected_run<Point>(chosen, m_held, PointChosen).assign(index, value); }
void InnerLineString::AssignPoint(std::size_t index, Point* value) { std::unique_ptr<Point> owned(value); selected_run<Point>(chosen, m_held, PointChosen).assign(index, std::move(owned)); }
Point& InnerLineString::BackPoint() { return selected_run<Point>(chosen, m_held, PointChosen).back(); }
void InnerLineString::DeletePoint(std::size_t index) { erase_at<Point>(m_held, {is_chosen(chosen, m_held, PointChosen), "chosen == PointChosen"}, index, "index < u.mPoint->size()"); }
void InnerLineString::ClearPoint() { selected_run<Point>(chosen, m_held, PointChosen).clear(); }
std::size_t InnerLineString::SizePoint() const { return run_size<Point>(m_held, m_held.holds(PointChosen)); }

LineString::LineString() { init(); }
LineString::LineString(LineString const& other) = default;
LineString::LineString(LineString&& other) noexcept = default;
LineString::LineString(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
LineString* LineString::clone() const { return new LineString(*this); }
LineString::~LineString() = default;
LineString& LineString::operator=(LineString const& other) { LineString copy(other); swap(copy); return *this; }
LineString& LineString::operator=(LineString&& other) noexcept = default;
void LineString::swap(LineString& other) noexcept { std::swap(*this, other); }
void LineString::reset() { LineString empty; swap(empty); }
void LineString::init() {}

lmx::s_event_map const LineString::attr_event_map[] = {
    {1, "A", 1, attr_Type},
    {1, "B", 1, attr_Designator},
    {1, "C", 1, attr_Width},
    {1, "D", 1, attr_Length},
    {1, "E", 1, attr_Colour},
    {1, "F", 1, attr_Id},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const LineString::elem_event_map[] = {
    {1, "PNT", 3, elem_Point},
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const LineString::known_elements[] = {
    {1, "PNT", 3},
    {0, nullptr, 0},
};
lmx::elmx_error LineString::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "LSG", __LINE__); }
lmx::elmx_error LineString::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_complex_content, known_elements, mandatory_content_may_be_empty, __LINE__});
}
bool LineString::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_Type: return read_attribute(reader, m_Type, spec_one_of_1_to_9, __LINE__, error);
    case attr_Designator: return read_attribute(reader, m_Designator, spec_text_32, __LINE__, error);
    case attr_Width: return read_attribute(reader, m_Width, spec_range_0_to_4294967294_uint32, __LINE__, error);
    case attr_Length: return read_attribute(reader, m_Length, spec_range_0_to_4294967294_uint32, __LINE__, error);
    case attr_Colour: return read_attribute(reader, m_Colour, spec_range_0_to_254_uint8, __LINE__, error);
    case attr_Id: return read_attribute(reader, m_Id, spec_id_LSG_69, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* LineString::accept_attribute(lmx::plain_attribute const& attribute) {
  switch (attribute.letter()) {
    case 'A': return binding::accept_attribute(m_Type, spec_one_of_1_to_9, attribute);
    case 'B': return binding::accept_attribute(m_Designator, spec_text_32, attribute);
    case 'C': return binding::accept_attribute(m_Width, spec_range_0_to_4294967294_uint32, attribute);
    case 'D': return binding::accept_attribute(m_Length, spec_range_0_to_4294967294_uint32, attribute);
    case 'E': return binding::accept_attribute(m_Colour, spec_range_0_to_254_uint8, attribute);
    case 'F': return binding::accept_attribute(m_Id, spec_id_LSG_69, attribute);
  }
  return nullptr;
}
bool LineString::has_required_attributes() const { return m_Type.is_set(); }
lmx::elmx_error LineString::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "LSG", __LINE__, has_required_attributes());
}
bool LineString::unmarshal_body(lmx::xmlReader& reader, lmx::elmx_error* error) { return read_wrappers(reader, mInnerLineString, true, {elem_event_map, "LSG", __LINE__}, error); }
lmx::elmx_error LineString::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void LineString::marshal_attributes(lmx::c_xml_writer& writer) const {
  write_attribute(writer, "A", m_Type, spec_one_of_1_to_9);
  write_attribute(writer, "B", m_Designator, spec_text_32);
  write_attribute(writer, "C", m_Width, spec_range_0_to_4294967294_uint32);
  write_attribute(writer, "D", m_Length, spec_range_0_to_4294967294_uint32);
  write_attribute(writer, "E", m_Colour, spec_range_0_to_254_uint8);
  write_attribute(writer, "F", m_Id, spec_id_LSG_69);
}
lmx::elmx_error LineString::marshal_child_elements(lmx::c_xml_writer& writer) const {
  return write_wrappers(writer, mInnerLineString);
}
bool LineString::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_Type.is_set(), "A", __LINE__) &&
         check_occurs(tracker, !mInnerLineString.empty(), "PNT", __LINE__);
}
bool LineString::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link) && check_wrappers(&link, mInnerLineString);
}
InnerLineString const& LineString::GetInnerLineString(std::size_t index) const { LMX_ASSERT(index < mInnerLineString.size()); return mInnerLineString.get(index); }
InnerLineString& LineString::GetInnerLineString(std::size_t index) { return mInnerLineString.get_or_append(index); }
InnerLineString& LineString::AppendInnerLineString() { return mInnerLineString.append(); }
void LineString::AppendInnerLineString(InnerLineString* value) { mInnerLineString.append(std::unique_ptr<InnerLineString>(value)); }
InnerLineString& LineString::InsertInnerLineString(std::size_t index) { return mInnerLineString.insert(index); }
void LineString::InsertInnerLineString(std::size_t index, InnerLineString* value) { mInnerLineString.insert(index, std::unique_ptr<InnerLineString>(value)); }
void LineString::AssignInnerLineString(std::size_t index, InnerLineString const& value) { mInnerLineString.assign(index, value); }
void LineString::AssignInnerLineString(std::size_t index, InnerLineString* value) { mInnerLineString.assign(index, std::unique_ptr<InnerLineString>(value)); }
InnerLineString& LineString::BackInnerLineString() { return mInnerLineString.back(); }
void LineString::DeleteInnerLineString(std::size_t index) { LMX_ASSERT(index < mInnerLineString.size()); mInnerLineString.erase(index); }
void LineString::ClearInnerLineString() { mInnerLineString.clear(); }
std::size_t LineString::SizeInnerLineString() const { return mInnerLineString.size(); }
elmx_enums LineString::GetenumType() const { return enum_code(list_29, m_Type.get()); }
bool LineString::SetenumType(elmx_enums code) { return set_enum(list_29, code, m_Type); }

// ---- Point ----

Point::Point() { init(); }
Point::Point(Point const& other) = default;
Point::Point(Point&& other) noexcept = default;
Point::Point(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
Point* Point::clone() const { return new Point(*this); }
Point::~Point() = default;
Point& Point::operator=(Point const& other) { Point copy(other); swap(copy); return *this; }
Point& Point::operator=(Point&& other) noexcept = default;
void Point::swap(Point& other) noexcept { std::swap(*this, other); }
void Point::reset() { Point empty; swap(empty); }
void Point::init() {}

lmx::s_event_map const Point::attr_event_map[] = {
    {1, "A", 1, attr_Type},
    {1, "B", 1, attr_Designator},
    {1, "C", 1, attr_North},
    {1, "D", 1, attr_East},
    {1, "E", 1, attr_Altitude},
    {1, "F", 1, attr_Colour},
    {1, "G", 1, attr_Id},
    {1, "H", 1, attr_HorizontalAccuracy},
    {1, "I", 1, attr_VerticalAccuracy},
    {1, "J", 1, attr_Filename},
    {1, "K", 1, attr_FileLength},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const Point::elem_event_map[] = {
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const Point::known_elements[] = {
    {0, nullptr, 0},
};
lmx::elmx_error Point::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "PNT", __LINE__); }
lmx::elmx_error Point::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_empty_content, known_elements, true, __LINE__});
}
bool Point::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_Type: return read_attribute(reader, m_Type, spec_one_of_1_to_11, __LINE__, error);
    case attr_Designator: return read_attribute(reader, m_rare.get_or_create().m_Designator, spec_text_32, __LINE__, error);
    case attr_North: return read_attribute(reader, m_North, spec_degrees_latitude, __LINE__, error);
    case attr_East: return read_attribute(reader, m_East, spec_degrees_longitude, __LINE__, error);
    case attr_Altitude: return read_attribute(reader, m_rare.get_or_create().m_Altitude, spec_range_minus_2147483647_to_2147483647_int32, __LINE__, error);
    case attr_Colour: return read_attribute(reader, m_rare.get_or_create().m_Colour, spec_range_0_to_254_uint8, __LINE__, error);
    case attr_Id: return read_attribute(reader, m_rare.get_or_create().m_Id, spec_id_PNT_80, __LINE__, error);
    case attr_HorizontalAccuracy: return read_attribute(reader, m_rare.get_or_create().m_HorizontalAccuracy, spec_accuracy, __LINE__, error);
    case attr_VerticalAccuracy: return read_attribute(reader, m_rare.get_or_create().m_VerticalAccuracy, spec_accuracy, __LINE__, error);
    case attr_Filename: return read_attribute(reader, m_rare.get_or_create().m_Filename, spec_point_file_81, __LINE__, error);
    case attr_FileLength: return read_attribute(reader, m_rare.get_or_create().m_FileLength, spec_range_0_to_4294967294_uint32, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* Point::accept_attribute(lmx::plain_attribute const& attribute) {
  switch (attribute.letter()) {
    case 'A': return binding::accept_attribute(m_Type, spec_one_of_1_to_11, attribute);
    case 'B': return binding::accept_attribute(m_rare.get_or_create().m_Designator, spec_text_32, attribute);
    case 'C': return binding::accept_attribute(m_North, spec_degrees_latitude, attribute);
    case 'D': return binding::accept_attribute(m_East, spec_degrees_longitude, attribute);
    case 'E': return binding::accept_attribute(m_rare.get_or_create().m_Altitude, spec_range_minus_2147483647_to_2147483647_int32, attribute);
    case 'F': return binding::accept_attribute(m_rare.get_or_create().m_Colour, spec_range_0_to_254_uint8, attribute);
    case 'G': return binding::accept_attribute(m_rare.get_or_create().m_Id, spec_id_PNT_80, attribute);
    case 'H': return binding::accept_attribute(m_rare.get_or_create().m_HorizontalAccuracy, spec_accuracy, attribute);
    case 'I': return binding::accept_attribute(m_rare.get_or_create().m_VerticalAccuracy, spec_accuracy, attribute);
    case 'J': return binding::accept_attribute(m_rare.get_or_create().m_Filename, spec_point_file_81, attribute);
    case 'K': return binding::accept_attribute(m_rare.get_or_create().m_FileLength, spec_range_0_to_4294967294_uint32, attribute);
  }
  return nullptr;
}
bool Point::has_required_attributes() const { return m_Type.is_set() && m_North.is_set() && m_East.is_set(); }
lmx::elmx_error Point::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "PNT", __LINE__, has_required_attributes());
}
bool Point::unmarshal_body(lmx::xmlReader&, lmx::elmx_error*) { return true; }
lmx::elmx_error Point::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void Point::marshal_attributes(lmx::c_xml_writer& writer) const {
  auto const* const rare = m_rare.find();
  write_attribute(writer, "A", m_Type, spec_one_of_1_to_11);
  if (rare != nullptr) {
    write_attribute(writer, "B", rare->m_Designator, spec_text_32);
  }
  write_attribute(writer, "C", m_North, spec_degrees_latitude);
  write_attribute(writer, "D", m_East, spec_degrees_longitude);
  if (rare != nullptr) {
    write_attribute(writer, "E", rare->m_Altitude, spec_range_minus_2147483647_to_2147483647_int32);
    write_attribute(writer, "F", rare->m_Colour, spec_range_0_to_254_uint8);
    write_attribute(writer, "G", rare->m_Id, spec_id_PNT_80);
    write_attribute(writer, "H", rare->m_HorizontalAccuracy, spec_accuracy);
    write_attribute(writer, "I", rare->m_VerticalAccuracy, spec_accuracy);
    write_attribute(writer, "J", rare->m_Filename, spec_point_file_81);
    write_attribute(writer, "K", rare->m_FileLength, spec_range_0_to_4294967294_uint32);
  }
}
lmx::elmx_error Point::marshal_child_elements(lmx::c_xml_writer&) const {
  return lmx::ELMX_OK;
}
bool Point::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_Type.is_set(), "A", __LINE__) &&
         check_occurs(tracker, m_North.is_set(), "C", __LINE__) &&
         check_occurs(tracker, m_East.is_set(), "D", __LINE__);
}
bool Point::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link);
}
elmx_enums Point::GetenumType() const { return enum_code(list_30, m_Type.get()); }
bool Point::SetenumType(elmx_enums code) { return set_enum(list_30, code, m_Type); }

// ---- GuidanceGroup ----

InnerGuidanceGroup::InnerGuidanceGroup() { init(); }
InnerGuidanceGroup::InnerGuidanceGroup(InnerGuidanceGroup const& other) = default;
InnerGuidanceGroup::InnerGuidanceGroup(InnerGuidanceGroup&& other) noexcept : chosen(std::exchange(other.chosen, NothingChosen)), m_held(std::move(other.m_held)) {}
InnerGuidanceGroup::InnerGuidanceGroup(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_OK; unmarshal(reader, error); }
InnerGuidanceGroup* InnerGuidanceGroup::clone() const { return new InnerGuidanceGroup(*this); }
InnerGuidanceGroup::~InnerGuidanceGroup() = default;
InnerGuidanceGroup& InnerGuidanceGroup::operator=(InnerGuidanceGroup const& other) { InnerGuidanceGroup copy(other); swap(copy); return *this; }
InnerGuidanceGroup& InnerGuidanceGroup::operator=(InnerGuidanceGroup&& other) noexcept { InnerGuidanceGroup taken(std::move(other)); swap(taken); return *this; }
void InnerGuidanceGroup::swap(InnerGuidanceGroup& other) noexcept { std::swap(chosen, other.chosen); std::swap(m_held, other.m_held); }
void InnerGuidanceGroup::reset() { InnerGuidanceGroup empty; swap(empty); }
void InnerGuidanceGroup::init() { chosen = NothingChosen; }

lmx::s_event_map const InnerGuidanceGroup::elem_event_map[] = {
    {1, "GPN", 3, elem_GuidancePattern},
    {1, "PLN", 3, elem_BoundaryPolygon},
    {0, nullptr, 0, 0},
};
void InnerGuidanceGroup::release_choice() { m_held.release(); chosen = NothingChosen; }
bool InnerGuidanceGroup::IsOccursOk(lmx::c_check_tracker*) const { return true; }
bool InnerGuidanceGroup::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  if (!IsOccursOk(&link)) return false;
  switch (chosen) {
    case GuidancePatternChosen: return m_held.check(&link, "GPN");
    case BoundaryPolygonChosen: return m_held.check(&link, "PLN");
  }
  return true;
}
bool InnerGuidanceGroup::IsMember(lmx::xmlReader& reader) { return is_member(reader, elem_event_map); }
bool InnerGuidanceGroup::unmarshal(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(elem_event_map, lmx::EXAE_ELEMENT);
  switch (reader.m_event) {
    case elem_GuidancePattern: return read_mandatory_run(reader, new_run<GuidancePattern>(chosen, m_held, GuidancePatternChosen), elem_GuidancePattern, {elem_event_map, "GGP", __LINE__}, error);
    case elem_BoundaryPolygon: return read_one(reader, new_one<Polygon>(chosen, m_held, BoundaryPolygonChosen), {elem_event_map, "GGP", __LINE__}, error);
  }
  return true;
}
lmx::elmx_error InnerGuidanceGroup::marshal(lmx::c_xml_writer& writer, char const*) const { return marshal_child_elements(writer); }
lmx::elmx_error InnerGuidanceGroup::marshal_child_elements(lmx::c_xml_writer& writer) const { return write_choice(writer, m_held, chosen, NothingChosen, elem_event_map, __LINE__); }

void InnerGuidanceGroup::SelectGuidancePattern() { selected_run<GuidancePattern>(chosen, m_held, GuidancePatternChosen); }
GuidancePattern const& InnerGuidanceGroup::GetGuidancePattern(std::size_t index) const { return run_at<GuidancePattern>(m_held, {is_chosen(chosen, m_held, GuidancePatternChosen), "chosen == GuidancePatternChosen"}, index, "index < u.mGuidancePattern->size()"); }
GuidancePattern& InnerGuidanceGroup::GetGuidancePattern(std::size_t index) { return selected_run<GuidancePattern>(chosen, m_held, GuidancePatternChosen).get_or_append(index); }
GuidancePattern& InnerGuidanceGroup::AppendGuidancePattern() { return selected_run<GuidancePattern>(chosen, m_held, GuidancePatternChosen).append(); }
void InnerGuidanceGroup::AppendGuidancePattern(GuidancePattern* value) { std::unique_ptr<GuidancePattern> owned(value); selected_run<GuidancePattern>(chosen, m_held, GuidancePatternChosen).append(std::move(owned)); }
GuidancePattern& InnerGuidanceGroup::InsertGuidancePattern(std::size_t index) { return selected_run<GuidancePattern>(chosen, m_held, GuidancePatternChosen).insert(index); }
void InnerGuidanceGroup::InsertGuidancePattern(std::size_t index, GuidancePattern* value) { std::unique_ptr<GuidancePattern> owned(value); selected_run<GuidancePattern>(chosen, m_held, GuidancePatternChosen).insert(index, std::move(owned)); }
void InnerGuidanceGroup::AssignGuidancePattern(std::size_t index, GuidancePattern const& value) { selected_run<GuidancePattern>(chosen, m_held, GuidancePatternChosen).assign(index, value); }
void InnerGuidanceGroup::AssignGuidancePattern(std::size_t index, GuidancePattern* value) { std::unique_ptr<GuidancePattern> owned(value); selected_run<GuidancePattern>(chosen, m_held, GuidancePatternChosen).assign(index, std::move(owned)); }
GuidancePattern& InnerGuidanceGroup::BackGuidancePattern() { return selected_run<GuidancePattern>(chosen, m_held, GuidancePatternChosen).back(); }
void InnerGuidanceGroup::DeleteGuidancePattern(std::size_t index) { erase_at<GuidancePattern>(m_held, {is_chosen(chosen, m_held, GuidancePatternChosen), "chosen == GuidancePatternChosen"}, index, "index < u.mGuidancePattern->size()"); }
void InnerGuidanceGroup::ClearGuidancePattern() { selected_run<GuidancePattern>(chosen, m_held, GuidancePatternChosen).clear(); }
std::size_t InnerGuidanceGroup::SizeGuidancePattern() const { return run_size<GuidancePattern>(m_held, m_held.holds(GuidancePatternChosen)); }

void InnerGuidanceGroup::SelectBoundaryPolygon() { selected_one<Polygon>(chosen, m_held, BoundaryPolygonChosen); }
Polygon const& InnerGuidanceGroup::GetBoundaryPolygon() const { return chosen_one<Polygon>(m_held, {is_chosen(chosen, m_held, BoundaryPolygonChosen), "chosen == BoundaryPolygonChosen"}); }
Polygon& InnerGuidanceGroup::GetBoundaryPolygon() { return selected_one<Polygon>(chosen, m_held, BoundaryPolygonChosen).get_or_create(); }

GuidanceGroup::GuidanceGroup() { init(); }
GuidanceGroup::GuidanceGroup(GuidanceGroup const& other) = default;
GuidanceGroup::GuidanceGroup(GuidanceGroup&& other) noexcept = default;
GuidanceGroup::GuidanceGroup(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
GuidanceGroup* GuidanceGroup::clone() const { return new GuidanceGroup(*this); }
GuidanceGroup::~GuidanceGroup() = default;
GuidanceGroup& GuidanceGroup::operator=(GuidanceGroup const& other) { GuidanceGroup copy(other); swap(copy); return *this; }
GuidanceGroup& GuidanceGroup::operator=(GuidanceGroup&& other) noexcept = default;
void GuidanceGroup::swap(GuidanceGroup& other) noexcept { std::swap(*this, other); }
void GuidanceGroup::reset() { GuidanceGroup empty; swap(empty); }
void GuidanceGroup::init() {}

lmx::s_event_map const GuidanceGroup::attr_event_map[] = {
    {1, "A", 1, attr_Id},
    {1, "B", 1, attr_Designator},
    {1, "P007_GuidanceGroupMetaData", 26, attr_P007GuidanceGroupMetaData},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const GuidanceGroup::elem_event_map[] = {
    {1, "GPN", 3, elem_GuidancePattern},
    {1, "PLN", 3, elem_BoundaryPolygon},
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const GuidanceGroup::known_elements[] = {
    {1, "GPN", 3},
    {1, "PLN", 3},
    {0, nullptr, 0},
};
lmx::elmx_error GuidanceGroup::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "GGP", __LINE__); }
lmx::elmx_error GuidanceGroup::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_complex_content, known_elements, mandatory_content_may_be_empty, __LINE__});
}
bool GuidanceGroup::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_Id: return read_attribute(reader, m_Id, spec_id_GGP_64, __LINE__, error);
    case attr_Designator: return read_attribute(reader, m_Designator, spec_text_32, __LINE__, error);
    case attr_P007GuidanceGroupMetaData: return read_attribute(reader, m_P007GuidanceGroupMetaData, spec_any_text, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* GuidanceGroup::accept_attribute(lmx::plain_attribute const& attribute) {
  switch (attribute.letter()) {
    case 'A': return binding::accept_attribute(m_Id, spec_id_GGP_64, attribute);
    case 'B': return binding::accept_attribute(m_Designator, spec_text_32, attribute);
  }
  return nullptr;
}
bool GuidanceGroup::has_required_attributes() const { return m_Id.is_set(); }
lmx::elmx_error GuidanceGroup::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "GGP", __LINE__, has_required_attributes());
}
bool GuidanceGroup::unmarshal_body(lmx::xmlReader& reader, lmx::elmx_error* error) { return read_wrappers(reader, mInnerGuidanceGroup, true, {elem_event_map, "GGP", __LINE__}, error); }
lmx::elmx_error GuidanceGroup::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void GuidanceGroup::marshal_attributes(lmx::c_xml_writer& writer) const {
  write_attribute(writer, "A", m_Id, spec_id_GGP_64);
  write_attribute(writer, "B", m_Designator, spec_text_32);
  write_attribute(writer, "P007_GuidanceGroupMetaData", m_P007GuidanceGroupMetaData, spec_any_text);
}
lmx::elmx_error GuidanceGroup::marshal_child_elements(lmx::c_xml_writer& writer) const {
  return write_wrappers(writer, mInnerGuidanceGroup);
}
bool GuidanceGroup::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_Id.is_set(), "A", __LINE__) &&
         check_occurs(tracker, !mInnerGuidanceGroup.empty(), "GPN", __LINE__);
}
bool GuidanceGroup::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link) && check_wrappers(&link, mInnerGuidanceGroup);
}
InnerGuidanceGroup const& GuidanceGroup::GetInnerGuidanceGroup(std::size_t index) const { LMX_ASSERT(index < mInnerGuidanceGroup.size()); return mInnerGuidanceGroup.get(index); }
InnerGuidanceGroup& GuidanceGroup::GetInnerGuidanceGroup(std::size_t index) { return mInnerGuidanceGroup.get_or_append(index); }
InnerGuidanceGroup& GuidanceGroup::AppendInnerGuidanceGroup() { return mInnerGuidanceGroup.append(); }
void GuidanceGroup::AppendInnerGuidanceGroup(InnerGuidanceGroup* value) { mInnerGuidanceGroup.append(std::unique_ptr<InnerGuidanceGroup>(value)); }
InnerGuidanceGroup& GuidanceGroup::InsertInnerGuidanceGroup(std::size_t index) { return mInnerGuidanceGroup.insert(index); }
void GuidanceGroup::InsertInnerGuidanceGroup(std::size_t index, InnerGuidanceGroup* value) { mInnerGuidanceGroup.insert(index, std::unique_ptr<InnerGuidanceGroup>(value)); }
void GuidanceGroup::AssignInnerGuidanceGroup(std::size_t index, InnerGuidanceGroup const& value) { mInnerGuidanceGroup.assign(index, value); }
void GuidanceGroup::AssignInnerGuidanceGroup(std::size_t index, InnerGuidanceGroup* value) { mInnerGuidanceGroup.assign(index, std::unique_ptr<InnerGuidanceGroup>(value)); }
InnerGuidanceGroup& GuidanceGroup::BackInnerGuidanceGroup() { return mInnerGuidanceGroup.back(); }
void GuidanceGroup::DeleteInnerGuidanceGroup(std::size_t index) { LMX_ASSERT(index < mInnerGuidanceGroup.size()); mInnerGuidanceGroup.erase(index); }
void GuidanceGroup::ClearInnerGuidanceGroup() { mInnerGuidanceGroup.clear(); }
std::size_t GuidanceGroup::SizeInnerGuidanceGroup() const { return mInnerGuidanceGroup.size(); }

// ---- GuidancePattern ----

InnerGuidancePattern::InnerGuidancePattern() { init(); }
InnerGuidancePattern::InnerGuidancePattern(InnerGuidancePattern const& other) = default;
InnerGuidancePattern::InnerGuidancePattern(InnerGuidancePattern&& other) noexcept : chosen(std::exchange(other.chosen, NothingChosen)), m_held(std::move(other.m_held)) {}
InnerGuidancePattern::InnerGuidancePattern(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_OK; unmarshal(reader, error); }
InnerGuidancePattern* InnerGuidancePattern::clone() const { return new InnerGuidancePattern(*this); }
InnerGuidancePattern::~InnerGuidancePattern() = default;
InnerGuidancePattern& InnerGuidancePattern::operator=(InnerGuidancePattern const& other) { InnerGuidancePattern copy(other); swap(copy); return *this; }
InnerGuidancePattern& InnerGuidancePattern::operator=(InnerGuidancePattern&& other) noexcept { InnerGuidancePattern taken(std::move(other)); swap(taken); return *this; }
void InnerGuidancePattern::swap(InnerGuidancePattern& other) noexcept { std::swap(chosen, other.chosen); std::swap(m_held, other.m_held); }
void InnerGuidancePattern::reset() { InnerGuidancePattern empty; swap(empty); }
void InnerGuidancePattern::init() { chosen = NothingChosen; }

lmx::s_event_map const InnerGuidancePattern::elem_event_map[] = {
    {1, "LSG", 3, elem_LineString},
    {1, "PLN", 3, elem_BoundaryPolygon},
    {0, nullptr, 0, 0},
};
void InnerGuidancePattern::release_choice() { m_held.release(); chosen = NothingChosen; }
bool InnerGuidancePattern::IsOccursOk(lmx::c_check_tracker*) const { return true; }
bool InnerGuidancePattern::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  if (!IsOccursOk(&link)) return false;
  switch (chosen) {
    case LineStringChosen: return m_held.check(&link, "LSG");
    case BoundaryPolygonChosen: return m_held.check(&link, "PLN");
  }
  return true;
}
bool InnerGuidancePattern::IsMember(lmx::xmlReader& reader) { return is_member(reader, elem_event_map); }
bool InnerGuidancePattern::unmarshal(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(elem_event_map, lmx::EXAE_ELEMENT);
  switch (reader.m_event) {
    case elem_LineString: return read_one(reader, new_one<LineString>(chosen, m_held, LineStringChosen), {elem_event_map, "GPN", __LINE__}, error);
    case elem_BoundaryPolygon: return read_one(reader, new_one<Polygon>(chosen, m_held, BoundaryPolygonChosen), {elem_event_map, "GPN", __LINE__}, error);
  }
  return true;
}
lmx::elmx_error InnerGuidancePattern::marshal(lmx::c_xml_writer& writer, char const*) const { return marshal_child_elements(writer); }
lmx::elmx_error InnerGuidancePattern::marshal_child_elements(lmx::c_xml_writer& writer) const { return write_choice(writer, m_held, chosen, NothingChosen, elem_event_map, __LINE__); }

void InnerGuidancePattern::SelectLineString() { selected_one<LineString>(chosen, m_held, LineStringChosen); }
LineString const& InnerGuidancePattern::GetLineString() const { return chosen_one<LineString>(m_held, {is_chosen(chosen, m_held, LineStringChosen), "chosen == LineStringChosen"}); }
LineString& InnerGuidancePattern::GetLineString() { return selected_one<LineString>(chosen, m_held, LineStringChosen).get_or_create(); }

void InnerGuidancePattern::SelectBoundaryPolygon() { selected_one<Polygon>(chosen, m_held, BoundaryPolygonChosen); }
Polygon const& InnerGuidancePattern::GetBoundaryPolygon() const { return chosen_one<Polygon>(m_held, {is_chosen(chosen, m_held, BoundaryPolygonChosen), "chosen == BoundaryPolygonChosen"}); }
Polygon& InnerGuidancePattern::GetBoundaryPolygon() { return selected_one<Polygon>(chosen, m_held, BoundaryPolygonChosen).get_or_create(); }

GuidancePattern::GuidancePattern() { init(); }
GuidancePattern::GuidancePattern(GuidancePattern const& other) = default;
GuidancePattern::GuidancePattern(GuidancePattern&& other) noexcept = default;
GuidancePattern::GuidancePattern(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
GuidancePattern* GuidancePattern::clone() const { return new GuidancePattern(*this); }
GuidancePattern::~GuidancePattern() = default;
GuidancePattern& GuidancePattern::operator=(GuidancePattern const& other) { GuidancePattern copy(other); swap(copy); return *this; }
GuidancePattern& GuidancePattern::operator=(GuidancePattern&& other) noexcept = default;
void GuidancePattern::swap(GuidancePattern& other) noexcept { std::swap(*this, other); }
void GuidancePattern::reset() { GuidancePattern empty; swap(empty); }
void GuidancePattern::init() {}

lmx::s_event_map const GuidancePattern::attr_event_map[] = {
    {1, "A", 1, attr_Id},
    {1, "B", 1, attr_Designator},
    {1, "C", 1, attr_Type},
    {1, "D", 1, attr_Options},
    {1, "E", 1, attr_PropagationDirection},
    {1, "F", 1, attr_Extension},
    {1, "G", 1, attr_Heading},
    {1, "H", 1, attr_Radius},
    {1, "I", 1, attr_GNSSMethod},
    {1, "J", 1, attr_HorizontalAccuracy},
    {1, "K", 1, attr_VerticalAccuracy},
    {1, "L", 1, attr_BaseStationIdRef},
    {1, "M", 1, attr_OriginalSRID},
    {1, "N", 1, attr_NumberOfSwathsLeft},
    {1, "O", 1, attr_NumberOfSwathsRight},
    {1, "P007_GuidanceMetaData", 21, attr_P007GuidanceMetaData},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const GuidancePattern::elem_event_map[] = {
    {1, "LSG", 3, elem_LineString},
    {1, "PLN", 3, elem_BoundaryPolygon},
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const GuidancePattern::known_elements[] = {
    {1, "LSG", 3},
    {1, "PLN", 3},
    {0, nullptr, 0},
};
lmx::elmx_error GuidancePattern::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "GPN", __LINE__); }
lmx::elmx_error GuidancePattern::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_complex_content, known_elements, mandatory_content_may_be_empty, __LINE__});
}
bool GuidancePattern::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_Id: return read_attribute(reader, m_Id, spec_id_GPN_65, __LINE__, error);
    case attr_Designator: return read_attribute(reader, m_Designator, spec_text_32, __LINE__, error);
    case attr_Type: return read_attribute(reader, m_Type, spec_one_of_1_to_5, __LINE__, error);
    case attr_Options: return read_attribute(reader, m_Options, spec_one_of_1_to_3, __LINE__, error);
    case attr_PropagationDirection: return read_attribute(reader, m_PropagationDirection, spec_one_of_1_to_4, __LINE__, error);
    case attr_Extension: return read_attribute(reader, m_Extension, spec_one_of_1_to_4, __LINE__, error);
    case attr_Heading: return read_attribute(reader, m_Heading, spec_degrees_heading, __LINE__, error);
    case attr_Radius: return read_attribute(reader, m_Radius, spec_range_0_to_4294967294_uint32, __LINE__, error);
    case attr_GNSSMethod: return read_attribute(reader, m_GNSSMethod, spec_one_of_0_to_8_16_17, __LINE__, error);
    case attr_HorizontalAccuracy: return read_attribute(reader, m_HorizontalAccuracy, spec_accuracy, __LINE__, error);
    case attr_VerticalAccuracy: return read_attribute(reader, m_VerticalAccuracy, spec_accuracy, __LINE__, error);
    case attr_BaseStationIdRef: return read_attribute(reader, m_BaseStationIdRef, spec_id_BSN_66, __LINE__, error);
    case attr_OriginalSRID: return read_attribute(reader, m_OriginalSRID, spec_text_32, __LINE__, error);
    case attr_NumberOfSwathsLeft: return read_attribute(reader, m_NumberOfSwathsLeft, spec_range_0_to_4294967294_uint32, __LINE__, error);
    case attr_NumberOfSwathsRight: return read_attribute(reader, m_NumberOfSwathsRight, spec_range_0_to_4294967294_uint32, __LINE__, error);
    case attr_P007GuidanceMetaData: return read_attribute(reader, m_P007GuidanceMetaData, spec_any_text, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* GuidancePattern::accept_attribute(lmx::plain_attribute const& attribute) {
  switch (attribute.letter()) {
    case 'A': return binding::accept_attribute(m_Id, spec_id_GPN_65, attribute);
    case 'B': return binding::accept_attribute(m_Designator, spec_text_32, attribute);
    case 'C': return binding::accept_attribute(m_Type, spec_one_of_1_to_5, attribute);
    case 'D': return binding::accept_attribute(m_Options, spec_one_of_1_to_3, attribute);
    case 'E': return binding::accept_attribute(m_PropagationDirection, spec_one_of_1_to_4, attribute);
    case 'F': return binding::accept_attribute(m_Extension, spec_one_of_1_to_4, attribute);
    case 'G': return binding::accept_attribute(m_Heading, spec_degrees_heading, attribute);
    case 'H': return binding::accept_attribute(m_Radius, spec_range_0_to_4294967294_uint32, attribute);
    case 'I': return binding::accept_attribute(m_GNSSMethod, spec_one_of_0_to_8_16_17, attribute);
    case 'J': return binding::accept_attribute(m_HorizontalAccuracy, spec_accuracy, attribute);
    case 'K': return binding::accept_attribute(m_VerticalAccuracy, spec_accuracy, attribute);
    case 'L': return binding::accept_attribute(m_BaseStationIdRef, spec_id_BSN_66, attribute);
    case 'M': return binding::accept_attribute(m_OriginalSRID, spec_text_32, attribute);
    case 'N': return binding::accept_attribute(m_NumberOfSwathsLeft, spec_range_0_to_4294967294_uint32, attribute);
    case 'O': return binding::accept_attribute(m_NumberOfSwathsRight, spec_range_0_to_4294967294_uint32, attribute);
  }
  return nullptr;
}
bool GuidancePattern::has_required_attributes() const { return m_Id.is_set() && m_Type.is_set(); }
lmx::elmx_error GuidancePattern::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "GPN", __LINE__, has_required_attributes());
}
bool GuidancePattern::unmarshal_body(lmx::xmlReader& reader, lmx::elmx_error* error) { return read_wrappers(reader, mInnerGuidancePattern, true, {elem_event_map, "GPN", __LINE__}, error); }
lmx::elmx_error GuidancePattern::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void GuidancePattern::marshal_attributes(lmx::c_xml_writer& writer) const {
  write_attribute(writer, "A", m_Id, spec_id_GPN_65);
  write_attribute(writer, "B", m_Designator, spec_text_32);
  write_attribute(writer, "C", m_Type, spec_one_of_1_to_5);
  write_attribute(writer, "D", m_Options, spec_one_of_1_to_3);
  write_attribute(writer, "E", m_PropagationDirection, spec_one_of_1_to_4);
  write_attribute(writer, "F", m_Extension, spec_one_of_1_to_4);
  write_attribute(writer, "G", m_Heading, spec_degrees_heading);
  write_attribute(writer, "H", m_Radius, spec_range_0_to_4294967294_uint32);
  write_attribute(writer, "I", m_GNSSMethod, spec_one_of_0_to_8_16_17);
  write_attribute(writer, "J", m_HorizontalAccuracy, spec_accuracy);
  write_attribute(writer, "K", m_VerticalAccuracy, spec_accuracy);
  write_attribute(writer, "L", m_BaseStationIdRef, spec_id_BSN_66);
  write_attribute(writer, "M", m_OriginalSRID, spec_text_32);
  write_attribute(writer, "N", m_NumberOfSwathsLeft, spec_range_0_to_4294967294_uint32);
  write_attribute(writer, "O", m_NumberOfSwathsRight, spec_range_0_to_4294967294_uint32);
  write_attribute(writer, "P007_GuidanceMetaData", m_P007GuidanceMetaData, spec_any_text);
}
lmx::elmx_error GuidancePattern::marshal_child_elements(lmx::c_xml_writer& writer) const {
  return write_wrappers(writer, mInnerGuidancePattern);
}
bool GuidancePattern::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_Id.is_set(), "A", __LINE__) &&
         check_occurs(tracker, m_Type.is_set(), "C", __LINE__) &&
         check_occurs(tracker, !mInnerGuidancePattern.empty(), "LSG", __LINE__);
}
bool GuidancePattern::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link) && check_wrappers(&link, mInnerGuidancePattern);
}
InnerGuidancePattern const& GuidancePattern::GetInnerGuidancePattern(std::size_t index) const { LMX_ASSERT(index < mInnerGuidancePattern.size()); return mInnerGuidancePattern.get(index); }
InnerGuidancePattern& GuidancePattern::GetInnerGuidancePattern(std::size_t index) { return mInnerGuidancePattern.get_or_append(index); }
InnerGuidancePattern& GuidancePattern::AppendInnerGuidancePattern() { return mInnerGuidancePattern.append(); }
void GuidancePattern::AppendInnerGuidancePattern(InnerGuidancePattern* value) { mInnerGuidancePattern.append(std::unique_ptr<InnerGuidancePattern>(value)); }
InnerGuidancePattern& GuidancePattern::InsertInnerGuidancePattern(std::size_t index) { return mInnerGuidancePattern.insert(index); }
void GuidancePattern::InsertInnerGuidancePattern(std::size_t index, InnerGuidancePattern* value) { mInnerGuidancePattern.insert(index, std::unique_ptr<InnerGuidancePattern>(value)); }
void GuidancePattern::AssignInnerGuidancePattern(std::size_t index, InnerGuidancePattern const& value) { mInnerGuidancePattern.assign(index, value); }
void GuidancePattern::AssignInnerGuidancePattern(std::size_t index, InnerGuidancePattern* value) { mInnerGuidancePattern.assign(index, std::unique_ptr<InnerGuidancePattern>(value)); }
InnerGuidancePattern& GuidancePattern::BackInnerGuidancePattern() { return mInnerGuidancePattern.back(); }
void GuidancePattern::DeleteInnerGuidancePattern(std::size_t index) { LMX_ASSERT(index < mInnerGuidancePattern.size()); mInnerGuidancePattern.erase(index); }
void GuidancePattern::ClearInnerGuidancePattern() { mInnerGuidancePattern.clear(); }
std::size_t GuidancePattern::SizeInnerGuidancePattern() const { return mInnerGuidancePattern.size(); }
elmx_enums GuidancePattern::GetenumType() const { return enum_code(list_25, m_Type.get()); }
bool GuidancePattern::SetenumType(elmx_enums code) { return set_enum(list_25, code, m_Type); }
elmx_enums GuidancePattern::GetenumOptions() const { return enum_code(list_17, m_Options.get()); }
bool GuidancePattern::SetenumOptions(elmx_enums code) { return set_enum(list_17, code, m_Options); }
elmx_enums GuidancePattern::GetenumPropagationDirection() const { return enum_code(list_8, m_PropagationDirection.get()); }
bool GuidancePattern::SetenumPropagationDirection(elmx_enums code) { return set_enum(list_8, code, m_PropagationDirection); }
elmx_enums GuidancePattern::GetenumExtension() const { return enum_code(list_8, m_Extension.get()); }
bool GuidancePattern::SetenumExtension(elmx_enums code) { return set_enum(list_8, code, m_Extension); }
elmx_enums GuidancePattern::GetenumGNSSMethod() const { return enum_code(list_27, m_GNSSMethod.get()); }
bool GuidancePattern::SetenumGNSSMethod(elmx_enums code) { return set_enum(list_27, code, m_GNSSMethod); }

// ---- GuidanceAllocation ----

InnerGuidanceAllocation::InnerGuidanceAllocation() { init(); }
InnerGuidanceAllocation::InnerGuidanceAllocation(InnerGuidanceAllocation const& other) = default;
InnerGuidanceAllocation::InnerGuidanceAllocation(InnerGuidanceAllocation&& other) noexcept : chosen(std::exchange(other.chosen, NothingChosen)), m_held(std::move(other.m_held)) {}
InnerGuidanceAllocation::InnerGuidanceAllocation(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_OK; unmarshal(reader, error); }
InnerGuidanceAllocation* InnerGuidanceAllocation::clone() const { return new InnerGuidanceAllocation(*this); }
InnerGuidanceAllocation::~InnerGuidanceAllocation() = default;
InnerGuidanceAllocation& InnerGuidanceAllocation::operator=(InnerGuidanceAllocation const& other) { InnerGuidanceAllocation copy(other); swap(copy); return *this; }
InnerGuidanceAllocation& InnerGuidanceAllocation::operator=(InnerGuidanceAllocation&& other) noexcept { InnerGuidanceAllocation taken(std::move(other)); swap(taken); return *this; }
void InnerGuidanceAllocation::swap(InnerGuidanceAllocation& other) noexcept { std::swap(chosen, other.chosen); std::swap(m_held, other.m_held); }
void InnerGuidanceAllocation::reset() { InnerGuidanceAllocation empty; swap(empty); }
void InnerGuidanceAllocation::init() { chosen = NothingChosen; }

lmx::s_event_map const InnerGuidanceAllocation::elem_event_map[] = {
    {1, "ASP", 3, elem_AllocationStamp},
    {1, "GST", 3, elem_GuidanceShift},
    {0, nullptr, 0, 0},
};
void InnerGuidanceAllocation::release_choice() { m_held.release(); chosen = NothingChosen; }
bool InnerGuidanceAllocation::IsOccursOk(lmx::c_check_tracker*) const { return true; }
bool InnerGuidanceAllocation::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  if (!IsOccursOk(&link)) return false;
  switch (chosen) {
    case AllocationStampChosen: return m_held.check(&link, "ASP");
    case GuidanceShiftChosen: return m_held.check(&link, "GST");
  }
  return true;
}
bool InnerGuidanceAllocation::IsMember(lmx::xmlReader& reader) { return is_member(reader, elem_event_map); }
bool InnerGuidanceAllocation::unmarshal(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(elem_event_map, lmx::EXAE_ELEMENT);
  switch (reader.m_event) {
    case elem_AllocationStamp: return read_one(reader, new_one<AllocationStamp>(chosen, m_held, AllocationStampChosen), {elem_event_map, "GAN", __LINE__}, error);
    case elem_GuidanceShift: return read_run(reader, new_run<GuidanceShift>(chosen, m_held, GuidanceShiftChosen), elem_GuidanceShift, {elem_event_map, "GAN", __LINE__}, error);
  }
  return true;
}
lmx::elmx_error InnerGuidanceAllocation::marshal(lmx::c_xml_writer& writer, char const*) const { return marshal_child_elements(writer); }
lmx::elmx_error InnerGuidanceAllocation::marshal_child_elements(lmx::c_xml_writer& writer) const { return write_choice(writer, m_held, chosen, NothingChosen, elem_event_map, __LINE__); }

void InnerGuidanceAllocation::SelectAllocationStamp() { selected_one<AllocationStamp>(chosen, m_held, AllocationStampChosen); }
AllocationStamp const& InnerGuidanceAllocation::GetAllocationStamp() const { return chosen_one<AllocationStamp>(m_held, {is_chosen(chosen, m_held, AllocationStampChosen), "chosen == AllocationStampChosen"}); }
AllocationStamp& InnerGuidanceAllocation::GetAllocationStamp() { return selected_one<AllocationStamp>(chosen, m_held, AllocationStampChosen).get_or_create(); }

void InnerGuidanceAllocation::SelectGuidanceShift() { selected_run<GuidanceShift>(chosen, m_held, GuidanceShiftChosen); }
GuidanceShift const& InnerGuidanceAllocation::GetGuidanceShift(std::size_t index) const { return run_at<GuidanceShift>(m_held, {is_chosen(chosen, m_held, GuidanceShiftChosen), "chosen == GuidanceShiftChosen"}, index, "index < u.mGuidanceShift->size()"); }
GuidanceShift& InnerGuidanceAllocation::GetGuidanceShift(std::size_t index) { return selected_run<GuidanceShift>(chosen, m_held, GuidanceShiftChosen).get_or_append(index); }
GuidanceShift& InnerGuidanceAllocation::AppendGuidanceShift() { return selected_run<GuidanceShift>(chosen, m_held, GuidanceShiftChosen).append(); }
void InnerGuidanceAllocation::AppendGuidanceShift(GuidanceShift* value) { std::unique_ptr<GuidanceShift> owned(value); selected_run<GuidanceShift>(chosen, m_held, GuidanceShiftChosen).append(std::move(owned)); }
GuidanceShift& InnerGuidanceAllocation::InsertGuidanceShift(std::size_t index) { return selected_run<GuidanceShift>(chosen, m_held, GuidanceShiftChosen).insert(index); }
void InnerGuidanceAllocation::InsertGuidanceShift(std::size_t index, GuidanceShift* value) { std::unique_ptr<GuidanceShift> owned(value); selected_run<GuidanceShift>(chosen, m_held, GuidanceShiftChosen).insert(index, std::move(owned)); }
void InnerGuidanceAllocation::AssignGuidanceShift(std::size_t index, GuidanceShift const& value) { selected_run<GuidanceShift>(chosen, m_held, GuidanceShiftChosen).assign(index, value); }
void InnerGuidanceAllocation::AssignGuidanceShift(std::size_t index, GuidanceShift* value) { std::unique_ptr<GuidanceShift> owned(value); selected_run<GuidanceShift>(chosen, m_held, GuidanceShiftChosen).assign(index, std::move(owned)); }
GuidanceShift& InnerGuidanceAllocation::BackGuidanceShift() { return selected_run<GuidanceShift>(chosen, m_held, GuidanceShiftChosen).back(); }
void InnerGuidanceAllocation::DeleteGuidanceShift(std::size_t index) { erase_at<GuidanceShift>(m_held, {is_chosen(chosen, m_held, GuidanceShiftChosen), "chosen == GuidanceShiftChosen"}, index, "index < u.mGuidanceShift->size()"); }
void InnerGuidanceAllocation::ClearGuidanceShift() { selected_run<GuidanceShift>(chosen, m_held, GuidanceShiftChosen).clear(); }
std::size_t InnerGuidanceAllocation::SizeGuidanceShift() const { return run_size<GuidanceShift>(m_held, m_held.holds(GuidanceShiftChosen)); }

GuidanceAllocation::GuidanceAllocation() { init(); }
GuidanceAllocation::GuidanceAllocation(GuidanceAllocation const& other) = default;
GuidanceAllocation::GuidanceAllocation(GuidanceAllocation&& other) noexcept = default;
GuidanceAllocation::GuidanceAllocation(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
GuidanceAllocation* GuidanceAllocation::clone() const { return new GuidanceAllocation(*this); }
GuidanceAllocation::~GuidanceAllocation() = default;
GuidanceAllocation& GuidanceAllocation::operator=(GuidanceAllocation const& other) { GuidanceAllocation copy(other); swap(copy); return *this; }
GuidanceAllocation& GuidanceAllocation::operator=(GuidanceAllocation&& other) noexcept = default;
void GuidanceAllocation::swap(GuidanceAllocation& other) noexcept { std::swap(*this, other); }
void GuidanceAllocation::reset() { GuidanceAllocation empty; swap(empty); }
void GuidanceAllocation::init() {}

lmx::s_event_map const GuidanceAllocation::attr_event_map[] = {
    {1, "A", 1, attr_GuidanceGroupIdRef},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const GuidanceAllocation::elem_event_map[] = {
    {1, "ASP", 3, elem_AllocationStamp},
    {1, "GST", 3, elem_GuidanceShift},
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const GuidanceAllocation::known_elements[] = {
    {1, "ASP", 3},
    {1, "GST", 3},
    {0, nullptr, 0},
};
lmx::elmx_error GuidanceAllocation::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "GAN", __LINE__); }
lmx::elmx_error GuidanceAllocation::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_complex_content, known_elements, mandatory_content_may_be_empty, __LINE__});
}
bool GuidanceAllocation::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_GuidanceGroupIdRef: return read_attribute(reader, m_GuidanceGroupIdRef, spec_id_GGP_63, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* GuidanceAllocation::accept_attribute(lmx::plain_attribute const& attribute) {
  switch (attribute.letter()) {
    case 'A': return binding::accept_attribute(m_GuidanceGroupIdRef, spec_id_GGP_63, attribute);
  }
  return nullptr;
}
bool GuidanceAllocation::has_required_attributes() const { return m_GuidanceGroupIdRef.is_set(); }
lmx::elmx_error GuidanceAllocation::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "GAN", __LINE__, has_required_attributes());
}
bool GuidanceAllocation::unmarshal_body(lmx::xmlReader& reader, lmx::elmx_error* error) { return read_wrappers(reader, mInnerGuidanceAllocation, true, {elem_event_map, "GAN", __LINE__}, error); }
lmx::elmx_error GuidanceAllocation::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void GuidanceAllocation::marshal_attributes(lmx::c_xml_writer& writer) const {
  write_attribute(writer, "A", m_GuidanceGroupIdRef, spec_id_GGP_63);
}
lmx::elmx_error GuidanceAllocation::marshal_child_elements(lmx::c_xml_writer& writer) const {
  return write_wrappers(writer, mInnerGuidanceAllocation);
}
bool GuidanceAllocation::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_GuidanceGroupIdRef.is_set(), "A", __LINE__) &&
         check_occurs(tracker, !mInnerGuidanceAllocation.empty(), "ASP", __LINE__);
}
bool GuidanceAllocation::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link) && check_wrappers(&link, mInnerGuidanceAllocation);
}
InnerGuidanceAllocation const& GuidanceAllocation::GetInnerGuidanceAllocation(std::size_t index) const { LMX_ASSERT(index < mInnerGuidanceAllocation.size()); return mInnerGuidanceAllocation.get(index); }
InnerGuidanceAllocation& GuidanceAllocation::GetInnerGuidanceAllocation(std::size_t index) { return mInnerGuidanceAllocation.get_or_append(index); }
InnerGuidanceAllocation& GuidanceAllocation::AppendInnerGuidanceAllocation() { return mInnerGuidanceAllocation.append(); }
void GuidanceAllocation::AppendInnerGuidanceAllocation(InnerGuidanceAllocation* value) { mInnerGuidanceAllocation.append(std::unique_ptr<InnerGuidanceAllocation>(value)); }
InnerGuidanceAllocation& GuidanceAllocation::InsertInnerGuidanceAllocation(std::size_t index) { return mInnerGuidanceAllocation.insert(index); }
void GuidanceAllocation::InsertInnerGuidanceAllocation(std::size_t index, InnerGuidanceAllocation* value) { mInnerGuidanceAllocation.insert(index, std::unique_ptr<InnerGuidanceAllocation>(value)); }
void GuidanceAllocation::AssignInnerGuidanceAllocation(std::size_t index, InnerGuidanceAllocation const& value) { mInnerGuidanceAllocation.assign(index, value); }
void GuidanceAllocation::AssignInnerGuidanceAllocation(std::size_t index, InnerGuidanceAllocation* value) { mInnerGuidanceAllocation.assign(index, std::unique_ptr<InnerGuidanceAllocation>(value)); }
InnerGuidanceAllocation& GuidanceAllocation::BackInnerGuidanceAllocation() { return mInnerGuidanceAllocation.back(); }
void GuidanceAllocation::DeleteInnerGuidanceAllocation(std::size_t index) { LMX_ASSERT(index < mInnerGuidanceAllocation.size()); mInnerGuidanceAllocation.erase(index); }
void GuidanceAllocation::ClearInnerGuidanceAllocation() { mInnerGuidanceAllocation.clear(); }
std::size_t GuidanceAllocation::SizeInnerGuidanceAllocation() const { return mInnerGuidanceAllocation.size(); }

// ---- GuidanceShift ----

InnerGuidanceShift::InnerGuidanceShift() { init(); }
InnerGuidanceShift::InnerGuidanceShift(InnerGuidanceShift const& other) = default;
InnerGuidanceShift::InnerGuidanceShift(InnerGuidanceShift&& other) noexcept : chosen(std::exchange(other.chosen, NothingChosen)), m_held(std::move(other.m_held)) {}
InnerGuidanceShift::InnerGuidanceShift(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_OK; unmarshal(reader, error); }
InnerGuidanceShift* InnerGuidanceShift::clone() const { return new InnerGuidanceShift(*this); }
InnerGuidanceShift::~InnerGuidanceShift() = default;
InnerGuidanceShift& InnerGuidanceShift::operator=(InnerGuidanceShift const& other) { InnerGuidanceShift copy(other); swap(copy); return *this; }
InnerGuidanceShift& InnerGuidanceShift::operator=(InnerGuidanceShift&& other) noexcept { InnerGuidanceShift taken(std::move(other)); swap(taken); return *this; }
void InnerGuidanceShift::swap(InnerGuidanceShift& other) noexcept { std::swap(chosen, other.chosen); std::swap(m_held, other.m_held); }
void InnerGuidanceShift::reset() { InnerGuidanceShift empty; swap(empty); }
void InnerGuidanceShift::init() { chosen = NothingChosen; }

lmx::s_event_map const InnerGuidanceShift::elem_event_map[] = {
    {1, "ASP", 3, elem_AllocationStamp},
    {0, nullptr, 0, 0},
};
void InnerGuidanceShift::release_choice() { m_held.release(); chosen = NothingChosen; }
bool InnerGuidanceShift::IsOccursOk(lmx::c_check_tracker*) const { return true; }
bool InnerGuidanceShift::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  if (!IsOccursOk(&link)) return false;
  switch (chosen) {
    case AllocationStampChosen: return m_held.check(&link, "ASP");
  }
  return true;
}
bool InnerGuidanceShift::IsMember(lmx::xmlReader& reader) { return is_member(reader, elem_event_map); }
bool InnerGuidanceShift::unmarshal(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(elem_event_map, lmx::EXAE_ELEMENT);
  switch (reader.m_event) {
    case elem_AllocationStamp: return read_one(reader, new_one<AllocationStamp>(chosen, m_held, AllocationStampChosen), {elem_event_map, "GST", __LINE__}, error);
  }
  return true;
}
lmx::elmx_error InnerGuidanceShift::marshal(lmx::c_xml_writer& writer, char const*) const { return marshal_child_elements(writer); }
lmx::elmx_error InnerGuidanceShift::marshal_child_elements(lmx::c_xml_writer& writer) const { return write_choice(writer, m_held, chosen, NothingChosen, elem_event_map, __LINE__); }

void InnerGuidanceShift::SelectAllocationStamp() { selected_one<AllocationStamp>(chosen, m_held, AllocationStampChosen); }
AllocationStamp const& InnerGuidanceShift::GetAllocationStamp() const { return chosen_one<AllocationStamp>(m_held, {is_chosen(chosen, m_held, AllocationStampChosen), "chosen == AllocationStampChosen"}); }
AllocationStamp& InnerGuidanceShift::GetAllocationStamp() { return selected_one<AllocationStamp>(chosen, m_held, AllocationStampChosen).get_or_create(); }

GuidanceShift::GuidanceShift() { init(); }
GuidanceShift::GuidanceShift(GuidanceShift const& other) = default;
GuidanceShift::GuidanceShift(GuidanceShift&& other) noexcept = default;
GuidanceShift::GuidanceShift(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
GuidanceShift* GuidanceShift::clone() const { return new GuidanceShift(*this); }
GuidanceShift::~GuidanceShift() = default;
GuidanceShift& GuidanceShift::operator=(GuidanceShift const& other) { GuidanceShift copy(other); swap(copy); return *this; }
GuidanceShift& GuidanceShift::operator=(GuidanceShift&& other) noexcept = default;
void GuidanceShift::swap(GuidanceShift& other) noexcept { std::swap(*this, other); }
void GuidanceShift::reset() { GuidanceShift empty; swap(empty); }
void GuidanceShift::init() {}

lmx::s_event_map const GuidanceShift::attr_event_map[] = {
    {1, "A", 1, attr_GuidanceGroupIdRef},
    {1, "B", 1, attr_GuidancePatternIdRef},
    {1, "C", 1, attr_EastShift},
    {1, "D", 1, attr_NorthShift},
    {1, "E", 1, attr_PropagationOffset},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const GuidanceShift::elem_event_map[] = {
    {1, "ASP", 3, elem_AllocationStamp},
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const GuidanceShift::known_elements[] = {
    {1, "ASP", 3},
    {0, nullptr, 0},
};
lmx::elmx_error GuidanceShift::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "GST", __LINE__); }
lmx::elmx_error GuidanceShift::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_complex_content, known_elements, true, __LINE__});
}
bool GuidanceShift::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_GuidanceGroupIdRef: return read_attribute(reader, m_GuidanceGroupIdRef, spec_id_GGP_67, __LINE__, error);
    case attr_GuidancePatternIdRef: return read_attribute(reader, m_GuidancePatternIdRef, spec_id_GPN_68, __LINE__, error);
    case attr_EastShift: return read_attribute(reader, m_EastShift, spec_range_minus_2147483648_to_2147483647_int32, __LINE__, error);
    case attr_NorthShift: return read_attribute(reader, m_NorthShift, spec_range_minus_2147483648_to_2147483647_int32, __LINE__, error);
    case attr_PropagationOffset: return read_attribute(reader, m_PropagationOffset, spec_range_minus_2147483648_to_2147483647_int32, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* GuidanceShift::accept_attribute(lmx::plain_attribute const& attribute) {
  switch (attribute.letter()) {
    case 'A': return binding::accept_attribute(m_GuidanceGroupIdRef, spec_id_GGP_67, attribute);
    case 'B': return binding::accept_attribute(m_GuidancePatternIdRef, spec_id_GPN_68, attribute);
    case 'C': return binding::accept_attribute(m_EastShift, spec_range_minus_2147483648_to_2147483647_int32, attribute);
    case 'D': return binding::accept_attribute(m_NorthShift, spec_range_minus_2147483648_to_2147483647_int32, attribute);
    case 'E': return binding::accept_attribute(m_PropagationOffset, spec_range_minus_2147483648_to_2147483647_int32, attribute);
  }
  return nullptr;
}
bool GuidanceShift::has_required_attributes() const { return m_GuidanceGroupIdRef.is_set() && m_GuidancePatternIdRef.is_set(); }
lmx::elmx_error GuidanceShift::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "GST", __LINE__, has_required_attributes());
}
bool GuidanceShift::unmarshal_body(lmx::xmlReader& reader, lmx::elmx_error* error) { return read_wrapper(reader, mInnerGuidanceShift, {elem_event_map, "GST", __LINE__}, error); }
lmx::elmx_error GuidanceShift::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void GuidanceShift::marshal_attributes(lmx::c_xml_writer& writer) const {
  write_attribute(writer, "A", m_GuidanceGroupIdRef, spec_id_GGP_67);
  write_attribute(writer, "B", m_GuidancePatternIdRef, spec_id_GPN_68);
  write_attribute(writer, "C", m_EastShift, spec_range_minus_2147483648_to_2147483647_int32);
  write_attribute(writer, "D", m_NorthShift, spec_range_minus_2147483648_to_2147483647_int32);
  write_attribute(writer, "E", m_PropagationOffset, spec_range_minus_2147483648_to_2147483647_int32);
}
lmx::elmx_error GuidanceShift::marshal_child_elements(lmx::c_xml_writer& writer) const {
  return write_wrapper(writer, mInnerGuidanceShift);
}
bool GuidanceShift::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_GuidanceGroupIdRef.is_set(), "A", __LINE__) &&
         check_occurs(tracker, m_GuidancePatternIdRef.is_set(), "B", __LINE__);
}
bool GuidanceShift::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link) && check_wrapper(&link, mInnerGuidanceShift);
}
InnerGuidanceShift const& GuidanceShift::GetInnerGuidanceShift() const { return mInnerGuidanceShift.get(); }
InnerGuidanceShift& GuidanceShift::GetInnerGuidanceShift() { return mInnerGuidanceShift.get_or_create(); }
void GuidanceShift::AssignInnerGuidanceShift(InnerGuidanceShift const& value) { mInnerGuidanceShift.assign(value.clone()); }
void GuidanceShift::AssignInnerGuidanceShift(InnerGuidanceShift* value) { mInnerGuidanceShift.assign(value); }
bool GuidanceShift::IssetInnerGuidanceShift() const { return mInnerGuidanceShift.is_set(); }
void GuidanceShift::UnsetInnerGuidanceShift() { mInnerGuidanceShift.unset(); }

// ---- BaseStation ----

BaseStation::BaseStation() { init(); }
BaseStation::BaseStation(BaseStation const& other) = default;
BaseStation::BaseStation(BaseStation&& other) noexcept = default;
BaseStation::BaseStation(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
BaseStation* BaseStation::clone() const { return new BaseStation(*this); }
BaseStation::~BaseStation() = default;
BaseStation& BaseStation::operator=(BaseStation const& other) { BaseStation copy(other); swap(copy); return *this; }
BaseStation& BaseStation::operator=(BaseStation&& other) noexcept = default;
void BaseStation::swap(BaseStation& other) noexcept { std::swap(*this, other); }
void BaseStation::reset() { BaseStation empty; swap(empty); }
void BaseStation::init() {}

lmx::s_event_map const BaseStation::attr_event_map[] = {
    {1, "A", 1, attr_Id},
    {1, "B", 1, attr_Designator},
    {1, "C", 1, attr_North},
    {1, "D", 1, attr_East},
    {1, "E", 1, attr_Altitude},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const BaseStation::elem_event_map[] = {
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const BaseStation::known_elements[] = {
    {0, nullptr, 0},
};
lmx::elmx_error BaseStation::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "BSN", __LINE__); }
lmx::elmx_error BaseStation::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_empty_content, known_elements, true, __LINE__});
}
bool BaseStation::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_Id: return read_attribute(reader, m_Id, spec_id_BSN_14, __LINE__, error);
    case attr_Designator: return read_attribute(reader, m_Designator, spec_text_32, __LINE__, error);
    case attr_North: return read_attribute(reader, m_North, spec_degrees_latitude, __LINE__, error);
    case attr_East: return read_attribute(reader, m_East, spec_degrees_longitude, __LINE__, error);
    case attr_Altitude: return read_attribute(reader, m_Altitude, spec_range_minus_2147483647_to_2147483647_int32, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* BaseStation::accept_attribute(lmx::plain_attribute const& attribute) {
  switch (attribute.letter()) {
    case 'A': return binding::accept_attribute(m_Id, spec_id_BSN_14, attribute);
    case 'B': return binding::accept_attribute(m_Designator, spec_text_32, attribute);
    case 'C': return binding::accept_attribute(m_North, spec_degrees_latitude, attribute);
    case 'D': return binding::accept_attribute(m_East, spec_degrees_longitude, attribute);
    case 'E': return binding::accept_attribute(m_Altitude, spec_range_minus_2147483647_to_2147483647_int32, attribute);
  }
  return nullptr;
}
bool BaseStation::has_required_attributes() const { return m_Id.is_set() && m_Designator.is_set() && m_North.is_set() && m_East.is_set() && m_Altitude.is_set(); }
lmx::elmx_error BaseStation::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "BSN", __LINE__, has_required_attributes());
}
bool BaseStation::unmarshal_body(lmx::xmlReader&, lmx::elmx_error*) { return true; }
lmx::elmx_error BaseStation::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void BaseStation::marshal_attributes(lmx::c_xml_writer& writer) const {
  write_attribute(writer, "A", m_Id, spec_id_BSN_14);
  write_attribute(writer, "B", m_Designator, spec_text_32);
  write_attribute(writer, "C", m_North, spec_degrees_latitude);
  write_attribute(writer, "D", m_East, spec_degrees_longitude);
  write_attribute(writer, "E", m_Altitude, spec_range_minus_2147483647_to_2147483647_int32);
}
lmx::elmx_error BaseStation::marshal_child_elements(lmx::c_xml_writer&) const {
  return lmx::ELMX_OK;
}
bool BaseStation::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_Id.is_set(), "A", __LINE__) &&
         check_occurs(tracker, m_Designator.is_set(), "B", __LINE__) &&
         check_occurs(tracker, m_North.is_set(), "C", __LINE__) &&
         check_occurs(tracker, m_East.is_set(), "D", __LINE__) &&
         check_occurs(tracker, m_Altitude.is_set(), "E", __LINE__);
}
bool BaseStation::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link);
}
