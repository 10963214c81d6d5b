// How a host adds character encodings that the reader does not know.
#pragma once

#include <utility>

#include "GenLibrarySupportFiles/lmxinternals/api.h"

namespace lmx {

class c_error;
class c_read;

/// How the source's bytes are read. Found from the first bytes; the XML declaration may narrow it.
enum elxp_char_encoding : int {
  EXCE_UNKNOWN = 0,      ///< Nothing read yet.
  EXCE_SINGLE_BYTE = 1,  ///< ISO-8859-1 or US-ASCII: each byte is a code point.
  EXCE_UTF8 = 2,
  EXCE_UTF16_BE = 3,
  EXCE_UTF16_LE = 4,
  EXCE_UCS2_BE = 5,  ///< Two bytes a character, no surrogates.
  EXCE_UCS2_LE = 6,
  EXCE_EXTERNAL = 7,  ///< A host's transcoder delivers the bytes.
};

/// Turns the rest of one source into UTF-8.
class ISOXML_API c_external_transcoder {
 public:
  virtual ~c_external_transcoder();
  /// The next character: its first byte as 0 to 255, or -1 at the end, and its further bytes, NUL-terminated,
  /// or null when it has none. They stay valid until the next call.
  virtual std::pair<int, char const*> read() = 0;
};

/// Makes transcoders by the name that stands in the XML declaration.
class ISOXML_API c_external_transcoder_factory {
 public:
  /// A transcoder over what is left of `read`, owned by the caller; null for a name that is not known. Both
  /// references outlive the transcoder. `encoding` is what the first bytes looked like.
  virtual c_external_transcoder* create(c_read& read, c_error& error, elxp_char_encoding encoding,
                                        char const* name) const = 0;
  virtual ~c_external_transcoder_factory();
};

}  // namespace lmx
