// clang-format off
// Generated from schema/device.toml. Edit the schema, then build the target `schema`.

#include "isoxmllib/device.h"

#include <memory>
#include <utility>

#include "isoxmllib/engine.h"
#include "isoxmllib/events.h"
#include "isoxmllib/rules.h"
#include "isoxmllib/specs.h"

using namespace binding;

// ---- Device ----

InnerDevice::InnerDevice() { init(); }
InnerDevice::InnerDevice(InnerDevice const& other) = default;
InnerDevice::InnerDevice(InnerDevice&& other) noexcept : chosen(std::exchange(other.chosen, NothingChosen)), m_held(std::move(other.m_held)) {}
InnerDevice::InnerDevice(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_OK; unmarshal(reader, error); }
InnerDevice* InnerDevice::clone() const { return new InnerDevice(*this); }
InnerDevice::~InnerDevice() = default;
InnerDevice& InnerDevice::operator=(InnerDevice const& other) { InnerDevice copy(other); swap(copy); return *this; }
InnerDevice& InnerDevice::operator=(InnerDevice&& other) noexcept { InnerDevice taken(std::move(other)); swap(taken); return *this; }
void InnerDevice::swap(InnerDevice& other) noexcept { std::swap(chosen, other.chosen); std::swap(m_held, other.m_held); }
void InnerDevice::reset() { InnerDevice empty; swap(empty); }
void InnerDevice::init() { chosen = NothingChosen; }

lmx::s_event_map const InnerDevice::elem_event_map[] = {
    {1, "DET", 3, elem_DeviceElement},
    {1, "DPT", 3, elem_DeviceProperty},
    {1, "DPD", 3, elem_DeviceProcessData},
    {1, "DVP", 3, elem_DeviceValuePresentation},
    {0, nullptr, 0, 0},
};
void InnerDevice::release_choice() { m_held.release(); chosen = NothingChosen; }
bool InnerDevice::IsOccursOk(lmx::c_check_tracker*) const { return true; }
bool InnerDevice::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  if (!IsOccursOk(&link)) return false;
  switch (chosen) {
    case DeviceElementChosen: return m_held.check(&link, "DET");
    case DevicePropertyChosen: return m_held.check(&link, "DPT");
    case DeviceProcessDataChosen: return m_held.check(&link, "DPD");
    case DeviceValuePresentationChosen: return m_held.check(&link, "DVP");
  }
  return true;
}
bool InnerDevice::IsMember(lmx::xmlReader& reader) { return is_member(reader, elem_event_map); }
bool InnerDevice::unmarshal(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(elem_event_map, lmx::EXAE_ELEMENT);
  switch (reader.m_event) {
    case elem_DeviceElement: return read_mandatory_run(reader, new_run<DeviceElement>(chosen, m_held, DeviceElementChosen), elem_DeviceElement, {elem_event_map, "DVC", __LINE__}, error);
    case elem_DeviceProperty: return read_run(reader, new_run<DeviceProperty>(chosen, m_held, DevicePropertyChosen), elem_DeviceProperty, {elem_event_map, "DVC", __LINE__}, error);
    case elem_DeviceProcessData: return read_run(reader, new_run<DeviceProcessData>(chosen, m_held, DeviceProcessDataChosen), elem_DeviceProcessData, {elem_event_map, "DVC", __LINE__}, error);
    case elem_DeviceValuePresentation: return read_run(reader, new_run<DeviceValuePresentation>(chosen, m_held, DeviceValuePresentationChosen), elem_DeviceValuePresentation, {elem_event_map, "DVC", __LINE__}, error);
  }
  return true;
}
lmx::elmx_error InnerDevice::marshal(lmx::c_xml_writer& writer, char const*) const { return marshal_child_elements(writer); }
lmx::elmx_error InnerDevice::marshal_child_elements(lmx::c_xml_writer& writer) const { return write_choice(writer, m_held, chosen, NothingChosen, elem_event_map, __LINE__); }

void InnerDevice::SelectDeviceElement() { selected_run<DeviceElement>(chosen, m_held, DeviceElementChosen); }
DeviceElement const& InnerDevice::GetDeviceElement(std::size_t index) const { return run_at<DeviceElement>(m_held, {is_chosen(chosen, m_held, DeviceElementChosen), "chosen == DeviceElementChosen"}, index, "index < u.mDeviceElement->size()"); }
DeviceElement& InnerDevice::GetDeviceElement(std::size_t index) { return selected_run<DeviceElement>(chosen, m_held, DeviceElementChosen).get_or_append(index); }
DeviceElement& InnerDevice::AppendDeviceElement() { return selected_run<DeviceElement>(chosen, m_held, DeviceElementChosen).append(); }
void InnerDevice::AppendDeviceElement(DeviceElement* value) { std::unique_ptr<DeviceElement> owned(value); selected_run<DeviceElement>(chosen, m_held, DeviceElementChosen).append(std::move(owned)); }
DeviceElement& InnerDevice::InsertDeviceElement(std::size_t index) { return selected_run<DeviceElement>(chosen, m_held, DeviceElementChosen).insert(index); }
void InnerDevice::InsertDeviceElement(std::size_t index, DeviceElement* value) { std::unique_ptr<DeviceElement> owned(value); selected_run<DeviceElement>(chosen, m_held, DeviceElementChosen).insert(index, std::move(owned)); }
void InnerDevice::AssignDeviceElement(std::size_t index, DeviceElement const& value) { selected_run<DeviceElement>(chosen, m_held, DeviceElementChosen).assign(index, value); }
void InnerDevice::AssignDeviceElement(std::size_t index, DeviceElement* value) { std::unique_ptr<DeviceElement> owned(value); selected_run<DeviceElement>(chosen, m_held, DeviceElementChosen).assign(index, std::move(owned)); }
DeviceElement& InnerDevice::BackDeviceElement() { return selected_run<DeviceElement>(chosen, m_held, DeviceElementChosen).back(); }
void InnerDevice::DeleteDeviceElement(std::size_t index) { erase_at<DeviceElement>(m_held, {is_chosen(chosen, m_held, DeviceElementChosen), "chosen == DeviceElementChosen"}, index, "index < u.mDeviceElement->size()"); }
void InnerDevice::ClearDeviceElement() { selected_run<DeviceElement>(chosen, m_held, DeviceElementChosen).clear(); }
std::size_t InnerDevice::SizeDeviceElement() const { return run_size<DeviceElement>(m_held, m_held.holds(DeviceElementChosen)); }

