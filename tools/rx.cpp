// The command `rx`: what the tasks of a transfer set prescribe by treatment zones.
#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstddef>
#include <iostream>
#include <map>
#include <memory>
#include <utility>

#include "isoxmllib/isoxmllib.h"
#include "tools/geojson.h"
#include "tools/set_report.h"
#include "tools/views.h"
#include "transfer/IsoXmlParser.h"

namespace {

using Maps = std::vector<lmx::ISORxMap>;

// The map of each task, or of the one that is asked for. Where tasks share an identifier the last one stands
// for it.
Maps maps_of(IsoXmlParser const& set, std::string const& task_id) {
  if (task_id.empty()) return set.getISORxMaps();
  const std::vector<lmx::TaskInfo> infos = set.getTaskInfoList();
  const auto last = std::find_if(infos.rbegin(), infos.rend(),
                                 [&](lmx::TaskInfo const& info) { return info.id == task_id; });
  Maps maps;
  if (last != infos.rend()) set.getISORxMap(*last, maps.emplace_back());
  return maps;
}

// ---- In JSON ----

unsigned char colour_of(lmx::Polygon const& ring) {
  return ring.colour.empty() ? 0 : static_cast<unsigned char>(ring.colour.front());
}

Columns<lmx::Point> point_columns() {
  return {
      {"east", nullptr, &lmx::Point::east},
      {"north", nullptr, &lmx::Point::north},
      {"altitude", nullptr, &lmx::Point::altitude},
  };
}

Columns<lmx::Polygon> ring_columns() {
  return {
      {"isInterior", nullptr, &lmx::Polygon::isInterior},
      {"name", nullptr, &lmx::Polygon::name},
      {"designator", nullptr, &lmx::Polygon::designator},
      {"colour", nullptr, colour_of},
      {"points", nullptr, list_of(&lmx::Polygon::points, point_columns())},
  };
}

Columns<lmx::ProcessDataVariable> variable_columns() {
  using Variable = lmx::ProcessDataVariable;
  return {
      {"ddi", nullptr, &Variable::ddi},
      {"value", nullptr, &Variable::value},
      {"productIdRef", nullptr, &Variable::productIdRef},
      {"valuePresentationIdRef", nullptr, &Variable::valuePresentationIdRef},
      {"rxMap", nullptr, &Variable::rxMap},
      {"rxColumn", nullptr, &Variable::rxColumn},
      {"rxUnit", nullptr, &Variable::rxUnit},
      {"rxWithoutConversionRate", nullptr, &Variable::rxWithoutConversionRate},
  };
}

Columns<lmx::TreatmentZone> zone_columns() {
  return {
      {"code", nullptr, &lmx::TreatmentZone::code},
      {"name", nullptr, &lmx::TreatmentZone::name},
      {"variables", nullptr, list_of(&lmx::TreatmentZone::variables, variable_columns())},
      {"polygons", nullptr, list_of(&lmx::TreatmentZone::polygons, ring_columns())},
  };
}

Columns<lmx::ISORxMap> map_columns() {
  return {
      {"taskId", nullptr, &lmx::ISORxMap::taskId},
      {"designator", nullptr, &lmx::ISORxMap::designator},
      {"defaultTreatmentZoneCode", nullptr, &lmx::ISORxMap::defaultTreatmentZoneCode},
      {"positionLostTreatmentZoneCode", nullptr, &lmx::ISORxMap::positionLostTreatmentZoneCode},
      {"outOfFieldTreatmentZoneCode", nullptr, &lmx::ISORxMap::outOfFieldTreatmentZoneCode},
      {"treatmentZones", nullptr, list_of(&lmx::ISORxMap::treatmentZones, zone_columns())},
  };
}

// ---- In text ----

// One colour when all rings of the zone have it.
Json colour_of(lmx::TreatmentZone const& zone) {
  if (zone.polygons.empty()) return Json();
  const auto differs = [first = colour_of(zone.polygons.front())](lmx::Polygon const& ring) {
    return colour_of(ring) != first;
  };
  if (std::any_of(zone.polygons.begin(), zone.polygons.end(), differs)) return "several";
  return colour_of(zone.polygons.front());
}

// One set value of a zone, or a zone without any.
struct ValueRow {
  lmx::ISORxMap const* map;
  lmx::TreatmentZone const* zone;
  Json colour;                               // found once for a zone: it may have many rings and values
  lmx::ProcessDataVariable const* variable;  // may be null
};

std::vector<ValueRow> value_rows(Maps const& maps) {
  std::vector<ValueRow> rows;
  for (lmx::ISORxMap const& map : maps) {
    for (lmx::TreatmentZone const& zone : map.treatmentZones) {
      const Json colour = colour_of(zone);
      if (zone.variables.empty()) rows.push_back({&map, &zone, colour, nullptr});
      for (lmx::ProcessDataVariable const& variable : zone.variables) {
        rows.push_back({&map, &zone, colour, &variable});
      }
    }
  }
  return rows;
}

template <class Value>
auto of_variable(Value lmx::ProcessDataVariable::*member) {
  return [member](ValueRow const& row) {
    return row.variable == nullptr ? Json() : Json(row.variable->*member);
  };
}

Columns<ValueRow> value_columns() {
  return {
      {nullptr, "Task", [](ValueRow const& row) { return row.map->taskId; }},
      {nullptr, "Code", [](ValueRow const& row) { return row.zone->code; }},
      {nullptr, "Zone", [](ValueRow const& row) { return row.zone->name; }},
      {nullptr, "DDI", of_variable(&lmx::ProcessDataVariable::ddi)},
      {nullptr, "Value", of_variable(&lmx::ProcessDataVariable::value)},
      {nullptr, "Product", of_variable(&lmx::ProcessDataVariable::productIdRef)},
      {nullptr, "Colour", [](ValueRow const& row) { return row.colour; }},
      {nullptr, "Polygons", [](ValueRow const& row) { return row.zone->polygons.size(); }},
  };
}

// ---- The command ----

struct RxArguments {
  std::shared_ptr<SetArguments const> set;
  std::string task_id;  // empty for all tasks
  std::shared_ptr<bool const> is_json;
  std::shared_ptr<bool const> is_geojson;
};

void print_maps(Maps maps, OutputForm form) {
  const auto has_no_zone = [](lmx::ISORxMap const& map) { return map.treatmentZones.empty(); };
  maps.erase(std::remove_if(maps.begin(), maps.end(), has_no_zone), maps.end());
  if (form == OutputForm::AsJson) {
    print_as_json(maps, map_columns());
  } else {
    print_as_text(value_rows(maps), value_columns());
  }
}

ExitStatus show_rx(IsoXmlParser const& set, RxArguments const& arguments) {
  Maps maps = maps_of(set, arguments.task_id);
  const bool is_unknown = !arguments.task_id.empty() && maps.empty();
  if (*arguments.is_geojson) {
    print_geojson(rx_geojson(set, arguments.task_id), std::cout);
  } else {
    print_maps(std::move(maps), form_of(*arguments.is_json));
  }
  if (!is_unknown) return ExitStatus::AllGood;
  const ExitStatus status = status_of(set.getDocuments());
  if (status == ExitStatus::NoResult) return status;  // the main document failed: that is what is told
  std::cout.flush();
  std::cerr << "isoxml: no task " << escape(arguments.task_id) << " in the set\n";
  return ExitStatus::NoResult;
}

}  // namespace

RunCommand prepare_rx(CLI::App& options) {
  auto arguments = std::make_shared<RxArguments>();
  arguments->set = add_set_arguments(options);
  CLI::Option* const task =
      options.add_option("TASK", arguments->task_id, "Identifier of one task, such as TSK1");
  task->check(refuse_empty)->type_name("");
  arguments->is_json = add_json_flag(options);
  arguments->is_geojson = add_geojson_flag(options);
  options.get_option("--geojson")->needs(task);
  return [arguments] {
    return run_on_set(*arguments->set, [&](IsoXmlParser& set) { return show_rx(set, *arguments); });
  };
}
