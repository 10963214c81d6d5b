#include "GenLibrarySupportFiles/lmxparse/namespaces.h"

#include "GenLibrarySupportFiles/lmxparse/c_xml.h"

namespace lmx {

int c_enumerated_namespaces::find_namespace(std::string const& uri) const {
  int const* const id = m_ids.find(uri);
  return id == nullptr ? nsid_not_found : *id;
}

char const* c_enumerated_namespaces::find_namespace_from_id(int id) const {
  if (id == nsid_none) return c_xml::k_non_namespace.c_str();
  for (auto const& [uri, uri_id] : m_ids.entries()) {
    if (uri_id == id) return uri.c_str();
  }
  return nullptr;
}

int c_enumerated_namespaces::add_namespace(char const* uri) {
  const int id = m_ids.find_or_add(uri, m_next_id);
  if (id == m_next_id) ++m_next_id;  // new: those given out before are below
  return id;
}

void c_enumerated_namespaces::add_namespace(char const* uri, int id) {
  m_ids.find_or_add(uri, id);
  if (m_next_id <= id) m_next_id = id + 1;
}

void c_enumerated_namespaces::clear() {
  m_ids.clear();
  m_next_id = nsid_first_user;
  m_ids.set("http://www.w3.org/2001/XMLSchema-instance", nsid_xsi);
  m_ids.set("http://www.w3.org/XML/1998/namespace", nsid_xml);
}

int c_xml_local::find_namespace_id(std::string const& prefix) const {
  if (prefix.empty()) return default_namespace_id();
  if (prefix == "xml") return nsid_xml;
  for (c_xml_local const* scope = mp_nearest; scope != nullptr; scope = scope->p_next_outwards()) {
    if (int const* const id = scope->m_ids.find(prefix)) return *id;
  }
  return nsid_not_found;
}

// This scope's own entry.
char const* c_xml_local::p_find_prefix(int id) const {
  for (auto const& [prefix, prefix_id] : m_ids.entries()) {
    if (prefix_id == id) return prefix.c_str();
  }
  return nullptr;
}

char const* c_xml_local::find_namespace_prefix(int id) const {
  if (id == nsid_xml) return "xml";
  for (c_xml_local const* scope = mp_nearest; scope != nullptr; scope = scope->p_next_outwards()) {
    if (char const* const prefix = scope->p_find_prefix(id)) return prefix;
  }
  return nullptr;
}

char const* c_xml_local::find_first_namespace_prefix(int id) const {
  if (id == nsid_xml) return "xml";
  char const* outermost = nullptr;
  for (c_xml_local const* scope = mp_nearest; scope != nullptr; scope = scope->p_next_outwards()) {
    if (char const* const prefix = scope->p_find_prefix(id)) outermost = prefix;
  }
  return outermost;
}

// Outermost first, so that inner declarations come later and override.
void c_xml_local::extract_namespace_context(c_namespace_context* context, c_xml const& xml) const {
  std::vector<c_xml_local const*> scopes;
  for (c_xml_local const* scope = mp_nearest; scope != nullptr; scope = scope->p_next_outwards())
    scopes.push_back(scope);
  for (auto scope = scopes.rbegin(); scope != scopes.rend(); ++scope) {
    for (auto const& [prefix, id] : (*scope)->m_ids.entries()) {
      char const* const uri = xml.find_namespace_from_id(id);
      auto& items = context->m_items;
      std::size_t i = 0;
      while (i != items.size() && items[i].m_prefix != prefix) ++i;
      if (i == items.size()) items.push_back({prefix, std::string()});
      items[i].m_uri = uri == nullptr ? "" : uri;
    }
  }
}

void c_xml_local::add_namespace(char const* prefix, int id) {
  m_ids.set(prefix, id);
  if (*prefix == '\0') m_default_id = id;
  mp_nearest = this;
}

void c_cracked_name::p_take_name(std::string const& name) {
  m_name = name;
  const std::size_t colon = name.find(':');
  m_has_prefix = colon != std::string::npos;
  m_local_offset = m_has_prefix ? colon + 1 : 0;
}

void c_cracked_name::p_set(c_xml_local const* local, std::string const& name) {
  p_take_name(name);
  m_id = m_has_prefix ? local->find_namespace_id(m_name.substr(0, m_local_offset - 1))
                      : local->default_namespace_id();
}

void c_cracked_name::set_for_attribute(c_xml_local const* local, std::string const& name) {
  p_take_name(name);
  m_id = m_has_prefix ? local->find_namespace_id(m_name.substr(0, m_local_offset - 1))
                      : static_cast<int>(nsid_none);
}

}  // namespace lmx
