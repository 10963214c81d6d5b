// How a task's tree becomes the zones of its prescription map. The two operations belong to the reader, but
// need none of its state.
#include "transfer/ISORxMap.h"

#include <cstddef>
#include <iterator>
#include <utility>

#include "isoxmllib/field_geometry.h"
#include "isoxmllib/task.h"
#include "transfer/each_point.h"
#include "transfer/reader/xmlReader.h"

namespace lmx {

namespace {

Polygon ring_record(LineString const& ring) {
  Polygon record;
  record.designator = ring.GetDesignator();
  record.colour.assign(1, static_cast<char>(ring.GetColour()));  // kept: hosts rely on the raw byte
  record.isInterior = ring.GetenumType() == elmx_enum_2;
  each_point(ring, [&](::Point const& point) {
    record.points.push_back(
        {point.GetEast().get_as_float(), point.GetNorth().get_as_float(), point.GetAltitude()});
  });
  return record;
}

ProcessDataVariable variable_record(::ProcessDataVariable const& variable) {
  ProcessDataVariable record;
  record.value = variable.GetValue();
  record.ddi = variable.GetDDI().get_as_hex_string();
  record.productIdRef = variable.GetProductIdRef();
  record.valuePresentationIdRef = variable.GetValuePresentationIdRef();
  record.rxMap = variable.GetP917Rxmap();
  record.rxColumn = variable.GetP917Rxcolumn();
  record.rxUnit = variable.GetP917Rxunit();
  record.rxWithoutConversionRate = variable.GetP917Rxwoconvrate().get_as_float();
  return record;
}

std::vector<ProcessDataVariable> variable_records(InnerTreatmentZone const& run) {
  std::vector<ProcessDataVariable> records;
  if (run.chosen != InnerTreatmentZone::ProcessDataVariableChosen) return records;
  for (std::size_t i = 0; i != run.SizeProcessDataVariable(); ++i) {
    records.push_back(variable_record(run.GetProcessDataVariable(i)));
  }
  return records;
}

void add_rings(::Polygon& polygon, std::vector<Polygon>& records) {
  for (std::size_t i = 0; i != polygon.SizeInnerPolygon(); ++i) {
    InnerPolygon* rings = &polygon.GetInnerPolygon(i);
    if (rings->chosen != InnerPolygon::LineStringChosen) continue;
    std::vector<Polygon> added = xmlReader::getPolygonList(rings);
    records.insert(records.end(), std::make_move_iterator(added.begin()),
                   std::make_move_iterator(added.end()));
    // Kept: hosts rely on the name standing in the zone's first ring, where the last polygon's one stays.
    if (!records.empty()) records.front().name = polygon.GetDesignator();
  }
}

TreatmentZone zone_record(::TreatmentZone& zone) {
  TreatmentZone record;
  record.name = zone.GetDesignator();
  record.code = zone.GetCode();
  for (std::size_t i = 0; i != zone.SizeInnerTreatmentZone(); ++i) {
    InnerTreatmentZone& run = zone.GetInnerTreatmentZone(i);
    // Kept: hosts rely on each run, of polygons too, replacing the variables of those before it.
    record.variables = variable_records(run);
    if (run.chosen != InnerTreatmentZone::PolygonChosen) continue;
    for (std::size_t p = 0; p != run.SizePolygon(); ++p) add_rings(run.GetPolygon(p), record.polygons);
  }
  return record;
}

}  // namespace

std::vector<TreatmentZone> xmlReader::getTZNList(Task*& task) {
  std::vector<TreatmentZone> records;
  for (std::size_t i = 0; i != task->SizeInnerTask(); ++i) {
    InnerTask& run = task->GetInnerTask(i);
    if (run.chosen != InnerTask::TreatmentZoneChosen) continue;
    for (std::size_t z = 0; z != run.SizeTreatmentZone(); ++z) {
      records.push_back(zone_record(run.GetTreatmentZone(z)));
    }
  }
  return records;
}

std::vector<Polygon> xmlReader::getPolygonList(InnerPolygon*& rings) {
  std::vector<Polygon> records;
  if (rings->chosen != InnerPolygon::LineStringChosen) return records;
  for (std::size_t i = 0; i != rings->SizeLineString(); ++i) {
    records.push_back(ring_record(rings->GetLineString(i)));
  }
  return records;
}

}  // namespace lmx
