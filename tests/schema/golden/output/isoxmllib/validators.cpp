// clang-format off
// Generated from schema/rules.toml. Edit the schema, then build the target `schema`.

#include "isoxmllib/validators.h"

#include "isoxmllib/rules.h"
#include "isoxmllib/specs.h"

using namespace binding;

namespace {

lmx::c_big_int const bound_1("1");
lmx::c_big_int const bound_9("9");

}  // namespace

lmx::elmx_error LexicalValidator1(lmx::c_xml_reader& reader, std::string const& text) { return check_text(reader, text, {nullptr, 0, 8, nullptr}); }
lmx::elmx_error LexicalValidator2(lmx::c_xml_reader& reader, std::string const& text) { return check_integer(reader, text, bound_1, bound_9); }
lmx::elmx_error LexicalValidator3(lmx::c_xml_reader&, std::string const&) { return lmx::ELMX_OK; }

lmx::elmx_error ValueValidator1(lmx::c_xml_reader&, std::string const&) { return lmx::ELMX_OK; }
lmx::elmx_error ValueValidator2(lmx::c_xml_reader&, unsigned char const&) { return lmx::ELMX_OK; }
lmx::elmx_error ValueValidator3(lmx::c_xml_reader& reader, std::string const& value) { return check_one_of(reader, value, list_3); }
