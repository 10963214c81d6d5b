// The value types and what they stand on: numbers kept as text, binary values, patterns, scanners and the
// conversions between text and value.
#pragma once

#include "GenLibrarySupportFiles/lmxtypes/c_big_int.h"    // IWYU pragma: export
#include "GenLibrarySupportFiles/lmxtypes/c_binary.h"     // IWYU pragma: export
#include "GenLibrarySupportFiles/lmxtypes/c_decimal.h"    // IWYU pragma: export
#include "GenLibrarySupportFiles/lmxtypes/c_regex.h"      // IWYU pragma: export
#include "GenLibrarySupportFiles/lmxtypes/conversions.h"  // IWYU pragma: export
#include "GenLibrarySupportFiles/lmxtypes/date_time.h"    // IWYU pragma: export
#include "GenLibrarySupportFiles/lmxtypes/lexical.h"      // IWYU pragma: export
