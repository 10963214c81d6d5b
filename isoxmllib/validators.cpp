// clang-format off
// Generated from schema/rules.toml. Edit the schema, then build the target `schema`.

#include "isoxmllib/validators.h"

#include "isoxmllib/rules.h"
#include "isoxmllib/specs.h"

using namespace binding;

namespace {

// Each is made and compiled when a text first asks for it: memory that fails is the reader's to report,
// and while the library is loaded nobody could. The bounds below are short enough to need none.
lmx::c_regex const& pattern_0() { static lmx::c_regex const pattern("((([0-9]|[A-E]|[a-e])([0-9]|[A-F]|[a-f]))|((F|f)([0-9]|[A-E]|[a-e]))){7}(([0-9]|[A-F]|[a-f])([0-9]|[A-F]|[a-f]))*"); return pattern; }
lmx::c_regex const& pattern_1() { static lmx::c_regex const pattern("((([0-9]|[a-e]|[A-E])([0-9]|[a-f]|[A-F]))|((F|f)([0-9]|[a-e]|[A-E]))){7}(([0-9]|[a-f]|[A-F])([0-9]|[a-f]|[A-F]))*"); return pattern; }
lmx::c_regex const& pattern_2() { static lmx::c_regex const pattern("((BSN|CCT|CCG|CLD|CTP|CPC|CTR|DVC|FRM|GGP|GPN|OTQ|PFD|PDT|PGP|PLN|TSK|VPN|WKR)(|-)([0-9])+)|(([0-9A-Z]){1,10}\\.([0-9A-Z.]){1,10})"); return pattern; }
lmx::c_regex const& pattern_3() { static lmx::c_regex const pattern("(BSN|BSN-)([0-9])+"); return pattern; }
lmx::c_regex const& pattern_4() { static lmx::c_regex const pattern("(BSN|CCG|CCT|CLD|CPC|CTP|CTR|DVC|FRM|OTQ|PDT|PFD|PGP|TSK|VPN|WKR)[0-9][0-9][0-9][0-9][0-9]"); return pattern; }
lmx::c_regex const& pattern_5() { static lmx::c_regex const pattern("(CCG|CCG-)([0-9])+"); return pattern; }
lmx::c_regex const& pattern_6() { static lmx::c_regex const pattern("(CCL|CCL-)([0-9])+"); return pattern; }
lmx::c_regex const& pattern_7() { static lmx::c_regex const pattern("(CCT|CCT-)([0-9])+"); return pattern; }
lmx::c_regex const& pattern_8() { static lmx::c_regex const pattern("(CLD|CLD-)([0-9])+"); return pattern; }
lmx::c_regex const& pattern_9() { static lmx::c_regex const pattern("(CPC|CPC-)([0-9])+"); return pattern; }
lmx::c_regex const& pattern_10() { static lmx::c_regex const pattern("(CTP|CTP-)([0-9])+"); return pattern; }
lmx::c_regex const& pattern_11() { static lmx::c_regex const pattern("(CTR|CTR-)([0-9])+"); return pattern; }
lmx::c_regex const& pattern_12() { static lmx::c_regex const pattern("(CVT|CVT-)([0-9])+"); return pattern; }
lmx::c_regex const& pattern_13() { static lmx::c_regex const pattern("(DET|DET-)([0-9])+"); return pattern; }
lmx::c_regex const& pattern_14() { static lmx::c_regex const pattern("(DVC|DVC-)([0-9])+"); return pattern; }
lmx::c_regex const& pattern_15() { static lmx::c_regex const pattern("(FRM|FRM-)([0-9])+"); return pattern; }
lmx::c_regex const& pattern_16() { static lmx::c_regex const pattern("(F|f){2}((([0-9]|[A-E]|[a-e])([0-9]|[A-F]|[a-f]))|((F|f)([0-9]|[A-E]|[a-e])))*"); return pattern; }
lmx::c_regex const& pattern_17() { static lmx::c_regex const pattern("(GGP|GGP-)([0-9])+"); return pattern; }
lmx::c_regex const& pattern_18() { static lmx::c_regex const pattern("(GPN|GPN-)([0-9])+"); return pattern; }
lmx::c_regex const& pattern_19() { static lmx::c_regex const pattern("(LGP|LGP-)([0-9])+"); return pattern; }
lmx::c_regex const& pattern_20() { static lmx::c_regex const pattern("(LSG|LSG-)([0-9])+"); return pattern; }
lmx::c_regex const& pattern_21() { static lmx::c_regex const pattern("(OTQ|OTQ-)([0-9])+"); return pattern; }
lmx::c_regex const& pattern_22() { static lmx::c_regex const pattern("(PDT|PDT-)([0-9])+"); return pattern; }
lmx::c_regex const& pattern_23() { static lmx::c_regex const pattern("(PFD|PFD-)([0-9])+"); return pattern; }
lmx::c_regex const& pattern_24() { static lmx::c_regex const pattern("(PGP|PGP-)([0-9])+"); return pattern; }
lmx::c_regex const& pattern_25() { static lmx::c_regex const pattern("(PLN|PLN-)([0-9])+"); return pattern; }
lmx::c_regex const& pattern_26() { static lmx::c_regex const pattern("(PNT|PNT-)([0-9])+"); return pattern; }
lmx::c_regex const& pattern_27() { static lmx::c_regex const pattern("(TSK|TSK-)([0-9])+"); return pattern; }
lmx::c_regex const& pattern_28() { static lmx::c_regex const pattern("(VPN|VPN-)([0-9])+"); return pattern; }
lmx::c_regex const& pattern_29() { static lmx::c_regex const pattern("(WKR|WKR-)([0-9])+"); return pattern; }
lmx::c_regex const& pattern_30() { static lmx::c_regex const pattern("([0-9]|[A-Z]){8}.([0-9]|[A-Z]){3}"); return pattern; }
lmx::c_regex const& pattern_31() { static lmx::c_regex const pattern("GRD[0-9][0-9][0-9][0-9][0-9]"); return pattern; }
lmx::c_regex const& pattern_32() { static lmx::c_regex const pattern("PNT([0-9]){5}"); return pattern; }
lmx::c_regex const& pattern_33() { static lmx::c_regex const pattern("TLG[0-9][0-9][0-9][0-9][0-9]"); return pattern; }
lmx::c_regex const& pattern_34() { static lmx::c_regex const pattern("[a-fA-F0-9]{8}-[a-fA-F0-9]{4}-[a-fA-F0-9]{4}-[a-fA-F0-9]{4}-[a-fA-F0-9]{12}"); return pattern; }
lmx::c_regex const& pattern_35() { static lmx::c_regex const pattern("boolean|string|datetime|integer|decimal|list"); return pattern; }

lmx::c_big_int const bound_minus_2147483648("-2147483648");
lmx::c_big_int const bound_minus_2147483647("-2147483647");
lmx::c_big_int const bound_0("0");
lmx::c_big_int const bound_1("1");
lmx::c_big_int const bound_7("7");
lmx::c_big_int const bound_31("31");
lmx::c_big_int const bound_63("63");
lmx::c_big_int const bound_254("254");
lmx::c_big_int const bound_4095("4095");
lmx::c_big_int const bound_60000("60000");
lmx::c_big_int const bound_65534("65534");
lmx::c_big_int const bound_262143("262143");
lmx::c_big_int const bound_1000000("1000000");
lmx::c_big_int const bound_2147483647("2147483647");
lmx::c_big_int const bound_4294967294("4294967294");
lmx::c_big_int const bound_4294967295("4294967295");

velmo::lmx::high_precision_c_decimal const bound_minus_180_0("-180.0");
velmo::lmx::high_precision_c_decimal const bound_minus_90_0("-90.0");
velmo::lmx::high_precision_c_decimal const bound_0_0("0.0");
velmo::lmx::high_precision_c_decimal const bound_0_000000001("0.000000001");
velmo::lmx::high_precision_c_decimal const bound_65_0("65.0");
velmo::lmx::high_precision_c_decimal const bound_90_0("90.0");
velmo::lmx::high_precision_c_decimal const bound_99_9("99.9");
velmo::lmx::high_precision_c_decimal const bound_180_0("180.0");
velmo::lmx::high_precision_c_decimal const bound_360_0("360.0");
velmo::lmx::high_precision_c_decimal const bound_100000000_0("100000000.0");

}  // namespace

