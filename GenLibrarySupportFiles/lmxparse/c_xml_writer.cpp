// A start tag stays open until something follows: only then is it known whether the element ends in "/>". So
// the ">" of a parent is written by its first child, one scope further in, and that of an element with text
// by its text.
#include "GenLibrarySupportFiles/lmxparse/c_xml_writer.h"

#include <exception>
#include <locale>
#include <ostream>
#include <typeinfo>

#include "GenLibrarySupportFiles/lmxinternals/marshal_bridges.h"
#include "GenLibrarySupportFiles/lmxparse/value_output.h"
#include "GenLibrarySupportFiles/lmxtypes/date_time.h"
#include "GenLibrarySupportFiles/lmxtypes/value_text.h"

namespace lmx {

namespace {

constexpr char const xsi_uri[] = "http://www.w3.org/2001/XMLSchema-instance";

char const* first_given(char const* text, char const* other, std::string const& fallback) {
  return text != nullptr ? text : other != nullptr ? other : fallback.c_str();
}

}  // namespace

// The formats of writers that are given none. They stand in the dynamic list, so that a host has no copies of
// its own. Their texts are so short that no memory is needed before `main`.
std::string c_xml_writer::m_default_tab("\t");
std::string c_xml_writer::m_default_nl("\n");
std::string c_xml_writer::m_default_attribute_tab("\t");
std::string c_xml_writer::m_default_attribute_nl("\n");

// ---- Construction ----

c_xml_writer::c_xml_writer(std::ostream& stream, char const* tab, char const* nl, char const* attribute_tab,
                           char const* attribute_nl)
    : m_out(stream),
      mp_os(&stream),
      mp_local(&m_root_local),
      m_tab(first_given(tab, nullptr, m_default_tab)),
      m_nl(first_given(nl, nullptr, m_default_nl)),
      m_attribute_tab(first_given(attribute_tab, tab, m_default_attribute_tab)),
      m_attribute_nl(first_given(attribute_nl, nl, m_default_attribute_nl)) {
  m_root_local.set_writer(this);
  stream.imbue(std::locale::classic());
}

c_xml_writer::c_xml_writer(std::ostream& stream, int flags, char const* tab, char const* nl,
                           char const* attribute_tab, char const* attribute_nl)
    : c_xml_writer(stream, tab, nl, attribute_tab, attribute_nl) {
  if ((flags & (include_xml_decl | include_standalone)) != 0) p_write_declaration(flags);
}

c_xml_writer::~c_xml_writer() = default;

void c_xml_writer::p_write_declaration(int flags) {
  gathering const gathered(*this);
  p_write("<?xml version=\"1.0\" encoding=\"UTF-8\"");
  if ((flags & include_standalone) != 0) p_write(" standalone=\"yes\"");
  p_write("?>");
  p_write(m_nl);
}

// ---- Default formats ----

// While this holds, attributes follow what is set for elements.
bool c_xml_writer::p_are_default_pairs_equal() {
  return m_default_attribute_tab == m_default_tab && m_default_attribute_nl == m_default_nl;
}

void c_xml_writer::set_default_tab(std::string const& tab) {
  if (p_are_default_pairs_equal()) m_default_attribute_tab = tab;
  m_default_tab = tab;
}

void c_xml_writer::set_default_nl(std::string const& nl) {
  if (p_are_default_pairs_equal()) m_default_attribute_nl = nl;
  m_default_nl = nl;
}

void c_xml_writer::set_default_attribute_tab(std::string const& tab) { m_default_attribute_tab = tab; }

void c_xml_writer::set_default_attribute_nl(std::string const& nl) { m_default_attribute_nl = nl; }

std::string const& c_xml_writer::get_default_tab() { return m_default_tab; }
std::string const& c_xml_writer::get_default_nl() { return m_default_nl; }
std::string const& c_xml_writer::get_default_attribute_tab() { return m_default_attribute_tab; }
std::string const& c_xml_writer::get_default_attribute_nl() { return m_default_attribute_nl; }

// ---- Gathering ----

void c_xml_writer::gathering::p_begin() {
  mr_writer.m_is_gathering = typeid(mr_writer) == typeid(c_xml_writer);
  m_exceptions = std::uncaught_exceptions();
}

void c_xml_writer::gathering::p_end() {
  mr_writer.m_is_gathering = false;
  if (mr_writer.m_out.is_empty()) return;
  if (std::uncaught_exceptions() == m_exceptions) return mr_writer.m_out.flush();
  try {
    mr_writer.m_out.flush();
  } catch (...) {  // the exception that is already on its way tells of the failure
  }
}

// ---- Bytes ----

void c_xml_writer::p_refuse_null() { stream().setstate(std::ios_base::badbit); }

void c_xml_writer::p_write_tabs(int count, std::string const& tab) {
  for (int i = 0; i < count; ++i) p_write(tab);
}

// ---- Tags ----

void c_xml_writer::write_start_tag(char const* name) {
  gathering const gathered(*this);
  c_xml_writer_local* const parent = mp_local->mp_parent;
  if (parent != nullptr && !parent->m_body_open) {
    p_write(">");
    p_write(m_nl);
    parent->m_body_open = true;
    parent->m_child_line = true;
  }
  p_write_tabs(m_depth, m_tab);
  p_write("<");
  p_write(name);
  ++m_depth;
}

void c_xml_writer::write_end_tag(char const* name) {
  gathering const gathered(*this);
  if (m_depth > 0) --m_depth;
  if (mp_local->m_body_open) {
    if (mp_local->m_child_line) p_write_tabs(m_depth, m_tab);
    p_write("</");
    p_write(name);
    p_write(">");
  } else {
    p_write("/>");
  }
  p_write(m_nl);
}

void c_xml_writer::p_begin_element(char const* name, s_ns_map const* map) {
  write_start_tag(name);
  if (map == nullptr) return;
  conditionally_select_ns_map(map);
  conditionally_write_ns_attrs(false);
}

void c_xml_writer::p_open_body() {
  if (!mp_local->m_body_open) p_write(">");
  mp_local->m_body_open = true;
}

void c_xml_writer::write_any_line(c_any_info const& info) {
  gathering const gathered(*this);
  p_write_tabs(m_depth, m_tab);
  p_write(info.m_value);
  p_write(m_nl);
}

// ---- Namespaces ----

void c_xml_writer::conditionally_select_ns_map(s_ns_map const* map) {
  if (mp_ns_map == nullptr) mp_ns_map = map;
}

void c_xml_writer::add_namespace(std::string const& prefix, std::string const& uri) {
  m_namespaces.emplace_back(prefix, uri);
}

void c_xml_writer::add_schema_location(std::string const& ns, std::string const& location) {
  m_schema_locations.emplace_back(ns, location);
}

char const* c_xml_writer::get_namespace_prefix(std::string const& uri) const {
  LMX_ASSERT(mp_ns_map);
  for (s_ns_map const* row = mp_ns_map; row->mp_uri != nullptr; ++row) {
    if (uri == row->mp_uri) return row->mp_prefix;
  }
  for (auto const& [prefix, added_uri] : m_namespaces) {
    if (uri == added_uri) return prefix.c_str();
  }
  return nullptr;
}

void c_xml_writer::conditionally_write_ns_attrs(bool force_xsi) {
  if (m_ns_attrs_written) return;
  LMX_ASSERT(mp_ns_map);
  gathering const gathered(*this);
  for (s_ns_map const* row = mp_ns_map; row->mp_uri != nullptr; ++row) {
    p_write_namespace(row->mp_prefix, row->mp_uri);
  }
  for (auto const& [prefix, uri] : m_namespaces) p_write_namespace(prefix.c_str(), uri.c_str());
  if (force_xsi || !m_schema_locations.empty()) p_write_namespace("xsi", xsi_uri);
  if (!m_schema_locations.empty()) p_write_schema_locations();
  m_ns_attrs_written = true;
}

void c_xml_writer::p_write_namespace(char const* prefix, char const* uri) {
  p_write_attribute_break();
  p_write("xmlns");
  if (*prefix != '\0') {
    p_write(":");
    p_write(prefix);
  }
  p_write("=\"");
  p_write(uri);
  p_write("\"");
}

void c_xml_writer::p_write_schema_locations() {
  auto const& [first_namespace, first_location] = m_schema_locations.front();
  if (first_namespace.empty()) {
    p_begin_attribute("xsi:noNamespaceSchemaLocation");
    p_write(first_location);
  } else {
    p_begin_attribute("xsi:schemaLocation");
    char const* separator = "";
    for (auto const& [ns, location] : m_schema_locations) {
      p_write(separator);
      p_write(ns);
      p_write(" ");
      p_write(location);
      separator = " ";
    }
  }
  p_write("\"");
}

// ---- Attributes ----

void c_xml_writer::write_attribute_break(bool) {
  gathering const gathered(*this);
  bool const is_first = !mp_local->m_attribute_written;
  mp_local->m_attribute_written = true;
  if (is_first || (m_attribute_nl.empty() && m_attribute_tab.empty())) {
    p_write(" ");
  } else if (m_attribute_nl.empty()) {
    p_write(m_attribute_tab);
  } else {
    p_write(m_attribute_nl);
    p_write_tabs(m_depth + 1, m_attribute_tab);
  }
}

// A derived writer may write breaks of its own.
void c_xml_writer::p_write_attribute_break() {
  if (m_is_gathering) return c_xml_writer::write_attribute_break(false);
  m_out.flush();
  write_attribute_break(false);
}

void c_xml_writer::p_begin_attribute(char const* name) {
  p_write_attribute_break();
  p_write(name);
  p_write("=\"");
}

void c_xml_writer::p_write_default_attribute(char const* name, c_untyped_validation_spec const& spec) {
  p_begin_attribute(name);
  output_convert_to_xml(stream(), spec.mp_default);
  p_write("\"");
}

void c_xml_writer::marshal_attribute_impl(char const* name, c_untyped_marshal_bridge& bridge) {
  gathering const gathered(*this);
  if (bridge.count() == 0) return;
  p_begin_attribute(name);
  p_ask(bridge).write_value(0);
  p_write("\"");
}

template <class T>
void c_xml_writer::marshal_attribute(char const* name, T const& value, c_validation_spec<T> const& spec) {
  constexpr std::ostream& (*usual_output)(std::ostream&, T const&) = &o_to_v;
  gathering const gathered(*this);
  p_begin_attribute(name);
  if (spec.mp_o_to_v == usual_output) {
    detail::put(m_out, value);
  } else {
    LMX_ASSERT_TEXT(spec.mp_o_to_v != nullptr, "o_to_v");
    spec.mp_o_to_v(stream(), value);
  }
  m_out.append('"');
}

template ISOXML_API void c_xml_writer::marshal_attribute(char const*, std::string const&,
                                                         c_validation_spec<std::string> const&);
template ISOXML_API void c_xml_writer::marshal_attribute(char const*, unsigned char const&,
                                                         c_validation_spec<unsigned char> const&);
template ISOXML_API void c_xml_writer::marshal_attribute(char const*, unsigned short const&,
                                                         c_validation_spec<unsigned short> const&);
template ISOXML_API void c_xml_writer::marshal_attribute(char const*, int const&,
                                                         c_validation_spec<int> const&);
template ISOXML_API void c_xml_writer::marshal_attribute(char const*, unsigned int const&,
                                                         c_validation_spec<unsigned int> const&);
template ISOXML_API void c_xml_writer::marshal_attribute(char const*, bool const&,
                                                         c_validation_spec<bool> const&);
template ISOXML_API void c_xml_writer::marshal_attribute(char const*, double const&,
                                                         c_validation_spec<double> const&);
template ISOXML_API void c_xml_writer::marshal_attribute(char const*, c_binary const&,
                                                         c_validation_spec<c_binary> const&);
template ISOXML_API void c_xml_writer::marshal_attribute(char const*, c_datetime const&,
                                                         c_validation_spec<c_datetime> const&);
template ISOXML_API void c_xml_writer::marshal_attribute(
    char const*, velmo::lmx::high_precision_c_decimal const&,
    c_validation_spec<velmo::lmx::high_precision_c_decimal> const&);

void c_xml_writer::marshal_attribute_or_default_impl(char const* name, c_untyped_marshal_bridge& bridge,
                                                     c_untyped_validation_spec const& spec) {
  gathering const gathered(*this);
  if (bridge.count() == 0) return p_write_default_attribute(name, spec);
  marshal_attribute_impl(name, bridge);
}

void c_xml_writer::marshal_attribute_list_impl(char const* name, c_untyped_marshal_list_bridge& bridge) {
  gathering const gathered(*this);
  if (bridge.count() == 0) return;
  p_begin_attribute(name);
  p_write_items(bridge, 0);
  p_write("\"");
}

void c_xml_writer::marshal_attribute_list_or_default_impl(char const* name,
                                                          c_untyped_marshal_list_bridge& bridge,
                                                          c_untyped_validation_spec const& spec) {
  gathering const gathered(*this);
  if (bridge.count() == 0) return p_write_default_attribute(name, spec);
  marshal_attribute_list_impl(name, bridge);
}

void c_xml_writer::p_write_items(c_untyped_marshal_list_bridge& bridge, std::size_t index) {
  std::size_t const item_count = p_ask(bridge).item_count(index);
  for (std::size_t item = 0; item != item_count; ++item) {
    if (item != 0) p_write(" ");
    p_ask(bridge).write_item(index, item);
  }
}

// ---- Simple elements and text ----

void c_xml_writer::marshal_element_impl(char const* name, c_untyped_marshal_bridge& bridge,
                                        s_ns_map const* map) {
  gathering const gathered(*this);
  std::size_t const count = bridge.count();
  for (std::size_t index = 0; index != count; ++index) {
    c_xml_writer_local const scope(*this);
    p_begin_element(name, map);
    if (!p_ask(bridge).is_value_empty(index)) {
      p_open_body();
      p_ask(bridge).write_value(index);
    }
    write_end_tag(name);
  }
}

void c_xml_writer::marshal_element_or_default_impl(char const* name, c_untyped_marshal_bridge& bridge,
                                                   c_untyped_validation_spec const& spec) {
  gathering const gathered(*this);
  if (bridge.count() == 0) return p_write_default_element(name, spec);
  marshal_element_impl(name, bridge, nullptr);
}

void c_xml_writer::marshal_element_list_impl(char const* name, c_untyped_marshal_list_bridge& bridge,
                                             s_ns_map const* map) {
  gathering const gathered(*this);
  std::size_t const count = bridge.count();
  for (std::size_t index = 0; index != count; ++index) {
    c_xml_writer_local const scope(*this);
    p_begin_element(name, map);
    if (p_ask(bridge).item_count(index) != 0) {
      p_open_body();
      p_write_items(bridge, index);
    }
    write_end_tag(name);
  }
}

void c_xml_writer::marshal_element_list_or_default_impl(char const* name,
                                                        c_untyped_marshal_list_bridge& bridge,
                                                        c_untyped_validation_spec const& spec) {
  gathering const gathered(*this);
  if (bridge.count() == 0) return p_write_default_element(name, spec);
  marshal_element_list_impl(name, bridge, nullptr);
}

void c_xml_writer::p_write_default_element(char const* name, c_untyped_validation_spec const& spec) {
  c_xml_writer_local const scope(*this);
  p_begin_element(name, nullptr);
  if (*spec.mp_default != '\0') {
    p_open_body();
    output_convert_to_xml(stream(), spec.mp_default);
  }
  write_end_tag(name);
}

void c_xml_writer::marshal_element_body_impl(char const*, c_untyped_marshal_bridge& bridge) {
  gathering const gathered(*this);
  if (bridge.is_value_empty(0)) return;
  p_open_body();
  p_ask(bridge).write_value(0);
}

void c_xml_writer::marshal_element_body_list_impl(char const*, c_untyped_marshal_list_bridge& bridge) {
  gathering const gathered(*this);
  if (bridge.item_count(0) == 0) return;
  p_open_body();
  p_write_items(bridge, 0);
}

// ---- Errors ----

elmx_error c_xml_writer::on_error(elmx_error code, std::string const&) { return code; }

elmx_error c_xml_writer::handle_error(elmx_error code, std::string const& item, char const*, int) {
  return on_error(code, item);
}

std::string& c_xml_writer::get_error_message(std::string* text) const {
  *text = m_debug_error.to_string();
  return *text;
}

std::string c_xml_writer::get_error_message() const {
  std::string text;
  return get_error_message(&text);
}

elmx_error c_xml_writer::capture_error(elmx_error code, std::string const& item, char const* file, int line) {
  constexpr int no_xml_line = -1;
  m_debug_error.set(code, item, file, line, no_xml_line);
  return code;
}

elmx_error c_xml_writer::report_error(elmx_error code, std::string const& item, char const* file, int line) {
  return handle_error(capture_error(code, item, file, line), item, file, line);
}

// ---- Bridges ----

bool c_untyped_marshal_bridge::is_multi() { return false; }

c_untyped_marshal_bridge::~c_untyped_marshal_bridge() = default;

bool c_untyped_marshal_list_bridge::is_multi() { return false; }

c_untyped_marshal_list_bridge::~c_untyped_marshal_list_bridge() = default;

}  // namespace lmx
