// clang-format off
// Generated from schema/rules.toml. Edit the schema, then build the target `schema`.

#include "isoxmllib/matchers.h"

namespace binding {

}  // namespace binding
