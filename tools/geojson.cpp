// How elements become features. Properties are named as in the JSON of the commands `fields` and `rx`.
#include "tools/geojson.h"

#include <map>
#include <set>
#include <utility>
#include <vector>

#include "isoxmllib/isoxmllib.h"
#include "tools/geometry.h"
#include "tools/listing.h"
#include "tools/zone_values.h"
#include "transfer/IsoXmlParser.h"

namespace {

template <class T>
Json if_set(bool is_set, T const& value) {
  return is_set ? Json(value) : Json();
}

// ---- Geometries ----

Json coordinates(LonLat const& position) { return Json::array({position.east, position.north}); }

Json coordinates(Path const& path) {
  Json array = Json::array();
  for (LonLat const& position : path) array.push_back(coordinates(position));
  return array;
}

Json coordinates(Area const& area) {
  Json rings = Json::array({coordinates(area.exterior)});
  for (Path const& hole : area.holes) rings.push_back(coordinates(hole));
  return rings;
}

Json geometry(char const* type, Json coordinates) {
  return {{"type", type}, {"coordinates", std::move(coordinates)}};
}

Json geometry_of(Polygon const& polygon) {
  const std::vector<Area> areas = areas_of(polygon);
  if (areas.empty()) return Json();
  if (areas.size() == 1) return geometry("Polygon", coordinates(areas.front()));
  Json parts = Json::array();
  for (Area const& area : areas) parts.push_back(coordinates(area));
  return geometry("MultiPolygon", std::move(parts));
}

// A single position is a point: such as the start of a guidance line that goes on by its heading.
Json geometry_of(Path const& path, char const* type_of_several) {
  if (path.empty()) return Json();
  if (path.size() == 1) return geometry("Point", coordinates(path.front()));
  return geometry(type_of_several, coordinates(path));
}

// ---- Features ----

class Features {
 public:
  void add(Json properties, Json geometry) {
    array.push_back(
        {{"type", "Feature"}, {"properties", std::move(properties)}, {"geometry", std::move(geometry)}});
  }
  Json collection() { return {{"type", "FeatureCollection"}, {"features", std::move(array)}}; }

 private:
  Json array = Json::array();
};

// What all geometry elements have in common.
template <class Element>
void describe(Element const& element, IsoXmlParser const& set, Json& properties) {
  properties["type"] = element.GetType();
  properties["typeName"] = name_of_type(element);
  properties["id"] = if_set(element.IssetId(), element.GetId());
  properties["uuid"] = null_if_empty(set.getIsoUuid(element.GetId()));
  properties["designator"] = if_set(element.IssetDesignator(), element.GetDesignator());
  properties["colour"] = if_set(element.IssetColour(), element.GetColour());
}

// ---- Fields ----

using Names = std::map<std::string, std::string>;

Json name_of(std::string const& id, Names const& names) {
  const auto name = names.find(id);
  return name == names.end() ? Json() : Json(name->second);
}

// Collects the features of all fields; of one field at a time.
class FieldFeatures {
 public:
  explicit FieldFeatures(IsoXmlParser const& parser) : set(parser) {
    for (IsoFarm const& farm : set.getFarms()) farms.emplace(farm.id, farm.designator);
    for (IsoGrower const& grower : set.getGrowers()) growers.emplace(grower.id, grower.lastName);
  }

  void add(Field const& next_field) {
    field = &next_field;
    for (std::size_t i = 0; i != field->SizeInnerField(); ++i) add_children(field->GetInnerField(i));
  }

  Json collection() { return features.collection(); }

 private:
  void add_children(InnerField const& run) {
    switch (run.chosen) {
      case InnerField::PolygonChosen:
        for (std::size_t i = 0; i != run.SizePolygon(); ++i) add_polygon(run.GetPolygon(i));
        break;
      case InnerField::LineStringChosen:
        for (std::size_t i = 0; i != run.SizeLineString(); ++i) add_line(run.GetLineString(i));
        break;
      case InnerField::PointChosen:
        for (std::size_t i = 0; i != run.SizePoint(); ++i) add_point(run.GetPoint(i));
        break;
      case InnerField::GuidanceGroupChosen:
        for (std::size_t i = 0; i != run.SizeGuidanceGroup(); ++i) add_group(run.GetGuidanceGroup(i));
        break;
      default: break;
    }
  }

