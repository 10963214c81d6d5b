// The writer that element classes talk to: start and end tags, attributes, simple children and text, laid out
// by four strings. It knows no schema: order and names come from the element classes, the text of a value
// from its spec through a bridge. One scope object stands on the stack for each open element.
#pragma once

#include <cstddef>
#include <iosfwd>
#include <string>
#include <utility>
#include <vector>

#include "GenLibrarySupportFiles/lmxinternals/api.h"
#include "GenLibrarySupportFiles/lmxinternals/output_buffer.h"
#include "GenLibrarySupportFiles/lmxparse/c_error.h"
#include "GenLibrarySupportFiles/lmxparse/namespaces.h"

namespace lmx {

class c_untyped_marshal_bridge;
class c_untyped_marshal_list_bridge;
class c_xml_writer;
struct c_untyped_validation_spec;
template <class T>
struct c_validation_spec;

/// The state of one open element, for its own lifetime the writer's innermost one. Scopes nest on the stack
/// of the code that writes elements; the scope is opened before the start tag and closed after the end tag.
class ISOXML_API c_xml_writer_local {
 public:
  /// A scope of no writer, in which the body has begun: the level of the document.
  c_xml_writer_local() = default;
  /// A scope inside the innermost one of `writer`, which must outlive it.
  explicit inline c_xml_writer_local(c_xml_writer& writer);
  /// Makes the scope that this one hid the innermost one again.
  inline ~c_xml_writer_local();
  c_xml_writer_local(c_xml_writer_local const&) = delete;
  c_xml_writer_local& operator=(c_xml_writer_local const&) = delete;

  /// Stores the writer (borrowed, may be null), whose innermost scope stays what it is.
  void set_writer(c_xml_writer* writer) { mp_writer = writer; }

 protected:
  friend class c_xml_writer;

  c_xml_writer* mp_writer = nullptr;        ///< Borrowed, may be null.
  c_xml_writer_local* mp_parent = nullptr;  ///< The scope that this one hides; null for the document's.
  bool m_attribute_written = false;         ///< An attribute has been written.
  bool m_body_open = true;                  ///< The ">" of the start tag has been written.
  bool m_child_line = false;                ///< A child stands on a line of its own, so the end tag does too.
};

/// Writes one document, as UTF-8 (XML 1.0) in the bytes that the values hold. Not to be copied.
///
/// Layout: an element starts on a line of its own, indented by one `tab` for each level. Its first attribute
/// follows after a blank, each further one stands on a line of its own, indented by two steps more than the
/// tag. Text stands between its tags without white space; an element with no content ends in "/>".
///
/// Errors: the stream is not tested; a host looks at its state when the document is finished. Values are
/// written as they stand, valid or not. Nothing is thrown but by the stream, if the host made it throw.
/// Ownership: the stream is borrowed and must outlive the writer. It is not flushed, but what an operation
/// writes has reached it when the host has control again: after each of its calls, and within one wherever
/// code of the host may run.
/// Threads: one at a time. The default format strings are shared by all writers of the process and not
/// guarded: set them before the first writer is made.
class ISOXML_API c_xml_writer {
 public:
  /// Flags for the XML declaration.
  enum e_declaration : int {
    include_xml_decl = 1,    ///< `<?xml version="1.0" encoding="UTF-8"?>`
    include_standalone = 2,  ///< The same with `standalone="yes"`.
  };

  /// Writes to `stream`, which takes on the classic locale and keeps it. The texts are copied; a null one
  /// stands for a default: an attribute's indentation and line end for `tab` and `nl` where those are given,
  /// otherwise, as those two themselves, for the default format string of the same name.
  explicit c_xml_writer(std::ostream& stream, char const* tab = nullptr, char const* nl = nullptr,
                        char const* attribute_tab = nullptr, char const* attribute_nl = nullptr);
  /// The same, and begins with the XML declaration that `flags` ask for, on a line of its own; 0 for none.
  c_xml_writer(std::ostream& stream, int flags, char const* tab, char const* nl, char const* attribute_tab,
               char const* attribute_nl);
  c_xml_writer(std::ostream& stream, int flags)
      : c_xml_writer(stream, flags, nullptr, nullptr, nullptr, nullptr) {}
  /// Writes nothing, and does not close what is open.
  virtual ~c_xml_writer();
  c_xml_writer(c_xml_writer const&) = delete;
  c_xml_writer& operator=(c_xml_writer const&) = delete;

