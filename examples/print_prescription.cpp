// Prints what a task prescribes: the code and name of each treatment zone, and its set values.
#include <transfer/IsoXmlParser.h>

#include <cstdlib>
#include <iostream>
#include <optional>
#include <string>

namespace {

// The task with that identifier; of several the last one, whose zones a prescription map has.
std::optional<lmx::TaskInfo> find_task(IsoXmlParser const& set, std::string const& id) {
  std::optional<lmx::TaskInfo> found;
  for (lmx::TaskInfo const& info : set.getTaskInfoList()) {
    if (info.id == id) found = info;
  }
  return found;
}

void print(lmx::TreatmentZone const& zone) {
  std::cout << "zone " << zone.code << " \"" << zone.name << "\", rings: " << zone.polygons.size() << '\n';
  for (lmx::ProcessDataVariable const& variable : zone.variables) {
    std::cout << "  DDI " << variable.ddi << " = " << variable.value;  // unscaled, in the DDI's own unit
    if (!variable.productIdRef.empty()) std::cout << " of " << variable.productIdRef;
    std::cout << '\n';
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: print_prescription DIRECTORY TASK\n";
    return EXIT_FAILURE;
  }
  const IsoXmlParser set(argv[1], "TASKDATA.XML");
  // A document that failed is missing in every view; the others are there all the same.
  for (IsoXmlError const& error : set.getErrors()) {
    std::cerr << error.fileName << ':' << error.line << ": " << error.error << ": " << error.message << '\n';
  }
  const std::optional<lmx::TaskInfo> task = find_task(set, argv[2]);
  if (!task) {
    std::cerr << "no task " << argv[2] << '\n';
    return EXIT_FAILURE;
  }
  lmx::ISORxMap map;  // a new one: zones of an earlier task would stay when this one were not found
  set.getISORxMap(*task, map);
  std::cout << map.taskId << " \"" << map.designator << "\", zone by default " << map.defaultTreatmentZoneCode
            << ", without a position " << map.positionLostTreatmentZoneCode << ", outside the field "
            << map.outOfFieldTreatmentZoneCode << '\n';
  for (lmx::TreatmentZone const& zone : map.treatmentZones) print(zone);
  return set.getErrors().empty() ? EXIT_SUCCESS : EXIT_FAILURE;
}
