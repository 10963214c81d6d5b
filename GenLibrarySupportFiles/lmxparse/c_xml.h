// The tag level. `c_xml` answers one question at a time: what is the next item of the document, what is the
// next attribute of this start tag, what is the text of this element. It knows no schema, and it checks just
// enough to find tags and attributes: names, nesting and content are left to what reads through it.
//
// The attributes of a start tag are captured whole before the first is looked at. So every namespace
// declaration of a tag is known in time, and a value is expanded only when it is asked for.
//
// There are two roads to a tag. One that lies whole in the source's buffer, with nothing out of the ordinary
// in it, is found by one scan over the buffer, and its attributes are left where they lie. Everything else is
// read a character at a time and its attributes are copied. Nobody above can tell which road was taken.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "GenLibrarySupportFiles/lmxinternals/api.h"
#include "GenLibrarySupportFiles/lmxparse/getters.h"
#include "GenLibrarySupportFiles/lmxparse/internal_dtd.h"
#include "GenLibrarySupportFiles/lmxparse/namespaces.h"

namespace lmx {

/// What the reader met. Tables of names use numbers from `EXE_FIRST_USER` + 1 up.
enum elxp_xml_event : int {
  EXE_EOM = 0,            ///< End of the input.
  EXE_UNKNOWN = 1,        ///< A name was looked up and no table entry matched.
  EXE_FATAL = 2,          ///< Failure; handled as EXE_ERROR.
  EXE_ERROR = 3,          ///< Failure, already reported to `c_error`.
  EXE_START_TAG_END = 4,  ///< The ">" of a start tag.
  EXE_TEXT = 5,           ///< Character data was read.
  EXE_ELEMENT_END = 6,    ///< An end tag, or the "/>" of an empty element.
  EXE_TOKEN = 7,          ///< A name was read and not yet looked up.
  EXE_XSI_TYPE = 8,       ///< Attribute "type" of the schema instance namespace.
  EXE_XSI_NIL = 9,        ///< Attribute "nil" of that namespace.
  EXE_XSI_SCHEMA_LOCATION = 10,
  EXE_XSI_NO_NAMESPACE_SCHEMA_LOCATION = 11,
  EXE_SKIPPED_TO_END = 12,  ///< An element's end, reached after unknown children were skipped.
  EXE_FIRST_USER = 13,
};

/// Captured attributes. Each is its name, a NUL, the opening quote, the raw value with its references
/// unexpanded, and a NUL; one more NUL closes the list.
struct ISOXML_API c_attribute_data {
  std::string m_data;
  std::size_t m_index = 0;  ///< Where the next name, or the opening quote of the next value, stands.

  void clear() {
    if (m_data.empty()) return;
    m_data.clear();
    m_index = 0;
  }
  void close() { m_data.push_back('\0'); }
  /// True when the index stands at a name.
  bool has_next() const { return m_index < m_data.size() && m_data[m_index] != '\0'; }
  /// Copies the name at the index and steps over it.
  void take_name(std::string* name);
  /// Steps over the value at the index; never past the last byte.
  void skip_value();
};

/// An attribute where it lies in the source's buffer: name, "=", quote, value.
struct plain_attribute {
  char const* name;
  std::size_t name_length;
  std::size_t value_length;

  /// The name, if it is a single letter; else NUL.
  char letter() const { return name_length == 1 ? *name : '\0'; }
  char const* value() const { return name + name_length + 2; }
};

/// Some of them, in the order of the document.
struct plain_attributes_view {
  plain_attribute const* begin;
  plain_attribute const* end;
};

/// Text where it lies in the source's buffer.
struct plain_text_view {
  char const* begin;
  char const* end;
};

/// `out->assign(name, length)` for the names of a document, which are so short that a call costs more.
inline void copy_name(std::string* out, char const* name, std::size_t length) {
  if (length == 3) {
    *out = std::string(name, 3);  // a constant length: no call, and no allocation
  } else {
    out->assign(name, length);
  }
}

class ISOXML_API c_xml {
 public:
  /// What `get_namespace` gives for a name in no namespace, and for a prefix that nothing binds.
  static const std::string k_non_namespace;
  static const std::string k_namespace_not_found;

  /// Both are borrowed and must outlive the object. `normalize_char_refs`: see `c_get_with_entities`.
  c_xml(c_read& read, c_error& error, bool normalize_char_refs);

