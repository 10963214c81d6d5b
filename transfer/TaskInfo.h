// The flat record of a task, by which a host lists tasks and asks for a prescription map.
#pragma once

#include <cstdint>
#include <string>

namespace lmx {

/// A task, from `Task` (element "TSK"). It owns copies, so it outlives the parser that made it. The string
/// of an absent attribute is empty. A code of an absent attribute is 0, which can be a code as well.
/// The order of the members is part of what hosts rely on.
struct TaskInfo {
  std::string id;
  std::string customerIdRef;
  std::string farmIdRef;
  std::string fieldIdRef;
  std::string designator;
  std::string jobMetaData;
  std::uint16_t defaultTreatmentZoneCode = 0;  ///< 0 to 254: the zone that applies elsewhere in the field.
  std::uint16_t positionLostTreatmentZoneCode = 0;  ///< 0 to 254: the one without a position.
  std::uint16_t outOfFieldTreatmentZoneCode = 0;    ///< 0 to 254: the one outside the field.
};

}  // namespace lmx
