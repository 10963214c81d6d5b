// A list of named values that keeps the order of entry. Documents choose how many names there are, so a
// hash index joins in once a list is longer than a look at each entry is worth.
#pragma once

#include <cstddef>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace lmx {

/// How a repository keeps its values: as they are.
template <class T>
struct c_rep_ops {
  using stored = T;
};

/// Text values are copied and owned by the repository.
template <>
struct c_rep_ops<char const*> {
  using stored = std::string;
};

template <class T, class Ops = c_rep_ops<T>>
class c_repository {
 public:
  using stored = typename Ops::stored;
  using entry = std::pair<std::string, stored>;

  virtual ~c_repository() = default;

  /// The value under `name`, borrowed until the next change; null when there is none.
  stored const* find(std::string const& name) const {
    std::size_t const index = index_of(name);
    return index == m_entries.size() ? nullptr : &m_entries[index].second;
  }
  /// Enters `value`, or replaces the value that stands under `name`.
  void set(std::string const& name, T const& value) {
    std::size_t const index = index_of(name);
    if (index != m_entries.size()) {
      m_entries[index].second = value;
      return;
    }
    m_entries.emplace_back(name, value);
    if (m_entries.size() > indexed_from) add_to_index();
  }
  void clear() {
    m_entries.clear();
    m_index.clear();
  }
  bool empty() const { return m_entries.empty(); }
  std::size_t size() const { return m_entries.size(); }
  /// In order of entry; the first under a name keeps its place.
  std::vector<entry> const& entries() const { return m_entries; }

 private:
  static constexpr std::size_t indexed_from = 16;

  std::size_t index_of(std::string const& name) const {
    if (m_entries.size() > indexed_from) {
      auto const hit = m_index.find(name);
      return hit == m_index.end() ? m_entries.size() : hit->second;
    }
    std::size_t index = 0;
    while (index != m_entries.size() && m_entries[index].first != name) ++index;
    return index;
  }
  void add_to_index() {
    for (std::size_t index = m_index.size(); index != m_entries.size(); ++index) {
      m_index.emplace(m_entries[index].first, index);
    }
  }

  std::vector<entry> m_entries;
  std::unordered_map<std::string, std::size_t> m_index;
};

}  // namespace lmx
