// libxml2 compiles and matches. It tells a bad pattern, and whatever keeps it from matching, to the calling
// thread's error handler, which prints unless the host set another, and keeps it as the thread's last error.
// The caller of `c_regex` learns of it by `is_match`, so both run behind a scope that hears everything and
// afterwards puts back what the host had.
//
// What it hears also tells why there is no expression: libxml2 gives null both for what is no pattern and for
// want of memory. Null is never kept, or one failed allocation would make a good text be refused for ever.
#include "GenLibrarySupportFiles/lmxtypes/c_regex.h"

#include <libxml/parser.h>
#include <libxml/xmlerror.h>
#include <libxml/xmlregexp.h>

#include <new>
#include <utility>

namespace lmx {

namespace {

// The thread's own variables are sought once: a document's texts may be matched by the thousand.
class c_silent_libxml2 {
 public:
  c_silent_libxml2()
      : mr_handler(xmlStructuredError),
        mr_context(xmlStructuredErrorContext),
        m_handler(mr_handler),
        mp_context(mr_context) {
    if (auto* const last = xmlGetLastError()) copy_error(last, &m_last_error);
    mr_context = this;
    // The parameter type of a handler differs between releases of libxml2.
    mr_handler = [](void* self, auto error) { static_cast<c_silent_libxml2*>(self)->hear(error->code); };
  }
  c_silent_libxml2(c_silent_libxml2 const&) = delete;
  c_silent_libxml2& operator=(c_silent_libxml2 const&) = delete;
  ~c_silent_libxml2() {
    mr_handler = m_handler;
    mr_context = mp_context;
    if (m_has_heard) restore_last_error();
    if (m_last_error.code != XML_ERR_OK) xmlResetError(&m_last_error);
  }

  bool has_heard_of_a_bad_pattern() const { return m_heard_bad_pattern; }
  bool has_heard_of_no_memory() const { return m_heard_no_memory; }

 private:
  void hear(int code) {
    m_has_heard = true;
    if (code == XML_REGEXP_COMPILE_ERROR) m_heard_bad_pattern = true;
    if (code == XML_ERR_NO_MEMORY) m_heard_no_memory = true;
  }

  // There is no setter for the last error, but the record that the getter gives is the thread's own.
  void restore_last_error() {
    if (m_last_error.code == XML_ERR_OK) {
      xmlResetLastError();
    } else if (auto* const last = const_cast<xmlError*>(xmlGetLastError())) {
      copy_error(&m_last_error, last);
    }
  }

  // libxml2's own copy leaves out the context.
  static void copy_error(xmlError const* from, xmlError* to) {
    xmlCopyError(const_cast<xmlError*>(from), to);
    to->ctxt = from->ctxt;
  }

  xmlStructuredErrorFunc& mr_handler;
  void*& mr_context;
  xmlStructuredErrorFunc const m_handler;
  void* const mp_context;
  xmlError m_last_error{};
  bool m_has_heard = false;
  bool m_heard_bad_pattern = false;
  bool m_heard_no_memory = false;
};

// Before its first use in the process, which may be in several threads at once.
void initialise_libxml2() {
  static bool const is_done = [] {
    c_silent_libxml2 const silence;
    xmlInitParser();
    return true;
  }();
  static_cast<void>(is_done);
}

xmlChar const* engine_text(std::string const& text) { return reinterpret_cast<xmlChar const*>(text.c_str()); }

}  // namespace

c_regex::c_regex(std::string pattern) : m_pattern(std::move(pattern)) {}

// Null for what is no pattern.
_xmlRegexp* c_regex::p_compiled() const {
  if (_xmlRegexp* const known = mp_regexp.load(std::memory_order_acquire)) return known;
  std::lock_guard<std::mutex> const lock(m_compiling);
  if (_xmlRegexp* const known = mp_regexp.load(std::memory_order_relaxed)) return known;
  c_silent_libxml2 const silence;
  _xmlRegexp* const compiled = xmlRegexpCompile(engine_text(m_pattern));
  bool const is_explained = compiled != nullptr || silence.has_heard_of_a_bad_pattern();
  if (silence.has_heard_of_no_memory() || !is_explained) {
    xmlRegFreeRegexp(compiled);
    throw std::bad_alloc();
  }
  mp_regexp.store(compiled, std::memory_order_release);
  return compiled;
}

c_regex::~c_regex() {
  if (_xmlRegexp* const compiled = mp_regexp.load()) xmlRegFreeRegexp(compiled);
}

bool c_regex::is_match(std::string const& text) const {
  initialise_libxml2();
  _xmlRegexp* const compiled = p_compiled();
  if (compiled == nullptr) return false;
  c_silent_libxml2 const silence;
  int const result = xmlRegexpExec(compiled, engine_text(text));
  if (silence.has_heard_of_no_memory()) throw std::bad_alloc();  // which makes any result a guess
  // Kept: a negative result is the engine's own error, and existing data passes by it.
  return result != 0;
}

}  // namespace lmx