void InnerDevice::SelectDeviceProperty() { selected_run<DeviceProperty>(chosen, m_held, DevicePropertyChosen); }
DeviceProperty const& InnerDevice::GetDeviceProperty(std::size_t index) const { return run_at<DeviceProperty>(m_held, {is_chosen(chosen, m_held, DevicePropertyChosen), "chosen == DevicePropertyChosen"}, index, "index < u.mDeviceProperty->size()"); }
DeviceProperty& InnerDevice::GetDeviceProperty(std::size_t index) { return selected_run<DeviceProperty>(chosen, m_held, DevicePropertyChosen).get_or_append(index); }
DeviceProperty& InnerDevice::AppendDeviceProperty() { return selected_run<DeviceProperty>(chosen, m_held, DevicePropertyChosen).append(); }
void InnerDevice::AppendDeviceProperty(DeviceProperty* value) { std::unique_ptr<DeviceProperty> owned(value); selected_run<DeviceProperty>(chosen, m_held, DevicePropertyChosen).append(std::move(owned)); }
DeviceProperty& InnerDevice::InsertDeviceProperty(std::size_t index) { return selected_run<DeviceProperty>(chosen, m_held, DevicePropertyChosen).insert(index); }
void InnerDevice::InsertDeviceProperty(std::size_t index, DeviceProperty* value) { std::unique_ptr<DeviceProperty> owned(value); selected_run<DeviceProperty>(chosen, m_held, DevicePropertyChosen).insert(index, std::move(owned)); }
void InnerDevice::AssignDeviceProperty(std::size_t index, DeviceProperty const& value) { selected_run<DeviceProperty>(chosen, m_held, DevicePropertyChosen).assign(index, value); }
void InnerDevice::AssignDeviceProperty(std::size_t index, DeviceProperty* value) { std::unique_ptr<DeviceProperty> owned(value); selected_run<DeviceProperty>(chosen, m_held, DevicePropertyChosen).assign(index, std::move(owned)); }
DeviceProperty& InnerDevice::BackDeviceProperty() { return selected_run<DeviceProperty>(chosen, m_held, DevicePropertyChosen).back(); }
void InnerDevice::DeleteDeviceProperty(std::size_t index) { erase_at<DeviceProperty>(m_held, {is_chosen(chosen, m_held, DevicePropertyChosen), "chosen == DevicePropertyChosen"}, index, "index < u.mDeviceProperty->size()"); }
void InnerDevice::ClearDeviceProperty() { selected_run<DeviceProperty>(chosen, m_held, DevicePropertyChosen).clear(); }
std::size_t InnerDevice::SizeDeviceProperty() const { return run_size<DeviceProperty>(m_held, m_held.holds(DevicePropertyChosen)); }

void InnerDevice::SelectDeviceProcessData() { selected_run<DeviceProcessData>(chosen, m_held, DeviceProcessDataChosen); }
DeviceProcessData const& InnerDevice::GetDeviceProcessData(std::size_t index) const { return run_at<DeviceProcessData>(m_held, {is_chosen(chosen, m_held, DeviceProcessDataChosen), "chosen == DeviceProcessDataChosen"}, index, "index < u.mDeviceProcessData->size()"); }
DeviceProcessData& InnerDevice::GetDeviceProcessData(std::size_t index) { return selected_run<DeviceProcessData>(chosen, m_held, DeviceProcessDataChosen).get_or_append(index); }
DeviceProcessData& InnerDevice::AppendDeviceProcessData() { return selected_run<DeviceProcessData>(chosen, m_held, DeviceProcessDataChosen).append(); }
void InnerDevice::AppendDeviceProcessData(DeviceProcessData* value) { std::unique_ptr<DeviceProcessData> owned(value); selected_run<DeviceProcessData>(chosen, m_held, DeviceProcessDataChosen).append(std::move(owned)); }
DeviceProcessData& InnerDevice::InsertDeviceProcessData(std::size_t index) { return selected_run<DeviceProcessData>(chosen, m_held, DeviceProcessDataChosen).insert(index); }
void InnerDevice::InsertDeviceProcessData(std::size_t index, DeviceProcessData* value) { std::unique_ptr<DeviceProcessData> owned(value); selected_run<DeviceProcessData>(chosen, m_held, DeviceProcessDataChosen).insert(index, std::move(owned)); }
void InnerDevice::AssignDeviceProcessData(std::size_t index, DeviceProcessData const& value) { selected_run<DeviceProcessData>(chosen, m_held, DeviceProcessDataChosen).assign(index, value); }
void InnerDevice::AssignDeviceProcessData(std::size_t index, DeviceProcessData* value) { std::unique_ptr<DeviceProcessData> owned(value); selected_run<DeviceProcessData>(chosen, m_held, DeviceProcessDataChosen).assign(index, std::move(owned)); }
DeviceProcessData& InnerDevice::BackDeviceProcessData() { return selected_run<DeviceProcessData>(chosen, m_held, DeviceProcessDataChosen).back(); }
void InnerDevice::DeleteDeviceProcessData(std::size_t index) { erase_at<DeviceProcessData>(m_held, {is_chosen(chosen, m_held, DeviceProcessDataChosen), "chosen == DeviceProcessDataChosen"}, index, "index < u.mDeviceProcessData->size()"); }
void InnerDevice::ClearDeviceProcessData() { selected_run<DeviceProcessData>(chosen, m_held, DeviceProcessDataChosen).clear(); }
std::size_t InnerDevice::SizeDeviceProcessData() const { return run_size<DeviceProcessData>(m_held, m_held.holds(DeviceProcessDataChosen)); }

