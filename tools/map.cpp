// The command `map`: one self-contained page that draws the set. The page itself is map_page.html with its
// style and script; here stand the data that it draws.
#include <CLI/CLI.hpp>
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <memory>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "isoxmllib/isoxmllib.h"
#include "tools/command.h"
#include "tools/geometry.h"
#include "tools/map_page.h"
#include "tools/output.h"
#include "tools/set_report.h"
#include "tools/task_state.h"
#include "tools/zone_values.h"
#include "transfer/IsoXmlParser.h"

namespace {

using Json = nlohmann::ordered_json;

// ---- Geometry ----

// Writes paths as the page reads them: steps east and north in 1e-8 degrees, a good millimetre, from position
// to position, so that numbers are short. The set's first position is the origin from which every path
// starts.
class PathEncoder {
 public:
  Json encode(Path const& path) {
    Json steps = Json::array();
    std::int64_t east_before = 0, north_before = 0;
    for (LonLat const& position : path) {
      if (!origin) origin = position;
      const std::int64_t east = units(degrees_east(origin->east, position.east));
      const std::int64_t north = units(position.north - origin->north);
      steps.push_back(east - east_before);
      steps.push_back(north - north_before);
      east_before = east;
      north_before = north;
    }
    return steps;
  }

  /// Of all areas one behind the other; their direction tells the page which are holes.
  Json encode(std::vector<Area> const& areas) {
    Json rings = Json::array();
    for (Area const& area : areas) {
      rings.push_back(encode(area.exterior));
      for (Path const& hole : area.holes) rings.push_back(encode(hole));
    }
    return rings;
  }

  Json origin_as_json() const { return origin ? Json::array({origin->east, origin->north}) : Json(); }

 private:
  static std::int64_t units(double degrees) { return std::llround(degrees * 1e8); }

  std::optional<LonLat> origin;
};

// ---- Fields ----

class FieldDrawing {
 public:
  FieldDrawing(IsoXmlParser const& set, PathEncoder& path_encoder)
      : crops(by_id(set.getCropTypes())), encoder(path_encoder) {}

  Json of(Field const& field) {
    object = {
        {"id", field.GetId()},          {"name", field.GetDesignator()},
        {"area", field.GetArea()},      {"grower", field.GetGrowerIdRef()},
        {"farm", field.GetFarmIdRef()}, {"crop", crop_of(field)},
        {"areas", Json::array()},       {"lines", Json::array()},
        {"points", Json::array()},      {"guidance", Json::array()},
    };
    for (std::size_t i = 0; i != field.SizeInnerField(); ++i) add_children(field.GetInnerField(i));
    return std::move(object);
  }

 private:
  std::string crop_of(Field const& field) const {
    CropType const* const crop = find(crops, field.GetCropTypeIdRef());
    return crop != nullptr ? crop->GetDesignator() : field.GetCrop();
  }

  void add_children(InnerField const& run) {
    switch (run.chosen) {
      case InnerField::PolygonChosen:
        for (std::size_t i = 0; i != run.SizePolygon(); ++i) {
          add_polygon(run.GetPolygon(i), run.GetPolygon(i).GetenumType() == elmx_enum_1);
        }
        break;
      case InnerField::LineStringChosen:
        for (std::size_t i = 0; i != run.SizeLineString(); ++i) {
          add(run.GetLineString(i), positions_of(run.GetLineString(i)), "lines");
        }
        break;
      case InnerField::PointChosen:
        for (std::size_t i = 0; i != run.SizePoint(); ++i) {
          add(run.GetPoint(i), {position_of(run.GetPoint(i))}, "points");
        }
        break;
      case InnerField::GuidanceGroupChosen:
        for (std::size_t i = 0; i != run.SizeGuidanceGroup(); ++i) add_group(run.GetGuidanceGroup(i));
        break;
      default: break;
    }
  }

  template <class Element>
  void add(Element const& element, Path const& path, char const* list) {
    if (path.empty()) return;
    object[list].push_back(
        {{"type", element.GetType()}, {"name", element.GetDesignator()}, {"path", encoder.encode(path)}});
  }

  void add_polygon(Polygon const& polygon, bool is_boundary) {
    const std::vector<Area> areas = areas_of(polygon);
    if (areas.empty()) return;
    object["areas"].push_back(
        {{"isBoundary", is_boundary}, {"exteriors", areas.size()}, {"rings", encoder.encode(areas)}});
  }

  void add_group(GuidanceGroup const& group) {
    for (std::size_t i = 0; i != group.SizeInnerGuidanceGroup(); ++i) {
      InnerGuidanceGroup const& run = group.GetInnerGuidanceGroup(i);
      if (run.chosen == InnerGuidanceGroup::BoundaryPolygonChosen) {
        add_polygon(run.GetBoundaryPolygon(), false);
      } else if (run.chosen == InnerGuidanceGroup::GuidancePatternChosen) {
        for (std::size_t p = 0; p != run.SizeGuidancePattern(); ++p) add_pattern(run.GetGuidancePattern(p));
      }
    }
  }

