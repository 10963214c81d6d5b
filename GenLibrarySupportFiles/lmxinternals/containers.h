// The fields of the element classes: a simple value with a flag, a list of simple values, one owned child or
// a list of owned children. Children are kept by pointer, so an element stays where it is while siblings
// are added, and whoever was handed its address can keep it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <new>
#include <string>
#include <utility>
#include <vector>

#include "GenLibrarySupportFiles/lmxinternals/api.h"
#include "GenLibrarySupportFiles/lmxparse/error_codes.h"

namespace lmx {

/// Holds a value that is never mixed with markup.
template <class T>
class ct_non_mixed {
 public:
  T& ref_value() { return m_value; }
  T const& value() const { return m_value; }
  /// Only a value of mixed content has a text of its own: stops the process.
  std::string& ref_text() {
    LMX_ASSERT_TEXT(false, "ct_non_mixed has no text");
    static_cast<void>(m_value);
    throw;  // never reached
  }

 private:
  T m_value{};
};

namespace detail {

/// A value and whether it was set: what required and optional fields have in common.
template <class T, class C>
class simple_field {
 public:
  simple_field() = default;
  simple_field(simple_field const&) = default;
  /// Leaves a field behind that was never set.
  simple_field(simple_field&& other) noexcept
      : m_holder(std::exchange(other.m_holder, C())), m_is_set(std::exchange(other.m_is_set, false)) {}
  simple_field& operator=(simple_field const&) = default;
  simple_field& operator=(simple_field&& other) noexcept {
    simple_field taken(std::move(other));
    std::swap(m_holder, taken.m_holder);
    std::swap(m_is_set, taken.m_is_set);
    return *this;
  }
  ~simple_field() = default;

  /// Stores the value and sets the flag; nothing is validated. Returns 0.
  elmx_error set(T const& value) {
    m_holder.ref_value() = value;
    m_is_set = true;
    return ELMX_OK;
  }
  /// The value; default-constructed until it is set.
  T const& get() const { return m_holder.value(); }
  bool is_set() const { return m_is_set; }
  /// Clears the flag alone.
  void unset() { m_is_set = false; }

  void mark_value_set() { m_is_set = true; }
  T& ref_value() { return m_holder.ref_value(); }
  std::string& ref_text() { return m_holder.ref_text(); }

 private:
  C m_holder;
  bool m_is_set = false;
};

}  // namespace detail

/// A field that the schema requires. `V` is unused.
template <class T, class V = T, class C = ct_non_mixed<T>>
class ct_simple_pod_single : public detail::simple_field<T, C> {};

/// A field that may be left out. `V` is unused.
template <class T, class V = T, class C = ct_non_mixed<T>>
class ct_simple_pod_optional : public detail::simple_field<T, C> {};

/// Fields that few elements of a class have: one pointer for all of them, which is null until one is set. `T`
/// is a struct of fields.
template <class T>
class ct_rare {
 public:
  ct_rare() = default;
  ct_rare(ct_rare const& other) : p(other.p ? std::make_unique<T>(*other.p) : nullptr) {}
  ct_rare(ct_rare&&) noexcept = default;
  ct_rare& operator=(ct_rare const& other) {
    p = other.p ? std::make_unique<T>(*other.p) : nullptr;
    return *this;
  }
  ct_rare& operator=(ct_rare&&) noexcept = default;

  bool is_there() const { return p != nullptr; }
  /// The fields, null for an element that has none set.
  T const* find() const { return p.get(); }
  /// The fields; of an element that has none set, fields that are not set.
  T const& get() const {
    static T const none{};
    return p ? *p : none;
  }
  T& get_or_create() {
    if (!p) p = std::make_unique<T>();
    return *p;
  }

 private:
  std::unique_ptr<T> p;
};

/// Frees an owned object.
template <class T>
struct ct_happy_ptr_deleter {
  void operator()(T* p) const { delete p; }
};

/// A list of owned objects, each at an address of its own.
template <class T, class Vector = std::vector<T*>, class Deleter = ct_happy_ptr_deleter<T>>
class ct_non_pod_container {
  using owner = std::unique_ptr<T>;

 public:
  ct_non_pod_container() = default;
  ct_non_pod_container(ct_non_pod_container const& other) {
    m_values.reserve(other.size());
    for (owner const& value : other.m_values) m_values.push_back(std::make_unique<T>(*value));
  }
  /// Leaves an empty list behind.
  ct_non_pod_container(ct_non_pod_container&&) noexcept = default;
  ct_non_pod_container& operator=(ct_non_pod_container const& other) {
    ct_non_pod_container copy(other);
    m_values.swap(copy.m_values);
    return *this;
  }
  ct_non_pod_container& operator=(ct_non_pod_container&& other) noexcept {
    ct_non_pod_container taken(std::move(other));
    m_values.swap(taken.m_values);
    return *this;
  }

