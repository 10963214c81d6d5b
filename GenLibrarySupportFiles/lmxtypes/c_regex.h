// The pattern facet: a compiled XSD regular expression.
#pragma once

#include <string>

#include "GenLibrarySupportFiles/lmxinternals/api.h"

struct _xmlRegexp;  // libxml2's compiled expression; hosts need none of its headers

namespace lmx {

/// A regular expression of XML Schema (XSD part 2, appendix F), compiled once and matched against whole
/// texts. Threads: matching only reads the expression, so one object serves any number of threads.
class ISOXML_API c_regex {
 public:
  /// Compiles `pattern`, up to a NUL inside it. A pattern that does not compile throws and prints nothing:
  /// the object then matches no text. The calling thread's libxml2 error handler, its context and the last
  /// error stay as the host left them.
  explicit c_regex(std::string const& pattern);
  virtual ~c_regex();
  c_regex(c_regex const&) = delete;
  c_regex& operator=(c_regex const&) = delete;

  /// True if all of `text`, up to a NUL inside it, fits the pattern. A text that the engine gives up on, for
  /// example for bytes that are not UTF-8, counts as fitting. `text` is UTF-8.
  bool is_match(std::string const& text) const;

 private:
  _xmlRegexp* mp_regexp;  // owned; null if the pattern did not compile
};

}  // namespace lmx
