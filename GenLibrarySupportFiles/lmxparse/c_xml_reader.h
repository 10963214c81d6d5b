// The reader that element classes talk to: it turns names into event numbers with the tables that the
// classes carry, keeps the state they share (the current event, name and value), records errors, and lets a
// host decide through virtual hooks what an error or an unknown name does.
#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "GenLibrarySupportFiles/lmxinternals/api.h"
#include "GenLibrarySupportFiles/lmxparse/c_error.h"
#include "GenLibrarySupportFiles/lmxparse/c_xml.h"
#include "GenLibrarySupportFiles/lmxparse/namespaces.h"
#include "GenLibrarySupportFiles/lmxparse/stack_guard.h"
#include "GenLibrarySupportFiles/lmxtypes/lexical.h"

namespace binding {

class constant_tables;

}  // namespace binding

namespace lmx {

class c_untyped_unmarshal_bridge;
class c_untyped_unmarshal_list_bridge;
class c_xml_reader;
struct c_untyped_validation_spec;

/// One name that a class dispatches on. A table ends with a null name.
struct s_event_map {
  int m_ns_id;          ///< Namespace id, 1 for names in no namespace.
  char const* mp_name;  ///< Local name, constant text.
  unsigned m_length;    ///< Its length in bytes.
  int m_event;          ///< The event number it stands for.
};

/// One element name that may come next. A table ends with a null name.
struct s_known_elements {
  int m_ns_id;
  char const* mp_name;
  unsigned m_length;
};

enum elxp_attr_elem : int { EXAE_ATTRIBUTE = 0, EXAE_ELEMENT = 1 };

/// A namespace scope that is the reader's current one for its own lifetime.
class ISOXML_API c_xml_reader_local : public c_xml_local {
 public:
  explicit c_xml_reader_local(c_xml_reader& reader);
  ~c_xml_reader_local();

 private:
  c_xml_reader& mr_reader;
  c_xml_local* const mp_previous;
};

namespace detail {

/// Holds a reader's error object, so that it is there before the tag level and outlives it.
struct ISOXML_API c_reader_error {
  c_error m_error;
};

}  // namespace detail

/// Reads one document. Not to be copied, and used by one thread at a time.
class ISOXML_API c_xml_reader : protected detail::c_reader_error, public c_xml {
 public:
  /// `read` is borrowed and must outlive the reader. With `normalise`, white space written as a character
  /// reference counts as white space.
  explicit c_xml_reader(c_read& read, bool normalise = true);
  virtual ~c_xml_reader();
  c_xml_reader(c_xml_reader const&) = delete;
  c_xml_reader& operator=(c_xml_reader const&) = delete;

  /// Decides on an error whose code alone matters. Returns `code` here: every error ends the read.
  virtual elmx_error on_error(elmx_error code, std::string const& item);
  /// Decides on every captured error: 0 means that reading goes on as if nothing had happened, anything
  /// else ends it with that code. Asks `on_error` here. `file` is constant text.
  virtual elmx_error handle_error(elmx_error code, std::string const& item, char const* file, int line);
  /// Stores the last captured error in the format of `s_debug_error::to_stream`, and returns `*text`.
  virtual std::string& get_error_message(std::string* text) const;
  /// Called for an attribute that no table has, whose value may be read here; it is skipped unless the result
  /// is a code. `path` holds the names of the open elements, each closed by a NUL.
  virtual elmx_error on_unknown_attribute(std::string const& name, std::vector<char> const& path,
                                          char const* file, int line);
  /// The same for an element, which is skipped with its content.
  virtual elmx_error on_unknown_element(std::string const& name, std::vector<char> const& path,
                                        char const* file, int line);

  std::string get_error_message() const;
  /// The last captured error itself.
  s_debug_error const& debug_error() const { return m_debug_error; }
  /// What the character and tag level reported.
  c_error const& error_log() const { return m_error; }

  /// Looks the current name up in `map` and sets `m_event`. An event that is no name is left alone.
  void tokenise(s_event_map const* map, elxp_attr_elem kind) {
    if (p_is_name_event(m_event)) p_tokenise(map, kind);
  }
  /// The same for `name`, as it stands in the current scope. Returns `m_event`.
  int tokenise(s_event_map const* map, std::string const& name, elxp_attr_elem kind);

  /// The next attribute of the start tag. False when the tag has ended. `map` may be null: the name is then
  /// left as EXE_TOKEN. `*error` is 0, or why the attribute could not be read (the result is then true).
  bool get_attribute_event(s_event_map const* map, elmx_error* error, std::string* name);
  int get_attribute_event(s_event_map const* map, std::string* name);
  /// What the former does at a start tag's end, where all attributes have been taken and the end lies in the
  /// source's buffer; else false, with nothing changed.
  bool take_plain_attributes_end() {
    elxp_xml_event const end = take_plain_tag_end(&m_name);
    if (end == EXE_UNKNOWN) return false;
    m_event = end;
    return true;
  }

