// The binding that gSOAP's tools generate from our schema: typed, and checked but for patterns, for which
// they ask a host to bring a matcher.

#include <soapH.h>

#include <cstddef>
#include <fstream>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>

#include "peer.h"

// The tables that generated code expects from its host: no namespaces here.
SOAP_NMAC struct Namespace namespaces[] = {{"SOAP-ENV", nullptr, nullptr, nullptr},
                                           {nullptr, nullptr, nullptr, nullptr}};

namespace {

struct Free {
  void operator()(soap* context) const {
    soap_destroy(context);
    soap_end(context);
    soap_free(context);
  }
};

bool is_element(int type) {
  switch (type) {
    case SOAP_TYPE_PFD:
    case SOAP_TYPE_PLN:
    case SOAP_TYPE_LSG:
    case SOAP_TYPE_PNT:
    case SOAP_TYPE_GGP:
    case SOAP_TYPE_GPN:
    case SOAP_TYPE_TSK:
    case SOAP_TYPE_TIM:
    case SOAP_TYPE_PTN:
    case SOAP_TYPE_DLV:
    case SOAP_TYPE_DVC:
    case SOAP_TYPE_DET:
    case SOAP_TYPE_DOR:
    case SOAP_TYPE_DPD:
    case SOAP_TYPE_DPT:
    case SOAP_TYPE_DVP: return true;
    default: return false;
  }
}

class Peer {
 public:
  explicit Peer(std::string path) : m_path(std::move(path)) {}
  void job() {
    m_context.reset(soap_new1(SOAP_XML_STRICT | SOAP_C_UTFSTRING));
    std::ifstream file(m_path, std::ios::binary);
    m_context->is = &file;
    m_root = std::make_unique<ISO11783_USCORETaskData>();
    m_root->soap_default(m_context.get());
    if (soap_read_ISO11783_USCORETaskData(m_context.get(), m_root.get()) != SOAP_OK) {
      throw std::runtime_error("refused with code " + std::to_string(m_context->error));
    }
    m_context->is = nullptr;
  }
  // The context lists all objects that were made while reading; the root is ours.
  std::size_t result() const {
    std::size_t count = 1;
    for (soap_clist const* made = m_context->clist; made != nullptr; made = made->next) {
      if (is_element(made->type)) ++count;
    }
    return count;
  }
  void release() {
    m_root.reset();
    m_context.reset();
  }

 private:
  std::string m_path;
  std::unique_ptr<soap, Free> m_context;
  std::unique_ptr<ISO11783_USCORETaskData> m_root;
};

}  // namespace

int main(int argc, char** argv) { return bench::run<Peer>(argc, argv); }
