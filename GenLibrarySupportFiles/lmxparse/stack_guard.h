// Nested elements are read by nested calls, and a document chooses how deep it nests. The guard knows how
// much stack the thread really has, so that a document that nests too deep is refused and never runs over the
// end.
#pragma once

#include <cstdint>

#include "GenLibrarySupportFiles/lmxinternals/api.h"

namespace lmx {

/// Measures the stack of the thread that asks first. Used by one thread at a time, as its reader is.
class ISOXML_API stack_guard {
 public:
  /// Takes the bounds of the calling thread's stack. Called where a document begins.
  void begin();
  /// True while there is room for one more level and all that it may call.
  bool has_room() { return static_cast<char const*>(__builtin_frame_address(0)) > mp_lowest || p_has_room(); }

 private:
  bool p_has_room();

  // No level may begin below this address: at first all are, so that the first question asks for the bounds.
  char const* mp_lowest = reinterpret_cast<char const*>(~std::uintptr_t{0});
  bool m_has_begun = false;
};

}  // namespace lmx
