// clang-format off
// Generated from schema/rules.toml. Edit the schema, then build the target `schema`.

// How the text of each simple type is read, checked, converted and written. Private to the library.
#pragma once

#include "GenLibrarySupportFiles/lmxinternals/bridges.h"
#include "isoxmllib/rules.h"
#include "isoxmllib/validators.h"

namespace binding {

extern lmx::c_validation_spec<std::string> const spec_text_8;
extern lmx::c_validation_spec<unsigned char> const spec_range_1_to_9_uint8;
extern lmx::c_validation_spec<std::string> const spec_one_of_1_2;

inline constexpr enumeration<2> list_3{{{"1", elmx_enum_1}, {"2", elmx_enum_2}}};

}  // namespace binding
