#include "isoxmllib/engine.h"

#include "isoxmllib/namespace_maps.h"

namespace binding {

void begin_document(lmx::xmlReader& reader) {
  reader.forgetElements();  // those of a document that was read before may be gone
  reader.m_code_file = code_file;
  reader.set_ns_map(ns_map_reader);
  reader.m_skip_unknown = true;
  reader.m_stack_guard.begin();
}

lmx::elmx_error read_top_tag(lmx::xmlReader& reader, char const* tag, int line, std::string* name) {
  lmx::elmx_error error;
  reader.get_element_event(&error, name);
  if (error != lmx::ELMX_OK) {
    error = reader.report_error(error, *name, code_file, line);
    if (error != lmx::ELMX_OK) return error;
  }
  if (reader.m_event == lmx::EXE_TOKEN && *name == tag &&
      reader.get_ns_id(reader.mp_local, *name) == lmx::nsid_none) {
    return lmx::ELMX_OK;
  }
  return reader.report_error(lmx::ELMX_ELEMENT_NOT_FOUND, *name, code_file, line);
}

lmx::elmx_error refuse_depth(lmx::xmlReader& reader, int line) {
  lmx::elmx_error error = reader.report_error(lmx::ELMX_BADLY_FORMED, reader.m_name, code_file, line);
  if (error == lmx::ELMX_OK && !reader.skip_rest_of_element(reader.m_name)) {
    error = reader.report_error(lmx::ELMX_BAD_END_OF_ELEMENT, reader.m_name, code_file, line);
  }
  return error;
}

lmx::elmx_error check_required(lmx::xmlReader& reader, char const* tag, int line, bool all_set) {
  if (all_set) return lmx::ELMX_OK;
  return reader.report_error(lmx::ELMX_REQUIRED_ATTRIBUTES_MISSING, tag, code_file, line);
}

bool is_member(lmx::xmlReader& reader, lmx::s_event_map const* map) {
  int const event = reader.m_event;
  constant_tables::tokenise(reader, map);
  if (reader.m_event >= lmx::EXE_FIRST_USER) return true;
  reader.m_event = event;
  return false;
}

bool report(lmx::xmlReader& reader, lmx::elmx_error code, place const& at, lmx::elmx_error* error) {
  *error = reader.report_error(code, at.tag, code_file, at.line);
  return *error == lmx::ELMX_OK;
}

bool next_event(lmx::xmlReader& reader, place const& at, lmx::elmx_error* error) {
  reader.get_known_element_event(error, &reader.m_name);
  if (reader.m_event == lmx::EXE_TOKEN) constant_tables::tokenise(reader, at.map);
  return *error == lmx::ELMX_OK || report(reader, *error, at, error);
}

bool report_unknown_top_element(lmx::xmlReader& reader, int line, lmx::elmx_error* error) {
  *error = reader.report_error(lmx::ELMX_UNEXPECTED_COMPLEX_ELEMENT, reader.m_name, code_file, line);
  return *error == lmx::ELMX_OK;
}

void choose(std::int32_t& chosen, lmx::ct_choice& held, std::int32_t alternative) {
  if (chosen != alternative) held.release();
  chosen = alternative;
}

bool check_occurs(lmx::c_check_tracker* tracker, bool is_there, char const* name, int line) {
  if (is_there) return true;
  lmx::c_check_tracker const missing(tracker, name);
  return lmx::report_check_failure(&missing, code_file, line);
}

void begin_element(lmx::c_xml_writer& writer, char const* name) {
  writer.write_start_tag(name);
  writer.conditionally_select_ns_map(ns_map_writer_1);  // the writer maps are alike: all without entries
  writer.conditionally_write_ns_attrs(false);
}

lmx::elmx_error write_choice(lmx::c_xml_writer& writer, lmx::ct_choice const& held, std::int32_t chosen,
                             std::int32_t nothing_chosen, lmx::s_event_map const* tags, int line) {
  if (chosen < 0 || chosen > nothing_chosen) {
    return writer.report_error(lmx::ELMX_BAD_CHOICE, "{anonymous compositor}", code_file, line);
  }
  return held.holds(chosen) ? held.marshal(writer, tags[chosen].mp_name) : lmx::ELMX_OK;
}

}  // namespace binding
