// libxml2's reader with schema validation: every value checked and passed by as a text, nothing kept.

#include <libxml/xmlreader.h>
#include <libxml/xmlschemas.h>

#include <cstddef>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>

#include "peer.h"

namespace {

struct Free {
  void operator()(xmlTextReader* reader) const { xmlFreeTextReader(reader); }
  void operator()(xmlSchema* schema) const { xmlSchemaFree(schema); }
  void operator()(xmlSchemaParserCtxt* context) const { xmlSchemaFreeParserCtxt(context); }
};

class Peer {
 public:
  explicit Peer(std::string path) : m_path(std::move(path)) {}
  void job() {
    if (!m_schema) load_schema();
    const std::unique_ptr<xmlTextReader, Free> reader(xmlReaderForFile(m_path.c_str(), nullptr, 0));
    if (!reader || xmlTextReaderSetSchema(reader.get(), m_schema.get()) != 0) {
      throw std::runtime_error("cannot open");
    }
    m_count = 0;
    int state = xmlTextReaderRead(reader.get());
    for (; state == 1; state = xmlTextReaderRead(reader.get())) {
      if (xmlTextReaderNodeType(reader.get()) == XML_READER_TYPE_ELEMENT) ++m_count;
    }
    if (state != 0 || xmlTextReaderIsValid(reader.get()) != 1) throw std::runtime_error("refused");
  }
  std::size_t result() const { return m_count; }
  void release() {}

 private:
  void load_schema() {
    const std::unique_ptr<xmlSchemaParserCtxt, Free> context(xmlSchemaNewParserCtxt(BENCH_XSD));
    m_schema.reset(context ? xmlSchemaParse(context.get()) : nullptr);
    if (!m_schema) throw std::runtime_error("cannot load the schema");
  }

  std::string m_path;
  std::unique_ptr<xmlSchema, Free> m_schema;
  std::size_t m_count = 0;
};

}  // namespace

int main(int argc, char** argv) { return bench::run<Peer>(argc, argv); }
