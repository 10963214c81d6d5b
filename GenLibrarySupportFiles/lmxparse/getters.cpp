#include "GenLibrarySupportFiles/lmxparse/getters.h"

#include <cstring>
#include <limits>

#include "GenLibrarySupportFiles/lmxparse/byte_classes.h"
#include "GenLibrarySupportFiles/lmxparse/entity_name_readers.h"
#include "GenLibrarySupportFiles/lmxparse/limits.h"

namespace lmx {

namespace {

unsigned char const* end_of_run(byte_window window, byte_class wanted) {
  unsigned char const* p = window.begin;
  while (p != window.end && is_in_class(*p, wanted)) ++p;
  return p;
}

char const* as_chars(unsigned char const* bytes) { return reinterpret_cast<char const*>(bytes); }

void append(std::string* out, unsigned char const* begin, unsigned char const* end) {
  out->append(as_chars(begin), static_cast<std::size_t>(end - begin));
}

bool in_range(int c, int low, int high) { return low <= c && c <= high; }

int byte_at(char const* bytes, int index) { return static_cast<unsigned char>(bytes[index]); }

constexpr int next_line = 0x85;         // NEL
constexpr int line_separator = 0x2028;  // both end a line like LF

c_external_transcoder_factory const* default_factory = nullptr;

}  // namespace

// ---- c_get_as_utf8 ----

c_external_transcoder::~c_external_transcoder() = default;

c_external_transcoder_factory::~c_external_transcoder_factory() = default;

c_get_as_utf8::c_get_as_utf8(c_read& read, c_error& error)
    : mr_read(read), mr_error(error), m_binder(error), mp_factory(default_factory) {
  m_binder.bind(this);
}

void c_get_as_utf8::set_default_external_transcoder_factory(c_external_transcoder_factory const& factory) {
  default_factory = &factory;
}

void c_get_as_utf8::clear_default_external_transcoder_factory() { default_factory = nullptr; }

void c_get_as_utf8::rewind() {
  m_line = 1;
  m_encoding = EXCE_UNKNOWN;
  m_last_char = 0;
  m_unget.clear();
  m_utf8_buffer[0] = '\0';
  mp_pending = nullptr;
  m_pending_end = false;
  m_bytes_read = 0;
  mp_transcoder.reset();
  p_leave_buffer();
  mr_read.rewind();
}

void c_get_as_utf8::error(elmx_error_type type, elmx_error code, char const* message) {
  mr_error.error(type, code, mr_read.source_name(), m_line, message);
}

void c_get_as_utf8::error(elmx_error_type type, elmx_error code, std::string const& message) {
  error(type, code, message.c_str());
}

// Folds CR, LF and CR LF to one LF each, and counts a line for each LF delivered. A pushed-back LF passes
// here again and counts again: reports may run ahead of the true line.
int c_get_as_utf8::get() {
  int c = p_get();
  if (c == '\n' && m_last_char == '\r') c = p_get();  // the LF of a CR LF already delivered
  m_last_char = c;
  if (c != '\r' && c != '\n') return c;
  if (m_line != std::numeric_limits<int>::max()) ++m_line;
  return '\n';
}

// The raw step: what was pushed back first, then the rest of a multi-byte character, then the source.
int c_get_as_utf8::p_get() {
  if (mr_error.has_fatal()) return -1;
  if (!m_unget.empty()) return m_unget.get();
  if (mp_pending != nullptr) {
    const int c = byte_at(mp_pending++, 0);
    if (*mp_pending == '\0') mp_pending = nullptr;
    return c;
  }
  if (m_pending_end) {
    m_pending_end = false;
    return -1;
  }
  return m_encoding == EXCE_EXTERNAL ? p_read_external_transcoded() : p_read_local_transcoded();
}

int c_get_as_utf8::p_read_external_transcoded() {
  const auto [first, further] = mp_transcoder->read();
  mp_pending = further != nullptr && *further != '\0' ? further : nullptr;
  return first;
}

int c_get_as_utf8::p_read_local_transcoded() {
  const int first = p_next_byte();
  if (first == -1) return -1;
  switch (m_encoding) {
    case EXCE_UNKNOWN: return p_resolve_initial_character_encoding(first);
    case EXCE_SINGLE_BYTE: return first <= 126 ? first : p_map_unicode_to_utf8(first);
    case EXCE_UTF8: return first <= 127 ? first : p_read_utf8_compound_char_sequence(first);
    case EXCE_UTF16_BE:
    case EXCE_UTF16_LE: return p_read_utf16(first);
    case EXCE_UCS2_BE: {
      const int second = p_next_byte();
      return second == -1 ? -1 : p_map_unicode_to_utf8(first * 256 + second);
    }
    case EXCE_UCS2_LE: {
      const int second = p_next_byte();
      return second == -1 ? -1 : p_map_unicode_to_utf8(second * 256 + first);
    }
    case EXCE_EXTERNAL: return first;
  }
  LMX_ASSERT_TEXT(false, "m_encoding is known");
  return -1;
}

int c_get_as_utf8::p_convert_utf16_bytes(int first, int second) const {
  if (first == -1 || second == -1) return -1;
  return m_encoding == EXCE_UTF16_BE ? first * 256 + second : second * 256 + first;
}

int c_get_as_utf8::p_read_utf16(int first) {
  const int unit = p_convert_utf16_bytes(first, p_next_byte());
  if (unit == -1) return -1;
  if (!in_range(unit, 0xD800, 0xDBFF)) return p_map_unicode_to_utf8(unit);
  const int third = p_next_byte();
  const int low = p_convert_utf16_bytes(third, third == -1 ? -1 : p_next_byte());
  if (low == -1) return -1;
  if (!in_range(low, 0xDC00, 0xDFFF)) {
    error(EET_FATAL, ELMX_BAD_CHAR_ENCODING, "Unrecognised character encoding");
    return -1;
  }
  return p_map_unicode_to_utf8(0x10000 + (unit & 1023) * 1024 + (low & 1023));
}

// A byte order mark counts only before an ASCII character; without one, the first character must be one
// that can begin a document, and its width tells UTF-8 from UTF-16.
int c_get_as_utf8::p_resolve_initial_character_encoding(int first) {
  const auto begins_document = [](int c) { return is_space(c) || c == '<'; };
  if (first == 0xFF && p_next_byte() == 0xFE) {
    const int c1 = p_next_byte();
    if (in_range(c1, 1, 127) && p_next_byte() == 0) {
      m_encoding = EXCE_UTF16_LE;
      return c1;
    }
  } else if (first == 0xFE && p_next_byte() == 0xFF) {
    const int c1 = p_next_byte();
    const int c2 = c1 == 0 ? p_next_byte() : -1;
    if (in_range(c2, 1, 127)) {
      m_encoding = EXCE_UTF16_BE;
      return c2;
    }
  } else if (first == 0xEF && p_next_byte() == 0xBB && p_next_byte() == 0xBF) {
    m_encoding = EXCE_UTF8;
    return p_next_byte();  // undecoded, as it is
  } else if (begins_document(first)) {
    const int next = p_next_byte();
    if (next == 0) {
      m_encoding = EXCE_UTF16_LE;
      return first;
    }
    m_encoding = EXCE_UTF8;
    if (next == -1) return first;
    p_read_single_utf8_compound_char_sequence(next, m_utf8_buffer);
    if (m_utf8_buffer[0] == '\0') {
      m_pending_end = true;
    } else {
      mp_pending = m_utf8_buffer;
    }
    return first;
  } else if (first == 0) {
    const int next = p_next_byte();
    if (begins_document(next)) {
      m_encoding = EXCE_UTF16_BE;
      return next;
    }
  }
  error(EET_FATAL, ELMX_BAD_CHAR_ENCODING, "Unrecognised character encoding");
  return -1;
}

int c_get_as_utf8::p_map_unicode_to_utf8(int code_point) {
  if (code_point == next_line || code_point == line_separator) code_point = '\n';
  unicode_char_to_utf8(code_point, m_utf8_buffer);
  return p_deliver_buffer();
}

int c_get_as_utf8::p_read_utf8_compound_char_sequence(int first) {
  p_read_single_utf8_compound_char_sequence(first, m_utf8_buffer);
  return m_utf8_buffer[0] == '\0' ? -1 : p_deliver_buffer();
}

// The first byte of the buffer now, the rest through `mp_pending`.
int c_get_as_utf8::p_deliver_buffer() {
  mp_pending = m_utf8_buffer[0] == '\0' || m_utf8_buffer[1] == '\0' ? nullptr : m_utf8_buffer + 1;
  return byte_at(m_utf8_buffer, 0);
}

// Reads the bytes that `first` announces. An invalid sequence, or one cut off, leaves `out` empty. NEL and
// LINE SEPARATOR become LF.
void c_get_as_utf8::p_read_single_utf8_compound_char_sequence(int first, char* out) {
  const int length = first > 251   ? 6
                     : first > 247 ? 5
                     : first > 239 ? 4
                     : first > 223 ? 3
                     : first > 191 ? 2
                                   : 1;
  out[0] = static_cast<char>(first);
  out[length] = '\0';
  for (int i = 1; i < length; ++i) {
    const int c = p_next_byte();
    if (c == -1) {
      out[0] = '\0';
      return;
    }
    out[i] = static_cast<char>(c);
  }
  if (std::strcmp(out, "\xC2\x85") == 0 || std::strcmp(out, "\xE2\x80\xA8") == 0) std::strcpy(out, "\n");
  if (!is_valid_utf8_char_sequence(out)) out[0] = '\0';
}

bool c_get_as_utf8::set_encoding(char const* name) {
  const auto is = [name](char const* known) {
    std::size_t i = 0;
    while (name[i] != '\0' && to_lower(byte_at(name + i, 0)) == to_lower(byte_at(known + i, 0))) ++i;
    return name[i] == '\0' && known[i] == '\0';
  };
  const elxp_char_encoding found = m_encoding;
  const bool is_utf16 = found == EXCE_UTF16_BE || found == EXCE_UTF16_LE;
  bool fits = false;
  if (is("ISO-10646-UCS-2")) {
    fits = is_utf16;
    if (fits) m_encoding = found == EXCE_UTF16_BE ? EXCE_UCS2_BE : EXCE_UCS2_LE;
  } else if (is("ISO-8859-1") || is("US-ASCII")) {
    m_encoding = EXCE_SINGLE_BYTE;  // stays so when the bytes do not fit
    fits = found == EXCE_UTF8;
  } else if (is("UTF-8")) {
    fits = found == EXCE_UTF8;
  } else if (is("UTF-16")) {
    fits = is_utf16;
  } else {
    return p_set_external_encoding(name);
  }
  if (!fits) {
    error(EET_FATAL, ELMX_ENCODING_MISMATCH, "Mis-match between specfied encoding and byte format");
  }
  return fits;
}

bool c_get_as_utf8::p_set_external_encoding(char const* name) {
  p_leave_buffer();  // the transcoder reads from the source by itself
  if (mp_factory != nullptr) mp_transcoder.reset(mp_factory->create(mr_read, mr_error, m_encoding, name));
  if (mp_transcoder == nullptr) {
    error(EET_FATAL, ELMX_BAD_CHAR_ENCODING, "Unknown character encoding specified");
    return false;
  }
  m_encoding = EXCE_EXTERNAL;
  return true;
}

// ---- UTF-8 ----

char* unicode_char_to_utf8(int code_point, char* out) {
  const auto cp = static_cast<unsigned>(code_point);
  char* p = out;
  const auto put = [&p](unsigned byte) { *p++ = static_cast<char>(byte); };
  const auto put_rest = [&](int shift) {
    for (; shift >= 0; shift -= 6) put(0x80u | ((cp >> shift) & 0x3Fu));
  };
  if (cp < 0x80) {
    put(cp);
  } else if (cp < 0x800) {
    put(0xC0u | (cp >> 6));
    put_rest(0);
  } else if (cp < 0x10000) {
    put(0xE0u | (cp >> 12));
    put_rest(6);
  } else {
    put(0xF0u | ((cp >> 18) & 0x0Fu));
    put_rest(12);
  }
  *p = '\0';
  return out;
}

bool utf8_to_unicode_char(char const* bytes, int* out) {
  const int first = byte_at(bytes, 0);
  int further = 0;
  if (first <= 127) {
    *out = first;
    return true;
  }
  if ((first & 0xE0) == 0xC0) {
    *out = first & 0x1F;
    further = 1;
  } else if ((first & 0xF0) == 0xE0) {
    *out = first & 0x0F;
    further = 2;
  } else if ((first & 0xF8) == 0xF0) {
    *out = first & 0x07;
    further = 3;
  } else {
    *out = -1;
    return false;
  }
  for (int i = 1; i <= further; ++i) {
    const int c = byte_at(bytes, i);
    if ((c & 0xC0) != 0x80) return false;
    *out = *out * 64 + (c & 0x3F);
  }
  return true;
}

bool is_valid_utf8_char_sequence(char const* bytes) {
  const int first = byte_at(bytes, 0);
  if (first < 0x80) return true;
  const int second = byte_at(bytes, 1);
  switch (first) {
    case 0xE0: return in_range(second, 0xA0, 0xBF);
    case 0xED: return in_range(second, 0x80, 0x9F);
    case 0xF0: return in_range(second, 0x90, 0xBF);
    case 0xF4: return in_range(second, 0x80, 0x8F);
    default: return in_range(first, 0xC2, 0xF3);
  }
}

// ---- c_get_with_entities ----

c_get_with_entities::c_get_with_entities(c_read& read, c_error& error, bool normalize_char_refs)
    : c_get_as_utf8(read, error), m_normalize_char_refs(normalize_char_refs) {}

void c_get_with_entities::rewind() {
  set_ws_mode(EXWS_PRESERVE);
  m_active.clear();  // first: it points into the values
  m_expanding.clear();
  m_general_entities.clear();
  m_parameter_entities.clear();
  m_entity_values.clear();
  m_expanded = 0;
  c_get_as_utf8::rewind();
}

int c_get_with_entities::p_get_from_entity() {
  if (has_fatal()) return -1;
  for (; !m_active.empty(); m_active.pop_back()) {
    c_dtd_active_entity& top = m_active.back();
    if (!top.unget_buffer().empty()) return top.unget_buffer().get();
    if (!top.at_end()) return p_charge(1) ? top.get() : -1;
  }
  return c_get_as_utf8::get();
}

void c_get_with_entities::unget(int c) {
  if (m_active.empty()) {
    c_get_as_utf8::unget(c);
  } else if (!has_fatal()) {
    m_active.back().unget_buffer().unget(c);
  }
}

// ---- Entities ----

void c_get_with_entities::p_add_entity(entities* to, std::string const& name, std::string const& value) {
  m_entity_values.push_back(value);
  to->set(name, &m_entity_values.back());
}

void c_get_with_entities::add_general_entity(std::string const& name, std::string const& value) {
  p_add_entity(&m_general_entities, name, value);
}

void c_get_with_entities::add_parameter_entity(std::string const& name, std::string const& value) {
  p_add_entity(&m_parameter_entities, name, value);
}

bool c_get_with_entities::select_parameter_entity(std::string const& name, bool* known) {
  std::string const* const* const value = m_parameter_entities.find(name);
  *known = value != nullptr;
  return value == nullptr || set_input_entity_value((*value)->c_str());
}

bool c_get_with_entities::p_refuse_entity(std::string const& message) {
  error(EET_FATAL, ELMX_BAD_DTD, message);
  return false;
}

// Entities can make much out of little. What they may cost grows with the document; a small one has a free
// start. References to characters cost too, since an entity may hold any number of them; what stands in the
// document itself is always paid for by its own bytes. A refusal is fatal, so in input it shows as the end.
bool c_get_with_entities::p_charge(unsigned long long cost) {
  m_expanded += cost;
  if (m_expanded <= limits::free_expansion || m_expanded / limits::expansion_factor <= bytes_read())
    return true;
  return p_refuse_entity("Entity expansion out of proportion");
}

bool c_get_with_entities::set_input_entity_value(char const* value) {
  for (c_dtd_active_entity const& active : m_active) {
    if (active.value() == value)
      return p_refuse_entity(std::string("Recursive entity definition for: ") + value);
  }
  if (m_active.size() == limits::active_entities) return p_refuse_entity("Entities nested too deep");
  if (!p_charge(limits::reference_cost)) return false;
  forget_mark();
  m_active.emplace_back(value);
  return true;
}

// The entity's text is appended. "&" and "%" alike start a reference in it, and the character right after
// such a reference is dropped: kept, existing data relies on it.
bool c_get_with_entities::p_append_entity(std::string const& value, std::string* out) {
  for (std::string const* expanding : m_expanding) {
    if (expanding == &value) return p_refuse_entity("Recursive entity definition for: " + value);
  }
  if (m_expanding.size() == limits::nested_entities_in_values)
    return p_refuse_entity("Entities nested too deep");
  if (!p_charge(limits::reference_cost)) return false;
  m_expanding.push_back(&value);
  bool good = true;
  for (char const* p = value.c_str(); good && *p != '\0'; ++p) {
    if (*p != '&' && *p != '%') {
      add_char_wsp(out, byte_at(p, 0), false);
      good = p_charge(1);
      continue;
    }
    ++p;
    c_entity_name_reader_for_entity reader(&p);
    good = select_general_entity(reader, out);
    if (*p == '\0') break;
  }
  m_expanding.pop_back();
  return good;
}

void c_get_with_entities::add_char_wsp(std::string* out, int c, bool is_char_ref) {
  const bool is_literal = is_char_ref && !m_normalize_char_refs;
  switch (m_ws_mode) {
    case EXWS_PRESERVE: out->push_back(static_cast<char>(c)); return;
    case EXWS_REPLACE: out->push_back(!is_literal && is_space(c) ? ' ' : static_cast<char>(c)); return;
    case EXWS_COLLAPSE:
      if ((!is_literal && is_space(c)) || c == ' ') {
        m_pending_space = true;
        return;
      }
      if (m_pending_space && !out->empty()) out->push_back(' ');
      m_pending_space = false;
      out->push_back(static_cast<char>(c));
      return;
  }
  LMX_ASSERT_TEXT(false, "m_ws_mode is known");
}

void c_get_with_entities::add_run_wsp(std::string* out, char const* bytes, std::size_t length) {
  if (m_ws_mode == EXWS_PRESERVE) {
    out->append(bytes, length);
    return;
  }
  char const* const end = bytes + length;
  while (bytes != end) {
    char const* const run = bytes;
    while (bytes != end && !is_space(*bytes)) ++bytes;
    if (bytes != run) {
      add_char_wsp(out, byte_at(run, 0), false);  // brings a pending blank along
      out->append(run + 1, bytes);
    }
    for (; bytes != end && is_space(*bytes); ++bytes) add_char_wsp(out, byte_at(bytes, 0), false);
  }
}

bool c_get_with_entities::select_general_entity(c_entity_name_reader& reader, std::string* out) {
  int c = reader.get();
  if (c == '#') return insert_character_entity(reader, out);
  std::string& name = m_entity_name;
  name.clear();
  // The first character is taken as it comes, without a check.
  while (c != -1 && (name.empty() || is_name_char(c))) {
    name.push_back(static_cast<char>(c));
    c = reader.get();
  }
  if (c != ';') reader.unget(c);

  struct predefined {
    char const* name;
    char character;
  };
  static constexpr predefined table[] = {
      {"lt", '<'}, {"gt", '>'}, {"amp", '&'}, {"apos", '\''}, {"quot", '"'}};
  for (const predefined& row : table) {
    if (name == row.name) {
      if (!p_charge(limits::reference_cost)) return reader.m_push_as_input;
      out->push_back(row.character);  // past the white space handling: a pending blank stays pending
      return true;
    }
  }
  if (std::string const* const* const value = m_general_entities.find(name)) {
    if (!reader.m_push_as_input) return p_append_entity(**value, out);
    set_input_entity_value((*value)->c_str());  // a refusal is fatal, and shows as the end of the input
    return true;
  }
  out->reserve(out->size() + name.size() + 2);
  out->push_back('&');
  out->append(name);
  if (c == ';') out->push_back(';');
  std::string().swap(name);  // of any length, and not needed again
  return false;
}

bool c_get_with_entities::insert_character_entity(c_entity_name_reader& reader, std::string* out) {
  int c = reader.get();
  const bool is_hex = c == 'x';
  if (!is_hex && !is_digit(c)) return false;  // `c` is used up
  if (is_hex) c = reader.get();
  const int base = is_hex ? 16 : 10;
  bool has_digits = false;
  int value = 0;
  while (is_hex ? is_hex_digit(c) : is_digit(c)) {
    has_digits = true;
    const int digit = is_digit(c) ? c - '0' : to_lower(c) - 'a' + 10;
    if (value <= limits::highest_char_ref)
      value = value * base + digit;  // beyond the limit it only has to stay there
    c = reader.get();
  }
  if (c != ';') reader.unget(c);
  if (!has_digits || value > limits::highest_char_ref) return false;
  if (!p_charge(limits::reference_cost)) return reader.m_push_as_input;
  if (value == next_line || value == line_separator) {
    add_char_wsp(out, '\n', true);
  } else if (value <= 0x7F) {
    add_char_wsp(out, value, true);
  } else {
    char encoded[8];
    out->append(unicode_char_to_utf8(value, encoded));  // a pending blank stays pending here too
  }
  return true;
}

// ---- c_get_for_xml ----

c_get_for_xml::c_get_for_xml(c_read& read, c_error& error, bool normalize_char_refs)
    : c_get_with_entities(read, error, normalize_char_refs) {}

void c_get_for_xml::rewind() { c_get_with_entities::rewind(); }

int c_get_for_xml::get_non_space() {
  int c;
  do {
    consume_plain(end_of_run(plain_window(), plain_blank));
    c = get();
  } while (is_space(c));
  return c;
}

int c_get_for_xml::get_name_chars(std::string* out) {
  for (;;) {
    const byte_window window = plain_window();
    unsigned char const* const end = end_of_run(window, plain_name);
    append(out, window.begin, end);
    consume_plain(end);
    const int c = get();
    if (!is_name_char(c)) return c;
    out->push_back(static_cast<char>(c));
  }
}

void c_get_for_xml::take_plain_value(std::string* out, int quote) {
  const byte_window window = plain_window();
  unsigned char const* p = window.begin;
  while (p != window.end && is_in_class(*p, plain_value) && *p != quote) ++p;
  append(out, window.begin, p);
  consume_plain(p);
}

void c_get_for_xml::take_plain_text(std::string* out) {
  const byte_window window = plain_window();
  unsigned char const* const end = end_of_run(window, plain_text);
  add_run_wsp(out, as_chars(window.begin), static_cast<std::size_t>(end - window.begin));
  consume_plain(end);
}

bool c_get_for_xml::read_specified_string_from_input(char const* text) {
  for (; *text != '\0'; ++text) {
    if (get() != byte_at(text, 0)) return false;
  }
  return true;
}

bool c_get_for_xml::get_simple_quoted_value(std::string* out) {
  out->clear();
  const int quote = get_non_space();
  if (quote != '"' && quote != '\'') return false;
  for (;;) {
    const int c = get();
    if (c == quote) return true;
    if (c == -1) return false;
    out->push_back(static_cast<char>(c));
  }
}

bool c_get_for_xml::skip_comment() {
  std::size_t hyphens = 0;
  for (;;) {
    const int c = get();
    if (c == -1) return false;
    if (c == '-') {
      ++hyphens;
      continue;
    }
    if (c == '>' && hyphens >= 2) {
      if (hyphens > 2) error(EET_WARNING, ELMX_BAD_COMMENT, "End of comment not Well-Formed");
      return true;
    }
    hyphens = 0;
  }
}

bool c_get_for_xml::skip_PI() {
  bool after_question_mark = false;
  for (;;) {
    const int c = get();
    if (c == -1) return false;
    if (c == '>' && after_question_mark) return true;
    after_question_mark = c == '?';
  }
}

bool c_get_for_xml::move_to_start_tag_end(bool* is_empty) {
  const auto store = [is_empty](bool value) {
    if (is_empty != nullptr) *is_empty = value;
  };
  int quote = 0;
  for (;;) {
    const int c = get();
    if (c == -1) return false;
    if (quote != 0) {
      if (c == quote) quote = 0;
    } else if (c == '"' || c == '\'') {
      quote = c;
    } else if (c == '>') {
      store(false);
      return true;
    } else if (c == '/') {
      break;
    }
  }
  bool good = true;
  for (;;) {
    const int c = get();
    if (c == -1 || c == '>') {  // the end of the input ends the tag as well
      store(true);
      return good;
    }
    if (is_space(c) || !good) continue;
    good = false;
    error(EET_ERROR, ELMX_BAD_END_TAG,
          std::string("Illegal character(s) after / at end of tag - ") + static_cast<char>(c));
  }
}

// Entered after the first letter of the name. `*c` is what follows the name: "=", and then the value has been
// read, or whatever stands in its place.
bool c_get_for_xml::p_read_pseudo_attribute(char const* rest_of_name, std::string* value, int* c) {
  if (!read_specified_string_from_input(rest_of_name)) return false;
  *c = get_non_space();
  return *c != '=' || get_simple_quoted_value(value);
}

bool c_get_for_xml::read_xml_decl() {
  std::string value;
  int c = get_non_space();
  if (c != 'v' || !p_read_pseudo_attribute("ersion", &value, &c) || c != '=') {
    error(EET_ERROR, ELMX_BAD_XML_DECL, "Version not present in XML Decl");
    return false;
  }
  if (value != "1.0" && value != "1.1") {
    error(EET_ERROR, ELMX_BAD_XML_VERSION, "XML version " + value + " not understood");
    return false;
  }
  c = get_non_space();
  if (c == 'e') {
    if (!p_read_pseudo_attribute("ncoding", &value, &c)) return false;
    if (c == '=') {
      if (!set_encoding(value.c_str())) return false;
      c = get_non_space();
    }
  }
  if (c == 's') {
    if (!p_read_pseudo_attribute("tandalone", &value, &c)) return false;
    if (c == '=') c = get_non_space();
  }
  return c == '?' && get() == '>';
}

}  // namespace lmx