void InnerDevice::SelectDeviceValuePresentation() { selected_run<DeviceValuePresentation>(chosen, m_held, DeviceValuePresentationChosen); }
DeviceValuePresentation const& InnerDevice::GetDeviceValuePresentation(std::size_t index) const { return run_at<DeviceValuePresentation>(m_held, {is_chosen(chosen, m_held, DeviceValuePresentationChosen), "chosen == DeviceValuePresentationChosen"}, index, "index < u.mDeviceValuePresentation->size()"); }
DeviceValuePresentation& InnerDevice::GetDeviceValuePresentation(std::size_t index) { return selected_run<DeviceValuePresentation>(chosen, m_held, DeviceValuePresentationChosen).get_or_append(index); }
DeviceValuePresentation& InnerDevice::AppendDeviceValuePresentation() { return selected_run<DeviceValuePresentation>(chosen, m_held, DeviceValuePresentationChosen).append(); }
void InnerDevice::AppendDeviceValuePresentation(DeviceValuePresentation* value) { std::unique_ptr<DeviceValuePresentation> owned(value); selected_run<DeviceValuePresentation>(chosen, m_held, DeviceValuePresentationChosen).append(std::move(owned)); }
DeviceValuePresentation& InnerDevice::InsertDeviceValuePresentation(std::size_t index) { return selected_run<DeviceValuePresentation>(chosen, m_held, DeviceValuePresentationChosen).insert(index); }
void InnerDevice::InsertDeviceValuePresentation(std::size_t index, DeviceValuePresentation* value) { std::unique_ptr<DeviceValuePresentation> owned(value); selected_run<DeviceValuePresentation>(chosen, m_held, DeviceValuePresentationChosen).insert(index, std::move(owned)); }
void InnerDevice::AssignDeviceValuePresentation(std::size_t index, DeviceValuePresentation const& value) { selected_run<DeviceValuePresentation>(chosen, m_held, DeviceValuePresentationChosen).assign(index, value); }
void InnerDevice::AssignDeviceValuePresentation(std::size_t index, DeviceValuePresentation* value) { std::unique_ptr<DeviceValuePresentation> owned(value); selected_run<DeviceValuePresentation>(chosen, m_held, DeviceValuePresentationChosen).assign(index, std::move(owned)); }
DeviceValuePresentation& InnerDevice::BackDeviceValuePresentation() { return selected_run<DeviceValuePresentation>(chosen, m_held, DeviceValuePresentationChosen).back(); }
void InnerDevice::DeleteDeviceValuePresentation(std::size_t index) { erase_at<DeviceValuePresentation>(m_held, {is_chosen(chosen, m_held, DeviceValuePresentationChosen), "chosen == DeviceValuePresentationChosen"}, index, "index < u.mDeviceValuePresentation->size()"); }
void InnerDevice::ClearDeviceValuePresentation() { selected_run<DeviceValuePresentation>(chosen, m_held, DeviceValuePresentationChosen).clear(); }
std::size_t InnerDevice::SizeDeviceValuePresentation() const { return run_size<DeviceValuePresentation>(m_held, m_held.holds(DeviceValuePresentationChosen)); }

Device::Device() { init(); }
Device::Device(Device const& other) = default;
Device::Device(Device&& other) noexcept = default;
Device::Device(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
Device* Device::clone() const { return new Device(*this); }
Device::~Device() = default;
Device& Device::operator=(Device const& other) { Device copy(other); swap(copy); return *this; }
Device& Device::operator=(Device&& other) noexcept = default;
void Device::swap(Device& other) noexcept { std::swap(*this, other); }
void Device::reset() { Device empty; swap(empty); }
void Device::init() {}

lmx::s_event_map const Device::attr_event_map[] = {
    {1, "A", 1, attr_Id},
    {1, "B", 1, attr_Designator},
    {1, "C", 1, attr_SoftwareVersion},
    {1, "D", 1, attr_ClientName},
    {1, "E", 1, attr_SerialNumber},
    {1, "F", 1, attr_StructureLabel},
    {1, "G", 1, attr_LocalizationLabel},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const Device::elem_event_map[] = {
    {1, "DET", 3, elem_DeviceElement},
    {1, "DPT", 3, elem_DeviceProperty},
    {1, "DPD", 3, elem_DeviceProcessData},
    {1, "DVP", 3, elem_DeviceValuePresentation},
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const Device::known_elements[] = {
    {1, "DET", 3},
    {1, "DPT", 3},
    {1, "DPD", 3},
    {1, "DVP", 3},
    {0, nullptr, 0},
};
lmx::elmx_error Device::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "DVC", __LINE__); }
lmx::elmx_error Device::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_complex_content, known_elements, mandatory_content_may_be_empty, __LINE__});
}
bool Device::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_Id: return read_attribute(reader, m_Id, spec_id_DVC_49, __LINE__, error);
    case attr_Designator: return read_attribute(reader, m_Designator, spec_text_32, __LINE__, error);
    case attr_SoftwareVersion: return read_attribute(reader, m_SoftwareVersion, spec_text_32, __LINE__, error);
    case attr_ClientName: return read_attribute(reader, m_ClientName, spec_bytes_8, __LINE__, error);
    case attr_SerialNumber: return read_attribute(reader, m_SerialNumber, spec_text_32, __LINE__, error);
    case attr_StructureLabel: return read_attribute(reader, m_StructureLabel, spec_structure_label_50, __LINE__, error);
    case attr_LocalizationLabel: return read_attribute(reader, m_LocalizationLabel, spec_localization_label_51, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* Device::accept_attribute(lmx::plain_attribute const& attribute) {
  switch (attribute.letter()) {
    case 'A': return binding::accept_attribute(m_Id, spec_id_DVC_49, attribute);
    case 'B': return binding::accept_attribute(m_Designator, spec_text_32, attribute);
    case 'C': return binding::accept_attribute(m_SoftwareVersion, spec_text_32, attribute);
    case 'D': return binding::accept_attribute(m_ClientName, spec_bytes_8, attribute);
    case 'E': return binding::accept_attribute(m_SerialNumber, spec_text_32, attribute);
    case 'F': return binding::accept_attribute(m_StructureLabel, spec_structure_label_50, attribute);
    case 'G': return binding::accept_attribute(m_LocalizationLabel, spec_localization_label_51, attribute);
  }
  return nullptr;
}
bool Device::has_required_attributes() const { return m_Id.is_set() && m_ClientName.is_set() && m_StructureLabel.is_set() && m_LocalizationLabel.is_set(); }
lmx::elmx_error Device::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "DVC", __LINE__, has_required_attributes());
}
bool Device::unmarshal_body(lmx::xmlReader& reader, lmx::elmx_error* error) { return read_wrappers(reader, mInnerDevice, true, {elem_event_map, "DVC", __LINE__}, error); }
lmx::elmx_error Device::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void Device::marshal_attributes(lmx::c_xml_writer& writer) const {
  write_attribute(writer, "A", m_Id, spec_id_DVC_49);
  write_attribute(writer, "B", m_Designator, spec_text_32);
  write_attribute(writer, "C", m_SoftwareVersion, spec_text_32);
  write_attribute(writer, "D", m_ClientName, spec_bytes_8);
  write_attribute(writer, "E", m_SerialNumber, spec_text_32);
  write_attribute(writer, "F", m_StructureLabel, spec_structure_label_50);
  write_attribute(writer, "G", m_LocalizationLabel, spec_localization_label_51);
}
lmx::elmx_error Device::marshal_child_elements(lmx::c_xml_writer& writer) const {
  return write_wrappers(writer, mInnerDevice);
}
bool Device::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_Id.is_set(), "A", __LINE__) &&
         check_occurs(tracker, m_ClientName.is_set(), "D", __LINE__) &&
         check_occurs(tracker, m_StructureLabel.is_set(), "F", __LINE__) &&
         check_occurs(tracker, m_LocalizationLabel.is_set(), "G", __LINE__) &&
         check_occurs(tracker, !mInnerDevice.empty(), "DET", __LINE__);
}
bool Device::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link) && check_wrappers(&link, mInnerDevice);
}
InnerDevice const& Device::GetInnerDevice(std::size_t index) const { LMX_ASSERT(index < mInnerDevice.size()); return mInnerDevice.get(index); }
InnerDevice& Device::GetInnerDevice(std::size_t index) { return mInnerDevice.get_or_append(index); }
InnerDevice& Device::AppendInnerDevice() { return mInnerDevice.append(); }
void Device::AppendInnerDevice(InnerDevice* value) { mInnerDevice.append(std::unique_ptr<InnerDevice>(value)); }
InnerDevice& Device::InsertInnerDevice(std::size_t index) { return mInnerDevice.insert(index); }
void Device::InsertInnerDevice(std::size_t index, InnerDevice* value) { mInnerDevice.insert(index, std::unique_ptr<InnerDevice>(value)); }
void Device::AssignInnerDevice(std::size_t index, InnerDevice const& value) { mInnerDevice.assign(index, value); }
void Device::AssignInnerDevice(std::size_t index, InnerDevice* value) { mInnerDevice.assign(index, std::unique_ptr<InnerDevice>(value)); }
InnerDevice& Device::BackInnerDevice() { return mInnerDevice.back(); }
void Device::DeleteInnerDevice(std::size_t index) { LMX_ASSERT(index < mInnerDevice.size()); mInnerDevice.erase(index); }
void Device::ClearInnerDevice() { mInnerDevice.clear(); }
std::size_t Device::SizeInnerDevice() const { return mInnerDevice.size(); }

