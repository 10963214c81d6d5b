#include "GenLibrarySupportFiles/lmxinternals/output_buffer.h"

#include <ostream>

namespace lmx::detail {

void output_buffer::flush() {
  std::ptrdiff_t const size = mp_end - m_bytes;
  mp_end = m_bytes;
  if (size != 0) mp_stream->write(m_bytes, size);
}

void output_buffer::p_append_long(std::string_view text) {
  if (text.size() > capacity) {
    flush();
    mp_stream->write(text.data(), static_cast<std::streamsize>(text.size()));
  } else {
    std::memcpy(room_for(text.size()), text.data(), text.size());
    mp_end += text.size();
  }
}

}  // namespace lmx::detail
