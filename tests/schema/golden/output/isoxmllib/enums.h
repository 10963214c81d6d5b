// clang-format off
// Generated from schema. Edit the schema, then build the target `schema`.

#pragma once

/// The texts that enumerated attributes may hold, as codes. One list for all attributes; each accepts
/// only the codes of its own texts.
enum elmx_enums : int {
  elmx_enum_none = 0,  ///< No value, or a text outside the list.
  elmx_enum_1 = 1,
  elmx_enum_2 = 2,
};