  Json properties(char const* kind) const {
    return {
        {"kind", kind},
        {"fieldId", field->GetId()},
        {"fieldUuid", null_if_empty(set.getIsoUuid(field->GetId()))},
        {"fieldDesignator", field->GetDesignator()},
    };
  }

  void describe_field(Json& object) const {
    object["fieldCode"] = if_set(field->IssetFieldCode(), field->GetFieldCode());
    object["fieldArea"] = field->GetArea();
    object["fieldIdRef"] = if_set(field->IssetFieldIdRef(), field->GetFieldIdRef());
    object["farmIdRef"] = if_set(field->IssetFarmIdRef(), field->GetFarmIdRef());
    object["farmUuid"] = null_if_empty(set.getIsoUuid(field->GetFarmIdRef()));
    object["farmDesignator"] = name_of(field->GetFarmIdRef(), farms);
    object["growerIdRef"] = if_set(field->IssetGrowerIdRef(), field->GetGrowerIdRef());
    object["growerUuid"] = null_if_empty(set.getIsoUuid(field->GetGrowerIdRef()));
    object["growerLastName"] = name_of(field->GetGrowerIdRef(), growers);
    object["cropTypeIdRef"] = if_set(field->IssetCropTypeIdRef(), field->GetCropTypeIdRef());
    object["cropVarietyIdRef"] = if_set(field->IssetCropVarietyIdRef(), field->GetCropVarietyIdRef());
  }

  void add_polygon(Polygon const& polygon) {
    const bool is_boundary = polygon.GetenumType() == elmx_enum_1;
    Json object = properties(is_boundary ? "boundary" : "polygon");
    describe(polygon, set, object);
    object["area"] = if_set(polygon.IssetArea(), polygon.GetArea());
    if (is_boundary) describe_field(object);
    features.add(std::move(object), geometry_of(polygon));
  }

  void add_line(LineString const& line) {
    Json object = properties("line");
    describe(line, set, object);
    object["width"] = if_set(line.IssetWidth(), line.GetWidth());
    object["length"] = if_set(line.IssetLength(), line.GetLength());
    features.add(std::move(object), geometry_of(positions_of(line), "LineString"));
  }

  void add_point(Point const& point) {
    Json object = properties("point");
    describe(point, set, object);
    object["altitude"] = if_set(point.IssetAltitude(), point.GetAltitude());
    features.add(std::move(object), geometry("Point", coordinates(position_of(point))));
  }

  void add_group(GuidanceGroup const& group) {
    for (std::size_t i = 0; i != group.SizeInnerGuidanceGroup(); ++i) {
      InnerGuidanceGroup const& run = group.GetInnerGuidanceGroup(i);
      if (run.chosen == InnerGuidanceGroup::BoundaryPolygonChosen) {
        add_guidance_boundary(run.GetBoundaryPolygon(), group, nullptr);
      } else if (run.chosen == InnerGuidanceGroup::GuidancePatternChosen) {
        for (std::size_t p = 0; p != run.SizeGuidancePattern(); ++p) {
          add_pattern(run.GetGuidancePattern(p), group);
        }
      }
    }
  }

  void add_pattern(GuidancePattern const& pattern, GuidanceGroup const& group) {
    for (std::size_t i = 0; i != pattern.SizeInnerGuidancePattern(); ++i) {
      InnerGuidancePattern const& child = pattern.GetInnerGuidancePattern(i);
      if (child.chosen == InnerGuidancePattern::BoundaryPolygonChosen) {
        add_guidance_boundary(child.GetBoundaryPolygon(), group, &pattern);
      } else if (child.chosen == InnerGuidancePattern::LineStringChosen) {
        add_guidance_line(child.GetLineString(), pattern, group);
      }
    }
  }

