// Reads a document that is already in memory, as it came over a network or out of an archive.
#include <isoxmllib/isoxmllib.h>
#include <transfer/reader/xmlReader.h>

#include <cstdlib>
#include <iostream>
#include <string_view>

namespace {

// A source shows the bytes that come next as a window, from which the reader takes text in bulk; `get` takes
// from the same window. One that has a byte at a time leaves the window empty and implements `get` alone.
class MemorySource : public lmx::c_read {
 public:
  explicit MemorySource(std::string_view bytes) : m_bytes(bytes) { show_all(); }
  int get() override { return mp_next == mp_end ? -1 : *mp_next++; }
  int rewind() override {
    show_all();
    return 0;
  }
  char const* source_name() const override { return "memory"; }

 private:
  void show_all() {
    mp_next = reinterpret_cast<unsigned char const*>(m_bytes.data());
    mp_end = mp_next + m_bytes.size();
  }

  std::string_view m_bytes;
};

// Prints the field, or what is wrong with the document.
bool print(std::string_view document) {
  MemorySource source(document);
  lmx::xmlReader reader(source);  // borrows the source
  Field field;
  const lmx::elmx_error error = field.unmarshal(reader);
  if (error != lmx::ELMX_OK) {
    std::cerr << source.source_name() << ':' << reader.line() << ": " << error << ": "
              << lmx::get_error_description(error) << " (" << reader.debug_error().m_item << ")\n";
    return false;
  }
  std::cout << field.GetDesignator() << ", " << field.GetArea() << " m2\n";
  return true;
}

}  // namespace

int main() {
  bool is_good = print("<PFD A=\"PFD1\" C=\"Long Meadow\" D=\"131300\"/>");
  is_good &= print("<PFD A=\"PFD2\" C=\"Shore Field\" D=\"large\"/>");
  return is_good ? EXIT_SUCCESS : EXIT_FAILURE;
}
