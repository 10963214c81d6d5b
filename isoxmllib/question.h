// clang-format off
// Generated from schema/question.toml. Edit the schema, then build the target `schema`.

#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "GenLibrarySupportFiles/lmxinternals/api.h"
#include "GenLibrarySupportFiles/lmxinternals/check_tracker.h"
#include "GenLibrarySupportFiles/lmxinternals/choice.h"
#include "GenLibrarySupportFiles/lmxinternals/containers.h"
#include "GenLibrarySupportFiles/lmxparse/c_xml_reader.h"
#include "isoxmllib/enums.h"
#include "isoxmllib/fwd.h"

/// P917Questions, element "P917_Questions". Extension that holds the questions put to the operator.
class ISOXML_API P917Questions {
 public:
  P917Questions();
  P917Questions(P917Questions const& other);
  /// Leaves `other` behind like a new object.
  P917Questions(P917Questions&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  P917Questions(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual P917Questions* clone() const;
  virtual ~P917Questions();
  /// Deep; when copying fails the target is unchanged.
  P917Questions& operator=(P917Questions const& other);
  P917Questions& operator=(P917Questions&& other) noexcept;
  void swap(P917Questions& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// The children, in document order. The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  P917Question const& GetP917Question(std::size_t index) const;
  P917Question& GetP917Question(std::size_t index);
  P917Question& AppendP917Question();
  void AppendP917Question(P917Question* value);
  P917Question& InsertP917Question(std::size_t index);
  void InsertP917Question(std::size_t index, P917Question* value);
  void AssignP917Question(std::size_t index, P917Question const& value);
  void AssignP917Question(std::size_t index, P917Question* value);
  P917Question& BackP917Question();
  void DeleteP917Question(std::size_t index);
  void ClearP917Question();
  std::size_t SizeP917Question() const;

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
  lmx::ct_complex_multi<P917Question> mP917Question;
};

/// P917Question, element "P917_Question". Extension: one question to the operator, with its reply and the
/// options to choose from.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API P917Question {
 public:
  P917Question();
  P917Question(P917Question const& other);
  /// Leaves `other` behind like a new object.
  P917Question(P917Question&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  P917Question(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual P917Question* clone() const;
  virtual ~P917Question();
  /// Deep; when copying fails the target is unchanged.
  P917Question& operator=(P917Question const& other);
  P917Question& operator=(P917Question&& other) noexcept;
  void swap(P917Question& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Extension: UUID that identifies the question. Attribute "P917_Uuid", required; pattern
  /// [a-fA-F0-9]{8}-[a-fA-F0-9]{4}-[a-fA-F0-9]{4}-[a-fA-F0-9]{4}-[a-fA-F0-9]{12}.
  lmx::elmx_error SetUuid(std::string const& value) { return m_Uuid.set(value); }
  std::string const& GetUuid() const { return m_Uuid.get(); }
  bool IssetUuid() const { return m_Uuid.is_set(); }
  void UnsetUuid() { m_Uuid.unset(); }

  /// Extension: type of the answer, such as boolean, string or list. Attribute "P917_ReplyType", required;
  /// pattern boolean|string|datetime|integer|decimal|list.
  lmx::elmx_error SetReplyType(std::string const& value) { return m_ReplyType.set(value); }
  std::string const& GetReplyType() const { return m_ReplyType.get(); }
  bool IssetReplyType() const { return m_ReplyType.is_set(); }
  void UnsetReplyType() { m_ReplyType.unset(); }

  /// Extension: true if the question has to be answered. Attribute "P917_Required", optional.
  lmx::elmx_error SetRequired(bool const& value) { return m_Required.set(value); }
  bool const& GetRequired() const { return m_Required.get(); }
  bool IssetRequired() const { return m_Required.is_set(); }
  void UnsetRequired() { m_Required.unset(); }

  /// Extension: text of the question as shown to the operator. Element "P917_Prompt", required.
  lmx::elmx_error SetPrompt(std::string const& value) { return m_Prompt.set(value); }
  std::string const& GetPrompt() const { return m_Prompt.get(); }
  bool IssetPrompt() const { return m_Prompt.is_set(); }
  void UnsetPrompt() { m_Prompt.unset(); }

  /// Extension: the operator's answer as text. Element "P917_Reply", optional.
  lmx::elmx_error SetReply(std::string const& value) { return m_Reply.set(value); }
  std::string const& GetReply() const { return m_Reply.get(); }
  bool IssetReply() const { return m_Reply.is_set(); }
  void UnsetReply() { m_Reply.unset(); }

  /// Extension: one of the answers among which the operator can choose. Element "P917_Option", repeated.
  std::string const& GetOption(std::size_t index) const { LMX_ASSERT(index < m_Option.size()); return m_Option[index]; }
  lmx::elmx_error SetOption(std::size_t index, std::string const& value) { LMX_ASSERT(index < m_Option.size()); m_Option[index] = value; return lmx::ELMX_OK; }
  void AppendOption(std::string const& value) { m_Option.append(new std::string(value)); }
  void InsertOption(std::size_t index, std::string const& value) { LMX_ASSERT(index <= m_Option.size()); m_Option.insert(index, new std::string(value)); }
  void DeleteOption(std::size_t index) { LMX_ASSERT(index < m_Option.size()); m_Option.erase(index); }
  void ClearOption() { m_Option.clear(); }
  std::size_t SizeOption() const { return m_Option.size(); }
  std::string const& BackOption() const { LMX_ASSERT(!m_Option.empty()); return m_Option[m_Option.size() - 1]; }

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
  lmx::ct_simple_pod_single<std::string> m_Uuid;
  lmx::ct_simple_pod_single<std::string> m_ReplyType;
  lmx::ct_simple_pod_optional<bool> m_Required;
  lmx::ct_simple_pod_single<std::string> m_Prompt;
  lmx::ct_simple_pod_optional<std::string> m_Reply;
  lmx::ct_simple_pod_multi<std::string> m_Option;
};

/// P917Comment, element "P917_comment". Extension: a free-text comment on a task, held as the text of the
/// element.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API P917Comment {
 public:
  P917Comment();
  P917Comment(P917Comment const& other);
  /// Leaves `other` behind like a new object.
  P917Comment(P917Comment&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  P917Comment(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual P917Comment* clone() const;
  virtual ~P917Comment();
  /// Deep; when copying fails the target is unchanged.
  P917Comment& operator=(P917Comment const& other);
  P917Comment& operator=(P917Comment&& other) noexcept;
  void swap(P917Comment& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Extension: text of the comment. The text of the element.
  lmx::elmx_error SetP917Comment(std::string const& value) { return m_P917Comment.set(value); }
  std::string const& GetP917Comment() const { return m_P917Comment.get(); }
  bool IssetP917Comment() const { return m_P917Comment.is_set(); }
  void UnsetP917Comment() { m_P917Comment.unset(); }

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
  lmx::ct_simple_pod_single<std::string> m_P917Comment;
};
