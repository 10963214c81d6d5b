#include "GenLibrarySupportFiles/lmxparse/namespaces.h"

namespace lmx {

int c_enumerated_namespaces::find_namespace(std::string const& uri) const {
  int const* const id = m_ids.find(uri);
  return id == nullptr ? nsid_not_found : *id;
}

int c_enumerated_namespaces::add_namespace(char const* uri) {
  const int id = find_namespace(uri);
  if (id != nsid_not_found) return id;
  m_ids.set(uri, m_next_id);
  return m_next_id++;
}

void c_enumerated_namespaces::add_namespace(char const* uri, int id) {
  if (find_namespace(uri) == nsid_not_found) m_ids.set(uri, id);
  if (m_next_id <= id) m_next_id = id + 1;
}

void c_enumerated_namespaces::clear() {
  m_ids.clear();
  m_next_id = nsid_first_user;
  m_ids.set("http://www.w3.org/2001/XMLSchema-instance", nsid_xsi);
  m_ids.set("http://www.w3.org/XML/1998/namespace", nsid_xml);
}

int c_xml_local::find_namespace_id(std::string const& prefix) const {
  if (prefix == "xml") return nsid_xml;
  for (c_xml_local const* scope = mp_nearest; scope != nullptr;) {
    if (int const* const id = scope->m_ids.find(prefix)) return *id;
    scope = scope->mp_parent == nullptr ? nullptr : scope->mp_parent->mp_nearest;
  }
  return prefix.empty() ? nsid_none : nsid_not_found;
}

void c_xml_local::add_namespace(char const* prefix, int id) {
  m_ids.set(prefix, id);
  mp_nearest = this;
}

void c_cracked_name::set(c_xml_local const* local, std::string const& name) {
  m_name = name;
  const std::size_t colon = name.find(':');
  m_has_prefix = colon != std::string::npos;
  m_local_offset = m_has_prefix ? colon + 1 : 0;
  m_id = local->find_namespace_id(m_has_prefix ? name.substr(0, colon) : std::string());
}

void c_cracked_name::set_for_attribute(c_xml_local const* local, std::string const& name) {
  set(local, name);
  if (!m_has_prefix) m_id = nsid_none;
}

}  // namespace lmx