  /// Decides on an error whose code and item alone matter. Returns `code` here: every error ends the writing.
  virtual elmx_error on_error(elmx_error code, std::string const& item);
  /// Decides on every reported error: 0 means that writing goes on, anything else ends it with that code, and
  /// the document stays cut off where it is. Asks `on_error` here. `file` is constant text.
  virtual elmx_error handle_error(elmx_error code, std::string const& item, char const* file, int line);
  /// Stores the last captured error in the format of `s_debug_error::to_stream`, and returns `*text`.
  virtual std::string& get_error_message(std::string* text) const;
  /// Writes what stands before an attribute: a blank before an element's first one; then the attribute's line
  /// end and indentation, the indentation alone if there is no line end, a blank if there is neither. The
  /// argument is not used.
  virtual void write_attribute_break(bool);
  /// Writes captured content on a line of its own, as it is.
  virtual void write_any_line(c_any_info const& info);

  std::string get_error_message() const;
  /// The last captured error itself.
  s_debug_error const& debug_error() const { return m_debug_error; }

  // The strings that later writers take where they are given none: one tab character and one line feed at
  // the start. Getters' results stay valid until the next change.

  /// Sets the indentation of elements, and that of attributes too as long as both attribute strings equal
  /// the main ones.
  static void set_default_tab(std::string const& tab);
  static std::string const& get_default_tab();
  /// Sets the line end, and that of attributes too as long as both attribute strings equal the main ones.
  static void set_default_nl(std::string const& nl);
  static std::string const& get_default_nl();
  static void set_default_attribute_tab(std::string const& tab);
  static std::string const& get_default_attribute_tab();
  static void set_default_attribute_nl(std::string const& nl);
  static std::string const& get_default_attribute_nl();

  // Namespaces (Namespaces in XML 1.0). What is added counts until the first element has its attributes: the
  // declarations are written there and nowhere else. Prefixes, URIs and locations are written as they are.

  /// The table of the schema's namespaces, borrowed for the life of the writer. The first one stays.
  void conditionally_select_ns_map(s_ns_map const* map);
  /// Writes the declarations and schema locations, once for each writer, into the start tag at hand. With
  /// `force_xsi` the schema instance namespace is declared even without locations. A map must be selected.
  void conditionally_write_ns_attrs(bool force_xsi);
  /// Declares `uri` under `prefix`; the empty prefix makes it the default namespace.
  void add_namespace(std::string const& prefix, std::string const& uri);
  /// Tells where the schema of namespace `ns` is. If the first one added has an empty namespace, it is
  /// written as the location of a schema without namespace, and the others are not written.
  void add_schema_location(std::string const& ns, std::string const& location);
  /// The prefix of `uri`, in the selected map or else among those added; null when it has none. Borrowed
  /// until the next one is added. A map must be selected.
  char const* get_namespace_prefix(std::string const& uri) const;

  /// While one of these exists, what is written may wait in memory; it has reached the stream when the
  /// outermost one ends, or earlier. A derived writer's bytes never wait, as its operations may write too.
  class ISOXML_API gathering {
   public:
    explicit gathering(c_xml_writer& writer) : mr_writer(writer), m_is_outermost(!writer.m_is_gathering) {
      if (m_is_outermost) p_begin();
    }
    /// Throws what the stream throws, unless something else has been thrown.
    ~gathering() noexcept(false) {
      if (m_is_outermost) p_end();
    }
    gathering(gathering const&) = delete;
    gathering& operator=(gathering const&) = delete;

   private:
    void p_begin();
    void p_end();

    c_xml_writer& mr_writer;
    bool m_is_outermost;
    int m_exceptions = 0;
  };

  // Elements. A name is written as it is; a null one leaves the stream in a bad state.

  /// Begins an element, whose scope has been opened.
  void write_start_tag(char const* name);
  /// Ends it: "/>", or the end tag if its body has begun.
  void write_end_tag(char const* name);

  // Values. Nothing is written for a field without a value; the forms with a default then write the spec's
  // default text, even an empty one.

  /// Writes ` name="value"`. An empty value stays in sight.
  void marshal_attribute_impl(char const* name, c_untyped_marshal_bridge& bridge);
  void marshal_attribute_or_default_impl(char const* name, c_untyped_marshal_bridge& bridge,
                                         c_untyped_validation_spec const& spec);
  /// The same as the first for a value that is there, by the spec's `o_to_v`. For the types of the format's
  /// values: text, numbers, truth values, decimals, dates and binary values.
  template <class T>
  void marshal_attribute(char const* name, T const& value, c_validation_spec<T> const& spec);
  /// Writes the items of the first value with a blank between them.
  void marshal_attribute_list_impl(char const* name, c_untyped_marshal_list_bridge& bridge);
  void marshal_attribute_list_or_default_impl(char const* name, c_untyped_marshal_list_bridge& bridge,
                                              c_untyped_validation_spec const& spec);
  /// Writes one element for each value, "/>" for an empty one. With a map, which may be null, the first
  /// element carries the namespace declarations if no other has.
  void marshal_element_impl(char const* name, c_untyped_marshal_bridge& bridge, s_ns_map const* map);
  void marshal_element_or_default_impl(char const* name, c_untyped_marshal_bridge& bridge,
                                       c_untyped_validation_spec const& spec);
  void marshal_element_list_impl(char const* name, c_untyped_marshal_list_bridge& bridge,
                                 s_ns_map const* map);
  void marshal_element_list_or_default_impl(char const* name, c_untyped_marshal_list_bridge& bridge,
                                            c_untyped_validation_spec const& spec);
  /// Writes the first value as the text of the element at hand; an empty one leaves its start tag open.
  /// `name` is not used.
  void marshal_element_body_impl(char const* name, c_untyped_marshal_bridge& bridge);
  void marshal_element_body_list_impl(char const* name, c_untyped_marshal_list_bridge& bridge);