  void add_pattern(GuidancePattern const& pattern) {
    for (std::size_t i = 0; i != pattern.SizeInnerGuidancePattern(); ++i) {
      InnerGuidancePattern const& child = pattern.GetInnerGuidancePattern(i);
      if (child.chosen == InnerGuidancePattern::BoundaryPolygonChosen) {
        add_polygon(child.GetBoundaryPolygon(), false);
      } else if (child.chosen == InnerGuidancePattern::LineStringChosen) {
        add_guidance_line(pattern, child.GetLineString());
      }
    }
  }

  void add_guidance_line(GuidancePattern const& pattern, LineString const& line) {
    const bool is_pivot = pattern.GetenumType() == elmx_enum_4;
    const Path path = is_pivot ? centre_first(line) : positions_of(line);
    if (path.empty()) return;
    Json data = {{"isPivot", is_pivot}, {"path", encoder.encode(path)}};
    if (pattern.IssetHeading()) data["heading"] = pattern.GetHeading().get_as_float();
    if (is_pivot && pattern.IssetRadius()) data["radius"] = pattern.GetRadius();
    object["guidance"].push_back(std::move(data));
  }

  static Path centre_first(LineString const& line) {
    Path centres, others;
    each_child(line, &LineString::SizeInnerLineString, &LineString::GetInnerLineString,
               InnerLineString::PointChosen, &InnerLineString::SizePoint, &InnerLineString::GetPoint,
               [&](Point const& point) {
                 (point.GetenumType() == elmx_enum_8 ? centres : others).push_back(position_of(point));
               });
    centres.insert(centres.end(), others.begin(), others.end());
    return centres;
  }

  ById<CropType> crops;
  PathEncoder& encoder;
  Json object;
};

// ---- Tasks ----

bool has_grid(Task const& task) {
  for (std::size_t i = 0; i != task.SizeInnerTask(); ++i) {
    if (task.GetInnerTask(i).chosen == InnerTask::GridChosen) return true;
  }
  return false;
}

// The kinds of set value that a task's zones have: a value of a zone says by an index of which kind it is.
class VariableKinds {
 public:
  VariableKinds(ById<Product> const& all_products, ById<ValuePresentation> const& all_presentations)
      : products(all_products), presentations(all_presentations) {}

  std::size_t index_of(ProcessDataVariable const& variable) {
    const std::string ddi = variable.GetDDI().get_as_hex_string();
    const auto [kind, is_new] =
        indices.emplace(std::tuple(ddi, variable.GetProductIdRef(), variable.GetDeviceElementIdRef(),
                                   variable.GetValuePresentationIdRef()),
                        indices.size());
    if (is_new) list.push_back(describe(variable, ddi));
    return kind->second;
  }

  Json take() { return std::move(list); }

 private:
  Json describe(ProcessDataVariable const& variable, std::string const& ddi) const {
    Json kind = {
        {"ddi", ddi}, {"product", variable.GetProductIdRef()}, {"element", variable.GetDeviceElementIdRef()}};
    if (Product const* product = find(products, variable.GetProductIdRef())) {
      if (!product->GetDesignator().empty()) kind["product"] = product->GetDesignator();
    }
    if (ValuePresentation const* presentation = find(presentations, variable.GetValuePresentationIdRef())) {
      kind["offset"] = presentation->GetOffset();
      kind["scale"] = presentation->GetScale().get_as_float();
      kind["decimals"] = presentation->GetNumberOfDecimals();
      kind["unit"] = presentation->GetUnitDesignator();
    }
    return kind;
  }

  ById<Product> const& products;
  ById<ValuePresentation> const& presentations;
  std::map<std::tuple<std::string, std::string, std::string, std::string>, std::size_t> indices;
  Json list = Json::array();
};

class TaskDrawing {
 public:
  TaskDrawing(IsoXmlParser const& set, PathEncoder& path_encoder)
      : products(by_id(set.getProducts())),
        presentations(by_id(set.getValuePresentations())),
        encoder(path_encoder) {}

  Json of(Task const& task) {
    VariableKinds kinds(products, presentations);
    Json zones = Json::array();
    for (TreatmentZone const* zone : zones_of(task)) zones.push_back(of(*zone, kinds));
    return {
        {"id", task.GetId()},        {"name", task.GetDesignator()},
        {"status", state_of(task)},  {"field", task.GetFieldIdRef()},
        {"hasGrid", has_grid(task)}, {"variables", kinds.take()},
        {"zones", std::move(zones)},
    };
  }

 private:
  Json of(TreatmentZone const& zone, VariableKinds& kinds) {
    Json values = Json::array();
    for (ProcessDataVariable const* variable : variables_of(zone)) {
      values.push_back(Json::array({kinds.index_of(*variable), variable->GetValue()}));
    }
    Json areas = Json::array();
    for (Polygon const* polygon : polygons_of(zone)) {
      Json rings = encoder.encode(areas_of(*polygon));
      if (!rings.empty()) areas.push_back(std::move(rings));
    }
    return {{"code", zone.GetCode()},
            {"name", zone.GetDesignator()},
            {"values", std::move(values)},
            {"areas", std::move(areas)}};
  }

