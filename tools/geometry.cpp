#include "tools/geometry.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

namespace {

// Looking for a hole's ring is quadratic where a polygon has many of both. The bound keeps the time linear in
// the size of the document; no polygon of use comes near it.
constexpr std::size_t most_steps = 200'000'000;
// Of a hole's positions, so many decide in which ring it lies.
constexpr std::size_t most_probes = 16;

struct Box {
  double south = 90.0, north = -90.0;

  void add(LonLat const& position) {
    south = std::min(south, position.north);
    north = std::max(north, position.north);
  }
  bool holds(LonLat const& position) const { return south <= position.north && position.north <= north; }
};

struct Ring {
  Path positions;     // closed
  double size = 0.0;  // of what it encloses; above 0 when counter-clockwise
  Box box;
};

bool has_three_distinct(Path const& positions) {
  if (positions.empty()) return false;
  LonLat const& first = positions.front();
  const auto second = std::find_if(positions.begin(), positions.end(),
                                   [&](LonLat const& position) { return position != first; });
  return std::any_of(second, positions.end(),
                     [&](LonLat const& position) { return position != first && position != *second; });
}

// Relative to the first position: the products of whole degrees would eat up the digits of a small field.
double signed_size(Path const& positions) {
  LonLat const& origin = positions.front();
  double doubled = 0.0;
  for (std::size_t i = 1; i < positions.size(); ++i) {
    const double east_before = degrees_east(origin.east, positions[i - 1].east);
    const double east = degrees_east(origin.east, positions[i].east);
    doubled +=
        east_before * (positions[i].north - origin.north) - east * (positions[i - 1].north - origin.north);
  }
  return doubled / 2;
}

std::optional<Ring> ring_of(LineString const& line) {
  Ring ring;
  ring.positions = positions_of(line);
  if (!has_three_distinct(ring.positions)) return std::nullopt;
  if (ring.positions.front() != ring.positions.back())
    ring.positions.push_back(LonLat(ring.positions.front()));
  ring.size = signed_size(ring.positions);
  for (LonLat const& position : ring.positions) ring.box.add(position);
  return ring;
}

void turn(Ring& ring, bool counter_clockwise) {
  if (counter_clockwise ? ring.size >= 0.0 : ring.size <= 0.0) return;
  std::reverse(ring.positions.begin(), ring.positions.end());
  ring.size = -ring.size;
}

enum class Place { Outside, Border, Inside };

// Counts how often a ray to the east crosses the ring.
Place place_of(LonLat const& position, Ring const& ring) {
  bool is_inside = false;
  for (std::size_t i = 1; i < ring.positions.size(); ++i) {
    LonLat const& start = ring.positions[i - 1];
    LonLat const& end = ring.positions[i];
    const double start_east = degrees_east(position.east, start.east);
    const double end_east = start_east + degrees_east(start.east, end.east);
    const double start_north = start.north - position.north;
    const double end_north = end.north - position.north;
    const double turn = start_east * end_north - end_east * start_north;
    const bool is_beside = start_east * end_east <= 0.0 && start_north * end_north <= 0.0;
    if (turn == 0.0 && is_beside) return Place::Border;
    if ((start_north > 0.0) == (end_north > 0.0)) continue;
    if ((turn > 0.0) == (end_north > start_north)) is_inside = !is_inside;
  }
  return is_inside ? Place::Inside : Place::Outside;
}

// Finds the exterior ring of each hole of one polygon.
class HoleSorter {
 public:
  explicit HoleSorter(std::vector<Ring> const& rings) : exteriors(rings) {}

  /// Its index; nothing when the hole lies in none. `before` are the exterior rings that the document has
  /// before the hole.
  std::optional<std::size_t> exterior_of(Ring const& hole, std::size_t before) {
    std::optional<std::size_t> best;
    std::size_t best_share = 0;
    for (std::size_t i = 0; i != exteriors.size(); ++i) {
      if (steps > most_steps) return before == 0 ? 0 : before - 1;
      const std::size_t share = share_inside(hole, exteriors[i]);
      const bool is_better =
          share > best_share || (best && share == best_share && exteriors[i].size < exteriors[*best].size);
      if (share == 0 || !is_better) continue;
      best = i;
      best_share = share;
    }
    return best;
  }

