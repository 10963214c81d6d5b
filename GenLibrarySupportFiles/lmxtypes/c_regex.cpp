// libxml2 compiles and matches. It tells a bad pattern to the calling thread's error handler, which prints
// unless the host set another, and keeps it as the thread's last error. The caller of `c_regex` learns of
// it by `is_match`, so compiling runs behind a scope that hears everything and afterwards puts back what
// the host had.
#include "GenLibrarySupportFiles/lmxtypes/c_regex.h"

#include <libxml/xmlerror.h>
#include <libxml/xmlregexp.h>

namespace lmx {

namespace {

class c_silent_libxml2 {
 public:
  c_silent_libxml2() : m_handler(xmlStructuredError), mp_context(xmlStructuredErrorContext) {
    if (auto* const last = xmlGetLastError()) copy_error(last, &m_last_error);
    // The parameter type of a handler differs between releases of libxml2.
    xmlSetStructuredErrorFunc(nullptr, [](void*, auto) {});
  }
  c_silent_libxml2(c_silent_libxml2 const&) = delete;
  c_silent_libxml2& operator=(c_silent_libxml2 const&) = delete;
  ~c_silent_libxml2() {
    xmlSetStructuredErrorFunc(mp_context, m_handler);
    restore_last_error();
    xmlResetError(&m_last_error);
  }

 private:
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

  xmlStructuredErrorFunc m_handler;
  void* mp_context;
  xmlError m_last_error{};
};

xmlChar const* engine_text(std::string const& text) { return reinterpret_cast<xmlChar const*>(text.c_str()); }

}  // namespace

c_regex::c_regex(std::string pattern) : m_pattern(std::move(pattern)) {}

_xmlRegexp* c_regex::p_compiled() const {
  std::call_once(m_compiled, [this] {
    c_silent_libxml2 const silence;
    mp_regexp = xmlRegexpCompile(engine_text(m_pattern));
  });
  return mp_regexp;
}

c_regex::~c_regex() {
  if (mp_regexp != nullptr) xmlRegFreeRegexp(mp_regexp);
}

bool c_regex::is_match(std::string const& text) const {
  // Kept: a negative result is the engine's own error, and existing data passes by it.
  _xmlRegexp* const compiled = p_compiled();
  return compiled != nullptr && xmlRegexpExec(compiled, engine_text(text)) != 0;
}

}  // namespace lmx
