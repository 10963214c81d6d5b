// clang-format off
// Generated from schema/rules.toml. Edit the schema, then build the target `schema`.

// How the text of each simple type is read, checked and converted. Private to the library.
#pragma once

#include "GenLibrarySupportFiles/lmxinternals/bridges.h"
#include "isoxmllib/rules.h"
#include "isoxmllib/validators.h"

namespace binding {

extern lmx::c_validation_spec<std::string> const spec_attached_file_1;
extern lmx::c_validation_spec<std::string> const spec_any_token;
extern lmx::c_validation_spec<std::string> const spec_one_of_1_2;
extern lmx::c_validation_spec<std::string> const spec_one_of_FC_USB_API_PORTAL;
extern lmx::c_validation_spec<std::string> const spec_one_of_1_to_4;
extern lmx::c_validation_spec<std::string> const spec_one_of_0_to_4;
extern lmx::c_validation_spec<std::string> const spec_one_of_1;
extern lmx::c_validation_spec<std::string> const spec_gln_32;
extern lmx::c_validation_spec<unsigned char> const spec_range_1_to_254_uint8;
extern lmx::c_validation_spec<std::string> const spec_token_32;
extern lmx::c_validation_spec<std::string> const spec_text_32;
extern lmx::c_validation_spec<unsigned int> const spec_range_0_to_4294967294_uint32;
extern lmx::c_validation_spec<bool> const spec_boolean;
extern lmx::c_validation_spec<lmx::c_binary> const spec_bytes_8;
extern lmx::c_validation_spec<std::string> const spec_text_153;
extern lmx::c_validation_spec<unsigned char> const spec_range_0_to_63_uint8;
extern lmx::c_validation_spec<unsigned char> const spec_range_0_to_254_uint8;
extern lmx::c_validation_spec<std::string> const spec_external_file_12;
extern lmx::c_validation_spec<std::string> const spec_object_id_ref_110;
extern lmx::c_validation_spec<std::string> const spec_token_255;
extern lmx::c_validation_spec<std::string> const spec_id_LGP_112;
extern lmx::c_validation_spec<std::string> const spec_gln_64;

inline constexpr enumeration<2> list_2{{{"1", elmx_enum_1}, {"2", elmx_enum_2}}};
inline constexpr enumeration<4> list_7{{{"FC", elmx_enum_FC}, {"USB", elmx_enum_USB}, {"API", elmx_enum_API}, {"PORTAL", elmx_enum_PORTAL}}};
inline constexpr enumeration<4> list_8{{{"1", elmx_enum_1}, {"2", elmx_enum_2}, {"3", elmx_enum_3}, {"4", elmx_enum_4}}};
inline constexpr enumeration<5> list_10{{{"0", elmx_enum_0}, {"1", elmx_enum_1}, {"2", elmx_enum_2}, {"3", elmx_enum_3}, {"4", elmx_enum_4}}};
inline constexpr enumeration<1> list_11{{{"1", elmx_enum_1}}};

}  // namespace binding
