// clang-format off
// Generated from schema/rules.toml. Edit the schema, then build the target `schema`.

#include "isoxmllib/specs.h"

#include "GenLibrarySupportFiles/lmxtypes/conversions.h"

namespace binding {

lmx::c_validation_spec<std::string> const spec_attached_file_1(lmx::EXWS_COLLAPSE, "", &LexicalValidator1, &ValueValidator1, &lmx::v_to_o);
lmx::c_validation_spec<std::string> const spec_any_token(lmx::EXWS_COLLAPSE, "", &LexicalValidator2, &ValueValidator1, &lmx::v_to_o);
lmx::c_validation_spec<std::string> const spec_one_of_1_2(lmx::EXWS_COLLAPSE, "", &LexicalValidator2, &ValueValidator2, &lmx::v_to_o);
lmx::c_validation_spec<std::string> const spec_one_of_FC_USB_API_PORTAL(lmx::EXWS_COLLAPSE, "", &LexicalValidator2, &ValueValidator7, &lmx::v_to_o);
lmx::c_validation_spec<std::string> const spec_one_of_1_to_4(lmx::EXWS_COLLAPSE, "", &LexicalValidator2, &ValueValidator8, &lmx::v_to_o);
lmx::c_validation_spec<std::string> const spec_one_of_0_to_4(lmx::EXWS_COLLAPSE, "", &LexicalValidator2, &ValueValidator10, &lmx::v_to_o);
lmx::c_validation_spec<std::string> const spec_one_of_1(lmx::EXWS_COLLAPSE, "", &LexicalValidator2, &ValueValidator11, &lmx::v_to_o);
lmx::c_validation_spec<std::string> const spec_gln_32(lmx::EXWS_COLLAPSE, "", &LexicalValidator3, &ValueValidator3, &lmx::v_to_o);
lmx::c_validation_spec<unsigned char> const spec_range_1_to_254_uint8(lmx::EXWS_COLLAPSE, "", &LexicalValidator4, &ValueValidator4, &lmx::v_to_o);
lmx::c_validation_spec<std::string> const spec_token_32(lmx::EXWS_COLLAPSE, "", &LexicalValidator5, &ValueValidator1, &lmx::v_to_o);
lmx::c_validation_spec<std::string> const spec_text_32(lmx::EXWS_PRESERVE, "", &LexicalValidator5, &ValueValidator1, &lmx::v_to_o);
lmx::c_validation_spec<unsigned int> const spec_range_0_to_4294967294_uint32(lmx::EXWS_COLLAPSE, "", &LexicalValidator6, &ValueValidator5, &lmx::v_to_o);
lmx::c_validation_spec<bool> const spec_boolean(lmx::EXWS_COLLAPSE, "", &LexicalValidator7, &ValueValidator6, &lmx::v_to_o);
lmx::c_validation_spec<lmx::c_binary> const spec_bytes_8(lmx::EXWS_COLLAPSE, "", &LexicalValidator8, &ValueValidator9, &lmx::v_to_o);
lmx::c_validation_spec<std::string> const spec_text_153(lmx::EXWS_PRESERVE, "", &LexicalValidator9, &ValueValidator1, &lmx::v_to_o);
lmx::c_validation_spec<unsigned char> const spec_range_0_to_63_uint8(lmx::EXWS_COLLAPSE, "", &LexicalValidator10, &ValueValidator4, &lmx::v_to_o);
lmx::c_validation_spec<unsigned char> const spec_range_0_to_254_uint8(lmx::EXWS_COLLAPSE, "", &LexicalValidator11, &ValueValidator4, &lmx::v_to_o);
lmx::c_validation_spec<std::string> const spec_external_file_12(lmx::EXWS_COLLAPSE, "", &LexicalValidator12, &ValueValidator1, &lmx::v_to_o);
lmx::c_validation_spec<std::string> const spec_object_id_ref_110(lmx::EXWS_COLLAPSE, "", &LexicalValidator110, &ValueValidator1, &lmx::v_to_o);
lmx::c_validation_spec<std::string> const spec_token_255(lmx::EXWS_COLLAPSE, "", &LexicalValidator111, &ValueValidator1, &lmx::v_to_o);
lmx::c_validation_spec<std::string> const spec_id_LGP_112(lmx::EXWS_COLLAPSE, "", &LexicalValidator112, &ValueValidator1, &lmx::v_to_o);
lmx::c_validation_spec<std::string> const spec_gln_64(lmx::EXWS_COLLAPSE, "", &LexicalValidator113, &ValueValidator3, &lmx::v_to_o);

}  // namespace binding
