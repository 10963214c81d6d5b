// The C++ tree that xsdcxx generates from our schema, filled through Xerces-C++, which validates against the
// same schema: typed and checked. The schema is loaded once and kept, as that tool's guide advises.

#include <cstddef>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <xercesc/dom/DOM.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLString.hpp>
#include <xercesc/util/XMLUni.hpp>
#include <xercesc/validators/common/Grammar.hpp>

#include "isoxml.hxx"
#include "peer.h"

namespace {

using xercesc::XMLUni;

// The elements of the trees that the benchmark's documents hold.
std::size_t count(PNT const&) { return 1; }
std::size_t count(PTN const&) { return 1; }
std::size_t count(DLV const&) { return 1; }
std::size_t count(DOR const&) { return 1; }
std::size_t count(DPD const&) { return 1; }
std::size_t count(DPT const&) { return 1; }
std::size_t count(DVP const&) { return 1; }
std::size_t count(LSG const& line);
std::size_t count(PLN const& polygon);
std::size_t count(GPN const& pattern);
std::size_t count(GGP const& group);
std::size_t count(PFD const& field);
std::size_t count(TIM const& time);
std::size_t count(TSK const& task);
std::size_t count(DET const& element);
std::size_t count(DVC const& device);

template <class... Lists>
std::size_t count_with(Lists const&... lists) {
  std::size_t sum = 1;
  const auto add = [&sum](auto const& list) {
    for (auto const& element : list) sum += count(element);
  };
  (add(lists), ...);
  return sum;
}

std::size_t count(LSG const& line) { return count_with(line.PNT()); }
std::size_t count(PLN const& polygon) { return count_with(polygon.LSG()); }
std::size_t count(GPN const& pattern) { return count_with(pattern.LSG()); }
std::size_t count(GGP const& group) { return count_with(group.GPN()); }
std::size_t count(PFD const& field) { return count_with(field.PLN(), field.GGP()); }
std::size_t count(TIM const& time) { return count_with(time.PTN(), time.DLV()); }
std::size_t count(TSK const& task) { return count_with(task.TIM()); }
std::size_t count(DET const& element) { return count_with(element.DOR()); }
std::size_t count(DVC const& device) {
  return count_with(device.DET(), device.DPD(), device.DPT(), device.DVP());
}

struct Platform {
  Platform() { xercesc::XMLPlatformUtils::Initialize(); }
  ~Platform() { xercesc::XMLPlatformUtils::Terminate(); }
};

class Refuse : public xercesc::DOMErrorHandler {
 public:
  bool handleError(xercesc::DOMError const&) override {
    m_any = true;
    return false;
  }
  bool any() const { return m_any; }

 private:
  bool m_any = false;
};

struct Release {
  template <class Object>
  void operator()(Object* object) const {
    object->release();
  }
};

class Peer {
 public:
  explicit Peer(std::string path) : m_path(std::move(path)) {}
  void job() {
    if (!m_parser) load_schema();
    const std::unique_ptr<xercesc::DOMDocument, Release> document(m_parser->parseURI(m_path.c_str()));
    if (!document || m_refuse.any()) throw std::runtime_error("refused");
    m_root = ISO11783_TaskData_(*document, xml_schema::flags::dont_initialize);
  }
  std::size_t result() const { return count_with(m_root->PFD(), m_root->TSK(), m_root->DVC()); }
  void release() { m_root.reset(); }

 private:
  void load_schema() {
    m_platform = std::make_unique<Platform>();
    const XMLCh load_and_save[] = {xercesc::chLatin_L, xercesc::chLatin_S, xercesc::chNull};
    xercesc::DOMImplementation* const implementation =
        xercesc::DOMImplementationRegistry::getDOMImplementation(load_and_save);
    m_parser.reset(implementation->createLSParser(xercesc::DOMImplementationLS::MODE_SYNCHRONOUS, nullptr));
    xercesc::DOMConfiguration* const configuration = m_parser->getDomConfig();
    for (XMLCh const* on : {XMLUni::fgDOMNamespaces, XMLUni::fgDOMValidate, XMLUni::fgXercesSchema,
                            XMLUni::fgXercesUseCachedGrammarInParse, XMLUni::fgXercesUserAdoptsDOMDocument,
                            XMLUni::fgDOMDatatypeNormalization}) {
      configuration->setParameter(on, true);
    }
    for (XMLCh const* off :
         {XMLUni::fgDOMComments, XMLUni::fgDOMEntities, XMLUni::fgDOMElementContentWhitespace,
          XMLUni::fgXercesSchemaFullChecking, XMLUni::fgXercesLoadSchema}) {
      configuration->setParameter(off, false);
    }
    configuration->setParameter(XMLUni::fgDOMErrorHandler, &m_refuse);
    if (m_parser->loadGrammar(BENCH_XSD, xercesc::Grammar::SchemaGrammarType, true) == nullptr) {
      throw std::runtime_error("cannot load the schema");
    }
  }

  std::string m_path;
  std::unique_ptr<Platform> m_platform;
  Refuse m_refuse;
  std::unique_ptr<xercesc::DOMLSParser, Release> m_parser;
  std::unique_ptr<ISO11783_TaskData> m_root;
};

}  // namespace

int main(int argc, char** argv) { return bench::run<Peer>(argc, argv); }
