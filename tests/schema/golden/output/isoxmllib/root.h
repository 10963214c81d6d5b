// clang-format off
// Generated from schema/root.toml. Edit the schema, then build the target `schema`.

#pragma once

#include <cstdint>
#include <string>

#include "GenLibrarySupportFiles/lmxinternals/api.h"
#include "GenLibrarySupportFiles/lmxinternals/check_tracker.h"
#include "GenLibrarySupportFiles/lmxinternals/choice.h"
#include "GenLibrarySupportFiles/lmxparse/c_xml_reader.h"
#include "isoxmllib/fwd.h"

/// Every document passes through here: a single choice over every element of the format, so that a whole
/// document and any fragment are read and written alike.
class ISOXML_API Root {
 public:
  /// The alternatives' numbers; `chosen` is one of them.
  enum : std::int32_t {
    ShelfChosen = 0,
    BookChosen = 1,
    NothingChosen = 2,
  };

  Root();
  Root(Root const& other);
  /// Leaves `other` behind like a new object.
  Root(Root&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  Root(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual Root* clone() const;
  virtual ~Root();
  /// Deep; when copying fails the target is unchanged.
  Root& operator=(Root const& other);
  Root& operator=(Root&& other) noexcept;
  void swap(Root& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Frees whatever is held; nothing is chosen afterwards.
  void release_choice();
  bool IsOccursOk(lmx::c_check_tracker* tracker = nullptr) const;
  bool Check(lmx::c_check_tracker* tracker = nullptr, char const* name = nullptr) const;
  /// True when the reader stands at one of the alternatives.
  static bool IsMember(lmx::xmlReader& reader);
  /// Reads a document, whatever element it begins with.
  lmx::elmx_error unmarshal(lmx::xmlReader& reader);
  bool unmarshal(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// Writes what is held under its own tag; `name` is ignored. Nothing for `NothingChosen`;
  /// `ELMX_BAD_CHOICE` for a `chosen` that is no alternative.
  lmx::elmx_error marshal(lmx::c_xml_writer& writer, char const* name) const;
  /// Writes nothing: a choice has no attributes.
  void marshal_attributes(lmx::c_xml_writer&) const {}
  lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const;

  /// Makes `Shelf` the alternative held, with no object yet; no effect when it is already.
  void SelectShelf();
  /// The "SHF". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  Shelf const& GetShelf() const;
  Shelf& GetShelf();

  /// Makes `Book` the alternative held, with no object yet; no effect when it is already.
  void SelectBook();
  /// The "BOK". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  Book const& GetBook() const;
  Book& GetBook();

  std::int32_t chosen;

  static lmx::s_event_map const elem_event_map[];
  static lmx::s_known_elements const known_elements[];

 private:
  lmx::ct_choice m_held;
};
