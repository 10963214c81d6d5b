// From bytes to characters. Three classes, each over the one before: `c_get_as_utf8` turns the source's
// bytes into UTF-8, folds line ends and counts lines; `c_get_with_entities` adds references and white space
// modes; `c_get_for_xml` adds the small scans that need no tag state.
//
// A character travels as an int from 0 to 255, one byte of UTF-8 at a time; -1 is the end of the input.
// The path for one character is general; plain ASCII that already lies in the source's buffer can be taken
// in bulk through `plain_window`, which is empty whenever anything out of the ordinary is going on.
#pragma once

#include <deque>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "GenLibrarySupportFiles/lmxinternals/api.h"
#include "GenLibrarySupportFiles/lmxinternals/c_repository.h"
#include "GenLibrarySupportFiles/lmxinternals/characters.h"
#include "GenLibrarySupportFiles/lmxparse/c_error.h"
#include "GenLibrarySupportFiles/lmxparse/c_read.h"
#include "GenLibrarySupportFiles/lmxparse/transcoder.h"

namespace lmx {

class c_entity_name_reader;

/// What happens to white space while a value is read (XSD facet whiteSpace).
enum elmx_whitespace : int {
  EXWS_PRESERVE = 0,  ///< Characters are kept as they are.
  EXWS_REPLACE = 1,   ///< Each white space character becomes one blank.
  EXWS_COLLAPSE = 2,  ///< Runs become one blank; leading and trailing white space goes.
};

/// Up to three characters pushed back, last in first out. A fourth stops the process.
class ISOXML_API c_unget_buffer {
 public:
  void unget(int c) {
    LMX_ASSERT(m_free_index < size);
    m_values[m_free_index++] = c;
  }
  int get() {
    LMX_ASSERT(m_free_index > 0);
    return m_values[--m_free_index];
  }
  bool empty() const { return m_free_index == 0; }
  void clear() { m_free_index = 0; }

 protected:
  static constexpr unsigned size = 3;
  int m_values[size] = {};
  unsigned m_free_index = 0;  ///< How many are in use.
};

/// A run of bytes that may be taken as they are.
struct byte_window {
  unsigned char const* begin;
  unsigned char const* end;
};

/// One who keeps addresses of bytes in the source's buffer.
class ISOXML_API buffer_tenant {
 public:
  /// Called before the bytes in the buffer change: what is still needed of them has to be copied now.
  virtual void move_out() = 0;

 protected:
  ~buffer_tenant() = default;
};

class ISOXML_API c_get_as_utf8 {
 public:
  /// Both are borrowed and must outlive the getter, which binds itself to `error` as the source of lines.
  c_get_as_utf8(c_read& read, c_error& error);
  c_get_as_utf8(c_get_as_utf8 const&) = delete;
  c_get_as_utf8& operator=(c_get_as_utf8 const&) = delete;

  /// The next character after line-end folding, or -1. After a fatal error always -1.
  int get();
  /// Pushes one value back, three at most: a character, or the -1 of a byte sequence that is none, which the
  /// next `get` then returns once more. Does nothing after a fatal error. A line feed that is pushed back
  /// counts as a line again when it is read again.
  void unget(int c) {
    if (mr_error.has_fatal()) return;
    forget_mark();
    m_unget.unget(c);
  }
  /// Starts the source again: line 1, encoding unknown.
  void rewind();

  /// Reports through `c_error` with this getter's source name and line.
  void error(elmx_error_type type, elmx_error code, char const* message);
  void error(elmx_error_type type, elmx_error code, std::string const& message);

  char const* source_name() const { return mr_read.source_name(); }
  /// 1 plus the line ends delivered so far. May run ahead of the true line (see `unget`).
  int line() const { return m_line; }
  elxp_char_encoding encoding() const { return m_encoding; }
  /// Chooses who is asked for encodings that are not known here; every getter made from then on takes it
  /// over. Not guarded: set it before readers are made. The factory is borrowed until it is cleared.
  static void set_default_external_transcoder_factory(c_external_transcoder_factory const& factory);
  static void clear_default_external_transcoder_factory();
  /// The same for this getter alone.
  void set_external_transcoder_factory(c_external_transcoder_factory const& factory) {
    mp_factory = &factory;
  }
  void clear_external_transcoder_factory() { mp_factory = nullptr; }

  /// Applies the name of an XML declaration to the encoding found from the bytes. A name that does not
  /// fit them is a fatal `ELMX_ENCODING_MISMATCH`, an unknown one a fatal `ELMX_BAD_CHAR_ENCODING`; the
  /// result is then false.
  bool set_encoding(char const* name);

