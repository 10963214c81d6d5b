// expat: events with names and attributes as texts, nothing kept and nothing checked.

#include <expat.h>

#include <cstddef>
#include <cstdio>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>

#include "peer.h"

namespace {

void XMLCALL on_start(void* count, XML_Char const*, XML_Char const**) { ++*static_cast<std::size_t*>(count); }
void XMLCALL on_end(void*, XML_Char const*) {}

struct Close {
  void operator()(std::FILE* file) const { std::fclose(file); }
  void operator()(XML_Parser parser) const { XML_ParserFree(parser); }
};

class Peer {
 public:
  explicit Peer(std::string path) : m_path(std::move(path)) {}
  void job() {
    constexpr int chunk = 65536;
    const std::unique_ptr<std::FILE, Close> file(std::fopen(m_path.c_str(), "rb"));
    const std::unique_ptr<XML_ParserStruct, Close> parser(XML_ParserCreate(nullptr));
    if (!file || !parser) throw std::runtime_error("cannot open");
    m_count = 0;
    XML_SetUserData(parser.get(), &m_count);
    XML_SetElementHandler(parser.get(), on_start, on_end);
    for (bool at_end = false; !at_end;) {
      void* const buffer = XML_GetBuffer(parser.get(), chunk);
      if (buffer == nullptr) throw std::runtime_error("out of memory");
      const std::size_t length = std::fread(buffer, 1, chunk, file.get());
      at_end = length == 0;
      if (XML_ParseBuffer(parser.get(), static_cast<int>(length), at_end) != XML_STATUS_OK) {
        throw std::runtime_error(XML_ErrorString(XML_GetErrorCode(parser.get())));
      }
    }
  }
  std::size_t result() const { return m_count; }
  void release() {}

 private:
  std::string m_path;
  std::size_t m_count = 0;
};

}  // namespace

int main(int argc, char** argv) { return bench::run<Peer>(argc, argv); }