// ---- DeviceElement ----

InnerDeviceElement::InnerDeviceElement() { init(); }
InnerDeviceElement::InnerDeviceElement(InnerDeviceElement const& other) = default;
InnerDeviceElement::InnerDeviceElement(InnerDeviceElement&& other) noexcept : chosen(std::exchange(other.chosen, NothingChosen)), m_held(std::move(other.m_held)) {}
InnerDeviceElement::InnerDeviceElement(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_OK; unmarshal(reader, error); }
InnerDeviceElement* InnerDeviceElement::clone() const { return new InnerDeviceElement(*this); }
InnerDeviceElement::~InnerDeviceElement() = default;
InnerDeviceElement& InnerDeviceElement::operator=(InnerDeviceElement const& other) { InnerDeviceElement copy(other); swap(copy); return *this; }
InnerDeviceElement& InnerDeviceElement::operator=(InnerDeviceElement&& other) noexcept { InnerDeviceElement taken(std::move(other)); swap(taken); return *this; }
void InnerDeviceElement::swap(InnerDeviceElement& other) noexcept { std::swap(chosen, other.chosen); std::swap(m_held, other.m_held); }
void InnerDeviceElement::reset() { InnerDeviceElement empty; swap(empty); }
void InnerDeviceElement::init() { chosen = NothingChosen; }

lmx::s_event_map const InnerDeviceElement::elem_event_map[] = {
    {1, "DOR", 3, elem_DeviceObjectReference},
    {0, nullptr, 0, 0},
};
void InnerDeviceElement::release_choice() { m_held.release(); chosen = NothingChosen; }
bool InnerDeviceElement::IsOccursOk(lmx::c_check_tracker*) const { return true; }
bool InnerDeviceElement::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  if (!IsOccursOk(&link)) return false;
  switch (chosen) {
    case DeviceObjectReferenceChosen: return m_held.check(&link, "DOR");
  }
  return true;
}
bool InnerDeviceElement::IsMember(lmx::xmlReader& reader) { return is_member(reader, elem_event_map); }
bool InnerDeviceElement::unmarshal(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(elem_event_map, lmx::EXAE_ELEMENT);
  switch (reader.m_event) {
    case elem_DeviceObjectReference: return read_run(reader, new_run<DeviceObjectReference>(chosen, m_held, DeviceObjectReferenceChosen), elem_DeviceObjectReference, {elem_event_map, "DET", __LINE__}, error);
  }
  return true;
}
lmx::elmx_error InnerDeviceElement::marshal(lmx::c_xml_writer& writer, char const*) const { return marshal_child_elements(writer); }
lmx::elmx_error InnerDeviceElement::marshal_child_elements(lmx::c_xml_writer& writer) const { return write_choice(writer, m_held, chosen, NothingChosen, elem_event_map, __LINE__); }

void InnerDeviceElement::SelectDeviceObjectReference() { selected_run<DeviceObjectReference>(chosen, m_held, DeviceObjectReferenceChosen); }
DeviceObjectReference const& InnerDeviceElement::GetDeviceObjectReference(std::size_t index) const { return run_at<DeviceObjectReference>(m_held, {is_chosen(chosen, m_held, DeviceObjectReferenceChosen), "chosen == DeviceObjectReferenceChosen"}, index, "index < u.mDeviceObjectReference->size()"); }
DeviceObjectReference& InnerDeviceElement::GetDeviceObjectReference(std::size_t index) { return selected_run<DeviceObjectReference>(chosen, m_held, DeviceObjectReferenceChosen).get_or_append(index); }
DeviceObjectReference& InnerDeviceElement::AppendDeviceObjectReference() { return selected_run<DeviceObjectReference>(chosen, m_held, DeviceObjectReferenceChosen).append(); }
void InnerDeviceElement::AppendDeviceObjectReference(DeviceObjectReference* value) { std::unique_ptr<DeviceObjectReference> owned(value); selected_run<DeviceObjectReference>(chosen, m_held, DeviceObjectReferenceChosen).append(std::move(owned)); }
DeviceObjectReference& InnerDeviceElement::InsertDeviceObjectReference(std::size_t index) { return selected_run<DeviceObjectReference>(chosen, m_held, DeviceObjectReferenceChosen).insert(index); }
void InnerDeviceElement::InsertDeviceObjectReference(std::size_t index, DeviceObjectReference* value) { std::unique_ptr<DeviceObjectReference> owned(value); selected_run<DeviceObjectReference>(chosen, m_held, DeviceObjectReferenceChosen).insert(index, std::move(owned)); }
void InnerDeviceElement::AssignDeviceObjectReference(std::size_t index, DeviceObjectReference const& value) { selected_run<DeviceObjectReference>(chosen, m_held, DeviceObjectReferenceChosen).assign(index, value); }
void InnerDeviceElement::AssignDeviceObjectReference(std::size_t index, DeviceObjectReference* value) { std::unique_ptr<DeviceObjectReference> owned(value); selected_run<DeviceObjectReference>(chosen, m_held, DeviceObjectReferenceChosen).assign(index, std::move(owned)); }
DeviceObjectReference& InnerDeviceElement::BackDeviceObjectReference() { return selected_run<DeviceObjectReference>(chosen, m_held, DeviceObjectReferenceChosen).back(); }
void InnerDeviceElement::DeleteDeviceObjectReference(std::size_t index) { erase_at<DeviceObjectReference>(m_held, {is_chosen(chosen, m_held, DeviceObjectReferenceChosen), "chosen == DeviceObjectReferenceChosen"}, index, "index < u.mDeviceObjectReference->size()"); }
void InnerDeviceElement::ClearDeviceObjectReference() { selected_run<DeviceObjectReference>(chosen, m_held, DeviceObjectReferenceChosen).clear(); }
std::size_t InnerDeviceElement::SizeDeviceObjectReference() const { return run_size<DeviceObjectReference>(m_held, m_held.holds(DeviceObjectReferenceChosen)); }

