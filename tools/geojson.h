// GeoJSON (RFC 7946) of a set's fields and prescriptions, for geographic information systems.
#pragma once

#include <nlohmann/json_fwd.hpp>
#include <ostream>
#include <string>

class IsoXmlParser;

// Each gives a feature collection, with a feature for each element that has a geometry, in document order.
// Coordinates are longitude and latitude as `get_as_float` gives them. Exterior rings run counter-clockwise,
// holes clockwise, all rings are closed, and a polygon of several exterior rings is a MultiPolygon. What has
// too few positions to be drawn has the geometry null. A property of an attribute that is not there is null.

/// The fields' boundaries and other polygons, guidance lines and boundaries, lines and points; the property
/// "kind" tells them apart.
nlohmann::ordered_json fields_geojson(IsoXmlParser const& set);

/// The polygons of the task's treatment zones with their set values. Of several tasks of that identifier the
/// last one counts, as in `IsoXmlParser::getISORxMap`; without one the collection is empty.
nlohmann::ordered_json rx_geojson(IsoXmlParser const& set, std::string const& task_id);

/// One feature on a line, in ASCII; bytes that are not valid UTF-8 become "\ufffd".
void print_geojson(nlohmann::ordered_json const& collection, std::ostream& out);