lmx::elmx_error LexicalValidator1(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 12, 12, &pattern_30}); }
lmx::elmx_error LexicalValidator2(lmx::c_xml_reader&, std::string const&) { return lmx::ELMX_OK; }
lmx::elmx_error LexicalValidator3(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 0, 32, nullptr}); }
lmx::elmx_error LexicalValidator4(lmx::c_xml_reader& reader, std::string const& text) { return check_integer(reader, text, bound_1, bound_254); }
lmx::elmx_error LexicalValidator5(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 0, 32, nullptr}); }
lmx::elmx_error LexicalValidator6(lmx::c_xml_reader& reader, std::string const& text) { return check_integer(reader, text, bound_0, bound_4294967294); }
lmx::elmx_error LexicalValidator7(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {&lmx::is_valid_bool, 0, no_max_length, nullptr}); }
lmx::elmx_error LexicalValidator8(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {&lmx::c_binary::is_valid_hex, 0, no_max_length, nullptr}); }
lmx::elmx_error LexicalValidator9(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 0, 153, nullptr}); }
lmx::elmx_error LexicalValidator10(lmx::c_xml_reader& reader, std::string const& text) { return check_integer(reader, text, bound_0, bound_63); }
lmx::elmx_error LexicalValidator11(lmx::c_xml_reader& reader, std::string const& text) { return check_integer(reader, text, bound_0, bound_254); }
lmx::elmx_error LexicalValidator12(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 8, 8, &pattern_4}); }
lmx::elmx_error LexicalValidator13(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {&lmx::c_datetime::is_valid, 0, no_max_length, nullptr}); }
lmx::elmx_error LexicalValidator14(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_3}); }
lmx::elmx_error LexicalValidator15(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {&lmx::c_decimal::is_valid, 0, no_max_length, nullptr}); }
lmx::elmx_error LexicalValidator16(lmx::c_xml_reader& reader, std::string const& text) { return check_integer(reader, text, bound_minus_2147483647, bound_2147483647); }
lmx::elmx_error LexicalValidator17(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_7}); }
lmx::elmx_error LexicalValidator18(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_5}); }
lmx::elmx_error LexicalValidator19(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_5}); }
lmx::elmx_error LexicalValidator20(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_6}); }
lmx::elmx_error LexicalValidator21(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_8}); }
lmx::elmx_error LexicalValidator22(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_7}); }
lmx::elmx_error LexicalValidator23(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_6}); }
lmx::elmx_error LexicalValidator24(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_14}); }
lmx::elmx_error LexicalValidator25(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_13}); }
lmx::elmx_error LexicalValidator26(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_14}); }
lmx::elmx_error LexicalValidator27(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_13}); }
lmx::elmx_error LexicalValidator28(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {&lmx::c_binary::is_valid_hex, 0, no_max_length, &pattern_1}); }
lmx::elmx_error LexicalValidator29(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {&lmx::c_binary::is_valid_hex, 0, no_max_length, &pattern_0}); }
lmx::elmx_error LexicalValidator30(lmx::c_xml_reader& reader, std::string const& text) { return check_integer(reader, text, bound_0, bound_4095); }
lmx::elmx_error LexicalValidator31(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_10}); }
lmx::elmx_error LexicalValidator32(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_24}); }
lmx::elmx_error LexicalValidator33(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_12}); }
lmx::elmx_error LexicalValidator34(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_22}); }
lmx::elmx_error LexicalValidator35(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_9}); }
lmx::elmx_error LexicalValidator36(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_11}); }
lmx::elmx_error LexicalValidator37(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 0, 10, nullptr}); }
lmx::elmx_error LexicalValidator38(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 0, 20, nullptr}); }
lmx::elmx_error LexicalValidator39(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 0, 64, nullptr}); }
lmx::elmx_error LexicalValidator40(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 0, 330, nullptr}); }
lmx::elmx_error LexicalValidator41(lmx::c_xml_reader& reader, std::string const& text) { return check_integer(reader, text, bound_1, bound_31); }
lmx::elmx_error LexicalValidator42(lmx::c_xml_reader& reader, std::string const& text) { return check_integer(reader, text, bound_0, bound_1000000); }
lmx::elmx_error LexicalValidator43(lmx::c_xml_reader& reader, std::string const& text) { return check_integer(reader, text, bound_0, bound_60000); }
lmx::elmx_error LexicalValidator44(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_13}); }
lmx::elmx_error LexicalValidator45(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_28}); }
lmx::elmx_error LexicalValidator46(lmx::c_xml_reader& reader, std::string const& text) { return check_integer(reader, text, bound_0, bound_262143); }
lmx::elmx_error LexicalValidator47(lmx::c_xml_reader& reader, std::string const& text) { return check_integer(reader, text, bound_minus_2147483648, bound_2147483647); }
lmx::elmx_error LexicalValidator48(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_13}); }
lmx::elmx_error LexicalValidator49(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_14}); }
lmx::elmx_error LexicalValidator50(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {&lmx::c_binary::is_valid_hex, 0, no_max_length, &pattern_1}); }
lmx::elmx_error LexicalValidator51(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {&lmx::c_binary::is_valid_hex, 0, no_max_length, &pattern_16}); }
lmx::elmx_error LexicalValidator52(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_14}); }
lmx::elmx_error LexicalValidator53(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_13}); }
lmx::elmx_error LexicalValidator54(lmx::c_xml_reader& reader, std::string const& text) { return check_integer(reader, text, bound_1, bound_65534); }
lmx::elmx_error LexicalValidator55(lmx::c_xml_reader& reader, std::string const& text) { return check_integer(reader, text, bound_0, bound_65534); }
lmx::elmx_error LexicalValidator56(lmx::c_xml_reader& reader, std::string const& text) { return check_integer(reader, text, bound_0, bound_7); }
lmx::elmx_error LexicalValidator57(lmx::c_xml_reader& reader, std::string const& text) { return check_integer(reader, text, bound_0, bound_31); }
lmx::elmx_error LexicalValidator58(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_15}); }
lmx::elmx_error LexicalValidator59(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_11}); }
lmx::elmx_error LexicalValidator60(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {&lmx::is_valid_float, 0, no_max_length, nullptr}); }
lmx::elmx_error LexicalValidator61(lmx::c_xml_reader& reader, std::string const& text) { return check_integer(reader, text, bound_0, bound_4294967295); }
lmx::elmx_error LexicalValidator62(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 8, 8, &pattern_31}); }
lmx::elmx_error LexicalValidator63(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_17}); }
lmx::elmx_error LexicalValidator64(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_17}); }
lmx::elmx_error LexicalValidator65(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_18}); }
lmx::elmx_error LexicalValidator66(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_3}); }
lmx::elmx_error LexicalValidator67(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_17}); }
lmx::elmx_error LexicalValidator68(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_18}); }
lmx::elmx_error LexicalValidator69(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_20}); }
lmx::elmx_error LexicalValidator70(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_21}); }
lmx::elmx_error LexicalValidator71(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_21}); }
lmx::elmx_error LexicalValidator72(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_9}); }
lmx::elmx_error LexicalValidator73(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_21}); }
lmx::elmx_error LexicalValidator74(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_23}); }
lmx::elmx_error LexicalValidator75(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_11}); }
lmx::elmx_error LexicalValidator76(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_15}); }
lmx::elmx_error LexicalValidator77(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_10}); }
lmx::elmx_error LexicalValidator78(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_12}); }
lmx::elmx_error LexicalValidator79(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_23}); }
lmx::elmx_error LexicalValidator80(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_26}); }
lmx::elmx_error LexicalValidator81(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 8, 8, &pattern_32}); }
lmx::elmx_error LexicalValidator82(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_25}); }
lmx::elmx_error LexicalValidator83(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_22}); }
lmx::elmx_error LexicalValidator84(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_13}); }
lmx::elmx_error LexicalValidator85(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_28}); }
lmx::elmx_error LexicalValidator86(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 12, 12, &pattern_30}); }
lmx::elmx_error LexicalValidator87(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_22}); }
lmx::elmx_error LexicalValidator88(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_24}); }
lmx::elmx_error LexicalValidator89(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_28}); }
lmx::elmx_error LexicalValidator90(lmx::c_xml_reader& reader, std::string const& text) { return check_integer(reader, text, bound_0, bound_2147483647); }
lmx::elmx_error LexicalValidator91(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_22}); }
lmx::elmx_error LexicalValidator92(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_13}); }
lmx::elmx_error LexicalValidator93(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_28}); }
lmx::elmx_error LexicalValidator94(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_22}); }
lmx::elmx_error LexicalValidator95(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_24}); }
lmx::elmx_error LexicalValidator96(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_22}); }
lmx::elmx_error LexicalValidator97(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_28}); }
lmx::elmx_error LexicalValidator98(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_27}); }
lmx::elmx_error LexicalValidator99(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_11}); }
lmx::elmx_error LexicalValidator100(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_15}); }
lmx::elmx_error LexicalValidator101(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_23}); }
lmx::elmx_error LexicalValidator102(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_29}); }
lmx::elmx_error LexicalValidator103(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 8, 8, &pattern_33}); }
lmx::elmx_error LexicalValidator104(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_28}); }
lmx::elmx_error LexicalValidator105(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_8}); }
lmx::elmx_error LexicalValidator106(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_29}); }
lmx::elmx_error LexicalValidator107(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_29}); }
lmx::elmx_error LexicalValidator108(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 0, no_max_length, &pattern_34}); }
lmx::elmx_error LexicalValidator109(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 0, no_max_length, &pattern_35}); }
lmx::elmx_error LexicalValidator110(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_2}); }
lmx::elmx_error LexicalValidator111(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 0, 255, nullptr}); }
lmx::elmx_error LexicalValidator112(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_19}); }
lmx::elmx_error LexicalValidator113(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 0, 64, nullptr}); }

