// clang-format off
// Generated from schema/task.toml. Edit the schema, then build the target `schema`.

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

/// A stretch of the children of `Shelf`: one unbroken run of like siblings, or one child, as `chosen` tells.
/// It has no XML element of its own.
class ISOXML_API InnerShelf {
 public:
  /// The alternatives' numbers; `chosen` is one of them.
  enum : std::int32_t {
    BookChosen = 0,
    NothingChosen = 1,
  };

  InnerShelf();
  InnerShelf(InnerShelf const& other);
  /// Leaves `other` behind like a new object.
  InnerShelf(InnerShelf&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  InnerShelf(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual InnerShelf* clone() const;
  virtual ~InnerShelf();
  /// Deep; when copying fails the target is unchanged.
  InnerShelf& operator=(InnerShelf const& other);
  InnerShelf& operator=(InnerShelf&& other) noexcept;
  void swap(InnerShelf& other) noexcept;
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

  /// Makes `Book` the alternative held, with an empty run; no effect when it is already.
  void SelectBook();
  /// The run of "BOK". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  Book const& GetBook(std::size_t index) const;
  Book& GetBook(std::size_t index);
  Book& AppendBook();
  void AppendBook(Book* value);
  Book& InsertBook(std::size_t index);
  void InsertBook(std::size_t index, Book* value);
  void AssignBook(std::size_t index, Book const& value);
  void AssignBook(std::size_t index, Book* value);
  Book& BackBook();
  void DeleteBook(std::size_t index);
  void ClearBook();
  std::size_t SizeBook() const;

  std::int32_t chosen;

  static lmx::s_event_map const elem_event_map[];

 private:
  lmx::ct_choice m_held;
};

/// Shelf, element "SHF". A shelf of books.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API Shelf {
 public:
  Shelf();
  Shelf(Shelf const& other);
  /// Leaves `other` behind like a new object.
  Shelf(Shelf&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  Shelf(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual Shelf* clone() const;
  virtual ~Shelf();
  /// Deep; when copying fails the target is unchanged.
  Shelf& operator=(Shelf const& other);
  Shelf& operator=(Shelf&& other) noexcept;
  void swap(Shelf& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Name of the shelf. Attribute "A", required; at most 8 characters.
  lmx::elmx_error SetId(std::string const& value) { return m_Id.set(value); }
  std::string const& GetId() const { return m_Id.get(); }
  bool IssetId() const { return m_Id.is_set(); }
  void UnsetId() { m_Id.unset(); }

  /// Number of boards. Attribute "B", optional; 1 to 9.
  lmx::elmx_error SetLevels(unsigned char const& value) { return m_Levels.set(value); }
  unsigned char const& GetLevels() const { return m_Levels.get(); }
  bool IssetLevels() const { return m_Levels.is_set(); }
  void UnsetLevels() { m_Levels.unset(); }

  /// The children, in document order. The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  InnerShelf const& GetInnerShelf(std::size_t index) const;
  InnerShelf& GetInnerShelf(std::size_t index);
  InnerShelf& AppendInnerShelf();
  void AppendInnerShelf(InnerShelf* value);
  InnerShelf& InsertInnerShelf(std::size_t index);
  void InsertInnerShelf(std::size_t index, InnerShelf* value);
  void AssignInnerShelf(std::size_t index, InnerShelf const& value);
  void AssignInnerShelf(std::size_t index, InnerShelf* value);
  InnerShelf& BackInnerShelf();
  void DeleteInnerShelf(std::size_t index);
  void ClearInnerShelf();
  std::size_t SizeInnerShelf() const;

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
  lmx::ct_simple_pod_optional<unsigned char> m_Levels;
  lmx::ct_complex_multi<InnerShelf> mInnerShelf;
};

/// Book, element "BOK". A book.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API Book {
 public:
  Book();
  Book(Book const& other);
  /// Leaves `other` behind like a new object.
  Book(Book&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  Book(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual Book* clone() const;
  virtual ~Book();
  /// Deep; when copying fails the target is unchanged.
  Book& operator=(Book const& other);
  Book& operator=(Book&& other) noexcept;
  void swap(Book& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Name of the book. Attribute "A", required; at most 8 characters.
  lmx::elmx_error SetId(std::string const& value) { return m_Id.set(value); }
  std::string const& GetId() const { return m_Id.get(); }
  bool IssetId() const { return m_Id.is_set(); }
  void UnsetId() { m_Id.unset(); }

  /// 1 paper, 2 parchment. Attribute "B", required; one of "1", "2".
  lmx::elmx_error SetKind(std::string const& value) { return m_Kind.set(value); }
  std::string const& GetKind() const { return m_Kind.get(); }
  bool IssetKind() const { return m_Kind.is_set(); }
  void UnsetKind() { m_Kind.unset(); }
  /// Its code; 0 when the text is none of the list.
  elmx_enums GetenumKind() const;
  /// Stores the text of `code`. False, and no change, for a code of another list.
  bool SetenumKind(elmx_enums code);

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
  lmx::ct_simple_pod_single<std::string> m_Kind;
};
