#include "GenLibrarySupportFiles/lmxtypes/compact_text.h"

#include <memory>

namespace lmx::detail {

namespace {

// An allocated text: its length, and its bytes right behind.
char* allocate(std::string_view text) {
  auto block = std::make_unique<char[]>(sizeof(std::size_t) + text.size());
  std::size_t const length = text.size();
  std::memcpy(block.get(), &length, sizeof length);
  std::memcpy(block.get() + sizeof length, text.data(), length);
  return block.release();
}

char* block_of(char const* bytes) {
  char* block = nullptr;
  std::memcpy(&block, bytes, sizeof block);
  return block;
}

}  // namespace

void compact_text::p_assign_allocated(std::string_view text) {
  compact_text made;
  if (text.size() <= most_in_place) {
    made.p_fill(text);
  } else {
    char* const block = allocate(text);
    std::memcpy(made.m_bytes, &block, sizeof block);
    made.m_bytes[most_in_place] = allocated;
  }
  swap(made);
}

std::string_view compact_text::p_allocated_view() const noexcept {
  char const* const block = block_of(m_bytes);
  std::size_t length = 0;
  std::memcpy(&length, block, sizeof length);
  return {block + sizeof length, length};
}

void compact_text::p_free() noexcept { delete[] block_of(m_bytes); }

}  // namespace lmx::detail
