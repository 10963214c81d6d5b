// clang-format off
// Generated from schema/rules.toml. Edit the schema, then build the target `schema`.

// Matchers of the patterns, for texts that are plain ASCII. Private to the library.
#pragma once

#include "isoxmllib/rules.h"

namespace binding {


inline constexpr text_matcher const* matchers[] = {};

}  // namespace binding
