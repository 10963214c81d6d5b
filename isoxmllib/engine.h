// What all element classes share: reading an attribute, an element, a run of children, one child; writing
// them; checking what is missing; reaching into a choice. The generated classes hold names, tables and one
// switch for each kind of dispatch, and call these functions in one line each.
//
// Private to the library: nothing outside isoxmllib includes it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <utility>

#include "GenLibrarySupportFiles/lmxinternals/bridges.h"
#include "GenLibrarySupportFiles/lmxinternals/check_tracker.h"
#include "GenLibrarySupportFiles/lmxinternals/choice.h"
#include "GenLibrarySupportFiles/lmxinternals/containers.h"
#include "GenLibrarySupportFiles/lmxinternals/marshal_bridges.h"
#include "GenLibrarySupportFiles/lmxparse/c_unmarshal_helper.h"
#include "GenLibrarySupportFiles/lmxparse/c_xml_writer.h"
#include "transfer/reader/xmlReader.h"

namespace binding {

/// Error records name the library's element classes by this one file name.
inline constexpr char const code_file[] = "isoxmllib";

// ---- Tables ----

/// Looks names up in the tables of the element classes. They stand where they are as long as the library
/// does, so what was found for a name holds for each sibling of that name; a host's tables are looked through
/// each time.
class constant_tables {
 public:
  /// `c_xml_reader::tokenise` for elements.
  static void tokenise(lmx::c_xml_reader& reader, lmx::s_event_map const* map) {
    if (!lmx::c_xml_reader::p_is_name_event(reader.m_event)) return;
    lmx::detail::found_name& found = reader.m_cracked_name.m_found;
    if (map == found.tokenised_in) {
      reader.m_event = found.event;
      return;
    }
    reader.p_tokenise(map, lmx::EXAE_ELEMENT);
    found.tokenised_in = map;
    found.event = reader.m_event;
  }

  /// `c_known_elements_selector`; a null table leaves the one in force.
  class selector {
   public:
    selector(lmx::c_xml_reader& reader, lmx::s_known_elements const* known)
        : mr_reader(reader),
          mp_known_before(reader.mp_known_elements),
          mp_constant_before(reader.mp_constant_known) {
      if (known != nullptr) reader.mp_known_elements = reader.mp_constant_known = known;
    }
    ~selector() {
      mr_reader.mp_known_elements = mp_known_before;
      mr_reader.mp_constant_known = mp_constant_before;
    }
    selector(selector const&) = delete;
    selector& operator=(selector const&) = delete;

   private:
    lmx::c_xml_reader& mr_reader;
    lmx::s_known_elements const* const mp_known_before;
    lmx::s_known_elements const* const mp_constant_before;
  };
};

// ---- Elements ----

/// An element whose children must not be missing is refused with `ELMX_UNEXPECTED_EMPTY_ELEMENT` when it is
/// empty and with `ELMX_MANDATORY_ELEMENT_MISSING` when it holds something else. With this set to true an
/// empty one would get past the helper.
inline constexpr bool mandatory_content_may_be_empty = false;

/// How the content of an element class is read.
struct element_shape {
  lmx::elmx_error (lmx::c_unmarshal_helper::*read_content)(char const* file, int line);
  lmx::s_known_elements const* known_elements;  ///< The tags of its children; null selects no table.
  bool empty_allowed;                           ///< An empty-element tag is all it needs to have.
  int line;                                     ///< For error records.
};

/// Forwards the framework's questions to an element.
template <class X>
class element_helper final : public lmx::c_unmarshal_helper {
 public:
  element_helper(X& element, lmx::xmlReader& reader)
      : c_unmarshal_helper(reader), mr_element(element), mr_reader(reader) {}

  bool unmarshal_attributes(lmx::elmx_error* error) override {
    return mr_element.unmarshal_attributes(mr_reader, error);
  }
  lmx::elmx_error unmarshal_attributes_check() override {
    return mr_element.unmarshal_attributes_check(mr_reader);
  }
  bool unmarshal_simple_body(lmx::elmx_error* error) override {
    return mr_element.unmarshal_body(mr_reader, error);
  }
  bool unmarshal_complex_body(lmx::elmx_error* error) override {
    return mr_element.unmarshal_body(mr_reader, error);
  }