  /// Records an error, without a line of the document. Returns the code.
  elmx_error capture_error(elmx_error code, std::string const& item, char const* file, int line);
  /// Records an error and lets `handle_error` decide. Returns its verdict.
  elmx_error report_error(elmx_error code, std::string const& item, char const* file, int line);

  /// Where the bytes go.
  std::ostream& stream() const {
    m_out.flush();
    return m_out.stream();
  }
  /// How many start tags wait for their end: 0 before and after a complete document.
  int depth() const { return m_depth; }

 protected:
  // What the setters above keep, for a derived writer that has rules of its own.
  static std::string m_default_tab;            ///< Indentation of elements.
  static std::string m_default_nl;             ///< Line end.
  static std::string m_default_attribute_tab;  ///< Indentation of attributes.
  static std::string m_default_attribute_nl;   ///< Line end before an attribute.

 private:
  friend class c_xml_writer_local;

  static bool p_are_default_pairs_equal();
  // Null does what its formatted insertion into the stream would.
  void p_write(char const* text) {
    if (text == nullptr) return p_refuse_null();
    for (; *text != '\0'; ++text) m_out.append(*text);
  }
  void p_write(std::string const& text) { m_out.append(text); }
  void p_refuse_null();
  void p_write_tabs(int count, std::string const& tab);
  void p_write_attribute_break();
  void p_write_declaration(int flags);
  void p_write_namespace(char const* prefix, char const* uri);
  void p_write_schema_locations();
  void p_begin_attribute(char const* name);
  // A bridge may be the host's: before it is asked, the stream is brought up to date.
  template <class Bridge>
  Bridge& p_ask(Bridge& bridge) {
    m_out.flush();
    return bridge;
  }
  void p_write_default_attribute(char const* name, c_untyped_validation_spec const& spec);
  void p_write_default_element(char const* name, c_untyped_validation_spec const& spec);
  void p_begin_element(char const* name, s_ns_map const* map);
  void p_open_body();
  void p_write_items(c_untyped_marshal_list_bridge& bridge, std::size_t index);

  mutable detail::output_buffer m_out;
  bool m_is_gathering = false;

 protected:
  // State, for derived writers. Nothing of theirs waits in memory: what they put into the stream stands where
  // it should.
  std::ostream* const mp_os;        ///< The output; borrowed.
  c_xml_writer_local* mp_local;     ///< The innermost open scope; borrowed.
  c_xml_writer_local m_root_local;  ///< That of the document.
  int m_depth = 0;                  ///< How many elements are open.
  std::string m_tab;                ///< Indentation of elements.
  std::string m_nl;                 ///< Line end.
  std::string m_attribute_tab;      ///< Indentation of attributes.
  std::string m_attribute_nl;       ///< Line end before an attribute.
  bool m_ns_attrs_written = false;  ///< The declarations have been written.
  c_error m_error;              ///< Counts what a derived writer reports to it; the writer reports nothing.
  s_debug_error m_debug_error;  ///< The last captured error.
  s_ns_map const* mp_ns_map = nullptr;                            ///< The selected map, or null; borrowed.
  std::vector<std::pair<std::string, std::string>> m_namespaces;  ///< Added ones: prefix, URI.
  std::vector<std::pair<std::string, std::string>> m_schema_locations;  ///< Namespace, location.
};

c_xml_writer_local::c_xml_writer_local(c_xml_writer& writer)
    : mp_writer(&writer), mp_parent(writer.mp_local), m_body_open(false) {
  writer.mp_local = this;
}

c_xml_writer_local::~c_xml_writer_local() {
  // A scope that was only told its writer has hidden nothing.
  if (mp_writer != nullptr && mp_writer->mp_local == this) mp_writer->mp_local = mp_parent;
}

}  // namespace lmx
