// pugixml: writes a document that was read to a stream in memory, laid out like the file.

#include <pugixml.hpp>

#include <cstddef>
#include <optional>
#include <sstream>
#include <stdexcept>
#include <string>

#include "peer.h"

namespace {

class Peer {
 public:
  explicit Peer(std::string const& path) {
    const pugi::xml_parse_result result = m_document.load_file(path.c_str());
    if (!result) throw std::runtime_error(result.description());
  }
  void job() {
    m_stream.emplace();
    m_document.save(*m_stream, "  ");
    if (!*m_stream) throw std::runtime_error("not written");
  }
  // The bytes written.
  std::size_t result() const { return m_stream->str().size(); }
  void release() { m_stream.reset(); }

 private:
  pugi::xml_document m_document;
  std::optional<std::ostringstream> m_stream;
};

}  // namespace

int main(int argc, char** argv) { return bench::run<Peer>(argc, argv); }
