#include "GenLibrarySupportFiles/lmxparse/c_unmarshal_helper.h"

#include <memory>
#include <utility>

namespace lmx {

c_unmarshal_helper::c_unmarshal_helper(c_xml_reader& reader)
    : mr_reader(reader), mp_name_stack(&reader.m_name_stack), m_name_offset(mp_name_stack->size()) {
  std::string const& name = reader.m_name;
  std::vector<char>& stack = reader.m_name_stack;
  reader.m_name_offsets.push_back(m_name_offset);
  for (char const c : name) stack.push_back(c);  // few, and a call costs more
  stack.push_back('\0');
}

c_unmarshal_helper::~c_unmarshal_helper() {
  mr_reader.m_name_offsets.pop_back();
  mp_name_stack->resize(m_name_offset);
}

bool c_unmarshal_helper::unmarshal_attributes(elmx_error*) { return false; }

elmx_error c_unmarshal_helper::unmarshal_attributes_check() { return ELMX_OK; }

bool c_unmarshal_helper::unmarshal_simple_body(elmx_error*) {
  LMX_ASSERT_TEXT(false, "unmarshal_simple_body is overridden");
  return false;
}

bool c_unmarshal_helper::unmarshal_complex_body(elmx_error*) {
  LMX_ASSERT_TEXT(false, "unmarshal_complex_body is overridden");
  return false;
}

bool c_unmarshal_helper::is_body_skipped() { return false; }

bool c_unmarshal_helper::is_skipping_allowed() { return true; }

elmx_error c_unmarshal_helper::unmarshal_empty_content(char const* file, int line) {
  return p_read_content(file, line, &c_unmarshal_helper::unmarshal_empty_content_case);
}

elmx_error c_unmarshal_helper::unmarshal_simple_content(char const* file, int line) {
  return p_read_content(file, line, &c_unmarshal_helper::unmarshal_simple_content_case);
}

elmx_error c_unmarshal_helper::unmarshal_complex_content(char const* file, int line) {
  return p_read_content(file, line, &c_unmarshal_helper::unmarshal_complex_content_case);
}

elmx_error c_unmarshal_helper::p_read_content(char const* file, int line,
                                              elmx_error (c_unmarshal_helper::*read_case)()) {
  m_code_file = file;
  m_code_line = line;
  const elmx_error error = unmarshal_all_attributes();
  return error != ELMX_OK ? error : (this->*read_case)();
}

elmx_error c_unmarshal_helper::p_report(elmx_error code, std::string const& item) {
  return mr_reader.report_error(code, item, m_code_file, m_code_line);
}

bool c_unmarshal_helper::p_is_element_event() const {
  const int event = mr_reader.m_event;
  return event == EXE_UNKNOWN || event == EXE_TOKEN || event >= EXE_FIRST_USER;
}

// ---- Attributes ----

elmx_error c_unmarshal_helper::unmarshal_all_attributes() {
  if (mr_reader.take_plain_attributes_end()) return unmarshal_attributes_check();
  elmx_error error = ELMX_OK;
  while (mr_reader.get_attribute_event(nullptr, &error, &mr_reader.m_name)) {
    if (error != ELMX_OK) {
      error = p_report(error, mr_reader.m_name);
      if (error != ELMX_OK) return error;
      if (mr_reader.attributes_cut_off()) break;  // tolerated, but there is nothing more to come
      continue;
    }
    const bool taken = unmarshal_attributes(&error);
    if (error != ELMX_OK) return error;
    if (taken) continue;
    error = p_handle_unknown_attribute();
    if (error != ELMX_OK) return error;
  }
  return unmarshal_attributes_check();
}

// An attribute of the schema instance namespace is never unknown.
elmx_error c_unmarshal_helper::p_handle_unknown_attribute() {
  std::string const& name = mr_reader.m_name;
  elmx_error error = ELMX_OK;
  if (!mr_reader.is_xsi_attribute(mr_reader.mp_local, name)) {
    if (mp_any_attributes != nullptr) return p_keep_any_attribute();
    if (mr_reader.m_skip_unknown) {
      error = mr_reader.on_unknown_attribute(name, *mp_name_stack, m_code_file, m_code_line);
      if (error != ELMX_OK) mr_reader.capture_error(error, name, m_code_file, m_code_line);
    } else {
      error = p_report(ELMX_UNEXPECTED_ATTRIBUTE, name);
    }
  }
  if (error == ELMX_OK) mr_reader.skip_attribute_value();
  return error;
}

elmx_error c_unmarshal_helper::p_keep_any_attribute() {
  std::string const& name = mr_reader.m_name;
  std::string value, uri;
  if (!mr_reader.get_attribute_value(&value, EXWS_PRESERVE))
    return p_report(ELMX_UNABLE_TO_READ_ATTRIBUTE_VALUE, name);
  mr_reader.get_namespace(name, &uri);
  auto info = std::make_unique<c_any_info>(std::move(uri), name, std::move(value));
  mp_any_attributes->push_back(info.get());
  info.release();  // to the list's owner, now that it is listed
  return ELMX_OK;
}

// ---- Content ----

elmx_error c_unmarshal_helper::p_next_event() {
  elmx_error error;
  mr_reader.get_element_event(&error, &mr_reader.m_name);
  return error == ELMX_OK ? ELMX_OK : p_report(error, p_element_name());
}

elmx_error c_unmarshal_helper::p_skip_element() {
  if (mr_reader.skip_rest_of_element(mr_reader.m_name)) return ELMX_OK;
  return p_report(ELMX_BAD_END_OF_ELEMENT, mr_reader.m_name);
}

elmx_error c_unmarshal_helper::p_check_end_of_element() {
  if (mr_reader.m_event == EXE_ELEMENT_END && mr_reader.m_name == p_element_name()) return ELMX_OK;
  return p_report(ELMX_BAD_END_OF_ELEMENT, p_element_name());
}

elmx_error c_unmarshal_helper::verify_element_end() {
  if (mr_reader.m_event == EXE_ELEMENT_END) return ELMX_OK;
  const elmx_error error = p_next_event();
  return error != ELMX_OK ? error : p_check_end_of_element();
}

// Where a table of known elements is selected, an unknown child has been skipped before it could be seen
// here, and the end that follows it is EXE_SKIPPED_TO_END. That is refused on purpose: an element without
// content may not hold even an unknown child, while one with children may.
elmx_error c_unmarshal_helper::unmarshal_empty_content_case() {
  if (mr_reader.m_event == EXE_ELEMENT_END) return ELMX_OK;
  const c_xml_reader_local scope(mr_reader);
  elmx_error error = p_next_event();
  while (error == ELMX_OK && mr_reader.m_skip_unknown && p_is_element_event()) {
    error = p_skip_element();
    if (error == ELMX_OK) error = p_next_event();
  }
  return error != ELMX_OK ? error : p_check_end_of_element();
}

elmx_error c_unmarshal_helper::unmarshal_simple_content_case() {
  mr_reader.m_name = p_element_name();  // the attributes have used it
  if (is_body_skipped()) {
    if (mr_reader.m_event == EXE_ELEMENT_END || mr_reader.is_element_end_tag(mr_reader.m_name))
      return ELMX_OK;
    return p_report(ELMX_BAD_END_OF_ELEMENT, mr_reader.m_name);
  }
  elmx_error error = ELMX_OK;
  unmarshal_simple_body(&error);
  return error;
}

elmx_error c_unmarshal_helper::unmarshal_complex_content_case() {
  const c_xml_reader_local scope(mr_reader);
  elmx_error error = ELMX_OK;
  if (mr_reader.m_event == EXE_ELEMENT_END) {
    if (m_empty_allowed) return ELMX_OK;
  } else {
    error = p_next_event();
    if (error != ELMX_OK) return error;
  }
  if (is_body_skipped()) return verify_element_end();
  if (mr_reader.m_event == EXE_ELEMENT_END) {
    error = m_empty_allowed ? ELMX_OK : p_report(ELMX_UNEXPECTED_EMPTY_ELEMENT, p_element_name());
    return error != ELMX_OK ? error : p_check_end_of_element();
  }
  unmarshal_complex_body(&error);
  if (error != ELMX_OK) return error;

  // What the body left over, unknown or out of place, is dropped.
  const bool may_skip =
      mr_reader.m_skip_unknown && mr_reader.m_event != EXE_SKIPPED_TO_END && is_skipping_allowed();
  while (may_skip && p_is_element_event()) {
    const elmx_error veto =
        mr_reader.on_unknown_element(mr_reader.m_name, *mp_name_stack, m_code_file, m_code_line);
    if (veto != ELMX_OK) return mr_reader.capture_error(veto, mr_reader.m_name, m_code_file, m_code_line);
    error = p_skip_element();
    if (error == ELMX_OK) error = p_next_event();
    if (error != ELMX_OK) return error;
  }
  if (mr_reader.m_event == EXE_SKIPPED_TO_END) mr_reader.m_event = EXE_ELEMENT_END;
  return p_check_end_of_element();
}

}  // namespace lmx