  /// The same where that end is "/>".
  bool take_plain_empty_tag() {
    if (!take_plain_empty_tag_end(&m_name)) return false;
    m_event = EXE_ELEMENT_END;
    return true;
  }

  /// The next item of content. While a table of known elements is selected, an element that it does not
  /// hold is offered to `on_unknown_element` and skipped. `*error` is 0, or why nothing could be read.
  void get_element_event(elmx_error* error, std::string* name) {
    *error = ELMX_OK;
    p_next_item(name);
    if (m_event != EXE_TOKEN || !p_is_known_element(*name)) p_finish_element_event(error, name);
  }
  /// The same, and a start tag's name is looked up in `map`, which may be null.
  void get_element_event(s_event_map const* map, elmx_error* error, std::string* name) {
    get_element_event(error, name);
    if (m_event == EXE_TOKEN && map != nullptr) tokenise(map, EXAE_ELEMENT);
  }
  int get_element_event(s_event_map const* map, std::string* name);
  /// The same, for callers that have selected a table: without one the process stops.
  void get_known_element_event(elmx_error* error, std::string* name) {
    LMX_ASSERT(mp_known_elements);
    get_element_event(error, name);
  }
  void get_known_element_event(s_event_map const* map, elmx_error* error, std::string* name) {
    LMX_ASSERT(mp_known_elements);
    get_element_event(map, error, name);
  }

  /// Skips the rest of the element `m_name` (`ELMX_BADLY_FORMED` when that fails) and reads the next event.
  elmx_error ignore_element(s_event_map const* map);
  /// Reads the end tag of `name`. `*event` is what came instead, if it did.
  bool get_end_tag(s_event_map const* map, std::string const& name, int* event, elmx_error* error);
  /// Reads to the end of the start tag. `is_empty` may be null.
  bool skip_start_tag(bool* is_empty);
  /// The element's text; empty, and true, when the element has ended.
  bool get_element_value(std::string* out, elmx_whitespace mode);
  /// Reads an element of simple type from its start tag to its end tag `m_name`.
  bool get_simple_type_value(std::string const& name, elmx_whitespace mode, std::string* value,
                             elmx_error* error, bool* is_empty);

  /// Records an error. `ELMX_UNEXPECTED_EOM` after a fatal report becomes that report's code. Returns the
  /// code recorded.
  elmx_error capture_error(elmx_error code, std::string const& item, char const* file, int line);
  /// Records an error and lets `handle_error` decide. Returns its verdict.
  elmx_error report_error(elmx_error code, std::string const& item, char const* file, int line);
  /// `report_error` with the item "@" and the current name.
  elmx_error report_attribute_error(elmx_error code);

  /// Reads the value of the attribute `m_name` into the bridge's field: `ELMX_ATTRIBUTE_ALREADY_READ` when it
  /// is set already, `ELMX_UNABLE_TO_READ_ATTRIBUTE_VALUE` when it can not be read, then whatever the
  /// validators say.
  elmx_error unmarshal_attribute_value_impl(c_untyped_unmarshal_bridge& bridge,
                                            c_untyped_validation_spec const& spec);
  /// Reads the text and the end tag of the element `m_name` into the bridge's field.
  elmx_error unmarshal_element_value_impl(c_untyped_unmarshal_bridge& bridge,
                                          c_untyped_validation_spec const& spec);
  /// The same from inside the start tag. With a map, the next sibling's event is read too.
  elmx_error unmarshal_child_element_impl(c_untyped_unmarshal_bridge& bridge,
                                          c_untyped_validation_spec const& spec, s_event_map const* map);

  // The same for list-typed values, which no element class of this format has. `list_validator` checks the
  // whole text; then each token passes the spec's text check and becomes an item of the bridge's list. The
  // first refusal ends the list there.

  elmx_error unmarshal_attribute_list_value_impl(c_untyped_unmarshal_list_bridge& bridge,
                                                 c_untyped_validation_spec const& spec,
                                                 elmx_error (*list_validator)(c_xml_reader& reader,
                                                                              std::string const& text));
  elmx_error unmarshal_element_list_value_impl(c_untyped_unmarshal_list_bridge& bridge,
                                               c_untyped_validation_spec const& spec,
                                               elmx_error (*list_validator)(c_xml_reader& reader,
                                                                            std::string const& text));
  elmx_error unmarshal_child_element_list_impl(
      c_untyped_unmarshal_list_bridge& bridge, c_untyped_validation_spec const& spec,
      elmx_error (*list_validator)(c_xml_reader& reader, std::string const& text), s_event_map const* map);

  /// Enters the namespaces of `map` and the mappings added before.
  void set_ns_map(s_ns_map const* map);
  /// Binds `prefix` to `uri` for the whole document. Has to come before the read begins.
  void add_namespace_mapping(std::string const& prefix, std::string const& uri);

