// Names in the event tables are matched by local name and a small namespace id, not by URI. Here: how a URI
// gets its id, how prefixes resolve through nested scopes, and how a name is cracked into its parts.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "GenLibrarySupportFiles/lmxinternals/api.h"
#include "GenLibrarySupportFiles/lmxinternals/c_repository.h"

namespace binding {

class constant_tables;

}  // namespace binding

namespace lmx {

/// The namespace ids that are fixed. A document's own URIs count from `nsid_first_user` up.
enum elxp_namespace_id : int {
  nsid_not_found = 0,  ///< A prefix that no declaration binds.
  nsid_none = 1,       ///< No namespace.
  nsid_xml = 2,        ///< The prefix "xml".
  nsid_xsi = 5,        ///< XML Schema instance.
  nsid_first_user = 1000,
};

/// One namespace that a schema binds; a table ends with a null URI.
struct s_ns_map {
  int m_id;
  char const* mp_prefix;
  char const* mp_uri;
};

/// One id for each distinct URI of a document.
class ISOXML_API c_enumerated_namespaces {
 public:
  c_enumerated_namespaces() { clear(); }

  /// The id of `uri`, 0 when it has none.
  int find_namespace(std::string const& uri) const;
  /// The URI of `id`: the empty text for 1, null for an id that was not given out. Borrowed until `clear`.
  char const* find_namespace_from_id(int id) const;
  /// The id of `uri`, given out now if need be.
  int add_namespace(char const* uri);
  /// Enters `uri` under `id`. A URI already there keeps its id; later ids are above `id` either way.
  void add_namespace(char const* uri, int id);
  /// Forgets all but the two standard URIs.
  void clear();

 protected:
  int m_next_id = nsid_first_user;  ///< The id that the next new URI gets.

 private:
  int p_find_or_add(char const* uri, int id);

  c_repository<int> m_ids;
  std::unordered_map<int, std::size_t> m_places;  // of the first URI of each id
};

/// One prefix and what it stands for.
struct ISOXML_API s_namesapace_context_item {
  std::string m_prefix;
  std::string m_uri;
};

/// The prefixes in force at one place of a document, in the order of their first appearance.
struct ISOXML_API c_namespace_context {
  std::vector<s_namesapace_context_item> m_items;
};

/// One attribute or element that the schema leaves open, as text.
struct ISOXML_API c_any_info {
  c_any_info() = default;
  /// With room for the prefixes of a usual document.
  c_any_info(std::string uri, std::string name, std::string value)
      : m_namespace(std::move(uri)), m_name(std::move(name)), m_value(std::move(value)) {
    m_context.m_items.reserve(6);
  }

  std::string m_namespace;
  std::string m_name;
  std::string m_value;
  c_namespace_context m_context;
};

class c_xml;
class c_xml_local;

namespace detail {

/// Where each prefix was declared last in scopes that nest in one another: one look instead of a walk through
/// all of them, of which a document chooses the number. Names stay in the scopes; here are hashes of them.
class namespace_bindings {
 public:
  /// What `prefix` stands for in the innermost scope; null when nothing binds it. Borrowed until anything
  /// changes.
  int const* find(std::string const& prefix) const;
  /// The same for the empty prefix.
  int const* find_default() const { return m_defaults.empty() ? nullptr : &m_defaults.back().id(); }
  /// Takes in the last declaration of the innermost scope, which has to be a new one there.
  void bind(c_xml_local const& scope);
  /// Takes the last `count` declarations back.
  void unbind(std::size_t count);

 private:
  /// A declaration: the entry of a scope.
  struct declaration {
    c_xml_local const* scope;
    std::size_t index;

    std::string const& prefix() const;
    int const& id() const;
  };
  using chain = std::vector<declaration>;  // of one hash, the innermost last

  std::unordered_map<std::size_t, chain> m_chains;
  chain m_defaults;                  // those of the empty prefix
  std::vector<std::size_t> m_order;  // the hashes, as they were bound
};

}  // namespace detail

/// One scope of prefix declarations. Scopes nest on the stack of the code that reads elements.
class ISOXML_API c_xml_local {
 public:
  c_xml_local() = default;
  /// A scope inside `parent`, which must outlive it.
  explicit c_xml_local(c_xml_local* parent)
      : mp_parent(parent),
        mp_nearest(parent == nullptr ? nullptr : parent->mp_nearest),
        mp_outermost(parent == nullptr ? this : parent->mp_outermost) {
    if (parent != nullptr && mp_outermost->mp_innermost != parent) p_leave_order();
    mp_outermost->mp_innermost = this;
  }
  ~c_xml_local() {
    if (!m_ids.empty()) clear_declarations();
    if (mp_outermost->mp_innermost != this) p_leave_order();
    mp_outermost->mp_innermost = mp_parent;
  }
  c_xml_local(c_xml_local const&) = delete;
  c_xml_local& operator=(c_xml_local const&) = delete;

