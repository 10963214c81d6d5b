// clang-format off
// Generated from schema/rules.toml. Edit the schema, then build the target `schema`.

// The checks of every simple type, text first and then value. Each reports through the reader's
// `report_error` with the item `m_name`; a report that is tolerated lets it go on to its next test.
#pragma once

#include <string>

#include "GenLibrarySupportFiles/lmxparse/c_xml_reader.h"
#include "GenLibrarySupportFiles/lmxtypes/c_binary.h"

/// At least 12 characters (20), at most 12 characters (19), pattern ([0-9]|[a-z]){8}.([0-9]|[a-z]){3} (22).
ISOXML_API lmx::elmx_error LexicalValidator1(lmx::c_xml_reader& reader, std::string const& text);
/// Accepts every text.
ISOXML_API lmx::elmx_error LexicalValidator2(lmx::c_xml_reader& reader, std::string const& text);
/// At most 32 characters (19).
ISOXML_API lmx::elmx_error LexicalValidator3(lmx::c_xml_reader& reader, std::string const& text);
/// Integer (35), from 1 (37) to 254 (36).
ISOXML_API lmx::elmx_error LexicalValidator4(lmx::c_xml_reader& reader, std::string const& text);
/// At most 32 characters (19).
ISOXML_API lmx::elmx_error LexicalValidator5(lmx::c_xml_reader& reader, std::string const& text);
/// Integer (35), from 0 (37) to 4294967294 (36).
ISOXML_API lmx::elmx_error LexicalValidator6(lmx::c_xml_reader& reader, std::string const& text);
/// Boolean (35).
ISOXML_API lmx::elmx_error LexicalValidator7(lmx::c_xml_reader& reader, std::string const& text);
/// Hex (35).
ISOXML_API lmx::elmx_error LexicalValidator8(lmx::c_xml_reader& reader, std::string const& text);
/// At most 153 characters (19).
ISOXML_API lmx::elmx_error LexicalValidator9(lmx::c_xml_reader& reader, std::string const& text);
/// Integer (35), from 0 (37) to 63 (36).
ISOXML_API lmx::elmx_error LexicalValidator10(lmx::c_xml_reader& reader, std::string const& text);
/// Integer (35), from 0 (37) to 254 (36).
ISOXML_API lmx::elmx_error LexicalValidator11(lmx::c_xml_reader& reader, std::string const& text);
/// At least 8 characters (20), at most 8 characters (19), pattern
/// (bsn|ccg|cct|cld|cpc|ctp|ctr|dvc|frm|otq|pdt|pfd|pgp|tsk|vpn|wkr)[0-9][0-9][0-9][0-9][0-9] (22).
ISOXML_API lmx::elmx_error LexicalValidator12(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters (20), at most 14 characters (19), pattern
/// ((bsn|cct|ccg|cld|ctp|cpc|ctr|dvc|frm|ggp|gpn|otq|pfd|pdt|pgp|pln|tsk|vpn|wkr)(|-)([0-9])+)|(([0-9a-z]){1,10}\.([0-9a-z.]){1,10})
/// (22).
ISOXML_API lmx::elmx_error LexicalValidator110(lmx::c_xml_reader& reader, std::string const& text);
/// At most 255 characters (19).
ISOXML_API lmx::elmx_error LexicalValidator111(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters (20), at most 14 characters (19), pattern (lgp|lgp-)([0-9])+ (22).
ISOXML_API lmx::elmx_error LexicalValidator112(lmx::c_xml_reader& reader, std::string const& text);
/// At most 64 characters (19).
ISOXML_API lmx::elmx_error LexicalValidator113(lmx::c_xml_reader& reader, std::string const& text);

/// Accepts every value.
ISOXML_API lmx::elmx_error ValueValidator1(lmx::c_xml_reader& reader, std::string const& value);
/// One of "1", "2" (38).
ISOXML_API lmx::elmx_error ValueValidator2(lmx::c_xml_reader& reader, std::string const& value);
/// Accepts every value.
ISOXML_API lmx::elmx_error ValueValidator3(lmx::c_xml_reader& reader, std::string const& value);
/// Accepts every value.
ISOXML_API lmx::elmx_error ValueValidator4(lmx::c_xml_reader& reader, unsigned char const& value);
/// Accepts every value.
ISOXML_API lmx::elmx_error ValueValidator5(lmx::c_xml_reader& reader, unsigned int const& value);
/// Accepts every value.
ISOXML_API lmx::elmx_error ValueValidator6(lmx::c_xml_reader& reader, bool const& value);
/// One of "FC", "USB", "API", "PORTAL" (38).
ISOXML_API lmx::elmx_error ValueValidator7(lmx::c_xml_reader& reader, std::string const& value);
/// One of "1", "2", "3", "4" (38).
ISOXML_API lmx::elmx_error ValueValidator8(lmx::c_xml_reader& reader, std::string const& value);
/// From 8 (20) to 8 bytes (19).
ISOXML_API lmx::elmx_error ValueValidator9(lmx::c_xml_reader& reader, lmx::c_binary const& value);
/// One of "0", "1", "2", "3", "4" (38).
ISOXML_API lmx::elmx_error ValueValidator10(lmx::c_xml_reader& reader, std::string const& value);
/// One of "1" (38).
ISOXML_API lmx::elmx_error ValueValidator11(lmx::c_xml_reader& reader, std::string const& value);