  void describe_group(GuidanceGroup const& group, Json& object) const {
    object["groupId"] = group.GetId();
    object["groupUuid"] = null_if_empty(set.getIsoUuid(group.GetId()));
    object["groupDesignator"] = if_set(group.IssetDesignator(), group.GetDesignator());
  }

  // `pattern` is null for the boundary of the whole group.
  void add_guidance_boundary(Polygon const& polygon, GuidanceGroup const& group,
                             GuidancePattern const* pattern) {
    Json object = properties("guidanceBoundary");
    describe(polygon, set, object);
    describe_group(group, object);
    object["patternId"] = pattern == nullptr ? Json() : Json(pattern->GetId());
    features.add(std::move(object), geometry_of(polygon));
  }

  void add_guidance_line(LineString const& line, GuidancePattern const& pattern, GuidanceGroup const& group) {
    // A pivot's points are its centre and marks on its circle: no line leads through them.
    const bool is_pivot = pattern.GetenumType() == elmx_enum_4;
    Json object = properties("guidanceLine");
    object["type"] = pattern.GetType();
    object["typeName"] = name_of_type(pattern);
    object["id"] = pattern.GetId();
    object["uuid"] = null_if_empty(set.getIsoUuid(pattern.GetId()));
    object["designator"] = if_set(pattern.IssetDesignator(), pattern.GetDesignator());
    object["colour"] = if_set(line.IssetColour(), line.GetColour());
    describe_group(group, object);
    object["lineType"] = line.GetType();
    object["width"] = if_set(line.IssetWidth(), line.GetWidth());
    object["heading"] = if_set(pattern.IssetHeading(), pattern.GetHeading().get_as_float());
    object["radius"] = if_set(pattern.IssetRadius(), pattern.GetRadius());
    object["options"] = if_set(pattern.IssetOptions(), pattern.GetOptions());
    object["propagationDirection"] =
        if_set(pattern.IssetPropagationDirection(), pattern.GetPropagationDirection());
    object["extension"] = if_set(pattern.IssetExtension(), pattern.GetExtension());
    object["pointTypes"] = is_pivot ? point_types(line) : Json();
    features.add(std::move(object), geometry_of(positions_of(line), is_pivot ? "MultiPoint" : "LineString"));
  }

  static Json point_types(LineString const& line) {
    Json types = Json::array();
    each_child(line, &LineString::SizeInnerLineString, &LineString::GetInnerLineString,
               InnerLineString::PointChosen, &InnerLineString::SizePoint, &InnerLineString::GetPoint,
               [&](Point const& point) { types.push_back(name_of_type(point)); });
    return types;
  }

  IsoXmlParser const& set;
  Names farms, growers;
  Features features;
  Field const* field = nullptr;
};

// ---- Prescriptions ----

struct Lookups {
  explicit Lookups(IsoXmlParser const& set)
      : products(by_id(set.getProducts())), presentations(by_id(set.getValuePresentations())) {}

