// How a field's tree becomes its record. Every polygon, line string and point of the field is taken, whatever
// its type: hosts tell them apart themselves.
#include "transfer/IsoField.h"

#include <cstddef>

#include "isoxmllib/field_geometry.h"
#include "transfer/each_point.h"

namespace {

using UuidLinks = IsoField::UuidLinks;

// An optional attribute's value, or the default when it is absent: unsetting one leaves its value behind.
template <class T>
T if_set(bool is_set, T const& value) {
  return is_set ? value : T();
}

Location location(Point const& point) {
  return {point.GetNorth().get_as_float(), point.GetEast().get_as_float()};
}

double altitude(Point const& point) { return if_set(point.IssetAltitude(), point.GetAltitude()); }

void add_ring(LineString const& ring, IsoPolygon& record) {
  const bool is_interior = ring.GetenumType() == elmx_enum_2;
  each_point(ring, [&](Point const& point) {
    record.points.push_back(location(point));  // kept: hosts rely on all rings standing in one list
    if (is_interior) record.interiorPoints.push_back(location(point));
  });
}

IsoPolygon polygon_record(Polygon const& polygon, UuidLinks const& links) {
  IsoPolygon record;
  record.designator = if_set(polygon.IssetDesignator(), polygon.GetDesignator());
  record.id = if_set(polygon.IssetId(), polygon.GetId());
  record.uuid = IsoField::getIsoUuid(links, record.id);
  record.type = polygon.GetenumType();
  record.isOtherType = record.type == elmx_enum_8;
  record.colour = if_set(polygon.IssetColour(), polygon.GetColour());
  record.area = if_set(polygon.IssetArea(), polygon.GetArea());
  record.metaData = if_set(polygon.IssetP007PolygonMetaData(), polygon.GetP007PolygonMetaData());
  record.sprayProperty = if_set(polygon.IssetP917SprayProperty(), polygon.GetenumP917SprayProperty());
  record.plantProperty = if_set(polygon.IssetP917PlantProperty(), polygon.GetenumP917PlantProperty());
  for (std::size_t i = 0; i != polygon.SizeInnerPolygon(); ++i) {
    InnerPolygon const& rings = polygon.GetInnerPolygon(i);
    if (rings.chosen != InnerPolygon::LineStringChosen) continue;
    for (std::size_t r = 0; r != rings.SizeLineString(); ++r) add_ring(rings.GetLineString(r), record);
  }
  return record;
}

// A line that was read has one run of points and gives one record. One that was built of several runs gives
// a record for each, with the points of the runs before it too; kept: hosts rely on it.
void add_scout_lines(LineString const& line, UuidLinks const& links, std::vector<IsoScoutLine>& records) {
  IsoScoutLine growing;
  growing.designator = if_set(line.IssetDesignator(), line.GetDesignator());
  growing.id = if_set(line.IssetId(), line.GetId());
  growing.uuid = IsoField::getIsoUuid(links, growing.id);
  for (std::size_t i = 0; i != line.SizeInnerLineString(); ++i) {
    each_point(line.GetInnerLineString(i), [&](Point const& point) {
      const Location at = location(point);
      growing.points.push_back({at.north, at.east, altitude(point)});
    });
    records.push_back(growing);
  }
}

IsoScoutPoint scout_point(Point const& point, UuidLinks const& links) {
  IsoScoutPoint record;
  record.designator = if_set(point.IssetDesignator(), point.GetDesignator());
  record.id = if_set(point.IssetId(), point.GetId());
  record.uuid = IsoField::getIsoUuid(links, record.id);
  record.north = location(point).north;
  record.east = location(point).east;
  record.altitude = altitude(point);
  record.type = point.GetenumType();
  return record;
}

IsoGuidanceLine guidance_line(GuidancePattern const& pattern, LineString const& line,
                              UuidLinks const& links) {
  IsoGuidanceLine record;
  record.designator = if_set(pattern.IssetDesignator(), pattern.GetDesignator());
  record.id = pattern.GetId();
  record.uuid = IsoField::getIsoUuid(links, record.id);
  record.type = pattern.GetenumType();
  record.options = if_set(pattern.IssetOptions(), pattern.GetenumOptions());
  record.propagationDirection =
      if_set(pattern.IssetPropagationDirection(), pattern.GetenumPropagationDirection());
  record.extension = record.type;  // kept: hosts rely on it, and never saw the attribute
  record.gnssMethod = if_set(pattern.IssetGNSSMethod(), pattern.GetenumGNSSMethod());
  const bool is_a_plus = record.type == elmx_enum_2;
  const bool is_pivot = record.type == elmx_enum_4;
  if (is_a_plus && pattern.IssetHeading()) record.heading = pattern.GetHeading().get_as_float();
  if (is_pivot) record.radius = if_set(pattern.IssetRadius(), pattern.GetRadius());
  // Kept: hosts take a pivot's first point for its centre. Of several centres the last one comes first.
  std::vector<Location> centres;
  each_point(line, [&](Point const& point) {
    const bool is_centre = is_pivot && point.GetenumType() == elmx_enum_8;
    (is_centre ? centres : record.points).push_back(location(point));
  });
  record.points.insert(record.points.begin(), centres.rbegin(), centres.rend());
  record.metaData = if_set(pattern.IssetP007GuidanceMetaData(), pattern.GetP007GuidanceMetaData());
  return record;
}

void add_guidance_lines(GuidancePattern& pattern, UuidLinks const& links,
                        std::vector<IsoGuidanceLine>& records) {
  for (std::size_t i = 0; i != pattern.SizeInnerGuidancePattern(); ++i) {
    // This selects: a boundary polygon becomes an empty line string, which is no guidance line.
    LineString const& line = pattern.GetInnerGuidancePattern(i).GetLineString();
    if (line.GetenumType() == elmx_enum_5) records.push_back(guidance_line(pattern, line, links));
  }
}

IsoGuidanceGroup guidance_group(GuidanceGroup& group, UuidLinks const& links) {
  IsoGuidanceGroup record;
  record.id = group.GetId();
  record.uuid = IsoField::getIsoUuid(links, record.id);
  record.designator = if_set(group.IssetDesignator(), group.GetDesignator());
  record.metaData = if_set(group.IssetP007GuidanceGroupMetaData(), group.GetP007GuidanceGroupMetaData());
  for (std::size_t i = 0; i != group.SizeInnerGuidanceGroup(); ++i) {
    InnerGuidanceGroup& patterns = group.GetInnerGuidanceGroup(i);
    if (patterns.chosen != InnerGuidanceGroup::GuidancePatternChosen) continue;
    for (std::size_t p = 0; p != patterns.SizeGuidancePattern(); ++p) {
      add_guidance_lines(patterns.GetGuidancePattern(p), links, record.guidanceLines);
    }
  }
  return record;
}

// Takes the attributes, but no UUID.
void copy_attributes(Field const& field, IsoField& record) {
  record.area = field.GetArea();
  record.comment = if_set(field.IssetComment(), field.GetComment());
  record.county = if_set(field.IssetCounty(), field.GetCounty());
  record.crop = if_set(field.IssetCrop(), field.GetCrop());
  record.cropTypeIdRef = if_set(field.IssetCropTypeIdRef(), field.GetCropTypeIdRef());
  record.cropVarietyIdRef = if_set(field.IssetCropVarietyIdRef(), field.GetCropVarietyIdRef());
  record.designator = field.GetDesignator();
  record.farmIdRef = if_set(field.IssetFarmIdRef(), field.GetFarmIdRef());
  record.fieldIdRef = if_set(field.IssetFieldIdRef(), field.GetFieldIdRef());
  record.growerIdRef = if_set(field.IssetGrowerIdRef(), field.GetGrowerIdRef());
  record.id = field.GetId();
  record.fieldCode = if_set(field.IssetFieldCode(), field.GetFieldCode());
  record.section = if_set(field.IssetSection(), field.GetSection());
  record.state = if_set(field.IssetState(), field.GetState());
  record.township = if_set(field.IssetTownship(), field.GetTownship());
}

// Takes one run of like children; one in which nothing is chosen has none.
void add_children(InnerField& run, UuidLinks const& links, IsoField& record) {
  switch (run.chosen) {
    case InnerField::PolygonChosen:
      for (std::size_t i = 0; i != run.SizePolygon(); ++i) {
        record.polygons.push_back(polygon_record(run.GetPolygon(i), links));
      }
      break;
    case InnerField::LineStringChosen:
      for (std::size_t i = 0; i != run.SizeLineString(); ++i) {
        add_scout_lines(run.GetLineString(i), links, record.scoutLines);
      }
      break;
    case InnerField::PointChosen:
      for (std::size_t i = 0; i != run.SizePoint(); ++i) {
        record.scoutPoints.push_back(scout_point(run.GetPoint(i), links));
      }
      break;
    case InnerField::GuidanceGroupChosen:
      for (std::size_t i = 0; i != run.SizeGuidanceGroup(); ++i) {
        record.guidanceGroups.push_back(guidance_group(run.GetGuidanceGroup(i), links));
      }
      break;
    default: break;
  }
}

}  // namespace

IsoField::IsoField(Field* field, UuidLinks const& uuidLinks) {
  copy_attributes(*field, *this);
  uuid = getIsoUuid(uuidLinks, id);
  farmUuid = getIsoUuid(uuidLinks, farmIdRef);
  growerUuid = getIsoUuid(uuidLinks, growerIdRef);
  for (std::size_t i = 0; i != field->SizeInnerField(); ++i) {
    add_children(field->GetInnerField(i), uuidLinks, *this);
  }
}

IsoField::IsoField(Field* field) : IsoField(field, UuidLinks()) {}

std::string IsoField::getIsoUuid(UuidLinks const& uuidLinks, std::string const& key) {
  const auto link = key.empty() ? uuidLinks.end() : uuidLinks.find(key);
  return link == uuidLinks.end() ? std::string() : link->second;
}

// Kept: hosts rely on a boundary counting, and on guidance not counting.
bool IsoField::hasScoutItem() const {
  return !scoutLines.empty() || !scoutPoints.empty() || !polygons.empty();
}
