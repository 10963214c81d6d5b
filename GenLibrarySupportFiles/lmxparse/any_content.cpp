// What the schema leaves open: names and their namespaces, look-ahead at attributes, and content captured as
// text. The element classes of this format have no open content; hosts that read other vocabularies use this.

#include <algorithm>

#include "GenLibrarySupportFiles/lmxparse/c_xml.h"
#include "GenLibrarySupportFiles/lmxparse/c_xml_reader.h"

namespace lmx {

// Both fit into the string itself: nothing is allocated while the library is loaded.
const std::string c_xml::k_non_namespace;
const std::string c_xml::k_namespace_not_found(" ");

// ---- Names ----

void c_xml::get_local_name(std::string const& name, std::string* out) {
  const std::size_t colon = name.find(':');
  *out = colon == std::string::npos ? name : name.substr(colon + 1);
}

void c_xml::get_namespace_prefix(std::string const& name, std::string* out) {
  const std::size_t colon = name.find(':');
  *out = colon == std::string::npos ? std::string() : name.substr(0, colon);
}

int c_xml::get_ns_id(c_xml_local const* local, std::string const& name) const {
  std::string prefix;
  get_namespace_prefix(name, &prefix);
  return local->find_namespace_id(prefix);
}

std::string& c_xml_reader::get_namespace(std::string const& name, std::string* out) const {
  const int id = get_ns_id(mp_local, name);
  char const* const uri = id == nsid_not_found ? k_namespace_not_found.c_str() : find_namespace_from_id(id);
  return *out = uri == nullptr ? k_namespace_not_found : std::string(uri);
}

bool c_xml_reader::is_valid_qname(std::string const& text) const {
  // The first character may be a colon, so "a::b" passes where "a" is bound; later ones may not.
  const auto is_part = [](std::string const& part) {
    return !part.empty() && is_name_start(static_cast<unsigned char>(part.front())) &&
           std::all_of(part.begin() + 1, part.end(),
                       [](char c) { return c != ':' && is_name_char(static_cast<unsigned char>(c)); });
  };
  c_cracked_name cracked;
  cracked.set(mp_local, text);
  if (cracked.ns_id() == nsid_not_found) return false;
  std::string prefix;
  get_namespace_prefix(text, &prefix);
  return (!cracked.has_prefix() || is_part(prefix)) && is_part(cracked.local_name());
}

// ---- Attributes ----

bool c_xml::get_named_attribute(c_xml_local const* local, int ns_id, std::string const& name,
                                std::string* value) {
  p_copy_plain_attributes();
  skip_attribute_value();
  bool found = false;
  std::string attribute, local_name;
  while (!found && m_attributes.has_next()) {
    m_attributes.take_name(&attribute);
    if (ns_id == nsid_none) {
      found = attribute == name && attribute.find(':') == std::string::npos;
    } else {
      get_local_name(attribute, &local_name);
      found = local_name == name && get_ns_id(local, attribute) == ns_id;
    }
    if (found) {
      found = p_get_captured_value(&m_attributes, value, EXWS_PRESERVE);
      break;
    }
    m_attributes.skip_value();
  }
  m_attributes.m_index = 0;
  return found;
}

bool c_xml::get_xsi_type(c_xml_local const* local, int* ns_id, std::string* type) {
  std::string value;
  if (!get_named_attribute(local, nsid_xsi, "type", &value)) return false;
  *ns_id = get_ns_id(local, value);
  get_local_name(value, type);
  return true;
}

bool c_xml::get_namespace_attribute_name(std::string* name) {
  name->clear();
  if (!m_ns_attributes.has_next()) return false;
  m_ns_attributes.take_name(name);
  return true;
}

bool c_xml::get_namespace_attribute_value(std::string* value) {
  return p_get_captured_value(&m_ns_attributes, value, EXWS_COLLAPSE);
}

bool c_xml::skip_namespace_attribute_value() {
  m_ns_attributes.skip_value();
  return true;
}

// ---- Elements as text ----

// As they stand in the document, references unexpanded. Empties the capture.
void c_xml::p_add_any_attribute_data(std::string* out, c_attribute_data* data) {
  std::string name;
  for (data->m_index = 0; data->has_next(); data->skip_value()) {
    data->take_name(&name);
    char const* const value = data->m_data.c_str() + data->m_index;
    out->append(" ").append(name).append("=").append(value).push_back(*value);
  }
  data->clear();
}

// Appends the start tag of `name`. The end of the input ends the tag.
bool c_xml::p_open_any_element(std::string const& name, std::string* out, bool* is_empty) {
  out->append("<").append(name);
  p_copy_plain_attributes();
  p_add_any_attribute_data(out, &m_ns_attributes);
  p_add_any_attribute_data(out, &m_attributes);
  int quote = 0;
  for (;;) {
    const int c = m_getter.get();
    if (c == -1 || (c == '>' && quote == 0)) {
      out->push_back('>');
      *is_empty = false;
      return true;
    }
    out->push_back(static_cast<char>(c));
    if (quote != 0) {
      if (c == quote) quote = 0;
    } else if (c == '"' || c == '\'') {
      quote = c;
    } else if (c == '/') {
      for (int d = m_getter.get(); d != -1 && d != '>';) d = m_getter.get();
      out->push_back('>');
      *is_empty = true;
      return true;
    }
  }
}

c_xml::any_tag c_xml::p_get_any_tag_data(std::string* out) {
  out->clear();
  int c = m_getter.get();
  while (is_space(c)) {
    m_getter.add_char_wsp(out, c, false);
    c = m_getter.get();
  }
  if (c == -1) return any_tag::failure;
  if (c != '<') {
    for (; c != '<' && c != -1; c = m_getter.get()) m_getter.add_char_wsp(out, c, false);
    m_getter.unget(c);
    return any_tag::text;
  }
  out->clear();
  c = m_getter.get();
  if (c == '!') {
    c = m_getter.get();
    if (c == '[') {
      std::string section;
      if (!p_read_cdata(&section)) return any_tag::failure;
      out->append("<![CDATA[").append(section).append("]]>");
    } else if (c == '-' && m_getter.get() == '-') {
      m_getter.skip_comment();
    }
    return any_tag::text;
  }
  if (c == '?') {
    m_getter.skip_PI();
    return any_tag::text;
  }
  return c == -1 || is_space(c) ? any_tag::failure : p_get_any_tag_name(out, c);
}

// After "<" and the character behind it.
c_xml::any_tag c_xml::p_get_any_tag_name(std::string* out, int first) {
  const bool is_end = first == '/';
  int c = is_end ? m_getter.get() : first;
  if (is_space(c)) return any_tag::failure;
  for (; c != -1 && c != '/' && c != '>' && !is_space(c); c = m_getter.get())
    out->push_back(static_cast<char>(c));
  if (c == -1) return any_tag::failure;
  if (!is_end) {
    m_getter.unget(c);
    return any_tag::start;
  }
  if (c == '>' || m_getter.get_non_space() == '>') return any_tag::end;
  return any_tag::failure;
}

// The open elements' names stand one after the other in one string: depth costs heap and no stack.
bool c_xml::p_get_any_element(std::string const& name_in, std::string* out) {
  std::string open_names;
  std::vector<std::size_t> offsets;
  std::string data = name_in;
  any_tag tag = any_tag::start;
  do {
    switch (tag) {
      case any_tag::text: out->append(data); break;
      case any_tag::start: {
        bool is_empty = false;
        p_open_any_element(data, out, &is_empty);
        if (is_empty) break;
        offsets.push_back(open_names.size());
        open_names += data;
        break;
      }
      case any_tag::end:
        if (open_names.compare(offsets.back(), std::string::npos, data) != 0) return false;
        open_names.resize(offsets.back());
        offsets.pop_back();
        out->append("</").append(data).push_back('>');
        break;
      case any_tag::failure: return false;
    }
    if (offsets.empty()) return true;
    tag = p_get_any_tag_data(&data);
  } while (true);
}

bool c_xml::get_any_element(std::string const& name, std::string* out, elmx_whitespace mode, bool) {
  out->clear();
  m_getter.set_ws_mode(mode);
  return p_get_any_element(name, out);
}

bool c_xml::get_nested_element_value(std::string* value, std::string* end_name, elmx_whitespace mode, bool) {
  value->clear();
  end_name->clear();
  m_getter.set_ws_mode(mode);
  p_forget_attributes();
  std::string data;
  for (;;) {
    switch (p_get_any_tag_data(&data)) {
      case any_tag::text: value->append(data); break;
      case any_tag::start:
        if (!p_get_any_element(data, value)) return false;
        break;
      case any_tag::end: *end_name = data; return true;
      case any_tag::failure: return false;
    }
  }
}

bool c_xml_reader::get_nested_element_value(std::string* value, std::string* end_name, elmx_whitespace mode,
                                            bool unused) {
  value->clear();
  if (m_event == EXE_ELEMENT_END) return true;
  if (!c_xml::get_nested_element_value(value, end_name, mode, unused)) return false;
  m_event = EXE_ELEMENT_END;
  return true;
}

bool c_xml_reader::get_element_ur_value(std::string const& name, std::string* value, elmx_error* error,
                                        bool* is_empty) {
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
  std::string end_name;
  const bool read = get_nested_element_value(value, &end_name, EXWS_PRESERVE, false);
  if (read && end_name == name) return true;
  *error = read ? ELMX_BAD_END_OF_ELEMENT : ELMX_UNABLE_TO_READ_ELEMENT_VALUE;
  return false;
}

// ---- Looking ahead ----

bool get_instance_namespace(c_xml_reader& reader, std::string* out) {
  bool found = false;
  {
    const c_xml_reader_local scope(reader);
    std::string name;
    elmx_error error;
    reader.get_element_event(&error, &name);
    if (error == ELMX_OK && reader.m_event == EXE_TOKEN) {
      found = reader.get_namespace(name, out) != c_xml::k_namespace_not_found;
    }
  }
  reader.rewind();
  return found;
}

namespace {

struct must_understand_query {
  c_xml_reader& reader;
  std::string const& ns;
  std::string const& name;
  elmx_must_understand (*check)(std::string const&);
};

// The attributes of one element, up to the end of its start tag.
elmx_must_understand check_attributes(must_understand_query const& query) {
  std::string attribute, local_name, ns, value;
  elmx_error error;
  while (query.reader.get_attribute_event(nullptr, &error, &attribute)) {
    if (error != ELMX_OK) return EMU_INVALID;
    c_xml::get_local_name(attribute, &local_name);
    if (local_name != query.name || query.reader.get_namespace(attribute, &ns) != query.ns) {
      query.reader.skip_attribute_value();
      continue;
    }
    if (!query.reader.get_attribute_value(&value, EXWS_COLLAPSE)) return EMU_INVALID;
    const elmx_must_understand verdict = query.check(value);
    if (verdict != EMU_FALSE) return verdict;
  }
  return EMU_FALSE;
}

// One element with all that it holds.
elmx_must_understand check_element(must_understand_query const& query, std::string const& element) {
  c_xml_reader& reader = query.reader;
  if (!reader.m_stack_guard.has_room()) return EMU_INVALID;
  elmx_must_understand verdict = check_attributes(query);
  if (verdict != EMU_FALSE || reader.m_event == EXE_ELEMENT_END) return verdict;
  for (;;) {
    const c_xml_reader_local scope(reader);
    std::string name;
    elmx_error error;
    reader.get_element_event(&error, &name);
    if (error != ELMX_OK) return EMU_INVALID;
    switch (reader.m_event) {
      case EXE_TEXT: break;
      case EXE_ELEMENT_END: return name == element ? EMU_FALSE : EMU_INVALID;
      case EXE_TOKEN:
        verdict = check_element(query, name);
        if (verdict != EMU_FALSE) return verdict;
        break;
      default: return EMU_INVALID;
    }
  }
}

}  // namespace

elmx_must_understand has_must_understand(c_xml_reader& reader, std::string const& ns, std::string const& name,
                                         elmx_must_understand (*check)(std::string const&)) {
  reader.m_stack_guard.begin();
  elmx_must_understand verdict = EMU_INVALID;
  {
    const c_xml_reader_local scope(reader);
    std::string element;
    elmx_error error;
    reader.get_element_event(&error, &element);
    if (error == ELMX_OK && reader.m_event == EXE_TOKEN)
      verdict = check_element({reader, ns, name, check}, element);
  }
  reader.rewind();
  return verdict;
}

}  // namespace lmx
