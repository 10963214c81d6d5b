// A document in memory, delivered one byte at a time through `get` alone: the slow path of every getter.
// Each document test runs through it as well as through a file, where text is taken in bulk.
#pragma once

#include <cstddef>
#include <string>
#include <utility>

#include "GenLibrarySupportFiles/lmxparse/c_read.h"

class MemoryRead : public lmx::c_read {
 public:
  /// `source_name` is kept by pointer and may be null.
  explicit MemoryRead(std::string bytes, char const* source_name = nullptr)
      : m_bytes(std::move(bytes)), mp_source_name(source_name) {}

  int get() override { return m_next < m_bytes.size() ? static_cast<unsigned char>(m_bytes[m_next++]) : -1; }
  char const* source_name() const override { return mp_source_name; }
  int rewind() override {
    m_next = 0;
    return 0;
  }

 private:
  std::string m_bytes;
  std::size_t m_next = 0;
  char const* mp_source_name;
};
