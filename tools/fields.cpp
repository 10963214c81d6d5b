// The command `fields`: the fields of a transfer set. Text counts their geometry, JSON holds all of it.
#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstddef>
#include <iostream>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include "isoxmllib/isoxmllib.h"
#include "tools/geojson.h"
#include "tools/views.h"
#include "transfer/IsoXmlParser.h"

namespace {

// The record, and the element for what the record does not tell apart.
struct FieldRow : IsoField {
  FieldRow(IsoField record, Field const* source) : IsoField(std::move(record)), element(source) {}
  Field const* element;
};

std::vector<FieldRow> field_rows(IsoXmlParser& set) {
  std::vector<IsoField> records = set.getFields();
  const std::vector<Field*> elements = set.getLmxFields();  // in the same order
  std::vector<FieldRow> rows;
  for (std::size_t i = 0; i != records.size(); ++i) rows.emplace_back(std::move(records[i]), elements[i]);
  return rows;
}

// A coded value as documents have it.
Json text_of(elmx_enums code) {
  constexpr char const* texts[] = {nullptr, "1", "2",  "FC", "USB", "API", "PORTAL", "3",
                                   "4",     "5", "6",  "7",  "8",   "9",   "10",     "11",
                                   "12",    "0", "16", "17", "13",  "14",  "15"};
  const auto index = static_cast<std::size_t>(code);
  return index == 0 || index >= std::size(texts) ? Json() : Json(texts[index]);
}

template <class Record>
auto text_of(elmx_enums Record::*member) {
  return [member](Record const& record) { return text_of(record.*member); };
}

template <class Record>
auto uuid_of(std::string Record::*member) {
  return [member](Record const& record) { return null_if_empty(record.*member); };
}

// ---- In JSON ----

Columns<Location> location_columns() {
  return {{"north", nullptr, &Location::north}, {"east", nullptr, &Location::east}};
}

Columns<IsoPoint> point_columns() {
  return {
      {"north", nullptr, &IsoPoint::north},
      {"east", nullptr, &IsoPoint::east},
      {"altitude", nullptr, &IsoPoint::altitude},
  };
}

Columns<IsoPolygon> polygon_columns() {
  return {
      {"id", nullptr, &IsoPolygon::id},
      {"uuid", nullptr, uuid_of(&IsoPolygon::uuid)},
      {"designator", nullptr, &IsoPolygon::designator},
      {"type", nullptr, text_of(&IsoPolygon::type)},
      {"isOtherType", nullptr, &IsoPolygon::isOtherType},
      {"colour", nullptr, &IsoPolygon::colour},
      {"area", nullptr, &IsoPolygon::area},
      {"sprayProperty", nullptr, text_of(&IsoPolygon::sprayProperty)},
      {"plantProperty", nullptr, text_of(&IsoPolygon::plantProperty)},
      {"metaData", nullptr, &IsoPolygon::metaData},
      {"points", nullptr, list_of(&IsoPolygon::points, location_columns())},
      {"interiorPoints", nullptr, list_of(&IsoPolygon::interiorPoints, location_columns())},
  };
}

Columns<IsoScoutLine> scout_line_columns() {
  return {
      {"id", nullptr, &IsoScoutLine::id},
      {"uuid", nullptr, uuid_of(&IsoScoutLine::uuid)},
      {"designator", nullptr, &IsoScoutLine::designator},
      {"points", nullptr, list_of(&IsoScoutLine::points, point_columns())},
  };
}

Columns<IsoScoutPoint> scout_point_columns() {
  return {
      {"id", nullptr, &IsoScoutPoint::id},
      {"uuid", nullptr, uuid_of(&IsoScoutPoint::uuid)},
      {"designator", nullptr, &IsoScoutPoint::designator},
      {"type", nullptr, text_of(&IsoScoutPoint::type)},
      {"north", nullptr, &IsoScoutPoint::north},
      {"east", nullptr, &IsoScoutPoint::east},
      {"altitude", nullptr, &IsoScoutPoint::altitude},
  };
}

Columns<IsoGuidanceLine> guidance_line_columns() {
  return {
      {"id", nullptr, &IsoGuidanceLine::id},
      {"uuid", nullptr, uuid_of(&IsoGuidanceLine::uuid)},
      {"designator", nullptr, &IsoGuidanceLine::designator},
      {"type", nullptr, text_of(&IsoGuidanceLine::type)},
      {"options", nullptr, text_of(&IsoGuidanceLine::options)},
      {"propagationDirection", nullptr, text_of(&IsoGuidanceLine::propagationDirection)},
      {"extension", nullptr, text_of(&IsoGuidanceLine::extension)},
      {"gnssMethod", nullptr, text_of(&IsoGuidanceLine::gnssMethod)},
      {"radius", nullptr, &IsoGuidanceLine::radius},
      {"heading", nullptr, &IsoGuidanceLine::heading},
      {"metaData", nullptr, &IsoGuidanceLine::metaData},
      {"points", nullptr, list_of(&IsoGuidanceLine::points, location_columns())},
  };
}

Columns<IsoGuidanceGroup> guidance_group_columns() {
  return {
      {"id", nullptr, &IsoGuidanceGroup::id},
      {"uuid", nullptr, uuid_of(&IsoGuidanceGroup::uuid)},
      {"designator", nullptr, &IsoGuidanceGroup::designator},
      {"metaData", nullptr, &IsoGuidanceGroup::metaData},
      {"guidanceLines", nullptr, list_of(&IsoGuidanceGroup::guidanceLines, guidance_line_columns())},
  };
}

// ---- In text ----

Json count_boundaries(FieldRow const& row) {
  return std::count_if(row.polygons.begin(), row.polygons.end(),
                       [](IsoPolygon const& polygon) { return polygon.type == elmx_enum_1; });
}

std::size_t count_interior_rings(Polygon const& polygon) {
  std::size_t count = 0;
  for (std::size_t i = 0; i != polygon.SizeInnerPolygon(); ++i) {
    InnerPolygon const& run = polygon.GetInnerPolygon(i);
    if (run.chosen != InnerPolygon::LineStringChosen) continue;
    for (std::size_t j = 0; j != run.SizeLineString(); ++j) {
      if (run.GetLineString(j).GetenumType() == elmx_enum_2) ++count;
    }
  }
  return count;
}

Json count_holes(FieldRow const& row) {
  std::size_t count = 0;
  for (std::size_t i = 0; i != row.element->SizeInnerField(); ++i) {
    InnerField const& run = row.element->GetInnerField(i);
    if (run.chosen != InnerField::PolygonChosen) continue;
    for (std::size_t j = 0; j != run.SizePolygon(); ++j) count += count_interior_rings(run.GetPolygon(j));
  }
  return count;
}

Json count_points(FieldRow const& row) {
  std::size_t count = 0;
  for (IsoPolygon const& polygon : row.polygons) count += polygon.points.size();
  return count;
}

Json count_guidance(FieldRow const& row) {
  std::size_t lines = 0;
  for (IsoGuidanceGroup const& group : row.guidanceGroups) lines += group.guidanceLines.size();
  return std::to_string(row.guidanceGroups.size()) + '/' + std::to_string(lines);
}

Json count_scout_items(FieldRow const& row) { return row.scoutLines.size() + row.scoutPoints.size(); }

Columns<FieldRow> field_columns() {
  return {
      {"id", "Id", &FieldRow::id},
      {"designator", "Name", &FieldRow::designator},
      {"area", "Area", &FieldRow::area},
      {"growerIdRef", "Grower", &FieldRow::growerIdRef},
      {"growerUuid", nullptr, [](FieldRow const& row) { return null_if_empty(row.growerUuid); }},
      {"farmIdRef", "Farm", &FieldRow::farmIdRef},
      {"farmUuid", nullptr, [](FieldRow const& row) { return null_if_empty(row.farmUuid); }},
      {"fieldIdRef", nullptr, &FieldRow::fieldIdRef},
      {"fieldCode", nullptr, &FieldRow::fieldCode},
      {"cropTypeIdRef", nullptr, &FieldRow::cropTypeIdRef},
      {"cropVarietyIdRef", nullptr, &FieldRow::cropVarietyIdRef},
      {"crop", nullptr, &FieldRow::crop},
      {"section", nullptr, &FieldRow::section},
      {"township", nullptr, &FieldRow::township},
      {"county", nullptr, &FieldRow::county},
      {"state", nullptr, &FieldRow::state},
      {"comment", nullptr, &FieldRow::comment},
      {nullptr, "Bounds", count_boundaries},
      {nullptr, "Holes", count_holes},
      {nullptr, "Points", count_points},
      {nullptr, "Guidance", count_guidance},
      {nullptr, "Scout", count_scout_items},
      {"uuid", "UUID", [](FieldRow const& row) { return null_if_empty(row.uuid); }},
      {"hasScoutItem", nullptr, &FieldRow::hasScoutItem},
      {"polygons", nullptr, list_of(&IsoField::polygons, polygon_columns())},
      {"scoutLines", nullptr, list_of(&IsoField::scoutLines, scout_line_columns())},
      {"scoutPoints", nullptr, list_of(&IsoField::scoutPoints, scout_point_columns())},
      {"guidanceGroups", nullptr, list_of(&IsoField::guidanceGroups, guidance_group_columns())},
  };
}

}  // namespace

RunCommand prepare_fields(CLI::App& options) {
  auto arguments = add_set_arguments(options);
  auto is_json = add_json_flag(options);
  auto is_geojson = add_geojson_flag(options);
  return [arguments, is_json, is_geojson] {
    return run_on_set(*arguments, [&](IsoXmlParser& set) {
      if (*is_geojson) {
        print_geojson(fields_geojson(set), std::cout);
      } else {
        print_list(field_rows(set), field_columns(), form_of(*is_json));
      }
      return ExitStatus::AllGood;
    });
  };
}