DeviceElement::DeviceElement() { init(); }
DeviceElement::DeviceElement(DeviceElement const& other) = default;
DeviceElement::DeviceElement(DeviceElement&& other) noexcept = default;
DeviceElement::DeviceElement(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
DeviceElement* DeviceElement::clone() const { return new DeviceElement(*this); }
DeviceElement::~DeviceElement() = default;
DeviceElement& DeviceElement::operator=(DeviceElement const& other) { DeviceElement copy(other); swap(copy); return *this; }
DeviceElement& DeviceElement::operator=(DeviceElement&& other) noexcept = default;
void DeviceElement::swap(DeviceElement& other) noexcept { std::swap(*this, other); }
void DeviceElement::reset() { DeviceElement empty; swap(empty); }
void DeviceElement::init() {}

lmx::s_event_map const DeviceElement::attr_event_map[] = {
    {1, "A", 1, attr_Id},
    {1, "B", 1, attr_ObjectId},
    {1, "C", 1, attr_Type},
    {1, "D", 1, attr_Designator},
    {1, "E", 1, attr_Number},
    {1, "F", 1, attr_ParentObjectId},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const DeviceElement::elem_event_map[] = {
    {1, "DOR", 3, elem_DeviceObjectReference},
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const DeviceElement::known_elements[] = {
    {1, "DOR", 3},
    {0, nullptr, 0},
};
lmx::elmx_error DeviceElement::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "DET", __LINE__); }
lmx::elmx_error DeviceElement::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_complex_content, known_elements, true, __LINE__});
}
bool DeviceElement::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_Id: return read_attribute(reader, m_Id, spec_id_DET_53, __LINE__, error);
    case attr_ObjectId: return read_attribute(reader, m_ObjectId, spec_range_1_to_65534_uint16, __LINE__, error);
    case attr_Type: return read_attribute(reader, m_Type, spec_one_of_1_to_7, __LINE__, error);
    case attr_Designator: return read_attribute(reader, m_Designator, spec_text_32, __LINE__, error);
    case attr_Number: return read_attribute(reader, m_Number, spec_range_0_to_4095_uint16, __LINE__, error);
    case attr_ParentObjectId: return read_attribute(reader, m_ParentObjectId, spec_range_0_to_65534_uint16, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* DeviceElement::accept_attribute(lmx::plain_attribute const& attribute) {
  switch (attribute.letter()) {
    case 'A': return binding::accept_attribute(m_Id, spec_id_DET_53, attribute);
    case 'B': return binding::accept_attribute(m_ObjectId, spec_range_1_to_65534_uint16, attribute);
    case 'C': return binding::accept_attribute(m_Type, spec_one_of_1_to_7, attribute);
    case 'D': return binding::accept_attribute(m_Designator, spec_text_32, attribute);
    case 'E': return binding::accept_attribute(m_Number, spec_range_0_to_4095_uint16, attribute);
    case 'F': return binding::accept_attribute(m_ParentObjectId, spec_range_0_to_65534_uint16, attribute);
  }
  return nullptr;
}
bool DeviceElement::has_required_attributes() const { return m_Id.is_set() && m_ObjectId.is_set() && m_Type.is_set() && m_Number.is_set() && m_ParentObjectId.is_set(); }
lmx::elmx_error DeviceElement::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "DET", __LINE__, has_required_attributes());
}
bool DeviceElement::unmarshal_body(lmx::xmlReader& reader, lmx::elmx_error* error) { return read_wrappers(reader, mInnerDeviceElement, false, {elem_event_map, "DET", __LINE__}, error); }
lmx::elmx_error DeviceElement::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void DeviceElement::marshal_attributes(lmx::c_xml_writer& writer) const {
  write_attribute(writer, "A", m_Id, spec_id_DET_53);
  write_attribute(writer, "B", m_ObjectId, spec_range_1_to_65534_uint16);
  write_attribute(writer, "C", m_Type, spec_one_of_1_to_7);
  write_attribute(writer, "D", m_Designator, spec_text_32);
  write_attribute(writer, "E", m_Number, spec_range_0_to_4095_uint16);
  write_attribute(writer, "F", m_ParentObjectId, spec_range_0_to_65534_uint16);
}
lmx::elmx_error DeviceElement::marshal_child_elements(lmx::c_xml_writer& writer) const {
  return write_wrappers(writer, mInnerDeviceElement);
}
bool DeviceElement::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_Id.is_set(), "A", __LINE__) &&
         check_occurs(tracker, m_ObjectId.is_set(), "B", __LINE__) &&
         check_occurs(tracker, m_Type.is_set(), "C", __LINE__) &&
         check_occurs(tracker, m_Number.is_set(), "E", __LINE__) &&
         check_occurs(tracker, m_ParentObjectId.is_set(), "F", __LINE__);
}
bool DeviceElement::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link) && check_wrappers(&link, mInnerDeviceElement);
}
InnerDeviceElement const& DeviceElement::GetInnerDeviceElement(std::size_t index) const { LMX_ASSERT(index < mInnerDeviceElement.size()); return mInnerDeviceElement.get(index); }
InnerDeviceElement& DeviceElement::GetInnerDeviceElement(std::size_t index) { return mInnerDeviceElement.get_or_append(index); }
InnerDeviceElement& DeviceElement::AppendInnerDeviceElement() { return mInnerDeviceElement.append(); }
void DeviceElement::AppendInnerDeviceElement(InnerDeviceElement* value) { mInnerDeviceElement.append(std::unique_ptr<InnerDeviceElement>(value)); }
InnerDeviceElement& DeviceElement::InsertInnerDeviceElement(std::size_t index) { return mInnerDeviceElement.insert(index); }
void DeviceElement::InsertInnerDeviceElement(std::size_t index, InnerDeviceElement* value) { mInnerDeviceElement.insert(index, std::unique_ptr<InnerDeviceElement>(value)); }
void DeviceElement::AssignInnerDeviceElement(std::size_t index, InnerDeviceElement const& value) { mInnerDeviceElement.assign(index, value); }
void DeviceElement::AssignInnerDeviceElement(std::size_t index, InnerDeviceElement* value) { mInnerDeviceElement.assign(index, std::unique_ptr<InnerDeviceElement>(value)); }
InnerDeviceElement& DeviceElement::BackInnerDeviceElement() { return mInnerDeviceElement.back(); }
void DeviceElement::DeleteInnerDeviceElement(std::size_t index) { LMX_ASSERT(index < mInnerDeviceElement.size()); mInnerDeviceElement.erase(index); }
void DeviceElement::ClearInnerDeviceElement() { mInnerDeviceElement.clear(); }
std::size_t DeviceElement::SizeInnerDeviceElement() const { return mInnerDeviceElement.size(); }
elmx_enums DeviceElement::GetenumType() const { return enum_code(list_22, m_Type.get()); }
bool DeviceElement::SetenumType(elmx_enums code) { return set_enum(list_22, code, m_Type); }

