#include "GenLibrarySupportFiles/lmxparse/namespaces.h"

#include "GenLibrarySupportFiles/lmxparse/c_xml.h"

namespace lmx {

int c_enumerated_namespaces::find_namespace(std::string const& uri) const {
  int const* const id = m_ids.find(uri);
  return id == nullptr ? nsid_not_found : *id;
}

char const* c_enumerated_namespaces::find_namespace_from_id(int id) const {
  if (id == nsid_none) return c_xml::k_non_namespace.c_str();
  auto const place = m_places.find(id);
  return place == m_places.end() ? nullptr : m_ids.entries()[place->second].first.c_str();
}

// The id of `uri`, which becomes `id` if it is new.
int c_enumerated_namespaces::p_find_or_add(char const* uri, int id) {
  const std::size_t size = m_ids.size();
  const int found = m_ids.find_or_add(uri, id);
  if (m_ids.size() != size) m_places.emplace(id, size);
  return found;
}

int c_enumerated_namespaces::add_namespace(char const* uri) {
  const int id = p_find_or_add(uri, m_next_id);
  if (id == m_next_id) ++m_next_id;  // new: those given out before are below
  return id;
}

void c_enumerated_namespaces::add_namespace(char const* uri, int id) {
  p_find_or_add(uri, id);
  if (m_next_id <= id) m_next_id = id + 1;
}

void c_enumerated_namespaces::clear() {
  m_ids.clear();
  m_places.clear();
  m_next_id = nsid_first_user;
  p_find_or_add("http://www.w3.org/2001/XMLSchema-instance", nsid_xsi);
  p_find_or_add("http://www.w3.org/XML/1998/namespace", nsid_xml);
}

// ---- namespace_bindings ----

namespace detail {

std::string const& namespace_bindings::declaration::prefix() const {
  return scope->m_ids.entries()[index].first;
}

int const& namespace_bindings::declaration::id() const { return scope->m_ids.entries()[index].second; }

int const* namespace_bindings::find(std::string const& prefix) const {
  auto const found = m_chains.find(hash_of_name(prefix));
  if (found == m_chains.end()) return nullptr;
  for (auto place = found->second.rbegin(); place != found->second.rend(); ++place) {
    if (place->prefix() == prefix) return &place->id();
  }
  return nullptr;
}

void namespace_bindings::bind(c_xml_local const& scope) {
  const declaration last{&scope, scope.m_ids.size() - 1};
  const std::size_t hash = hash_of_name(last.prefix());
  m_order.push_back(hash);
  m_chains[hash].push_back(last);
  if (last.prefix().empty()) m_defaults.push_back(last);
}

void namespace_bindings::unbind(std::size_t count) {
  for (; count != 0; --count) {
    auto const found = m_chains.find(m_order.back());
    m_order.pop_back();
    if (found->second.back().prefix().empty()) m_defaults.pop_back();
    found->second.pop_back();
    if (found->second.empty()) m_chains.erase(found);
  }
}

}  // namespace detail

// ---- c_xml_local ----

int c_xml_local::find_namespace_id(std::string const& prefix) const {
  if (prefix.empty()) return default_namespace_id();
  if (prefix == "xml") return nsid_xml;
  int const* const id = p_has_bindings() ? mp_outermost->mp_bindings->find(prefix) : p_walk_to(prefix);
  return id == nullptr ? static_cast<int>(nsid_not_found) : *id;
}

int c_xml_local::p_default_namespace_id() const {
  int const* const id =
      p_has_bindings() ? mp_outermost->mp_bindings->find_default() : p_walk_to(std::string());
  return id == nullptr ? static_cast<int>(nsid_none) : *id;
}

int const* c_xml_local::p_walk_to(std::string const& prefix) const {
  for (c_xml_local const* scope = mp_nearest; scope != nullptr; scope = scope->p_next_outwards()) {
    if (int const* const id = scope->m_ids.find(prefix)) return id;
  }
  return nullptr;
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
  auto& items = context->m_items;
  c_repository<std::size_t> places;
  for (std::size_t i = 0; i != items.size(); ++i) places.find_or_add(items[i].m_prefix, i);
  std::vector<c_xml_local const*> scopes;
  for (c_xml_local const* scope = mp_nearest; scope != nullptr; scope = scope->p_next_outwards())
    scopes.push_back(scope);
  for (auto scope = scopes.rbegin(); scope != scopes.rend(); ++scope) {
    for (auto const& [prefix, id] : (*scope)->m_ids.entries()) {
      char const* const uri = xml.find_namespace_from_id(id);
      const std::size_t place = places.find_or_add(prefix, items.size());
      if (place == items.size()) items.push_back({prefix, std::string()});
      items[place].m_uri = uri == nullptr ? "" : uri;
    }
  }
}

void c_xml_local::add_namespace(char const* prefix, int id) {
  const std::size_t size = m_ids.size();
  m_ids.set(prefix, id);
  mp_nearest = this;
  if (mp_outermost->mp_innermost != this) p_leave_order();
  if (!mp_outermost->m_in_order) return;
  try {
    auto& bindings = mp_outermost->mp_bindings;
    if (bindings == nullptr) bindings = std::make_unique<detail::namespace_bindings>();
    if (m_ids.size() != size) bindings->bind(*this);
  } catch (...) {
    p_leave_order();  // half a binding must not be taken back
    throw;
  }
}

void c_xml_local::p_clear_declarations() {
  if (p_has_bindings()) {
    mp_outermost->mp_bindings->unbind(m_ids.size());
  } else {
    p_leave_order();
  }
  m_ids.clear();
}

void c_xml_local::p_leave_order() {
  mp_outermost->m_in_order = false;
  mp_outermost->mp_bindings.reset();
}

void c_cracked_name::p_take_name(std::string const& name) {
  m_name = name;
  const std::size_t colon = name.find(':');
  m_has_prefix = colon != std::string::npos;
  m_local_offset = m_has_prefix ? colon + 1 : 0;
  m_found = {};
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
