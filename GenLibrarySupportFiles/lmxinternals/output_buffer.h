// Bytes on their way to a stream. A document is written in pieces of a few bytes, and a stream asks for more
// work at each than the piece is worth: they are gathered here and handed on by the page.
#pragma once

#include <cstddef>
#include <iosfwd>
#include <string_view>

#include "GenLibrarySupportFiles/lmxinternals/api.h"
#include "GenLibrarySupportFiles/lmxinternals/words.h"

namespace lmx::detail {

/// Gathers bytes for a stream, which is borrowed and gets them in order, unformatted, when the buffer is full
/// or is flushed. Its state is not tested. What was not flushed is dropped with the buffer.
/// Errors: if the host made the stream throw, so does every operation here; the bytes it was given are gone.
class ISOXML_API output_buffer {
 public:
  explicit output_buffer(std::ostream& stream) noexcept : mp_stream(&stream) {}
  output_buffer(output_buffer const&) = delete;
  output_buffer& operator=(output_buffer const&) = delete;

  void append(char c) {
    *room_for(1) = c;
    ++mp_end;
  }
  void append(std::string_view text) {
    constexpr std::size_t most_without_call = 16;
    if (text.size() > most_without_call) return p_append_long(text);
    words::copy_short(room_for(text.size()), text.data(), text.size());
    mp_end += text.size();
  }
  /// Space for `size` bytes, at most `capacity`, of which `advance_to` then says how many were used.
  char* room_for(std::size_t size) {
    if (static_cast<std::size_t>(m_bytes + capacity - mp_end) < size) flush();
    return mp_end;
  }
  void advance_to(char* end) { mp_end = end; }

  bool is_empty() const { return mp_end == m_bytes; }
  void flush();
  /// Where the bytes go; what is still here is not in it yet.
  std::ostream& stream() const { return *mp_stream; }

  static constexpr std::size_t capacity = 4096;

 private:
  void p_append_long(std::string_view text);

  std::ostream* mp_stream;
  char* mp_end = m_bytes;
  char m_bytes[capacity];  // up to the end are in use
};

}  // namespace lmx::detail