  ById<Product> products;
  ById<ValuePresentation> presentations;
  PathEncoder& encoder;
};

// ---- The rest of the set ----

// The directory's own name: the page may be handed on, and where the set lay is nobody's business.
std::string name_of(std::string const& directory) {
  std::error_code error;
  std::filesystem::path path = std::filesystem::absolute(directory, error).lexically_normal();
  if (!path.has_filename()) path = path.parent_path();
  const std::string name = path.filename().string();
  return name.empty() ? directory : name;
}

Json growers_of(IsoXmlParser const& set) {
  Json growers = Json::array();
  for (IsoGrower const& grower : set.getGrowers()) {
    const bool has_both = !grower.firstName.empty() && !grower.lastName.empty();
    growers.push_back(
        {{"id", grower.id}, {"name", grower.firstName + (has_both ? " " : "") + grower.lastName}});
  }
  return growers;
}

Json farms_of(IsoXmlParser const& set) {
  Json farms = Json::array();
  for (IsoFarm const& farm : set.getFarms()) farms.push_back({{"id", farm.id}, {"name", farm.designator}});
  return farms;
}

Json products_of(IsoXmlParser const& set) {
  const ById<ProductGroup> groups = by_id(set.getProductGroups());
  Json products = Json::array();
  for (Product const* product : set.getProducts()) {
    ProductGroup const* const group = find(groups, product->GetProductGroupIdRef());
    const std::string type = product->GetType();
    products.push_back({
        {"id", product->GetId()},
        {"name", product->GetDesignator()},
        {"group", group == nullptr ? std::string() : group->GetDesignator()},
        {"type", type == "2"   ? "mixture"
                 : type == "3" ? "temporary mixture"
                               : ""},
    });
  }
  return products;
}

Json data_of(IsoXmlParser const& set, std::string const& directory) {
  const std::vector<IsoDocument> documents = set.getDocuments();
  PathEncoder encoder;
  FieldDrawing field_drawing(set, encoder);
  TaskDrawing task_drawing(set, encoder);
  Json fields = Json::array();
  for (Field const* field : set.getLmxFields()) fields.push_back(field_drawing.of(*field));
  Json tasks = Json::array();
  for (Task const* task : set.getTasks()) tasks.push_back(task_drawing.of(*task));
  return {
      {"name", name_of(directory)},
      {"documents", documents.size()},
      {"failures", failures_as_json(documents)},
      {"origin", encoder.origin_as_json()},
      {"growers", growers_of(set)},
      {"farms", farms_of(set)},
      {"fields", std::move(fields)},
      {"tasks", std::move(tasks)},
      {"products", products_of(set)},
  };
}

// ---- The page ----

// JSON in ASCII in which no text can end the element that holds it.
std::string as_text_of_script(Json const& data) {
  const std::string json = data.dump(-1, ' ', true, Json::error_handler_t::replace);
  std::string text;
  text.reserve(json.size());
  for (char character : json) {
    switch (character) {
      case '<': text += "\\u003c"; break;
      case '>': text += "\\u003e"; break;
      case '&': text += "\\u0026"; break;
      default: text += character;
    }
  }
  return text;
}

void write_page(std::string const& data, std::ostream& out) {
  out << map_page_before_data << data << map_page_after_data;
  out.flush();
}

struct MapArguments {
  std::shared_ptr<SetArguments const> set;
  std::string output;
};

ExitStatus write_map(MapArguments const& arguments) {
  const IsoXmlParser set(arguments.set->directory, arguments.set->main_name);
  const std::vector<IsoDocument> documents = set.getDocuments();
  print_failures(documents, std::cerr);
  const ExitStatus status = status_of(documents);
  // A page of an earlier run is worth more than an empty one.
  if (status == ExitStatus::NoResult) return status;
  const std::string data = as_text_of_script(data_of(set, arguments.set->directory));
  if (arguments.output == "-") {
    write_page(data, std::cout);  // `main` tells when that failed
    return status;
  }
  std::ofstream file(arguments.output, std::ios::binary | std::ios::trunc);
  if (file) write_page(data, file);
  file.close();
  if (file) return status;
  std::cerr << "isoxml: cannot write to " << escape(arguments.output) << '\n';
  return ExitStatus::NoResult;
}

}  // namespace

RunCommand prepare_map(CLI::App& options) {
  auto arguments = std::make_shared<MapArguments>();
  arguments->set = add_set_arguments(options);
  options
      .add_option("-o,--output", arguments->output,
                  "File to write, in place of one that is there; - for standard output")
      ->required()
      ->check(refuse_empty)
      ->type_name("FILE");
  return [arguments] { return write_map(*arguments); };
}