  /// The next item. EXE_TOKEN: a start tag, its name in `*name`, its attributes captured, its
  /// namespaces entered in `local`; when `local` is null they are ordinary attributes. EXE_ELEMENT_END: an
  /// end tag, its name in
  /// `*name`. EXE_TEXT: character data between tags in `*name`, without the white space before it.
  /// EXE_EOM, or EXE_ERROR with the code in `c_error` (a few failures report nothing).
  elxp_xml_event get_element_name(c_xml_local* local, std::string* name) {
    for (;;) {
      elxp_xml_event const plain = p_get_plain_item(local, name);
      if (plain != EXE_UNKNOWN) return plain;
      elxp_xml_event const item = p_get_item(local, name);
      if (item != EXE_UNKNOWN) return item;
    }
  }
  /// The next captured attribute: EXE_TOKEN with its name. After the last one the end of the tag is read:
  /// EXE_START_TAG_END or EXE_ELEMENT_END ("?>" when `in_decl`), or EXE_ERROR with `ELMX_NOT_WELL_FORMED`.
  /// Asked for again before the value was read or skipped, it takes that for a name: the quote and the value
  /// as it stands.
  elxp_xml_event get_attribute_name(std::string* name, bool in_decl);
  /// What `get_attribute_name` gives where no attribute is left and the tag's end lies in the source's
  /// buffer; else EXE_UNKNOWN, with nothing changed.
  elxp_xml_event take_plain_tag_end(std::string* name) {
    unsigned char const* const end = p_plain_end();
    if (end == nullptr) return EXE_UNKNOWN;
    name->clear();
    bool const is_empty = *end == '/';
    m_getter.consume_more(end + (is_empty ? 2 : 1));
    return is_empty ? EXE_ELEMENT_END : EXE_START_TAG_END;
  }
  /// True, and the end is taken, where that is an EXE_ELEMENT_END.
  bool take_plain_empty_tag_end(std::string* name) {
    unsigned char const* const end = p_plain_end();
    if (end == nullptr || *end != '/') return false;
    name->clear();
    m_getter.consume_more(end + 2);
    return true;
  }
  /// The value of the attribute just named, references expanded. False when one can not be, and when it has
  /// been read; the next attribute is reached either way.
  bool get_attribute_value(std::string* out, elmx_whitespace mode);
  /// Steps over the value of the attribute just named, if it has not been read.
  bool skip_attribute_value();
  /// The attributes still to be read, when they lie in the source's buffer as they are, their values ASCII
  /// without references and line ends; else none. Borrowed until anything else is read.
  plain_attributes_view plain_attributes() const {
    if (m_value_pending) return {nullptr, nullptr};
    return {m_plain + m_plain_next, m_plain + m_plain_count};
  }
  /// Counts those before `up_to` as named, at least one, and their values as read: the last under `mode`.
  void take_plain_attributes(plain_attribute const* up_to, elmx_whitespace mode) {
    m_getter.set_ws_mode(mode);
    m_plain_next = static_cast<std::size_t>(up_to - m_plain);
  }
  /// The text of the element whose start tag has ended, up to the first tag; comments and instructions
  /// vanish. False with `ELMX_UNEXPECTED_EOM` at the end of the input, `ELMX_NOT_WELL_FORMED` for a bad "<!",
  /// nothing for a bad reference.
  bool get_element_value(std::string* out, elmx_whitespace mode, bool expand_entities);
  /// Reads white space and the end tag of `name`. Reports nothing.
  bool is_element_end_tag(std::string const& name);
  /// Reads to the end of the element `name`, which must have no content but white space.
  bool skip_rest_of_empty_element(std::string const& name);
  /// Reads to the end of the element `name` from inside its start tag. An end tag that does not match is
  /// `ELMX_NOT_WELL_FORMED`. Nesting costs heap, one name a level, and no stack.
  bool skip_rest_of_element(std::string const& name);
  /// The same from behind the start tag.
  bool skip_element_body(std::string const& name);
  /// Reads to the end of the start tag; see `c_get_for_xml::move_to_start_tag_end`. Attributes not yet looked
  /// at can still be: they stay until the next start tag.
  bool move_to_start_tag_end(bool* is_empty) { return m_getter.move_to_start_tag_end(is_empty); }
  /// Starts the document again.
  void rewind();

  /// The line the reader has reached; see `c_get_as_utf8::line`.
  int line() const { return m_getter.line(); }
  /// True once `get_attribute_name` has met the end of the input inside a start tag.
  bool attributes_cut_off() const { return m_attributes_cut_off; }
  c_get_for_xml& getter() { return m_getter; }

  /// Declares an entity, as the internal subset would.
  void add_general_entity(std::string const& name, std::string const& value) {
    m_getter.add_general_entity(name, value);
  }
  void add_parameter_entity(std::string const& name, std::string const& value) {
    m_getter.add_parameter_entity(name, value);
  }

  int find_enumerated_namespace(std::string const& uri) const { return m_namespaces.find_namespace(uri); }
  int add_namespace(char const* uri) { return m_namespaces.add_namespace(uri); }
  void add_namespace(char const* uri, int id) { m_namespaces.add_namespace(uri, id); }
  char const* find_namespace_from_id(int id) const { return m_namespaces.find_namespace_from_id(id); }
  /// What follows the name's first colon; the whole name without one.
  static void get_local_name(std::string const& name, std::string* out);
  /// What precedes the name's first colon; nothing without one.
  static void get_namespace_prefix(std::string const& name, std::string* out);
  /// The id of the name's prefix in `local`; an unprefixed name takes the default namespace.
  int get_ns_id(c_xml_local const* local, std::string const& name) const;
  /// True when that id is the schema instance namespace.
  bool is_xsi_attribute(c_xml_local const* local, std::string const& name) const {
    return get_ns_id(local, name) == nsid_xsi;
  }