// ---- DeviceObjectReference ----

DeviceObjectReference::DeviceObjectReference() { init(); }
DeviceObjectReference::DeviceObjectReference(DeviceObjectReference const& other) = default;
DeviceObjectReference::DeviceObjectReference(DeviceObjectReference&& other) noexcept = default;
DeviceObjectReference::DeviceObjectReference(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
DeviceObjectReference* DeviceObjectReference::clone() const { return new DeviceObjectReference(*this); }
DeviceObjectReference::~DeviceObjectReference() = default;
DeviceObjectReference& DeviceObjectReference::operator=(DeviceObjectReference const& other) { DeviceObjectReference copy(other); swap(copy); return *this; }
DeviceObjectReference& DeviceObjectReference::operator=(DeviceObjectReference&& other) noexcept = default;
void DeviceObjectReference::swap(DeviceObjectReference& other) noexcept { std::swap(*this, other); }
void DeviceObjectReference::reset() { DeviceObjectReference empty; swap(empty); }
void DeviceObjectReference::init() {}

lmx::s_event_map const DeviceObjectReference::attr_event_map[] = {
    {1, "A", 1, attr_DeviceObjectId},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const DeviceObjectReference::elem_event_map[] = {
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const DeviceObjectReference::known_elements[] = {
    {0, nullptr, 0},
};
lmx::elmx_error DeviceObjectReference::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "DOR", __LINE__); }
lmx::elmx_error DeviceObjectReference::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_empty_content, known_elements, true, __LINE__});
}
bool DeviceObjectReference::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_DeviceObjectId: return read_attribute(reader, m_DeviceObjectId, spec_range_1_to_65534_uint16, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* DeviceObjectReference::accept_attribute(lmx::plain_attribute const& attribute) {
  switch (attribute.letter()) {
    case 'A': return binding::accept_attribute(m_DeviceObjectId, spec_range_1_to_65534_uint16, attribute);
  }
  return nullptr;
}
bool DeviceObjectReference::has_required_attributes() const { return m_DeviceObjectId.is_set(); }
lmx::elmx_error DeviceObjectReference::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "DOR", __LINE__, has_required_attributes());
}
bool DeviceObjectReference::unmarshal_body(lmx::xmlReader&, lmx::elmx_error*) { return true; }
lmx::elmx_error DeviceObjectReference::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void DeviceObjectReference::marshal_attributes(lmx::c_xml_writer& writer) const {
  write_attribute(writer, "A", m_DeviceObjectId, spec_range_1_to_65534_uint16);
}
lmx::elmx_error DeviceObjectReference::marshal_child_elements(lmx::c_xml_writer&) const {
  return lmx::ELMX_OK;
}
bool DeviceObjectReference::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_DeviceObjectId.is_set(), "A", __LINE__);
}
bool DeviceObjectReference::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link);
}

// ---- DeviceProcessData ----

