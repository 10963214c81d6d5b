// Conversions for hosts that set attributes which hold a data dictionary identifier.
#pragma once

#include <string>

#include "GenLibrarySupportFiles/lmxinternals/api.h"
#include "GenLibrarySupportFiles/lmxtypes/c_binary.h"

/// From a number to the forms of a data dictionary identifier (DDI, ISO 11783-11), which task data holds as
/// hexBinary. There is no table of identifiers here, only the conversions.
class ISOXML_API IsoDDIConstants {
 public:
  /// `value` in lower-case hexadecimal digits, with "0" on the left up to `width` digits. A longer text is
  /// not cut. A negative value gives the eight digits of its 32-bit two's complement.
  /// Not to be compared with `lmx::c_binary::get_as_hex_string`, which gives capitals.
  /// @param width  at most 2147483647; above that nothing is filled
  static std::string toPaddedHexString(int value, unsigned int width);
  /// The bytes of that text, one for each two digits, in its order: what `Set` operations take.
  /// A last digit without a partner is dropped, so `width` should be even.
  static lmx::c_binary toHexBinary(int value, unsigned int width);
};
