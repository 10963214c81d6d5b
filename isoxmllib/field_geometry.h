// clang-format off
// Generated from schema/field_geometry.toml. Edit the schema, then build the target `schema`.

#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "GenLibrarySupportFiles/lmxinternals/api.h"
#include "GenLibrarySupportFiles/lmxinternals/check_tracker.h"
#include "GenLibrarySupportFiles/lmxinternals/choice.h"
#include "GenLibrarySupportFiles/lmxinternals/containers.h"
#include "GenLibrarySupportFiles/lmxparse/c_xml_reader.h"
#include "GenLibrarySupportFiles/lmxtypes/c_decimal.h"
#include "isoxmllib/enums.h"
#include "isoxmllib/fwd.h"

/// A stretch of the children of `Field`: one unbroken run of like siblings, or one child, as `chosen` tells.
/// It has no XML element of its own.
class ISOXML_API InnerField {
 public:
  /// The alternatives' numbers; `chosen` is one of them.
  enum : std::int32_t {
    PolygonChosen = 0,
    LineStringChosen = 1,
    PointChosen = 2,
    GuidanceGroupChosen = 3,
    NothingChosen = 4,
  };

  InnerField();
  InnerField(InnerField const& other);
  /// Leaves `other` behind like a new object.
  InnerField(InnerField&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  InnerField(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual InnerField* clone() const;
  virtual ~InnerField();
  /// Deep; when copying fails the target is unchanged.
  InnerField& operator=(InnerField const& other);
  InnerField& operator=(InnerField&& other) noexcept;
  void swap(InnerField& other) noexcept;
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

  /// Makes `Polygon` the alternative held, with an empty run; no effect when it is already.
  void SelectPolygon();
  /// The run of "PLN". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  Polygon const& GetPolygon(std::size_t index) const;
  Polygon& GetPolygon(std::size_t index);
  Polygon& AppendPolygon();
  void AppendPolygon(Polygon* value);
  Polygon& InsertPolygon(std::size_t index);
  void InsertPolygon(std::size_t index, Polygon* value);
  void AssignPolygon(std::size_t index, Polygon const& value);
  void AssignPolygon(std::size_t index, Polygon* value);
  Polygon& BackPolygon();
  void DeletePolygon(std::size_t index);
  void ClearPolygon();
  std::size_t SizePolygon() const;

  /// Makes `LineString` the alternative held, with an empty run; no effect when it is already.
  void SelectLineString();
  /// The run of "LSG". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  LineString const& GetLineString(std::size_t index) const;
  LineString& GetLineString(std::size_t index);
  LineString& AppendLineString();
  void AppendLineString(LineString* value);
  LineString& InsertLineString(std::size_t index);
  void InsertLineString(std::size_t index, LineString* value);
  void AssignLineString(std::size_t index, LineString const& value);
  void AssignLineString(std::size_t index, LineString* value);
  LineString& BackLineString();
  void DeleteLineString(std::size_t index);
  void ClearLineString();
  std::size_t SizeLineString() const;

  /// Makes `Point` the alternative held, with an empty run; no effect when it is already.
  void SelectPoint();
  /// The run of "PNT". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  Point const& GetPoint(std::size_t index) const;
  Point& GetPoint(std::size_t index);
  Point& AppendPoint();
  void AppendPoint(Point* value);
  Point& InsertPoint(std::size_t index);
  void InsertPoint(std::size_t index, Point* value);
  void AssignPoint(std::size_t index, Point const& value);
  void AssignPoint(std::size_t index, Point* value);
  Point& BackPoint();
  void DeletePoint(std::size_t index);
  void ClearPoint();
  std::size_t SizePoint() const;

  /// Makes `GuidanceGroup` the alternative held, with an empty run; no effect when it is already.
  void SelectGuidanceGroup();
  /// The run of "GGP". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  GuidanceGroup const& GetGuidanceGroup(std::size_t index) const;
  GuidanceGroup& GetGuidanceGroup(std::size_t index);
  GuidanceGroup& AppendGuidanceGroup();
  void AppendGuidanceGroup(GuidanceGroup* value);
  GuidanceGroup& InsertGuidanceGroup(std::size_t index);
  void InsertGuidanceGroup(std::size_t index, GuidanceGroup* value);
  void AssignGuidanceGroup(std::size_t index, GuidanceGroup const& value);
  void AssignGuidanceGroup(std::size_t index, GuidanceGroup* value);
  GuidanceGroup& BackGuidanceGroup();
  void DeleteGuidanceGroup(std::size_t index);
  void ClearGuidanceGroup();
  std::size_t SizeGuidanceGroup() const;

  std::int32_t chosen;

  static lmx::s_event_map const elem_event_map[];

 private:
  lmx::ct_choice m_held;
};

/// Field, element "PFD". A partfield: a piece of land on which tasks are carried out, with its geometry,
/// owner and crop.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API Field {
 public:
  Field();
  Field(Field const& other);
  /// Leaves `other` behind like a new object.
  Field(Field&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  Field(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual Field* clone() const;
  virtual ~Field();
  /// Deep; when copying fails the target is unchanged.
  Field& operator=(Field const& other);
  Field& operator=(Field&& other) noexcept;
  void swap(Field& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Identifier of the partfield, unique within the transfer set. Attribute "A", required; 4 to 14
  /// characters, pattern (PFD|PFD-)([0-9])+.
  lmx::elmx_error SetId(std::string const& value) { return m_Id.set(value); }
  std::string const& GetId() const { return m_Id.get(); }
  bool IssetId() const { return m_Id.is_set(); }
  void UnsetId() { m_Id.unset(); }

  /// Code of the partfield, such as an official number. Attribute "B", optional; at most 32 characters.
  lmx::elmx_error SetFieldCode(std::string const& value) { return m_FieldCode.set(value); }
  std::string const& GetFieldCode() const { return m_FieldCode.get(); }
  bool IssetFieldCode() const { return m_FieldCode.is_set(); }
  void UnsetFieldCode() { m_FieldCode.unset(); }

  /// Name shown to the operator. Attribute "C", required; at most 32 characters.
  lmx::elmx_error SetDesignator(std::string const& value) { return m_Designator.set(value); }
  std::string const& GetDesignator() const { return m_Designator.get(); }
  bool IssetDesignator() const { return m_Designator.is_set(); }
  void UnsetDesignator() { m_Designator.unset(); }

  /// Area in square metres. Attribute "D", required; 0 to 4294967294.
  lmx::elmx_error SetArea(unsigned int const& value) { return m_Area.set(value); }
  unsigned int const& GetArea() const { return m_Area.get(); }
  bool IssetArea() const { return m_Area.is_set(); }
  void UnsetArea() { m_Area.unset(); }

  /// Customer that the partfield belongs to. Attribute "E", optional; 4 to 14 characters, pattern
  /// (CTR|CTR-)([0-9])+.
  lmx::elmx_error SetGrowerIdRef(std::string const& value) { return m_GrowerIdRef.set(value); }
  std::string const& GetGrowerIdRef() const { return m_GrowerIdRef.get(); }
  bool IssetGrowerIdRef() const { return m_GrowerIdRef.is_set(); }
  void UnsetGrowerIdRef() { m_GrowerIdRef.unset(); }

  /// Farm that the partfield belongs to. Attribute "F", optional; 4 to 14 characters, pattern
  /// (FRM|FRM-)([0-9])+.
  lmx::elmx_error SetFarmIdRef(std::string const& value) { return m_FarmIdRef.set(value); }
  std::string const& GetFarmIdRef() const { return m_FarmIdRef.get(); }
  bool IssetFarmIdRef() const { return m_FarmIdRef.is_set(); }
  void UnsetFarmIdRef() { m_FarmIdRef.unset(); }

  /// Type of the crop on the partfield. Attribute "G", optional; 4 to 14 characters, pattern
  /// (CTP|CTP-)([0-9])+.
  lmx::elmx_error SetCropTypeIdRef(std::string const& value) { return m_CropTypeIdRef.set(value); }
  std::string const& GetCropTypeIdRef() const { return m_CropTypeIdRef.get(); }
  bool IssetCropTypeIdRef() const { return m_CropTypeIdRef.is_set(); }
  void UnsetCropTypeIdRef() { m_CropTypeIdRef.unset(); }

  /// Variety of the crop on the partfield. Attribute "H", optional; 4 to 14 characters, pattern
  /// (CVT|CVT-)([0-9])+.
  lmx::elmx_error SetCropVarietyIdRef(std::string const& value) { return m_CropVarietyIdRef.set(value); }
  std::string const& GetCropVarietyIdRef() const { return m_CropVarietyIdRef.get(); }
  bool IssetCropVarietyIdRef() const { return m_CropVarietyIdRef.is_set(); }
  void UnsetCropVarietyIdRef() { m_CropVarietyIdRef.unset(); }

  /// Partfield of which this one is a part. Attribute "I", optional; 4 to 14 characters, pattern
  /// (PFD|PFD-)([0-9])+.
  lmx::elmx_error SetFieldIdRef(std::string const& value) { return m_FieldIdRef.set(value); }
  std::string const& GetFieldIdRef() const { return m_FieldIdRef.get(); }
  bool IssetFieldIdRef() const { return m_FieldIdRef.is_set(); }
  void UnsetFieldIdRef() { m_FieldIdRef.unset(); }

  /// Extension: first name of the person for the partfield. Attribute "P917_firstName", optional; at most 32
  /// characters.
  lmx::elmx_error SetP917FirstName(std::string const& value) { return m_P917FirstName.set(value); }
  std::string const& GetP917FirstName() const { return m_P917FirstName.get(); }
  bool IssetP917FirstName() const { return m_P917FirstName.is_set(); }
  void UnsetP917FirstName() { m_P917FirstName.unset(); }

  /// Extension: middle name of the person for the partfield. Attribute "P917_middleName", optional.
  lmx::elmx_error SetMiddleName(std::string const& value) { return m_MiddleName.set(value); }
  std::string const& GetMiddleName() const { return m_MiddleName.get(); }
  bool IssetMiddleName() const { return m_MiddleName.is_set(); }
  void UnsetMiddleName() { m_MiddleName.unset(); }

  /// Extension: last name of the person for the partfield. Attribute "P917_lastName", optional; at most 32
  /// characters.
  lmx::elmx_error SetP917LastName(std::string const& value) { return m_P917LastName.set(value); }
  std::string const& GetP917LastName() const { return m_P917LastName.get(); }
  bool IssetP917LastName() const { return m_P917LastName.is_set(); }
  void UnsetP917LastName() { m_P917LastName.unset(); }

  /// Extension: telephone number of the person for the partfield. Attribute "P917_phoneNumber", optional; at
  /// most 32 characters.
  lmx::elmx_error SetP917PhoneNumber(std::string const& value) { return m_P917PhoneNumber.set(value); }
  std::string const& GetP917PhoneNumber() const { return m_P917PhoneNumber.get(); }
  bool IssetP917PhoneNumber() const { return m_P917PhoneNumber.is_set(); }
  void UnsetP917PhoneNumber() { m_P917PhoneNumber.unset(); }

  /// Extension: mobile telephone number of the person for the partfield. Attribute "P917_mobileNumber",
  /// optional; at most 32 characters.
  lmx::elmx_error SetP917MobileNumber(std::string const& value) { return m_P917MobileNumber.set(value); }
  std::string const& GetP917MobileNumber() const { return m_P917MobileNumber.get(); }
  bool IssetP917MobileNumber() const { return m_P917MobileNumber.is_set(); }
  void UnsetP917MobileNumber() { m_P917MobileNumber.unset(); }

  /// Extension: fax number of the person for the partfield. Attribute "P917_faxNumber", optional; at most 32
  /// characters.
  lmx::elmx_error SetP917FaxNumber(std::string const& value) { return m_P917FaxNumber.set(value); }
  std::string const& GetP917FaxNumber() const { return m_P917FaxNumber.get(); }
  bool IssetP917FaxNumber() const { return m_P917FaxNumber.is_set(); }
  void UnsetP917FaxNumber() { m_P917FaxNumber.unset(); }

  /// Extension: e-mail address of the person for the partfield. Attribute "P917_Email", optional; at most 64
  /// characters.
  lmx::elmx_error SetP917Email(std::string const& value) { return m_P917Email.set(value); }
  std::string const& GetP917Email() const { return m_P917Email.get(); }
  bool IssetP917Email() const { return m_P917Email.is_set(); }
  void UnsetP917Email() { m_P917Email.unset(); }

  /// Extension: street and house number. Attribute "P917_street", optional; at most 32 characters.
  lmx::elmx_error SetP917Street(std::string const& value) { return m_P917Street.set(value); }
  std::string const& GetP917Street() const { return m_P917Street.get(); }
  bool IssetP917Street() const { return m_P917Street.is_set(); }
  void UnsetP917Street() { m_P917Street.unset(); }

  /// Extension: post office box. Attribute "P917_poBox", optional; at most 32 characters.
  lmx::elmx_error SetP917PoBox(std::string const& value) { return m_P917PoBox.set(value); }
  std::string const& GetP917PoBox() const { return m_P917PoBox.get(); }
  bool IssetP917PoBox() const { return m_P917PoBox.is_set(); }
  void UnsetP917PoBox() { m_P917PoBox.unset(); }

  /// Extension: postal code. Attribute "P917_postalCode", optional; at most 10 characters.
  lmx::elmx_error SetP917PostalCode(std::string const& value) { return m_P917PostalCode.set(value); }
  std::string const& GetP917PostalCode() const { return m_P917PostalCode.get(); }
  bool IssetP917PostalCode() const { return m_P917PostalCode.is_set(); }
  void UnsetP917PostalCode() { m_P917PostalCode.unset(); }

  /// Extension: town or city. Attribute "P917_city", optional; at most 32 characters.
  lmx::elmx_error SetP917City(std::string const& value) { return m_P917City.set(value); }
  std::string const& GetP917City() const { return m_P917City.get(); }
  bool IssetP917City() const { return m_P917City.is_set(); }
  void UnsetP917City() { m_P917City.unset(); }

  /// Extension: state or province. Attribute "P917_state", optional; at most 32 characters.
  lmx::elmx_error SetState(std::string const& value) { return m_State.set(value); }
  std::string const& GetState() const { return m_State.get(); }
  bool IssetState() const { return m_State.is_set(); }
  void UnsetState() { m_State.unset(); }

  /// Extension: country. Attribute "P917_country", optional; at most 32 characters.
  lmx::elmx_error SetP917Country(std::string const& value) { return m_P917Country.set(value); }
  std::string const& GetP917Country() const { return m_P917Country.get(); }
  bool IssetP917Country() const { return m_P917Country.is_set(); }
  void UnsetP917Country() { m_P917Country.unset(); }

  /// Extension: section in which the partfield lies. Attribute "P917_section", optional; at most 32
  /// characters.
  lmx::elmx_error SetSection(std::string const& value) { return m_Section.set(value); }
  std::string const& GetSection() const { return m_Section.get(); }
  bool IssetSection() const { return m_Section.is_set(); }
  void UnsetSection() { m_Section.unset(); }

  /// Extension: township in which the partfield lies. Attribute "P917_township", optional; at most 32
  /// characters.
  lmx::elmx_error SetTownship(std::string const& value) { return m_Township.set(value); }
  std::string const& GetTownship() const { return m_Township.get(); }
  bool IssetTownship() const { return m_Township.is_set(); }
  void UnsetTownship() { m_Township.unset(); }

  /// Extension: county in which the partfield lies. Attribute "P917_county", optional; at most 32 characters.
  lmx::elmx_error SetCounty(std::string const& value) { return m_County.set(value); }
  std::string const& GetCounty() const { return m_County.get(); }
  bool IssetCounty() const { return m_County.is_set(); }
  void UnsetCounty() { m_County.unset(); }

  /// Extension: free remark about the partfield. Attribute "P917_comment", optional; at most 330 characters.
  lmx::elmx_error SetComment(std::string const& value) { return m_Comment.set(value); }
  std::string const& GetComment() const { return m_Comment.get(); }
  bool IssetComment() const { return m_Comment.is_set(); }
  void UnsetComment() { m_Comment.unset(); }

  /// Extension: crop on the partfield, as text. Attribute "P917_crop", optional; at most 32 characters.
  lmx::elmx_error SetCrop(std::string const& value) { return m_Crop.set(value); }
  std::string const& GetCrop() const { return m_Crop.get(); }
  bool IssetCrop() const { return m_Crop.is_set(); }
  void UnsetCrop() { m_Crop.unset(); }

  /// The children, in document order. The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  InnerField const& GetInnerField(std::size_t index) const;
  InnerField& GetInnerField(std::size_t index);
  InnerField& AppendInnerField();
  void AppendInnerField(InnerField* value);
  InnerField& InsertInnerField(std::size_t index);
  void InsertInnerField(std::size_t index, InnerField* value);
  void AssignInnerField(std::size_t index, InnerField const& value);
  void AssignInnerField(std::size_t index, InnerField* value);
  InnerField& BackInnerField();
  void DeleteInnerField(std::size_t index);
  void ClearInnerField();
  std::size_t SizeInnerField() const;

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
  lmx::ct_simple_pod_optional<std::string> m_FieldCode;
  lmx::ct_simple_pod_single<std::string> m_Designator;
  lmx::ct_simple_pod_single<unsigned int> m_Area;
  lmx::ct_simple_pod_optional<std::string> m_GrowerIdRef;
  lmx::ct_simple_pod_optional<std::string> m_FarmIdRef;
  lmx::ct_simple_pod_optional<std::string> m_CropTypeIdRef;
  lmx::ct_simple_pod_optional<std::string> m_CropVarietyIdRef;
  lmx::ct_simple_pod_optional<std::string> m_FieldIdRef;
  lmx::ct_simple_pod_optional<std::string> m_P917FirstName;
  lmx::ct_simple_pod_optional<std::string> m_MiddleName;
  lmx::ct_simple_pod_optional<std::string> m_P917LastName;
  lmx::ct_simple_pod_optional<std::string> m_P917PhoneNumber;
  lmx::ct_simple_pod_optional<std::string> m_P917MobileNumber;
  lmx::ct_simple_pod_optional<std::string> m_P917FaxNumber;
  lmx::ct_simple_pod_optional<std::string> m_P917Email;
  lmx::ct_simple_pod_optional<std::string> m_P917Street;
  lmx::ct_simple_pod_optional<std::string> m_P917PoBox;
  lmx::ct_simple_pod_optional<std::string> m_P917PostalCode;
  lmx::ct_simple_pod_optional<std::string> m_P917City;
  lmx::ct_simple_pod_optional<std::string> m_State;
  lmx::ct_simple_pod_optional<std::string> m_P917Country;
  lmx::ct_simple_pod_optional<std::string> m_Section;
  lmx::ct_simple_pod_optional<std::string> m_Township;
  lmx::ct_simple_pod_optional<std::string> m_County;
  lmx::ct_simple_pod_optional<std::string> m_Comment;
  lmx::ct_simple_pod_optional<std::string> m_Crop;
  lmx::ct_complex_multi<InnerField> mInnerField;
};

/// A stretch of the children of `Polygon`: one unbroken run of like siblings, or one child, as `chosen`
/// tells. It has no XML element of its own.
class ISOXML_API InnerPolygon {
 public:
  /// The alternatives' numbers; `chosen` is one of them.
  enum : std::int32_t {
    LineStringChosen = 0,
    NothingChosen = 1,
  };

  InnerPolygon();
  InnerPolygon(InnerPolygon const& other);
  /// Leaves `other` behind like a new object.
  InnerPolygon(InnerPolygon&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  InnerPolygon(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual InnerPolygon* clone() const;
  virtual ~InnerPolygon();
  /// Deep; when copying fails the target is unchanged.
  InnerPolygon& operator=(InnerPolygon const& other);
  InnerPolygon& operator=(InnerPolygon&& other) noexcept;
  void swap(InnerPolygon& other) noexcept;
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

  /// Makes `LineString` the alternative held, with an empty run; no effect when it is already.
  void SelectLineString();
  /// The run of "LSG". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  LineString const& GetLineString(std::size_t index) const;
  LineString& GetLineString(std::size_t index);
  LineString& AppendLineString();
  void AppendLineString(LineString* value);
  LineString& InsertLineString(std::size_t index);
  void InsertLineString(std::size_t index, LineString* value);
  void AssignLineString(std::size_t index, LineString const& value);
  void AssignLineString(std::size_t index, LineString* value);
  LineString& BackLineString();
  void DeleteLineString(std::size_t index);
  void ClearLineString();
  std::size_t SizeLineString() const;

  std::int32_t chosen;

  static lmx::s_event_map const elem_event_map[];

 private:
  lmx::ct_choice m_held;
};

/// Polygon, element "PLN". An area bounded by rings: line strings of exterior and interior type.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API Polygon {
 public:
  Polygon();
  Polygon(Polygon const& other);
  /// Leaves `other` behind like a new object.
  Polygon(Polygon&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  Polygon(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual Polygon* clone() const;
  virtual ~Polygon();
  /// Deep; when copying fails the target is unchanged.
  Polygon& operator=(Polygon const& other);
  Polygon& operator=(Polygon&& other) noexcept;
  void swap(Polygon& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Kind: 1 boundary, 2 treatment zone, 3 water, 4 building, 5 road, 6 obstacle, 7 flag, 8 other, 9 main
  /// field, 10 headland, 11 buffer zone, 12 windbreak. Attribute "A", required; one of "1", "2", "3", "4",
  /// "5", "6", "7", "8", "9", "10", "11", "12".
  lmx::elmx_error SetType(std::string const& value) { return m_Type.set(value); }
  std::string const& GetType() const { return m_Type.get(); }
  bool IssetType() const { return m_Type.is_set(); }
  void UnsetType() { m_Type.unset(); }
  /// Its code; 0 when the text is none of the list.
  elmx_enums GetenumType() const;
  /// Stores the text of `code`. False, and no change, for a code of another list.
  bool SetenumType(elmx_enums code);

  /// Name shown to the operator. Attribute "B", optional; at most 32 characters.
  lmx::elmx_error SetDesignator(std::string const& value) { return m_Designator.set(value); }
  std::string const& GetDesignator() const { return m_Designator.get(); }
  bool IssetDesignator() const { return m_Designator.is_set(); }
  void UnsetDesignator() { m_Designator.unset(); }

  /// Area in square metres. Attribute "C", optional; 0 to 4294967294.
  lmx::elmx_error SetArea(unsigned int const& value) { return m_Area.set(value); }
  unsigned int const& GetArea() const { return m_Area.get(); }
  bool IssetArea() const { return m_Area.is_set(); }
  void UnsetArea() { m_Area.unset(); }

  /// Display colour, as an index into the colour table of ISO 11783-6. Attribute "D", optional; 0 to 254.
  lmx::elmx_error SetColour(unsigned char const& value) { return m_Colour.set(value); }
  unsigned char const& GetColour() const { return m_Colour.get(); }
  bool IssetColour() const { return m_Colour.is_set(); }
  void UnsetColour() { m_Colour.unset(); }

  /// Identifier of the polygon, unique within the transfer set. Attribute "E", optional; 4 to 14 characters,
  /// pattern (PLN|PLN-)([0-9])+.
  lmx::elmx_error SetId(std::string const& value) { return m_Id.set(value); }
  std::string const& GetId() const { return m_Id.get(); }
  bool IssetId() const { return m_Id.is_set(); }
  void UnsetId() { m_Id.unset(); }

  /// Extension: metadata of the polygon. Attribute "P007_PolygonMetaData", optional.
  lmx::elmx_error SetP007PolygonMetaData(std::string const& value) { return m_rare.get_or_create().m_P007PolygonMetaData.set(value); }
  std::string const& GetP007PolygonMetaData() const { return m_rare.get().m_P007PolygonMetaData.get(); }
  bool IssetP007PolygonMetaData() const { return m_rare.get().m_P007PolygonMetaData.is_set(); }
  void UnsetP007PolygonMetaData() { if (m_rare.is_there()) m_rare.get_or_create().m_P007PolygonMetaData.unset(); }

  /// Extension: code for the polygon's spraying property. Attribute "P917_SprayProperty", optional; one of
  /// "1", "2".
  lmx::elmx_error SetP917SprayProperty(std::string const& value) { return m_rare.get_or_create().m_P917SprayProperty.set(value); }
  std::string const& GetP917SprayProperty() const { return m_rare.get().m_P917SprayProperty.get(); }
  bool IssetP917SprayProperty() const { return m_rare.get().m_P917SprayProperty.is_set(); }
  void UnsetP917SprayProperty() { if (m_rare.is_there()) m_rare.get_or_create().m_P917SprayProperty.unset(); }
  /// Its code; 0 when the text is none of the list.
  elmx_enums GetenumP917SprayProperty() const;
  /// Stores the text of `code`. False, and no change, for a code of another list.
  bool SetenumP917SprayProperty(elmx_enums code);

  /// Extension: code for the polygon's planting property. Attribute "P917_PlantProperty", optional; one of
  /// "1", "2".
  lmx::elmx_error SetP917PlantProperty(std::string const& value) { return m_rare.get_or_create().m_P917PlantProperty.set(value); }
  std::string const& GetP917PlantProperty() const { return m_rare.get().m_P917PlantProperty.get(); }
  bool IssetP917PlantProperty() const { return m_rare.get().m_P917PlantProperty.is_set(); }
  void UnsetP917PlantProperty() { if (m_rare.is_there()) m_rare.get_or_create().m_P917PlantProperty.unset(); }
  /// Its code; 0 when the text is none of the list.
  elmx_enums GetenumP917PlantProperty() const;
  /// Stores the text of `code`. False, and no change, for a code of another list.
  bool SetenumP917PlantProperty(elmx_enums code);

  /// The children, in document order. The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  InnerPolygon const& GetInnerPolygon(std::size_t index) const;
  InnerPolygon& GetInnerPolygon(std::size_t index);
  InnerPolygon& AppendInnerPolygon();
  void AppendInnerPolygon(InnerPolygon* value);
  InnerPolygon& InsertInnerPolygon(std::size_t index);
  void InsertInnerPolygon(std::size_t index, InnerPolygon* value);
  void AssignInnerPolygon(std::size_t index, InnerPolygon const& value);
  void AssignInnerPolygon(std::size_t index, InnerPolygon* value);
  InnerPolygon& BackInnerPolygon();
  void DeleteInnerPolygon(std::size_t index);
  void ClearInnerPolygon();
  std::size_t SizeInnerPolygon() const;

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
  lmx::ct_simple_pod_single<std::string> m_Type;
  lmx::ct_simple_pod_optional<std::string> m_Designator;
  lmx::ct_simple_pod_optional<unsigned int> m_Area;
  lmx::ct_simple_pod_optional<unsigned char> m_Colour;
  lmx::ct_simple_pod_optional<std::string> m_Id;
  struct rare_fields {
    lmx::ct_simple_pod_optional<std::string> m_P007PolygonMetaData;
    lmx::ct_simple_pod_optional<std::string> m_P917SprayProperty;
    lmx::ct_simple_pod_optional<std::string> m_P917PlantProperty;
  };
  lmx::ct_rare<rare_fields> m_rare;
  lmx::ct_complex_multi<InnerPolygon> mInnerPolygon;
};

/// A stretch of the children of `LineString`: one unbroken run of like siblings, or one child, as `chosen`
/// tells. It has no XML element of its own.
class ISOXML_API InnerLineString {
 public:
  /// The alternatives' numbers; `chosen` is one of them.
  enum : std::int32_t {
    PointChosen = 0,
    NothingChosen = 1,
  };

  InnerLineString();
  InnerLineString(InnerLineString const& other);
  /// Leaves `other` behind like a new object.
  InnerLineString(InnerLineString&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  InnerLineString(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual InnerLineString* clone() const;
  virtual ~InnerLineString();
  /// Deep; when copying fails the target is unchanged.
  InnerLineString& operator=(InnerLineString const& other);
  InnerLineString& operator=(InnerLineString&& other) noexcept;
  void swap(InnerLineString& other) noexcept;
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

  /// Makes `Point` the alternative held, with an empty run; no effect when it is already.
  void SelectPoint();
  /// The run of "PNT". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  Point const& GetPoint(std::size_t index) const;
  Point& GetPoint(std::size_t index);
  Point& AppendPoint();
  void AppendPoint(Point* value);
  Point& InsertPoint(std::size_t index);
  void InsertPoint(std::size_t index, Point* value);
  void AssignPoint(std::size_t index, Point const& value);
  void AssignPoint(std::size_t index, Point* value);
  Point& BackPoint();
  void DeletePoint(std::size_t index);
  void ClearPoint();
  std::size_t SizePoint() const;

  std::int32_t chosen;

  static lmx::s_event_map const elem_event_map[];

 private:
  lmx::ct_choice m_held;
};

/// LineString, element "LSG". A line through points in order: a ring of a polygon, a guidance line or another
/// line in the field.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API LineString {
 public:
  LineString();
  LineString(LineString const& other);
  /// Leaves `other` behind like a new object.
  LineString(LineString&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  LineString(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual LineString* clone() const;
  virtual ~LineString();
  /// Deep; when copying fails the target is unchanged.
  LineString& operator=(LineString const& other);
  LineString& operator=(LineString&& other) noexcept;
  void swap(LineString& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Kind: 1 exterior ring, 2 interior ring, 3 tram line, 4 sampling route, 5 guidance pattern, 6 drainage, 7
  /// fence, 8 flag, 9 obstacle. Attribute "A", required; one of "1", "2", "3", "4", "5", "6", "7", "8", "9".
  lmx::elmx_error SetType(std::string const& value) { return m_Type.set(value); }
  std::string const& GetType() const { return m_Type.get(); }
  bool IssetType() const { return m_Type.is_set(); }
  void UnsetType() { m_Type.unset(); }
  /// Its code; 0 when the text is none of the list.
  elmx_enums GetenumType() const;
  /// Stores the text of `code`. False, and no change, for a code of another list.
  bool SetenumType(elmx_enums code);

  /// Name shown to the operator. Attribute "B", optional; at most 32 characters.
  lmx::elmx_error SetDesignator(std::string const& value) { return m_Designator.set(value); }
  std::string const& GetDesignator() const { return m_Designator.get(); }
  bool IssetDesignator() const { return m_Designator.is_set(); }
  void UnsetDesignator() { m_Designator.unset(); }

  /// Width in millimetres. Attribute "C", optional; 0 to 4294967294.
  lmx::elmx_error SetWidth(unsigned int const& value) { return m_Width.set(value); }
  unsigned int const& GetWidth() const { return m_Width.get(); }
  bool IssetWidth() const { return m_Width.is_set(); }
  void UnsetWidth() { m_Width.unset(); }

  /// Length in millimetres. Attribute "D", optional; 0 to 4294967294.
  lmx::elmx_error SetLength(unsigned int const& value) { return m_Length.set(value); }
  unsigned int const& GetLength() const { return m_Length.get(); }
  bool IssetLength() const { return m_Length.is_set(); }
  void UnsetLength() { m_Length.unset(); }

  /// Display colour, as an index into the colour table of ISO 11783-6. Attribute "E", optional; 0 to 254.
  lmx::elmx_error SetColour(unsigned char const& value) { return m_Colour.set(value); }
  unsigned char const& GetColour() const { return m_Colour.get(); }
  bool IssetColour() const { return m_Colour.is_set(); }
  void UnsetColour() { m_Colour.unset(); }

  /// Identifier of the line string, unique within the transfer set. Attribute "F", optional; 4 to 14
  /// characters, pattern (LSG|LSG-)([0-9])+.
  lmx::elmx_error SetId(std::string const& value) { return m_Id.set(value); }
  std::string const& GetId() const { return m_Id.get(); }
  bool IssetId() const { return m_Id.is_set(); }
  void UnsetId() { m_Id.unset(); }

  /// The children, in document order. The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  InnerLineString const& GetInnerLineString(std::size_t index) const;
  InnerLineString& GetInnerLineString(std::size_t index);
  InnerLineString& AppendInnerLineString();
  void AppendInnerLineString(InnerLineString* value);
  InnerLineString& InsertInnerLineString(std::size_t index);
  void InsertInnerLineString(std::size_t index, InnerLineString* value);
  void AssignInnerLineString(std::size_t index, InnerLineString const& value);
  void AssignInnerLineString(std::size_t index, InnerLineString* value);
  InnerLineString& BackInnerLineString();
  void DeleteInnerLineString(std::size_t index);
  void ClearInnerLineString();
  std::size_t SizeInnerLineString() const;

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
  lmx::ct_simple_pod_single<std::string> m_Type;
  lmx::ct_simple_pod_optional<std::string> m_Designator;
  lmx::ct_simple_pod_optional<unsigned int> m_Width;
  lmx::ct_simple_pod_optional<unsigned int> m_Length;
  lmx::ct_simple_pod_optional<unsigned char> m_Colour;
  lmx::ct_simple_pod_optional<std::string> m_Id;
  lmx::ct_complex_multi<InnerLineString> mInnerLineString;
};

/// Point, element "PNT". A single position: a vertex of a line, or a mark of its own such as a flag, an
/// access or an obstacle.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API Point {
 public:
  Point();
  Point(Point const& other);
  /// Leaves `other` behind like a new object.
  Point(Point&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  Point(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual Point* clone() const;
  virtual ~Point();
  /// Deep; when copying fails the target is unchanged.
  Point& operator=(Point const& other);
  Point& operator=(Point&& other) noexcept;
  void swap(Point& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Kind: 1 flag, 2 other, 3 access, 4 storage, 5 obstacle, 6 guidance A, 7 guidance B, 8 centre, 9 guidance
  /// point, 10 field reference, 11 home base. Attribute "A", required; one of "1", "2", "3", "4", "5", "6",
  /// "7", "8", "9", "10", "11".
  lmx::elmx_error SetType(std::string const& value) { return m_Type.set(value); }
  std::string const& GetType() const { return m_Type.get(); }
  bool IssetType() const { return m_Type.is_set(); }
  void UnsetType() { m_Type.unset(); }
  /// Its code; 0 when the text is none of the list.
  elmx_enums GetenumType() const;
  /// Stores the text of `code`. False, and no change, for a code of another list.
  bool SetenumType(elmx_enums code);

  /// Name shown to the operator. Attribute "B", optional; at most 32 characters.
  lmx::elmx_error SetDesignator(std::string const& value) { return m_rare.get_or_create().m_Designator.set(value); }
  std::string const& GetDesignator() const { return m_rare.get().m_Designator.get(); }
  bool IssetDesignator() const { return m_rare.get().m_Designator.is_set(); }
  void UnsetDesignator() { if (m_rare.is_there()) m_rare.get_or_create().m_Designator.unset(); }

  /// Latitude in degrees on WGS 84, north positive. Attribute "C", required; -90.0 to 90.0.
  lmx::elmx_error SetNorth(velmo::lmx::high_precision_c_decimal const& value) { return m_North.set(value); }
  velmo::lmx::high_precision_c_decimal const& GetNorth() const { return m_North.get(); }
  bool IssetNorth() const { return m_North.is_set(); }
  void UnsetNorth() { m_North.unset(); }

  /// Longitude in degrees on WGS 84, east positive. Attribute "D", required; -180.0 to 180.0.
  lmx::elmx_error SetEast(velmo::lmx::high_precision_c_decimal const& value) { return m_East.set(value); }
  velmo::lmx::high_precision_c_decimal const& GetEast() const { return m_East.get(); }
  bool IssetEast() const { return m_East.is_set(); }
  void UnsetEast() { m_East.unset(); }

  /// Height in millimetres above the WGS 84 ellipsoid. Attribute "E", optional; -2147483647 to 2147483647.
  lmx::elmx_error SetAltitude(int const& value) { return m_rare.get_or_create().m_Altitude.set(value); }
  int const& GetAltitude() const { return m_rare.get().m_Altitude.get(); }
  bool IssetAltitude() const { return m_rare.get().m_Altitude.is_set(); }
  void UnsetAltitude() { if (m_rare.is_there()) m_rare.get_or_create().m_Altitude.unset(); }

  /// Display colour, as an index into the colour table of ISO 11783-6. Attribute "F", optional; 0 to 254.
  lmx::elmx_error SetColour(unsigned char const& value) { return m_rare.get_or_create().m_Colour.set(value); }
  unsigned char const& GetColour() const { return m_rare.get().m_Colour.get(); }
  bool IssetColour() const { return m_rare.get().m_Colour.is_set(); }
  void UnsetColour() { if (m_rare.is_there()) m_rare.get_or_create().m_Colour.unset(); }

  /// Identifier of the point, unique within the transfer set. Attribute "G", optional; 4 to 14 characters,
  /// pattern (PNT|PNT-)([0-9])+.
  lmx::elmx_error SetId(std::string const& value) { return m_rare.get_or_create().m_Id.set(value); }
  std::string const& GetId() const { return m_rare.get().m_Id.get(); }
  bool IssetId() const { return m_rare.get().m_Id.is_set(); }
  void UnsetId() { if (m_rare.is_there()) m_rare.get_or_create().m_Id.unset(); }

  /// Horizontal accuracy as RMS error in metres. Attribute "H", optional; 0.0 to 65.0.
  lmx::elmx_error SetHorizontalAccuracy(velmo::lmx::high_precision_c_decimal const& value) { return m_rare.get_or_create().m_HorizontalAccuracy.set(value); }
  velmo::lmx::high_precision_c_decimal const& GetHorizontalAccuracy() const { return m_rare.get().m_HorizontalAccuracy.get(); }
  bool IssetHorizontalAccuracy() const { return m_rare.get().m_HorizontalAccuracy.is_set(); }
  void UnsetHorizontalAccuracy() { if (m_rare.is_there()) m_rare.get_or_create().m_HorizontalAccuracy.unset(); }

  /// Vertical accuracy as RMS error in metres. Attribute "I", optional; 0.0 to 65.0.
  lmx::elmx_error SetVerticalAccuracy(velmo::lmx::high_precision_c_decimal const& value) { return m_rare.get_or_create().m_VerticalAccuracy.set(value); }
  velmo::lmx::high_precision_c_decimal const& GetVerticalAccuracy() const { return m_rare.get().m_VerticalAccuracy.get(); }
  bool IssetVerticalAccuracy() const { return m_rare.get().m_VerticalAccuracy.is_set(); }
  void UnsetVerticalAccuracy() { if (m_rare.is_there()) m_rare.get_or_create().m_VerticalAccuracy.unset(); }

  /// Name, without extension, of the binary file that holds the points in place of this element. Attribute
  /// "J", optional; 8 characters, pattern PNT([0-9]){5}.
  lmx::elmx_error SetFilename(std::string const& value) { return m_rare.get_or_create().m_Filename.set(value); }
  std::string const& GetFilename() const { return m_rare.get().m_Filename.get(); }
  bool IssetFilename() const { return m_rare.get().m_Filename.is_set(); }
  void UnsetFilename() { if (m_rare.is_there()) m_rare.get_or_create().m_Filename.unset(); }

  /// Length of the point file in bytes. Attribute "K", optional; 0 to 4294967294.
  lmx::elmx_error SetFileLength(unsigned int const& value) { return m_rare.get_or_create().m_FileLength.set(value); }
  unsigned int const& GetFileLength() const { return m_rare.get().m_FileLength.get(); }
  bool IssetFileLength() const { return m_rare.get().m_FileLength.is_set(); }
  void UnsetFileLength() { if (m_rare.is_there()) m_rare.get_or_create().m_FileLength.unset(); }

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
  lmx::ct_simple_pod_single<std::string> m_Type;
  lmx::ct_simple_pod_single<velmo::lmx::high_precision_c_decimal> m_North;
  lmx::ct_simple_pod_single<velmo::lmx::high_precision_c_decimal> m_East;
  struct rare_fields {
    lmx::ct_simple_pod_optional<std::string> m_Designator;
    lmx::ct_simple_pod_optional<int> m_Altitude;
    lmx::ct_simple_pod_optional<unsigned char> m_Colour;
    lmx::ct_simple_pod_optional<std::string> m_Id;
    lmx::ct_simple_pod_optional<velmo::lmx::high_precision_c_decimal> m_HorizontalAccuracy;
    lmx::ct_simple_pod_optional<velmo::lmx::high_precision_c_decimal> m_VerticalAccuracy;
    lmx::ct_simple_pod_optional<std::string> m_Filename;
    lmx::ct_simple_pod_optional<unsigned int> m_FileLength;
  };
  lmx::ct_rare<rare_fields> m_rare;
};

/// A stretch of the children of `GuidanceGroup`: one unbroken run of like siblings, or one child, as `chosen`
/// tells. It has no XML element of its own.
class ISOXML_API InnerGuidanceGroup {
 public:
  /// The alternatives' numbers; `chosen` is one of them.
  enum : std::int32_t {
    GuidancePatternChosen = 0,
    BoundaryPolygonChosen = 1,
    NothingChosen = 2,
  };

  InnerGuidanceGroup();
  InnerGuidanceGroup(InnerGuidanceGroup const& other);
  /// Leaves `other` behind like a new object.
  InnerGuidanceGroup(InnerGuidanceGroup&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  InnerGuidanceGroup(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual InnerGuidanceGroup* clone() const;
  virtual ~InnerGuidanceGroup();
  /// Deep; when copying fails the target is unchanged.
  InnerGuidanceGroup& operator=(InnerGuidanceGroup const& other);
  InnerGuidanceGroup& operator=(InnerGuidanceGroup&& other) noexcept;
  void swap(InnerGuidanceGroup& other) noexcept;
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

  /// Makes `GuidancePattern` the alternative held, with an empty run; no effect when it is already.
  void SelectGuidancePattern();
  /// The run of "GPN". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  GuidancePattern const& GetGuidancePattern(std::size_t index) const;
  GuidancePattern& GetGuidancePattern(std::size_t index);
  GuidancePattern& AppendGuidancePattern();
  void AppendGuidancePattern(GuidancePattern* value);
  GuidancePattern& InsertGuidancePattern(std::size_t index);
  void InsertGuidancePattern(std::size_t index, GuidancePattern* value);
  void AssignGuidancePattern(std::size_t index, GuidancePattern const& value);
  void AssignGuidancePattern(std::size_t index, GuidancePattern* value);
  GuidancePattern& BackGuidancePattern();
  void DeleteGuidancePattern(std::size_t index);
  void ClearGuidancePattern();
  std::size_t SizeGuidancePattern() const;

  /// Makes `BoundaryPolygon` the alternative held, with no object yet; no effect when it is already.
  void SelectBoundaryPolygon();
  /// The "PLN". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  Polygon const& GetBoundaryPolygon() const;
  Polygon& GetBoundaryPolygon();

  std::int32_t chosen;

  static lmx::s_event_map const elem_event_map[];

 private:
  lmx::ct_choice m_held;
};

/// GuidanceGroup, element "GGP". Groups guidance patterns, with an optional boundary for the area in which
/// they serve.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API GuidanceGroup {
 public:
  GuidanceGroup();
  GuidanceGroup(GuidanceGroup const& other);
  /// Leaves `other` behind like a new object.
  GuidanceGroup(GuidanceGroup&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  GuidanceGroup(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual GuidanceGroup* clone() const;
  virtual ~GuidanceGroup();
  /// Deep; when copying fails the target is unchanged.
  GuidanceGroup& operator=(GuidanceGroup const& other);
  GuidanceGroup& operator=(GuidanceGroup&& other) noexcept;
  void swap(GuidanceGroup& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Identifier of the guidance group, unique within the transfer set. Attribute "A", required; 4 to 14
  /// characters, pattern (GGP|GGP-)([0-9])+.
  lmx::elmx_error SetId(std::string const& value) { return m_Id.set(value); }
  std::string const& GetId() const { return m_Id.get(); }
  bool IssetId() const { return m_Id.is_set(); }
  void UnsetId() { m_Id.unset(); }

  /// Name shown to the operator. Attribute "B", optional; at most 32 characters.
  lmx::elmx_error SetDesignator(std::string const& value) { return m_Designator.set(value); }
  std::string const& GetDesignator() const { return m_Designator.get(); }
  bool IssetDesignator() const { return m_Designator.is_set(); }
  void UnsetDesignator() { m_Designator.unset(); }

  /// Extension: metadata of the guidance group. Attribute "P007_GuidanceGroupMetaData", optional.
  lmx::elmx_error SetP007GuidanceGroupMetaData(std::string const& value) { return m_P007GuidanceGroupMetaData.set(value); }
  std::string const& GetP007GuidanceGroupMetaData() const { return m_P007GuidanceGroupMetaData.get(); }
  bool IssetP007GuidanceGroupMetaData() const { return m_P007GuidanceGroupMetaData.is_set(); }
  void UnsetP007GuidanceGroupMetaData() { m_P007GuidanceGroupMetaData.unset(); }

  /// The children, in document order. The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  InnerGuidanceGroup const& GetInnerGuidanceGroup(std::size_t index) const;
  InnerGuidanceGroup& GetInnerGuidanceGroup(std::size_t index);
  InnerGuidanceGroup& AppendInnerGuidanceGroup();
  void AppendInnerGuidanceGroup(InnerGuidanceGroup* value);
  InnerGuidanceGroup& InsertInnerGuidanceGroup(std::size_t index);
  void InsertInnerGuidanceGroup(std::size_t index, InnerGuidanceGroup* value);
  void AssignInnerGuidanceGroup(std::size_t index, InnerGuidanceGroup const& value);
  void AssignInnerGuidanceGroup(std::size_t index, InnerGuidanceGroup* value);
  InnerGuidanceGroup& BackInnerGuidanceGroup();
  void DeleteInnerGuidanceGroup(std::size_t index);
  void ClearInnerGuidanceGroup();
  std::size_t SizeInnerGuidanceGroup() const;

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
  lmx::ct_simple_pod_optional<std::string> m_P007GuidanceGroupMetaData;
  lmx::ct_complex_multi<InnerGuidanceGroup> mInnerGuidanceGroup;
};

/// A stretch of the children of `GuidancePattern`: one unbroken run of like siblings, or one child, as
/// `chosen` tells. It has no XML element of its own.
class ISOXML_API InnerGuidancePattern {
 public:
  /// The alternatives' numbers; `chosen` is one of them.
  enum : std::int32_t {
    LineStringChosen = 0,
    BoundaryPolygonChosen = 1,
    NothingChosen = 2,
  };

  InnerGuidancePattern();
  InnerGuidancePattern(InnerGuidancePattern const& other);
  /// Leaves `other` behind like a new object.
  InnerGuidancePattern(InnerGuidancePattern&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  InnerGuidancePattern(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual InnerGuidancePattern* clone() const;
  virtual ~InnerGuidancePattern();
  /// Deep; when copying fails the target is unchanged.
  InnerGuidancePattern& operator=(InnerGuidancePattern const& other);
  InnerGuidancePattern& operator=(InnerGuidancePattern&& other) noexcept;
  void swap(InnerGuidancePattern& other) noexcept;
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

  /// Makes `LineString` the alternative held, with no object yet; no effect when it is already.
  void SelectLineString();
  /// The "LSG". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  LineString const& GetLineString() const;
  LineString& GetLineString();

  /// Makes `BoundaryPolygon` the alternative held, with no object yet; no effect when it is already.
  void SelectBoundaryPolygon();
  /// The "PLN". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  Polygon const& GetBoundaryPolygon() const;
  Polygon& GetBoundaryPolygon();

  std::int32_t chosen;

  static lmx::s_event_map const elem_event_map[];

 private:
  lmx::ct_choice m_held;
};

/// GuidancePattern, element "GPN". Reference geometry from which a guidance system derives its swaths.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API GuidancePattern {
 public:
  GuidancePattern();
  GuidancePattern(GuidancePattern const& other);
  /// Leaves `other` behind like a new object.
  GuidancePattern(GuidancePattern&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  GuidancePattern(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual GuidancePattern* clone() const;
  virtual ~GuidancePattern();
  /// Deep; when copying fails the target is unchanged.
  GuidancePattern& operator=(GuidancePattern const& other);
  GuidancePattern& operator=(GuidancePattern&& other) noexcept;
  void swap(GuidancePattern& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Identifier of the guidance pattern, unique within the transfer set. Attribute "A", required; 4 to 14
  /// characters, pattern (GPN|GPN-)([0-9])+.
  lmx::elmx_error SetId(std::string const& value) { return m_Id.set(value); }
  std::string const& GetId() const { return m_Id.get(); }
  bool IssetId() const { return m_Id.is_set(); }
  void UnsetId() { m_Id.unset(); }

  /// Name shown to the operator. Attribute "B", optional; at most 32 characters.
  lmx::elmx_error SetDesignator(std::string const& value) { return m_Designator.set(value); }
  std::string const& GetDesignator() const { return m_Designator.get(); }
  bool IssetDesignator() const { return m_Designator.is_set(); }
  void UnsetDesignator() { m_Designator.unset(); }

  /// Form of the pattern: 1 AB line, 2 A point and heading, 3 curve, 4 pivot, 5 spiral. Attribute "C",
  /// required; one of "1", "2", "3", "4", "5".
  lmx::elmx_error SetType(std::string const& value) { return m_Type.set(value); }
  std::string const& GetType() const { return m_Type.get(); }
  bool IssetType() const { return m_Type.is_set(); }
  void UnsetType() { m_Type.unset(); }
  /// Its code; 0 when the text is none of the list.
  elmx_enums GetenumType() const;
  /// Stores the text of `code`. False, and no change, for a code of another list.
  bool SetenumType(elmx_enums code);

  /// Further choice for a pivot: 1 clockwise, 2 counterclockwise, 3 full circle. Attribute "D", optional; one
  /// of "1", "2", "3".
  lmx::elmx_error SetOptions(std::string const& value) { return m_Options.set(value); }
  std::string const& GetOptions() const { return m_Options.get(); }
  bool IssetOptions() const { return m_Options.is_set(); }
  void UnsetOptions() { m_Options.unset(); }
  /// Its code; 0 when the text is none of the list.
  elmx_enums GetenumOptions() const;
  /// Stores the text of `code`. False, and no change, for a code of another list.
  bool SetenumOptions(elmx_enums code);

  /// Sides to which swaths are repeated: 1 both, 2 left only, 3 right only, 4 none. Attribute "E", optional;
  /// one of "1", "2", "3", "4".
  lmx::elmx_error SetPropagationDirection(std::string const& value) { return m_PropagationDirection.set(value); }
  std::string const& GetPropagationDirection() const { return m_PropagationDirection.get(); }
  bool IssetPropagationDirection() const { return m_PropagationDirection.is_set(); }
  void UnsetPropagationDirection() { m_PropagationDirection.unset(); }
  /// Its code; 0 when the text is none of the list.
  elmx_enums GetenumPropagationDirection() const;
  /// Stores the text of `code`. False, and no change, for a code of another list.
  bool SetenumPropagationDirection(elmx_enums code);

  /// Ends at which the line is prolonged: 1 both, 2 first point only, 3 last point only, 4 none. Attribute
  /// "F", optional; one of "1", "2", "3", "4".
  lmx::elmx_error SetExtension(std::string const& value) { return m_Extension.set(value); }
  std::string const& GetExtension() const { return m_Extension.get(); }
  bool IssetExtension() const { return m_Extension.is_set(); }
  void UnsetExtension() { m_Extension.unset(); }
  /// Its code; 0 when the text is none of the list.
  elmx_enums GetenumExtension() const;
  /// Stores the text of `code`. False, and no change, for a code of another list.
  bool SetenumExtension(elmx_enums code);

  /// Heading of the line in degrees, clockwise from north. Attribute "G", optional; 0.0 to 360.0.
  lmx::elmx_error SetHeading(velmo::lmx::high_precision_c_decimal const& value) { return m_Heading.set(value); }
  velmo::lmx::high_precision_c_decimal const& GetHeading() const { return m_Heading.get(); }
  bool IssetHeading() const { return m_Heading.is_set(); }
  void UnsetHeading() { m_Heading.unset(); }

  /// Radius of a pivot in millimetres. Attribute "H", optional; 0 to 4294967294.
  lmx::elmx_error SetRadius(unsigned int const& value) { return m_Radius.set(value); }
  unsigned int const& GetRadius() const { return m_Radius.get(); }
  bool IssetRadius() const { return m_Radius.is_set(); }
  void UnsetRadius() { m_Radius.unset(); }

  /// Position source: 0 no fix, 1 GNSS, 2 DGNSS, 3 precise, 4 RTK fixed, 5 RTK float, 6 estimated, 7 manual,
  /// 8 simulated, 16 desktop, 17 other. Attribute "I", optional; one of "0", "1", "2", "3", "4", "5", "6",
  /// "7", "8", "16", "17".
  lmx::elmx_error SetGNSSMethod(std::string const& value) { return m_GNSSMethod.set(value); }
  std::string const& GetGNSSMethod() const { return m_GNSSMethod.get(); }
  bool IssetGNSSMethod() const { return m_GNSSMethod.is_set(); }
  void UnsetGNSSMethod() { m_GNSSMethod.unset(); }
  /// Its code; 0 when the text is none of the list.
  elmx_enums GetenumGNSSMethod() const;
  /// Stores the text of `code`. False, and no change, for a code of another list.
  bool SetenumGNSSMethod(elmx_enums code);

  /// Horizontal accuracy as RMS error in metres. Attribute "J", optional; 0.0 to 65.0.
  lmx::elmx_error SetHorizontalAccuracy(velmo::lmx::high_precision_c_decimal const& value) { return m_HorizontalAccuracy.set(value); }
  velmo::lmx::high_precision_c_decimal const& GetHorizontalAccuracy() const { return m_HorizontalAccuracy.get(); }
  bool IssetHorizontalAccuracy() const { return m_HorizontalAccuracy.is_set(); }
  void UnsetHorizontalAccuracy() { m_HorizontalAccuracy.unset(); }

  /// Vertical accuracy as RMS error in metres. Attribute "K", optional; 0.0 to 65.0.
  lmx::elmx_error SetVerticalAccuracy(velmo::lmx::high_precision_c_decimal const& value) { return m_VerticalAccuracy.set(value); }
  velmo::lmx::high_precision_c_decimal const& GetVerticalAccuracy() const { return m_VerticalAccuracy.get(); }
  bool IssetVerticalAccuracy() const { return m_VerticalAccuracy.is_set(); }
  void UnsetVerticalAccuracy() { m_VerticalAccuracy.unset(); }

  /// Base station used when the pattern was recorded. Attribute "L", optional; 4 to 14 characters, pattern
  /// (BSN|BSN-)([0-9])+.
  lmx::elmx_error SetBaseStationIdRef(std::string const& value) { return m_BaseStationIdRef.set(value); }
  std::string const& GetBaseStationIdRef() const { return m_BaseStationIdRef.get(); }
  bool IssetBaseStationIdRef() const { return m_BaseStationIdRef.is_set(); }
  void UnsetBaseStationIdRef() { m_BaseStationIdRef.unset(); }

  /// Spatial reference system in which the pattern was first made. Attribute "M", optional; at most 32
  /// characters.
  lmx::elmx_error SetOriginalSRID(std::string const& value) { return m_OriginalSRID.set(value); }
  std::string const& GetOriginalSRID() const { return m_OriginalSRID.get(); }
  bool IssetOriginalSRID() const { return m_OriginalSRID.is_set(); }
  void UnsetOriginalSRID() { m_OriginalSRID.unset(); }

  /// Number of swaths to the left of the reference line. Attribute "N", optional; 0 to 4294967294.
  lmx::elmx_error SetNumberOfSwathsLeft(unsigned int const& value) { return m_NumberOfSwathsLeft.set(value); }
  unsigned int const& GetNumberOfSwathsLeft() const { return m_NumberOfSwathsLeft.get(); }
  bool IssetNumberOfSwathsLeft() const { return m_NumberOfSwathsLeft.is_set(); }
  void UnsetNumberOfSwathsLeft() { m_NumberOfSwathsLeft.unset(); }

  /// Number of swaths to the right of the reference line. Attribute "O", optional; 0 to 4294967294.
  lmx::elmx_error SetNumberOfSwathsRight(unsigned int const& value) { return m_NumberOfSwathsRight.set(value); }
  unsigned int const& GetNumberOfSwathsRight() const { return m_NumberOfSwathsRight.get(); }
  bool IssetNumberOfSwathsRight() const { return m_NumberOfSwathsRight.is_set(); }
  void UnsetNumberOfSwathsRight() { m_NumberOfSwathsRight.unset(); }

  /// Extension: metadata of the guidance pattern. Attribute "P007_GuidanceMetaData", optional.
  lmx::elmx_error SetP007GuidanceMetaData(std::string const& value) { return m_P007GuidanceMetaData.set(value); }
  std::string const& GetP007GuidanceMetaData() const { return m_P007GuidanceMetaData.get(); }
  bool IssetP007GuidanceMetaData() const { return m_P007GuidanceMetaData.is_set(); }
  void UnsetP007GuidanceMetaData() { m_P007GuidanceMetaData.unset(); }

  /// The children, in document order. The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  InnerGuidancePattern const& GetInnerGuidancePattern(std::size_t index) const;
  InnerGuidancePattern& GetInnerGuidancePattern(std::size_t index);
  InnerGuidancePattern& AppendInnerGuidancePattern();
  void AppendInnerGuidancePattern(InnerGuidancePattern* value);
  InnerGuidancePattern& InsertInnerGuidancePattern(std::size_t index);
  void InsertInnerGuidancePattern(std::size_t index, InnerGuidancePattern* value);
  void AssignInnerGuidancePattern(std::size_t index, InnerGuidancePattern const& value);
  void AssignInnerGuidancePattern(std::size_t index, InnerGuidancePattern* value);
  InnerGuidancePattern& BackInnerGuidancePattern();
  void DeleteInnerGuidancePattern(std::size_t index);
  void ClearInnerGuidancePattern();
  std::size_t SizeInnerGuidancePattern() const;

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
  lmx::ct_simple_pod_single<std::string> m_Type;
  lmx::ct_simple_pod_optional<std::string> m_Options;
  lmx::ct_simple_pod_optional<std::string> m_PropagationDirection;
  lmx::ct_simple_pod_optional<std::string> m_Extension;
  lmx::ct_simple_pod_optional<velmo::lmx::high_precision_c_decimal> m_Heading;
  lmx::ct_simple_pod_optional<unsigned int> m_Radius;
  lmx::ct_simple_pod_optional<std::string> m_GNSSMethod;
  lmx::ct_simple_pod_optional<velmo::lmx::high_precision_c_decimal> m_HorizontalAccuracy;
  lmx::ct_simple_pod_optional<velmo::lmx::high_precision_c_decimal> m_VerticalAccuracy;
  lmx::ct_simple_pod_optional<std::string> m_BaseStationIdRef;
  lmx::ct_simple_pod_optional<std::string> m_OriginalSRID;
  lmx::ct_simple_pod_optional<unsigned int> m_NumberOfSwathsLeft;
  lmx::ct_simple_pod_optional<unsigned int> m_NumberOfSwathsRight;
  lmx::ct_simple_pod_optional<std::string> m_P007GuidanceMetaData;
  lmx::ct_complex_multi<InnerGuidancePattern> mInnerGuidancePattern;
};

/// A stretch of the children of `GuidanceAllocation`: one unbroken run of like siblings, or one child, as
/// `chosen` tells. It has no XML element of its own.
class ISOXML_API InnerGuidanceAllocation {
 public:
  /// The alternatives' numbers; `chosen` is one of them.
  enum : std::int32_t {
    AllocationStampChosen = 0,
    GuidanceShiftChosen = 1,
    NothingChosen = 2,
  };

  InnerGuidanceAllocation();
  InnerGuidanceAllocation(InnerGuidanceAllocation const& other);
  /// Leaves `other` behind like a new object.
  InnerGuidanceAllocation(InnerGuidanceAllocation&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  InnerGuidanceAllocation(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual InnerGuidanceAllocation* clone() const;
  virtual ~InnerGuidanceAllocation();
  /// Deep; when copying fails the target is unchanged.
  InnerGuidanceAllocation& operator=(InnerGuidanceAllocation const& other);
  InnerGuidanceAllocation& operator=(InnerGuidanceAllocation&& other) noexcept;
  void swap(InnerGuidanceAllocation& other) noexcept;
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

  /// Makes `AllocationStamp` the alternative held, with no object yet; no effect when it is already.
  void SelectAllocationStamp();
  /// The "ASP". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  AllocationStamp const& GetAllocationStamp() const;
  AllocationStamp& GetAllocationStamp();

  /// Makes `GuidanceShift` the alternative held, with an empty run; no effect when it is already.
  void SelectGuidanceShift();
  /// The run of "GST". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  GuidanceShift const& GetGuidanceShift(std::size_t index) const;
  GuidanceShift& GetGuidanceShift(std::size_t index);
  GuidanceShift& AppendGuidanceShift();
  void AppendGuidanceShift(GuidanceShift* value);
  GuidanceShift& InsertGuidanceShift(std::size_t index);
  void InsertGuidanceShift(std::size_t index, GuidanceShift* value);
  void AssignGuidanceShift(std::size_t index, GuidanceShift const& value);
  void AssignGuidanceShift(std::size_t index, GuidanceShift* value);
  GuidanceShift& BackGuidanceShift();
  void DeleteGuidanceShift(std::size_t index);
  void ClearGuidanceShift();
  std::size_t SizeGuidanceShift() const;

  std::int32_t chosen;

  static lmx::s_event_map const elem_event_map[];

 private:
  lmx::ct_choice m_held;
};

/// GuidanceAllocation, element "GAN". Assigns a guidance group to a task, with the time of use and the shifts
/// applied.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API GuidanceAllocation {
 public:
  GuidanceAllocation();
  GuidanceAllocation(GuidanceAllocation const& other);
  /// Leaves `other` behind like a new object.
  GuidanceAllocation(GuidanceAllocation&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  GuidanceAllocation(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual GuidanceAllocation* clone() const;
  virtual ~GuidanceAllocation();
  /// Deep; when copying fails the target is unchanged.
  GuidanceAllocation& operator=(GuidanceAllocation const& other);
  GuidanceAllocation& operator=(GuidanceAllocation&& other) noexcept;
  void swap(GuidanceAllocation& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Guidance group that the task uses. Attribute "A", required; 4 to 14 characters, pattern
  /// (GGP|GGP-)([0-9])+.
  lmx::elmx_error SetGuidanceGroupIdRef(std::string const& value) { return m_GuidanceGroupIdRef.set(value); }
  std::string const& GetGuidanceGroupIdRef() const { return m_GuidanceGroupIdRef.get(); }
  bool IssetGuidanceGroupIdRef() const { return m_GuidanceGroupIdRef.is_set(); }
  void UnsetGuidanceGroupIdRef() { m_GuidanceGroupIdRef.unset(); }

  /// The children, in document order. The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  InnerGuidanceAllocation const& GetInnerGuidanceAllocation(std::size_t index) const;
  InnerGuidanceAllocation& GetInnerGuidanceAllocation(std::size_t index);
  InnerGuidanceAllocation& AppendInnerGuidanceAllocation();
  void AppendInnerGuidanceAllocation(InnerGuidanceAllocation* value);
  InnerGuidanceAllocation& InsertInnerGuidanceAllocation(std::size_t index);
  void InsertInnerGuidanceAllocation(std::size_t index, InnerGuidanceAllocation* value);
  void AssignInnerGuidanceAllocation(std::size_t index, InnerGuidanceAllocation const& value);
  void AssignInnerGuidanceAllocation(std::size_t index, InnerGuidanceAllocation* value);
  InnerGuidanceAllocation& BackInnerGuidanceAllocation();
  void DeleteInnerGuidanceAllocation(std::size_t index);
  void ClearInnerGuidanceAllocation();
  std::size_t SizeInnerGuidanceAllocation() const;

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
  lmx::ct_simple_pod_single<std::string> m_GuidanceGroupIdRef;
  lmx::ct_complex_multi<InnerGuidanceAllocation> mInnerGuidanceAllocation;
};

/// A stretch of the children of `GuidanceShift`: one unbroken run of like siblings, or one child, as `chosen`
/// tells. It has no XML element of its own.
class ISOXML_API InnerGuidanceShift {
 public:
  /// The alternatives' numbers; `chosen` is one of them.
  enum : std::int32_t {
    AllocationStampChosen = 0,
    NothingChosen = 1,
  };

  InnerGuidanceShift();
  InnerGuidanceShift(InnerGuidanceShift const& other);
  /// Leaves `other` behind like a new object.
  InnerGuidanceShift(InnerGuidanceShift&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  InnerGuidanceShift(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual InnerGuidanceShift* clone() const;
  virtual ~InnerGuidanceShift();
  /// Deep; when copying fails the target is unchanged.
  InnerGuidanceShift& operator=(InnerGuidanceShift const& other);
  InnerGuidanceShift& operator=(InnerGuidanceShift&& other) noexcept;
  void swap(InnerGuidanceShift& other) noexcept;
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

  /// Makes `AllocationStamp` the alternative held, with no object yet; no effect when it is already.
  void SelectAllocationStamp();
  /// The "ASP". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  AllocationStamp const& GetAllocationStamp() const;
  AllocationStamp& GetAllocationStamp();

  std::int32_t chosen;

  static lmx::s_event_map const elem_event_map[];

 private:
  lmx::ct_choice m_held;
};

/// GuidanceShift, element "GST". States how a guidance pattern was moved from its recorded place while in
/// use.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API GuidanceShift {
 public:
  GuidanceShift();
  GuidanceShift(GuidanceShift const& other);
  /// Leaves `other` behind like a new object.
  GuidanceShift(GuidanceShift&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  GuidanceShift(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual GuidanceShift* clone() const;
  virtual ~GuidanceShift();
  /// Deep; when copying fails the target is unchanged.
  GuidanceShift& operator=(GuidanceShift const& other);
  GuidanceShift& operator=(GuidanceShift&& other) noexcept;
  void swap(GuidanceShift& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Guidance group that holds the pattern. Attribute "A", required; 4 to 14 characters, pattern
  /// (GGP|GGP-)([0-9])+.
  lmx::elmx_error SetGuidanceGroupIdRef(std::string const& value) { return m_GuidanceGroupIdRef.set(value); }
  std::string const& GetGuidanceGroupIdRef() const { return m_GuidanceGroupIdRef.get(); }
  bool IssetGuidanceGroupIdRef() const { return m_GuidanceGroupIdRef.is_set(); }
  void UnsetGuidanceGroupIdRef() { m_GuidanceGroupIdRef.unset(); }

  /// Guidance pattern that is shifted. Attribute "B", required; 4 to 14 characters, pattern
  /// (GPN|GPN-)([0-9])+.
  lmx::elmx_error SetGuidancePatternIdRef(std::string const& value) { return m_GuidancePatternIdRef.set(value); }
  std::string const& GetGuidancePatternIdRef() const { return m_GuidancePatternIdRef.get(); }
  bool IssetGuidancePatternIdRef() const { return m_GuidancePatternIdRef.is_set(); }
  void UnsetGuidancePatternIdRef() { m_GuidancePatternIdRef.unset(); }

  /// Shift towards east in millimetres. Attribute "C", optional; -2147483648 to 2147483647.
  lmx::elmx_error SetEastShift(int const& value) { return m_EastShift.set(value); }
  int const& GetEastShift() const { return m_EastShift.get(); }
  bool IssetEastShift() const { return m_EastShift.is_set(); }
  void UnsetEastShift() { m_EastShift.unset(); }

  /// Shift towards north in millimetres. Attribute "D", optional; -2147483648 to 2147483647.
  lmx::elmx_error SetNorthShift(int const& value) { return m_NorthShift.set(value); }
  int const& GetNorthShift() const { return m_NorthShift.get(); }
  bool IssetNorthShift() const { return m_NorthShift.is_set(); }
  void UnsetNorthShift() { m_NorthShift.unset(); }

  /// Offset of the pattern in the direction of propagation, in millimetres. Attribute "E", optional;
  /// -2147483648 to 2147483647.
  lmx::elmx_error SetPropagationOffset(int const& value) { return m_PropagationOffset.set(value); }
  int const& GetPropagationOffset() const { return m_PropagationOffset.get(); }
  bool IssetPropagationOffset() const { return m_PropagationOffset.is_set(); }
  void UnsetPropagationOffset() { m_PropagationOffset.unset(); }

  /// The children, when there are any. The const form stops the process when there are none; the
  /// other creates the wrapper.
  InnerGuidanceShift const& GetInnerGuidanceShift() const;
  InnerGuidanceShift& GetInnerGuidanceShift();
  void AssignInnerGuidanceShift(InnerGuidanceShift const& value);
  /// Takes ownership.
  void AssignInnerGuidanceShift(InnerGuidanceShift* value);
  bool IssetInnerGuidanceShift() const;
  void UnsetInnerGuidanceShift();

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
  lmx::ct_simple_pod_single<std::string> m_GuidanceGroupIdRef;
  lmx::ct_simple_pod_single<std::string> m_GuidancePatternIdRef;
  lmx::ct_simple_pod_optional<int> m_EastShift;
  lmx::ct_simple_pod_optional<int> m_NorthShift;
  lmx::ct_simple_pod_optional<int> m_PropagationOffset;
  lmx::ct_complex_optional<InnerGuidanceShift> mInnerGuidanceShift;
};

/// BaseStation, element "BSN". A reference station for position correction, at a known place.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API BaseStation {
 public:
  BaseStation();
  BaseStation(BaseStation const& other);
  /// Leaves `other` behind like a new object.
  BaseStation(BaseStation&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  BaseStation(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual BaseStation* clone() const;
  virtual ~BaseStation();
  /// Deep; when copying fails the target is unchanged.
  BaseStation& operator=(BaseStation const& other);
  BaseStation& operator=(BaseStation&& other) noexcept;
  void swap(BaseStation& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Identifier of the base station, unique within the transfer set. Attribute "A", required; 4 to 14
  /// characters, pattern (BSN|BSN-)([0-9])+.
  lmx::elmx_error SetId(std::string const& value) { return m_Id.set(value); }
  std::string const& GetId() const { return m_Id.get(); }
  bool IssetId() const { return m_Id.is_set(); }
  void UnsetId() { m_Id.unset(); }

  /// Name shown to the operator. Attribute "B", required; at most 32 characters.
  lmx::elmx_error SetDesignator(std::string const& value) { return m_Designator.set(value); }
  std::string const& GetDesignator() const { return m_Designator.get(); }
  bool IssetDesignator() const { return m_Designator.is_set(); }
  void UnsetDesignator() { m_Designator.unset(); }

  /// Latitude in degrees on WGS 84, north positive. Attribute "C", required; -90.0 to 90.0.
  lmx::elmx_error SetNorth(velmo::lmx::high_precision_c_decimal const& value) { return m_North.set(value); }
  velmo::lmx::high_precision_c_decimal const& GetNorth() const { return m_North.get(); }
  bool IssetNorth() const { return m_North.is_set(); }
  void UnsetNorth() { m_North.unset(); }

  /// Longitude in degrees on WGS 84, east positive. Attribute "D", required; -180.0 to 180.0.
  lmx::elmx_error SetEast(velmo::lmx::high_precision_c_decimal const& value) { return m_East.set(value); }
  velmo::lmx::high_precision_c_decimal const& GetEast() const { return m_East.get(); }
  bool IssetEast() const { return m_East.is_set(); }
  void UnsetEast() { m_East.unset(); }

  /// Height in millimetres above the WGS 84 ellipsoid. Attribute "E", required; -2147483647 to 2147483647.
  lmx::elmx_error SetAltitude(int const& value) { return m_Altitude.set(value); }
  int const& GetAltitude() const { return m_Altitude.get(); }
  bool IssetAltitude() const { return m_Altitude.is_set(); }
  void UnsetAltitude() { m_Altitude.unset(); }

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
  lmx::ct_simple_pod_single<std::string> m_Designator;
  lmx::ct_simple_pod_single<velmo::lmx::high_precision_c_decimal> m_North;
  lmx::ct_simple_pod_single<velmo::lmx::high_precision_c_decimal> m_East;
  lmx::ct_simple_pod_single<int> m_Altitude;
};
