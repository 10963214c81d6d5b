#include "GenLibrarySupportFiles/lmxparse/c_xml_reader.h"

#include <cstring>

#include "GenLibrarySupportFiles/lmxinternals/bridges.h"

namespace lmx {

namespace {

// Most names have three letters.
bool are_equal(char const* a, char const* b, std::size_t length) {
  return length == 3 ? a[1] == b[1] && a[2] == b[2] && a[0] == b[0] : std::memcmp(a, b, length) == 0;
}

// Rows of both kinds of table begin alike. The first byte and the length sort out nearly every other row.
template <class Row>
Row const* find_row(Row const* rows, int ns_id, char const* name, std::size_t length) {
  if (rows == nullptr) return nullptr;
  for (Row const* row = rows; row->mp_name != nullptr; ++row) {
    if (row->mp_name[0] == name[0] && row->m_length == length && row->m_ns_id == ns_id &&
        are_equal(row->mp_name, name, length)) {
      return row;
    }
  }
  return nullptr;
}

constexpr s_event_map xsi_attributes[] = {
    {nsid_xsi, "type", 4, EXE_XSI_TYPE},
    {nsid_xsi, "nil", 3, EXE_XSI_NIL},
    {nsid_xsi, "noNamespaceSchemaLocation", 25, EXE_XSI_NO_NAMESPACE_SCHEMA_LOCATION},
    {nsid_xsi, "schemaLocation", 14, EXE_XSI_SCHEMA_LOCATION},
    {0, nullptr, 0, 0},
};

}  // namespace

c_xml_reader_local::c_xml_reader_local(c_xml_reader& reader)
    : c_xml_local(reader.mp_local), mr_reader(reader), mp_previous(reader.mp_local) {
  reader.mp_local = this;
}

c_xml_reader_local::~c_xml_reader_local() { mr_reader.mp_local = mp_previous; }

c_xml_reader::c_xml_reader(c_read& read, bool normalise)
    : c_xml(read, m_error, normalise), m_root_local(*this) {}

c_xml_reader::~c_xml_reader() = default;

// ---- Hooks ----

elmx_error c_xml_reader::on_error(elmx_error code, std::string const&) { return code; }

elmx_error c_xml_reader::handle_error(elmx_error code, std::string const& item, char const*, int) {
  return on_error(code, item);
}

std::string& c_xml_reader::get_error_message(std::string* text) const {
  *text = m_debug_error.to_string();
  return *text;
}

elmx_error c_xml_reader::on_unknown_attribute(std::string const&, std::vector<char> const&, char const*,
                                              int) {
  return ELMX_OK;
}

elmx_error c_xml_reader::on_unknown_element(std::string const&, std::vector<char> const&, char const*, int) {
  return ELMX_OK;
}

std::string c_xml_reader::get_error_message() const {
  std::string text;
  get_error_message(&text);
  return text;
}

// ---- Errors ----

elmx_error c_xml_reader::capture_error(elmx_error code, std::string const& item, char const* file, int line) {
  // The end of the input is then only what the fatal error caused: tell the cause.
  if (code == ELMX_UNEXPECTED_EOM && m_error.has_fatal()) code = m_error.last_code();
  m_debug_error.set(code, item, file, line, c_xml::line());
  return code;
}

elmx_error c_xml_reader::report_error(elmx_error code, std::string const& item, char const* file, int line) {
  return handle_error(capture_error(code, item, file, line), item, file, line);
}

elmx_error c_xml_reader::report_attribute_error(elmx_error code) {
  return report_error(code, "@" + m_name, m_code_file, m_code_line);
}

// ---- Names ----

void c_xml_reader::p_tokenise(s_event_map const* map, elxp_attr_elem kind) {
  // An unprefixed attribute is in no namespace, whatever the default is.
  const bool is_plain_attribute = kind == EXAE_ATTRIBUTE && !m_cracked_name.has_prefix();
  const int ns_id = is_plain_attribute ? static_cast<int>(nsid_none) : m_cracked_name.ns_id();
  s_event_map const* const row = find_row(ns_id == nsid_xsi ? xsi_attributes : map, ns_id,
                                          m_cracked_name.local_name(), m_cracked_name.local_length());
  m_event = row == nullptr ? static_cast<int>(EXE_UNKNOWN) : row->m_event;
}

int c_xml_reader::tokenise(s_event_map const* map, std::string const& name, elxp_attr_elem kind) {
  m_cracked_name.set(mp_local, name);
  tokenise(map, kind);
  return m_event;
}

bool c_xml_reader::p_find_known_element() {
  if (find_row(mp_known_elements, m_cracked_name.get_element_ns_id(), m_cracked_name.local_name(),
               m_cracked_name.local_length()) == nullptr) {
    return false;
  }
  if (mp_known_elements == mp_constant_known) m_cracked_name.m_found.known_in = mp_known_elements;
  return true;
}

void c_xml_reader::set_ns_map(s_ns_map const* map) {
  for (s_ns_map const* row = map; row->mp_uri != nullptr; ++row) add_namespace(row->mp_uri, row->m_id);
  for (auto const& [prefix, uri] : m_namespace_mappings) {
    m_root_local.add_namespace(prefix.c_str(), add_namespace(uri.c_str()));
  }
}

void c_xml_reader::add_namespace_mapping(std::string const& prefix, std::string const& uri) {
  m_namespace_mappings.emplace_back(prefix, uri);
}

// ---- Events ----

bool c_xml_reader::get_attribute_event(s_event_map const* map, elmx_error* error, std::string* name) {
  *error = ELMX_OK;
  m_event = get_attribute_name(name, false);
  switch (m_event) {
    case EXE_FATAL:
    case EXE_ERROR: *error = m_error.last_code(); return true;
    case EXE_EOM: *error = ELMX_UNEXPECTED_EOM; return true;
    case EXE_TOKEN: break;
    default: return false;
  }
  m_cracked_name.set_for_attribute(mp_local, *name);
  if (map != nullptr) tokenise(map, EXAE_ATTRIBUTE);
  return true;
}

int c_xml_reader::get_attribute_event(s_event_map const* map, std::string* name) {
  elmx_error error;
  get_attribute_event(map, &error, name);
  return m_event;
}

// What is left to do for an item that is no known element. Unknown ones are skipped until there is another.
void c_xml_reader::p_finish_element_event(elmx_error* error, std::string* name) {
  for (bool skipped = false;; skipped = true) {
    switch (m_event) {
      case EXE_TOKEN: break;
      case EXE_FATAL:
      case EXE_ERROR: *error = m_error.last_code(); return;
      case EXE_EOM: *error = ELMX_UNEXPECTED_EOM; return;
      case EXE_ELEMENT_END:
        if (skipped) m_event = EXE_SKIPPED_TO_END;
        return;
      default: return;
    }
    if (p_is_known_element(*name)) return;
    *error = on_unknown_element(*name, m_name_stack, m_code_file, m_code_line);
    if (*error != ELMX_OK) {
      capture_error(*error, *name, m_code_file, m_code_line);
      return;
    }
    if (!skip_rest_of_element(*name)) {
      *error = ELMX_BADLY_FORMED;
      return;
    }
    p_next_item(name);
  }
}

int c_xml_reader::get_element_event(s_event_map const* map, std::string* name) {
  elmx_error error;
  get_element_event(map, &error, name);
  return m_event;
}

elmx_error c_xml_reader::ignore_element(s_event_map const* map) {
  if (!skip_rest_of_element(m_name)) return ELMX_BADLY_FORMED;
  elmx_error error;
  get_element_event(map, &error, &m_name);
  return error;
}

bool c_xml_reader::get_end_tag(s_event_map const* map, std::string const& name, int* event,
                               elmx_error* error) {
  std::string end_name;
  get_element_event(map, error, &end_name);
  *event = m_event;
  if (m_event == EXE_ELEMENT_END && end_name == name) return true;
  if (m_event == EXE_EOM) {
    report_error(ELMX_UNEXPECTED_EOM, name, m_code_file, m_code_line);  // no verdict helps here
    *error = ELMX_UNEXPECTED_EOM;
    return false;
  }
  *error = report_error(ELMX_BAD_END_OF_ELEMENT, name, m_code_file, m_code_line);
  return *error == ELMX_OK;
}

bool c_xml_reader::skip_start_tag(bool* is_empty) {
  bool empty = false;
  const bool good = move_to_start_tag_end(&empty);
  m_event = empty ? EXE_ELEMENT_END : EXE_START_TAG_END;
  if (is_empty != nullptr) *is_empty = empty;
  return good;
}

bool c_xml_reader::get_element_value(std::string* out, elmx_whitespace mode) {
  if (m_event == EXE_ELEMENT_END) {
    out->clear();
    return true;
  }
  const bool good = c_xml::get_element_value(out, mode, true);
  m_event = EXE_TEXT;
  return good;
}

bool c_xml_reader::get_simple_type_value(std::string const&, elmx_whitespace mode, std::string* value,
                                         elmx_error* error, bool* is_empty) {
  value->clear();
  if (m_event == EXE_ELEMENT_END) return true;
  bool empty = false;
  const bool good = skip_start_tag(&empty);
  if (is_empty != nullptr) *is_empty = empty;
  if (!good) {
    *error = ELMX_BAD_END_OF_START_TAG;
    return false;
  }
  if (empty) return true;
  if (!get_element_value(value, mode)) {
    *error = ELMX_UNABLE_TO_READ_ELEMENT_VALUE;
    return false;
  }
  if (m_event == EXE_ELEMENT_END || is_element_end_tag(m_name)) return true;
  *error = ELMX_BAD_END_OF_ELEMENT;
  return false;
}

// ---- Values ----

elmx_error c_xml_reader::unmarshal_attribute_value_impl(c_untyped_unmarshal_bridge& bridge,
                                                        c_untyped_validation_spec const& spec) {
  if (bridge.is_value_set()) {
    const elmx_error error = report_attribute_error(ELMX_ATTRIBUTE_ALREADY_READ);
    if (error != ELMX_OK) return error;
  }
  if (!get_attribute_value(&m_value, spec.m_whitespace)) {
    const elmx_error error = report_attribute_error(ELMX_UNABLE_TO_READ_ATTRIBUTE_VALUE);
    if (error != ELMX_OK) return error;
  }
  const elmx_error error = spec.mp_lexical_validator(*this, m_value);
  return error != ELMX_OK ? error : bridge.convert(m_value);
}

elmx_error c_xml_reader::unmarshal_element_value_impl(c_untyped_unmarshal_bridge& bridge,
                                                      c_untyped_validation_spec const& spec) {
  elmx_error error = bridge.read_body();
  if (error != ELMX_OK) return error;
  if (m_event != EXE_ELEMENT_END && !is_element_end_tag(m_name)) {
    error = report_error(ELMX_BAD_END_OF_ELEMENT, m_name, m_code_file, m_code_line);
    if (error != ELMX_OK) return error;
  }
  m_event = EXE_ELEMENT_END;
  if (m_value.empty()) m_value = spec.mp_default;
  error = spec.mp_lexical_validator(*this, m_value);
  return error != ELMX_OK ? error : bridge.convert(m_value);
}

elmx_error c_xml_reader::unmarshal_child_element_impl(c_untyped_unmarshal_bridge& bridge,
                                                      c_untyped_validation_spec const& spec,
                                                      s_event_map const* map) {
  if (!skip_start_tag(nullptr)) {
    const elmx_error error = report_error(ELMX_BAD_END_OF_START_TAG, m_name, m_code_file, m_code_line);
    if (error != ELMX_OK) return error;
  }
  elmx_error error = unmarshal_element_value_impl(bridge, spec);
  if (error == ELMX_OK && map != nullptr) get_element_event(map, &error, &m_name);
  return error;
}

namespace detail {

elmx_error read_body(c_xml_reader& reader, elmx_whitespace whitespace) {
  if (reader.get_element_value(&reader.m_value, whitespace)) return ELMX_OK;
  return reader.report_error(ELMX_UNABLE_TO_READ_ELEMENT_VALUE, reader.m_name, reader.m_code_file,
                             reader.m_code_line);
}

}  // namespace detail

bool c_untyped_unmarshal_bridge::first_query() { return false; }

c_untyped_unmarshal_bridge::~c_untyped_unmarshal_bridge() = default;

elmx_error lexical_validator_empty(c_xml_reader& reader, std::string const& text) {
  if (text.empty()) return ELMX_OK;
  return reader.report_error(ELMX_VALUE_BAD_FORMAT, reader.m_name, reader.m_code_file, reader.m_code_line);
}

}  // namespace lmx