  /// The id that `prefix` stands for here; "" is the default namespace. Unbound: 1 for "", else 0.
  int find_namespace_id(std::string const& prefix) const;
  /// The prefix that stands for `id`, from this scope outwards; null when none does. Borrowed until the scope
  /// changes.
  char const* find_namespace_prefix(int id) const;
  /// The same, but the outermost match.
  char const* find_first_namespace_prefix(int id) const;
  /// Adds all prefixes in force to `*context`, with their URIs from `xml`. Inner declarations override outer
  /// ones.
  void extract_namespace_context(c_namespace_context* context, c_xml const& xml) const;
  /// Binds `prefix` in this scope.
  void add_namespace(char const* prefix, int id);
  /// The id of names without a prefix: that of the default namespace, 1 when there is none.
  int default_namespace_id() const {
    return mp_nearest == nullptr ? static_cast<int>(nsid_none) : p_default_namespace_id();
  }
  /// Forgets this scope's own declarations.
  void clear_declarations() {
    if (!m_ids.empty()) p_clear_declarations();
  }

 protected:
  c_xml_local* mp_parent = nullptr;
  c_xml_local* mp_nearest = nullptr;  // the nearest scope, from this one outwards, that has had declarations

 private:
  c_xml_local const* p_next_outwards() const {
    return mp_parent == nullptr ? nullptr : mp_parent->mp_nearest;
  }
  char const* p_find_prefix(int id) const;
  int const* p_walk_to(std::string const& prefix) const;
  int p_default_namespace_id() const;
  void p_clear_declarations();
  // True while the outermost scope's bindings tell what holds in this one.
  bool p_has_bindings() const {
    return mp_outermost->mp_innermost == this && mp_outermost->m_in_order &&
           mp_outermost->mp_bindings != nullptr;
  }
  void p_leave_order();

  friend class detail::namespace_bindings;

  c_repository<int> m_ids;
  c_xml_local* const mp_outermost = this;
  // Of the outermost scope alone. Readers open and close scopes like brackets, and only the innermost
  // declares anything; where a host does otherwise, the scopes are walked through from then on.
  c_xml_local* mp_innermost = this;
  bool m_in_order = true;
  std::unique_ptr<detail::namespace_bindings> mp_bindings;
};

namespace detail {

/// `a == b` for names of elements: most have three letters, and then a call costs more than the comparison.
inline bool are_same_name(std::string const& a, std::string const& b) {
  if (a.size() != b.size()) return false;
  return a.size() == 3 ? a[0] == b[0] && a[1] == b[1] && a[2] == b[2] : a == b;
}

}  // namespace detail

struct s_event_map;
struct s_known_elements;

namespace detail {

/// What has been found for a name in tables that stand where they are as long as the library does: siblings
/// come in long runs. A host's table is looked through each time, since another may stand at its address by
/// then.
struct found_name {
  s_known_elements const* known_in = nullptr;  ///< A table that has the name.
  s_event_map const* tokenised_in = nullptr;   ///< The table that gave it `event`.
  int event = 0;
};

}  // namespace detail

/// A name taken apart at its first colon.
class ISOXML_API c_cracked_name {
 public:
  /// Cracks an element's name as it stands in the scope `local`.
  void set(c_xml_local const* local, std::string const& name) {
    if (m_has_prefix || !detail::are_same_name(name, m_name) || m_id != local->default_namespace_id())
      p_set(local, name);
  }
  /// The same for an attribute: without a prefix it is in no namespace.
  void set_for_attribute(c_xml_local const* local, std::string const& name);

  /// The id; a name without a prefix and without a default namespace is in none.
  int get_element_ns_id() const { return m_id != nsid_not_found || m_has_prefix ? m_id : nsid_none; }
  /// The id of the prefix; of the default namespace, or 1 for an attribute, where there is none.
  int ns_id() const { return m_id; }
  bool has_prefix() const { return m_has_prefix; }
  std::string const& name() const { return m_name; }
  /// The local name: its first byte and its length. Valid until the next `set`.
  char const* local_name() const { return m_name.c_str() + m_local_offset; }
  std::size_t local_length() const { return m_name.size() - m_local_offset; }
  /// What precedes the first colon; empty without one.
  std::string prefix() const { return m_name.substr(0, m_has_prefix ? m_local_offset - 1 : 0); }

 private:
  friend class c_xml_reader;
  friend class binding::constant_tables;

  void p_set(c_xml_local const* local, std::string const& name);
  void p_take_name(std::string const& name);

  std::string m_name;
  bool m_has_prefix = false;
  int m_id = nsid_none;
  std::size_t m_local_offset = 0;
  detail::found_name m_found;
};

}  // namespace lmx
