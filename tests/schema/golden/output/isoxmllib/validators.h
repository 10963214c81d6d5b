// clang-format off
// Generated from schema/rules.toml. Edit the schema, then build the target `schema`.

// The checks of every simple type, text first and then value. Each reports through the reader's
// `report_error` with the item `m_name`; a report that is tolerated lets it go on to its next test.
// Each limit has its code: a form ELMX_VALUE_BAD_FORMAT, a length ELMX_LENGTH_TOO_SHORT and
// ELMX_LENGTH_TOO_LONG, a pattern ELMX_NO_PATTERN_MATCHED, a range ELMX_VALUE_EXCEEDS_MIN and
// ELMX_VALUE_EXCEEDS_MAX, a list ELMX_VALUE_NOT_ENUMERATED.
#pragma once

#include <string>

#include "GenLibrarySupportFiles/lmxparse/c_xml_reader.h"

/// At most 8 characters.
ISOXML_API lmx::elmx_error LexicalValidator1(lmx::c_xml_reader& reader, std::string const& text);
/// Integer, from 1 to 9.
ISOXML_API lmx::elmx_error LexicalValidator2(lmx::c_xml_reader& reader, std::string const& text);
/// Accepts every text.
ISOXML_API lmx::elmx_error LexicalValidator3(lmx::c_xml_reader& reader, std::string const& text);

/// Accepts every value.
ISOXML_API lmx::elmx_error ValueValidator1(lmx::c_xml_reader& reader, std::string const& value);
/// Accepts every value.
ISOXML_API lmx::elmx_error ValueValidator2(lmx::c_xml_reader& reader, unsigned char const& value);
/// One of "1", "2".
ISOXML_API lmx::elmx_error ValueValidator3(lmx::c_xml_reader& reader, std::string const& value);
