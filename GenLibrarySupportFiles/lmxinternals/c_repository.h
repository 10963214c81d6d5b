// A list of named values that keeps the order of entry. Documents choose how many names there are, so a
// hash index joins in once a list is longer than a look at each entry is worth. With a million names nearly
// all the time is waiting for memory, so the index holds neither names nor nodes: a place in it is a hash and
// an entry's number, and a lookup meets one place and one entry.
#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "GenLibrarySupportFiles/lmxinternals/api.h"

namespace lmx {

namespace detail {

/// A hash of a name that a document has chosen. It differs from process to process, so that nobody can choose
/// names that share one and make each lookup a walk over all of them.
ISOXML_API std::size_t hash_of_name(std::string const& name);

}  // namespace detail

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
    std::size_t const index =
        is_indexed() ? m_places[place_of(name, detail::hash_of_name(name))].index() : look_at_each(name);
    return index < m_entries.size() ? &m_entries[index].second : nullptr;
  }
  /// The value under `name`, entered now if there is none yet; borrowed until the next change.
  stored const& find_or_add(std::string const& name, T const& value) {
    return m_entries[add(name, value).first].second;
  }
  /// Enters `value`, or replaces the value that stands under `name`.
  void set(std::string const& name, T const& value) {
    auto const [index, is_new] = add(name, value);
    if (!is_new) m_entries[index].second = value;
  }
  void clear() {
    m_entries.clear();
    m_places.clear();
  }
  bool empty() const { return m_entries.empty(); }
  std::size_t size() const { return m_entries.size(); }
  /// In order of entry; the first under a name keeps its place.
  std::vector<entry> const& entries() const { return m_entries; }

 private:
  // Where the hash index has a name: at its hash or, where others were first, at the next free place behind.
  struct place {
    std::size_t hash = 0;
    std::size_t number = 0;  // of the entry, counted from 1; 0 is free

    bool is_free() const { return number == 0; }
    std::size_t index() const { return number - 1; }  // of no entry for a free one
  };

  static constexpr std::size_t indexed_from = 16;

  bool is_indexed() const { return m_entries.size() > indexed_from; }

  std::size_t look_at_each(std::string const& name) const {
    std::size_t index = 0;
    while (index != m_entries.size() && m_entries[index].first != name) ++index;
    return index;
  }

  // Where the index has `name`, or the free place where it would be.
  std::size_t place_of(std::string const& name, std::size_t hash) const {
    std::size_t const mask = m_places.size() - 1;
    std::size_t at = hash & mask;
    while (!m_places[at].is_free() &&
           (m_places[at].hash != hash || m_entries[m_places[at].index()].first != name)) {
      at = (at + 1) & mask;
    }
    return at;
  }

  // The index of the entry under `name`, and whether it was entered now, with `value`. Nothing changes when
  // memory runs out.
  std::pair<std::size_t, bool> add(std::string const& name, T const& value) {
    std::size_t const next = m_entries.size();
    if (next < indexed_from) {
      std::size_t const index = look_at_each(name);
      if (index == next) m_entries.emplace_back(name, value);
      return {index, index == next};
    }
    if (m_places.size() < 2 * (next + 1)) make_places();
    std::size_t const hash = detail::hash_of_name(name);
    place& found = m_places[place_of(name, hash)];
    if (!found.is_free()) return {found.index(), false};
    m_entries.emplace_back(name, value);
    found.hash = hash;
    found.number = next + 1;
    return {next, true};
  }

  // Makes the index, or one of twice its size. Names are hashed once only.
  void make_places() {
    std::vector<place> places(m_places.empty() ? 4 * indexed_from : 2 * m_places.size());
    std::size_t const mask = places.size() - 1;
    auto const put = [&](std::size_t hash, std::size_t number) {
      std::size_t at = hash & mask;
      while (!places[at].is_free()) at = (at + 1) & mask;
      places[at].hash = hash;
      places[at].number = number;
    };
    if (m_places.empty()) {
      for (std::size_t index = 0; index != m_entries.size(); ++index)
        put(detail::hash_of_name(m_entries[index].first), index + 1);
    } else {
      for (place const& known : m_places) {
        if (!known.is_free()) put(known.hash, known.number);
      }
    }
    m_places = std::move(places);
  }

  std::vector<entry> m_entries;
  std::vector<place> m_places;  // the hash index, or none: a power of two, at least half of them free
};

}  // namespace lmx
