// Bridges to fields whose values are lists, for schemas that have such types. The field is a container of
// `std::vector<T>`; the spec is that of one item. A list's text is its items with white space between them.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "GenLibrarySupportFiles/lmxinternals/api.h"
#include "GenLibrarySupportFiles/lmxinternals/bridges.h"
#include "GenLibrarySupportFiles/lmxinternals/marshal_bridges.h"

namespace lmx {

/// A field whose values are lists, seen from untyped reading code.
class ISOXML_API c_untyped_unmarshal_list_bridge {
 public:
  /// False everywhere; the reader does not ask.
  virtual bool first_query();
  /// True when a list has been stored, be it an empty one.
  virtual bool is_value_set() = 0;
  /// Begins an empty list and records that it is stored; a repeated field gains one.
  virtual void mark_value_set() = 0;
  /// The text of a mixed-content value; stops the process for any other.
  virtual std::string& ref_text() = 0;
  /// Reads the element's text into the reader's `m_value`; `ELMX_UNABLE_TO_READ_ELEMENT_VALUE` when that
  /// fails.
  virtual elmx_error read_body() = 0;
  /// Turns one token into an item, adds it to the list and checks it. It stays even when the check fails.
  virtual elmx_error add_item(std::string const& token) = 0;
  virtual ~c_untyped_unmarshal_list_bridge();
};

template <class R, class T, class V = T>
class c_atomic_unmarshal_list_bridge : public c_untyped_unmarshal_list_bridge {
 public:
  c_atomic_unmarshal_list_bridge(R& reader, c_validation_spec<T> const& spec)
      : mr_reader(reader), mr_spec(spec) {}

  elmx_error read_body() override { return detail::read_body(mr_reader, mr_spec.m_whitespace); }
  elmx_error add_item(std::string const& token) override {
    T item{};
    mr_spec.mp_v_to_o(item, token);
    ref_value().push_back(item);
    return mr_spec.mp_value_validator(mr_reader, item);
  }
  /// The list to be filled.
  virtual std::vector<T>& ref_value() = 0;

 private:
  R& mr_reader;
  c_validation_spec<T> const& mr_spec;
};

template <class R, class C, class T, class V = T>
class c_unmarshal_list_bridge final : public c_atomic_unmarshal_list_bridge<R, T, V> {
 public:
  /// All three are borrowed for the bridge's lifetime.
  c_unmarshal_list_bridge(R& reader, c_validation_spec<T> const& spec, C& container)
      : c_atomic_unmarshal_list_bridge<R, T, V>(reader, spec), mr_container(container) {}

  bool is_value_set() override { return mr_container.is_set(); }
  void mark_value_set() override {
    mr_container.mark_value_set();
    ref_value().clear();
  }
  std::string& ref_text() override { return mr_container.ref_text(); }
  std::vector<T>& ref_value() override { return mr_container.ref_value(); }

 private:
  C& mr_container;
};

template <class W, class T, class V = T>
class c_atomic_marshal_list_bridge : public c_untyped_marshal_list_bridge {
 public:
  c_atomic_marshal_list_bridge(W& writer, c_validation_spec<T> const& spec)
      : mr_writer(writer), mr_spec(spec) {}

  std::size_t item_count(std::size_t index) override { return ref_value(index).size(); }
  /// By the spec's `o_to_v`, which must be there.
  void write_item(std::size_t index, std::size_t item) override {
    LMX_ASSERT_TEXT(mr_spec.mp_o_to_v != nullptr, "o_to_v");
    std::vector<T> const& list = ref_value(index);
    if (item >= list.size()) detail::throw_range_check(item, list.size());
    mr_spec.mp_o_to_v(mr_writer.stream(), list[item]);
  }
  /// The list to be written.
  virtual std::vector<T> const& ref_value(std::size_t index) = 0;

 private:
  W& mr_writer;
  c_validation_spec<T> const& mr_spec;
};

template <class W, class C, class T, class V = T>
class c_marshal_list_bridge final : public c_atomic_marshal_list_bridge<W, T, V> {
 public:
  /// All three are borrowed for the bridge's lifetime, and the field does not change in it. `count` is how
  /// many of the field's lists are to be written.
  c_marshal_list_bridge(W& writer, c_validation_spec<T> const& spec, C const& field, std::size_t count)
      : c_atomic_marshal_list_bridge<W, T, V>(writer, spec), mr_field(field), m_count(count) {}
  /// Counts as `c_marshal_bridge` does.
  c_marshal_list_bridge(W& writer, c_validation_spec<T> const& spec, C const& field)
      : c_marshal_list_bridge(writer, spec, field, detail::value_count(field)) {}

  std::size_t count() override { return m_count; }
  std::string const& ref_text() override {
    detail::assertion_failed("ct_non_mixed has no text", __FILE__, __LINE__);
  }
  /// Throws `std::out_of_range` for an index that a repeated field does not have. A single value has no
  /// index.
  std::vector<T> const& ref_value(std::size_t index) override { return detail::value_at(mr_field, index); }

 private:
  C const& mr_field;
  std::size_t m_count;
};

}  // namespace lmx
