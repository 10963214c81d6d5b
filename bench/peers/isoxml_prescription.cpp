// This library: the prescription map of the last task, from a set that is open.

#include <cstddef>
#include <memory>
#include <string>

#include "isoxml_set.h"
#include "peer.h"

namespace {

class Peer {
 public:
  explicit Peer(std::string const& path)
      : m_set(bench::open_set(path)), m_task(m_set->getTaskInfoList().back()) {}
  void job() { m_set->getISORxMap(m_task, m_map); }
  // The points of all rings.
  std::size_t result() const {
    std::size_t points = 0;
    for (lmx::TreatmentZone const& zone : m_map.treatmentZones) {
      for (lmx::Polygon const& ring : zone.polygons) points += ring.points.size();
    }
    return points;
  }
  void release() { m_map = lmx::ISORxMap(); }

 private:
  std::unique_ptr<IsoXmlParser> m_set;
  lmx::TaskInfo m_task;
  lmx::ISORxMap m_map;
};

}  // namespace

int main(int argc, char** argv) { return bench::run<Peer>(argc, argv); }
