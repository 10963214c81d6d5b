#include "GenLibrarySupportFiles/lmxparse/c_xml.h"

#include <algorithm>
#include <cstring>

#include "GenLibrarySupportFiles/lmxinternals/words.h"
#include "GenLibrarySupportFiles/lmxparse/byte_classes.h"
#include "GenLibrarySupportFiles/lmxparse/entity_name_readers.h"

namespace lmx {

namespace {

constexpr std::size_t usual_attribute_bytes = 150;

std::string shown(int c) { return c == -1 ? std::string() : std::string(1, static_cast<char>(c)); }

// True for "xmlns" and for anything that begins "xmlns:".
bool declares_namespace(char const* name, std::size_t length) {
  return length >= 5 && std::memcmp(name, "xmlns", 5) == 0 && (length == 5 || name[5] == ':');
}

char const* as_chars(unsigned char const* bytes) { return reinterpret_cast<char const*>(bytes); }

std::size_t distance(unsigned char const* begin, unsigned char const* end) {
  return static_cast<std::size_t>(end - begin);
}

// White space from `p` on; the line feeds in it are added to `*line_feeds`.
unsigned char const* skip_space(unsigned char const* p, unsigned char const* end, int* line_feeds) {
  for (;;) {
    if (p == end) return p;
    if (*p == '\n') {
      ++*line_feeds;
      p = words::skip_blanks(p + 1, end);  // the next line's indentation
    } else if (is_in_class(*p, plain_blank)) {
      ++p;
    } else {
      return p;
    }
  }
}

unsigned char const* skip_name(unsigned char const* p, unsigned char const* end) {
  while (p != end && is_in_class(*p, plain_name)) ++p;
  return p;
}

// The first byte that is `quote` or must not be taken in bulk.
unsigned char const* skip_value(unsigned char const* p, unsigned char const* end, unsigned char quote) {
  p = words::skip_literal(p, end, quote);
  if (p != end && *p == quote) return p;
  while (p != end && *p != quote && (is_in_class(*p, plain_literal) || *p == '"' || *p == '\'')) ++p;
  return p;
}

bool is_tag_end(unsigned char const* p, unsigned char const* end) {
  return end - p >= 2 && (*p == '>' || (*p == '/' && p[1] == '>'));
}

// True where four bytes are the beginning of a usual attribute: ` A="`, with any byte for the letter.
bool begins_usual_attribute(unsigned char const* p) {
  return ((words::load_4(p) ^ words::load_4(" \0=\"")) & words::load_4("\xFF\0\xFF\xFF")) == 0;
}

// Captures attributes as long as they are ` A="value"` with a plain value of less than sixteen bytes, and
// adds their number to `*count`. Returns where it stopped. Nothing is read from `readable_end` on.
unsigned char const* capture_usual_attributes(unsigned char const* p, unsigned char const* readable_end,
                                              plain_attribute* attributes, std::size_t most,
                                              std::size_t* count) {
  constexpr std::ptrdiff_t beginning = 4;
  constexpr unsigned window = 16;
  while (readable_end - p > beginning + std::ptrdiff_t{window} && begins_usual_attribute(p) &&
         is_in_class(p[1], plain_name_start) && *count != most) {
    unsigned const length = words::before_stop(p + beginning, '"');
    if (length == window || p[beginning + length] != '"') break;
    attributes[(*count)++] = {as_chars(p + 1), 1, length};
    p += beginning + length + 1;
  }
  return p;
}

}  // namespace

void c_attribute_data::take_name(std::string* name) {
  name->clear();
  if (m_data.empty()) return;
  name->assign(m_data.c_str() + m_index);
  m_index = std::min(m_index + name->size() + 1, m_data.size() - 1);
}

void c_attribute_data::skip_value() {
  if (m_data.empty()) return;
  m_index = std::min(m_index + std::strlen(m_data.c_str() + m_index) + 1, m_data.size() - 1);
}

c_xml::c_xml(c_read& read, c_error& error, bool normalize_char_refs)
    : m_getter(read, error, normalize_char_refs),
      m_internal_dtd(m_getter),
      m_plain_name(words::load_4("PNT ")) {
  m_getter.set_tenant(&m_tenant);
  m_attributes.m_data.reserve(usual_attribute_bytes);
  m_ns_attributes.m_data.reserve(usual_attribute_bytes);
}

void c_xml::rewind() {
  m_namespaces.clear();
  m_internal_dtd.reset();
  m_declaration_read = false;
  m_doctype_read = false;
  m_past_prolog = false;
  p_forget_attributes();
  m_getter.rewind();
}

// ---- The next item ----

elxp_xml_event c_xml::p_not_well_formed() {
  m_getter.error(EET_ERROR, ELMX_NOT_WELL_FORMED, "XML not Well-Formed");
  return EXE_ERROR;
}

// An item of any kind; EXE_UNKNOWN for what is none: a reference that gives nothing, a comment, an
// instruction.
elxp_xml_event c_xml::p_get_item(c_xml_local* local, std::string* name) {
  name->clear();
  int c = m_getter.get_non_space();
  if (c == -1) {
    m_past_prolog = true;
    return EXE_EOM;
  }
  if (c == '&') {
    if (!p_select_input_entity(name)) return EXE_ERROR;
    return name->empty() ? EXE_UNKNOWN : p_get_text(name, -1);
  }
  if (c != '<') return p_get_text(name, c);
  c = m_getter.get();
  if (is_name_start(c)) return p_get_start_tag(local, name, c);
  if (c == '/') return p_get_end_tag(name);
  if (c == '?') return p_handle_lt_qmark() ? EXE_UNKNOWN : EXE_ERROR;
  if (c == '!') {
    elxp_xml_event event = EXE_UNKNOWN;
    if (p_handle_lt_pling(name, &event)) return EXE_UNKNOWN;
    LMX_ASSERT(event != EXE_UNKNOWN);
    m_past_prolog = true;
    return event;
  }
  p_not_well_formed();
  m_getter.move_to_start_tag_end(nullptr);
  return EXE_ERROR;
}

// A tag that lies whole in the source's buffer: its name, single line feeds and other white space between
// quoted attributes, no reference, no declaration of a namespace. EXE_UNKNOWN, with nothing taken, for
// anything else; so whatever is reported is reported on the other road.
//
// Taken is what a reader of single characters would have taken: an end tag, or a start tag up to its end.
elxp_xml_event c_xml::p_get_plain_item(c_xml_local const* local, std::string* name) {
  const byte_window window = m_getter.line_window();
  int line_feeds = 0;
  unsigned char const* p = skip_space(window.begin, window.end, &line_feeds);
  constexpr std::ptrdiff_t looked_at = 6;  // "</", three letters and what ends them
  if (window.end - p < looked_at || *p != '<') return EXE_UNKNOWN;
  const bool is_end_tag = *++p == '/';
  if (is_end_tag) ++p;
  unsigned char const* const begin = p;
  if (words::load_4(p) == m_plain_name) {  // one of a run of siblings, say
    p += plain_name_length;
  } else {
    if (!is_in_class(*p, is_end_tag ? plain_name : plain_name_start)) return EXE_UNKNOWN;
    p = skip_name(p, window.end);
  }
  const std::size_t length = distance(begin, p);
  if (is_end_tag) {
    if (p == window.end || *p++ != '>') return EXE_UNKNOWN;
  } else {
    // What stops the name is pushed back, and a line end would then count twice.
    if (p == window.end || *p == '\n') return EXE_UNKNOWN;
    std::size_t count = 0;
    p = capture_usual_attributes(p, window.end, m_plain, most_plain_attributes, &count);
    if (!is_tag_end(p, window.end)) {
      p = p_capture_plain_attributes({p, window.end}, local == nullptr, &count, &line_feeds);
      if (p == nullptr) {
        // With a place of theirs gone, the attributes of the tag before are; the other road forgets them too.
        if (count != 0) m_plain_next = m_plain_count = 0;
        return EXE_UNKNOWN;
      }
    }
    m_attributes.clear();
    m_ns_attributes.clear();
    m_plain_count = count;
    m_plain_next = 0;
    m_value_pending = false;
    m_attributes_cut_off = false;
    if (length == plain_name_length) m_plain_name = words::load_4(begin);
  }
  copy_name(name, as_chars(begin), length);
  m_getter.consume_lines(p, line_feeds);
  if (!is_end_tag) m_getter.set_mark();
  m_past_prolog = true;
  return is_end_tag ? EXE_ELEMENT_END : EXE_TOKEN;
}

// Captures what follows the first `*count` attributes, and adds to their number. Returns where the tag ends,
// at its ">" or "/>"; null when it is not plain.
unsigned char const* c_xml::p_capture_plain_attributes(byte_window window, bool take_declarations,
                                                       std::size_t* count, int* line_feeds) {
  unsigned char const* const end = window.end;
  for (unsigned char const* p = window.begin;; ++p) {
    p = skip_space(p, end, line_feeds);
    if (is_tag_end(p, end)) return p;
    unsigned char const* const name = p;
    p = skip_name(p, end);
    const std::size_t name_length = distance(name, p);
    if (end - p < 3 || *p != '=' || (p[1] != '"' && p[1] != '\'')) return nullptr;
    if (!is_in_class(*name, plain_name_start) || *count == most_plain_attributes) return nullptr;
    if (!take_declarations && declares_namespace(as_chars(name), name_length)) return nullptr;
    unsigned char const quote = p[1];
    unsigned char const* const value = p + 2;
    p = skip_value(value, end, quote);
    if (p == end || *p != quote || p + 1 == end) return nullptr;
    m_plain[(*count)++] = {as_chars(name), name_length, distance(value, p)};
  }
}

void c_xml::p_do_copy_plain_attributes() {
  std::string& data = m_attributes.m_data;
  data.clear();
  for (std::size_t i = 0; i != m_plain_count; ++i) {
    if (i == m_plain_next && !m_value_pending) m_attributes.m_index = data.size();
    data.append(m_plain[i].name, m_plain[i].name_length).push_back('\0');
    if (i == m_plain_next && m_value_pending) m_attributes.m_index = data.size();
    data.append(m_plain[i].value() - 1, m_plain[i].value_length + 1).push_back('\0');
  }
  if (m_plain_next == m_plain_count) m_attributes.m_index = data.size();
  m_attributes.close();
  m_plain_count = 0;
  m_plain_next = 0;
  m_getter.forget_mark();  // the end is for those who have taken all attributes
}

elxp_xml_event c_xml::p_get_start_tag(c_xml_local* local, std::string* name, int first) {
  name->push_back(static_cast<char>(first));
  const int stopper = m_getter.get_name_chars(name);
  if (stopper == -1) return p_not_well_formed();
  m_getter.unget(stopper);
  if (!p_capture_attributes(local)) return EXE_ERROR;
  m_past_prolog = true;
  return EXE_TOKEN;
}

elxp_xml_event c_xml::p_get_end_tag(std::string* name) {
  int c = m_getter.get_name_chars(name);
  if (name->empty()) return EXE_ERROR;
  if (is_space(c)) c = m_getter.get_non_space();
  if (c != '>') return p_not_well_formed();
  m_past_prolog = true;
  return EXE_ELEMENT_END;
}

elxp_xml_event c_xml::p_get_text(std::string* name, int first) {
  if (first != -1) name->push_back(static_cast<char>(first));
  m_past_prolog = true;
  return p_get_xml_text(name) ? EXE_TEXT : EXE_ERROR;
}

// After "<?". False when reading can not go on. Where "xml" differs, the differing character is used up,
// so an instruction as short as "<?x?>" runs on to the next "?>".
bool c_xml::p_handle_lt_qmark() {
  if (!m_getter.read_specified_string_from_input("xml") || !is_space(m_getter.get()))
    return m_getter.skip_PI();
  if (m_past_prolog || m_declaration_read) {
    m_getter.error(EET_FATAL, ELMX_BAD_XML_DECL, "XML declaration not at start of document");
    return false;
  }
  m_declaration_read = true;
  return m_getter.read_xml_decl();
}

// After "<!". True to go on with the next item; else `*event` is what to return.
bool c_xml::p_handle_lt_pling(std::string* name, elxp_xml_event* event) {
  *event = EXE_ERROR;
  const int c = m_getter.get();
  if (c == '[') {
    name->clear();
    *event = p_read_cdata(name) ? EXE_TEXT : p_not_well_formed();
    return false;
  }
  if (c == '-' && m_getter.get() == '-') return m_getter.skip_comment();
  if (c == 'D' && m_getter.read_specified_string_from_input("OCTYPE")) return p_handle_doctype();
  m_getter.move_to_start_tag_end(nullptr);
  return false;
}

bool c_xml::p_handle_doctype() {
  if (m_past_prolog || m_doctype_read) {
    m_getter.error(EET_ERROR, ELMX_BAD_DTD,
                   m_past_prolog ? "Document Type Declaration not at start of document"
                                 : "Document Type Declaration already read");
    return false;
  }
  if (!m_internal_dtd.read_doctype_decl()) return false;
  m_doctype_read = true;
  return true;
}

// After "<![". The section's text goes to `*out` as it is. The end of the input ends the section like its
// "]]>", of which the brackets may have come.
bool c_xml::p_read_cdata(std::string* out) {
  if (!m_getter.read_specified_string_from_input("CDATA[")) {
    p_not_well_formed();
    return false;
  }
  std::size_t brackets = 0;
  for (;;) {
    const int c = m_getter.get();
    if (c == ']') {
      ++brackets;
      continue;
    }
    if ((c == '>' || c == -1) && brackets >= 2) {
      out->append(brackets - 2, ']');
      return true;
    }
    out->append(brackets, ']');
    if (c == -1) return true;
    brackets = 0;
    out->push_back(static_cast<char>(c));
  }
}

bool c_xml::p_select_entity(c_entity_name_reader& reader, std::string* out) {
  return m_getter.select_general_entity(reader, out);
}

bool c_xml::p_select_input_entity(std::string* out) {
  c_entity_name_reader_for_c_get reader(m_getter);
  reader.m_push_as_input = true;
  return p_select_entity(reader, out);
}

bool c_xml::p_get_xml_text(std::string* out) {
  for (;;) {
    m_getter.take_plain_text(out);
    const int c = m_getter.get();
    if (c == '<' || c == -1) {
      m_getter.unget(c);
      return true;
    }
    if (c == '&') {
      if (!p_select_input_entity(out)) return false;
    } else {
      m_getter.add_char_wsp(out, c, false);
    }
  }
}

// ---- Attributes ----

bool c_xml::p_capture_attributes(c_xml_local* local) {
  p_forget_attributes();
  m_attributes_cut_off = false;
  std::string& data = m_attributes.m_data;
  for (;;) {
    int c = m_getter.get_non_space();
    if (!is_name_start(c)) {
      m_getter.unget(c);
      m_attributes.close();
      return c != -1;
    }
    const std::size_t name_offset = data.size();
    data.push_back(static_cast<char>(c));
    c = m_getter.get_name_chars(&data);
    m_getter.unget(c);
    bool captured;
    if (local != nullptr &&
        declares_namespace(data.c_str() + name_offset, std::strlen(data.c_str() + name_offset))) {
      captured = p_capture_declaration(local, data.c_str() + name_offset);
      data.resize(name_offset);
    } else {
      data.push_back('\0');
      captured = p_capture_attribute_value(&m_attributes, nullptr);
    }
    if (!captured) {
      m_attributes.clear();
      return false;
    }
  }
}

// Names and URIs of any length come this way, so each is held as seldom as can be.
bool c_xml::p_capture_declaration(c_xml_local* local, char const* name) {
  std::string& data = m_ns_attributes.m_data;
  const std::size_t length = std::strlen(name);
  data.reserve(data.size() + length + usual_attribute_bytes);
  data.append(name, length + 1);
  std::size_t value_offset = 0;
  if (!p_capture_attribute_value(&m_ns_attributes, &value_offset)) return false;
  p_declare_namespace(local, length > 6 ? name + 6 : "", data.c_str() + value_offset);
  return true;
}

// An empty URI takes a prefix back: it then reads as undeclared, and the default namespace as none.
void c_xml::p_declare_namespace(c_xml_local* local, char const* prefix, char const* raw_uri) {
  std::string uri;
  uri.reserve(std::strlen(raw_uri));
  c_entity_name_reader_for_c_str reader(raw_uri);
  for (int c = reader.get(); c != -1; c = reader.get()) {
    if (c != '&') {
      uri.push_back(static_cast<char>(c));
    } else if (!p_select_entity(reader, &uri)) {
      break;  // what could be built has to do
    }
  }
  const int id = !uri.empty()      ? add_namespace(uri.c_str())
                 : *prefix == '\0' ? static_cast<int>(nsid_none)
                                   : static_cast<int>(nsid_not_found);
  local->add_namespace(prefix, id);
}

// A NUL byte counts as the end: the captured form could not hold it.
bool c_xml::p_capture_attribute_value(c_attribute_data* data, std::size_t* value_offset) {
  int c = m_getter.get_non_space();
  if (c == -1) {
    m_getter.error(EET_FATAL, ELMX_UNEXPECTED_EOM, "Unexpected end of file");
    return false;
  }
  if (c != '=') {
    m_getter.error(EET_FATAL, ELMX_NOT_WELL_FORMED,
                   "Schema is not Well Formed (expected '=', got '" + shown(c) + "')");
    return false;
  }
  const int quote = m_getter.get_non_space();
  c = quote;
  if (quote == '"' || quote == '\'') {
    data->m_data.push_back(static_cast<char>(quote));
    if (value_offset != nullptr) *value_offset = data->m_data.size();
    for (;;) {
      m_getter.take_plain_value(&data->m_data, quote);
      c = m_getter.get();
      if (c == quote || c == -1 || c == 0) break;
      data->m_data.push_back(static_cast<char>(c));
    }
    data->m_data.push_back('\0');
    if (c == quote) return true;
  }
  m_getter.error(EET_FATAL, ELMX_NOT_WELL_FORMED,
                 "Schema is not Well Formed (expected '\"' or ''', got " + shown(c) + ")");
  return false;
}

elxp_xml_event c_xml::get_attribute_name(std::string* name, bool in_decl) {
  if (!in_decl) {
    elxp_xml_event const end = take_plain_tag_end(name);
    if (end != EXE_UNKNOWN) return end;
  }
  plain_attributes_view const plain = plain_attributes();
  if (plain.begin != plain.end) {
    copy_name(name, plain.begin->name, plain.begin->name_length);
    m_value_pending = true;
    return EXE_TOKEN;
  }
  if (m_value_pending) p_copy_plain_attributes();
  name->clear();
  if (m_attributes.has_next()) {
    m_attributes.take_name(name);
    m_value_pending = true;
    return EXE_TOKEN;
  }
  int c = m_getter.get_non_space();
  if (c == '>') return EXE_START_TAG_END;
  if (c == (in_decl ? '?' : '/')) {
    c = m_getter.get_non_space();
    if (c == '>') return EXE_ELEMENT_END;
  }
  m_attributes_cut_off = c == -1;
  m_getter.error(EET_ERROR, ELMX_NOT_WELL_FORMED, "XML not well-formed");
  return EXE_ERROR;
}

bool c_xml::get_attribute_value(std::string* out, elmx_whitespace mode) {
  const bool value_pending = m_value_pending;
  m_value_pending = false;
  if (value_pending && m_plain_count == 0) return p_get_captured_value(&m_attributes, out, mode);
  out->clear();
  m_getter.set_ws_mode(mode);
  if (!value_pending) return false;
  plain_attribute const& attribute = m_plain[m_plain_next++];
  m_getter.add_run_wsp(out, attribute.value(), attribute.value_length);
  return true;
}

// The value at the capture's index, which moves past it whether it can be expanded or not.
bool c_xml::p_get_captured_value(c_attribute_data* data, std::string* out, elmx_whitespace mode) {
  out->clear();
  m_getter.set_ws_mode(mode);
  if (!data->has_next()) return false;
  std::string const& bytes = data->m_data;
  const std::size_t end = data->m_index + std::strlen(bytes.c_str() + data->m_index);
  bool expanded = true;
  for (++data->m_index; expanded && data->m_index < end;) {
    char const* const begin = bytes.data() + data->m_index;
    void const* const reference = std::memchr(begin, '&', end - data->m_index);
    const std::size_t length = reference == nullptr
                                   ? end - data->m_index
                                   : static_cast<std::size_t>(static_cast<char const*>(reference) - begin);
    m_getter.add_run_wsp(out, begin, length);
    data->m_index += length;
    if (reference == nullptr) break;
    ++data->m_index;
    c_entity_name_reader_for_attribute_data reader(*data);
    expanded = p_select_entity(reader, out);
  }
  data->m_index = std::min(end + 1, bytes.size() - 1);
  return expanded;
}

bool c_xml::skip_attribute_value() {
  if (m_value_pending && m_plain_count != 0) {
    ++m_plain_next;
  } else if (m_value_pending) {
    m_attributes.skip_value();
  }
  m_value_pending = false;
  return true;
}

// ---- Content ----

bool c_xml::get_element_value(std::string* out, elmx_whitespace mode, bool expand_entities) {
  out->clear();
  m_getter.set_ws_mode(mode);
  for (;;) {
    m_getter.take_plain_text(out);
    int c = m_getter.get();
    if (c == -1) {
      m_getter.error(EET_ERROR, ELMX_UNEXPECTED_EOM, "Premature end of file encountered");
      return false;
    }
    if (c == '&' && expand_entities) {
      if (!p_select_input_entity(out)) return false;
      continue;
    }
    if (c != '<') {
      m_getter.add_char_wsp(out, c, false);
      continue;
    }
    c = m_getter.get();
    if (c == '?') {
      m_getter.skip_PI();  // one that is cut off shows as the end of the input in the next round
      continue;
    }
    if (c != '!') {  // a tag: the value ends here
      m_getter.unget(c);
      m_getter.unget('<');
      return true;
    }
    c = m_getter.get();
    if (c == '-' && m_getter.get() == '-') {
      m_getter.skip_comment();
    } else if (c != '[' || !p_read_cdata(out)) {
      m_getter.error(EET_ERROR, ELMX_NOT_WELL_FORMED, "XML not well-formed");
      return false;
    }
  }
}

bool c_xml::is_element_end_tag(std::string const& name) {
  if (m_getter.get_non_space() != '<' || m_getter.get() != '/') return false;
  for (const char expected : name) {
    if (m_getter.get() != static_cast<unsigned char>(expected)) return false;
  }
  const int c = m_getter.get();
  return c == '>' || (is_space(c) && m_getter.get_non_space() == '>');
}

bool c_xml::skip_rest_of_empty_element(std::string const& name) {
  bool is_empty = false;
  return move_to_start_tag_end(&is_empty) && (is_empty || is_element_end_tag(name));
}

bool c_xml::skip_rest_of_element(std::string const& name) {
  bool is_empty = false;
  if (!move_to_start_tag_end(&is_empty)) return false;
  return is_empty || skip_element_body(name);
}

void c_xml::p_tags_do_not_match(char const* start, std::string const& end) {
  std::string message;
  message.reserve(std::strlen(start) + end.size() + 64);  // names of any length: held once
  message.append("Element start tag (").append(start);
  message.append(") and end tag (").append(end).append(") do not match");
  m_getter.error(EET_ERROR, ELMX_NOT_WELL_FORMED, message);
}

// The open elements' names stand one after the other in one string, so depth costs a few bytes a level.
// Skipped content declares no namespaces: nothing in it is ever looked up.
bool c_xml::skip_element_body(std::string const& name_in) {
  std::string open_names = name_in;
  std::vector<std::size_t> offsets{0};
  std::string name;
  while (!offsets.empty()) {
    switch (get_element_name(nullptr, &name)) {
      case EXE_TEXT: break;
      case EXE_TOKEN: {
        bool is_empty = false;
        if (!move_to_start_tag_end(&is_empty)) return false;
        if (is_empty) break;
        offsets.push_back(open_names.size());
        open_names += name;
        break;
      }
      case EXE_ELEMENT_END:
        if (open_names.compare(offsets.back(), std::string::npos, name) != 0) {
          p_tags_do_not_match(open_names.c_str() + offsets.back(), name);
          return false;
        }
        open_names.resize(offsets.back());
        offsets.pop_back();
        break;
      default: return false;
    }
  }
  return true;
}

}  // namespace lmx
