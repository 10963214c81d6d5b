#include "GenLibrarySupportFiles/lmxparse/c_read.h"

namespace lmx {

c_read::~c_read() = default;

bool c_read::is_open() const { return true; }

char const* c_read::source_name() const { return nullptr; }

c_read_file::c_read_file(char const* path)
    : c_read_file(path, [](char const* any_path) { return std::fopen(any_path, "rb"); }) {}

c_read_file::c_read_file(char const* path, opener open) : m_path(path), mp_file(open(path)) {
  // Our own buffer is the only one: fread then fills it straight from the file.
  if (mp_file != nullptr) std::setvbuf(mp_file, nullptr, _IONBF, 0);
}

c_read_file::~c_read_file() {
  if (mp_file != nullptr) std::fclose(mp_file);
}

bool c_read_file::is_open() const { return mp_file != nullptr; }

int c_read_file::get() {
  if (mp_next == mp_end) {
    if (mp_file == nullptr) return -1;
    const std::size_t count = std::fread(m_buffer, 1, buffer_size, mp_file);
    mp_next = m_buffer;
    mp_end = m_buffer + count;
    if (count == 0) return -1;  // the end, or a read error, which looks the same
  }
  return *mp_next++;
}

char const* c_read_file::source_name() const { return m_path.c_str(); }

int c_read_file::rewind() {
  mp_next = mp_end = nullptr;
  return mp_file == nullptr ? -1 : std::fseek(mp_file, 0, SEEK_SET);
}

}  // namespace lmx
