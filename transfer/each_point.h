// Walking a line string's vertices, for the records that copy them. Not installed.
#pragma once

#include <cstddef>

#include "isoxmllib/field_geometry.h"

/// Calls `use(::Point const&)` for each vertex of one run. `chosen` is looked at since a host can have set
/// it.
template <class Use>
void each_point(InnerLineString const& run, Use use) {
  if (run.chosen != InnerLineString::PointChosen) return;
  for (std::size_t i = 0; i != run.SizePoint(); ++i) use(run.GetPoint(i));
}

/// The same for all runs of the line string, in order.
template <class Use>
void each_point(LineString const& line, Use use) {
  for (std::size_t i = 0; i != line.SizeInnerLineString(); ++i) each_point(line.GetInnerLineString(i), use);
}