 private:
  X& mr_element;
  lmx::xmlReader& mr_reader;
};

/// Reports `ELMX_BADLY_FORMED` for an element that nests deeper than the stack allows; when that is
/// tolerated, skips it.
lmx::elmx_error refuse_depth(lmx::xmlReader& reader, int line);

/// Reads an element whose start tag has been seen. `collect`, when it is not null, hands the finished
/// element to the reader; an element that failed is not handed over.
template <class X>
lmx::elmx_error read_element(X& element, lmx::xmlReader& reader, std::string const& name,
                             element_shape const& shape, void (lmx::xmlReader::*collect)(X*) = nullptr) {
  if (&name != &reader.m_name) reader.m_name = name;
  if (!reader.m_stack_guard.has_room()) return refuse_depth(reader, shape.line);
  // The usual attributes first and at once. The helper goes on from the first that is unusual; an element
  // that is complete with its start tag needs none.
  auto [attribute, end] = reader.plain_attributes();
  lmx::c_untyped_validation_spec const* passed = nullptr;
  for (; attribute != end; ++attribute) {
    lmx::c_untyped_validation_spec const* const spec = element.accept_attribute(*attribute);
    if (spec == nullptr) break;
    passed = spec;
  }
  if (passed != nullptr) reader.take_plain_attributes(attribute, passed->m_whitespace);
  lmx::elmx_error error = lmx::ELMX_OK;
  bool const is_complete = shape.empty_allowed && attribute == end && element.has_required_attributes() &&
                           reader.take_plain_empty_tag();
  if (!is_complete) {
    constant_tables::selector const selector(reader, shape.known_elements);
    element_helper<X> helper(element, reader);
    helper.m_empty_allowed = shape.empty_allowed;
    error = (helper.*shape.read_content)(code_file, shape.line);
  }
  if (error == lmx::ELMX_OK && collect != nullptr) (reader.*collect)(&element);
  return error;
}

/// Makes the reader ready for a document.
void begin_document(lmx::xmlReader& reader);
/// Reads the start tag of the document's top element, which must be `tag`: `ELMX_ELEMENT_NOT_FOUND` when it
/// is not.
lmx::elmx_error read_top_tag(lmx::xmlReader& reader, char const* tag, int line, std::string* name);

/// Reads an element as the document's top element.
template <class X>
lmx::elmx_error read_document(X& element, lmx::xmlReader& reader, char const* tag, int line) {
  begin_document(reader);
  lmx::c_xml_reader_local const scope(reader);
  std::string name;
  lmx::elmx_error const error = read_top_tag(reader, tag, line, &name);
  return error != lmx::ELMX_OK ? error : element.unmarshal(reader, name);
}

// ---- Attributes and simple children ----

/// Reads the value of the current attribute into `field`. Always true: the attribute was taken. The line for
/// error records is `line` meanwhile.
template <template <class, class, class> class Field, class T, class V, class C>
bool read_attribute(lmx::xmlReader& reader, Field<T, V, C>& field, lmx::c_validation_spec<T> const& spec,
                    int line, lmx::elmx_error* error) {
  int const line_before = std::exchange(reader.m_code_line, line);
  lmx::c_unmarshal_bridge<lmx::xmlReader, Field<T, V, C>, T, V> bridge(reader, spec, field);
  *error = reader.unmarshal_attribute_value_impl(bridge, spec);
  reader.m_code_line = line_before;
  return true;
}

/// Takes an attribute that lies plain in the source's buffer and whose value is the usual one. Null, with
/// nothing changed, where `read_attribute` has to decide; else `spec`, which has a short cut.
template <template <class, class, class> class Field, class T, class V, class C>
lmx::c_untyped_validation_spec const* accept_attribute(Field<T, V, C>& field,
                                                       lmx::c_validation_spec<T> const& spec,
                                                       lmx::plain_attribute const& attribute) {
  if (field.is_set()) return nullptr;
  char const* const text = attribute.value();
  if (!spec.mp_accept(field.ref_value(), {text, text + attribute.value_length})) return nullptr;
  field.mark_value_set();
  return &spec;
}

/// Reports `ELMX_REQUIRED_ATTRIBUTES_MISSING` with the element's tag unless all required attributes came.
lmx::elmx_error check_required(lmx::xmlReader& reader, char const* tag, int line, bool all_set);

/// Reads the text of the current element, end tag included.
template <class Field, class T>
bool read_text(lmx::xmlReader& reader, Field& field, lmx::c_validation_spec<T> const& spec, int line,
               lmx::elmx_error* error) {
  reader.m_code_line = line;
  lmx::c_unmarshal_bridge<lmx::xmlReader, Field, T, T> bridge(reader, spec, field);
  *error = reader.unmarshal_element_value_impl(bridge, spec);
  return *error == lmx::ELMX_OK;
}

// ---- Children ----

/// Where a body or a wrapper belongs, for its reports.
struct place {
  lmx::s_event_map const* map;  ///< The names dispatched on.
  char const* tag;              ///< The element whose content this is.
  int line;
};

/// True when the reader stands at one of the names in `map`; otherwise the event is left as it was.
bool is_member(lmx::xmlReader& reader, lmx::s_event_map const* map);

/// Reports `code` for the element `at.tag`. False when that ends the read.
bool report(lmx::xmlReader& reader, lmx::elmx_error code, place const& at, lmx::elmx_error* error);

/// Reads the next event of known elements. False when an error there ends the read.
bool next_event(lmx::xmlReader& reader, place const& at, lmx::elmx_error* error);

/// Reads the simple child that the reader stands at, and the event after it.
template <class Field, class T>
bool read_simple_child(lmx::xmlReader& reader, Field& field, lmx::c_validation_spec<T> const& spec,
                       place const& at, lmx::elmx_error* error) {
  reader.m_code_line = at.line;
  lmx::c_unmarshal_bridge<lmx::xmlReader, Field, T, T> bridge(reader, spec, field);
  *error = reader.unmarshal_child_element_impl(bridge, spec, nullptr);
  return *error == lmx::ELMX_OK && next_event(reader, at, error);
}

/// Reads one wrapper after the other while there is something for them.
template <class W>
bool read_wrappers(lmx::xmlReader& reader, lmx::ct_complex_multi<W>& wrappers, bool at_least_one,
                   place const& at, lmx::elmx_error* error) {
  constant_tables::tokenise(reader, at.map);
  if (at_least_one && !W::IsMember(reader) &&
      !report(reader, lmx::ELMX_MANDATORY_ELEMENT_MISSING, at, error)) {
    return false;
  }
  while (W::IsMember(reader)) {
    reader.m_code_line = at.line;
    wrappers.append().unmarshal(reader, error);
    if (*error != lmx::ELMX_OK) return false;
    constant_tables::tokenise(reader, at.map);
  }
  return !at_least_one || !wrappers.empty() || report(reader, lmx::ELMX_MANDATORY_ELEMENT_MISSING, at, error);
}

/// Reads at most one wrapper.
template <class W>
bool read_wrapper(lmx::xmlReader& reader, lmx::ct_complex_optional<W>& wrapper, place const& at,
                  lmx::elmx_error* error) {
  constant_tables::tokenise(reader, at.map);
  if (!W::IsMember(reader)) return true;
  reader.m_code_line = at.line;
  wrapper.get_or_create().unmarshal(reader, error);
  if (*error != lmx::ELMX_OK) return false;
  constant_tables::tokenise(reader, at.map);
  return true;
}

/// Reads the required simple child for `event`: `ELMX_MANDATORY_ELEMENT_MISSING` when another event came.
template <class Field, class T>
bool read_required_child(lmx::xmlReader& reader, Field& field, lmx::c_validation_spec<T> const& spec,
                         int event, place const& at, lmx::elmx_error* error) {
  if (reader.m_event != event) return report(reader, lmx::ELMX_MANDATORY_ELEMENT_MISSING, at, error);
  return read_simple_child(reader, field, spec, at, error);
}

template <class Field, class T>
bool read_optional_child(lmx::xmlReader& reader, Field& field, lmx::c_validation_spec<T> const& spec,
                         int event, place const& at, lmx::elmx_error* error) {
  return reader.m_event != event || read_simple_child(reader, field, spec, at, error);
}

template <class Field, class T>
bool read_repeated_child(lmx::xmlReader& reader, Field& field, lmx::c_validation_spec<T> const& spec,
                         int event, place const& at, lmx::elmx_error* error) {
  while (reader.m_event == event) {
    if (!read_simple_child(reader, field, spec, at, error)) return false;
  }
  return true;
}

inline constexpr std::size_t no_limit = std::numeric_limits<std::size_t>::max();

/// Reads an unbroken run of children of one kind, `limit` at most.
template <class Y>
bool read_run(lmx::xmlReader& reader, lmx::ct_complex_multi<Y>& run, int event, place const& at,
              lmx::elmx_error* error, std::size_t limit = no_limit) {
  while (reader.m_event == event && run.size() < limit) {
    reader.m_code_line = at.line;
    *error = run.append().unmarshal(reader, reader.m_name);
    if (*error != lmx::ELMX_OK || !next_event(reader, at, error)) return false;
  }
  return true;
}

/// The body of a class whose children are one run without a wrapper.
template <class Y>
bool read_list(lmx::xmlReader& reader, lmx::ct_complex_multi<Y>& list, int event, place const& at,
               lmx::elmx_error* error) {
  constant_tables::tokenise(reader, at.map);
  return read_run(reader, list, event, at, error);
}

/// `read_run` where an empty run is `ELMX_MANDATORY_ELEMENT_MISSING`.
template <class Y>
bool read_mandatory_run(lmx::xmlReader& reader, lmx::ct_complex_multi<Y>& run, int event, place const& at,
                        lmx::elmx_error* error) {
  if (!read_run(reader, run, event, at, error)) return false;
  return !run.empty() || report(reader, lmx::ELMX_MANDATORY_ELEMENT_MISSING, at, error);
}

/// Reads one child and the event after it.
template <class Y>
bool read_one(lmx::xmlReader& reader, lmx::ct_complex_optional<Y>& child, place const& at,
              lmx::elmx_error* error) {
  reader.m_code_line = at.line;
  *error = child.get_or_create().unmarshal(reader, reader.m_name);
  return *error == lmx::ELMX_OK && next_event(reader, at, error);
}

/// Reads a document whose top element is one of many. Unknown elements before it are skipped.
template <class Choice>
lmx::elmx_error read_any_document(Choice& choice, lmx::xmlReader& reader, lmx::s_event_map const* map,
                                  lmx::s_known_elements const* known_elements, int line) {
  begin_document(reader);
  lmx::c_xml_reader_local const scope(reader);
  constant_tables::selector const selector(reader, known_elements);
  lmx::elmx_error error;
  reader.get_known_element_event(map, &error, &reader.m_name);
  if (error != lmx::ELMX_OK) {
    error = reader.report_error(error, reader.m_name, code_file, line);
    if (error != lmx::ELMX_OK) return error;
  }
  choice.unmarshal(reader, &error);
  return error;
}

/// Reports `ELMX_UNEXPECTED_COMPLEX_ELEMENT`: what the document begins with is no element that could be read.
bool report_unknown_top_element(lmx::xmlReader& reader, int line, lmx::elmx_error* error);

/// Reads the document's top element.
template <class Y>
bool read_alternative(lmx::xmlReader& reader, lmx::ct_complex_optional<Y>& child, int line,
                      lmx::elmx_error* error) {
  reader.m_code_line = line;
  *error = child.get_or_create().unmarshal(reader, reader.m_name);
  return *error == lmx::ELMX_OK;
}

// ---- Choices ----

/// A fresh run for `alternative`, whatever was held before.
template <class Y>
lmx::ct_complex_multi<Y>& new_run(std::int32_t& chosen, lmx::ct_choice& held, std::int32_t alternative) {
  held.release();
  chosen = alternative;
  return held.select_run<Y>(alternative);
}

template <class Y>
lmx::ct_complex_optional<Y>& new_one(std::int32_t& chosen, lmx::ct_choice& held, std::int32_t alternative) {
  held.release();
  chosen = alternative;
  return held.select_one<Y>(alternative);
}

/// Makes `alternative` the chosen one; whatever another one held is freed.
void choose(std::int32_t& chosen, lmx::ct_choice& held, std::int32_t alternative);

/// The run of `alternative`, selected if it was not.
template <class Y>
lmx::ct_complex_multi<Y>& selected_run(std::int32_t& chosen, lmx::ct_choice& held, std::int32_t alternative) {
  choose(chosen, held, alternative);
  return held.select_run<Y>(alternative);
}

template <class Y>
lmx::ct_complex_optional<Y>& selected_one(std::int32_t& chosen, lmx::ct_choice& held,
                                          std::int32_t alternative) {
  choose(chosen, held, alternative);
  return held.select_one<Y>(alternative);
}

/// True when `alternative` is chosen and something is held for it: `chosen` is public, and a host may have
/// set it to anything.
inline bool is_chosen(std::int32_t chosen, lmx::ct_choice const& held, std::int32_t alternative) {
  return chosen == alternative && held.holds(alternative);
}

/// The condition that callers of const accessors must keep, with the text that is printed when they do not.
struct contract {
  bool holds;
  char const* text;
};

/// The chosen run's element at `index`.
template <class Y>
Y const& run_at(lmx::ct_choice const& held, contract const& is_chosen, std::size_t index,
                char const* index_text) {
  LMX_ASSERT_TEXT(is_chosen.holds, is_chosen.text);
  lmx::ct_complex_multi<Y> const& run = held.run<Y>();
  LMX_ASSERT_TEXT(index < run.size(), index_text);
  return run.get(index);
}

/// Deletes the chosen run's element at `index`.
template <class Y>
void erase_at(lmx::ct_choice& held, contract const& is_chosen, std::size_t index, char const* index_text) {
  LMX_ASSERT_TEXT(is_chosen.holds, is_chosen.text);
  lmx::ct_complex_multi<Y>& run = held.run<Y>();
  LMX_ASSERT_TEXT(index < run.size(), index_text);
  run.erase(index);
}

/// How many the run of the alternative holds; none when another is chosen.
template <class Y>
std::size_t run_size(lmx::ct_choice const& held, bool is_chosen) {
  return is_chosen ? held.run<Y>().size() : 0;
}

/// The chosen child, which must be there.
template <class Y>
Y const& chosen_one(lmx::ct_choice const& held, contract const& is_chosen) {
  LMX_ASSERT_TEXT(is_chosen.holds, is_chosen.text);
  return held.one<Y>().get();
}

// ---- Checks ----

/// False, with the path to `name` recorded, unless `is_there`.
bool check_occurs(lmx::c_check_tracker* tracker, bool is_there, char const* name, int line);

/// Checks each wrapper; they add no level of their own.
template <class W>
bool check_wrappers(lmx::c_check_tracker* tracker, lmx::ct_complex_multi<W> const& wrappers) {
  for (std::size_t i = 0; i != wrappers.size(); ++i) {
    if (!wrappers.get(i).Check(tracker, nullptr)) return false;
  }
  return true;
}

/// Checks each child under its tag.
template <class Y>
bool check_children(lmx::c_check_tracker* tracker, lmx::ct_complex_multi<Y> const& children,
                    char const* tag) {
  for (std::size_t i = 0; i != children.size(); ++i) {
    if (!children.get(i).Check(tracker, tag)) return false;
  }
  return true;
}

template <class W>
bool check_wrapper(lmx::c_check_tracker* tracker, lmx::ct_complex_optional<W> const& wrapper) {
  return !wrapper.is_set() || wrapper.get().Check(tracker, nullptr);
}

// ---- Writing ----

/// Begins an element, whose scope is open, up to its own attributes. The document's first element carries the
/// namespace declarations, whichever class it is of.
void begin_element(lmx::c_xml_writer& writer, char const* name);

/// Writes an element under the tag `name`. An error in its children leaves it without an end tag.
template <class X>
inline lmx::elmx_error write_element(X const& element, lmx::c_xml_writer& writer, char const* name) {
  lmx::c_xml_writer::gathering const gathered(writer);
  lmx::c_xml_writer_local const scope(writer);
  begin_element(writer, name);
  element.marshal_attributes(writer);
  lmx::elmx_error const error = element.marshal_child_elements(writer);
  if (error == lmx::ELMX_OK) writer.write_end_tag(name);
  return error;
}

template <class Field, class T>
using marshal_bridge = lmx::c_marshal_bridge<lmx::c_xml_writer, Field, T, T>;

/// Writes a required attribute, even if it was never set, or an optional one that is set.
template <class Field, class T>
void write_attribute(lmx::c_xml_writer& writer, char const* name, Field const& field,
                     lmx::c_validation_spec<T> const& spec) {
  if (lmx::detail::value_count(field) != 0) writer.marshal_attribute(name, field.get(), spec);
}

/// Writes one child for each value of the field; a required one has a value even if it was never set.
template <class Field, class T>
void write_simple_child(lmx::c_xml_writer& writer, char const* name, Field const& field,
                        lmx::c_validation_spec<T> const& spec) {
  marshal_bridge<Field, T> bridge(writer, spec, field);
  writer.marshal_element_impl(name, bridge, nullptr);
}

/// Writes the text of the element at hand.
template <class Field, class T>
void write_text(lmx::c_xml_writer& writer, Field const& field, lmx::c_validation_spec<T> const& spec) {
  marshal_bridge<Field, T> bridge(writer, spec, field);
  writer.marshal_element_body_impl(nullptr, bridge);
}

/// Writes what a choice holds under the tag that `tags` has for it: row by row the alternatives, then the
/// end. Nothing is written for `nothing_chosen`, the number of alternatives; any other number is
/// `ELMX_BAD_CHOICE`.
lmx::elmx_error write_choice(lmx::c_xml_writer& writer, lmx::ct_choice const& held, std::int32_t chosen,
                             std::int32_t nothing_chosen, lmx::s_event_map const* tags, int line);

/// Writes each wrapper's children.
template <class W>
lmx::elmx_error write_wrappers(lmx::c_xml_writer& writer, lmx::ct_complex_multi<W> const& wrappers) {
  for (std::size_t i = 0; i != wrappers.size(); ++i) {
    lmx::elmx_error const error = wrappers.get(i).marshal_child_elements(writer);
    if (error != lmx::ELMX_OK) return error;
  }
  return lmx::ELMX_OK;
}

template <class W>
lmx::elmx_error write_wrapper(lmx::c_xml_writer& writer, lmx::ct_complex_optional<W> const& wrapper) {
  return wrapper.is_set() ? wrapper.get().marshal_child_elements(writer) : lmx::ELMX_OK;
}

/// Writes each child of a class whose children are one run without a wrapper.
template <class Y>
lmx::elmx_error write_list(lmx::c_xml_writer& writer, lmx::ct_complex_multi<Y> const& list, char const* tag) {
  for (std::size_t i = 0; i != list.size(); ++i) {
    lmx::elmx_error const error = list.get(i).marshal(writer, tag);
    if (error != lmx::ELMX_OK) return error;
  }
  return lmx::ELMX_OK;
}

}  // namespace binding
