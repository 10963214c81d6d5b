// clang-format off
// Generated from schema/rules.toml. Edit the schema, then build the target `schema`.

#include "isoxmllib/validators.h"

#include "isoxmllib/rules.h"
#include "isoxmllib/specs.h"

using namespace binding;

namespace {

// Compiled once, when the library is loaded.
lmx::c_regex const pattern_0("((BSN|CCT|CCG|CLD|CTP|CPC|CTR|DVC|FRM|GGP|GPN|OTQ|PFD|PDT|PGP|PLN|TSK|VPN|WKR)(|-)([0-9])+)|(([0-9A-Z]){1,10}\\.([0-9A-Z.]){1,10})");
lmx::c_regex const pattern_1("(BSN|CCG|CCT|CLD|CPC|CTP|CTR|DVC|FRM|OTQ|PDT|PFD|PGP|TSK|VPN|WKR)[0-9][0-9][0-9][0-9][0-9]");
lmx::c_regex const pattern_2("(LGP|LGP-)([0-9])+");
lmx::c_regex const pattern_3("([0-9]|[A-Z]){8}.([0-9]|[A-Z]){3}");

lmx::c_big_int const bound_0("0");
lmx::c_big_int const bound_1("1");
lmx::c_big_int const bound_63("63");
lmx::c_big_int const bound_254("254");
lmx::c_big_int const bound_4294967294("4294967294");

}  // namespace

lmx::elmx_error LexicalValidator1(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 12, 12, &pattern_3}); }
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
lmx::elmx_error LexicalValidator12(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 8, 8, &pattern_1}); }
lmx::elmx_error LexicalValidator110(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_0}); }
lmx::elmx_error LexicalValidator111(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 0, 255, nullptr}); }
lmx::elmx_error LexicalValidator112(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 4, 14, &pattern_2}); }
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