DeviceProcessData::DeviceProcessData() { init(); }
DeviceProcessData::DeviceProcessData(DeviceProcessData const& other) = default;
DeviceProcessData::DeviceProcessData(DeviceProcessData&& other) noexcept = default;
DeviceProcessData::DeviceProcessData(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
DeviceProcessData* DeviceProcessData::clone() const { return new DeviceProcessData(*this); }
DeviceProcessData::~DeviceProcessData() = default;
DeviceProcessData& DeviceProcessData::operator=(DeviceProcessData const& other) { DeviceProcessData copy(other); swap(copy); return *this; }
DeviceProcessData& DeviceProcessData::operator=(DeviceProcessData&& other) noexcept = default;
void DeviceProcessData::swap(DeviceProcessData& other) noexcept { std::swap(*this, other); }
void DeviceProcessData::reset() { DeviceProcessData empty; swap(empty); }
void DeviceProcessData::init() {}

lmx::s_event_map const DeviceProcessData::attr_event_map[] = {
    {1, "A", 1, attr_ObjectId},
    {1, "B", 1, attr_DDI},
    {1, "C", 1, attr_Property},
    {1, "D", 1, attr_TriggerMethods},
    {1, "E", 1, attr_Designator},
    {1, "F", 1, attr_DeviceValuePresentationObjectId},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const DeviceProcessData::elem_event_map[] = {
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const DeviceProcessData::known_elements[] = {
    {0, nullptr, 0},
};
lmx::elmx_error DeviceProcessData::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "DPD", __LINE__); }
lmx::elmx_error DeviceProcessData::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_empty_content, known_elements, true, __LINE__});
}
bool DeviceProcessData::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_ObjectId: return read_attribute(reader, m_ObjectId, spec_range_1_to_65534_uint16, __LINE__, error);
    case attr_DDI: return read_attribute(reader, m_DDI, spec_bytes_2, __LINE__, error);
    case attr_Property: return read_attribute(reader, m_Property, spec_range_0_to_7_uint8, __LINE__, error);
    case attr_TriggerMethods: return read_attribute(reader, m_TriggerMethods, spec_range_0_to_31_uint8, __LINE__, error);
    case attr_Designator: return read_attribute(reader, m_Designator, spec_text_32, __LINE__, error);
    case attr_DeviceValuePresentationObjectId: return read_attribute(reader, m_DeviceValuePresentationObjectId, spec_range_1_to_65534_uint16, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* DeviceProcessData::accept_attribute(lmx::plain_attribute const& attribute) {
  switch (attribute.letter()) {
    case 'A': return binding::accept_attribute(m_ObjectId, spec_range_1_to_65534_uint16, attribute);
    case 'B': return binding::accept_attribute(m_DDI, spec_bytes_2, attribute);
    case 'C': return binding::accept_attribute(m_Property, spec_range_0_to_7_uint8, attribute);
    case 'D': return binding::accept_attribute(m_TriggerMethods, spec_range_0_to_31_uint8, attribute);
    case 'E': return binding::accept_attribute(m_Designator, spec_text_32, attribute);
    case 'F': return binding::accept_attribute(m_DeviceValuePresentationObjectId, spec_range_1_to_65534_uint16, attribute);
  }
  return nullptr;
}
bool DeviceProcessData::has_required_attributes() const { return m_ObjectId.is_set() && m_DDI.is_set() && m_Property.is_set() && m_TriggerMethods.is_set(); }
lmx::elmx_error DeviceProcessData::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "DPD", __LINE__, has_required_attributes());
}
bool DeviceProcessData::unmarshal_body(lmx::xmlReader&, lmx::elmx_error*) { return true; }
lmx::elmx_error DeviceProcessData::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void DeviceProcessData::marshal_attributes(lmx::c_xml_writer& writer) const {
  write_attribute(writer, "A", m_ObjectId, spec_range_1_to_65534_uint16);
  write_attribute(writer, "B", m_DDI, spec_bytes_2);
  write_attribute(writer, "C", m_Property, spec_range_0_to_7_uint8);
  write_attribute(writer, "D", m_TriggerMethods, spec_range_0_to_31_uint8);
  write_attribute(writer, "E", m_Designator, spec_text_32);
  write_attribute(writer, "F", m_DeviceValuePresentationObjectId, spec_range_1_to_65534_uint16);
}
lmx::elmx_error DeviceProcessData::marshal_child_elements(lmx::c_xml_writer&) const {
  return lmx::ELMX_OK;
}
bool DeviceProcessData::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_ObjectId.is_set(), "A", __LINE__) &&
         check_occurs(tracker, m_DDI.is_set(), "B", __LINE__) &&
         check_occurs(tracker, m_Property.is_set(), "C", __LINE__) &&
         check_occurs(tracker, m_TriggerMethods.is_set(), "D", __LINE__);
}
bool DeviceProcessData::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link);
}

// ---- DeviceProperty ----

DeviceProperty::DeviceProperty() { init(); }
DeviceProperty::DeviceProperty(DeviceProperty const& other) = default;
DeviceProperty::DeviceProperty(DeviceProperty&& other) noexcept = default;
DeviceProperty::DeviceProperty(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
DeviceProperty* DeviceProperty::clone() const { return new DeviceProperty(*this); }
DeviceProperty::~DeviceProperty() = default;
DeviceProperty& DeviceProperty::operator=(DeviceProperty const& other) { DeviceProperty copy(other); swap(copy); return *this; }
DeviceProperty& DeviceProperty::operator=(DeviceProperty&& other) noexcept = default;
void DeviceProperty::swap(DeviceProperty& other) noexcept { std::swap(*this, other); }
void DeviceProperty::reset() { DeviceProperty empty; swap(empty); }
void DeviceProperty::init() {}

lmx::s_event_map const DeviceProperty::attr_event_map[] = {
    {1, "A", 1, attr_ObjectId},
    {1, "B", 1, attr_DDI},
    {1, "C", 1, attr_Value},
    {1, "D", 1, attr_Designator},
    {1, "E", 1, attr_DeviceValuePresentationObjectId},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const DeviceProperty::elem_event_map[] = {
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const DeviceProperty::known_elements[] = {
    {0, nullptr, 0},
};
lmx::elmx_error DeviceProperty::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "DPT", __LINE__); }
lmx::elmx_error DeviceProperty::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_empty_content, known_elements, true, __LINE__});
}
bool DeviceProperty::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_ObjectId: return read_attribute(reader, m_ObjectId, spec_range_1_to_65534_uint16, __LINE__, error);
    case attr_DDI: return read_attribute(reader, m_DDI, spec_bytes_2, __LINE__, error);
    case attr_Value: return read_attribute(reader, m_Value, spec_range_minus_2147483648_to_2147483647_int32, __LINE__, error);
    case attr_Designator: return read_attribute(reader, m_Designator, spec_text_32, __LINE__, error);
    case attr_DeviceValuePresentationObjectId: return read_attribute(reader, m_DeviceValuePresentationObjectId, spec_range_1_to_65534_uint16, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* DeviceProperty::accept_attribute(lmx::plain_attribute const& attribute) {
  switch (attribute.letter()) {
    case 'A': return binding::accept_attribute(m_ObjectId, spec_range_1_to_65534_uint16, attribute);
    case 'B': return binding::accept_attribute(m_DDI, spec_bytes_2, attribute);
    case 'C': return binding::accept_attribute(m_Value, spec_range_minus_2147483648_to_2147483647_int32, attribute);
    case 'D': return binding::accept_attribute(m_Designator, spec_text_32, attribute);
    case 'E': return binding::accept_attribute(m_DeviceValuePresentationObjectId, spec_range_1_to_65534_uint16, attribute);
  }
  return nullptr;
}
bool DeviceProperty::has_required_attributes() const { return m_ObjectId.is_set() && m_DDI.is_set() && m_Value.is_set(); }
lmx::elmx_error DeviceProperty::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "DPT", __LINE__, has_required_attributes());
}
bool DeviceProperty::unmarshal_body(lmx::xmlReader&, lmx::elmx_error*) { return true; }
lmx::elmx_error DeviceProperty::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void DeviceProperty::marshal_attributes(lmx::c_xml_writer& writer) const {
  write_attribute(writer, "A", m_ObjectId, spec_range_1_to_65534_uint16);
  write_attribute(writer, "B", m_DDI, spec_bytes_2);
  write_attribute(writer, "C", m_Value, spec_range_minus_2147483648_to_2147483647_int32);
  write_attribute(writer, "D", m_Designator, spec_text_32);
  write_attribute(writer, "E", m_DeviceValuePresentationObjectId, spec_range_1_to_65534_uint16);
}
lmx::elmx_error DeviceProperty::marshal_child_elements(lmx::c_xml_writer&) const {
  return lmx::ELMX_OK;
}
bool DeviceProperty::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_ObjectId.is_set(), "A", __LINE__) &&
         check_occurs(tracker, m_DDI.is_set(), "B", __LINE__) &&
         check_occurs(tracker, m_Value.is_set(), "C", __LINE__);
}
bool DeviceProperty::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link);
}

