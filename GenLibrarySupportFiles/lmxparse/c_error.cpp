#include "GenLibrarySupportFiles/lmxparse/c_error.h"

#include <ostream>

#include "GenLibrarySupportFiles/lmxparse/getters.h"

namespace lmx {

c_check_exception global_check_exception;  // allocates nothing: its path is empty

c_error::~c_error() = default;

void c_error::report(elmx_error_type, elmx_error, char const*, int, char const*) {}

void c_error::error(elmx_error_type type, elmx_error code, char const* source, int line,
                    char const* message) {
  if (has_fatal()) return;
  m_last_code = code;
  m_last_type = type;
  m_last_line = line;
  if (type == EET_FATAL) ++m_fatal_count;
  if (type == EET_FATAL || type == EET_ERROR) ++m_error_count;
  if (type == EET_WARNING || type == EET_NOTE) ++m_warning_count;
  if (type == EET_NOTE) ++m_note_count;
  report(type, code, source, line, message);
}

void c_error::error(elmx_error_type type, elmx_error code, char const* message) {
  if (mp_getter != nullptr) {
    error(type, code, mp_getter->source_name(), mp_getter->line(), message);
  } else {
    error(type, code, nullptr, -1, message);
  }
}

bool c_error::get_error_info(elmx_error_type* type, elmx_error* code, int* line) const {
  if (m_last_code == ELMX_OK) return false;
  *type = m_last_type;
  *code = m_last_code;
  *line = m_last_line;
  return true;
}

c_get_as_utf8 const* c_error::register_getter(c_getter_error_binder* binder) {
  c_get_as_utf8 const* const previous = mp_getter;
  mp_getter = binder->mp_getter;
  return previous;
}

void c_error::unregister_getter(c_getter_error_binder* binder) { mp_getter = binder->mp_previous; }

c_getter_error_binder::~c_getter_error_binder() {
  LMX_ASSERT(m_is_bound);
  mr_error.unregister_getter(this);
}

void c_getter_error_binder::bind(c_get_as_utf8 const* getter) {
  if (m_is_bound) return;
  mp_getter = getter;
  mp_previous = mr_error.register_getter(this);
  m_is_bound = true;
}

void s_debug_error::clear() { *this = s_debug_error(); }

void s_debug_error::set(elmx_error code, std::string const& item, char const* file, int line, int xml_line) {
  m_code = code;
  m_item = item;
  mp_code_file = file;
  m_code_line = line;
  m_xml_line = xml_line;
}

// Built as text and written in one piece, so neither locale nor width of the host's stream has a say.
std::ostream& s_debug_error::to_stream(std::ostream& stream) const {
  const std::string text = to_string();
  return stream.write(text.data(), static_cast<std::streamsize>(text.size()));
}

std::string s_debug_error::to_string() const {
  char const* const code_file = mp_code_file != nullptr ? mp_code_file : s_debug_error().mp_code_file;
  std::string text = std::string("Error: ") + get_error_description(m_code) + '\n';
  if (m_code == ELMX_OK) return text;
  text += "Item: " + m_item + "\nProgram file: " + code_file +
          "\nProgram line: " + std::to_string(m_code_line) + '\n';
  if (m_xml_line != -1) text += "XML line: " + std::to_string(m_xml_line) + '\n';
  return text;
}

std::ostream& operator<<(std::ostream& stream, s_debug_error const& error) { return error.to_stream(stream); }

c_check_exception::~c_check_exception() = default;

char const* c_check_exception::what() const noexcept { return "lmx check exception"; }

}  // namespace lmx