  /// Looks ahead for an attribute of this start tag, behind the one just named, and reads its value. The
  /// attributes then start over, found or not: asked for in the middle of a loop over them, the loop does
  /// too.
  bool get_named_attribute(c_xml_local const* local, int ns_id, std::string const& name, std::string* value);
  /// The same for "xsi:type", whose value is itself a name: its namespace id and its local part.
  bool get_xsi_type(c_xml_local const* local, int* ns_id, std::string* type);
  /// The next captured "xmlns" attribute. False when none is left; nothing is read from the input.
  bool get_namespace_attribute_name(std::string* name);
  bool get_namespace_attribute_value(std::string* value);
  bool skip_namespace_attribute_value();

  /// The element `name`, whose start tag's name has just been read, as text: tags with their attributes as
  /// they stand, text under `mode`, without comments and instructions. The last argument has no effect.
  bool get_any_element(std::string const& name, std::string* out, elmx_whitespace mode, bool unused);
  /// The content up to the next end tag, as text, and that tag's name.
  bool get_nested_element_value(std::string* value, std::string* end_name, elmx_whitespace mode, bool unused);

 private:
  elxp_xml_event p_not_well_formed();
  elxp_xml_event p_get_start_tag(c_xml_local* local, std::string* name, int first);
  elxp_xml_event p_get_end_tag(std::string* name);
  elxp_xml_event p_get_text(std::string* name, int first);
  bool p_handle_lt_qmark();
  bool p_handle_lt_pling(std::string* name, elxp_xml_event* event);
  bool p_handle_doctype();
  bool p_read_cdata(std::string* out);
  bool p_get_xml_text(std::string* out);
  bool p_select_entity(c_entity_name_reader& reader, std::string* out);
  bool p_select_input_entity(std::string* out);
  elxp_xml_event p_get_item(c_xml_local* local, std::string* name);
  elxp_xml_event p_get_plain_item(c_xml_local const* local, std::string* name);
  // Where the end of a plain tag lies, if it is what comes next and no attribute is left; else null.
  unsigned char const* p_plain_end() const {
    return m_plain_next == m_plain_count ? m_getter.at_mark() : nullptr;
  }
  unsigned char const* p_capture_plain_attributes(byte_window window, bool take_declarations,
                                                  std::size_t* count, int* line_feeds);
  // Looked at otherwise than one after the other, they are captured like those of any tag.
  void p_copy_plain_attributes() {
    if (m_plain_count != 0) p_do_copy_plain_attributes();
  }
  void p_do_copy_plain_attributes();
  // Attributes are there until the next start tag.
  void p_forget_attributes() {
    m_plain_count = 0;
    m_plain_next = 0;
    m_attributes.clear();
    m_ns_attributes.clear();
    m_value_pending = false;
  }
  bool p_capture_attributes(c_xml_local* local);
  bool p_capture_declaration(c_xml_local* local, char const* name);
  bool p_capture_attribute_value(c_attribute_data* data, std::size_t* value_offset);
  bool p_get_captured_value(c_attribute_data* data, std::string* out, elmx_whitespace mode);
  enum class any_tag { start, text, end, failure };
  any_tag p_get_any_tag_data(std::string* out);
  any_tag p_get_any_tag_name(std::string* out, int first);
  bool p_open_any_element(std::string const& name, std::string* out, bool* is_empty);
  bool p_get_any_element(std::string const& name, std::string* out);
  static void p_add_any_attribute_data(std::string* out, c_attribute_data* data);
  void p_declare_namespace(c_xml_local* local, char const* prefix, char const* raw_uri);
  void p_tags_do_not_match(char const* start, std::string const& end);

  c_get_for_xml m_getter;
  c_internal_dtd m_internal_dtd;
  c_enumerated_namespaces m_namespaces;
  bool m_declaration_read = false;
  bool m_attributes_cut_off = false;
  bool m_value_pending = false;  // an attribute has been named, and its value not been read yet

 protected:
  // State, for derived readers to look at.
  bool m_doctype_read = false;       ///< A document type declaration has been read.
  bool m_past_prolog = false;        ///< The first tag or text has been read.
  c_attribute_data m_attributes;     ///< The tag's attributes; empty while they lie in the source's buffer.
  c_attribute_data m_ns_attributes;  ///< Its "xmlns" attributes.

 private:
  // In place of `m_attributes`, for a tag that lies in the buffer. More attributes are not plain.
  static constexpr std::size_t most_plain_attributes = 32;
  plain_attribute m_plain[most_plain_attributes];
  std::size_t m_plain_count = 0;
  std::size_t m_plain_next = 0;  // the first whose value has not been read
  // A name of three letters and what ended it, as they lie in the buffer: those of the last such tag.
  static constexpr std::size_t plain_name_length = 3;
  std::uint32_t m_plain_name;
  // Captures the plain attributes before their buffer changes.
  class plain_tenant final : public buffer_tenant {
   public:
    explicit plain_tenant(c_xml& owner) : mr_owner(owner) {}
    void move_out() override { mr_owner.p_copy_plain_attributes(); }

   private:
    c_xml& mr_owner;
  };
  plain_tenant m_tenant{*this};
};

}  // namespace lmx
