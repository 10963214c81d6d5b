// A document in memory that is not copied: for documents so many or so large that copies would count.
#pragma once

#include <cstddef>
#include <string_view>

#include "GenLibrarySupportFiles/lmxparse/c_read.h"

class TextSource : public lmx::c_read {
 public:
  /// Shows `window` bytes of `text` at a time; with 0, none: its bytes come through `get` alone. `text` is
  /// borrowed.
  TextSource(std::string_view text, std::size_t window) : m_text(text), m_window(window) {}

  int get() override {
    if (m_window == 0) return m_shown < m_text.size() ? static_cast<unsigned char>(m_text[m_shown++]) : -1;
    if (mp_next == mp_end) {
      const std::string_view window = m_text.substr(m_shown, m_window);
      mp_next = reinterpret_cast<unsigned char const*>(window.data());
      mp_end = mp_next + window.size();
      m_shown += window.size();
      if (window.empty()) return -1;
    }
    return *mp_next++;
  }
  int rewind() override {
    m_shown = 0;
    mp_next = mp_end = nullptr;
    return 0;
  }

 private:
  const std::string_view m_text;
  const std::size_t m_window;
  std::size_t m_shown = 0;
};
