// One check, every way a source can hand out its bytes: through `get` alone, from a window over a buffer of
// a file, from one over the whole document, and from windows so small that each of their ends falls into the
// middle of something.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

#include "GenLibrarySupportFiles/lmxparse/c_read.h"
#include "support/memory_read.h"
#include "support/temp_dir.h"

/// A document in memory that shows `window` bytes at a time.
class WindowRead : public lmx::c_read {
 public:
  WindowRead(std::string const& bytes, std::size_t window)
      : m_bytes(bytes.begin(), bytes.end()), m_window(window) {}

  int get() override {
    if (mp_next == mp_end && !fill()) return -1;
    return *mp_next++;
  }
  int rewind() override {
    m_shown = 0;
    mp_next = mp_end = nullptr;
    return 0;
  }

 private:
  bool fill() {
    const std::size_t length = std::min(m_window, m_bytes.size() - m_shown);
    mp_next = m_bytes.data() + m_shown;
    mp_end = mp_next + length;
    m_shown += length;
    return length > 0;
  }

  std::vector<unsigned char> const m_bytes;  // without room behind them, so that reading on is noticed
  std::size_t m_window;
  std::size_t m_shown = 0;
};

/// Calls `check(lmx::c_read&)` with a fresh source over `bytes`, once for each kind of source.
template <class Check>
void with_each_source(std::string const& bytes, Check check) {
  {
    SCOPED_TRACE("one byte at a time");
    MemoryRead read(bytes);
    check(read);
  }
  for (const std::size_t window : {std::size_t{1}, std::size_t{2}, std::size_t{3}, std::size_t{5},
                                   std::size_t{7}, std::size_t{16}, std::size_t{64}, bytes.size() + 1}) {
    SCOPED_TRACE("windows of " + std::to_string(window));
    WindowRead read(bytes, window);
    check(read);
  }
  {
    SCOPED_TRACE("file");
    TempDir directory;
    lmx::c_read_file read(directory.write("document.xml", bytes).c_str());
    check(read);
  }
}
