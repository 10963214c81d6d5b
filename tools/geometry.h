// The geometry of a set as maps want it: positions with longitude first, and rings sorted into areas with
// their holes. The flat records keep all rings of a polygon side by side, so this reads the elements.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "isoxmllib/field_geometry.h"

/// A position in degrees on WGS 84, exactly as `get_as_float` gives them. (`Position` is an element class.)
struct LonLat {
  double east = 0.0;
  double north = 0.0;
};

bool operator==(LonLat const& left, LonLat const& right);
bool operator!=(LonLat const& left, LonLat const& right);

using Path = std::vector<LonLat>;

/// One exterior ring with the holes in it. Rings are closed, the exterior one runs counter-clockwise and the
/// holes clockwise.
struct Area {
  Path exterior;
  std::vector<Path> holes;
};

LonLat position_of(Point const& point);
/// All of the line's points, in their order.
Path positions_of(LineString const& line);

/// The areas that the polygon's rings enclose, in the order of its exterior rings. A line string of type "2"
/// is a hole, any other an exterior ring. An open ring is closed; one with fewer than three distinct
/// positions encloses nothing and is left out. A hole goes to the exterior ring that holds most of it, the
/// smallest of several; one that lies in none takes nothing away and is left out.
std::vector<Area> areas_of(Polygon const& polygon);

/// From one longitude to another by the shorter way round, in degrees.
double degrees_east(double from, double to);

/// Names of the coded types; "" for a text outside the format's list.
char const* name_of_type(Polygon const& polygon);
char const* name_of_type(LineString const& line);
char const* name_of_type(Point const& point);
char const* name_of_type(GuidancePattern const& pattern);

/// Calls `use` for each child of one kind, in document order: `owner` holds runs of like children, and each
/// run says by `chosen` of which kind it is.
template <class Owner, class Run, class Child, class Use>
void each_child(Owner const& owner, std::size_t (Owner::*count_runs)() const,
                Run const& (Owner::*run_at)(std::size_t) const, std::int32_t kind,
                std::size_t (Run::*count)() const, Child const& (Run::*child_at)(std::size_t) const,
                Use use) {
  for (std::size_t i = 0; i != (owner.*count_runs)(); ++i) {
    Run const& run = (owner.*run_at)(i);
    if (run.chosen != kind) continue;
    for (std::size_t j = 0; j != (run.*count)(); ++j) use((run.*child_at)(j));
  }
}