  /// What lies ready in the source's buffer and may be scanned without `get`; empty when there is anything
  /// between the buffer and the reader. Bytes above 126, CR, LF and NUL must be left to `get`.
  byte_window plain_window() const {
    const bool plain = (m_encoding == EXCE_UTF8 || m_encoding == EXCE_SINGLE_BYTE) && m_unget.empty() &&
                       mp_pending == nullptr && !m_pending_end && !mr_error.has_fatal();
    return plain ? byte_window{mr_read.mp_next, mr_read.mp_end} : byte_window{nullptr, nullptr};
  }
  /// Takes the bytes of the last `plain_window` before `up_to`.
  void consume_plain(unsigned char const* up_to) {
    if (up_to != nullptr && up_to != mr_read.mp_next) consume_more(up_to);
  }
  /// The same for at least one.
  void consume_more(unsigned char const* up_to) {
    m_bytes_read += static_cast<unsigned long long>(up_to - mr_read.mp_next);
    mr_read.mp_next = up_to;
    m_last_char = ' ';  // any plain byte: what matters is that it was no CR
  }
  /// Remembers where the next byte of the buffer lies, until anything else is to be read first or the buffer
  /// changes.
  void set_mark() { mp_mark = mr_read.mp_next; }
  void forget_mark() { mp_mark = nullptr; }
  /// The remembered place, if its byte is what will be read next; else null.
  unsigned char const* at_mark() const {
    return mp_mark == mr_read.mp_next && !mr_error.has_fatal() ? mp_mark : nullptr;
  }
  /// A `plain_window` in which LF may be taken as well: one at its start is not half of a CR LF.
  byte_window line_window() const {
    return m_last_char == '\r' ? byte_window{nullptr, nullptr} : plain_window();
  }
  /// `consume_more` for bytes that hold `line_feeds` line feeds.
  void consume_lines(unsigned char const* up_to, int line_feeds) {
    consume_more(up_to);
    m_line = line_feeds > std::numeric_limits<int>::max() - m_line ? std::numeric_limits<int>::max()
                                                                   : m_line + line_feeds;
  }
  /// `tenant` is borrowed, and is told before the buffer changes.
  void set_tenant(buffer_tenant* tenant) { mp_tenant = tenant; }

 protected:
  bool has_fatal() const { return mr_error.has_fatal(); }
  /// How many bytes the source has delivered since the start.
  unsigned long long bytes_read() const { return m_bytes_read; }

 private:
  int p_next_byte() {
    if (mr_read.mp_next != mr_read.mp_end) {
      ++m_bytes_read;
      return *mr_read.mp_next++;
    }
    p_leave_buffer();
    const int c = mr_read.get();
    if (c != -1) ++m_bytes_read;  // the end is no byte, however often it is asked for
    return c;
  }
  void p_leave_buffer() {
    forget_mark();
    if (mp_tenant != nullptr) mp_tenant->move_out();
  }
  int p_get();
  int p_read_local_transcoded();
  int p_read_external_transcoded();
  bool p_set_external_encoding(char const* name);
  int p_resolve_initial_character_encoding(int first);
  int p_read_utf16(int first);
  int p_convert_utf16_bytes(int first, int second) const;
  int p_map_unicode_to_utf8(int code_point);
  int p_read_utf8_compound_char_sequence(int first);
  void p_read_single_utf8_compound_char_sequence(int first, char* out);
  int p_deliver_buffer();

 protected:
  // State, for derived getters to read.
  c_read& mr_read;
  c_error& mr_error;
  c_getter_error_binder m_binder;
  elxp_char_encoding m_encoding = EXCE_UNKNOWN;
  c_external_transcoder_factory const* mp_factory;
  std::unique_ptr<c_external_transcoder> mp_transcoder;
  int m_last_char = 0;  // the last raw character, to fold CR LF
  c_unget_buffer m_unget;
  char m_utf8_buffer[8] = {};        // the multi-byte character under delivery
  char const* mp_pending = nullptr;  // its bytes still to deliver, or null
  bool m_pending_end = false;        // one -1 is to be delivered
  int m_line = 1;

 private:
  unsigned long long m_bytes_read = 0;
  unsigned char const* mp_mark = nullptr;
  buffer_tenant* mp_tenant = nullptr;
};

/// Encodes `code_point` as UTF-8 with a closing NUL; one to four bytes, no range check. Returns `out`.
ISOXML_API char* unicode_char_to_utf8(int code_point, char* out);
/// Decodes one character. False, with -1 stored for a bad first byte, when the bytes are no sequence.
/// Overlong forms are not refused.
ISOXML_API bool utf8_to_unicode_char(char const* bytes, int* out);
/// True when the first two bytes can begin a UTF-8 character. Further bytes are not looked at.
ISOXML_API bool is_valid_utf8_char_sequence(char const* bytes);

/// One entity whose text is being read.
class ISOXML_API c_dtd_active_entity {
 public:
  /// `value` is borrowed and NUL-terminated.
  explicit c_dtd_active_entity(char const* value) : p_current(value), mp_value(value) {}

  bool at_end() const { return *p_current == '\0'; }
  int get() {
    LMX_ASSERT(*p_current != '\0');
    return static_cast<unsigned char>(*p_current++);
  }
  /// Where the value starts, by which a recursion is known.
  char const* value() const { return mp_value; }
  c_unget_buffer& unget_buffer() { return m_unget; }

 protected:
  char const* p_current;
  char const* mp_value;
  c_unget_buffer m_unget;  // what is pushed back inside an entity stays with it
};

class ISOXML_API c_get_with_entities : public c_get_as_utf8 {
 public:
  /// `normalize_char_refs`: white space written as a character reference counts as white space.
  c_get_with_entities(c_read& read, c_error& error, bool normalize_char_refs);

