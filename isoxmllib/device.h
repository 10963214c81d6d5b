// clang-format off
// Generated from schema/device.toml. Edit the schema, then build the target `schema`.

#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "GenLibrarySupportFiles/lmxinternals/api.h"
#include "GenLibrarySupportFiles/lmxinternals/check_tracker.h"
#include "GenLibrarySupportFiles/lmxinternals/choice.h"
#include "GenLibrarySupportFiles/lmxinternals/containers.h"
#include "GenLibrarySupportFiles/lmxparse/c_xml_reader.h"
#include "GenLibrarySupportFiles/lmxtypes/c_binary.h"
#include "GenLibrarySupportFiles/lmxtypes/c_decimal.h"
#include "isoxmllib/enums.h"
#include "isoxmllib/fwd.h"

/// A stretch of the children of `Device`: one unbroken run of like siblings, or one child, as `chosen` tells.
/// It has no XML element of its own.
class ISOXML_API InnerDevice {
 public:
  /// The alternatives' numbers; `chosen` is one of them.
  enum : std::int32_t {
    DeviceElementChosen = 0,
    DevicePropertyChosen = 1,
    DeviceProcessDataChosen = 2,
    DeviceValuePresentationChosen = 3,
    NothingChosen = 4,
  };

  InnerDevice();
  InnerDevice(InnerDevice const& other);
  /// Leaves `other` behind like a new object.
  InnerDevice(InnerDevice&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  InnerDevice(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual InnerDevice* clone() const;
  virtual ~InnerDevice();
  /// Deep; when copying fails the target is unchanged.
  InnerDevice& operator=(InnerDevice const& other);
  InnerDevice& operator=(InnerDevice&& other) noexcept;
  void swap(InnerDevice& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Frees whatever is held; nothing is chosen afterwards.
  void release_choice();
  bool IsOccursOk(lmx::c_check_tracker* tracker = nullptr) const;
  bool Check(lmx::c_check_tracker* tracker = nullptr, char const* name = nullptr) const;
  /// True when the reader stands at one of the alternatives.
  static bool IsMember(lmx::xmlReader& reader);
  bool unmarshal(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// Writes what is held under its own tag; `name` is ignored. Nothing for `NothingChosen`;
  /// `ELMX_BAD_CHOICE` for a `chosen` that is no alternative.
  lmx::elmx_error marshal(lmx::c_xml_writer& writer, char const* name) const;
  /// Writes nothing: a choice has no attributes.
  void marshal_attributes(lmx::c_xml_writer&) const {}
  lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const;

  /// Makes `DeviceElement` the alternative held, with an empty run; no effect when it is already.
  void SelectDeviceElement();
  /// The run of "DET". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  DeviceElement const& GetDeviceElement(std::size_t index) const;
  DeviceElement& GetDeviceElement(std::size_t index);
  DeviceElement& AppendDeviceElement();
  void AppendDeviceElement(DeviceElement* value);
  DeviceElement& InsertDeviceElement(std::size_t index);
  void InsertDeviceElement(std::size_t index, DeviceElement* value);
  void AssignDeviceElement(std::size_t index, DeviceElement const& value);
  void AssignDeviceElement(std::size_t index, DeviceElement* value);
  DeviceElement& BackDeviceElement();
  void DeleteDeviceElement(std::size_t index);
  void ClearDeviceElement();
  std::size_t SizeDeviceElement() const;

  /// Makes `DeviceProperty` the alternative held, with an empty run; no effect when it is already.
  void SelectDeviceProperty();
  /// The run of "DPT". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  DeviceProperty const& GetDeviceProperty(std::size_t index) const;
  DeviceProperty& GetDeviceProperty(std::size_t index);
  DeviceProperty& AppendDeviceProperty();
  void AppendDeviceProperty(DeviceProperty* value);
  DeviceProperty& InsertDeviceProperty(std::size_t index);
  void InsertDeviceProperty(std::size_t index, DeviceProperty* value);
  void AssignDeviceProperty(std::size_t index, DeviceProperty const& value);
  void AssignDeviceProperty(std::size_t index, DeviceProperty* value);
  DeviceProperty& BackDeviceProperty();
  void DeleteDeviceProperty(std::size_t index);
  void ClearDeviceProperty();
  std::size_t SizeDeviceProperty() const;

  /// Makes `DeviceProcessData` the alternative held, with an empty run; no effect when it is already.
  void SelectDeviceProcessData();
  /// The run of "DPD". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  DeviceProcessData const& GetDeviceProcessData(std::size_t index) const;
  DeviceProcessData& GetDeviceProcessData(std::size_t index);
  DeviceProcessData& AppendDeviceProcessData();
  void AppendDeviceProcessData(DeviceProcessData* value);
  DeviceProcessData& InsertDeviceProcessData(std::size_t index);
  void InsertDeviceProcessData(std::size_t index, DeviceProcessData* value);
  void AssignDeviceProcessData(std::size_t index, DeviceProcessData const& value);
  void AssignDeviceProcessData(std::size_t index, DeviceProcessData* value);
  DeviceProcessData& BackDeviceProcessData();
  void DeleteDeviceProcessData(std::size_t index);
  void ClearDeviceProcessData();
  std::size_t SizeDeviceProcessData() const;

  /// Makes `DeviceValuePresentation` the alternative held, with an empty run; no effect when it is already.
  void SelectDeviceValuePresentation();
  /// The run of "DVP". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  DeviceValuePresentation const& GetDeviceValuePresentation(std::size_t index) const;
  DeviceValuePresentation& GetDeviceValuePresentation(std::size_t index);
  DeviceValuePresentation& AppendDeviceValuePresentation();
  void AppendDeviceValuePresentation(DeviceValuePresentation* value);
  DeviceValuePresentation& InsertDeviceValuePresentation(std::size_t index);
  void InsertDeviceValuePresentation(std::size_t index, DeviceValuePresentation* value);
  void AssignDeviceValuePresentation(std::size_t index, DeviceValuePresentation const& value);
  void AssignDeviceValuePresentation(std::size_t index, DeviceValuePresentation* value);
  DeviceValuePresentation& BackDeviceValuePresentation();
  void DeleteDeviceValuePresentation(std::size_t index);
  void ClearDeviceValuePresentation();
  std::size_t SizeDeviceValuePresentation() const;

  std::int32_t chosen;

  static lmx::s_event_map const elem_event_map[];

 private:
  lmx::ct_choice m_held;
};

/// Device, element "DVC". A machine or control unit on the bus, as its device description presents it.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API Device {
 public:
  Device();
  Device(Device const& other);
  /// Leaves `other` behind like a new object.
  Device(Device&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  Device(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual Device* clone() const;
  virtual ~Device();
  /// Deep; when copying fails the target is unchanged.
  Device& operator=(Device const& other);
  Device& operator=(Device&& other) noexcept;
  void swap(Device& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Identifier of the device, unique within the transfer set. Attribute "A", required; 4 to 14 characters,
  /// pattern (DVC|DVC-)([0-9])+.
  lmx::elmx_error SetId(std::string const& value) { return m_Id.set(value); }
  std::string const& GetId() const { return m_Id.get(); }
  bool IssetId() const { return m_Id.is_set(); }
  void UnsetId() { m_Id.unset(); }

  /// Name shown to the operator. Attribute "B", optional; at most 32 characters.
  lmx::elmx_error SetDesignator(std::string const& value) { return m_Designator.set(value); }
  std::string const& GetDesignator() const { return m_Designator.get(); }
  bool IssetDesignator() const { return m_Designator.is_set(); }
  void UnsetDesignator() { m_Designator.unset(); }

  /// Version text of the device's software. Attribute "C", optional; at most 32 characters.
  lmx::elmx_error SetSoftwareVersion(std::string const& value) { return m_SoftwareVersion.set(value); }
  std::string const& GetSoftwareVersion() const { return m_SoftwareVersion.get(); }
  bool IssetSoftwareVersion() const { return m_SoftwareVersion.is_set(); }
  void UnsetSoftwareVersion() { m_SoftwareVersion.unset(); }

  /// ISO 11783 NAME of the device, eight bytes in hexadecimal. Attribute "D", required; 8 bytes, written as
  /// hexadecimal.
  lmx::elmx_error SetClientName(lmx::c_binary const& value) { return m_ClientName.set(value); }
  lmx::c_binary const& GetClientName() const { return m_ClientName.get(); }
  bool IssetClientName() const { return m_ClientName.is_set(); }
  void UnsetClientName() { m_ClientName.unset(); }

  /// Serial number of the device as its maker assigned it. Attribute "E", optional; at most 32 characters.
  lmx::elmx_error SetSerialNumber(std::string const& value) { return m_SerialNumber.set(value); }
  std::string const& GetSerialNumber() const { return m_SerialNumber.get(); }
  bool IssetSerialNumber() const { return m_SerialNumber.is_set(); }
  void UnsetSerialNumber() { m_SerialNumber.unset(); }

  /// Label for this version of the device's structure, bytes in hexadecimal. Attribute "F", required; 7 to 39
  /// bytes, written as hexadecimal, pattern
  /// ((([0-9]|[a-e]|[A-E])([0-9]|[a-f]|[A-F]))|((F|f)([0-9]|[a-e]|[A-E]))){7}(([0-9]|[a-f]|[A-F])([0-9]|[a-f]|[A-F]))*.
  lmx::elmx_error SetStructureLabel(lmx::c_binary const& value) { return m_StructureLabel.set(value); }
  lmx::c_binary const& GetStructureLabel() const { return m_StructureLabel.get(); }
  bool IssetStructureLabel() const { return m_StructureLabel.is_set(); }
  void UnsetStructureLabel() { m_StructureLabel.unset(); }

  /// Language and units of the device's texts, seven bytes in hexadecimal. Attribute "G", required; 7 bytes,
  /// written as hexadecimal, pattern
  /// (F|f){2}((([0-9]|[A-E]|[a-e])([0-9]|[A-F]|[a-f]))|((F|f)([0-9]|[A-E]|[a-e])))*.
  lmx::elmx_error SetLocalizationLabel(lmx::c_binary const& value) { return m_LocalizationLabel.set(value); }
  lmx::c_binary const& GetLocalizationLabel() const { return m_LocalizationLabel.get(); }
  bool IssetLocalizationLabel() const { return m_LocalizationLabel.is_set(); }
  void UnsetLocalizationLabel() { m_LocalizationLabel.unset(); }

  /// The children, in document order. The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  InnerDevice const& GetInnerDevice(std::size_t index) const;
  InnerDevice& GetInnerDevice(std::size_t index);
  InnerDevice& AppendInnerDevice();
  void AppendInnerDevice(InnerDevice* value);
  InnerDevice& InsertInnerDevice(std::size_t index);
  void InsertInnerDevice(std::size_t index, InnerDevice* value);
  void AssignInnerDevice(std::size_t index, InnerDevice const& value);
  void AssignInnerDevice(std::size_t index, InnerDevice* value);
  InnerDevice& BackInnerDevice();
  void DeleteInnerDevice(std::size_t index);
  void ClearInnerDevice();
  std::size_t SizeInnerDevice() const;

  /// True when everything required is there; otherwise what is missing is recorded (see `c_check_tracker`).
  bool IsOccursOk(lmx::c_check_tracker* tracker = nullptr) const;
  /// The same for this element, under `name` in the recorded path, and all that it holds.
  bool Check(lmx::c_check_tracker* tracker = nullptr, char const* name = nullptr) const;
  /// Reads this element as the document's top element.
  lmx::elmx_error unmarshal(lmx::xmlReader& reader);
  /// Reads this element when its start tag has been seen.
  lmx::elmx_error unmarshal(lmx::xmlReader& reader, std::string const& name);
  /// Reads the attribute now at the reader. False when it is none of this element's.
  bool unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// Takes an attribute whose value is plain and as it should be. Returns what the value had to pass; null, with
  /// nothing changed, for any other.
  lmx::c_untyped_validation_spec const* accept_attribute(lmx::plain_attribute const& attribute);
  /// True when all required attributes are set.
  bool has_required_attributes() const;
  /// `ELMX_REQUIRED_ATTRIBUTES_MISSING` unless they are.
  lmx::elmx_error unmarshal_attributes_check(lmx::xmlReader& reader);
  bool unmarshal_body(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// Writes this element under the tag `name`. On an error the document stays cut off where it is.
  lmx::elmx_error marshal(lmx::c_xml_writer& writer, char const* name) const;
  /// Writes every required attribute, set or not, and each optional one that is set.
  void marshal_attributes(lmx::c_xml_writer& writer) const;
  /// Writes the content. `ELMX_BAD_CHOICE` when a wrapper's `chosen` is none of its alternatives.
  lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const;

  static lmx::s_event_map const attr_event_map[];
  static lmx::s_event_map const elem_event_map[];
  static lmx::s_known_elements const known_elements[];

 private:
  lmx::ct_simple_pod_single<std::string> m_Id;
  lmx::ct_simple_pod_optional<std::string> m_Designator;
  lmx::ct_simple_pod_optional<std::string> m_SoftwareVersion;
  lmx::ct_simple_pod_single<lmx::c_binary> m_ClientName;
  lmx::ct_simple_pod_optional<std::string> m_SerialNumber;
  lmx::ct_simple_pod_single<lmx::c_binary> m_StructureLabel;
  lmx::ct_simple_pod_single<lmx::c_binary> m_LocalizationLabel;
  lmx::ct_complex_multi<InnerDevice> mInnerDevice;
};

/// A stretch of the children of `DeviceElement`: one unbroken run of like siblings, or one child, as `chosen`
/// tells. It has no XML element of its own.
class ISOXML_API InnerDeviceElement {
 public:
  /// The alternatives' numbers; `chosen` is one of them.
  enum : std::int32_t {
    DeviceObjectReferenceChosen = 0,
    NothingChosen = 1,
  };

  InnerDeviceElement();
  InnerDeviceElement(InnerDeviceElement const& other);
  /// Leaves `other` behind like a new object.
  InnerDeviceElement(InnerDeviceElement&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  InnerDeviceElement(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual InnerDeviceElement* clone() const;
  virtual ~InnerDeviceElement();
  /// Deep; when copying fails the target is unchanged.
  InnerDeviceElement& operator=(InnerDeviceElement const& other);
  InnerDeviceElement& operator=(InnerDeviceElement&& other) noexcept;
  void swap(InnerDeviceElement& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Frees whatever is held; nothing is chosen afterwards.
  void release_choice();
  bool IsOccursOk(lmx::c_check_tracker* tracker = nullptr) const;
  bool Check(lmx::c_check_tracker* tracker = nullptr, char const* name = nullptr) const;
  /// True when the reader stands at one of the alternatives.
  static bool IsMember(lmx::xmlReader& reader);
  bool unmarshal(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// Writes what is held under its own tag; `name` is ignored. Nothing for `NothingChosen`;
  /// `ELMX_BAD_CHOICE` for a `chosen` that is no alternative.
  lmx::elmx_error marshal(lmx::c_xml_writer& writer, char const* name) const;
  /// Writes nothing: a choice has no attributes.
  void marshal_attributes(lmx::c_xml_writer&) const {}
  lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const;

  /// Makes `DeviceObjectReference` the alternative held, with an empty run; no effect when it is already.
  void SelectDeviceObjectReference();
  /// The run of "DOR". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  DeviceObjectReference const& GetDeviceObjectReference(std::size_t index) const;
  DeviceObjectReference& GetDeviceObjectReference(std::size_t index);
  DeviceObjectReference& AppendDeviceObjectReference();
  void AppendDeviceObjectReference(DeviceObjectReference* value);
  DeviceObjectReference& InsertDeviceObjectReference(std::size_t index);
  void InsertDeviceObjectReference(std::size_t index, DeviceObjectReference* value);
  void AssignDeviceObjectReference(std::size_t index, DeviceObjectReference const& value);
  void AssignDeviceObjectReference(std::size_t index, DeviceObjectReference* value);
  DeviceObjectReference& BackDeviceObjectReference();
  void DeleteDeviceObjectReference(std::size_t index);
  void ClearDeviceObjectReference();
  std::size_t SizeDeviceObjectReference() const;

  std::int32_t chosen;

  static lmx::s_event_map const elem_event_map[];

 private:
  lmx::ct_choice m_held;
};

/// DeviceElement, element "DET". A functional or physical part of a device. The parts of a device form a
/// tree.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API DeviceElement {
 public:
  DeviceElement();
  DeviceElement(DeviceElement const& other);
  /// Leaves `other` behind like a new object.
  DeviceElement(DeviceElement&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  DeviceElement(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual DeviceElement* clone() const;
  virtual ~DeviceElement();
  /// Deep; when copying fails the target is unchanged.
  DeviceElement& operator=(DeviceElement const& other);
  DeviceElement& operator=(DeviceElement&& other) noexcept;
  void swap(DeviceElement& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Identifier of the device element, unique within the transfer set. Attribute "A", required; 4 to 14
  /// characters, pattern (DET|DET-)([0-9])+.
  lmx::elmx_error SetId(std::string const& value) { return m_Id.set(value); }
  std::string const& GetId() const { return m_Id.get(); }
  bool IssetId() const { return m_Id.is_set(); }
  void UnsetId() { m_Id.unset(); }

  /// Number of the object, unique within its device. Attribute "B", required; 1 to 65534.
  lmx::elmx_error SetObjectId(unsigned short const& value) { return m_ObjectId.set(value); }
  unsigned short const& GetObjectId() const { return m_ObjectId.get(); }
  bool IssetObjectId() const { return m_ObjectId.is_set(); }
  void UnsetObjectId() { m_ObjectId.unset(); }

  /// Kind of part: 1 device, 2 function, 3 bin, 4 section, 5 unit, 6 connector, 7 navigation reference.
  /// Attribute "C", required; one of "1", "2", "3", "4", "5", "6", "7".
  lmx::elmx_error SetType(std::string const& value) { return m_Type.set(value); }
  std::string const& GetType() const { return m_Type.get(); }
  bool IssetType() const { return m_Type.is_set(); }
  void UnsetType() { m_Type.unset(); }
  /// Its code; 0 when the text is none of the list.
  elmx_enums GetenumType() const;
  /// Stores the text of `code`. False, and no change, for a code of another list.
  bool SetenumType(elmx_enums code);

  /// Name shown to the operator. Attribute "D", optional; at most 32 characters.
  lmx::elmx_error SetDesignator(std::string const& value) { return m_Designator.set(value); }
  std::string const& GetDesignator() const { return m_Designator.get(); }
  bool IssetDesignator() const { return m_Designator.is_set(); }
  void UnsetDesignator() { m_Designator.unset(); }

  /// Number by which process data messages address the element. Attribute "E", required; 0 to 4095.
  lmx::elmx_error SetNumber(unsigned short const& value) { return m_Number.set(value); }
  unsigned short const& GetNumber() const { return m_Number.get(); }
  bool IssetNumber() const { return m_Number.is_set(); }
  void UnsetNumber() { m_Number.unset(); }

  /// Object number of the parent element, or 0 where the device itself is the parent. Attribute "F",
  /// required; 0 to 65534.
  lmx::elmx_error SetParentObjectId(unsigned short const& value) { return m_ParentObjectId.set(value); }
  unsigned short const& GetParentObjectId() const { return m_ParentObjectId.get(); }
  bool IssetParentObjectId() const { return m_ParentObjectId.is_set(); }
  void UnsetParentObjectId() { m_ParentObjectId.unset(); }

  /// The children, in document order. The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  InnerDeviceElement const& GetInnerDeviceElement(std::size_t index) const;
  InnerDeviceElement& GetInnerDeviceElement(std::size_t index);
  InnerDeviceElement& AppendInnerDeviceElement();
  void AppendInnerDeviceElement(InnerDeviceElement* value);
  InnerDeviceElement& InsertInnerDeviceElement(std::size_t index);
  void InsertInnerDeviceElement(std::size_t index, InnerDeviceElement* value);
  void AssignInnerDeviceElement(std::size_t index, InnerDeviceElement const& value);
  void AssignInnerDeviceElement(std::size_t index, InnerDeviceElement* value);
  InnerDeviceElement& BackInnerDeviceElement();
  void DeleteInnerDeviceElement(std::size_t index);
  void ClearInnerDeviceElement();
  std::size_t SizeInnerDeviceElement() const;

  /// True when everything required is there; otherwise what is missing is recorded (see `c_check_tracker`).
  bool IsOccursOk(lmx::c_check_tracker* tracker = nullptr) const;
  /// The same for this element, under `name` in the recorded path, and all that it holds.
  bool Check(lmx::c_check_tracker* tracker = nullptr, char const* name = nullptr) const;
  /// Reads this element as the document's top element.
  lmx::elmx_error unmarshal(lmx::xmlReader& reader);
  /// Reads this element when its start tag has been seen.
  lmx::elmx_error unmarshal(lmx::xmlReader& reader, std::string const& name);
  /// Reads the attribute now at the reader. False when it is none of this element's.
  bool unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// Takes an attribute whose value is plain and as it should be. Returns what the value had to pass; null, with
  /// nothing changed, for any other.
  lmx::c_untyped_validation_spec const* accept_attribute(lmx::plain_attribute const& attribute);
  /// True when all required attributes are set.
  bool has_required_attributes() const;
  /// `ELMX_REQUIRED_ATTRIBUTES_MISSING` unless they are.
  lmx::elmx_error unmarshal_attributes_check(lmx::xmlReader& reader);
  bool unmarshal_body(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// Writes this element under the tag `name`. On an error the document stays cut off where it is.
  lmx::elmx_error marshal(lmx::c_xml_writer& writer, char const* name) const;
  /// Writes every required attribute, set or not, and each optional one that is set.
  void marshal_attributes(lmx::c_xml_writer& writer) const;
  /// Writes the content. `ELMX_BAD_CHOICE` when a wrapper's `chosen` is none of its alternatives.
  lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const;

  static lmx::s_event_map const attr_event_map[];
  static lmx::s_event_map const elem_event_map[];
  static lmx::s_known_elements const known_elements[];

 private:
  lmx::ct_simple_pod_single<std::string> m_Id;
  lmx::ct_simple_pod_single<unsigned short> m_ObjectId;
  lmx::ct_simple_pod_single<std::string> m_Type;
  lmx::ct_simple_pod_optional<std::string> m_Designator;
  lmx::ct_simple_pod_single<unsigned short> m_Number;
  lmx::ct_simple_pod_single<unsigned short> m_ParentObjectId;
  lmx::ct_complex_multi<InnerDeviceElement> mInnerDeviceElement;
};

/// DeviceObjectReference, element "DOR". Lists a process data or property object as belonging to a device
/// element.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API DeviceObjectReference {
 public:
  DeviceObjectReference();
  DeviceObjectReference(DeviceObjectReference const& other);
  /// Leaves `other` behind like a new object.
  DeviceObjectReference(DeviceObjectReference&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  DeviceObjectReference(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual DeviceObjectReference* clone() const;
  virtual ~DeviceObjectReference();
  /// Deep; when copying fails the target is unchanged.
  DeviceObjectReference& operator=(DeviceObjectReference const& other);
  DeviceObjectReference& operator=(DeviceObjectReference&& other) noexcept;
  void swap(DeviceObjectReference& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Object number of the process data or property object. Attribute "A", required; 1 to 65534.
  lmx::elmx_error SetDeviceObjectId(unsigned short const& value) { return m_DeviceObjectId.set(value); }
  unsigned short const& GetDeviceObjectId() const { return m_DeviceObjectId.get(); }
  bool IssetDeviceObjectId() const { return m_DeviceObjectId.is_set(); }
  void UnsetDeviceObjectId() { m_DeviceObjectId.unset(); }

  /// True when everything required is there; otherwise what is missing is recorded (see `c_check_tracker`).
  bool IsOccursOk(lmx::c_check_tracker* tracker = nullptr) const;
  /// The same for this element, under `name` in the recorded path, and all that it holds.
  bool Check(lmx::c_check_tracker* tracker = nullptr, char const* name = nullptr) const;
  /// Reads this element as the document's top element.
  lmx::elmx_error unmarshal(lmx::xmlReader& reader);
  /// Reads this element when its start tag has been seen.
  lmx::elmx_error unmarshal(lmx::xmlReader& reader, std::string const& name);
  /// Reads the attribute now at the reader. False when it is none of this element's.
  bool unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// Takes an attribute whose value is plain and as it should be. Returns what the value had to pass; null, with
  /// nothing changed, for any other.
  lmx::c_untyped_validation_spec const* accept_attribute(lmx::plain_attribute const& attribute);
  /// True when all required attributes are set.
  bool has_required_attributes() const;
  /// `ELMX_REQUIRED_ATTRIBUTES_MISSING` unless they are.
  lmx::elmx_error unmarshal_attributes_check(lmx::xmlReader& reader);
  bool unmarshal_body(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// Writes this element under the tag `name`. On an error the document stays cut off where it is.
  lmx::elmx_error marshal(lmx::c_xml_writer& writer, char const* name) const;
  /// Writes every required attribute, set or not, and each optional one that is set.
  void marshal_attributes(lmx::c_xml_writer& writer) const;
  /// Writes the content. `ELMX_BAD_CHOICE` when a wrapper's `chosen` is none of its alternatives.
  lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const;

  static lmx::s_event_map const attr_event_map[];
  static lmx::s_event_map const elem_event_map[];
  static lmx::s_known_elements const known_elements[];

 private:
  lmx::ct_simple_pod_single<unsigned short> m_DeviceObjectId;
};

/// DeviceProcessData, element "DPD". A kind of process data that a device can send or accept.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API DeviceProcessData {
 public:
  DeviceProcessData();
  DeviceProcessData(DeviceProcessData const& other);
  /// Leaves `other` behind like a new object.
  DeviceProcessData(DeviceProcessData&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  DeviceProcessData(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual DeviceProcessData* clone() const;
  virtual ~DeviceProcessData();
  /// Deep; when copying fails the target is unchanged.
  DeviceProcessData& operator=(DeviceProcessData const& other);
  DeviceProcessData& operator=(DeviceProcessData&& other) noexcept;
  void swap(DeviceProcessData& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Number of the object, unique within its device. Attribute "A", required; 1 to 65534.
  lmx::elmx_error SetObjectId(unsigned short const& value) { return m_ObjectId.set(value); }
  unsigned short const& GetObjectId() const { return m_ObjectId.get(); }
  bool IssetObjectId() const { return m_ObjectId.is_set(); }
  void UnsetObjectId() { m_ObjectId.unset(); }

  /// DDI of the process data, two bytes, four hexadecimal digits. Attribute "B", required; 2 bytes, written
  /// as hexadecimal.
  lmx::elmx_error SetDDI(lmx::c_binary const& value) { return m_DDI.set(value); }
  lmx::c_binary const& GetDDI() const { return m_DDI.get(); }
  bool IssetDDI() const { return m_DDI.is_set(); }
  void UnsetDDI() { m_DDI.unset(); }

  /// Sum of the properties: 1 belongs to the default set, 2 settable, 4 control source. Attribute "C",
  /// required; 0 to 7.
  lmx::elmx_error SetProperty(unsigned char const& value) { return m_Property.set(value); }
  unsigned char const& GetProperty() const { return m_Property.get(); }
  bool IssetProperty() const { return m_Property.is_set(); }
  void UnsetProperty() { m_Property.unset(); }

  /// Sum of the triggers: 1 time interval, 2 distance interval, 4 threshold limits, 8 change, 16 total.
  /// Attribute "D", required; 0 to 31.
  lmx::elmx_error SetTriggerMethods(unsigned char const& value) { return m_TriggerMethods.set(value); }
  unsigned char const& GetTriggerMethods() const { return m_TriggerMethods.get(); }
  bool IssetTriggerMethods() const { return m_TriggerMethods.is_set(); }
  void UnsetTriggerMethods() { m_TriggerMethods.unset(); }

  /// Name shown to the operator. Attribute "E", optional; at most 32 characters.
  lmx::elmx_error SetDesignator(std::string const& value) { return m_Designator.set(value); }
  std::string const& GetDesignator() const { return m_Designator.get(); }
  bool IssetDesignator() const { return m_Designator.is_set(); }
  void UnsetDesignator() { m_Designator.unset(); }

  /// Object number of the value presentation that scales the value for display. Attribute "F", optional; 1 to
  /// 65534.
  lmx::elmx_error SetDeviceValuePresentationObjectId(unsigned short const& value) { return m_DeviceValuePresentationObjectId.set(value); }
  unsigned short const& GetDeviceValuePresentationObjectId() const { return m_DeviceValuePresentationObjectId.get(); }
  bool IssetDeviceValuePresentationObjectId() const { return m_DeviceValuePresentationObjectId.is_set(); }
  void UnsetDeviceValuePresentationObjectId() { m_DeviceValuePresentationObjectId.unset(); }

  /// True when everything required is there; otherwise what is missing is recorded (see `c_check_tracker`).
  bool IsOccursOk(lmx::c_check_tracker* tracker = nullptr) const;
  /// The same for this element, under `name` in the recorded path, and all that it holds.
  bool Check(lmx::c_check_tracker* tracker = nullptr, char const* name = nullptr) const;
  /// Reads this element as the document's top element.
  lmx::elmx_error unmarshal(lmx::xmlReader& reader);
  /// Reads this element when its start tag has been seen.
  lmx::elmx_error unmarshal(lmx::xmlReader& reader, std::string const& name);
  /// Reads the attribute now at the reader. False when it is none of this element's.
  bool unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// Takes an attribute whose value is plain and as it should be. Returns what the value had to pass; null, with
  /// nothing changed, for any other.
  lmx::c_untyped_validation_spec const* accept_attribute(lmx::plain_attribute const& attribute);
  /// True when all required attributes are set.
  bool has_required_attributes() const;
  /// `ELMX_REQUIRED_ATTRIBUTES_MISSING` unless they are.
  lmx::elmx_error unmarshal_attributes_check(lmx::xmlReader& reader);
  bool unmarshal_body(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// Writes this element under the tag `name`. On an error the document stays cut off where it is.
  lmx::elmx_error marshal(lmx::c_xml_writer& writer, char const* name) const;
  /// Writes every required attribute, set or not, and each optional one that is set.
  void marshal_attributes(lmx::c_xml_writer& writer) const;
  /// Writes the content. `ELMX_BAD_CHOICE` when a wrapper's `chosen` is none of its alternatives.
  lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const;

  static lmx::s_event_map const attr_event_map[];
  static lmx::s_event_map const elem_event_map[];
  static lmx::s_known_elements const known_elements[];

 private:
  lmx::ct_simple_pod_single<unsigned short> m_ObjectId;
  lmx::ct_simple_pod_single<lmx::c_binary> m_DDI;
  lmx::ct_simple_pod_single<unsigned char> m_Property;
  lmx::ct_simple_pod_single<unsigned char> m_TriggerMethods;
  lmx::ct_simple_pod_optional<std::string> m_Designator;
  lmx::ct_simple_pod_optional<unsigned short> m_DeviceValuePresentationObjectId;
};

/// DeviceProperty, element "DPT". A fixed property of a device element, such as a width or an offset.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API DeviceProperty {
 public:
  DeviceProperty();
  DeviceProperty(DeviceProperty const& other);
  /// Leaves `other` behind like a new object.
  DeviceProperty(DeviceProperty&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  DeviceProperty(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual DeviceProperty* clone() const;
  virtual ~DeviceProperty();
  /// Deep; when copying fails the target is unchanged.
  DeviceProperty& operator=(DeviceProperty const& other);
  DeviceProperty& operator=(DeviceProperty&& other) noexcept;
  void swap(DeviceProperty& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Number of the object, unique within its device. Attribute "A", required; 1 to 65534.
  lmx::elmx_error SetObjectId(unsigned short const& value) { return m_ObjectId.set(value); }
  unsigned short const& GetObjectId() const { return m_ObjectId.get(); }
  bool IssetObjectId() const { return m_ObjectId.is_set(); }
  void UnsetObjectId() { m_ObjectId.unset(); }

  /// DDI of the property, two bytes, four hexadecimal digits. Attribute "B", required; 2 bytes, written as
  /// hexadecimal.
  lmx::elmx_error SetDDI(lmx::c_binary const& value) { return m_DDI.set(value); }
  lmx::c_binary const& GetDDI() const { return m_DDI.get(); }
  bool IssetDDI() const { return m_DDI.is_set(); }
  void UnsetDDI() { m_DDI.unset(); }

  /// Raw integer value, in the unit and resolution of the DDI. Attribute "C", required; -2147483648 to
  /// 2147483647.
  lmx::elmx_error SetValue(int const& value) { return m_Value.set(value); }
  int const& GetValue() const { return m_Value.get(); }
  bool IssetValue() const { return m_Value.is_set(); }
  void UnsetValue() { m_Value.unset(); }

  /// Name shown to the operator. Attribute "D", optional; at most 32 characters.
  lmx::elmx_error SetDesignator(std::string const& value) { return m_Designator.set(value); }
  std::string const& GetDesignator() const { return m_Designator.get(); }
  bool IssetDesignator() const { return m_Designator.is_set(); }
  void UnsetDesignator() { m_Designator.unset(); }

  /// Object number of the value presentation that scales the value for display. Attribute "E", optional; 1 to
  /// 65534.
  lmx::elmx_error SetDeviceValuePresentationObjectId(unsigned short const& value) { return m_DeviceValuePresentationObjectId.set(value); }
  unsigned short const& GetDeviceValuePresentationObjectId() const { return m_DeviceValuePresentationObjectId.get(); }
  bool IssetDeviceValuePresentationObjectId() const { return m_DeviceValuePresentationObjectId.is_set(); }
  void UnsetDeviceValuePresentationObjectId() { m_DeviceValuePresentationObjectId.unset(); }

  /// True when everything required is there; otherwise what is missing is recorded (see `c_check_tracker`).
  bool IsOccursOk(lmx::c_check_tracker* tracker = nullptr) const;
  /// The same for this element, under `name` in the recorded path, and all that it holds.
  bool Check(lmx::c_check_tracker* tracker = nullptr, char const* name = nullptr) const;
  /// Reads this element as the document's top element.
  lmx::elmx_error unmarshal(lmx::xmlReader& reader);
  /// Reads this element when its start tag has been seen.
  lmx::elmx_error unmarshal(lmx::xmlReader& reader, std::string const& name);
  /// Reads the attribute now at the reader. False when it is none of this element's.
  bool unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// Takes an attribute whose value is plain and as it should be. Returns what the value had to pass; null, with
  /// nothing changed, for any other.
  lmx::c_untyped_validation_spec const* accept_attribute(lmx::plain_attribute const& attribute);
  /// True when all required attributes are set.
  bool has_required_attributes() const;
  /// `ELMX_REQUIRED_ATTRIBUTES_MISSING` unless they are.
  lmx::elmx_error unmarshal_attributes_check(lmx::xmlReader& reader);
  bool unmarshal_body(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// Writes this element under the tag `name`. On an error the document stays cut off where it is.
  lmx::elmx_error marshal(lmx::c_xml_writer& writer, char const* name) const;
  /// Writes every required attribute, set or not, and each optional one that is set.
  void marshal_attributes(lmx::c_xml_writer& writer) const;
  /// Writes the content. `ELMX_BAD_CHOICE` when a wrapper's `chosen` is none of its alternatives.
  lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const;

  static lmx::s_event_map const attr_event_map[];
  static lmx::s_event_map const elem_event_map[];
  static lmx::s_known_elements const known_elements[];

 private:
  lmx::ct_simple_pod_single<unsigned short> m_ObjectId;
  lmx::ct_simple_pod_single<lmx::c_binary> m_DDI;
  lmx::ct_simple_pod_single<int> m_Value;
  lmx::ct_simple_pod_optional<std::string> m_Designator;
  lmx::ct_simple_pod_optional<unsigned short> m_DeviceValuePresentationObjectId;
};

/// DeviceValuePresentation, element "DVP". Tells how a device wants its values shown: display value = (raw
/// value + offset) * scale.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API DeviceValuePresentation {
 public:
  DeviceValuePresentation();
  DeviceValuePresentation(DeviceValuePresentation const& other);
  /// Leaves `other` behind like a new object.
  DeviceValuePresentation(DeviceValuePresentation&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  DeviceValuePresentation(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual DeviceValuePresentation* clone() const;
  virtual ~DeviceValuePresentation();
  /// Deep; when copying fails the target is unchanged.
  DeviceValuePresentation& operator=(DeviceValuePresentation const& other);
  DeviceValuePresentation& operator=(DeviceValuePresentation&& other) noexcept;
  void swap(DeviceValuePresentation& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Number of the object, unique within its device. Attribute "A", required; 1 to 65534.
  lmx::elmx_error SetObjectId(unsigned short const& value) { return m_ObjectId.set(value); }
  unsigned short const& GetObjectId() const { return m_ObjectId.get(); }
  bool IssetObjectId() const { return m_ObjectId.is_set(); }
  void UnsetObjectId() { m_ObjectId.unset(); }

  /// Offset added to the raw value before it is multiplied by the scale. Attribute "B", required; -2147483648
  /// to 2147483647.
  lmx::elmx_error SetOffset(int const& value) { return m_Offset.set(value); }
  int const& GetOffset() const { return m_Offset.get(); }
  bool IssetOffset() const { return m_Offset.is_set(); }
  void UnsetOffset() { m_Offset.unset(); }

  /// Factor by which the sum of raw value and offset is multiplied. Attribute "C", required; 0.000000001 to
  /// 100000000.0.
  lmx::elmx_error SetScale(velmo::lmx::high_precision_c_decimal const& value) { return m_Scale.set(value); }
  velmo::lmx::high_precision_c_decimal const& GetScale() const { return m_Scale.get(); }
  bool IssetScale() const { return m_Scale.is_set(); }
  void UnsetScale() { m_Scale.unset(); }

  /// Number of decimal places to display. Attribute "D", required; 0 to 7.
  lmx::elmx_error SetNumberOfDecimals(unsigned char const& value) { return m_NumberOfDecimals.set(value); }
  unsigned char const& GetNumberOfDecimals() const { return m_NumberOfDecimals.get(); }
  bool IssetNumberOfDecimals() const { return m_NumberOfDecimals.is_set(); }
  void UnsetNumberOfDecimals() { m_NumberOfDecimals.unset(); }

  /// Unit text displayed after the scaled value. Attribute "E", optional; at most 32 characters.
  lmx::elmx_error SetUnitDesignator(std::string const& value) { return m_UnitDesignator.set(value); }
  std::string const& GetUnitDesignator() const { return m_UnitDesignator.get(); }
  bool IssetUnitDesignator() const { return m_UnitDesignator.is_set(); }
  void UnsetUnitDesignator() { m_UnitDesignator.unset(); }

  /// True when everything required is there; otherwise what is missing is recorded (see `c_check_tracker`).
  bool IsOccursOk(lmx::c_check_tracker* tracker = nullptr) const;
  /// The same for this element, under `name` in the recorded path, and all that it holds.
  bool Check(lmx::c_check_tracker* tracker = nullptr, char const* name = nullptr) const;
  /// Reads this element as the document's top element.
  lmx::elmx_error unmarshal(lmx::xmlReader& reader);
  /// Reads this element when its start tag has been seen.
  lmx::elmx_error unmarshal(lmx::xmlReader& reader, std::string const& name);
  /// Reads the attribute now at the reader. False when it is none of this element's.
  bool unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// Takes an attribute whose value is plain and as it should be. Returns what the value had to pass; null, with
  /// nothing changed, for any other.
  lmx::c_untyped_validation_spec const* accept_attribute(lmx::plain_attribute const& attribute);
  /// True when all required attributes are set.
  bool has_required_attributes() const;
  /// `ELMX_REQUIRED_ATTRIBUTES_MISSING` unless they are.
  lmx::elmx_error unmarshal_attributes_check(lmx::xmlReader& reader);
  bool unmarshal_body(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// Writes this element under the tag `name`. On an error the document stays cut off where it is.
  lmx::elmx_error marshal(lmx::c_xml_writer& writer, char const* name) const;
  /// Writes every required attribute, set or not, and each optional one that is set.
  void marshal_attributes(lmx::c_xml_writer& writer) const;
  /// Writes the content. `ELMX_BAD_CHOICE` when a wrapper's `chosen` is none of its alternatives.
  lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const;

  static lmx::s_event_map const attr_event_map[];
  static lmx::s_event_map const elem_event_map[];
  static lmx::s_known_elements const known_elements[];

 private:
  lmx::ct_simple_pod_single<unsigned short> m_ObjectId;
  lmx::ct_simple_pod_single<int> m_Offset;
  lmx::ct_simple_pod_single<velmo::lmx::high_precision_c_decimal> m_Scale;
  lmx::ct_simple_pod_single<unsigned char> m_NumberOfDecimals;
  lmx::ct_simple_pod_optional<std::string> m_UnitDesignator;
};
