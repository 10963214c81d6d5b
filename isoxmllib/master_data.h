// clang-format off
// Generated from schema/master_data.toml. Edit the schema, then build the target `schema`.

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

/// Grower, element "CTR". A customer: the person or business for whom work is done and to whom farms and
/// fields belong.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API Grower {
 public:
  Grower();
  Grower(Grower const& other);
  /// Leaves `other` behind like a new object.
  Grower(Grower&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  Grower(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual Grower* clone() const;
  virtual ~Grower();
  /// Deep; when copying fails the target is unchanged.
  Grower& operator=(Grower const& other);
  Grower& operator=(Grower&& other) noexcept;
  void swap(Grower& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Identifier of the customer, unique within the transfer set. Attribute "A", required; 4 to 14 characters,
  /// pattern (CTR|CTR-)([0-9])+.
  lmx::elmx_error SetId(std::string const& value) { return m_Id.set(value); }
  std::string const& GetId() const { return m_Id.get(); }
  bool IssetId() const { return m_Id.is_set(); }
  void UnsetId() { m_Id.unset(); }

  /// Last name of the customer, or the name of the business. Attribute "B", required; at most 32 characters.
  lmx::elmx_error SetLastName(std::string const& value) { return m_LastName.set(value); }
  std::string const& GetLastName() const { return m_LastName.get(); }
  bool IssetLastName() const { return m_LastName.is_set(); }
  void UnsetLastName() { m_LastName.unset(); }

  /// First name of the customer. Attribute "C", optional; at most 32 characters.
  lmx::elmx_error SetFirstName(std::string const& value) { return m_FirstName.set(value); }
  std::string const& GetFirstName() const { return m_FirstName.get(); }
  bool IssetFirstName() const { return m_FirstName.is_set(); }
  void UnsetFirstName() { m_FirstName.unset(); }

  /// Street and house number of the customer. Attribute "D", optional; at most 32 characters.
  lmx::elmx_error SetStreet(std::string const& value) { return m_Street.set(value); }
  std::string const& GetStreet() const { return m_Street.get(); }
  bool IssetStreet() const { return m_Street.is_set(); }
  void UnsetStreet() { m_Street.unset(); }

  /// Post office box of the customer. Attribute "E", optional; at most 32 characters.
  lmx::elmx_error SetPOBox(std::string const& value) { return m_POBox.set(value); }
  std::string const& GetPOBox() const { return m_POBox.get(); }
  bool IssetPOBox() const { return m_POBox.is_set(); }
  void UnsetPOBox() { m_POBox.unset(); }

  /// Postal code of the customer. Attribute "F", optional; at most 10 characters.
  lmx::elmx_error SetPostalCode(std::string const& value) { return m_PostalCode.set(value); }
  std::string const& GetPostalCode() const { return m_PostalCode.get(); }
  bool IssetPostalCode() const { return m_PostalCode.is_set(); }
  void UnsetPostalCode() { m_PostalCode.unset(); }

  /// Town or city of the customer. Attribute "G", optional; at most 32 characters.
  lmx::elmx_error SetCity(std::string const& value) { return m_City.set(value); }
  std::string const& GetCity() const { return m_City.get(); }
  bool IssetCity() const { return m_City.is_set(); }
  void UnsetCity() { m_City.unset(); }

  /// State or province of the customer. Attribute "H", optional; at most 32 characters.
  lmx::elmx_error SetState(std::string const& value) { return m_State.set(value); }
  std::string const& GetState() const { return m_State.get(); }
  bool IssetState() const { return m_State.is_set(); }
  void UnsetState() { m_State.unset(); }

  /// Country of the customer. Attribute "I", optional; at most 32 characters.
  lmx::elmx_error SetCountry(std::string const& value) { return m_Country.set(value); }
  std::string const& GetCountry() const { return m_Country.get(); }
  bool IssetCountry() const { return m_Country.is_set(); }
  void UnsetCountry() { m_Country.unset(); }

  /// Telephone number of the customer. Attribute "J", optional; at most 20 characters.
  lmx::elmx_error SetPhone(std::string const& value) { return m_Phone.set(value); }
  std::string const& GetPhone() const { return m_Phone.get(); }
  bool IssetPhone() const { return m_Phone.is_set(); }
  void UnsetPhone() { m_Phone.unset(); }

  /// Mobile telephone number of the customer. Attribute "K", optional; at most 20 characters.
  lmx::elmx_error SetMobile(std::string const& value) { return m_Mobile.set(value); }
  std::string const& GetMobile() const { return m_Mobile.get(); }
  bool IssetMobile() const { return m_Mobile.is_set(); }
  void UnsetMobile() { m_Mobile.unset(); }

  /// Fax number of the customer. Attribute "L", optional; at most 20 characters.
  lmx::elmx_error SetFax(std::string const& value) { return m_Fax.set(value); }
  std::string const& GetFax() const { return m_Fax.get(); }
  bool IssetFax() const { return m_Fax.is_set(); }
  void UnsetFax() { m_Fax.unset(); }

  /// E-mail address of the customer. Attribute "M", optional; at most 64 characters.
  lmx::elmx_error SetEmail(std::string const& value) { return m_Email.set(value); }
  std::string const& GetEmail() const { return m_Email.get(); }
  bool IssetEmail() const { return m_Email.is_set(); }
  void UnsetEmail() { m_Email.unset(); }

  /// Extension: customer number. Attribute "P917_customerNumber", optional; at most 32 characters.
  lmx::elmx_error SetCustomerNumber(std::string const& value) { return m_CustomerNumber.set(value); }
  std::string const& GetCustomerNumber() const { return m_CustomerNumber.get(); }
  bool IssetCustomerNumber() const { return m_CustomerNumber.is_set(); }
  void UnsetCustomerNumber() { m_CustomerNumber.unset(); }

  /// Extension: middle name of the customer. Attribute "P917_middleName", optional; at most 32 characters.
  lmx::elmx_error SetMiddleName(std::string const& value) { return m_MiddleName.set(value); }
  std::string const& GetMiddleName() const { return m_MiddleName.get(); }
  bool IssetMiddleName() const { return m_MiddleName.is_set(); }
  void UnsetMiddleName() { m_MiddleName.unset(); }

  /// Extension: free remark about the customer. Attribute "P917_comment", optional; at most 330 characters.
  lmx::elmx_error SetComment(std::string const& value) { return m_Comment.set(value); }
  std::string const& GetComment() const { return m_Comment.get(); }
  bool IssetComment() const { return m_Comment.is_set(); }
  void UnsetComment() { m_Comment.unset(); }

  /// Extension: county of the customer. Attribute "P917_county", optional; at most 32 characters.
  lmx::elmx_error SetCounty(std::string const& value) { return m_County.set(value); }
  std::string const& GetCounty() const { return m_County.get(); }
  bool IssetCounty() const { return m_County.is_set(); }
  void UnsetCounty() { m_County.unset(); }

  /// Extension: name under which the customer is displayed. Attribute "P917_displayName", optional; at most
  /// 32 characters.
  lmx::elmx_error SetDisplayName(std::string const& value) { return m_DisplayName.set(value); }
  std::string const& GetDisplayName() const { return m_DisplayName.get(); }
  bool IssetDisplayName() const { return m_DisplayName.is_set(); }
  void UnsetDisplayName() { m_DisplayName.unset(); }

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
  lmx::ct_simple_pod_single<std::string> m_LastName;
  lmx::ct_simple_pod_optional<std::string> m_FirstName;
  lmx::ct_simple_pod_optional<std::string> m_Street;
  lmx::ct_simple_pod_optional<std::string> m_POBox;
  lmx::ct_simple_pod_optional<std::string> m_PostalCode;
  lmx::ct_simple_pod_optional<std::string> m_City;
  lmx::ct_simple_pod_optional<std::string> m_State;
  lmx::ct_simple_pod_optional<std::string> m_Country;
  lmx::ct_simple_pod_optional<std::string> m_Phone;
  lmx::ct_simple_pod_optional<std::string> m_Mobile;
  lmx::ct_simple_pod_optional<std::string> m_Fax;
  lmx::ct_simple_pod_optional<std::string> m_Email;
  lmx::ct_simple_pod_optional<std::string> m_CustomerNumber;
  lmx::ct_simple_pod_optional<std::string> m_MiddleName;
  lmx::ct_simple_pod_optional<std::string> m_Comment;
  lmx::ct_simple_pod_optional<std::string> m_County;
  lmx::ct_simple_pod_optional<std::string> m_DisplayName;
};

/// Farm, element "FRM". A farm, with its address and the customer it belongs to.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API Farm {
 public:
  Farm();
  Farm(Farm const& other);
  /// Leaves `other` behind like a new object.
  Farm(Farm&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  Farm(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual Farm* clone() const;
  virtual ~Farm();
  /// Deep; when copying fails the target is unchanged.
  Farm& operator=(Farm const& other);
  Farm& operator=(Farm&& other) noexcept;
  void swap(Farm& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Identifier of the farm, unique within the transfer set. Attribute "A", required; 4 to 14 characters,
  /// pattern (FRM|FRM-)([0-9])+.
  lmx::elmx_error SetId(std::string const& value) { return m_Id.set(value); }
  std::string const& GetId() const { return m_Id.get(); }
  bool IssetId() const { return m_Id.is_set(); }
  void UnsetId() { m_Id.unset(); }

  /// Name shown to the operator. Attribute "B", required; at most 32 characters.
  lmx::elmx_error SetDesignator(std::string const& value) { return m_Designator.set(value); }
  std::string const& GetDesignator() const { return m_Designator.get(); }
  bool IssetDesignator() const { return m_Designator.is_set(); }
  void UnsetDesignator() { m_Designator.unset(); }

  /// Street and house number of the farm. Attribute "C", optional; at most 32 characters.
  lmx::elmx_error SetStreet(std::string const& value) { return m_Street.set(value); }
  std::string const& GetStreet() const { return m_Street.get(); }
  bool IssetStreet() const { return m_Street.is_set(); }
  void UnsetStreet() { m_Street.unset(); }

  /// Post office box of the farm. Attribute "D", optional; at most 32 characters.
  lmx::elmx_error SetPOBox(std::string const& value) { return m_POBox.set(value); }
  std::string const& GetPOBox() const { return m_POBox.get(); }
  bool IssetPOBox() const { return m_POBox.is_set(); }
  void UnsetPOBox() { m_POBox.unset(); }

  /// Postal code of the farm. Attribute "E", optional; at most 10 characters.
  lmx::elmx_error SetPostalCode(std::string const& value) { return m_PostalCode.set(value); }
  std::string const& GetPostalCode() const { return m_PostalCode.get(); }
  bool IssetPostalCode() const { return m_PostalCode.is_set(); }
  void UnsetPostalCode() { m_PostalCode.unset(); }

  /// Town or city of the farm. Attribute "F", optional; at most 32 characters.
  lmx::elmx_error SetCity(std::string const& value) { return m_City.set(value); }
  std::string const& GetCity() const { return m_City.get(); }
  bool IssetCity() const { return m_City.is_set(); }
  void UnsetCity() { m_City.unset(); }

  /// State or province of the farm. Attribute "G", optional; at most 32 characters.
  lmx::elmx_error SetState(std::string const& value) { return m_State.set(value); }
  std::string const& GetState() const { return m_State.get(); }
  bool IssetState() const { return m_State.is_set(); }
  void UnsetState() { m_State.unset(); }

  /// Country of the farm. Attribute "H", optional; at most 32 characters.
  lmx::elmx_error SetCountry(std::string const& value) { return m_Country.set(value); }
  std::string const& GetCountry() const { return m_Country.get(); }
  bool IssetCountry() const { return m_Country.is_set(); }
  void UnsetCountry() { m_Country.unset(); }

  /// Customer that the farm belongs to. Attribute "I", optional; 4 to 14 characters, pattern
  /// (CTR|CTR-)([0-9])+.
  lmx::elmx_error SetGrowerIdRef(std::string const& value) { return m_GrowerIdRef.set(value); }
  std::string const& GetGrowerIdRef() const { return m_GrowerIdRef.get(); }
  bool IssetGrowerIdRef() const { return m_GrowerIdRef.is_set(); }
  void UnsetGrowerIdRef() { m_GrowerIdRef.unset(); }

  /// Extension: county of the farm. Attribute "P917_county", optional; at most 32 characters.
  lmx::elmx_error SetCounty(std::string const& value) { return m_County.set(value); }
  std::string const& GetCounty() const { return m_County.get(); }
  bool IssetCounty() const { return m_County.is_set(); }
  void UnsetCounty() { m_County.unset(); }

  /// Extension: first name of the contact person. Attribute "P917_firstName", optional; at most 32
  /// characters.
  lmx::elmx_error SetFirstName(std::string const& value) { return m_FirstName.set(value); }
  std::string const& GetFirstName() const { return m_FirstName.get(); }
  bool IssetFirstName() const { return m_FirstName.is_set(); }
  void UnsetFirstName() { m_FirstName.unset(); }

  /// Extension: middle name of the contact person. Attribute "P917_middleName", optional.
  lmx::elmx_error SetMiddleName(std::string const& value) { return m_MiddleName.set(value); }
  std::string const& GetMiddleName() const { return m_MiddleName.get(); }
  bool IssetMiddleName() const { return m_MiddleName.is_set(); }
  void UnsetMiddleName() { m_MiddleName.unset(); }

  /// Extension: last name of the contact person. Attribute "P917_lastName", optional; at most 32 characters.
  lmx::elmx_error SetLastName(std::string const& value) { return m_LastName.set(value); }
  std::string const& GetLastName() const { return m_LastName.get(); }
  bool IssetLastName() const { return m_LastName.is_set(); }
  void UnsetLastName() { m_LastName.unset(); }

  /// Extension: telephone number of the contact person. Attribute "P917_phoneNumber", optional; at most 32
  /// characters.
  lmx::elmx_error SetPhone(std::string const& value) { return m_Phone.set(value); }
  std::string const& GetPhone() const { return m_Phone.get(); }
  bool IssetPhone() const { return m_Phone.is_set(); }
  void UnsetPhone() { m_Phone.unset(); }

  /// Extension: mobile telephone number of the contact person. Attribute "P917_mobileNumber", optional; at
  /// most 32 characters.
  lmx::elmx_error SetMobile(std::string const& value) { return m_Mobile.set(value); }
  std::string const& GetMobile() const { return m_Mobile.get(); }
  bool IssetMobile() const { return m_Mobile.is_set(); }
  void UnsetMobile() { m_Mobile.unset(); }

  /// Extension: fax number of the contact person. Attribute "P917_faxNumber", optional; at most 32
  /// characters.
  lmx::elmx_error SetFax(std::string const& value) { return m_Fax.set(value); }
  std::string const& GetFax() const { return m_Fax.get(); }
  bool IssetFax() const { return m_Fax.is_set(); }
  void UnsetFax() { m_Fax.unset(); }

  /// Extension: e-mail address of the contact person. Attribute "P917_Email", optional; at most 64
  /// characters.
  lmx::elmx_error SetEmail(std::string const& value) { return m_Email.set(value); }
  std::string const& GetEmail() const { return m_Email.get(); }
  bool IssetEmail() const { return m_Email.is_set(); }
  void UnsetEmail() { m_Email.unset(); }

  /// Extension: free remark about the farm. Attribute "P917_comment", optional; at most 330 characters.
  lmx::elmx_error SetComment(std::string const& value) { return m_Comment.set(value); }
  std::string const& GetComment() const { return m_Comment.get(); }
  bool IssetComment() const { return m_Comment.is_set(); }
  void UnsetComment() { m_Comment.unset(); }

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
  lmx::ct_simple_pod_optional<std::string> m_Street;
  lmx::ct_simple_pod_optional<std::string> m_POBox;
  lmx::ct_simple_pod_optional<std::string> m_PostalCode;
  lmx::ct_simple_pod_optional<std::string> m_City;
  lmx::ct_simple_pod_optional<std::string> m_State;
  lmx::ct_simple_pod_optional<std::string> m_Country;
  lmx::ct_simple_pod_optional<std::string> m_GrowerIdRef;
  lmx::ct_simple_pod_optional<std::string> m_County;
  lmx::ct_simple_pod_optional<std::string> m_FirstName;
  lmx::ct_simple_pod_optional<std::string> m_MiddleName;
  lmx::ct_simple_pod_optional<std::string> m_LastName;
  lmx::ct_simple_pod_optional<std::string> m_Phone;
  lmx::ct_simple_pod_optional<std::string> m_Mobile;
  lmx::ct_simple_pod_optional<std::string> m_Fax;
  lmx::ct_simple_pod_optional<std::string> m_Email;
  lmx::ct_simple_pod_optional<std::string> m_Comment;
};

/// Worker, element "WKR". A person who can be assigned to tasks.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API Worker {
 public:
  Worker();
  Worker(Worker const& other);
  /// Leaves `other` behind like a new object.
  Worker(Worker&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  Worker(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual Worker* clone() const;
  virtual ~Worker();
  /// Deep; when copying fails the target is unchanged.
  Worker& operator=(Worker const& other);
  Worker& operator=(Worker&& other) noexcept;
  void swap(Worker& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Identifier of the worker, unique within the transfer set. Attribute "A", required; 4 to 14 characters,
  /// pattern (WKR|WKR-)([0-9])+.
  lmx::elmx_error SetId(std::string const& value) { return m_Id.set(value); }
  std::string const& GetId() const { return m_Id.get(); }
  bool IssetId() const { return m_Id.is_set(); }
  void UnsetId() { m_Id.unset(); }

  /// Last name of the worker. Attribute "B", required; at most 32 characters.
  lmx::elmx_error SetLastName(std::string const& value) { return m_LastName.set(value); }
  std::string const& GetLastName() const { return m_LastName.get(); }
  bool IssetLastName() const { return m_LastName.is_set(); }
  void UnsetLastName() { m_LastName.unset(); }

  /// First name of the worker. Attribute "C", optional; at most 32 characters.
  lmx::elmx_error SetFirstName(std::string const& value) { return m_FirstName.set(value); }
  std::string const& GetFirstName() const { return m_FirstName.get(); }
  bool IssetFirstName() const { return m_FirstName.is_set(); }
  void UnsetFirstName() { m_FirstName.unset(); }

  /// Street and house number of the worker. Attribute "D", optional; at most 32 characters.
  lmx::elmx_error SetStreet(std::string const& value) { return m_Street.set(value); }
  std::string const& GetStreet() const { return m_Street.get(); }
  bool IssetStreet() const { return m_Street.is_set(); }
  void UnsetStreet() { m_Street.unset(); }

  /// Post office box of the worker. Attribute "E", optional; at most 32 characters.
  lmx::elmx_error SetPOBox(std::string const& value) { return m_POBox.set(value); }
  std::string const& GetPOBox() const { return m_POBox.get(); }
  bool IssetPOBox() const { return m_POBox.is_set(); }
  void UnsetPOBox() { m_POBox.unset(); }

  /// Postal code of the worker. Attribute "F", optional; at most 10 characters.
  lmx::elmx_error SetPostalCode(std::string const& value) { return m_PostalCode.set(value); }
  std::string const& GetPostalCode() const { return m_PostalCode.get(); }
  bool IssetPostalCode() const { return m_PostalCode.is_set(); }
  void UnsetPostalCode() { m_PostalCode.unset(); }

  /// Town or city of the worker. Attribute "G", optional; at most 32 characters.
  lmx::elmx_error SetCity(std::string const& value) { return m_City.set(value); }
  std::string const& GetCity() const { return m_City.get(); }
  bool IssetCity() const { return m_City.is_set(); }
  void UnsetCity() { m_City.unset(); }

  /// State or province of the worker. Attribute "H", optional; at most 32 characters.
  lmx::elmx_error SetState(std::string const& value) { return m_State.set(value); }
  std::string const& GetState() const { return m_State.get(); }
  bool IssetState() const { return m_State.is_set(); }
  void UnsetState() { m_State.unset(); }

  /// Country of the worker. Attribute "I", optional; at most 32 characters.
  lmx::elmx_error SetCountry(std::string const& value) { return m_Country.set(value); }
  std::string const& GetCountry() const { return m_Country.get(); }
  bool IssetCountry() const { return m_Country.is_set(); }
  void UnsetCountry() { m_Country.unset(); }

  /// Telephone number of the worker. Attribute "J", optional; at most 20 characters.
  lmx::elmx_error SetPhone(std::string const& value) { return m_Phone.set(value); }
  std::string const& GetPhone() const { return m_Phone.get(); }
  bool IssetPhone() const { return m_Phone.is_set(); }
  void UnsetPhone() { m_Phone.unset(); }

  /// Mobile telephone number of the worker. Attribute "K", optional; at most 20 characters.
  lmx::elmx_error SetMobile(std::string const& value) { return m_Mobile.set(value); }
  std::string const& GetMobile() const { return m_Mobile.get(); }
  bool IssetMobile() const { return m_Mobile.is_set(); }
  void UnsetMobile() { m_Mobile.unset(); }

  /// Licence number of the worker. Attribute "L", optional; at most 32 characters.
  lmx::elmx_error SetLicenseNumber(std::string const& value) { return m_LicenseNumber.set(value); }
  std::string const& GetLicenseNumber() const { return m_LicenseNumber.get(); }
  bool IssetLicenseNumber() const { return m_LicenseNumber.is_set(); }
  void UnsetLicenseNumber() { m_LicenseNumber.unset(); }

  /// E-mail address of the worker. Attribute "M", optional; at most 64 characters.
  lmx::elmx_error SetEmail(std::string const& value) { return m_Email.set(value); }
  std::string const& GetEmail() const { return m_Email.get(); }
  bool IssetEmail() const { return m_Email.is_set(); }
  void UnsetEmail() { m_Email.unset(); }

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
  lmx::ct_simple_pod_single<std::string> m_LastName;
  lmx::ct_simple_pod_optional<std::string> m_FirstName;
  lmx::ct_simple_pod_optional<std::string> m_Street;
  lmx::ct_simple_pod_optional<std::string> m_POBox;
  lmx::ct_simple_pod_optional<std::string> m_PostalCode;
  lmx::ct_simple_pod_optional<std::string> m_City;
  lmx::ct_simple_pod_optional<std::string> m_State;
  lmx::ct_simple_pod_optional<std::string> m_Country;
  lmx::ct_simple_pod_optional<std::string> m_Phone;
  lmx::ct_simple_pod_optional<std::string> m_Mobile;
  lmx::ct_simple_pod_optional<std::string> m_LicenseNumber;
  lmx::ct_simple_pod_optional<std::string> m_Email;
};

/// A stretch of the children of `Product`: one unbroken run of like siblings, or one child, as `chosen`
/// tells. It has no XML element of its own.
class ISOXML_API InnerProduct {
 public:
  /// The alternatives' numbers; `chosen` is one of them.
  enum : std::int32_t {
    ProductRelationChosen = 0,
    NothingChosen = 1,
  };

  InnerProduct();
  InnerProduct(InnerProduct const& other);
  /// Leaves `other` behind like a new object.
  InnerProduct(InnerProduct&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  InnerProduct(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual InnerProduct* clone() const;
  virtual ~InnerProduct();
  /// Deep; when copying fails the target is unchanged.
  InnerProduct& operator=(InnerProduct const& other);
  InnerProduct& operator=(InnerProduct&& other) noexcept;
  void swap(InnerProduct& other) noexcept;
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

  /// Makes `ProductRelation` the alternative held, with an empty run; no effect when it is already.
  void SelectProductRelation();
  /// The run of "PRN". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  ProductRelation const& GetProductRelation(std::size_t index) const;
  ProductRelation& GetProductRelation(std::size_t index);
  ProductRelation& AppendProductRelation();
  void AppendProductRelation(ProductRelation* value);
  ProductRelation& InsertProductRelation(std::size_t index);
  void InsertProductRelation(std::size_t index, ProductRelation* value);
  void AssignProductRelation(std::size_t index, ProductRelation const& value);
  void AssignProductRelation(std::size_t index, ProductRelation* value);
  ProductRelation& BackProductRelation();
  void DeleteProductRelation(std::size_t index);
  void ClearProductRelation();
  std::size_t SizeProductRelation() const;

  std::int32_t chosen;

  static lmx::s_event_map const elem_event_map[];

 private:
  lmx::ct_choice m_held;
};

/// Product, element "PDT". A material that is applied, harvested or carried, such as seed, fertiliser or
/// crop. A mixture lists its parts as product relations.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API Product {
 public:
  Product();
  Product(Product const& other);
  /// Leaves `other` behind like a new object.
  Product(Product&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  Product(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual Product* clone() const;
  virtual ~Product();
  /// Deep; when copying fails the target is unchanged.
  Product& operator=(Product const& other);
  Product& operator=(Product&& other) noexcept;
  void swap(Product& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Identifier of the product, unique within the transfer set. Attribute "A", required; 4 to 14 characters,
  /// pattern (PDT|PDT-)([0-9])+.
  lmx::elmx_error SetId(std::string const& value) { return m_Id.set(value); }
  std::string const& GetId() const { return m_Id.get(); }
  bool IssetId() const { return m_Id.is_set(); }
  void UnsetId() { m_Id.unset(); }

  /// Name shown to the operator. Attribute "B", required; at most 32 characters.
  lmx::elmx_error SetDesignator(std::string const& value) { return m_Designator.set(value); }
  std::string const& GetDesignator() const { return m_Designator.get(); }
  bool IssetDesignator() const { return m_Designator.is_set(); }
  void UnsetDesignator() { m_Designator.unset(); }

  /// Product group that the product belongs to. Attribute "C", optional; 4 to 14 characters, pattern
  /// (PGP|PGP-)([0-9])+.
  lmx::elmx_error SetProductGroupIdRef(std::string const& value) { return m_ProductGroupIdRef.set(value); }
  std::string const& GetProductGroupIdRef() const { return m_ProductGroupIdRef.get(); }
  bool IssetProductGroupIdRef() const { return m_ProductGroupIdRef.is_set(); }
  void UnsetProductGroupIdRef() { m_ProductGroupIdRef.unset(); }

  /// Value presentation that scales quantities of the product for display. Attribute "D", optional; 4 to 14
  /// characters, pattern (VPN|VPN-)([0-9])+.
  lmx::elmx_error SetValuePresentationIdRef(std::string const& value) { return m_ValuePresentationIdRef.set(value); }
  std::string const& GetValuePresentationIdRef() const { return m_ValuePresentationIdRef.get(); }
  bool IssetValuePresentationIdRef() const { return m_ValuePresentationIdRef.is_set(); }
  void UnsetValuePresentationIdRef() { m_ValuePresentationIdRef.unset(); }

  /// DDI that sets quantity and unit in which the product is measured, two bytes, four hexadecimal digits.
  /// Attribute "E", optional; 2 bytes, written as hexadecimal.
  lmx::elmx_error SetQuantityDDI(lmx::c_binary const& value) { return m_QuantityDDI.set(value); }
  lmx::c_binary const& GetQuantityDDI() const { return m_QuantityDDI.get(); }
  bool IssetQuantityDDI() const { return m_QuantityDDI.is_set(); }
  void UnsetQuantityDDI() { m_QuantityDDI.unset(); }

  /// Kind of product: 1 single product, 2 mixture, 3 temporary mixture. Attribute "F", optional; one of "1",
  /// "2", "3".
  lmx::elmx_error SetType(std::string const& value) { return m_Type.set(value); }
  std::string const& GetType() const { return m_Type.get(); }
  bool IssetType() const { return m_Type.is_set(); }
  void UnsetType() { m_Type.unset(); }
  /// Its code; 0 when the text is none of the list.
  elmx_enums GetenumType() const;
  /// Stores the text of `code`. False, and no change, for a code of another list.
  bool SetenumType(elmx_enums code);

  /// Total quantity to which the mixture's recipe applies, in the unit of the quantity DDI. Attribute "G",
  /// optional; 0 to 2147483647.
  lmx::elmx_error SetMixtureRecipeQuantity(unsigned int const& value) { return m_MixtureRecipeQuantity.set(value); }
  unsigned int const& GetMixtureRecipeQuantity() const { return m_MixtureRecipeQuantity.get(); }
  bool IssetMixtureRecipeQuantity() const { return m_MixtureRecipeQuantity.is_set(); }
  void UnsetMixtureRecipeQuantity() { m_MixtureRecipeQuantity.unset(); }

  /// Density as mass per volume, in milligrams per litre. Attribute "H", optional; 0 to 2147483647.
  lmx::elmx_error SetDensityMassPerVolume(unsigned int const& value) { return m_DensityMassPerVolume.set(value); }
  unsigned int const& GetDensityMassPerVolume() const { return m_DensityMassPerVolume.get(); }
  bool IssetDensityMassPerVolume() const { return m_DensityMassPerVolume.is_set(); }
  void UnsetDensityMassPerVolume() { m_DensityMassPerVolume.unset(); }

  /// Mass per count, in milligrams per 1000 pieces. Attribute "I", optional; 0 to 2147483647.
  lmx::elmx_error SetDensityMassPerCount(unsigned int const& value) { return m_DensityMassPerCount.set(value); }
  unsigned int const& GetDensityMassPerCount() const { return m_DensityMassPerCount.get(); }
  bool IssetDensityMassPerCount() const { return m_DensityMassPerCount.is_set(); }
  void UnsetDensityMassPerCount() { m_DensityMassPerCount.unset(); }

  /// Volume per count, in millilitres per 1000 pieces. Attribute "J", optional; 0 to 2147483647.
  lmx::elmx_error SetDensityVolumePerCount(unsigned int const& value) { return m_DensityVolumePerCount.set(value); }
  unsigned int const& GetDensityVolumePerCount() const { return m_DensityVolumePerCount.get(); }
  bool IssetDensityVolumePerCount() const { return m_DensityVolumePerCount.is_set(); }
  void UnsetDensityVolumePerCount() { m_DensityVolumePerCount.unset(); }

  /// Extension: maker of the ingredient. Attribute "P917_ingredientManufacturer", optional; at most 32
  /// characters.
  lmx::elmx_error SetP917IngredientManufacturer(std::string const& value) { return m_P917IngredientManufacturer.set(value); }
  std::string const& GetP917IngredientManufacturer() const { return m_P917IngredientManufacturer.get(); }
  bool IssetP917IngredientManufacturer() const { return m_P917IngredientManufacturer.is_set(); }
  void UnsetP917IngredientManufacturer() { m_P917IngredientManufacturer.unset(); }

  /// Extension: registration of the ingredient. Attribute "P917_ingredientRegistration", optional; at most 32
  /// characters.
  lmx::elmx_error SetP917IngredientRegistration(std::string const& value) { return m_P917IngredientRegistration.set(value); }
  std::string const& GetP917IngredientRegistration() const { return m_P917IngredientRegistration.get(); }
  bool IssetP917IngredientRegistration() const { return m_P917IngredientRegistration.is_set(); }
  void UnsetP917IngredientRegistration() { m_P917IngredientRegistration.unset(); }

  /// Extension: composition of the ingredient. Attribute "P917_ingredientComposition", optional; at most 330
  /// characters.
  lmx::elmx_error SetP917IngredientComposition(std::string const& value) { return m_P917IngredientComposition.set(value); }
  std::string const& GetP917IngredientComposition() const { return m_P917IngredientComposition.get(); }
  bool IssetP917IngredientComposition() const { return m_P917IngredientComposition.is_set(); }
  void UnsetP917IngredientComposition() { m_P917IngredientComposition.unset(); }

  /// Extension: free notes on the ingredient. Attribute "P917_ingredientNotes", optional; at most 330
  /// characters.
  lmx::elmx_error SetP917IngredientNotes(std::string const& value) { return m_P917IngredientNotes.set(value); }
  std::string const& GetP917IngredientNotes() const { return m_P917IngredientNotes.get(); }
  bool IssetP917IngredientNotes() const { return m_P917IngredientNotes.is_set(); }
  void UnsetP917IngredientNotes() { m_P917IngredientNotes.unset(); }

  /// The children, in document order. The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  InnerProduct const& GetInnerProduct(std::size_t index) const;
  InnerProduct& GetInnerProduct(std::size_t index);
  InnerProduct& AppendInnerProduct();
  void AppendInnerProduct(InnerProduct* value);
  InnerProduct& InsertInnerProduct(std::size_t index);
  void InsertInnerProduct(std::size_t index, InnerProduct* value);
  void AssignInnerProduct(std::size_t index, InnerProduct const& value);
  void AssignInnerProduct(std::size_t index, InnerProduct* value);
  InnerProduct& BackInnerProduct();
  void DeleteInnerProduct(std::size_t index);
  void ClearInnerProduct();
  std::size_t SizeInnerProduct() const;

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
  lmx::ct_simple_pod_optional<std::string> m_ProductGroupIdRef;
  lmx::ct_simple_pod_optional<std::string> m_ValuePresentationIdRef;
  lmx::ct_simple_pod_optional<lmx::c_binary> m_QuantityDDI;
  lmx::ct_simple_pod_optional<std::string> m_Type;
  lmx::ct_simple_pod_optional<unsigned int> m_MixtureRecipeQuantity;
  lmx::ct_simple_pod_optional<unsigned int> m_DensityMassPerVolume;
  lmx::ct_simple_pod_optional<unsigned int> m_DensityMassPerCount;
  lmx::ct_simple_pod_optional<unsigned int> m_DensityVolumePerCount;
  lmx::ct_simple_pod_optional<std::string> m_P917IngredientManufacturer;
  lmx::ct_simple_pod_optional<std::string> m_P917IngredientRegistration;
  lmx::ct_simple_pod_optional<std::string> m_P917IngredientComposition;
  lmx::ct_simple_pod_optional<std::string> m_P917IngredientNotes;
  lmx::ct_complex_multi<InnerProduct> mInnerProduct;
};

/// ProductGroup, element "PGP". Groups products of one kind.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API ProductGroup {
 public:
  ProductGroup();
  ProductGroup(ProductGroup const& other);
  /// Leaves `other` behind like a new object.
  ProductGroup(ProductGroup&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  ProductGroup(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual ProductGroup* clone() const;
  virtual ~ProductGroup();
  /// Deep; when copying fails the target is unchanged.
  ProductGroup& operator=(ProductGroup const& other);
  ProductGroup& operator=(ProductGroup&& other) noexcept;
  void swap(ProductGroup& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Identifier of the product group, unique within the transfer set. Attribute "A", required; 4 to 14
  /// characters, pattern (PGP|PGP-)([0-9])+.
  lmx::elmx_error SetId(std::string const& value) { return m_Id.set(value); }
  std::string const& GetId() const { return m_Id.get(); }
  bool IssetId() const { return m_Id.is_set(); }
  void UnsetId() { m_Id.unset(); }

  /// Name shown to the operator. Attribute "B", required; at most 32 characters.
  lmx::elmx_error SetDesignator(std::string const& value) { return m_Designator.set(value); }
  std::string const& GetDesignator() const { return m_Designator.get(); }
  bool IssetDesignator() const { return m_Designator.is_set(); }
  void UnsetDesignator() { m_Designator.unset(); }

  /// Kind of group: 1 product group, 2 crop type. Attribute "C", optional; one of "1", "2".
  lmx::elmx_error SetType(std::string const& value) { return m_Type.set(value); }
  std::string const& GetType() const { return m_Type.get(); }
  bool IssetType() const { return m_Type.is_set(); }
  void UnsetType() { m_Type.unset(); }
  /// Its code; 0 when the text is none of the list.
  elmx_enums GetenumType() const;
  /// Stores the text of `code`. False, and no change, for a code of another list.
  bool SetenumType(elmx_enums code);

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
  lmx::ct_simple_pod_optional<std::string> m_Type;
};

/// ProductRelation, element "PRN". One part of a mixture: a product and how much of it the recipe contains.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API ProductRelation {
 public:
  ProductRelation();
  ProductRelation(ProductRelation const& other);
  /// Leaves `other` behind like a new object.
  ProductRelation(ProductRelation&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  ProductRelation(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual ProductRelation* clone() const;
  virtual ~ProductRelation();
  /// Deep; when copying fails the target is unchanged.
  ProductRelation& operator=(ProductRelation const& other);
  ProductRelation& operator=(ProductRelation&& other) noexcept;
  void swap(ProductRelation& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Product that is part of the mixture. Attribute "A", required; 4 to 14 characters, pattern
  /// (PDT|PDT-)([0-9])+.
  lmx::elmx_error SetProductIdRef(std::string const& value) { return m_ProductIdRef.set(value); }
  std::string const& GetProductIdRef() const { return m_ProductIdRef.get(); }
  bool IssetProductIdRef() const { return m_ProductIdRef.is_set(); }
  void UnsetProductIdRef() { m_ProductIdRef.unset(); }

  /// Amount of the part in the recipe, in the unit of its product's quantity DDI. Attribute "B", required; 0
  /// to 2147483647.
  lmx::elmx_error SetQuantityValue(unsigned int const& value) { return m_QuantityValue.set(value); }
  unsigned int const& GetQuantityValue() const { return m_QuantityValue.get(); }
  bool IssetQuantityValue() const { return m_QuantityValue.is_set(); }
  void UnsetQuantityValue() { m_QuantityValue.unset(); }

  /// Extension: value presentation for the amount. Attribute "P917_vpn", optional; 4 to 14 characters,
  /// pattern (VPN|VPN-)([0-9])+.
  lmx::elmx_error SetP917Vpn(std::string const& value) { return m_P917Vpn.set(value); }
  std::string const& GetP917Vpn() const { return m_P917Vpn.get(); }
  bool IssetP917Vpn() const { return m_P917Vpn.is_set(); }
  void UnsetP917Vpn() { m_P917Vpn.unset(); }

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
  lmx::ct_simple_pod_single<std::string> m_ProductIdRef;
  lmx::ct_simple_pod_single<unsigned int> m_QuantityValue;
  lmx::ct_simple_pod_optional<std::string> m_P917Vpn;
};

/// ValuePresentation, element "VPN". Tells how integer process data is shown: display value = (raw value +
/// offset) * scale.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API ValuePresentation {
 public:
  ValuePresentation();
  ValuePresentation(ValuePresentation const& other);
  /// Leaves `other` behind like a new object.
  ValuePresentation(ValuePresentation&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  ValuePresentation(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual ValuePresentation* clone() const;
  virtual ~ValuePresentation();
  /// Deep; when copying fails the target is unchanged.
  ValuePresentation& operator=(ValuePresentation const& other);
  ValuePresentation& operator=(ValuePresentation&& other) noexcept;
  void swap(ValuePresentation& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Identifier of the value presentation, unique within the transfer set. Attribute "A", required; 4 to 14
  /// characters, pattern (VPN|VPN-)([0-9])+.
  lmx::elmx_error SetId(std::string const& value) { return m_Id.set(value); }
  std::string const& GetId() const { return m_Id.get(); }
  bool IssetId() const { return m_Id.is_set(); }
  void UnsetId() { m_Id.unset(); }

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

  /// Colour legend that gives colours to the values. Attribute "F", optional; 4 to 14 characters, pattern
  /// (CLD|CLD-)([0-9])+.
  lmx::elmx_error SetColourLegendIdRef(std::string const& value) { return m_ColourLegendIdRef.set(value); }
  std::string const& GetColourLegendIdRef() const { return m_ColourLegendIdRef.get(); }
  bool IssetColourLegendIdRef() const { return m_ColourLegendIdRef.is_set(); }
  void UnsetColourLegendIdRef() { m_ColourLegendIdRef.unset(); }

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
  lmx::ct_simple_pod_single<int> m_Offset;
  lmx::ct_simple_pod_single<velmo::lmx::high_precision_c_decimal> m_Scale;
  lmx::ct_simple_pod_single<unsigned char> m_NumberOfDecimals;
  lmx::ct_simple_pod_optional<std::string> m_UnitDesignator;
  lmx::ct_simple_pod_optional<std::string> m_ColourLegendIdRef;
};

/// A stretch of the children of `CropType`: one unbroken run of like siblings, or one child, as `chosen`
/// tells. It has no XML element of its own.
class ISOXML_API InnerCropType {
 public:
  /// The alternatives' numbers; `chosen` is one of them.
  enum : std::int32_t {
    CropVarietyChosen = 0,
    NothingChosen = 1,
  };

  InnerCropType();
  InnerCropType(InnerCropType const& other);
  /// Leaves `other` behind like a new object.
  InnerCropType(InnerCropType&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  InnerCropType(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual InnerCropType* clone() const;
  virtual ~InnerCropType();
  /// Deep; when copying fails the target is unchanged.
  InnerCropType& operator=(InnerCropType const& other);
  InnerCropType& operator=(InnerCropType&& other) noexcept;
  void swap(InnerCropType& other) noexcept;
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

  /// Makes `CropVariety` the alternative held, with an empty run; no effect when it is already.
  void SelectCropVariety();
  /// The run of "CVT". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  CropVariety const& GetCropVariety(std::size_t index) const;
  CropVariety& GetCropVariety(std::size_t index);
  CropVariety& AppendCropVariety();
  void AppendCropVariety(CropVariety* value);
  CropVariety& InsertCropVariety(std::size_t index);
  void InsertCropVariety(std::size_t index, CropVariety* value);
  void AssignCropVariety(std::size_t index, CropVariety const& value);
  void AssignCropVariety(std::size_t index, CropVariety* value);
  CropVariety& BackCropVariety();
  void DeleteCropVariety(std::size_t index);
  void ClearCropVariety();
  std::size_t SizeCropVariety() const;

  std::int32_t chosen;

  static lmx::s_event_map const elem_event_map[];

 private:
  lmx::ct_choice m_held;
};

/// CropType, element "CTP". A kind of crop, such as wheat, with its varieties.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API CropType {
 public:
  CropType();
  CropType(CropType const& other);
  /// Leaves `other` behind like a new object.
  CropType(CropType&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  CropType(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual CropType* clone() const;
  virtual ~CropType();
  /// Deep; when copying fails the target is unchanged.
  CropType& operator=(CropType const& other);
  CropType& operator=(CropType&& other) noexcept;
  void swap(CropType& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Identifier of the crop type, unique within the transfer set. Attribute "A", required; 4 to 14
  /// characters, pattern (CTP|CTP-)([0-9])+.
  lmx::elmx_error SetId(std::string const& value) { return m_Id.set(value); }
  std::string const& GetId() const { return m_Id.get(); }
  bool IssetId() const { return m_Id.is_set(); }
  void UnsetId() { m_Id.unset(); }

  /// Name shown to the operator. Attribute "B", required; at most 32 characters.
  lmx::elmx_error SetDesignator(std::string const& value) { return m_Designator.set(value); }
  std::string const& GetDesignator() const { return m_Designator.get(); }
  bool IssetDesignator() const { return m_Designator.is_set(); }
  void UnsetDesignator() { m_Designator.unset(); }

  /// Product group that stands for the crop type. Attribute "C", optional; 4 to 14 characters, pattern
  /// (PGP|PGP-)([0-9])+.
  lmx::elmx_error SetProductGroupIdRef(std::string const& value) { return m_ProductGroupIdRef.set(value); }
  std::string const& GetProductGroupIdRef() const { return m_ProductGroupIdRef.get(); }
  bool IssetProductGroupIdRef() const { return m_ProductGroupIdRef.is_set(); }
  void UnsetProductGroupIdRef() { m_ProductGroupIdRef.unset(); }

  /// The children, in document order. The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  InnerCropType const& GetInnerCropType(std::size_t index) const;
  InnerCropType& GetInnerCropType(std::size_t index);
  InnerCropType& AppendInnerCropType();
  void AppendInnerCropType(InnerCropType* value);
  InnerCropType& InsertInnerCropType(std::size_t index);
  void InsertInnerCropType(std::size_t index, InnerCropType* value);
  void AssignInnerCropType(std::size_t index, InnerCropType const& value);
  void AssignInnerCropType(std::size_t index, InnerCropType* value);
  InnerCropType& BackInnerCropType();
  void DeleteInnerCropType(std::size_t index);
  void ClearInnerCropType();
  std::size_t SizeInnerCropType() const;

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
  lmx::ct_simple_pod_optional<std::string> m_ProductGroupIdRef;
  lmx::ct_complex_multi<InnerCropType> mInnerCropType;
};

/// CropVariety, element "CVT". A variety of the crop type that contains it.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API CropVariety {
 public:
  CropVariety();
  CropVariety(CropVariety const& other);
  /// Leaves `other` behind like a new object.
  CropVariety(CropVariety&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  CropVariety(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual CropVariety* clone() const;
  virtual ~CropVariety();
  /// Deep; when copying fails the target is unchanged.
  CropVariety& operator=(CropVariety const& other);
  CropVariety& operator=(CropVariety&& other) noexcept;
  void swap(CropVariety& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Identifier of the crop variety, unique within the transfer set. Attribute "A", required; 4 to 14
  /// characters, pattern (CVT|CVT-)([0-9])+.
  lmx::elmx_error SetId(std::string const& value) { return m_Id.set(value); }
  std::string const& GetId() const { return m_Id.get(); }
  bool IssetId() const { return m_Id.is_set(); }
  void UnsetId() { m_Id.unset(); }

  /// Name shown to the operator. Attribute "B", required; at most 32 characters.
  lmx::elmx_error SetDesignator(std::string const& value) { return m_Designator.set(value); }
  std::string const& GetDesignator() const { return m_Designator.get(); }
  bool IssetDesignator() const { return m_Designator.is_set(); }
  void UnsetDesignator() { m_Designator.unset(); }

  /// Product that stands for the variety. Attribute "C", optional; 4 to 14 characters, pattern
  /// (PDT|PDT-)([0-9])+.
  lmx::elmx_error SetProductIdRef(std::string const& value) { return m_ProductIdRef.set(value); }
  std::string const& GetProductIdRef() const { return m_ProductIdRef.get(); }
  bool IssetProductIdRef() const { return m_ProductIdRef.is_set(); }
  void UnsetProductIdRef() { m_ProductIdRef.unset(); }

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
  lmx::ct_simple_pod_optional<std::string> m_ProductIdRef;
};

/// A stretch of the children of `CulturalPractice`: one unbroken run of like siblings, or one child, as
/// `chosen` tells. It has no XML element of its own.
class ISOXML_API InnerCulturalPractice {
 public:
  /// The alternatives' numbers; `chosen` is one of them.
  enum : std::int32_t {
    OperationTechniqueReferenceChosen = 0,
    NothingChosen = 1,
  };

  InnerCulturalPractice();
  InnerCulturalPractice(InnerCulturalPractice const& other);
  /// Leaves `other` behind like a new object.
  InnerCulturalPractice(InnerCulturalPractice&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  InnerCulturalPractice(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual InnerCulturalPractice* clone() const;
  virtual ~InnerCulturalPractice();
  /// Deep; when copying fails the target is unchanged.
  InnerCulturalPractice& operator=(InnerCulturalPractice const& other);
  InnerCulturalPractice& operator=(InnerCulturalPractice&& other) noexcept;
  void swap(InnerCulturalPractice& other) noexcept;
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

  /// Makes `OperationTechniqueReference` the alternative held, with an empty run; no effect when it is already.
  void SelectOperationTechniqueReference();
  /// The run of "OTR". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  OperationTechniqueReference const& GetOperationTechniqueReference(std::size_t index) const;
  OperationTechniqueReference& GetOperationTechniqueReference(std::size_t index);
  OperationTechniqueReference& AppendOperationTechniqueReference();
  void AppendOperationTechniqueReference(OperationTechniqueReference* value);
  OperationTechniqueReference& InsertOperationTechniqueReference(std::size_t index);
  void InsertOperationTechniqueReference(std::size_t index, OperationTechniqueReference* value);
  void AssignOperationTechniqueReference(std::size_t index, OperationTechniqueReference const& value);
  void AssignOperationTechniqueReference(std::size_t index, OperationTechniqueReference* value);
  OperationTechniqueReference& BackOperationTechniqueReference();
  void DeleteOperationTechniqueReference(std::size_t index);
  void ClearOperationTechniqueReference();
  std::size_t SizeOperationTechniqueReference() const;

  std::int32_t chosen;

  static lmx::s_event_map const elem_event_map[];

 private:
  lmx::ct_choice m_held;
};

/// CulturalPractice, element "CPC". A kind of field work, such as sowing or harvesting, with the techniques
/// that suit it.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API CulturalPractice {
 public:
  CulturalPractice();
  CulturalPractice(CulturalPractice const& other);
  /// Leaves `other` behind like a new object.
  CulturalPractice(CulturalPractice&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  CulturalPractice(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual CulturalPractice* clone() const;
  virtual ~CulturalPractice();
  /// Deep; when copying fails the target is unchanged.
  CulturalPractice& operator=(CulturalPractice const& other);
  CulturalPractice& operator=(CulturalPractice&& other) noexcept;
  void swap(CulturalPractice& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Identifier of the cultural practice, unique within the transfer set. Attribute "A", required; 4 to 14
  /// characters, pattern (CPC|CPC-)([0-9])+.
  lmx::elmx_error SetId(std::string const& value) { return m_Id.set(value); }
  std::string const& GetId() const { return m_Id.get(); }
  bool IssetId() const { return m_Id.is_set(); }
  void UnsetId() { m_Id.unset(); }

  /// Name shown to the operator. Attribute "B", required; at most 32 characters.
  lmx::elmx_error SetDesignator(std::string const& value) { return m_Designator.set(value); }
  std::string const& GetDesignator() const { return m_Designator.get(); }
  bool IssetDesignator() const { return m_Designator.is_set(); }
  void UnsetDesignator() { m_Designator.unset(); }

  /// The children, in document order. The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  InnerCulturalPractice const& GetInnerCulturalPractice(std::size_t index) const;
  InnerCulturalPractice& GetInnerCulturalPractice(std::size_t index);
  InnerCulturalPractice& AppendInnerCulturalPractice();
  void AppendInnerCulturalPractice(InnerCulturalPractice* value);
  InnerCulturalPractice& InsertInnerCulturalPractice(std::size_t index);
  void InsertInnerCulturalPractice(std::size_t index, InnerCulturalPractice* value);
  void AssignInnerCulturalPractice(std::size_t index, InnerCulturalPractice const& value);
  void AssignInnerCulturalPractice(std::size_t index, InnerCulturalPractice* value);
  InnerCulturalPractice& BackInnerCulturalPractice();
  void DeleteInnerCulturalPractice(std::size_t index);
  void ClearInnerCulturalPractice();
  std::size_t SizeInnerCulturalPractice() const;

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
  lmx::ct_complex_multi<InnerCulturalPractice> mInnerCulturalPractice;
};

/// OperationTechnique, element "OTQ". A technique by which a cultural practice is carried out.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API OperationTechnique {
 public:
  OperationTechnique();
  OperationTechnique(OperationTechnique const& other);
  /// Leaves `other` behind like a new object.
  OperationTechnique(OperationTechnique&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  OperationTechnique(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual OperationTechnique* clone() const;
  virtual ~OperationTechnique();
  /// Deep; when copying fails the target is unchanged.
  OperationTechnique& operator=(OperationTechnique const& other);
  OperationTechnique& operator=(OperationTechnique&& other) noexcept;
  void swap(OperationTechnique& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Identifier of the operation technique, unique within the transfer set. Attribute "A", required; 4 to 14
  /// characters, pattern (OTQ|OTQ-)([0-9])+.
  lmx::elmx_error SetId(std::string const& value) { return m_Id.set(value); }
  std::string const& GetId() const { return m_Id.get(); }
  bool IssetId() const { return m_Id.is_set(); }
  void UnsetId() { m_Id.unset(); }

  /// Name shown to the operator. Attribute "B", required; at most 32 characters.
  lmx::elmx_error SetDesignator(std::string const& value) { return m_Designator.set(value); }
  std::string const& GetDesignator() const { return m_Designator.get(); }
  bool IssetDesignator() const { return m_Designator.is_set(); }
  void UnsetDesignator() { m_Designator.unset(); }

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
};

/// OperationTechniqueReference, element "OTR". Lists one operation technique under a cultural practice.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API OperationTechniqueReference {
 public:
  OperationTechniqueReference();
  OperationTechniqueReference(OperationTechniqueReference const& other);
  /// Leaves `other` behind like a new object.
  OperationTechniqueReference(OperationTechniqueReference&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  OperationTechniqueReference(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual OperationTechniqueReference* clone() const;
  virtual ~OperationTechniqueReference();
  /// Deep; when copying fails the target is unchanged.
  OperationTechniqueReference& operator=(OperationTechniqueReference const& other);
  OperationTechniqueReference& operator=(OperationTechniqueReference&& other) noexcept;
  void swap(OperationTechniqueReference& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Operation technique that can be used for the practice. Attribute "A", required; 4 to 14 characters,
  /// pattern (OTQ|OTQ-)([0-9])+.
  lmx::elmx_error SetOperationTechniqueIdRef(std::string const& value) { return m_OperationTechniqueIdRef.set(value); }
  std::string const& GetOperationTechniqueIdRef() const { return m_OperationTechniqueIdRef.get(); }
  bool IssetOperationTechniqueIdRef() const { return m_OperationTechniqueIdRef.is_set(); }
  void UnsetOperationTechniqueIdRef() { m_OperationTechniqueIdRef.unset(); }

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
  lmx::ct_simple_pod_single<std::string> m_OperationTechniqueIdRef;
};

/// A stretch of the children of `CodedComment`: one unbroken run of like siblings, or one child, as `chosen`
/// tells. It has no XML element of its own.
class ISOXML_API InnerCodedComment {
 public:
  /// The alternatives' numbers; `chosen` is one of them.
  enum : std::int32_t {
    CodedCommentListValueChosen = 0,
    NothingChosen = 1,
  };

  InnerCodedComment();
  InnerCodedComment(InnerCodedComment const& other);
  /// Leaves `other` behind like a new object.
  InnerCodedComment(InnerCodedComment&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  InnerCodedComment(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual InnerCodedComment* clone() const;
  virtual ~InnerCodedComment();
  /// Deep; when copying fails the target is unchanged.
  InnerCodedComment& operator=(InnerCodedComment const& other);
  InnerCodedComment& operator=(InnerCodedComment&& other) noexcept;
  void swap(InnerCodedComment& other) noexcept;
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

  /// Makes `CodedCommentListValue` the alternative held, with an empty run; no effect when it is already.
  void SelectCodedCommentListValue();
  /// The run of "CCL". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  CodedCommentListValue const& GetCodedCommentListValue(std::size_t index) const;
  CodedCommentListValue& GetCodedCommentListValue(std::size_t index);
  CodedCommentListValue& AppendCodedCommentListValue();
  void AppendCodedCommentListValue(CodedCommentListValue* value);
  CodedCommentListValue& InsertCodedCommentListValue(std::size_t index);
  void InsertCodedCommentListValue(std::size_t index, CodedCommentListValue* value);
  void AssignCodedCommentListValue(std::size_t index, CodedCommentListValue const& value);
  void AssignCodedCommentListValue(std::size_t index, CodedCommentListValue* value);
  CodedCommentListValue& BackCodedCommentListValue();
  void DeleteCodedCommentListValue(std::size_t index);
  void ClearCodedCommentListValue();
  std::size_t SizeCodedCommentListValue() const;

  std::int32_t chosen;

  static lmx::s_event_map const elem_event_map[];

 private:
  lmx::ct_choice m_held;
};

/// CodedComment, element "CCT". A prepared comment that the operator picks instead of typing text.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API CodedComment {
 public:
  CodedComment();
  CodedComment(CodedComment const& other);
  /// Leaves `other` behind like a new object.
  CodedComment(CodedComment&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  CodedComment(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual CodedComment* clone() const;
  virtual ~CodedComment();
  /// Deep; when copying fails the target is unchanged.
  CodedComment& operator=(CodedComment const& other);
  CodedComment& operator=(CodedComment&& other) noexcept;
  void swap(CodedComment& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Identifier of the coded comment, unique within the transfer set. Attribute "A", required; 4 to 14
  /// characters, pattern (CCT|CCT-)([0-9])+.
  lmx::elmx_error SetId(std::string const& value) { return m_Id.set(value); }
  std::string const& GetId() const { return m_Id.get(); }
  bool IssetId() const { return m_Id.is_set(); }
  void UnsetId() { m_Id.unset(); }

  /// Text of the comment or of its list of values, as shown to the operator. Attribute "B", required; at most
  /// 32 characters.
  lmx::elmx_error SetDesignator(std::string const& value) { return m_Designator.set(value); }
  std::string const& GetDesignator() const { return m_Designator.get(); }
  bool IssetDesignator() const { return m_Designator.is_set(); }
  void UnsetDesignator() { m_Designator.unset(); }

  /// How far the comment applies: 1 at a point, 2 for the whole task, 3 continuously until ended. Attribute
  /// "C", required; one of "1", "2", "3".
  lmx::elmx_error SetScope(std::string const& value) { return m_Scope.set(value); }
  std::string const& GetScope() const { return m_Scope.get(); }
  bool IssetScope() const { return m_Scope.is_set(); }
  void UnsetScope() { m_Scope.unset(); }
  /// Its code; 0 when the text is none of the list.
  elmx_enums GetenumScope() const;
  /// Stores the text of `code`. False, and no change, for a code of another list.
  bool SetenumScope(elmx_enums code);

  /// Group that the comment belongs to. Attribute "D", optional; 4 to 14 characters, pattern
  /// (CCG|CCG-)([0-9])+.
  lmx::elmx_error SetCodedCommentGroupIdRef(std::string const& value) { return m_CodedCommentGroupIdRef.set(value); }
  std::string const& GetCodedCommentGroupIdRef() const { return m_CodedCommentGroupIdRef.get(); }
  bool IssetCodedCommentGroupIdRef() const { return m_CodedCommentGroupIdRef.is_set(); }
  void UnsetCodedCommentGroupIdRef() { m_CodedCommentGroupIdRef.unset(); }

  /// The children, in document order. The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  InnerCodedComment const& GetInnerCodedComment(std::size_t index) const;
  InnerCodedComment& GetInnerCodedComment(std::size_t index);
  InnerCodedComment& AppendInnerCodedComment();
  void AppendInnerCodedComment(InnerCodedComment* value);
  InnerCodedComment& InsertInnerCodedComment(std::size_t index);
  void InsertInnerCodedComment(std::size_t index, InnerCodedComment* value);
  void AssignInnerCodedComment(std::size_t index, InnerCodedComment const& value);
  void AssignInnerCodedComment(std::size_t index, InnerCodedComment* value);
  InnerCodedComment& BackInnerCodedComment();
  void DeleteInnerCodedComment(std::size_t index);
  void ClearInnerCodedComment();
  std::size_t SizeInnerCodedComment() const;

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
  lmx::ct_simple_pod_single<std::string> m_Scope;
  lmx::ct_simple_pod_optional<std::string> m_CodedCommentGroupIdRef;
  lmx::ct_complex_multi<InnerCodedComment> mInnerCodedComment;
};

/// CoddedCommentGroup, element "CCG". Groups coded comments so that they are offered together.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API CoddedCommentGroup {
 public:
  CoddedCommentGroup();
  CoddedCommentGroup(CoddedCommentGroup const& other);
  /// Leaves `other` behind like a new object.
  CoddedCommentGroup(CoddedCommentGroup&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  CoddedCommentGroup(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual CoddedCommentGroup* clone() const;
  virtual ~CoddedCommentGroup();
  /// Deep; when copying fails the target is unchanged.
  CoddedCommentGroup& operator=(CoddedCommentGroup const& other);
  CoddedCommentGroup& operator=(CoddedCommentGroup&& other) noexcept;
  void swap(CoddedCommentGroup& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Identifier of the comment group, unique within the transfer set. Attribute "A", required; 4 to 14
  /// characters, pattern (CCG|CCG-)([0-9])+.
  lmx::elmx_error SetId(std::string const& value) { return m_Id.set(value); }
  std::string const& GetId() const { return m_Id.get(); }
  bool IssetId() const { return m_Id.is_set(); }
  void UnsetId() { m_Id.unset(); }

  /// Name shown to the operator. Attribute "B", required; at most 32 characters.
  lmx::elmx_error SetDesignator(std::string const& value) { return m_Designator.set(value); }
  std::string const& GetDesignator() const { return m_Designator.get(); }
  bool IssetDesignator() const { return m_Designator.is_set(); }
  void UnsetDesignator() { m_Designator.unset(); }

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
};

/// CodedCommentListValue, element "CCL". One of the values among which the operator chooses for a coded
/// comment.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API CodedCommentListValue {
 public:
  CodedCommentListValue();
  CodedCommentListValue(CodedCommentListValue const& other);
  /// Leaves `other` behind like a new object.
  CodedCommentListValue(CodedCommentListValue&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  CodedCommentListValue(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual CodedCommentListValue* clone() const;
  virtual ~CodedCommentListValue();
  /// Deep; when copying fails the target is unchanged.
  CodedCommentListValue& operator=(CodedCommentListValue const& other);
  CodedCommentListValue& operator=(CodedCommentListValue&& other) noexcept;
  void swap(CodedCommentListValue& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Identifier of the list value, unique within the transfer set. Attribute "A", required; 4 to 14
  /// characters, pattern (CCL|CCL-)([0-9])+.
  lmx::elmx_error SetId(std::string const& value) { return m_Id.set(value); }
  std::string const& GetId() const { return m_Id.get(); }
  bool IssetId() const { return m_Id.is_set(); }
  void UnsetId() { m_Id.unset(); }

  /// Text of the value as shown to the operator. Attribute "B", required; at most 32 characters.
  lmx::elmx_error SetDesignator(std::string const& value) { return m_Designator.set(value); }
  std::string const& GetDesignator() const { return m_Designator.get(); }
  bool IssetDesignator() const { return m_Designator.is_set(); }
  void UnsetDesignator() { m_Designator.unset(); }

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
};

/// A stretch of the children of `ColourLegend`: one unbroken run of like siblings, or one child, as `chosen`
/// tells. It has no XML element of its own.
class ISOXML_API InnerColourLegend {
 public:
  /// The alternatives' numbers; `chosen` is one of them.
  enum : std::int32_t {
    ColourRangeChosen = 0,
    NothingChosen = 1,
  };

  InnerColourLegend();
  InnerColourLegend(InnerColourLegend const& other);
  /// Leaves `other` behind like a new object.
  InnerColourLegend(InnerColourLegend&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  InnerColourLegend(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual InnerColourLegend* clone() const;
  virtual ~InnerColourLegend();
  /// Deep; when copying fails the target is unchanged.
  InnerColourLegend& operator=(InnerColourLegend const& other);
  InnerColourLegend& operator=(InnerColourLegend&& other) noexcept;
  void swap(InnerColourLegend& other) noexcept;
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

  /// Makes `ColourRange` the alternative held, with an empty run; no effect when it is already.
  void SelectColourRange();
  /// The run of "CRG". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  ColourRange const& GetColourRange(std::size_t index) const;
  ColourRange& GetColourRange(std::size_t index);
  ColourRange& AppendColourRange();
  void AppendColourRange(ColourRange* value);
  ColourRange& InsertColourRange(std::size_t index);
  void InsertColourRange(std::size_t index, ColourRange* value);
  void AssignColourRange(std::size_t index, ColourRange const& value);
  void AssignColourRange(std::size_t index, ColourRange* value);
  ColourRange& BackColourRange();
  void DeleteColourRange(std::size_t index);
  void ClearColourRange();
  std::size_t SizeColourRange() const;

  std::int32_t chosen;

  static lmx::s_event_map const elem_event_map[];

 private:
  lmx::ct_choice m_held;
};

/// ColourLegend, element "CLD". Assigns colours to ranges of values.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API ColourLegend {
 public:
  ColourLegend();
  ColourLegend(ColourLegend const& other);
  /// Leaves `other` behind like a new object.
  ColourLegend(ColourLegend&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  ColourLegend(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual ColourLegend* clone() const;
  virtual ~ColourLegend();
  /// Deep; when copying fails the target is unchanged.
  ColourLegend& operator=(ColourLegend const& other);
  ColourLegend& operator=(ColourLegend&& other) noexcept;
  void swap(ColourLegend& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Identifier of the colour legend, unique within the transfer set. Attribute "A", required; 4 to 14
  /// characters, pattern (CLD|CLD-)([0-9])+.
  lmx::elmx_error SetId(std::string const& value) { return m_Id.set(value); }
  std::string const& GetId() const { return m_Id.get(); }
  bool IssetId() const { return m_Id.is_set(); }
  void UnsetId() { m_Id.unset(); }

  /// Colour of values that no range covers, as an index into the colour table of ISO 11783-6. Attribute "B",
  /// optional; 0 to 254.
  lmx::elmx_error SetDefaultColour(unsigned char const& value) { return m_DefaultColour.set(value); }
  unsigned char const& GetDefaultColour() const { return m_DefaultColour.get(); }
  bool IssetDefaultColour() const { return m_DefaultColour.is_set(); }
  void UnsetDefaultColour() { m_DefaultColour.unset(); }

  /// The children, in document order. The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  InnerColourLegend const& GetInnerColourLegend(std::size_t index) const;
  InnerColourLegend& GetInnerColourLegend(std::size_t index);
  InnerColourLegend& AppendInnerColourLegend();
  void AppendInnerColourLegend(InnerColourLegend* value);
  InnerColourLegend& InsertInnerColourLegend(std::size_t index);
  void InsertInnerColourLegend(std::size_t index, InnerColourLegend* value);
  void AssignInnerColourLegend(std::size_t index, InnerColourLegend const& value);
  void AssignInnerColourLegend(std::size_t index, InnerColourLegend* value);
  InnerColourLegend& BackInnerColourLegend();
  void DeleteInnerColourLegend(std::size_t index);
  void ClearInnerColourLegend();
  std::size_t SizeInnerColourLegend() const;

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
  lmx::ct_simple_pod_optional<unsigned char> m_DefaultColour;
  lmx::ct_complex_multi<InnerColourLegend> mInnerColourLegend;
};

/// ColourRange, element "CRG". One range of values in a colour legend and the colour of these values.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API ColourRange {
 public:
  ColourRange();
  ColourRange(ColourRange const& other);
  /// Leaves `other` behind like a new object.
  ColourRange(ColourRange&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  ColourRange(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual ColourRange* clone() const;
  virtual ~ColourRange();
  /// Deep; when copying fails the target is unchanged.
  ColourRange& operator=(ColourRange const& other);
  ColourRange& operator=(ColourRange&& other) noexcept;
  void swap(ColourRange& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Lower end of the range, as a raw value. Attribute "A", required; -2147483647 to 2147483647.
  lmx::elmx_error SetMinimumValue(int const& value) { return m_MinimumValue.set(value); }
  int const& GetMinimumValue() const { return m_MinimumValue.get(); }
  bool IssetMinimumValue() const { return m_MinimumValue.is_set(); }
  void UnsetMinimumValue() { m_MinimumValue.unset(); }

  /// Upper end of the range, as a raw value. Attribute "B", required; -2147483647 to 2147483647.
  lmx::elmx_error SetMaximumValue(int const& value) { return m_MaximumValue.set(value); }
  int const& GetMaximumValue() const { return m_MaximumValue.get(); }
  bool IssetMaximumValue() const { return m_MaximumValue.is_set(); }
  void UnsetMaximumValue() { m_MaximumValue.unset(); }

  /// Colour of the range, as an index into the colour table of ISO 11783-6. Attribute "C", required; 0 to
  /// 254.
  lmx::elmx_error SetColour(unsigned char const& value) { return m_Colour.set(value); }
  unsigned char const& GetColour() const { return m_Colour.get(); }
  bool IssetColour() const { return m_Colour.is_set(); }
  void UnsetColour() { m_Colour.unset(); }

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
  lmx::ct_simple_pod_single<int> m_MinimumValue;
  lmx::ct_simple_pod_single<int> m_MaximumValue;
  lmx::ct_simple_pod_single<unsigned char> m_Colour;
};
