// Where bytes come from. A source delivers one byte at a time through `get`; a source that holds bytes in
// memory also shows them as a window, from which the getters take plain text in bulk without a call a byte.
#pragma once

#include <cstddef>
#include <cstdio>
#include <string>

#include "GenLibrarySupportFiles/lmxinternals/api.h"

namespace lmx {

/// A source of bytes. Hosts derive from it to read from memory, an archive or a socket.
/// A source belongs to one reader at a time.
class ISOXML_API c_read {
 public:
  c_read() = default;
  c_read(c_read const&) = delete;
  c_read& operator=(c_read const&) = delete;

  /// True when the source can be read.
  virtual bool is_open() const;
  /// The next byte as 0 to 255, or -1 at the end of the input. A read error looks like the end.
  virtual int get() = 0;
  /// Text for error records, or null. Borrowed until the source dies.
  virtual char const* source_name() const;
  /// Starts again from the first byte. The result is 0 on success.
  virtual int rewind() = 0;
  virtual ~c_read();

 protected:
  /// The bytes that come next, before whatever `get` would fetch. Empty for a source that only has `get`.
  /// A derived class that fills the window must take from it first in its own `get`.
  unsigned char const* mp_next = nullptr;
  unsigned char const* mp_end = nullptr;

 private:
  friend class c_get_as_utf8;
};

/// Reads a file through the C library, a buffer at a time.
class ISOXML_API c_read_file : public c_read {
 public:
  /// Opens a path; null when that fails.
  using opener = std::FILE* (*)(char const* path);

  /// Opens `path` for binary reading. A failed open throws nothing: `is_open` is then false. Whatever can be
  /// opened is: a FIFO or a device too, and whoever names one waits for it. The documents of a transfer set
  /// are opened by `xmlReader`, which takes none of those.
  explicit c_read_file(char const* path);
  /// Opens `path` by `open`, and closes at the end what that gave.
  c_read_file(char const* path, opener open);
  ~c_read_file() override;

  bool is_open() const override;
  int get() override;
  /// The path as given.
  char const* source_name() const override;
  int rewind() override;

 private:
  static constexpr std::size_t buffer_size = 16384;

  std::string m_path;
  std::FILE* mp_file = nullptr;
  unsigned char m_buffer[buffer_size];
};

}  // namespace lmx
