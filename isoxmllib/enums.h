// clang-format off
// Generated from schema. Edit the schema, then build the target `schema`.

#pragma once

/// The texts that enumerated attributes may hold, as codes. One list for all attributes; each accepts
/// only the codes of its own texts.
enum elmx_enums : int {
  elmx_enum_none = 0,  ///< No value, or a text outside the list.
  elmx_enum_1 = 1,
  elmx_enum_2 = 2,
  elmx_enum_FC = 3,
  elmx_enum_USB = 4,
  elmx_enum_API = 5,
  elmx_enum_PORTAL = 6,
  elmx_enum_3 = 7,
  elmx_enum_4 = 8,
  elmx_enum_5 = 9,
  elmx_enum_6 = 10,
  elmx_enum_7 = 11,
  elmx_enum_8 = 12,
  elmx_enum_9 = 13,
  elmx_enum_10 = 14,
  elmx_enum_11 = 15,
  elmx_enum_12 = 16,
  elmx_enum_0 = 17,
  elmx_enum_16 = 18,
  elmx_enum_17 = 19,
  elmx_enum_13 = 20,
  elmx_enum_14 = 21,
  elmx_enum_15 = 22,
};
