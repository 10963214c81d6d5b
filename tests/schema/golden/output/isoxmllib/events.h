// clang-format off
// Generated from schema. Edit the schema, then build the target `schema`.

// The event numbers of the schema's names: one number space for attributes and elements of all classes.
// Private to the library.
#pragma once

namespace binding {

enum schema_event : int {
  elem_Shelf = 14,
  attr_Id = 15,
  attr_Levels = 16,
  elem_Book = 17,
  attr_Kind = 18,
};

}  // namespace binding
