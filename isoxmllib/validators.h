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
#include "GenLibrarySupportFiles/lmxtypes/c_binary.h"
#include "GenLibrarySupportFiles/lmxtypes/c_decimal.h"
#include "GenLibrarySupportFiles/lmxtypes/date_time.h"

/// At least 12 characters, at most 12 characters, pattern ([0-9]|[A-Z]){8}.([0-9]|[A-Z]){3}.
ISOXML_API lmx::elmx_error LexicalValidator1(lmx::c_xml_reader& reader, std::string const& text);
/// Accepts every text.
ISOXML_API lmx::elmx_error LexicalValidator2(lmx::c_xml_reader& reader, std::string const& text);
/// At most 32 characters.
ISOXML_API lmx::elmx_error LexicalValidator3(lmx::c_xml_reader& reader, std::string const& text);
/// Integer, from 1 to 254.
ISOXML_API lmx::elmx_error LexicalValidator4(lmx::c_xml_reader& reader, std::string const& text);
/// At most 32 characters.
ISOXML_API lmx::elmx_error LexicalValidator5(lmx::c_xml_reader& reader, std::string const& text);
/// Integer, from 0 to 4294967294.
ISOXML_API lmx::elmx_error LexicalValidator6(lmx::c_xml_reader& reader, std::string const& text);
/// Boolean.
ISOXML_API lmx::elmx_error LexicalValidator7(lmx::c_xml_reader& reader, std::string const& text);
/// Hex.
ISOXML_API lmx::elmx_error LexicalValidator8(lmx::c_xml_reader& reader, std::string const& text);
/// At most 153 characters.
ISOXML_API lmx::elmx_error LexicalValidator9(lmx::c_xml_reader& reader, std::string const& text);
/// Integer, from 0 to 63.
ISOXML_API lmx::elmx_error LexicalValidator10(lmx::c_xml_reader& reader, std::string const& text);
/// Integer, from 0 to 254.
ISOXML_API lmx::elmx_error LexicalValidator11(lmx::c_xml_reader& reader, std::string const& text);
/// At least 8 characters, at most 8 characters, pattern
/// (BSN|CCG|CCT|CLD|CPC|CTP|CTR|DVC|FRM|OTQ|PDT|PFD|PGP|TSK|VPN|WKR)[0-9][0-9][0-9][0-9][0-9].
ISOXML_API lmx::elmx_error LexicalValidator12(lmx::c_xml_reader& reader, std::string const& text);
/// Date_time.
ISOXML_API lmx::elmx_error LexicalValidator13(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (BSN|BSN-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator14(lmx::c_xml_reader& reader, std::string const& text);
/// Decimal.
ISOXML_API lmx::elmx_error LexicalValidator15(lmx::c_xml_reader& reader, std::string const& text);
/// Integer, from -2147483647 to 2147483647.
ISOXML_API lmx::elmx_error LexicalValidator16(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (CCT|CCT-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator17(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (CCG|CCG-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator18(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (CCG|CCG-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator19(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (CCL|CCL-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator20(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (CLD|CLD-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator21(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (CCT|CCT-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator22(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (CCL|CCL-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator23(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (DVC|DVC-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator24(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (DET|DET-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator25(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (DVC|DVC-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator26(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (DET|DET-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator27(lmx::c_xml_reader& reader, std::string const& text);
/// Hex, pattern
/// ((([0-9]|[a-e]|[A-E])([0-9]|[a-f]|[A-F]))|((F|f)([0-9]|[a-e]|[A-E]))){7}(([0-9]|[a-f]|[A-F])([0-9]|[a-f]|[A-F]))*.
ISOXML_API lmx::elmx_error LexicalValidator28(lmx::c_xml_reader& reader, std::string const& text);
/// Hex, pattern
/// ((([0-9]|[A-E]|[a-e])([0-9]|[A-F]|[a-f]))|((F|f)([0-9]|[A-E]|[a-e]))){7}(([0-9]|[A-F]|[a-f])([0-9]|[A-F]|[a-f]))*.
ISOXML_API lmx::elmx_error LexicalValidator29(lmx::c_xml_reader& reader, std::string const& text);
/// Integer, from 0 to 4095.
ISOXML_API lmx::elmx_error LexicalValidator30(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (CTP|CTP-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator31(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (PGP|PGP-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator32(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (CVT|CVT-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator33(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (PDT|PDT-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator34(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (CPC|CPC-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator35(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (CTR|CTR-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator36(lmx::c_xml_reader& reader, std::string const& text);
/// At most 10 characters.
ISOXML_API lmx::elmx_error LexicalValidator37(lmx::c_xml_reader& reader, std::string const& text);
/// At most 20 characters.
ISOXML_API lmx::elmx_error LexicalValidator38(lmx::c_xml_reader& reader, std::string const& text);
/// At most 64 characters.
ISOXML_API lmx::elmx_error LexicalValidator39(lmx::c_xml_reader& reader, std::string const& text);
/// At most 330 characters.
ISOXML_API lmx::elmx_error LexicalValidator40(lmx::c_xml_reader& reader, std::string const& text);
/// Integer, from 1 to 31.
ISOXML_API lmx::elmx_error LexicalValidator41(lmx::c_xml_reader& reader, std::string const& text);
/// Integer, from 0 to 1000000.
ISOXML_API lmx::elmx_error LexicalValidator42(lmx::c_xml_reader& reader, std::string const& text);
/// Integer, from 0 to 60000.
ISOXML_API lmx::elmx_error LexicalValidator43(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (DET|DET-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator44(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (VPN|VPN-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator45(lmx::c_xml_reader& reader, std::string const& text);
/// Integer, from 0 to 262143.
ISOXML_API lmx::elmx_error LexicalValidator46(lmx::c_xml_reader& reader, std::string const& text);
/// Integer, from -2147483648 to 2147483647.
ISOXML_API lmx::elmx_error LexicalValidator47(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (DET|DET-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator48(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (DVC|DVC-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator49(lmx::c_xml_reader& reader, std::string const& text);
/// Hex, pattern
/// ((([0-9]|[a-e]|[A-E])([0-9]|[a-f]|[A-F]))|((F|f)([0-9]|[a-e]|[A-E]))){7}(([0-9]|[a-f]|[A-F])([0-9]|[a-f]|[A-F]))*.
ISOXML_API lmx::elmx_error LexicalValidator50(lmx::c_xml_reader& reader, std::string const& text);
/// Hex, pattern (F|f){2}((([0-9]|[A-E]|[a-e])([0-9]|[A-F]|[a-f]))|((F|f)([0-9]|[A-E]|[a-e])))*.
ISOXML_API lmx::elmx_error LexicalValidator51(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (DVC|DVC-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator52(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (DET|DET-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator53(lmx::c_xml_reader& reader, std::string const& text);
/// Integer, from 1 to 65534.
ISOXML_API lmx::elmx_error LexicalValidator54(lmx::c_xml_reader& reader, std::string const& text);
/// Integer, from 0 to 65534.
ISOXML_API lmx::elmx_error LexicalValidator55(lmx::c_xml_reader& reader, std::string const& text);
/// Integer, from 0 to 7.
ISOXML_API lmx::elmx_error LexicalValidator56(lmx::c_xml_reader& reader, std::string const& text);
/// Integer, from 0 to 31.
ISOXML_API lmx::elmx_error LexicalValidator57(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (FRM|FRM-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator58(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (CTR|CTR-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator59(lmx::c_xml_reader& reader, std::string const& text);
/// Real.
ISOXML_API lmx::elmx_error LexicalValidator60(lmx::c_xml_reader& reader, std::string const& text);
/// Integer, from 0 to 4294967295.
ISOXML_API lmx::elmx_error LexicalValidator61(lmx::c_xml_reader& reader, std::string const& text);
/// At least 8 characters, at most 8 characters, pattern GRD[0-9][0-9][0-9][0-9][0-9].
ISOXML_API lmx::elmx_error LexicalValidator62(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (GGP|GGP-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator63(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (GGP|GGP-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator64(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (GPN|GPN-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator65(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (BSN|BSN-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator66(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (GGP|GGP-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator67(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (GPN|GPN-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator68(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (LSG|LSG-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator69(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (OTQ|OTQ-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator70(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (OTQ|OTQ-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator71(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (CPC|CPC-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator72(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (OTQ|OTQ-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator73(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (PFD|PFD-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator74(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (CTR|CTR-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator75(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (FRM|FRM-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator76(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (CTP|CTP-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator77(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (CVT|CVT-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator78(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (PFD|PFD-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator79(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (PNT|PNT-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator80(lmx::c_xml_reader& reader, std::string const& text);
/// At least 8 characters, at most 8 characters, pattern PNT([0-9]){5}.
ISOXML_API lmx::elmx_error LexicalValidator81(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (PLN|PLN-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator82(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (PDT|PDT-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator83(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (DET|DET-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator84(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (VPN|VPN-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator85(lmx::c_xml_reader& reader, std::string const& text);
/// At least 12 characters, at most 12 characters, pattern ([0-9]|[A-Z]){8}.([0-9]|[A-Z]){3}.
ISOXML_API lmx::elmx_error LexicalValidator86(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (PDT|PDT-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator87(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (PGP|PGP-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator88(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (VPN|VPN-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator89(lmx::c_xml_reader& reader, std::string const& text);
/// Integer, from 0 to 2147483647.
ISOXML_API lmx::elmx_error LexicalValidator90(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (PDT|PDT-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator91(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (DET|DET-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator92(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (VPN|VPN-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator93(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (PDT|PDT-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator94(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (PGP|PGP-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator95(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (PDT|PDT-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator96(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (VPN|VPN-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator97(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (TSK|TSK-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator98(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (CTR|CTR-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator99(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (FRM|FRM-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator100(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (PFD|PFD-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator101(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (WKR|WKR-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator102(lmx::c_xml_reader& reader, std::string const& text);
/// At least 8 characters, at most 8 characters, pattern TLG[0-9][0-9][0-9][0-9][0-9].
ISOXML_API lmx::elmx_error LexicalValidator103(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (VPN|VPN-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator104(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (CLD|CLD-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator105(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (WKR|WKR-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator106(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (WKR|WKR-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator107(lmx::c_xml_reader& reader, std::string const& text);
/// Pattern [a-fA-F0-9]{8}-[a-fA-F0-9]{4}-[a-fA-F0-9]{4}-[a-fA-F0-9]{4}-[a-fA-F0-9]{12}.
ISOXML_API lmx::elmx_error LexicalValidator108(lmx::c_xml_reader& reader, std::string const& text);
/// Pattern boolean|string|datetime|integer|decimal|list.
ISOXML_API lmx::elmx_error LexicalValidator109(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern
/// ((BSN|CCT|CCG|CLD|CTP|CPC|CTR|DVC|FRM|GGP|GPN|OTQ|PFD|PDT|PGP|PLN|TSK|VPN|WKR)(|-)([0-9])+)|(([0-9A-Z]){1,10}\.([0-9A-Z.]){1,10}).
ISOXML_API lmx::elmx_error LexicalValidator110(lmx::c_xml_reader& reader, std::string const& text);
/// At most 255 characters.
ISOXML_API lmx::elmx_error LexicalValidator111(lmx::c_xml_reader& reader, std::string const& text);
/// At least 4 characters, at most 14 characters, pattern (LGP|LGP-)([0-9])+.
ISOXML_API lmx::elmx_error LexicalValidator112(lmx::c_xml_reader& reader, std::string const& text);
/// At most 64 characters.
ISOXML_API lmx::elmx_error LexicalValidator113(lmx::c_xml_reader& reader, std::string const& text);

/// Accepts every value.
ISOXML_API lmx::elmx_error ValueValidator1(lmx::c_xml_reader& reader, std::string const& value);
/// One of "1", "2".
ISOXML_API lmx::elmx_error ValueValidator2(lmx::c_xml_reader& reader, std::string const& value);
/// Accepts every value.
ISOXML_API lmx::elmx_error ValueValidator3(lmx::c_xml_reader& reader, std::string const& value);
/// Accepts every value.
ISOXML_API lmx::elmx_error ValueValidator4(lmx::c_xml_reader& reader, unsigned char const& value);
/// Accepts every value.
ISOXML_API lmx::elmx_error ValueValidator5(lmx::c_xml_reader& reader, unsigned int const& value);
/// Accepts every value.
ISOXML_API lmx::elmx_error ValueValidator6(lmx::c_xml_reader& reader, bool const& value);
/// One of "FC", "USB", "API", "PORTAL".
ISOXML_API lmx::elmx_error ValueValidator7(lmx::c_xml_reader& reader, std::string const& value);
/// One of "1", "2", "3", "4".
ISOXML_API lmx::elmx_error ValueValidator8(lmx::c_xml_reader& reader, std::string const& value);
/// From 8 to 8 bytes.
ISOXML_API lmx::elmx_error ValueValidator9(lmx::c_xml_reader& reader, lmx::c_binary const& value);
/// One of "0", "1", "2", "3", "4".
ISOXML_API lmx::elmx_error ValueValidator10(lmx::c_xml_reader& reader, std::string const& value);
/// One of "1".
ISOXML_API lmx::elmx_error ValueValidator11(lmx::c_xml_reader& reader, std::string const& value);
/// Accepts every value.
ISOXML_API lmx::elmx_error ValueValidator12(lmx::c_xml_reader& reader, lmx::c_datetime const& value);
/// One of "1", "4".
ISOXML_API lmx::elmx_error ValueValidator13(lmx::c_xml_reader& reader, std::string const& value);
/// From -90.0 to 90.0.
ISOXML_API lmx::elmx_error ValueValidator14(lmx::c_xml_reader& reader, velmo::lmx::high_precision_c_decimal const& value);
/// From -180.0 to 180.0.
ISOXML_API lmx::elmx_error ValueValidator15(lmx::c_xml_reader& reader, velmo::lmx::high_precision_c_decimal const& value);
/// Accepts every value.
ISOXML_API lmx::elmx_error ValueValidator16(lmx::c_xml_reader& reader, int const& value);
/// One of "1", "2", "3".
ISOXML_API lmx::elmx_error ValueValidator17(lmx::c_xml_reader& reader, std::string const& value);
/// From 7 to 39 bytes.
ISOXML_API lmx::elmx_error ValueValidator18(lmx::c_xml_reader& reader, lmx::c_binary const& value);
/// Accepts every value.
ISOXML_API lmx::elmx_error ValueValidator19(lmx::c_xml_reader& reader, unsigned short const& value);
/// From 2 to 2 bytes.
ISOXML_API lmx::elmx_error ValueValidator20(lmx::c_xml_reader& reader, lmx::c_binary const& value);
/// From 7 to 7 bytes.
ISOXML_API lmx::elmx_error ValueValidator21(lmx::c_xml_reader& reader, lmx::c_binary const& value);
/// One of "1", "2", "3", "4", "5", "6", "7".
ISOXML_API lmx::elmx_error ValueValidator22(lmx::c_xml_reader& reader, std::string const& value);
/// From 0.000000001 to 100000000.0.
ISOXML_API lmx::elmx_error ValueValidator23(lmx::c_xml_reader& reader, velmo::lmx::high_precision_c_decimal const& value);
/// From 0.0 to 1.0.
ISOXML_API lmx::elmx_error ValueValidator24(lmx::c_xml_reader& reader, double const& value);
/// One of "1", "2", "3", "4", "5".
ISOXML_API lmx::elmx_error ValueValidator25(lmx::c_xml_reader& reader, std::string const& value);
/// From 0.0 to 360.0.
ISOXML_API lmx::elmx_error ValueValidator26(lmx::c_xml_reader& reader, velmo::lmx::high_precision_c_decimal const& value);
/// One of "0", "1", "2", "3", "4", "5", "6", "7", "8", "16", "17".
ISOXML_API lmx::elmx_error ValueValidator27(lmx::c_xml_reader& reader, std::string const& value);
/// From 0.0 to 65.0.
ISOXML_API lmx::elmx_error ValueValidator28(lmx::c_xml_reader& reader, velmo::lmx::high_precision_c_decimal const& value);
/// One of "1", "2", "3", "4", "5", "6", "7", "8", "9".
ISOXML_API lmx::elmx_error ValueValidator29(lmx::c_xml_reader& reader, std::string const& value);
/// One of "1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11".
ISOXML_API lmx::elmx_error ValueValidator30(lmx::c_xml_reader& reader, std::string const& value);
/// One of "1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12".
ISOXML_API lmx::elmx_error ValueValidator31(lmx::c_xml_reader& reader, std::string const& value);
/// One of "0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12", "13", "14", "15".
ISOXML_API lmx::elmx_error ValueValidator32(lmx::c_xml_reader& reader, std::string const& value);
/// From 0.0 to 99.9.
ISOXML_API lmx::elmx_error ValueValidator33(lmx::c_xml_reader& reader, velmo::lmx::high_precision_c_decimal const& value);
/// One of "1", "2", "3", "4", "5", "6".
ISOXML_API lmx::elmx_error ValueValidator34(lmx::c_xml_reader& reader, std::string const& value);
/// One of "1", "2", "4", "5", "6", "7", "8".
ISOXML_API lmx::elmx_error ValueValidator35(lmx::c_xml_reader& reader, std::string const& value);
