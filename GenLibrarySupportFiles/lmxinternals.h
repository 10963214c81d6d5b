// The containers behind the fields of the element classes, and the bridges through which they are read
// and written.
#pragma once

#include "GenLibrarySupportFiles/lmxinternals/api.h"              // IWYU pragma: export
#include "GenLibrarySupportFiles/lmxinternals/bridges.h"          // IWYU pragma: export
#include "GenLibrarySupportFiles/lmxinternals/c_repository.h"     // IWYU pragma: export
#include "GenLibrarySupportFiles/lmxinternals/characters.h"       // IWYU pragma: export
#include "GenLibrarySupportFiles/lmxinternals/check_tracker.h"    // IWYU pragma: export
#include "GenLibrarySupportFiles/lmxinternals/choice.h"           // IWYU pragma: export
#include "GenLibrarySupportFiles/lmxinternals/containers.h"       // IWYU pragma: export
#include "GenLibrarySupportFiles/lmxinternals/list_bridges.h"     // IWYU pragma: export
#include "GenLibrarySupportFiles/lmxinternals/marshal_bridges.h"  // IWYU pragma: export