  std::size_t size() const { return m_values.size(); }
  bool empty() const { return m_values.empty(); }
  T& operator[](std::size_t index) { return *m_values[index]; }
  T const& operator[](std::size_t index) const { return *m_values[index]; }
  T& back() { return *m_values.back(); }
  void clear() { m_values.clear(); }
  /// Adds a default object, or takes ownership of `value`. The object is owned before the list grows, so
  /// nothing is lost when that fails.
  T& append() { return append(std::make_unique<T>()); }
  T& append(T* value) { return append(owner(value)); }
  T& insert(std::size_t index) { return insert(index, std::make_unique<T>()); }
  T& insert(std::size_t index, T* value) { return insert(index, owner(value)); }
  /// Replaces the object at `index`, taking ownership.
  void assign(std::size_t index, T* value) { m_values[index].reset(value); }
  void erase(std::size_t index) { m_values.erase(m_values.begin() + static_cast<std::ptrdiff_t>(index)); }

 private:
  T& append(owner value) {
    m_values.push_back(std::move(value));
    return *m_values.back();
  }
  T& insert(std::size_t index, owner value) {
    return **m_values.insert(m_values.begin() + static_cast<std::ptrdiff_t>(index), std::move(value));
  }

  std::vector<owner> m_values;
};

/// A simple child element that may come many times. `V` and `C` are unused.
template <class T, class V = T, class C = ct_non_mixed<T>,
          class P = ct_non_pod_container<T, std::vector<T*>, ct_happy_ptr_deleter<T>>>
class ct_simple_pod_multi : public P {
 public:
  bool is_set() const { return !this->empty(); }
  /// Adds the empty value that is about to be read.
  void mark_value_set() { this->append(); }
  T& ref_value() { return this->back(); }
  std::string& ref_text() { return ct_non_mixed<T>().ref_text(); }
};

/// A child that may be absent. Copies are deep, by the child's `clone`.
template <class T>
class ct_complex_optional {
 public:
  ct_complex_optional() = default;
  ct_complex_optional(ct_complex_optional const& other) : p(other.p ? other.p->clone() : nullptr) {}
  ct_complex_optional(ct_complex_optional&&) noexcept = default;
  ct_complex_optional& operator=(ct_complex_optional const& other) {
    p.reset(other.p ? other.p->clone() : nullptr);
    return *this;
  }
  ct_complex_optional& operator=(ct_complex_optional&&) noexcept = default;

  bool is_set() const { return p != nullptr; }
  /// The child, which must be there.
  T const& get() const {
    LMX_ASSERT(p);
    return *p;
  }
  /// The child, created when absent.
  T& get_or_create() {
    if (!p) p = std::make_unique<T>();
    return *p;
  }
  /// Takes ownership; null empties the field.
  void assign(T* value) { p.reset(value); }
  void unset() { p.reset(); }

 protected:
  std::unique_ptr<T> p;  ///< The child; null when absent.
};

namespace detail {

/// Objects of one type that are made one after the other and mostly go together, in blocks of a growing
/// number of places. An object stays where it was made; its place serves another one when it is gone. Objects
/// that are still there at the end, or when all is cleared, are the owner's to destroy before.
template <class T>
class block_storage {
 public:
  block_storage() = default;
  block_storage(block_storage&& other) noexcept : mp_last(std::exchange(other.mp_last, nullptr)) {}
  block_storage& operator=(block_storage&& other) noexcept {
    std::swap(mp_last, other.mp_last);
    return *this;
  }
  ~block_storage() { clear(); }

  T* make() {
    if (mp_last == nullptr || mp_last->used == mp_last->capacity) {
      if (mp_last != nullptr && mp_last->p_freed != nullptr) return make_in_freed_place();
      add_block();
    }
    T* const made = ::new (place(mp_last->used)) T();
    ++mp_last->used;
    return made;
  }
  /// Takes back the place of an object that is gone.
  void free_place(void* place_of_it) noexcept {
    std::memcpy(place_of_it, &mp_last->p_freed, sizeof(void*));
    mp_last->p_freed = place_of_it;
  }
  void clear() {
    while (mp_last != nullptr) ::operator delete(std::exchange(mp_last, mp_last->p_previous));
  }

 private:
  struct block {
    block* p_previous;
    void* p_freed;  // of the last block: the first free place that was used before; it begins with the next
    std::uint32_t capacity;
    std::uint32_t used;
  };

  static constexpr std::uint32_t most_places = 64;
  static constexpr std::size_t header_size = (sizeof(block) + alignof(T) - 1) / alignof(T) * alignof(T);
  static constexpr std::size_t place_size = sizeof(T) < sizeof(void*) ? sizeof(void*) : sizeof(T);

  void* place(std::size_t index) {
    return reinterpret_cast<unsigned char*>(mp_last) + header_size + index * place_size;
  }

  // Only when there is no other free place, so there is no list of them to hand on.
  void add_block() {
    static_assert(alignof(T) <= __STDCPP_DEFAULT_NEW_ALIGNMENT__ && place_size % alignof(T) == 0, "");
    std::uint32_t const capacity = mp_last == nullptr                ? 1
                                   : mp_last->capacity < most_places ? 2 * mp_last->capacity
                                                                     : most_places;
    mp_last =
        ::new (::operator new(header_size + capacity * place_size)) block{mp_last, nullptr, capacity, 0};
  }