  void rewind();

  /// The next character, from the innermost active entity if there is one. Line numbers count real input
  /// only.
  int get() {
    if (m_active.empty()) return c_get_as_utf8::get();
    return p_get_from_entity();
  }
  void unget(int c);
  byte_window plain_window() const {
    return m_active.empty() ? c_get_as_utf8::plain_window() : byte_window{nullptr, nullptr};
  }
  byte_window line_window() const {
    return m_active.empty() ? c_get_as_utf8::line_window() : byte_window{nullptr, nullptr};
  }
  /// How many entities are being read as input.
  std::size_t active_entities() const { return m_active.size(); }

  /// Declares an entity. The last declaration wins, but a value that is being read is read to its end.
  void add_general_entity(std::string const& name, std::string const& value);
  void add_parameter_entity(std::string const& name, std::string const& value);
  /// Makes the text of the parameter entity the next input. `*known` tells whether there is one.
  bool select_parameter_entity(std::string const& name, bool* known);

  /// Sets the mode for the value that comes next and forgets a blank still pending.
  void set_ws_mode(elmx_whitespace mode) {
    m_ws_mode = mode;
    m_pending_space = false;
  }
  elmx_whitespace ws_mode() const { return m_ws_mode; }
  /// Appends `c` to `*out` under the mode in force. A mode that is none stops the process.
  void add_char_wsp(std::string* out, int c, bool is_char_ref);
  /// `add_char_wsp` for `length` literal bytes.
  void add_run_wsp(std::string* out, char const* bytes, std::size_t length);

  /// Expands the reference whose "&" has just been read and appends what it stands for. The ";" may be
  /// missing. False, without a report, for an unknown name, which is appended as it was written.
  bool select_general_entity(c_entity_name_reader& reader, std::string* out);
  /// The same for a numeric reference whose "&#" has been read. Values up to 0x100000, NUL and
  /// surrogates included.
  bool insert_character_entity(c_entity_name_reader& reader, std::string* out);
  /// Makes `value` the next input, markup included. It is borrowed until it is read to its end or the
  /// document starts again. False, with a fatal `ELMX_BAD_DTD`, while that very text is being read already,
  /// and for too much of it.
  bool set_input_entity_value(char const* value);

 private:
  using entities = c_repository<std::string const*>;

  int p_get_from_entity();
  void p_add_entity(entities* to, std::string const& name, std::string const& value);
  bool p_append_entity(std::string const& value, std::string* out);
  bool p_charge(unsigned long long cost);
  bool p_refuse_entity(std::string const& message);

  std::string m_entity_name;
  std::vector<c_dtd_active_entity> m_active;    // read as input, innermost last
  std::vector<std::string const*> m_expanding;  // expanded as text, innermost last
  std::deque<std::string> m_entity_values;      // kept until the document ends: readers point into them
  entities m_general_entities;
  entities m_parameter_entities;
  unsigned long long m_expanded = 0;  // what entities have cost so far

 protected:
  // State, for derived getters to read.
  const bool m_normalize_char_refs;
  elmx_whitespace m_ws_mode = EXWS_PRESERVE;
  bool m_pending_space = false;
};

class ISOXML_API c_get_for_xml : public c_get_with_entities {
 public:
  c_get_for_xml(c_read& read, c_error& error, bool normalize_char_refs);

  /// Reads as many characters as `text` has. False at the first difference; the differing character is
  /// used up.
  bool read_specified_string_from_input(char const* text);
  /// Reads a quoted text, without expanding references. False when there is none, or no closing quote.
  bool get_simple_quoted_value(std::string* out);
  /// Entered after "<!--". A comment that ends in more than two hyphens is warned of, with
  /// `ELMX_BAD_COMMENT`. False at the end of the input.
  bool skip_comment();
  /// Entered after "<?name". False at the end of the input.
  bool skip_PI();
  /// Reads to the end of a start tag, minding quotes. `is_empty` may be null; true is stored for "/>".
  /// Something other than white space after the "/" is `ELMX_BAD_END_TAG`, reported once, and gives false.
  bool move_to_start_tag_end(bool* is_empty);
  /// Entered after "<?xml" and one white space character. False when the declaration is damaged:
  /// `ELMX_BAD_XML_DECL` for a missing version, `ELMX_BAD_XML_VERSION` for one that is not 1.0 or 1.1,
  /// nothing for the rest.
  bool read_xml_decl();
  void rewind();

  /// The first character that is no white space, which is used up; or -1.
  int get_non_space();
  /// Appends name characters to `*out`; returns the character that stopped, which is used up.
  int get_name_chars(std::string* out);
  /// Appends what lies ready up to the first of `quote`, NUL, line ends and bytes beyond ASCII.
  void take_plain_value(std::string* out, int quote);
  /// Appends what lies ready up to the first "<", "&", NUL, line end or byte beyond ASCII.
  void take_plain_text(std::string* out);

 private:
  bool p_read_pseudo_attribute(char const* rest_of_name, std::string* value, int* c);
};

}  // namespace lmx
