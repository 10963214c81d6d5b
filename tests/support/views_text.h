// What the views of a parser show, as one text: what two parsers show is the same when their texts are.
#pragma once

#include <cstdint>
#include <cstring>
#include <string>

#include "isoxmllib/isoxmllib.h"
#include "support/writing.h"
#include "transfer/IsoXmlParser.h"

class ViewsText {
 public:
  explicit ViewsText(IsoXmlParser& parser) {
    add_documents(parser);
    for (IsoFarm const& farm : parser.getFarms()) add(farm.id, farm.uuid, farm.growerUuid, farm.designator);
    for (IsoGrower const& grower : parser.getGrowers()) add(grower.id, grower.uuid, grower.lastName);
    for (IsoAttachedFile const& file : parser.getAttachedFiles()) add(file.fileName, int{file.type});
    for (Task const* task : parser.getTasks()) add(task->GetId());
    for (Product const* product : parser.getProducts()) add(product->GetId());
    for (ProductGroup const* group : parser.getProductGroups()) add(group->GetId());
    for (ValuePresentation const* presentation : parser.getValuePresentations())
      add(presentation->GetId(), presentation->GetScale().get_as_string());
    for (P917Question const* question : parser.getQuestions()) add(question->GetPrompt());
    for (CropType const* crop : parser.getCropTypes()) add(crop->GetId());
    for (IsoField const& field : parser.getFields()) add_field(field);
    for (lmx::TaskInfo const& task : parser.getTaskInfoList()) {
      lmx::ISORxMap map;
      parser.getISORxMap(task, map);
      add_map(map);
    }
  }
  std::string const& text() const { return m_text; }

 private:
  void add_one(std::string const& value) { m_text += value + ' '; }
  void add_one(int value) { add_one(std::to_string(value)); }
  void add_one(unsigned value) { add_one(std::to_string(value)); }
  // Bit by bit, and the same under any locale.
  void add_one(double value) {
    std::uint64_t bits;
    std::memcpy(&bits, &value, sizeof bits);
    add_one(std::to_string(bits));
  }
  template <class... Values>
  void add(Values const&... values) {
    (add_one(values), ...);
    m_text += '\n';
  }

  void add_documents(IsoXmlParser const& parser) {
    for (IsoXmlError const& error : parser.getErrors()) add(error.fileName, int{error.error}, error.line);
    for (IsoDocument const& document : parser.getDocuments()) {
      add(document.name, document.line, document.message);
      if (document.root != nullptr) add(written(*document.root));
    }
    for (auto const& [id, uuid] : parser.getUuidLinks()) add(id, uuid);
  }
  template <class Points>
  void add_points(Points const& points) {
    for (auto const& point : points) add(point.north, point.east);
  }
  void add_field(IsoField const& field) {
    add(field.id, field.uuid, field.designator, unsigned{field.area}, field.farmUuid, field.growerUuid);
    for (IsoPolygon const& polygon : field.polygons) {
      add(polygon.id, polygon.designator, polygon.area);
      add_points(polygon.points);
      add_points(polygon.interiorPoints);
    }
    for (IsoScoutLine const& line : field.scoutLines) {
      add(line.id, line.designator);
      add_points(line.points);
    }
    for (IsoGuidanceGroup const& group : field.guidanceGroups) {
      for (IsoGuidanceLine const& line : group.guidanceLines) {
        add(group.id, line.id, unsigned{line.radius}, line.heading);
        add_points(line.points);
      }
    }
  }
  void add_map(lmx::ISORxMap const& map) {
    add(map.taskId, map.designator, unsigned{map.defaultTreatmentZoneCode});
    for (lmx::TreatmentZone const& zone : map.treatmentZones) {
      add(zone.name, unsigned{zone.code});
      for (lmx::Polygon const& polygon : zone.polygons) add_points(polygon.points);
      for (lmx::ProcessDataVariable const& variable : zone.variables)
        add(variable.ddi, int{variable.value}, variable.rxWithoutConversionRate);
    }
  }

  std::string m_text;
};