 private:
  // How many of the hole's probes are not outside of the ring; 0 when it only touches it.
  std::size_t share_inside(Ring const& hole, Ring const& exterior) {
    const std::size_t stride = (hole.positions.size() - 1 + most_probes - 1) / most_probes;
    std::size_t inside = 0, on_border = 0, outside = 0;
    for (std::size_t i = 0; i + 1 < hole.positions.size(); i += stride) {
      ++steps;
      Place place = Place::Outside;
      if (exterior.box.holds(hole.positions[i])) {
        steps += exterior.positions.size();
        place = place_of(hole.positions[i], exterior);
      }
      ++(place == Place::Inside ? inside : place == Place::Border ? on_border : outside);
    }
    if (inside == 0 && outside != 0) return 0;
    return inside + on_border;
  }

  std::vector<Ring> const& exteriors;
  std::size_t steps = 0;
};

// Types are counted from "1".
template <std::size_t size>
char const* name_in(char const* const (&names)[size], std::string const& code) {
  for (std::size_t i = 0; i != size; ++i) {
    if (code == std::to_string(i + 1)) return names[i];
  }
  return "";
}

}  // namespace

bool operator==(LonLat const& left, LonLat const& right) {
  return left.east == right.east && left.north == right.north;
}

bool operator!=(LonLat const& left, LonLat const& right) { return !(left == right); }

double degrees_east(double from, double to) {
  const double difference = to - from;
  if (difference > 180.0) return difference - 360.0;
  return difference < -180.0 ? difference + 360.0 : difference;
}

LonLat position_of(Point const& point) {
  return {point.GetEast().get_as_float(), point.GetNorth().get_as_float()};
}

Path positions_of(LineString const& line) {
  Path positions;
  each_child(line, &LineString::SizeInnerLineString, &LineString::GetInnerLineString,
             InnerLineString::PointChosen, &InnerLineString::SizePoint, &InnerLineString::GetPoint,
             [&](Point const& point) { positions.push_back(position_of(point)); });
  return positions;
}

std::vector<Area> areas_of(Polygon const& polygon) {
  std::vector<Ring> exteriors;
  std::vector<std::pair<Ring, std::size_t>> holes;  // with the number of exterior rings before each
  each_child(polygon, &Polygon::SizeInnerPolygon, &Polygon::GetInnerPolygon, InnerPolygon::LineStringChosen,
             &InnerPolygon::SizeLineString, &InnerPolygon::GetLineString, [&](LineString const& line) {
               std::optional<Ring> ring = ring_of(line);
               if (!ring) return;
               const bool is_hole = line.GetenumType() == elmx_enum_2;
               turn(*ring, !is_hole);
               if (is_hole) {
                 holes.emplace_back(std::move(*ring), exteriors.size());
               } else {
                 exteriors.push_back(std::move(*ring));
               }
             });
  std::vector<std::vector<Path>> holes_of(exteriors.size());
  HoleSorter sorter(exteriors);
  for (auto& [hole, before] : holes) {
    const std::optional<std::size_t> exterior = sorter.exterior_of(hole, before);
    if (exterior) holes_of[*exterior].push_back(std::move(hole.positions));
  }
  std::vector<Area> areas;
  for (std::size_t i = 0; i != exteriors.size(); ++i) {
    areas.push_back({std::move(exteriors[i].positions), std::move(holes_of[i])});
  }
  return areas;
}

char const* name_of_type(Polygon const& polygon) {
  static constexpr char const* names[] = {"boundary",   "treatment zone", "water",       "building",
                                          "road",       "obstacle",       "flag",        "other",
                                          "main field", "headland",       "buffer zone", "windbreak"};
  return name_in(names, polygon.GetType());
}

char const* name_of_type(LineString const& line) {
  static constexpr char const* names[] = {"exterior ring",    "interior ring", "tram line", "sampling route",
                                          "guidance pattern", "drainage",      "fence",     "flag",
                                          "obstacle"};
  return name_in(names, line.GetType());
}

char const* name_of_type(Point const& point) {
  static constexpr char const* names[] = {"flag",           "other",           "access",     "storage",
                                          "obstacle",       "guidance A",      "guidance B", "centre",
                                          "guidance point", "field reference", "home base"};
  return name_in(names, point.GetType());
}

char const* name_of_type(GuidancePattern const& pattern) {
  static constexpr char const* names[] = {"AB line", "A point and heading", "curve", "pivot", "spiral"};
  return name_in(names, pattern.GetType());
}
