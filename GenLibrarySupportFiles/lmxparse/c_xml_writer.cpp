// A start tag stays open until something follows: only then is it known whether the element ends in "/>". So
// the ">" of a parent is written by its first child, one scope further in, and that of an element with text
// by its text.
#include "GenLibrarySupportFiles/lmxparse/c_xml_writer.h"

#include <cstring>
#include <locale>
#include <ostream>
#include <stdexcept>

#include "GenLibrarySupportFiles/lmxinternals/marshal_bridges.h"
#include "GenLibrarySupportFiles/lmxparse/value_output.h"

namespace lmx {

namespace {

constexpr char const xsi_uri[] = "http://www.w3.org/2001/XMLSchema-instance";

// The formats of writers that are given none. Not exported: hosts reach them through functions alone, so
// none of them can end up with a copy of its own.
struct s_default_formats {
  std::string tab = "\t";
  std::string nl = "\n";
  std::string attribute_tab = "\t";
  std::string attribute_nl = "\n";

  // While this holds, attributes follow what is set for elements.
  bool are_pairs_equal() const { return attribute_tab == tab && attribute_nl == nl; }
};

// Made on first use: a host may build a writer before this file's own objects would be there.
s_default_formats& default_formats() {
  static s_default_formats formats;
  return formats;
}

char const* first_given(char const* text, char const* other, std::string const& fallback) {
  return text != nullptr ? text : other != nullptr ? other : fallback.c_str();
}

}  // namespace

// ---- Scopes ----

c_xml_writer_local::c_xml_writer_local(c_xml_writer& writer)
    : mp_writer(&writer), mp_parent(writer.mp_local), m_body_open(false) {
  writer.mp_local = this;
}

c_xml_writer_local::~c_xml_writer_local() {
  // A scope that was only told its writer has hidden nothing.
  if (mp_writer != nullptr && mp_writer->mp_local == this) mp_writer->mp_local = mp_parent;
}

// ---- Construction ----

c_xml_writer::c_xml_writer(std::ostream& stream, char const* tab, char const* nl, char const* attribute_tab,
                           char const* attribute_nl)
    : mp_os(&stream),
      mp_local(&m_root_local),
      m_tab(first_given(tab, nullptr, default_formats().tab)),
      m_nl(first_given(nl, nullptr, default_formats().nl)),
      m_attribute_tab(first_given(attribute_tab, tab, default_formats().attribute_tab)),
      m_attribute_nl(first_given(attribute_nl, nl, default_formats().attribute_nl)) {
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
  p_write("<?xml version=\"1.0\" encoding=\"UTF-8\"");
  if ((flags & include_standalone) != 0) p_write(" standalone=\"yes\"");
  p_write("?>");
  p_write(m_nl);
}

// ---- Default formats ----

void c_xml_writer::set_default_tab(std::string const& tab) {
  if (default_formats().are_pairs_equal()) default_formats().attribute_tab = tab;
  default_formats().tab = tab;
}

void c_xml_writer::set_default_nl(std::string const& nl) {
  if (default_formats().are_pairs_equal()) default_formats().attribute_nl = nl;
  default_formats().nl = nl;
}

void c_xml_writer::set_default_attribute_tab(std::string const& tab) {
  default_formats().attribute_tab = tab;
}

void c_xml_writer::set_default_attribute_nl(std::string const& nl) { default_formats().attribute_nl = nl; }

std::string const& c_xml_writer::get_default_tab() { return default_formats().tab; }
std::string const& c_xml_writer::get_default_nl() { return default_formats().nl; }
std::string const& c_xml_writer::get_default_attribute_tab() { return default_formats().attribute_tab; }
std::string const& c_xml_writer::get_default_attribute_nl() { return default_formats().attribute_nl; }

// ---- Bytes ----

// Unformatted, so that a width left in the stream pads nothing. Null does what its formatted insertion would.
void c_xml_writer::p_write(char const* text) {
  if (text == nullptr) {
    mp_os->setstate(std::ios_base::badbit);
  } else {
    mp_os->write(text, static_cast<std::streamsize>(std::strlen(text)));
  }
}

void c_xml_writer::p_write(std::string const& text) {
  mp_os->write(text.data(), static_cast<std::streamsize>(text.size()));
}

void c_xml_writer::p_write_tabs(int count, std::string const& tab) {
  for (int i = 0; i < count; ++i) p_write(tab);
}

// ---- Tags ----

void c_xml_writer::write_start_tag(char const* name) {
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
  for (s_ns_map const* row = mp_ns_map; row->mp_uri != nullptr; ++row) {
    p_write_namespace(row->mp_prefix, row->mp_uri);
  }
  for (auto const& [prefix, uri] : m_namespaces) p_write_namespace(prefix.c_str(), uri.c_str());
  if (force_xsi || !m_schema_locations.empty()) p_write_namespace("xsi", xsi_uri);
  if (!m_schema_locations.empty()) p_write_schema_locations();
  m_ns_attrs_written = true;
}

void c_xml_writer::p_write_namespace(char const* prefix, char const* uri) {
  write_attribute_break(false);
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

void c_xml_writer::p_begin_attribute(char const* name) {
  write_attribute_break(false);
  p_write(name);
  p_write("=\"");
}

void c_xml_writer::p_write_default_attribute(char const* name, c_untyped_validation_spec const& spec) {
  p_begin_attribute(name);
  output_convert_to_xml(*mp_os, spec.mp_default);
  p_write("\"");
}

void c_xml_writer::marshal_attribute_impl(char const* name, c_untyped_marshal_bridge& bridge) {
  if (bridge.count() == 0) return;
  p_begin_attribute(name);
  bridge.write_value(0);
  p_write("\"");
}

void c_xml_writer::marshal_attribute_or_default_impl(char const* name, c_untyped_marshal_bridge& bridge,
                                                     c_untyped_validation_spec const& spec) {
  if (bridge.count() == 0) return p_write_default_attribute(name, spec);
  marshal_attribute_impl(name, bridge);
}

void c_xml_writer::marshal_attribute_list_impl(char const* name, c_untyped_marshal_list_bridge& bridge) {
  if (bridge.count() == 0) return;
  p_begin_attribute(name);
  p_write_items(bridge, 0);
  p_write("\"");
}

void c_xml_writer::marshal_attribute_list_or_default_impl(char const* name,
                                                          c_untyped_marshal_list_bridge& bridge,
                                                          c_untyped_validation_spec const& spec) {
  if (bridge.count() == 0) return p_write_default_attribute(name, spec);
  marshal_attribute_list_impl(name, bridge);
}

void c_xml_writer::p_write_items(c_untyped_marshal_list_bridge& bridge, std::size_t index) {
  std::size_t const item_count = bridge.item_count(index);
  for (std::size_t item = 0; item != item_count; ++item) {
    if (item != 0) p_write(" ");
    bridge.write_item(index, item);
  }
}

// ---- Simple elements and text ----

void c_xml_writer::marshal_element_impl(char const* name, c_untyped_marshal_bridge& bridge,
                                        s_ns_map const* map) {
  std::size_t const count = bridge.count();
  for (std::size_t index = 0; index != count; ++index) {
    c_xml_writer_local const scope(*this);
    p_begin_element(name, map);
    if (!bridge.is_value_empty(index)) {
      p_open_body();
      bridge.write_value(index);
    }
    write_end_tag(name);
  }
}

void c_xml_writer::marshal_element_or_default_impl(char const* name, c_untyped_marshal_bridge& bridge,
                                                   c_untyped_validation_spec const& spec) {
  if (bridge.count() == 0) return p_write_default_element(name, spec);
  marshal_element_impl(name, bridge, nullptr);
}

void c_xml_writer::marshal_element_list_impl(char const* name, c_untyped_marshal_list_bridge& bridge,
                                             s_ns_map const* map) {
  std::size_t const count = bridge.count();
  for (std::size_t index = 0; index != count; ++index) {
    c_xml_writer_local const scope(*this);
    p_begin_element(name, map);
    if (bridge.item_count(index) != 0) {
      p_open_body();
      p_write_items(bridge, index);
    }
    write_end_tag(name);
  }
}

void c_xml_writer::marshal_element_list_or_default_impl(char const* name,
                                                        c_untyped_marshal_list_bridge& bridge,
                                                        c_untyped_validation_spec const& spec) {
  if (bridge.count() == 0) return p_write_default_element(name, spec);
  marshal_element_list_impl(name, bridge, nullptr);
}

void c_xml_writer::p_write_default_element(char const* name, c_untyped_validation_spec const& spec) {
  c_xml_writer_local const scope(*this);
  p_begin_element(name, nullptr);
  if (*spec.mp_default != '\0') {
    p_open_body();
    output_convert_to_xml(*mp_os, spec.mp_default);
  }
  write_end_tag(name);
}

void c_xml_writer::marshal_element_body_impl(char const*, c_untyped_marshal_bridge& bridge) {
  if (bridge.is_value_empty(0)) return;
  p_open_body();
  bridge.write_value(0);
}

void c_xml_writer::marshal_element_body_list_impl(char const*, c_untyped_marshal_list_bridge& bridge) {
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

void detail::throw_range_check(std::size_t index, std::size_t size) {
  throw std::out_of_range("vector::_M_range_check: " + std::to_string(index) + " >= " + std::to_string(size));
}

}  // namespace lmx
