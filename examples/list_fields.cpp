// Lists the fields of a transfer set: name, area, customer, farm and the corners of the boundary.
#include <transfer/IsoXmlParser.h>

#include <cstddef>
#include <cstdlib>
#include <iostream>
#include <map>
#include <set>
#include <string>
#include <utility>

namespace {

using NamesById = std::map<std::string, std::string>;

std::string name_of(std::string const& id, NamesById const& names) {
  const auto found = names.find(id);
  return found == names.end() ? "unknown" : found->second;
}

// The polygons of a record hold their rings one behind the other. A closed ring repeats its first point, and
// interior rings are no part of the outline: what counts is each corner of the outline, once.
std::size_t corner_count(IsoField const& field) {
  std::set<std::pair<double, double>> corners;
  for (IsoPolygon const& polygon : field.polygons) {
    if (polygon.type != elmx_enum_1) continue;  // "1" is the field's boundary
    for (Location const& point : polygon.points) corners.emplace(point.north, point.east);
    for (Location const& point : polygon.interiorPoints) corners.erase({point.north, point.east});
  }
  return corners.size();
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: list_fields DIRECTORY\n";
    return EXIT_FAILURE;
  }
  IsoXmlParser set(argv[1], "TASKDATA.XML");
  // A document that failed is missing in every view; the others are there all the same.
  for (IsoXmlError const& error : set.getErrors()) {
    std::cerr << error.fileName << ':' << error.line << ": " << error.error << ": " << error.message << '\n';
  }
  NamesById names;
  for (IsoGrower const& grower : set.getGrowers()) names[grower.id] = grower.lastName;
  for (IsoFarm const& farm : set.getFarms()) names[farm.id] = farm.designator;
  for (IsoField const& field : set.getFields()) {
    std::cout << field.designator << ": " << field.area << " m2, customer "
              << name_of(field.growerIdRef, names) << ", farm " << name_of(field.farmIdRef, names) << ", "
              << corner_count(field) << " corners\n";
  }
  return set.getErrors().empty() ? EXIT_SUCCESS : EXIT_FAILURE;
}
