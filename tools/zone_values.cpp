#include "tools/zone_values.h"

#include <algorithm>

#include "tools/geometry.h"

std::vector<TreatmentZone const*> zones_of(Task const& task) {
  std::vector<TreatmentZone const*> zones;
  each_child(task, &Task::SizeInnerTask, &Task::GetInnerTask, InnerTask::TreatmentZoneChosen,
             &InnerTask::SizeTreatmentZone, &InnerTask::GetTreatmentZone,
             [&](TreatmentZone const& zone) { zones.push_back(&zone); });
  return zones;
}

std::vector<Polygon const*> polygons_of(TreatmentZone const& zone) {
  std::vector<Polygon const*> polygons;
  each_child(zone, &TreatmentZone::SizeInnerTreatmentZone, &TreatmentZone::GetInnerTreatmentZone,
             InnerTreatmentZone::PolygonChosen, &InnerTreatmentZone::SizePolygon,
             &InnerTreatmentZone::GetPolygon, [&](Polygon const& polygon) { polygons.push_back(&polygon); });
  return polygons;
}

std::vector<ProcessDataVariable const*> variables_of(TreatmentZone const& zone) {
  std::vector<ProcessDataVariable const*> waiting;  // last in, first out: documents may nest them deeply
  const auto wait = [&](ProcessDataVariable const& variable) { waiting.push_back(&variable); };
  each_child(zone, &TreatmentZone::SizeInnerTreatmentZone, &TreatmentZone::GetInnerTreatmentZone,
             InnerTreatmentZone::ProcessDataVariableChosen, &InnerTreatmentZone::SizeProcessDataVariable,
             &InnerTreatmentZone::GetProcessDataVariable, wait);
  std::reverse(waiting.begin(), waiting.end());
  std::vector<ProcessDataVariable const*> variables;
  while (!waiting.empty()) {
    ProcessDataVariable const& variable = *waiting.back();
    waiting.pop_back();
    variables.push_back(&variable);
    const auto count = waiting.size();
    each_child(variable, &ProcessDataVariable::SizeInnerProcessDataVariable,
               &ProcessDataVariable::GetInnerProcessDataVariable,
               InnerProcessDataVariable::ProcessDataVariableChosen,
               &InnerProcessDataVariable::SizeProcessDataVariable,
               &InnerProcessDataVariable::GetProcessDataVariable, wait);
    std::reverse(waiting.begin() + static_cast<std::ptrdiff_t>(count), waiting.end());
  }
  return variables;
}

double shown_value(ProcessDataVariable const& variable, ValuePresentation const& presentation) {
  const double sum = static_cast<double>(variable.GetValue()) + static_cast<double>(presentation.GetOffset());
  return sum * presentation.GetScale().get_as_float();
}
