// The pattern facet: a compiled XSD regular expression.
#pragma once

#include <atomic>
#include <mutex>
#include <string>

#include "GenLibrarySupportFiles/lmxinternals/api.h"

struct _xmlRegexp;  // libxml2's compiled expression; hosts need none of its headers

namespace lmx {

/// A regular expression of XML Schema (XSD part 2, appendix F), matched against whole texts. It is compiled
/// once, when it is first asked. Threads: one object serves any number of threads.
class ISOXML_API c_regex {
 public:
  /// Takes `pattern`, up to a NUL inside it. What is no pattern throws and prints nothing: the object then
  /// matches no text.
  explicit c_regex(std::string pattern);
  virtual ~c_regex();
  c_regex(c_regex const&) = delete;
  c_regex& operator=(c_regex const&) = delete;

  /// True if all of `text`, up to a NUL inside it, fits the pattern. A text that the engine gives up on, for
  /// example for bytes that are not UTF-8, counts as fitting. `text` is UTF-8.
  /// Prints nothing, and leaves the calling thread's libxml2 error handler, its context and the last error as
  /// the host left them. Errors: `std::bad_alloc` when there was no memory to compile or match the pattern;
  /// the next call tries again.
  bool is_match(std::string const& text) const;

 private:
  _xmlRegexp* p_compiled() const;

  const std::string m_pattern;
  mutable std::mutex m_compiling;
  mutable std::atomic<_xmlRegexp*> mp_regexp{nullptr};  // owned; null as long as it has not been compiled
};

}  // namespace lmx
