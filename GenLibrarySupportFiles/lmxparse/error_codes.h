// The error vocabulary of the runtime: the codes, how severe a report is, and the text of each code.
#pragma once

#include "GenLibrarySupportFiles/lmxinternals/api.h"

namespace lmx {

/// What went wrong; 0 is success. Every operation that can fail returns one of these or stores it through
/// a pointer; nothing is thrown. The numbers are stable: hosts store and compare them.
///
/// A report is a code and an item, the name of what it is about. Where the sentences below say "what was
/// being read", that is the attribute or else the element whose content the reader was in; before the top
/// element it is the name that came last, if any. "Fatal" ends the input: see `elmx_error_type`.
enum elmx_error : int {
  /// Nothing went wrong.
  ELMX_OK = 0,
  /// A document of a transfer set cannot be opened, or has been opened too often; the item is its name as the
  /// set gives it.
  ELMX_NO_FILE = 1,
  /// Never reported: the format has no such group.
  ELMX_ALL_CARDINALITY = 2,
  /// An element has the same attribute twice; the item is "@" and the attribute's name.
  ELMX_ATTRIBUTE_ALREADY_READ = 3,
  /// Never reported: a wrapper of alternatives reads no attributes.
  ELMX_ATTRIBUTES_IN_ANONYMOUS_COMPOSITOR = 4,
  /// An unknown element does not come to a proper end, or an element nests too deep; the item is what was
  /// being read, or the element that is too deep.
  ELMX_BADLY_FORMED = 5,
  /// Fatal: the bytes are of no known encoding, or the declaration names one that nothing can read; the item
  /// is what was being read.
  ELMX_BAD_CHAR_ENCODING = 6,
  /// On writing: `chosen` is the number of no alternative; the item is "{anonymous compositor}".
  ELMX_BAD_CHOICE = 7,
  /// A warning: a comment ends in more than two hyphens. Told only where what follows fails without a code of
  /// its own; the item is then what was being read.
  ELMX_BAD_COMMENT = 8,
  /// The document type declaration is damaged or out of place, or fatal: entities are recursive, nested too
  /// deep or out of proportion; the item is what was being read.
  ELMX_BAD_DTD = 9,
  /// An element holds what it may not, text or a child where its end was due, or ends under another name; the
  /// item is that element.
  ELMX_BAD_END_OF_ELEMENT = 10,
  /// The start tag of an element with text alone is damaged; the item is that element.
  ELMX_BAD_END_OF_START_TAG = 11,
  /// Something other than white space follows the name in an end tag; the item is what was being read.
  ELMX_BAD_END_TAG = 12,
  /// The XML declaration has no version, or fatal: it is not where a document begins; the item is what was
  /// being read.
  ELMX_BAD_XML_DECL = 13,
  /// The XML declaration tells a version other than 1.0 and 1.1; the item is what was being read.
  ELMX_BAD_XML_VERSION = 14,
  /// Fatal: the XML declaration names an encoding that the document's bytes are not in; the item is what was
  /// being read.
  ELMX_ENCODING_MISMATCH = 15,
  /// A class that reads a document by itself finds another top element; the item is the name found.
  ELMX_ELEMENT_NOT_FOUND = 16,
  /// A warning: an entity lies outside the document and counts as empty. Told only where what follows fails
  /// without a code of its own; the item is then what was being read.
  ELMX_EXTERNAL_ENTITY = 17,
  /// Never reported: no rule limits fraction digits.
  ELMX_FRACTION_DIGITS_EXCEEDED = 18,
  /// A value is longer than its rule allows; the item is the attribute, or the element of a text.
  ELMX_LENGTH_TOO_LONG = 19,
  /// A value is shorter than its rule allows; the item is the attribute, or the element of a text.
  ELMX_LENGTH_TOO_SHORT = 20,
  /// An element has content but not the children it must have; the item is that element.
  ELMX_MANDATORY_ELEMENT_MISSING = 21,
  /// A value does not match its rule's pattern; the item is the attribute, or the element of a text.
  ELMX_NO_PATTERN_MATCHED = 22,
  /// A tag is no tag, an attribute has no proper value, or an end tag has another name than its start tag;
  /// the item is what was being read.
  ELMX_NOT_WELL_FORMED = 23,
  /// Never reported: recursive entities are `ELMX_BAD_DTD`.
  ELMX_RECURSIVE_ENTITY = 24,
  /// The start tag ends and not all required attributes came; the item is the element.
  ELMX_REQUIRED_ATTRIBUTES_MISSING = 25,
  /// Never reported: what comes too often is handed over as unknown.
  ELMX_OCCURRENCE_EXCEEDED = 26,
  /// Never reported: no rule limits digits.
  ELMX_TOTAL_DIGITS_EXCEEDED = 27,
  /// A reference in an attribute's value stands for nothing, or does not end; the item is "@" and the
  /// attribute's name.
  ELMX_UNABLE_TO_READ_ATTRIBUTE_VALUE = 28,
  /// The text of an element breaks off, or a reference in it stands for nothing; the item is that element.
  ELMX_UNABLE_TO_READ_ELEMENT_VALUE = 29,
  /// Never reported: the format has no such group.
  ELMX_UNEXPECTED_ALL_ELEMENT = 30,
  /// A document begins with something other than an element, or a wrapper is read where none of its
  /// alternatives stands; the item is the name read last, or the element the wrapper belongs to.
  ELMX_UNEXPECTED_COMPLEX_ELEMENT = 31,
  /// An element that must have children is empty; the item is that element.
  ELMX_UNEXPECTED_EMPTY_ELEMENT = 32,
  /// An entity is declared with neither a value nor an external identifier, and counts as empty; the item is
  /// what was being read.
  ELMX_UNEXPECTED_ENTITY = 33,
  /// The input ends before the document does; the item is what was being read.
  ELMX_UNEXPECTED_EOM = 34,
  /// A value does not have the form of its type, such as letters in a number; the item is the attribute, or
  /// the element of a text.
  ELMX_VALUE_BAD_FORMAT = 35,
  /// A value is above its rule's range; the item is the attribute, or the element of a text.
  ELMX_VALUE_EXCEEDS_MAX = 36,
  /// A value is below its rule's range; the item is the attribute, or the element of a text.
  ELMX_VALUE_EXCEEDS_MIN = 37,
  /// A value is none of its rule's list; the item is the attribute, or the element of a text.
  ELMX_VALUE_NOT_ENUMERATED = 38,
  /// An attribute is unknown and the reader's `m_skip_unknown` is false; the item is the attribute's name.
  ELMX_UNEXPECTED_ATTRIBUTE = 39,
  /// Never reported: the format has no such elements.
  ELMX_NILLED_ELEMENT_NOT_EMPTY = 40,
  /// A parameter entity was not declared, and is passed over; the item is what was being read.
  ELMX_ENTITY_NOT_FOUND = 41,
  /// Never reported: what a constructor that reads has in `*error` until its read is done.
  ELMX_UNDEFINED_ERROR = 42,
  /// Never reported: no rule fixes a value.
  ELMX_VALUE_NOT_FIXED = 43,
  /// Never reported: types are not replaced.
  ELMX_UNKNOWN_XSI_TYPE = 44,
  /// Never reported: types are not replaced.
  ELMX_TYPE_NOT_SET = 45,
  /// Never reported: numbers of children are not checked on writing, see `Check`.
  ELMX_OCCURS_ERROR = 46,
  /// This and the next eight are a host's own, for its hooks to answer with; never reported by the library.
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