// ---- DeviceValuePresentation ----

DeviceValuePresentation::DeviceValuePresentation() { init(); }
DeviceValuePresentation::DeviceValuePresentation(DeviceValuePresentation const& other) = default;
DeviceValuePresentation::DeviceValuePresentation(DeviceValuePresentation&& other) noexcept = default;
DeviceValuePresentation::DeviceValuePresentation(lmx::xmlReader& reader, lmx::elmx_error* error) { init(); *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(reader); }
DeviceValuePresentation* DeviceValuePresentation::clone() const { return new DeviceValuePresentation(*this); }
DeviceValuePresentation::~DeviceValuePresentation() = default;
DeviceValuePresentation& DeviceValuePresentation::operator=(DeviceValuePresentation const& other) { DeviceValuePresentation copy(other); swap(copy); return *this; }
DeviceValuePresentation& DeviceValuePresentation::operator=(DeviceValuePresentation&& other) noexcept = default;
void DeviceValuePresentation::swap(DeviceValuePresentation& other) noexcept { std::swap(*this, other); }
void DeviceValuePresentation::reset() { DeviceValuePresentation empty; swap(empty); }
void DeviceValuePresentation::init() {}

lmx::s_event_map const DeviceValuePresentation::attr_event_map[] = {
    {1, "A", 1, attr_ObjectId},
    {1, "B", 1, attr_Offset},
    {1, "C", 1, attr_Scale},
    {1, "D", 1, attr_NumberOfDecimals},
    {1, "E", 1, attr_UnitDesignator},
    {0, nullptr, 0, 0},
};
lmx::s_event_map const DeviceValuePresentation::elem_event_map[] = {
    {0, nullptr, 0, 0},
};
lmx::s_known_elements const DeviceValuePresentation::known_elements[] = {
    {0, nullptr, 0},
};
lmx::elmx_error DeviceValuePresentation::unmarshal(lmx::xmlReader& reader) { return read_document(*this, reader, "DVP", __LINE__); }
lmx::elmx_error DeviceValuePresentation::unmarshal(lmx::xmlReader& reader, std::string const& name) {
  return read_element(*this, reader, name, {&lmx::c_unmarshal_helper::unmarshal_empty_content, known_elements, true, __LINE__});
}
bool DeviceValuePresentation::unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error) {
  reader.tokenise(attr_event_map, lmx::EXAE_ATTRIBUTE);
  switch (reader.m_event) {
    case attr_ObjectId: return read_attribute(reader, m_ObjectId, spec_range_1_to_65534_uint16, __LINE__, error);
    case attr_Offset: return read_attribute(reader, m_Offset, spec_range_minus_2147483648_to_2147483647_int32, __LINE__, error);
    case attr_Scale: return read_attribute(reader, m_Scale, spec_scale_factor, __LINE__, error);
    case attr_NumberOfDecimals: return read_attribute(reader, m_NumberOfDecimals, spec_range_0_to_7_uint8, __LINE__, error);
    case attr_UnitDesignator: return read_attribute(reader, m_UnitDesignator, spec_text_32, __LINE__, error);
  }
  return false;
}
lmx::c_untyped_validation_spec const* DeviceValuePresentation::accept_attribute(lmx::plain_attribute const& attribute) {
  switch (attribute.letter()) {
    case 'A': return binding::accept_attribute(m_ObjectId, spec_range_1_to_65534_uint16, attribute);
    case 'B': return binding::accept_attribute(m_Offset, spec_range_minus_2147483648_to_2147483647_int32, attribute);
    case 'C': return binding::accept_attribute(m_Scale, spec_scale_factor, attribute);
    case 'D': return binding::accept_attribute(m_NumberOfDecimals, spec_range_0_to_7_uint8, attribute);
    case 'E': return binding::accept_attribute(m_UnitDesignator, spec_text_32, attribute);
  }
  return nullptr;
}
bool DeviceValuePresentation::has_required_attributes() const { return m_ObjectId.is_set() && m_Offset.is_set() && m_Scale.is_set() && m_NumberOfDecimals.is_set(); }
lmx::elmx_error DeviceValuePresentation::unmarshal_attributes_check(lmx::xmlReader& reader) {
  return check_required(reader, "DVP", __LINE__, has_required_attributes());
}
bool DeviceValuePresentation::unmarshal_body(lmx::xmlReader&, lmx::elmx_error*) { return true; }
lmx::elmx_error DeviceValuePresentation::marshal(lmx::c_xml_writer& writer, char const* name) const { return write_element(*this, writer, name); }
void DeviceValuePresentation::marshal_attributes(lmx::c_xml_writer& writer) const {
  write_attribute(writer, "A", m_ObjectId, spec_range_1_to_65534_uint16);
  write_attribute(writer, "B", m_Offset, spec_range_minus_2147483648_to_2147483647_int32);
  write_attribute(writer, "C", m_Scale, spec_scale_factor);
  write_attribute(writer, "D", m_NumberOfDecimals, spec_range_0_to_7_uint8);
  write_attribute(writer, "E", m_UnitDesignator, spec_text_32);
}
lmx::elmx_error DeviceValuePresentation::marshal_child_elements(lmx::c_xml_writer&) const {
  return lmx::ELMX_OK;
}
bool DeviceValuePresentation::IsOccursOk(lmx::c_check_tracker* tracker) const {
  return check_occurs(tracker, m_ObjectId.is_set(), "A", __LINE__) &&
         check_occurs(tracker, m_Offset.is_set(), "B", __LINE__) &&
         check_occurs(tracker, m_Scale.is_set(), "C", __LINE__) &&
         check_occurs(tracker, m_NumberOfDecimals.is_set(), "D", __LINE__);
}
bool DeviceValuePresentation::Check(lmx::c_check_tracker* tracker, char const* name) const {
  lmx::c_check_tracker link(tracker, name);
  return IsOccursOk(&link);
}
