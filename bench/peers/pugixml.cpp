// pugixml: the whole document as a tree of texts, nothing checked.

#include <pugixml.hpp>

#include <cstddef>
#include <stdexcept>
#include <string>
#include <utility>

#include "peer.h"

namespace {

struct Counter : pugi::xml_tree_walker {
  bool for_each(pugi::xml_node& node) override {
    if (node.type() == pugi::node_element) ++count;
    return true;
  }
  std::size_t count = 0;
};

class Peer {
 public:
  explicit Peer(std::string path) : m_path(std::move(path)) {}
  void job() {
    const pugi::xml_parse_result result = m_document.load_file(m_path.c_str());
    if (!result) throw std::runtime_error(result.description());
  }
  std::size_t result() {
    Counter counter;
    m_document.traverse(counter);
    return counter.count;
  }
  void release() { m_document.reset(); }

 private:
  std::string m_path;
  pugi::xml_document m_document;
};

}  // namespace

int main(int argc, char** argv) { return bench::run<Peer>(argc, argv); }
