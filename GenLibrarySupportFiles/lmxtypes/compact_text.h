// Text in sixteen bytes as long as it is short. A set holds millions of coordinates, each a handful of
// characters, and what they take in memory decides how fast they are read.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <utility>

#include "GenLibrarySupportFiles/lmxinternals/api.h"
#include "GenLibrarySupportFiles/lmxinternals/words.h"

namespace lmx::detail {

/// A text of any length. Up to 15 bytes are held in place, more in one allocation of their own. Copies are
/// deep; a moved-from text is empty. Threads: as for std::string.
class ISOXML_API compact_text {
 public:
  compact_text() noexcept { p_set_in_place_size(0); }
  explicit compact_text(std::string_view text) : compact_text() { assign(text); }
  explicit compact_text(char c) noexcept {
    m_bytes[0] = c;
    p_set_in_place_size(1);
  }
  compact_text(compact_text const& other) : compact_text() { p_copy(other); }
  compact_text(compact_text&& other) noexcept : compact_text() { swap(other); }
  compact_text& operator=(compact_text const& other) {
    compact_text copy(other);
    swap(copy);
    return *this;
  }
  compact_text& operator=(compact_text&& other) noexcept {
    compact_text taken(std::move(other));
    swap(taken);
    return *this;
  }
  ~compact_text() {
    if (p_is_allocated()) p_free();
  }

  /// Replaces the content, which `text` may be part of.
  void assign(std::string_view text) {
    if (p_is_allocated() || text.size() > most_in_place) {
      p_assign_allocated(text);
    } else {
      p_fill(text);
    }
  }
  void swap(compact_text& other) noexcept {
    char kept[size];
    std::memcpy(kept, m_bytes, size);
    std::memcpy(m_bytes, other.m_bytes, size);
    std::memcpy(other.m_bytes, kept, size);
  }
  /// Valid until the text changes or moves.
  std::string_view view() const noexcept {
    if (p_is_allocated()) return p_allocated_view();
    return {m_bytes, most_in_place - static_cast<unsigned char>(m_bytes[most_in_place])};
  }

 private:
  static constexpr std::size_t size = 16;
  static constexpr std::size_t most_in_place = size - 1;
  static constexpr char allocated = '\x7F';  // in the last byte, which else tells how many are free

  bool p_is_allocated() const noexcept { return m_bytes[most_in_place] == allocated; }
  void p_set_in_place_size(std::size_t length) noexcept {
    m_bytes[most_in_place] = static_cast<char>(most_in_place - length);
  }
  void p_fill(std::string_view text) noexcept {
    words::copy_short(m_bytes, text.data(), text.size());
    p_set_in_place_size(text.size());
  }
  void p_copy(compact_text const& other) {
    if (other.p_is_allocated()) {
      assign(other.view());
    } else {
      std::memcpy(m_bytes, other.m_bytes, size);
    }
  }
  void p_assign_allocated(std::string_view text);
  std::string_view p_allocated_view() const noexcept;
  void p_free() noexcept;

  alignas(8) char m_bytes[size];  // the text and its free bytes; or a pointer, and the mark
};

}  // namespace lmx::detail