  /// The URI that the name's prefix stands for: `k_non_namespace` for none, `k_namespace_not_found` for a
  /// prefix that nothing binds. Returns `*out`.
  std::string& get_namespace(std::string const& name, std::string* out) const;
  /// True for a qualified name whose prefix is bound here (XSD QName).
  bool is_valid_qname(std::string const& text) const;
  /// Content as text up to the element's end tag, whose name is stored. Nothing when the element has ended.
  bool get_nested_element_value(std::string* value, std::string* end_name, elmx_whitespace mode, bool unused);
  /// The whole content of the element `name` as text (XSD anyType). What fails is in `*error`: the start tag
  /// as `ELMX_BAD_END_OF_START_TAG`, the content as `ELMX_UNABLE_TO_READ_ELEMENT_VALUE`, the end tag as
  /// `ELMX_BAD_END_OF_ELEMENT`.
  bool get_element_ur_value(std::string const& name, std::string* value, elmx_error* error, bool* is_empty);

  // The state that element classes read and set while a document is read.
  int m_event = EXE_EOM;                      ///< The current event.
  std::string m_name;                         ///< The current element or attribute name.
  std::string m_value;                        ///< The last value read as text (usual attributes are not).
  char const* m_code_file = "<unspecified>";  ///< Program file for error records; constant text.
  int m_code_line = -1;                       ///< Program line for error records.
  bool m_skip_unknown = false;                ///< Unknown attributes and elements are skipped.
  c_xml_local* mp_local = nullptr;            ///< The innermost namespace scope; borrowed.
  s_known_elements const* mp_known_elements = nullptr;  ///< The selected table, or null; borrowed.
  std::vector<char> m_name_stack;                       ///< Names of the open elements, each closed by a NUL.
  std::vector<std::size_t> m_name_offsets;              ///< Where each of them starts.
  stack_guard m_stack_guard;                            ///< Refuses elements that nest too deep.

 private:
  friend class binding::constant_tables;

  // An event that a table may still name: a name that was read, whether looked up before or not.
  static bool p_is_name_event(int event) {
    return event == EXE_UNKNOWN || event == EXE_TOKEN || event >= EXE_FIRST_USER;
  }
  void p_tokenise(s_event_map const* map, elxp_attr_elem kind);
  void p_next_item(std::string* name) {
    mp_local->clear_declarations();  // the scope serves every element of this level in turn
    m_event = get_element_name(mp_local, name);
  }
  // Cracks the name. True when no table is selected or the one that is has it.
  bool p_is_known_element(std::string const& name) {
    m_cracked_name.set(mp_local, name);
    return mp_known_elements == nullptr || m_cracked_name.m_found.known_in == mp_known_elements ||
           p_find_known_element();
  }
  bool p_find_known_element();
  void p_finish_element_event(elmx_error* error, std::string* name);

  // The rest of the state, which derived readers may look at. `m_error`, what the character and tag level has
  // reported, is protected too.
 protected:
  c_xml_reader_local m_root_local;  ///< The outermost scope.
  s_debug_error m_debug_error;      ///< The last captured error.
  c_cracked_name m_cracked_name;    ///< The last name of an element or attribute.
  /// Prefix and URI of each `add_namespace_mapping`.
  std::vector<std::pair<std::string, std::string>> m_namespace_mappings;

 private:
  s_known_elements const* mp_constant_known = nullptr;  // the table in force, if it is the library's own
};

/// The namespace of the document's top element. False when there is none to be had. The document starts
/// again.
ISOXML_API bool get_instance_namespace(c_xml_reader& reader, std::string* out);

/// Looks through the whole document for attributes `name` of the namespace `ns` and asks `check` for each
/// until one answer is not `EMU_FALSE`; that is the result, or `EMU_INVALID` for a document that can not be
/// read. The document starts again.
ISOXML_API elmx_must_understand has_must_understand(c_xml_reader& reader, std::string const& ns,
                                                    std::string const& name,
                                                    elmx_must_understand (*check)(std::string const&));

/// Selects a table of known elements for its own lifetime.
class ISOXML_API c_known_elements_selector {
 public:
  /// Both are borrowed and must outlive the selector.
  c_known_elements_selector(c_xml_reader& reader, s_known_elements const* known)
      : mr_reader(reader), mp_previous(reader.mp_known_elements) {
    reader.mp_known_elements = known;
  }
  ~c_known_elements_selector() { mr_reader.mp_known_elements = mp_previous; }
  c_known_elements_selector(c_known_elements_selector const&) = delete;
  c_known_elements_selector& operator=(c_known_elements_selector const&) = delete;

 private:
  c_xml_reader& mr_reader;
  s_known_elements const* const mp_previous;
};

}  // namespace lmx
