// This library: writes a document that was read to a stream in memory, laid out like the file.

#include <cstddef>
#include <memory>
#include <optional>
#include <sstream>
#include <stdexcept>
#include <string>

#include "isoxml_set.h"
#include "peer.h"

namespace {

class Peer {
 public:
  explicit Peer(std::string const& path)
      : m_set(bench::open_set(path)), m_root(*m_set->getDocuments().front().root) {}
  void job() {
    m_stream.emplace();
    lmx::c_xml_writer writer(*m_stream, lmx::c_xml_writer::include_xml_decl, "  ", "\n", "", "");
    if (m_root.marshal(writer, nullptr) != lmx::ELMX_OK || !*m_stream) {
      throw std::runtime_error("not written");
    }
  }
  // The bytes written.
  std::size_t result() const { return m_stream->str().size(); }
  void release() { m_stream.reset(); }

 private:
  std::unique_ptr<IsoXmlParser> m_set;
  Root const& m_root;
  std::optional<std::ostringstream> m_stream;
};

}  // namespace

int main(int argc, char** argv) { return bench::run<Peer>(argc, argv); }