  ById<Product> products;
  ById<ValuePresentation> presentations;
};

Json as_json(ProcessDataVariable const& variable, Lookups const& lookups) {
  Product const* const product = find(lookups.products, variable.GetProductIdRef());
  ValuePresentation const* const presentation =
      find(lookups.presentations, variable.GetValuePresentationIdRef());
  const bool has_unit = presentation != nullptr && presentation->IssetUnitDesignator();
  return {
      {"ddi", variable.GetDDI().get_as_hex_string()},
      {"value", variable.GetValue()},
      {"shownValue", presentation == nullptr ? Json() : Json(shown_value(variable, *presentation))},
      {"unit", has_unit ? Json(presentation->GetUnitDesignator()) : Json()},
      {"productIdRef", if_set(variable.IssetProductIdRef(), variable.GetProductIdRef())},
      {"productDesignator", product == nullptr ? Json() : Json(product->GetDesignator())},
      {"deviceElementIdRef", if_set(variable.IssetDeviceElementIdRef(), variable.GetDeviceElementIdRef())},
      {"valuePresentationIdRef",
       if_set(variable.IssetValuePresentationIdRef(), variable.GetValuePresentationIdRef())},
      {"rxMap", if_set(variable.IssetP917Rxmap(), variable.GetP917Rxmap())},
      {"rxColumn", if_set(variable.IssetP917Rxcolumn(), variable.GetP917Rxcolumn())},
      {"rxUnit", if_set(variable.IssetP917Rxunit(), variable.GetP917Rxunit())},
      {"rxWithoutConversionRate",
       if_set(variable.IssetP917Rxwoconvrate(), variable.GetP917Rxwoconvrate().get_as_float())},
  };
}

Json zone_properties(Task const& task, TreatmentZone const& zone, IsoXmlParser const& set) {
  return {
      {"taskId", task.GetId()},
      {"taskUuid", null_if_empty(set.getIsoUuid(task.GetId()))},
      {"taskDesignator", if_set(task.IssetDesignator(), task.GetDesignator())},
      {"zoneCode", zone.GetCode()},
      {"zoneDesignator", if_set(zone.IssetDesignator(), zone.GetDesignator())},
      {"zoneColour", if_set(zone.IssetColour(), zone.GetColour())},
  };
}

// The list, and a number beside it for the first variable of each identifier: styles by value need one.
void add_variables(std::vector<ProcessDataVariable const*> const& variables, Lookups const& lookups,
                   Json& properties) {
  std::set<std::string> seen;
  Json list = Json::array();
  auto& object = properties.get_ref<Json::object_t&>();
  for (ProcessDataVariable const* variable : variables) {
    list.push_back(as_json(*variable, lookups));
    const std::string ddi = variable->GetDDI().get_as_hex_string();
    // Not by operator[], which searches: a zone may have as many identifiers as there are.
    if (seen.insert(ddi).second) object.push_back({"value" + ddi, variable->GetValue()});
  }
  properties["variables"] = std::move(list);
}

// Collects the polygons of a task's zones. Each has the variables of its zone; but a hostile zone of many
// polygons and many variables would give a product of both, so that there is an end to repeating.
class ZoneFeatures {
 public:
  ZoneFeatures(IsoXmlParser const& parser, Task const& of_task)
      : set(parser), task(of_task), lookups(parser) {}

  void add(TreatmentZone const& zone) {
    const std::vector<ProcessDataVariable const*> variables = variables_of(zone);
    Json properties = zone_properties(task, zone, set);
    add_variables(variables, lookups, properties);
    bool is_first = true;
    for (Polygon const* polygon : polygons_of(zone)) {
      if (!is_first) repeated += variables.size();
      Json object = is_first || repeated <= most_repeated ? properties : zone_properties(task, zone, set);
      describe(*polygon, set, object);
      object["area"] = if_set(polygon->IssetArea(), polygon->GetArea());
      features.add(std::move(object), geometry_of(*polygon));
      is_first = false;
    }
  }

  Json collection() { return features.collection(); }

 private:
  static constexpr std::size_t most_repeated = 200'000;

  IsoXmlParser const& set;
  Task const& task;
  Lookups lookups;
  Features features;
  std::size_t repeated = 0;
};

}  // namespace

Json fields_geojson(IsoXmlParser const& set) {
  FieldFeatures features(set);
  for (Field const* field : set.getLmxFields()) features.add(*field);
  return features.collection();
}

Json rx_geojson(IsoXmlParser const& set, std::string const& task_id) {
  Task const* found = nullptr;
  for (Task const* task : set.getTasks()) {
    if (task->GetId() == task_id) found = task;
  }
  if (found == nullptr) return Features().collection();
  ZoneFeatures features(set, *found);
  for (TreatmentZone const* zone : zones_of(*found)) features.add(*zone);
  return features.collection();
}

void print_geojson(Json const& collection, std::ostream& out) {
  out << "{\"type\": \"FeatureCollection\", \"features\": [";
  char const* separator = "\n";
  for (Json const& feature : collection.at("features")) {
    out << separator << feature.dump(-1, ' ', true, Json::error_handler_t::replace);
    separator = ",\n";
  }
  out << "\n]}\n";
}
