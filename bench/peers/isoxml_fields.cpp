// This library: the records of all fields, from a set that is open.

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "isoxml_set.h"
#include "peer.h"

namespace {

class Peer {
 public:
  explicit Peer(std::string const& path) : m_set(bench::open_set(path)) {}
  void job() { m_fields = m_set->getFields(); }
  // The points of all records.
  std::size_t result() const {
    std::size_t points = 0;
    for (IsoField const& field : m_fields) {
      points += field.scoutPoints.size();
      for (IsoPolygon const& polygon : field.polygons) points += polygon.points.size();
      for (IsoScoutLine const& line : field.scoutLines) points += line.points.size();
      for (IsoGuidanceGroup const& group : field.guidanceGroups) {
        for (IsoGuidanceLine const& line : group.guidanceLines) points += line.points.size();
      }
    }
    return points;
  }
  void release() { std::vector<IsoField>().swap(m_fields); }

 private:
  std::unique_ptr<IsoXmlParser> m_set;
  std::vector<IsoField> m_fields;
};

}  // namespace

int main(int argc, char** argv) { return bench::run<Peer>(argc, argv); }
