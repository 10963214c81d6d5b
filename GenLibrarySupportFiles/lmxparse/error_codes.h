// The error vocabulary of the runtime: the codes, how severe a report is, and the text of each code.
#pragma once

#include "GenLibrarySupportFiles/lmxinternals/api.h"

namespace lmx {

/// What went wrong; 0 is success. Every operation that can fail returns one of these or stores it through
/// a pointer; nothing is thrown. The numbers are stable: hosts store and compare them.
enum elmx_error : int {
  ELMX_OK = 0,
  ELMX_NO_FILE = 1,
  ELMX_ALL_CARDINALITY = 2,
  ELMX_ATTRIBUTE_ALREADY_READ = 3,
  ELMX_ATTRIBUTES_IN_ANONYMOUS_COMPOSITOR = 4,
  ELMX_BADLY_FORMED = 5,
  ELMX_BAD_CHAR_ENCODING = 6,
  ELMX_BAD_CHOICE = 7,
  ELMX_BAD_COMMENT = 8,
  ELMX_BAD_DTD = 9,
  ELMX_BAD_END_OF_ELEMENT = 10,
  ELMX_BAD_END_OF_START_TAG = 11,
  ELMX_BAD_END_TAG = 12,
  ELMX_BAD_XML_DECL = 13,
  ELMX_BAD_XML_VERSION = 14,
  ELMX_ENCODING_MISMATCH = 15,
  ELMX_ELEMENT_NOT_FOUND = 16,
  ELMX_EXTERNAL_ENTITY = 17,
  ELMX_FRACTION_DIGITS_EXCEEDED = 18,
  ELMX_LENGTH_TOO_LONG = 19,
  ELMX_LENGTH_TOO_SHORT = 20,
  ELMX_MANDATORY_ELEMENT_MISSING = 21,
  ELMX_NO_PATTERN_MATCHED = 22,
  ELMX_NOT_WELL_FORMED = 23,
  ELMX_RECURSIVE_ENTITY = 24,
  ELMX_REQUIRED_ATTRIBUTES_MISSING = 25,
  ELMX_OCCURRENCE_EXCEEDED = 26,
  ELMX_TOTAL_DIGITS_EXCEEDED = 27,
  ELMX_UNABLE_TO_READ_ATTRIBUTE_VALUE = 28,
  ELMX_UNABLE_TO_READ_ELEMENT_VALUE = 29,
  ELMX_UNEXPECTED_ALL_ELEMENT = 30,
  ELMX_UNEXPECTED_COMPLEX_ELEMENT = 31,
  ELMX_UNEXPECTED_EMPTY_ELEMENT = 32,
  ELMX_UNEXPECTED_ENTITY = 33,
  ELMX_UNEXPECTED_EOM = 34,
  ELMX_VALUE_BAD_FORMAT = 35,
  ELMX_VALUE_EXCEEDS_MAX = 36,
  ELMX_VALUE_EXCEEDS_MIN = 37,
  ELMX_VALUE_NOT_ENUMERATED = 38,
  ELMX_UNEXPECTED_ATTRIBUTE = 39,
  ELMX_NILLED_ELEMENT_NOT_EMPTY = 40,
  ELMX_ENTITY_NOT_FOUND = 41,
  ELMX_UNDEFINED_ERROR = 42,
  ELMX_VALUE_NOT_FIXED = 43,
  ELMX_UNKNOWN_XSI_TYPE = 44,
  ELMX_TYPE_NOT_SET = 45,
  ELMX_OCCURS_ERROR = 46,
  ELMX_USER_DEFINED_1 = 1000,
  ELMX_USER_DEFINED_2 = 1001,
  ELMX_USER_DEFINED_3 = 1002,
  ELMX_USER_DEFINED_4 = 1003,
  ELMX_USER_DEFINED_5 = 1004,
  ELMX_USER_DEFINED_6 = 1005,
  ELMX_USER_DEFINED_7 = 1006,
  ELMX_USER_DEFINED_8 = 1007,
  ELMX_USER_DEFINED_9 = 1008,
};

/// How severe a report of the character and tag level is.
enum elmx_error_type : int {
  EET_FATAL = 0,    ///< Ends the input: every later read gives the end of input. Counts as an error too.
  EET_ERROR = 1,    ///< The item at hand could not be read.
  EET_WARNING = 2,  ///< Odd, but read.
  EET_NOTE = 3,     ///< Worth knowing. Counts as a warning too.
  EET_NONE = 4,     ///< Nothing reported yet; never reported itself.
};

/// The fixed English text of `code`, such as "Unable to open file"; the empty string for a number that is
/// no code. The text is constant and lives as long as the process.
ISOXML_API char const* get_error_description(elmx_error code);

}  // namespace lmx
