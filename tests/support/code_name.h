// The name of an error code, so that what a test has noted of reports reads like the enumerators.
#pragma once

#include <string>

#include "GenLibrarySupportFiles/lmxparse/error_codes.h"

/// The enumerator without its "ELMX_", such as "REQUIRED_ATTRIBUTES_MISSING"; the number where there is none.
inline std::string code_name(int code) {
#define CODE(name) \
  case lmx::ELMX_##name: return #name;
  switch (code) {
    // clang-format off
    CODE(OK) CODE(NO_FILE) CODE(ALL_CARDINALITY) CODE(ATTRIBUTE_ALREADY_READ)
    CODE(ATTRIBUTES_IN_ANONYMOUS_COMPOSITOR) CODE(BADLY_FORMED) CODE(BAD_CHAR_ENCODING)
    CODE(BAD_CHOICE) CODE(BAD_COMMENT) CODE(BAD_DTD) CODE(BAD_END_OF_ELEMENT)
    CODE(BAD_END_OF_START_TAG) CODE(BAD_END_TAG) CODE(BAD_XML_DECL) CODE(BAD_XML_VERSION)
    CODE(ENCODING_MISMATCH) CODE(ELEMENT_NOT_FOUND) CODE(EXTERNAL_ENTITY)
    CODE(FRACTION_DIGITS_EXCEEDED) CODE(LENGTH_TOO_LONG) CODE(LENGTH_TOO_SHORT)
    CODE(MANDATORY_ELEMENT_MISSING) CODE(NO_PATTERN_MATCHED) CODE(NOT_WELL_FORMED)
    CODE(RECURSIVE_ENTITY) CODE(REQUIRED_ATTRIBUTES_MISSING) CODE(OCCURRENCE_EXCEEDED)
    CODE(TOTAL_DIGITS_EXCEEDED) CODE(UNABLE_TO_READ_ATTRIBUTE_VALUE) CODE(UNABLE_TO_READ_ELEMENT_VALUE)
    CODE(UNEXPECTED_ALL_ELEMENT) CODE(UNEXPECTED_COMPLEX_ELEMENT) CODE(UNEXPECTED_EMPTY_ELEMENT)
    CODE(UNEXPECTED_ENTITY) CODE(UNEXPECTED_EOM) CODE(VALUE_BAD_FORMAT) CODE(VALUE_EXCEEDS_MAX)
    CODE(VALUE_EXCEEDS_MIN) CODE(VALUE_NOT_ENUMERATED) CODE(UNEXPECTED_ATTRIBUTE)
    CODE(NILLED_ELEMENT_NOT_EMPTY) CODE(ENTITY_NOT_FOUND) CODE(UNDEFINED_ERROR) CODE(VALUE_NOT_FIXED)
    CODE(UNKNOWN_XSI_TYPE) CODE(TYPE_NOT_SET) CODE(OCCURS_ERROR)
    CODE(USER_DEFINED_1) CODE(USER_DEFINED_2) CODE(USER_DEFINED_3) CODE(USER_DEFINED_4) CODE(USER_DEFINED_5)
    CODE(USER_DEFINED_6) CODE(USER_DEFINED_7) CODE(USER_DEFINED_8) CODE(USER_DEFINED_9)
    // clang-format on
  }
#undef CODE
  return std::to_string(code);
}

/// True for what a document can get that is cut off anywhere.
inline bool is_code_of_a_cut(int code) {
  switch (code) {
    case lmx::ELMX_BADLY_FORMED:
    case lmx::ELMX_BAD_END_OF_ELEMENT:
    case lmx::ELMX_BAD_XML_DECL:
    case lmx::ELMX_MANDATORY_ELEMENT_MISSING:
    case lmx::ELMX_NOT_WELL_FORMED:
    case lmx::ELMX_UNABLE_TO_READ_ELEMENT_VALUE:
    case lmx::ELMX_UNEXPECTED_COMPLEX_ELEMENT:
    case lmx::ELMX_UNEXPECTED_EOM: return true;
    default: return false;
  }
}

/// The code that a line of reports begins with, each noted as its name, a blank and its item; "OK" for none.
inline std::string first_code(std::string const& reports) {
  return reports.empty() ? code_name(lmx::ELMX_OK) : reports.substr(0, reports.find(' '));
}