lmx::elmx_error ValueValidator1(lmx::c_xml_reader&, std::string const&) { return lmx::ELMX_OK; }
lmx::elmx_error ValueValidator2(lmx::c_xml_reader& reader, std::string const& value) { return check_one_of(reader, value, list_2); }
lmx::elmx_error ValueValidator3(lmx::c_xml_reader&, std::string const&) { return lmx::ELMX_OK; }
lmx::elmx_error ValueValidator4(lmx::c_xml_reader&, unsigned char const&) { return lmx::ELMX_OK; }
lmx::elmx_error ValueValidator5(lmx::c_xml_reader&, unsigned int const&) { return lmx::ELMX_OK; }
lmx::elmx_error ValueValidator6(lmx::c_xml_reader&, bool const&) { return lmx::ELMX_OK; }
lmx::elmx_error ValueValidator7(lmx::c_xml_reader& reader, std::string const& value) { return check_one_of(reader, value, list_7); }
lmx::elmx_error ValueValidator8(lmx::c_xml_reader& reader, std::string const& value) { return check_one_of(reader, value, list_8); }
lmx::elmx_error ValueValidator9(lmx::c_xml_reader& reader, lmx::c_binary const& value) { return check_size(reader, value.size(), 8, 8); }
lmx::elmx_error ValueValidator10(lmx::c_xml_reader& reader, std::string const& value) { return check_one_of(reader, value, list_10); }
lmx::elmx_error ValueValidator11(lmx::c_xml_reader& reader, std::string const& value) { return check_one_of(reader, value, list_11); }
lmx::elmx_error ValueValidator12(lmx::c_xml_reader&, lmx::c_datetime const&) { return lmx::ELMX_OK; }
lmx::elmx_error ValueValidator13(lmx::c_xml_reader& reader, std::string const& value) { return check_one_of(reader, value, list_13); }
lmx::elmx_error ValueValidator14(lmx::c_xml_reader& reader, velmo::lmx::high_precision_c_decimal const& value) { return check_range(reader, value, bound_minus_90_0, bound_90_0); }
lmx::elmx_error ValueValidator15(lmx::c_xml_reader& reader, velmo::lmx::high_precision_c_decimal const& value) { return check_range(reader, value, bound_minus_180_0, bound_180_0); }
lmx::elmx_error ValueValidator16(lmx::c_xml_reader&, int const&) { return lmx::ELMX_OK; }
lmx::elmx_error ValueValidator17(lmx::c_xml_reader& reader, std::string const& value) { return check_one_of(reader, value, list_17); }
lmx::elmx_error ValueValidator18(lmx::c_xml_reader& reader, lmx::c_binary const& value) { return check_size(reader, value.size(), 7, 39); }
lmx::elmx_error ValueValidator19(lmx::c_xml_reader&, unsigned short const&) { return lmx::ELMX_OK; }
lmx::elmx_error ValueValidator20(lmx::c_xml_reader& reader, lmx::c_binary const& value) { return check_size(reader, value.size(), 2, 2); }
lmx::elmx_error ValueValidator21(lmx::c_xml_reader& reader, lmx::c_binary const& value) { return check_size(reader, value.size(), 7, 7); }
lmx::elmx_error ValueValidator22(lmx::c_xml_reader& reader, std::string const& value) { return check_one_of(reader, value, list_22); }
lmx::elmx_error ValueValidator23(lmx::c_xml_reader& reader, velmo::lmx::high_precision_c_decimal const& value) { return check_range(reader, value, bound_0_000000001, bound_100000000_0); }
lmx::elmx_error ValueValidator24(lmx::c_xml_reader& reader, double const& value) { return check_range(reader, value, 0.0, 1.0); }
lmx::elmx_error ValueValidator25(lmx::c_xml_reader& reader, std::string const& value) { return check_one_of(reader, value, list_25); }
lmx::elmx_error ValueValidator26(lmx::c_xml_reader& reader, velmo::lmx::high_precision_c_decimal const& value) { return check_range(reader, value, bound_0_0, bound_360_0); }
lmx::elmx_error ValueValidator27(lmx::c_xml_reader& reader, std::string const& value) { return check_one_of(reader, value, list_27); }
lmx::elmx_error ValueValidator28(lmx::c_xml_reader& reader, velmo::lmx::high_precision_c_decimal const& value) { return check_range(reader, value, bound_0_0, bound_65_0); }
lmx::elmx_error ValueValidator29(lmx::c_xml_reader& reader, std::string const& value) { return check_one_of(reader, value, list_29); }
lmx::elmx_error ValueValidator30(lmx::c_xml_reader& reader, std::string const& value) { return check_one_of(reader, value, list_30); }
lmx::elmx_error ValueValidator31(lmx::c_xml_reader& reader, std::string const& value) { return check_one_of(reader, value, list_31); }
lmx::elmx_error ValueValidator32(lmx::c_xml_reader& reader, std::string const& value) { return check_one_of(reader, value, list_32); }
lmx::elmx_error ValueValidator33(lmx::c_xml_reader& reader, velmo::lmx::high_precision_c_decimal const& value) { return check_range(reader, value, bound_0_0, bound_99_9); }
lmx::elmx_error ValueValidator34(lmx::c_xml_reader& reader, std::string const& value) { return check_one_of(reader, value, list_34); }
lmx::elmx_error ValueValidator35(lmx::c_xml_reader& reader, std::string const& value) { return check_one_of(reader, value, list_35); }
