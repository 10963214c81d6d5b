// Any bytes as a document, read strictly and tolerantly. It must come to an end, and to the same end whether
// the bytes come all at once or one at a time.
#include "fuzz/support.h"

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  fuzz::require_one_reading(fuzz::text_of(data, size));
  return 0;
}
