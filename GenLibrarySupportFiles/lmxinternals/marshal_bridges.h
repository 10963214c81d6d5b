// Between typed fields and untyped writing: a bridge shows one field to code that does not know its type, and
// writes its values by the field's validation spec. Bridges live on the stack for one call.
#pragma once

#include <cstddef>
#include <string>

#include "GenLibrarySupportFiles/lmxinternals/api.h"
#include "GenLibrarySupportFiles/lmxinternals/bridges.h"
#include "GenLibrarySupportFiles/lmxinternals/containers.h"
#include "GenLibrarySupportFiles/lmxtypes/c_binary.h"

namespace lmx {

/// A typed field seen from untyped code. Indices count the values of the field and are below `count()`.
class ISOXML_API c_untyped_marshal_bridge {
 public:
  /// False everywhere; the writer does not ask.
  virtual bool is_multi();
  /// How many values there are to write: 1 for a required field, even if it was never set; 0 or 1 for an
  /// optional one.
  virtual std::size_t count() = 0;
  /// The text of a mixed-content value; stops the process for any other.
  virtual std::string const& ref_text() = 0;
  /// True for a string or binary value that holds nothing, false for every other type.
  virtual bool is_value_empty(std::size_t index) = 0;
  /// Writes one value to the writer's stream.
  virtual void write_value(std::size_t index) = 0;
  virtual ~c_untyped_marshal_bridge();
};

/// A field whose values are lists, seen from untyped code.
class ISOXML_API c_untyped_marshal_list_bridge {
 public:
  /// False everywhere; the writer does not ask.
  virtual bool is_multi();
  /// How many values there are to write.
  virtual std::size_t count() = 0;
  /// The text of a mixed-content value; stops the process for any other.
  virtual std::string const& ref_text() = 0;
  /// How many items the value at `index` has.
  virtual std::size_t item_count(std::size_t index) = 0;
  /// Writes one item of the value at `index` to the writer's stream.
  virtual void write_item(std::size_t index, std::size_t item) = 0;
  virtual ~c_untyped_marshal_list_bridge();
};

namespace detail {

template <class T>
bool is_empty_value(T const&) {
  return false;
}
inline bool is_empty_value(std::string const& value) { return value.empty(); }
inline bool is_empty_value(c_binary const& value) { return value.empty(); }

/// How the values of one kind of field are counted and found.
template <class T, class V, class C>
std::size_t value_count(ct_simple_pod_single<T, V, C> const&) {
  return 1;
}
template <class T, class V, class C>
std::size_t value_count(ct_simple_pod_optional<T, V, C> const& field) {
  return field.is_set() ? 1 : 0;
}
template <class T, class V, class C, class P>
std::size_t value_count(ct_simple_pod_multi<T, V, C, P> const& field) {
  return field.size();
}

template <class T, class C>
T const& value_at(simple_field<T, C> const& field, std::size_t) {
  return field.get();
}
template <class T, class V, class C, class P>
T const& value_at(ct_simple_pod_multi<T, V, C, P> const& field, std::size_t index) {
  if (index >= field.size()) throw_range_check(index, field.size());
  return field[index];
}

}  // namespace detail

/// What a bridge to values of type `T` has in common for all containers. `V` is unused.
template <class W, class T, class V = T>
class c_atomic_marshal_bridge : public c_untyped_marshal_bridge {
 public:
  c_atomic_marshal_bridge(W& writer, c_validation_spec<T> const& spec) : mr_writer(writer), mr_spec(spec) {}

  bool is_value_empty(std::size_t index) override { return detail::is_empty_value(ref_value(index)); }
  /// By the spec's `o_to_v`, which must be there.
  void write_value(std::size_t index) override {
    LMX_ASSERT_TEXT(mr_spec.mp_o_to_v != nullptr, "o_to_v");
    mr_spec.mp_o_to_v(mr_writer.stream(), ref_value(index));
  }
  /// The value to be written.
  virtual T const& ref_value(std::size_t index) = 0;

 private:
  W& mr_writer;
  c_validation_spec<T> const& mr_spec;
};

template <class W, class C, class T, class V = T>
class c_marshal_bridge final : public c_atomic_marshal_bridge<W, T, V> {
 public:
  /// All three are borrowed for the bridge's lifetime, and the field does not change in it. `count` is how
  /// many of the field's values are to be written.
  c_marshal_bridge(W& writer, c_validation_spec<T> const& spec, C const& field, std::size_t count)
      : c_atomic_marshal_bridge<W, T, V>(writer, spec), mr_field(field), m_count(count) {}
  /// Counts as the kind of field asks: 1 for a required one, the flag of an optional one, the size of a list.
  c_marshal_bridge(W& writer, c_validation_spec<T> const& spec, C const& field)
      : c_marshal_bridge(writer, spec, field, detail::value_count(field)) {}

  std::size_t count() override { return m_count; }
  std::string const& ref_text() override {
    detail::assertion_failed("ct_non_mixed has no text", __FILE__, __LINE__);
  }
  /// Throws `std::out_of_range` for an index that a list does not have. A single value has no index.
  T const& ref_value(std::size_t index) override { return detail::value_at(mr_field, index); }

 private:
  C const& mr_field;
  std::size_t m_count;
};

}  // namespace lmx
