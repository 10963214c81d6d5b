// The flat records of a prescription map: a task's treatment zones, with their outlines and set values. They
// own copies, so they outlive the parser that made them. The order of the members is part of what hosts rely
// on. Some names are those of element classes too, which are global: in namespace lmx write ::Polygon there.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace lmx {

/// A vertex. East comes first, other than in `Location`.
struct Point {
  double east = 0.0;          ///< Degrees.
  double north = 0.0;         ///< Degrees.
  std::int32_t altitude = 0;  ///< Millimetres; 0 when absent.
};

/// One ring of a zone, from a `LineString` of its polygons. No ring is tied to the one it lies in.
struct Polygon {
  bool isInterior = false;    ///< True for an interior ring ("LSG" of type "2"), false for any other type.
  std::string name;           ///< The polygon's designator, in the zone's first ring only; else empty.
  std::vector<Point> points;  ///< In document order.
  std::string designator;     ///< The ring's own.
  std::string colour;         ///< One character whose byte is the ring's colour, NUL when absent; no digits.
};

/// A set value, from `ProcessDataVariable` (element "PDV"). What is absent is empty or 0.
struct ProcessDataVariable {
  std::int32_t value = 0;  ///< As in the document: in the identifier's unit, unscaled.
  std::string ddi;         ///< Data dictionary identifier in capital hexadecimal digits, such as "0006".
  std::string productIdRef;
  std::string valuePresentationIdRef;
  std::string rxMap;                     ///< File name of the prescription's source.
  std::string rxColumn;                  ///< Column of that source.
  std::string rxUnit;                    ///< Unit of that column.
  double rxWithoutConversionRate = 0.0;  ///< Rate before its conversion.
};

/// From `TreatmentZone` (element "TZN").
struct TreatmentZone {
  std::vector<Polygon> polygons;               ///< All rings of all polygons, in document order.
  std::vector<ProcessDataVariable> variables;  ///< Those behind the last polygon only.
  std::string name;                            ///< The zone's designator.
  std::uint16_t code = 0;                      ///< 0 to 254.
  std::int32_t unset = 0;                      ///< Without a source.
};

/// What a task prescribes by treatment zones. Grids are not carried.
struct ISORxMap {
  std::string taskId;
  std::string designator;
  std::vector<TreatmentZone> treatmentZones;   ///< In document order.
  std::uint16_t defaultTreatmentZoneCode = 0;  ///< As in `TaskInfo`, and so are the next two.
  std::uint16_t positionLostTreatmentZoneCode = 0;
  std::uint16_t outOfFieldTreatmentZoneCode = 0;
};

}  // namespace lmx
