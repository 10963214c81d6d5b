// A list is read as a single value is, with another check of its text and another conversion: so the reader's
// forms for lists hand the single forms a bridge that takes the whole text for one value.
#include "GenLibrarySupportFiles/lmxinternals/list_bridges.h"

#include "GenLibrarySupportFiles/lmxparse/c_xml_list_tokeniser.h"

namespace lmx {

namespace {

class c_whole_list_bridge final : public c_untyped_unmarshal_bridge {
 public:
  c_whole_list_bridge(c_xml_reader& reader, c_untyped_unmarshal_list_bridge& list,
                      lexical_validator token_validator)
      : mr_reader(reader), mr_list(list), mp_token_validator(token_validator) {}

  bool is_value_set() override { return mr_list.is_value_set(); }
  void mark_value_set() override { mr_list.mark_value_set(); }
  std::string& ref_text() override { return mr_list.ref_text(); }
  elmx_error read_body() override { return mr_list.read_body(); }
  elmx_error convert(std::string const& text) override {
    mark_value_set();
    c_xml_list_tokeniser tokeniser(text);
    std::string token;
    while (tokeniser.get(&token)) {
      elmx_error error = mp_token_validator(mr_reader, token);
      if (error == ELMX_OK) error = mr_list.add_item(token);
      if (error != ELMX_OK) return error;
    }
    return ELMX_OK;
  }

 private:
  c_xml_reader& mr_reader;
  c_untyped_unmarshal_list_bridge& mr_list;
  const lexical_validator mp_token_validator;
};

c_untyped_validation_spec whole_list_spec(c_untyped_validation_spec const& item, lexical_validator list) {
  return {item.m_whitespace, item.mp_default, list};
}

}  // namespace

bool c_untyped_unmarshal_list_bridge::first_query() { return false; }

c_untyped_unmarshal_list_bridge::~c_untyped_unmarshal_list_bridge() = default;

elmx_error c_xml_reader::unmarshal_attribute_list_value_impl(
    c_untyped_unmarshal_list_bridge& bridge, c_untyped_validation_spec const& spec,
    elmx_error (*list_validator)(c_xml_reader&, std::string const&)) {
  c_whole_list_bridge whole(*this, bridge, spec.mp_lexical_validator);
  return unmarshal_attribute_value_impl(whole, whole_list_spec(spec, list_validator));
}

elmx_error c_xml_reader::unmarshal_element_list_value_impl(c_untyped_unmarshal_list_bridge& bridge,
                                                           c_untyped_validation_spec const& spec,
                                                           elmx_error (*list_validator)(c_xml_reader&,
                                                                                        std::string const&)) {
  c_whole_list_bridge whole(*this, bridge, spec.mp_lexical_validator);
  return unmarshal_element_value_impl(whole, whole_list_spec(spec, list_validator));
}

elmx_error c_xml_reader::unmarshal_child_element_list_impl(
    c_untyped_unmarshal_list_bridge& bridge, c_untyped_validation_spec const& spec,
    elmx_error (*list_validator)(c_xml_reader&, std::string const&), s_event_map const* map) {
  c_whole_list_bridge whole(*this, bridge, spec.mp_lexical_validator);
  return unmarshal_child_element_impl(whole, whole_list_spec(spec, list_validator), map);
}

}  // namespace lmx
