// libxml2's SAX2 interface: events with names and attributes as texts, nothing kept and nothing checked.

#include <libxml/parser.h>

#include <cstddef>
#include <stdexcept>
#include <string>
#include <utility>

#include "peer.h"

namespace {

void on_start(void* count, xmlChar const*, xmlChar const*, xmlChar const*, int, xmlChar const**, int, int,
              xmlChar const**) {
  ++*static_cast<std::size_t*>(count);
}

class Peer {
 public:
  explicit Peer(std::string path) : m_path(std::move(path)) {}
  void job() {
    xmlSAXHandler handler{};
    handler.initialized = XML_SAX2_MAGIC;
    handler.startElementNs = on_start;
    m_count = 0;
    if (xmlSAXUserParseFile(&handler, &m_count, m_path.c_str()) != 0) throw std::runtime_error("not read");
  }
  std::size_t result() const { return m_count; }
  void release() {}

 private:
  std::string m_path;
  std::size_t m_count = 0;
};

}  // namespace

int main(int argc, char** argv) { return bench::run<Peer>(argc, argv); }