  T* make_in_freed_place() {
    void* const freed = mp_last->p_freed;
    std::memcpy(&mp_last->p_freed, freed, sizeof(void*));
    try {
      return ::new (freed) T();
    } catch (...) {
      free_place(freed);
      throw;
    }
  }

  block* mp_last = nullptr;
};

/// A child that is owned by a list, on its own or within the list's blocks.
template <class T>
class listed_child {
 public:
  listed_child(T* child, bool is_in_block)
      : m_bits(reinterpret_cast<std::uintptr_t>(child) | (is_in_block ? 1u : 0u)) {
    static_assert(alignof(T) > 1, "the lowest bit of the address is free");
  }
  T& get() const { return *reinterpret_cast<T*>(m_bits & ~std::uintptr_t{1}); }
  bool is_in_block() const { return (m_bits & 1) != 0; }
  /// Ends its life. A place in a block stays.
  void destroy() const {
    if (is_in_block()) {
      get().~T();
    } else {
      delete &get();
    }
  }

 private:
  std::uintptr_t m_bits;
};

}  // namespace detail

/// Children in document order, each at an address of its own. Copies are deep, by each child's `clone`.
template <class T>
class ct_complex_multi {
 public:
  ct_complex_multi() = default;
  ct_complex_multi(ct_complex_multi const& other) : ct_complex_multi() {
    m_values.reserve(other.size());
    for (std::size_t i = 0; i != other.size(); ++i) append(std::unique_ptr<T>(other.get(i).clone()));
  }
  ct_complex_multi(ct_complex_multi&& other) noexcept { swap(other); }
  ct_complex_multi& operator=(ct_complex_multi const& other) {
    ct_complex_multi copy(other);
    swap(copy);
    return *this;
  }
  ct_complex_multi& operator=(ct_complex_multi&& other) noexcept {
    ct_complex_multi taken(std::move(other));
    swap(taken);
    return *this;
  }
  ~ct_complex_multi() { p_destroy_all(); }

  std::size_t size() const { return m_values.size(); }
  bool empty() const { return m_values.empty(); }
  T const& get(std::size_t index_in) const {
    LMX_ASSERT(index_in < m_values.size());
    return m_values[index_in].get();
  }
  T& get(std::size_t index_in) {
    LMX_ASSERT(index_in < m_values.size());
    return m_values[index_in].get();
  }
  /// The child at `index`; default children are added until it exists.
  T& get_or_append(std::size_t index) {
    while (size() <= index) append();
    return m_values[index].get();
  }
  T& back() {
    LMX_ASSERT(!m_values.empty());
    return m_values.back().get();
  }
  T& append() {
    p_make_room();
    T* const child = m_blocks.make();
    m_values.emplace_back(child, true);
    return *child;
  }
  T& append(std::unique_ptr<T> value) {
    p_make_room();
    m_values.emplace_back(value.release(), false);
    return m_values.back().get();
  }
  T& insert(std::size_t index) { return insert(index, std::make_unique<T>()); }
  T& insert(std::size_t index_in, std::unique_ptr<T> value) {
    LMX_ASSERT(index_in <= m_values.size());
    p_make_room();
    return m_values.emplace(p_at(index_in), value.release(), false)->get();
  }
  /// Replaces the child at `index`; default children are added until it exists.
  void assign(std::size_t index, T const& value) { assign(index, std::unique_ptr<T>(value.clone())); }
  void assign(std::size_t index, std::unique_ptr<T> value) {
    get_or_append(index);
    p_remove(m_values[index]);
    m_values[index] = {value.release(), false};
  }
  void erase(std::size_t index_in) {
    LMX_ASSERT(index_in < m_values.size());
    p_remove(m_values[index_in]);
    m_values.erase(p_at(index_in));
  }
  void clear() {
    p_destroy_all();
    m_values.clear();
    m_blocks.clear();
  }
  void swap(ct_complex_multi& other) noexcept {
    m_values.swap(other.m_values);
    std::swap(m_blocks, other.m_blocks);
  }

 private:
  auto p_at(std::size_t index) { return m_values.begin() + static_cast<std::ptrdiff_t>(index); }
  // For one more child, so that it is owned as soon as it is there.
  void p_make_room() {
    constexpr std::size_t usual_start = 3;  // which fill what is the smallest allocation anyway
    constexpr std::size_t few = 64;
    std::size_t const size = m_values.size();
    if (size == m_values.capacity())
      m_values.reserve(size == 0 ? usual_start : size < few ? 3 * size : 2 * size);
  }
  void p_remove(detail::listed_child<T> const& child) {
    child.destroy();
    if (child.is_in_block()) m_blocks.free_place(&child.get());
  }
  void p_destroy_all() {  // with the blocks to follow
    for (detail::listed_child<T> const& child : m_values) child.destroy();
  }

  std::vector<detail::listed_child<T>> m_values;
  detail::block_storage<T> m_blocks;  // of the children that were made here
};

}  // namespace lmx
