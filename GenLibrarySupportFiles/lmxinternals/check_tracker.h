// How a `Check` knows where it is: one link a level on the stack, from the element that fails to the root.
#pragma once

#include <cstddef>

#include "GenLibrarySupportFiles/lmxinternals/api.h"

namespace lmx {

class c_check_exception;

struct c_check_tracker {
  c_check_tracker(c_check_tracker* parent, char const* name, c_check_exception* exception = nullptr)
      : mp_exception(exception), mp_parent(parent), mp_name(name) {}
  /// The same in the order of the members.
  c_check_tracker(c_check_exception* exception, c_check_tracker* parent, char const* name)
      : c_check_tracker(parent, name, exception) {}
  /// A nameless root without an exception, which both orders would be.
  c_check_tracker(std::nullptr_t, std::nullptr_t, std::nullptr_t)
      : c_check_tracker(nullptr, static_cast<char const*>(nullptr)) {}

  c_check_exception* mp_exception;  ///< Filled on failure when this is the root; borrowed, may be null.
  c_check_tracker* mp_parent;       ///< The enclosing level; null at the root.
  char const* mp_name;              ///< This level's name; null adds nothing to the path.
};

/// Records the path from the root to `tracker`, "/" before each name, in the root's exception, if it has
/// one, and in `global_check_exception`. Always false.
ISOXML_API bool report_check_failure(c_check_tracker const* tracker, char const* file, int line);

}  // namespace lmx
