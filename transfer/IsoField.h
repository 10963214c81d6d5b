// The flat record of a field with its geometry, sorted into polygons, scout lines, scout points and guidance
// groups. It owns copies of all it holds, so it outlives the parser that made it. The order of the members
// is part of what hosts rely on.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "GenLibrarySupportFiles/lmxinternals/api.h"
#include "isoxmllib/enums.h"
#include "isoxmllib/fwd.h"

// In all of these records: the string of an absent attribute is empty, an absent number is 0, and so is an
// absent or unknown enumerator. A UUID is the one that the link list gives to `id`, and empty without one.

/// A position in degrees, north and east positive (WGS 84). North comes first, other than in `lmx::Point`.
struct Location {
  double north = 0.0;
  double east = 0.0;
};

/// A vertex of a scout line.
struct IsoPoint {
  double north = 0.0;     ///< Degrees.
  double east = 0.0;      ///< Degrees.
  double altitude = 0.0;  ///< Millimetres.
};

/// From `Polygon` (element "PLN"), of any type.
struct IsoPolygon {
  std::string uuid;
  std::string designator;
  std::string id;
  elmx_enums type = elmx_enum_none;  ///< Field boundary, treatment zone, water surface and so on.
  bool isOtherType = false;          ///< True when the attribute is "8", other.
  std::uint8_t colour = 0;
  double area = 0.0;             ///< Square metres.
  std::vector<Location> points;  ///< All rings, one behind the other, interior ones too: not one simple ring.
  std::vector<Location> interiorPoints;  ///< Those of the interior rings alone, once more.
  std::string metaData;
  elmx_enums sprayProperty = elmx_enum_none;
  elmx_enums plantProperty = elmx_enum_none;
};

/// From `LineString` (element "LSG"), of any type.
struct IsoScoutLine {
  std::string unset;  ///< Without a source.
  std::string designator;
  std::string id;
  std::string uuid;
  std::vector<IsoPoint> points;
};

/// From `Point` (element "PNT"), of any type.
struct IsoScoutPoint {
  std::string unset;  ///< Without a source.
  std::string designator;
  std::string id;
  std::string uuid;
  double north = 0.0;                ///< Degrees.
  double east = 0.0;                 ///< Degrees.
  double altitude = 0.0;             ///< Millimetres.
  elmx_enums type = elmx_enum_none;  ///< Flag, field access, obstacle and so on.
};

/// From one guidance line string ("LSG" of type "5") of a `GuidancePattern` (element "GPN").
struct IsoGuidanceLine {
  std::string uuid;
  std::string id;
  std::string designator;
  elmx_enums type = elmx_enum_none;  ///< 1 AB, 2 A+, 7 curve, 8 pivot, 9 spiral.
  elmx_enums options = elmx_enum_none;
  elmx_enums propagationDirection = elmx_enum_none;
  elmx_enums extension = elmx_enum_none;  ///< `type` once more, and not the attribute for the extension.
  elmx_enums gnssMethod = elmx_enum_none;
  std::uint32_t radius = 0;  ///< Millimetres; of a pivot only.
  double heading = 0.0;      ///< Degrees; of an A+ line only.
  std::string metaData;
  std::vector<Location> points;  ///< In document order, but a pivot's centre comes first.
};

/// From `GuidanceGroup` (element "GGP").
struct IsoGuidanceGroup {
  std::string uuid;
  std::string id;
  std::string designator;
  std::vector<IsoGuidanceLine> guidanceLines;
  std::string metaData;
};

/// A field, from `Field` (element "PFD").
struct ISOXML_API IsoField {
  /// Identifiers and their UUIDs, such as `IsoXmlParser::getUuidLinks`.
  using UuidLinks = std::map<std::string, std::string>;

  /// Copies the field, and looks up its UUIDs and those of all its geometry.
  /// `field` must not be null and may go away afterwards. The boundary polygons of its guidance patterns are
  /// freed, and empty line strings take their place: pointers to them must not be used afterwards. All else
  /// in it stays where and as it is.
  IsoField(Field* field, UuidLinks const& uuidLinks);
  /// The same without links: every UUID is empty.
  explicit IsoField(Field* field);

  /// The value for `key`; "" when there is none, or for an empty key.
  static std::string getIsoUuid(UuidLinks const& uuidLinks, std::string const& key);
  /// True when there is a scout line, a scout point or a polygon, were it only the field's boundary.
  bool hasScoutItem() const;

  std::string uuid;
  std::int32_t unset = 0;  ///< Without a source.
  std::uint32_t area = 0;  ///< Square metres.
  std::string comment;
  std::string county;
  std::string crop;
  std::string cropTypeIdRef;
  std::string cropVarietyIdRef;
  std::string designator;
  std::string farmIdRef;
  std::string farmUuid;
  std::string fieldIdRef;  ///< The field of which this one is a part.
  std::string growerIdRef;
  std::string growerUuid;
  std::string id;
  std::vector<std::string> stringListA;  ///< Without a source.
  std::string fieldCode;
  std::vector<std::string> stringListB;  ///< Without a source.
  std::vector<std::string> stringListC;  ///< Without a source.
  std::string section;
  std::string state;
  std::string township;
  std::vector<IsoGuidanceGroup> guidanceGroups;  ///< Each list is in document order.
  std::vector<IsoPolygon> polygons;
  std::vector<IsoScoutLine> scoutLines;
  std::vector<IsoScoutPoint> scoutPoints;
};
