// The fields of the element classes: a simple value with a flag, a list of simple values, one owned child or
// a list of owned children. Children are kept by pointer, so an element stays where it is while siblings
// are added, and whoever was handed its address can keep it.
#pragma once

#include <cstddef>
#include <memory>
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
  ct_non_pod_container(ct_non_pod_container&&) noexcept = default;
  ct_non_pod_container& operator=(ct_non_pod_container const& other) {
    ct_non_pod_container copy(other);
    m_values.swap(copy.m_values);
    return *this;
  }
  ct_non_pod_container& operator=(ct_non_pod_container&&) noexcept = default;

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

 private:
  std::unique_ptr<T> p;
};

/// Children in document order. Copies are deep, by each child's `clone`.
template <class T>
class ct_complex_multi {
 public:
  ct_complex_multi() = default;
  ct_complex_multi(ct_complex_multi const& other) {
    m_values.reserve(other.size());
    for (auto const& value : other.m_values) m_values.emplace_back(value->clone());
  }
  ct_complex_multi(ct_complex_multi&&) noexcept = default;
  ct_complex_multi& operator=(ct_complex_multi const& other) {
    ct_complex_multi copy(other);
    m_values.swap(copy.m_values);
    return *this;
  }
  ct_complex_multi& operator=(ct_complex_multi&&) noexcept = default;

  std::size_t size() const { return m_values.size(); }
  bool empty() const { return m_values.empty(); }
  T const& get(std::size_t index_in) const {
    LMX_ASSERT(index_in < m_values.size());
    return *m_values[index_in];
  }
  T& get(std::size_t index_in) {
    LMX_ASSERT(index_in < m_values.size());
    return *m_values[index_in];
  }
  /// The child at `index`; default children are added until it exists.
  T& get_or_append(std::size_t index) {
    while (size() <= index) append();
    return *m_values[index];
  }
  T& back() {
    LMX_ASSERT(!m_values.empty());
    return *m_values.back();
  }
  T& append() { return append(std::make_unique<T>()); }
  T& append(std::unique_ptr<T> value) {
    constexpr std::size_t usual_start = 3;  // which fill what is the smallest allocation anyway
    if (m_values.capacity() == 0) m_values.reserve(usual_start);
    m_values.push_back(std::move(value));
    return *m_values.back();
  }
  T& insert(std::size_t index) { return insert(index, std::make_unique<T>()); }
  T& insert(std::size_t index_in, std::unique_ptr<T> value) {
    LMX_ASSERT(index_in <= m_values.size());
    return **m_values.insert(m_values.begin() + static_cast<std::ptrdiff_t>(index_in), std::move(value));
  }
  /// Replaces the child at `index`; default children are added until it exists.
  void assign(std::size_t index, T const& value) { assign(index, std::unique_ptr<T>(value.clone())); }
  void assign(std::size_t index, std::unique_ptr<T> value) {
    get_or_append(index);
    m_values[index] = std::move(value);
  }
  void erase(std::size_t index_in) {
    LMX_ASSERT(index_in < m_values.size());
    m_values.erase(m_values.begin() + static_cast<std::ptrdiff_t>(index_in));
  }
  void clear() { m_values.clear(); }

 private:
  std::vector<std::unique_ptr<T>> m_values;
};

}  // namespace lmx
