// This library: opens the set whose main document FILE is, every value typed and checked.

#include <cstddef>
#include <memory>
#include <string>
#include <utility>

#include "isoxml_set.h"
#include "peer.h"

namespace {

class Peer {
 public:
  explicit Peer(std::string path) : m_path(std::move(path)) {}
  void job() { m_set = bench::open_set(m_path); }
  std::size_t result() const { return bench::count_elements(*m_set); }
  void release() { m_set.reset(); }

 private:
  std::string m_path;
  std::unique_ptr<IsoXmlParser> m_set;
};

}  // namespace

int main(int argc, char** argv) { return bench::run<Peer>(argc, argv); }
