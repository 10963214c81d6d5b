// clang-format off
// Generated from schema/rules.toml. Edit the schema, then build the target `schema`.

#include "isoxmllib/specs.h"

#include "GenLibrarySupportFiles/lmxparse/value_output.h"
#include "GenLibrarySupportFiles/lmxtypes/conversions.h"

namespace binding {

lmx::c_validation_spec<std::string> const spec_text_8(lmx::EXWS_PRESERVE, "", &LexicalValidator1, &ValueValidator1, &lmx::v_to_o, &lmx::o_to_v);
lmx::c_validation_spec<unsigned char> const spec_range_1_to_9_uint8(lmx::EXWS_COLLAPSE, "", &LexicalValidator2, &ValueValidator2, &lmx::v_to_o, &lmx::o_to_v);
lmx::c_validation_spec<std::string> const spec_one_of_1_2(lmx::EXWS_COLLAPSE, "", &LexicalValidator3, &ValueValidator3, &lmx::v_to_o, &lmx::o_to_v);

}  // namespace binding
